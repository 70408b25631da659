#pragma once

/// The files of the application that ClientUnderTest describes, for clients that read files.
namespace ContractFiles {

inline constexpr char metadata[] = R"(!FILE_FORMAT=11.12
!VERSION=11.1.5033
!APPLICATION_SETTINGS
DefaultCurrency=EUR
!CURRENCIES
EUR;0;;Y;English=Euro
USD;0;;Y;English=US dollar
!MEMBERS=Entity
[None];;N;N;N;;;;;;;DefaultParent=#root
GROUP;EUR;Y;N;N;SC_GRP;Holding;;x y;;;DefaultParent=#root;English=Group;French=Groupe
EAST;EUR;N;N;N;;;;;;;DefaultParent=LEGAL;English=East
E1;USD;N;Y;Y;;;US;;;;DefaultParent=EAST;English=Unit 1, East;French=Unité 1
E2;EUR;N;Y;N;;;;;;;DefaultParent=WEST;English=Unit 2
WEST;EUR;N;N;N;;;;;;;DefaultParent=GROUP;English=West
E3;EUR;N;N;N;;;;;;;DefaultParent=WEST;English=Unit 3
LEGAL;EUR;N;N;N;;;;;;;DefaultParent=#root;English=Legal view
SPARE;EUR;N;N;N;;;;;;;DefaultParent=#root
!HIERARCHIES=Entity
;[None]
;GROUP
GROUP;EAST
EAST;E1
EAST;E2
GROUP;WEST
WEST;E2
WEST;E3
;LEGAL
LEGAL;EAST
!MEMBERS=Custom1
[None];N;N;N;;;;;DefaultParent=#root
CLO;N;N;N;c1;;c3;SC_PL;DefaultParent=#root;English=Closing
OPE;N;N;N;;;;;DefaultParent=CLO;English=Opening
Éco;N;N;N;;;;;DefaultParent=#root
!HIERARCHIES=Custom1
;[None];1
;CLO;1
CLO;OPE;1
;Éco;1
!MEMBERS=Account
PL;GROUPLABEL;N;N;N;;;;;;0;N;N;N;N;N;;;;;;;N;DefaultParent=#root;English=Result
SALES;REVENUE;N;Y;R;;CLO;[None];;;2;Y;Y;N;Y;N;one;two;three;;SC_PL;;N;DefaultParent=PL;English=Sales
COST;EXPENSE;Y;N;Y;;;;;;0;N;N;N;N;N;;;;;;;N;DefaultParent=PL;English=Costs
!HIERARCHIES=Account
;PL
PL;SALES
PL;COST
)";

inline constexpr char profile[] = R"(!LANGUAGES
English
French
!MEMBERS=Period
[Year];DefaultParent=#root
Q1;DefaultParent=[Year]
Jan;DefaultParent=Q1
Feb;DefaultParent=Q1
Q2;DefaultParent=[Year]
Mar;DefaultParent=Q2
!HIERARCHIES=Period
;[Year]
[Year];Q1
Q1;Jan
Q1;Feb
[Year];Q2
Q2;Mar
)";

/// SC_PL is a class because members have it.
inline constexpr char security[] = R"(!FILE_FORMAT=2.0
!VERSION=11.12
!USERS_AND_GROUPS
jane@CORP
Readers
jim@corp.com@Native Directory
!SECURITY_CLASSES
[Default]
SC_GRP
!ROLE_ACCESS
Application Administrator;jane@CORP
Load System;jim@corp.com@Native Directory
!SECURITY_CLASS_ACCESS
[Default];Readers;Metadata;N
[Default];jim@corp.com@Native Directory;Promote;Y
SC_GRP;jane@CORP;All;N
SC_GRP;Readers;Read;N
)";

} // namespace ContractFiles
