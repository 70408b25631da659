!FILE_FORMAT=011.12
!CURRENCIES
EUR,0,English=Euro
!CONSOLIDATION_METHODS
GLOBAL,Y,N,<=,50,100,STOP,English=Global
!MEMBERS=Account
'Label,AccountType,DefaultParent,Descriptions
SALES,INCOME,N,Y,Y,PLUG,[None],,,,2,N,Y,N,N,N,a,b,c,,SC,[ICP Top],N,DefaultParent=#root,English=Sales=all
!HIERARCHIES=Account
,SALES
!MEMBERS=Value
[None],English=None
!MEMBERS=ICP
[ICP Top],SC
!MEMBERS=Scenario
ACTUAL,MTD,YTD,Y,N,Y,a,b,c,Y,SC,10,Y,N,,,DefaultParent=#root,English=Actual
!HIERARCHIES=Scenario
,ACTUAL
#root,BUDGET
