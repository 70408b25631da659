!FILE_FORMAT=11.12
!VERSION=11.1.5033
!CUSTOM_ORDER=Movement;Product
!APPLICATION_SETTINGS
DefaultCurrency=EUR
!CURRENCIES
'Label;Scale;TranslationOperator;DisplayInICT;Descriptions
EUR;0;M;Y;English=Euro;French=Euro
USD;0;;Y;English=US dollar;French=Dollar US
!MEMBERS=Entity
'Label;DefCurrency;AllowAdjs;IsICP;AllowAdjFromChildren;SecurityClass;UserDefined1;UserDefined2;UserDefined3;HoldingCompany;SecurityAsPartner;DefaultParent;Descriptions
[None];;Y;N;Y;;;;;;;DefaultParent=#root
GROUP;EUR;Y;N;Y;SC_GRP;;;;HOLDCO;;DefaultParent=#root;English=Group
LEGAL;EUR;Y;N;Y;SC_GRP;;;;;;DefaultParent=#root;English=Legal view
HOLDCO;EUR;Y;Y;N;SC_GRP;FR;;;;SC_ICP;DefaultParent=GROUP;English=Holding company
US01;USD;Y;Y;N;SC_US;US;;;;SC_ICP;DefaultParent=GROUP;English=US unit, East;French=Unité US
!HIERARCHIES=Entity
;[None]
;GROUP
GROUP;HOLDCO
GROUP;US01
;LEGAL
LEGAL;US01
!MEMBERS=Movement
'Label;IsCalculated;SwitchSignForFlow;SwitchTypeForFlow;UserDefined1;UserDefined2;UserDefined3;SecurityClass;SubmissionGroup;DefaultParent;Descriptions
[None];N;N;N;;;;;;DefaultParent=#root
CLO;Y;N;N;;;;;1;DefaultParent=#root;English=Closing balance
OPE;N;N;N;;;;;1;DefaultParent=CLO;English=Opening balance
!HIERARCHIES=Movement
;[None];1
;CLO;0
CLO;OPE;1
!MEMBERS=Account
BS;GROUPLABEL;N;N;N;;;;0;N;Y;Y;;;;;;;N;;;DefaultParent=#root;English=Balance sheet
IC_REC;ASSET;N;Y;R;IC_PLUG;CLO;[None];0;N;Y;Y;BS;;;;SC_FIN;[ICP Entities];Y;;1;DefaultParent=BS;English=Intercompany receivable
!HIERARCHIES=Account
;BS
BS;IC_REC
