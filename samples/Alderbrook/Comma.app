!FILE_FORMAT=11.12
!VERSION=11.1.5033
!CUSTOM_ORDER=Movement;Product;Market
!APPLICATION_SETTINGS
DefaultCurrency=EUR
DefaultRateForBalanceAccounts=RATE_CLO
DefaultRateForFlowAccounts=RATE_AVG
ConsolidationRules=Y
!CURRENCIES
'Label;Scale;TranslationOperator;DisplayInICT;Descriptions
EUR;0;;Y;English=Euro;French=Euro
GBP;0;;Y;English=Pound sterling;French=Livre sterling
USD;0;;Y;English=US dollar;French=Dollar américain
CAD;0;;Y;English=Canadian dollar;French=Dollar canadien
!CONSOLIDATION_METHODS
'Label;UsedByCalcRoutine;IsHoldingMethod;ToPercentControlComp;ToPercentControl;PercentConsol;Control;Descriptions
HOLDING;Y;Y;<=;100;100;Full;English=Holding company;French=Société mère
GLOBAL;Y;N;<=;100;100;Full;English=Full consolidation;French=Intégration globale
EQUITY;Y;N;<=;50;0;Limited;English=Equity method;French=Mise en équivalence
!MEMBERS=Scenario
'Label;DefaultFreq;DefaultView;ZeroViewForNonadj;ZeroViewForAdj;ConsolidateYTD;UserDefined1;UserDefined2;UserDefined3;SupportsProcessManagement;SecurityClass;MaximumReviewLevel;UsesLineItems;EnableDataAudit;DefaultParent;Descriptions
Actual;MTD;YTD;YTD;YTD;Y;;;;Y;;10;N;Y;DefaultParent=#root;English=Actual;French=Réel
Budget;MTD;Periodic;Periodic;Periodic;N;;;;N;;0;N;N;DefaultParent=#root;English=Budget;French=Budget
Forecast;MTD;Periodic;Periodic;Periodic;N;;;;N;;0;N;N;DefaultParent=#root;English=Forecast;French=Prévision
!HIERARCHIES=Scenario
;Actual
;Budget
;Forecast
!MEMBERS=Entity
'Label;DefCurrency;AllowAdjs;IsICP;AllowAdjFromChildren;SecurityClass;UserDefined1;UserDefined2;UserDefined3;HoldingCompany;SecurityAsPartner;DefaultParent;Descriptions
[None];;N;N;N;;;;;;;DefaultParent=#root
GROUP;EUR;Y;N;Y;SC_GROUP;;;;HOLDCO;;DefaultParent=#root;English=Pennyfield Group;French=Groupe Pennyfield
HOLDCO;EUR;Y;Y;N;SC_GROUP;FR;;;;;DefaultParent=GROUP;English=Pennyfield Holding Lyon;French=Pennyfield Holding Lyon
EUROPE;EUR;Y;N;Y;SC_GROUP;;;;;;DefaultParent=GROUP;English=Europe;French=Europe
FR01;EUR;Y;Y;N;SC_EUR;FR;Bakery;;;;DefaultParent=EUROPE;English=Boulangeries Pennyfield Lyon;French=Boulangeries Pennyfield Lyon
DE01;EUR;Y;Y;N;SC_EUR;DE;Dairy;;;;DefaultParent=EUROPE;English=Pennyfield Molkerei Lübeck;French=Laiterie Pennyfield Lubeck
UK;GBP;Y;N;Y;SC_EUR;GB;;;UK01;;DefaultParent=EUROPE;English=United Kingdom;French=Royaume-Uni
UK01;GBP;Y;Y;N;SC_EUR;GB;Bakery;;;;DefaultParent=UK;English=Pennyfield Bakeries Leeds;French=Boulangeries Pennyfield Leeds
UK02;GBP;Y;Y;N;SC_EUR;GB;Dairy;;;;DefaultParent=UK;English=Pennyfield Dairies Bristol;French=Laiteries Pennyfield Bristol
JV01;EUR;N;Y;N;SC_EUR;FR;Dairy;joint venture;;;DefaultParent=EUROPE;English=Crémerie des Deux Rives (50%);French=Crémerie des Deux Rives (50 %)
AMERICAS;USD;Y;N;Y;SC_GROUP;;;;US01;;DefaultParent=GROUP;English=Americas;French=Amériques
US01;USD;Y;Y;N;SC_USD;US;Bakery;;;;DefaultParent=AMERICAS;English=Pennyfield Bakeries Duluth;French=Boulangeries Pennyfield Duluth
US02;USD;Y;Y;N;SC_USD;US;Dairy;;;;DefaultParent=AMERICAS;English=Pennyfield Dairies Spokane;French=Laiteries Pennyfield Spokane
CA01;CAD;Y;Y;N;SC_USD;CA;Dairy;;;;DefaultParent=AMERICAS;English=Pennyfield Dairies Québec;French=Laiteries Pennyfield Québec
DIVISIONS;EUR;Y;N;Y;SC_GROUP;;;;;;DefaultParent=#root;English=By division;French=Par division
BAKERY;EUR;Y;N;Y;SC_GROUP;;;;;;DefaultParent=DIVISIONS;English=Bakery;French=Boulangerie
DAIRY;EUR;Y;N;Y;SC_GROUP;;;;;;DefaultParent=DIVISIONS;English=Dairy;French=Laiterie
DIV_ADJ;EUR;Y;N;N;SC_GROUP;;;;;;DefaultParent=DAIRY;English=Dairy, adjustments of the division;French=Laiterie, ajustements
STERLING;GBP;Y;N;Y;SC_GROUP;;;;;;DefaultParent=DIVISIONS;English=All in sterling;French=Tout en livres
!HIERARCHIES=Entity
;[None]
;GROUP
GROUP;HOLDCO
GROUP;EUROPE
EUROPE;FR01
EUROPE;DE01
EUROPE;UK
UK;UK01
UK;UK02
EUROPE;JV01
GROUP;AMERICAS
AMERICAS;US01
AMERICAS;US02
AMERICAS;CA01
;DIVISIONS
DIVISIONS;BAKERY
BAKERY;FR01
BAKERY;UK01
BAKERY;US01
DIVISIONS;DAIRY
DAIRY;DE01
DAIRY;UK02
DAIRY;JV01
DAIRY;US02
DAIRY;CA01
DAIRY;DIV_ADJ
DIVISIONS;STERLING
STERLING;UK
!MEMBERS=Movement
'Label;IsCalculated;SwitchSignForFlow;SwitchTypeForFlow;UserDefined1;UserDefined2;UserDefined3;SecurityClass;SubmissionGroup;DefaultParent;Descriptions
[None];N;N;N;;;;;;DefaultParent=#root
CLO;Y;N;N;;;;;1;DefaultParent=#root;English=Closing balance;French=Solde de clôture
OPE;N;N;N;;;;;1;DefaultParent=CLO;English=Opening balance;French=Solde d'ouverture
INC;N;N;N;cash;;;;1;DefaultParent=CLO;English=Increase;French=Augmentation
DEC;N;N;N;cash;;;;1;DefaultParent=CLO;English=Decrease;French=Diminution
FX;Y;N;N;;;;;1;DefaultParent=CLO;English=Exchange differences;French=Écarts de conversion
!HIERARCHIES=Movement
;[None];0
;CLO;1
CLO;OPE;1
CLO;INC;1
CLO;DEC;1
CLO;FX;1
!MEMBERS=Product
'Label;IsCalculated;SwitchSignForFlow;SwitchTypeForFlow;UserDefined1;UserDefined2;UserDefined3;SecurityClass;SubmissionGroup;DefaultParent;Descriptions
[None];N;N;N;;;;;;DefaultParent=#root
PRODUCTS;Y;N;N;;;;;1;DefaultParent=#root;English=All products;French=Tous les produits
BREAD;N;N;N;;;;;1;DefaultParent=PRODUCTS;English=Bread;French=Pain
CAKE;N;N;N;;;;;1;DefaultParent=PRODUCTS;English=Cakes;French=Gâteaux
CHEESE;N;N;N;;;;;1;DefaultParent=PRODUCTS;English=Cheese;French=Fromage
MILK;N;N;N;;;;;1;DefaultParent=PRODUCTS;English=Milk;French=Lait
!HIERARCHIES=Product
;[None];0
;PRODUCTS;1
PRODUCTS;BREAD;1
PRODUCTS;CAKE;1
PRODUCTS;CHEESE;1
PRODUCTS;MILK;1
!MEMBERS=Market
'Label;IsCalculated;SwitchSignForFlow;SwitchTypeForFlow;UserDefined1;UserDefined2;UserDefined3;SecurityClass;SubmissionGroup;DefaultParent;Descriptions
[None];N;N;N;;;;;;DefaultParent=#root
MARKETS;Y;N;N;;;;;1;DefaultParent=#root;English=All markets;French=Tous les marchés
SHOPS;N;N;N;;;;;1;DefaultParent=MARKETS;English=Own shops;French=Magasins
RETAIL;N;N;N;;;;;1;DefaultParent=MARKETS;English=Retail chains;French=Grande distribution
!HIERARCHIES=Market
;[None];0
;MARKETS;1
MARKETS;SHOPS;1
MARKETS;RETAIL;1
!MEMBERS=Account
'Label;AccountType;IsCalculated;IsConsolidated;IsICP;PlugAcct;Custom1TopMember;Custom2TopMember;Custom3TopMember;NumDecimalPlaces;UsesLineItems;EnableCustom1Aggr;EnableCustom2Aggr;EnableCustom3Aggr;UserDefined1;UserDefined2;UserDefined3;XBRLTags;SecurityClass;ICPTopMember;EnableDataAudit;CalcAttribute;SubmissionGroup;DefaultParent;Descriptions
BS;GROUPLABEL;N;N;N;;[None];[None];[None];0;N;N;N;N;BS;;;;;[ICP None];N;;1;DefaultParent=#root;English=Balance sheet;French=Bilan
ASSETS;ASSET;Y;Y;N;;CLO;[None];[None];0;N;Y;N;N;BS;;;;;[ICP None];N;;1;DefaultParent=BS;English=Assets;French=Actif
CASH;ASSET;N;Y;N;;CLO;[None];[None];0;N;Y;N;N;BS;;;;;[ICP None];Y;;1;DefaultParent=ASSETS;English=Cash and banks;French=Trésorerie
RECEIV;ASSET;N;Y;N;;CLO;[None];[None];0;N;Y;N;N;BS;;;;;[ICP None];Y;;1;DefaultParent=ASSETS;English=Receivables;French=Créances clients
IC_REC;ASSET;N;Y;R;IC_PLUG;CLO;[None];[None];0;N;Y;N;N;BS;;;;;[ICP Entities];Y;;1;DefaultParent=ASSETS;English=Intercompany receivables;French=Créances intragroupe
STOCK;ASSET;N;Y;N;;CLO;PRODUCTS;[None];0;N;Y;Y;N;BS;;;;;[ICP None];Y;;1;DefaultParent=ASSETS;English=Inventories;French=Stocks
FIXED;ASSET;N;Y;N;;CLO;[None];[None];0;Y;Y;N;N;BS;;;;;[ICP None];Y;;1;DefaultParent=ASSETS;English=Fixed assets;French=Immobilisations
LIABEQ;LIABILITY;Y;Y;N;;CLO;[None];[None];0;N;Y;N;N;BS;;;;;[ICP None];N;;1;DefaultParent=BS;English=Liabilities and equity;French=Passif
PAYABLES;LIABILITY;N;Y;N;;CLO;[None];[None];0;N;Y;N;N;BS;;;;;[ICP None];Y;;1;DefaultParent=LIABEQ;English=Payables;French=Dettes fournisseurs
IC_PAY;LIABILITY;N;Y;R;IC_PLUG;CLO;[None];[None];0;N;Y;N;N;BS;;;;;[ICP Entities];Y;;1;DefaultParent=LIABEQ;English=Intercompany payables;French=Dettes intragroupe
DEBT;LIABILITY;N;Y;N;;CLO;[None];[None];0;N;Y;N;N;BS;;;;;[ICP None];Y;;1;DefaultParent=LIABEQ;English=Borrowings;French=Emprunts
EQUITY;LIABILITY;Y;Y;N;;CLO;[None];[None];0;N;Y;N;N;BS;;;;SC_GROUP;[ICP None];N;;1;DefaultParent=LIABEQ;English=Equity;French=Capitaux propres
CAPITAL;LIABILITY;N;Y;N;;CLO;[None];[None];0;N;Y;N;N;BS;;;;SC_GROUP;[ICP None];Y;;1;DefaultParent=EQUITY;English=Share capital;French=Capital social
RESERVES;LIABILITY;N;Y;N;;CLO;[None];[None];0;N;Y;N;N;BS;;;;SC_GROUP;[ICP None];Y;;1;DefaultParent=EQUITY;English=Reserves;French=Réserves
RESULT;LIABILITY;N;Y;N;;CLO;[None];[None];0;N;Y;N;N;BS;;;;SC_GROUP;[ICP None];Y;;1;DefaultParent=EQUITY;English=Result of the year;French=Résultat de l'exercice
IC_PLUG;ASSET;Y;Y;Y;;CLO;[None];[None];0;N;Y;N;N;BS;;;;;[ICP Top];N;;1;DefaultParent=BS;English=Intercompany differences;French=Écarts intragroupe
PL;GROUPLABEL;N;N;N;;[None];[None];[None];0;N;N;N;N;PL;;;;;[ICP None];N;;1;DefaultParent=#root;English=Income statement;French=Compte de résultat
NETINC;REVENUE;Y;Y;N;;[None];[None];[None];0;N;N;N;N;PL;;;;;[ICP None];N;;1;DefaultParent=PL;English=Net income;French=Résultat net
OPINC;REVENUE;Y;Y;N;;[None];[None];[None];0;N;N;N;N;PL;;;;;[ICP None];N;;1;DefaultParent=NETINC;English=Operating income;French=Résultat opérationnel
SALES;REVENUE;N;Y;N;;[None];PRODUCTS;MARKETS;0;N;N;Y;Y;PL;;;;;[ICP None];Y;;1;DefaultParent=OPINC;English=Sales;French=Ventes
IC_SALES;REVENUE;N;Y;R;IC_PLUG;[None];PRODUCTS;[None];0;N;N;Y;N;PL;;;;;[ICP Entities];Y;;1;DefaultParent=OPINC;English=Intercompany sales;French=Ventes intragroupe
COGS;EXPENSE;N;Y;N;;[None];PRODUCTS;[None];0;N;N;Y;N;PL;;;;;[ICP None];Y;;1;DefaultParent=OPINC;English=Cost of sales;French=Coût des ventes
OPEX;EXPENSE;Y;Y;N;;[None];[None];[None];0;N;N;N;N;PL;;;;;[ICP None];N;;1;DefaultParent=OPINC;English=Operating expenses;French=Charges opérationnelles
WAGES;EXPENSE;N;Y;N;;[None];[None];[None];0;N;N;N;N;PL;;;;SC_HR;[ICP None];Y;;1;DefaultParent=OPEX;English=Wages;French=Salaires
RENT;EXPENSE;N;Y;N;;[None];[None];[None];0;Y;N;N;N;PL;;;;;[ICP None];Y;;1;DefaultParent=OPEX;English=Rent;French=Loyers
OTHER;EXPENSE;N;Y;N;;[None];[None];[None];0;Y;N;N;N;PL;;;;;[ICP None];Y;;1;DefaultParent=OPEX;English=Other expenses;French=Autres charges
INTEREST;EXPENSE;N;Y;N;;[None];[None];[None];0;N;N;N;N;PL;;;;;[ICP None];Y;;1;DefaultParent=NETINC;English=Interest;French=Intérêts
TAX;EXPENSE;N;Y;N;;[None];[None];[None];0;N;N;N;N;PL;;;;;[ICP None];Y;;1;DefaultParent=NETINC;English=Income tax;French=Impôt sur le résultat
KPI;GROUPLABEL;N;N;N;;[None];[None];[None];0;N;N;N;N;KPI;;;;;[ICP None];N;;1;DefaultParent=#root;English=Key figures;French=Indicateurs
NET DEBT;BALANCE;Y;Y;N;;CLO;[None];[None];0;N;Y;N;N;KPI;;;;;[ICP None];N;;1;DefaultParent=KPI;English=Net debt;French=Endettement net
GROSS MARGIN %;DYNAMIC;Y;N;N;;[None];[None];[None];1;N;N;N;N;KPI;;;;;[ICP None];N;Calculated in Sub Dynamic;1;DefaultParent=KPI;English=Gross margin in % of sales;French=Marge brute en % des ventes
HEADCOUNT;BALANCERECURRING;N;Y;N;;[None];[None];[None];0;N;N;N;N;KPI;;;;SC_HR;[ICP None];Y;;1;DefaultParent=KPI;English=Headcount;French=Effectif
RATES;GROUPLABEL;N;N;N;;[None];[None];[None];0;N;N;N;N;FX;;;;;[ICP None];N;;1;DefaultParent=#root;English=Exchange rates;French=Cours de change
RATE_CLO;CURRENCYRATE;N;N;N;;[None];[None];[None];6;N;N;N;N;FX;;;;;[ICP None];Y;;1;DefaultParent=RATES;English=Closing rate;French=Cours de clôture
RATE_AVG;CURRENCYRATE;N;N;N;;[None];[None];[None];6;N;N;N;N;FX;;;;;[ICP None];Y;;1;DefaultParent=RATES;English=Average rate;French=Cours moyen
!HIERARCHIES=Account
;BS
BS;ASSETS
ASSETS;CASH
ASSETS;RECEIV
ASSETS;IC_REC
ASSETS;STOCK
ASSETS;FIXED
BS;LIABEQ
LIABEQ;PAYABLES
LIABEQ;IC_PAY
LIABEQ;DEBT
LIABEQ;EQUITY
EQUITY;CAPITAL
EQUITY;RESERVES
EQUITY;RESULT
BS;IC_PLUG
;PL
PL;NETINC
NETINC;OPINC
OPINC;SALES
OPINC;IC_SALES
OPINC;COGS
OPINC;OPEX
OPEX;WAGES
OPEX;RENT
OPEX;OTHER
NETINC;INTEREST
NETINC;TAX
;KPI
KPI;NET DEBT
NET DEBT;DEBT
NET DEBT;CASH
KPI;GROSS MARGIN %
KPI;HEADCOUNT
;RATES
RATES;RATE_CLO
RATES;RATE_AVG
