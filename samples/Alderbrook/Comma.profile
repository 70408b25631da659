!LANGUAGES
English
French
!MEMBERS=Year
'Label;DefaultParent;Descriptions
2023;DefaultParent=#root
2024;DefaultParent=#root
2025;DefaultParent=#root
2026;DefaultParent=#root
!HIERARCHIES=Year
;2023
;2024
;2025
;2026
!MEMBERS=Period
'Label;DefaultParent;Descriptions
[Year];DefaultParent=#root;English=Year;French=Année
Q1;DefaultParent=[Year];English=First quarter;French=Premier trimestre
Jan;DefaultParent=Q1;English=January;French=Janvier
Feb;DefaultParent=Q1;English=February;French=Février
Mar;DefaultParent=Q1;English=March;French=Mars
Q2;DefaultParent=[Year];English=Second quarter;French=Deuxième trimestre
Apr;DefaultParent=Q2;English=April;French=Avril
May;DefaultParent=Q2;English=May;French=Mai
Jun;DefaultParent=Q2;English=June;French=Juin
Q3;DefaultParent=[Year];English=Third quarter;French=Troisième trimestre
Jul;DefaultParent=Q3;English=July;French=Juillet
Aug;DefaultParent=Q3;English=August;French=Août
Sep;DefaultParent=Q3;English=September;French=Septembre
Q4;DefaultParent=[Year];English=Fourth quarter;French=Quatrième trimestre
Oct;DefaultParent=Q4;English=October;French=Octobre
Nov;DefaultParent=Q4;English=November;French=Novembre
Dec;DefaultParent=Q4;English=December;French=Décembre
!HIERARCHIES=Period
;[Year]
[Year];Q1
Q1;Jan
Q1;Feb
Q1;Mar
[Year];Q2
Q2;Apr
Q2;May
Q2;Jun
[Year];Q3
Q3;Jul
Q3;Aug
Q3;Sep
[Year];Q4
Q4;Oct
Q4;Nov
Q4;Dec
!MEMBERS=View
'Label;DefaultParent;Descriptions
<Scenario View>;DefaultParent=#root;English=View of the scenario;French=Vue du scénario
YTD;DefaultParent=#root;English=Year to date;French=Cumul annuel
Periodic;DefaultParent=#root;English=Periodic;French=Périodique
!HIERARCHIES=View
;<Scenario View>
;YTD
;Periodic
