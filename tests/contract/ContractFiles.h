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

/// The same in XML format.
inline constexpr char xmlMetadata[] = R"(<?xml version="1.0" encoding="UTF-8"?>
<METADATA Version="11.12">
  <MISC Name="AppSettings"><MISCENTRY><LABEL>Application</LABEL><AT Name="DefaultCurrency">EUR</AT></MISCENTRY></MISC>
  <MISC Name="Currencies">
    <MISCENTRY><LABEL>EUR</LABEL><AT Name="Scale">0</AT><DESCRIPTION Language="English">Euro</DESCRIPTION></MISCENTRY>
    <MISCENTRY><LABEL>USD</LABEL><AT Name="Scale">0</AT><DESCRIPTION Language="English">US dollar</DESCRIPTION></MISCENTRY>
  </MISC>
  <DIMENSION Name="Entity">
    <MEMBER><LABEL>[None]</LABEL>
      <AT Name="AllowAdjs">N</AT><AT Name="IsICP">N</AT><AT Name="AllowAdjFromChildren">N</AT>
      <DEFAULTPARENT>#root</DEFAULTPARENT></MEMBER>
    <MEMBER><LABEL>GROUP</LABEL>
      <AT Name="DefCurrency">EUR</AT><AT Name="AllowAdjs">Y</AT><AT Name="IsICP">N</AT><AT Name="AllowAdjFromChildren">N</AT><AT Name="SecurityClass">SC_GRP</AT><AT Name="UserDefined1">Holding</AT><AT Name="UserDefined3">x y</AT>
      <DEFAULTPARENT>#root</DEFAULTPARENT><DESCRIPTION Language="English">Group</DESCRIPTION><DESCRIPTION Language="French">Groupe</DESCRIPTION></MEMBER>
    <MEMBER><LABEL>EAST</LABEL>
      <AT Name="DefCurrency">EUR</AT><AT Name="AllowAdjs">N</AT><AT Name="IsICP">N</AT><AT Name="AllowAdjFromChildren">N</AT>
      <DEFAULTPARENT>LEGAL</DEFAULTPARENT><DESCRIPTION Language="English">East</DESCRIPTION></MEMBER>
    <MEMBER><LABEL>E1</LABEL>
      <AT Name="DefCurrency">USD</AT><AT Name="AllowAdjs">N</AT><AT Name="IsICP">Y</AT><AT Name="AllowAdjFromChildren">Y</AT><AT Name="UserDefined2">US</AT>
      <DEFAULTPARENT>EAST</DEFAULTPARENT><DESCRIPTION Language="English">Unit 1, East</DESCRIPTION><DESCRIPTION Language="French">Unité 1</DESCRIPTION></MEMBER>
    <MEMBER><LABEL>E2</LABEL>
      <AT Name="DefCurrency">EUR</AT><AT Name="AllowAdjs">N</AT><AT Name="IsICP">Y</AT><AT Name="AllowAdjFromChildren">N</AT>
      <DEFAULTPARENT>WEST</DEFAULTPARENT><DESCRIPTION Language="English">Unit 2</DESCRIPTION></MEMBER>
    <MEMBER><LABEL>WEST</LABEL>
      <AT Name="DefCurrency">EUR</AT><AT Name="AllowAdjs">N</AT><AT Name="IsICP">N</AT><AT Name="AllowAdjFromChildren">N</AT>
      <DEFAULTPARENT>GROUP</DEFAULTPARENT><DESCRIPTION Language="English">West</DESCRIPTION></MEMBER>
    <MEMBER><LABEL>E3</LABEL>
      <AT Name="DefCurrency">EUR</AT><AT Name="AllowAdjs">N</AT><AT Name="IsICP">N</AT><AT Name="AllowAdjFromChildren">N</AT>
      <DEFAULTPARENT>WEST</DEFAULTPARENT><DESCRIPTION Language="English">Unit 3</DESCRIPTION></MEMBER>
    <MEMBER><LABEL>LEGAL</LABEL>
      <AT Name="DefCurrency">EUR</AT><AT Name="AllowAdjs">N</AT><AT Name="IsICP">N</AT><AT Name="AllowAdjFromChildren">N</AT>
      <DEFAULTPARENT>#root</DEFAULTPARENT><DESCRIPTION Language="English">Legal view</DESCRIPTION></MEMBER>
    <MEMBER><LABEL>SPARE</LABEL>
      <AT Name="DefCurrency">EUR</AT><AT Name="AllowAdjs">N</AT><AT Name="IsICP">N</AT><AT Name="AllowAdjFromChildren">N</AT>
      <DEFAULTPARENT>#root</DEFAULTPARENT></MEMBER>
    <NODE><PARENT></PARENT><CHILD>[None]</CHILD></NODE>
    <NODE><PARENT></PARENT><CHILD>GROUP</CHILD></NODE>
    <NODE><PARENT>GROUP</PARENT><CHILD>EAST</CHILD></NODE>
    <NODE><PARENT>EAST</PARENT><CHILD>E1</CHILD></NODE>
    <NODE><PARENT>EAST</PARENT><CHILD>E2</CHILD></NODE>
    <NODE><PARENT>GROUP</PARENT><CHILD>WEST</CHILD></NODE>
    <NODE><PARENT>WEST</PARENT><CHILD>E2</CHILD></NODE>
    <NODE><PARENT>WEST</PARENT><CHILD>E3</CHILD></NODE>
    <NODE><PARENT></PARENT><CHILD>LEGAL</CHILD></NODE>
    <NODE><PARENT>LEGAL</PARENT><CHILD>EAST</CHILD></NODE>
  </DIMENSION>
  <DIMENSION Name="Custom1">
    <MEMBER><LABEL>[None]</LABEL>
      <AT Name="IsCalculated">N</AT><AT Name="SwitchSignForFlow">N</AT><AT Name="SwitchTypeForFlow">N</AT>
      <DEFAULTPARENT>#root</DEFAULTPARENT></MEMBER>
    <MEMBER><LABEL>CLO</LABEL>
      <AT Name="IsCalculated">N</AT><AT Name="SwitchSignForFlow">N</AT><AT Name="SwitchTypeForFlow">N</AT><AT Name="UserDefined1">c1</AT><AT Name="UserDefined3">c3</AT><AT Name="SecurityClass">SC_PL</AT>
      <DEFAULTPARENT>#root</DEFAULTPARENT><DESCRIPTION Language="English">Closing</DESCRIPTION></MEMBER>
    <MEMBER><LABEL>OPE</LABEL>
      <AT Name="IsCalculated">N</AT><AT Name="SwitchSignForFlow">N</AT><AT Name="SwitchTypeForFlow">N</AT>
      <DEFAULTPARENT>CLO</DEFAULTPARENT><DESCRIPTION Language="English">Opening</DESCRIPTION></MEMBER>
    <MEMBER><LABEL>Éco</LABEL>
      <AT Name="IsCalculated">N</AT><AT Name="SwitchSignForFlow">N</AT><AT Name="SwitchTypeForFlow">N</AT>
      <DEFAULTPARENT>#root</DEFAULTPARENT></MEMBER>
    <NODE><PARENT></PARENT><CHILD>[None]</CHILD><AT Name="AggrWeight">1</AT></NODE>
    <NODE><PARENT></PARENT><CHILD>CLO</CHILD><AT Name="AggrWeight">1</AT></NODE>
    <NODE><PARENT>CLO</PARENT><CHILD>OPE</CHILD><AT Name="AggrWeight">1</AT></NODE>
    <NODE><PARENT></PARENT><CHILD>Éco</CHILD><AT Name="AggrWeight">1</AT></NODE>
  </DIMENSION>
  <DIMENSION Name="Account">
    <MEMBER><LABEL>PL</LABEL>
      <AT Name="AccountType">GROUPLABEL</AT><AT Name="IsCalculated">N</AT><AT Name="IsConsolidated">N</AT><AT Name="IsICP">N</AT><AT Name="NumDecimalPlaces">0</AT><AT Name="UsesLineItems">N</AT><AT Name="EnableCustom1Aggr">N</AT><AT Name="EnableCustom2Aggr">N</AT><AT Name="EnableCustom3Aggr">N</AT><AT Name="EnableCustom4Aggr">N</AT><AT Name="EnableDataAudit">N</AT>
      <DEFAULTPARENT>#root</DEFAULTPARENT><DESCRIPTION Language="English">Result</DESCRIPTION></MEMBER>
    <MEMBER><LABEL>SALES</LABEL>
      <AT Name="AccountType">REVENUE</AT><AT Name="IsCalculated">N</AT><AT Name="IsConsolidated">Y</AT><AT Name="IsICP">R</AT><AT Name="Custom1TopMember">CLO</AT><AT Name="Custom2TopMember">[None]</AT><AT Name="NumDecimalPlaces">2</AT><AT Name="UsesLineItems">Y</AT><AT Name="EnableCustom1Aggr">Y</AT><AT Name="EnableCustom2Aggr">N</AT><AT Name="EnableCustom3Aggr">Y</AT><AT Name="EnableCustom4Aggr">N</AT><AT Name="UserDefined1">one</AT><AT Name="UserDefined2">two</AT><AT Name="UserDefined3">three</AT><AT Name="SecurityClass">SC_PL</AT><AT Name="EnableDataAudit">N</AT>
      <DEFAULTPARENT>PL</DEFAULTPARENT><DESCRIPTION Language="English">Sales</DESCRIPTION></MEMBER>
    <MEMBER><LABEL>COST</LABEL>
      <AT Name="AccountType">EXPENSE</AT><AT Name="IsCalculated">Y</AT><AT Name="IsConsolidated">N</AT><AT Name="IsICP">Y</AT><AT Name="NumDecimalPlaces">0</AT><AT Name="UsesLineItems">N</AT><AT Name="EnableCustom1Aggr">N</AT><AT Name="EnableCustom2Aggr">N</AT><AT Name="EnableCustom3Aggr">N</AT><AT Name="EnableCustom4Aggr">N</AT><AT Name="EnableDataAudit">N</AT>
      <DEFAULTPARENT>PL</DEFAULTPARENT><DESCRIPTION Language="English">Costs</DESCRIPTION></MEMBER>
    <NODE><PARENT></PARENT><CHILD>PL</CHILD></NODE>
    <NODE><PARENT>PL</PARENT><CHILD>SALES</CHILD></NODE>
    <NODE><PARENT>PL</PARENT><CHILD>COST</CHILD></NODE>
  </DIMENSION>
</METADATA>
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

inline constexpr char memberLists[] = R"(Sub EnumMemberLists()
    Dim lists(1)
    If HS.Dimension = "Entity" Then
        lists(1) = "Units"
        HS.SetMemberLists lists
    End If
End Sub

Sub EnumMembersInList()
    If HS.Dimension = "Entity" And HS.MemberListID = 1 Then
        HS.AddEntityToList "WEST", "E3"
        HS.AddEntityToList "EAST", "E1"
    End If
End Sub
)";

} // namespace ContractFiles
