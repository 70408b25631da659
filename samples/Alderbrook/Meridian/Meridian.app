!FILE_FORMAT=11.12
!VERSION=11.1.5033
!CUSTOM_ORDER=Movement;Product;Market;CostCenter
!APPLICATION_SETTINGS
DefaultCurrency=EUR
DefaultRateForBalanceAccounts=RATE CLO
DefaultRateForFlowAccounts=RATE AVG
DefaultValueForActive=1
ConsolidationRules=Y
OrgByPeriodApplication=N
UsePVAForBalanceAccounts=N
UsePVAForFlowAccounts=Y
NodeSecurity=Entity
ICPEntitiesAggregationWeight=1
EnableMetadataSecurityFiltering=N
UseSecurityForAccounts=Y
UseSecurityForEntities=Y
UseSecurityForScenarios=Y
!CURRENCIES
'Label;Scale;TranslationOperator;DisplayInICT;Descriptions
EUR;0;;Y;English=Euro;French=Euro;German=Euro
GBP;0;;Y;English=Pound sterling;French=Livre sterling;German=Pfund Sterling
USD;0;;Y;English=US dollar;French=Dollar américain;German=US-Dollar
SEK;0;;Y;English=Swedish krona;French=Couronne suédoise;German=Schwedische Krone
NOK;0;;Y;English=Norwegian krone;French=Couronne norvégienne;German=Norwegische Krone
DKK;0;;Y;English=Danish krone;French=Couronne danoise;German=Dänische Krone
CHF;0;;Y;English=Swiss franc;French=Franc suisse;German=Schweizer Franken
PLN;0;;Y;English=Polish zloty;French=Zloty polonais;German=Polnischer Zloty
CZK;0;;Y;English=Czech koruna;French=Couronne tchèque;German=Tschechische Krone
HUF;0;;Y;English=Hungarian forint;French=Forint hongrois;German=Ungarischer Forint
RON;0;;Y;English=Romanian leu;French=Leu roumain;German=Rumänischer Leu
CAD;0;;Y;English=Canadian dollar;French=Dollar canadien;German=Kanadischer Dollar
MXN;0;;Y;English=Mexican peso;French=Peso mexicain;German=Mexikanischer Peso
BRL;0;;Y;English=Brazilian real;French=Real brésilien;German=Brasilianischer Real
JPY;0;;Y;English=Japanese yen;French=Yen japonais;German=Japanischer Yen
SGD;0;;Y;English=Singapore dollar;French=Dollar de Singapour;German=Singapur-Dollar
AUD;0;;Y;English=Australian dollar;French=Dollar australien;German=Australischer Dollar
ZAR;0;;Y;English=South African rand;French=Rand sud-africain;German=Südafrikanischer Rand
MAD;0;;Y;English=Moroccan dirham;French=Dirham marocain;German=Marokkanischer Dirham
!CONSOLIDATION_METHODS
'Label;UsedByCalcRoutine;IsHoldingMethod;ToPercentControlComp;ToPercentControl;PercentConsol;Control;Descriptions
HOLDING;Y;Y;<=;100;100;Full;English=Holding company;French=Société mère;German=Muttergesellschaft
GLOBAL;Y;N;<=;100;100;Full;English=Full consolidation;French=Intégration globale;German=Vollkonsolidierung
PROPORTIONAL;Y;N;<=;50;50;Limited;English=Proportional consolidation;French=Intégration proportionnelle;German=Quotenkonsolidierung
EQUITY;Y;N;<;50;0;Limited;English=Equity method;French=Mise en équivalence;German=Equity-Methode
NONE;Y;N;<;20;0;No;English=Not consolidated;French=Non consolidé;German=Nicht konsolidiert
!MEMBERS=Scenario
'Label;DefaultFreq;DefaultView;ZeroViewForNonadj;ZeroViewForAdj;ConsolidateYTD;UserDefined1;UserDefined2;UserDefined3;SupportsProcessManagement;SecurityClass;MaximumReviewLevel;UsesLineItems;EnableDataAudit;DefFreqForICTrans;PhasedSubStartYear;DefaultParent;Descriptions
Actual;MTD;YTD;YTD;YTD;Y;;;;Y;SC_ACT;10;Y;Y;MTD;2021;DefaultParent=#root;English=Actual;French=Réel;German=Ist
Budget;MTD;Periodic;Periodic;Periodic;N;;;;Y;SC_PLAN;8;Y;Y;MTD;2021;DefaultParent=#root;English=Budget;French=Budget;German=Budget
FC-03;MTD;Periodic;Periodic;Periodic;N;;;;Y;SC_PLAN;4;Y;Y;MTD;2021;DefaultParent=#root;English=Forecast 3+9;French=Prévision 3+9;German=Prognose 3+9
FC-06;MTD;Periodic;Periodic;Periodic;N;;;;Y;SC_PLAN;4;Y;Y;MTD;2021;DefaultParent=#root;English=Forecast 6+6;French=Prévision 6+6;German=Prognose 6+6
FC-09;MTD;Periodic;Periodic;Periodic;N;;;;Y;SC_PLAN;4;Y;Y;MTD;2021;DefaultParent=#root;English=Forecast 9+3;French=Prévision 9+3;German=Prognose 9+3
Plan 5Y;YTD;YTD;YTD;YTD;Y;restricted;;;Y;SC_PLAN;2;Y;Y;YTD;2021;DefaultParent=#root;English=Five-year plan;French=Plan à cinq ans;German=Fünfjahresplan
Actual at BUD rates;MTD;YTD;YTD;YTD;Y;;;;N;SC_ACT;0;Y;Y;MTD;2021;DefaultParent=#root;English=Actual at budget rates;French=Réel aux cours du budget;German=Ist zu Budgetkursen
Pro forma;MTD;YTD;YTD;YTD;Y;;;;N;SC_ACT;0;Y;Y;MTD;2021;DefaultParent=#root;English=Pro forma scope;French=Périmètre pro forma;German=Pro-forma-Konsolidierungskreis
Audit;MTD;YTD;YTD;YTD;Y;;;;Y;SC_AUDIT;10;Y;Y;MTD;2021;DefaultParent=#root;English=Audit adjustments;French=Ajustements d'audit;German=Prüfungsanpassungen
What-if;MTD;Periodic;Periodic;Periodic;N;;;;N;;0;Y;Y;MTD;2021;DefaultParent=#root;English=What-if;French=Simulation;German=Simulation
!HIERARCHIES=Scenario
;Actual
;Budget
;FC-03
;FC-06
;FC-09
;Plan 5Y
;Actual at BUD rates
;Pro forma
;Audit
;What-if
!MEMBERS=Entity
'Label;DefCurrency;AllowAdjs;IsICP;AllowAdjFromChildren;SecurityClass;UserDefined1;UserDefined2;UserDefined3;HoldingCompany;SecurityAsPartner;DefaultParent;Descriptions
[None];;Y;N;Y;;;;;;;DefaultParent=#root
ALDERBROOK;EUR;Y;N;Y;SC_CORP;;;;HOLDCO;;DefaultParent=#root;English=Alderbrook Group;French=Groupe Alderbrook;German=Alderbrook-Konzern
HOLDCO;EUR;Y;Y;N;SC_NL;NL;HQ;since 2011;;SC_ICP;DefaultParent=ALDERBROOK;English=Alderbrook Holding N.V.;French=Alderbrook Holding N.V.;German=Alderbrook Holding N.V.
FINCO;EUR;Y;Y;N;SC_NL;NL;HQ;since 1989;;SC_ICP;DefaultParent=ALDERBROOK;English=Alderbrook Finance B.V.;French=Alderbrook Finance B.V.;German=Alderbrook Finance B.V.
RE-CO;EUR;Y;Y;N;SC_NL;NL;HQ;;;SC_ICP;DefaultParent=ALDERBROOK;English=Alderbrook Reinsurance B.V.;French=Alderbrook Reinsurance B.V.;German=Alderbrook Reinsurance B.V.
NORTHFELL;EUR;Y;N;Y;SC_CORP;;NF;;NF_HOLD;;DefaultParent=ALDERBROOK;English=Northfell Foods;French=Northfell Foods;German=Northfell Foods
NF_HOLD;EUR;Y;Y;N;SC_NL;NL;HQ;since 2005;;SC_ICP;DefaultParent=NORTHFELL;English=Northfell Foods Holding B.V.;French=Northfell Foods Holding B.V.;German=Northfell Foods Holding B.V.
NF_GB;GBP;Y;N;Y;SC_GB;GB;NF;;GB101;;DefaultParent=NORTHFELL;English=Northfell Foods, United Kingdom;French=Northfell Foods, Royaume-Uni;German=Northfell Foods, Vereinigtes Königreich
GB101;GBP;Y;Y;N;SC_GB;GB;NF-1;since 2003;;SC_ICP;DefaultParent=NF_GB;English=Northfell Dairies Hull Ltd;French=Northfell Dairies Hull Ltd;German=Northfell Dairies Hull Ltd
GB102;GBP;Y;Y;N;SC_GB;GB;NF-2;since 2013;;SC_ICP;DefaultParent=NF_GB;English=Northfell Cheese Hull Ltd;French=Northfell Cheese Hull Ltd;German=Northfell Cheese Hull Ltd
GB103;GBP;Y;Y;N;SC_GB;GB;NF-3;since 1975;;SC_ICP;DefaultParent=NF_GB;English=Northfell Cold Stores Hull Ltd;French=Northfell Cold Stores Hull Ltd;German=Northfell Cold Stores Hull Ltd
GB104;GBP;Y;Y;N;SC_GB;GB;NF-1;since 1994;;SC_ICP;DefaultParent=NF_GB;English=Northfell Dairies Bristol Ltd;French=Northfell Dairies Bristol Ltd;German=Northfell Dairies Bristol Ltd
GB105;GBP;Y;Y;N;SC_GB;GB;NF-2;;;SC_ICP;DefaultParent=NF_GB;English=Northfell Cheese Bristol Ltd;French=Northfell Cheese Bristol Ltd;German=Northfell Cheese Bristol Ltd
NF_IE;EUR;Y;N;Y;SC_IE;IE;NF;;IE101;;DefaultParent=NORTHFELL;English=Northfell Foods, Ireland;French=Northfell Foods, Irlande;German=Northfell Foods, Irland
IE101;EUR;Y;Y;N;SC_IE;IE;NF-1;since 1995;;SC_ICP;DefaultParent=NF_IE;English=Northfell Dairies Galway Ltd;French=Northfell Dairies Galway Ltd;German=Northfell Dairies Galway Ltd
Baile's Farm;EUR;Y;N;Y;SC_IE;IE;NF-2;;;;DefaultParent=NF_IE;English=Northfell Cheese Galway Ltd;French=Northfell Cheese Galway Ltd;German=Northfell Cheese Galway Ltd
Baile's Farm_HQ;EUR;Y;Y;N;SC_IE;IE;NF-2;;;SC_ICP;DefaultParent=Baile's Farm;English=Northfell Cheese Galway Ltd, head office;French=Northfell Cheese Galway Ltd, siège;German=Northfell Cheese Galway Ltd, Zentrale
Baile's Farm_P1;EUR;Y;Y;N;SC_IE;IE;NF-2;since 1991;;SC_ICP;DefaultParent=Baile's Farm;English=Northfell Cheese Galway Ltd, plant 1;French=Northfell Cheese Galway Ltd, usine 1;German=Northfell Cheese Galway Ltd, Werk 1
Baile's Farm_P2;EUR;Y;Y;N;SC_IE;IE;NF-2;since 2017;;SC_ICP;DefaultParent=Baile's Farm;English=Northfell Cheese Galway Ltd, plant 2;French=Northfell Cheese Galway Ltd, usine 2;German=Northfell Cheese Galway Ltd, Werk 2
Baile's Farm_WH;EUR;Y;N;N;SC_IE;IE;NF-2;since 1990;;;DefaultParent=Baile's Farm;English=Northfell Cheese Galway Ltd, warehouse;French=Northfell Cheese Galway Ltd, entrepôt;German=Northfell Cheese Galway Ltd, Lager
IE103;EUR;Y;Y;N;SC_IE;IE;NF-3;since 1983;;SC_ICP;DefaultParent=NF_IE;English=Northfell Cold Stores Galway Ltd;French=Northfell Cold Stores Galway Ltd;German=Northfell Cold Stores Galway Ltd
IE104;EUR;Y;Y;N;SC_IE;IE;NF-1;since 1986;;SC_ICP;DefaultParent=NF_IE;English=Northfell Dairies Limerick Ltd;French=Northfell Dairies Limerick Ltd;German=Northfell Dairies Limerick Ltd
IE105;EUR;Y;Y;N;SC_IE;IE;NF-2;;;SC_ICP;DefaultParent=NF_IE;English=Northfell Cheese Limerick Ltd;French=Northfell Cheese Limerick Ltd;German=Northfell Cheese Limerick Ltd
IE106;EUR;Y;Y;N;SC_IE;IE;NF-3;since 2014;;SC_ICP;DefaultParent=NF_IE;English=Northfell Cold Stores Limerick Ltd;French=Northfell Cold Stores Limerick Ltd;German=Northfell Cold Stores Limerick Ltd
NF_FR;EUR;Y;N;Y;SC_FR;FR;NF;;FR101;;DefaultParent=NORTHFELL;English=Northfell Foods, France;French=Northfell Foods, France;German=Northfell Foods, Frankreich
FR101;EUR;Y;Y;N;SC_FR;FR;NF-1;since 1994;;SC_ICP;DefaultParent=NF_FR;English=Northfell Dairies Lille SAS;French=Northfell Dairies Lille SAS;German=Northfell Dairies Lille SAS
L'Aubépine;EUR;Y;N;Y;SC_FR;FR;NF-2;;;;DefaultParent=NF_FR;English=Northfell Cheese Lille SAS;French=Northfell Cheese Lille SAS;German=Northfell Cheese Lille SAS
L'Aubépine_HQ;EUR;Y;Y;N;SC_FR;FR;NF-2;;;SC_ICP;DefaultParent=L'Aubépine;English=Northfell Cheese Lille SAS, head office;French=Northfell Cheese Lille SAS, siège;German=Northfell Cheese Lille SAS, Zentrale
L'Aubépine_P1;EUR;Y;Y;N;SC_FR;FR;NF-2;since 2015;;SC_ICP;DefaultParent=L'Aubépine;English=Northfell Cheese Lille SAS, plant 1;French=Northfell Cheese Lille SAS, usine 1;German=Northfell Cheese Lille SAS, Werk 1
L'Aubépine_P2;EUR;Y;Y;N;SC_FR;FR;NF-2;since 1993;;SC_ICP;DefaultParent=L'Aubépine;English=Northfell Cheese Lille SAS, plant 2;French=Northfell Cheese Lille SAS, usine 2;German=Northfell Cheese Lille SAS, Werk 2
L'Aubépine_WH;EUR;Y;N;N;SC_FR;FR;NF-2;since 1982;;;DefaultParent=L'Aubépine;English=Northfell Cheese Lille SAS, warehouse;French=Northfell Cheese Lille SAS, entrepôt;German=Northfell Cheese Lille SAS, Lager
FR103;EUR;Y;Y;N;SC_FR;FR;NF-3;since 2006;;SC_ICP;DefaultParent=NF_FR;English=Northfell Cold Stores Lille SAS;French=Northfell Cold Stores Lille SAS;German=Northfell Cold Stores Lille SAS
FR104;EUR;Y;N;Y;SC_FR;FR;NF-1;;;;DefaultParent=NF_FR;English=Northfell Dairies Nantes SAS;French=Northfell Dairies Nantes SAS;German=Northfell Dairies Nantes SAS
FR104_HQ;EUR;Y;Y;N;SC_FR;FR;NF-1;since 1982;;SC_ICP;DefaultParent=FR104;English=Northfell Dairies Nantes SAS, head office;French=Northfell Dairies Nantes SAS, siège;German=Northfell Dairies Nantes SAS, Zentrale
FR104_P1;EUR;Y;Y;N;SC_FR;FR;NF-1;since 1997;;SC_ICP;DefaultParent=FR104;English=Northfell Dairies Nantes SAS, plant 1;French=Northfell Dairies Nantes SAS, usine 1;German=Northfell Dairies Nantes SAS, Werk 1
FR104_P2;EUR;Y;Y;N;SC_FR;FR;NF-1;since 2003;;SC_ICP;DefaultParent=FR104;English=Northfell Dairies Nantes SAS, plant 2;French=Northfell Dairies Nantes SAS, usine 2;German=Northfell Dairies Nantes SAS, Werk 2
NF_BE;EUR;Y;N;Y;SC_BE;BE;NF;;BE101;;DefaultParent=NORTHFELL;English=Northfell Foods, Belgium;French=Northfell Foods, Belgique;German=Northfell Foods, Belgien
BE101;EUR;Y;Y;N;SC_BE;BE;NF-1;;;SC_ICP;DefaultParent=NF_BE;English=Northfell Dairies Liège NV;French=Northfell Dairies Liège NV;German=Northfell Dairies Liège NV
BE102;EUR;Y;Y;N;SC_BE;BE;NF-2;since 2022;;SC_ICP;DefaultParent=NF_BE;English=Northfell Cheese Liège NV;French=Northfell Cheese Liège NV;German=Northfell Cheese Liège NV
BE103;EUR;Y;Y;N;SC_BE;BE;NF-3;;;SC_ICP;DefaultParent=NF_BE;English=Northfell Cold Stores Liège NV;French=Northfell Cold Stores Liège NV;German=Northfell Cold Stores Liège NV
BE104;EUR;Y;Y;N;SC_BE;BE;NF-1;since 2001;;SC_ICP;DefaultParent=NF_BE;English=Northfell Dairies Antwerp NV;French=Northfell Dairies Antwerp NV;German=Northfell Dairies Antwerp NV
BE105;EUR;Y;N;Y;SC_BE;BE;NF-2;;;;DefaultParent=NF_BE;English=Northfell Cheese Antwerp NV;French=Northfell Cheese Antwerp NV;German=Northfell Cheese Antwerp NV
BE105_HQ;EUR;Y;Y;N;SC_BE;BE;NF-2;since 1999;;SC_ICP;DefaultParent=BE105;English=Northfell Cheese Antwerp NV, head office;French=Northfell Cheese Antwerp NV, siège;German=Northfell Cheese Antwerp NV, Zentrale
BE105_P1;EUR;Y;Y;N;SC_BE;BE;NF-2;;;SC_ICP;DefaultParent=BE105;English=Northfell Cheese Antwerp NV, plant 1;French=Northfell Cheese Antwerp NV, usine 1;German=Northfell Cheese Antwerp NV, Werk 1
BE105_P2;EUR;Y;Y;N;SC_BE;BE;NF-2;since 1978;;SC_ICP;DefaultParent=BE105;English=Northfell Cheese Antwerp NV, plant 2;French=Northfell Cheese Antwerp NV, usine 2;German=Northfell Cheese Antwerp NV, Werk 2
BE105_WH;EUR;Y;N;N;SC_BE;BE;NF-2;since 2013;;;DefaultParent=BE105;English=Northfell Cheese Antwerp NV, warehouse;French=Northfell Cheese Antwerp NV, entrepôt;German=Northfell Cheese Antwerp NV, Lager
BE105_SO;EUR;Y;Y;N;SC_BE;BE;NF-2;;;SC_ICP;DefaultParent=BE105;English=Northfell Cheese Antwerp NV, sales office;French=Northfell Cheese Antwerp NV, bureau de vente;German=Northfell Cheese Antwerp NV, Verkaufsbüro
NF_NL;EUR;Y;N;Y;SC_NL;NL;NF;;NL101;;DefaultParent=NORTHFELL;English=Northfell Foods, Netherlands;French=Northfell Foods, Pays-Bas;German=Northfell Foods, Niederlande
NL101;EUR;Y;Y;N;SC_NL;NL;NF-1;since 1989;;SC_ICP;DefaultParent=NF_NL;English=Northfell Dairies Groningen B.V.;French=Northfell Dairies Groningen B.V.;German=Northfell Dairies Groningen B.V.
NL102;EUR;Y;Y;N;SC_NL;NL;NF-2;since 2011;;SC_ICP;DefaultParent=NF_NL;English=Northfell Cheese Groningen B.V.;French=Northfell Cheese Groningen B.V.;German=Northfell Cheese Groningen B.V.
NL103;EUR;Y;Y;N;SC_NL;NL;NF-3;since 1977;;SC_ICP;DefaultParent=NF_NL;English=Northfell Cold Stores Groningen B.V.;French=Northfell Cold Stores Groningen B.V.;German=Northfell Cold Stores Groningen B.V.
NL104;EUR;Y;Y;N;SC_NL;NL;NF-1;;;SC_ICP;DefaultParent=NF_NL;English=Northfell Dairies Breda B.V.;French=Northfell Dairies Breda B.V.;German=Northfell Dairies Breda B.V.
NL105;EUR;Y;Y;N;SC_NL;NL;NF-2;since 1998;;SC_ICP;DefaultParent=NF_NL;English=Northfell Cheese Breda B.V.;French=Northfell Cheese Breda B.V.;German=Northfell Cheese Breda B.V.
NF_DE;EUR;Y;N;Y;SC_DE;DE;NF;;DE101;;DefaultParent=NORTHFELL;English=Northfell Foods, Germany;French=Northfell Foods, Allemagne;German=Northfell Foods, Deutschland
DE101;EUR;Y;Y;N;SC_DE;DE;NF-1;;;SC_ICP;DefaultParent=NF_DE;English=Northfell Dairies Münster GmbH;French=Northfell Dairies Münster GmbH;German=Northfell Dairies Münster GmbH
DE102;EUR;Y;N;Y;SC_DE;DE;NF-2;;;;DefaultParent=NF_DE;English=Northfell Cheese Münster GmbH;French=Northfell Cheese Münster GmbH;German=Northfell Cheese Münster GmbH
DE102_HQ;EUR;Y;Y;N;SC_DE;DE;NF-2;since 1981;;SC_ICP;DefaultParent=DE102;English=Northfell Cheese Münster GmbH, head office;French=Northfell Cheese Münster GmbH, siège;German=Northfell Cheese Münster GmbH, Zentrale
DE102_P1;EUR;Y;Y;N;SC_DE;DE;NF-2;since 2014;;SC_ICP;DefaultParent=DE102;English=Northfell Cheese Münster GmbH, plant 1;French=Northfell Cheese Münster GmbH, usine 1;German=Northfell Cheese Münster GmbH, Werk 1
DE102_P2;EUR;Y;Y;N;SC_DE;DE;NF-2;;;SC_ICP;DefaultParent=DE102;English=Northfell Cheese Münster GmbH, plant 2;French=Northfell Cheese Münster GmbH, usine 2;German=Northfell Cheese Münster GmbH, Werk 2
DE102_WH;EUR;Y;N;N;SC_DE;DE;NF-2;since 1999;;;DefaultParent=DE102;English=Northfell Cheese Münster GmbH, warehouse;French=Northfell Cheese Münster GmbH, entrepôt;German=Northfell Cheese Münster GmbH, Lager
DE103;EUR;Y;Y;N;SC_DE;DE;NF-3;;;SC_ICP;DefaultParent=NF_DE;English=Northfell Cold Stores Münster GmbH;French=Northfell Cold Stores Münster GmbH;German=Northfell Cold Stores Münster GmbH
DE104;EUR;Y;Y;N;SC_DE;DE;NF-1;since 2001;;SC_ICP;DefaultParent=NF_DE;English=Northfell Dairies Köln GmbH;French=Northfell Dairies Köln GmbH;German=Northfell Dairies Köln GmbH
DE105;EUR;Y;Y;N;SC_DE;DE;NF-2;since 1987;;SC_ICP;DefaultParent=NF_DE;English=Northfell Cheese Köln GmbH;French=Northfell Cheese Köln GmbH;German=Northfell Cheese Köln GmbH
DE106;EUR;Y;N;Y;SC_DE;DE;NF-3;;;;DefaultParent=NF_DE;English=Northfell Cold Stores Köln GmbH;French=Northfell Cold Stores Köln GmbH;German=Northfell Cold Stores Köln GmbH
DE106_HQ;EUR;Y;Y;N;SC_DE;DE;NF-3;;;SC_ICP;DefaultParent=DE106;English=Northfell Cold Stores Köln GmbH, head office;French=Northfell Cold Stores Köln GmbH, siège;German=Northfell Cold Stores Köln GmbH, Zentrale
DE106_P1;EUR;Y;Y;N;SC_DE;DE;NF-3;since 1991;;SC_ICP;DefaultParent=DE106;English=Northfell Cold Stores Köln GmbH, plant 1;French=Northfell Cold Stores Köln GmbH, usine 1;German=Northfell Cold Stores Köln GmbH, Werk 1
DE106_P2;EUR;Y;Y;N;SC_DE;DE;NF-3;since 2017;;SC_ICP;DefaultParent=DE106;English=Northfell Cold Stores Köln GmbH, plant 2;French=Northfell Cold Stores Köln GmbH, usine 2;German=Northfell Cold Stores Köln GmbH, Werk 2
DE107;EUR;Y;N;Y;SC_DE;DE;NF-1;;;;DefaultParent=NF_DE;English=Northfell Dairies Würzburg GmbH;French=Northfell Dairies Würzburg GmbH;German=Northfell Dairies Würzburg GmbH
DE107_HQ;EUR;Y;Y;N;SC_DE;DE;NF-1;since 1979;;SC_ICP;DefaultParent=DE107;English=Northfell Dairies Würzburg GmbH, head office;French=Northfell Dairies Würzburg GmbH, siège;German=Northfell Dairies Würzburg GmbH, Zentrale
DE107_P1;EUR;Y;Y;N;SC_DE;DE;NF-1;;;SC_ICP;DefaultParent=DE107;English=Northfell Dairies Würzburg GmbH, plant 1;French=Northfell Dairies Würzburg GmbH, usine 1;German=Northfell Dairies Würzburg GmbH, Werk 1
DE107_P2;EUR;Y;Y;N;SC_DE;DE;NF-1;since 2006;;SC_ICP;DefaultParent=DE107;English=Northfell Dairies Würzburg GmbH, plant 2;French=Northfell Dairies Würzburg GmbH, usine 2;German=Northfell Dairies Würzburg GmbH, Werk 2
NF_AT;EUR;Y;N;Y;SC_AT;AT;NF;;AT101;;DefaultParent=NORTHFELL;English=Northfell Foods, Austria;French=Northfell Foods, Autriche;German=Northfell Foods, Österreich
AT101;EUR;Y;Y;N;SC_AT;AT;NF-1;since 1990;;SC_ICP;DefaultParent=NF_AT;English=Northfell Dairies Linz GmbH;French=Northfell Dairies Linz GmbH;German=Northfell Dairies Linz GmbH
AT102;EUR;Y;Y;N;SC_AT;AT;NF-2;;;SC_ICP;DefaultParent=NF_AT;English=Northfell Cheese Linz GmbH;French=Northfell Cheese Linz GmbH;German=Northfell Cheese Linz GmbH
AT103;EUR;Y;Y;N;SC_AT;AT;NF-3;since 2010;;SC_ICP;DefaultParent=NF_AT;English=Northfell Cold Stores Linz GmbH;French=Northfell Cold Stores Linz GmbH;German=Northfell Cold Stores Linz GmbH
AT104;EUR;Y;Y;N;SC_AT;AT;NF-1;since 1975;;SC_ICP;DefaultParent=NF_AT;English=Northfell Dairies Sankt Pölten GmbH;French=Northfell Dairies Sankt Pölten GmbH;German=Northfell Dairies Sankt Pölten GmbH
AT105;EUR;Y;Y;N;SC_AT;AT;NF-2;since 1997;;SC_ICP;DefaultParent=NF_AT;English=Northfell Cheese Sankt Pölten GmbH;French=Northfell Cheese Sankt Pölten GmbH;German=Northfell Cheese Sankt Pölten GmbH
AT106;EUR;Y;Y;N;SC_AT;AT;NF-3;since 2003;;SC_ICP;DefaultParent=NF_AT;English=Northfell Cold Stores Sankt Pölten GmbH;French=Northfell Cold Stores Sankt Pölten GmbH;German=Northfell Cold Stores Sankt Pölten GmbH
NF_ES;EUR;Y;N;Y;SC_ES;ES;NF;;ES101;;DefaultParent=NORTHFELL;English=Northfell Foods, Spain;French=Northfell Foods, Espagne;German=Northfell Foods, Spanien
ES101;EUR;Y;Y;N;SC_ES;ES;NF-1;since 1997;;SC_ICP;DefaultParent=NF_ES;English=Northfell Dairies Málaga S.L.;French=Northfell Dairies Málaga S.L.;German=Northfell Dairies Málaga S.L.
ES102;EUR;Y;Y;N;SC_ES;ES;NF-2;since 2003;;SC_ICP;DefaultParent=NF_ES;English=Northfell Cheese Málaga S.L.;French=Northfell Cheese Málaga S.L.;German=Northfell Cheese Málaga S.L.
ES103;EUR;Y;Y;N;SC_ES;ES;NF-3;since 1985;;SC_ICP;DefaultParent=NF_ES;English=Northfell Cold Stores Málaga S.L.;French=Northfell Cold Stores Málaga S.L.;German=Northfell Cold Stores Málaga S.L.
ES104;EUR;Y;Y;N;SC_ES;ES;NF-1;;;SC_ICP;DefaultParent=NF_ES;English=Northfell Dairies A Coruña S.L.;French=Northfell Dairies A Coruña S.L.;German=Northfell Dairies A Coruña S.L.
ES105;EUR;Y;Y;N;SC_ES;ES;NF-2;since 2006;;SC_ICP;DefaultParent=NF_ES;English=Northfell Cheese A Coruña S.L.;French=Northfell Cheese A Coruña S.L.;German=Northfell Cheese A Coruña S.L.
NF_IT;EUR;Y;N;Y;SC_IT;IT;NF;;IT101;;DefaultParent=NORTHFELL;English=Northfell Foods, Italy;French=Northfell Foods, Italie;German=Northfell Foods, Italien
IT101;EUR;Y;Y;N;SC_IT;IT;NF-1;since 2021;;SC_ICP;DefaultParent=NF_IT;English=Northfell Dairies Genova S.r.l.;French=Northfell Dairies Genova S.r.l.;German=Northfell Dairies Genova S.r.l.
IT102;EUR;Y;Y;N;SC_IT;IT;NF-2;since 1995;;SC_ICP;DefaultParent=NF_IT;English=Northfell Cheese Genova S.r.l.;French=Northfell Cheese Genova S.r.l.;German=Northfell Cheese Genova S.r.l.
IT103;EUR;Y;Y;N;SC_IT;IT;NF-3;since 1977;;SC_ICP;DefaultParent=NF_IT;English=Northfell Cold Stores Genova S.r.l.;French=Northfell Cold Stores Genova S.r.l.;German=Northfell Cold Stores Genova S.r.l.
IT104;EUR;Y;N;Y;SC_IT;IT;NF-1;;;;DefaultParent=NF_IT;English=Northfell Dairies Parma S.r.l.;French=Northfell Dairies Parma S.r.l.;German=Northfell Dairies Parma S.r.l.
IT104_HQ;EUR;Y;Y;N;SC_IT;IT;NF-1;;;SC_ICP;DefaultParent=IT104;English=Northfell Dairies Parma S.r.l., head office;French=Northfell Dairies Parma S.r.l., siège;German=Northfell Dairies Parma S.r.l., Zentrale
IT104_P1;EUR;Y;Y;N;SC_IT;IT;NF-1;since 1975;;SC_ICP;DefaultParent=IT104;English=Northfell Dairies Parma S.r.l., plant 1;French=Northfell Dairies Parma S.r.l., usine 1;German=Northfell Dairies Parma S.r.l., Werk 1
IT104_P2;EUR;Y;Y;N;SC_IT;IT;NF-1;since 1985;;SC_ICP;DefaultParent=IT104;English=Northfell Dairies Parma S.r.l., plant 2;French=Northfell Dairies Parma S.r.l., usine 2;German=Northfell Dairies Parma S.r.l., Werk 2
NF_PL;PLN;Y;N;Y;SC_PL;PL;NF;;PL101;;DefaultParent=NORTHFELL;English=Northfell Foods, Poland;French=Northfell Foods, Pologne;German=Northfell Foods, Polen
PL101;PLN;Y;Y;N;SC_PL;PL;NF-1;;;SC_ICP;DefaultParent=NF_PL;English=Northfell Dairies Gdańsk Sp. z o.o.;French=Northfell Dairies Gdańsk Sp. z o.o.;German=Northfell Dairies Gdańsk Sp. z o.o.
PL102;PLN;Y;Y;N;SC_PL;PL;NF-2;since 1998;;SC_ICP;DefaultParent=NF_PL;English=Northfell Cheese Gdańsk Sp. z o.o.;French=Northfell Cheese Gdańsk Sp. z o.o.;German=Northfell Cheese Gdańsk Sp. z o.o.
PL103;PLN;Y;Y;N;SC_PL;PL;NF-3;;;SC_ICP;DefaultParent=NF_PL;English=Northfell Cold Stores Gdańsk Sp. z o.o.;French=Northfell Cold Stores Gdańsk Sp. z o.o.;German=Northfell Cold Stores Gdańsk Sp. z o.o.
PL104;PLN;Y;Y;N;SC_PL;PL;NF-1;since 2009;;SC_ICP;DefaultParent=NF_PL;English=Northfell Dairies Kraków Sp. z o.o.;French=Northfell Dairies Kraków Sp. z o.o.;German=Northfell Dairies Kraków Sp. z o.o.
NF_DK;DKK;Y;N;Y;SC_DK;DK;NF;;DK101;;DefaultParent=NORTHFELL;English=Northfell Foods, Denmark;French=Northfell Foods, Danemark;German=Northfell Foods, Dänemark
DK101;DKK;Y;Y;N;SC_DK;DK;NF-1;since 2013;;SC_ICP;DefaultParent=NF_DK;English=Northfell Dairies Odense A/S;French=Northfell Dairies Odense A/S;German=Northfell Dairies Odense A/S
DK102;DKK;Y;Y;N;SC_DK;DK;NF-2;since 2003;;SC_ICP;DefaultParent=NF_DK;English=Northfell Cheese Odense A/S;French=Northfell Cheese Odense A/S;German=Northfell Cheese Odense A/S
DK103;DKK;Y;Y;N;SC_DK;DK;NF-3;since 1985;;SC_ICP;DefaultParent=NF_DK;English=Northfell Cold Stores Odense A/S;French=Northfell Cold Stores Odense A/S;German=Northfell Cold Stores Odense A/S
DK104;DKK;Y;Y;N;SC_DK;DK;NF-1;;;SC_ICP;DefaultParent=NF_DK;English=Northfell Dairies Ålborg A/S;French=Northfell Dairies Ålborg A/S;German=Northfell Dairies Ålborg A/S
DK105;DKK;Y;Y;N;SC_DK;DK;NF-2;since 2022;;SC_ICP;DefaultParent=NF_DK;English=Northfell Cheese Ålborg A/S;French=Northfell Cheese Ålborg A/S;German=Northfell Cheese Ålborg A/S
DK106;DKK;Y;Y;N;SC_DK;DK;NF-3;;;SC_ICP;DefaultParent=NF_DK;English=Northfell Cold Stores Ålborg A/S;French=Northfell Cold Stores Ålborg A/S;German=Northfell Cold Stores Ålborg A/S
DK107;DKK;Y;Y;N;SC_DK;DK;NF-1;since 1994;;SC_ICP;DefaultParent=NF_DK;English=Northfell Dairies Rønne A/S;French=Northfell Dairies Rønne A/S;German=Northfell Dairies Rønne A/S
DK108-JV;DKK;Y;Y;N;SC_DK;DK;NF-2;since 1991;;SC_ICP;DefaultParent=NF_DK;English=Northfell Cheese Rønne A/S (50%);French=Northfell Cheese Rønne A/S (50 %);German=Northfell Cheese Rønne A/S (50 %)
NF_SE;SEK;Y;N;Y;SC_SE;SE;NF;;SE101;;DefaultParent=NORTHFELL;English=Northfell Foods, Sweden;French=Northfell Foods, Suède;German=Northfell Foods, Schweden
SE101;SEK;Y;Y;N;SC_SE;SE;NF-1;since 1998;;SC_ICP;DefaultParent=NF_SE;English=Northfell Dairies Göteborg AB;French=Northfell Dairies Göteborg AB;German=Northfell Dairies Göteborg AB
SE102;SEK;Y;Y;N;SC_SE;SE;NF-2;;;SC_ICP;DefaultParent=NF_SE;English=Northfell Cheese Göteborg AB;French=Northfell Cheese Göteborg AB;German=Northfell Cheese Göteborg AB
SE103;SEK;Y;N;Y;SC_SE;SE;NF-3;;;;DefaultParent=NF_SE;English=Northfell Cold Stores Göteborg AB;French=Northfell Cold Stores Göteborg AB;German=Northfell Cold Stores Göteborg AB
SE103_HQ;SEK;Y;Y;N;SC_SE;SE;NF-3;;;SC_ICP;DefaultParent=SE103;English=Northfell Cold Stores Göteborg AB, head office;French=Northfell Cold Stores Göteborg AB, siège;German=Northfell Cold Stores Göteborg AB, Zentrale
SE103_P1;SEK;Y;Y;N;SC_SE;SE;NF-3;since 1991;;SC_ICP;DefaultParent=SE103;English=Northfell Cold Stores Göteborg AB, plant 1;French=Northfell Cold Stores Göteborg AB, usine 1;German=Northfell Cold Stores Göteborg AB, Werk 1
SE103_P2;SEK;Y;Y;N;SC_SE;SE;NF-3;since 2017;;SC_ICP;DefaultParent=SE103;English=Northfell Cold Stores Göteborg AB, plant 2;French=Northfell Cold Stores Göteborg AB, usine 2;German=Northfell Cold Stores Göteborg AB, Werk 2
SE104;SEK;Y;N;Y;SC_SE;SE;NF-1;;;;DefaultParent=NF_SE;English=Northfell Dairies Umeå AB;French=Northfell Dairies Umeå AB;German=Northfell Dairies Umeå AB
SE104_HQ;SEK;Y;Y;N;SC_SE;SE;NF-1;since 2015;;SC_ICP;DefaultParent=SE104;English=Northfell Dairies Umeå AB, head office;French=Northfell Dairies Umeå AB, siège;German=Northfell Dairies Umeå AB, Zentrale
SE104_P1;SEK;Y;Y;N;SC_SE;SE;NF-1;;;SC_ICP;DefaultParent=SE104;English=Northfell Dairies Umeå AB, plant 1;French=Northfell Dairies Umeå AB, usine 1;German=Northfell Dairies Umeå AB, Werk 1
SE104_P2;SEK;Y;Y;N;SC_SE;SE;NF-1;since 1994;;SC_ICP;DefaultParent=SE104;English=Northfell Dairies Umeå AB, plant 2;French=Northfell Dairies Umeå AB, usine 2;German=Northfell Dairies Umeå AB, Werk 2
SE105;SEK;Y;Y;N;SC_SE;SE;NF-2;since 2021;;SC_ICP;DefaultParent=NF_SE;English=Northfell Cheese Umeå AB;French=Northfell Cheese Umeå AB;German=Northfell Cheese Umeå AB
NF_US;USD;Y;N;Y;SC_US;US;NF;;US101;;DefaultParent=NORTHFELL;English=Northfell Foods, United States;French=Northfell Foods, États-Unis;German=Northfell Foods, Vereinigte Staaten
US101;USD;Y;Y;N;SC_US;US;NF-1;since 2011;;SC_ICP;DefaultParent=NF_US;English=Northfell Dairies Savannah Inc.;French=Northfell Dairies Savannah Inc.;German=Northfell Dairies Savannah Inc.
US102;USD;Y;Y;N;SC_US;US;NF-2;since 2021;;SC_ICP;DefaultParent=NF_US;English=Northfell Cheese Savannah Inc.;French=Northfell Cheese Savannah Inc.;German=Northfell Cheese Savannah Inc.
US103;USD;Y;Y;N;SC_US;US;NF-3;since 2015;;SC_ICP;DefaultParent=NF_US;English=Northfell Cold Stores Savannah Inc.;French=Northfell Cold Stores Savannah Inc.;German=Northfell Cold Stores Savannah Inc.
US104;USD;Y;Y;N;SC_US;US;NF-1;since 1986;;SC_ICP;DefaultParent=NF_US;English=Northfell Dairies Spokane Inc.;French=Northfell Dairies Spokane Inc.;German=Northfell Dairies Spokane Inc.
NF_MA;MAD;Y;N;Y;SC_MA;MA;NF;;MA101;;DefaultParent=NORTHFELL;English=Northfell Foods, Morocco;French=Northfell Foods, Maroc;German=Northfell Foods, Marokko
MA101;MAD;Y;Y;N;SC_MA;MA;NF-1;since 2010;;SC_ICP;DefaultParent=NF_MA;English=Northfell Dairies Agadir SARL;French=Northfell Dairies Agadir SARL;German=Northfell Dairies Agadir SARL
MA102;MAD;Y;Y;N;SC_MA;MA;NF-2;;;SC_ICP;DefaultParent=NF_MA;English=Northfell Cheese Agadir SARL;French=Northfell Cheese Agadir SARL;German=Northfell Cheese Agadir SARL
MA103;MAD;Y;Y;N;SC_MA;MA;NF-3;since 1990;;SC_ICP;DefaultParent=NF_MA;English=Northfell Cold Stores Agadir SARL;French=Northfell Cold Stores Agadir SARL;German=Northfell Cold Stores Agadir SARL
MA104;MAD;Y;Y;N;SC_MA;MA;NF-1;since 1987;;SC_ICP;DefaultParent=NF_MA;English=Northfell Dairies Tanger SARL;French=Northfell Dairies Tanger SARL;German=Northfell Dairies Tanger SARL
MA105;MAD;Y;Y;N;SC_MA;MA;NF-2;since 2017;;SC_ICP;DefaultParent=NF_MA;English=Northfell Cheese Tanger SARL;French=Northfell Cheese Tanger SARL;German=Northfell Cheese Tanger SARL
HOLLIN;EUR;Y;N;Y;SC_CORP;;HT;;HT_HOLD;;DefaultParent=ALDERBROOK;English=Hollin Timber;French=Hollin Timber;German=Hollin Timber
HT_HOLD;EUR;Y;Y;N;SC_NL;NL;HQ;since 1979;;SC_ICP;DefaultParent=HOLLIN;English=Hollin Timber Holding B.V.;French=Hollin Timber Holding B.V.;German=Hollin Timber Holding B.V.
HT_SE;SEK;Y;N;Y;SC_SE;SE;HT;;SE201;;DefaultParent=HOLLIN;English=Hollin Timber, Sweden;French=Hollin Timber, Suède;German=Hollin Timber, Schweden
SE201;SEK;Y;Y;N;SC_SE;SE;HT-1;since 2005;;SC_ICP;DefaultParent=HT_SE;English=Hollin Sawmills Umeå AB;French=Hollin Sawmills Umeå AB;German=Hollin Sawmills Umeå AB
SE202;SEK;Y;Y;N;SC_SE;SE;HT-2;since 1979;;SC_ICP;DefaultParent=HT_SE;English=Hollin Panels Umeå AB;French=Hollin Panels Umeå AB;German=Hollin Panels Umeå AB
SE203;SEK;Y;Y;N;SC_SE;SE;HT-3;since 2009;;SC_ICP;DefaultParent=HT_SE;English=Hollin Forests Umeå AB;French=Hollin Forests Umeå AB;German=Hollin Forests Umeå AB
Malmö Såg;SEK;Y;Y;N;SC_SE;SE;HT-1;since 2015;;SC_ICP;DefaultParent=HT_SE;English=Hollin Sawmills Växjö AB;French=Hollin Sawmills Växjö AB;German=Hollin Sawmills Växjö AB
SE205;SEK;Y;Y;N;SC_SE;SE;HT-2;since 1998;;SC_ICP;DefaultParent=HT_SE;English=Hollin Panels Växjö AB;French=Hollin Panels Växjö AB;German=Hollin Panels Växjö AB
SE206;SEK;Y;Y;N;SC_SE;SE;HT-3;;;SC_ICP;DefaultParent=HT_SE;English=Hollin Forests Växjö AB;French=Hollin Forests Växjö AB;German=Hollin Forests Växjö AB
SE207-JV;SEK;Y;Y;N;SC_SE;SE;HT-1;since 1998;;SC_ICP;DefaultParent=HT_SE;English=Hollin Sawmills Örebro AB (50%);French=Hollin Sawmills Örebro AB (50 %);German=Hollin Sawmills Örebro AB (50 %)
HT_FI;EUR;Y;N;Y;SC_FI;FI;HT;;FI201;;DefaultParent=HOLLIN;English=Hollin Timber, Finland;French=Hollin Timber, Finlande;German=Hollin Timber, Finnland
FI201;EUR;Y;Y;N;SC_FI;FI;HT-1;since 2011;;SC_ICP;DefaultParent=HT_FI;English=Hollin Sawmills Vaasa Oy;French=Hollin Sawmills Vaasa Oy;German=Hollin Sawmills Vaasa Oy
FI202;EUR;Y;N;Y;SC_FI;FI;HT-2;;;;DefaultParent=HT_FI;English=Hollin Panels Vaasa Oy;French=Hollin Panels Vaasa Oy;German=Hollin Panels Vaasa Oy
FI202_HQ;EUR;Y;Y;N;SC_FI;FI;HT-2;;;SC_ICP;DefaultParent=FI202;English=Hollin Panels Vaasa Oy, head office;French=Hollin Panels Vaasa Oy, siège;German=Hollin Panels Vaasa Oy, Zentrale
FI202_P1;EUR;Y;Y;N;SC_FI;FI;HT-2;since 1991;;SC_ICP;DefaultParent=FI202;English=Hollin Panels Vaasa Oy, plant 1;French=Hollin Panels Vaasa Oy, usine 1;German=Hollin Panels Vaasa Oy, Werk 1
FI202_P2;EUR;Y;Y;N;SC_FI;FI;HT-2;since 1985;;SC_ICP;DefaultParent=FI202;English=Hollin Panels Vaasa Oy, plant 2;French=Hollin Panels Vaasa Oy, usine 2;German=Hollin Panels Vaasa Oy, Werk 2
FI202_WH;EUR;Y;N;N;SC_FI;FI;HT-2;since 2006;;;DefaultParent=FI202;English=Hollin Panels Vaasa Oy, warehouse;French=Hollin Panels Vaasa Oy, entrepôt;German=Hollin Panels Vaasa Oy, Lager
FI203;EUR;Y;Y;N;SC_FI;FI;HT-3;since 1983;;SC_ICP;DefaultParent=HT_FI;English=Hollin Forests Vaasa Oy;French=Hollin Forests Vaasa Oy;German=Hollin Forests Vaasa Oy
FI204;EUR;Y;Y;N;SC_FI;FI;HT-1;since 2018;;SC_ICP;DefaultParent=HT_FI;English=Hollin Sawmills Jyväskylä Oy;French=Hollin Sawmills Jyväskylä Oy;German=Hollin Sawmills Jyväskylä Oy
FI205;EUR;Y;Y;N;SC_FI;FI;HT-2;;;SC_ICP;DefaultParent=HT_FI;English=Hollin Panels Jyväskylä Oy;French=Hollin Panels Jyväskylä Oy;German=Hollin Panels Jyväskylä Oy
FI206;EUR;Y;Y;N;SC_FI;FI;HT-3;since 1998;;SC_ICP;DefaultParent=HT_FI;English=Hollin Forests Jyväskylä Oy;French=Hollin Forests Jyväskylä Oy;German=Hollin Forests Jyväskylä Oy
HT_NO;NOK;Y;N;Y;SC_NO;NO;HT;;NO201;;DefaultParent=HOLLIN;English=Hollin Timber, Norway;French=Hollin Timber, Norvège;German=Hollin Timber, Norwegen
NO201;NOK;Y;Y;N;SC_NO;NO;HT-1;;;SC_ICP;DefaultParent=HT_NO;English=Hollin Sawmills Ålesund AS;French=Hollin Sawmills Ålesund AS;German=Hollin Sawmills Ålesund AS
NO202;NOK;Y;Y;N;SC_NO;NO;HT-2;since 2010;;SC_ICP;DefaultParent=HT_NO;English=Hollin Panels Ålesund AS;French=Hollin Panels Ålesund AS;German=Hollin Panels Ålesund AS
NO203;NOK;Y;Y;N;SC_NO;NO;HT-3;;;SC_ICP;DefaultParent=HT_NO;English=Hollin Forests Ålesund AS;French=Hollin Forests Ålesund AS;German=Hollin Forests Ålesund AS
NO204;NOK;Y;Y;N;SC_NO;NO;HT-1;since 1997;;SC_ICP;DefaultParent=HT_NO;English=Hollin Sawmills Bodø AS;French=Hollin Sawmills Bodø AS;German=Hollin Sawmills Bodø AS
NO205;NOK;Y;Y;N;SC_NO;NO;HT-2;since 2007;;SC_ICP;DefaultParent=HT_NO;English=Hollin Panels Bodø AS;French=Hollin Panels Bodø AS;German=Hollin Panels Bodø AS
HT_EE;EUR;Y;N;Y;SC_EE;EE;HT;;EE201;;DefaultParent=HOLLIN;English=Hollin Timber, Estonia;French=Hollin Timber, Estonie;German=Hollin Timber, Estland
EE201;EUR;Y;Y;N;SC_EE;EE;HT-1;since 2003;;SC_ICP;DefaultParent=HT_EE;English=Hollin Sawmills Pärnu OÜ;French=Hollin Sawmills Pärnu OÜ;German=Hollin Sawmills Pärnu OÜ
EE202;EUR;Y;Y;N;SC_EE;EE;HT-2;since 1981;;SC_ICP;DefaultParent=HT_EE;English=Hollin Panels Pärnu OÜ;French=Hollin Panels Pärnu OÜ;German=Hollin Panels Pärnu OÜ
EE203;EUR;Y;N;Y;SC_EE;EE;HT-3;;;;DefaultParent=HT_EE;English=Hollin Forests Pärnu OÜ;French=Hollin Forests Pärnu OÜ;German=Hollin Forests Pärnu OÜ
EE203_HQ;EUR;Y;Y;N;SC_EE;EE;HT-3;since 1978;;SC_ICP;DefaultParent=EE203;English=Hollin Forests Pärnu OÜ, head office;French=Hollin Forests Pärnu OÜ, siège;German=Hollin Forests Pärnu OÜ, Zentrale
EE203_P1;EUR;Y;Y;N;SC_EE;EE;HT-3;since 1993;;SC_ICP;DefaultParent=EE203;English=Hollin Forests Pärnu OÜ, plant 1;French=Hollin Forests Pärnu OÜ, usine 1;German=Hollin Forests Pärnu OÜ, Werk 1
EE203_P2;EUR;Y;Y;N;SC_EE;EE;HT-3;since 1983;;SC_ICP;DefaultParent=EE203;English=Hollin Forests Pärnu OÜ, plant 2;French=Hollin Forests Pärnu OÜ, usine 2;German=Hollin Forests Pärnu OÜ, Werk 2
EE204;EUR;Y;N;Y;SC_EE;EE;HT-1;;;;DefaultParent=HT_EE;English=Hollin Sawmills Tallinn OÜ;French=Hollin Sawmills Tallinn OÜ;German=Hollin Sawmills Tallinn OÜ
EE204_HQ;EUR;Y;Y;N;SC_EE;EE;HT-1;since 1985;;SC_ICP;DefaultParent=EE204;English=Hollin Sawmills Tallinn OÜ, head office;French=Hollin Sawmills Tallinn OÜ, siège;German=Hollin Sawmills Tallinn OÜ, Zentrale
EE204_P1;EUR;Y;Y;N;SC_EE;EE;HT-1;since 1986;;SC_ICP;DefaultParent=EE204;English=Hollin Sawmills Tallinn OÜ, plant 1;French=Hollin Sawmills Tallinn OÜ, usine 1;German=Hollin Sawmills Tallinn OÜ, Werk 1
EE204_P2;EUR;Y;Y;N;SC_EE;EE;HT-1;;;SC_ICP;DefaultParent=EE204;English=Hollin Sawmills Tallinn OÜ, plant 2;French=Hollin Sawmills Tallinn OÜ, usine 2;German=Hollin Sawmills Tallinn OÜ, Werk 2
EE205;EUR;Y;Y;N;SC_EE;EE;HT-2;;;SC_ICP;DefaultParent=HT_EE;English=Hollin Panels Tallinn OÜ;French=Hollin Panels Tallinn OÜ;German=Hollin Panels Tallinn OÜ
EE206;EUR;Y;Y;N;SC_EE;EE;HT-3;since 1990;;SC_ICP;DefaultParent=HT_EE;English=Hollin Forests Tallinn OÜ;French=Hollin Forests Tallinn OÜ;German=Hollin Forests Tallinn OÜ
EE207-JV;EUR;Y;Y;N;SC_EE;EE;HT-1;since 1986;;SC_ICP;DefaultParent=HT_EE;English=Hollin Sawmills Tartu OÜ (50%);French=Hollin Sawmills Tartu OÜ (50 %);German=Hollin Sawmills Tartu OÜ (50 %)
EE208;EUR;Y;Y;N;SC_EE;EE;HT-2;since 2015;;SC_ICP;DefaultParent=HT_EE;English=Hollin Panels Tartu OÜ;French=Hollin Panels Tartu OÜ;German=Hollin Panels Tartu OÜ
HT_DE;EUR;Y;N;Y;SC_DE;DE;HT;;DE201;;DefaultParent=HOLLIN;English=Hollin Timber, Germany;French=Hollin Timber, Allemagne;German=Hollin Timber, Deutschland
DE201;EUR;Y;Y;N;SC_DE;DE;HT-1;since 1987;;SC_ICP;DefaultParent=HT_DE;English=Hollin Sawmills Köln GmbH;French=Hollin Sawmills Köln GmbH;German=Hollin Sawmills Köln GmbH
DE202;EUR;Y;N;Y;SC_DE;DE;HT-2;;;;DefaultParent=HT_DE;English=Hollin Panels Köln GmbH;French=Hollin Panels Köln GmbH;German=Hollin Panels Köln GmbH
DE202_HQ;EUR;Y;Y;N;SC_DE;DE;HT-2;since 1983;;SC_ICP;DefaultParent=DE202;English=Hollin Panels Köln GmbH, head office;French=Hollin Panels Köln GmbH, siège;German=Hollin Panels Köln GmbH, Zentrale
DE202_P1;EUR;Y;Y;N;SC_DE;DE;HT-2;;;SC_ICP;DefaultParent=DE202;English=Hollin Panels Köln GmbH, plant 1;French=Hollin Panels Köln GmbH, usine 1;German=Hollin Panels Köln GmbH, Werk 1
DE202_P2;EUR;Y;Y;N;SC_DE;DE;HT-2;since 2010;;SC_ICP;DefaultParent=DE202;English=Hollin Panels Köln GmbH, plant 2;French=Hollin Panels Köln GmbH, usine 2;German=Hollin Panels Köln GmbH, Werk 2
DE203;EUR;Y;Y;N;SC_DE;DE;HT-3;since 1975;;SC_ICP;DefaultParent=HT_DE;English=Hollin Forests Köln GmbH;French=Hollin Forests Köln GmbH;German=Hollin Forests Köln GmbH
DE204;EUR;Y;Y;N;SC_DE;DE;HT-1;since 2010;;SC_ICP;DefaultParent=HT_DE;English=Hollin Sawmills Würzburg GmbH;French=Hollin Sawmills Würzburg GmbH;German=Hollin Sawmills Würzburg GmbH
DE205;EUR;Y;Y;N;SC_DE;DE;HT-2;;;SC_ICP;DefaultParent=HT_DE;English=Hollin Panels Würzburg GmbH;French=Hollin Panels Würzburg GmbH;German=Hollin Panels Würzburg GmbH
HT_AT;EUR;Y;N;Y;SC_AT;AT;HT;;AT201;;DefaultParent=HOLLIN;English=Hollin Timber, Austria;French=Hollin Timber, Autriche;German=Hollin Timber, Österreich
AT201;EUR;Y;Y;N;SC_AT;AT;HT-1;since 1997;;SC_ICP;DefaultParent=HT_AT;English=Hollin Sawmills Sankt Pölten GmbH;French=Hollin Sawmills Sankt Pölten GmbH;German=Hollin Sawmills Sankt Pölten GmbH
AT202;EUR;Y;Y;N;SC_AT;AT;HT-2;since 1987;;SC_ICP;DefaultParent=HT_AT;English=Hollin Panels Sankt Pölten GmbH;French=Hollin Panels Sankt Pölten GmbH;German=Hollin Panels Sankt Pölten GmbH
AT203;EUR;Y;Y;N;SC_AT;AT;HT-3;since 1985;;SC_ICP;DefaultParent=HT_AT;English=Hollin Forests Sankt Pölten GmbH;French=Hollin Forests Sankt Pölten GmbH;German=Hollin Forests Sankt Pölten GmbH
AT204;EUR;Y;Y;N;SC_AT;AT;HT-1;;;SC_ICP;DefaultParent=HT_AT;English=Hollin Sawmills Graz GmbH;French=Hollin Sawmills Graz GmbH;German=Hollin Sawmills Graz GmbH
AT205;EUR;Y;Y;N;SC_AT;AT;HT-2;since 2006;;SC_ICP;DefaultParent=HT_AT;English=Hollin Panels Graz GmbH;French=Hollin Panels Graz GmbH;German=Hollin Panels Graz GmbH
AT206;EUR;Y;Y;N;SC_AT;AT;HT-3;;;SC_ICP;DefaultParent=HT_AT;English=Hollin Forests Graz GmbH;French=Hollin Forests Graz GmbH;German=Hollin Forests Graz GmbH
HT_PL;PLN;Y;N;Y;SC_PL;PL;HT;;PL201;;DefaultParent=HOLLIN;English=Hollin Timber, Poland;French=Hollin Timber, Pologne;German=Hollin Timber, Polen
PL201;PLN;Y;Y;N;SC_PL;PL;HT-1;since 2011;;SC_ICP;DefaultParent=HT_PL;English=Hollin Sawmills Kraków Sp. z o.o.;French=Hollin Sawmills Kraków Sp. z o.o.;German=Hollin Sawmills Kraków Sp. z o.o.
PL202;PLN;Y;Y;N;SC_PL;PL;HT-2;since 2005;;SC_ICP;DefaultParent=HT_PL;English=Hollin Panels Kraków Sp. z o.o.;French=Hollin Panels Kraków Sp. z o.o.;German=Hollin Panels Kraków Sp. z o.o.
PL203;PLN;Y;Y;N;SC_PL;PL;HT-3;since 2015;;SC_ICP;DefaultParent=HT_PL;English=Hollin Forests Kraków Sp. z o.o.;French=Hollin Forests Kraków Sp. z o.o.;German=Hollin Forests Kraków Sp. z o.o.
PL204;PLN;Y;Y;N;SC_PL;PL;HT-1;since 2018;;SC_ICP;DefaultParent=HT_PL;English=Hollin Sawmills Poznań Sp. z o.o.;French=Hollin Sawmills Poznań Sp. z o.o.;German=Hollin Sawmills Poznań Sp. z o.o.
PL205;PLN;Y;N;Y;SC_PL;PL;HT-2;;;;DefaultParent=HT_PL;English=Hollin Panels Poznań Sp. z o.o.;French=Hollin Panels Poznań Sp. z o.o.;German=Hollin Panels Poznań Sp. z o.o.
PL205_HQ;PLN;Y;Y;N;SC_PL;PL;HT-2;since 1978;;SC_ICP;DefaultParent=PL205;English=Hollin Panels Poznań Sp. z o.o., head office;French=Hollin Panels Poznań Sp. z o.o., siège;German=Hollin Panels Poznań Sp. z o.o., Zentrale
PL205_P1;PLN;Y;Y;N;SC_PL;PL;HT-2;since 1993;;SC_ICP;DefaultParent=PL205;English=Hollin Panels Poznań Sp. z o.o., plant 1;French=Hollin Panels Poznań Sp. z o.o., usine 1;German=Hollin Panels Poznań Sp. z o.o., Werk 1
PL205_P2;PLN;Y;Y;N;SC_PL;PL;HT-2;since 1999;;SC_ICP;DefaultParent=PL205;English=Hollin Panels Poznań Sp. z o.o., plant 2;French=Hollin Panels Poznań Sp. z o.o., usine 2;German=Hollin Panels Poznań Sp. z o.o., Werk 2
PL205_WH;PLN;Y;N;N;SC_PL;PL;HT-2;;;;DefaultParent=PL205;English=Hollin Panels Poznań Sp. z o.o., warehouse;French=Hollin Panels Poznań Sp. z o.o., entrepôt;German=Hollin Panels Poznań Sp. z o.o., Lager
PL206;PLN;Y;Y;N;SC_PL;PL;HT-3;since 1998;;SC_ICP;DefaultParent=HT_PL;English=Hollin Forests Poznań Sp. z o.o.;French=Hollin Forests Poznań Sp. z o.o.;German=Hollin Forests Poznań Sp. z o.o.
HT_CZ;CZK;Y;N;Y;SC_CZ;CZ;HT;;CZ201;;DefaultParent=HOLLIN;English=Hollin Timber, Czechia;French=Hollin Timber, Tchéquie;German=Hollin Timber, Tschechien
CZ201;CZK;Y;Y;N;SC_CZ;CZ;HT-1;;;SC_ICP;DefaultParent=HT_CZ;English=Hollin Sawmills Ústí nad Labem s.r.o.;French=Hollin Sawmills Ústí nad Labem s.r.o.;German=Hollin Sawmills Ústí nad Labem s.r.o.
CZ202;CZK;Y;Y;N;SC_CZ;CZ;HT-2;since 2006;;SC_ICP;DefaultParent=HT_CZ;English=Hollin Panels Ústí nad Labem s.r.o.;French=Hollin Panels Ústí nad Labem s.r.o.;German=Hollin Panels Ústí nad Labem s.r.o.
CZ203;CZK;Y;Y;N;SC_CZ;CZ;HT-3;;;SC_ICP;DefaultParent=HT_CZ;English=Hollin Forests Ústí nad Labem s.r.o.;French=Hollin Forests Ústí nad Labem s.r.o.;German=Hollin Forests Ústí nad Labem s.r.o.
CZ204;CZK;Y;N;Y;SC_CZ;CZ;HT-1;;;;DefaultParent=HT_CZ;English=Hollin Sawmills Plzeň s.r.o.;French=Hollin Sawmills Plzeň s.r.o.;German=Hollin Sawmills Plzeň s.r.o.
CZ204_HQ;CZK;Y;Y;N;SC_CZ;CZ;HT-1;since 1985;;SC_ICP;DefaultParent=CZ204;English=Hollin Sawmills Plzeň s.r.o., head office;French=Hollin Sawmills Plzeň s.r.o., siège;German=Hollin Sawmills Plzeň s.r.o., Zentrale
CZ204_P1;CZK;Y;Y;N;SC_CZ;CZ;HT-1;since 2018;;SC_ICP;DefaultParent=CZ204;English=Hollin Sawmills Plzeň s.r.o., plant 1;French=Hollin Sawmills Plzeň s.r.o., usine 1;German=Hollin Sawmills Plzeň s.r.o., Werk 1
CZ204_P2;CZK;Y;Y;N;SC_CZ;CZ;HT-1;;;SC_ICP;DefaultParent=CZ204;English=Hollin Sawmills Plzeň s.r.o., plant 2;French=Hollin Sawmills Plzeň s.r.o., usine 2;German=Hollin Sawmills Plzeň s.r.o., Werk 2
CZ204_WH;CZK;Y;N;N;SC_CZ;CZ;HT-1;since 2011;;;DefaultParent=CZ204;English=Hollin Sawmills Plzeň s.r.o., warehouse;French=Hollin Sawmills Plzeň s.r.o., entrepôt;German=Hollin Sawmills Plzeň s.r.o., Lager
CZ205;CZK;Y;Y;N;SC_CZ;CZ;HT-2;since 2003;;SC_ICP;DefaultParent=HT_CZ;English=Hollin Panels Plzeň s.r.o.;French=Hollin Panels Plzeň s.r.o.;German=Hollin Panels Plzeň s.r.o.
HT_CA;CAD;Y;N;Y;SC_CA;CA;HT;;CA201;;DefaultParent=HOLLIN;English=Hollin Timber, Canada;French=Hollin Timber, Canada;German=Hollin Timber, Kanada
CA201;CAD;Y;Y;N;SC_CA;CA;HT-1;since 2002;;SC_ICP;DefaultParent=HT_CA;English=Hollin Sawmills Winnipeg Inc.;French=Hollin Sawmills Winnipeg Inc.;German=Hollin Sawmills Winnipeg Inc.
CA202;CAD;Y;Y;N;SC_CA;CA;HT-2;;;SC_ICP;DefaultParent=HT_CA;English=Hollin Panels Winnipeg Inc.;French=Hollin Panels Winnipeg Inc.;German=Hollin Panels Winnipeg Inc.
CA203;CAD;Y;Y;N;SC_CA;CA;HT-3;since 1982;;SC_ICP;DefaultParent=HT_CA;English=Hollin Forests Winnipeg Inc.;French=Hollin Forests Winnipeg Inc.;German=Hollin Forests Winnipeg Inc.
CA204;CAD;Y;Y;N;SC_CA;CA;HT-1;since 1995;;SC_ICP;DefaultParent=HT_CA;English=Hollin Sawmills Québec Inc.;French=Hollin Sawmills Québec Inc.;German=Hollin Sawmills Québec Inc.
CA205;CAD;Y;Y;N;SC_CA;CA;HT-2;since 2009;;SC_ICP;DefaultParent=HT_CA;English=Hollin Panels Québec Inc.;French=Hollin Panels Québec Inc.;German=Hollin Panels Québec Inc.
CA206;CAD;Y;Y;N;SC_CA;CA;HT-3;since 1983;;SC_ICP;DefaultParent=HT_CA;English=Hollin Forests Québec Inc.;French=Hollin Forests Québec Inc.;German=Hollin Forests Québec Inc.
CA207-JV;CAD;Y;Y;N;SC_CA;CA;HT-1;since 1990;;SC_ICP;DefaultParent=HT_CA;English=Hollin Sawmills Halifax Inc. (50%);French=Hollin Sawmills Halifax Inc. (50 %);German=Hollin Sawmills Halifax Inc. (50 %)
CA208;CAD;Y;N;Y;SC_CA;CA;HT-2;;;;DefaultParent=HT_CA;English=Hollin Panels Halifax Inc.;French=Hollin Panels Halifax Inc.;German=Hollin Panels Halifax Inc.
CA208_HQ;CAD;Y;Y;N;SC_CA;CA;HT-2;since 1997;;SC_ICP;DefaultParent=CA208;English=Hollin Panels Halifax Inc., head office;French=Hollin Panels Halifax Inc., siège;German=Hollin Panels Halifax Inc., Zentrale
CA208_P1;CAD;Y;Y;N;SC_CA;CA;HT-2;since 2014;;SC_ICP;DefaultParent=CA208;English=Hollin Panels Halifax Inc., plant 1;French=Hollin Panels Halifax Inc., usine 1;German=Hollin Panels Halifax Inc., Werk 1
CA208_P2;CAD;Y;Y;N;SC_CA;CA;HT-2;;;SC_ICP;DefaultParent=CA208;English=Hollin Panels Halifax Inc., plant 2;French=Hollin Panels Halifax Inc., usine 2;German=Hollin Panels Halifax Inc., Werk 2
CA208_WH;CAD;Y;N;N;SC_CA;CA;HT-2;since 1999;;;DefaultParent=CA208;English=Hollin Panels Halifax Inc., warehouse;French=Hollin Panels Halifax Inc., entrepôt;German=Hollin Panels Halifax Inc., Lager
CA209;CAD;Y;Y;N;SC_CA;CA;HT-3;;;SC_ICP;DefaultParent=HT_CA;English=Hollin Forests Halifax Inc.;French=Hollin Forests Halifax Inc.;German=Hollin Forests Halifax Inc.
HT_US;USD;Y;N;Y;SC_US;US;HT;;US201;;DefaultParent=HOLLIN;English=Hollin Timber, United States;French=Hollin Timber, États-Unis;German=Hollin Timber, Vereinigte Staaten
US201;USD;Y;Y;N;SC_US;US;HT-1;;;SC_ICP;DefaultParent=HT_US;English=Hollin Sawmills Spokane Inc.;French=Hollin Sawmills Spokane Inc.;German=Hollin Sawmills Spokane Inc.
US202;USD;Y;Y;N;SC_US;US;HT-2;since 2014;;SC_ICP;DefaultParent=HT_US;English=Hollin Panels Spokane Inc.;French=Hollin Panels Spokane Inc.;German=Hollin Panels Spokane Inc.
US203;USD;Y;Y;N;SC_US;US;HT-3;;;SC_ICP;DefaultParent=HT_US;English=Hollin Forests Spokane Inc.;French=Hollin Forests Spokane Inc.;German=Hollin Forests Spokane Inc.
US204;USD;Y;N;Y;SC_US;US;HT-1;;;;DefaultParent=HT_US;English=Hollin Sawmills Toledo Inc.;French=Hollin Sawmills Toledo Inc.;German=Hollin Sawmills Toledo Inc.
US204_HQ;USD;Y;Y;N;SC_US;US;HT-1;;;SC_ICP;DefaultParent=US204;English=Hollin Sawmills Toledo Inc., head office;French=Hollin Sawmills Toledo Inc., siège;German=Hollin Sawmills Toledo Inc., Zentrale
US204_P1;USD;Y;Y;N;SC_US;US;HT-1;since 1979;;SC_ICP;DefaultParent=US204;English=Hollin Sawmills Toledo Inc., plant 1;French=Hollin Sawmills Toledo Inc., usine 1;German=Hollin Sawmills Toledo Inc., Werk 1
US204_P2;USD;Y;Y;N;SC_US;US;HT-1;since 2021;;SC_ICP;DefaultParent=US204;English=Hollin Sawmills Toledo Inc., plant 2;French=Hollin Sawmills Toledo Inc., usine 2;German=Hollin Sawmills Toledo Inc., Werk 2
HT_RO;RON;Y;N;Y;SC_RO;RO;HT;;RO201;;DefaultParent=HOLLIN;English=Hollin Timber, Romania;French=Hollin Timber, Roumanie;German=Hollin Timber, Rumänien
RO201;RON;Y;Y;N;SC_RO;RO;HT-1;since 2001;;SC_ICP;DefaultParent=HT_RO;English=Hollin Sawmills Constanța SRL;French=Hollin Sawmills Constanța SRL;German=Hollin Sawmills Constanța SRL
RO202;RON;Y;Y;N;SC_RO;RO;HT-2;since 1975;;SC_ICP;DefaultParent=HT_RO;English=Hollin Panels Constanța SRL;French=Hollin Panels Constanța SRL;German=Hollin Panels Constanța SRL
RO203;RON;Y;Y;N;SC_RO;RO;HT-3;since 1981;;SC_ICP;DefaultParent=HT_RO;English=Hollin Forests Constanța SRL;French=Hollin Forests Constanța SRL;German=Hollin Forests Constanța SRL
RO204;RON;Y;Y;N;SC_RO;RO;HT-1;;;SC_ICP;DefaultParent=HT_RO;English=Hollin Sawmills Timișoara SRL;French=Hollin Sawmills Timișoara SRL;German=Hollin Sawmills Timișoara SRL
RO205;RON;Y;Y;N;SC_RO;RO;HT-2;since 1994;;SC_ICP;DefaultParent=HT_RO;English=Hollin Panels Timișoara SRL;French=Hollin Panels Timișoara SRL;German=Hollin Panels Timișoara SRL
RO206;RON;Y;Y;N;SC_RO;RO;HT-3;;;SC_ICP;DefaultParent=HT_RO;English=Hollin Forests Timișoara SRL;French=Hollin Forests Timișoara SRL;German=Hollin Forests Timișoara SRL
RO207-JV;RON;Y;Y;N;SC_RO;RO;HT-1;since 1998;;SC_ICP;DefaultParent=HT_RO;English=Hollin Sawmills Cluj-Napoca SRL (50%);French=Hollin Sawmills Cluj-Napoca SRL (50 %);German=Hollin Sawmills Cluj-Napoca SRL (50 %)
RO208;RON;Y;N;Y;SC_RO;RO;HT-2;;;;DefaultParent=HT_RO;English=Hollin Panels Cluj-Napoca SRL;French=Hollin Panels Cluj-Napoca SRL;German=Hollin Panels Cluj-Napoca SRL
RO208_HQ;RON;Y;Y;N;SC_RO;RO;HT-2;since 2005;;SC_ICP;DefaultParent=RO208;English=Hollin Panels Cluj-Napoca SRL, head office;French=Hollin Panels Cluj-Napoca SRL, siège;German=Hollin Panels Cluj-Napoca SRL, Zentrale
RO208_P1;RON;Y;Y;N;SC_RO;RO;HT-2;since 2006;;SC_ICP;DefaultParent=RO208;English=Hollin Panels Cluj-Napoca SRL, plant 1;French=Hollin Panels Cluj-Napoca SRL, usine 1;German=Hollin Panels Cluj-Napoca SRL, Werk 1
RO208_P2;RON;Y;Y;N;SC_RO;RO;HT-2;;;SC_ICP;DefaultParent=RO208;English=Hollin Panels Cluj-Napoca SRL, plant 2;French=Hollin Panels Cluj-Napoca SRL, usine 2;German=Hollin Panels Cluj-Napoca SRL, Werk 2
RO208_WH;RON;Y;N;N;SC_RO;RO;HT-2;since 1975;;;DefaultParent=RO208;English=Hollin Panels Cluj-Napoca SRL, warehouse;French=Hollin Panels Cluj-Napoca SRL, entrepôt;German=Hollin Panels Cluj-Napoca SRL, Lager
KESTREL;EUR;Y;N;Y;SC_CORP;;KG;;KG_HOLD;;DefaultParent=ALDERBROOK;English=Kestrel Glass;French=Kestrel Glass;German=Kestrel Glass
KG_HOLD;EUR;Y;Y;N;SC_NL;NL;HQ;since 1987;;SC_ICP;DefaultParent=KESTREL;English=Kestrel Glass Holding B.V.;French=Kestrel Glass Holding B.V.;German=Kestrel Glass Holding B.V.
KG_DE;EUR;Y;N;Y;SC_DE;DE;KG;;DE301;;DefaultParent=KESTREL;English=Kestrel Glass, Germany;French=Kestrel Glass, Allemagne;German=Kestrel Glass, Deutschland
DE301;EUR;Y;Y;N;SC_DE;DE;KG-1;since 2002;;SC_ICP;DefaultParent=KG_DE;English=Kestrel Float Glass Würzburg GmbH;French=Kestrel Float Glass Würzburg GmbH;German=Kestrel Float Glass Würzburg GmbH
Glashütte "Nord";EUR;Y;N;Y;SC_DE;DE;KG-2;;;;DefaultParent=KG_DE;English=Kestrel Bottles Würzburg GmbH;French=Kestrel Bottles Würzburg GmbH;German=Kestrel Bottles Würzburg GmbH
Glashütte "Nord"_HQ;EUR;Y;Y;N;SC_DE;DE;KG-2;since 1987;;SC_ICP;DefaultParent=Glashütte "Nord";English=Kestrel Bottles Würzburg GmbH, head office;French=Kestrel Bottles Würzburg GmbH, siège;German=Kestrel Bottles Würzburg GmbH, Zentrale
Glashütte "Nord"_P1;EUR;Y;Y;N;SC_DE;DE;KG-2;;;SC_ICP;DefaultParent=Glashütte "Nord";English=Kestrel Bottles Würzburg GmbH, plant 1;French=Kestrel Bottles Würzburg GmbH, usine 1;German=Kestrel Bottles Würzburg GmbH, Werk 1
Glashütte "Nord"_P2;EUR;Y;Y;N;SC_DE;DE;KG-2;since 1998;;SC_ICP;DefaultParent=Glashütte "Nord";English=Kestrel Bottles Würzburg GmbH, plant 2;French=Kestrel Bottles Würzburg GmbH, usine 2;German=Kestrel Bottles Würzburg GmbH, Werk 2
DE303;EUR;Y;Y;N;SC_DE;DE;KG-3;since 1982;;SC_ICP;DefaultParent=KG_DE;English=Kestrel Windows Würzburg GmbH;French=Kestrel Windows Würzburg GmbH;German=Kestrel Windows Würzburg GmbH
DE304;EUR;Y;N;Y;SC_DE;DE;KG-1;;;;DefaultParent=KG_DE;English=Kestrel Float Glass Leipzig GmbH;French=Kestrel Float Glass Leipzig GmbH;German=Kestrel Float Glass Leipzig GmbH
DE304_HQ;EUR;Y;Y;N;SC_DE;DE;KG-1;;;SC_ICP;DefaultParent=DE304;English=Kestrel Float Glass Leipzig GmbH, head office;French=Kestrel Float Glass Leipzig GmbH, siège;German=Kestrel Float Glass Leipzig GmbH, Zentrale
DE304_P1;EUR;Y;Y;N;SC_DE;DE;KG-1;since 2007;;SC_ICP;DefaultParent=DE304;English=Kestrel Float Glass Leipzig GmbH, plant 1;French=Kestrel Float Glass Leipzig GmbH, usine 1;German=Kestrel Float Glass Leipzig GmbH, Werk 1
DE304_P2;EUR;Y;Y;N;SC_DE;DE;KG-1;since 2001;;SC_ICP;DefaultParent=DE304;English=Kestrel Float Glass Leipzig GmbH, plant 2;French=Kestrel Float Glass Leipzig GmbH, usine 2;German=Kestrel Float Glass Leipzig GmbH, Werk 2
KG_FR;EUR;Y;N;Y;SC_FR;FR;KG;;FR301;;DefaultParent=KESTREL;English=Kestrel Glass, France;French=Kestrel Glass, France;German=Kestrel Glass, Frankreich
FR301;EUR;Y;Y;N;SC_FR;FR;KG-1;;;SC_ICP;DefaultParent=KG_FR;English=Kestrel Float Glass Besançon SAS;French=Kestrel Float Glass Besançon SAS;German=Kestrel Float Glass Besançon SAS
FR302;EUR;Y;N;Y;SC_FR;FR;KG-2;;;;DefaultParent=KG_FR;English=Kestrel Bottles Besançon SAS;French=Kestrel Bottles Besançon SAS;German=Kestrel Bottles Besançon SAS
FR302_HQ;EUR;Y;Y;N;SC_FR;FR;KG-2;since 1991;;SC_ICP;DefaultParent=FR302;English=Kestrel Bottles Besançon SAS, head office;French=Kestrel Bottles Besançon SAS, siège;German=Kestrel Bottles Besançon SAS, Zentrale
FR302_P1;EUR;Y;Y;N;SC_FR;FR;KG-2;;;SC_ICP;DefaultParent=FR302;English=Kestrel Bottles Besançon SAS, plant 1;French=Kestrel Bottles Besançon SAS, usine 1;German=Kestrel Bottles Besançon SAS, Werk 1
FR302_P2;EUR;Y;Y;N;SC_FR;FR;KG-2;since 2018;;SC_ICP;DefaultParent=FR302;English=Kestrel Bottles Besançon SAS, plant 2;French=Kestrel Bottles Besançon SAS, usine 2;German=Kestrel Bottles Besançon SAS, Werk 2
FR303;EUR;Y;Y;N;SC_FR;FR;KG-3;;;SC_ICP;DefaultParent=KG_FR;English=Kestrel Windows Besançon SAS;French=Kestrel Windows Besançon SAS;German=Kestrel Windows Besançon SAS
Verrerie d'Angoulême;EUR;Y;Y;N;SC_FR;FR;KG-1;since 2010;;SC_ICP;DefaultParent=KG_FR;English=Kestrel Float Glass Angoulême SAS;French=Kestrel Float Glass Angoulême SAS;German=Kestrel Float Glass Angoulême SAS
FR305;EUR;Y;Y;N;SC_FR;FR;KG-2;since 1995;;SC_ICP;DefaultParent=KG_FR;English=Kestrel Bottles Angoulême SAS;French=Kestrel Bottles Angoulême SAS;German=Kestrel Bottles Angoulême SAS
KG_BE;EUR;Y;N;Y;SC_BE;BE;KG;;BE301;;DefaultParent=KESTREL;English=Kestrel Glass, Belgium;French=Kestrel Glass, Belgique;German=Kestrel Glass, Belgien
BE301;EUR;Y;Y;N;SC_BE;BE;KG-1;since 2002;;SC_ICP;DefaultParent=KG_BE;English=Kestrel Float Glass Namur NV;French=Kestrel Float Glass Namur NV;German=Kestrel Float Glass Namur NV
BE302;EUR;Y;Y;N;SC_BE;BE;KG-2;;;SC_ICP;DefaultParent=KG_BE;English=Kestrel Bottles Namur NV;French=Kestrel Bottles Namur NV;German=Kestrel Bottles Namur NV
BE303;EUR;Y;Y;N;SC_BE;BE;KG-3;since 1998;;SC_ICP;DefaultParent=KG_BE;English=Kestrel Windows Namur NV;French=Kestrel Windows Namur NV;German=Kestrel Windows Namur NV
BE304;EUR;Y;Y;N;SC_BE;BE;KG-1;since 1995;;SC_ICP;DefaultParent=KG_BE;English=Kestrel Float Glass Ghent NV;French=Kestrel Float Glass Ghent NV;German=Kestrel Float Glass Ghent NV
KG_GB;GBP;Y;N;Y;SC_GB;GB;KG;;GB301;;DefaultParent=KESTREL;English=Kestrel Glass, United Kingdom;French=Kestrel Glass, Royaume-Uni;German=Kestrel Glass, Vereinigtes Königreich
GB301;GBP;Y;Y;N;SC_GB;GB;KG-1;since 1993;;SC_ICP;DefaultParent=KG_GB;English=Kestrel Float Glass Cardiff Ltd;French=Kestrel Float Glass Cardiff Ltd;German=Kestrel Float Glass Cardiff Ltd
GB302;GBP;Y;Y;N;SC_GB;GB;KG-2;since 1983;;SC_ICP;DefaultParent=KG_GB;English=Kestrel Bottles Cardiff Ltd;French=Kestrel Bottles Cardiff Ltd;German=Kestrel Bottles Cardiff Ltd
GB303;GBP;Y;Y;N;SC_GB;GB;KG-3;since 2005;;SC_ICP;DefaultParent=KG_GB;English=Kestrel Windows Cardiff Ltd;French=Kestrel Windows Cardiff Ltd;German=Kestrel Windows Cardiff Ltd
GB304;GBP;Y;N;Y;SC_GB;GB;KG-1;;;;DefaultParent=KG_GB;English=Kestrel Float Glass Dundee Ltd;French=Kestrel Float Glass Dundee Ltd;German=Kestrel Float Glass Dundee Ltd
GB304_HQ;GBP;Y;Y;N;SC_GB;GB;KG-1;since 2019;;SC_ICP;DefaultParent=GB304;English=Kestrel Float Glass Dundee Ltd, head office;French=Kestrel Float Glass Dundee Ltd, siège;German=Kestrel Float Glass Dundee Ltd, Zentrale
GB304_P1;GBP;Y;Y;N;SC_GB;GB;KG-1;;;SC_ICP;DefaultParent=GB304;English=Kestrel Float Glass Dundee Ltd, plant 1;French=Kestrel Float Glass Dundee Ltd, usine 1;German=Kestrel Float Glass Dundee Ltd, Werk 1
GB304_P2;GBP;Y;Y;N;SC_GB;GB;KG-1;since 1982;;SC_ICP;DefaultParent=GB304;English=Kestrel Float Glass Dundee Ltd, plant 2;French=Kestrel Float Glass Dundee Ltd, usine 2;German=Kestrel Float Glass Dundee Ltd, Werk 2
GB304_WH;GBP;Y;N;N;SC_GB;GB;KG-1;since 1993;;;DefaultParent=GB304;English=Kestrel Float Glass Dundee Ltd, warehouse;French=Kestrel Float Glass Dundee Ltd, entrepôt;German=Kestrel Float Glass Dundee Ltd, Lager
GB304_SO;GBP;Y;Y;N;SC_GB;GB;KG-1;;;SC_ICP;DefaultParent=GB304;English=Kestrel Float Glass Dundee Ltd, sales office;French=Kestrel Float Glass Dundee Ltd, bureau de vente;German=Kestrel Float Glass Dundee Ltd, Verkaufsbüro
GB305;GBP;Y;Y;N;SC_GB;GB;KG-2;since 1986;;SC_ICP;DefaultParent=KG_GB;English=Kestrel Bottles Dundee Ltd;French=Kestrel Bottles Dundee Ltd;German=Kestrel Bottles Dundee Ltd
GB306-JV;GBP;Y;Y;N;SC_GB;GB;KG-3;since 1999;;SC_ICP;DefaultParent=KG_GB;English=Kestrel Windows Dundee Ltd (50%);French=Kestrel Windows Dundee Ltd (50 %);German=Kestrel Windows Dundee Ltd (50 %)
GB307;GBP;Y;Y;N;SC_GB;GB;KG-1;since 1998;;SC_ICP;DefaultParent=KG_GB;English=Kestrel Float Glass Norwich Ltd;French=Kestrel Float Glass Norwich Ltd;German=Kestrel Float Glass Norwich Ltd
GB308;GBP;Y;Y;N;SC_GB;GB;KG-2;since 1981;;SC_ICP;DefaultParent=KG_GB;English=Kestrel Bottles Norwich Ltd;French=Kestrel Bottles Norwich Ltd;German=Kestrel Bottles Norwich Ltd
KG_IT;EUR;Y;N;Y;SC_IT;IT;KG;;IT301;;DefaultParent=KESTREL;English=Kestrel Glass, Italy;French=Kestrel Glass, Italie;German=Kestrel Glass, Italien
IT301;EUR;Y;Y;N;SC_IT;IT;KG-1;since 1991;;SC_ICP;DefaultParent=KG_IT;English=Kestrel Float Glass Forlì S.r.l.;French=Kestrel Float Glass Forlì S.r.l.;German=Kestrel Float Glass Forlì S.r.l.
IT302;EUR;Y;Y;N;SC_IT;IT;KG-2;since 2017;;SC_ICP;DefaultParent=KG_IT;English=Kestrel Bottles Forlì S.r.l.;French=Kestrel Bottles Forlì S.r.l.;German=Kestrel Bottles Forlì S.r.l.
IT303;EUR;Y;Y;N;SC_IT;IT;KG-3;since 1987;;SC_ICP;DefaultParent=KG_IT;English=Kestrel Windows Forlì S.r.l.;French=Kestrel Windows Forlì S.r.l.;German=Kestrel Windows Forlì S.r.l.
IT304;EUR;Y;Y;N;SC_IT;IT;KG-1;since 2006;;SC_ICP;DefaultParent=KG_IT;English=Kestrel Float Glass Bari S.r.l.;French=Kestrel Float Glass Bari S.r.l.;German=Kestrel Float Glass Bari S.r.l.
IT305;EUR;Y;Y;N;SC_IT;IT;KG-2;;;SC_ICP;DefaultParent=KG_IT;English=Kestrel Bottles Bari S.r.l.;French=Kestrel Bottles Bari S.r.l.;German=Kestrel Bottles Bari S.r.l.
IT306-JV;EUR;Y;Y;N;SC_IT;IT;KG-3;since 2021;;SC_ICP;DefaultParent=KG_IT;English=Kestrel Windows Bari S.r.l. (50%);French=Kestrel Windows Bari S.r.l. (50 %);German=Kestrel Windows Bari S.r.l. (50 %)
IT307;EUR;Y;Y;N;SC_IT;IT;KG-1;;;SC_ICP;DefaultParent=KG_IT;English=Kestrel Float Glass Torino S.r.l.;French=Kestrel Float Glass Torino S.r.l.;German=Kestrel Float Glass Torino S.r.l.
IT308;EUR;Y;Y;N;SC_IT;IT;KG-2;since 1995;;SC_ICP;DefaultParent=KG_IT;English=Kestrel Bottles Torino S.r.l.;French=Kestrel Bottles Torino S.r.l.;German=Kestrel Bottles Torino S.r.l.
IT309;EUR;Y;Y;N;SC_IT;IT;KG-3;since 1977;;SC_ICP;DefaultParent=KG_IT;English=Kestrel Windows Torino S.r.l.;French=Kestrel Windows Torino S.r.l.;German=Kestrel Windows Torino S.r.l.
KG_ES;EUR;Y;N;Y;SC_ES;ES;KG;;ES301;;DefaultParent=KESTREL;English=Kestrel Glass, Spain;French=Kestrel Glass, Espagne;German=Kestrel Glass, Spanien
ES301;EUR;Y;Y;N;SC_ES;ES;KG-1;since 1983;;SC_ICP;DefaultParent=KG_ES;English=Kestrel Float Glass Cádiz S.L.;French=Kestrel Float Glass Cádiz S.L.;German=Kestrel Float Glass Cádiz S.L.
ES302;EUR;Y;Y;N;SC_ES;ES;KG-2;since 1977;;SC_ICP;DefaultParent=KG_ES;English=Kestrel Bottles Cádiz S.L.;French=Kestrel Bottles Cádiz S.L.;German=Kestrel Bottles Cádiz S.L.
ES303;EUR;Y;Y;N;SC_ES;ES;KG-3;since 2011;;SC_ICP;DefaultParent=KG_ES;English=Kestrel Windows Cádiz S.L.;French=Kestrel Windows Cádiz S.L.;German=Kestrel Windows Cádiz S.L.
ES304;EUR;Y;Y;N;SC_ES;ES;KG-1;since 2014;;SC_ICP;DefaultParent=KG_ES;English=Kestrel Float Glass León S.L.;French=Kestrel Float Glass León S.L.;German=Kestrel Float Glass León S.L.
KG_PL;PLN;Y;N;Y;SC_PL;PL;KG;;PL301;;DefaultParent=KESTREL;English=Kestrel Glass, Poland;French=Kestrel Glass, Pologne;German=Kestrel Glass, Polen
PL301;PLN;Y;Y;N;SC_PL;PL;KG-1;since 1994;;SC_ICP;DefaultParent=KG_PL;English=Kestrel Float Glass Poznań Sp. z o.o.;French=Kestrel Float Glass Poznań Sp. z o.o.;German=Kestrel Float Glass Poznań Sp. z o.o.
PL302;PLN;Y;Y;N;SC_PL;PL;KG-2;;;SC_ICP;DefaultParent=KG_PL;English=Kestrel Bottles Poznań Sp. z o.o.;French=Kestrel Bottles Poznań Sp. z o.o.;German=Kestrel Bottles Poznań Sp. z o.o.
Huta 100%;PLN;Y;Y;N;SC_PL;PL;KG-3;since 2013;;SC_ICP;DefaultParent=KG_PL;English=Kestrel Windows Poznań Sp. z o.o.;French=Kestrel Windows Poznań Sp. z o.o.;German=Kestrel Windows Poznań Sp. z o.o.
PL304;PLN;Y;Y;N;SC_PL;PL;KG-1;since 2019;;SC_ICP;DefaultParent=KG_PL;English=Kestrel Float Glass Szczecin Sp. z o.o.;French=Kestrel Float Glass Szczecin Sp. z o.o.;German=Kestrel Float Glass Szczecin Sp. z o.o.
PL305;PLN;Y;Y;N;SC_PL;PL;KG-2;since 2017;;SC_ICP;DefaultParent=KG_PL;English=Kestrel Bottles Szczecin Sp. z o.o.;French=Kestrel Bottles Szczecin Sp. z o.o.;German=Kestrel Bottles Szczecin Sp. z o.o.
KG_CZ;CZK;Y;N;Y;SC_CZ;CZ;KG;;CZ301;;DefaultParent=KESTREL;English=Kestrel Glass, Czechia;French=Kestrel Glass, Tchéquie;German=Kestrel Glass, Tschechien
CZ301;CZK;Y;Y;N;SC_CZ;CZ;KG-1;since 1977;;SC_ICP;DefaultParent=KG_CZ;English=Kestrel Float Glass Plzeň s.r.o.;French=Kestrel Float Glass Plzeň s.r.o.;German=Kestrel Float Glass Plzeň s.r.o.
CZ302;CZK;Y;N;Y;SC_CZ;CZ;KG-2;;;;DefaultParent=KG_CZ;English=Kestrel Bottles Plzeň s.r.o.;French=Kestrel Bottles Plzeň s.r.o.;German=Kestrel Bottles Plzeň s.r.o.
CZ302_HQ;CZK;Y;Y;N;SC_CZ;CZ;KG-2;since 2010;;SC_ICP;DefaultParent=CZ302;English=Kestrel Bottles Plzeň s.r.o., head office;French=Kestrel Bottles Plzeň s.r.o., siège;German=Kestrel Bottles Plzeň s.r.o., Zentrale
CZ302_P1;CZK;Y;Y;N;SC_CZ;CZ;KG-2;since 1977;;SC_ICP;DefaultParent=CZ302;English=Kestrel Bottles Plzeň s.r.o., plant 1;French=Kestrel Bottles Plzeň s.r.o., usine 1;German=Kestrel Bottles Plzeň s.r.o., Werk 1
CZ302_P2;CZK;Y;Y;N;SC_CZ;CZ;KG-2;since 1999;;SC_ICP;DefaultParent=CZ302;English=Kestrel Bottles Plzeň s.r.o., plant 2;French=Kestrel Bottles Plzeň s.r.o., usine 2;German=Kestrel Bottles Plzeň s.r.o., Werk 2
CZ302_WH;CZK;Y;N;N;SC_CZ;CZ;KG-2;;;;DefaultParent=CZ302;English=Kestrel Bottles Plzeň s.r.o., warehouse;French=Kestrel Bottles Plzeň s.r.o., entrepôt;German=Kestrel Bottles Plzeň s.r.o., Lager
CZ302_SO;CZK;Y;Y;N;SC_CZ;CZ;KG-2;since 1985;;SC_ICP;DefaultParent=CZ302;English=Kestrel Bottles Plzeň s.r.o., sales office;French=Kestrel Bottles Plzeň s.r.o., bureau de vente;German=Kestrel Bottles Plzeň s.r.o., Verkaufsbüro
CZ303;CZK;Y;N;Y;SC_CZ;CZ;KG-3;;;;DefaultParent=KG_CZ;English=Kestrel Windows Plzeň s.r.o.;French=Kestrel Windows Plzeň s.r.o.;German=Kestrel Windows Plzeň s.r.o.
CZ303_HQ;CZK;Y;Y;N;SC_CZ;CZ;KG-3;since 1981;;SC_ICP;DefaultParent=CZ303;English=Kestrel Windows Plzeň s.r.o., head office;French=Kestrel Windows Plzeň s.r.o., siège;German=Kestrel Windows Plzeň s.r.o., Zentrale
CZ303_P1;CZK;Y;Y;N;SC_CZ;CZ;KG-3;since 2014;;SC_ICP;DefaultParent=CZ303;English=Kestrel Windows Plzeň s.r.o., plant 1;French=Kestrel Windows Plzeň s.r.o., usine 1;German=Kestrel Windows Plzeň s.r.o., Werk 1
CZ303_P2;CZK;Y;Y;N;SC_CZ;CZ;KG-3;;;SC_ICP;DefaultParent=CZ303;English=Kestrel Windows Plzeň s.r.o., plant 2;French=Kestrel Windows Plzeň s.r.o., usine 2;German=Kestrel Windows Plzeň s.r.o., Werk 2
CZ304;CZK;Y;Y;N;SC_CZ;CZ;KG-1;;;SC_ICP;DefaultParent=KG_CZ;English=Kestrel Float Glass Brno s.r.o.;French=Kestrel Float Glass Brno s.r.o.;German=Kestrel Float Glass Brno s.r.o.
CZ305;CZK;Y;Y;N;SC_CZ;CZ;KG-2;since 1986;;SC_ICP;DefaultParent=KG_CZ;English=Kestrel Bottles Brno s.r.o.;French=Kestrel Bottles Brno s.r.o.;German=Kestrel Bottles Brno s.r.o.
CZ306-JV;CZK;Y;Y;N;SC_CZ;CZ;KG-3;since 2018;;SC_ICP;DefaultParent=KG_CZ;English=Kestrel Windows Brno s.r.o. (50%);French=Kestrel Windows Brno s.r.o. (50 %);German=Kestrel Windows Brno s.r.o. (50 %)
KG_US;USD;Y;N;Y;SC_US;US;KG;;US301;;DefaultParent=KESTREL;English=Kestrel Glass, United States;French=Kestrel Glass, États-Unis;German=Kestrel Glass, Vereinigte Staaten
US301;USD;Y;Y;N;SC_US;US;KG-1;since 2001;;SC_ICP;DefaultParent=KG_US;English=Kestrel Float Glass Toledo Inc.;French=Kestrel Float Glass Toledo Inc.;German=Kestrel Float Glass Toledo Inc.
US302;USD;Y;Y;N;SC_US;US;KG-2;since 1975;;SC_ICP;DefaultParent=KG_US;English=Kestrel Bottles Toledo Inc.;French=Kestrel Bottles Toledo Inc.;German=Kestrel Bottles Toledo Inc.
US303;USD;Y;Y;N;SC_US;US;KG-3;since 1997;;SC_ICP;DefaultParent=KG_US;English=Kestrel Windows Toledo Inc.;French=Kestrel Windows Toledo Inc.;German=Kestrel Windows Toledo Inc.
US304;USD;Y;N;Y;SC_US;US;KG-1;;;;DefaultParent=KG_US;English=Kestrel Float Glass Reno Inc.;French=Kestrel Float Glass Reno Inc.;German=Kestrel Float Glass Reno Inc.
US304_HQ;USD;Y;Y;N;SC_US;US;KG-1;since 1975;;SC_ICP;DefaultParent=US304;English=Kestrel Float Glass Reno Inc., head office;French=Kestrel Float Glass Reno Inc., siège;German=Kestrel Float Glass Reno Inc., Zentrale
US304_P1;USD;Y;Y;N;SC_US;US;KG-1;;;SC_ICP;DefaultParent=US304;English=Kestrel Float Glass Reno Inc., plant 1;French=Kestrel Float Glass Reno Inc., usine 1;German=Kestrel Float Glass Reno Inc., Werk 1
US304_P2;USD;Y;Y;N;SC_US;US;KG-1;since 2002;;SC_ICP;DefaultParent=US304;English=Kestrel Float Glass Reno Inc., plant 2;French=Kestrel Float Glass Reno Inc., usine 2;German=Kestrel Float Glass Reno Inc., Werk 2
US304_WH;USD;Y;N;N;SC_US;US;KG-1;since 1989;;;DefaultParent=US304;English=Kestrel Float Glass Reno Inc., warehouse;French=Kestrel Float Glass Reno Inc., entrepôt;German=Kestrel Float Glass Reno Inc., Lager
US305;USD;Y;Y;N;SC_US;US;KG-2;since 2010;;SC_ICP;DefaultParent=KG_US;English=Kestrel Bottles Reno Inc.;French=Kestrel Bottles Reno Inc.;German=Kestrel Bottles Reno Inc.
US306-JV;USD;Y;Y;N;SC_US;US;KG-3;since 1979;;SC_ICP;DefaultParent=KG_US;English=Kestrel Windows Reno Inc. (50%);French=Kestrel Windows Reno Inc. (50 %);German=Kestrel Windows Reno Inc. (50 %)
US307;USD;Y;Y;N;SC_US;US;KG-1;since 2006;;SC_ICP;DefaultParent=KG_US;English=Kestrel Float Glass Duluth Inc.;French=Kestrel Float Glass Duluth Inc.;German=Kestrel Float Glass Duluth Inc.
US308;USD;Y;Y;N;SC_US;US;KG-2;since 2021;;SC_ICP;DefaultParent=KG_US;English=Kestrel Bottles Duluth Inc.;French=Kestrel Bottles Duluth Inc.;German=Kestrel Bottles Duluth Inc.
US309;USD;Y;Y;N;SC_US;US;KG-3;since 2015;;SC_ICP;DefaultParent=KG_US;English=Kestrel Windows Duluth Inc.;French=Kestrel Windows Duluth Inc.;German=Kestrel Windows Duluth Inc.
KG_MX;MXN;Y;N;Y;SC_MX;MX;KG;;MX301;;DefaultParent=KESTREL;English=Kestrel Glass, Mexico;French=Kestrel Glass, Mexique;German=Kestrel Glass, Mexiko
MX301;MXN;Y;Y;N;SC_MX;MX;KG-1;since 1983;;SC_ICP;DefaultParent=KG_MX;English=Kestrel Float Glass Mérida S.A.;French=Kestrel Float Glass Mérida S.A.;German=Kestrel Float Glass Mérida S.A.
MX302;MXN;Y;Y;N;SC_MX;MX;KG-2;since 1977;;SC_ICP;DefaultParent=KG_MX;English=Kestrel Bottles Mérida S.A.;French=Kestrel Bottles Mérida S.A.;German=Kestrel Bottles Mérida S.A.
MX303;MXN;Y;Y;N;SC_MX;MX;KG-3;since 2011;;SC_ICP;DefaultParent=KG_MX;English=Kestrel Windows Mérida S.A.;French=Kestrel Windows Mérida S.A.;German=Kestrel Windows Mérida S.A.
MX304;MXN;Y;Y;N;SC_MX;MX;KG-1;since 1998;;SC_ICP;DefaultParent=KG_MX;English=Kestrel Float Glass León MX S.A.;French=Kestrel Float Glass León MX S.A.;German=Kestrel Float Glass León MX S.A.
KG_BR;BRL;Y;N;Y;SC_BR;BR;KG;;BR301;;DefaultParent=KESTREL;English=Kestrel Glass, Brazil;French=Kestrel Glass, Brésil;German=Kestrel Glass, Brasilien
BR301;BRL;Y;Y;N;SC_BR;BR;KG-1;;;SC_ICP;DefaultParent=KG_BR;English=Kestrel Float Glass São Paulo Ltda;French=Kestrel Float Glass São Paulo Ltda;German=Kestrel Float Glass São Paulo Ltda
BR302;BRL;Y;Y;N;SC_BR;BR;KG-2;since 1982;;SC_ICP;DefaultParent=KG_BR;English=Kestrel Bottles São Paulo Ltda;French=Kestrel Bottles São Paulo Ltda;German=Kestrel Bottles São Paulo Ltda
BR303;BRL;Y;Y;N;SC_BR;BR;KG-3;;;SC_ICP;DefaultParent=KG_BR;English=Kestrel Windows São Paulo Ltda;French=Kestrel Windows São Paulo Ltda;German=Kestrel Windows São Paulo Ltda
BR304;BRL;Y;Y;N;SC_BR;BR;KG-1;since 1993;;SC_ICP;DefaultParent=KG_BR;English=Kestrel Float Glass Curitiba Ltda;French=Kestrel Float Glass Curitiba Ltda;German=Kestrel Float Glass Curitiba Ltda
BR305;BRL;Y;Y;N;SC_BR;BR;KG-2;since 1979;;SC_ICP;DefaultParent=KG_BR;English=Kestrel Bottles Curitiba Ltda;French=Kestrel Bottles Curitiba Ltda;German=Kestrel Bottles Curitiba Ltda
BR306-JV;BRL;Y;Y;N;SC_BR;BR;KG-3;since 1977;;SC_ICP;DefaultParent=KG_BR;English=Kestrel Windows Curitiba Ltda (50%);French=Kestrel Windows Curitiba Ltda (50 %);German=Kestrel Windows Curitiba Ltda (50 %)
BR307;BRL;Y;Y;N;SC_BR;BR;KG-1;since 1983;;SC_ICP;DefaultParent=KG_BR;English=Kestrel Float Glass Belém Ltda;French=Kestrel Float Glass Belém Ltda;German=Kestrel Float Glass Belém Ltda
KG_JP;JPY;Y;N;Y;SC_JP;JP;KG;;JP301;;DefaultParent=KESTREL;English=Kestrel Glass, Japan;French=Kestrel Glass, Japon;German=Kestrel Glass, Japan
JP301;JPY;Y;Y;N;SC_JP;JP;KG-1;since 1982;;SC_ICP;DefaultParent=KG_JP;English=Kestrel Float Glass Sendai KK;French=Kestrel Float Glass Sendai KK;German=Kestrel Float Glass Sendai KK
JP302;JPY;Y;Y;N;SC_JP;JP;KG-2;;;SC_ICP;DefaultParent=KG_JP;English=Kestrel Bottles Sendai KK;French=Kestrel Bottles Sendai KK;German=Kestrel Bottles Sendai KK
JP303;JPY;Y;Y;N;SC_JP;JP;KG-3;since 2018;;SC_ICP;DefaultParent=KG_JP;English=Kestrel Windows Sendai KK;French=Kestrel Windows Sendai KK;German=Kestrel Windows Sendai KK
JP304;JPY;Y;Y;N;SC_JP;JP;KG-1;since 1999;;SC_ICP;DefaultParent=KG_JP;English=Kestrel Float Glass Kobe KK;French=Kestrel Float Glass Kobe KK;German=Kestrel Float Glass Kobe KK
JP305;JPY;Y;Y;N;SC_JP;JP;KG-2;since 2021;;SC_ICP;DefaultParent=KG_JP;English=Kestrel Bottles Kobe KK;French=Kestrel Bottles Kobe KK;German=Kestrel Bottles Kobe KK
JP306-JV;JPY;Y;Y;N;SC_JP;JP;KG-3;since 2005;;SC_ICP;DefaultParent=KG_JP;English=Kestrel Windows Kobe KK (50%);French=Kestrel Windows Kobe KK (50 %);German=Kestrel Windows Kobe KK (50 %)
BRIGHTWATER;EUR;Y;N;Y;SC_CORP;;BP;;BP_HOLD;;DefaultParent=ALDERBROOK;English=Brightwater Paper;French=Brightwater Paper;German=Brightwater Paper
BP_HOLD;EUR;Y;Y;N;SC_NL;NL;HQ;since 1987;;SC_ICP;DefaultParent=BRIGHTWATER;English=Brightwater Paper Holding B.V.;French=Brightwater Paper Holding B.V.;German=Brightwater Paper Holding B.V.
BP_FI;EUR;Y;N;Y;SC_FI;FI;BP;;Paperi Oy (Turku);;DefaultParent=BRIGHTWATER;English=Brightwater Paper, Finland;French=Brightwater Paper, Finlande;German=Brightwater Paper, Finnland
Paperi Oy (Turku);EUR;Y;Y;N;SC_FI;FI;BP-1;since 1993;;SC_ICP;DefaultParent=BP_FI;English=Brightwater Mills Turku Oy;French=Brightwater Mills Turku Oy;German=Brightwater Mills Turku Oy
FI402;EUR;Y;Y;N;SC_FI;FI;BP-2;since 2019;;SC_ICP;DefaultParent=BP_FI;English=Brightwater Packaging Turku Oy;French=Brightwater Packaging Turku Oy;German=Brightwater Packaging Turku Oy
FI403;EUR;Y;Y;N;SC_FI;FI;BP-3;since 1985;;SC_ICP;DefaultParent=BP_FI;English=Brightwater Recycling Turku Oy;French=Brightwater Recycling Turku Oy;German=Brightwater Recycling Turku Oy
FI404;EUR;Y;Y;N;SC_FI;FI;BP-1;;;SC_ICP;DefaultParent=BP_FI;English=Brightwater Mills Oulu Oy;French=Brightwater Mills Oulu Oy;German=Brightwater Mills Oulu Oy
BP_SE;SEK;Y;N;Y;SC_SE;SE;BP;;SE401;;DefaultParent=BRIGHTWATER;English=Brightwater Paper, Sweden;French=Brightwater Paper, Suède;German=Brightwater Paper, Schweden
SE401;SEK;Y;Y;N;SC_SE;SE;BP-1;since 1987;;SC_ICP;DefaultParent=BP_SE;English=Brightwater Mills Örebro AB;French=Brightwater Mills Örebro AB;German=Brightwater Mills Örebro AB
SE402;SEK;Y;Y;N;SC_SE;SE;BP-2;since 1981;;SC_ICP;DefaultParent=BP_SE;English=Brightwater Packaging Örebro AB;French=Brightwater Packaging Örebro AB;German=Brightwater Packaging Örebro AB
SE403;SEK;Y;Y;N;SC_SE;SE;BP-3;since 1991;;SC_ICP;DefaultParent=BP_SE;English=Brightwater Recycling Örebro AB;French=Brightwater Recycling Örebro AB;German=Brightwater Recycling Örebro AB
SE404;SEK;Y;Y;N;SC_SE;SE;BP-1;since 1978;;SC_ICP;DefaultParent=BP_SE;English=Brightwater Mills Malmö AB;French=Brightwater Mills Malmö AB;German=Brightwater Mills Malmö AB
SE405-JV;SEK;Y;Y;N;SC_SE;SE;BP-2;;;SC_ICP;DefaultParent=BP_SE;English=Brightwater Packaging Malmö AB (50%);French=Brightwater Packaging Malmö AB (50 %);German=Brightwater Packaging Malmö AB (50 %)
SE406;SEK;Y;Y;N;SC_SE;SE;BP-3;since 2006;;SC_ICP;DefaultParent=BP_SE;English=Brightwater Recycling Malmö AB;French=Brightwater Recycling Malmö AB;German=Brightwater Recycling Malmö AB
SE407;SEK;Y;Y;N;SC_SE;SE;BP-1;;;SC_ICP;DefaultParent=BP_SE;English=Brightwater Mills Göteborg AB;French=Brightwater Mills Göteborg AB;German=Brightwater Mills Göteborg AB
SE408;SEK;Y;Y;N;SC_SE;SE;BP-2;since 1999;;SC_ICP;DefaultParent=BP_SE;English=Brightwater Packaging Göteborg AB;French=Brightwater Packaging Göteborg AB;German=Brightwater Packaging Göteborg AB
SE409;SEK;Y;Y;N;SC_SE;SE;BP-3;since 2005;;SC_ICP;DefaultParent=BP_SE;English=Brightwater Recycling Göteborg AB;French=Brightwater Recycling Göteborg AB;German=Brightwater Recycling Göteborg AB
BP_DE;EUR;Y;N;Y;SC_DE;DE;BP;;DE401;;DefaultParent=BRIGHTWATER;English=Brightwater Paper, Germany;French=Brightwater Paper, Allemagne;German=Brightwater Paper, Deutschland
DE401;EUR;Y;Y;N;SC_DE;DE;BP-1;since 2021;;SC_ICP;DefaultParent=BP_DE;English=Brightwater Mills Leipzig GmbH;French=Brightwater Mills Leipzig GmbH;German=Brightwater Mills Leipzig GmbH
DE402;EUR;Y;N;Y;SC_DE;DE;BP-2;;;;DefaultParent=BP_DE;English=Brightwater Packaging Leipzig GmbH;French=Brightwater Packaging Leipzig GmbH;German=Brightwater Packaging Leipzig GmbH
DE402_HQ;EUR;Y;Y;N;SC_DE;DE;BP-2;;;SC_ICP;DefaultParent=DE402;English=Brightwater Packaging Leipzig GmbH, head office;French=Brightwater Packaging Leipzig GmbH, siège;German=Brightwater Packaging Leipzig GmbH, Zentrale
DE402_P1;EUR;Y;Y;N;SC_DE;DE;BP-2;since 1995;;SC_ICP;DefaultParent=DE402;English=Brightwater Packaging Leipzig GmbH, plant 1;French=Brightwater Packaging Leipzig GmbH, usine 1;German=Brightwater Packaging Leipzig GmbH, Werk 1
DE402_P2;EUR;Y;Y;N;SC_DE;DE;BP-2;since 1989;;SC_ICP;DefaultParent=DE402;English=Brightwater Packaging Leipzig GmbH, plant 2;French=Brightwater Packaging Leipzig GmbH, usine 2;German=Brightwater Packaging Leipzig GmbH, Werk 2
DE402_WH;EUR;Y;N;N;SC_DE;DE;BP-2;since 2002;;;DefaultParent=DE402;English=Brightwater Packaging Leipzig GmbH, warehouse;French=Brightwater Packaging Leipzig GmbH, entrepôt;German=Brightwater Packaging Leipzig GmbH, Lager
DE402_SO;EUR;Y;Y;N;SC_DE;DE;BP-2;since 2003;;SC_ICP;DefaultParent=DE402;English=Brightwater Packaging Leipzig GmbH, sales office;French=Brightwater Packaging Leipzig GmbH, bureau de vente;German=Brightwater Packaging Leipzig GmbH, Verkaufsbüro
DE403;EUR;Y;N;Y;SC_DE;DE;BP-3;;;;DefaultParent=BP_DE;English=Brightwater Recycling Leipzig GmbH;French=Brightwater Recycling Leipzig GmbH;German=Brightwater Recycling Leipzig GmbH
DE403_HQ;EUR;Y;Y;N;SC_DE;DE;BP-3;since 1991;;SC_ICP;DefaultParent=DE403;English=Brightwater Recycling Leipzig GmbH, head office;French=Brightwater Recycling Leipzig GmbH, siège;German=Brightwater Recycling Leipzig GmbH, Zentrale
DE403_P1;EUR;Y;Y;N;SC_DE;DE;BP-3;;;SC_ICP;DefaultParent=DE403;English=Brightwater Recycling Leipzig GmbH, plant 1;French=Brightwater Recycling Leipzig GmbH, usine 1;German=Brightwater Recycling Leipzig GmbH, Werk 1
DE403_P2;EUR;Y;Y;N;SC_DE;DE;BP-3;since 1986;;SC_ICP;DefaultParent=DE403;English=Brightwater Recycling Leipzig GmbH, plant 2;French=Brightwater Recycling Leipzig GmbH, usine 2;German=Brightwater Recycling Leipzig GmbH, Werk 2
DE403_WH;EUR;Y;N;N;SC_DE;DE;BP-3;since 2005;;;DefaultParent=DE403;English=Brightwater Recycling Leipzig GmbH, warehouse;French=Brightwater Recycling Leipzig GmbH, entrepôt;German=Brightwater Recycling Leipzig GmbH, Lager
DE403_SO;EUR;Y;Y;N;SC_DE;DE;BP-3;;;SC_ICP;DefaultParent=DE403;English=Brightwater Recycling Leipzig GmbH, sales office;French=Brightwater Recycling Leipzig GmbH, bureau de vente;German=Brightwater Recycling Leipzig GmbH, Verkaufsbüro
DE404;EUR;Y;Y;N;SC_DE;DE;BP-1;;;SC_ICP;DefaultParent=BP_DE;English=Brightwater Mills Kiel GmbH;French=Brightwater Mills Kiel GmbH;German=Brightwater Mills Kiel GmbH
DE405-JV;EUR;Y;Y;N;SC_DE;DE;BP-2;since 1978;;SC_ICP;DefaultParent=BP_DE;English=Brightwater Packaging Kiel GmbH (50%);French=Brightwater Packaging Kiel GmbH (50 %);German=Brightwater Packaging Kiel GmbH (50 %)
DE406;EUR;Y;Y;N;SC_DE;DE;BP-3;;;SC_ICP;DefaultParent=BP_DE;English=Brightwater Recycling Kiel GmbH;French=Brightwater Recycling Kiel GmbH;German=Brightwater Recycling Kiel GmbH
DE407;EUR;Y;Y;N;SC_DE;DE;BP-1;since 2002;;SC_ICP;DefaultParent=BP_DE;English=Brightwater Mills Lübeck GmbH;French=Brightwater Mills Lübeck GmbH;German=Brightwater Mills Lübeck GmbH
BP_NL;EUR;Y;N;Y;SC_NL;NL;BP;;NL401;;DefaultParent=BRIGHTWATER;English=Brightwater Paper, Netherlands;French=Brightwater Paper, Pays-Bas;German=Brightwater Paper, Niederlande
NL401;EUR;Y;Y;N;SC_NL;NL;BP-1;;;SC_ICP;DefaultParent=BP_NL;English=Brightwater Mills Rotterdam B.V.;French=Brightwater Mills Rotterdam B.V.;German=Brightwater Mills Rotterdam B.V.
NL402;EUR;Y;Y;N;SC_NL;NL;BP-2;since 2022;;SC_ICP;DefaultParent=BP_NL;English=Brightwater Packaging Rotterdam B.V.;French=Brightwater Packaging Rotterdam B.V.;German=Brightwater Packaging Rotterdam B.V.
NL403;EUR;Y;N;Y;SC_NL;NL;BP-3;;;;DefaultParent=BP_NL;English=Brightwater Recycling Rotterdam B.V.;French=Brightwater Recycling Rotterdam B.V.;German=Brightwater Recycling Rotterdam B.V.
NL403_HQ;EUR;Y;Y;N;SC_NL;NL;BP-3;since 1986;;SC_ICP;DefaultParent=NL403;English=Brightwater Recycling Rotterdam B.V., head office;French=Brightwater Recycling Rotterdam B.V., siège;German=Brightwater Recycling Rotterdam B.V., Zentrale
NL403_P1;EUR;Y;Y;N;SC_NL;NL;BP-3;since 2001;;SC_ICP;DefaultParent=NL403;English=Brightwater Recycling Rotterdam B.V., plant 1;French=Brightwater Recycling Rotterdam B.V., usine 1;German=Brightwater Recycling Rotterdam B.V., Werk 1
NL403_P2;EUR;Y;Y;N;SC_NL;NL;BP-3;since 1975;;SC_ICP;DefaultParent=NL403;English=Brightwater Recycling Rotterdam B.V., plant 2;French=Brightwater Recycling Rotterdam B.V., usine 2;German=Brightwater Recycling Rotterdam B.V., Werk 2
NL403_WH;EUR;Y;N;N;SC_NL;NL;BP-3;;;;DefaultParent=NL403;English=Brightwater Recycling Rotterdam B.V., warehouse;French=Brightwater Recycling Rotterdam B.V., entrepôt;German=Brightwater Recycling Rotterdam B.V., Lager
NL404;EUR;Y;Y;N;SC_NL;NL;BP-1;since 2017;;SC_ICP;DefaultParent=BP_NL;English=Brightwater Mills Groningen B.V.;French=Brightwater Mills Groningen B.V.;German=Brightwater Mills Groningen B.V.
NL405-JV;EUR;Y;Y;N;SC_NL;NL;BP-2;since 1983;;SC_ICP;DefaultParent=BP_NL;English=Brightwater Packaging Groningen B.V. (50%);French=Brightwater Packaging Groningen B.V. (50 %);German=Brightwater Packaging Groningen B.V. (50 %)
NL406;EUR;Y;Y;N;SC_NL;NL;BP-3;since 1981;;SC_ICP;DefaultParent=BP_NL;English=Brightwater Recycling Groningen B.V.;French=Brightwater Recycling Groningen B.V.;German=Brightwater Recycling Groningen B.V.
NL407;EUR;Y;Y;N;SC_NL;NL;BP-1;since 1991;;SC_ICP;DefaultParent=BP_NL;English=Brightwater Mills Breda B.V.;French=Brightwater Mills Breda B.V.;German=Brightwater Mills Breda B.V.
NL408;EUR;Y;Y;N;SC_NL;NL;BP-2;;;SC_ICP;DefaultParent=BP_NL;English=Brightwater Packaging Breda B.V.;French=Brightwater Packaging Breda B.V.;German=Brightwater Packaging Breda B.V.
NL409;EUR;Y;Y;N;SC_NL;NL;BP-3;since 1982;;SC_ICP;DefaultParent=BP_NL;English=Brightwater Recycling Breda B.V.;French=Brightwater Recycling Breda B.V.;German=Brightwater Recycling Breda B.V.
BP_FR;EUR;Y;N;Y;SC_FR;FR;BP;;FR401;;DefaultParent=BRIGHTWATER;English=Brightwater Paper, France;French=Brightwater Paper, France;German=Brightwater Paper, Frankreich
FR401;EUR;Y;Y;N;SC_FR;FR;BP-1;since 1983;;SC_ICP;DefaultParent=BP_FR;English=Brightwater Mills Angoulême SAS;French=Brightwater Mills Angoulême SAS;German=Brightwater Mills Angoulême SAS
FR402;EUR;Y;Y;N;SC_FR;FR;BP-2;since 1993;;SC_ICP;DefaultParent=BP_FR;English=Brightwater Packaging Angoulême SAS;French=Brightwater Packaging Angoulême SAS;German=Brightwater Packaging Angoulême SAS
FR403;EUR;Y;Y;N;SC_FR;FR;BP-3;since 2011;;SC_ICP;DefaultParent=BP_FR;English=Brightwater Recycling Angoulême SAS;French=Brightwater Recycling Angoulême SAS;German=Brightwater Recycling Angoulême SAS
FR404;EUR;Y;Y;N;SC_FR;FR;BP-1;since 2014;;SC_ICP;DefaultParent=BP_FR;English=Brightwater Mills Le Havre SAS;French=Brightwater Mills Le Havre SAS;German=Brightwater Mills Le Havre SAS
BP_PT;EUR;Y;N;Y;SC_PT;PT;BP;;PT401;;DefaultParent=BRIGHTWATER;English=Brightwater Paper, Portugal;French=Brightwater Paper, Portugal;German=Brightwater Paper, Portugal
PT401;EUR;Y;Y;N;SC_PT;PT;BP-1;since 2013;;SC_ICP;DefaultParent=BP_PT;English=Brightwater Mills Évora Lda;French=Brightwater Mills Évora Lda;German=Brightwater Mills Évora Lda
PT402;EUR;Y;Y;N;SC_PT;PT;BP-2;since 2003;;SC_ICP;DefaultParent=BP_PT;English=Brightwater Packaging Évora Lda;French=Brightwater Packaging Évora Lda;German=Brightwater Packaging Évora Lda
PT403;EUR;Y;Y;N;SC_PT;PT;BP-3;since 2001;;SC_ICP;DefaultParent=BP_PT;English=Brightwater Recycling Évora Lda;French=Brightwater Recycling Évora Lda;German=Brightwater Recycling Évora Lda
PT404;EUR;Y;Y;N;SC_PT;PT;BP-1;;;SC_ICP;DefaultParent=BP_PT;English=Brightwater Mills Setúbal Lda;French=Brightwater Mills Setúbal Lda;German=Brightwater Mills Setúbal Lda
PT405-JV;EUR;Y;Y;N;SC_PT;PT;BP-2;since 1999;;SC_ICP;DefaultParent=BP_PT;English=Brightwater Packaging Setúbal Lda (50%);French=Brightwater Packaging Setúbal Lda (50 %);German=Brightwater Packaging Setúbal Lda (50 %)
PT406;EUR;Y;Y;N;SC_PT;PT;BP-3;;;SC_ICP;DefaultParent=BP_PT;English=Brightwater Recycling Setúbal Lda;French=Brightwater Recycling Setúbal Lda;German=Brightwater Recycling Setúbal Lda
BP_ES;EUR;Y;N;Y;SC_ES;ES;BP;;ES401;;DefaultParent=BRIGHTWATER;English=Brightwater Paper, Spain;French=Brightwater Paper, Espagne;German=Brightwater Paper, Spanien
ES401;EUR;Y;Y;N;SC_ES;ES;BP-1;;;SC_ICP;DefaultParent=BP_ES;English=Brightwater Mills León S.L.;French=Brightwater Mills León S.L.;German=Brightwater Mills León S.L.
ES402;EUR;Y;Y;N;SC_ES;ES;BP-2;since 1998;;SC_ICP;DefaultParent=BP_ES;English=Brightwater Packaging León S.L.;French=Brightwater Packaging León S.L.;German=Brightwater Packaging León S.L.
ES403;EUR;Y;Y;N;SC_ES;ES;BP-3;;;SC_ICP;DefaultParent=BP_ES;English=Brightwater Recycling León S.L.;French=Brightwater Recycling León S.L.;German=Brightwater Recycling León S.L.
ES404;EUR;Y;N;Y;SC_ES;ES;BP-1;;;;DefaultParent=BP_ES;English=Brightwater Mills Bilbao S.L.;French=Brightwater Mills Bilbao S.L.;German=Brightwater Mills Bilbao S.L.
ES404_HQ;EUR;Y;Y;N;SC_ES;ES;BP-1;since 1994;;SC_ICP;DefaultParent=ES404;English=Brightwater Mills Bilbao S.L., head office;French=Brightwater Mills Bilbao S.L., siège;German=Brightwater Mills Bilbao S.L., Zentrale
ES404_P1;EUR;Y;Y;N;SC_ES;ES;BP-1;since 1993;;SC_ICP;DefaultParent=ES404;English=Brightwater Mills Bilbao S.L., plant 1;French=Brightwater Mills Bilbao S.L., usine 1;German=Brightwater Mills Bilbao S.L., Werk 1
ES404_P2;EUR;Y;Y;N;SC_ES;ES;BP-1;since 2015;;SC_ICP;DefaultParent=ES404;English=Brightwater Mills Bilbao S.L., plant 2;French=Brightwater Mills Bilbao S.L., usine 2;German=Brightwater Mills Bilbao S.L., Werk 2
ES404_WH;EUR;Y;N;N;SC_ES;ES;BP-1;;;;DefaultParent=ES404;English=Brightwater Mills Bilbao S.L., warehouse;French=Brightwater Mills Bilbao S.L., entrepôt;German=Brightwater Mills Bilbao S.L., Lager
ES405-JV;EUR;Y;Y;N;SC_ES;ES;BP-2;;;SC_ICP;DefaultParent=BP_ES;English=Brightwater Packaging Bilbao S.L. (50%);French=Brightwater Packaging Bilbao S.L. (50 %);German=Brightwater Packaging Bilbao S.L. (50 %)
BP_GB;GBP;Y;N;Y;SC_GB;GB;BP;;GB401;;DefaultParent=BRIGHTWATER;English=Brightwater Paper, United Kingdom;French=Brightwater Paper, Royaume-Uni;German=Brightwater Paper, Vereinigtes Königreich
GB401;GBP;Y;Y;N;SC_GB;GB;BP-1;since 1982;;SC_ICP;DefaultParent=BP_GB;English=Brightwater Mills Dundee Ltd;French=Brightwater Mills Dundee Ltd;German=Brightwater Mills Dundee Ltd
GB402;GBP;Y;Y;N;SC_GB;GB;BP-2;;;SC_ICP;DefaultParent=BP_GB;English=Brightwater Packaging Dundee Ltd;French=Brightwater Packaging Dundee Ltd;German=Brightwater Packaging Dundee Ltd
GB403;GBP;Y;Y;N;SC_GB;GB;BP-3;since 1986;;SC_ICP;DefaultParent=BP_GB;English=Brightwater Recycling Dundee Ltd;French=Brightwater Recycling Dundee Ltd;German=Brightwater Recycling Dundee Ltd
GB404;GBP;Y;Y;N;SC_GB;GB;BP-1;since 1999;;SC_ICP;DefaultParent=BP_GB;English=Brightwater Mills Norwich Ltd;French=Brightwater Mills Norwich Ltd;German=Brightwater Mills Norwich Ltd
GB405-JV;GBP;Y;Y;N;SC_GB;GB;BP-2;since 2005;;SC_ICP;DefaultParent=BP_GB;English=Brightwater Packaging Norwich Ltd (50%);French=Brightwater Packaging Norwich Ltd (50 %);German=Brightwater Packaging Norwich Ltd (50 %)
GB406;GBP;Y;N;Y;SC_GB;GB;BP-3;;;;DefaultParent=BP_GB;English=Brightwater Recycling Norwich Ltd;French=Brightwater Recycling Norwich Ltd;German=Brightwater Recycling Norwich Ltd
GB406_HQ;GBP;Y;Y;N;SC_GB;GB;BP-3;since 2006;;SC_ICP;DefaultParent=GB406;English=Brightwater Recycling Norwich Ltd, head office;French=Brightwater Recycling Norwich Ltd, siège;German=Brightwater Recycling Norwich Ltd, Zentrale
GB406_P1;GBP;Y;Y;N;SC_GB;GB;BP-3;since 2021;;SC_ICP;DefaultParent=GB406;English=Brightwater Recycling Norwich Ltd, plant 1;French=Brightwater Recycling Norwich Ltd, usine 1;German=Brightwater Recycling Norwich Ltd, Werk 1
GB406_P2;GBP;Y;Y;N;SC_GB;GB;BP-3;since 2011;;SC_ICP;DefaultParent=GB406;English=Brightwater Recycling Norwich Ltd, plant 2;French=Brightwater Recycling Norwich Ltd, usine 2;German=Brightwater Recycling Norwich Ltd, Werk 2
GB406_WH;GBP;Y;N;N;SC_GB;GB;BP-3;;;;DefaultParent=GB406;English=Brightwater Recycling Norwich Ltd, warehouse;French=Brightwater Recycling Norwich Ltd, entrepôt;German=Brightwater Recycling Norwich Ltd, Lager
GB406_SO;GBP;Y;Y;N;SC_GB;GB;BP-3;since 1981;;SC_ICP;DefaultParent=GB406;English=Brightwater Recycling Norwich Ltd, sales office;French=Brightwater Recycling Norwich Ltd, bureau de vente;German=Brightwater Recycling Norwich Ltd, Verkaufsbüro
GB407;GBP;Y;Y;N;SC_GB;GB;BP-1;since 1993;;SC_ICP;DefaultParent=BP_GB;English=Brightwater Mills Leeds Ltd;French=Brightwater Mills Leeds Ltd;German=Brightwater Mills Leeds Ltd
BP_CA;CAD;Y;N;Y;SC_CA;CA;BP;;CA401;;DefaultParent=BRIGHTWATER;English=Brightwater Paper, Canada;French=Brightwater Paper, Canada;German=Brightwater Paper, Kanada
CA401;CAD;Y;Y;N;SC_CA;CA;BP-1;;;SC_ICP;DefaultParent=BP_CA;English=Brightwater Mills Halifax Inc.;French=Brightwater Mills Halifax Inc.;German=Brightwater Mills Halifax Inc.
CA402;CAD;Y;Y;N;SC_CA;CA;BP-2;since 1994;;SC_ICP;DefaultParent=BP_CA;English=Brightwater Packaging Halifax Inc.;French=Brightwater Packaging Halifax Inc.;German=Brightwater Packaging Halifax Inc.
CA403;CAD;Y;Y;N;SC_CA;CA;BP-3;;;SC_ICP;DefaultParent=BP_CA;English=Brightwater Recycling Halifax Inc.;French=Brightwater Recycling Halifax Inc.;German=Brightwater Recycling Halifax Inc.
CA404;CAD;Y;Y;N;SC_CA;CA;BP-1;since 1997;;SC_ICP;DefaultParent=BP_CA;English=Brightwater Mills Winnipeg Inc.;French=Brightwater Mills Winnipeg Inc.;German=Brightwater Mills Winnipeg Inc.
CA405-JV;CAD;Y;Y;N;SC_CA;CA;BP-2;;;SC_ICP;DefaultParent=BP_CA;English=Brightwater Packaging Winnipeg Inc. (50%);French=Brightwater Packaging Winnipeg Inc. (50 %);German=Brightwater Packaging Winnipeg Inc. (50 %)
BP_BR;BRL;Y;N;Y;SC_BR;BR;BP;;BR401;;DefaultParent=BRIGHTWATER;English=Brightwater Paper, Brazil;French=Brightwater Paper, Brésil;German=Brightwater Paper, Brasilien
BR401;BRL;Y;Y;N;SC_BR;BR;BP-1;since 1999;;SC_ICP;DefaultParent=BP_BR;English=Brightwater Mills Curitiba Ltda;French=Brightwater Mills Curitiba Ltda;German=Brightwater Mills Curitiba Ltda
BR402;BRL;Y;Y;N;SC_BR;BR;BP-2;since 1977;;SC_ICP;DefaultParent=BP_BR;English=Brightwater Packaging Curitiba Ltda;French=Brightwater Packaging Curitiba Ltda;German=Brightwater Packaging Curitiba Ltda
BR403;BRL;Y;Y;N;SC_BR;BR;BP-3;since 2011;;SC_ICP;DefaultParent=BP_BR;English=Brightwater Recycling Curitiba Ltda;French=Brightwater Recycling Curitiba Ltda;German=Brightwater Recycling Curitiba Ltda
BR404;BRL;Y;Y;N;SC_BR;BR;BP-1;since 1982;;SC_ICP;DefaultParent=BP_BR;English=Brightwater Mills Belém Ltda;French=Brightwater Mills Belém Ltda;German=Brightwater Mills Belém Ltda
MARLPIT;EUR;Y;N;Y;SC_CORP;;MP;;MP_HOLD;;DefaultParent=ALDERBROOK;English=Marlpit Cement;French=Marlpit Cement;German=Marlpit Cement
MP_HOLD;EUR;Y;Y;N;SC_NL;NL;HQ;;;SC_ICP;DefaultParent=MARLPIT;English=Marlpit Cement Holding B.V.;French=Marlpit Cement Holding B.V.;German=Marlpit Cement Holding B.V.
MP_FR;EUR;Y;N;Y;SC_FR;FR;MP;;FR501;;DefaultParent=MARLPIT;English=Marlpit Cement, France;French=Marlpit Cement, France;German=Marlpit Cement, Frankreich
FR501;EUR;Y;Y;N;SC_FR;FR;MP-1;since 2022;;SC_ICP;DefaultParent=MP_FR;English=Marlpit Cement Le Havre SAS;French=Marlpit Cement Le Havre SAS;German=Marlpit Cement Le Havre SAS
FR502;EUR;Y;Y;N;SC_FR;FR;MP-2;;;SC_ICP;DefaultParent=MP_FR;English=Marlpit Concrete Le Havre SAS;French=Marlpit Concrete Le Havre SAS;German=Marlpit Concrete Le Havre SAS
FR503;EUR;Y;Y;N;SC_FR;FR;MP-3;since 1994;;SC_ICP;DefaultParent=MP_FR;English=Marlpit Quarries Le Havre SAS;French=Marlpit Quarries Le Havre SAS;German=Marlpit Quarries Le Havre SAS
FR504-JV;EUR;Y;Y;N;SC_FR;FR;MP-1;since 2005;;SC_ICP;DefaultParent=MP_FR;English=Marlpit Cement Lyon SAS (50%);French=Marlpit Cement Lyon SAS (50 %);German=Marlpit Cement Lyon SAS (50 %)
FR505;EUR;Y;Y;N;SC_FR;FR;MP-2;since 1997;;SC_ICP;DefaultParent=MP_FR;English=Marlpit Concrete Lyon SAS;French=Marlpit Concrete Lyon SAS;German=Marlpit Concrete Lyon SAS
FR506;EUR;Y;Y;N;SC_FR;FR;MP-3;since 2003;;SC_ICP;DefaultParent=MP_FR;English=Marlpit Quarries Lyon SAS;French=Marlpit Quarries Lyon SAS;German=Marlpit Quarries Lyon SAS
FR507;EUR;Y;N;Y;SC_FR;FR;MP-1;;;;DefaultParent=MP_FR;English=Marlpit Cement Lille SAS;French=Marlpit Cement Lille SAS;German=Marlpit Cement Lille SAS
FR507_HQ;EUR;Y;Y;N;SC_FR;FR;MP-1;since 2022;;SC_ICP;DefaultParent=FR507;English=Marlpit Cement Lille SAS, head office;French=Marlpit Cement Lille SAS, siège;German=Marlpit Cement Lille SAS, Zentrale
FR507_P1;EUR;Y;Y;N;SC_FR;FR;MP-1;since 1989;;SC_ICP;DefaultParent=FR507;English=Marlpit Cement Lille SAS, plant 1;French=Marlpit Cement Lille SAS, usine 1;German=Marlpit Cement Lille SAS, Werk 1
FR507_P2;EUR;Y;Y;N;SC_FR;FR;MP-1;since 2011;;SC_ICP;DefaultParent=FR507;English=Marlpit Cement Lille SAS, plant 2;French=Marlpit Cement Lille SAS, usine 2;German=Marlpit Cement Lille SAS, Werk 2
FR507_WH;EUR;Y;N;N;SC_FR;FR;MP-1;;;;DefaultParent=FR507;English=Marlpit Cement Lille SAS, warehouse;French=Marlpit Cement Lille SAS, entrepôt;German=Marlpit Cement Lille SAS, Lager
MP_BE;EUR;Y;N;Y;SC_BE;BE;MP;;BE501;;DefaultParent=MARLPIT;English=Marlpit Cement, Belgium;French=Marlpit Cement, Belgique;German=Marlpit Cement, Belgien
BE501;EUR;Y;Y;N;SC_BE;BE;MP-1;;;SC_ICP;DefaultParent=MP_BE;English=Marlpit Cement Liège NV;French=Marlpit Cement Liège NV;German=Marlpit Cement Liège NV
BE502;EUR;Y;N;Y;SC_BE;BE;MP-2;;;;DefaultParent=MP_BE;English=Marlpit Concrete Liège NV;French=Marlpit Concrete Liège NV;German=Marlpit Concrete Liège NV
BE502_HQ;EUR;Y;Y;N;SC_BE;BE;MP-2;since 1982;;SC_ICP;DefaultParent=BE502;English=Marlpit Concrete Liège NV, head office;French=Marlpit Concrete Liège NV, siège;German=Marlpit Concrete Liège NV, Zentrale
BE502_P1;EUR;Y;Y;N;SC_BE;BE;MP-2;since 1981;;SC_ICP;DefaultParent=BE502;English=Marlpit Concrete Liège NV, plant 1;French=Marlpit Concrete Liège NV, usine 1;German=Marlpit Concrete Liège NV, Werk 1
BE502_P2;EUR;Y;Y;N;SC_BE;BE;MP-2;since 1987;;SC_ICP;DefaultParent=BE502;English=Marlpit Concrete Liège NV, plant 2;French=Marlpit Concrete Liège NV, usine 2;German=Marlpit Concrete Liège NV, Werk 2
BE503;EUR;Y;Y;N;SC_BE;BE;MP-3;;;SC_ICP;DefaultParent=MP_BE;English=Marlpit Quarries Liège NV;French=Marlpit Quarries Liège NV;German=Marlpit Quarries Liège NV
BE504-JV;EUR;Y;Y;N;SC_BE;BE;MP-1;since 1995;;SC_ICP;DefaultParent=MP_BE;English=Marlpit Cement Antwerp NV (50%);French=Marlpit Cement Antwerp NV (50 %);German=Marlpit Cement Antwerp NV (50 %)
MP_CH;CHF;Y;N;Y;SC_CH;CH;MP;;CH501;;DefaultParent=MARLPIT;English=Marlpit Cement, Switzerland;French=Marlpit Cement, Suisse;German=Marlpit Cement, Schweiz
CH501;CHF;Y;Y;N;SC_CH;CH;MP-1;since 2011;;SC_ICP;DefaultParent=MP_CH;English=Marlpit Cement Basel AG;French=Marlpit Cement Basel AG;German=Marlpit Cement Basel AG
CH502;CHF;Y;N;Y;SC_CH;CH;MP-2;;;;DefaultParent=MP_CH;English=Marlpit Concrete Basel AG;French=Marlpit Concrete Basel AG;German=Marlpit Concrete Basel AG
CH502_HQ;CHF;Y;Y;N;SC_CH;CH;MP-2;;;SC_ICP;DefaultParent=CH502;English=Marlpit Concrete Basel AG, head office;French=Marlpit Concrete Basel AG, siège;German=Marlpit Concrete Basel AG, Zentrale
CH502_P1;CHF;Y;Y;N;SC_CH;CH;MP-2;since 2015;;SC_ICP;DefaultParent=CH502;English=Marlpit Concrete Basel AG, plant 1;French=Marlpit Concrete Basel AG, usine 1;German=Marlpit Concrete Basel AG, Werk 1
CH502_P2;CHF;Y;Y;N;SC_CH;CH;MP-2;since 2009;;SC_ICP;DefaultParent=CH502;English=Marlpit Concrete Basel AG, plant 2;French=Marlpit Concrete Basel AG, usine 2;German=Marlpit Concrete Basel AG, Werk 2
CH502_WH;CHF;Y;N;N;SC_CH;CH;MP-2;since 1982;;;DefaultParent=CH502;English=Marlpit Concrete Basel AG, warehouse;French=Marlpit Concrete Basel AG, entrepôt;German=Marlpit Concrete Basel AG, Lager
CH503;CHF;Y;Y;N;SC_CH;CH;MP-3;since 2015;;SC_ICP;DefaultParent=MP_CH;English=Marlpit Quarries Basel AG;French=Marlpit Quarries Basel AG;German=Marlpit Quarries Basel AG
CH504-JV;CHF;Y;Y;N;SC_CH;CH;MP-1;since 2001;;SC_ICP;DefaultParent=MP_CH;English=Marlpit Cement Zürich AG (50%);French=Marlpit Cement Zürich AG (50 %);German=Marlpit Cement Zürich AG (50 %)
MP_ES;EUR;Y;N;Y;SC_ES;ES;MP;;ES501;;DefaultParent=MARLPIT;English=Marlpit Cement, Spain;French=Marlpit Cement, Espagne;German=Marlpit Cement, Spanien
ES501;EUR;Y;Y;N;SC_ES;ES;MP-1;since 2001;;SC_ICP;DefaultParent=MP_ES;English=Marlpit Cement Bilbao S.L.;French=Marlpit Cement Bilbao S.L.;German=Marlpit Cement Bilbao S.L.
Cementos del Sur & Cía;EUR;Y;Y;N;SC_ES;ES;MP-2;;;SC_ICP;DefaultParent=MP_ES;English=Marlpit Concrete Bilbao S.L.;French=Marlpit Concrete Bilbao S.L.;German=Marlpit Concrete Bilbao S.L.
ES503;EUR;Y;Y;N;SC_ES;ES;MP-3;since 1981;;SC_ICP;DefaultParent=MP_ES;English=Marlpit Quarries Bilbao S.L.;French=Marlpit Quarries Bilbao S.L.;German=Marlpit Quarries Bilbao S.L.
ES504-JV;EUR;Y;Y;N;SC_ES;ES;MP-1;;;SC_ICP;DefaultParent=MP_ES;English=Marlpit Cement Málaga S.L. (50%);French=Marlpit Cement Málaga S.L. (50 %);German=Marlpit Cement Málaga S.L. (50 %)
ES505;EUR;Y;Y;N;SC_ES;ES;MP-2;since 2010;;SC_ICP;DefaultParent=MP_ES;English=Marlpit Concrete Málaga S.L.;French=Marlpit Concrete Málaga S.L.;German=Marlpit Concrete Málaga S.L.
ES506;EUR;Y;Y;N;SC_ES;ES;MP-3;;;SC_ICP;DefaultParent=MP_ES;English=Marlpit Quarries Málaga S.L.;French=Marlpit Quarries Málaga S.L.;German=Marlpit Quarries Málaga S.L.
ES507;EUR;Y;Y;N;SC_ES;ES;MP-1;since 2006;;SC_ICP;DefaultParent=MP_ES;English=Marlpit Cement A Coruña S.L.;French=Marlpit Cement A Coruña S.L.;German=Marlpit Cement A Coruña S.L.
ES508;EUR;Y;Y;N;SC_ES;ES;MP-2;since 2005;;SC_ICP;DefaultParent=MP_ES;English=Marlpit Concrete A Coruña S.L.;French=Marlpit Concrete A Coruña S.L.;German=Marlpit Concrete A Coruña S.L.
MP_GR;EUR;Y;N;Y;SC_GR;GR;MP;;GR501;;DefaultParent=MARLPIT;English=Marlpit Cement, Greece;French=Marlpit Cement, Grèce;German=Marlpit Cement, Griechenland
GR501;EUR;Y;Y;N;SC_GR;GR;MP-1;since 2022;;SC_ICP;DefaultParent=MP_GR;English=Marlpit Cement Volos AE;French=Marlpit Cement Volos AE;German=Marlpit Cement Volos AE
GR502;EUR;Y;Y;N;SC_GR;GR;MP-2;;;SC_ICP;DefaultParent=MP_GR;English=Marlpit Concrete Volos AE;French=Marlpit Concrete Volos AE;German=Marlpit Concrete Volos AE
GR503;EUR;Y;Y;N;SC_GR;GR;MP-3;since 1994;;SC_ICP;DefaultParent=MP_GR;English=Marlpit Quarries Volos AE;French=Marlpit Quarries Volos AE;German=Marlpit Quarries Volos AE
GR504-JV;EUR;Y;Y;N;SC_GR;GR;MP-1;since 1991;;SC_ICP;DefaultParent=MP_GR;English=Marlpit Cement Piraeus AE (50%);French=Marlpit Cement Piraeus AE (50 %);German=Marlpit Cement Piraeus AE (50 %)
GR505;EUR;Y;N;Y;SC_GR;GR;MP-2;;;;DefaultParent=MP_GR;English=Marlpit Concrete Piraeus AE;French=Marlpit Concrete Piraeus AE;German=Marlpit Concrete Piraeus AE
GR505_HQ;EUR;Y;Y;N;SC_GR;GR;MP-2;since 1985;;SC_ICP;DefaultParent=GR505;English=Marlpit Concrete Piraeus AE, head office;French=Marlpit Concrete Piraeus AE, siège;German=Marlpit Concrete Piraeus AE, Zentrale
GR505_P1;EUR;Y;Y;N;SC_GR;GR;MP-2;since 1986;;SC_ICP;DefaultParent=GR505;English=Marlpit Concrete Piraeus AE, plant 1;French=Marlpit Concrete Piraeus AE, usine 1;German=Marlpit Concrete Piraeus AE, Werk 1
GR505_P2;EUR;Y;Y;N;SC_GR;GR;MP-2;;;SC_ICP;DefaultParent=GR505;English=Marlpit Concrete Piraeus AE, plant 2;French=Marlpit Concrete Piraeus AE, usine 2;German=Marlpit Concrete Piraeus AE, Werk 2
GR505_WH;EUR;Y;N;N;SC_GR;GR;MP-2;since 1995;;;DefaultParent=GR505;English=Marlpit Concrete Piraeus AE, warehouse;French=Marlpit Concrete Piraeus AE, entrepôt;German=Marlpit Concrete Piraeus AE, Lager
GR505_SO;EUR;Y;Y;N;SC_GR;GR;MP-2;since 1994;;SC_ICP;DefaultParent=GR505;English=Marlpit Concrete Piraeus AE, sales office;French=Marlpit Concrete Piraeus AE, bureau de vente;German=Marlpit Concrete Piraeus AE, Verkaufsbüro
GR506;EUR;Y;Y;N;SC_GR;GR;MP-3;since 1987;;SC_ICP;DefaultParent=MP_GR;English=Marlpit Quarries Piraeus AE;French=Marlpit Quarries Piraeus AE;German=Marlpit Quarries Piraeus AE
MP_RO;RON;Y;N;Y;SC_RO;RO;MP;;RO501;;DefaultParent=MARLPIT;English=Marlpit Cement, Romania;French=Marlpit Cement, Roumanie;German=Marlpit Cement, Rumänien
RO501;RON;Y;Y;N;SC_RO;RO;MP-1;since 2006;;SC_ICP;DefaultParent=MP_RO;English=Marlpit Cement Constanța SRL;French=Marlpit Cement Constanța SRL;German=Marlpit Cement Constanța SRL
RO502;RON;Y;Y;N;SC_RO;RO;MP-2;;;SC_ICP;DefaultParent=MP_RO;English=Marlpit Concrete Constanța SRL;French=Marlpit Concrete Constanța SRL;German=Marlpit Concrete Constanța SRL
RO503;RON;Y;Y;N;SC_RO;RO;MP-3;since 1994;;SC_ICP;DefaultParent=MP_RO;English=Marlpit Quarries Constanța SRL;French=Marlpit Quarries Constanța SRL;German=Marlpit Quarries Constanța SRL
RO504-JV;RON;Y;Y;N;SC_RO;RO;MP-1;;;SC_ICP;DefaultParent=MP_RO;English=Marlpit Cement Timișoara SRL (50%);French=Marlpit Cement Timișoara SRL (50 %);German=Marlpit Cement Timișoara SRL (50 %)
RO505;RON;Y;Y;N;SC_RO;RO;MP-2;since 1997;;SC_ICP;DefaultParent=MP_RO;English=Marlpit Concrete Timișoara SRL;French=Marlpit Concrete Timișoara SRL;German=Marlpit Concrete Timișoara SRL
RO506;RON;Y;Y;N;SC_RO;RO;MP-3;since 2003;;SC_ICP;DefaultParent=MP_RO;English=Marlpit Quarries Timișoara SRL;French=Marlpit Quarries Timișoara SRL;German=Marlpit Quarries Timișoara SRL
RO507;RON;Y;Y;N;SC_RO;RO;MP-1;since 2001;;SC_ICP;DefaultParent=MP_RO;English=Marlpit Cement Cluj-Napoca SRL;French=Marlpit Cement Cluj-Napoca SRL;German=Marlpit Cement Cluj-Napoca SRL
MP_HU;HUF;Y;N;Y;SC_HU;HU;MP;;HU501;;DefaultParent=MARLPIT;English=Marlpit Cement, Hungary;French=Marlpit Cement, Hongrie;German=Marlpit Cement, Ungarn
HU501;HUF;Y;Y;N;SC_HU;HU;MP-1;since 1998;;SC_ICP;DefaultParent=MP_HU;English=Marlpit Cement Szeged Kft.;French=Marlpit Cement Szeged Kft.;German=Marlpit Cement Szeged Kft.
HU502;HUF;Y;Y;N;SC_HU;HU;MP-2;;;SC_ICP;DefaultParent=MP_HU;English=Marlpit Concrete Szeged Kft.;French=Marlpit Concrete Szeged Kft.;German=Marlpit Concrete Szeged Kft.
HU503;HUF;Y;Y;N;SC_HU;HU;MP-3;since 2018;;SC_ICP;DefaultParent=MP_HU;English=Marlpit Quarries Szeged Kft.;French=Marlpit Quarries Szeged Kft.;German=Marlpit Quarries Szeged Kft.
HU504-JV;HUF;Y;Y;N;SC_HU;HU;MP-1;since 1993;;SC_ICP;DefaultParent=MP_HU;English=Marlpit Cement Győr Kft. (50%);French=Marlpit Cement Győr Kft. (50 %);German=Marlpit Cement Győr Kft. (50 %)
MP_MA;MAD;Y;N;Y;SC_MA;MA;MP;;MA501;;DefaultParent=MARLPIT;English=Marlpit Cement, Morocco;French=Marlpit Cement, Maroc;German=Marlpit Cement, Marokko
MA501;MAD;Y;Y;N;SC_MA;MA;MP-1;since 2006;;SC_ICP;DefaultParent=MP_MA;English=Marlpit Cement Agadir SARL;French=Marlpit Cement Agadir SARL;German=Marlpit Cement Agadir SARL
MA502;MAD;Y;Y;N;SC_MA;MA;MP-2;;;SC_ICP;DefaultParent=MP_MA;English=Marlpit Concrete Agadir SARL;French=Marlpit Concrete Agadir SARL;German=Marlpit Concrete Agadir SARL
MA503;MAD;Y;Y;N;SC_MA;MA;MP-3;since 1994;;SC_ICP;DefaultParent=MP_MA;English=Marlpit Quarries Agadir SARL;French=Marlpit Quarries Agadir SARL;German=Marlpit Quarries Agadir SARL
MA504-JV;MAD;Y;Y;N;SC_MA;MA;MP-1;since 2002;;SC_ICP;DefaultParent=MP_MA;English=Marlpit Cement Tanger SARL (50%);French=Marlpit Cement Tanger SARL (50 %);German=Marlpit Cement Tanger SARL (50 %)
MA505;MAD;Y;Y;N;SC_MA;MA;MP-2;since 1997;;SC_ICP;DefaultParent=MP_MA;English=Marlpit Concrete Tanger SARL;French=Marlpit Concrete Tanger SARL;German=Marlpit Concrete Tanger SARL
MA506;MAD;Y;N;Y;SC_MA;MA;MP-3;;;;DefaultParent=MP_MA;English=Marlpit Quarries Tanger SARL;French=Marlpit Quarries Tanger SARL;German=Marlpit Quarries Tanger SARL
MA506_HQ;MAD;Y;Y;N;SC_MA;MA;MP-3;since 2006;;SC_ICP;DefaultParent=MA506;English=Marlpit Quarries Tanger SARL, head office;French=Marlpit Quarries Tanger SARL, siège;German=Marlpit Quarries Tanger SARL, Zentrale
MA506_P1;MAD;Y;Y;N;SC_MA;MA;MP-3;since 2005;;SC_ICP;DefaultParent=MA506;English=Marlpit Quarries Tanger SARL, plant 1;French=Marlpit Quarries Tanger SARL, usine 1;German=Marlpit Quarries Tanger SARL, Werk 1
MA506_P2;MAD;Y;Y;N;SC_MA;MA;MP-3;since 1979;;SC_ICP;DefaultParent=MA506;English=Marlpit Quarries Tanger SARL, plant 2;French=Marlpit Quarries Tanger SARL, usine 2;German=Marlpit Quarries Tanger SARL, Werk 2
MP_ZA;ZAR;Y;N;Y;SC_ZA;ZA;MP;;ZA501;;DefaultParent=MARLPIT;English=Marlpit Cement, South Africa;French=Marlpit Cement, Afrique du Sud;German=Marlpit Cement, Südafrika
ZA501;ZAR;Y;Y;N;SC_ZA;ZA;MP-1;;;SC_ICP;DefaultParent=MP_ZA;English=Marlpit Cement Gqeberha Pty;French=Marlpit Cement Gqeberha Pty;German=Marlpit Cement Gqeberha Pty
ZA502;ZAR;Y;N;Y;SC_ZA;ZA;MP-2;;;;DefaultParent=MP_ZA;English=Marlpit Concrete Gqeberha Pty;French=Marlpit Concrete Gqeberha Pty;German=Marlpit Concrete Gqeberha Pty
ZA502_HQ;ZAR;Y;Y;N;SC_ZA;ZA;MP-2;since 2001;;SC_ICP;DefaultParent=ZA502;English=Marlpit Concrete Gqeberha Pty, head office;French=Marlpit Concrete Gqeberha Pty, siège;German=Marlpit Concrete Gqeberha Pty, Zentrale
ZA502_P1;ZAR;Y;Y;N;SC_ZA;ZA;MP-2;since 1986;;SC_ICP;DefaultParent=ZA502;English=Marlpit Concrete Gqeberha Pty, plant 1;French=Marlpit Concrete Gqeberha Pty, usine 1;German=Marlpit Concrete Gqeberha Pty, Werk 1
ZA502_P2;ZAR;Y;Y;N;SC_ZA;ZA;MP-2;;;SC_ICP;DefaultParent=ZA502;English=Marlpit Concrete Gqeberha Pty, plant 2;French=Marlpit Concrete Gqeberha Pty, usine 2;German=Marlpit Concrete Gqeberha Pty, Werk 2
ZA502_WH;ZAR;Y;N;N;SC_ZA;ZA;MP-2;since 2011;;;DefaultParent=ZA502;English=Marlpit Concrete Gqeberha Pty, warehouse;French=Marlpit Concrete Gqeberha Pty, entrepôt;German=Marlpit Concrete Gqeberha Pty, Lager
ZA502_SO;ZAR;Y;Y;N;SC_ZA;ZA;MP-2;since 1978;;SC_ICP;DefaultParent=ZA502;English=Marlpit Concrete Gqeberha Pty, sales office;French=Marlpit Concrete Gqeberha Pty, bureau de vente;German=Marlpit Concrete Gqeberha Pty, Verkaufsbüro
ZA503;ZAR;Y;Y;N;SC_ZA;ZA;MP-3;;;SC_ICP;DefaultParent=MP_ZA;English=Marlpit Quarries Gqeberha Pty;French=Marlpit Quarries Gqeberha Pty;German=Marlpit Quarries Gqeberha Pty
ZA504-JV;ZAR;Y;Y;N;SC_ZA;ZA;MP-1;;;SC_ICP;DefaultParent=MP_ZA;English=Marlpit Cement Durban Pty (50%);French=Marlpit Cement Durban Pty (50 %);German=Marlpit Cement Durban Pty (50 %)
MP_MX;MXN;Y;N;Y;SC_MX;MX;MP;;MX501;;DefaultParent=MARLPIT;English=Marlpit Cement, Mexico;French=Marlpit Cement, Mexique;German=Marlpit Cement, Mexiko
MX501;MXN;Y;Y;N;SC_MX;MX;MP-1;since 2017;;SC_ICP;DefaultParent=MP_MX;English=Marlpit Cement Querétaro S.A.;French=Marlpit Cement Querétaro S.A.;German=Marlpit Cement Querétaro S.A.
MX502;MXN;Y;Y;N;SC_MX;MX;MP-2;since 1991;;SC_ICP;DefaultParent=MP_MX;English=Marlpit Concrete Querétaro S.A.;French=Marlpit Concrete Querétaro S.A.;German=Marlpit Concrete Querétaro S.A.
MX503;MXN;Y;Y;N;SC_MX;MX;MP-3;since 2013;;SC_ICP;DefaultParent=MP_MX;English=Marlpit Quarries Querétaro S.A.;French=Marlpit Quarries Querétaro S.A.;German=Marlpit Quarries Querétaro S.A.
MX504-JV;MXN;Y;Y;N;SC_MX;MX;MP-1;since 2013;;SC_ICP;DefaultParent=MP_MX;English=Marlpit Cement Mérida S.A. (50%);French=Marlpit Cement Mérida S.A. (50 %);German=Marlpit Cement Mérida S.A. (50 %)
MX505;MXN;Y;Y;N;SC_MX;MX;MP-2;since 2010;;SC_ICP;DefaultParent=MP_MX;English=Marlpit Concrete Mérida S.A.;French=Marlpit Concrete Mérida S.A.;German=Marlpit Concrete Mérida S.A.
MX506;MXN;Y;Y;N;SC_MX;MX;MP-3;;;SC_ICP;DefaultParent=MP_MX;English=Marlpit Quarries Mérida S.A.;French=Marlpit Quarries Mérida S.A.;German=Marlpit Quarries Mérida S.A.
CORVANE;EUR;Y;N;Y;SC_CORP;;CE;;CE_HOLD;;DefaultParent=ALDERBROOK;English=Corvane Energy;French=Corvane Energy;German=Corvane Energy
CE_HOLD;EUR;Y;Y;N;SC_NL;NL;HQ;since 1975;;SC_ICP;DefaultParent=CORVANE;English=Corvane Energy Holding B.V.;French=Corvane Energy Holding B.V.;German=Corvane Energy Holding B.V.
CE_GB;GBP;Y;N;Y;SC_GB;GB;CE;;GB601;;DefaultParent=CORVANE;English=Corvane Energy, United Kingdom;French=Corvane Energy, Royaume-Uni;German=Corvane Energy, Vereinigtes Königreich
GB601;GBP;Y;Y;N;SC_GB;GB;CE-1;;;SC_ICP;DefaultParent=CE_GB;English=Corvane Wind Leeds Ltd;French=Corvane Wind Leeds Ltd;German=Corvane Wind Leeds Ltd
GB602;GBP;Y;Y;N;SC_GB;GB;CE-2;since 2010;;SC_ICP;DefaultParent=CE_GB;English=Corvane Heat Leeds Ltd;French=Corvane Heat Leeds Ltd;German=Corvane Heat Leeds Ltd
GB603-JV;GBP;Y;Y;N;SC_GB;GB;CE-3;;;SC_ICP;DefaultParent=CE_GB;English=Corvane Trading Leeds Ltd (50%);French=Corvane Trading Leeds Ltd (50 %);German=Corvane Trading Leeds Ltd (50 %)
GB604;GBP;Y;Y;N;SC_GB;GB;CE-1;since 1981;;SC_ICP;DefaultParent=CE_GB;English=Corvane Wind Hull Ltd;French=Corvane Wind Hull Ltd;German=Corvane Wind Hull Ltd
GB605;GBP;Y;Y;N;SC_GB;GB;CE-2;since 1991;;SC_ICP;DefaultParent=CE_GB;English=Corvane Heat Hull Ltd;French=Corvane Heat Hull Ltd;German=Corvane Heat Hull Ltd
GB606;GBP;Y;Y;N;SC_GB;GB;CE-3;since 1985;;SC_ICP;DefaultParent=CE_GB;English=Corvane Trading Hull Ltd;French=Corvane Trading Hull Ltd;German=Corvane Trading Hull Ltd
CE_DK;DKK;Y;N;Y;SC_DK;DK;CE;;DK601;;DefaultParent=CORVANE;English=Corvane Energy, Denmark;French=Corvane Energy, Danemark;German=Corvane Energy, Dänemark
DK601;DKK;Y;Y;N;SC_DK;DK;CE-1;since 2010;;SC_ICP;DefaultParent=CE_DK;English=Corvane Wind Ålborg A/S;French=Corvane Wind Ålborg A/S;German=Corvane Wind Ålborg A/S
DK602;DKK;Y;Y;N;SC_DK;DK;CE-2;;;SC_ICP;DefaultParent=CE_DK;English=Corvane Heat Ålborg A/S;French=Corvane Heat Ålborg A/S;German=Corvane Heat Ålborg A/S
DK603-JV;DKK;Y;Y;N;SC_DK;DK;CE-3;;;SC_ICP;DefaultParent=CE_DK;English=Corvane Trading Ålborg A/S (50%);French=Corvane Trading Ålborg A/S (50 %);German=Corvane Trading Ålborg A/S (50 %)
DK604;DKK;Y;Y;N;SC_DK;DK;CE-1;since 2019;;SC_ICP;DefaultParent=CE_DK;English=Corvane Wind Rønne A/S;French=Corvane Wind Rønne A/S;German=Corvane Wind Rønne A/S
DK605;DKK;Y;Y;N;SC_DK;DK;CE-2;since 1985;;SC_ICP;DefaultParent=CE_DK;English=Corvane Heat Rønne A/S;French=Corvane Heat Rønne A/S;German=Corvane Heat Rønne A/S
DK606;DKK;Y;Y;N;SC_DK;DK;CE-3;since 1991;;SC_ICP;DefaultParent=CE_DK;English=Corvane Trading Rønne A/S;French=Corvane Trading Rønne A/S;German=Corvane Trading Rønne A/S
DK607;DKK;Y;Y;N;SC_DK;DK;CE-1;since 1997;;SC_ICP;DefaultParent=CE_DK;English=Corvane Wind Aarhus A/S;French=Corvane Wind Aarhus A/S;German=Corvane Wind Aarhus A/S
CE_NO;NOK;Y;N;Y;SC_NO;NO;CE;;NO601;;DefaultParent=CORVANE;English=Corvane Energy, Norway;French=Corvane Energy, Norvège;German=Corvane Energy, Norwegen
NO601;NOK;Y;Y;N;SC_NO;NO;CE-1;;;SC_ICP;DefaultParent=CE_NO;English=Corvane Wind Ålesund AS;French=Corvane Wind Ålesund AS;German=Corvane Wind Ålesund AS
NO602;NOK;Y;N;Y;SC_NO;NO;CE-2;;;;DefaultParent=CE_NO;English=Corvane Heat Ålesund AS;French=Corvane Heat Ålesund AS;German=Corvane Heat Ålesund AS
NO602_HQ;NOK;Y;Y;N;SC_NO;NO;CE-2;since 1983;;SC_ICP;DefaultParent=NO602;English=Corvane Heat Ålesund AS, head office;French=Corvane Heat Ålesund AS, siège;German=Corvane Heat Ålesund AS, Zentrale
NO602_P1;NOK;Y;Y;N;SC_NO;NO;CE-2;;;SC_ICP;DefaultParent=NO602;English=Corvane Heat Ålesund AS, plant 1;French=Corvane Heat Ålesund AS, usine 1;German=Corvane Heat Ålesund AS, Werk 1
NO602_P2;NOK;Y;Y;N;SC_NO;NO;CE-2;since 1994;;SC_ICP;DefaultParent=NO602;English=Corvane Heat Ålesund AS, plant 2;French=Corvane Heat Ålesund AS, usine 2;German=Corvane Heat Ålesund AS, Werk 2
NO602_WH;NOK;Y;N;N;SC_NO;NO;CE-2;since 1997;;;DefaultParent=NO602;English=Corvane Heat Ålesund AS, warehouse;French=Corvane Heat Ålesund AS, entrepôt;German=Corvane Heat Ålesund AS, Lager
NO603-JV;NOK;Y;Y;N;SC_NO;NO;CE-3;since 1977;;SC_ICP;DefaultParent=CE_NO;English=Corvane Trading Ålesund AS (50%);French=Corvane Trading Ålesund AS (50 %);German=Corvane Trading Ålesund AS (50 %)
NO604;NOK;Y;N;Y;SC_NO;NO;CE-1;;;;DefaultParent=CE_NO;English=Corvane Wind Bodø AS;French=Corvane Wind Bodø AS;German=Corvane Wind Bodø AS
NO604_HQ;NOK;Y;Y;N;SC_NO;NO;CE-1;since 2011;;SC_ICP;DefaultParent=NO604;English=Corvane Wind Bodø AS, head office;French=Corvane Wind Bodø AS, siège;German=Corvane Wind Bodø AS, Zentrale
NO604_P1;NOK;Y;Y;N;SC_NO;NO;CE-1;;;SC_ICP;DefaultParent=NO604;English=Corvane Wind Bodø AS, plant 1;French=Corvane Wind Bodø AS, usine 1;German=Corvane Wind Bodø AS, Werk 1
NO604_P2;NOK;Y;Y;N;SC_NO;NO;CE-1;since 1990;;SC_ICP;DefaultParent=NO604;English=Corvane Wind Bodø AS, plant 2;French=Corvane Wind Bodø AS, usine 2;German=Corvane Wind Bodø AS, Werk 2
NO604_WH;NOK;Y;N;N;SC_NO;NO;CE-1;since 1985;;;DefaultParent=NO604;English=Corvane Wind Bodø AS, warehouse;French=Corvane Wind Bodø AS, entrepôt;German=Corvane Wind Bodø AS, Lager
NO605;NOK;Y;N;Y;SC_NO;NO;CE-2;;;;DefaultParent=CE_NO;English=Corvane Heat Bodø AS;French=Corvane Heat Bodø AS;German=Corvane Heat Bodø AS
NO605_HQ;NOK;Y;Y;N;SC_NO;NO;CE-2;;;SC_ICP;DefaultParent=NO605;English=Corvane Heat Bodø AS, head office;French=Corvane Heat Bodø AS, siège;German=Corvane Heat Bodø AS, Zentrale
NO605_P1;NOK;Y;Y;N;SC_NO;NO;CE-2;since 1975;;SC_ICP;DefaultParent=NO605;English=Corvane Heat Bodø AS, plant 1;French=Corvane Heat Bodø AS, usine 1;German=Corvane Heat Bodø AS, Werk 1
NO605_P2;NOK;Y;Y;N;SC_NO;NO;CE-2;since 1985;;SC_ICP;DefaultParent=NO605;English=Corvane Heat Bodø AS, plant 2;French=Corvane Heat Bodø AS, usine 2;German=Corvane Heat Bodø AS, Werk 2
NO605_WH;NOK;Y;N;N;SC_NO;NO;CE-2;since 1990;;;DefaultParent=NO605;English=Corvane Heat Bodø AS, warehouse;French=Corvane Heat Bodø AS, entrepôt;German=Corvane Heat Bodø AS, Lager
NO605_SO;NOK;Y;Y;N;SC_NO;NO;CE-2;since 1999;;SC_ICP;DefaultParent=NO605;English=Corvane Heat Bodø AS, sales office;French=Corvane Heat Bodø AS, bureau de vente;German=Corvane Heat Bodø AS, Verkaufsbüro
NO606;NOK;Y;Y;N;SC_NO;NO;CE-3;since 1981;;SC_ICP;DefaultParent=CE_NO;English=Corvane Trading Bodø AS;French=Corvane Trading Bodø AS;German=Corvane Trading Bodø AS
CE_DE;EUR;Y;N;Y;SC_DE;DE;CE;;DE601;;DefaultParent=CORVANE;English=Corvane Energy, Germany;French=Corvane Energy, Allemagne;German=Corvane Energy, Deutschland
DE601;EUR;Y;Y;N;SC_DE;DE;CE-1;since 1991;;SC_ICP;DefaultParent=CE_DE;English=Corvane Wind Lübeck GmbH;French=Corvane Wind Lübeck GmbH;German=Corvane Wind Lübeck GmbH
DE602;EUR;Y;Y;N;SC_DE;DE;CE-2;since 2001;;SC_ICP;DefaultParent=CE_DE;English=Corvane Heat Lübeck GmbH;French=Corvane Heat Lübeck GmbH;German=Corvane Heat Lübeck GmbH
DE603-JV;EUR;Y;Y;N;SC_DE;DE;CE-3;since 1995;;SC_ICP;DefaultParent=CE_DE;English=Corvane Trading Lübeck GmbH (50%);French=Corvane Trading Lübeck GmbH (50 %);German=Corvane Trading Lübeck GmbH (50 %)
0% CO2 Wärme;EUR;Y;Y;N;SC_DE;DE;CE-1;since 2005;;SC_ICP;DefaultParent=CE_DE;English=Corvane Wind Münster GmbH;French=Corvane Wind Münster GmbH;German=Corvane Wind Münster GmbH
DE605;EUR;Y;Y;N;SC_DE;DE;CE-2;;;SC_ICP;DefaultParent=CE_DE;English=Corvane Heat Münster GmbH;French=Corvane Heat Münster GmbH;German=Corvane Heat Münster GmbH
DE606;EUR;Y;Y;N;SC_DE;DE;CE-3;since 1994;;SC_ICP;DefaultParent=CE_DE;English=Corvane Trading Münster GmbH;French=Corvane Trading Münster GmbH;German=Corvane Trading Münster GmbH
CE_NL;EUR;Y;N;Y;SC_NL;NL;CE;;NL601;;DefaultParent=CORVANE;English=Corvane Energy, Netherlands;French=Corvane Energy, Pays-Bas;German=Corvane Energy, Niederlande
NL601;EUR;Y;Y;N;SC_NL;NL;CE-1;since 2018;;SC_ICP;DefaultParent=CE_NL;English=Corvane Wind Breda B.V.;French=Corvane Wind Breda B.V.;German=Corvane Wind Breda B.V.
NL602;EUR;Y;Y;N;SC_NL;NL;CE-2;;;SC_ICP;DefaultParent=CE_NL;English=Corvane Heat Breda B.V.;French=Corvane Heat Breda B.V.;German=Corvane Heat Breda B.V.
NL603-JV;EUR;Y;Y;N;SC_NL;NL;CE-3;since 2006;;SC_ICP;DefaultParent=CE_NL;English=Corvane Trading Breda B.V. (50%);French=Corvane Trading Breda B.V. (50 %);German=Corvane Trading Breda B.V. (50 %)
NL604;EUR;Y;Y;N;SC_NL;NL;CE-1;since 2011;;SC_ICP;DefaultParent=CE_NL;English=Corvane Wind Zwolle B.V.;French=Corvane Wind Zwolle B.V.;German=Corvane Wind Zwolle B.V.
NL605;EUR;Y;N;Y;SC_NL;NL;CE-2;;;;DefaultParent=CE_NL;English=Corvane Heat Zwolle B.V.;French=Corvane Heat Zwolle B.V.;German=Corvane Heat Zwolle B.V.
NL605_HQ;EUR;Y;Y;N;SC_NL;NL;CE-2;since 2019;;SC_ICP;DefaultParent=NL605;English=Corvane Heat Zwolle B.V., head office;French=Corvane Heat Zwolle B.V., siège;German=Corvane Heat Zwolle B.V., Zentrale
NL605_P1;EUR;Y;Y;N;SC_NL;NL;CE-2;;;SC_ICP;DefaultParent=NL605;English=Corvane Heat Zwolle B.V., plant 1;French=Corvane Heat Zwolle B.V., usine 1;German=Corvane Heat Zwolle B.V., Werk 1
NL605_P2;EUR;Y;Y;N;SC_NL;NL;CE-2;since 2014;;SC_ICP;DefaultParent=NL605;English=Corvane Heat Zwolle B.V., plant 2;French=Corvane Heat Zwolle B.V., usine 2;German=Corvane Heat Zwolle B.V., Werk 2
NL605_WH;EUR;Y;N;N;SC_NL;NL;CE-2;since 2009;;;DefaultParent=NL605;English=Corvane Heat Zwolle B.V., warehouse;French=Corvane Heat Zwolle B.V., entrepôt;German=Corvane Heat Zwolle B.V., Lager
NL605_SO;EUR;Y;Y;N;SC_NL;NL;CE-2;;;SC_ICP;DefaultParent=NL605;English=Corvane Heat Zwolle B.V., sales office;French=Corvane Heat Zwolle B.V., bureau de vente;German=Corvane Heat Zwolle B.V., Verkaufsbüro
NL606;EUR;Y;Y;N;SC_NL;NL;CE-3;since 1983;;SC_ICP;DefaultParent=CE_NL;English=Corvane Trading Zwolle B.V.;French=Corvane Trading Zwolle B.V.;German=Corvane Trading Zwolle B.V.
CE_PT;EUR;Y;N;Y;SC_PT;PT;CE;;PT601;;DefaultParent=CORVANE;English=Corvane Energy, Portugal;French=Corvane Energy, Portugal;German=Corvane Energy, Portugal
PT601;EUR;Y;Y;N;SC_PT;PT;CE-1;since 1999;;SC_ICP;DefaultParent=CE_PT;English=Corvane Wind Porto Lda;French=Corvane Wind Porto Lda;German=Corvane Wind Porto Lda
PT602;EUR;Y;N;Y;SC_PT;PT;CE-2;;;;DefaultParent=CE_PT;English=Corvane Heat Porto Lda;French=Corvane Heat Porto Lda;German=Corvane Heat Porto Lda
PT602_HQ;EUR;Y;Y;N;SC_PT;PT;CE-2;;;SC_ICP;DefaultParent=PT602;English=Corvane Heat Porto Lda, head office;French=Corvane Heat Porto Lda, siège;German=Corvane Heat Porto Lda, Zentrale
PT602_P1;EUR;Y;Y;N;SC_PT;PT;CE-2;since 1995;;SC_ICP;DefaultParent=PT602;English=Corvane Heat Porto Lda, plant 1;French=Corvane Heat Porto Lda, usine 1;German=Corvane Heat Porto Lda, Werk 1
PT602_P2;EUR;Y;Y;N;SC_PT;PT;CE-2;since 2005;;SC_ICP;DefaultParent=PT602;English=Corvane Heat Porto Lda, plant 2;French=Corvane Heat Porto Lda, usine 2;German=Corvane Heat Porto Lda, Werk 2
PT603-JV;EUR;Y;Y;N;SC_PT;PT;CE-3;since 2006;;SC_ICP;DefaultParent=CE_PT;English=Corvane Trading Porto Lda (50%);French=Corvane Trading Porto Lda (50 %);German=Corvane Trading Porto Lda (50 %)
PT604;EUR;Y;Y;N;SC_PT;PT;CE-1;since 1982;;SC_ICP;DefaultParent=CE_PT;English=Corvane Wind Évora Lda;French=Corvane Wind Évora Lda;German=Corvane Wind Évora Lda
PT605;EUR;Y;Y;N;SC_PT;PT;CE-2;;;SC_ICP;DefaultParent=CE_PT;English=Corvane Heat Évora Lda;French=Corvane Heat Évora Lda;German=Corvane Heat Évora Lda
PT606;EUR;Y;Y;N;SC_PT;PT;CE-3;since 1986;;SC_ICP;DefaultParent=CE_PT;English=Corvane Trading Évora Lda;French=Corvane Trading Évora Lda;German=Corvane Trading Évora Lda
PT607;EUR;Y;Y;N;SC_PT;PT;CE-1;;;SC_ICP;DefaultParent=CE_PT;English=Corvane Wind Setúbal Lda;French=Corvane Wind Setúbal Lda;German=Corvane Wind Setúbal Lda
CE_IT;EUR;Y;N;Y;SC_IT;IT;CE;;IT601;;DefaultParent=CORVANE;English=Corvane Energy, Italy;French=Corvane Energy, Italie;German=Corvane Energy, Italien
IT601;EUR;Y;Y;N;SC_IT;IT;CE-1;since 1986;;SC_ICP;DefaultParent=CE_IT;English=Corvane Wind Genova S.r.l.;French=Corvane Wind Genova S.r.l.;German=Corvane Wind Genova S.r.l.
IT602;EUR;Y;Y;N;SC_IT;IT;CE-2;;;SC_ICP;DefaultParent=CE_IT;English=Corvane Heat Genova S.r.l.;French=Corvane Heat Genova S.r.l.;German=Corvane Heat Genova S.r.l.
IT603-JV;EUR;Y;Y;N;SC_IT;IT;CE-3;since 1990;;SC_ICP;DefaultParent=CE_IT;English=Corvane Trading Genova S.r.l. (50%);French=Corvane Trading Genova S.r.l. (50 %);German=Corvane Trading Genova S.r.l. (50 %)
IT604;EUR;Y;Y;N;SC_IT;IT;CE-1;since 1995;;SC_ICP;DefaultParent=CE_IT;English=Corvane Wind Parma S.r.l.;French=Corvane Wind Parma S.r.l.;German=Corvane Wind Parma S.r.l.
IT605;EUR;Y;Y;N;SC_IT;IT;CE-2;since 1993;;SC_ICP;DefaultParent=CE_IT;English=Corvane Heat Parma S.r.l.;French=Corvane Heat Parma S.r.l.;German=Corvane Heat Parma S.r.l.
IT606;EUR;Y;Y;N;SC_IT;IT;CE-3;since 1983;;SC_ICP;DefaultParent=CE_IT;English=Corvane Trading Parma S.r.l.;French=Corvane Trading Parma S.r.l.;German=Corvane Trading Parma S.r.l.
IT607;EUR;Y;Y;N;SC_IT;IT;CE-1;since 2005;;SC_ICP;DefaultParent=CE_IT;English=Corvane Wind Forlì S.r.l.;French=Corvane Wind Forlì S.r.l.;German=Corvane Wind Forlì S.r.l.
CE_PL;PLN;Y;N;Y;SC_PL;PL;CE;;PL601;;DefaultParent=CORVANE;English=Corvane Energy, Poland;French=Corvane Energy, Pologne;German=Corvane Energy, Polen
PL601;PLN;Y;Y;N;SC_PL;PL;CE-1;since 1983;;SC_ICP;DefaultParent=CE_PL;English=Corvane Wind Gdańsk Sp. z o.o.;French=Corvane Wind Gdańsk Sp. z o.o.;German=Corvane Wind Gdańsk Sp. z o.o.
PL602;PLN;Y;Y;N;SC_PL;PL;CE-2;since 1977;;SC_ICP;DefaultParent=CE_PL;English=Corvane Heat Gdańsk Sp. z o.o.;French=Corvane Heat Gdańsk Sp. z o.o.;German=Corvane Heat Gdańsk Sp. z o.o.
PL603-JV;PLN;Y;Y;N;SC_PL;PL;CE-3;since 1981;;SC_ICP;DefaultParent=CE_PL;English=Corvane Trading Gdańsk Sp. z o.o. (50%);French=Corvane Trading Gdańsk Sp. z o.o. (50 %);German=Corvane Trading Gdańsk Sp. z o.o. (50 %)
PL604;PLN;Y;Y;N;SC_PL;PL;CE-1;since 1998;;SC_ICP;DefaultParent=CE_PL;English=Corvane Wind Kraków Sp. z o.o.;French=Corvane Wind Kraków Sp. z o.o.;German=Corvane Wind Kraków Sp. z o.o.
PL605;PLN;Y;Y;N;SC_PL;PL;CE-2;;;SC_ICP;DefaultParent=CE_PL;English=Corvane Heat Kraków Sp. z o.o.;French=Corvane Heat Kraków Sp. z o.o.;German=Corvane Heat Kraków Sp. z o.o.
PL606;PLN;Y;N;Y;SC_PL;PL;CE-3;;;;DefaultParent=CE_PL;English=Corvane Trading Kraków Sp. z o.o.;French=Corvane Trading Kraków Sp. z o.o.;German=Corvane Trading Kraków Sp. z o.o.
PL606_HQ;PLN;Y;Y;N;SC_PL;PL;CE-3;since 2018;;SC_ICP;DefaultParent=PL606;English=Corvane Trading Kraków Sp. z o.o., head office;French=Corvane Trading Kraków Sp. z o.o., siège;German=Corvane Trading Kraków Sp. z o.o., Zentrale
PL606_P1;PLN;Y;Y;N;SC_PL;PL;CE-3;since 2017;;SC_ICP;DefaultParent=PL606;English=Corvane Trading Kraków Sp. z o.o., plant 1;French=Corvane Trading Kraków Sp. z o.o., usine 1;German=Corvane Trading Kraków Sp. z o.o., Werk 1
PL606_P2;PLN;Y;Y;N;SC_PL;PL;CE-3;since 2007;;SC_ICP;DefaultParent=PL606;English=Corvane Trading Kraków Sp. z o.o., plant 2;French=Corvane Trading Kraków Sp. z o.o., usine 2;German=Corvane Trading Kraków Sp. z o.o., Werk 2
PL606_WH;PLN;Y;N;N;SC_PL;PL;CE-3;;;;DefaultParent=PL606;English=Corvane Trading Kraków Sp. z o.o., warehouse;French=Corvane Trading Kraków Sp. z o.o., entrepôt;German=Corvane Trading Kraków Sp. z o.o., Lager
PL607;PLN;Y;Y;N;SC_PL;PL;CE-1;;;SC_ICP;DefaultParent=CE_PL;English=Corvane Wind Poznań Sp. z o.o.;French=Corvane Wind Poznań Sp. z o.o.;German=Corvane Wind Poznań Sp. z o.o.
CE_AU;AUD;Y;N;Y;SC_AU;AU;CE;;AU601;;DefaultParent=CORVANE;English=Corvane Energy, Australia;French=Corvane Energy, Australie;German=Corvane Energy, Australien
AU601;AUD;Y;Y;N;SC_AU;AU;CE-1;since 1990;;SC_ICP;DefaultParent=CE_AU;English=Corvane Wind Hobart Pty;French=Corvane Wind Hobart Pty;German=Corvane Wind Hobart Pty
AU602;AUD;Y;Y;N;SC_AU;AU;CE-2;;;SC_ICP;DefaultParent=CE_AU;English=Corvane Heat Hobart Pty;French=Corvane Heat Hobart Pty;German=Corvane Heat Hobart Pty
AU603-JV;AUD;Y;Y;N;SC_AU;AU;CE-3;since 2005;;SC_ICP;DefaultParent=CE_AU;English=Corvane Trading Hobart Pty (50%);French=Corvane Trading Hobart Pty (50 %);German=Corvane Trading Hobart Pty (50 %)
AU604;AUD;Y;Y;N;SC_AU;AU;CE-1;since 1975;;SC_ICP;DefaultParent=CE_AU;English=Corvane Wind Perth Pty;French=Corvane Wind Perth Pty;German=Corvane Wind Perth Pty
AU605;AUD;Y;Y;N;SC_AU;AU;CE-2;since 1997;;SC_ICP;DefaultParent=CE_AU;English=Corvane Heat Perth Pty;French=Corvane Heat Perth Pty;German=Corvane Heat Perth Pty
TIDEWELL;EUR;Y;N;Y;SC_CORP;;TF;;TF_HOLD;;DefaultParent=ALDERBROOK;English=Tidewell Ferries;French=Tidewell Ferries;German=Tidewell Ferries
TF_HOLD;EUR;Y;Y;N;SC_NL;NL;HQ;since 2021;;SC_ICP;DefaultParent=TIDEWELL;English=Tidewell Ferries Holding B.V.;French=Tidewell Ferries Holding B.V.;German=Tidewell Ferries Holding B.V.
TF_GB;GBP;Y;N;Y;SC_GB;GB;TF;;Tidewell-Ferries UK;;DefaultParent=TIDEWELL;English=Tidewell Ferries, United Kingdom;French=Tidewell Ferries, Royaume-Uni;German=Tidewell Ferries, Vereinigtes Königreich
Tidewell-Ferries UK;GBP;Y;Y;N;SC_GB;GB;TF-1;since 2002;;SC_ICP;DefaultParent=TF_GB;English=Tidewell Lines Hull Ltd;French=Tidewell Lines Hull Ltd;German=Tidewell Lines Hull Ltd
GB702-JV;GBP;Y;Y;N;SC_GB;GB;TF-2;;;SC_ICP;DefaultParent=TF_GB;English=Tidewell Ports Hull Ltd (50%);French=Tidewell Ports Hull Ltd (50 %);German=Tidewell Ports Hull Ltd (50 %)
GB703;GBP;Y;Y;N;SC_GB;GB;TF-3;since 2009;;SC_ICP;DefaultParent=TF_GB;English=Tidewell Ships Hull Ltd;French=Tidewell Ships Hull Ltd;German=Tidewell Ships Hull Ltd
GB704;GBP;Y;Y;N;SC_GB;GB;TF-1;;;SC_ICP;DefaultParent=TF_GB;English=Tidewell Lines Bristol Ltd;French=Tidewell Lines Bristol Ltd;German=Tidewell Lines Bristol Ltd
GB705;GBP;Y;Y;N;SC_GB;GB;TF-2;since 1982;;SC_ICP;DefaultParent=TF_GB;English=Tidewell Ports Bristol Ltd;French=Tidewell Ports Bristol Ltd;German=Tidewell Ports Bristol Ltd
GB706;GBP;Y;Y;N;SC_GB;GB;TF-3;;;SC_ICP;DefaultParent=TF_GB;English=Tidewell Ships Bristol Ltd;French=Tidewell Ships Bristol Ltd;German=Tidewell Ships Bristol Ltd
GB707;GBP;Y;N;Y;SC_GB;GB;TF-1;;;;DefaultParent=TF_GB;English=Tidewell Lines Cardiff Ltd;French=Tidewell Lines Cardiff Ltd;German=Tidewell Lines Cardiff Ltd
GB707_HQ;GBP;Y;Y;N;SC_GB;GB;TF-1;since 1979;;SC_ICP;DefaultParent=GB707;English=Tidewell Lines Cardiff Ltd, head office;French=Tidewell Lines Cardiff Ltd, siège;German=Tidewell Lines Cardiff Ltd, Zentrale
GB707_P1;GBP;Y;Y;N;SC_GB;GB;TF-1;;;SC_ICP;DefaultParent=GB707;English=Tidewell Lines Cardiff Ltd, plant 1;French=Tidewell Lines Cardiff Ltd, usine 1;German=Tidewell Lines Cardiff Ltd, Werk 1
GB707_P2;GBP;Y;Y;N;SC_GB;GB;TF-1;since 2022;;SC_ICP;DefaultParent=GB707;English=Tidewell Lines Cardiff Ltd, plant 2;French=Tidewell Lines Cardiff Ltd, usine 2;German=Tidewell Lines Cardiff Ltd, Werk 2
GB708;GBP;Y;Y;N;SC_GB;GB;TF-2;since 2017;;SC_ICP;DefaultParent=TF_GB;English=Tidewell Ports Cardiff Ltd;French=Tidewell Ports Cardiff Ltd;German=Tidewell Ports Cardiff Ltd
TF_IE;EUR;Y;N;Y;SC_IE;IE;TF;;IE701;;DefaultParent=TIDEWELL;English=Tidewell Ferries, Ireland;French=Tidewell Ferries, Irlande;German=Tidewell Ferries, Irland
IE701;EUR;Y;Y;N;SC_IE;IE;TF-1;since 1997;;SC_ICP;DefaultParent=TF_IE;English=Tidewell Lines Sligo Ltd;French=Tidewell Lines Sligo Ltd;German=Tidewell Lines Sligo Ltd
IE702-JV;EUR;Y;Y;N;SC_IE;IE;TF-2;;;SC_ICP;DefaultParent=TF_IE;English=Tidewell Ports Sligo Ltd (50%);French=Tidewell Ports Sligo Ltd (50 %);German=Tidewell Ports Sligo Ltd (50 %)
IE703;EUR;Y;Y;N;SC_IE;IE;TF-3;since 2001;;SC_ICP;DefaultParent=TF_IE;English=Tidewell Ships Sligo Ltd;French=Tidewell Ships Sligo Ltd;German=Tidewell Ships Sligo Ltd
IE704;EUR;Y;N;Y;SC_IE;IE;TF-1;;;;DefaultParent=TF_IE;English=Tidewell Lines Cork Ltd;French=Tidewell Lines Cork Ltd;German=Tidewell Lines Cork Ltd
IE704_HQ;EUR;Y;Y;N;SC_IE;IE;TF-1;since 2013;;SC_ICP;DefaultParent=IE704;English=Tidewell Lines Cork Ltd, head office;French=Tidewell Lines Cork Ltd, siège;German=Tidewell Lines Cork Ltd, Zentrale
IE704_P1;EUR;Y;Y;N;SC_IE;IE;TF-1;since 1982;;SC_ICP;DefaultParent=IE704;English=Tidewell Lines Cork Ltd, plant 1;French=Tidewell Lines Cork Ltd, usine 1;German=Tidewell Lines Cork Ltd, Werk 1
IE704_P2;EUR;Y;Y;N;SC_IE;IE;TF-1;;;SC_ICP;DefaultParent=IE704;English=Tidewell Lines Cork Ltd, plant 2;French=Tidewell Lines Cork Ltd, usine 2;German=Tidewell Lines Cork Ltd, Werk 2
IE705;EUR;Y;Y;N;SC_IE;IE;TF-2;since 1990;;SC_ICP;DefaultParent=TF_IE;English=Tidewell Ports Cork Ltd;French=Tidewell Ports Cork Ltd;German=Tidewell Ports Cork Ltd
IE706;EUR;Y;Y;N;SC_IE;IE;TF-3;;;SC_ICP;DefaultParent=TF_IE;English=Tidewell Ships Cork Ltd;French=Tidewell Ships Cork Ltd;German=Tidewell Ships Cork Ltd
IE707;EUR;Y;Y;N;SC_IE;IE;TF-1;since 2010;;SC_ICP;DefaultParent=TF_IE;English=Tidewell Lines Galway Ltd;French=Tidewell Lines Galway Ltd;German=Tidewell Lines Galway Ltd
TF_SE;SEK;Y;N;Y;SC_SE;SE;TF;;SE701;;DefaultParent=TIDEWELL;English=Tidewell Ferries, Sweden;French=Tidewell Ferries, Suède;German=Tidewell Ferries, Schweden
SE701;SEK;Y;Y;N;SC_SE;SE;TF-1;;;SC_ICP;DefaultParent=TF_SE;English=Tidewell Lines Umeå AB;French=Tidewell Lines Umeå AB;German=Tidewell Lines Umeå AB
SE702-JV;SEK;Y;Y;N;SC_SE;SE;TF-2;since 1981;;SC_ICP;DefaultParent=TF_SE;English=Tidewell Ports Umeå AB (50%);French=Tidewell Ports Umeå AB (50 %);German=Tidewell Ports Umeå AB (50 %)
SE703;SEK;Y;Y;N;SC_SE;SE;TF-3;;;SC_ICP;DefaultParent=TF_SE;English=Tidewell Ships Umeå AB;French=Tidewell Ships Umeå AB;German=Tidewell Ships Umeå AB
SE704;SEK;Y;Y;N;SC_SE;SE;TF-1;since 1985;;SC_ICP;DefaultParent=TF_SE;English=Tidewell Lines Växjö AB;French=Tidewell Lines Växjö AB;German=Tidewell Lines Växjö AB
SE705;SEK;Y;Y;N;SC_SE;SE;TF-2;since 2003;;SC_ICP;DefaultParent=TF_SE;English=Tidewell Ports Växjö AB;French=Tidewell Ports Växjö AB;German=Tidewell Ports Växjö AB
SE706;SEK;Y;Y;N;SC_SE;SE;TF-3;since 1981;;SC_ICP;DefaultParent=TF_SE;English=Tidewell Ships Växjö AB;French=Tidewell Ships Växjö AB;German=Tidewell Ships Växjö AB
SE707;SEK;Y;Y;N;SC_SE;SE;TF-1;since 1991;;SC_ICP;DefaultParent=TF_SE;English=Tidewell Lines Örebro AB;French=Tidewell Lines Örebro AB;German=Tidewell Lines Örebro AB
SE708;SEK;Y;Y;N;SC_SE;SE;TF-2;;;SC_ICP;DefaultParent=TF_SE;English=Tidewell Ports Örebro AB;French=Tidewell Ports Örebro AB;German=Tidewell Ports Örebro AB
TF_DK;DKK;Y;N;Y;SC_DK;DK;TF;;DK701;;DefaultParent=TIDEWELL;English=Tidewell Ferries, Denmark;French=Tidewell Ferries, Danemark;German=Tidewell Ferries, Dänemark
DK701;DKK;Y;Y;N;SC_DK;DK;TF-1;since 2011;;SC_ICP;DefaultParent=TF_DK;English=Tidewell Lines Rønne A/S;French=Tidewell Lines Rønne A/S;German=Tidewell Lines Rønne A/S
DK702-JV;DKK;Y;Y;N;SC_DK;DK;TF-2;;;SC_ICP;DefaultParent=TF_DK;English=Tidewell Ports Rønne A/S (50%);French=Tidewell Ports Rønne A/S (50 %);German=Tidewell Ports Rønne A/S (50 %)
DK703;DKK;Y;N;Y;SC_DK;DK;TF-3;;;;DefaultParent=TF_DK;English=Tidewell Ships Rønne A/S;French=Tidewell Ships Rønne A/S;German=Tidewell Ships Rønne A/S
DK703_HQ;DKK;Y;Y;N;SC_DK;DK;TF-3;since 1994;;SC_ICP;DefaultParent=DK703;English=Tidewell Ships Rønne A/S, head office;French=Tidewell Ships Rønne A/S, siège;German=Tidewell Ships Rønne A/S, Zentrale
DK703_P1;DKK;Y;Y;N;SC_DK;DK;TF-3;since 1977;;SC_ICP;DefaultParent=DK703;English=Tidewell Ships Rønne A/S, plant 1;French=Tidewell Ships Rønne A/S, usine 1;German=Tidewell Ships Rønne A/S, Werk 1
DK703_P2;DKK;Y;Y;N;SC_DK;DK;TF-3;since 2015;;SC_ICP;DefaultParent=DK703;English=Tidewell Ships Rønne A/S, plant 2;French=Tidewell Ships Rønne A/S, usine 2;German=Tidewell Ships Rønne A/S, Werk 2
DK704;DKK;Y;Y;N;SC_DK;DK;TF-1;since 2002;;SC_ICP;DefaultParent=TF_DK;English=Tidewell Lines Aarhus A/S;French=Tidewell Lines Aarhus A/S;German=Tidewell Lines Aarhus A/S
DK705;DKK;Y;Y;N;SC_DK;DK;TF-2;;;SC_ICP;DefaultParent=TF_DK;English=Tidewell Ports Aarhus A/S;French=Tidewell Ports Aarhus A/S;German=Tidewell Ports Aarhus A/S
DK706;DKK;Y;Y;N;SC_DK;DK;TF-3;since 1998;;SC_ICP;DefaultParent=TF_DK;English=Tidewell Ships Aarhus A/S;French=Tidewell Ships Aarhus A/S;German=Tidewell Ships Aarhus A/S
DK707;DKK;Y;Y;N;SC_DK;DK;TF-1;;;SC_ICP;DefaultParent=TF_DK;English=Tidewell Lines Odense A/S;French=Tidewell Lines Odense A/S;German=Tidewell Lines Odense A/S
DK708;DKK;Y;Y;N;SC_DK;DK;TF-2;since 2007;;SC_ICP;DefaultParent=TF_DK;English=Tidewell Ports Odense A/S;French=Tidewell Ports Odense A/S;German=Tidewell Ports Odense A/S
DK709;DKK;Y;Y;N;SC_DK;DK;TF-3;since 1997;;SC_ICP;DefaultParent=TF_DK;English=Tidewell Ships Odense A/S;French=Tidewell Ships Odense A/S;German=Tidewell Ships Odense A/S
TF_FI;EUR;Y;N;Y;SC_FI;FI;TF;;FI701;;DefaultParent=TIDEWELL;English=Tidewell Ferries, Finland;French=Tidewell Ferries, Finlande;German=Tidewell Ferries, Finnland
FI701;EUR;Y;Y;N;SC_FI;FI;TF-1;since 1990;;SC_ICP;DefaultParent=TF_FI;English=Tidewell Lines Jyväskylä Oy;French=Tidewell Lines Jyväskylä Oy;German=Tidewell Lines Jyväskylä Oy
FI702-JV;EUR;Y;Y;N;SC_FI;FI;TF-2;;;SC_ICP;DefaultParent=TF_FI;English=Tidewell Ports Jyväskylä Oy (50%);French=Tidewell Ports Jyväskylä Oy (50 %);German=Tidewell Ports Jyväskylä Oy (50 %)
FI703;EUR;Y;Y;N;SC_FI;FI;TF-3;since 1978;;SC_ICP;DefaultParent=TF_FI;English=Tidewell Ships Jyväskylä Oy;French=Tidewell Ships Jyväskylä Oy;German=Tidewell Ships Jyväskylä Oy
FI704;EUR;Y;Y;N;SC_FI;FI;TF-1;since 1991;;SC_ICP;DefaultParent=TF_FI;English=Tidewell Lines Turku Oy;French=Tidewell Lines Turku Oy;German=Tidewell Lines Turku Oy
FI705;EUR;Y;Y;N;SC_FI;FI;TF-2;since 1997;;SC_ICP;DefaultParent=TF_FI;English=Tidewell Ports Turku Oy;French=Tidewell Ports Turku Oy;German=Tidewell Ports Turku Oy
FI706;EUR;Y;Y;N;SC_FI;FI;TF-3;since 1987;;SC_ICP;DefaultParent=TF_FI;English=Tidewell Ships Turku Oy;French=Tidewell Ships Turku Oy;German=Tidewell Ships Turku Oy
FI707;EUR;Y;Y;N;SC_FI;FI;TF-1;since 2017;;SC_ICP;DefaultParent=TF_FI;English=Tidewell Lines Oulu Oy;French=Tidewell Lines Oulu Oy;German=Tidewell Lines Oulu Oy
FI708;EUR;Y;Y;N;SC_FI;FI;TF-2;since 1986;;SC_ICP;DefaultParent=TF_FI;English=Tidewell Ports Oulu Oy;French=Tidewell Ports Oulu Oy;German=Tidewell Ports Oulu Oy
FI709;EUR;Y;Y;N;SC_FI;FI;TF-3;;;SC_ICP;DefaultParent=TF_FI;English=Tidewell Ships Oulu Oy;French=Tidewell Ships Oulu Oy;German=Tidewell Ships Oulu Oy
TF_EE;EUR;Y;N;Y;SC_EE;EE;TF;;"Baltic" Lines;;DefaultParent=TIDEWELL;English=Tidewell Ferries, Estonia;French=Tidewell Ferries, Estonie;German=Tidewell Ferries, Estland
"Baltic" Lines;EUR;Y;Y;N;SC_EE;EE;TF-1;since 1994;;SC_ICP;DefaultParent=TF_EE;English=Tidewell Lines Tartu OÜ;French=Tidewell Lines Tartu OÜ;German=Tidewell Lines Tartu OÜ
EE702-JV;EUR;Y;Y;N;SC_EE;EE;TF-2;since 2017;;SC_ICP;DefaultParent=TF_EE;English=Tidewell Ports Tartu OÜ (50%);French=Tidewell Ports Tartu OÜ (50 %);German=Tidewell Ports Tartu OÜ (50 %)
EE703;EUR;Y;Y;N;SC_EE;EE;TF-3;since 2018;;SC_ICP;DefaultParent=TF_EE;English=Tidewell Ships Tartu OÜ;French=Tidewell Ships Tartu OÜ;German=Tidewell Ships Tartu OÜ
EE704;EUR;Y;Y;N;SC_EE;EE;TF-1;since 1999;;SC_ICP;DefaultParent=TF_EE;English=Tidewell Lines Pärnu OÜ;French=Tidewell Lines Pärnu OÜ;German=Tidewell Lines Pärnu OÜ
EE705;EUR;Y;Y;N;SC_EE;EE;TF-2;since 2021;;SC_ICP;DefaultParent=TF_EE;English=Tidewell Ports Pärnu OÜ;French=Tidewell Ports Pärnu OÜ;German=Tidewell Ports Pärnu OÜ
EE706;EUR;Y;Y;N;SC_EE;EE;TF-3;since 1979;;SC_ICP;DefaultParent=TF_EE;English=Tidewell Ships Pärnu OÜ;French=Tidewell Ships Pärnu OÜ;German=Tidewell Ships Pärnu OÜ
EE707;EUR;Y;N;Y;SC_EE;EE;TF-1;;;;DefaultParent=TF_EE;English=Tidewell Lines Tallinn OÜ;French=Tidewell Lines Tallinn OÜ;German=Tidewell Lines Tallinn OÜ
EE707_HQ;EUR;Y;Y;N;SC_EE;EE;TF-1;since 2014;;SC_ICP;DefaultParent=EE707;English=Tidewell Lines Tallinn OÜ, head office;French=Tidewell Lines Tallinn OÜ, siège;German=Tidewell Lines Tallinn OÜ, Zentrale
EE707_P1;EUR;Y;Y;N;SC_EE;EE;TF-1;since 1997;;SC_ICP;DefaultParent=EE707;English=Tidewell Lines Tallinn OÜ, plant 1;French=Tidewell Lines Tallinn OÜ, usine 1;German=Tidewell Lines Tallinn OÜ, Werk 1
EE707_P2;EUR;Y;Y;N;SC_EE;EE;TF-1;since 2019;;SC_ICP;DefaultParent=EE707;English=Tidewell Lines Tallinn OÜ, plant 2;French=Tidewell Lines Tallinn OÜ, usine 2;German=Tidewell Lines Tallinn OÜ, Werk 2
EE708;EUR;Y;Y;N;SC_EE;EE;TF-2;since 2010;;SC_ICP;DefaultParent=TF_EE;English=Tidewell Ports Tallinn OÜ;French=Tidewell Ports Tallinn OÜ;German=Tidewell Ports Tallinn OÜ
EE709;EUR;Y;Y;N;SC_EE;EE;TF-3;;;SC_ICP;DefaultParent=TF_EE;English=Tidewell Ships Tallinn OÜ;French=Tidewell Ships Tallinn OÜ;German=Tidewell Ships Tallinn OÜ
TF_DE;EUR;Y;N;Y;SC_DE;DE;TF;;DE701;;DefaultParent=TIDEWELL;English=Tidewell Ferries, Germany;French=Tidewell Ferries, Allemagne;German=Tidewell Ferries, Deutschland
DE701;EUR;Y;Y;N;SC_DE;DE;TF-1;since 1998;;SC_ICP;DefaultParent=TF_DE;English=Tidewell Lines Münster GmbH;French=Tidewell Lines Münster GmbH;German=Tidewell Lines Münster GmbH
DE702-JV;EUR;Y;Y;N;SC_DE;DE;TF-2;since 1979;;SC_ICP;DefaultParent=TF_DE;English=Tidewell Ports Münster GmbH (50%);French=Tidewell Ports Münster GmbH (50 %);German=Tidewell Ports Münster GmbH (50 %)
DE703;EUR;Y;Y;N;SC_DE;DE;TF-3;since 1986;;SC_ICP;DefaultParent=TF_DE;English=Tidewell Ships Münster GmbH;French=Tidewell Ships Münster GmbH;German=Tidewell Ships Münster GmbH
DE704;EUR;Y;N;Y;SC_DE;DE;TF-1;;;;DefaultParent=TF_DE;English=Tidewell Lines Köln GmbH;French=Tidewell Lines Köln GmbH;German=Tidewell Lines Köln GmbH
DE704_HQ;EUR;Y;Y;N;SC_DE;DE;TF-1;since 1998;;SC_ICP;DefaultParent=DE704;English=Tidewell Lines Köln GmbH, head office;French=Tidewell Lines Köln GmbH, siège;German=Tidewell Lines Köln GmbH, Zentrale
DE704_P1;EUR;Y;Y;N;SC_DE;DE;TF-1;since 2013;;SC_ICP;DefaultParent=DE704;English=Tidewell Lines Köln GmbH, plant 1;French=Tidewell Lines Köln GmbH, usine 1;German=Tidewell Lines Köln GmbH, Werk 1
DE704_P2;EUR;Y;Y;N;SC_DE;DE;TF-1;since 1987;;SC_ICP;DefaultParent=DE704;English=Tidewell Lines Köln GmbH, plant 2;French=Tidewell Lines Köln GmbH, usine 2;German=Tidewell Lines Köln GmbH, Werk 2
DE704_WH;EUR;Y;N;N;SC_DE;DE;TF-1;;;;DefaultParent=DE704;English=Tidewell Lines Köln GmbH, warehouse;French=Tidewell Lines Köln GmbH, entrepôt;German=Tidewell Lines Köln GmbH, Lager
DE704_SO;EUR;Y;Y;N;SC_DE;DE;TF-1;since 2005;;SC_ICP;DefaultParent=DE704;English=Tidewell Lines Köln GmbH, sales office;French=Tidewell Lines Köln GmbH, bureau de vente;German=Tidewell Lines Köln GmbH, Verkaufsbüro
DE705;EUR;Y;Y;N;SC_DE;DE;TF-2;since 2021;;SC_ICP;DefaultParent=TF_DE;English=Tidewell Ports Köln GmbH;French=Tidewell Ports Köln GmbH;German=Tidewell Ports Köln GmbH
DE706;EUR;Y;Y;N;SC_DE;DE;TF-3;since 1995;;SC_ICP;DefaultParent=TF_DE;English=Tidewell Ships Köln GmbH;French=Tidewell Ships Köln GmbH;German=Tidewell Ships Köln GmbH
TF_NL;EUR;Y;N;Y;SC_NL;NL;TF;;NL701;;DefaultParent=TIDEWELL;English=Tidewell Ferries, Netherlands;French=Tidewell Ferries, Pays-Bas;German=Tidewell Ferries, Niederlande
NL701;EUR;Y;Y;N;SC_NL;NL;TF-1;since 2019;;SC_ICP;DefaultParent=TF_NL;English=Tidewell Lines Zwolle B.V.;French=Tidewell Lines Zwolle B.V.;German=Tidewell Lines Zwolle B.V.
NL702-JV;EUR;Y;Y;N;SC_NL;NL;TF-2;since 1990;;SC_ICP;DefaultParent=TF_NL;English=Tidewell Ports Zwolle B.V. (50%);French=Tidewell Ports Zwolle B.V. (50 %);German=Tidewell Ports Zwolle B.V. (50 %)
NL703;EUR;Y;Y;N;SC_NL;NL;TF-3;since 1975;;SC_ICP;DefaultParent=TF_NL;English=Tidewell Ships Zwolle B.V.;French=Tidewell Ships Zwolle B.V.;German=Tidewell Ships Zwolle B.V.
NL704;EUR;Y;Y;N;SC_NL;NL;TF-1;since 1994;;SC_ICP;DefaultParent=TF_NL;English=Tidewell Lines Rotterdam B.V.;French=Tidewell Lines Rotterdam B.V.;German=Tidewell Lines Rotterdam B.V.
TF_GR;EUR;Y;N;Y;SC_GR;GR;TF;;GR701;;DefaultParent=TIDEWELL;English=Tidewell Ferries, Greece;French=Tidewell Ferries, Grèce;German=Tidewell Ferries, Griechenland
GR701;EUR;Y;Y;N;SC_GR;GR;TF-1;;;SC_ICP;DefaultParent=TF_GR;English=Tidewell Lines Patras AE;French=Tidewell Lines Patras AE;German=Tidewell Lines Patras AE
GR702-JV;EUR;Y;Y;N;SC_GR;GR;TF-2;since 1982;;SC_ICP;DefaultParent=TF_GR;English=Tidewell Ports Patras AE (50%);French=Tidewell Ports Patras AE (50 %);German=Tidewell Ports Patras AE (50 %)
GR703;EUR;Y;Y;N;SC_GR;GR;TF-3;;;SC_ICP;DefaultParent=TF_GR;English=Tidewell Ships Patras AE;French=Tidewell Ships Patras AE;German=Tidewell Ships Patras AE
GR704;EUR;Y;Y;N;SC_GR;GR;TF-1;since 2021;;SC_ICP;DefaultParent=TF_GR;English=Tidewell Lines Volos AE;French=Tidewell Lines Volos AE;German=Tidewell Lines Volos AE
TF_ES;EUR;Y;N;Y;SC_ES;ES;TF;;ES701;;DefaultParent=TIDEWELL;English=Tidewell Ferries, Spain;French=Tidewell Ferries, Espagne;German=Tidewell Ferries, Spanien
ES701;EUR;Y;Y;N;SC_ES;ES;TF-1;since 1979;;SC_ICP;DefaultParent=TF_ES;English=Tidewell Lines A Coruña S.L.;French=Tidewell Lines A Coruña S.L.;German=Tidewell Lines A Coruña S.L.
ES702-JV;EUR;Y;Y;N;SC_ES;ES;TF-2;since 2005;;SC_ICP;DefaultParent=TF_ES;English=Tidewell Ports A Coruña S.L. (50%);French=Tidewell Ports A Coruña S.L. (50 %);German=Tidewell Ports A Coruña S.L. (50 %)
ES703;EUR;Y;Y;N;SC_ES;ES;TF-3;since 1999;;SC_ICP;DefaultParent=TF_ES;English=Tidewell Ships A Coruña S.L.;French=Tidewell Ships A Coruña S.L.;German=Tidewell Ships A Coruña S.L.
ES704;EUR;Y;Y;N;SC_ES;ES;TF-1;since 2002;;SC_ICP;DefaultParent=TF_ES;English=Tidewell Lines Cádiz S.L.;French=Tidewell Lines Cádiz S.L.;German=Tidewell Lines Cádiz S.L.
ES705;EUR;Y;Y;N;SC_ES;ES;TF-2;;;SC_ICP;DefaultParent=TF_ES;English=Tidewell Ports Cádiz S.L.;French=Tidewell Ports Cádiz S.L.;German=Tidewell Ports Cádiz S.L.
ES706;EUR;Y;Y;N;SC_ES;ES;TF-3;since 1982;;SC_ICP;DefaultParent=TF_ES;English=Tidewell Ships Cádiz S.L.;French=Tidewell Ships Cádiz S.L.;German=Tidewell Ships Cádiz S.L.
ES707;EUR;Y;N;Y;SC_ES;ES;TF-1;;;;DefaultParent=TF_ES;English=Tidewell Lines León S.L.;French=Tidewell Lines León S.L.;German=Tidewell Lines León S.L.
ES707_HQ;EUR;Y;Y;N;SC_ES;ES;TF-1;since 1994;;SC_ICP;DefaultParent=ES707;English=Tidewell Lines León S.L., head office;French=Tidewell Lines León S.L., siège;German=Tidewell Lines León S.L., Zentrale
ES707_P1;EUR;Y;Y;N;SC_ES;ES;TF-1;since 1993;;SC_ICP;DefaultParent=ES707;English=Tidewell Lines León S.L., plant 1;French=Tidewell Lines León S.L., usine 1;German=Tidewell Lines León S.L., Werk 1
ES707_P2;EUR;Y;Y;N;SC_ES;ES;TF-1;since 1999;;SC_ICP;DefaultParent=ES707;English=Tidewell Lines León S.L., plant 2;French=Tidewell Lines León S.L., usine 2;German=Tidewell Lines León S.L., Werk 2
ES707_WH;EUR;Y;N;N;SC_ES;ES;TF-1;;;;DefaultParent=ES707;English=Tidewell Lines León S.L., warehouse;French=Tidewell Lines León S.L., entrepôt;German=Tidewell Lines León S.L., Lager
ES707_SO;EUR;Y;Y;N;SC_ES;ES;TF-1;since 2001;;SC_ICP;DefaultParent=ES707;English=Tidewell Lines León S.L., sales office;French=Tidewell Lines León S.L., bureau de vente;German=Tidewell Lines León S.L., Verkaufsbüro
ES708;EUR;Y;Y;N;SC_ES;ES;TF-2;since 1975;;SC_ICP;DefaultParent=TF_ES;English=Tidewell Ports León S.L.;French=Tidewell Ports León S.L.;German=Tidewell Ports León S.L.
TF_MA;MAD;Y;N;Y;SC_MA;MA;TF;;MA701;;DefaultParent=TIDEWELL;English=Tidewell Ferries, Morocco;French=Tidewell Ferries, Maroc;German=Tidewell Ferries, Marokko
MA701;MAD;Y;Y;N;SC_MA;MA;TF-1;;;SC_ICP;DefaultParent=TF_MA;English=Tidewell Lines Agadir SARL;French=Tidewell Lines Agadir SARL;German=Tidewell Lines Agadir SARL
MA702-JV;MAD;Y;Y;N;SC_MA;MA;TF-2;since 2019;;SC_ICP;DefaultParent=TF_MA;English=Tidewell Ports Agadir SARL (50%);French=Tidewell Ports Agadir SARL (50 %);German=Tidewell Ports Agadir SARL (50 %)
MA703;MAD;Y;Y;N;SC_MA;MA;TF-3;;;SC_ICP;DefaultParent=TF_MA;English=Tidewell Ships Agadir SARL;French=Tidewell Ships Agadir SARL;German=Tidewell Ships Agadir SARL
MA704;MAD;Y;Y;N;SC_MA;MA;TF-1;since 2021;;SC_ICP;DefaultParent=TF_MA;English=Tidewell Lines Tanger SARL;French=Tidewell Lines Tanger SARL;German=Tidewell Lines Tanger SARL
MA705;MAD;Y;Y;N;SC_MA;MA;TF-2;since 1999;;SC_ICP;DefaultParent=TF_MA;English=Tidewell Ports Tanger SARL;French=Tidewell Ports Tanger SARL;German=Tidewell Ports Tanger SARL
MA706;MAD;Y;Y;N;SC_MA;MA;TF-3;since 1993;;SC_ICP;DefaultParent=TF_MA;English=Tidewell Ships Tanger SARL;French=Tidewell Ships Tanger SARL;German=Tidewell Ships Tanger SARL
FERROW;EUR;Y;N;Y;SC_CORP;;FE;;FE_HOLD;;DefaultParent=ALDERBROOK;English=Ferrow Engineering;French=Ferrow Engineering;German=Ferrow Engineering
FE_HOLD;EUR;Y;Y;N;SC_NL;NL;HQ;since 1998;;SC_ICP;DefaultParent=FERROW;English=Ferrow Engineering Holding B.V.;French=Ferrow Engineering Holding B.V.;German=Ferrow Engineering Holding B.V.
FE_DE;EUR;Y;N;Y;SC_DE;DE;FE;;DE801-JV;;DefaultParent=FERROW;English=Ferrow Engineering, Germany;French=Ferrow Engineering, Allemagne;German=Ferrow Engineering, Deutschland
DE801-JV;EUR;Y;Y;N;SC_DE;DE;FE-1;since 2006;;SC_ICP;DefaultParent=FE_DE;English=Ferrow Machines Köln GmbH (50%);French=Ferrow Machines Köln GmbH (50 %);German=Ferrow Machines Köln GmbH (50 %)
DE802;EUR;Y;N;Y;SC_DE;DE;FE-2;;;;DefaultParent=FE_DE;English=Ferrow Service Köln GmbH;French=Ferrow Service Köln GmbH;German=Ferrow Service Köln GmbH
DE802_HQ;EUR;Y;Y;N;SC_DE;DE;FE-2;since 2021;;SC_ICP;DefaultParent=DE802;English=Ferrow Service Köln GmbH, head office;French=Ferrow Service Köln GmbH, siège;German=Ferrow Service Köln GmbH, Zentrale
DE802_P1;EUR;Y;Y;N;SC_DE;DE;FE-2;since 2022;;SC_ICP;DefaultParent=DE802;English=Ferrow Service Köln GmbH, plant 1;French=Ferrow Service Köln GmbH, usine 1;German=Ferrow Service Köln GmbH, Werk 1
DE802_P2;EUR;Y;Y;N;SC_DE;DE;FE-2;;;SC_ICP;DefaultParent=DE802;English=Ferrow Service Köln GmbH, plant 2;French=Ferrow Service Köln GmbH, usine 2;German=Ferrow Service Köln GmbH, Werk 2
DE803;EUR;Y;N;Y;SC_DE;DE;FE-3;;;;DefaultParent=FE_DE;English=Ferrow Automation Köln GmbH;French=Ferrow Automation Köln GmbH;German=Ferrow Automation Köln GmbH
DE803_HQ;EUR;Y;Y;N;SC_DE;DE;FE-3;since 1986;;SC_ICP;DefaultParent=DE803;English=Ferrow Automation Köln GmbH, head office;French=Ferrow Automation Köln GmbH, siège;German=Ferrow Automation Köln GmbH, Zentrale
DE803_P1;EUR;Y;Y;N;SC_DE;DE;FE-3;since 1985;;SC_ICP;DefaultParent=DE803;English=Ferrow Automation Köln GmbH, plant 1;French=Ferrow Automation Köln GmbH, usine 1;German=Ferrow Automation Köln GmbH, Werk 1
DE803_P2;EUR;Y;Y;N;SC_DE;DE;FE-3;since 2007;;SC_ICP;DefaultParent=DE803;English=Ferrow Automation Köln GmbH, plant 2;French=Ferrow Automation Köln GmbH, usine 2;German=Ferrow Automation Köln GmbH, Werk 2
DE804;EUR;Y;Y;N;SC_DE;DE;FE-1;;;SC_ICP;DefaultParent=FE_DE;English=Ferrow Machines Würzburg GmbH;French=Ferrow Machines Würzburg GmbH;German=Ferrow Machines Würzburg GmbH
DE805;EUR;Y;Y;N;SC_DE;DE;FE-2;since 2010;;SC_ICP;DefaultParent=FE_DE;English=Ferrow Service Würzburg GmbH;French=Ferrow Service Würzburg GmbH;German=Ferrow Service Würzburg GmbH
DE806;EUR;Y;Y;N;SC_DE;DE;FE-3;;;SC_ICP;DefaultParent=FE_DE;English=Ferrow Automation Würzburg GmbH;French=Ferrow Automation Würzburg GmbH;German=Ferrow Automation Würzburg GmbH
DE807;EUR;Y;N;Y;SC_DE;DE;FE-1;;;;DefaultParent=FE_DE;English=Ferrow Machines Leipzig GmbH;French=Ferrow Machines Leipzig GmbH;German=Ferrow Machines Leipzig GmbH
DE807_HQ;EUR;Y;Y;N;SC_DE;DE;FE-1;since 2003;;SC_ICP;DefaultParent=DE807;English=Ferrow Machines Leipzig GmbH, head office;French=Ferrow Machines Leipzig GmbH, siège;German=Ferrow Machines Leipzig GmbH, Zentrale
DE807_P1;EUR;Y;Y;N;SC_DE;DE;FE-1;;;SC_ICP;DefaultParent=DE807;English=Ferrow Machines Leipzig GmbH, plant 1;French=Ferrow Machines Leipzig GmbH, usine 1;German=Ferrow Machines Leipzig GmbH, Werk 1
DE807_P2;EUR;Y;Y;N;SC_DE;DE;FE-1;since 1982;;SC_ICP;DefaultParent=DE807;English=Ferrow Machines Leipzig GmbH, plant 2;French=Ferrow Machines Leipzig GmbH, usine 2;German=Ferrow Machines Leipzig GmbH, Werk 2
DE807_WH;EUR;Y;N;N;SC_DE;DE;FE-1;since 2009;;;DefaultParent=DE807;English=Ferrow Machines Leipzig GmbH, warehouse;French=Ferrow Machines Leipzig GmbH, entrepôt;German=Ferrow Machines Leipzig GmbH, Lager
DE808;EUR;Y;N;Y;SC_DE;DE;FE-2;;;;DefaultParent=FE_DE;English=Ferrow Service Leipzig GmbH;French=Ferrow Service Leipzig GmbH;German=Ferrow Service Leipzig GmbH
DE808_HQ;EUR;Y;Y;N;SC_DE;DE;FE-2;since 1985;;SC_ICP;DefaultParent=DE808;English=Ferrow Service Leipzig GmbH, head office;French=Ferrow Service Leipzig GmbH, siège;German=Ferrow Service Leipzig GmbH, Zentrale
DE808_P1;EUR;Y;Y;N;SC_DE;DE;FE-2;since 2002;;SC_ICP;DefaultParent=DE808;English=Ferrow Service Leipzig GmbH, plant 1;French=Ferrow Service Leipzig GmbH, usine 1;German=Ferrow Service Leipzig GmbH, Werk 1
DE808_P2;EUR;Y;Y;N;SC_DE;DE;FE-2;;;SC_ICP;DefaultParent=DE808;English=Ferrow Service Leipzig GmbH, plant 2;French=Ferrow Service Leipzig GmbH, usine 2;German=Ferrow Service Leipzig GmbH, Werk 2
DE808_WH;EUR;Y;N;N;SC_DE;DE;FE-2;since 2011;;;DefaultParent=DE808;English=Ferrow Service Leipzig GmbH, warehouse;French=Ferrow Service Leipzig GmbH, entrepôt;German=Ferrow Service Leipzig GmbH, Lager
FE_CH;CHF;Y;N;Y;SC_CH;CH;FE;;CH801-JV;;DefaultParent=FERROW;English=Ferrow Engineering, Switzerland;French=Ferrow Engineering, Suisse;German=Ferrow Engineering, Schweiz
CH801-JV;CHF;Y;Y;N;SC_CH;CH;FE-1;since 1981;;SC_ICP;DefaultParent=FE_CH;English=Ferrow Machines Basel AG (50%);French=Ferrow Machines Basel AG (50 %);German=Ferrow Machines Basel AG (50 %)
Maschinen-Service Zürich;CHF;Y;Y;N;SC_CH;CH;FE-2;;;SC_ICP;DefaultParent=FE_CH;English=Ferrow Service Basel AG;French=Ferrow Service Basel AG;German=Ferrow Service Basel AG
CH803;CHF;Y;Y;N;SC_CH;CH;FE-3;since 2018;;SC_ICP;DefaultParent=FE_CH;English=Ferrow Automation Basel AG;French=Ferrow Automation Basel AG;German=Ferrow Automation Basel AG
CH804;CHF;Y;Y;N;SC_CH;CH;FE-1;since 1999;;SC_ICP;DefaultParent=FE_CH;English=Ferrow Machines Zürich AG;French=Ferrow Machines Zürich AG;German=Ferrow Machines Zürich AG
CH805;CHF;Y;Y;N;SC_CH;CH;FE-2;since 2021;;SC_ICP;DefaultParent=FE_CH;English=Ferrow Service Zürich AG;French=Ferrow Service Zürich AG;German=Ferrow Service Zürich AG
CH806;CHF;Y;Y;N;SC_CH;CH;FE-3;since 1979;;SC_ICP;DefaultParent=FE_CH;English=Ferrow Automation Zürich AG;French=Ferrow Automation Zürich AG;German=Ferrow Automation Zürich AG
FE_AT;EUR;Y;N;Y;SC_AT;AT;FE;;AT801-JV;;DefaultParent=FERROW;English=Ferrow Engineering, Austria;French=Ferrow Engineering, Autriche;German=Ferrow Engineering, Österreich
AT801-JV;EUR;Y;Y;N;SC_AT;AT;FE-1;;;SC_ICP;DefaultParent=FE_AT;English=Ferrow Machines Sankt Pölten GmbH (50%);French=Ferrow Machines Sankt Pölten GmbH (50 %);German=Ferrow Machines Sankt Pölten GmbH (50 %)
AT802;EUR;Y;Y;N;SC_AT;AT;FE-2;since 2017;;SC_ICP;DefaultParent=FE_AT;English=Ferrow Service Sankt Pölten GmbH;French=Ferrow Service Sankt Pölten GmbH;German=Ferrow Service Sankt Pölten GmbH
AT803;EUR;Y;Y;N;SC_AT;AT;FE-3;since 2003;;SC_ICP;DefaultParent=FE_AT;English=Ferrow Automation Sankt Pölten GmbH;French=Ferrow Automation Sankt Pölten GmbH;German=Ferrow Automation Sankt Pölten GmbH
AT804;EUR;Y;Y;N;SC_AT;AT;FE-1;since 1990;;SC_ICP;DefaultParent=FE_AT;English=Ferrow Machines Graz GmbH;French=Ferrow Machines Graz GmbH;German=Ferrow Machines Graz GmbH
AT805;EUR;Y;Y;N;SC_AT;AT;FE-2;;;SC_ICP;DefaultParent=FE_AT;English=Ferrow Service Graz GmbH;French=Ferrow Service Graz GmbH;German=Ferrow Service Graz GmbH
AT806;EUR;Y;Y;N;SC_AT;AT;FE-3;since 1994;;SC_ICP;DefaultParent=FE_AT;English=Ferrow Automation Graz GmbH;French=Ferrow Automation Graz GmbH;German=Ferrow Automation Graz GmbH
AT807;EUR;Y;Y;N;SC_AT;AT;FE-1;;;SC_ICP;DefaultParent=FE_AT;English=Ferrow Machines Linz GmbH;French=Ferrow Machines Linz GmbH;German=Ferrow Machines Linz GmbH
AT808;EUR;Y;Y;N;SC_AT;AT;FE-2;since 1995;;SC_ICP;DefaultParent=FE_AT;English=Ferrow Service Linz GmbH;French=Ferrow Service Linz GmbH;German=Ferrow Service Linz GmbH
AT809;EUR;Y;N;Y;SC_AT;AT;FE-3;;;;DefaultParent=FE_AT;English=Ferrow Automation Linz GmbH;French=Ferrow Automation Linz GmbH;German=Ferrow Automation Linz GmbH
AT809_HQ;EUR;Y;Y;N;SC_AT;AT;FE-3;;;SC_ICP;DefaultParent=AT809;English=Ferrow Automation Linz GmbH, head office;French=Ferrow Automation Linz GmbH, siège;German=Ferrow Automation Linz GmbH, Zentrale
AT809_P1;EUR;Y;Y;N;SC_AT;AT;FE-3;since 1975;;SC_ICP;DefaultParent=AT809;English=Ferrow Automation Linz GmbH, plant 1;French=Ferrow Automation Linz GmbH, usine 1;German=Ferrow Automation Linz GmbH, Werk 1
AT809_P2;EUR;Y;Y;N;SC_AT;AT;FE-3;since 2017;;SC_ICP;DefaultParent=AT809;English=Ferrow Automation Linz GmbH, plant 2;French=Ferrow Automation Linz GmbH, usine 2;German=Ferrow Automation Linz GmbH, Werk 2
AT809_WH;EUR;Y;N;N;SC_AT;AT;FE-3;since 2006;;;DefaultParent=AT809;English=Ferrow Automation Linz GmbH, warehouse;French=Ferrow Automation Linz GmbH, entrepôt;German=Ferrow Automation Linz GmbH, Lager
AT809_SO;EUR;Y;Y;N;SC_AT;AT;FE-3;since 1983;;SC_ICP;DefaultParent=AT809;English=Ferrow Automation Linz GmbH, sales office;French=Ferrow Automation Linz GmbH, bureau de vente;German=Ferrow Automation Linz GmbH, Verkaufsbüro
FE_IT;EUR;Y;N;Y;SC_IT;IT;FE;;IT801-JV;;DefaultParent=FERROW;English=Ferrow Engineering, Italy;French=Ferrow Engineering, Italie;German=Ferrow Engineering, Italien
IT801-JV;EUR;Y;Y;N;SC_IT;IT;FE-1;since 1979;;SC_ICP;DefaultParent=FE_IT;English=Ferrow Machines Forlì S.r.l. (50%);French=Ferrow Machines Forlì S.r.l. (50 %);German=Ferrow Machines Forlì S.r.l. (50 %)
IT802;EUR;Y;Y;N;SC_IT;IT;FE-2;since 1986;;SC_ICP;DefaultParent=FE_IT;English=Ferrow Service Forlì S.r.l.;French=Ferrow Service Forlì S.r.l.;German=Ferrow Service Forlì S.r.l.
IT803;EUR;Y;Y;N;SC_IT;IT;FE-3;;;SC_ICP;DefaultParent=FE_IT;English=Ferrow Automation Forlì S.r.l.;French=Ferrow Automation Forlì S.r.l.;German=Ferrow Automation Forlì S.r.l.
IT804;EUR;Y;Y;N;SC_IT;IT;FE-1;since 2005;;SC_ICP;DefaultParent=FE_IT;English=Ferrow Machines Bari S.r.l.;French=Ferrow Machines Bari S.r.l.;German=Ferrow Machines Bari S.r.l.
IT805;EUR;Y;N;Y;SC_IT;IT;FE-2;;;;DefaultParent=FE_IT;English=Ferrow Service Bari S.r.l.;French=Ferrow Service Bari S.r.l.;German=Ferrow Service Bari S.r.l.
IT805_HQ;EUR;Y;Y;N;SC_IT;IT;FE-2;since 2019;;SC_ICP;DefaultParent=IT805;English=Ferrow Service Bari S.r.l., head office;French=Ferrow Service Bari S.r.l., siège;German=Ferrow Service Bari S.r.l., Zentrale
IT805_P1;EUR;Y;Y;N;SC_IT;IT;FE-2;;;SC_ICP;DefaultParent=IT805;English=Ferrow Service Bari S.r.l., plant 1;French=Ferrow Service Bari S.r.l., usine 1;German=Ferrow Service Bari S.r.l., Werk 1
IT805_P2;EUR;Y;Y;N;SC_IT;IT;FE-2;since 2014;;SC_ICP;DefaultParent=IT805;English=Ferrow Service Bari S.r.l., plant 2;French=Ferrow Service Bari S.r.l., usine 2;German=Ferrow Service Bari S.r.l., Werk 2
IT805_WH;EUR;Y;N;N;SC_IT;IT;FE-2;since 1993;;;DefaultParent=IT805;English=Ferrow Service Bari S.r.l., warehouse;French=Ferrow Service Bari S.r.l., entrepôt;German=Ferrow Service Bari S.r.l., Lager
FE_CZ;CZK;Y;N;Y;SC_CZ;CZ;FE;;CZ801-JV;;DefaultParent=FERROW;English=Ferrow Engineering, Czechia;French=Ferrow Engineering, Tchéquie;German=Ferrow Engineering, Tschechien
CZ801-JV;CZK;Y;Y;N;SC_CZ;CZ;FE-1;;;SC_ICP;DefaultParent=FE_CZ;English=Ferrow Machines Ústí nad Labem s.r.o. (50%);French=Ferrow Machines Ústí nad Labem s.r.o. (50 %);German=Ferrow Machines Ústí nad Labem s.r.o. (50 %)
CZ802;CZK;Y;Y;N;SC_CZ;CZ;FE-2;;;SC_ICP;DefaultParent=FE_CZ;English=Ferrow Service Ústí nad Labem s.r.o.;French=Ferrow Service Ústí nad Labem s.r.o.;German=Ferrow Service Ústí nad Labem s.r.o.
CZ803;CZK;Y;Y;N;SC_CZ;CZ;FE-3;since 1990;;SC_ICP;DefaultParent=FE_CZ;English=Ferrow Automation Ústí nad Labem s.r.o.;French=Ferrow Automation Ústí nad Labem s.r.o.;German=Ferrow Automation Ústí nad Labem s.r.o.
CZ804;CZK;Y;Y;N;SC_CZ;CZ;FE-1;since 2003;;SC_ICP;DefaultParent=FE_CZ;English=Ferrow Machines Plzeň s.r.o.;French=Ferrow Machines Plzeň s.r.o.;German=Ferrow Machines Plzeň s.r.o.
FE_US;USD;Y;N;Y;SC_US;US;FE;;US801-JV;;DefaultParent=FERROW;English=Ferrow Engineering, United States;French=Ferrow Engineering, États-Unis;German=Ferrow Engineering, Vereinigte Staaten
US801-JV;USD;Y;Y;N;SC_US;US;FE-1;since 2021;;SC_ICP;DefaultParent=FE_US;English=Ferrow Machines Toledo Inc. (50%);French=Ferrow Machines Toledo Inc. (50 %);German=Ferrow Machines Toledo Inc. (50 %)
US802;USD;Y;Y;N;SC_US;US;FE-2;;;SC_ICP;DefaultParent=FE_US;English=Ferrow Service Toledo Inc.;French=Ferrow Service Toledo Inc.;German=Ferrow Service Toledo Inc.
US803;USD;Y;Y;N;SC_US;US;FE-3;since 1982;;SC_ICP;DefaultParent=FE_US;English=Ferrow Automation Toledo Inc.;French=Ferrow Automation Toledo Inc.;German=Ferrow Automation Toledo Inc.
US804;USD;Y;N;Y;SC_US;US;FE-1;;;;DefaultParent=FE_US;English=Ferrow Machines Reno Inc.;French=Ferrow Machines Reno Inc.;German=Ferrow Machines Reno Inc.
US804_HQ;USD;Y;Y;N;SC_US;US;FE-1;since 1978;;SC_ICP;DefaultParent=US804;English=Ferrow Machines Reno Inc., head office;French=Ferrow Machines Reno Inc., siège;German=Ferrow Machines Reno Inc., Zentrale
US804_P1;USD;Y;Y;N;SC_US;US;FE-1;since 2009;;SC_ICP;DefaultParent=US804;English=Ferrow Machines Reno Inc., plant 1;French=Ferrow Machines Reno Inc., usine 1;German=Ferrow Machines Reno Inc., Werk 1
US804_P2;USD;Y;Y;N;SC_US;US;FE-1;since 2015;;SC_ICP;DefaultParent=US804;English=Ferrow Machines Reno Inc., plant 2;French=Ferrow Machines Reno Inc., usine 2;German=Ferrow Machines Reno Inc., Werk 2
US804_WH;USD;Y;N;N;SC_US;US;FE-1;;;;DefaultParent=US804;English=Ferrow Machines Reno Inc., warehouse;French=Ferrow Machines Reno Inc., entrepôt;German=Ferrow Machines Reno Inc., Lager
US804_SO;USD;Y;Y;N;SC_US;US;FE-1;since 1985;;SC_ICP;DefaultParent=US804;English=Ferrow Machines Reno Inc., sales office;French=Ferrow Machines Reno Inc., bureau de vente;German=Ferrow Machines Reno Inc., Verkaufsbüro
US805;USD;Y;Y;N;SC_US;US;FE-2;since 2009;;SC_ICP;DefaultParent=FE_US;English=Ferrow Service Reno Inc.;French=Ferrow Service Reno Inc.;German=Ferrow Service Reno Inc.
US806;USD;Y;Y;N;SC_US;US;FE-3;since 1999;;SC_ICP;DefaultParent=FE_US;English=Ferrow Automation Reno Inc.;French=Ferrow Automation Reno Inc.;German=Ferrow Automation Reno Inc.
US807;USD;Y;Y;N;SC_US;US;FE-1;since 1989;;SC_ICP;DefaultParent=FE_US;English=Ferrow Machines Duluth Inc.;French=Ferrow Machines Duluth Inc.;German=Ferrow Machines Duluth Inc.
FE_SG;SGD;Y;N;Y;SC_SG;SG;FE;;SG801-JV;;DefaultParent=FERROW;English=Ferrow Engineering, Singapore;French=Ferrow Engineering, Singapour;German=Ferrow Engineering, Singapur
SG801-JV;SGD;Y;Y;N;SC_SG;SG;FE-1;since 1979;;SC_ICP;DefaultParent=FE_SG;English=Ferrow Machines Singapore Pte (50%);French=Ferrow Machines Singapore Pte (50 %);German=Ferrow Machines Singapore Pte (50 %)
SG802;SGD;Y;N;Y;SC_SG;SG;FE-2;;;;DefaultParent=FE_SG;English=Ferrow Service Singapore Pte;French=Ferrow Service Singapore Pte;German=Ferrow Service Singapore Pte
SG802_HQ;SGD;Y;Y;N;SC_SG;SG;FE-2;;;SC_ICP;DefaultParent=SG802;English=Ferrow Service Singapore Pte, head office;French=Ferrow Service Singapore Pte, siège;German=Ferrow Service Singapore Pte, Zentrale
SG802_P1;SGD;Y;Y;N;SC_SG;SG;FE-2;since 1995;;SC_ICP;DefaultParent=SG802;English=Ferrow Service Singapore Pte, plant 1;French=Ferrow Service Singapore Pte, usine 1;German=Ferrow Service Singapore Pte, Werk 1
SG802_P2;SGD;Y;Y;N;SC_SG;SG;FE-2;since 2005;;SC_ICP;DefaultParent=SG802;English=Ferrow Service Singapore Pte, plant 2;French=Ferrow Service Singapore Pte, usine 2;German=Ferrow Service Singapore Pte, Werk 2
SG803;SGD;Y;N;Y;SC_SG;SG;FE-3;;;;DefaultParent=FE_SG;English=Ferrow Automation Singapore Pte;French=Ferrow Automation Singapore Pte;German=Ferrow Automation Singapore Pte
SG803_HQ;SGD;Y;Y;N;SC_SG;SG;FE-3;since 1975;;SC_ICP;DefaultParent=SG803;English=Ferrow Automation Singapore Pte, head office;French=Ferrow Automation Singapore Pte, siège;German=Ferrow Automation Singapore Pte, Zentrale
SG803_P1;SGD;Y;Y;N;SC_SG;SG;FE-3;;;SC_ICP;DefaultParent=SG803;English=Ferrow Automation Singapore Pte, plant 1;French=Ferrow Automation Singapore Pte, usine 1;German=Ferrow Automation Singapore Pte, Werk 1
SG803_P2;SGD;Y;Y;N;SC_SG;SG;FE-3;since 1986;;SC_ICP;DefaultParent=SG803;English=Ferrow Automation Singapore Pte, plant 2;French=Ferrow Automation Singapore Pte, usine 2;German=Ferrow Automation Singapore Pte, Werk 2
SG803_WH;SGD;Y;N;N;SC_SG;SG;FE-3;since 2021;;;DefaultParent=SG803;English=Ferrow Automation Singapore Pte, warehouse;French=Ferrow Automation Singapore Pte, entrepôt;German=Ferrow Automation Singapore Pte, Lager
FE_JP;JPY;Y;N;Y;SC_JP;JP;FE;;JP801-JV;;DefaultParent=FERROW;English=Ferrow Engineering, Japan;French=Ferrow Engineering, Japon;German=Ferrow Engineering, Japan
JP801-JV;JPY;Y;Y;N;SC_JP;JP;FE-1;since 1979;;SC_ICP;DefaultParent=FE_JP;English=Ferrow Machines Kobe KK (50%);French=Ferrow Machines Kobe KK (50 %);German=Ferrow Machines Kobe KK (50 %)
JP802;JPY;Y;Y;N;SC_JP;JP;FE-2;since 2003;;SC_ICP;DefaultParent=FE_JP;English=Ferrow Service Kobe KK;French=Ferrow Service Kobe KK;German=Ferrow Service Kobe KK
JP803;JPY;Y;N;Y;SC_JP;JP;FE-3;;;;DefaultParent=FE_JP;English=Ferrow Automation Kobe KK;French=Ferrow Automation Kobe KK;German=Ferrow Automation Kobe KK
JP803_HQ;JPY;Y;Y;N;SC_JP;JP;FE-3;since 1991;;SC_ICP;DefaultParent=JP803;English=Ferrow Automation Kobe KK, head office;French=Ferrow Automation Kobe KK, siège;German=Ferrow Automation Kobe KK, Zentrale
JP803_P1;JPY;Y;Y;N;SC_JP;JP;FE-3;;;SC_ICP;DefaultParent=JP803;English=Ferrow Automation Kobe KK, plant 1;French=Ferrow Automation Kobe KK, usine 1;German=Ferrow Automation Kobe KK, Werk 1
JP803_P2;JPY;Y;Y;N;SC_JP;JP;FE-3;since 2002;;SC_ICP;DefaultParent=JP803;English=Ferrow Automation Kobe KK, plant 2;French=Ferrow Automation Kobe KK, usine 2;German=Ferrow Automation Kobe KK, Werk 2
JP803_WH;JPY;Y;N;N;SC_JP;JP;FE-3;since 2021;;;DefaultParent=JP803;English=Ferrow Automation Kobe KK, warehouse;French=Ferrow Automation Kobe KK, entrepôt;German=Ferrow Automation Kobe KK, Lager
JP804;JPY;Y;Y;N;SC_JP;JP;FE-1;;;SC_ICP;DefaultParent=FE_JP;English=Ferrow Machines Sendai KK;French=Ferrow Machines Sendai KK;German=Ferrow Machines Sendai KK
JP805;JPY;Y;Y;N;SC_JP;JP;FE-2;since 2022;;SC_ICP;DefaultParent=FE_JP;English=Ferrow Service Sendai KK;French=Ferrow Service Sendai KK;German=Ferrow Service Sendai KK
FE_GB;GBP;Y;N;Y;SC_GB;GB;FE;;GB801-JV;;DefaultParent=FERROW;English=Ferrow Engineering, United Kingdom;French=Ferrow Engineering, Royaume-Uni;German=Ferrow Engineering, Vereinigtes Königreich
GB801-JV;GBP;Y;Y;N;SC_GB;GB;FE-1;since 1977;;SC_ICP;DefaultParent=FE_GB;English=Ferrow Machines Bristol Ltd (50%);French=Ferrow Machines Bristol Ltd (50 %);German=Ferrow Machines Bristol Ltd (50 %)
GB802;GBP;Y;Y;N;SC_GB;GB;FE-2;;;SC_ICP;DefaultParent=FE_GB;English=Ferrow Service Bristol Ltd;French=Ferrow Service Bristol Ltd;German=Ferrow Service Bristol Ltd
GB803;GBP;Y;Y;N;SC_GB;GB;FE-3;since 2022;;SC_ICP;DefaultParent=FE_GB;English=Ferrow Automation Bristol Ltd;French=Ferrow Automation Bristol Ltd;German=Ferrow Automation Bristol Ltd
GB804;GBP;Y;Y;N;SC_GB;GB;FE-1;since 2019;;SC_ICP;DefaultParent=FE_GB;English=Ferrow Machines Cardiff Ltd;French=Ferrow Machines Cardiff Ltd;German=Ferrow Machines Cardiff Ltd
GB805;GBP;Y;Y;N;SC_GB;GB;FE-2;since 2017;;SC_ICP;DefaultParent=FE_GB;English=Ferrow Service Cardiff Ltd;French=Ferrow Service Cardiff Ltd;German=Ferrow Service Cardiff Ltd
GB806;GBP;Y;Y;N;SC_GB;GB;FE-3;since 2007;;SC_ICP;DefaultParent=FE_GB;English=Ferrow Automation Cardiff Ltd;French=Ferrow Automation Cardiff Ltd;German=Ferrow Automation Cardiff Ltd
FE_SE;SEK;Y;N;Y;SC_SE;SE;FE;;SE801-JV;;DefaultParent=FERROW;English=Ferrow Engineering, Sweden;French=Ferrow Engineering, Suède;German=Ferrow Engineering, Schweden
SE801-JV;SEK;Y;Y;N;SC_SE;SE;FE-1;;;SC_ICP;DefaultParent=FE_SE;English=Ferrow Machines Växjö AB (50%);French=Ferrow Machines Växjö AB (50 %);German=Ferrow Machines Växjö AB (50 %)
SE802;SEK;Y;Y;N;SC_SE;SE;FE-2;since 1993;;SC_ICP;DefaultParent=FE_SE;English=Ferrow Service Växjö AB;French=Ferrow Service Växjö AB;German=Ferrow Service Växjö AB
SE803;SEK;Y;Y;N;SC_SE;SE;FE-3;since 1979;;SC_ICP;DefaultParent=FE_SE;English=Ferrow Automation Växjö AB;French=Ferrow Automation Växjö AB;German=Ferrow Automation Växjö AB
SE804;SEK;Y;Y;N;SC_SE;SE;FE-1;since 1982;;SC_ICP;DefaultParent=FE_SE;English=Ferrow Machines Örebro AB;French=Ferrow Machines Örebro AB;German=Ferrow Machines Örebro AB
SE805;SEK;Y;Y;N;SC_SE;SE;FE-2;;;SC_ICP;DefaultParent=FE_SE;English=Ferrow Service Örebro AB;French=Ferrow Service Örebro AB;German=Ferrow Service Örebro AB
SE806;SEK;Y;Y;N;SC_SE;SE;FE-3;since 2018;;SC_ICP;DefaultParent=FE_SE;English=Ferrow Automation Örebro AB;French=Ferrow Automation Örebro AB;German=Ferrow Automation Örebro AB
Management View;EUR;Y;N;Y;SC_CORP;;;;;;DefaultParent=#root;English=Management view;French=Vue de gestion;German=Führungssicht
FOOD;EUR;Y;N;Y;SC_CORP;;;;;;DefaultParent=Management View;English=Food;French=Alimentation;German=Lebensmittel
NF-1;EUR;Y;N;Y;SC_CORP;;NF-1;;;;DefaultParent=FOOD;English=Dairies;French=Laiteries;German=Molkereien
NF-2;EUR;Y;N;Y;SC_CORP;;NF-2;;;;DefaultParent=FOOD;English=Cheese;French=Fromageries;German=Käsereien
NF-3;EUR;Y;N;Y;SC_CORP;;NF-3;;;;DefaultParent=FOOD;English=Cold Stores;French=Entrepôts frigorifiques;German=Kühlhäuser
ADJ-FOOD;EUR;Y;N;N;SC_CORP;;ADJ;;;;DefaultParent=FOOD;English=Management adjustments, Food;French=Ajustements de gestion, Alimentation;German=Führungsanpassungen, Lebensmittel
MATERIALS;EUR;Y;N;Y;SC_CORP;;;;;;DefaultParent=Management View;English=Materials;French=Matériaux;German=Werkstoffe
HT-1;EUR;Y;N;Y;SC_CORP;;HT-1;;;;DefaultParent=MATERIALS;English=Sawmills;French=Scieries;German=Sägewerke
HT-2;EUR;Y;N;Y;SC_CORP;;HT-2;;;;DefaultParent=MATERIALS;English=Panels;French=Panneaux;German=Holzwerkstoffe
HT-3;EUR;Y;N;Y;SC_CORP;;HT-3;;;;DefaultParent=MATERIALS;English=Forests;French=Forêts;German=Forste
KG-1;EUR;Y;N;Y;SC_CORP;;KG-1;;;;DefaultParent=MATERIALS;English=Float Glass;French=Verre flotté;German=Floatglas
KG-2;EUR;Y;N;Y;SC_CORP;;KG-2;;;;DefaultParent=MATERIALS;English=Bottles;French=Bouteilles;German=Flaschen
KG-3;EUR;Y;N;Y;SC_CORP;;KG-3;;;;DefaultParent=MATERIALS;English=Windows;French=Fenêtres;German=Fenster
BP-1;EUR;Y;N;Y;SC_CORP;;BP-1;;;;DefaultParent=MATERIALS;English=Mills;French=Papeteries;German=Papierfabriken
BP-2;EUR;Y;N;Y;SC_CORP;;BP-2;;;;DefaultParent=MATERIALS;English=Packaging;French=Emballages;German=Verpackungen
BP-3;EUR;Y;N;Y;SC_CORP;;BP-3;;;;DefaultParent=MATERIALS;English=Recycling;French=Recyclage;German=Recycling
MP-1;EUR;Y;N;Y;SC_CORP;;MP-1;;;;DefaultParent=MATERIALS;English=Cement;French=Ciments;German=Zement
MP-2;EUR;Y;N;Y;SC_CORP;;MP-2;;;;DefaultParent=MATERIALS;English=Concrete;French=Bétons;German=Beton
MP-3;EUR;Y;N;Y;SC_CORP;;MP-3;;;;DefaultParent=MATERIALS;English=Quarries;French=Carrières;German=Steinbrüche
ADJ-MATERIALS;EUR;Y;N;N;SC_CORP;;ADJ;;;;DefaultParent=MATERIALS;English=Management adjustments, Materials;French=Ajustements de gestion, Matériaux;German=Führungsanpassungen, Werkstoffe
TRANSPORT;EUR;Y;N;Y;SC_CORP;;;;;;DefaultParent=Management View;English=Transport;French=Transport;German=Transport
TF-1;EUR;Y;N;Y;SC_CORP;;TF-1;;;;DefaultParent=TRANSPORT;English=Lines;French=Lignes;German=Linien
TF-2;EUR;Y;N;Y;SC_CORP;;TF-2;;;;DefaultParent=TRANSPORT;English=Ports;French=Ports;German=Häfen
TF-3;EUR;Y;N;Y;SC_CORP;;TF-3;;;;DefaultParent=TRANSPORT;English=Ships;French=Navires;German=Schiffe
ADJ-TRANSPORT;EUR;Y;N;N;SC_CORP;;ADJ;;;;DefaultParent=TRANSPORT;English=Management adjustments, Transport;French=Ajustements de gestion, Transport;German=Führungsanpassungen, Transport
SERVICES;EUR;Y;N;Y;SC_CORP;;;;;;DefaultParent=Management View;English=Energy and engineering;French=Énergie et ingénierie;German=Energie und Technik
CE-1;EUR;Y;N;Y;SC_CORP;;CE-1;;;;DefaultParent=SERVICES;English=Wind;French=Éolien;German=Windkraft
CE-2;EUR;Y;N;Y;SC_CORP;;CE-2;;;;DefaultParent=SERVICES;English=Heat;French=Chaleur;German=Wärme
CE-3;EUR;Y;N;Y;SC_CORP;;CE-3;;;;DefaultParent=SERVICES;English=Trading;French=Négoce;German=Handel
FE-1;EUR;Y;N;Y;SC_CORP;;FE-1;;;;DefaultParent=SERVICES;English=Machines;French=Machines;German=Maschinen
FE-2;EUR;Y;N;Y;SC_CORP;;FE-2;;;;DefaultParent=SERVICES;English=Service;French=Services;German=Service
FE-3;EUR;Y;N;Y;SC_CORP;;FE-3;;;;DefaultParent=SERVICES;English=Automation;French=Automatisation;German=Automation
ADJ-SERVICES;EUR;Y;N;N;SC_CORP;;ADJ;;;;DefaultParent=SERVICES;English=Management adjustments, Energy and engineering;French=Ajustements de gestion, Énergie et ingénierie;German=Führungsanpassungen, Energie und Technik
HEADOFFICE;EUR;Y;N;Y;SC_CORP;;;;;;DefaultParent=Management View;English=Head office;French=Siège;German=Zentrale
JV & associates;EUR;Y;N;Y;SC_CORP;;;;;;DefaultParent=Management View;English=Joint ventures, across the areas;French=Coentreprises, tous domaines;German=Gemeinschaftsunternehmen, alle Bereiche
GEO;EUR;Y;N;Y;SC_CORP;;;;;;DefaultParent=#root;English=Regions;French=Régions;German=Regionen
GEO_R1;EUR;Y;N;Y;SC_CORP;;;;;;DefaultParent=GEO;English=Northern Europe;French=Europe du Nord;German=Nordeuropa
GEO_GB;GBP;Y;N;Y;SC_GB;GB;;;;;DefaultParent=GEO_R1;English=United Kingdom;French=Royaume-Uni;German=Vereinigtes Königreich
GEO_IE;EUR;Y;N;Y;SC_IE;IE;;;;;DefaultParent=GEO_R1;English=Ireland;French=Irlande;German=Irland
GEO_SE;SEK;Y;N;Y;SC_SE;SE;;;;;DefaultParent=GEO_R1;English=Sweden;French=Suède;German=Schweden
GEO_NO;NOK;Y;N;Y;SC_NO;NO;;;;;DefaultParent=GEO_R1;English=Norway;French=Norvège;German=Norwegen
GEO_DK;DKK;Y;N;Y;SC_DK;DK;;;;;DefaultParent=GEO_R1;English=Denmark;French=Danemark;German=Dänemark
GEO_FI;EUR;Y;N;Y;SC_FI;FI;;;;;DefaultParent=GEO_R1;English=Finland;French=Finlande;German=Finnland
GEO_EE;EUR;Y;N;Y;SC_EE;EE;;;;;DefaultParent=GEO_R1;English=Estonia;French=Estonie;German=Estland
GEO_R2;EUR;Y;N;Y;SC_CORP;;;;;;DefaultParent=GEO;English=Western Europe;French=Europe de l'Ouest;German=Westeuropa
GEO_FR;EUR;Y;N;Y;SC_FR;FR;;;;;DefaultParent=GEO_R2;English=France;French=France;German=Frankreich
GEO_BE;EUR;Y;N;Y;SC_BE;BE;;;;;DefaultParent=GEO_R2;English=Belgium;French=Belgique;German=Belgien
GEO_NL;EUR;Y;N;Y;SC_NL;NL;;;;;DefaultParent=GEO_R2;English=Netherlands;French=Pays-Bas;German=Niederlande
GEO_DE;EUR;Y;N;Y;SC_DE;DE;;;;;DefaultParent=GEO_R2;English=Germany;French=Allemagne;German=Deutschland
GEO_AT;EUR;Y;N;Y;SC_AT;AT;;;;;DefaultParent=GEO_R2;English=Austria;French=Autriche;German=Österreich
GEO_CH;CHF;Y;N;Y;SC_CH;CH;;;;;DefaultParent=GEO_R2;English=Switzerland;French=Suisse;German=Schweiz
GEO_R3;EUR;Y;N;Y;SC_CORP;;;;;;DefaultParent=GEO;English=Southern Europe;French=Europe du Sud;German=Südeuropa
GEO_ES;EUR;Y;N;Y;SC_ES;ES;;;;;DefaultParent=GEO_R3;English=Spain;French=Espagne;German=Spanien
GEO_PT;EUR;Y;N;Y;SC_PT;PT;;;;;DefaultParent=GEO_R3;English=Portugal;French=Portugal;German=Portugal
GEO_IT;EUR;Y;N;Y;SC_IT;IT;;;;;DefaultParent=GEO_R3;English=Italy;French=Italie;German=Italien
GEO_GR;EUR;Y;N;Y;SC_GR;GR;;;;;DefaultParent=GEO_R3;English=Greece;French=Grèce;German=Griechenland
GEO_R4;EUR;Y;N;Y;SC_CORP;;;;;;DefaultParent=GEO;English=Central Europe;French=Europe centrale;German=Mitteleuropa
GEO_PL;PLN;Y;N;Y;SC_PL;PL;;;;;DefaultParent=GEO_R4;English=Poland;French=Pologne;German=Polen
GEO_CZ;CZK;Y;N;Y;SC_CZ;CZ;;;;;DefaultParent=GEO_R4;English=Czechia;French=Tchéquie;German=Tschechien
GEO_HU;HUF;Y;N;Y;SC_HU;HU;;;;;DefaultParent=GEO_R4;English=Hungary;French=Hongrie;German=Ungarn
GEO_RO;RON;Y;N;Y;SC_RO;RO;;;;;DefaultParent=GEO_R4;English=Romania;French=Roumanie;German=Rumänien
GEO_R5;EUR;Y;N;Y;SC_CORP;;;;;;DefaultParent=GEO;English=Americas;French=Amériques;German=Amerika
GEO_US;USD;Y;N;Y;SC_US;US;;;;;DefaultParent=GEO_R5;English=United States;French=États-Unis;German=Vereinigte Staaten
GEO_CA;CAD;Y;N;Y;SC_CA;CA;;;;;DefaultParent=GEO_R5;English=Canada;French=Canada;German=Kanada
GEO_MX;MXN;Y;N;Y;SC_MX;MX;;;;;DefaultParent=GEO_R5;English=Mexico;French=Mexique;German=Mexiko
GEO_BR;BRL;Y;N;Y;SC_BR;BR;;;;;DefaultParent=GEO_R5;English=Brazil;French=Brésil;German=Brasilien
GEO_R6;EUR;Y;N;Y;SC_CORP;;;;;;DefaultParent=GEO;English=Asia-Pacific;French=Asie-Pacifique;German=Asien-Pazifik
GEO_JP;JPY;Y;N;Y;SC_JP;JP;;;;;DefaultParent=GEO_R6;English=Japan;French=Japon;German=Japan
GEO_SG;SGD;Y;N;Y;SC_SG;SG;;;;;DefaultParent=GEO_R6;English=Singapore;French=Singapour;German=Singapur
GEO_AU;AUD;Y;N;Y;SC_AU;AU;;;;;DefaultParent=GEO_R6;English=Australia;French=Australie;German=Australien
GEO_R7;EUR;Y;N;Y;SC_CORP;;;;;;DefaultParent=GEO;English=Africa and Middle East;French=Afrique et Moyen-Orient;German=Afrika und Naher Osten
GEO_ZA;ZAR;Y;N;Y;SC_ZA;ZA;;;;;DefaultParent=GEO_R7;English=South Africa;French=Afrique du Sud;German=Südafrika
GEO_MA;MAD;Y;N;Y;SC_MA;MA;;;;;DefaultParent=GEO_R7;English=Morocco;French=Maroc;German=Marokko
IC-LIST;EUR;Y;N;Y;SC_ICP;;;;;;DefaultParent=#root;English=All intercompany partners;French=Tous les partenaires intragroupe;German=Alle Konzernpartner
!HIERARCHIES=Entity
;[None]
;ALDERBROOK
ALDERBROOK;HOLDCO
ALDERBROOK;FINCO
ALDERBROOK;RE-CO
ALDERBROOK;NORTHFELL
NORTHFELL;NF_HOLD
NORTHFELL;NF_GB
NF_GB;GB101
NF_GB;GB102
NF_GB;GB103
NF_GB;GB104
NF_GB;GB105
NORTHFELL;NF_IE
NF_IE;IE101
NF_IE;Baile's Farm
Baile's Farm;Baile's Farm_HQ
Baile's Farm;Baile's Farm_P1
Baile's Farm;Baile's Farm_P2
Baile's Farm;Baile's Farm_WH
NF_IE;IE103
NF_IE;IE104
NF_IE;IE105
NF_IE;IE106
NORTHFELL;NF_FR
NF_FR;FR101
NF_FR;L'Aubépine
L'Aubépine;L'Aubépine_HQ
L'Aubépine;L'Aubépine_P1
L'Aubépine;L'Aubépine_P2
L'Aubépine;L'Aubépine_WH
NF_FR;FR103
NF_FR;FR104
FR104;FR104_HQ
FR104;FR104_P1
FR104;FR104_P2
NORTHFELL;NF_BE
NF_BE;BE101
NF_BE;BE102
NF_BE;BE103
NF_BE;BE104
NF_BE;BE105
BE105;BE105_HQ
BE105;BE105_P1
BE105;BE105_P2
BE105;BE105_WH
BE105;BE105_SO
NORTHFELL;NF_NL
NF_NL;NL101
NF_NL;NL102
NF_NL;NL103
NF_NL;NL104
NF_NL;NL105
NORTHFELL;NF_DE
NF_DE;DE101
NF_DE;DE102
DE102;DE102_HQ
DE102;DE102_P1
DE102;DE102_P2
DE102;DE102_WH
NF_DE;DE103
NF_DE;DE104
NF_DE;DE105
NF_DE;DE106
DE106;DE106_HQ
DE106;DE106_P1
DE106;DE106_P2
NF_DE;DE107
DE107;DE107_HQ
DE107;DE107_P1
DE107;DE107_P2
NORTHFELL;NF_AT
NF_AT;AT101
NF_AT;AT102
NF_AT;AT103
NF_AT;AT104
NF_AT;AT105
NF_AT;AT106
NORTHFELL;NF_ES
NF_ES;ES101
NF_ES;ES102
NF_ES;ES103
NF_ES;ES104
NF_ES;ES105
NORTHFELL;NF_IT
NF_IT;IT101
NF_IT;IT102
NF_IT;IT103
NF_IT;IT104
IT104;IT104_HQ
IT104;IT104_P1
IT104;IT104_P2
NORTHFELL;NF_PL
NF_PL;PL101
NF_PL;PL102
NF_PL;PL103
NF_PL;PL104
NORTHFELL;NF_DK
NF_DK;DK101
NF_DK;DK102
NF_DK;DK103
NF_DK;DK104
NF_DK;DK105
NF_DK;DK106
NF_DK;DK107
NF_DK;DK108-JV
NORTHFELL;NF_SE
NF_SE;SE101
NF_SE;SE102
NF_SE;SE103
SE103;SE103_HQ
SE103;SE103_P1
SE103;SE103_P2
NF_SE;SE104
SE104;SE104_HQ
SE104;SE104_P1
SE104;SE104_P2
NF_SE;SE105
NORTHFELL;NF_US
NF_US;US101
NF_US;US102
NF_US;US103
NF_US;US104
NORTHFELL;NF_MA
NF_MA;MA101
NF_MA;MA102
NF_MA;MA103
NF_MA;MA104
NF_MA;MA105
ALDERBROOK;HOLLIN
HOLLIN;HT_HOLD
HOLLIN;HT_SE
HT_SE;SE201
HT_SE;SE202
HT_SE;SE203
HT_SE;Malmö Såg
HT_SE;SE205
HT_SE;SE206
HT_SE;SE207-JV
HOLLIN;HT_FI
HT_FI;FI201
HT_FI;FI202
FI202;FI202_HQ
FI202;FI202_P1
FI202;FI202_P2
FI202;FI202_WH
HT_FI;FI203
HT_FI;FI204
HT_FI;FI205
HT_FI;FI206
HOLLIN;HT_NO
HT_NO;NO201
HT_NO;NO202
HT_NO;NO203
HT_NO;NO204
HT_NO;NO205
HOLLIN;HT_EE
HT_EE;EE201
HT_EE;EE202
HT_EE;EE203
EE203;EE203_HQ
EE203;EE203_P1
EE203;EE203_P2
HT_EE;EE204
EE204;EE204_HQ
EE204;EE204_P1
EE204;EE204_P2
HT_EE;EE205
HT_EE;EE206
HT_EE;EE207-JV
HT_EE;EE208
HOLLIN;HT_DE
HT_DE;DE201
HT_DE;DE202
DE202;DE202_HQ
DE202;DE202_P1
DE202;DE202_P2
HT_DE;DE203
HT_DE;DE204
HT_DE;DE205
HOLLIN;HT_AT
HT_AT;AT201
HT_AT;AT202
HT_AT;AT203
HT_AT;AT204
HT_AT;AT205
HT_AT;AT206
HOLLIN;HT_PL
HT_PL;PL201
HT_PL;PL202
HT_PL;PL203
HT_PL;PL204
HT_PL;PL205
PL205;PL205_HQ
PL205;PL205_P1
PL205;PL205_P2
PL205;PL205_WH
HT_PL;PL206
HOLLIN;HT_CZ
HT_CZ;CZ201
HT_CZ;CZ202
HT_CZ;CZ203
HT_CZ;CZ204
CZ204;CZ204_HQ
CZ204;CZ204_P1
CZ204;CZ204_P2
CZ204;CZ204_WH
HT_CZ;CZ205
HOLLIN;HT_CA
HT_CA;CA201
HT_CA;CA202
HT_CA;CA203
HT_CA;CA204
HT_CA;CA205
HT_CA;CA206
HT_CA;CA207-JV
HT_CA;CA208
CA208;CA208_HQ
CA208;CA208_P1
CA208;CA208_P2
CA208;CA208_WH
HT_CA;CA209
HOLLIN;HT_US
HT_US;US201
HT_US;US202
HT_US;US203
HT_US;US204
US204;US204_HQ
US204;US204_P1
US204;US204_P2
HOLLIN;HT_RO
HT_RO;RO201
HT_RO;RO202
HT_RO;RO203
HT_RO;RO204
HT_RO;RO205
HT_RO;RO206
HT_RO;RO207-JV
HT_RO;RO208
RO208;RO208_HQ
RO208;RO208_P1
RO208;RO208_P2
RO208;RO208_WH
ALDERBROOK;KESTREL
KESTREL;KG_HOLD
KESTREL;KG_DE
KG_DE;DE301
KG_DE;Glashütte "Nord"
Glashütte "Nord";Glashütte "Nord"_HQ
Glashütte "Nord";Glashütte "Nord"_P1
Glashütte "Nord";Glashütte "Nord"_P2
KG_DE;DE303
KG_DE;DE304
DE304;DE304_HQ
DE304;DE304_P1
DE304;DE304_P2
KESTREL;KG_FR
KG_FR;FR301
KG_FR;FR302
FR302;FR302_HQ
FR302;FR302_P1
FR302;FR302_P2
KG_FR;FR303
KG_FR;Verrerie d'Angoulême
KG_FR;FR305
KESTREL;KG_BE
KG_BE;BE301
KG_BE;BE302
KG_BE;BE303
KG_BE;BE304
KESTREL;KG_GB
KG_GB;GB301
KG_GB;GB302
KG_GB;GB303
KG_GB;GB304
GB304;GB304_HQ
GB304;GB304_P1
GB304;GB304_P2
GB304;GB304_WH
GB304;GB304_SO
KG_GB;GB305
KG_GB;GB306-JV
KG_GB;GB307
KG_GB;GB308
KESTREL;KG_IT
KG_IT;IT301
KG_IT;IT302
KG_IT;IT303
KG_IT;IT304
KG_IT;IT305
KG_IT;IT306-JV
KG_IT;IT307
KG_IT;IT308
KG_IT;IT309
KESTREL;KG_ES
KG_ES;ES301
KG_ES;ES302
KG_ES;ES303
KG_ES;ES304
KESTREL;KG_PL
KG_PL;PL301
KG_PL;PL302
KG_PL;Huta 100%
KG_PL;PL304
KG_PL;PL305
KESTREL;KG_CZ
KG_CZ;CZ301
KG_CZ;CZ302
CZ302;CZ302_HQ
CZ302;CZ302_P1
CZ302;CZ302_P2
CZ302;CZ302_WH
CZ302;CZ302_SO
KG_CZ;CZ303
CZ303;CZ303_HQ
CZ303;CZ303_P1
CZ303;CZ303_P2
KG_CZ;CZ304
KG_CZ;CZ305
KG_CZ;CZ306-JV
KESTREL;KG_US
KG_US;US301
KG_US;US302
KG_US;US303
KG_US;US304
US304;US304_HQ
US304;US304_P1
US304;US304_P2
US304;US304_WH
KG_US;US305
KG_US;US306-JV
KG_US;US307
KG_US;US308
KG_US;US309
KESTREL;KG_MX
KG_MX;MX301
KG_MX;MX302
KG_MX;MX303
KG_MX;MX304
KESTREL;KG_BR
KG_BR;BR301
KG_BR;BR302
KG_BR;BR303
KG_BR;BR304
KG_BR;BR305
KG_BR;BR306-JV
KG_BR;BR307
KESTREL;KG_JP
KG_JP;JP301
KG_JP;JP302
KG_JP;JP303
KG_JP;JP304
KG_JP;JP305
KG_JP;JP306-JV
ALDERBROOK;BRIGHTWATER
BRIGHTWATER;BP_HOLD
BRIGHTWATER;BP_FI
BP_FI;Paperi Oy (Turku)
BP_FI;FI402
BP_FI;FI403
BP_FI;FI404
BRIGHTWATER;BP_SE
BP_SE;SE401
BP_SE;SE402
BP_SE;SE403
BP_SE;SE404
BP_SE;SE405-JV
BP_SE;SE406
BP_SE;SE407
BP_SE;SE408
BP_SE;SE409
BRIGHTWATER;BP_DE
BP_DE;DE401
BP_DE;DE402
DE402;DE402_HQ
DE402;DE402_P1
DE402;DE402_P2
DE402;DE402_WH
DE402;DE402_SO
BP_DE;DE403
DE403;DE403_HQ
DE403;DE403_P1
DE403;DE403_P2
DE403;DE403_WH
DE403;DE403_SO
BP_DE;DE404
BP_DE;DE405-JV
BP_DE;DE406
BP_DE;DE407
BRIGHTWATER;BP_NL
BP_NL;NL401
BP_NL;NL402
BP_NL;NL403
NL403;NL403_HQ
NL403;NL403_P1
NL403;NL403_P2
NL403;NL403_WH
BP_NL;NL404
BP_NL;NL405-JV
BP_NL;NL406
BP_NL;NL407
BP_NL;NL408
BP_NL;NL409
BRIGHTWATER;BP_FR
BP_FR;FR401
BP_FR;FR402
BP_FR;FR403
BP_FR;FR404
BRIGHTWATER;BP_PT
BP_PT;PT401
BP_PT;PT402
BP_PT;PT403
BP_PT;PT404
BP_PT;PT405-JV
BP_PT;PT406
BRIGHTWATER;BP_ES
BP_ES;ES401
BP_ES;ES402
BP_ES;ES403
BP_ES;ES404
ES404;ES404_HQ
ES404;ES404_P1
ES404;ES404_P2
ES404;ES404_WH
BP_ES;ES405-JV
BRIGHTWATER;BP_GB
BP_GB;GB401
BP_GB;GB402
BP_GB;GB403
BP_GB;GB404
BP_GB;GB405-JV
BP_GB;GB406
GB406;GB406_HQ
GB406;GB406_P1
GB406;GB406_P2
GB406;GB406_WH
GB406;GB406_SO
BP_GB;GB407
BRIGHTWATER;BP_CA
BP_CA;CA401
BP_CA;CA402
BP_CA;CA403
BP_CA;CA404
BP_CA;CA405-JV
BRIGHTWATER;BP_BR
BP_BR;BR401
BP_BR;BR402
BP_BR;BR403
BP_BR;BR404
ALDERBROOK;MARLPIT
MARLPIT;MP_HOLD
MARLPIT;MP_FR
MP_FR;FR501
MP_FR;FR502
MP_FR;FR503
MP_FR;FR504-JV
MP_FR;FR505
MP_FR;FR506
MP_FR;FR507
FR507;FR507_HQ
FR507;FR507_P1
FR507;FR507_P2
FR507;FR507_WH
MARLPIT;MP_BE
MP_BE;BE501
MP_BE;BE502
BE502;BE502_HQ
BE502;BE502_P1
BE502;BE502_P2
MP_BE;BE503
MP_BE;BE504-JV
MARLPIT;MP_CH
MP_CH;CH501
MP_CH;CH502
CH502;CH502_HQ
CH502;CH502_P1
CH502;CH502_P2
CH502;CH502_WH
MP_CH;CH503
MP_CH;CH504-JV
MARLPIT;MP_ES
MP_ES;ES501
MP_ES;Cementos del Sur & Cía
MP_ES;ES503
MP_ES;ES504-JV
MP_ES;ES505
MP_ES;ES506
MP_ES;ES507
MP_ES;ES508
MARLPIT;MP_GR
MP_GR;GR501
MP_GR;GR502
MP_GR;GR503
MP_GR;GR504-JV
MP_GR;GR505
GR505;GR505_HQ
GR505;GR505_P1
GR505;GR505_P2
GR505;GR505_WH
GR505;GR505_SO
MP_GR;GR506
MARLPIT;MP_RO
MP_RO;RO501
MP_RO;RO502
MP_RO;RO503
MP_RO;RO504-JV
MP_RO;RO505
MP_RO;RO506
MP_RO;RO507
MARLPIT;MP_HU
MP_HU;HU501
MP_HU;HU502
MP_HU;HU503
MP_HU;HU504-JV
MARLPIT;MP_MA
MP_MA;MA501
MP_MA;MA502
MP_MA;MA503
MP_MA;MA504-JV
MP_MA;MA505
MP_MA;MA506
MA506;MA506_HQ
MA506;MA506_P1
MA506;MA506_P2
MARLPIT;MP_ZA
MP_ZA;ZA501
MP_ZA;ZA502
ZA502;ZA502_HQ
ZA502;ZA502_P1
ZA502;ZA502_P2
ZA502;ZA502_WH
ZA502;ZA502_SO
MP_ZA;ZA503
MP_ZA;ZA504-JV
MARLPIT;MP_MX
MP_MX;MX501
MP_MX;MX502
MP_MX;MX503
MP_MX;MX504-JV
MP_MX;MX505
MP_MX;MX506
ALDERBROOK;CORVANE
CORVANE;CE_HOLD
CORVANE;CE_GB
CE_GB;GB601
CE_GB;GB602
CE_GB;GB603-JV
CE_GB;GB604
CE_GB;GB605
CE_GB;GB606
CORVANE;CE_DK
CE_DK;DK601
CE_DK;DK602
CE_DK;DK603-JV
CE_DK;DK604
CE_DK;DK605
CE_DK;DK606
CE_DK;DK607
CORVANE;CE_NO
CE_NO;NO601
CE_NO;NO602
NO602;NO602_HQ
NO602;NO602_P1
NO602;NO602_P2
NO602;NO602_WH
CE_NO;NO603-JV
CE_NO;NO604
NO604;NO604_HQ
NO604;NO604_P1
NO604;NO604_P2
NO604;NO604_WH
CE_NO;NO605
NO605;NO605_HQ
NO605;NO605_P1
NO605;NO605_P2
NO605;NO605_WH
NO605;NO605_SO
CE_NO;NO606
CORVANE;CE_DE
CE_DE;DE601
CE_DE;DE602
CE_DE;DE603-JV
CE_DE;0% CO2 Wärme
CE_DE;DE605
CE_DE;DE606
CORVANE;CE_NL
CE_NL;NL601
CE_NL;NL602
CE_NL;NL603-JV
CE_NL;NL604
CE_NL;NL605
NL605;NL605_HQ
NL605;NL605_P1
NL605;NL605_P2
NL605;NL605_WH
NL605;NL605_SO
CE_NL;NL606
CORVANE;CE_PT
CE_PT;PT601
CE_PT;PT602
PT602;PT602_HQ
PT602;PT602_P1
PT602;PT602_P2
CE_PT;PT603-JV
CE_PT;PT604
CE_PT;PT605
CE_PT;PT606
CE_PT;PT607
CORVANE;CE_IT
CE_IT;IT601
CE_IT;IT602
CE_IT;IT603-JV
CE_IT;IT604
CE_IT;IT605
CE_IT;IT606
CE_IT;IT607
CORVANE;CE_PL
CE_PL;PL601
CE_PL;PL602
CE_PL;PL603-JV
CE_PL;PL604
CE_PL;PL605
CE_PL;PL606
PL606;PL606_HQ
PL606;PL606_P1
PL606;PL606_P2
PL606;PL606_WH
CE_PL;PL607
CORVANE;CE_AU
CE_AU;AU601
CE_AU;AU602
CE_AU;AU603-JV
CE_AU;AU604
CE_AU;AU605
ALDERBROOK;TIDEWELL
TIDEWELL;TF_HOLD
TIDEWELL;TF_GB
TF_GB;Tidewell-Ferries UK
TF_GB;GB702-JV
TF_GB;GB703
TF_GB;GB704
TF_GB;GB705
TF_GB;GB706
TF_GB;GB707
GB707;GB707_HQ
GB707;GB707_P1
GB707;GB707_P2
TF_GB;GB708
TIDEWELL;TF_IE
TF_IE;IE701
TF_IE;IE702-JV
TF_IE;IE703
TF_IE;IE704
IE704;IE704_HQ
IE704;IE704_P1
IE704;IE704_P2
TF_IE;IE705
TF_IE;IE706
TF_IE;IE707
TIDEWELL;TF_SE
TF_SE;SE701
TF_SE;SE702-JV
TF_SE;SE703
TF_SE;SE704
TF_SE;SE705
TF_SE;SE706
TF_SE;SE707
TF_SE;SE708
TIDEWELL;TF_DK
TF_DK;DK701
TF_DK;DK702-JV
TF_DK;DK703
DK703;DK703_HQ
DK703;DK703_P1
DK703;DK703_P2
TF_DK;DK704
TF_DK;DK705
TF_DK;DK706
TF_DK;DK707
TF_DK;DK708
TF_DK;DK709
TIDEWELL;TF_FI
TF_FI;FI701
TF_FI;FI702-JV
TF_FI;FI703
TF_FI;FI704
TF_FI;FI705
TF_FI;FI706
TF_FI;FI707
TF_FI;FI708
TF_FI;FI709
TIDEWELL;TF_EE
TF_EE;"Baltic" Lines
TF_EE;EE702-JV
TF_EE;EE703
TF_EE;EE704
TF_EE;EE705
TF_EE;EE706
TF_EE;EE707
EE707;EE707_HQ
EE707;EE707_P1
EE707;EE707_P2
TF_EE;EE708
TF_EE;EE709
TIDEWELL;TF_DE
TF_DE;DE701
TF_DE;DE702-JV
TF_DE;DE703
TF_DE;DE704
DE704;DE704_HQ
DE704;DE704_P1
DE704;DE704_P2
DE704;DE704_WH
DE704;DE704_SO
TF_DE;DE705
TF_DE;DE706
TIDEWELL;TF_NL
TF_NL;NL701
TF_NL;NL702-JV
TF_NL;NL703
TF_NL;NL704
TIDEWELL;TF_GR
TF_GR;GR701
TF_GR;GR702-JV
TF_GR;GR703
TF_GR;GR704
TIDEWELL;TF_ES
TF_ES;ES701
TF_ES;ES702-JV
TF_ES;ES703
TF_ES;ES704
TF_ES;ES705
TF_ES;ES706
TF_ES;ES707
ES707;ES707_HQ
ES707;ES707_P1
ES707;ES707_P2
ES707;ES707_WH
ES707;ES707_SO
TF_ES;ES708
TIDEWELL;TF_MA
TF_MA;MA701
TF_MA;MA702-JV
TF_MA;MA703
TF_MA;MA704
TF_MA;MA705
TF_MA;MA706
ALDERBROOK;FERROW
FERROW;FE_HOLD
FERROW;FE_DE
FE_DE;DE801-JV
FE_DE;DE802
DE802;DE802_HQ
DE802;DE802_P1
DE802;DE802_P2
FE_DE;DE803
DE803;DE803_HQ
DE803;DE803_P1
DE803;DE803_P2
FE_DE;DE804
FE_DE;DE805
FE_DE;DE806
FE_DE;DE807
DE807;DE807_HQ
DE807;DE807_P1
DE807;DE807_P2
DE807;DE807_WH
FE_DE;DE808
DE808;DE808_HQ
DE808;DE808_P1
DE808;DE808_P2
DE808;DE808_WH
FERROW;FE_CH
FE_CH;CH801-JV
FE_CH;Maschinen-Service Zürich
FE_CH;CH803
FE_CH;CH804
FE_CH;CH805
FE_CH;CH806
FERROW;FE_AT
FE_AT;AT801-JV
FE_AT;AT802
FE_AT;AT803
FE_AT;AT804
FE_AT;AT805
FE_AT;AT806
FE_AT;AT807
FE_AT;AT808
FE_AT;AT809
AT809;AT809_HQ
AT809;AT809_P1
AT809;AT809_P2
AT809;AT809_WH
AT809;AT809_SO
FERROW;FE_IT
FE_IT;IT801-JV
FE_IT;IT802
FE_IT;IT803
FE_IT;IT804
FE_IT;IT805
IT805;IT805_HQ
IT805;IT805_P1
IT805;IT805_P2
IT805;IT805_WH
FERROW;FE_CZ
FE_CZ;CZ801-JV
FE_CZ;CZ802
FE_CZ;CZ803
FE_CZ;CZ804
FERROW;FE_US
FE_US;US801-JV
FE_US;US802
FE_US;US803
FE_US;US804
US804;US804_HQ
US804;US804_P1
US804;US804_P2
US804;US804_WH
US804;US804_SO
FE_US;US805
FE_US;US806
FE_US;US807
FERROW;FE_SG
FE_SG;SG801-JV
FE_SG;SG802
SG802;SG802_HQ
SG802;SG802_P1
SG802;SG802_P2
FE_SG;SG803
SG803;SG803_HQ
SG803;SG803_P1
SG803;SG803_P2
SG803;SG803_WH
FERROW;FE_JP
FE_JP;JP801-JV
FE_JP;JP802
FE_JP;JP803
JP803;JP803_HQ
JP803;JP803_P1
JP803;JP803_P2
JP803;JP803_WH
FE_JP;JP804
FE_JP;JP805
FERROW;FE_GB
FE_GB;GB801-JV
FE_GB;GB802
FE_GB;GB803
FE_GB;GB804
FE_GB;GB805
FE_GB;GB806
FERROW;FE_SE
FE_SE;SE801-JV
FE_SE;SE802
FE_SE;SE803
FE_SE;SE804
FE_SE;SE805
FE_SE;SE806
;Management View
Management View;FOOD
FOOD;NF-1
NF-1;GB101
NF-1;GB104
NF-1;IE101
NF-1;IE104
NF-1;FR101
NF-1;FR104
NF-1;BE101
NF-1;BE104
NF-1;NL101
NF-1;NL104
NF-1;DE101
NF-1;DE104
NF-1;DE107
NF-1;AT101
NF-1;AT104
NF-1;ES101
NF-1;ES104
NF-1;IT101
NF-1;IT104
NF-1;PL101
NF-1;PL104
NF-1;DK101
NF-1;DK104
NF-1;DK107
NF-1;SE101
NF-1;SE104
NF-1;US101
NF-1;US104
NF-1;MA101
NF-1;MA104
FOOD;NF-2
NF-2;GB102
NF-2;GB105
NF-2;Baile's Farm
NF-2;IE105
NF-2;L'Aubépine
NF-2;BE102
NF-2;BE105
NF-2;NL102
NF-2;NL105
NF-2;DE102
NF-2;DE105
NF-2;AT102
NF-2;AT105
NF-2;ES102
NF-2;ES105
NF-2;IT102
NF-2;PL102
NF-2;DK102
NF-2;DK105
NF-2;DK108-JV
NF-2;SE102
NF-2;SE105
NF-2;US102
NF-2;MA102
NF-2;MA105
FOOD;NF-3
NF-3;GB103
NF-3;IE103
NF-3;IE106
NF-3;FR103
NF-3;BE103
NF-3;NL103
NF-3;DE103
NF-3;DE106
NF-3;AT103
NF-3;AT106
NF-3;ES103
NF-3;IT103
NF-3;PL103
NF-3;DK103
NF-3;DK106
NF-3;SE103
NF-3;US103
NF-3;MA103
FOOD;ADJ-FOOD
Management View;MATERIALS
MATERIALS;HT-1
HT-1;SE201
HT-1;Malmö Såg
HT-1;SE207-JV
HT-1;FI201
HT-1;FI204
HT-1;NO201
HT-1;NO204
HT-1;EE201
HT-1;EE204
HT-1;EE207-JV
HT-1;DE201
HT-1;DE204
HT-1;AT201
HT-1;AT204
HT-1;PL201
HT-1;PL204
HT-1;CZ201
HT-1;CZ204
HT-1;CA201
HT-1;CA204
HT-1;CA207-JV
HT-1;US201
HT-1;US204
HT-1;RO201
HT-1;RO204
HT-1;RO207-JV
MATERIALS;HT-2
HT-2;SE202
HT-2;SE205
HT-2;FI202
HT-2;FI205
HT-2;NO202
HT-2;NO205
HT-2;EE202
HT-2;EE205
HT-2;EE208
HT-2;DE202
HT-2;DE205
HT-2;AT202
HT-2;AT205
HT-2;PL202
HT-2;PL205
HT-2;CZ202
HT-2;CZ205
HT-2;CA202
HT-2;CA205
HT-2;CA208
HT-2;US202
HT-2;RO202
HT-2;RO205
HT-2;RO208
MATERIALS;HT-3
HT-3;SE203
HT-3;SE206
HT-3;FI203
HT-3;FI206
HT-3;NO203
HT-3;EE203
HT-3;EE206
HT-3;DE203
HT-3;AT203
HT-3;AT206
HT-3;PL203
HT-3;PL206
HT-3;CZ203
HT-3;CA203
HT-3;CA206
HT-3;CA209
HT-3;US203
HT-3;RO203
HT-3;RO206
MATERIALS;KG-1
KG-1;DE301
KG-1;DE304
KG-1;FR301
KG-1;Verrerie d'Angoulême
KG-1;BE301
KG-1;BE304
KG-1;GB301
KG-1;GB304
KG-1;GB307
KG-1;IT301
KG-1;IT304
KG-1;IT307
KG-1;ES301
KG-1;ES304
KG-1;PL301
KG-1;PL304
KG-1;CZ301
KG-1;CZ304
KG-1;US301
KG-1;US304
KG-1;US307
KG-1;MX301
KG-1;MX304
KG-1;BR301
KG-1;BR304
KG-1;BR307
KG-1;JP301
KG-1;JP304
MATERIALS;KG-2
KG-2;Glashütte "Nord"
KG-2;FR302
KG-2;FR305
KG-2;BE302
KG-2;GB302
KG-2;GB305
KG-2;GB308
KG-2;IT302
KG-2;IT305
KG-2;IT308
KG-2;ES302
KG-2;PL302
KG-2;PL305
KG-2;CZ302
KG-2;CZ305
KG-2;US302
KG-2;US305
KG-2;US308
KG-2;MX302
KG-2;BR302
KG-2;BR305
KG-2;JP302
KG-2;JP305
MATERIALS;KG-3
KG-3;DE303
KG-3;FR303
KG-3;BE303
KG-3;GB303
KG-3;GB306-JV
KG-3;IT303
KG-3;IT306-JV
KG-3;IT309
KG-3;ES303
KG-3;Huta 100%
KG-3;CZ303
KG-3;CZ306-JV
KG-3;US303
KG-3;US306-JV
KG-3;US309
KG-3;MX303
KG-3;BR303
KG-3;BR306-JV
KG-3;JP303
KG-3;JP306-JV
MATERIALS;BP-1
BP-1;Paperi Oy (Turku)
BP-1;FI404
BP-1;SE401
BP-1;SE404
BP-1;SE407
BP-1;DE401
BP-1;DE404
BP-1;DE407
BP-1;NL401
BP-1;NL404
BP-1;NL407
BP-1;FR401
BP-1;FR404
BP-1;PT401
BP-1;PT404
BP-1;ES401
BP-1;ES404
BP-1;GB401
BP-1;GB404
BP-1;GB407
BP-1;CA401
BP-1;CA404
BP-1;BR401
BP-1;BR404
MATERIALS;BP-2
BP-2;FI402
BP-2;SE402
BP-2;SE405-JV
BP-2;SE408
BP-2;DE402
BP-2;DE405-JV
BP-2;NL402
BP-2;NL405-JV
BP-2;NL408
BP-2;FR402
BP-2;PT402
BP-2;PT405-JV
BP-2;ES402
BP-2;ES405-JV
BP-2;GB402
BP-2;GB405-JV
BP-2;CA402
BP-2;CA405-JV
BP-2;BR402
MATERIALS;BP-3
BP-3;FI403
BP-3;SE403
BP-3;SE406
BP-3;SE409
BP-3;DE403
BP-3;DE406
BP-3;NL403
BP-3;NL406
BP-3;NL409
BP-3;FR403
BP-3;PT403
BP-3;PT406
BP-3;ES403
BP-3;GB403
BP-3;GB406
BP-3;CA403
BP-3;BR403
MATERIALS;MP-1
MP-1;FR501
MP-1;FR504-JV
MP-1;FR507
MP-1;BE501
MP-1;BE504-JV
MP-1;CH501
MP-1;CH504-JV
MP-1;ES501
MP-1;ES504-JV
MP-1;ES507
MP-1;GR501
MP-1;GR504-JV
MP-1;RO501
MP-1;RO504-JV
MP-1;RO507
MP-1;HU501
MP-1;HU504-JV
MP-1;MA501
MP-1;MA504-JV
MP-1;ZA501
MP-1;ZA504-JV
MP-1;MX501
MP-1;MX504-JV
MATERIALS;MP-2
MP-2;FR502
MP-2;FR505
MP-2;BE502
MP-2;CH502
MP-2;Cementos del Sur & Cía
MP-2;ES505
MP-2;ES508
MP-2;GR502
MP-2;GR505
MP-2;RO502
MP-2;RO505
MP-2;HU502
MP-2;MA502
MP-2;MA505
MP-2;ZA502
MP-2;MX502
MP-2;MX505
MATERIALS;MP-3
MP-3;FR503
MP-3;FR506
MP-3;BE503
MP-3;CH503
MP-3;ES503
MP-3;ES506
MP-3;GR503
MP-3;GR506
MP-3;RO503
MP-3;RO506
MP-3;HU503
MP-3;MA503
MP-3;MA506
MP-3;ZA503
MP-3;MX503
MP-3;MX506
MATERIALS;ADJ-MATERIALS
Management View;TRANSPORT
TRANSPORT;TF-1
TF-1;Tidewell-Ferries UK
TF-1;GB704
TF-1;GB707
TF-1;IE701
TF-1;IE704
TF-1;IE707
TF-1;SE701
TF-1;SE704
TF-1;SE707
TF-1;DK701
TF-1;DK704
TF-1;DK707
TF-1;FI701
TF-1;FI704
TF-1;FI707
TF-1;"Baltic" Lines
TF-1;EE704
TF-1;EE707
TF-1;DE701
TF-1;DE704
TF-1;NL701
TF-1;NL704
TF-1;GR701
TF-1;GR704
TF-1;ES701
TF-1;ES704
TF-1;ES707
TF-1;MA701
TF-1;MA704
TRANSPORT;TF-2
TF-2;GB702-JV
TF-2;GB705
TF-2;GB708
TF-2;IE702-JV
TF-2;IE705
TF-2;SE702-JV
TF-2;SE705
TF-2;SE708
TF-2;DK702-JV
TF-2;DK705
TF-2;DK708
TF-2;FI702-JV
TF-2;FI705
TF-2;FI708
TF-2;EE702-JV
TF-2;EE705
TF-2;EE708
TF-2;DE702-JV
TF-2;DE705
TF-2;NL702-JV
TF-2;GR702-JV
TF-2;ES702-JV
TF-2;ES705
TF-2;ES708
TF-2;MA702-JV
TF-2;MA705
TRANSPORT;TF-3
TF-3;GB703
TF-3;GB706
TF-3;IE703
TF-3;IE706
TF-3;SE703
TF-3;SE706
TF-3;DK703
TF-3;DK706
TF-3;DK709
TF-3;FI703
TF-3;FI706
TF-3;FI709
TF-3;EE703
TF-3;EE706
TF-3;EE709
TF-3;DE703
TF-3;DE706
TF-3;NL703
TF-3;GR703
TF-3;ES703
TF-3;ES706
TF-3;MA703
TF-3;MA706
TRANSPORT;ADJ-TRANSPORT
Management View;SERVICES
SERVICES;CE-1
CE-1;GB601
CE-1;GB604
CE-1;DK601
CE-1;DK604
CE-1;DK607
CE-1;NO601
CE-1;NO604
CE-1;DE601
CE-1;0% CO2 Wärme
CE-1;NL601
CE-1;NL604
CE-1;PT601
CE-1;PT604
CE-1;PT607
CE-1;IT601
CE-1;IT604
CE-1;IT607
CE-1;PL601
CE-1;PL604
CE-1;PL607
CE-1;AU601
CE-1;AU604
SERVICES;CE-2
CE-2;GB602
CE-2;GB605
CE-2;DK602
CE-2;DK605
CE-2;NO602
CE-2;NO605
CE-2;DE602
CE-2;DE605
CE-2;NL602
CE-2;NL605
CE-2;PT602
CE-2;PT605
CE-2;IT602
CE-2;IT605
CE-2;PL602
CE-2;PL605
CE-2;AU602
CE-2;AU605
SERVICES;CE-3
CE-3;GB603-JV
CE-3;GB606
CE-3;DK603-JV
CE-3;DK606
CE-3;NO603-JV
CE-3;NO606
CE-3;DE603-JV
CE-3;DE606
CE-3;NL603-JV
CE-3;NL606
CE-3;PT603-JV
CE-3;PT606
CE-3;IT603-JV
CE-3;IT606
CE-3;PL603-JV
CE-3;PL606
CE-3;AU603-JV
SERVICES;FE-1
FE-1;DE801-JV
FE-1;DE804
FE-1;DE807
FE-1;CH801-JV
FE-1;CH804
FE-1;AT801-JV
FE-1;AT804
FE-1;AT807
FE-1;IT801-JV
FE-1;IT804
FE-1;CZ801-JV
FE-1;CZ804
FE-1;US801-JV
FE-1;US804
FE-1;US807
FE-1;SG801-JV
FE-1;JP801-JV
FE-1;JP804
FE-1;GB801-JV
FE-1;GB804
FE-1;SE801-JV
FE-1;SE804
SERVICES;FE-2
FE-2;DE802
FE-2;DE805
FE-2;DE808
FE-2;Maschinen-Service Zürich
FE-2;CH805
FE-2;AT802
FE-2;AT805
FE-2;AT808
FE-2;IT802
FE-2;IT805
FE-2;CZ802
FE-2;US802
FE-2;US805
FE-2;SG802
FE-2;JP802
FE-2;JP805
FE-2;GB802
FE-2;GB805
FE-2;SE802
FE-2;SE805
SERVICES;FE-3
FE-3;DE803
FE-3;DE806
FE-3;CH803
FE-3;CH806
FE-3;AT803
FE-3;AT806
FE-3;AT809
FE-3;IT803
FE-3;CZ803
FE-3;US803
FE-3;US806
FE-3;SG803
FE-3;JP803
FE-3;GB803
FE-3;GB806
FE-3;SE803
FE-3;SE806
SERVICES;ADJ-SERVICES
Management View;HEADOFFICE
HEADOFFICE;HOLDCO
HEADOFFICE;FINCO
HEADOFFICE;RE-CO
HEADOFFICE;NF_HOLD
HEADOFFICE;HT_HOLD
HEADOFFICE;KG_HOLD
HEADOFFICE;BP_HOLD
HEADOFFICE;MP_HOLD
HEADOFFICE;CE_HOLD
HEADOFFICE;TF_HOLD
HEADOFFICE;FE_HOLD
Management View;JV & associates
JV & associates;DK108-JV
JV & associates;SE207-JV
JV & associates;EE207-JV
JV & associates;CA207-JV
JV & associates;RO207-JV
JV & associates;GB306-JV
JV & associates;IT306-JV
JV & associates;CZ306-JV
JV & associates;US306-JV
JV & associates;BR306-JV
JV & associates;JP306-JV
JV & associates;SE405-JV
JV & associates;DE405-JV
JV & associates;NL405-JV
JV & associates;PT405-JV
JV & associates;ES405-JV
JV & associates;GB405-JV
JV & associates;CA405-JV
JV & associates;FR504-JV
JV & associates;BE504-JV
JV & associates;CH504-JV
JV & associates;ES504-JV
JV & associates;GR504-JV
JV & associates;RO504-JV
JV & associates;HU504-JV
JV & associates;MA504-JV
JV & associates;ZA504-JV
JV & associates;MX504-JV
JV & associates;GB603-JV
JV & associates;DK603-JV
JV & associates;NO603-JV
JV & associates;DE603-JV
JV & associates;NL603-JV
JV & associates;PT603-JV
JV & associates;IT603-JV
JV & associates;PL603-JV
JV & associates;AU603-JV
JV & associates;GB702-JV
JV & associates;IE702-JV
JV & associates;SE702-JV
JV & associates;DK702-JV
JV & associates;FI702-JV
JV & associates;EE702-JV
JV & associates;DE702-JV
JV & associates;NL702-JV
JV & associates;GR702-JV
JV & associates;ES702-JV
JV & associates;MA702-JV
JV & associates;DE801-JV
JV & associates;CH801-JV
JV & associates;AT801-JV
JV & associates;IT801-JV
JV & associates;CZ801-JV
JV & associates;US801-JV
JV & associates;SG801-JV
JV & associates;JP801-JV
JV & associates;GB801-JV
JV & associates;SE801-JV
;GEO
GEO;GEO_R1
GEO_R1;GEO_GB
GEO_GB;NF_GB
GEO_GB;KG_GB
GEO_GB;BP_GB
GEO_GB;CE_GB
GEO_GB;TF_GB
GEO_GB;FE_GB
GEO_R1;GEO_IE
GEO_IE;NF_IE
GEO_IE;TF_IE
GEO_R1;GEO_SE
GEO_SE;NF_SE
GEO_SE;HT_SE
GEO_SE;BP_SE
GEO_SE;TF_SE
GEO_SE;FE_SE
GEO_R1;GEO_NO
GEO_NO;HT_NO
GEO_NO;CE_NO
GEO_R1;GEO_DK
GEO_DK;NF_DK
GEO_DK;CE_DK
GEO_DK;TF_DK
GEO_R1;GEO_FI
GEO_FI;HT_FI
GEO_FI;BP_FI
GEO_FI;TF_FI
GEO_R1;GEO_EE
GEO_EE;HT_EE
GEO_EE;TF_EE
GEO;GEO_R2
GEO_R2;GEO_FR
GEO_FR;NF_FR
GEO_FR;KG_FR
GEO_FR;BP_FR
GEO_FR;MP_FR
GEO_R2;GEO_BE
GEO_BE;NF_BE
GEO_BE;KG_BE
GEO_BE;MP_BE
GEO_R2;GEO_NL
GEO_NL;HOLDCO
GEO_NL;FINCO
GEO_NL;RE-CO
GEO_NL;NF_HOLD
GEO_NL;NF_NL
GEO_NL;HT_HOLD
GEO_NL;KG_HOLD
GEO_NL;BP_HOLD
GEO_NL;BP_NL
GEO_NL;MP_HOLD
GEO_NL;CE_HOLD
GEO_NL;CE_NL
GEO_NL;TF_HOLD
GEO_NL;TF_NL
GEO_NL;FE_HOLD
GEO_R2;GEO_DE
GEO_DE;NF_DE
GEO_DE;HT_DE
GEO_DE;KG_DE
GEO_DE;BP_DE
GEO_DE;CE_DE
GEO_DE;TF_DE
GEO_DE;FE_DE
GEO_R2;GEO_AT
GEO_AT;NF_AT
GEO_AT;HT_AT
GEO_AT;FE_AT
GEO_R2;GEO_CH
GEO_CH;MP_CH
GEO_CH;FE_CH
GEO;GEO_R3
GEO_R3;GEO_ES
GEO_ES;NF_ES
GEO_ES;KG_ES
GEO_ES;BP_ES
GEO_ES;MP_ES
GEO_ES;TF_ES
GEO_R3;GEO_PT
GEO_PT;BP_PT
GEO_PT;CE_PT
GEO_R3;GEO_IT
GEO_IT;NF_IT
GEO_IT;KG_IT
GEO_IT;CE_IT
GEO_IT;FE_IT
GEO_R3;GEO_GR
GEO_GR;MP_GR
GEO_GR;TF_GR
GEO;GEO_R4
GEO_R4;GEO_PL
GEO_PL;NF_PL
GEO_PL;HT_PL
GEO_PL;KG_PL
GEO_PL;CE_PL
GEO_R4;GEO_CZ
GEO_CZ;HT_CZ
GEO_CZ;KG_CZ
GEO_CZ;FE_CZ
GEO_R4;GEO_HU
GEO_HU;MP_HU
GEO_R4;GEO_RO
GEO_RO;HT_RO
GEO_RO;MP_RO
GEO;GEO_R5
GEO_R5;GEO_US
GEO_US;NF_US
GEO_US;HT_US
GEO_US;KG_US
GEO_US;FE_US
GEO_R5;GEO_CA
GEO_CA;HT_CA
GEO_CA;BP_CA
GEO_R5;GEO_MX
GEO_MX;KG_MX
GEO_MX;MP_MX
GEO_R5;GEO_BR
GEO_BR;KG_BR
GEO_BR;BP_BR
GEO;GEO_R6
GEO_R6;GEO_JP
GEO_JP;KG_JP
GEO_JP;FE_JP
GEO_R6;GEO_SG
GEO_SG;FE_SG
GEO_R6;GEO_AU
GEO_AU;CE_AU
GEO;GEO_R7
GEO_R7;GEO_ZA
GEO_ZA;MP_ZA
GEO_R7;GEO_MA
GEO_MA;NF_MA
GEO_MA;MP_MA
GEO_MA;TF_MA
;IC-LIST
IC-LIST;HOLDCO
IC-LIST;FINCO
IC-LIST;RE-CO
IC-LIST;NF_HOLD
IC-LIST;GB101
IC-LIST;GB102
IC-LIST;GB103
IC-LIST;GB104
IC-LIST;GB105
IC-LIST;IE101
IC-LIST;Baile's Farm_HQ
IC-LIST;Baile's Farm_P1
IC-LIST;Baile's Farm_P2
IC-LIST;IE103
IC-LIST;IE104
IC-LIST;IE105
IC-LIST;IE106
IC-LIST;FR101
IC-LIST;L'Aubépine_HQ
IC-LIST;L'Aubépine_P1
IC-LIST;L'Aubépine_P2
IC-LIST;FR103
IC-LIST;FR104_HQ
IC-LIST;FR104_P1
IC-LIST;FR104_P2
IC-LIST;BE101
IC-LIST;BE102
IC-LIST;BE103
IC-LIST;BE104
IC-LIST;BE105_HQ
IC-LIST;BE105_P1
IC-LIST;BE105_P2
IC-LIST;BE105_SO
IC-LIST;NL101
IC-LIST;NL102
IC-LIST;NL103
IC-LIST;NL104
IC-LIST;NL105
IC-LIST;DE101
IC-LIST;DE102_HQ
IC-LIST;DE102_P1
IC-LIST;DE102_P2
IC-LIST;DE103
IC-LIST;DE104
IC-LIST;DE105
IC-LIST;DE106_HQ
IC-LIST;DE106_P1
IC-LIST;DE106_P2
IC-LIST;DE107_HQ
IC-LIST;DE107_P1
IC-LIST;DE107_P2
IC-LIST;AT101
IC-LIST;AT102
IC-LIST;AT103
IC-LIST;AT104
IC-LIST;AT105
IC-LIST;AT106
IC-LIST;ES101
IC-LIST;ES102
IC-LIST;ES103
IC-LIST;ES104
IC-LIST;ES105
IC-LIST;IT101
IC-LIST;IT102
IC-LIST;IT103
IC-LIST;IT104_HQ
IC-LIST;IT104_P1
IC-LIST;IT104_P2
IC-LIST;PL101
IC-LIST;PL102
IC-LIST;PL103
IC-LIST;PL104
IC-LIST;DK101
IC-LIST;DK102
IC-LIST;DK103
IC-LIST;DK104
IC-LIST;DK105
IC-LIST;DK106
IC-LIST;DK107
IC-LIST;DK108-JV
IC-LIST;SE101
IC-LIST;SE102
IC-LIST;SE103_HQ
IC-LIST;SE103_P1
IC-LIST;SE103_P2
IC-LIST;SE104_HQ
IC-LIST;SE104_P1
IC-LIST;SE104_P2
IC-LIST;SE105
IC-LIST;US101
IC-LIST;US102
IC-LIST;US103
IC-LIST;US104
IC-LIST;MA101
IC-LIST;MA102
IC-LIST;MA103
IC-LIST;MA104
IC-LIST;MA105
IC-LIST;HT_HOLD
IC-LIST;SE201
IC-LIST;SE202
IC-LIST;SE203
IC-LIST;Malmö Såg
IC-LIST;SE205
IC-LIST;SE206
IC-LIST;SE207-JV
IC-LIST;FI201
IC-LIST;FI202_HQ
IC-LIST;FI202_P1
IC-LIST;FI202_P2
IC-LIST;FI203
IC-LIST;FI204
IC-LIST;FI205
IC-LIST;FI206
IC-LIST;NO201
IC-LIST;NO202
IC-LIST;NO203
IC-LIST;NO204
IC-LIST;NO205
IC-LIST;EE201
IC-LIST;EE202
IC-LIST;EE203_HQ
IC-LIST;EE203_P1
IC-LIST;EE203_P2
IC-LIST;EE204_HQ
IC-LIST;EE204_P1
IC-LIST;EE204_P2
IC-LIST;EE205
IC-LIST;EE206
IC-LIST;EE207-JV
IC-LIST;EE208
IC-LIST;DE201
IC-LIST;DE202_HQ
IC-LIST;DE202_P1
IC-LIST;DE202_P2
IC-LIST;DE203
IC-LIST;DE204
IC-LIST;DE205
IC-LIST;AT201
IC-LIST;AT202
IC-LIST;AT203
IC-LIST;AT204
IC-LIST;AT205
IC-LIST;AT206
IC-LIST;PL201
IC-LIST;PL202
IC-LIST;PL203
IC-LIST;PL204
IC-LIST;PL205_HQ
IC-LIST;PL205_P1
IC-LIST;PL205_P2
IC-LIST;PL206
IC-LIST;CZ201
IC-LIST;CZ202
IC-LIST;CZ203
IC-LIST;CZ204_HQ
IC-LIST;CZ204_P1
IC-LIST;CZ204_P2
IC-LIST;CZ205
IC-LIST;CA201
IC-LIST;CA202
IC-LIST;CA203
IC-LIST;CA204
IC-LIST;CA205
IC-LIST;CA206
IC-LIST;CA207-JV
IC-LIST;CA208_HQ
IC-LIST;CA208_P1
IC-LIST;CA208_P2
IC-LIST;CA209
IC-LIST;US201
IC-LIST;US202
IC-LIST;US203
IC-LIST;US204_HQ
IC-LIST;US204_P1
IC-LIST;US204_P2
IC-LIST;RO201
IC-LIST;RO202
IC-LIST;RO203
IC-LIST;RO204
IC-LIST;RO205
IC-LIST;RO206
IC-LIST;RO207-JV
IC-LIST;RO208_HQ
IC-LIST;RO208_P1
IC-LIST;RO208_P2
IC-LIST;KG_HOLD
IC-LIST;DE301
IC-LIST;Glashütte "Nord"_HQ
IC-LIST;Glashütte "Nord"_P1
IC-LIST;Glashütte "Nord"_P2
IC-LIST;DE303
IC-LIST;DE304_HQ
IC-LIST;DE304_P1
IC-LIST;DE304_P2
IC-LIST;FR301
IC-LIST;FR302_HQ
IC-LIST;FR302_P1
IC-LIST;FR302_P2
IC-LIST;FR303
IC-LIST;Verrerie d'Angoulême
IC-LIST;FR305
IC-LIST;BE301
IC-LIST;BE302
IC-LIST;BE303
IC-LIST;BE304
IC-LIST;GB301
IC-LIST;GB302
IC-LIST;GB303
IC-LIST;GB304_HQ
IC-LIST;GB304_P1
IC-LIST;GB304_P2
IC-LIST;GB304_SO
IC-LIST;GB305
IC-LIST;GB306-JV
IC-LIST;GB307
IC-LIST;GB308
IC-LIST;IT301
IC-LIST;IT302
IC-LIST;IT303
IC-LIST;IT304
IC-LIST;IT305
IC-LIST;IT306-JV
IC-LIST;IT307
IC-LIST;IT308
IC-LIST;IT309
IC-LIST;ES301
IC-LIST;ES302
IC-LIST;ES303
IC-LIST;ES304
IC-LIST;PL301
IC-LIST;PL302
IC-LIST;Huta 100%
IC-LIST;PL304
IC-LIST;PL305
IC-LIST;CZ301
IC-LIST;CZ302_HQ
IC-LIST;CZ302_P1
IC-LIST;CZ302_P2
IC-LIST;CZ302_SO
IC-LIST;CZ303_HQ
IC-LIST;CZ303_P1
IC-LIST;CZ303_P2
IC-LIST;CZ304
IC-LIST;CZ305
IC-LIST;CZ306-JV
IC-LIST;US301
IC-LIST;US302
IC-LIST;US303
IC-LIST;US304_HQ
IC-LIST;US304_P1
IC-LIST;US304_P2
IC-LIST;US305
IC-LIST;US306-JV
IC-LIST;US307
IC-LIST;US308
IC-LIST;US309
IC-LIST;MX301
IC-LIST;MX302
IC-LIST;MX303
IC-LIST;MX304
IC-LIST;BR301
IC-LIST;BR302
IC-LIST;BR303
IC-LIST;BR304
IC-LIST;BR305
IC-LIST;BR306-JV
IC-LIST;BR307
IC-LIST;JP301
IC-LIST;JP302
IC-LIST;JP303
IC-LIST;JP304
IC-LIST;JP305
IC-LIST;JP306-JV
IC-LIST;BP_HOLD
IC-LIST;Paperi Oy (Turku)
IC-LIST;FI402
IC-LIST;FI403
IC-LIST;FI404
IC-LIST;SE401
IC-LIST;SE402
IC-LIST;SE403
IC-LIST;SE404
IC-LIST;SE405-JV
IC-LIST;SE406
IC-LIST;SE407
IC-LIST;SE408
IC-LIST;SE409
IC-LIST;DE401
IC-LIST;DE402_HQ
IC-LIST;DE402_P1
IC-LIST;DE402_P2
IC-LIST;DE402_SO
IC-LIST;DE403_HQ
IC-LIST;DE403_P1
IC-LIST;DE403_P2
IC-LIST;DE403_SO
IC-LIST;DE404
IC-LIST;DE405-JV
IC-LIST;DE406
IC-LIST;DE407
IC-LIST;NL401
IC-LIST;NL402
IC-LIST;NL403_HQ
IC-LIST;NL403_P1
IC-LIST;NL403_P2
IC-LIST;NL404
IC-LIST;NL405-JV
IC-LIST;NL406
IC-LIST;NL407
IC-LIST;NL408
IC-LIST;NL409
IC-LIST;FR401
IC-LIST;FR402
IC-LIST;FR403
IC-LIST;FR404
IC-LIST;PT401
IC-LIST;PT402
IC-LIST;PT403
IC-LIST;PT404
IC-LIST;PT405-JV
IC-LIST;PT406
IC-LIST;ES401
IC-LIST;ES402
IC-LIST;ES403
IC-LIST;ES404_HQ
IC-LIST;ES404_P1
IC-LIST;ES404_P2
IC-LIST;ES405-JV
IC-LIST;GB401
IC-LIST;GB402
IC-LIST;GB403
IC-LIST;GB404
IC-LIST;GB405-JV
IC-LIST;GB406_HQ
IC-LIST;GB406_P1
IC-LIST;GB406_P2
IC-LIST;GB406_SO
IC-LIST;GB407
IC-LIST;CA401
IC-LIST;CA402
IC-LIST;CA403
IC-LIST;CA404
IC-LIST;CA405-JV
IC-LIST;BR401
IC-LIST;BR402
IC-LIST;BR403
IC-LIST;BR404
IC-LIST;MP_HOLD
IC-LIST;FR501
IC-LIST;FR502
IC-LIST;FR503
IC-LIST;FR504-JV
IC-LIST;FR505
IC-LIST;FR506
IC-LIST;FR507_HQ
IC-LIST;FR507_P1
IC-LIST;FR507_P2
IC-LIST;BE501
IC-LIST;BE502_HQ
IC-LIST;BE502_P1
IC-LIST;BE502_P2
IC-LIST;BE503
IC-LIST;BE504-JV
IC-LIST;CH501
IC-LIST;CH502_HQ
IC-LIST;CH502_P1
IC-LIST;CH502_P2
IC-LIST;CH503
IC-LIST;CH504-JV
IC-LIST;ES501
IC-LIST;Cementos del Sur & Cía
IC-LIST;ES503
IC-LIST;ES504-JV
IC-LIST;ES505
IC-LIST;ES506
IC-LIST;ES507
IC-LIST;ES508
IC-LIST;GR501
IC-LIST;GR502
IC-LIST;GR503
IC-LIST;GR504-JV
IC-LIST;GR505_HQ
IC-LIST;GR505_P1
IC-LIST;GR505_P2
IC-LIST;GR505_SO
IC-LIST;GR506
IC-LIST;RO501
IC-LIST;RO502
IC-LIST;RO503
IC-LIST;RO504-JV
IC-LIST;RO505
IC-LIST;RO506
IC-LIST;RO507
IC-LIST;HU501
IC-LIST;HU502
IC-LIST;HU503
IC-LIST;HU504-JV
IC-LIST;MA501
IC-LIST;MA502
IC-LIST;MA503
IC-LIST;MA504-JV
IC-LIST;MA505
IC-LIST;MA506_HQ
IC-LIST;MA506_P1
IC-LIST;MA506_P2
IC-LIST;ZA501
IC-LIST;ZA502_HQ
IC-LIST;ZA502_P1
IC-LIST;ZA502_P2
IC-LIST;ZA502_SO
IC-LIST;ZA503
IC-LIST;ZA504-JV
IC-LIST;MX501
IC-LIST;MX502
IC-LIST;MX503
IC-LIST;MX504-JV
IC-LIST;MX505
IC-LIST;MX506
IC-LIST;CE_HOLD
IC-LIST;GB601
IC-LIST;GB602
IC-LIST;GB603-JV
IC-LIST;GB604
IC-LIST;GB605
IC-LIST;GB606
IC-LIST;DK601
IC-LIST;DK602
IC-LIST;DK603-JV
IC-LIST;DK604
IC-LIST;DK605
IC-LIST;DK606
IC-LIST;DK607
IC-LIST;NO601
IC-LIST;NO602_HQ
IC-LIST;NO602_P1
IC-LIST;NO602_P2
IC-LIST;NO603-JV
IC-LIST;NO604_HQ
IC-LIST;NO604_P1
IC-LIST;NO604_P2
IC-LIST;NO605_HQ
IC-LIST;NO605_P1
IC-LIST;NO605_P2
IC-LIST;NO605_SO
IC-LIST;NO606
IC-LIST;DE601
IC-LIST;DE602
IC-LIST;DE603-JV
IC-LIST;0% CO2 Wärme
IC-LIST;DE605
IC-LIST;DE606
IC-LIST;NL601
IC-LIST;NL602
IC-LIST;NL603-JV
IC-LIST;NL604
IC-LIST;NL605_HQ
IC-LIST;NL605_P1
IC-LIST;NL605_P2
IC-LIST;NL605_SO
IC-LIST;NL606
IC-LIST;PT601
IC-LIST;PT602_HQ
IC-LIST;PT602_P1
IC-LIST;PT602_P2
IC-LIST;PT603-JV
IC-LIST;PT604
IC-LIST;PT605
IC-LIST;PT606
IC-LIST;PT607
IC-LIST;IT601
IC-LIST;IT602
IC-LIST;IT603-JV
IC-LIST;IT604
IC-LIST;IT605
IC-LIST;IT606
IC-LIST;IT607
IC-LIST;PL601
IC-LIST;PL602
IC-LIST;PL603-JV
IC-LIST;PL604
IC-LIST;PL605
IC-LIST;PL606_HQ
IC-LIST;PL606_P1
IC-LIST;PL606_P2
IC-LIST;PL607
IC-LIST;AU601
IC-LIST;AU602
IC-LIST;AU603-JV
IC-LIST;AU604
IC-LIST;AU605
IC-LIST;TF_HOLD
IC-LIST;Tidewell-Ferries UK
IC-LIST;GB702-JV
IC-LIST;GB703
IC-LIST;GB704
IC-LIST;GB705
IC-LIST;GB706
IC-LIST;GB707_HQ
IC-LIST;GB707_P1
IC-LIST;GB707_P2
IC-LIST;GB708
IC-LIST;IE701
IC-LIST;IE702-JV
IC-LIST;IE703
IC-LIST;IE704_HQ
IC-LIST;IE704_P1
IC-LIST;IE704_P2
IC-LIST;IE705
IC-LIST;IE706
IC-LIST;IE707
IC-LIST;SE701
IC-LIST;SE702-JV
IC-LIST;SE703
IC-LIST;SE704
IC-LIST;SE705
IC-LIST;SE706
IC-LIST;SE707
IC-LIST;SE708
IC-LIST;DK701
IC-LIST;DK702-JV
IC-LIST;DK703_HQ
IC-LIST;DK703_P1
IC-LIST;DK703_P2
IC-LIST;DK704
IC-LIST;DK705
IC-LIST;DK706
IC-LIST;DK707
IC-LIST;DK708
IC-LIST;DK709
IC-LIST;FI701
IC-LIST;FI702-JV
IC-LIST;FI703
IC-LIST;FI704
IC-LIST;FI705
IC-LIST;FI706
IC-LIST;FI707
IC-LIST;FI708
IC-LIST;FI709
IC-LIST;"Baltic" Lines
IC-LIST;EE702-JV
IC-LIST;EE703
IC-LIST;EE704
IC-LIST;EE705
IC-LIST;EE706
IC-LIST;EE707_HQ
IC-LIST;EE707_P1
IC-LIST;EE707_P2
IC-LIST;EE708
IC-LIST;EE709
IC-LIST;DE701
IC-LIST;DE702-JV
IC-LIST;DE703
IC-LIST;DE704_HQ
IC-LIST;DE704_P1
IC-LIST;DE704_P2
IC-LIST;DE704_SO
IC-LIST;DE705
IC-LIST;DE706
IC-LIST;NL701
IC-LIST;NL702-JV
IC-LIST;NL703
IC-LIST;NL704
IC-LIST;GR701
IC-LIST;GR702-JV
IC-LIST;GR703
IC-LIST;GR704
IC-LIST;ES701
IC-LIST;ES702-JV
IC-LIST;ES703
IC-LIST;ES704
IC-LIST;ES705
IC-LIST;ES706
IC-LIST;ES707_HQ
IC-LIST;ES707_P1
IC-LIST;ES707_P2
IC-LIST;ES707_SO
IC-LIST;ES708
IC-LIST;MA701
IC-LIST;MA702-JV
IC-LIST;MA703
IC-LIST;MA704
IC-LIST;MA705
IC-LIST;MA706
IC-LIST;FE_HOLD
IC-LIST;DE801-JV
IC-LIST;DE802_HQ
IC-LIST;DE802_P1
IC-LIST;DE802_P2
IC-LIST;DE803_HQ
IC-LIST;DE803_P1
IC-LIST;DE803_P2
IC-LIST;DE804
IC-LIST;DE805
IC-LIST;DE806
IC-LIST;DE807_HQ
IC-LIST;DE807_P1
IC-LIST;DE807_P2
IC-LIST;DE808_HQ
IC-LIST;DE808_P1
IC-LIST;DE808_P2
IC-LIST;CH801-JV
IC-LIST;Maschinen-Service Zürich
IC-LIST;CH803
IC-LIST;CH804
IC-LIST;CH805
IC-LIST;CH806
IC-LIST;AT801-JV
IC-LIST;AT802
IC-LIST;AT803
IC-LIST;AT804
IC-LIST;AT805
IC-LIST;AT806
IC-LIST;AT807
IC-LIST;AT808
IC-LIST;AT809_HQ
IC-LIST;AT809_P1
IC-LIST;AT809_P2
IC-LIST;AT809_SO
IC-LIST;IT801-JV
IC-LIST;IT802
IC-LIST;IT803
IC-LIST;IT804
IC-LIST;IT805_HQ
IC-LIST;IT805_P1
IC-LIST;IT805_P2
IC-LIST;CZ801-JV
IC-LIST;CZ802
IC-LIST;CZ803
IC-LIST;CZ804
IC-LIST;US801-JV
IC-LIST;US802
IC-LIST;US803
IC-LIST;US804_HQ
IC-LIST;US804_P1
IC-LIST;US804_P2
IC-LIST;US804_SO
IC-LIST;US805
IC-LIST;US806
IC-LIST;US807
IC-LIST;SG801-JV
IC-LIST;SG802_HQ
IC-LIST;SG802_P1
IC-LIST;SG802_P2
IC-LIST;SG803_HQ
IC-LIST;SG803_P1
IC-LIST;SG803_P2
IC-LIST;JP801-JV
IC-LIST;JP802
IC-LIST;JP803_HQ
IC-LIST;JP803_P1
IC-LIST;JP803_P2
IC-LIST;JP804
IC-LIST;JP805
IC-LIST;GB801-JV
IC-LIST;GB802
IC-LIST;GB803
IC-LIST;GB804
IC-LIST;GB805
IC-LIST;GB806
IC-LIST;SE801-JV
IC-LIST;SE802
IC-LIST;SE803
IC-LIST;SE804
IC-LIST;SE805
IC-LIST;SE806
!MEMBERS=Movement
'Label;IsCalculated;SwitchSignForFlow;SwitchTypeForFlow;UserDefined1;UserDefined2;UserDefined3;SecurityClass;SubmissionGroup;DefaultParent;Descriptions
[None];N;N;N;;;;;1;DefaultParent=#root
CLO;Y;N;N;BS;;;;0;DefaultParent=#root;English=Closing balance;French=Solde de clôture;German=Endbestand
OPE;Y;N;N;BS;;;;0;DefaultParent=CLO;English=Opening balance;French=Solde d'ouverture;German=Anfangsbestand
OPE-CLO;N;N;N;BS;;;;1;DefaultParent=OPE;English=Closing balance of last year;French=Clôture de l'exercice précédent;German=Schlussbestand des Vorjahres
OPE-ADJ;N;N;N;BS;;;;1;DefaultParent=OPE;English=Restatement of the opening balance;French=Retraitement à l'ouverture;German=Anpassung des Anfangsbestands
OPE-MTH;N;N;N;BS;;;;1;DefaultParent=OPE;English=Change in accounting policies;French=Changement de méthodes;German=Änderung der Methoden
SCOPE;Y;N;N;BS;Scope;;;0;DefaultParent=CLO;English=Changes in scope;French=Variations de périmètre;German=Änderungen im Konsolidierungskreis
SC-IN;N;N;N;BS;Scope;;;1;DefaultParent=SCOPE;English=Companies acquired;French=Entrées;German=Zugänge
SC-OUT;N;N;N;BS;Scope;;;1;DefaultParent=SCOPE;English=Companies sold;French=Sorties;German=Abgänge
SC-MTH;N;N;N;BS;Scope;;;1;DefaultParent=SCOPE;English=Change of method;French=Changement de méthode;German=Methodenwechsel
SC-MRG;N;N;N;BS;Scope;;;1;DefaultParent=SCOPE;English=Mergers;French=Fusions;German=Verschmelzungen
SC-PCT;N;N;N;BS;Scope;;;1;DefaultParent=SCOPE;English=Change of percentage;French=Variation de pourcentage;German=Anteilsänderung
MVT;Y;N;N;BS;Year;;;0;DefaultParent=CLO;English=Movements of the year;French=Mouvements de l'exercice;German=Bewegungen des Jahres
INC;N;N;N;BS;Year;;;1;DefaultParent=MVT;English=Increase;French=Augmentation;German=Zugang
DEC;N;N;N;BS;Year;;;1;DefaultParent=MVT;English=Decrease;French=Diminution;German=Abgang
NEW-LEASE;N;N;N;BS;Year;;;1;DefaultParent=MVT;English=New leases;French=Nouveaux contrats de location;German=Neue Leasingverträge
DEP;N;N;N;BS;Year;;;1;DefaultParent=MVT;English=Depreciation;French=Dotation aux amortissements;German=Abschreibung
IMP;N;N;N;BS;Year;;;1;DefaultParent=MVT;English=Impairment;French=Dépréciation;German=Wertminderung
REV;N;N;N;BS;Year;;;1;DefaultParent=MVT;English=Reversal;French=Reprise;German=Zuschreibung
USE;N;N;N;BS;Year;;;1;DefaultParent=MVT;English=Use of provisions;French=Utilisation de provisions;German=Verbrauch von Rückstellungen
UNUSED;N;N;N;BS;Year;;;1;DefaultParent=MVT;English=Provisions not used;French=Reprise sans objet;German=Auflösung von Rückstellungen
TRF;N;N;N;BS;Year;;;1;DefaultParent=MVT;English=Transfer;French=Reclassement;German=Umbuchung
HFS;N;N;N;BS;Year;;;1;DefaultParent=MVT;English=Transfer to held for sale;French=Transfert en actifs cédés;German=Umgliederung zur Veräußerung
ACT;N;N;N;BS;Year;;;1;DefaultParent=MVT;English=Actuarial gains and losses;French=Écarts actuariels;German=Versicherungsmathematische Effekte
FV;N;N;N;BS;Year;;;1;DefaultParent=MVT;English=Change in fair value;French=Variation de juste valeur;German=Änderung des Zeitwerts
DIV;N;N;N;BS;Year;;;1;DefaultParent=MVT;English=Dividends;French=Dividendes;German=Dividenden
RES;N;N;N;BS;Year;;;1;DefaultParent=MVT;English=Result of the year;French=Résultat de l'exercice;German=Jahresergebnis
CAP;N;N;N;BS;Year;;;1;DefaultParent=MVT;English=Change in capital;French=Variation de capital;German=Kapitalveränderung
OTH;N;N;N;BS;Year;;;1;DefaultParent=MVT;English=Other movements;French=Autres mouvements;German=Sonstige Bewegungen
FX;Y;N;N;BS;FX;;;0;DefaultParent=CLO;English=Exchange differences;French=Écarts de conversion;German=Währungsdifferenzen
FX-OPE;Y;N;N;BS;FX;;;1;DefaultParent=FX;English=On the opening balance;French=Sur l'ouverture;German=Auf den Anfangsbestand
FX-MVT;Y;N;N;BS;FX;;;1;DefaultParent=FX;English=On movements;French=Sur les mouvements;German=Auf Bewegungen
FX-SC;Y;N;N;BS;FX;;;1;DefaultParent=FX;English=On changes in scope;French=Sur le périmètre;German=Auf den Konsolidierungskreis
CASH EFFECT;Y;N;N;CF;;;;0;DefaultParent=#root;English=Movements with effect on cash;French=Mouvements de trésorerie;German=Zahlungswirksame Bewegungen
NON-CASH;Y;N;N;CF;;;;0;DefaultParent=#root;English=Movements without effect on cash;French=Mouvements sans effet de trésorerie;German=Zahlungsunwirksame Bewegungen
MEMO;Y;N;N;;;;;0;DefaultParent=#root;English=Memorandum;French=Pour mémoire;German=Nachrichtlich
CONTROL;N;N;N;;;;;1;DefaultParent=MEMO;English=Closing balance as reported;French=Clôture déclarée;German=Gemeldeter Endbestand
GAP;Y;N;N;;;;;1;DefaultParent=MEMO;English=Gap to the movements;French=Écart aux mouvements;German=Differenz zu den Bewegungen
!HIERARCHIES=Movement
;[None];0
;CLO;1
CLO;OPE;1
OPE;OPE-CLO;1
OPE;OPE-ADJ;1
OPE;OPE-MTH;1
CLO;SCOPE;1
SCOPE;SC-IN;1
SCOPE;SC-OUT;1
SCOPE;SC-MTH;1
SCOPE;SC-MRG;1
SCOPE;SC-PCT;1
CLO;MVT;1
MVT;INC;1
MVT;DEC;1
MVT;NEW-LEASE;1
MVT;DEP;1
MVT;IMP;1
MVT;REV;1
MVT;USE;1
MVT;UNUSED;1
MVT;TRF;1
MVT;HFS;1
MVT;ACT;1
MVT;FV;1
MVT;DIV;1
MVT;RES;1
MVT;CAP;1
MVT;OTH;1
CLO;FX;1
FX;FX-OPE;1
FX;FX-MVT;1
FX;FX-SC;1
;CASH EFFECT;1
CASH EFFECT;INC;1
CASH EFFECT;DEC;1
CASH EFFECT;USE;1
CASH EFFECT;DIV;1
CASH EFFECT;CAP;1
;NON-CASH;1
NON-CASH;SCOPE;1
NON-CASH;FX;1
NON-CASH;NEW-LEASE;1
NON-CASH;DEP;1
NON-CASH;IMP;1
NON-CASH;REV;1
NON-CASH;ACT;1
NON-CASH;FV;1
;MEMO;1
MEMO;CONTROL;0
MEMO;GAP;1
!MEMBERS=Product
'Label;IsCalculated;SwitchSignForFlow;SwitchTypeForFlow;UserDefined1;UserDefined2;UserDefined3;SecurityClass;SubmissionGroup;DefaultParent;Descriptions
[None];N;N;N;;;;;1;DefaultParent=#root
ALL_PRODUCTS;Y;N;N;;;;;0;DefaultParent=#root;English=All products;French=Tous les produits;German=Alle Produkte
P1;Y;N;N;Northfell Foods;;;;0;DefaultParent=ALL_PRODUCTS;English=Dairy products;French=Produits laitiers;German=Molkereiprodukte
P11;Y;N;N;Northfell Foods;;;;0;DefaultParent=P1;English=Butter and fats;French=Beurre et matières grasses;German=Butter und Fette
P111;N;N;N;Northfell Foods;;;;1;DefaultParent=P11;English=Butter and fats, consumer pack;French=Beurre et matières grasses, format familial;German=Butter und Fette, Haushaltspackung
P112;N;N;N;Northfell Foods;;;;1;DefaultParent=P11;English=Butter and fats, organic;French=Beurre et matières grasses, bio;German=Butter und Fette, Bio
P113;N;N;N;Northfell Foods;;;;1;DefaultParent=P11;English=Butter and fats, own label;French=Beurre et matières grasses, marque de distributeur;German=Butter und Fette, Handelsmarke
P114;N;N;N;Northfell Foods;;;;1;DefaultParent=P11;English=Butter and fats, food service;French=Beurre et matières grasses, restauration;German=Butter und Fette, Gastronomie
P115;N;N;N;Northfell Foods;;;;1;DefaultParent=P11;English=Butter and fats, bulk;French=Beurre et matières grasses, vrac;German=Butter und Fette, lose
P12;Y;N;N;Northfell Foods;;;;0;DefaultParent=P1;English=Cheese;French=Fromage;German=Käse
P121;N;N;N;Northfell Foods;;;;1;DefaultParent=P12;English=Cheese, consumer pack;French=Fromage, format familial;German=Käse, Haushaltspackung
P122;N;N;N;Northfell Foods;;;;1;DefaultParent=P12;English=Cheese, organic;French=Fromage, bio;German=Käse, Bio
P123;N;N;N;Northfell Foods;;;;1;DefaultParent=P12;English=Cheese, own label;French=Fromage, marque de distributeur;German=Käse, Handelsmarke
P124;N;N;N;Northfell Foods;;;;1;DefaultParent=P12;English=Cheese, food service;French=Fromage, restauration;German=Käse, Gastronomie
P125;N;N;N;Northfell Foods;;;;1;DefaultParent=P12;English=Cheese, bulk;French=Fromage, vrac;German=Käse, lose
P13;Y;N;N;Northfell Foods;;;;0;DefaultParent=P1;English=Milk and cream;French=Lait et crème;German=Milch und Sahne
P131;N;N;N;Northfell Foods;;;;1;DefaultParent=P13;English=Milk and cream, consumer pack;French=Lait et crème, format familial;German=Milch und Sahne, Haushaltspackung
P132;N;N;N;Northfell Foods;;;;1;DefaultParent=P13;English=Milk and cream, organic;French=Lait et crème, bio;German=Milch und Sahne, Bio
P133;N;N;N;Northfell Foods;;;;1;DefaultParent=P13;English=Milk and cream, own label;French=Lait et crème, marque de distributeur;German=Milch und Sahne, Handelsmarke
P134;N;N;N;Northfell Foods;;;;1;DefaultParent=P13;English=Milk and cream, food service;French=Lait et crème, restauration;German=Milch und Sahne, Gastronomie
P135;N;N;N;Northfell Foods;;;;1;DefaultParent=P13;English=Milk and cream, bulk;French=Lait et crème, vrac;German=Milch und Sahne, lose
P14;Y;N;N;Northfell Foods;;;;0;DefaultParent=P1;English=Yoghurt;French=Yaourt;German=Joghurt
P141;N;N;N;Northfell Foods;;;;1;DefaultParent=P14;English=Yoghurt, consumer pack;French=Yaourt, format familial;German=Joghurt, Haushaltspackung
P142;N;N;N;Northfell Foods;;;;1;DefaultParent=P14;English=Yoghurt, organic;French=Yaourt, bio;German=Joghurt, Bio
P143;N;N;N;Northfell Foods;;;;1;DefaultParent=P14;English=Yoghurt, own label;French=Yaourt, marque de distributeur;German=Joghurt, Handelsmarke
P144;N;N;N;Northfell Foods;;;;1;DefaultParent=P14;English=Yoghurt, food service;French=Yaourt, restauration;German=Joghurt, Gastronomie
P145;N;N;N;Northfell Foods;;;;1;DefaultParent=P14;English=Yoghurt, bulk;French=Yaourt, vrac;German=Joghurt, lose
P2;Y;N;N;Hollin Timber;;;;0;DefaultParent=ALL_PRODUCTS;English=Timber products;French=Produits du bois;German=Holzprodukte
P21;Y;N;N;Hollin Timber;;;;0;DefaultParent=P2;English=Sawn timber;French=Sciages;German=Schnittholz
P211;N;N;N;Hollin Timber;;;;1;DefaultParent=P21;English=Sawn timber, spruce;French=Sciages, épicéa;German=Schnittholz, Fichte
P212;N;N;N;Hollin Timber;;;;1;DefaultParent=P21;English=Sawn timber, pine;French=Sciages, pin;German=Schnittholz, Kiefer
P213;N;N;N;Hollin Timber;;;;1;DefaultParent=P21;English=Sawn timber, birch;French=Sciages, bouleau;German=Schnittholz, Birke
P214;N;N;N;Hollin Timber;;;;1;DefaultParent=P21;English=Sawn timber, certified;French=Sciages, certifié;German=Schnittholz, zertifiziert
P215;N;N;N;Hollin Timber;;;;1;DefaultParent=P21;English=Sawn timber, treated;French=Sciages, traité;German=Schnittholz, behandelt
P22;Y;N;N;Hollin Timber;;;;0;DefaultParent=P2;English=Plywood;French=Contreplaqué;German=Sperrholz
P221;N;N;N;Hollin Timber;;;;1;DefaultParent=P22;English=Plywood, spruce;French=Contreplaqué, épicéa;German=Sperrholz, Fichte
P222;N;N;N;Hollin Timber;;;;1;DefaultParent=P22;English=Plywood, pine;French=Contreplaqué, pin;German=Sperrholz, Kiefer
P223;N;N;N;Hollin Timber;;;;1;DefaultParent=P22;English=Plywood, birch;French=Contreplaqué, bouleau;German=Sperrholz, Birke
P224;N;N;N;Hollin Timber;;;;1;DefaultParent=P22;English=Plywood, certified;French=Contreplaqué, certifié;German=Sperrholz, zertifiziert
P225;N;N;N;Hollin Timber;;;;1;DefaultParent=P22;English=Plywood, treated;French=Contreplaqué, traité;German=Sperrholz, behandelt
P23;Y;N;N;Hollin Timber;;;;0;DefaultParent=P2;English=Glued laminated timber;French=Lamellé-collé;German=Brettschichtholz
P231;N;N;N;Hollin Timber;;;;1;DefaultParent=P23;English=Glued laminated timber, spruce;French=Lamellé-collé, épicéa;German=Brettschichtholz, Fichte
P232;N;N;N;Hollin Timber;;;;1;DefaultParent=P23;English=Glued laminated timber, pine;French=Lamellé-collé, pin;German=Brettschichtholz, Kiefer
P233;N;N;N;Hollin Timber;;;;1;DefaultParent=P23;English=Glued laminated timber, birch;French=Lamellé-collé, bouleau;German=Brettschichtholz, Birke
P234;N;N;N;Hollin Timber;;;;1;DefaultParent=P23;English=Glued laminated timber, certified;French=Lamellé-collé, certifié;German=Brettschichtholz, zertifiziert
P235;N;N;N;Hollin Timber;;;;1;DefaultParent=P23;English=Glued laminated timber, treated;French=Lamellé-collé, traité;German=Brettschichtholz, behandelt
P24;Y;N;N;Hollin Timber;;;;0;DefaultParent=P2;English=Pellets;French=Granulés;German=Pellets
P241;N;N;N;Hollin Timber;;;;1;DefaultParent=P24;English=Pellets, spruce;French=Granulés, épicéa;German=Pellets, Fichte
P242;N;N;N;Hollin Timber;;;;1;DefaultParent=P24;English=Pellets, pine;French=Granulés, pin;German=Pellets, Kiefer
P243;N;N;N;Hollin Timber;;;;1;DefaultParent=P24;English=Pellets, birch;French=Granulés, bouleau;German=Pellets, Birke
P244;N;N;N;Hollin Timber;;;;1;DefaultParent=P24;English=Pellets, certified;French=Granulés, certifié;German=Pellets, zertifiziert
P245;N;N;N;Hollin Timber;;;;1;DefaultParent=P24;English=Pellets, treated;French=Granulés, traité;German=Pellets, behandelt
P3;Y;N;N;Kestrel Glass;;;;0;DefaultParent=ALL_PRODUCTS;English=Glass;French=Verre;German=Glas
P31;Y;N;N;Kestrel Glass;;;;0;DefaultParent=P3;English=Float glass;French=Verre flotté;German=Floatglas
P311;N;N;N;Kestrel Glass;;;;1;DefaultParent=P31;English=Float glass, clear;French=Verre flotté, clair;German=Floatglas, klar
P312;N;N;N;Kestrel Glass;;;;1;DefaultParent=P31;English=Float glass, tinted;French=Verre flotté, teinté;German=Floatglas, getönt
P313;N;N;N;Kestrel Glass;;;;1;DefaultParent=P31;English=Float glass, coated;French=Verre flotté, à couche;German=Floatglas, beschichtet
P314;N;N;N;Kestrel Glass;;;;1;DefaultParent=P31;English=Float glass, 70% recycled;French=Verre flotté, recyclé à 70 %;German=Floatglas, 70 % Recycling
P32;Y;N;N;Kestrel Glass;;;;0;DefaultParent=P3;English=Insulating glass;French=Vitrage isolant;German=Isolierglas
P321;N;N;N;Kestrel Glass;;;;1;DefaultParent=P32;English=Insulating glass, clear;French=Vitrage isolant, clair;German=Isolierglas, klar
P322;N;N;N;Kestrel Glass;;;;1;DefaultParent=P32;English=Insulating glass, tinted;French=Vitrage isolant, teinté;German=Isolierglas, getönt
P323;N;N;N;Kestrel Glass;;;;1;DefaultParent=P32;English=Insulating glass, coated;French=Vitrage isolant, à couche;German=Isolierglas, beschichtet
P324;N;N;N;Kestrel Glass;;;;1;DefaultParent=P32;English=Insulating glass, 70% recycled;French=Vitrage isolant, recyclé à 70 %;German=Isolierglas, 70 % Recycling
P33;Y;N;N;Kestrel Glass;;;;0;DefaultParent=P3;English=Bottles;French=Bouteilles;German=Flaschen
P331;N;N;N;Kestrel Glass;;;;1;DefaultParent=P33;English=Bottles, clear;French=Bouteilles, clair;German=Flaschen, klar
P332;N;N;N;Kestrel Glass;;;;1;DefaultParent=P33;English=Bottles, tinted;French=Bouteilles, teinté;German=Flaschen, getönt
P333;N;N;N;Kestrel Glass;;;;1;DefaultParent=P33;English=Bottles, coated;French=Bouteilles, à couche;German=Flaschen, beschichtet
P334;N;N;N;Kestrel Glass;;;;1;DefaultParent=P33;English=Bottles, 70% recycled;French=Bouteilles, recyclé à 70 %;German=Flaschen, 70 % Recycling
P34;Y;N;N;Kestrel Glass;;;;0;DefaultParent=P3;English=Glass fibre;French=Fibre de verre;German=Glasfaser
P341;N;N;N;Kestrel Glass;;;;1;DefaultParent=P34;English=Glass fibre, clear;French=Fibre de verre, clair;German=Glasfaser, klar
P342;N;N;N;Kestrel Glass;;;;1;DefaultParent=P34;English=Glass fibre, tinted;French=Fibre de verre, teinté;German=Glasfaser, getönt
P343;N;N;N;Kestrel Glass;;;;1;DefaultParent=P34;English=Glass fibre, coated;French=Fibre de verre, à couche;German=Glasfaser, beschichtet
P344;N;N;N;Kestrel Glass;;;;1;DefaultParent=P34;English=Glass fibre, 70% recycled;French=Fibre de verre, recyclé à 70 %;German=Glasfaser, 70 % Recycling
P4;Y;N;N;Brightwater Paper;;;;0;DefaultParent=ALL_PRODUCTS;English=Paper and board;French=Papier et carton;German=Papier und Karton
P41;Y;N;N;Brightwater Paper;;;;0;DefaultParent=P4;English=Recycled paper;French=Papier recyclé;German=Recyclingpapier
P411;N;N;N;Brightwater Paper;;;;1;DefaultParent=P41;English=Recycled paper, rolls;French=Papier recyclé, bobines;German=Recyclingpapier, Rollen
P412;N;N;N;Brightwater Paper;;;;1;DefaultParent=P41;English=Recycled paper, sheets;French=Papier recyclé, feuilles;German=Recyclingpapier, Bogen
P413;N;N;N;Brightwater Paper;;;;1;DefaultParent=P41;English=Recycled paper, A4;French=Papier recyclé, A4;German=Recyclingpapier, A4
P414;N;N;N;Brightwater Paper;;;;1;DefaultParent=P41;English=Recycled paper, printed;French=Papier recyclé, imprimé;German=Recyclingpapier, bedruckt
P42;Y;N;N;Brightwater Paper;;;;0;DefaultParent=P4;English=Copy paper;French=Papier copieur;German=Kopierpapier
P421;N;N;N;Brightwater Paper;;;;1;DefaultParent=P42;English=Copy paper, rolls;French=Papier copieur, bobines;German=Kopierpapier, Rollen
P422;N;N;N;Brightwater Paper;;;;1;DefaultParent=P42;English=Copy paper, sheets;French=Papier copieur, feuilles;German=Kopierpapier, Bogen
P423;N;N;N;Brightwater Paper;;;;1;DefaultParent=P42;English=Copy paper, A4;French=Papier copieur, A4;German=Kopierpapier, A4
P424;N;N;N;Brightwater Paper;;;;1;DefaultParent=P42;English=Copy paper, printed;French=Papier copieur, imprimé;German=Kopierpapier, bedruckt
P43;Y;N;N;Brightwater Paper;;;;0;DefaultParent=P4;English=Corrugated board;French=Carton ondulé;German=Wellpappe
P431;N;N;N;Brightwater Paper;;;;1;DefaultParent=P43;English=Corrugated board, rolls;French=Carton ondulé, bobines;German=Wellpappe, Rollen
P432;N;N;N;Brightwater Paper;;;;1;DefaultParent=P43;English=Corrugated board, sheets;French=Carton ondulé, feuilles;German=Wellpappe, Bogen
P433;N;N;N;Brightwater Paper;;;;1;DefaultParent=P43;English=Corrugated board, A4;French=Carton ondulé, A4;German=Wellpappe, A4
P434;N;N;N;Brightwater Paper;;;;1;DefaultParent=P43;English=Corrugated board, printed;French=Carton ondulé, imprimé;German=Wellpappe, bedruckt
P44;Y;N;N;Brightwater Paper;;;;0;DefaultParent=P4;English=Tissue;French=Ouate;German=Tissue
P441;N;N;N;Brightwater Paper;;;;1;DefaultParent=P44;English=Tissue, rolls;French=Ouate, bobines;German=Tissue, Rollen
P442;N;N;N;Brightwater Paper;;;;1;DefaultParent=P44;English=Tissue, sheets;French=Ouate, feuilles;German=Tissue, Bogen
P443;N;N;N;Brightwater Paper;;;;1;DefaultParent=P44;English=Tissue, A4;French=Ouate, A4;German=Tissue, A4
P444;N;N;N;Brightwater Paper;;;;1;DefaultParent=P44;English=Tissue, printed;French=Ouate, imprimé;German=Tissue, bedruckt
P5;Y;N;N;Marlpit;;;;0;DefaultParent=ALL_PRODUCTS;English=Cement and concrete;French=Ciment et béton;German=Zement und Beton
P51;Y;N;N;Marlpit;;;;0;DefaultParent=P5;English=Bagged cement;French=Ciment en sacs;German=Sackzement
P511;N;N;N;Marlpit;;;;1;DefaultParent=P51;English=Bagged cement, collected;French=Ciment en sacs, enlevé;German=Sackzement, ab Werk
P512;N;N;N;Marlpit;;;;1;DefaultParent=P51;English=Bagged cement, delivered by road;French=Ciment en sacs, livré par route;German=Sackzement, per Lkw
P513;N;N;N;Marlpit;;;;1;DefaultParent=P51;English=Bagged cement, delivered by rail;French=Ciment en sacs, livré par rail;German=Sackzement, per Bahn
P514;N;N;N;Marlpit;;;;1;DefaultParent=P51;English=Bagged cement, delivered by barge;French=Ciment en sacs, livré par péniche;German=Sackzement, per Schiff
P52;Y;N;N;Marlpit;;;;0;DefaultParent=P5;English=Bulk cement;French=Ciment en vrac;German=Siloware
P521;N;N;N;Marlpit;;;;1;DefaultParent=P52;English=Bulk cement, collected;French=Ciment en vrac, enlevé;German=Siloware, ab Werk
P522;N;N;N;Marlpit;;;;1;DefaultParent=P52;English=Bulk cement, delivered by road;French=Ciment en vrac, livré par route;German=Siloware, per Lkw
P523;N;N;N;Marlpit;;;;1;DefaultParent=P52;English=Bulk cement, delivered by rail;French=Ciment en vrac, livré par rail;German=Siloware, per Bahn
P524;N;N;N;Marlpit;;;;1;DefaultParent=P52;English=Bulk cement, delivered by barge;French=Ciment en vrac, livré par péniche;German=Siloware, per Schiff
P53;Y;N;N;Marlpit;;;;0;DefaultParent=P5;English=Ready-mixed concrete;French=Béton prêt à l'emploi;German=Transportbeton
P531;N;N;N;Marlpit;;;;1;DefaultParent=P53;English=Ready-mixed concrete, collected;French=Béton prêt à l'emploi, enlevé;German=Transportbeton, ab Werk
P532;N;N;N;Marlpit;;;;1;DefaultParent=P53;English=Ready-mixed concrete, delivered by road;French=Béton prêt à l'emploi, livré par route;German=Transportbeton, per Lkw
P533;N;N;N;Marlpit;;;;1;DefaultParent=P53;English=Ready-mixed concrete, delivered by rail;French=Béton prêt à l'emploi, livré par rail;German=Transportbeton, per Bahn
P534;N;N;N;Marlpit;;;;1;DefaultParent=P53;English=Ready-mixed concrete, delivered by barge;French=Béton prêt à l'emploi, livré par péniche;German=Transportbeton, per Schiff
P54;Y;N;N;Marlpit;;;;0;DefaultParent=P5;English=Aggregates;French=Granulats;German=Zuschlagstoffe
P541;N;N;N;Marlpit;;;;1;DefaultParent=P54;English=Aggregates, collected;French=Granulats, enlevé;German=Zuschlagstoffe, ab Werk
P542;N;N;N;Marlpit;;;;1;DefaultParent=P54;English=Aggregates, delivered by road;French=Granulats, livré par route;German=Zuschlagstoffe, per Lkw
P543;N;N;N;Marlpit;;;;1;DefaultParent=P54;English=Aggregates, delivered by rail;French=Granulats, livré par rail;German=Zuschlagstoffe, per Bahn
P544;N;N;N;Marlpit;;;;1;DefaultParent=P54;English=Aggregates, delivered by barge;French=Granulats, livré par péniche;German=Zuschlagstoffe, per Schiff
P6;Y;N;N;Corvane Energy;;;;0;DefaultParent=ALL_PRODUCTS;English=Energy;French=Énergie;German=Energie
P61;Y;N;N;Corvane Energy;;;;0;DefaultParent=P6;English=Electricity;French=Électricité;German=Strom
P611;N;N;N;Corvane Energy;;;;1;DefaultParent=P61;English=Electricity, households;French=Électricité, particuliers;German=Strom, Haushalte
P612;N;N;N;Corvane Energy;;;;1;DefaultParent=P61;English=Electricity, business;French=Électricité, entreprises;German=Strom, Gewerbe
P613;N;N;N;Corvane Energy;;;;1;DefaultParent=P61;English=Electricity, industry;French=Électricité, industrie;German=Strom, Industrie
P614;N;N;N;Corvane Energy;;;;1;DefaultParent=P61;English=Electricity, traders;French=Électricité, négociants;German=Strom, Händler
P62;Y;N;N;Corvane Energy;;;;0;DefaultParent=P6;English=Wind and solar power;French=Éolien et solaire;German=Wind- und Solarstrom
P621;N;N;N;Corvane Energy;;;;1;DefaultParent=P62;English=Wind and solar power, households;French=Éolien et solaire, particuliers;German=Wind- und Solarstrom, Haushalte
P622;N;N;N;Corvane Energy;;;;1;DefaultParent=P62;English=Wind and solar power, business;French=Éolien et solaire, entreprises;German=Wind- und Solarstrom, Gewerbe
P623;N;N;N;Corvane Energy;;;;1;DefaultParent=P62;English=Wind and solar power, industry;French=Éolien et solaire, industrie;German=Wind- und Solarstrom, Industrie
P624;N;N;N;Corvane Energy;;;;1;DefaultParent=P62;English=Wind and solar power, traders;French=Éolien et solaire, négociants;German=Wind- und Solarstrom, Händler
P63;Y;N;N;Corvane Energy;;;;0;DefaultParent=P6;English=Heat;French=Chaleur;German=Wärme
P631;N;N;N;Corvane Energy;;;;1;DefaultParent=P63;English=Heat, households;French=Chaleur, particuliers;German=Wärme, Haushalte
P632;N;N;N;Corvane Energy;;;;1;DefaultParent=P63;English=Heat, business;French=Chaleur, entreprises;German=Wärme, Gewerbe
P633;N;N;N;Corvane Energy;;;;1;DefaultParent=P63;English=Heat, industry;French=Chaleur, industrie;German=Wärme, Industrie
P634;N;N;N;Corvane Energy;;;;1;DefaultParent=P63;English=Heat, traders;French=Chaleur, négociants;German=Wärme, Händler
P64;Y;N;N;Corvane Energy;;;;0;DefaultParent=P6;English=Grid fees;French=Acheminement;German=Netzentgelte
P641;N;N;N;Corvane Energy;;;;1;DefaultParent=P64;English=Grid fees, households;French=Acheminement, particuliers;German=Netzentgelte, Haushalte
P642;N;N;N;Corvane Energy;;;;1;DefaultParent=P64;English=Grid fees, business;French=Acheminement, entreprises;German=Netzentgelte, Gewerbe
P643;N;N;N;Corvane Energy;;;;1;DefaultParent=P64;English=Grid fees, industry;French=Acheminement, industrie;German=Netzentgelte, Industrie
P644;N;N;N;Corvane Energy;;;;1;DefaultParent=P64;English=Grid fees, traders;French=Acheminement, négociants;German=Netzentgelte, Händler
P7;Y;N;N;Tidewell;;;;0;DefaultParent=ALL_PRODUCTS;English=Ferries and freight;French=Traversées et fret;German=Fähren und Fracht
P71;Y;N;N;Tidewell;;;;0;DefaultParent=P7;English=Baltic crossings;French=Traversées de la Baltique;German=Ostseefähren
P711;N;N;N;Tidewell;;;;1;DefaultParent=P71;English=Baltic crossings, passengers;French=Traversées de la Baltique, passagers;German=Ostseefähren, Passagiere
P712;N;N;N;Tidewell;;;;1;DefaultParent=P71;English=Baltic crossings, cars;French=Traversées de la Baltique, voitures;German=Ostseefähren, Pkw
P713;N;N;N;Tidewell;;;;1;DefaultParent=P71;English=Baltic crossings, lorries;French=Traversées de la Baltique, poids lourds;German=Ostseefähren, Lkw
P714;N;N;N;Tidewell;;;;1;DefaultParent=P71;English=Baltic crossings, on board;French=Traversées de la Baltique, ventes à bord;German=Ostseefähren, Bordverkauf
P715;N;N;N;Tidewell;;;;1;DefaultParent=P71;English=Baltic crossings, port services;French=Traversées de la Baltique, services portuaires;German=Ostseefähren, Hafendienste
P72;Y;N;N;Tidewell;;;;0;DefaultParent=P7;English=North Sea crossings;French=Traversées de la mer du Nord;German=Nordseefähren
P721;N;N;N;Tidewell;;;;1;DefaultParent=P72;English=North Sea crossings, passengers;French=Traversées de la mer du Nord, passagers;German=Nordseefähren, Passagiere
P722;N;N;N;Tidewell;;;;1;DefaultParent=P72;English=North Sea crossings, cars;French=Traversées de la mer du Nord, voitures;German=Nordseefähren, Pkw
P723;N;N;N;Tidewell;;;;1;DefaultParent=P72;English=North Sea crossings, lorries;French=Traversées de la mer du Nord, poids lourds;German=Nordseefähren, Lkw
P724;N;N;N;Tidewell;;;;1;DefaultParent=P72;English=North Sea crossings, on board;French=Traversées de la mer du Nord, ventes à bord;German=Nordseefähren, Bordverkauf
P725;N;N;N;Tidewell;;;;1;DefaultParent=P72;English=North Sea crossings, port services;French=Traversées de la mer du Nord, services portuaires;German=Nordseefähren, Hafendienste
P73;Y;N;N;Tidewell;;;;0;DefaultParent=P7;English=Channel crossings;French=Traversées de la Manche;German=Kanalfähren
P731;N;N;N;Tidewell;;;;1;DefaultParent=P73;English=Channel crossings, passengers;French=Traversées de la Manche, passagers;German=Kanalfähren, Passagiere
P732;N;N;N;Tidewell;;;;1;DefaultParent=P73;English=Channel crossings, cars;French=Traversées de la Manche, voitures;German=Kanalfähren, Pkw
P733;N;N;N;Tidewell;;;;1;DefaultParent=P73;English=Channel crossings, lorries;French=Traversées de la Manche, poids lourds;German=Kanalfähren, Lkw
P734;N;N;N;Tidewell;;;;1;DefaultParent=P73;English=Channel crossings, on board;French=Traversées de la Manche, ventes à bord;German=Kanalfähren, Bordverkauf
P735;N;N;N;Tidewell;;;;1;DefaultParent=P73;English=Channel crossings, port services;French=Traversées de la Manche, services portuaires;German=Kanalfähren, Hafendienste
P74;Y;N;N;Tidewell;;;;0;DefaultParent=P7;English=Mediterranean crossings;French=Traversées de la Méditerranée;German=Mittelmeerfähren
P741;N;N;N;Tidewell;;;;1;DefaultParent=P74;English=Mediterranean crossings, passengers;French=Traversées de la Méditerranée, passagers;German=Mittelmeerfähren, Passagiere
P742;N;N;N;Tidewell;;;;1;DefaultParent=P74;English=Mediterranean crossings, cars;French=Traversées de la Méditerranée, voitures;German=Mittelmeerfähren, Pkw
P743;N;N;N;Tidewell;;;;1;DefaultParent=P74;English=Mediterranean crossings, lorries;French=Traversées de la Méditerranée, poids lourds;German=Mittelmeerfähren, Lkw
P744;N;N;N;Tidewell;;;;1;DefaultParent=P74;English=Mediterranean crossings, on board;French=Traversées de la Méditerranée, ventes à bord;German=Mittelmeerfähren, Bordverkauf
P745;N;N;N;Tidewell;;;;1;DefaultParent=P74;English=Mediterranean crossings, port services;French=Traversées de la Méditerranée, services portuaires;German=Mittelmeerfähren, Hafendienste
P8;Y;N;N;Ferrow Engineering;;;;0;DefaultParent=ALL_PRODUCTS;English=Machines and service;French=Machines et services;German=Maschinen und Service
P81;Y;N;N;Ferrow Engineering;;;;0;DefaultParent=P8;English=Filling lines;French=Lignes de remplissage;German=Abfüllanlagen
P811;N;N;N;Ferrow Engineering;;;;1;DefaultParent=P81;English=Filling lines, new machines;French=Lignes de remplissage, machines neuves;German=Abfüllanlagen, Neumaschinen
P812;N;N;N;Ferrow Engineering;;;;1;DefaultParent=P81;English=Filling lines, spare parts;French=Lignes de remplissage, pièces de rechange;German=Abfüllanlagen, Ersatzteile
P813;N;N;N;Ferrow Engineering;;;;1;DefaultParent=P81;English=Filling lines, maintenance;French=Lignes de remplissage, maintenance;German=Abfüllanlagen, Wartung
P814;N;N;N;Ferrow Engineering;;;;1;DefaultParent=P81;English=Filling lines, rebuilding;French=Lignes de remplissage, rénovation;German=Abfüllanlagen, Umbau
P82;Y;N;N;Ferrow Engineering;;;;0;DefaultParent=P8;English=Saw lines;French=Lignes de sciage;German=Sägelinien
P821;N;N;N;Ferrow Engineering;;;;1;DefaultParent=P82;English=Saw lines, new machines;French=Lignes de sciage, machines neuves;German=Sägelinien, Neumaschinen
P822;N;N;N;Ferrow Engineering;;;;1;DefaultParent=P82;English=Saw lines, spare parts;French=Lignes de sciage, pièces de rechange;German=Sägelinien, Ersatzteile
P823;N;N;N;Ferrow Engineering;;;;1;DefaultParent=P82;English=Saw lines, maintenance;French=Lignes de sciage, maintenance;German=Sägelinien, Wartung
P824;N;N;N;Ferrow Engineering;;;;1;DefaultParent=P82;English=Saw lines, rebuilding;French=Lignes de sciage, rénovation;German=Sägelinien, Umbau
P83;Y;N;N;Ferrow Engineering;;;;0;DefaultParent=P8;English=Furnaces;French=Fours;German=Öfen
P831;N;N;N;Ferrow Engineering;;;;1;DefaultParent=P83;English=Furnaces, new machines;French=Fours, machines neuves;German=Öfen, Neumaschinen
P832;N;N;N;Ferrow Engineering;;;;1;DefaultParent=P83;English=Furnaces, spare parts;French=Fours, pièces de rechange;German=Öfen, Ersatzteile
P833;N;N;N;Ferrow Engineering;;;;1;DefaultParent=P83;English=Furnaces, maintenance;French=Fours, maintenance;German=Öfen, Wartung
P834;N;N;N;Ferrow Engineering;;;;1;DefaultParent=P83;English=Furnaces, rebuilding;French=Fours, rénovation;German=Öfen, Umbau
P84;Y;N;N;Ferrow Engineering;;;;0;DefaultParent=P8;English=Conveyors;French=Convoyeurs;German=Förderanlagen
P841;N;N;N;Ferrow Engineering;;;;1;DefaultParent=P84;English=Conveyors, new machines;French=Convoyeurs, machines neuves;German=Förderanlagen, Neumaschinen
P842;N;N;N;Ferrow Engineering;;;;1;DefaultParent=P84;English=Conveyors, spare parts;French=Convoyeurs, pièces de rechange;German=Förderanlagen, Ersatzteile
P843;N;N;N;Ferrow Engineering;;;;1;DefaultParent=P84;English=Conveyors, maintenance;French=Convoyeurs, maintenance;German=Förderanlagen, Wartung
P844;N;N;N;Ferrow Engineering;;;;1;DefaultParent=P84;English=Conveyors, rebuilding;French=Convoyeurs, rénovation;German=Förderanlagen, Umbau
P9;Y;N;N;;;;;0;DefaultParent=ALL_PRODUCTS;English=Not allocated;French=Non affecté;German=Nicht zugeordnet
P9-SERV;N;N;N;;;;;1;DefaultParent=P9;English=Services;French=Services;German=Dienstleistungen
P9-OTH;N;N;N;;;;;1;DefaultParent=P9;English=Other;French=Autres;German=Sonstiges
BRANDS;Y;N;N;;Brand;;;0;DefaultParent=#root;English=By brand;French=Par marque;German=Nach Marke
Harrow & Finch;Y;N;N;;Brand;;;0;DefaultParent=BRANDS;English=Harrow & Finch
"La Bergerette";Y;N;N;;Brand;;;0;DefaultParent=BRANDS;English=La Bergerette
Clearfell 100%;Y;N;N;;Brand;;;0;DefaultParent=BRANDS;English=Clearfell 100%
Skylark;Y;N;N;;Brand;;;0;DefaultParent=BRANDS;English=Skylark
Own label;Y;N;N;;Brand;;;0;DefaultParent=BRANDS;English=Own label;French=Marques de distributeurs;German=Handelsmarken
Sans marque;Y;N;N;;Brand;;;0;DefaultParent=BRANDS;English=Without brand;French=Sans marque;German=Ohne Marke
GREEN;Y;N;N;;Label;;;0;DefaultParent=#root;English=Products with an environmental label;French=Produits écolabellisés;German=Produkte mit Umweltzeichen
!HIERARCHIES=Product
;[None];0
;ALL_PRODUCTS;1
ALL_PRODUCTS;P1;1
P1;P11;1
P11;P111;1
P11;P112;1
P11;P113;1
P11;P114;1
P11;P115;1
P1;P12;1
P12;P121;1
P12;P122;1
P12;P123;1
P12;P124;1
P12;P125;1
P1;P13;1
P13;P131;1
P13;P132;1
P13;P133;1
P13;P134;1
P13;P135;1
P1;P14;1
P14;P141;1
P14;P142;1
P14;P143;1
P14;P144;1
P14;P145;1
ALL_PRODUCTS;P2;1
P2;P21;1
P21;P211;1
P21;P212;1
P21;P213;1
P21;P214;1
P21;P215;1
P2;P22;1
P22;P221;1
P22;P222;1
P22;P223;1
P22;P224;1
P22;P225;1
P2;P23;1
P23;P231;1
P23;P232;1
P23;P233;1
P23;P234;1
P23;P235;1
P2;P24;1
P24;P241;1
P24;P242;1
P24;P243;1
P24;P244;1
P24;P245;1
ALL_PRODUCTS;P3;1
P3;P31;1
P31;P311;1
P31;P312;1
P31;P313;1
P31;P314;1
P3;P32;1
P32;P321;1
P32;P322;1
P32;P323;1
P32;P324;1
P3;P33;1
P33;P331;1
P33;P332;1
P33;P333;1
P33;P334;1
P3;P34;1
P34;P341;1
P34;P342;1
P34;P343;1
P34;P344;1
ALL_PRODUCTS;P4;1
P4;P41;1
P41;P411;1
P41;P412;1
P41;P413;1
P41;P414;1
P4;P42;1
P42;P421;1
P42;P422;1
P42;P423;1
P42;P424;1
P4;P43;1
P43;P431;1
P43;P432;1
P43;P433;1
P43;P434;1
P4;P44;1
P44;P441;1
P44;P442;1
P44;P443;1
P44;P444;1
ALL_PRODUCTS;P5;1
P5;P51;1
P51;P511;1
P51;P512;1
P51;P513;1
P51;P514;1
P5;P52;1
P52;P521;1
P52;P522;1
P52;P523;1
P52;P524;1
P5;P53;1
P53;P531;1
P53;P532;1
P53;P533;1
P53;P534;1
P5;P54;1
P54;P541;1
P54;P542;1
P54;P543;1
P54;P544;1
ALL_PRODUCTS;P6;1
P6;P61;1
P61;P611;1
P61;P612;1
P61;P613;1
P61;P614;1
P6;P62;1
P62;P621;1
P62;P622;1
P62;P623;1
P62;P624;1
P6;P63;1
P63;P631;1
P63;P632;1
P63;P633;1
P63;P634;1
P6;P64;1
P64;P641;1
P64;P642;1
P64;P643;1
P64;P644;1
ALL_PRODUCTS;P7;1
P7;P71;1
P71;P711;1
P71;P712;1
P71;P713;1
P71;P714;1
P71;P715;1
P7;P72;1
P72;P721;1
P72;P722;1
P72;P723;1
P72;P724;1
P72;P725;1
P7;P73;1
P73;P731;1
P73;P732;1
P73;P733;1
P73;P734;1
P73;P735;1
P7;P74;1
P74;P741;1
P74;P742;1
P74;P743;1
P74;P744;1
P74;P745;1
ALL_PRODUCTS;P8;1
P8;P81;1
P81;P811;1
P81;P812;1
P81;P813;1
P81;P814;1
P8;P82;1
P82;P821;1
P82;P822;1
P82;P823;1
P82;P824;1
P8;P83;1
P83;P831;1
P83;P832;1
P83;P833;1
P83;P834;1
P8;P84;1
P84;P841;1
P84;P842;1
P84;P843;1
P84;P844;1
ALL_PRODUCTS;P9;1
P9;P9-SERV;1
P9;P9-OTH;1
;BRANDS;1
BRANDS;Harrow & Finch;1
Harrow & Finch;P11;1
Harrow & Finch;P12;1
BRANDS;"La Bergerette";1
"La Bergerette";P12;1
"La Bergerette";P14;1
BRANDS;Clearfell 100%;1
Clearfell 100%;P21;1
Clearfell 100%;P23;1
BRANDS;Skylark;1
Skylark;P31;1
Skylark;P32;1
BRANDS;Own label;1
Own label;P13;1
Own label;P113;1
Own label;P123;1
Own label;P143;1
Own label;P42;1
BRANDS;Sans marque;1
Sans marque;P5;1
Sans marque;P6;1
;GREEN;1
GREEN;P112;1
GREEN;P122;1
GREEN;P132;1
GREEN;P142;1
GREEN;P214;1
GREEN;P41;1
GREEN;P62;1
!MEMBERS=Market
'Label;IsCalculated;SwitchSignForFlow;SwitchTypeForFlow;UserDefined1;UserDefined2;UserDefined3;SecurityClass;SubmissionGroup;DefaultParent;Descriptions
[None];N;N;N;;;;;1;DefaultParent=#root
ALL_MARKETS;Y;N;N;;;;;0;DefaultParent=#root;English=All markets;French=Tous les marchés;German=Alle Märkte
RETAIL;Y;N;N;;;;;0;DefaultParent=ALL_MARKETS;English=Retail;French=Grande distribution;German=Einzelhandel
R-HYPER;N;N;N;;;;;1;DefaultParent=RETAIL;English=Hypermarkets;French=Hypermarchés;German=SB-Warenhäuser
R-SUPER;N;N;N;;;;;1;DefaultParent=RETAIL;English=Supermarkets;French=Supermarchés;German=Supermärkte
R-DISC;N;N;N;;;;;1;DefaultParent=RETAIL;English=Discounters;French=Maxidiscompte;German=Discounter
R-CONV;N;N;N;;;;;1;DefaultParent=RETAIL;English=Convenience stores;French=Commerces de proximité;German=Nahversorger
R-DIY;N;N;N;;;;;1;DefaultParent=RETAIL;English=DIY stores;French=Magasins de bricolage;German=Baumärkte
R-ONLINE;N;N;N;;;;;1;DefaultParent=RETAIL;English=Online;French=En ligne;German=Online
WHOLESALE;Y;N;N;;;;;0;DefaultParent=ALL_MARKETS;English=Wholesale;French=Commerce de gros;German=Großhandel
W-FOOD;N;N;N;;;;;1;DefaultParent=WHOLESALE;English=Food wholesalers;French=Grossistes alimentaires;German=Lebensmittelgroßhandel
W-BUILD;N;N;N;;;;;1;DefaultParent=WHOLESALE;English=Builders' merchants;French=Négoces de matériaux;German=Baustoffhandel
W-PAPER;N;N;N;;;;;1;DefaultParent=WHOLESALE;English=Paper merchants;French=Négoces de papier;German=Papiergroßhandel
W-EXP;N;N;N;;;;;1;DefaultParent=WHOLESALE;English=Exporters;French=Exportateurs;German=Exporteure
INDUSTRY;Y;N;N;;;;;0;DefaultParent=ALL_MARKETS;English=Industry;French=Industrie;German=Industrie
I-FOOD;N;N;N;;;;;1;DefaultParent=INDUSTRY;English=Food industry;French=Industrie agroalimentaire;German=Lebensmittelindustrie
I-AUTO;N;N;N;;;;;1;DefaultParent=INDUSTRY;English=Car makers;French=Constructeurs automobiles;German=Automobilhersteller
I-FURN;N;N;N;;;;;1;DefaultParent=INDUSTRY;English=Furniture makers;French=Fabricants de meubles;German=Möbelhersteller
I-PRINT;N;N;N;;;;;1;DefaultParent=INDUSTRY;English=Printers;French=Imprimeurs;German=Druckereien
I-PACK;N;N;N;;;;;1;DefaultParent=INDUSTRY;English=Packaging makers;French=Fabricants d'emballages;German=Verpackungshersteller
I-CHEM;N;N;N;;;;;1;DefaultParent=INDUSTRY;English=Chemical industry;French=Industrie chimique;German=Chemische Industrie
BUILDING;Y;N;N;;;;;0;DefaultParent=ALL_MARKETS;English=Building;French=Bâtiment;German=Bau
B-RES;N;N;N;;;;;1;DefaultParent=BUILDING;English=Housing;French=Logement;German=Wohnungsbau
B-OFF;N;N;N;;;;;1;DefaultParent=BUILDING;English=Offices;French=Bureaux;German=Bürobau
B-CIVIL;N;N;N;;;;;1;DefaultParent=BUILDING;English=Civil engineering;French=Travaux publics;German=Tiefbau
B-REN;N;N;N;;;;;1;DefaultParent=BUILDING;English=Renovation;French=Rénovation;German=Renovierung
PUBLIC;Y;N;N;;;;;0;DefaultParent=ALL_MARKETS;English=Public sector;French=Secteur public;German=Öffentliche Hand
P-STATE;N;N;N;;;;;1;DefaultParent=PUBLIC;English=State;French=État;German=Staat
P-CITY;N;N;N;;;;;1;DefaultParent=PUBLIC;English=Cities;French=Collectivités;German=Kommunen
P-HOSP;N;N;N;;;;;1;DefaultParent=PUBLIC;English=Hospitals;French=Hôpitaux;German=Krankenhäuser
P-SCHOOL;N;N;N;;;;;1;DefaultParent=PUBLIC;English=Schools;French=Écoles;German=Schulen
TRAVEL;Y;N;N;;;;;0;DefaultParent=ALL_MARKETS;English=Travel;French=Voyage;German=Reise
T-PASS;N;N;N;;;;;1;DefaultParent=TRAVEL;English=Passengers;French=Passagers;German=Passagiere
T-CAR;N;N;N;;;;;1;DefaultParent=TRAVEL;English=Cars;French=Voitures;German=Pkw
T-FREIGHT;N;N;N;;;;;1;DefaultParent=TRAVEL;English=Freight;French=Fret;German=Fracht
T-AGENCY;N;N;N;;;;;1;DefaultParent=TRAVEL;English=Travel agencies;French=Agences de voyages;German=Reisebüros
IC MARKET;Y;N;N;;;;;0;DefaultParent=ALL_MARKETS;English=Within the group;French=Intragroupe;German=Innerhalb des Konzerns
IC-SALES;N;N;N;;;;;1;DefaultParent=IC MARKET;English=Sales to group companies;French=Ventes au groupe;German=Verkäufe an den Konzern
KEY ACCOUNTS;Y;N;N;;;;;0;DefaultParent=#root;English=By size of customer;French=Par taille de client;German=Nach Kundengröße
KA-A;Y;N;N;;;;;0;DefaultParent=KEY ACCOUNTS;English=A: above 10% of revenue;French=A : plus de 10 % des ventes;German=A: über 10 % vom Umsatz
KA-B;Y;N;N;;;;;0;DefaultParent=KEY ACCOUNTS;English=B: 1% to 10% of revenue;French=B : de 1 % à 10 % des ventes;German=B: 1 % bis 10 % vom Umsatz
KA-C;Y;N;N;;;;;0;DefaultParent=KEY ACCOUNTS;English=C: below 1% of revenue;French=C : moins de 1 % des ventes;German=C: unter 1 % vom Umsatz
DIRECT;Y;N;N;;;;;0;DefaultParent=#root;English=Direct sales;French=Ventes directes;German=Direktvertrieb
!HIERARCHIES=Market
;[None];0
;ALL_MARKETS;1
ALL_MARKETS;RETAIL;1
RETAIL;R-HYPER;1
RETAIL;R-SUPER;1
RETAIL;R-DISC;1
RETAIL;R-CONV;1
RETAIL;R-DIY;1
RETAIL;R-ONLINE;1
ALL_MARKETS;WHOLESALE;1
WHOLESALE;W-FOOD;1
WHOLESALE;W-BUILD;1
WHOLESALE;W-PAPER;1
WHOLESALE;W-EXP;1
ALL_MARKETS;INDUSTRY;1
INDUSTRY;I-FOOD;1
INDUSTRY;I-AUTO;1
INDUSTRY;I-FURN;1
INDUSTRY;I-PRINT;1
INDUSTRY;I-PACK;1
INDUSTRY;I-CHEM;1
ALL_MARKETS;BUILDING;1
BUILDING;B-RES;1
BUILDING;B-OFF;1
BUILDING;B-CIVIL;1
BUILDING;B-REN;1
ALL_MARKETS;PUBLIC;1
PUBLIC;P-STATE;1
PUBLIC;P-CITY;1
PUBLIC;P-HOSP;1
PUBLIC;P-SCHOOL;1
ALL_MARKETS;TRAVEL;1
TRAVEL;T-PASS;1
TRAVEL;T-CAR;1
TRAVEL;T-FREIGHT;1
TRAVEL;T-AGENCY;1
ALL_MARKETS;IC MARKET;1
IC MARKET;IC-SALES;1
;KEY ACCOUNTS;1
KEY ACCOUNTS;KA-A;1
KA-A;RETAIL;1
KA-A;I-AUTO;1
KEY ACCOUNTS;KA-B;1
KA-B;WHOLESALE;1
KA-B;I-FOOD;1
KA-B;I-PACK;1
KA-B;P-STATE;1
KEY ACCOUNTS;KA-C;1
KA-C;BUILDING;1
KA-C;TRAVEL;1
KA-C;P-CITY;1
KA-C;P-SCHOOL;1
;DIRECT;1
DIRECT;R-ONLINE;1
DIRECT;T-PASS;1
DIRECT;T-CAR;1
!MEMBERS=CostCenter
'Label;IsCalculated;SwitchSignForFlow;SwitchTypeForFlow;UserDefined1;UserDefined2;UserDefined3;SecurityClass;SubmissionGroup;DefaultParent;Descriptions
[None];N;N;N;;;;;1;DefaultParent=#root
ALL_CC;Y;N;N;;;;;0;DefaultParent=#root;English=All cost centres;French=Tous les centres de coûts;German=Alle Kostenstellen
CC-1;Y;N;N;;;;SC_CC1;0;DefaultParent=ALL_CC;English=Production overheads;French=Frais généraux de production;German=Fertigungsgemeinkosten
CC-10;N;N;N;;;;SC_CC1;1;DefaultParent=CC-1;English=Production overheads: management;French=Frais généraux de production : direction;German=Fertigungsgemeinkosten: Leitung
CC-11;N;N;N;;;;SC_CC1;1;DefaultParent=CC-1;English=Production overheads: planning;French=Frais généraux de production : planification;German=Fertigungsgemeinkosten: Planung
CC-12;N;N;N;;;;SC_CC1;1;DefaultParent=CC-1;English=Production overheads: operations;French=Frais généraux de production : opérations;German=Fertigungsgemeinkosten: Betrieb
CC-13;N;N;N;;;;SC_CC1;1;DefaultParent=CC-1;English=Production overheads: quality;French=Frais généraux de production : qualité;German=Fertigungsgemeinkosten: Qualität
CC-14;N;N;N;;;;SC_CC1;1;DefaultParent=CC-1;English=Production overheads: projects;French=Frais généraux de production : projets;German=Fertigungsgemeinkosten: Projekte
CC-15;N;N;N;;;;SC_CC1;1;DefaultParent=CC-1;English=Production overheads: systems;French=Frais généraux de production : systèmes;German=Fertigungsgemeinkosten: Systeme
CC-16;N;N;N;;;;SC_CC1;1;DefaultParent=CC-1;English=Production overheads: support;French=Frais généraux de production : assistance;German=Fertigungsgemeinkosten: Unterstützung
CC-17;N;N;N;;;;SC_CC1;1;DefaultParent=CC-1;English=Production overheads: archive;French=Frais généraux de production : archives;German=Fertigungsgemeinkosten: Archiv
CC-2;Y;N;N;;;;SC_CC2;0;DefaultParent=ALL_CC;English=Logistics;French=Logistique;German=Logistik
CC-20;N;N;N;;;;SC_CC2;1;DefaultParent=CC-2;English=Logistics: management;French=Logistique : direction;German=Logistik: Leitung
CC-21;N;N;N;;;;SC_CC2;1;DefaultParent=CC-2;English=Logistics: planning;French=Logistique : planification;German=Logistik: Planung
CC-22;N;N;N;;;;SC_CC2;1;DefaultParent=CC-2;English=Logistics: operations;French=Logistique : opérations;German=Logistik: Betrieb
CC-23;N;N;N;;;;SC_CC2;1;DefaultParent=CC-2;English=Logistics: quality;French=Logistique : qualité;German=Logistik: Qualität
CC-24;N;N;N;;;;SC_CC2;1;DefaultParent=CC-2;English=Logistics: projects;French=Logistique : projets;German=Logistik: Projekte
CC-25;N;N;N;;;;SC_CC2;1;DefaultParent=CC-2;English=Logistics: systems;French=Logistique : systèmes;German=Logistik: Systeme
CC-26;N;N;N;;;;SC_CC2;1;DefaultParent=CC-2;English=Logistics: support;French=Logistique : assistance;German=Logistik: Unterstützung
CC-27;N;N;N;;;;SC_CC2;1;DefaultParent=CC-2;English=Logistics: archive;French=Logistique : archives;German=Logistik: Archiv
CC-3;Y;N;N;;;;SC_CC3;0;DefaultParent=ALL_CC;English=Sales;French=Ventes;German=Vertrieb
CC-30;N;N;N;;;;SC_CC3;1;DefaultParent=CC-3;English=Sales: management;French=Ventes : direction;German=Vertrieb: Leitung
CC-31;N;N;N;;;;SC_CC3;1;DefaultParent=CC-3;English=Sales: planning;French=Ventes : planification;German=Vertrieb: Planung
CC-32;N;N;N;;;;SC_CC3;1;DefaultParent=CC-3;English=Sales: operations;French=Ventes : opérations;German=Vertrieb: Betrieb
CC-33;N;N;N;;;;SC_CC3;1;DefaultParent=CC-3;English=Sales: quality;French=Ventes : qualité;German=Vertrieb: Qualität
CC-34;N;N;N;;;;SC_CC3;1;DefaultParent=CC-3;English=Sales: projects;French=Ventes : projets;German=Vertrieb: Projekte
CC-35;N;N;N;;;;SC_CC3;1;DefaultParent=CC-3;English=Sales: systems;French=Ventes : systèmes;German=Vertrieb: Systeme
CC-36;N;N;N;;;;SC_CC3;1;DefaultParent=CC-3;English=Sales: support;French=Ventes : assistance;German=Vertrieb: Unterstützung
CC-37;N;N;N;;;;SC_CC3;1;DefaultParent=CC-3;English=Sales: archive;French=Ventes : archives;German=Vertrieb: Archiv
CC-4;Y;N;N;;;;SC_CC4;0;DefaultParent=ALL_CC;English=Marketing;French=Marketing;German=Marketing
CC-40;N;N;N;;;;SC_CC4;1;DefaultParent=CC-4;English=Marketing: management;French=Marketing : direction;German=Marketing: Leitung
CC-41;N;N;N;;;;SC_CC4;1;DefaultParent=CC-4;English=Marketing: planning;French=Marketing : planification;German=Marketing: Planung
CC-42;N;N;N;;;;SC_CC4;1;DefaultParent=CC-4;English=Marketing: operations;French=Marketing : opérations;German=Marketing: Betrieb
CC-43;N;N;N;;;;SC_CC4;1;DefaultParent=CC-4;English=Marketing: quality;French=Marketing : qualité;German=Marketing: Qualität
CC-44;N;N;N;;;;SC_CC4;1;DefaultParent=CC-4;English=Marketing: projects;French=Marketing : projets;German=Marketing: Projekte
CC-45;N;N;N;;;;SC_CC4;1;DefaultParent=CC-4;English=Marketing: systems;French=Marketing : systèmes;German=Marketing: Systeme
CC-46;N;N;N;;;;SC_CC4;1;DefaultParent=CC-4;English=Marketing: support;French=Marketing : assistance;German=Marketing: Unterstützung
CC-47;N;N;N;;;;SC_CC4;1;DefaultParent=CC-4;English=Marketing: archive;French=Marketing : archives;German=Marketing: Archiv
CC-5;Y;N;N;;;;SC_CC5;0;DefaultParent=ALL_CC;English=R&D;French=R&D;German=F&E
CC-50;N;N;N;;;;SC_CC5;1;DefaultParent=CC-5;English=R&D: management;French=R&D : direction;German=F&E: Leitung
CC-51;N;N;N;;;;SC_CC5;1;DefaultParent=CC-5;English=R&D: planning;French=R&D : planification;German=F&E: Planung
CC-52;N;N;N;;;;SC_CC5;1;DefaultParent=CC-5;English=R&D: operations;French=R&D : opérations;German=F&E: Betrieb
CC-53;N;N;N;;;;SC_CC5;1;DefaultParent=CC-5;English=R&D: quality;French=R&D : qualité;German=F&E: Qualität
CC-54;N;N;N;;;;SC_CC5;1;DefaultParent=CC-5;English=R&D: projects;French=R&D : projets;German=F&E: Projekte
CC-55;N;N;N;;;;SC_CC5;1;DefaultParent=CC-5;English=R&D: systems;French=R&D : systèmes;German=F&E: Systeme
CC-56;N;N;N;;;;SC_CC5;1;DefaultParent=CC-5;English=R&D: support;French=R&D : assistance;German=F&E: Unterstützung
CC-57;N;N;N;;;;SC_CC5;1;DefaultParent=CC-5;English=R&D: archive;French=R&D : archives;German=F&E: Archiv
CC-6;Y;N;N;;;;SC_CC6;0;DefaultParent=ALL_CC;English=Finance;French=Finance;German=Finanzen
CC-60;N;N;N;;;;SC_CC6;1;DefaultParent=CC-6;English=Finance: management;French=Finance : direction;German=Finanzen: Leitung
CC-61;N;N;N;;;;SC_CC6;1;DefaultParent=CC-6;English=Finance: planning;French=Finance : planification;German=Finanzen: Planung
CC-62;N;N;N;;;;SC_CC6;1;DefaultParent=CC-6;English=Finance: operations;French=Finance : opérations;German=Finanzen: Betrieb
CC-63;N;N;N;;;;SC_CC6;1;DefaultParent=CC-6;English=Finance: quality;French=Finance : qualité;German=Finanzen: Qualität
CC-64;N;N;N;;;;SC_CC6;1;DefaultParent=CC-6;English=Finance: projects;French=Finance : projets;German=Finanzen: Projekte
CC-65;N;N;N;;;;SC_CC6;1;DefaultParent=CC-6;English=Finance: systems;French=Finance : systèmes;German=Finanzen: Systeme
CC-66;N;N;N;;;;SC_CC6;1;DefaultParent=CC-6;English=Finance: support;French=Finance : assistance;German=Finanzen: Unterstützung
CC-67;N;N;N;;;;SC_CC6;1;DefaultParent=CC-6;English=Finance: archive;French=Finance : archives;German=Finanzen: Archiv
CC-7;Y;N;N;;;;SC_CC7;0;DefaultParent=ALL_CC;English=Human resources;French=Ressources humaines;German=Personalwesen
CC-70;N;N;N;;;;SC_CC7;1;DefaultParent=CC-7;English=Human resources: management;French=Ressources humaines : direction;German=Personalwesen: Leitung
CC-71;N;N;N;;;;SC_CC7;1;DefaultParent=CC-7;English=Human resources: planning;French=Ressources humaines : planification;German=Personalwesen: Planung
CC-72;N;N;N;;;;SC_CC7;1;DefaultParent=CC-7;English=Human resources: operations;French=Ressources humaines : opérations;German=Personalwesen: Betrieb
CC-73;N;N;N;;;;SC_CC7;1;DefaultParent=CC-7;English=Human resources: quality;French=Ressources humaines : qualité;German=Personalwesen: Qualität
CC-74;N;N;N;;;;SC_CC7;1;DefaultParent=CC-7;English=Human resources: projects;French=Ressources humaines : projets;German=Personalwesen: Projekte
CC-75;N;N;N;;;;SC_CC7;1;DefaultParent=CC-7;English=Human resources: systems;French=Ressources humaines : systèmes;German=Personalwesen: Systeme
CC-76;N;N;N;;;;SC_CC7;1;DefaultParent=CC-7;English=Human resources: support;French=Ressources humaines : assistance;German=Personalwesen: Unterstützung
CC-77;N;N;N;;;;SC_CC7;1;DefaultParent=CC-7;English=Human resources: archive;French=Ressources humaines : archives;German=Personalwesen: Archiv
CC-8;Y;N;N;;;;SC_CC8;0;DefaultParent=ALL_CC;English=IT;French=Informatique;German=IT
CC-80;N;N;N;;;;SC_CC8;1;DefaultParent=CC-8;English=IT: management;French=Informatique : direction;German=IT: Leitung
CC-81;N;N;N;;;;SC_CC8;1;DefaultParent=CC-8;English=IT: planning;French=Informatique : planification;German=IT: Planung
CC-82;N;N;N;;;;SC_CC8;1;DefaultParent=CC-8;English=IT: operations;French=Informatique : opérations;German=IT: Betrieb
CC-83;N;N;N;;;;SC_CC8;1;DefaultParent=CC-8;English=IT: quality;French=Informatique : qualité;German=IT: Qualität
CC-84;N;N;N;;;;SC_CC8;1;DefaultParent=CC-8;English=IT: projects;French=Informatique : projets;German=IT: Projekte
CC-85;N;N;N;;;;SC_CC8;1;DefaultParent=CC-8;English=IT: systems;French=Informatique : systèmes;German=IT: Systeme
CC-86;N;N;N;;;;SC_CC8;1;DefaultParent=CC-8;English=IT: support;French=Informatique : assistance;German=IT: Unterstützung
CC-87;N;N;N;;;;SC_CC8;1;DefaultParent=CC-8;English=IT: archive;French=Informatique : archives;German=IT: Archiv
CC-9;Y;N;N;;;;SC_CC9;0;DefaultParent=ALL_CC;English=General management;French=Direction générale;German=Geschäftsleitung
CC-90;N;N;N;;;;SC_CC9;1;DefaultParent=CC-9;English=General management: management;French=Direction générale : direction;German=Geschäftsleitung: Leitung
CC-91;N;N;N;;;;SC_CC9;1;DefaultParent=CC-9;English=General management: planning;French=Direction générale : planification;German=Geschäftsleitung: Planung
CC-92;N;N;N;;;;SC_CC9;1;DefaultParent=CC-9;English=General management: operations;French=Direction générale : opérations;German=Geschäftsleitung: Betrieb
CC-93;N;N;N;;;;SC_CC9;1;DefaultParent=CC-9;English=General management: quality;French=Direction générale : qualité;German=Geschäftsleitung: Qualität
CC-94;N;N;N;;;;SC_CC9;1;DefaultParent=CC-9;English=General management: projects;French=Direction générale : projets;German=Geschäftsleitung: Projekte
CC-95;N;N;N;;;;SC_CC9;1;DefaultParent=CC-9;English=General management: systems;French=Direction générale : systèmes;German=Geschäftsleitung: Systeme
CC-96;N;N;N;;;;SC_CC9;1;DefaultParent=CC-9;English=General management: support;French=Direction générale : assistance;German=Geschäftsleitung: Unterstützung
CC-97;N;N;N;;;;SC_CC9;1;DefaultParent=CC-9;English=General management: archive;French=Direction générale : archives;German=Geschäftsleitung: Archiv
CC-SHARED;Y;N;N;;;;SC_CORP;0;DefaultParent=ALL_CC;English=Shared service centres;French=Centres de services partagés;German=Shared Service Center
CC-SSC1;N;N;N;;;;SC_CORP;1;DefaultParent=CC-SHARED;English=Accounting centre Kraków;French=Centre comptable de Cracovie;German=Buchhaltungszentrum Krakau
CC-SSC2;N;N;N;;;;SC_CORP;1;DefaultParent=CC-SHARED;English=Payroll centre Porto;French=Centre de paie de Porto;German=Lohnbüro Porto
CC-SSC3;N;N;N;;;;SC_CORP;1;DefaultParent=CC-SHARED;English=IT centre Łódź;French=Centre informatique de Łódź;German=Rechenzentrum Łódź
CC-SSC4;N;N;N;;;;SC_CORP;1;DefaultParent=CC-SHARED;English=Purchasing centre Ghent;French=Centre d'achats de Gand;German=Einkaufszentrum Gent
OVERHEADS;Y;N;N;;;;;0;DefaultParent=#root;English=Overheads;French=Frais généraux;German=Gemeinkosten
COO;Y;N;N;;;;;0;DefaultParent=#root;English=Chief operating officer;French=Direction des opérations;German=Vorstand Betrieb
CFO;Y;N;N;;;;;0;DefaultParent=#root;English=Chief financial officer;French=Direction financière;German=Vorstand Finanzen
!HIERARCHIES=CostCenter
;[None];0
;ALL_CC;1
ALL_CC;CC-1;1
CC-1;CC-10;1
CC-1;CC-11;1
CC-1;CC-12;1
CC-1;CC-13;1
CC-1;CC-14;1
CC-1;CC-15;1
CC-1;CC-16;1
CC-1;CC-17;1
ALL_CC;CC-2;1
CC-2;CC-20;1
CC-2;CC-21;1
CC-2;CC-22;1
CC-2;CC-23;1
CC-2;CC-24;1
CC-2;CC-25;1
CC-2;CC-26;1
CC-2;CC-27;1
ALL_CC;CC-3;1
CC-3;CC-30;1
CC-3;CC-31;1
CC-3;CC-32;1
CC-3;CC-33;1
CC-3;CC-34;1
CC-3;CC-35;1
CC-3;CC-36;1
CC-3;CC-37;1
ALL_CC;CC-4;1
CC-4;CC-40;1
CC-4;CC-41;1
CC-4;CC-42;1
CC-4;CC-43;1
CC-4;CC-44;1
CC-4;CC-45;1
CC-4;CC-46;1
CC-4;CC-47;1
ALL_CC;CC-5;1
CC-5;CC-50;1
CC-5;CC-51;1
CC-5;CC-52;1
CC-5;CC-53;1
CC-5;CC-54;1
CC-5;CC-55;1
CC-5;CC-56;1
CC-5;CC-57;1
ALL_CC;CC-6;1
CC-6;CC-60;1
CC-6;CC-61;1
CC-6;CC-62;1
CC-6;CC-63;1
CC-6;CC-64;1
CC-6;CC-65;1
CC-6;CC-66;1
CC-6;CC-67;1
ALL_CC;CC-7;1
CC-7;CC-70;1
CC-7;CC-71;1
CC-7;CC-72;1
CC-7;CC-73;1
CC-7;CC-74;1
CC-7;CC-75;1
CC-7;CC-76;1
CC-7;CC-77;1
ALL_CC;CC-8;1
CC-8;CC-80;1
CC-8;CC-81;1
CC-8;CC-82;1
CC-8;CC-83;1
CC-8;CC-84;1
CC-8;CC-85;1
CC-8;CC-86;1
CC-8;CC-87;1
ALL_CC;CC-9;1
CC-9;CC-90;1
CC-9;CC-91;1
CC-9;CC-92;1
CC-9;CC-93;1
CC-9;CC-94;1
CC-9;CC-95;1
CC-9;CC-96;1
CC-9;CC-97;1
ALL_CC;CC-SHARED;1
CC-SHARED;CC-SSC1;1
CC-SHARED;CC-SSC2;1
CC-SHARED;CC-SSC3;1
CC-SHARED;CC-SSC4;1
;OVERHEADS;1
OVERHEADS;CC-6;1
OVERHEADS;CC-7;1
OVERHEADS;CC-8;1
OVERHEADS;CC-9;1
OVERHEADS;CC-SHARED;1
;COO;1
COO;CC-1;1
COO;CC-2;1
COO;CC-SSC4;1
;CFO;1
CFO;CC-6;1
CFO;CC-SSC1;1
CFO;CC-SSC2;1
!MEMBERS=Account
'Label;AccountType;IsCalculated;IsConsolidated;IsICP;PlugAcct;Custom1TopMember;Custom2TopMember;Custom3TopMember;Custom4TopMember;NumDecimalPlaces;UsesLineItems;EnableCustom1Aggr;EnableCustom2Aggr;EnableCustom3Aggr;EnableCustom4Aggr;UserDefined1;UserDefined2;UserDefined3;XBRLTags;SecurityClass;ICPTopMember;EnableDataAudit;CalcAttribute;SubmissionGroup;DefaultParent;Descriptions
Balance Sheet;GROUPLABEL;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;BS;;;;SC_BS;[ICP None];N;;0;DefaultParent=#root;English=Balance sheet;French=Bilan;German=Bilanz
ASSETS;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP None];N;;0;DefaultParent=Balance Sheet;English=Total assets;French=Total de l'actif;German=Summe Aktiva
NCA;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP None];N;;0;DefaultParent=ASSETS;English=Non-current assets;French=Actifs non courants;German=Langfristige Vermögenswerte
INTANG;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];N;;0;DefaultParent=NCA;English=Intangible assets and goodwill;French=Immobilisations incorporelles et goodwill;German=Immaterielle Vermögenswerte
1105;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];N;;0;DefaultParent=INTANG;English=Goodwill;French=Goodwill;German=Geschäfts- oder Firmenwert
11051;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1105;English=Goodwill, gross value;French=Goodwill, valeur brute;German=Geschäfts- oder Firmenwert, Bruttowert
11052;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1105;English=Goodwill, accumulated depreciation;French=Goodwill, amortissements cumulés;German=Geschäfts- oder Firmenwert, kumulierte Abschreibungen
11053;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1105;English=Goodwill, accumulated impairment;French=Goodwill, dépréciations cumulées;German=Geschäfts- oder Firmenwert, kumulierte Wertminderungen
11054;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1105;English=Goodwill, revaluation;French=Goodwill, réévaluation;German=Geschäfts- oder Firmenwert, Neubewertung
1110;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];N;;0;DefaultParent=INTANG;English=Patents and licences;French=Brevets et licences;German=Patente und Lizenzen
11101;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1110;English=Patents and licences, gross value;French=Brevets et licences, valeur brute;German=Patente und Lizenzen, Bruttowert
11102;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1110;English=Patents and licences, accumulated depreciation;French=Brevets et licences, amortissements cumulés;German=Patente und Lizenzen, kumulierte Abschreibungen
11103;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1110;English=Patents and licences, accumulated impairment;French=Brevets et licences, dépréciations cumulées;German=Patente und Lizenzen, kumulierte Wertminderungen
11104;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1110;English=Patents and licences, revaluation;French=Brevets et licences, réévaluation;German=Patente und Lizenzen, Neubewertung
1115;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];N;;0;DefaultParent=INTANG;English=Brands;French=Marques;German=Marken
11151;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1115;English=Brands, gross value;French=Marques, valeur brute;German=Marken, Bruttowert
11152;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1115;English=Brands, accumulated depreciation;French=Marques, amortissements cumulés;German=Marken, kumulierte Abschreibungen
11153;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1115;English=Brands, accumulated impairment;French=Marques, dépréciations cumulées;German=Marken, kumulierte Wertminderungen
11154;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1115;English=Brands, revaluation;French=Marques, réévaluation;German=Marken, Neubewertung
1120;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];N;;0;DefaultParent=INTANG;English=Software;French=Logiciels;German=Software
11201;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1120;English=Software, gross value;French=Logiciels, valeur brute;German=Software, Bruttowert
11202;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1120;English=Software, accumulated depreciation;French=Logiciels, amortissements cumulés;German=Software, kumulierte Abschreibungen
11203;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1120;English=Software, accumulated impairment;French=Logiciels, dépréciations cumulées;German=Software, kumulierte Wertminderungen
11204;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1120;English=Software, revaluation;French=Logiciels, réévaluation;German=Software, Neubewertung
1125;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];N;;0;DefaultParent=INTANG;English=Customer relationships;French=Relations clientèle;German=Kundenbeziehungen
11251;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1125;English=Customer relationships, gross value;French=Relations clientèle, valeur brute;German=Kundenbeziehungen, Bruttowert
11252;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1125;English=Customer relationships, accumulated depreciation;French=Relations clientèle, amortissements cumulés;German=Kundenbeziehungen, kumulierte Abschreibungen
11253;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1125;English=Customer relationships, accumulated impairment;French=Relations clientèle, dépréciations cumulées;German=Kundenbeziehungen, kumulierte Wertminderungen
11254;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1125;English=Customer relationships, revaluation;French=Relations clientèle, réévaluation;German=Kundenbeziehungen, Neubewertung
1130;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];N;;0;DefaultParent=INTANG;English=Development costs;French=Frais de développement;German=Entwicklungskosten
11301;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1130;English=Development costs, gross value;French=Frais de développement, valeur brute;German=Entwicklungskosten, Bruttowert
11302;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1130;English=Development costs, accumulated depreciation;French=Frais de développement, amortissements cumulés;German=Entwicklungskosten, kumulierte Abschreibungen
11303;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1130;English=Development costs, accumulated impairment;French=Frais de développement, dépréciations cumulées;German=Entwicklungskosten, kumulierte Wertminderungen
11304;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1130;English=Development costs, revaluation;French=Frais de développement, réévaluation;German=Entwicklungskosten, Neubewertung
1135;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];N;;0;DefaultParent=INTANG;English=Concessions;French=Concessions;German=Konzessionen
11351;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1135;English=Concessions, gross value;French=Concessions, valeur brute;German=Konzessionen, Bruttowert
11352;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1135;English=Concessions, accumulated depreciation;French=Concessions, amortissements cumulés;German=Konzessionen, kumulierte Abschreibungen
11353;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1135;English=Concessions, accumulated impairment;French=Concessions, dépréciations cumulées;German=Konzessionen, kumulierte Wertminderungen
11354;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1135;English=Concessions, revaluation;French=Concessions, réévaluation;German=Konzessionen, Neubewertung
1140;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];N;;0;DefaultParent=INTANG;English=CO2 allowances;French=Quotas de CO2;German=CO2-Zertifikate
11401;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1140;English=CO2 allowances, gross value;French=Quotas de CO2, valeur brute;German=CO2-Zertifikate, Bruttowert
11402;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1140;English=CO2 allowances, accumulated depreciation;French=Quotas de CO2, amortissements cumulés;German=CO2-Zertifikate, kumulierte Abschreibungen
11403;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1140;English=CO2 allowances, accumulated impairment;French=Quotas de CO2, dépréciations cumulées;German=CO2-Zertifikate, kumulierte Wertminderungen
11404;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 9;;;SC_BS;[ICP None];Y;;1;DefaultParent=1140;English=CO2 allowances, revaluation;French=Quotas de CO2, réévaluation;German=CO2-Zertifikate, Neubewertung
PPE;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;ifrs-full_PropertyPlantAndEquipment;SC_BS;[ICP None];N;;0;DefaultParent=NCA;English=Property, plant and equipment;French=Immobilisations corporelles;German=Sachanlagen
1210;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];N;;0;DefaultParent=PPE;English=Land;French=Terrains;German=Grundstücke
12101;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1210;English=Land, gross value;French=Terrains, valeur brute;German=Grundstücke, Bruttowert
12102;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1210;English=Land, accumulated depreciation;French=Terrains, amortissements cumulés;German=Grundstücke, kumulierte Abschreibungen
12103;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1210;English=Land, accumulated impairment;French=Terrains, dépréciations cumulées;German=Grundstücke, kumulierte Wertminderungen
12104;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1210;English=Land, revaluation;French=Terrains, réévaluation;German=Grundstücke, Neubewertung
1215;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];N;;0;DefaultParent=PPE;English=Buildings;French=Constructions;German=Gebäude
12151;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1215;English=Buildings, gross value;French=Constructions, valeur brute;German=Gebäude, Bruttowert
12152;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1215;English=Buildings, accumulated depreciation;French=Constructions, amortissements cumulés;German=Gebäude, kumulierte Abschreibungen
12153;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1215;English=Buildings, accumulated impairment;French=Constructions, dépréciations cumulées;German=Gebäude, kumulierte Wertminderungen
12154;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1215;English=Buildings, revaluation;French=Constructions, réévaluation;German=Gebäude, Neubewertung
1220;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];N;;0;DefaultParent=PPE;English=Plant and machinery;French=Installations et machines;German=Technische Anlagen und Maschinen
12201;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1220;English=Plant and machinery, gross value;French=Installations et machines, valeur brute;German=Technische Anlagen und Maschinen, Bruttowert
12202;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1220;English=Plant and machinery, accumulated depreciation;French=Installations et machines, amortissements cumulés;German=Technische Anlagen und Maschinen, kumulierte Abschreibungen
12203;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1220;English=Plant and machinery, accumulated impairment;French=Installations et machines, dépréciations cumulées;German=Technische Anlagen und Maschinen, kumulierte Wertminderungen
12204;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1220;English=Plant and machinery, revaluation;French=Installations et machines, réévaluation;German=Technische Anlagen und Maschinen, Neubewertung
1225;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];N;;0;DefaultParent=PPE;English=Vessels;French=Navires;German=Schiffe
12251;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1225;English=Vessels, gross value;French=Navires, valeur brute;German=Schiffe, Bruttowert
12252;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1225;English=Vessels, accumulated depreciation;French=Navires, amortissements cumulés;German=Schiffe, kumulierte Abschreibungen
12253;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1225;English=Vessels, accumulated impairment;French=Navires, dépréciations cumulées;German=Schiffe, kumulierte Wertminderungen
12254;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1225;English=Vessels, revaluation;French=Navires, réévaluation;German=Schiffe, Neubewertung
1230;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];N;;0;DefaultParent=PPE;English=Vehicles;French=Véhicules;German=Fahrzeuge
12301;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1230;English=Vehicles, gross value;French=Véhicules, valeur brute;German=Fahrzeuge, Bruttowert
12302;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1230;English=Vehicles, accumulated depreciation;French=Véhicules, amortissements cumulés;German=Fahrzeuge, kumulierte Abschreibungen
12303;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1230;English=Vehicles, accumulated impairment;French=Véhicules, dépréciations cumulées;German=Fahrzeuge, kumulierte Wertminderungen
12304;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1230;English=Vehicles, revaluation;French=Véhicules, réévaluation;German=Fahrzeuge, Neubewertung
1235;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];N;;0;DefaultParent=PPE;English=IT equipment;French=Matériel informatique;German=EDV-Ausstattung
12351;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1235;English=IT equipment, gross value;French=Matériel informatique, valeur brute;German=EDV-Ausstattung, Bruttowert
12352;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1235;English=IT equipment, accumulated depreciation;French=Matériel informatique, amortissements cumulés;German=EDV-Ausstattung, kumulierte Abschreibungen
12353;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1235;English=IT equipment, accumulated impairment;French=Matériel informatique, dépréciations cumulées;German=EDV-Ausstattung, kumulierte Wertminderungen
12354;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1235;English=IT equipment, revaluation;French=Matériel informatique, réévaluation;German=EDV-Ausstattung, Neubewertung
1240;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];N;;0;DefaultParent=PPE;English=Furniture and fittings;French=Mobilier et agencements;German=Betriebs- und Geschäftsausstattung
12401;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1240;English=Furniture and fittings, gross value;French=Mobilier et agencements, valeur brute;German=Betriebs- und Geschäftsausstattung, Bruttowert
12402;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1240;English=Furniture and fittings, accumulated depreciation;French=Mobilier et agencements, amortissements cumulés;German=Betriebs- und Geschäftsausstattung, kumulierte Abschreibungen
12403;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1240;English=Furniture and fittings, accumulated impairment;French=Mobilier et agencements, dépréciations cumulées;German=Betriebs- und Geschäftsausstattung, kumulierte Wertminderungen
12404;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1240;English=Furniture and fittings, revaluation;French=Mobilier et agencements, réévaluation;German=Betriebs- und Geschäftsausstattung, Neubewertung
1245;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];N;;0;DefaultParent=PPE;English=Assets under construction;French=Immobilisations en cours;German=Anlagen im Bau
12451;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1245;English=Assets under construction, gross value;French=Immobilisations en cours, valeur brute;German=Anlagen im Bau, Bruttowert
12452;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1245;English=Assets under construction, accumulated depreciation;French=Immobilisations en cours, amortissements cumulés;German=Anlagen im Bau, kumulierte Abschreibungen
12453;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1245;English=Assets under construction, accumulated impairment;French=Immobilisations en cours, dépréciations cumulées;German=Anlagen im Bau, kumulierte Wertminderungen
12454;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 10;;;SC_BS;[ICP None];Y;;1;DefaultParent=1245;English=Assets under construction, revaluation;French=Immobilisations en cours, réévaluation;German=Anlagen im Bau, Neubewertung
ROU;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 11;;;SC_BS;[ICP None];N;;0;DefaultParent=NCA;English=Right-of-use assets;French=Droits d'utilisation;German=Nutzungsrechte
1310;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 11;;;SC_BS;[ICP None];N;;0;DefaultParent=ROU;English=Leased land;French=Terrains loués;German=Gemietete Grundstücke
13101;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 11;;;SC_BS;[ICP None];Y;;1;DefaultParent=1310;English=Leased land, gross value;French=Terrains loués, valeur brute;German=Gemietete Grundstücke, Bruttowert
13102;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 11;;;SC_BS;[ICP None];Y;;1;DefaultParent=1310;English=Leased land, accumulated depreciation;French=Terrains loués, amortissements cumulés;German=Gemietete Grundstücke, kumulierte Abschreibungen
13103;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 11;;;SC_BS;[ICP None];Y;;1;DefaultParent=1310;English=Leased land, accumulated impairment;French=Terrains loués, dépréciations cumulées;German=Gemietete Grundstücke, kumulierte Wertminderungen
13104;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 11;;;SC_BS;[ICP None];Y;;1;DefaultParent=1310;English=Leased land, revaluation;French=Terrains loués, réévaluation;German=Gemietete Grundstücke, Neubewertung
1315;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 11;;;SC_BS;[ICP None];N;;0;DefaultParent=ROU;English=Leased buildings;French=Constructions louées;German=Gemietete Gebäude
13151;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 11;;;SC_BS;[ICP None];Y;;1;DefaultParent=1315;English=Leased buildings, gross value;French=Constructions louées, valeur brute;German=Gemietete Gebäude, Bruttowert
13152;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 11;;;SC_BS;[ICP None];Y;;1;DefaultParent=1315;English=Leased buildings, accumulated depreciation;French=Constructions louées, amortissements cumulés;German=Gemietete Gebäude, kumulierte Abschreibungen
13153;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 11;;;SC_BS;[ICP None];Y;;1;DefaultParent=1315;English=Leased buildings, accumulated impairment;French=Constructions louées, dépréciations cumulées;German=Gemietete Gebäude, kumulierte Wertminderungen
13154;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 11;;;SC_BS;[ICP None];Y;;1;DefaultParent=1315;English=Leased buildings, revaluation;French=Constructions louées, réévaluation;German=Gemietete Gebäude, Neubewertung
1320;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 11;;;SC_BS;[ICP None];N;;0;DefaultParent=ROU;English=Leased machinery;French=Machines louées;German=Gemietete Maschinen
13201;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 11;;;SC_BS;[ICP None];Y;;1;DefaultParent=1320;English=Leased machinery, gross value;French=Machines louées, valeur brute;German=Gemietete Maschinen, Bruttowert
13202;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 11;;;SC_BS;[ICP None];Y;;1;DefaultParent=1320;English=Leased machinery, accumulated depreciation;French=Machines louées, amortissements cumulés;German=Gemietete Maschinen, kumulierte Abschreibungen
13203;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 11;;;SC_BS;[ICP None];Y;;1;DefaultParent=1320;English=Leased machinery, accumulated impairment;French=Machines louées, dépréciations cumulées;German=Gemietete Maschinen, kumulierte Wertminderungen
13204;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 11;;;SC_BS;[ICP None];Y;;1;DefaultParent=1320;English=Leased machinery, revaluation;French=Machines louées, réévaluation;German=Gemietete Maschinen, Neubewertung
1325;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 11;;;SC_BS;[ICP None];N;;0;DefaultParent=ROU;English=Chartered vessels;French=Navires affrétés;German=Gecharterte Schiffe
13251;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 11;;;SC_BS;[ICP None];Y;;1;DefaultParent=1325;English=Chartered vessels, gross value;French=Navires affrétés, valeur brute;German=Gecharterte Schiffe, Bruttowert
13252;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 11;;;SC_BS;[ICP None];Y;;1;DefaultParent=1325;English=Chartered vessels, accumulated depreciation;French=Navires affrétés, amortissements cumulés;German=Gecharterte Schiffe, kumulierte Abschreibungen
13253;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 11;;;SC_BS;[ICP None];Y;;1;DefaultParent=1325;English=Chartered vessels, accumulated impairment;French=Navires affrétés, dépréciations cumulées;German=Gecharterte Schiffe, kumulierte Wertminderungen
13254;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 11;;;SC_BS;[ICP None];Y;;1;DefaultParent=1325;English=Chartered vessels, revaluation;French=Navires affrétés, réévaluation;German=Gecharterte Schiffe, Neubewertung
1330;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 11;;;SC_BS;[ICP None];N;;0;DefaultParent=ROU;English=Leased vehicles;French=Véhicules loués;German=Gemietete Fahrzeuge
13301;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 11;;;SC_BS;[ICP None];Y;;1;DefaultParent=1330;English=Leased vehicles, gross value;French=Véhicules loués, valeur brute;German=Gemietete Fahrzeuge, Bruttowert
13302;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 11;;;SC_BS;[ICP None];Y;;1;DefaultParent=1330;English=Leased vehicles, accumulated depreciation;French=Véhicules loués, amortissements cumulés;German=Gemietete Fahrzeuge, kumulierte Abschreibungen
13303;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 11;;;SC_BS;[ICP None];Y;;1;DefaultParent=1330;English=Leased vehicles, accumulated impairment;French=Véhicules loués, dépréciations cumulées;German=Gemietete Fahrzeuge, kumulierte Wertminderungen
13304;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 11;;;SC_BS;[ICP None];Y;;1;DefaultParent=1330;English=Leased vehicles, revaluation;French=Véhicules loués, réévaluation;German=Gemietete Fahrzeuge, Neubewertung
FINASSETS;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 12;;;SC_TREASURY;[ICP None];N;;0;DefaultParent=NCA;English=Financial assets;French=Actifs financiers;German=Finanzanlagen
1410;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 12;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=FINASSETS;English=Associates at equity;French=Entreprises mises en équivalence;German=Assoziierte Unternehmen at equity
50/50 ventures;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 12;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=FINASSETS;English=Joint ventures at equity;French=Coentreprises mises en équivalence;German=Gemeinschaftsunternehmen at equity
1420;ASSET;N;Y;R;PLUG_1;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 12;;;SC_TREASURY;[ICP Top];Y;;1;DefaultParent=FINASSETS;English=Shares in group companies;French=Titres de sociétés du groupe;German=Anteile an verbundenen Unternehmen
1430;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 12;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=FINASSETS;English=Other shareholdings;French=Autres participations;German=Sonstige Beteiligungen
1440;ASSET;N;Y;R;PLUG_2;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 12;;;SC_TREASURY;[ICP Top];Y;;1;DefaultParent=FINASSETS;English=Loans to group companies;French=Prêts aux sociétés du groupe;German=Ausleihungen an verbundene Unternehmen
1450;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 12;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=FINASSETS;English=Deposits and guarantees;French=Dépôts et cautionnements;German=Kautionen
1460;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 12;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=FINASSETS;English=Derivatives, non-current;French=Dérivés, non courant;German=Derivate, langfristig
1470;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 12;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=FINASSETS;English=Plan assets surplus;French=Excédent des actifs de régime;German=Überdeckung Planvermögen
DTA;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 8;;;SC_TAX;[ICP None];N;;0;DefaultParent=NCA;English=Deferred tax assets;French=Impôts différés actifs;German=Aktive latente Steuern
1510;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=DTA;English=Deferred tax assets, fixed assets;French=Impôts différés actifs, immobilisations;German=Aktive latente Steuern, Anlagevermögen
1520;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=DTA;English=Deferred tax assets, inventories;French=Impôts différés actifs, stocks;German=Aktive latente Steuern, Vorräte
1530;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=DTA;English=Deferred tax assets, receivables;French=Impôts différés actifs, créances;German=Aktive latente Steuern, Forderungen
1540;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=DTA;English=Deferred tax assets, pensions;French=Impôts différés actifs, retraites;German=Aktive latente Steuern, Pensionen
1550;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=DTA;English=Deferred tax assets, provisions;French=Impôts différés actifs, provisions;German=Aktive latente Steuern, Rückstellungen
1560;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=DTA;English=Deferred tax assets, leases;French=Impôts différés actifs, locations;German=Aktive latente Steuern, Leasing
1570;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=DTA;English=Deferred tax assets, losses carried forward;French=Impôts différés actifs, déficits reportables;German=Aktive latente Steuern, Verlustvorträge
1580;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=DTA;English=Deferred tax assets, other differences;French=Impôts différés actifs, autres différences;German=Aktive latente Steuern, sonstige Differenzen
CA;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP None];N;;0;DefaultParent=ASSETS;English=Current assets;French=Actifs courants;German=Kurzfristige Vermögenswerte
STOCK;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;;;SC_BS;[ICP None];N;;0;DefaultParent=Working Capital;English=Inventories;French=Stocks;German=Vorräte
2010;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];N;;0;DefaultParent=STOCK;English=Raw materials;French=Matières premières;German=Rohstoffe
20101;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2010;English=Raw materials, Dairy;French=Matières premières, Produits laitiers;German=Rohstoffe, Molkereiprodukte
20102;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2010;English=Raw materials, Timber;French=Matières premières, Bois;German=Rohstoffe, Holz
20103;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2010;English=Raw materials, Glass;French=Matières premières, Verre;German=Rohstoffe, Glas
20104;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2010;English=Raw materials, Paper;French=Matières premières, Papier;German=Rohstoffe, Papier
20105;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2010;English=Raw materials, Cement;French=Matières premières, Ciment;German=Rohstoffe, Zement
20106;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2010;English=Raw materials, Energy;French=Matières premières, Énergie;German=Rohstoffe, Energie
20107;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2010;English=Raw materials, Ferries;French=Matières premières, Traversées;German=Rohstoffe, Fähren
20108;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2010;English=Raw materials, Engineering;French=Matières premières, Ingénierie;German=Rohstoffe, Maschinenbau
2020;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];N;;0;DefaultParent=STOCK;English=Work in progress;French=En-cours de production;German=Unfertige Erzeugnisse
20201;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2020;English=Work in progress, Dairy;French=En-cours de production, Produits laitiers;German=Unfertige Erzeugnisse, Molkereiprodukte
20202;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2020;English=Work in progress, Timber;French=En-cours de production, Bois;German=Unfertige Erzeugnisse, Holz
20203;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2020;English=Work in progress, Glass;French=En-cours de production, Verre;German=Unfertige Erzeugnisse, Glas
20204;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2020;English=Work in progress, Paper;French=En-cours de production, Papier;German=Unfertige Erzeugnisse, Papier
20205;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2020;English=Work in progress, Cement;French=En-cours de production, Ciment;German=Unfertige Erzeugnisse, Zement
20206;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2020;English=Work in progress, Energy;French=En-cours de production, Énergie;German=Unfertige Erzeugnisse, Energie
20207;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2020;English=Work in progress, Ferries;French=En-cours de production, Traversées;German=Unfertige Erzeugnisse, Fähren
20208;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2020;English=Work in progress, Engineering;French=En-cours de production, Ingénierie;German=Unfertige Erzeugnisse, Maschinenbau
2030;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];N;;0;DefaultParent=STOCK;English=Finished goods;French=Produits finis;German=Fertige Erzeugnisse
20301;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2030;English=Finished goods, Dairy;French=Produits finis, Produits laitiers;German=Fertige Erzeugnisse, Molkereiprodukte
20302;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2030;English=Finished goods, Timber;French=Produits finis, Bois;German=Fertige Erzeugnisse, Holz
20303;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2030;English=Finished goods, Glass;French=Produits finis, Verre;German=Fertige Erzeugnisse, Glas
20304;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2030;English=Finished goods, Paper;French=Produits finis, Papier;German=Fertige Erzeugnisse, Papier
20305;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2030;English=Finished goods, Cement;French=Produits finis, Ciment;German=Fertige Erzeugnisse, Zement
20306;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2030;English=Finished goods, Energy;French=Produits finis, Énergie;German=Fertige Erzeugnisse, Energie
20307;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2030;English=Finished goods, Ferries;French=Produits finis, Traversées;German=Fertige Erzeugnisse, Fähren
20308;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2030;English=Finished goods, Engineering;French=Produits finis, Ingénierie;German=Fertige Erzeugnisse, Maschinenbau
2040;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];N;;0;DefaultParent=STOCK;English=Merchandise;French=Marchandises;German=Handelswaren
20401;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2040;English=Merchandise, Dairy;French=Marchandises, Produits laitiers;German=Handelswaren, Molkereiprodukte
20402;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2040;English=Merchandise, Timber;French=Marchandises, Bois;German=Handelswaren, Holz
20403;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2040;English=Merchandise, Glass;French=Marchandises, Verre;German=Handelswaren, Glas
20404;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2040;English=Merchandise, Paper;French=Marchandises, Papier;German=Handelswaren, Papier
20405;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2040;English=Merchandise, Cement;French=Marchandises, Ciment;German=Handelswaren, Zement
20406;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2040;English=Merchandise, Energy;French=Marchandises, Énergie;German=Handelswaren, Energie
20407;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2040;English=Merchandise, Ferries;French=Marchandises, Traversées;German=Handelswaren, Fähren
20408;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2040;English=Merchandise, Engineering;French=Marchandises, Ingénierie;German=Handelswaren, Maschinenbau
2050;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];N;;0;DefaultParent=STOCK;English=Spare parts;French=Pièces de rechange;German=Ersatzteile
20501;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2050;English=Spare parts, Dairy;French=Pièces de rechange, Produits laitiers;German=Ersatzteile, Molkereiprodukte
20502;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2050;English=Spare parts, Timber;French=Pièces de rechange, Bois;German=Ersatzteile, Holz
20503;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2050;English=Spare parts, Glass;French=Pièces de rechange, Verre;German=Ersatzteile, Glas
20504;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2050;English=Spare parts, Paper;French=Pièces de rechange, Papier;German=Ersatzteile, Papier
20505;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2050;English=Spare parts, Cement;French=Pièces de rechange, Ciment;German=Ersatzteile, Zement
20506;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2050;English=Spare parts, Energy;French=Pièces de rechange, Énergie;German=Ersatzteile, Energie
20507;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2050;English=Spare parts, Ferries;French=Pièces de rechange, Traversées;German=Ersatzteile, Fähren
20508;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2050;English=Spare parts, Engineering;French=Pièces de rechange, Ingénierie;German=Ersatzteile, Maschinenbau
2060;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];N;;0;DefaultParent=STOCK;English=Packaging;French=Emballages;German=Verpackungsmaterial
20601;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2060;English=Packaging, Dairy;French=Emballages, Produits laitiers;German=Verpackungsmaterial, Molkereiprodukte
20602;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2060;English=Packaging, Timber;French=Emballages, Bois;German=Verpackungsmaterial, Holz
20603;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2060;English=Packaging, Glass;French=Emballages, Verre;German=Verpackungsmaterial, Glas
20604;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2060;English=Packaging, Paper;French=Emballages, Papier;German=Verpackungsmaterial, Papier
20605;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2060;English=Packaging, Cement;French=Emballages, Ciment;German=Verpackungsmaterial, Zement
20606;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2060;English=Packaging, Energy;French=Emballages, Énergie;German=Verpackungsmaterial, Energie
20607;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2060;English=Packaging, Ferries;French=Emballages, Traversées;German=Verpackungsmaterial, Fähren
20608;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;Supply chain;;SC_BS;[ICP None];Y;;1;DefaultParent=2060;English=Packaging, Engineering;French=Emballages, Ingénierie;German=Verpackungsmaterial, Maschinenbau
2090;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;;;SC_BS;[ICP None];N;;0;DefaultParent=STOCK;English=Write-down of inventories;French=Dépréciation des stocks;German=Abwertung der Vorräte
20910;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;;;SC_BS;[ICP None];Y;;1;DefaultParent=2090;English=Raw materials, write-down;French=Matières premières, dépréciation;German=Rohstoffe, Abwertung
20920;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;;;SC_BS;[ICP None];Y;;1;DefaultParent=2090;English=Work in progress, write-down;French=En-cours de production, dépréciation;German=Unfertige Erzeugnisse, Abwertung
20930;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;;;SC_BS;[ICP None];Y;;1;DefaultParent=2090;English=Finished goods, write-down;French=Produits finis, dépréciation;German=Fertige Erzeugnisse, Abwertung
20940;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;;;SC_BS;[ICP None];Y;;1;DefaultParent=2090;English=Merchandise, write-down;French=Marchandises, dépréciation;German=Handelswaren, Abwertung
20950;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;;;SC_BS;[ICP None];Y;;1;DefaultParent=2090;English=Spare parts, write-down;French=Pièces de rechange, dépréciation;German=Ersatzteile, Abwertung
20960;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 13;;;SC_BS;[ICP None];Y;;1;DefaultParent=2090;English=Packaging, write-down;French=Emballages, dépréciation;German=Verpackungsmaterial, Abwertung
RECEIV;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 14;;;SC_BS;[ICP None];N;;0;DefaultParent=CA;English=Trade receivables;French=Créances clients;German=Forderungen aus Lieferungen und Leistungen
2110;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 14;Credit control;;SC_BS;[ICP None];N;;0;DefaultParent=RECEIV;English=Receivables from third parties;French=Créances sur tiers;German=Forderungen gegen Dritte
21100;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 14;Credit control;;SC_BS;[ICP None];Y;;1;DefaultParent=2110;English=Third parties, not due;French=Tiers, non échu;German=Dritte, nicht fällig
21101;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 14;Credit control;;SC_BS;[ICP None];Y;;1;DefaultParent=2110;English=Third parties, 1 to 30 days overdue;French=Tiers, échu de 1 à 30 jours;German=Dritte, 1 bis 30 Tage überfällig
21102;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 14;Credit control;;SC_BS;[ICP None];Y;;1;DefaultParent=2110;English=Third parties, 31 to 60 days overdue;French=Tiers, échu de 31 à 60 jours;German=Dritte, 31 bis 60 Tage überfällig
21103;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 14;Credit control;;SC_BS;[ICP None];Y;;1;DefaultParent=2110;English=Third parties, 61 to 90 days overdue;French=Tiers, échu de 61 à 90 jours;German=Dritte, 61 bis 90 Tage überfällig
21104;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 14;Credit control;;SC_BS;[ICP None];Y;;1;DefaultParent=2110;English=Third parties, 91 to 180 days overdue;French=Tiers, échu de 91 à 180 jours;German=Dritte, 91 bis 180 Tage überfällig
21105;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 14;Credit control;;SC_BS;[ICP None];Y;;1;DefaultParent=2110;English=Third parties, more than 180 days overdue;French=Tiers, échu de plus de 180 jours;German=Dritte, mehr als 180 Tage überfällig
2120;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 14;;;SC_BS;[ICP None];Y;;1;DefaultParent=RECEIV;English=Bills of exchange;French=Effets à recevoir;German=Wechselforderungen
2150;ASSET;N;Y;R;PLUG_1;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 14;;;SC_BS;[ICP Top];Y;;1;DefaultParent=RECEIV;English=Receivables from group companies;French=Créances sur sociétés du groupe;German=Forderungen gegen verbundene Unternehmen
2190;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 14;;;SC_BS;[ICP None];N;;0;DefaultParent=RECEIV;English=Allowance for credit losses;French=Dépréciation des créances;German=Wertberichtigung
21900;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 14;;;SC_BS;[ICP None];Y;;1;DefaultParent=2190;English=Allowance, not due;French=Dépréciation, non échu;German=Wertberichtigung, nicht fällig
21901;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 14;;;SC_BS;[ICP None];Y;;1;DefaultParent=2190;English=Allowance, 1 to 30 days overdue;French=Dépréciation, échu de 1 à 30 jours;German=Wertberichtigung, 1 bis 30 Tage überfällig
21902;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 14;;;SC_BS;[ICP None];Y;;1;DefaultParent=2190;English=Allowance, 31 to 60 days overdue;French=Dépréciation, échu de 31 à 60 jours;German=Wertberichtigung, 31 bis 60 Tage überfällig
21903;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 14;;;SC_BS;[ICP None];Y;;1;DefaultParent=2190;English=Allowance, 61 to 90 days overdue;French=Dépréciation, échu de 61 à 90 jours;German=Wertberichtigung, 61 bis 90 Tage überfällig
21904;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 14;;;SC_BS;[ICP None];Y;;1;DefaultParent=2190;English=Allowance, 91 to 180 days overdue;French=Dépréciation, échu de 91 à 180 jours;German=Wertberichtigung, 91 bis 180 Tage überfällig
21905;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 14;;;SC_BS;[ICP None];Y;;1;DefaultParent=2190;English=Allowance, more than 180 days overdue;French=Dépréciation, échu de plus de 180 jours;German=Wertberichtigung, mehr als 180 Tage überfällig
"Other" receivables;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP None];N;;0;DefaultParent=CA;English=Other current receivables;French=Autres créances courantes;German=Übrige kurzfristige Forderungen
2210;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP None];Y;;1;DefaultParent="Other" receivables;English=VAT recoverable;French=TVA récupérable;German=Vorsteuer
2220;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP None];Y;;1;DefaultParent="Other" receivables;English=Advances to suppliers;French=Avances aux fournisseurs;German=Geleistete Anzahlungen
2230;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_HR;[ICP None];Y;;1;DefaultParent="Other" receivables;English=Advances to staff;French=Avances au personnel;German=Forderungen gegen Mitarbeiter
2240;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP None];Y;;1;DefaultParent="Other" receivables;English=Prepaid expenses;French=Charges constatées d'avance;German=Aktive Rechnungsabgrenzung
2250;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP None];Y;;1;DefaultParent="Other" receivables;English=Contract assets;French=Actifs sur contrats;German=Vertragsvermögenswerte
2260;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP None];Y;;1;DefaultParent="Other" receivables;English=Insurance claims;French=Indemnités d'assurance à recevoir;German=Versicherungsansprüche
2270;ASSET;N;Y;R;PLUG_3;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP Top];Y;;1;DefaultParent="Other" receivables;English=Dividends receivable, group;French=Dividendes à recevoir, groupe;German=Dividendenforderungen, Konzern
2280;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP None];Y;;1;DefaultParent="Other" receivables;English=Grants receivable;French=Subventions à recevoir;German=Forderungen aus Zuschüssen
2290;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP None];Y;;1;DefaultParent="Other" receivables;English=Sundry receivables;French=Créances diverses;German=Sonstige Forderungen
CURTAX_A;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CA;English=Current tax assets;French=Créances d'impôt exigible;German=Steuerforderungen
CUR FIN ASSETS;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_TREASURY;[ICP None];N;;0;DefaultParent=CA;English=Current financial assets;French=Actifs financiers courants;German=Kurzfristige finanzielle Vermögenswerte
2310;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=CUR FIN ASSETS;English=Money market funds;French=Fonds monétaires;German=Geldmarktfonds
2320;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=CUR FIN ASSETS;English=Term deposits over 3 months;French=Dépôts à terme de plus de 3 mois;German=Termingelder über 3 Monate
2330;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=CUR FIN ASSETS;English=Derivatives, current;French=Dérivés, courant;German=Derivate, kurzfristig
2340;ASSET;N;Y;R;PLUG_2;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_TREASURY;[ICP Top];Y;;1;DefaultParent=CUR FIN ASSETS;English=Cash pool with group companies;French=Centralisation de trésorerie, groupe;German=Cash-Pool, Konzern
CASH;ASSET;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 16;;ifrs-full_CashAndCashEquivalents;SC_TREASURY;[ICP None];N;;0;DefaultParent=CA;English=Cash and cash equivalents;French=Trésorerie et équivalents;German=Zahlungsmittel
2410;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 16;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=CASH;English=Cash in hand;French=Caisse;German=Kasse
2420;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 16;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=CASH;English=Bank accounts;French=Comptes bancaires;German=Bankguthaben
2430;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 16;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=CASH;English=Term deposits up to 3 months;French=Dépôts à terme jusqu'à 3 mois;German=Termingelder bis 3 Monate
2440;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 16;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=CASH;English=Cash in transit;French=Virements internes;German=Geldtransit
2450;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 16;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=CASH;English=Restricted cash;French=Trésorerie bloquée;German=Verfügungsbeschränkte Mittel
HFS_A;ASSET;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP None];Y;;1;DefaultParent=CA;English=Assets held for sale;French=Actifs détenus en vue de la vente;German=Zur Veräußerung gehaltene Vermögenswerte
LIABEQ;LIABILITY;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP None];N;;0;DefaultParent=Balance Sheet;English=Equity and liabilities;French=Capitaux propres et passifs;German=Summe Passiva
EQUITY;LIABILITY;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 17;;;SC_EQUITY;[ICP None];N;;0;DefaultParent=LIABEQ;English=Total equity;French=Capitaux propres;German=Eigenkapital
Owners' equity;LIABILITY;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 17;;;SC_EQUITY;[ICP None];N;;0;DefaultParent=EQUITY;English=Equity of the owners of the parent;French=Capitaux propres, part du groupe;German=Eigenkapital der Anteilseigner
3010;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 17;;;SC_EQUITY;[ICP None];Y;;1;DefaultParent=Owners' equity;English=Share capital;French=Capital social;German=Gezeichnetes Kapital
3020;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 17;;;SC_EQUITY;[ICP None];Y;;1;DefaultParent=Owners' equity;English=Share premium;French=Primes d'émission;German=Kapitalrücklage
3030;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 17;;;SC_EQUITY;[ICP None];Y;;1;DefaultParent=Owners' equity;English=Treasury shares;French=Actions propres;German=Eigene Anteile
3040;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 17;;;SC_EQUITY;[ICP None];Y;;1;DefaultParent=Owners' equity;English=Legal reserve;French=Réserve légale;German=Gesetzliche Rücklage
3050;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 17;;;SC_EQUITY;[ICP None];Y;;1;DefaultParent=Owners' equity;English=Retained earnings;French=Résultats non distribués;German=Gewinnrücklagen
3060;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 17;;;SC_EQUITY;[ICP None];Y;;1;DefaultParent=Owners' equity;English=Interim dividends;French=Acomptes sur dividendes;German=Vorabausschüttungen
Résultat net;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 17;;;SC_EQUITY;[ICP None];Y;;1;DefaultParent=Owners' equity;English=Result of the year;French=Résultat de l'exercice;German=Jahresergebnis
3080;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 17;;;SC_EQUITY;[ICP None];Y;;1;DefaultParent=Owners' equity;English=Hybrid capital;French=Capital hybride;German=Hybridkapital
OCI reserves;LIABILITY;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 17;;;SC_EQUITY;[ICP None];N;;0;DefaultParent=EQUITY;English=Accumulated other comprehensive income;French=Autres éléments du résultat global;German=Kumuliertes sonstiges Ergebnis
3110;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 17;;;SC_EQUITY;[ICP None];Y;;1;DefaultParent=OCI reserves;English=Currency translation;French=Écarts de conversion;German=Währungsumrechnung
3120;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 17;;;SC_EQUITY;[ICP None];Y;;1;DefaultParent=OCI reserves;English=Cash flow hedges;French=Couvertures de flux;German=Absicherung von Zahlungsströmen
3130;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 17;;;SC_EQUITY;[ICP None];Y;;1;DefaultParent=OCI reserves;English=Cost of hedging;French=Coût de couverture;German=Kosten der Absicherung
3140;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 17;;;SC_EQUITY;[ICP None];Y;;1;DefaultParent=OCI reserves;English=Pensions, remeasurement;French=Retraites, réévaluation;German=Pensionen, Neubewertung
3150;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 17;;;SC_EQUITY;[ICP None];Y;;1;DefaultParent=OCI reserves;English=Revaluation of land;French=Réévaluation des terrains;German=Neubewertung von Grundstücken
3160;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 17;;;SC_EQUITY;[ICP None];Y;;1;DefaultParent=OCI reserves;English=Shareholdings at fair value;French=Participations à la juste valeur;German=Beteiligungen zum Zeitwert
3170;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 17;;;SC_EQUITY;[ICP None];Y;;1;DefaultParent=OCI reserves;English=Share of associates' OCI;French=Quote-part des entreprises associées;German=Anteil assoziierter Unternehmen
NCI;LIABILITY;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 17;;;SC_EQUITY;[ICP None];N;;0;DefaultParent=EQUITY;English=Non-controlling interests;French=Intérêts minoritaires;German=Nicht beherrschende Anteile
3210;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 17;;;SC_EQUITY;[ICP None];Y;;1;DefaultParent=NCI;English=Share of capital and reserves;French=Part du capital et des réserves;German=Anteil an Kapital und Rücklagen
3220;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 17;;;SC_EQUITY;[ICP None];Y;;1;DefaultParent=NCI;English=Share of the result;French=Part du résultat;German=Anteil am Ergebnis
3230;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 17;;;SC_EQUITY;[ICP None];Y;;1;DefaultParent=NCI;English=Share of OCI;French=Part des autres éléments;German=Anteil am sonstigen Ergebnis
LIABILITIES;LIABILITY;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP None];N;;0;DefaultParent=LIABEQ;English=Liabilities;French=Passifs;German=Schulden
BORROW;LIABILITY;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];N;;0;DefaultParent=LIABILITIES;English=Borrowings;French=Emprunts et dettes financières;German=Finanzschulden
4010;LIABILITY;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];N;;0;DefaultParent=BORROW;English=Bonds;French=Emprunts obligataires;German=Anleihen
40101;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=4010;English=Bonds, due within 1 year;French=Emprunts obligataires, à moins d'un an;German=Anleihen, fällig innerhalb eines Jahres
40102;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=4010;English=Bonds, due in 1 to 2 years;French=Emprunts obligataires, de 1 à 2 ans;German=Anleihen, fällig in 1 bis 2 Jahren
40103;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=4010;English=Bonds, due in 2 to 5 years;French=Emprunts obligataires, de 2 à 5 ans;German=Anleihen, fällig in 2 bis 5 Jahren
40105;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=4010;English=Bonds, due after 5 years;French=Emprunts obligataires, à plus de 5 ans;German=Anleihen, fällig nach 5 Jahren
4020;LIABILITY;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];N;;0;DefaultParent=BORROW;English=Bank loans;French=Emprunts bancaires;German=Bankdarlehen
40201;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=4020;English=Bank loans, due within 1 year;French=Emprunts bancaires, à moins d'un an;German=Bankdarlehen, fällig innerhalb eines Jahres
40202;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=4020;English=Bank loans, due in 1 to 2 years;French=Emprunts bancaires, de 1 à 2 ans;German=Bankdarlehen, fällig in 1 bis 2 Jahren
40203;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=4020;English=Bank loans, due in 2 to 5 years;French=Emprunts bancaires, de 2 à 5 ans;German=Bankdarlehen, fällig in 2 bis 5 Jahren
40205;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=4020;English=Bank loans, due after 5 years;French=Emprunts bancaires, à plus de 5 ans;German=Bankdarlehen, fällig nach 5 Jahren
4030;LIABILITY;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];N;;0;DefaultParent=BORROW;English=Commercial paper;French=Billets de trésorerie;German=Geldmarktpapiere
40301;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=4030;English=Commercial paper, due within 1 year;French=Billets de trésorerie, à moins d'un an;German=Geldmarktpapiere, fällig innerhalb eines Jahres
40302;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=4030;English=Commercial paper, due in 1 to 2 years;French=Billets de trésorerie, de 1 à 2 ans;German=Geldmarktpapiere, fällig in 1 bis 2 Jahren
40303;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=4030;English=Commercial paper, due in 2 to 5 years;French=Billets de trésorerie, de 2 à 5 ans;German=Geldmarktpapiere, fällig in 2 bis 5 Jahren
40305;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=4030;English=Commercial paper, due after 5 years;French=Billets de trésorerie, à plus de 5 ans;German=Geldmarktpapiere, fällig nach 5 Jahren
4040;LIABILITY;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];N;;0;DefaultParent=BORROW;English=Lease liabilities;French=Dettes de location;German=Leasingverbindlichkeiten
40401;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=4040;English=Lease liabilities, due within 1 year;French=Dettes de location, à moins d'un an;German=Leasingverbindlichkeiten, fällig innerhalb eines Jahres
40402;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=4040;English=Lease liabilities, due in 1 to 2 years;French=Dettes de location, de 1 à 2 ans;German=Leasingverbindlichkeiten, fällig in 1 bis 2 Jahren
40403;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=4040;English=Lease liabilities, due in 2 to 5 years;French=Dettes de location, de 2 à 5 ans;German=Leasingverbindlichkeiten, fällig in 2 bis 5 Jahren
40405;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=4040;English=Lease liabilities, due after 5 years;French=Dettes de location, à plus de 5 ans;German=Leasingverbindlichkeiten, fällig nach 5 Jahren
4050;LIABILITY;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];N;;0;DefaultParent=BORROW;English=Private placements;French=Placements privés;German=Schuldscheindarlehen
40501;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=4050;English=Private placements, due within 1 year;French=Placements privés, à moins d'un an;German=Schuldscheindarlehen, fällig innerhalb eines Jahres
40502;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=4050;English=Private placements, due in 1 to 2 years;French=Placements privés, de 1 à 2 ans;German=Schuldscheindarlehen, fällig in 1 bis 2 Jahren
40503;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=4050;English=Private placements, due in 2 to 5 years;French=Placements privés, de 2 à 5 ans;German=Schuldscheindarlehen, fällig in 2 bis 5 Jahren
40505;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=4050;English=Private placements, due after 5 years;French=Placements privés, à plus de 5 ans;German=Schuldscheindarlehen, fällig nach 5 Jahren
4060;LIABILITY;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];N;;0;DefaultParent=BORROW;English=Factoring with recourse;French=Affacturage avec recours;German=Unechtes Factoring
40601;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=4060;English=Factoring with recourse, due within 1 year;French=Affacturage avec recours, à moins d'un an;German=Unechtes Factoring, fällig innerhalb eines Jahres
40602;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=4060;English=Factoring with recourse, due in 1 to 2 years;French=Affacturage avec recours, de 1 à 2 ans;German=Unechtes Factoring, fällig in 1 bis 2 Jahren
40603;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=4060;English=Factoring with recourse, due in 2 to 5 years;French=Affacturage avec recours, de 2 à 5 ans;German=Unechtes Factoring, fällig in 2 bis 5 Jahren
40605;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=4060;English=Factoring with recourse, due after 5 years;French=Affacturage avec recours, à plus de 5 ans;German=Unechtes Factoring, fällig nach 5 Jahren
4070;LIABILITY;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];N;;0;DefaultParent=BORROW;English=Other borrowings;French=Autres emprunts;German=Sonstige Finanzschulden
40701;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=4070;English=Other borrowings, due within 1 year;French=Autres emprunts, à moins d'un an;German=Sonstige Finanzschulden, fällig innerhalb eines Jahres
40702;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=4070;English=Other borrowings, due in 1 to 2 years;French=Autres emprunts, de 1 à 2 ans;German=Sonstige Finanzschulden, fällig in 1 bis 2 Jahren
40703;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=4070;English=Other borrowings, due in 2 to 5 years;French=Autres emprunts, de 2 à 5 ans;German=Sonstige Finanzschulden, fällig in 2 bis 5 Jahren
40705;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=4070;English=Other borrowings, due after 5 years;French=Autres emprunts, à plus de 5 ans;German=Sonstige Finanzschulden, fällig nach 5 Jahren
4080;LIABILITY;N;Y;R;PLUG_2;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP Top];Y;;1;DefaultParent=BORROW;English=Loans from group companies;French=Emprunts auprès du groupe;German=Darlehen von verbundenen Unternehmen
4085;LIABILITY;N;Y;R;PLUG_2;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP Top];Y;;1;DefaultParent=BORROW;English=Cash pool with group companies (liability);French=Centralisation de trésorerie, groupe (dette);German=Cash-Pool, Konzern (Verbindlichkeit)
4090;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 19;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=BORROW;English=Bank overdrafts;French=Découverts bancaires;German=Kontokorrentkredite
PROV;LIABILITY;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 20;;;SC_BS;[ICP None];N;;0;DefaultParent=LIABILITIES;English=Provisions;French=Provisions;German=Rückstellungen
4110;LIABILITY;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 20;;;SC_BS;[ICP None];N;;0;DefaultParent=PROV;English=Restructuring;French=Restructurations;German=Restrukturierung
4110C;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 20;;;SC_BS;[ICP None];Y;;1;DefaultParent=4110;English=Restructuring, current;French=Restructurations, courant;German=Restrukturierung, kurzfristig
4110N;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 20;;;SC_BS;[ICP None];Y;;1;DefaultParent=4110;English=Restructuring, non-current;French=Restructurations, non courant;German=Restrukturierung, langfristig
4120;LIABILITY;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 20;;;SC_BS;[ICP None];N;;0;DefaultParent=PROV;English=Warranties;French=Garanties;German=Gewährleistung
4120C;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 20;;;SC_BS;[ICP None];Y;;1;DefaultParent=4120;English=Warranties, current;French=Garanties, courant;German=Gewährleistung, kurzfristig
4120N;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 20;;;SC_BS;[ICP None];Y;;1;DefaultParent=4120;English=Warranties, non-current;French=Garanties, non courant;German=Gewährleistung, langfristig
4130;LIABILITY;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 20;;;SC_BS;[ICP None];N;;0;DefaultParent=PROV;English=Litigation;French=Litiges;German=Rechtsstreitigkeiten
4130C;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 20;;;SC_BS;[ICP None];Y;;1;DefaultParent=4130;English=Litigation, current;French=Litiges, courant;German=Rechtsstreitigkeiten, kurzfristig
4130N;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 20;;;SC_BS;[ICP None];Y;;1;DefaultParent=4130;English=Litigation, non-current;French=Litiges, non courant;German=Rechtsstreitigkeiten, langfristig
4140;LIABILITY;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 20;;;SC_BS;[ICP None];N;;0;DefaultParent=PROV;English=Site restoration;French=Remise en état des sites;German=Rekultivierung
4140C;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 20;;;SC_BS;[ICP None];Y;;1;DefaultParent=4140;English=Site restoration, current;French=Remise en état des sites, courant;German=Rekultivierung, kurzfristig
4140N;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 20;;;SC_BS;[ICP None];Y;;1;DefaultParent=4140;English=Site restoration, non-current;French=Remise en état des sites, non courant;German=Rekultivierung, langfristig
4150;LIABILITY;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 20;;;SC_BS;[ICP None];N;;0;DefaultParent=PROV;English=Onerous contracts;French=Contrats déficitaires;German=Drohende Verluste
4150C;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 20;;;SC_BS;[ICP None];Y;;1;DefaultParent=4150;English=Onerous contracts, current;French=Contrats déficitaires, courant;German=Drohende Verluste, kurzfristig
4150N;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 20;;;SC_BS;[ICP None];Y;;1;DefaultParent=4150;English=Onerous contracts, non-current;French=Contrats déficitaires, non courant;German=Drohende Verluste, langfristig
4160;LIABILITY;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 20;;;SC_BS;[ICP None];N;;0;DefaultParent=PROV;English=Jubilee benefits;French=Médailles du travail;German=Jubiläumsleistungen
4160C;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 20;;;SC_BS;[ICP None];Y;;1;DefaultParent=4160;English=Jubilee benefits, current;French=Médailles du travail, courant;German=Jubiläumsleistungen, kurzfristig
4160N;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 20;;;SC_BS;[ICP None];Y;;1;DefaultParent=4160;English=Jubilee benefits, non-current;French=Médailles du travail, non courant;German=Jubiläumsleistungen, langfristig
4170;LIABILITY;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 20;;;SC_BS;[ICP None];N;;0;DefaultParent=PROV;English=Dry-docking;French=Mise en cale sèche;German=Trockendockung
4170C;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 20;;;SC_BS;[ICP None];Y;;1;DefaultParent=4170;English=Dry-docking, current;French=Mise en cale sèche, courant;German=Trockendockung, kurzfristig
4170N;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 20;;;SC_BS;[ICP None];Y;;1;DefaultParent=4170;English=Dry-docking, non-current;French=Mise en cale sèche, non courant;German=Trockendockung, langfristig
4180;LIABILITY;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 20;;;SC_BS;[ICP None];N;;0;DefaultParent=PROV;English=Other risks;French=Autres risques;German=Sonstige Risiken
4180C;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 20;;;SC_BS;[ICP None];Y;;1;DefaultParent=4180;English=Other risks, current;French=Autres risques, courant;German=Sonstige Risiken, kurzfristig
4180N;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 20;;;SC_BS;[ICP None];Y;;1;DefaultParent=4180;English=Other risks, non-current;French=Autres risques, non courant;German=Sonstige Risiken, langfristig
PENSIONS;LIABILITY;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 21;;;SC_HR;[ICP None];N;;0;DefaultParent=LIABILITIES;English=Pension obligations;French=Engagements de retraite;German=Pensionsverpflichtungen
4210;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 21;;;SC_HR;[ICP None];Y;;1;DefaultParent=PENSIONS;English=Defined benefit obligation, funded;French=Engagements préfinancés;German=Verpflichtung, fondsfinanziert
4220;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 21;;;SC_HR;[ICP None];Y;;1;DefaultParent=PENSIONS;English=Defined benefit obligation, unfunded;French=Engagements non préfinancés;German=Verpflichtung, nicht fondsfinanziert
4230;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 21;;;SC_HR;[ICP None];Y;;1;DefaultParent=PENSIONS;English=Plan assets;French=Actifs de régime;German=Planvermögen
4240;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 21;;;SC_HR;[ICP None];Y;;1;DefaultParent=PENSIONS;English=Asset ceiling;French=Plafonnement de l'actif;German=Obergrenze des Vermögenswerts
4250;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 21;;;SC_HR;[ICP None];Y;;1;DefaultParent=PENSIONS;English=Retirement gifts;French=Indemnités de fin de carrière;German=Abfertigungen
DTL;LIABILITY;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 8;;;SC_TAX;[ICP None];N;;0;DefaultParent=LIABILITIES;English=Deferred tax liabilities;French=Impôts différés passifs;German=Passive latente Steuern
4310;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=DTL;English=Deferred tax liabilities, fixed assets;French=Impôts différés passifs, immobilisations;German=Passive latente Steuern, Anlagevermögen
4320;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=DTL;English=Deferred tax liabilities, inventories;French=Impôts différés passifs, stocks;German=Passive latente Steuern, Vorräte
4330;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=DTL;English=Deferred tax liabilities, receivables;French=Impôts différés passifs, créances;German=Passive latente Steuern, Forderungen
4340;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=DTL;English=Deferred tax liabilities, pensions;French=Impôts différés passifs, retraites;German=Passive latente Steuern, Pensionen
4350;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=DTL;English=Deferred tax liabilities, provisions;French=Impôts différés passifs, provisions;German=Passive latente Steuern, Rückstellungen
4360;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=DTL;English=Deferred tax liabilities, leases;French=Impôts différés passifs, locations;German=Passive latente Steuern, Leasing
4370;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=DTL;English=Deferred tax liabilities, losses carried forward;French=Impôts différés passifs, déficits reportables;German=Passive latente Steuern, Verlustvorträge
4380;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=DTL;English=Deferred tax liabilities, other differences;French=Impôts différés passifs, autres différences;German=Passive latente Steuern, sonstige Differenzen
PAYABLES;LIABILITY;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP None];N;;0;DefaultParent=LIABILITIES;English=Trade payables;French=Dettes fournisseurs;German=Verbindlichkeiten aus Lieferungen und Leistungen
4410;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP None];Y;;1;DefaultParent=PAYABLES;English=Payables to third parties;French=Fournisseurs tiers;German=Verbindlichkeiten gegen Dritte
4420;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP None];Y;;1;DefaultParent=PAYABLES;English=Goods received, not invoiced;French=Factures non parvenues;German=Wareneingang ohne Rechnung
4430;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP None];Y;;1;DefaultParent=PAYABLES;English=Bills payable;French=Effets à payer;German=Wechselverbindlichkeiten
4440;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP None];Y;;1;DefaultParent=PAYABLES;English=Reverse factoring;French=Affacturage inversé;German=Reverse Factoring
4450;LIABILITY;N;Y;R;PLUG_1;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP Top];Y;;1;DefaultParent=PAYABLES;English=Payables to group companies;French=Dettes envers le groupe;German=Verbindlichkeiten gegen verbundene Unternehmen
4460;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP None];Y;;1;DefaultParent=PAYABLES;English=Payables for fixed assets;French=Dettes sur immobilisations;German=Verbindlichkeiten für Anlagen
4470;LIABILITY;N;Y;R;PLUG_5;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP Top];Y;;1;DefaultParent=PAYABLES;English=Payables for fixed assets, group;French=Dettes sur immobilisations, groupe;German=Verbindlichkeiten für Anlagen, Konzern
"Other" payables;LIABILITY;Y;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP None];N;;0;DefaultParent=LIABILITIES;English=Other current liabilities;French=Autres passifs courants;German=Übrige kurzfristige Schulden
4510;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP None];Y;;1;DefaultParent="Other" payables;English=VAT payable;French=TVA à payer;German=Umsatzsteuer
4520;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_HR;[ICP None];Y;;1;DefaultParent="Other" payables;English=Payroll payable;French=Rémunérations dues;German=Löhne und Gehälter
4530;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_HR;[ICP None];Y;;1;DefaultParent="Other" payables;English=Social security payable;French=Organismes sociaux;German=Sozialversicherung
4540;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_HR;[ICP None];Y;;1;DefaultParent="Other" payables;English=Holiday pay;French=Congés payés;German=Urlaubsverpflichtungen
4550;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP None];Y;;1;DefaultParent="Other" payables;English=Contract liabilities;French=Passifs sur contrats;German=Vertragsverbindlichkeiten
4560;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP None];Y;;1;DefaultParent="Other" payables;English=Deferred income;French=Produits constatés d'avance;German=Passive Rechnungsabgrenzung
4570;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP None];Y;;1;DefaultParent="Other" payables;English=Government grants;French=Subventions d'investissement;German=Investitionszuschüsse
4580;LIABILITY;N;Y;R;PLUG_3;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP Top];Y;;1;DefaultParent="Other" payables;English=Dividends payable, group;French=Dividendes à payer, groupe;German=Dividendenverbindlichkeiten, Konzern
4585;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP None];Y;;1;DefaultParent="Other" payables;English=Dividends payable, others;French=Dividendes à payer, tiers;German=Dividendenverbindlichkeiten, Dritte
4590;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP None];Y;;1;DefaultParent="Other" payables;English=Sundry payables;French=Dettes diverses;German=Sonstige Verbindlichkeiten
CURTAX_L;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_TAX;[ICP None];Y;;1;DefaultParent=LIABILITIES;English=Current tax liabilities;French=Dettes d'impôt exigible;German=Steuerverbindlichkeiten
HFS_L;LIABILITY;N;Y;N;;CLO;[None];[None];[None];0;N;Y;N;N;N;BS;;;;SC_BS;[ICP None];Y;;1;DefaultParent=LIABILITIES;English=Liabilities held for sale;French=Passifs liés à des actifs cédés;German=Schulden zur Veräußerung
Income Statement;GROUPLABEL;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;;;SC_PNL;[ICP None];N;;0;DefaultParent=#root;English=Income statement;French=Compte de résultat;German=Gewinn- und Verlustrechnung
NETRESULT;REVENUE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;;;SC_PNL;[ICP None];N;;0;DefaultParent=Income Statement;English=Net result;French=Résultat net de l'ensemble;German=Konzernergebnis
PBT;REVENUE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;;;SC_PNL;[ICP None];N;;0;DefaultParent=NETRESULT;English=Profit before tax;French=Résultat avant impôt;German=Ergebnis vor Steuern
EBIT;REVENUE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;;;SC_PNL;[ICP None];N;;0;DefaultParent=PBT;English=Operating result;French=Résultat opérationnel;German=Betriebsergebnis
GROSS;REVENUE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;;;SC_PNL;[ICP None];N;;0;DefaultParent=EBIT;English=Gross margin;French=Marge brute;German=Bruttoergebnis
TURNOVER;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 3;;ifrs-full_Revenue;SC_PNL;[ICP None];Y;;1;DefaultParent=GROSS;English=Revenue;French=Chiffre d'affaires;German=Umsatzerlöse
COGS;EXPENSE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 4;;;SC_PNL;[ICP None];Y;;1;DefaultParent=GROSS;English=Cost of sales;French=Coût des ventes;German=Herstellungskosten des Umsatzes
OPEX;EXPENSE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 5;;;SC_PNL;[ICP None];Y;;1;DefaultParent=EBIT;English=Operating expenses;French=Charges opérationnelles;German=Betriebsaufwand
OTHOPS;REVENUE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;;;SC_PNL;[ICP None];N;;0;DefaultParent=EBIT;English=Other operating items;French=Autres éléments opérationnels;German=Übrige betriebliche Posten
6010;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;;;SC_PNL;[ICP None];Y;;1;DefaultParent=OTHOPS;English=Gains on disposal of assets;French=Plus-values de cession;German=Gewinne aus Anlagenabgängen
6020;REVENUE;N;Y;R;PLUG_5;[None];[None];[None];[None];0;N;N;N;N;N;PL;;;;SC_PNL;[ICP Top];Y;;1;DefaultParent=OTHOPS;English=Gains on disposal, group;French=Plus-values de cession, groupe;German=Gewinne aus Anlagenabgängen, Konzern
6030;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;;;SC_PNL;[ICP None];Y;;1;DefaultParent=OTHOPS;English=Government grants, income;French=Subventions d'exploitation;German=Erträge aus Zuschüssen
6040;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;;;SC_PNL;[ICP None];Y;;1;DefaultParent=OTHOPS;English=Insurance indemnities;French=Indemnités d'assurance;German=Versicherungsentschädigungen
6050;EXPENSE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;;;SC_PNL;[ICP None];Y;;1;DefaultParent=OTHOPS;English=Restructuring cost;French=Coûts de restructuration;German=Restrukturierungsaufwand
6060;EXPENSE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;;;SC_PNL;[ICP None];Y;;1;DefaultParent=OTHOPS;English=Impairment of goodwill;French=Dépréciation du goodwill;German=Wertminderung des Firmenwerts
6070;EXPENSE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;;;SC_PNL;[ICP None];Y;;1;DefaultParent=OTHOPS;English=Impairment of fixed assets;French=Dépréciation des immobilisations;German=Wertminderung von Sachanlagen
6080;EXPENSE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;;;SC_PNL;[ICP None];Y;;1;DefaultParent=OTHOPS;English=Acquisition cost;French=Frais d'acquisition;German=Anschaffungsnebenkosten
6090;EXPENSE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;;;SC_PNL;[ICP None];Y;;1;DefaultParent=OTHOPS;English=Losses on disposal of assets;French=Moins-values de cession;German=Verluste aus Anlagenabgängen
FINRESULT;REVENUE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 7;;;SC_TREASURY;[ICP None];N;;0;DefaultParent=PBT;English=Financial result;French=Résultat financier;German=Finanzergebnis
7010;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 7;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=FINRESULT;English=Interest income;French=Produits d'intérêts;German=Zinserträge
7020;REVENUE;N;Y;R;PLUG_4;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 7;;;SC_TREASURY;[ICP Top];Y;;1;DefaultParent=FINRESULT;English=Interest income, group;French=Produits d'intérêts, groupe;German=Zinserträge, Konzern
7030;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 7;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=FINRESULT;English=Dividends received;French=Dividendes reçus;German=Dividendenerträge
7040;REVENUE;N;Y;R;PLUG_3;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 7;;;SC_TREASURY;[ICP Top];Y;;1;DefaultParent=FINRESULT;English=Dividends received, group;French=Dividendes reçus, groupe;German=Dividendenerträge, Konzern
7050;EXPENSE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 7;;;SC_TREASURY;[ICP None];N;;0;DefaultParent=FINRESULT;English=Interest on borrowings;French=Intérêts sur emprunts;German=Zinsen auf Finanzschulden
70510;EXPENSE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 7;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=7050;English=Interest, Bonds;French=Intérêts, Emprunts obligataires;German=Zinsen, Anleihen
70520;EXPENSE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 7;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=7050;English=Interest, Bank loans;French=Intérêts, Emprunts bancaires;German=Zinsen, Bankdarlehen
70530;EXPENSE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 7;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=7050;English=Interest, Commercial paper;French=Intérêts, Billets de trésorerie;German=Zinsen, Geldmarktpapiere
70540;EXPENSE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 7;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=7050;English=Interest, Lease liabilities;French=Intérêts, Dettes de location;German=Zinsen, Leasingverbindlichkeiten
70550;EXPENSE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 7;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=7050;English=Interest, Private placements;French=Intérêts, Placements privés;German=Zinsen, Schuldscheindarlehen
70560;EXPENSE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 7;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=7050;English=Interest, Factoring with recourse;French=Intérêts, Affacturage avec recours;German=Zinsen, Unechtes Factoring
70570;EXPENSE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 7;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=7050;English=Interest, Other borrowings;French=Intérêts, Autres emprunts;German=Zinsen, Sonstige Finanzschulden
7060;EXPENSE;N;Y;R;PLUG_4;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 7;;;SC_TREASURY;[ICP Top];Y;;1;DefaultParent=FINRESULT;English=Interest expense, group;French=Charges d'intérêts, groupe;German=Zinsaufwand, Konzern
7070;EXPENSE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 7;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=FINRESULT;English=Unwinding of provisions;French=Désactualisation des provisions;German=Aufzinsung der Rückstellungen
7080;EXPENSE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 7;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=FINRESULT;English=Net interest on pensions;French=Intérêts nets sur retraites;German=Nettozinsen Pensionen
7090;EXPENSE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 7;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=FINRESULT;English=Exchange losses, net;French=Pertes de change nettes;German=Währungsverluste, netto
7095;EXPENSE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 7;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=FINRESULT;English=Bank charges;French=Frais bancaires;German=Bankspesen
ASSOCIATES;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;;;SC_PNL;[ICP None];Y;;1;DefaultParent=PBT;English=Result of associates and joint ventures;French=Quote-part des entreprises associées;German=Ergebnis aus at-equity bewerteten Unternehmen
TAX;EXPENSE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 8;;;SC_TAX;[ICP None];N;;0;DefaultParent=NETRESULT;English=Income tax;French=Impôt sur le résultat;German=Ertragsteuern
7510;EXPENSE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=TAX;English=Current tax;French=Impôt exigible;German=Laufende Steuern
7520;EXPENSE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=TAX;English=Current tax, prior years;French=Impôt exigible, exercices antérieurs;German=Laufende Steuern, Vorjahre
7530;EXPENSE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 8;;;SC_TAX;[ICP None];N;;0;DefaultParent=TAX;English=Deferred tax;French=Impôt différé;German=Latente Steuern
7531;EXPENSE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=7530;English=Deferred tax, fixed assets;French=Impôt différé, immobilisations;German=Latente Steuern, Anlagevermögen
7532;EXPENSE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=7530;English=Deferred tax, inventories;French=Impôt différé, stocks;German=Latente Steuern, Vorräte
7533;EXPENSE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=7530;English=Deferred tax, receivables;French=Impôt différé, créances;German=Latente Steuern, Forderungen
7534;EXPENSE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=7530;English=Deferred tax, pensions;French=Impôt différé, retraites;German=Latente Steuern, Pensionen
7535;EXPENSE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=7530;English=Deferred tax, provisions;French=Impôt différé, provisions;German=Latente Steuern, Rückstellungen
7536;EXPENSE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=7530;English=Deferred tax, leases;French=Impôt différé, locations;German=Latente Steuern, Leasing
7537;EXPENSE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=7530;English=Deferred tax, losses carried forward;French=Impôt différé, déficits reportables;German=Latente Steuern, Verlustvorträge
7538;EXPENSE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=7530;English=Deferred tax, other differences;French=Impôt différé, autres différences;German=Latente Steuern, sonstige Differenzen
7540;EXPENSE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=TAX;English=Withholding tax;French=Retenues à la source;German=Quellensteuer
DISCONT;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;;;SC_PNL;[ICP None];Y;;1;DefaultParent=NETRESULT;English=Result of discontinued operations;French=Résultat des activités abandonnées;German=Ergebnis aufgegebener Geschäftsbereiche
P&L detail;GROUPLABEL;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;;;SC_PNL;[ICP None];N;;0;DefaultParent=#root;English=Income statement, detail;French=Compte de résultat, détail;German=GuV-Details
REVENUES;REVENUE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Sales controlling;;SC_PNL;[ICP None];N;;0;DefaultParent=P&L detail;English=Revenue by product family;French=Chiffre d'affaires par famille;German=Umsatz nach Produktfamilie
5010;REVENUE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Sales controlling;;SC_PNL;[ICP None];N;;0;DefaultParent=REVENUES;English=Dairy;French=Produits laitiers;German=Molkereiprodukte
5011;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5010;English=Dairy, sales to third parties;French=Produits laitiers, ventes aux tiers;German=Molkereiprodukte, Umsatz mit Dritten
5014;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5010;English=Dairy, rebates and bonuses;French=Produits laitiers, remises et ristournes;German=Molkereiprodukte, Rabatte und Boni
5015;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5010;English=Dairy, returns;French=Produits laitiers, retours;German=Molkereiprodukte, Retouren
5016;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5010;English=Dairy, cash discounts;French=Produits laitiers, escomptes accordés;German=Molkereiprodukte, Skonti
5012;REVENUE;N;Y;R;PLUG_1;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Sales controlling;;SC_PNL;[ICP Top];Y;;1;DefaultParent=5010;English=Dairy, group companies;French=Produits laitiers, sociétés du groupe;German=Molkereiprodukte, verbundene Unternehmen
5020;REVENUE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Sales controlling;;SC_PNL;[ICP None];N;;0;DefaultParent=REVENUES;English=Timber;French=Bois;German=Holz
5021;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5020;English=Timber, sales to third parties;French=Bois, ventes aux tiers;German=Holz, Umsatz mit Dritten
5024;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5020;English=Timber, rebates and bonuses;French=Bois, remises et ristournes;German=Holz, Rabatte und Boni
5025;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5020;English=Timber, returns;French=Bois, retours;German=Holz, Retouren
5026;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5020;English=Timber, cash discounts;French=Bois, escomptes accordés;German=Holz, Skonti
5022;REVENUE;N;Y;R;PLUG_1;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Sales controlling;;SC_PNL;[ICP Top];Y;;1;DefaultParent=5020;English=Timber, group companies;French=Bois, sociétés du groupe;German=Holz, verbundene Unternehmen
5030;REVENUE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Sales controlling;;SC_PNL;[ICP None];N;;0;DefaultParent=REVENUES;English=Glass;French=Verre;German=Glas
5031;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5030;English=Glass, sales to third parties;French=Verre, ventes aux tiers;German=Glas, Umsatz mit Dritten
5034;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5030;English=Glass, rebates and bonuses;French=Verre, remises et ristournes;German=Glas, Rabatte und Boni
5035;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5030;English=Glass, returns;French=Verre, retours;German=Glas, Retouren
5036;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5030;English=Glass, cash discounts;French=Verre, escomptes accordés;German=Glas, Skonti
5032;REVENUE;N;Y;R;PLUG_1;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Sales controlling;;SC_PNL;[ICP Top];Y;;1;DefaultParent=5030;English=Glass, group companies;French=Verre, sociétés du groupe;German=Glas, verbundene Unternehmen
5040;REVENUE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Sales controlling;;SC_PNL;[ICP None];N;;0;DefaultParent=REVENUES;English=Paper;French=Papier;German=Papier
5041;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5040;English=Paper, sales to third parties;French=Papier, ventes aux tiers;German=Papier, Umsatz mit Dritten
5044;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5040;English=Paper, rebates and bonuses;French=Papier, remises et ristournes;German=Papier, Rabatte und Boni
5045;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5040;English=Paper, returns;French=Papier, retours;German=Papier, Retouren
5046;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5040;English=Paper, cash discounts;French=Papier, escomptes accordés;German=Papier, Skonti
5042;REVENUE;N;Y;R;PLUG_1;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Sales controlling;;SC_PNL;[ICP Top];Y;;1;DefaultParent=5040;English=Paper, group companies;French=Papier, sociétés du groupe;German=Papier, verbundene Unternehmen
5050;REVENUE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Sales controlling;;SC_PNL;[ICP None];N;;0;DefaultParent=REVENUES;English=Cement;French=Ciment;German=Zement
5051;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5050;English=Cement, sales to third parties;French=Ciment, ventes aux tiers;German=Zement, Umsatz mit Dritten
5054;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5050;English=Cement, rebates and bonuses;French=Ciment, remises et ristournes;German=Zement, Rabatte und Boni
5055;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5050;English=Cement, returns;French=Ciment, retours;German=Zement, Retouren
5056;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5050;English=Cement, cash discounts;French=Ciment, escomptes accordés;German=Zement, Skonti
5052;REVENUE;N;Y;R;PLUG_1;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Sales controlling;;SC_PNL;[ICP Top];Y;;1;DefaultParent=5050;English=Cement, group companies;French=Ciment, sociétés du groupe;German=Zement, verbundene Unternehmen
5060;REVENUE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Sales controlling;;SC_PNL;[ICP None];N;;0;DefaultParent=REVENUES;English=Energy;French=Énergie;German=Energie
5061;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5060;English=Energy, sales to third parties;French=Énergie, ventes aux tiers;German=Energie, Umsatz mit Dritten
5064;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5060;English=Energy, rebates and bonuses;French=Énergie, remises et ristournes;German=Energie, Rabatte und Boni
5065;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5060;English=Energy, returns;French=Énergie, retours;German=Energie, Retouren
5066;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5060;English=Energy, cash discounts;French=Énergie, escomptes accordés;German=Energie, Skonti
5062;REVENUE;N;Y;R;PLUG_1;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Sales controlling;;SC_PNL;[ICP Top];Y;;1;DefaultParent=5060;English=Energy, group companies;French=Énergie, sociétés du groupe;German=Energie, verbundene Unternehmen
5070;REVENUE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Sales controlling;;SC_PNL;[ICP None];N;;0;DefaultParent=REVENUES;English=Ferries;French=Traversées;German=Fähren
5071;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5070;English=Ferries, sales to third parties;French=Traversées, ventes aux tiers;German=Fähren, Umsatz mit Dritten
5074;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5070;English=Ferries, rebates and bonuses;French=Traversées, remises et ristournes;German=Fähren, Rabatte und Boni
5075;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5070;English=Ferries, returns;French=Traversées, retours;German=Fähren, Retouren
5076;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5070;English=Ferries, cash discounts;French=Traversées, escomptes accordés;German=Fähren, Skonti
5072;REVENUE;N;Y;R;PLUG_1;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Sales controlling;;SC_PNL;[ICP Top];Y;;1;DefaultParent=5070;English=Ferries, group companies;French=Traversées, sociétés du groupe;German=Fähren, verbundene Unternehmen
5080;REVENUE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Sales controlling;;SC_PNL;[ICP None];N;;0;DefaultParent=REVENUES;English=Engineering;French=Ingénierie;German=Maschinenbau
5081;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5080;English=Engineering, sales to third parties;French=Ingénierie, ventes aux tiers;German=Maschinenbau, Umsatz mit Dritten
5084;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5080;English=Engineering, rebates and bonuses;French=Ingénierie, remises et ristournes;German=Maschinenbau, Rabatte und Boni
5085;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5080;English=Engineering, returns;French=Ingénierie, retours;German=Maschinenbau, Retouren
5086;REVENUE;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5080;English=Engineering, cash discounts;French=Ingénierie, escomptes accordés;German=Maschinenbau, Skonti
5082;REVENUE;N;Y;R;PLUG_1;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Sales controlling;;SC_PNL;[ICP Top];Y;;1;DefaultParent=5080;English=Engineering, group companies;French=Ingénierie, sociétés du groupe;German=Maschinenbau, verbundene Unternehmen
5090;REVENUE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Sales controlling;;SC_PNL;[ICP None];N;;0;DefaultParent=REVENUES;English=Services and royalties;French=Services et redevances;German=Dienstleistungen und Lizenzen
5091;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5090;English=Royalties;French=Redevances;German=Lizenzerträge
5092;REVENUE;N;Y;R;PLUG_1;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Sales controlling;;SC_PNL;[ICP Top];Y;;1;DefaultParent=5090;English=Royalties, group;French=Redevances, groupe;German=Lizenzerträge, Konzern
5093;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Sales controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5090;English=Rental income;French=Revenus locatifs;German=Mieterträge
5094;REVENUE;N;Y;R;PLUG_6;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Sales controlling;;SC_PNL;[ICP Top];Y;;1;DefaultParent=5090;English=Rental income, group;French=Revenus locatifs, groupe;German=Mieterträge, Konzern
5095;REVENUE;N;Y;R;PLUG_1;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Sales controlling;;SC_PNL;[ICP Top];Y;;1;DefaultParent=5090;English=Management fees, group;French=Frais de gestion, groupe;German=Konzernumlagen
COSTS;EXPENSE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];N;;0;DefaultParent=P&L detail;English=Cost of sales by product family;French=Coût des ventes par famille;German=Herstellungskosten nach Produktfamilie
5510;EXPENSE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];N;;0;DefaultParent=COSTS;English=Cost of sales, Dairy;French=Coût des ventes, Produits laitiers;German=Herstellungskosten, Molkereiprodukte
5511;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5510;English=Dairy, raw materials consumed;French=Produits laitiers, matières consommées;German=Molkereiprodukte, Rohstoffverbrauch
5512;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5510;English=Dairy, packaging consumed;French=Produits laitiers, emballages consommés;German=Molkereiprodukte, Verpackungsverbrauch
5513;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5510;English=Dairy, direct labour;French=Produits laitiers, main-d'œuvre directe;German=Molkereiprodukte, Fertigungslöhne
5514;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5510;English=Dairy, energy used;French=Produits laitiers, énergie consommée;German=Molkereiprodukte, Energieverbrauch
5515;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5510;English=Dairy, subcontracting;French=Produits laitiers, sous-traitance;German=Molkereiprodukte, Fremdleistungen
5516;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5510;English=Dairy, freight inwards;French=Produits laitiers, transport sur achats;German=Molkereiprodukte, Eingangsfrachten
5517;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5510;English=Dairy, plant depreciation;French=Produits laitiers, amortissement des usines;German=Molkereiprodukte, Abschreibung der Werke
5518;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5510;English=Dairy, change in inventories;French=Produits laitiers, variation des stocks;German=Molkereiprodukte, Bestandsveränderung
5519;EXPENSE;N;Y;R;PLUG_1;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Plant controlling;;SC_PNL;[ICP Top];Y;;1;DefaultParent=5510;English=Dairy, purchases from the group;French=Produits laitiers, achats au groupe;German=Molkereiprodukte, Bezüge vom Konzern
5520;EXPENSE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];N;;0;DefaultParent=COSTS;English=Cost of sales, Timber;French=Coût des ventes, Bois;German=Herstellungskosten, Holz
5521;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5520;English=Timber, raw materials consumed;French=Bois, matières consommées;German=Holz, Rohstoffverbrauch
5522;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5520;English=Timber, packaging consumed;French=Bois, emballages consommés;German=Holz, Verpackungsverbrauch
5523;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5520;English=Timber, direct labour;French=Bois, main-d'œuvre directe;German=Holz, Fertigungslöhne
5524;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5520;English=Timber, energy used;French=Bois, énergie consommée;German=Holz, Energieverbrauch
5525;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5520;English=Timber, subcontracting;French=Bois, sous-traitance;German=Holz, Fremdleistungen
5526;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5520;English=Timber, freight inwards;French=Bois, transport sur achats;German=Holz, Eingangsfrachten
5527;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5520;English=Timber, plant depreciation;French=Bois, amortissement des usines;German=Holz, Abschreibung der Werke
5528;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5520;English=Timber, change in inventories;French=Bois, variation des stocks;German=Holz, Bestandsveränderung
5529;EXPENSE;N;Y;R;PLUG_1;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Plant controlling;;SC_PNL;[ICP Top];Y;;1;DefaultParent=5520;English=Timber, purchases from the group;French=Bois, achats au groupe;German=Holz, Bezüge vom Konzern
5530;EXPENSE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];N;;0;DefaultParent=COSTS;English=Cost of sales, Glass;French=Coût des ventes, Verre;German=Herstellungskosten, Glas
5531;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5530;English=Glass, raw materials consumed;French=Verre, matières consommées;German=Glas, Rohstoffverbrauch
5532;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5530;English=Glass, packaging consumed;French=Verre, emballages consommés;German=Glas, Verpackungsverbrauch
5533;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5530;English=Glass, direct labour;French=Verre, main-d'œuvre directe;German=Glas, Fertigungslöhne
5534;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5530;English=Glass, energy used;French=Verre, énergie consommée;German=Glas, Energieverbrauch
5535;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5530;English=Glass, subcontracting;French=Verre, sous-traitance;German=Glas, Fremdleistungen
5536;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5530;English=Glass, freight inwards;French=Verre, transport sur achats;German=Glas, Eingangsfrachten
5537;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5530;English=Glass, plant depreciation;French=Verre, amortissement des usines;German=Glas, Abschreibung der Werke
5538;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5530;English=Glass, change in inventories;French=Verre, variation des stocks;German=Glas, Bestandsveränderung
5539;EXPENSE;N;Y;R;PLUG_1;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Plant controlling;;SC_PNL;[ICP Top];Y;;1;DefaultParent=5530;English=Glass, purchases from the group;French=Verre, achats au groupe;German=Glas, Bezüge vom Konzern
5540;EXPENSE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];N;;0;DefaultParent=COSTS;English=Cost of sales, Paper;French=Coût des ventes, Papier;German=Herstellungskosten, Papier
5541;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5540;English=Paper, raw materials consumed;French=Papier, matières consommées;German=Papier, Rohstoffverbrauch
5542;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5540;English=Paper, packaging consumed;French=Papier, emballages consommés;German=Papier, Verpackungsverbrauch
5543;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5540;English=Paper, direct labour;French=Papier, main-d'œuvre directe;German=Papier, Fertigungslöhne
5544;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5540;English=Paper, energy used;French=Papier, énergie consommée;German=Papier, Energieverbrauch
5545;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5540;English=Paper, subcontracting;French=Papier, sous-traitance;German=Papier, Fremdleistungen
5546;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5540;English=Paper, freight inwards;French=Papier, transport sur achats;German=Papier, Eingangsfrachten
5547;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5540;English=Paper, plant depreciation;French=Papier, amortissement des usines;German=Papier, Abschreibung der Werke
5548;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5540;English=Paper, change in inventories;French=Papier, variation des stocks;German=Papier, Bestandsveränderung
5549;EXPENSE;N;Y;R;PLUG_1;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Plant controlling;;SC_PNL;[ICP Top];Y;;1;DefaultParent=5540;English=Paper, purchases from the group;French=Papier, achats au groupe;German=Papier, Bezüge vom Konzern
5550;EXPENSE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];N;;0;DefaultParent=COSTS;English=Cost of sales, Cement;French=Coût des ventes, Ciment;German=Herstellungskosten, Zement
5551;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5550;English=Cement, raw materials consumed;French=Ciment, matières consommées;German=Zement, Rohstoffverbrauch
5552;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5550;English=Cement, packaging consumed;French=Ciment, emballages consommés;German=Zement, Verpackungsverbrauch
5553;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5550;English=Cement, direct labour;French=Ciment, main-d'œuvre directe;German=Zement, Fertigungslöhne
5554;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5550;English=Cement, energy used;French=Ciment, énergie consommée;German=Zement, Energieverbrauch
5555;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5550;English=Cement, subcontracting;French=Ciment, sous-traitance;German=Zement, Fremdleistungen
5556;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5550;English=Cement, freight inwards;French=Ciment, transport sur achats;German=Zement, Eingangsfrachten
5557;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5550;English=Cement, plant depreciation;French=Ciment, amortissement des usines;German=Zement, Abschreibung der Werke
5558;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5550;English=Cement, change in inventories;French=Ciment, variation des stocks;German=Zement, Bestandsveränderung
5559;EXPENSE;N;Y;R;PLUG_1;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Plant controlling;;SC_PNL;[ICP Top];Y;;1;DefaultParent=5550;English=Cement, purchases from the group;French=Ciment, achats au groupe;German=Zement, Bezüge vom Konzern
5560;EXPENSE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];N;;0;DefaultParent=COSTS;English=Cost of sales, Energy;French=Coût des ventes, Énergie;German=Herstellungskosten, Energie
5561;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5560;English=Energy, raw materials consumed;French=Énergie, matières consommées;German=Energie, Rohstoffverbrauch
5562;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5560;English=Energy, packaging consumed;French=Énergie, emballages consommés;German=Energie, Verpackungsverbrauch
5563;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5560;English=Energy, direct labour;French=Énergie, main-d'œuvre directe;German=Energie, Fertigungslöhne
5564;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5560;English=Energy, energy used;French=Énergie, énergie consommée;German=Energie, Energieverbrauch
5565;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5560;English=Energy, subcontracting;French=Énergie, sous-traitance;German=Energie, Fremdleistungen
5566;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5560;English=Energy, freight inwards;French=Énergie, transport sur achats;German=Energie, Eingangsfrachten
5567;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5560;English=Energy, plant depreciation;French=Énergie, amortissement des usines;German=Energie, Abschreibung der Werke
5568;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5560;English=Energy, change in inventories;French=Énergie, variation des stocks;German=Energie, Bestandsveränderung
5569;EXPENSE;N;Y;R;PLUG_1;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Plant controlling;;SC_PNL;[ICP Top];Y;;1;DefaultParent=5560;English=Energy, purchases from the group;French=Énergie, achats au groupe;German=Energie, Bezüge vom Konzern
5570;EXPENSE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];N;;0;DefaultParent=COSTS;English=Cost of sales, Ferries;French=Coût des ventes, Traversées;German=Herstellungskosten, Fähren
5571;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5570;English=Ferries, raw materials consumed;French=Traversées, matières consommées;German=Fähren, Rohstoffverbrauch
5572;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5570;English=Ferries, packaging consumed;French=Traversées, emballages consommés;German=Fähren, Verpackungsverbrauch
5573;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5570;English=Ferries, direct labour;French=Traversées, main-d'œuvre directe;German=Fähren, Fertigungslöhne
5574;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5570;English=Ferries, energy used;French=Traversées, énergie consommée;German=Fähren, Energieverbrauch
5575;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5570;English=Ferries, subcontracting;French=Traversées, sous-traitance;German=Fähren, Fremdleistungen
5576;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5570;English=Ferries, freight inwards;French=Traversées, transport sur achats;German=Fähren, Eingangsfrachten
5577;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5570;English=Ferries, plant depreciation;French=Traversées, amortissement des usines;German=Fähren, Abschreibung der Werke
5578;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5570;English=Ferries, change in inventories;French=Traversées, variation des stocks;German=Fähren, Bestandsveränderung
5579;EXPENSE;N;Y;R;PLUG_1;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Plant controlling;;SC_PNL;[ICP Top];Y;;1;DefaultParent=5570;English=Ferries, purchases from the group;French=Traversées, achats au groupe;German=Fähren, Bezüge vom Konzern
5580;EXPENSE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];N;;0;DefaultParent=COSTS;English=Cost of sales, Engineering;French=Coût des ventes, Ingénierie;German=Herstellungskosten, Maschinenbau
5581;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5580;English=Engineering, raw materials consumed;French=Ingénierie, matières consommées;German=Maschinenbau, Rohstoffverbrauch
5582;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5580;English=Engineering, packaging consumed;French=Ingénierie, emballages consommés;German=Maschinenbau, Verpackungsverbrauch
5583;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5580;English=Engineering, direct labour;French=Ingénierie, main-d'œuvre directe;German=Maschinenbau, Fertigungslöhne
5584;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5580;English=Engineering, energy used;French=Ingénierie, énergie consommée;German=Maschinenbau, Energieverbrauch
5585;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5580;English=Engineering, subcontracting;French=Ingénierie, sous-traitance;German=Maschinenbau, Fremdleistungen
5586;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5580;English=Engineering, freight inwards;French=Ingénierie, transport sur achats;German=Maschinenbau, Eingangsfrachten
5587;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5580;English=Engineering, plant depreciation;French=Ingénierie, amortissement des usines;German=Maschinenbau, Abschreibung der Werke
5588;EXPENSE;N;Y;N;;[None];ALL_PRODUCTS;[None];[None];0;N;N;Y;N;N;PL;;Plant controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=5580;English=Engineering, change in inventories;French=Ingénierie, variation des stocks;German=Maschinenbau, Bestandsveränderung
5589;EXPENSE;N;Y;R;PLUG_1;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Plant controlling;;SC_PNL;[ICP Top];Y;;1;DefaultParent=5580;English=Engineering, purchases from the group;French=Ingénierie, achats au groupe;German=Maschinenbau, Bezüge vom Konzern
FUNCTIONS;EXPENSE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Cost controlling;;SC_PNL;[ICP None];N;;0;DefaultParent=P&L detail;English=Operating expenses by function;French=Charges par fonction;German=Betriebsaufwand nach Funktion
6100;EXPENSE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Cost controlling;;SC_PNL;[ICP None];N;;0;DefaultParent=FUNCTIONS;English=Production overheads;French=Frais généraux de production;German=Fertigungsgemeinkosten
6101;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6100;English=Production overheads, wages and salaries;French=Frais généraux de production, salaires et traitements;German=Fertigungsgemeinkosten, Löhne und Gehälter
6102;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6100;English=Production overheads, social security;French=Frais généraux de production, charges sociales;German=Fertigungsgemeinkosten, Sozialabgaben
6103;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6100;English=Production overheads, bonuses;French=Frais généraux de production, primes;German=Fertigungsgemeinkosten, Boni
6104;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6100;English=Production overheads, pension cost;French=Frais généraux de production, charges de retraite;German=Fertigungsgemeinkosten, Altersversorgung
6105;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6100;English=Production overheads, temporary staff;French=Frais généraux de production, personnel intérimaire;German=Fertigungsgemeinkosten, Leiharbeit
6106;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6100;English=Production overheads, training;French=Frais généraux de production, formation;German=Fertigungsgemeinkosten, Weiterbildung
6107;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6100;English=Production overheads, recruiting;French=Frais généraux de production, recrutement;German=Fertigungsgemeinkosten, Personalbeschaffung
6108;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6100;English=Production overheads, travel;French=Frais généraux de production, déplacements;German=Fertigungsgemeinkosten, Reisekosten
6109;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6100;English=Production overheads, rent;French=Frais généraux de production, loyers;German=Fertigungsgemeinkosten, Mieten
6110;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6100;English=Production overheads, electricity and heating;French=Frais généraux de production, électricité et chauffage;German=Fertigungsgemeinkosten, Strom und Heizung
6111;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6100;English=Production overheads, cleaning;French=Frais généraux de production, nettoyage;German=Fertigungsgemeinkosten, Reinigung
6112;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6100;English=Production overheads, repairs and maintenance;French=Frais généraux de production, entretien et réparations;German=Fertigungsgemeinkosten, Instandhaltung
6113;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6100;English=Production overheads, vehicles and fuel;French=Frais généraux de production, véhicules et carburants;German=Fertigungsgemeinkosten, Fahrzeuge und Treibstoffe
6114;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6100;English=Production overheads, telecommunication;French=Frais généraux de production, télécommunications;German=Fertigungsgemeinkosten, Telekommunikation
6115;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6100;English=Production overheads, software subscriptions;French=Frais généraux de production, abonnements logiciels;German=Fertigungsgemeinkosten, Softwareabonnements
6116;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6100;English=Production overheads, office supplies;French=Frais généraux de production, fournitures de bureau;German=Fertigungsgemeinkosten, Bürobedarf
6117;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6100;English=Production overheads, insurance;French=Frais généraux de production, assurances;German=Fertigungsgemeinkosten, Versicherungen
6118;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6100;English=Production overheads, consulting;French=Frais généraux de production, conseil;German=Fertigungsgemeinkosten, Beratung
6119;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6100;English=Production overheads, legal fees;French=Frais généraux de production, honoraires juridiques;German=Fertigungsgemeinkosten, Rechtskosten
6120;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6100;English=Production overheads, audit fees;French=Frais généraux de production, honoraires d'audit;German=Fertigungsgemeinkosten, Prüfungskosten
6121;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6100;English=Production overheads, advertising;French=Frais généraux de production, publicité;German=Fertigungsgemeinkosten, Werbung
6122;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6100;English=Production overheads, fairs and events;French=Frais généraux de production, salons et événements;German=Fertigungsgemeinkosten, Messen und Veranstaltungen
6123;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6100;English=Production overheads, freight and postage;French=Frais généraux de production, ports et affranchissements;German=Fertigungsgemeinkosten, Fracht und Porto
6124;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6100;English=Production overheads, local taxes;French=Frais généraux de production, impôts locaux;German=Fertigungsgemeinkosten, Gemeindeabgaben
6125;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6100;English=Production overheads, depreciation;French=Frais généraux de production, amortissements;German=Fertigungsgemeinkosten, Abschreibungen
6126;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6100;English=Production overheads, bad debts;French=Frais généraux de production, créances irrécouvrables;German=Fertigungsgemeinkosten, Forderungsausfälle
6127;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6100;English=Production overheads, own work capitalised;French=Frais généraux de production, production immobilisée;German=Fertigungsgemeinkosten, aktivierte Eigenleistungen
6128;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6100;English=Production overheads, sundry;French=Frais généraux de production, divers;German=Fertigungsgemeinkosten, Sonstiges
6190;EXPENSE;N;Y;R;PLUG_1;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Cost controlling;;SC_PNL;[ICP Top];Y;;1;DefaultParent=6100;English=Production overheads, charged by the group;French=Frais généraux de production, refacturé par le groupe;German=Fertigungsgemeinkosten, Belastung durch den Konzern
6200;EXPENSE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Cost controlling;;SC_PNL;[ICP None];N;;0;DefaultParent=FUNCTIONS;English=Logistics;French=Logistique;German=Logistik
6201;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6200;English=Logistics, wages and salaries;French=Logistique, salaires et traitements;German=Logistik, Löhne und Gehälter
6202;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6200;English=Logistics, social security;French=Logistique, charges sociales;German=Logistik, Sozialabgaben
6203;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6200;English=Logistics, bonuses;French=Logistique, primes;German=Logistik, Boni
6204;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6200;English=Logistics, pension cost;French=Logistique, charges de retraite;German=Logistik, Altersversorgung
6205;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6200;English=Logistics, temporary staff;French=Logistique, personnel intérimaire;German=Logistik, Leiharbeit
6206;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6200;English=Logistics, training;French=Logistique, formation;German=Logistik, Weiterbildung
6207;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6200;English=Logistics, recruiting;French=Logistique, recrutement;German=Logistik, Personalbeschaffung
6208;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6200;English=Logistics, travel;French=Logistique, déplacements;German=Logistik, Reisekosten
6209;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6200;English=Logistics, rent;French=Logistique, loyers;German=Logistik, Mieten
6210;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6200;English=Logistics, electricity and heating;French=Logistique, électricité et chauffage;German=Logistik, Strom und Heizung
6211;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6200;English=Logistics, cleaning;French=Logistique, nettoyage;German=Logistik, Reinigung
6212;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6200;English=Logistics, repairs and maintenance;French=Logistique, entretien et réparations;German=Logistik, Instandhaltung
6213;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6200;English=Logistics, vehicles and fuel;French=Logistique, véhicules et carburants;German=Logistik, Fahrzeuge und Treibstoffe
6214;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6200;English=Logistics, telecommunication;French=Logistique, télécommunications;German=Logistik, Telekommunikation
6215;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6200;English=Logistics, software subscriptions;French=Logistique, abonnements logiciels;German=Logistik, Softwareabonnements
6216;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6200;English=Logistics, office supplies;French=Logistique, fournitures de bureau;German=Logistik, Bürobedarf
6217;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6200;English=Logistics, insurance;French=Logistique, assurances;German=Logistik, Versicherungen
6218;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6200;English=Logistics, consulting;French=Logistique, conseil;German=Logistik, Beratung
6219;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6200;English=Logistics, legal fees;French=Logistique, honoraires juridiques;German=Logistik, Rechtskosten
6220;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6200;English=Logistics, audit fees;French=Logistique, honoraires d'audit;German=Logistik, Prüfungskosten
6221;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6200;English=Logistics, advertising;French=Logistique, publicité;German=Logistik, Werbung
6222;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6200;English=Logistics, fairs and events;French=Logistique, salons et événements;German=Logistik, Messen und Veranstaltungen
6223;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6200;English=Logistics, freight and postage;French=Logistique, ports et affranchissements;German=Logistik, Fracht und Porto
6224;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6200;English=Logistics, local taxes;French=Logistique, impôts locaux;German=Logistik, Gemeindeabgaben
6225;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6200;English=Logistics, depreciation;French=Logistique, amortissements;German=Logistik, Abschreibungen
6226;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6200;English=Logistics, bad debts;French=Logistique, créances irrécouvrables;German=Logistik, Forderungsausfälle
6227;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6200;English=Logistics, own work capitalised;French=Logistique, production immobilisée;German=Logistik, aktivierte Eigenleistungen
6228;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6200;English=Logistics, sundry;French=Logistique, divers;German=Logistik, Sonstiges
6290;EXPENSE;N;Y;R;PLUG_1;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Cost controlling;;SC_PNL;[ICP Top];Y;;1;DefaultParent=6200;English=Logistics, charged by the group;French=Logistique, refacturé par le groupe;German=Logistik, Belastung durch den Konzern
6300;EXPENSE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Cost controlling;;SC_PNL;[ICP None];N;;0;DefaultParent=FUNCTIONS;English=Sales;French=Ventes;German=Vertrieb
6301;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6300;English=Sales, wages and salaries;French=Ventes, salaires et traitements;German=Vertrieb, Löhne und Gehälter
6302;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6300;English=Sales, social security;French=Ventes, charges sociales;German=Vertrieb, Sozialabgaben
6303;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6300;English=Sales, bonuses;French=Ventes, primes;German=Vertrieb, Boni
6304;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6300;English=Sales, pension cost;French=Ventes, charges de retraite;German=Vertrieb, Altersversorgung
6305;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6300;English=Sales, temporary staff;French=Ventes, personnel intérimaire;German=Vertrieb, Leiharbeit
6306;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6300;English=Sales, training;French=Ventes, formation;German=Vertrieb, Weiterbildung
6307;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6300;English=Sales, recruiting;French=Ventes, recrutement;German=Vertrieb, Personalbeschaffung
6308;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6300;English=Sales, travel;French=Ventes, déplacements;German=Vertrieb, Reisekosten
6309;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6300;English=Sales, rent;French=Ventes, loyers;German=Vertrieb, Mieten
6310;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6300;English=Sales, electricity and heating;French=Ventes, électricité et chauffage;German=Vertrieb, Strom und Heizung
6311;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6300;English=Sales, cleaning;French=Ventes, nettoyage;German=Vertrieb, Reinigung
6312;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6300;English=Sales, repairs and maintenance;French=Ventes, entretien et réparations;German=Vertrieb, Instandhaltung
6313;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6300;English=Sales, vehicles and fuel;French=Ventes, véhicules et carburants;German=Vertrieb, Fahrzeuge und Treibstoffe
6314;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6300;English=Sales, telecommunication;French=Ventes, télécommunications;German=Vertrieb, Telekommunikation
6315;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6300;English=Sales, software subscriptions;French=Ventes, abonnements logiciels;German=Vertrieb, Softwareabonnements
6316;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6300;English=Sales, office supplies;French=Ventes, fournitures de bureau;German=Vertrieb, Bürobedarf
6317;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6300;English=Sales, insurance;French=Ventes, assurances;German=Vertrieb, Versicherungen
6318;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6300;English=Sales, consulting;French=Ventes, conseil;German=Vertrieb, Beratung
6319;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6300;English=Sales, legal fees;French=Ventes, honoraires juridiques;German=Vertrieb, Rechtskosten
6320;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6300;English=Sales, audit fees;French=Ventes, honoraires d'audit;German=Vertrieb, Prüfungskosten
6321;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6300;English=Sales, advertising;French=Ventes, publicité;German=Vertrieb, Werbung
6322;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6300;English=Sales, fairs and events;French=Ventes, salons et événements;German=Vertrieb, Messen und Veranstaltungen
6323;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6300;English=Sales, freight and postage;French=Ventes, ports et affranchissements;German=Vertrieb, Fracht und Porto
6324;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6300;English=Sales, local taxes;French=Ventes, impôts locaux;German=Vertrieb, Gemeindeabgaben
6325;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6300;English=Sales, depreciation;French=Ventes, amortissements;German=Vertrieb, Abschreibungen
6326;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6300;English=Sales, bad debts;French=Ventes, créances irrécouvrables;German=Vertrieb, Forderungsausfälle
6327;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6300;English=Sales, own work capitalised;French=Ventes, production immobilisée;German=Vertrieb, aktivierte Eigenleistungen
6328;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6300;English=Sales, sundry;French=Ventes, divers;German=Vertrieb, Sonstiges
6390;EXPENSE;N;Y;R;PLUG_1;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Cost controlling;;SC_PNL;[ICP Top];Y;;1;DefaultParent=6300;English=Sales, charged by the group;French=Ventes, refacturé par le groupe;German=Vertrieb, Belastung durch den Konzern
6400;EXPENSE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Cost controlling;;SC_PNL;[ICP None];N;;0;DefaultParent=FUNCTIONS;English=Marketing;French=Marketing;German=Marketing
6401;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6400;English=Marketing, wages and salaries;French=Marketing, salaires et traitements;German=Marketing, Löhne und Gehälter
6402;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6400;English=Marketing, social security;French=Marketing, charges sociales;German=Marketing, Sozialabgaben
6403;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6400;English=Marketing, bonuses;French=Marketing, primes;German=Marketing, Boni
6404;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6400;English=Marketing, pension cost;French=Marketing, charges de retraite;German=Marketing, Altersversorgung
6405;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6400;English=Marketing, temporary staff;French=Marketing, personnel intérimaire;German=Marketing, Leiharbeit
6406;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6400;English=Marketing, training;French=Marketing, formation;German=Marketing, Weiterbildung
6407;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6400;English=Marketing, recruiting;French=Marketing, recrutement;German=Marketing, Personalbeschaffung
6408;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6400;English=Marketing, travel;French=Marketing, déplacements;German=Marketing, Reisekosten
6409;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6400;English=Marketing, rent;French=Marketing, loyers;German=Marketing, Mieten
6410;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6400;English=Marketing, electricity and heating;French=Marketing, électricité et chauffage;German=Marketing, Strom und Heizung
6411;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6400;English=Marketing, cleaning;French=Marketing, nettoyage;German=Marketing, Reinigung
6412;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6400;English=Marketing, repairs and maintenance;French=Marketing, entretien et réparations;German=Marketing, Instandhaltung
6413;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6400;English=Marketing, vehicles and fuel;French=Marketing, véhicules et carburants;German=Marketing, Fahrzeuge und Treibstoffe
6414;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6400;English=Marketing, telecommunication;French=Marketing, télécommunications;German=Marketing, Telekommunikation
6415;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6400;English=Marketing, software subscriptions;French=Marketing, abonnements logiciels;German=Marketing, Softwareabonnements
6416;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6400;English=Marketing, office supplies;French=Marketing, fournitures de bureau;German=Marketing, Bürobedarf
6417;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6400;English=Marketing, insurance;French=Marketing, assurances;German=Marketing, Versicherungen
6418;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6400;English=Marketing, consulting;French=Marketing, conseil;German=Marketing, Beratung
6419;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6400;English=Marketing, legal fees;French=Marketing, honoraires juridiques;German=Marketing, Rechtskosten
6420;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6400;English=Marketing, audit fees;French=Marketing, honoraires d'audit;German=Marketing, Prüfungskosten
6421;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6400;English=Marketing, advertising;French=Marketing, publicité;German=Marketing, Werbung
6422;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6400;English=Marketing, fairs and events;French=Marketing, salons et événements;German=Marketing, Messen und Veranstaltungen
6423;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6400;English=Marketing, freight and postage;French=Marketing, ports et affranchissements;German=Marketing, Fracht und Porto
6424;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6400;English=Marketing, local taxes;French=Marketing, impôts locaux;German=Marketing, Gemeindeabgaben
6425;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6400;English=Marketing, depreciation;French=Marketing, amortissements;German=Marketing, Abschreibungen
6426;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6400;English=Marketing, bad debts;French=Marketing, créances irrécouvrables;German=Marketing, Forderungsausfälle
6427;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6400;English=Marketing, own work capitalised;French=Marketing, production immobilisée;German=Marketing, aktivierte Eigenleistungen
6428;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6400;English=Marketing, sundry;French=Marketing, divers;German=Marketing, Sonstiges
6490;EXPENSE;N;Y;R;PLUG_1;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Cost controlling;;SC_PNL;[ICP Top];Y;;1;DefaultParent=6400;English=Marketing, charged by the group;French=Marketing, refacturé par le groupe;German=Marketing, Belastung durch den Konzern
6500;EXPENSE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Cost controlling;;SC_PNL;[ICP None];N;;0;DefaultParent=FUNCTIONS;English=R&D;French=R&D;German=F&E
6501;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6500;English=R&D, wages and salaries;French=R&D, salaires et traitements;German=F&E, Löhne und Gehälter
6502;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6500;English=R&D, social security;French=R&D, charges sociales;German=F&E, Sozialabgaben
6503;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6500;English=R&D, bonuses;French=R&D, primes;German=F&E, Boni
6504;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6500;English=R&D, pension cost;French=R&D, charges de retraite;German=F&E, Altersversorgung
6505;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6500;English=R&D, temporary staff;French=R&D, personnel intérimaire;German=F&E, Leiharbeit
6506;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6500;English=R&D, training;French=R&D, formation;German=F&E, Weiterbildung
6507;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6500;English=R&D, recruiting;French=R&D, recrutement;German=F&E, Personalbeschaffung
6508;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6500;English=R&D, travel;French=R&D, déplacements;German=F&E, Reisekosten
6509;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6500;English=R&D, rent;French=R&D, loyers;German=F&E, Mieten
6510;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6500;English=R&D, electricity and heating;French=R&D, électricité et chauffage;German=F&E, Strom und Heizung
6511;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6500;English=R&D, cleaning;French=R&D, nettoyage;German=F&E, Reinigung
6512;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6500;English=R&D, repairs and maintenance;French=R&D, entretien et réparations;German=F&E, Instandhaltung
6513;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6500;English=R&D, vehicles and fuel;French=R&D, véhicules et carburants;German=F&E, Fahrzeuge und Treibstoffe
6514;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6500;English=R&D, telecommunication;French=R&D, télécommunications;German=F&E, Telekommunikation
6515;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6500;English=R&D, software subscriptions;French=R&D, abonnements logiciels;German=F&E, Softwareabonnements
6516;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6500;English=R&D, office supplies;French=R&D, fournitures de bureau;German=F&E, Bürobedarf
6517;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6500;English=R&D, insurance;French=R&D, assurances;German=F&E, Versicherungen
6518;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6500;English=R&D, consulting;French=R&D, conseil;German=F&E, Beratung
6519;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6500;English=R&D, legal fees;French=R&D, honoraires juridiques;German=F&E, Rechtskosten
6520;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6500;English=R&D, audit fees;French=R&D, honoraires d'audit;German=F&E, Prüfungskosten
6521;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6500;English=R&D, advertising;French=R&D, publicité;German=F&E, Werbung
6522;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6500;English=R&D, fairs and events;French=R&D, salons et événements;German=F&E, Messen und Veranstaltungen
6523;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6500;English=R&D, freight and postage;French=R&D, ports et affranchissements;German=F&E, Fracht und Porto
6524;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6500;English=R&D, local taxes;French=R&D, impôts locaux;German=F&E, Gemeindeabgaben
6525;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6500;English=R&D, depreciation;French=R&D, amortissements;German=F&E, Abschreibungen
6526;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6500;English=R&D, bad debts;French=R&D, créances irrécouvrables;German=F&E, Forderungsausfälle
6527;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6500;English=R&D, own work capitalised;French=R&D, production immobilisée;German=F&E, aktivierte Eigenleistungen
6528;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6500;English=R&D, sundry;French=R&D, divers;German=F&E, Sonstiges
6590;EXPENSE;N;Y;R;PLUG_1;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Cost controlling;;SC_PNL;[ICP Top];Y;;1;DefaultParent=6500;English=R&D, charged by the group;French=R&D, refacturé par le groupe;German=F&E, Belastung durch den Konzern
6600;EXPENSE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Cost controlling;;SC_PNL;[ICP None];N;;0;DefaultParent=FUNCTIONS;English=Finance;French=Finance;German=Finanzen
6601;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6600;English=Finance, wages and salaries;French=Finance, salaires et traitements;German=Finanzen, Löhne und Gehälter
6602;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6600;English=Finance, social security;French=Finance, charges sociales;German=Finanzen, Sozialabgaben
6603;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6600;English=Finance, bonuses;French=Finance, primes;German=Finanzen, Boni
6604;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6600;English=Finance, pension cost;French=Finance, charges de retraite;German=Finanzen, Altersversorgung
6605;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6600;English=Finance, temporary staff;French=Finance, personnel intérimaire;German=Finanzen, Leiharbeit
6606;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6600;English=Finance, training;French=Finance, formation;German=Finanzen, Weiterbildung
6607;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6600;English=Finance, recruiting;French=Finance, recrutement;German=Finanzen, Personalbeschaffung
6608;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6600;English=Finance, travel;French=Finance, déplacements;German=Finanzen, Reisekosten
6609;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6600;English=Finance, rent;French=Finance, loyers;German=Finanzen, Mieten
6610;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6600;English=Finance, electricity and heating;French=Finance, électricité et chauffage;German=Finanzen, Strom und Heizung
6611;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6600;English=Finance, cleaning;French=Finance, nettoyage;German=Finanzen, Reinigung
6612;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6600;English=Finance, repairs and maintenance;French=Finance, entretien et réparations;German=Finanzen, Instandhaltung
6613;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6600;English=Finance, vehicles and fuel;French=Finance, véhicules et carburants;German=Finanzen, Fahrzeuge und Treibstoffe
6614;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6600;English=Finance, telecommunication;French=Finance, télécommunications;German=Finanzen, Telekommunikation
6615;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6600;English=Finance, software subscriptions;French=Finance, abonnements logiciels;German=Finanzen, Softwareabonnements
6616;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6600;English=Finance, office supplies;French=Finance, fournitures de bureau;German=Finanzen, Bürobedarf
6617;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6600;English=Finance, insurance;French=Finance, assurances;German=Finanzen, Versicherungen
6618;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6600;English=Finance, consulting;French=Finance, conseil;German=Finanzen, Beratung
6619;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6600;English=Finance, legal fees;French=Finance, honoraires juridiques;German=Finanzen, Rechtskosten
6620;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6600;English=Finance, audit fees;French=Finance, honoraires d'audit;German=Finanzen, Prüfungskosten
6621;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6600;English=Finance, advertising;French=Finance, publicité;German=Finanzen, Werbung
6622;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6600;English=Finance, fairs and events;French=Finance, salons et événements;German=Finanzen, Messen und Veranstaltungen
6623;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6600;English=Finance, freight and postage;French=Finance, ports et affranchissements;German=Finanzen, Fracht und Porto
6624;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6600;English=Finance, local taxes;French=Finance, impôts locaux;German=Finanzen, Gemeindeabgaben
6625;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6600;English=Finance, depreciation;French=Finance, amortissements;German=Finanzen, Abschreibungen
6626;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6600;English=Finance, bad debts;French=Finance, créances irrécouvrables;German=Finanzen, Forderungsausfälle
6627;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6600;English=Finance, own work capitalised;French=Finance, production immobilisée;German=Finanzen, aktivierte Eigenleistungen
6628;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6600;English=Finance, sundry;French=Finance, divers;German=Finanzen, Sonstiges
6690;EXPENSE;N;Y;R;PLUG_1;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Cost controlling;;SC_PNL;[ICP Top];Y;;1;DefaultParent=6600;English=Finance, charged by the group;French=Finance, refacturé par le groupe;German=Finanzen, Belastung durch den Konzern
6700;EXPENSE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Cost controlling;;SC_PNL;[ICP None];N;;0;DefaultParent=FUNCTIONS;English=Human resources;French=Ressources humaines;German=Personalwesen
6701;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6700;English=Human resources, wages and salaries;French=Ressources humaines, salaires et traitements;German=Personalwesen, Löhne und Gehälter
6702;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6700;English=Human resources, social security;French=Ressources humaines, charges sociales;German=Personalwesen, Sozialabgaben
6703;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6700;English=Human resources, bonuses;French=Ressources humaines, primes;German=Personalwesen, Boni
6704;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6700;English=Human resources, pension cost;French=Ressources humaines, charges de retraite;German=Personalwesen, Altersversorgung
6705;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6700;English=Human resources, temporary staff;French=Ressources humaines, personnel intérimaire;German=Personalwesen, Leiharbeit
6706;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6700;English=Human resources, training;French=Ressources humaines, formation;German=Personalwesen, Weiterbildung
6707;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6700;English=Human resources, recruiting;French=Ressources humaines, recrutement;German=Personalwesen, Personalbeschaffung
6708;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6700;English=Human resources, travel;French=Ressources humaines, déplacements;German=Personalwesen, Reisekosten
6709;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6700;English=Human resources, rent;French=Ressources humaines, loyers;German=Personalwesen, Mieten
6710;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6700;English=Human resources, electricity and heating;French=Ressources humaines, électricité et chauffage;German=Personalwesen, Strom und Heizung
6711;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6700;English=Human resources, cleaning;French=Ressources humaines, nettoyage;German=Personalwesen, Reinigung
6712;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6700;English=Human resources, repairs and maintenance;French=Ressources humaines, entretien et réparations;German=Personalwesen, Instandhaltung
6713;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6700;English=Human resources, vehicles and fuel;French=Ressources humaines, véhicules et carburants;German=Personalwesen, Fahrzeuge und Treibstoffe
6714;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6700;English=Human resources, telecommunication;French=Ressources humaines, télécommunications;German=Personalwesen, Telekommunikation
6715;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6700;English=Human resources, software subscriptions;French=Ressources humaines, abonnements logiciels;German=Personalwesen, Softwareabonnements
6716;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6700;English=Human resources, office supplies;French=Ressources humaines, fournitures de bureau;German=Personalwesen, Bürobedarf
6717;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6700;English=Human resources, insurance;French=Ressources humaines, assurances;German=Personalwesen, Versicherungen
6718;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6700;English=Human resources, consulting;French=Ressources humaines, conseil;German=Personalwesen, Beratung
6719;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6700;English=Human resources, legal fees;French=Ressources humaines, honoraires juridiques;German=Personalwesen, Rechtskosten
6720;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6700;English=Human resources, audit fees;French=Ressources humaines, honoraires d'audit;German=Personalwesen, Prüfungskosten
6721;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6700;English=Human resources, advertising;French=Ressources humaines, publicité;German=Personalwesen, Werbung
6722;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6700;English=Human resources, fairs and events;French=Ressources humaines, salons et événements;German=Personalwesen, Messen und Veranstaltungen
6723;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6700;English=Human resources, freight and postage;French=Ressources humaines, ports et affranchissements;German=Personalwesen, Fracht und Porto
6724;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6700;English=Human resources, local taxes;French=Ressources humaines, impôts locaux;German=Personalwesen, Gemeindeabgaben
6725;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6700;English=Human resources, depreciation;French=Ressources humaines, amortissements;German=Personalwesen, Abschreibungen
6726;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6700;English=Human resources, bad debts;French=Ressources humaines, créances irrécouvrables;German=Personalwesen, Forderungsausfälle
6727;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6700;English=Human resources, own work capitalised;French=Ressources humaines, production immobilisée;German=Personalwesen, aktivierte Eigenleistungen
6728;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6700;English=Human resources, sundry;French=Ressources humaines, divers;German=Personalwesen, Sonstiges
6790;EXPENSE;N;Y;R;PLUG_1;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Cost controlling;;SC_PNL;[ICP Top];Y;;1;DefaultParent=6700;English=Human resources, charged by the group;French=Ressources humaines, refacturé par le groupe;German=Personalwesen, Belastung durch den Konzern
6800;EXPENSE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Cost controlling;;SC_PNL;[ICP None];N;;0;DefaultParent=FUNCTIONS;English=IT;French=Informatique;German=IT
6801;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6800;English=IT, wages and salaries;French=Informatique, salaires et traitements;German=IT, Löhne und Gehälter
6802;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6800;English=IT, social security;French=Informatique, charges sociales;German=IT, Sozialabgaben
6803;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6800;English=IT, bonuses;French=Informatique, primes;German=IT, Boni
6804;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6800;English=IT, pension cost;French=Informatique, charges de retraite;German=IT, Altersversorgung
6805;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6800;English=IT, temporary staff;French=Informatique, personnel intérimaire;German=IT, Leiharbeit
6806;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6800;English=IT, training;French=Informatique, formation;German=IT, Weiterbildung
6807;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6800;English=IT, recruiting;French=Informatique, recrutement;German=IT, Personalbeschaffung
6808;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6800;English=IT, travel;French=Informatique, déplacements;German=IT, Reisekosten
6809;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6800;English=IT, rent;French=Informatique, loyers;German=IT, Mieten
6810;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6800;English=IT, electricity and heating;French=Informatique, électricité et chauffage;German=IT, Strom und Heizung
6811;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6800;English=IT, cleaning;French=Informatique, nettoyage;German=IT, Reinigung
6812;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6800;English=IT, repairs and maintenance;French=Informatique, entretien et réparations;German=IT, Instandhaltung
6813;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6800;English=IT, vehicles and fuel;French=Informatique, véhicules et carburants;German=IT, Fahrzeuge und Treibstoffe
6814;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6800;English=IT, telecommunication;French=Informatique, télécommunications;German=IT, Telekommunikation
6815;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6800;English=IT, software subscriptions;French=Informatique, abonnements logiciels;German=IT, Softwareabonnements
6816;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6800;English=IT, office supplies;French=Informatique, fournitures de bureau;German=IT, Bürobedarf
6817;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6800;English=IT, insurance;French=Informatique, assurances;German=IT, Versicherungen
6818;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6800;English=IT, consulting;French=Informatique, conseil;German=IT, Beratung
6819;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6800;English=IT, legal fees;French=Informatique, honoraires juridiques;German=IT, Rechtskosten
6820;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6800;English=IT, audit fees;French=Informatique, honoraires d'audit;German=IT, Prüfungskosten
6821;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6800;English=IT, advertising;French=Informatique, publicité;German=IT, Werbung
6822;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6800;English=IT, fairs and events;French=Informatique, salons et événements;German=IT, Messen und Veranstaltungen
6823;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6800;English=IT, freight and postage;French=Informatique, ports et affranchissements;German=IT, Fracht und Porto
6824;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6800;English=IT, local taxes;French=Informatique, impôts locaux;German=IT, Gemeindeabgaben
6825;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6800;English=IT, depreciation;French=Informatique, amortissements;German=IT, Abschreibungen
6826;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6800;English=IT, bad debts;French=Informatique, créances irrécouvrables;German=IT, Forderungsausfälle
6827;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6800;English=IT, own work capitalised;French=Informatique, production immobilisée;German=IT, aktivierte Eigenleistungen
6828;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6800;English=IT, sundry;French=Informatique, divers;German=IT, Sonstiges
6890;EXPENSE;N;Y;R;PLUG_1;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Cost controlling;;SC_PNL;[ICP Top];Y;;1;DefaultParent=6800;English=IT, charged by the group;French=Informatique, refacturé par le groupe;German=IT, Belastung durch den Konzern
6900;EXPENSE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Cost controlling;;SC_PNL;[ICP None];N;;0;DefaultParent=FUNCTIONS;English=General management;French=Direction générale;German=Geschäftsleitung
6901;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6900;English=General management, wages and salaries;French=Direction générale, salaires et traitements;German=Geschäftsleitung, Löhne und Gehälter
6902;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6900;English=General management, social security;French=Direction générale, charges sociales;German=Geschäftsleitung, Sozialabgaben
6903;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6900;English=General management, bonuses;French=Direction générale, primes;German=Geschäftsleitung, Boni
6904;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6900;English=General management, pension cost;French=Direction générale, charges de retraite;German=Geschäftsleitung, Altersversorgung
6905;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6900;English=General management, temporary staff;French=Direction générale, personnel intérimaire;German=Geschäftsleitung, Leiharbeit
6906;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6900;English=General management, training;French=Direction générale, formation;German=Geschäftsleitung, Weiterbildung
6907;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6900;English=General management, recruiting;French=Direction générale, recrutement;German=Geschäftsleitung, Personalbeschaffung
6908;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6900;English=General management, travel;French=Direction générale, déplacements;German=Geschäftsleitung, Reisekosten
6909;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6900;English=General management, rent;French=Direction générale, loyers;German=Geschäftsleitung, Mieten
6910;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6900;English=General management, electricity and heating;French=Direction générale, électricité et chauffage;German=Geschäftsleitung, Strom und Heizung
6911;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6900;English=General management, cleaning;French=Direction générale, nettoyage;German=Geschäftsleitung, Reinigung
6912;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6900;English=General management, repairs and maintenance;French=Direction générale, entretien et réparations;German=Geschäftsleitung, Instandhaltung
6913;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6900;English=General management, vehicles and fuel;French=Direction générale, véhicules et carburants;German=Geschäftsleitung, Fahrzeuge und Treibstoffe
6914;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6900;English=General management, telecommunication;French=Direction générale, télécommunications;German=Geschäftsleitung, Telekommunikation
6915;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6900;English=General management, software subscriptions;French=Direction générale, abonnements logiciels;German=Geschäftsleitung, Softwareabonnements
6916;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6900;English=General management, office supplies;French=Direction générale, fournitures de bureau;German=Geschäftsleitung, Bürobedarf
6917;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6900;English=General management, insurance;French=Direction générale, assurances;German=Geschäftsleitung, Versicherungen
6918;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6900;English=General management, consulting;French=Direction générale, conseil;German=Geschäftsleitung, Beratung
6919;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6900;English=General management, legal fees;French=Direction générale, honoraires juridiques;German=Geschäftsleitung, Rechtskosten
6920;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6900;English=General management, audit fees;French=Direction générale, honoraires d'audit;German=Geschäftsleitung, Prüfungskosten
6921;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6900;English=General management, advertising;French=Direction générale, publicité;German=Geschäftsleitung, Werbung
6922;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6900;English=General management, fairs and events;French=Direction générale, salons et événements;German=Geschäftsleitung, Messen und Veranstaltungen
6923;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6900;English=General management, freight and postage;French=Direction générale, ports et affranchissements;German=Geschäftsleitung, Fracht und Porto
6924;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6900;English=General management, local taxes;French=Direction générale, impôts locaux;German=Geschäftsleitung, Gemeindeabgaben
6925;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6900;English=General management, depreciation;French=Direction générale, amortissements;German=Geschäftsleitung, Abschreibungen
6926;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6900;English=General management, bad debts;French=Direction générale, créances irrécouvrables;German=Geschäftsleitung, Forderungsausfälle
6927;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6900;English=General management, own work capitalised;French=Direction générale, production immobilisée;German=Geschäftsleitung, aktivierte Eigenleistungen
6928;EXPENSE;N;Y;N;;[None];[None];[None];ALL_CC;0;Y;N;N;N;Y;PL;;Cost controlling;;SC_PNL;[ICP None];Y;;1;DefaultParent=6900;English=General management, sundry;French=Direction générale, divers;German=Geschäftsleitung, Sonstiges
6990;EXPENSE;N;Y;R;PLUG_1;[None];[None];[None];[None];0;N;N;N;N;N;PL;;Cost controlling;;SC_PNL;[ICP Top];Y;;1;DefaultParent=6900;English=General management, charged by the group;French=Direction générale, refacturé par le groupe;German=Geschäftsleitung, Belastung durch den Konzern
KPI;GROUPLABEL;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;;0;DefaultParent=#root;English=Key figures;French=Indicateurs;German=Kennzahlen
Ratios;GROUPLABEL;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;;0;DefaultParent=KPI;English=Ratios;French=Ratios;German=Verhältniszahlen
Gross Margin %;DYNAMIC;Y;N;N;;[None];[None];[None];[None];1;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;Calculated in Sub Dynamic;1;DefaultParent=Ratios;English=Gross margin in % of revenue;French=Marge brute en % du chiffre d'affaires;German=Bruttomarge in % vom Umsatz
EBIT %;DYNAMIC;Y;N;N;;[None];[None];[None];[None];1;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;Calculated in Sub Dynamic;1;DefaultParent=Ratios;English=Operating margin;French=Marge opérationnelle;German=Operative Marge
EBITDA-ADJ %;DYNAMIC;Y;N;N;;[None];[None];[None];[None];1;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;Calculated in Sub Dynamic;1;DefaultParent=Ratios;English=Adjusted EBITDA margin;French=Marge d'EBITDA ajusté;German=Bereinigte EBITDA-Marge
Tax rate %;DYNAMIC;Y;N;N;;[None];[None];[None];[None];1;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;Calculated in Sub Dynamic;1;DefaultParent=Ratios;English=Effective tax rate;French=Taux effectif d'impôt;German=Effektiver Steuersatz
Days' sales;DYNAMIC;Y;N;N;;[None];[None];[None];[None];1;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;Calculated in Sub Dynamic;1;DefaultParent=Ratios;English=Days sales outstanding;French=Délai moyen de règlement clients;German=Forderungsreichweite
Days' payables;DYNAMIC;Y;N;N;;[None];[None];[None];[None];1;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;Calculated in Sub Dynamic;1;DefaultParent=Ratios;English=Days payables outstanding;French=Délai moyen de règlement fournisseurs;German=Kreditorenreichweite
Stock turn;DYNAMIC;Y;N;N;;[None];[None];[None];[None];2;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;Calculated in Sub Dynamic;1;DefaultParent=Ratios;English=Turnover of inventories;French=Rotation des stocks;German=Lagerumschlag
ROCE %;DYNAMIC;Y;N;N;;[None];[None];[None];[None];1;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;Calculated in Sub Dynamic;1;DefaultParent=Ratios;English=Return on capital employed;French=Rentabilité des capitaux employés;German=Kapitalrendite
Gearing %;DYNAMIC;Y;N;N;;[None];[None];[None];[None];1;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;Calculated in Sub Dynamic;1;DefaultParent=Ratios;English=Net debt in % of equity;French=Endettement net en % des capitaux propres;German=Nettoverschuldung in % vom Eigenkapital
Debt-to-EBITDA;DYNAMIC;Y;N;N;;[None];[None];[None];[None];2;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;Calculated in Sub Dynamic;1;DefaultParent=Ratios;English=Net debt to EBITDA;French=Endettement net sur EBITDA;German=Nettoverschuldung zu EBITDA
Capex %;DYNAMIC;Y;N;N;;[None];[None];[None];[None];1;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;Calculated in Sub Dynamic;1;DefaultParent=Ratios;English=Capital expenditure in % of revenue;French=Investissements en % du chiffre d'affaires;German=Investitionen in % vom Umsatz
Utilisation %;DYNAMIC;Y;N;N;;[None];[None];[None];[None];1;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;Calculated in Sub Dynamic;1;DefaultParent=Ratios;English=Utilisation of capacity;French=Taux d'utilisation;German=Auslastung
Accidents per 10^6 h;DYNAMIC;Y;N;N;;[None];[None];[None];[None];2;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;Calculated in Sub Dynamic;1;DefaultParent=Ratios;English=Accidents per million hours;French=Accidents par million d'heures;German=Unfälle je Million Stunden
EBITDA;REVENUE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;;0;DefaultParent=KPI;English=EBITDA;French=EBITDA;German=EBITDA
EBITDA-ADJ;REVENUE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;;0;DefaultParent=EBITDA;English=Adjusted EBITDA;French=EBITDA ajusté;German=Bereinigtes EBITDA
EBITDA before IFRS 16;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=EBITDA-ADJ;English=EBITDA before leases;French=EBITDA avant IFRS 16;German=EBITDA vor IFRS 16
8010;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=EBITDA-ADJ;English=Rent under IFRS 16;French=Loyers IFRS 16;German=Mieten nach IFRS 16
8020;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=EBITDA;English=Exceptional items;French=Éléments exceptionnels;German=Sondereffekte
Personnel cost;EXPENSE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_HR;[ICP None];N;;0;DefaultParent=KPI;English=Personnel cost;French=Charges de personnel;German=Personalaufwand
D&A;EXPENSE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;;0;DefaultParent=KPI;English=Depreciation and amortisation;French=Amortissements;German=Planmäßige Abschreibungen
Net Debt;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_TREASURY;[ICP None];N;;0;DefaultParent=KPI;English=Net debt;French=Endettement net;German=Nettoverschuldung
Working Capital;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;;0;DefaultParent=KPI;English=Working capital;French=Besoin en fonds de roulement;German=Working Capital
CAPEMP;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;;0;DefaultParent=KPI;English=Capital employed;French=Capitaux employés;German=Eingesetztes Kapital
Volumes;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;;0;DefaultParent=KPI;English=Volumes;French=Volumes;German=Mengen
VOL1;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;;0;DefaultParent=Volumes;English=Dairy;French=Produits laitiers;German=Molkereiprodukte
VOL11;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL1;English=Dairy, volume sold;French=Produits laitiers, volume vendu;German=Molkereiprodukte, Absatzmenge
VOL12;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL1;English=Dairy, volume produced;French=Produits laitiers, volume produit;German=Molkereiprodukte, Produktionsmenge
VOL13;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL1;English=Dairy, capacity;French=Produits laitiers, capacité;German=Molkereiprodukte, Kapazität
VOL14;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL1;English=Dairy, order intake;French=Produits laitiers, prises de commandes;German=Molkereiprodukte, Auftragseingang
VOL15;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL1;English=Dairy, order backlog;French=Produits laitiers, carnet de commandes;German=Molkereiprodukte, Auftragsbestand
VOL16;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL1;English=Dairy, scrap;French=Produits laitiers, rebuts;German=Molkereiprodukte, Ausschuss
VOL2;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;;0;DefaultParent=Volumes;English=Timber;French=Bois;German=Holz
VOL21;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL2;English=Timber, volume sold;French=Bois, volume vendu;German=Holz, Absatzmenge
VOL22;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL2;English=Timber, volume produced;French=Bois, volume produit;German=Holz, Produktionsmenge
VOL23;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL2;English=Timber, capacity;French=Bois, capacité;German=Holz, Kapazität
VOL24;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL2;English=Timber, order intake;French=Bois, prises de commandes;German=Holz, Auftragseingang
VOL25;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL2;English=Timber, order backlog;French=Bois, carnet de commandes;German=Holz, Auftragsbestand
VOL26;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL2;English=Timber, scrap;French=Bois, rebuts;German=Holz, Ausschuss
VOL3;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;;0;DefaultParent=Volumes;English=Glass;French=Verre;German=Glas
VOL31;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL3;English=Glass, volume sold;French=Verre, volume vendu;German=Glas, Absatzmenge
VOL32;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL3;English=Glass, volume produced;French=Verre, volume produit;German=Glas, Produktionsmenge
VOL33;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL3;English=Glass, capacity;French=Verre, capacité;German=Glas, Kapazität
VOL34;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL3;English=Glass, order intake;French=Verre, prises de commandes;German=Glas, Auftragseingang
VOL35;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL3;English=Glass, order backlog;French=Verre, carnet de commandes;German=Glas, Auftragsbestand
VOL36;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL3;English=Glass, scrap;French=Verre, rebuts;German=Glas, Ausschuss
VOL4;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;;0;DefaultParent=Volumes;English=Paper;French=Papier;German=Papier
VOL41;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL4;English=Paper, volume sold;French=Papier, volume vendu;German=Papier, Absatzmenge
VOL42;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL4;English=Paper, volume produced;French=Papier, volume produit;German=Papier, Produktionsmenge
VOL43;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL4;English=Paper, capacity;French=Papier, capacité;German=Papier, Kapazität
VOL44;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL4;English=Paper, order intake;French=Papier, prises de commandes;German=Papier, Auftragseingang
VOL45;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL4;English=Paper, order backlog;French=Papier, carnet de commandes;German=Papier, Auftragsbestand
VOL46;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL4;English=Paper, scrap;French=Papier, rebuts;German=Papier, Ausschuss
VOL5;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;;0;DefaultParent=Volumes;English=Cement;French=Ciment;German=Zement
VOL51;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL5;English=Cement, volume sold;French=Ciment, volume vendu;German=Zement, Absatzmenge
VOL52;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL5;English=Cement, volume produced;French=Ciment, volume produit;German=Zement, Produktionsmenge
VOL53;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL5;English=Cement, capacity;French=Ciment, capacité;German=Zement, Kapazität
VOL54;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL5;English=Cement, order intake;French=Ciment, prises de commandes;German=Zement, Auftragseingang
VOL55;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL5;English=Cement, order backlog;French=Ciment, carnet de commandes;German=Zement, Auftragsbestand
VOL56;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL5;English=Cement, scrap;French=Ciment, rebuts;German=Zement, Ausschuss
VOL6;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;;0;DefaultParent=Volumes;English=Energy;French=Énergie;German=Energie
VOL61;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL6;English=Energy, volume sold;French=Énergie, volume vendu;German=Energie, Absatzmenge
VOL62;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL6;English=Energy, volume produced;French=Énergie, volume produit;German=Energie, Produktionsmenge
VOL63;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL6;English=Energy, capacity;French=Énergie, capacité;German=Energie, Kapazität
VOL64;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL6;English=Energy, order intake;French=Énergie, prises de commandes;German=Energie, Auftragseingang
VOL65;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL6;English=Energy, order backlog;French=Énergie, carnet de commandes;German=Energie, Auftragsbestand
VOL66;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL6;English=Energy, scrap;French=Énergie, rebuts;German=Energie, Ausschuss
VOL7;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;;0;DefaultParent=Volumes;English=Ferries;French=Traversées;German=Fähren
VOL71;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL7;English=Ferries, volume sold;French=Traversées, volume vendu;German=Fähren, Absatzmenge
VOL72;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL7;English=Ferries, volume produced;French=Traversées, volume produit;German=Fähren, Produktionsmenge
VOL73;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL7;English=Ferries, capacity;French=Traversées, capacité;German=Fähren, Kapazität
VOL74;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL7;English=Ferries, order intake;French=Traversées, prises de commandes;German=Fähren, Auftragseingang
VOL75;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL7;English=Ferries, order backlog;French=Traversées, carnet de commandes;German=Fähren, Auftragsbestand
VOL76;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL7;English=Ferries, scrap;French=Traversées, rebuts;German=Fähren, Ausschuss
VOL8;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;;0;DefaultParent=Volumes;English=Engineering;French=Ingénierie;German=Maschinenbau
VOL81;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL8;English=Engineering, volume sold;French=Ingénierie, volume vendu;German=Maschinenbau, Absatzmenge
VOL82;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL8;English=Engineering, volume produced;French=Ingénierie, volume produit;German=Maschinenbau, Produktionsmenge
VOL83;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL8;English=Engineering, capacity;French=Ingénierie, capacité;German=Maschinenbau, Kapazität
VOL84;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL8;English=Engineering, order intake;French=Ingénierie, prises de commandes;German=Maschinenbau, Auftragseingang
VOL85;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL8;English=Engineering, order backlog;French=Ingénierie, carnet de commandes;German=Maschinenbau, Auftragsbestand
VOL86;FLOW;N;Y;N;;[None];ALL_PRODUCTS;ALL_MARKETS;[None];0;N;N;Y;Y;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=VOL8;English=Engineering, scrap;French=Ingénierie, rebuts;German=Maschinenbau, Ausschuss
Bridge;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;;0;DefaultParent=KPI;English=Revenue bridge;French=Analyse de la variation du chiffre d'affaires;German=Umsatzüberleitung
BRG1;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;;0;DefaultParent=Bridge;English=Dairy;French=Produits laitiers;German=Molkereiprodukte
BRG11;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG1;English=Dairy, volume effect;French=Produits laitiers, effet volume;German=Molkereiprodukte, Mengeneffekt
BRG12;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG1;English=Dairy, price effect;French=Produits laitiers, effet prix;German=Molkereiprodukte, Preiseffekt
BRG13;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG1;English=Dairy, mix effect;French=Produits laitiers, effet mix;German=Molkereiprodukte, Mixeffekt
BRG14;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG1;English=Dairy, currency effect;French=Produits laitiers, effet de change;German=Molkereiprodukte, Währungseffekt
BRG15;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG1;English=Dairy, scope effect;French=Produits laitiers, effet de périmètre;German=Molkereiprodukte, Konsolidierungskreiseffekt
BRG2;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;;0;DefaultParent=Bridge;English=Timber;French=Bois;German=Holz
BRG21;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG2;English=Timber, volume effect;French=Bois, effet volume;German=Holz, Mengeneffekt
BRG22;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG2;English=Timber, price effect;French=Bois, effet prix;German=Holz, Preiseffekt
BRG23;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG2;English=Timber, mix effect;French=Bois, effet mix;German=Holz, Mixeffekt
BRG24;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG2;English=Timber, currency effect;French=Bois, effet de change;German=Holz, Währungseffekt
BRG25;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG2;English=Timber, scope effect;French=Bois, effet de périmètre;German=Holz, Konsolidierungskreiseffekt
BRG3;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;;0;DefaultParent=Bridge;English=Glass;French=Verre;German=Glas
BRG31;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG3;English=Glass, volume effect;French=Verre, effet volume;German=Glas, Mengeneffekt
BRG32;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG3;English=Glass, price effect;French=Verre, effet prix;German=Glas, Preiseffekt
BRG33;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG3;English=Glass, mix effect;French=Verre, effet mix;German=Glas, Mixeffekt
BRG34;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG3;English=Glass, currency effect;French=Verre, effet de change;German=Glas, Währungseffekt
BRG35;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG3;English=Glass, scope effect;French=Verre, effet de périmètre;German=Glas, Konsolidierungskreiseffekt
BRG4;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;;0;DefaultParent=Bridge;English=Paper;French=Papier;German=Papier
BRG41;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG4;English=Paper, volume effect;French=Papier, effet volume;German=Papier, Mengeneffekt
BRG42;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG4;English=Paper, price effect;French=Papier, effet prix;German=Papier, Preiseffekt
BRG43;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG4;English=Paper, mix effect;French=Papier, effet mix;German=Papier, Mixeffekt
BRG44;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG4;English=Paper, currency effect;French=Papier, effet de change;German=Papier, Währungseffekt
BRG45;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG4;English=Paper, scope effect;French=Papier, effet de périmètre;German=Papier, Konsolidierungskreiseffekt
BRG5;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;;0;DefaultParent=Bridge;English=Cement;French=Ciment;German=Zement
BRG51;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG5;English=Cement, volume effect;French=Ciment, effet volume;German=Zement, Mengeneffekt
BRG52;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG5;English=Cement, price effect;French=Ciment, effet prix;German=Zement, Preiseffekt
BRG53;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG5;English=Cement, mix effect;French=Ciment, effet mix;German=Zement, Mixeffekt
BRG54;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG5;English=Cement, currency effect;French=Ciment, effet de change;German=Zement, Währungseffekt
BRG55;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG5;English=Cement, scope effect;French=Ciment, effet de périmètre;German=Zement, Konsolidierungskreiseffekt
BRG6;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;;0;DefaultParent=Bridge;English=Energy;French=Énergie;German=Energie
BRG61;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG6;English=Energy, volume effect;French=Énergie, effet volume;German=Energie, Mengeneffekt
BRG62;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG6;English=Energy, price effect;French=Énergie, effet prix;German=Energie, Preiseffekt
BRG63;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG6;English=Energy, mix effect;French=Énergie, effet mix;German=Energie, Mixeffekt
BRG64;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG6;English=Energy, currency effect;French=Énergie, effet de change;German=Energie, Währungseffekt
BRG65;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG6;English=Energy, scope effect;French=Énergie, effet de périmètre;German=Energie, Konsolidierungskreiseffekt
BRG7;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;;0;DefaultParent=Bridge;English=Ferries;French=Traversées;German=Fähren
BRG71;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG7;English=Ferries, volume effect;French=Traversées, effet volume;German=Fähren, Mengeneffekt
BRG72;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG7;English=Ferries, price effect;French=Traversées, effet prix;German=Fähren, Preiseffekt
BRG73;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG7;English=Ferries, mix effect;French=Traversées, effet mix;German=Fähren, Mixeffekt
BRG74;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG7;English=Ferries, currency effect;French=Traversées, effet de change;German=Fähren, Währungseffekt
BRG75;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG7;English=Ferries, scope effect;French=Traversées, effet de périmètre;German=Fähren, Konsolidierungskreiseffekt
BRG8;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];N;;0;DefaultParent=Bridge;English=Engineering;French=Ingénierie;German=Maschinenbau
BRG81;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG8;English=Engineering, volume effect;French=Ingénierie, effet volume;German=Maschinenbau, Mengeneffekt
BRG82;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG8;English=Engineering, price effect;French=Ingénierie, effet prix;German=Maschinenbau, Preiseffekt
BRG83;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG8;English=Engineering, mix effect;French=Ingénierie, effet mix;German=Maschinenbau, Mixeffekt
BRG84;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG8;English=Engineering, currency effect;French=Ingénierie, effet de change;German=Maschinenbau, Währungseffekt
BRG85;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;KPI;;;;SC_KPI;[ICP None];Y;;1;DefaultParent=BRG8;English=Engineering, scope effect;French=Ingénierie, effet de périmètre;German=Maschinenbau, Konsolidierungskreiseffekt
STAFF;GROUPLABEL;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=#root;English=Staff;French=Personnel;German=Personal
HEADS;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=STAFF;English=Headcount at the end of the period;French=Effectif en fin de période;German=Mitarbeiter zum Stichtag
HC1;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=HEADS;English=Production overheads;French=Frais généraux de production;German=Fertigungsgemeinkosten
HC11;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC1;English=Production overheads, permanent;French=Frais généraux de production, CDI;German=Fertigungsgemeinkosten, unbefristet
HC12;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC1;English=Production overheads, fixed-term;French=Frais généraux de production, CDD;German=Fertigungsgemeinkosten, befristet
HC13;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC1;English=Production overheads, apprentices;French=Frais généraux de production, apprentis;German=Fertigungsgemeinkosten, Auszubildende
HC2;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=HEADS;English=Logistics;French=Logistique;German=Logistik
HC21;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC2;English=Logistics, permanent;French=Logistique, CDI;German=Logistik, unbefristet
HC22;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC2;English=Logistics, fixed-term;French=Logistique, CDD;German=Logistik, befristet
HC23;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC2;English=Logistics, apprentices;French=Logistique, apprentis;German=Logistik, Auszubildende
HC3;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=HEADS;English=Sales;French=Ventes;German=Vertrieb
HC31;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC3;English=Sales, permanent;French=Ventes, CDI;German=Vertrieb, unbefristet
HC32;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC3;English=Sales, fixed-term;French=Ventes, CDD;German=Vertrieb, befristet
HC33;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC3;English=Sales, apprentices;French=Ventes, apprentis;German=Vertrieb, Auszubildende
HC4;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=HEADS;English=Marketing;French=Marketing;German=Marketing
HC41;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC4;English=Marketing, permanent;French=Marketing, CDI;German=Marketing, unbefristet
HC42;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC4;English=Marketing, fixed-term;French=Marketing, CDD;German=Marketing, befristet
HC43;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC4;English=Marketing, apprentices;French=Marketing, apprentis;German=Marketing, Auszubildende
HC5;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=HEADS;English=R&D;French=R&D;German=F&E
HC51;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC5;English=R&D, permanent;French=R&D, CDI;German=F&E, unbefristet
HC52;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC5;English=R&D, fixed-term;French=R&D, CDD;German=F&E, befristet
HC53;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC5;English=R&D, apprentices;French=R&D, apprentis;German=F&E, Auszubildende
HC6;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=HEADS;English=Finance;French=Finance;German=Finanzen
HC61;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC6;English=Finance, permanent;French=Finance, CDI;German=Finanzen, unbefristet
HC62;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC6;English=Finance, fixed-term;French=Finance, CDD;German=Finanzen, befristet
HC63;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC6;English=Finance, apprentices;French=Finance, apprentis;German=Finanzen, Auszubildende
HC7;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=HEADS;English=Human resources;French=Ressources humaines;German=Personalwesen
HC71;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC7;English=Human resources, permanent;French=Ressources humaines, CDI;German=Personalwesen, unbefristet
HC72;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC7;English=Human resources, fixed-term;French=Ressources humaines, CDD;German=Personalwesen, befristet
HC73;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC7;English=Human resources, apprentices;French=Ressources humaines, apprentis;German=Personalwesen, Auszubildende
HC8;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=HEADS;English=IT;French=Informatique;German=IT
HC81;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC8;English=IT, permanent;French=Informatique, CDI;German=IT, unbefristet
HC82;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC8;English=IT, fixed-term;French=Informatique, CDD;German=IT, befristet
HC83;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC8;English=IT, apprentices;French=Informatique, apprentis;German=IT, Auszubildende
HC9;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=HEADS;English=General management;French=Direction générale;German=Geschäftsleitung
HC91;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC9;English=General management, permanent;French=Direction générale, CDI;German=Geschäftsleitung, unbefristet
HC92;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC9;English=General management, fixed-term;French=Direction générale, CDD;German=Geschäftsleitung, befristet
HC93;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC9;English=General management, apprentices;French=Direction générale, apprentis;German=Geschäftsleitung, Auszubildende
FTE;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=STAFF;English=Full-time equivalents, average;French=Équivalents temps plein, moyenne;German=Vollzeitkräfte im Durchschnitt
FTE1;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=FTE;English=Production overheads;French=Frais généraux de production;German=Fertigungsgemeinkosten
FTE11;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=FTE1;English=Production overheads, permanent;French=Frais généraux de production, CDI;German=Fertigungsgemeinkosten, unbefristet
FTE12;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=FTE1;English=Production overheads, fixed-term;French=Frais généraux de production, CDD;German=Fertigungsgemeinkosten, befristet
FTE13;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=FTE1;English=Production overheads, apprentices;French=Frais généraux de production, apprentis;German=Fertigungsgemeinkosten, Auszubildende
FTE2;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=FTE;English=Logistics;French=Logistique;German=Logistik
FTE21;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=FTE2;English=Logistics, permanent;French=Logistique, CDI;German=Logistik, unbefristet
FTE22;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=FTE2;English=Logistics, fixed-term;French=Logistique, CDD;German=Logistik, befristet
FTE23;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=FTE2;English=Logistics, apprentices;French=Logistique, apprentis;German=Logistik, Auszubildende
FTE3;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=FTE;English=Sales;French=Ventes;German=Vertrieb
FTE31;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=FTE3;English=Sales, permanent;French=Ventes, CDI;German=Vertrieb, unbefristet
FTE32;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=FTE3;English=Sales, fixed-term;French=Ventes, CDD;German=Vertrieb, befristet
FTE33;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=FTE3;English=Sales, apprentices;French=Ventes, apprentis;German=Vertrieb, Auszubildende
FTE4;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=FTE;English=Marketing;French=Marketing;German=Marketing
FTE41;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=FTE4;English=Marketing, permanent;French=Marketing, CDI;German=Marketing, unbefristet
FTE42;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=FTE4;English=Marketing, fixed-term;French=Marketing, CDD;German=Marketing, befristet
FTE43;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=FTE4;English=Marketing, apprentices;French=Marketing, apprentis;German=Marketing, Auszubildende
FTE5;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=FTE;English=R&D;French=R&D;German=F&E
FTE51;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=FTE5;English=R&D, permanent;French=R&D, CDI;German=F&E, unbefristet
FTE52;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=FTE5;English=R&D, fixed-term;French=R&D, CDD;German=F&E, befristet
FTE53;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=FTE5;English=R&D, apprentices;French=R&D, apprentis;German=F&E, Auszubildende
FTE6;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=FTE;English=Finance;French=Finance;German=Finanzen
FTE61;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=FTE6;English=Finance, permanent;French=Finance, CDI;German=Finanzen, unbefristet
FTE62;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=FTE6;English=Finance, fixed-term;French=Finance, CDD;German=Finanzen, befristet
FTE63;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=FTE6;English=Finance, apprentices;French=Finance, apprentis;German=Finanzen, Auszubildende
FTE7;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=FTE;English=Human resources;French=Ressources humaines;German=Personalwesen
FTE71;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=FTE7;English=Human resources, permanent;French=Ressources humaines, CDI;German=Personalwesen, unbefristet
FTE72;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=FTE7;English=Human resources, fixed-term;French=Ressources humaines, CDD;German=Personalwesen, befristet
FTE73;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=FTE7;English=Human resources, apprentices;French=Ressources humaines, apprentis;German=Personalwesen, Auszubildende
FTE8;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=FTE;English=IT;French=Informatique;German=IT
FTE81;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=FTE8;English=IT, permanent;French=Informatique, CDI;German=IT, unbefristet
FTE82;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=FTE8;English=IT, fixed-term;French=Informatique, CDD;German=IT, befristet
FTE83;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=FTE8;English=IT, apprentices;French=Informatique, apprentis;German=IT, Auszubildende
FTE9;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=FTE;English=General management;French=Direction générale;German=Geschäftsleitung
FTE91;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=FTE9;English=General management, permanent;French=Direction générale, CDI;German=Geschäftsleitung, unbefristet
FTE92;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=FTE9;English=General management, fixed-term;French=Direction générale, CDD;German=Geschäftsleitung, befristet
FTE93;BALANCERECURRING;N;Y;N;;[None];[None];[None];ALL_CC;0;N;N;N;N;Y;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=FTE9;English=General management, apprentices;French=Direction générale, apprentis;German=Geschäftsleitung, Auszubildende
AGE;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=STAFF;English=Age and gender;French=Âge et sexe;German=Alter und Geschlecht
AGE_W;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=AGE;English=Women;French=Femmes;German=Frauen
AGE_W1;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=AGE_W;English=Women, under 25;French=Femmes, moins de 25 ans;German=Frauen, unter 25
AGE_W2;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=AGE_W;English=Women, 25 to 34;French=Femmes, 25 à 34 ans;German=Frauen, 25 bis 34
AGE_W3;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=AGE_W;English=Women, 35 to 44;French=Femmes, 35 à 44 ans;German=Frauen, 35 bis 44
AGE_W4;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=AGE_W;English=Women, 45 to 54;French=Femmes, 45 à 54 ans;German=Frauen, 45 bis 54
AGE_W5;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=AGE_W;English=Women, 55 and over;French=Femmes, 55 ans et plus;German=Frauen, 55 und älter
AGE_M;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=AGE;English=Men;French=Hommes;German=Männer
AGE_M1;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=AGE_M;English=Men, under 25;French=Hommes, moins de 25 ans;German=Männer, unter 25
AGE_M2;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=AGE_M;English=Men, 25 to 34;French=Hommes, 25 à 34 ans;German=Männer, 25 bis 34
AGE_M3;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=AGE_M;English=Men, 35 to 44;French=Hommes, 35 à 44 ans;German=Männer, 35 bis 44
AGE_M4;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=AGE_M;English=Men, 45 to 54;French=Hommes, 45 à 54 ans;German=Männer, 45 bis 54
AGE_M5;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=AGE_M;English=Men, 55 and over;French=Hommes, 55 ans et plus;German=Männer, 55 und älter
HC-REGION;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=STAFF;English=Headcount by region;French=Effectif par région;German=Mitarbeiter nach Region
HC-R1;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=HC-REGION;English=Northern Europe;French=Europe du Nord;German=Nordeuropa
HC-R11;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC-R1;English=Northern Europe, permanent;French=Europe du Nord, CDI;German=Nordeuropa, unbefristet
HC-R12;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC-R1;English=Northern Europe, fixed-term;French=Europe du Nord, CDD;German=Nordeuropa, befristet
HC-R13;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC-R1;English=Northern Europe, apprentices;French=Europe du Nord, apprentis;German=Nordeuropa, Auszubildende
HC-R2;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=HC-REGION;English=Western Europe;French=Europe de l'Ouest;German=Westeuropa
HC-R21;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC-R2;English=Western Europe, permanent;French=Europe de l'Ouest, CDI;German=Westeuropa, unbefristet
HC-R22;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC-R2;English=Western Europe, fixed-term;French=Europe de l'Ouest, CDD;German=Westeuropa, befristet
HC-R23;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC-R2;English=Western Europe, apprentices;French=Europe de l'Ouest, apprentis;German=Westeuropa, Auszubildende
HC-R3;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=HC-REGION;English=Southern Europe;French=Europe du Sud;German=Südeuropa
HC-R31;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC-R3;English=Southern Europe, permanent;French=Europe du Sud, CDI;German=Südeuropa, unbefristet
HC-R32;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC-R3;English=Southern Europe, fixed-term;French=Europe du Sud, CDD;German=Südeuropa, befristet
HC-R33;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC-R3;English=Southern Europe, apprentices;French=Europe du Sud, apprentis;German=Südeuropa, Auszubildende
HC-R4;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=HC-REGION;English=Central Europe;French=Europe centrale;German=Mitteleuropa
HC-R41;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC-R4;English=Central Europe, permanent;French=Europe centrale, CDI;German=Mitteleuropa, unbefristet
HC-R42;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC-R4;English=Central Europe, fixed-term;French=Europe centrale, CDD;German=Mitteleuropa, befristet
HC-R43;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC-R4;English=Central Europe, apprentices;French=Europe centrale, apprentis;German=Mitteleuropa, Auszubildende
HC-R5;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=HC-REGION;English=Americas;French=Amériques;German=Amerika
HC-R51;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC-R5;English=Americas, permanent;French=Amériques, CDI;German=Amerika, unbefristet
HC-R52;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC-R5;English=Americas, fixed-term;French=Amériques, CDD;German=Amerika, befristet
HC-R53;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC-R5;English=Americas, apprentices;French=Amériques, apprentis;German=Amerika, Auszubildende
HC-R6;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=HC-REGION;English=Asia-Pacific;French=Asie-Pacifique;German=Asien-Pazifik
HC-R61;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC-R6;English=Asia-Pacific, permanent;French=Asie-Pacifique, CDI;German=Asien-Pazifik, unbefristet
HC-R62;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC-R6;English=Asia-Pacific, fixed-term;French=Asie-Pacifique, CDD;German=Asien-Pazifik, befristet
HC-R63;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC-R6;English=Asia-Pacific, apprentices;French=Asie-Pacifique, apprentis;German=Asien-Pazifik, Auszubildende
HC-R7;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=HC-REGION;English=Africa and Middle East;French=Afrique et Moyen-Orient;German=Afrika und Naher Osten
HC-R71;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC-R7;English=Africa and Middle East, permanent;French=Afrique et Moyen-Orient, CDI;German=Afrika und Naher Osten, unbefristet
HC-R72;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC-R7;English=Africa and Middle East, fixed-term;French=Afrique et Moyen-Orient, CDD;German=Afrika und Naher Osten, befristet
HC-R73;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=HC-R7;English=Africa and Middle East, apprentices;French=Afrique et Moyen-Orient, apprentis;German=Afrika und Naher Osten, Auszubildende
SAFETY;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];N;;0;DefaultParent=STAFF;English=Safety at work;French=Sécurité au travail;German=Arbeitssicherheit
SAF1;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=SAFETY;English=Accidents with lost time;French=Accidents avec arrêt;German=Unfälle mit Ausfallzeit
SAF2;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=SAFETY;English=Accidents without lost time;French=Accidents sans arrêt;German=Unfälle ohne Ausfallzeit
SAF3;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=SAFETY;English=Near misses;French=Presqu'accidents;German=Beinaheunfälle
SAF4;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=SAFETY;English=Days lost;French=Jours perdus;German=Ausfalltage
SAF5;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=SAFETY;English=Hours worked;French=Heures travaillées;German=Geleistete Stunden
SAF6;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;HR;;HR controlling;;SC_HR;[ICP None];Y;;1;DefaultParent=SAFETY;English=Training hours;French=Heures de formation;German=Schulungsstunden
CASHFLOW;GROUPLABEL;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];N;;0;DefaultParent=#root;English=Cash flow statement;French=Tableau des flux de trésorerie;German=Kapitalflussrechnung
CF-NET;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];N;;0;DefaultParent=CASHFLOW;English=Net change in cash;French=Variation nette de la trésorerie;German=Nettoveränderung der Zahlungsmittel
CF-OPE;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];N;;0;DefaultParent=CF-NET;English=Cash flow from operations;French=Flux opérationnels;German=Cashflow aus laufender Tätigkeit
CF-SELF;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];N;;0;DefaultParent=CF-OPE;English=Funds from operations;French=Capacité d'autofinancement;German=Brutto-Cashflow
CF101;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-SELF;English=Net result;French=Résultat net;German=Ergebnis
CF102;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-SELF;English=Depreciation;French=Amortissements;German=Abschreibungen
CF103;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-SELF;English=Impairment;French=Dépréciations;German=Wertminderungen
CF104;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-SELF;English=Change in provisions;French=Variation des provisions;German=Veränderung der Rückstellungen
CF105;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-SELF;English=Result of associates;French=Résultat des entreprises associées;German=Ergebnis assoziierter Unternehmen
CF106;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-SELF;English=Dividends of associates;French=Dividendes des entreprises associées;German=Dividenden assoziierter Unternehmen
CF107;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-SELF;English=Gains and losses on disposal;French=Plus et moins-values de cession;German=Gewinne und Verluste aus Abgängen
CF108;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-SELF;English=Deferred tax;French=Impôts différés;German=Latente Steuern
CF109;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-SELF;English=Share-based payments;French=Paiements en actions;German=Anteilsbasierte Vergütungen
CF110;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-SELF;English=Other non-cash items;French=Autres éléments sans effet de trésorerie;German=Sonstige zahlungsunwirksame Posten
CF-WCR;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];N;;0;DefaultParent=CF-OPE;English=Change in working capital;French=Variation du BFR;German=Veränderung des Working Capital
CF121;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-WCR;English=Change in inventories;French=Variation des stocks;German=Veränderung der Vorräte
CF122;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-WCR;English=Change in receivables;French=Variation des créances;German=Veränderung der Forderungen
CF123;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-WCR;English=Change in payables;French=Variation des dettes fournisseurs;German=Veränderung der Verbindlichkeiten
CF124;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-WCR;English=Change in other items;French=Variation des autres postes;German=Veränderung der übrigen Posten
CF-TAX;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-OPE;English=Tax paid;French=Impôt payé;German=Gezahlte Steuern
CF-INV;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];N;;0;DefaultParent=CF-NET;English=Cash flow from investing;French=Flux d'investissement;German=Cashflow aus Investitionen
CF-CAPEX;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];N;;0;DefaultParent=CF-INV;English=Purchase of fixed assets;French=Acquisitions d'immobilisations;German=Auszahlungen für Anlagen
CF210;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-CAPEX;English=Land, purchases;French=Terrains, acquisitions;German=Grundstücke, Zugänge
CF215;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-CAPEX;English=Buildings, purchases;French=Constructions, acquisitions;German=Gebäude, Zugänge
CF220;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-CAPEX;English=Plant and machinery, purchases;French=Installations et machines, acquisitions;German=Technische Anlagen und Maschinen, Zugänge
CF225;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-CAPEX;English=Vessels, purchases;French=Navires, acquisitions;German=Schiffe, Zugänge
CF230;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-CAPEX;English=Vehicles, purchases;French=Véhicules, acquisitions;German=Fahrzeuge, Zugänge
CF235;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-CAPEX;English=IT equipment, purchases;French=Matériel informatique, acquisitions;German=EDV-Ausstattung, Zugänge
CF240;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-CAPEX;English=Furniture and fittings, purchases;French=Mobilier et agencements, acquisitions;German=Betriebs- und Geschäftsausstattung, Zugänge
CF245;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-CAPEX;English=Assets under construction, purchases;French=Immobilisations en cours, acquisitions;German=Anlagen im Bau, Zugänge
CF-DISP;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];N;;0;DefaultParent=CF-INV;English=Proceeds of fixed assets;French=Cessions d'immobilisations;German=Einzahlungen aus Anlagenabgängen
CF310;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-DISP;English=Land, proceeds;French=Terrains, cessions;German=Grundstücke, Abgänge
CF315;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-DISP;English=Buildings, proceeds;French=Constructions, cessions;German=Gebäude, Abgänge
CF320;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-DISP;English=Plant and machinery, proceeds;French=Installations et machines, cessions;German=Technische Anlagen und Maschinen, Abgänge
CF325;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-DISP;English=Vessels, proceeds;French=Navires, cessions;German=Schiffe, Abgänge
CF330;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-DISP;English=Vehicles, proceeds;French=Véhicules, cessions;German=Fahrzeuge, Abgänge
CF335;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-DISP;English=IT equipment, proceeds;French=Matériel informatique, cessions;German=EDV-Ausstattung, Abgänge
CF340;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-DISP;English=Furniture and fittings, proceeds;French=Mobilier et agencements, cessions;German=Betriebs- und Geschäftsausstattung, Abgänge
CF345;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-DISP;English=Assets under construction, proceeds;French=Immobilisations en cours, cessions;German=Anlagen im Bau, Abgänge
CF-M&A;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];N;;0;DefaultParent=CF-INV;English=Acquisitions and disposals of companies;French=Acquisitions et cessions de sociétés;German=Erwerb und Verkauf von Unternehmen
CF251;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-M&A;English=Companies acquired;French=Sociétés acquises;German=Erworbene Unternehmen
CF252;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-M&A;English=Companies sold;French=Sociétés cédées;German=Verkaufte Unternehmen
CF253;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-M&A;English=Cash of companies acquired;French=Trésorerie des sociétés acquises;German=Erworbene Zahlungsmittel
CF-LOANS;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-INV;English=Loans granted and repaid;French=Prêts accordés et remboursés;German=Gewährte und getilgte Ausleihungen
CF-FIN;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];N;;0;DefaultParent=CF-NET;English=Cash flow from financing;French=Flux de financement;German=Cashflow aus Finanzierung
CF-DEBT;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];N;;0;DefaultParent=CF-FIN;English=Borrowings;French=Emprunts;German=Finanzschulden
CF410;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];N;;0;DefaultParent=CF-DEBT;English=Bonds;French=Emprunts obligataires;German=Anleihen
CF410+;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF410;English=Bonds, new;French=Emprunts obligataires, nouveaux;German=Anleihen, Aufnahme
CF410-;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF410;English=Bonds, repaid;French=Emprunts obligataires, remboursés;German=Anleihen, Tilgung
CF420;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];N;;0;DefaultParent=CF-DEBT;English=Bank loans;French=Emprunts bancaires;German=Bankdarlehen
CF420+;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF420;English=Bank loans, new;French=Emprunts bancaires, nouveaux;German=Bankdarlehen, Aufnahme
CF420-;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF420;English=Bank loans, repaid;French=Emprunts bancaires, remboursés;German=Bankdarlehen, Tilgung
CF430;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];N;;0;DefaultParent=CF-DEBT;English=Commercial paper;French=Billets de trésorerie;German=Geldmarktpapiere
CF430+;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF430;English=Commercial paper, new;French=Billets de trésorerie, nouveaux;German=Geldmarktpapiere, Aufnahme
CF430-;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF430;English=Commercial paper, repaid;French=Billets de trésorerie, remboursés;German=Geldmarktpapiere, Tilgung
CF440;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];N;;0;DefaultParent=CF-DEBT;English=Lease liabilities;French=Dettes de location;German=Leasingverbindlichkeiten
CF440+;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF440;English=Lease liabilities, new;French=Dettes de location, nouveaux;German=Leasingverbindlichkeiten, Aufnahme
CF440-;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF440;English=Lease liabilities, repaid;French=Dettes de location, remboursés;German=Leasingverbindlichkeiten, Tilgung
CF450;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];N;;0;DefaultParent=CF-DEBT;English=Private placements;French=Placements privés;German=Schuldscheindarlehen
CF450+;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF450;English=Private placements, new;French=Placements privés, nouveaux;German=Schuldscheindarlehen, Aufnahme
CF450-;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF450;English=Private placements, repaid;French=Placements privés, remboursés;German=Schuldscheindarlehen, Tilgung
CF460;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];N;;0;DefaultParent=CF-DEBT;English=Factoring with recourse;French=Affacturage avec recours;German=Unechtes Factoring
CF460+;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF460;English=Factoring with recourse, new;French=Affacturage avec recours, nouveaux;German=Unechtes Factoring, Aufnahme
CF460-;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF460;English=Factoring with recourse, repaid;French=Affacturage avec recours, remboursés;German=Unechtes Factoring, Tilgung
CF470;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];N;;0;DefaultParent=CF-DEBT;English=Other borrowings;French=Autres emprunts;German=Sonstige Finanzschulden
CF470+;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF470;English=Other borrowings, new;French=Autres emprunts, nouveaux;German=Sonstige Finanzschulden, Aufnahme
CF470-;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF470;English=Other borrowings, repaid;French=Autres emprunts, remboursés;German=Sonstige Finanzschulden, Tilgung
CF-DIV;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];N;;0;DefaultParent=CF-FIN;English=Dividends paid;French=Dividendes versés;German=Gezahlte Dividenden
CF511;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-DIV;English=To the parent's owners;French=Aux actionnaires;German=An Anteilseigner
CF512;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-DIV;English=To minorities;French=Aux minoritaires;German=An Minderheiten
CF513;FLOW;N;Y;R;PLUG_3;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP Top];Y;;1;DefaultParent=CF-DIV;English=Within the group;French=Dans le groupe;German=Innerhalb des Konzerns
CF-CAP;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-FIN;English=Capital increases;French=Augmentations de capital;German=Kapitalerhöhungen
CF-OWN;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-FIN;English=Own shares;French=Actions propres;German=Eigene Aktien
CF-FX;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CF;;;;SC_CF;[ICP None];Y;;1;DefaultParent=CF-NET;English=Effect of exchange rates;French=Effet de change;German=Wechselkurseffekt
NOTES;GROUPLABEL;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;;;;SC_NOTES;[ICP None];N;;0;DefaultParent=#root;English=Notes to the accounts;French=Annexe aux comptes;German=Anhang
SEGMENTS;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];N;;0;DefaultParent=NOTES;English=Note 2: segments;French=Note 2 : secteurs;German=Anhang 2: Segmente
SEG1;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];N;;0;DefaultParent=SEGMENTS;English=Dairy;French=Produits laitiers;German=Molkereiprodukte
SEG101;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG1;English=Dairy, external revenue;French=Produits laitiers, chiffre d'affaires externe;German=Molkereiprodukte, Außenumsatz
SEG102;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG1;English=Dairy, inter-segment revenue;French=Produits laitiers, chiffre d'affaires intersecteurs;German=Molkereiprodukte, Innenumsatz
SEG103;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG1;English=Dairy, EBITDA before exceptionals;French=Produits laitiers, EBITDA avant éléments exceptionnels;German=Molkereiprodukte, EBITDA vor Sondereffekten
SEG104;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG1;English=Dairy, depreciation;French=Produits laitiers, amortissements;German=Molkereiprodukte, Abschreibungen
SEG105;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG1;English=Dairy, impairment;French=Produits laitiers, dépréciations;German=Molkereiprodukte, Wertminderungen
SEG106;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG1;English=Dairy, operating result;French=Produits laitiers, résultat opérationnel;German=Molkereiprodukte, Betriebsergebnis
SEG107;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG1;English=Dairy, result of associates;French=Produits laitiers, résultat des entreprises associées;German=Molkereiprodukte, Ergebnis assoziierter Unternehmen
SEG108;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG1;English=Dairy, segment assets;French=Produits laitiers, actifs sectoriels;German=Molkereiprodukte, Segmentvermögen
SEG109;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG1;English=Dairy, segment liabilities;French=Produits laitiers, passifs sectoriels;German=Molkereiprodukte, Segmentschulden
SEG110;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG1;English=Dairy, capital expenditure;French=Produits laitiers, investissements;German=Molkereiprodukte, Investitionen
SEG111;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG1;English=Dairy, working capital;French=Produits laitiers, besoin en fonds de roulement;German=Molkereiprodukte, Working Capital
SEG112;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG1;English=Dairy, employees;French=Produits laitiers, effectifs;German=Molkereiprodukte, Mitarbeiter
SEG2;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];N;;0;DefaultParent=SEGMENTS;English=Timber;French=Bois;German=Holz
SEG201;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG2;English=Timber, external revenue;French=Bois, chiffre d'affaires externe;German=Holz, Außenumsatz
SEG202;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG2;English=Timber, inter-segment revenue;French=Bois, chiffre d'affaires intersecteurs;German=Holz, Innenumsatz
SEG203;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG2;English=Timber, EBITDA before exceptionals;French=Bois, EBITDA avant éléments exceptionnels;German=Holz, EBITDA vor Sondereffekten
SEG204;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG2;English=Timber, depreciation;French=Bois, amortissements;German=Holz, Abschreibungen
SEG205;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG2;English=Timber, impairment;French=Bois, dépréciations;German=Holz, Wertminderungen
SEG206;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG2;English=Timber, operating result;French=Bois, résultat opérationnel;German=Holz, Betriebsergebnis
SEG207;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG2;English=Timber, result of associates;French=Bois, résultat des entreprises associées;German=Holz, Ergebnis assoziierter Unternehmen
SEG208;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG2;English=Timber, segment assets;French=Bois, actifs sectoriels;German=Holz, Segmentvermögen
SEG209;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG2;English=Timber, segment liabilities;French=Bois, passifs sectoriels;German=Holz, Segmentschulden
SEG210;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG2;English=Timber, capital expenditure;French=Bois, investissements;German=Holz, Investitionen
SEG211;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG2;English=Timber, working capital;French=Bois, besoin en fonds de roulement;German=Holz, Working Capital
SEG212;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG2;English=Timber, employees;French=Bois, effectifs;German=Holz, Mitarbeiter
SEG3;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];N;;0;DefaultParent=SEGMENTS;English=Glass;French=Verre;German=Glas
SEG301;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG3;English=Glass, external revenue;French=Verre, chiffre d'affaires externe;German=Glas, Außenumsatz
SEG302;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG3;English=Glass, inter-segment revenue;French=Verre, chiffre d'affaires intersecteurs;German=Glas, Innenumsatz
SEG303;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG3;English=Glass, EBITDA before exceptionals;French=Verre, EBITDA avant éléments exceptionnels;German=Glas, EBITDA vor Sondereffekten
SEG304;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG3;English=Glass, depreciation;French=Verre, amortissements;German=Glas, Abschreibungen
SEG305;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG3;English=Glass, impairment;French=Verre, dépréciations;German=Glas, Wertminderungen
SEG306;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG3;English=Glass, operating result;French=Verre, résultat opérationnel;German=Glas, Betriebsergebnis
SEG307;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG3;English=Glass, result of associates;French=Verre, résultat des entreprises associées;German=Glas, Ergebnis assoziierter Unternehmen
SEG308;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG3;English=Glass, segment assets;French=Verre, actifs sectoriels;German=Glas, Segmentvermögen
SEG309;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG3;English=Glass, segment liabilities;French=Verre, passifs sectoriels;German=Glas, Segmentschulden
SEG310;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG3;English=Glass, capital expenditure;French=Verre, investissements;German=Glas, Investitionen
SEG311;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG3;English=Glass, working capital;French=Verre, besoin en fonds de roulement;German=Glas, Working Capital
SEG312;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG3;English=Glass, employees;French=Verre, effectifs;German=Glas, Mitarbeiter
SEG4;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];N;;0;DefaultParent=SEGMENTS;English=Paper;French=Papier;German=Papier
SEG401;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG4;English=Paper, external revenue;French=Papier, chiffre d'affaires externe;German=Papier, Außenumsatz
SEG402;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG4;English=Paper, inter-segment revenue;French=Papier, chiffre d'affaires intersecteurs;German=Papier, Innenumsatz
SEG403;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG4;English=Paper, EBITDA before exceptionals;French=Papier, EBITDA avant éléments exceptionnels;German=Papier, EBITDA vor Sondereffekten
SEG404;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG4;English=Paper, depreciation;French=Papier, amortissements;German=Papier, Abschreibungen
SEG405;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG4;English=Paper, impairment;French=Papier, dépréciations;German=Papier, Wertminderungen
SEG406;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG4;English=Paper, operating result;French=Papier, résultat opérationnel;German=Papier, Betriebsergebnis
SEG407;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG4;English=Paper, result of associates;French=Papier, résultat des entreprises associées;German=Papier, Ergebnis assoziierter Unternehmen
SEG408;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG4;English=Paper, segment assets;French=Papier, actifs sectoriels;German=Papier, Segmentvermögen
SEG409;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG4;English=Paper, segment liabilities;French=Papier, passifs sectoriels;German=Papier, Segmentschulden
SEG410;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG4;English=Paper, capital expenditure;French=Papier, investissements;German=Papier, Investitionen
SEG411;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG4;English=Paper, working capital;French=Papier, besoin en fonds de roulement;German=Papier, Working Capital
SEG412;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG4;English=Paper, employees;French=Papier, effectifs;German=Papier, Mitarbeiter
SEG5;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];N;;0;DefaultParent=SEGMENTS;English=Cement;French=Ciment;German=Zement
SEG501;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG5;English=Cement, external revenue;French=Ciment, chiffre d'affaires externe;German=Zement, Außenumsatz
SEG502;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG5;English=Cement, inter-segment revenue;French=Ciment, chiffre d'affaires intersecteurs;German=Zement, Innenumsatz
SEG503;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG5;English=Cement, EBITDA before exceptionals;French=Ciment, EBITDA avant éléments exceptionnels;German=Zement, EBITDA vor Sondereffekten
SEG504;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG5;English=Cement, depreciation;French=Ciment, amortissements;German=Zement, Abschreibungen
SEG505;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG5;English=Cement, impairment;French=Ciment, dépréciations;German=Zement, Wertminderungen
SEG506;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG5;English=Cement, operating result;French=Ciment, résultat opérationnel;German=Zement, Betriebsergebnis
SEG507;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG5;English=Cement, result of associates;French=Ciment, résultat des entreprises associées;German=Zement, Ergebnis assoziierter Unternehmen
SEG508;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG5;English=Cement, segment assets;French=Ciment, actifs sectoriels;German=Zement, Segmentvermögen
SEG509;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG5;English=Cement, segment liabilities;French=Ciment, passifs sectoriels;German=Zement, Segmentschulden
SEG510;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG5;English=Cement, capital expenditure;French=Ciment, investissements;German=Zement, Investitionen
SEG511;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG5;English=Cement, working capital;French=Ciment, besoin en fonds de roulement;German=Zement, Working Capital
SEG512;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG5;English=Cement, employees;French=Ciment, effectifs;German=Zement, Mitarbeiter
SEG6;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];N;;0;DefaultParent=SEGMENTS;English=Energy;French=Énergie;German=Energie
SEG601;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG6;English=Energy, external revenue;French=Énergie, chiffre d'affaires externe;German=Energie, Außenumsatz
SEG602;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG6;English=Energy, inter-segment revenue;French=Énergie, chiffre d'affaires intersecteurs;German=Energie, Innenumsatz
SEG603;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG6;English=Energy, EBITDA before exceptionals;French=Énergie, EBITDA avant éléments exceptionnels;German=Energie, EBITDA vor Sondereffekten
SEG604;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG6;English=Energy, depreciation;French=Énergie, amortissements;German=Energie, Abschreibungen
SEG605;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG6;English=Energy, impairment;French=Énergie, dépréciations;German=Energie, Wertminderungen
SEG606;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG6;English=Energy, operating result;French=Énergie, résultat opérationnel;German=Energie, Betriebsergebnis
SEG607;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG6;English=Energy, result of associates;French=Énergie, résultat des entreprises associées;German=Energie, Ergebnis assoziierter Unternehmen
SEG608;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG6;English=Energy, segment assets;French=Énergie, actifs sectoriels;German=Energie, Segmentvermögen
SEG609;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG6;English=Energy, segment liabilities;French=Énergie, passifs sectoriels;German=Energie, Segmentschulden
SEG610;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG6;English=Energy, capital expenditure;French=Énergie, investissements;German=Energie, Investitionen
SEG611;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG6;English=Energy, working capital;French=Énergie, besoin en fonds de roulement;German=Energie, Working Capital
SEG612;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG6;English=Energy, employees;French=Énergie, effectifs;German=Energie, Mitarbeiter
SEG7;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];N;;0;DefaultParent=SEGMENTS;English=Ferries;French=Traversées;German=Fähren
SEG701;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG7;English=Ferries, external revenue;French=Traversées, chiffre d'affaires externe;German=Fähren, Außenumsatz
SEG702;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG7;English=Ferries, inter-segment revenue;French=Traversées, chiffre d'affaires intersecteurs;German=Fähren, Innenumsatz
SEG703;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG7;English=Ferries, EBITDA before exceptionals;French=Traversées, EBITDA avant éléments exceptionnels;German=Fähren, EBITDA vor Sondereffekten
SEG704;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG7;English=Ferries, depreciation;French=Traversées, amortissements;German=Fähren, Abschreibungen
SEG705;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG7;English=Ferries, impairment;French=Traversées, dépréciations;German=Fähren, Wertminderungen
SEG706;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG7;English=Ferries, operating result;French=Traversées, résultat opérationnel;German=Fähren, Betriebsergebnis
SEG707;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG7;English=Ferries, result of associates;French=Traversées, résultat des entreprises associées;German=Fähren, Ergebnis assoziierter Unternehmen
SEG708;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG7;English=Ferries, segment assets;French=Traversées, actifs sectoriels;German=Fähren, Segmentvermögen
SEG709;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG7;English=Ferries, segment liabilities;French=Traversées, passifs sectoriels;German=Fähren, Segmentschulden
SEG710;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG7;English=Ferries, capital expenditure;French=Traversées, investissements;German=Fähren, Investitionen
SEG711;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG7;English=Ferries, working capital;French=Traversées, besoin en fonds de roulement;German=Fähren, Working Capital
SEG712;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG7;English=Ferries, employees;French=Traversées, effectifs;German=Fähren, Mitarbeiter
SEG8;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];N;;0;DefaultParent=SEGMENTS;English=Engineering;French=Ingénierie;German=Maschinenbau
SEG801;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG8;English=Engineering, external revenue;French=Ingénierie, chiffre d'affaires externe;German=Maschinenbau, Außenumsatz
SEG802;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG8;English=Engineering, inter-segment revenue;French=Ingénierie, chiffre d'affaires intersecteurs;German=Maschinenbau, Innenumsatz
SEG803;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG8;English=Engineering, EBITDA before exceptionals;French=Ingénierie, EBITDA avant éléments exceptionnels;German=Maschinenbau, EBITDA vor Sondereffekten
SEG804;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG8;English=Engineering, depreciation;French=Ingénierie, amortissements;German=Maschinenbau, Abschreibungen
SEG805;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG8;English=Engineering, impairment;French=Ingénierie, dépréciations;German=Maschinenbau, Wertminderungen
SEG806;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG8;English=Engineering, operating result;French=Ingénierie, résultat opérationnel;German=Maschinenbau, Betriebsergebnis
SEG807;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG8;English=Engineering, result of associates;French=Ingénierie, résultat des entreprises associées;German=Maschinenbau, Ergebnis assoziierter Unternehmen
SEG808;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG8;English=Engineering, segment assets;French=Ingénierie, actifs sectoriels;German=Maschinenbau, Segmentvermögen
SEG809;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG8;English=Engineering, segment liabilities;French=Ingénierie, passifs sectoriels;German=Maschinenbau, Segmentschulden
SEG810;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG8;English=Engineering, capital expenditure;French=Ingénierie, investissements;German=Maschinenbau, Investitionen
SEG811;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG8;English=Engineering, working capital;French=Ingénierie, besoin en fonds de roulement;German=Maschinenbau, Working Capital
SEG812;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 2;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=SEG8;English=Engineering, employees;French=Ingénierie, effectifs;German=Maschinenbau, Mitarbeiter
REV-DEST;REVENUE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];N;;0;DefaultParent=NOTES;English=Note 3: revenue by destination;French=Note 3 : ventes par destination;German=Anhang 3: Umsatz nach Region
REV-D1;REVENUE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];N;;0;DefaultParent=REV-DEST;English=Dairy;French=Produits laitiers;German=Molkereiprodukte
REV-D11;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D1;English=Dairy, Northern Europe;French=Produits laitiers, Europe du Nord;German=Molkereiprodukte, Nordeuropa
REV-D12;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D1;English=Dairy, Western Europe;French=Produits laitiers, Europe de l'Ouest;German=Molkereiprodukte, Westeuropa
REV-D13;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D1;English=Dairy, Southern Europe;French=Produits laitiers, Europe du Sud;German=Molkereiprodukte, Südeuropa
REV-D14;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D1;English=Dairy, Central Europe;French=Produits laitiers, Europe centrale;German=Molkereiprodukte, Mitteleuropa
REV-D15;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D1;English=Dairy, Americas;French=Produits laitiers, Amériques;German=Molkereiprodukte, Amerika
REV-D16;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D1;English=Dairy, Asia-Pacific;French=Produits laitiers, Asie-Pacifique;German=Molkereiprodukte, Asien-Pazifik
REV-D17;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D1;English=Dairy, Africa and Middle East;French=Produits laitiers, Afrique et Moyen-Orient;German=Molkereiprodukte, Afrika und Naher Osten
REV-D2;REVENUE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];N;;0;DefaultParent=REV-DEST;English=Timber;French=Bois;German=Holz
REV-D21;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D2;English=Timber, Northern Europe;French=Bois, Europe du Nord;German=Holz, Nordeuropa
REV-D22;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D2;English=Timber, Western Europe;French=Bois, Europe de l'Ouest;German=Holz, Westeuropa
REV-D23;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D2;English=Timber, Southern Europe;French=Bois, Europe du Sud;German=Holz, Südeuropa
REV-D24;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D2;English=Timber, Central Europe;French=Bois, Europe centrale;German=Holz, Mitteleuropa
REV-D25;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D2;English=Timber, Americas;French=Bois, Amériques;German=Holz, Amerika
REV-D26;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D2;English=Timber, Asia-Pacific;French=Bois, Asie-Pacifique;German=Holz, Asien-Pazifik
REV-D27;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D2;English=Timber, Africa and Middle East;French=Bois, Afrique et Moyen-Orient;German=Holz, Afrika und Naher Osten
REV-D3;REVENUE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];N;;0;DefaultParent=REV-DEST;English=Glass;French=Verre;German=Glas
REV-D31;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D3;English=Glass, Northern Europe;French=Verre, Europe du Nord;German=Glas, Nordeuropa
REV-D32;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D3;English=Glass, Western Europe;French=Verre, Europe de l'Ouest;German=Glas, Westeuropa
REV-D33;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D3;English=Glass, Southern Europe;French=Verre, Europe du Sud;German=Glas, Südeuropa
REV-D34;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D3;English=Glass, Central Europe;French=Verre, Europe centrale;German=Glas, Mitteleuropa
REV-D35;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D3;English=Glass, Americas;French=Verre, Amériques;German=Glas, Amerika
REV-D36;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D3;English=Glass, Asia-Pacific;French=Verre, Asie-Pacifique;German=Glas, Asien-Pazifik
REV-D37;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D3;English=Glass, Africa and Middle East;French=Verre, Afrique et Moyen-Orient;German=Glas, Afrika und Naher Osten
REV-D4;REVENUE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];N;;0;DefaultParent=REV-DEST;English=Paper;French=Papier;German=Papier
REV-D41;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D4;English=Paper, Northern Europe;French=Papier, Europe du Nord;German=Papier, Nordeuropa
REV-D42;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D4;English=Paper, Western Europe;French=Papier, Europe de l'Ouest;German=Papier, Westeuropa
REV-D43;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D4;English=Paper, Southern Europe;French=Papier, Europe du Sud;German=Papier, Südeuropa
REV-D44;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D4;English=Paper, Central Europe;French=Papier, Europe centrale;German=Papier, Mitteleuropa
REV-D45;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D4;English=Paper, Americas;French=Papier, Amériques;German=Papier, Amerika
REV-D46;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D4;English=Paper, Asia-Pacific;French=Papier, Asie-Pacifique;German=Papier, Asien-Pazifik
REV-D47;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D4;English=Paper, Africa and Middle East;French=Papier, Afrique et Moyen-Orient;German=Papier, Afrika und Naher Osten
REV-D5;REVENUE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];N;;0;DefaultParent=REV-DEST;English=Cement;French=Ciment;German=Zement
REV-D51;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D5;English=Cement, Northern Europe;French=Ciment, Europe du Nord;German=Zement, Nordeuropa
REV-D52;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D5;English=Cement, Western Europe;French=Ciment, Europe de l'Ouest;German=Zement, Westeuropa
REV-D53;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D5;English=Cement, Southern Europe;French=Ciment, Europe du Sud;German=Zement, Südeuropa
REV-D54;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D5;English=Cement, Central Europe;French=Ciment, Europe centrale;German=Zement, Mitteleuropa
REV-D55;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D5;English=Cement, Americas;French=Ciment, Amériques;German=Zement, Amerika
REV-D56;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D5;English=Cement, Asia-Pacific;French=Ciment, Asie-Pacifique;German=Zement, Asien-Pazifik
REV-D57;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D5;English=Cement, Africa and Middle East;French=Ciment, Afrique et Moyen-Orient;German=Zement, Afrika und Naher Osten
REV-D6;REVENUE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];N;;0;DefaultParent=REV-DEST;English=Energy;French=Énergie;German=Energie
REV-D61;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D6;English=Energy, Northern Europe;French=Énergie, Europe du Nord;German=Energie, Nordeuropa
REV-D62;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D6;English=Energy, Western Europe;French=Énergie, Europe de l'Ouest;German=Energie, Westeuropa
REV-D63;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D6;English=Energy, Southern Europe;French=Énergie, Europe du Sud;German=Energie, Südeuropa
REV-D64;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D6;English=Energy, Central Europe;French=Énergie, Europe centrale;German=Energie, Mitteleuropa
REV-D65;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D6;English=Energy, Americas;French=Énergie, Amériques;German=Energie, Amerika
REV-D66;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D6;English=Energy, Asia-Pacific;French=Énergie, Asie-Pacifique;German=Energie, Asien-Pazifik
REV-D67;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D6;English=Energy, Africa and Middle East;French=Énergie, Afrique et Moyen-Orient;German=Energie, Afrika und Naher Osten
REV-D7;REVENUE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];N;;0;DefaultParent=REV-DEST;English=Ferries;French=Traversées;German=Fähren
REV-D71;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D7;English=Ferries, Northern Europe;French=Traversées, Europe du Nord;German=Fähren, Nordeuropa
REV-D72;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D7;English=Ferries, Western Europe;French=Traversées, Europe de l'Ouest;German=Fähren, Westeuropa
REV-D73;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D7;English=Ferries, Southern Europe;French=Traversées, Europe du Sud;German=Fähren, Südeuropa
REV-D74;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D7;English=Ferries, Central Europe;French=Traversées, Europe centrale;German=Fähren, Mitteleuropa
REV-D75;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D7;English=Ferries, Americas;French=Traversées, Amériques;German=Fähren, Amerika
REV-D76;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D7;English=Ferries, Asia-Pacific;French=Traversées, Asie-Pacifique;German=Fähren, Asien-Pazifik
REV-D77;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D7;English=Ferries, Africa and Middle East;French=Traversées, Afrique et Moyen-Orient;German=Fähren, Afrika und Naher Osten
REV-D8;REVENUE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];N;;0;DefaultParent=REV-DEST;English=Engineering;French=Ingénierie;German=Maschinenbau
REV-D81;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D8;English=Engineering, Northern Europe;French=Ingénierie, Europe du Nord;German=Maschinenbau, Nordeuropa
REV-D82;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D8;English=Engineering, Western Europe;French=Ingénierie, Europe de l'Ouest;German=Maschinenbau, Westeuropa
REV-D83;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D8;English=Engineering, Southern Europe;French=Ingénierie, Europe du Sud;German=Maschinenbau, Südeuropa
REV-D84;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D8;English=Engineering, Central Europe;French=Ingénierie, Europe centrale;German=Maschinenbau, Mitteleuropa
REV-D85;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D8;English=Engineering, Americas;French=Ingénierie, Amériques;German=Maschinenbau, Amerika
REV-D86;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D8;English=Engineering, Asia-Pacific;French=Ingénierie, Asie-Pacifique;German=Maschinenbau, Asien-Pazifik
REV-D87;REVENUE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 3;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REV-D8;English=Engineering, Africa and Middle East;French=Ingénierie, Afrique et Moyen-Orient;German=Maschinenbau, Afrika und Naher Osten
TAXPROOF;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 8;;;SC_TAX;[ICP None];N;;0;DefaultParent=NOTES;English=Note 8: tax proof;French=Note 8 : preuve d'impôt;German=Anhang 8: Steuerüberleitung
TXP01;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=TAXPROOF;English=Tax at the parent's rate;French=Impôt au taux de la société mère;German=Steuer zum Satz der Muttergesellschaft
TXP02;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=TAXPROOF;English=Tax difference in rates;French=Impôt écarts de taux;German=Steuer Steuersatzabweichungen
TXP03;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=TAXPROOF;English=Tax tax-free income;French=Impôt produits non imposables;German=Steuer steuerfreie Erträge
TXP04;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=TAXPROOF;English=Tax non-deductible expenses;French=Impôt charges non déductibles;German=Steuer nicht abziehbare Aufwendungen
TXP05;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=TAXPROOF;English=Tax losses not recognised;French=Impôt déficits non activés;German=Steuer nicht angesetzte Verlustvorträge
TXP06;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=TAXPROOF;English=Tax losses used;French=Impôt déficits utilisés;German=Steuer genutzte Verlustvorträge
TXP07;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=TAXPROOF;English=Tax prior years;French=Impôt exercices antérieurs;German=Steuer Vorjahre
TXP08;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=TAXPROOF;English=Tax change in rates;French=Impôt changements de taux;German=Steuer Steuersatzänderungen
TXP09;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=TAXPROOF;English=Tax withholding tax;French=Impôt retenues à la source;German=Steuer Quellensteuern
TXP10;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=TAXPROOF;English=Tax tax credits;French=Impôt crédits d'impôt;German=Steuer Steuergutschriften
TXP11;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=TAXPROOF;English=Tax associates at equity;French=Impôt mises en équivalence;German=Steuer at-equity-Ergebnisse
TXP12;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 8;;;SC_TAX;[ICP None];Y;;1;DefaultParent=TAXPROOF;English=Tax other;French=Impôt autres;German=Steuer Sonstiges
CAPEX;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];N;;0;DefaultParent=NOTES;English=Note 10: capital expenditure;French=Note 10 : investissements;German=Anhang 10: Investitionen
CPX10;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];N;;0;DefaultParent=CAPEX;English=Land;French=Terrains;German=Grundstücke
CPX101;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX10;English=Land, replacement;French=Terrains, renouvellement;German=Grundstücke, Ersatz
CPX102;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX10;English=Land, growth;French=Terrains, croissance;German=Grundstücke, Wachstum
CPX103;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX10;English=Land, safety;French=Terrains, sécurité;German=Grundstücke, Sicherheit
CPX104;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX10;English=Land, environment;French=Terrains, environnement;German=Grundstücke, Umwelt
CPX15;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];N;;0;DefaultParent=CAPEX;English=Buildings;French=Constructions;German=Gebäude
CPX151;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX15;English=Buildings, replacement;French=Constructions, renouvellement;German=Gebäude, Ersatz
CPX152;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX15;English=Buildings, growth;French=Constructions, croissance;German=Gebäude, Wachstum
CPX153;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX15;English=Buildings, safety;French=Constructions, sécurité;German=Gebäude, Sicherheit
CPX154;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX15;English=Buildings, environment;French=Constructions, environnement;German=Gebäude, Umwelt
CPX20;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];N;;0;DefaultParent=CAPEX;English=Plant and machinery;French=Installations et machines;German=Technische Anlagen und Maschinen
CPX201;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX20;English=Plant and machinery, replacement;French=Installations et machines, renouvellement;German=Technische Anlagen und Maschinen, Ersatz
CPX202;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX20;English=Plant and machinery, growth;French=Installations et machines, croissance;German=Technische Anlagen und Maschinen, Wachstum
CPX203;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX20;English=Plant and machinery, safety;French=Installations et machines, sécurité;German=Technische Anlagen und Maschinen, Sicherheit
CPX204;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX20;English=Plant and machinery, environment;French=Installations et machines, environnement;German=Technische Anlagen und Maschinen, Umwelt
CPX25;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];N;;0;DefaultParent=CAPEX;English=Vessels;French=Navires;German=Schiffe
CPX251;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX25;English=Vessels, replacement;French=Navires, renouvellement;German=Schiffe, Ersatz
CPX252;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX25;English=Vessels, growth;French=Navires, croissance;German=Schiffe, Wachstum
CPX253;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX25;English=Vessels, safety;French=Navires, sécurité;German=Schiffe, Sicherheit
CPX254;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX25;English=Vessels, environment;French=Navires, environnement;German=Schiffe, Umwelt
CPX30;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];N;;0;DefaultParent=CAPEX;English=Vehicles;French=Véhicules;German=Fahrzeuge
CPX301;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX30;English=Vehicles, replacement;French=Véhicules, renouvellement;German=Fahrzeuge, Ersatz
CPX302;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX30;English=Vehicles, growth;French=Véhicules, croissance;German=Fahrzeuge, Wachstum
CPX303;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX30;English=Vehicles, safety;French=Véhicules, sécurité;German=Fahrzeuge, Sicherheit
CPX304;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX30;English=Vehicles, environment;French=Véhicules, environnement;German=Fahrzeuge, Umwelt
CPX35;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];N;;0;DefaultParent=CAPEX;English=IT equipment;French=Matériel informatique;German=EDV-Ausstattung
CPX351;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX35;English=IT equipment, replacement;French=Matériel informatique, renouvellement;German=EDV-Ausstattung, Ersatz
CPX352;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX35;English=IT equipment, growth;French=Matériel informatique, croissance;German=EDV-Ausstattung, Wachstum
CPX353;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX35;English=IT equipment, safety;French=Matériel informatique, sécurité;German=EDV-Ausstattung, Sicherheit
CPX354;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX35;English=IT equipment, environment;French=Matériel informatique, environnement;German=EDV-Ausstattung, Umwelt
CPX40;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];N;;0;DefaultParent=CAPEX;English=Furniture and fittings;French=Mobilier et agencements;German=Betriebs- und Geschäftsausstattung
CPX401;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX40;English=Furniture and fittings, replacement;French=Mobilier et agencements, renouvellement;German=Betriebs- und Geschäftsausstattung, Ersatz
CPX402;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX40;English=Furniture and fittings, growth;French=Mobilier et agencements, croissance;German=Betriebs- und Geschäftsausstattung, Wachstum
CPX403;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX40;English=Furniture and fittings, safety;French=Mobilier et agencements, sécurité;German=Betriebs- und Geschäftsausstattung, Sicherheit
CPX404;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX40;English=Furniture and fittings, environment;French=Mobilier et agencements, environnement;German=Betriebs- und Geschäftsausstattung, Umwelt
CPX45;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];N;;0;DefaultParent=CAPEX;English=Assets under construction;French=Immobilisations en cours;German=Anlagen im Bau
CPX451;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX45;English=Assets under construction, replacement;French=Immobilisations en cours, renouvellement;German=Anlagen im Bau, Ersatz
CPX452;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX45;English=Assets under construction, growth;French=Immobilisations en cours, croissance;German=Anlagen im Bau, Wachstum
CPX453;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX45;English=Assets under construction, safety;French=Immobilisations en cours, sécurité;German=Anlagen im Bau, Sicherheit
CPX454;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 10;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=CPX45;English=Assets under construction, environment;French=Immobilisations en cours, environnement;German=Anlagen im Bau, Umwelt
MATURITY;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];N;;0;DefaultParent=NOTES;English=Note 19: contractual maturities;French=Note 19 : échéancier contractuel;German=Anhang 19: vertragliche Fristigkeiten
MAT10;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];N;;0;DefaultParent=MATURITY;English=Bonds;French=Emprunts obligataires;German=Anleihen
MAT101;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=MAT10;English=Bonds, due within 1 year;French=Emprunts obligataires, à moins d'un an;German=Anleihen, fällig innerhalb eines Jahres
MAT102;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=MAT10;English=Bonds, due in 1 to 2 years;French=Emprunts obligataires, de 1 à 2 ans;German=Anleihen, fällig in 1 bis 2 Jahren
MAT103;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=MAT10;English=Bonds, due in 2 to 5 years;French=Emprunts obligataires, de 2 à 5 ans;German=Anleihen, fällig in 2 bis 5 Jahren
MAT105;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=MAT10;English=Bonds, due after 5 years;French=Emprunts obligataires, à plus de 5 ans;German=Anleihen, fällig nach 5 Jahren
MAT20;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];N;;0;DefaultParent=MATURITY;English=Bank loans;French=Emprunts bancaires;German=Bankdarlehen
MAT201;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=MAT20;English=Bank loans, due within 1 year;French=Emprunts bancaires, à moins d'un an;German=Bankdarlehen, fällig innerhalb eines Jahres
MAT202;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=MAT20;English=Bank loans, due in 1 to 2 years;French=Emprunts bancaires, de 1 à 2 ans;German=Bankdarlehen, fällig in 1 bis 2 Jahren
MAT203;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=MAT20;English=Bank loans, due in 2 to 5 years;French=Emprunts bancaires, de 2 à 5 ans;German=Bankdarlehen, fällig in 2 bis 5 Jahren
MAT205;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=MAT20;English=Bank loans, due after 5 years;French=Emprunts bancaires, à plus de 5 ans;German=Bankdarlehen, fällig nach 5 Jahren
MAT30;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];N;;0;DefaultParent=MATURITY;English=Commercial paper;French=Billets de trésorerie;German=Geldmarktpapiere
MAT301;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=MAT30;English=Commercial paper, due within 1 year;French=Billets de trésorerie, à moins d'un an;German=Geldmarktpapiere, fällig innerhalb eines Jahres
MAT302;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=MAT30;English=Commercial paper, due in 1 to 2 years;French=Billets de trésorerie, de 1 à 2 ans;German=Geldmarktpapiere, fällig in 1 bis 2 Jahren
MAT303;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=MAT30;English=Commercial paper, due in 2 to 5 years;French=Billets de trésorerie, de 2 à 5 ans;German=Geldmarktpapiere, fällig in 2 bis 5 Jahren
MAT305;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=MAT30;English=Commercial paper, due after 5 years;French=Billets de trésorerie, à plus de 5 ans;German=Geldmarktpapiere, fällig nach 5 Jahren
MAT40;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];N;;0;DefaultParent=MATURITY;English=Lease liabilities;French=Dettes de location;German=Leasingverbindlichkeiten
MAT401;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=MAT40;English=Lease liabilities, due within 1 year;French=Dettes de location, à moins d'un an;German=Leasingverbindlichkeiten, fällig innerhalb eines Jahres
MAT402;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=MAT40;English=Lease liabilities, due in 1 to 2 years;French=Dettes de location, de 1 à 2 ans;German=Leasingverbindlichkeiten, fällig in 1 bis 2 Jahren
MAT403;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=MAT40;English=Lease liabilities, due in 2 to 5 years;French=Dettes de location, de 2 à 5 ans;German=Leasingverbindlichkeiten, fällig in 2 bis 5 Jahren
MAT405;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=MAT40;English=Lease liabilities, due after 5 years;French=Dettes de location, à plus de 5 ans;German=Leasingverbindlichkeiten, fällig nach 5 Jahren
MAT50;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];N;;0;DefaultParent=MATURITY;English=Private placements;French=Placements privés;German=Schuldscheindarlehen
MAT501;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=MAT50;English=Private placements, due within 1 year;French=Placements privés, à moins d'un an;German=Schuldscheindarlehen, fällig innerhalb eines Jahres
MAT502;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=MAT50;English=Private placements, due in 1 to 2 years;French=Placements privés, de 1 à 2 ans;German=Schuldscheindarlehen, fällig in 1 bis 2 Jahren
MAT503;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=MAT50;English=Private placements, due in 2 to 5 years;French=Placements privés, de 2 à 5 ans;German=Schuldscheindarlehen, fällig in 2 bis 5 Jahren
MAT505;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=MAT50;English=Private placements, due after 5 years;French=Placements privés, à plus de 5 ans;German=Schuldscheindarlehen, fällig nach 5 Jahren
MAT60;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];N;;0;DefaultParent=MATURITY;English=Factoring with recourse;French=Affacturage avec recours;German=Unechtes Factoring
MAT601;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=MAT60;English=Factoring with recourse, due within 1 year;French=Affacturage avec recours, à moins d'un an;German=Unechtes Factoring, fällig innerhalb eines Jahres
MAT602;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=MAT60;English=Factoring with recourse, due in 1 to 2 years;French=Affacturage avec recours, de 1 à 2 ans;German=Unechtes Factoring, fällig in 1 bis 2 Jahren
MAT603;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=MAT60;English=Factoring with recourse, due in 2 to 5 years;French=Affacturage avec recours, de 2 à 5 ans;German=Unechtes Factoring, fällig in 2 bis 5 Jahren
MAT605;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=MAT60;English=Factoring with recourse, due after 5 years;French=Affacturage avec recours, à plus de 5 ans;German=Unechtes Factoring, fällig nach 5 Jahren
MAT70;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];N;;0;DefaultParent=MATURITY;English=Other borrowings;French=Autres emprunts;German=Sonstige Finanzschulden
MAT701;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=MAT70;English=Other borrowings, due within 1 year;French=Autres emprunts, à moins d'un an;German=Sonstige Finanzschulden, fällig innerhalb eines Jahres
MAT702;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=MAT70;English=Other borrowings, due in 1 to 2 years;French=Autres emprunts, de 1 à 2 ans;German=Sonstige Finanzschulden, fällig in 1 bis 2 Jahren
MAT703;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=MAT70;English=Other borrowings, due in 2 to 5 years;French=Autres emprunts, de 2 à 5 ans;German=Sonstige Finanzschulden, fällig in 2 bis 5 Jahren
MAT705;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=MAT70;English=Other borrowings, due after 5 years;French=Autres emprunts, à plus de 5 ans;German=Sonstige Finanzschulden, fällig nach 5 Jahren
DEBT-CUR;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];N;;0;DefaultParent=NOTES;English=Note 19: borrowings by currency;French=Note 19 : emprunts par devise;German=Anhang 19: Schulden nach Währung
DBT_EUR;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];N;;0;DefaultParent=DEBT-CUR;English=Euro;French=Euro;German=Euro
DBT_EUR1;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=DBT_EUR;English=Euro, fixed rate;French=Euro, taux fixe;German=Euro, fester Zins
DBT_EUR2;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=DBT_EUR;English=Euro, floating rate;French=Euro, taux variable;German=Euro, variabler Zins
DBT_USD;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];N;;0;DefaultParent=DEBT-CUR;English=US dollar;French=Dollar US;German=US-Dollar
DBT_USD1;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=DBT_USD;English=US dollar, fixed rate;French=Dollar US, taux fixe;German=US-Dollar, fester Zins
DBT_USD2;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=DBT_USD;English=US dollar, floating rate;French=Dollar US, taux variable;German=US-Dollar, variabler Zins
DBT_GBP;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];N;;0;DefaultParent=DEBT-CUR;English=Pound sterling;French=Livre sterling;German=Pfund Sterling
DBT_GBP1;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=DBT_GBP;English=Pound sterling, fixed rate;French=Livre sterling, taux fixe;German=Pfund Sterling, fester Zins
DBT_GBP2;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=DBT_GBP;English=Pound sterling, floating rate;French=Livre sterling, taux variable;German=Pfund Sterling, variabler Zins
DBT_CHF;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];N;;0;DefaultParent=DEBT-CUR;English=Swiss franc;French=Franc suisse;German=Schweizer Franken
DBT_CHF1;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=DBT_CHF;English=Swiss franc, fixed rate;French=Franc suisse, taux fixe;German=Schweizer Franken, fester Zins
DBT_CHF2;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=DBT_CHF;English=Swiss franc, floating rate;French=Franc suisse, taux variable;German=Schweizer Franken, variabler Zins
DBT_SEK;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];N;;0;DefaultParent=DEBT-CUR;English=Swedish krona;French=Couronne suédoise;German=Schwedische Krone
DBT_SEK1;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=DBT_SEK;English=Swedish krona, fixed rate;French=Couronne suédoise, taux fixe;German=Schwedische Krone, fester Zins
DBT_SEK2;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=DBT_SEK;English=Swedish krona, floating rate;French=Couronne suédoise, taux variable;German=Schwedische Krone, variabler Zins
DBT_PLN;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];N;;0;DefaultParent=DEBT-CUR;English=Polish zloty;French=Zloty polonais;German=Polnischer Zloty
DBT_PLN1;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=DBT_PLN;English=Polish zloty, fixed rate;French=Zloty polonais, taux fixe;German=Polnischer Zloty, fester Zins
DBT_PLN2;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=DBT_PLN;English=Polish zloty, floating rate;French=Zloty polonais, taux variable;German=Polnischer Zloty, variabler Zins
DBT_OTH;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];N;;0;DefaultParent=DEBT-CUR;English=Other currencies;French=Autres devises;German=Sonstige Währungen
DBT_OTH1;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=DBT_OTH;English=Other currencies, fixed rate;French=Autres devises, taux fixe;German=Sonstige Währungen, fester Zins
DBT_OTH2;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=DBT_OTH;English=Other currencies, floating rate;French=Autres devises, taux variable;German=Sonstige Währungen, variabler Zins
BONDS;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];N;;0;DefaultParent=NOTES;English=Note 19: bonds;French=Note 19 : emprunts obligataires;German=Anhang 19: Anleihen
BOND-A;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];N;;0;DefaultParent=BONDS;English=1.25% notes;French=Obligations 1,25 %;German=1,25 %-Anleihe
BOND-A1;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=BOND-A;English=1.25% notes, nominal value;French=Obligations 1,25 %, nominal;German=1,25 %-Anleihe, Nennwert
BOND-A2;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=BOND-A;English=1.25% notes, accrued interest;French=Obligations 1,25 %, intérêts courus;German=1,25 %-Anleihe, Stückzinsen
BOND-A3;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=BOND-A;English=1.25% notes, issue cost;French=Obligations 1,25 %, frais d'émission;German=1,25 %-Anleihe, Emissionskosten
BOND-B;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];N;;0;DefaultParent=BONDS;English=2.875% notes;French=Obligations 2,875 %;German=2,875 %-Anleihe
BOND-B1;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=BOND-B;English=2.875% notes, nominal value;French=Obligations 2,875 %, nominal;German=2,875 %-Anleihe, Nennwert
BOND-B2;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=BOND-B;English=2.875% notes, accrued interest;French=Obligations 2,875 %, intérêts courus;German=2,875 %-Anleihe, Stückzinsen
BOND-B3;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=BOND-B;English=2.875% notes, issue cost;French=Obligations 2,875 %, frais d'émission;German=2,875 %-Anleihe, Emissionskosten
BOND-C;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];N;;0;DefaultParent=BONDS;English=4.0% green bond;French=Obligation verte 4,0 %;German=Grüne Anleihe 4,0 %
BOND-C1;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=BOND-C;English=4.0% green bond, nominal value;French=Obligation verte 4,0 %, nominal;German=Grüne Anleihe 4,0 %, Nennwert
BOND-C2;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=BOND-C;English=4.0% green bond, accrued interest;French=Obligation verte 4,0 %, intérêts courus;German=Grüne Anleihe 4,0 %, Stückzinsen
BOND-C3;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=BOND-C;English=4.0% green bond, issue cost;French=Obligation verte 4,0 %, frais d'émission;German=Grüne Anleihe 4,0 %, Emissionskosten
BOND-D;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];N;;0;DefaultParent=BONDS;English=Convertible bond 0.5%;French=Obligation convertible 0,5 %;German=Wandelanleihe 0,5 %
BOND-D1;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=BOND-D;English=Convertible bond 0.5%, nominal value;French=Obligation convertible 0,5 %, nominal;German=Wandelanleihe 0,5 %, Nennwert
BOND-D2;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=BOND-D;English=Convertible bond 0.5%, accrued interest;French=Obligation convertible 0,5 %, intérêts courus;German=Wandelanleihe 0,5 %, Stückzinsen
BOND-D3;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=BOND-D;English=Convertible bond 0.5%, issue cost;French=Obligation convertible 0,5 %, frais d'émission;German=Wandelanleihe 0,5 %, Emissionskosten
BOND-E;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];N;;0;DefaultParent=BONDS;English=Hybrid bond 5.625%;French=Obligation hybride 5,625 %;German=Hybridanleihe 5,625 %
BOND-E1;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=BOND-E;English=Hybrid bond 5.625%, nominal value;French=Obligation hybride 5,625 %, nominal;German=Hybridanleihe 5,625 %, Nennwert
BOND-E2;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=BOND-E;English=Hybrid bond 5.625%, accrued interest;French=Obligation hybride 5,625 %, intérêts courus;German=Hybridanleihe 5,625 %, Stückzinsen
BOND-E3;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 19;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=BOND-E;English=Hybrid bond 5.625%, issue cost;French=Obligation hybride 5,625 %, frais d'émission;German=Hybridanleihe 5,625 %, Emissionskosten
HEDGES;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 22;;;SC_TREASURY;[ICP None];N;;0;DefaultParent=NOTES;English=Note 22: derivatives;French=Note 22 : instruments dérivés;German=Anhang 22: Derivate
HDG1;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 22;;;SC_TREASURY;[ICP None];N;;0;DefaultParent=HEDGES;English=Forward exchange contracts;French=Contrats de change à terme;German=Devisentermingeschäfte
HDG11;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 22;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=HDG1;English=Forward exchange contracts, notional amount;French=Contrats de change à terme, notionnel;German=Devisentermingeschäfte, Nominalbetrag
HDG12;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 22;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=HDG1;English=Forward exchange contracts, fair value, asset;French=Contrats de change à terme, juste valeur, actif;German=Devisentermingeschäfte, Zeitwert, Aktiva
HDG13;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 22;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=HDG1;English=Forward exchange contracts, fair value, liability;French=Contrats de change à terme, juste valeur, passif;German=Devisentermingeschäfte, Zeitwert, Passiva
HDG2;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 22;;;SC_TREASURY;[ICP None];N;;0;DefaultParent=HEDGES;English=Currency options;French=Options de change;German=Devisenoptionen
HDG21;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 22;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=HDG2;English=Currency options, notional amount;French=Options de change, notionnel;German=Devisenoptionen, Nominalbetrag
HDG22;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 22;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=HDG2;English=Currency options, fair value, asset;French=Options de change, juste valeur, actif;German=Devisenoptionen, Zeitwert, Aktiva
HDG23;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 22;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=HDG2;English=Currency options, fair value, liability;French=Options de change, juste valeur, passif;German=Devisenoptionen, Zeitwert, Passiva
HDG3;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 22;;;SC_TREASURY;[ICP None];N;;0;DefaultParent=HEDGES;English=Interest rate swaps;French=Swaps de taux;German=Zinsswaps
HDG31;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 22;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=HDG3;English=Interest rate swaps, notional amount;French=Swaps de taux, notionnel;German=Zinsswaps, Nominalbetrag
HDG32;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 22;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=HDG3;English=Interest rate swaps, fair value, asset;French=Swaps de taux, juste valeur, actif;German=Zinsswaps, Zeitwert, Aktiva
HDG33;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 22;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=HDG3;English=Interest rate swaps, fair value, liability;French=Swaps de taux, juste valeur, passif;German=Zinsswaps, Zeitwert, Passiva
HDG4;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 22;;;SC_TREASURY;[ICP None];N;;0;DefaultParent=HEDGES;English=Fuel hedges;French=Couvertures de carburant;German=Treibstoffsicherung
HDG41;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 22;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=HDG4;English=Fuel hedges, notional amount;French=Couvertures de carburant, notionnel;German=Treibstoffsicherung, Nominalbetrag
HDG42;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 22;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=HDG4;English=Fuel hedges, fair value, asset;French=Couvertures de carburant, juste valeur, actif;German=Treibstoffsicherung, Zeitwert, Aktiva
HDG43;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 22;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=HDG4;English=Fuel hedges, fair value, liability;French=Couvertures de carburant, juste valeur, passif;German=Treibstoffsicherung, Zeitwert, Passiva
HDG5;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 22;;;SC_TREASURY;[ICP None];N;;0;DefaultParent=HEDGES;English=Power futures;French=Contrats à terme d'électricité;German=Stromterminkontrakte
HDG51;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 22;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=HDG5;English=Power futures, notional amount;French=Contrats à terme d'électricité, notionnel;German=Stromterminkontrakte, Nominalbetrag
HDG52;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 22;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=HDG5;English=Power futures, fair value, asset;French=Contrats à terme d'électricité, juste valeur, actif;German=Stromterminkontrakte, Zeitwert, Aktiva
HDG53;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 22;;;SC_TREASURY;[ICP None];Y;;1;DefaultParent=HDG5;English=Power futures, fair value, liability;French=Contrats à terme d'électricité, juste valeur, passif;German=Stromterminkontrakte, Zeitwert, Passiva
OFFBAL;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];N;;0;DefaultParent=NOTES;English=Note 24: commitments;French=Note 24 : engagements;German=Anhang 24: Verpflichtungen
OFB1;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];N;;0;DefaultParent=OFFBAL;English=Guarantees given;French=Garanties données;German=Gegebene Garantien
OFB11;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=OFB1;English=Guarantees given, due within 1 year;French=Garanties données, à moins d'un an;German=Gegebene Garantien, fällig innerhalb eines Jahres
OFB12;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=OFB1;English=Guarantees given, due in 1 to 2 years;French=Garanties données, de 1 à 2 ans;German=Gegebene Garantien, fällig in 1 bis 2 Jahren
OFB13;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=OFB1;English=Guarantees given, due in 2 to 5 years;French=Garanties données, de 2 à 5 ans;German=Gegebene Garantien, fällig in 2 bis 5 Jahren
OFB15;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=OFB1;English=Guarantees given, due after 5 years;French=Garanties données, à plus de 5 ans;German=Gegebene Garantien, fällig nach 5 Jahren
OFB2;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];N;;0;DefaultParent=OFFBAL;English=Guarantees received;French=Garanties reçues;German=Erhaltene Garantien
OFB21;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=OFB2;English=Guarantees received, due within 1 year;French=Garanties reçues, à moins d'un an;German=Erhaltene Garantien, fällig innerhalb eines Jahres
OFB22;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=OFB2;English=Guarantees received, due in 1 to 2 years;French=Garanties reçues, de 1 à 2 ans;German=Erhaltene Garantien, fällig in 1 bis 2 Jahren
OFB23;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=OFB2;English=Guarantees received, due in 2 to 5 years;French=Garanties reçues, de 2 à 5 ans;German=Erhaltene Garantien, fällig in 2 bis 5 Jahren
OFB25;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=OFB2;English=Guarantees received, due after 5 years;French=Garanties reçues, à plus de 5 ans;German=Erhaltene Garantien, fällig nach 5 Jahren
OFB3;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];N;;0;DefaultParent=OFFBAL;English=Purchase commitments;French=Engagements d'achat;German=Bestellobligo
OFB31;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=OFB3;English=Purchase commitments, due within 1 year;French=Engagements d'achat, à moins d'un an;German=Bestellobligo, fällig innerhalb eines Jahres
OFB32;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=OFB3;English=Purchase commitments, due in 1 to 2 years;French=Engagements d'achat, de 1 à 2 ans;German=Bestellobligo, fällig in 1 bis 2 Jahren
OFB33;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=OFB3;English=Purchase commitments, due in 2 to 5 years;French=Engagements d'achat, de 2 à 5 ans;German=Bestellobligo, fällig in 2 bis 5 Jahren
OFB35;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=OFB3;English=Purchase commitments, due after 5 years;French=Engagements d'achat, à plus de 5 ans;German=Bestellobligo, fällig nach 5 Jahren
OFB4;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];N;;0;DefaultParent=OFFBAL;English=Pledged assets;French=Actifs nantis;German=Verpfändete Vermögenswerte
OFB41;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=OFB4;English=Pledged assets, due within 1 year;French=Actifs nantis, à moins d'un an;German=Verpfändete Vermögenswerte, fällig innerhalb eines Jahres
OFB42;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=OFB4;English=Pledged assets, due in 1 to 2 years;French=Actifs nantis, de 1 à 2 ans;German=Verpfändete Vermögenswerte, fällig in 1 bis 2 Jahren
OFB43;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=OFB4;English=Pledged assets, due in 2 to 5 years;French=Actifs nantis, de 2 à 5 ans;German=Verpfändete Vermögenswerte, fällig in 2 bis 5 Jahren
OFB45;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=OFB4;English=Pledged assets, due after 5 years;French=Actifs nantis, à plus de 5 ans;German=Verpfändete Vermögenswerte, fällig nach 5 Jahren
OFB5;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];N;;0;DefaultParent=OFFBAL;English=Undrawn credit lines;French=Lignes de crédit non tirées;German=Nicht genutzte Kreditlinien
OFB51;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=OFB5;English=Undrawn credit lines, due within 1 year;French=Lignes de crédit non tirées, à moins d'un an;German=Nicht genutzte Kreditlinien, fällig innerhalb eines Jahres
OFB52;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=OFB5;English=Undrawn credit lines, due in 1 to 2 years;French=Lignes de crédit non tirées, de 1 à 2 ans;German=Nicht genutzte Kreditlinien, fällig in 1 bis 2 Jahren
OFB53;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=OFB5;English=Undrawn credit lines, due in 2 to 5 years;French=Lignes de crédit non tirées, de 2 à 5 ans;German=Nicht genutzte Kreditlinien, fällig in 2 bis 5 Jahren
OFB55;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=OFB5;English=Undrawn credit lines, due after 5 years;French=Lignes de crédit non tirées, à plus de 5 ans;German=Nicht genutzte Kreditlinien, fällig nach 5 Jahren
OFB6;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];N;;0;DefaultParent=OFFBAL;English=Leases not yet begun;French=Contrats de location non commencés;German=Noch nicht begonnene Leasingverträge
OFB61;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=OFB6;English=Leases not yet begun, due within 1 year;French=Contrats de location non commencés, à moins d'un an;German=Noch nicht begonnene Leasingverträge, fällig innerhalb eines Jahres
OFB62;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=OFB6;English=Leases not yet begun, due in 1 to 2 years;French=Contrats de location non commencés, de 1 à 2 ans;German=Noch nicht begonnene Leasingverträge, fällig in 1 bis 2 Jahren
OFB63;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=OFB6;English=Leases not yet begun, due in 2 to 5 years;French=Contrats de location non commencés, de 2 à 5 ans;German=Noch nicht begonnene Leasingverträge, fällig in 2 bis 5 Jahren
OFB65;BALANCE;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 24;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=OFB6;English=Leases not yet begun, due after 5 years;French=Contrats de location non commencés, à plus de 5 ans;German=Noch nicht begonnene Leasingverträge, fällig nach 5 Jahren
RELATED;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];N;;0;DefaultParent=NOTES;English=Note 25: related parties;French=Note 25 : parties liées;German=Anhang 25: nahestehende Parteien
REL1;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];N;;0;DefaultParent=RELATED;English=Sales;French=Ventes;German=Verkäufe
REL11;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REL1;English=Sales, parent company's owners;French=Ventes, actionnaires de la société mère;German=Verkäufe, Anteilseigner des Mutterunternehmens
REL12;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REL1;English=Sales, associates;French=Ventes, entreprises associées;German=Verkäufe, assoziierte Unternehmen
REL13;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REL1;English=Sales, joint ventures;French=Ventes, coentreprises;German=Verkäufe, Gemeinschaftsunternehmen
REL14;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REL1;English=Sales, key management;French=Ventes, principaux dirigeants;German=Verkäufe, Schlüsselpersonal
REL15;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REL1;English=Sales, pension funds;French=Ventes, fonds de pension;German=Verkäufe, Pensionskassen
REL2;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];N;;0;DefaultParent=RELATED;English=Purchases;French=Achats;German=Käufe
REL21;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REL2;English=Purchases, parent company's owners;French=Achats, actionnaires de la société mère;German=Käufe, Anteilseigner des Mutterunternehmens
REL22;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REL2;English=Purchases, associates;French=Achats, entreprises associées;German=Käufe, assoziierte Unternehmen
REL23;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REL2;English=Purchases, joint ventures;French=Achats, coentreprises;German=Käufe, Gemeinschaftsunternehmen
REL24;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REL2;English=Purchases, key management;French=Achats, principaux dirigeants;German=Käufe, Schlüsselpersonal
REL25;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REL2;English=Purchases, pension funds;French=Achats, fonds de pension;German=Käufe, Pensionskassen
REL3;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];N;;0;DefaultParent=RELATED;English=Receivables;French=Créances;German=Forderungen
REL31;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REL3;English=Receivables, parent company's owners;French=Créances, actionnaires de la société mère;German=Forderungen, Anteilseigner des Mutterunternehmens
REL32;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REL3;English=Receivables, associates;French=Créances, entreprises associées;German=Forderungen, assoziierte Unternehmen
REL33;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REL3;English=Receivables, joint ventures;French=Créances, coentreprises;German=Forderungen, Gemeinschaftsunternehmen
REL34;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REL3;English=Receivables, key management;French=Créances, principaux dirigeants;German=Forderungen, Schlüsselpersonal
REL35;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REL3;English=Receivables, pension funds;French=Créances, fonds de pension;German=Forderungen, Pensionskassen
REL4;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];N;;0;DefaultParent=RELATED;English=Payables;French=Dettes;German=Verbindlichkeiten
REL41;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REL4;English=Payables, parent company's owners;French=Dettes, actionnaires de la société mère;German=Verbindlichkeiten, Anteilseigner des Mutterunternehmens
REL42;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REL4;English=Payables, associates;French=Dettes, entreprises associées;German=Verbindlichkeiten, assoziierte Unternehmen
REL43;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REL4;English=Payables, joint ventures;French=Dettes, coentreprises;German=Verbindlichkeiten, Gemeinschaftsunternehmen
REL44;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REL4;English=Payables, key management;French=Dettes, principaux dirigeants;German=Verbindlichkeiten, Schlüsselpersonal
REL45;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REL4;English=Payables, pension funds;French=Dettes, fonds de pension;German=Verbindlichkeiten, Pensionskassen
REL5;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];N;;0;DefaultParent=RELATED;English=Loans granted;French=Prêts accordés;German=Gewährte Darlehen
REL51;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REL5;English=Loans granted, parent company's owners;French=Prêts accordés, actionnaires de la société mère;German=Gewährte Darlehen, Anteilseigner des Mutterunternehmens
REL52;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REL5;English=Loans granted, associates;French=Prêts accordés, entreprises associées;German=Gewährte Darlehen, assoziierte Unternehmen
REL53;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REL5;English=Loans granted, joint ventures;French=Prêts accordés, coentreprises;German=Gewährte Darlehen, Gemeinschaftsunternehmen
REL54;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REL5;English=Loans granted, key management;French=Prêts accordés, principaux dirigeants;German=Gewährte Darlehen, Schlüsselpersonal
REL55;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;Note 25;;;SC_NOTES;[ICP None];Y;;1;DefaultParent=REL5;English=Loans granted, pension funds;French=Prêts accordés, fonds de pension;German=Gewährte Darlehen, Pensionskassen
CBCR;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=NOTES;English=Country-by-country report;French=Déclaration pays par pays;German=Länderbezogener Bericht
CBC_GB;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=United Kingdom;French=Royaume-Uni;German=Vereinigtes Königreich
CBC_GB1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_GB;English=United Kingdom, revenue from unrelated parties;French=Royaume-Uni, revenus de tiers;German=Vereinigtes Königreich, Erträge von Fremden
CBC_GB2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_GB;English=United Kingdom, revenue from related parties;French=Royaume-Uni, revenus de parties liées;German=Vereinigtes Königreich, Erträge von Verbundenen
CBC_GB3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_GB;English=United Kingdom, profit before income tax;French=Royaume-Uni, résultat avant impôt;German=Vereinigtes Königreich, Vorsteuerergebnis
CBC_GB4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_GB;English=United Kingdom, income tax paid;French=Royaume-Uni, impôt payé;German=Vereinigtes Königreich, gezahlte Ertragsteuern
CBC_GB5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_GB;English=United Kingdom, income tax accrued;French=Royaume-Uni, impôt dû;German=Vereinigtes Königreich, noch zu zahlende Ertragsteuern
CBC_GB6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_GB;English=United Kingdom, stated capital;French=Royaume-Uni, capital social;German=Vereinigtes Königreich, ausgewiesenes Kapital
CBC_GB7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_GB;English=United Kingdom, accumulated earnings;French=Royaume-Uni, bénéfices non distribués;German=Vereinigtes Königreich, einbehaltener Gewinn
CBC_GB8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_GB;English=United Kingdom, tangible assets;French=Royaume-Uni, actifs corporels;German=Vereinigtes Königreich, materielle Vermögenswerte
CBC_IE;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=Ireland;French=Irlande;German=Irland
CBC_IE1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_IE;English=Ireland, revenue from unrelated parties;French=Irlande, revenus de tiers;German=Irland, Erträge von Fremden
CBC_IE2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_IE;English=Ireland, revenue from related parties;French=Irlande, revenus de parties liées;German=Irland, Erträge von Verbundenen
CBC_IE3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_IE;English=Ireland, profit before income tax;French=Irlande, résultat avant impôt;German=Irland, Vorsteuerergebnis
CBC_IE4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_IE;English=Ireland, income tax paid;French=Irlande, impôt payé;German=Irland, gezahlte Ertragsteuern
CBC_IE5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_IE;English=Ireland, income tax accrued;French=Irlande, impôt dû;German=Irland, noch zu zahlende Ertragsteuern
CBC_IE6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_IE;English=Ireland, stated capital;French=Irlande, capital social;German=Irland, ausgewiesenes Kapital
CBC_IE7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_IE;English=Ireland, accumulated earnings;French=Irlande, bénéfices non distribués;German=Irland, einbehaltener Gewinn
CBC_IE8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_IE;English=Ireland, tangible assets;French=Irlande, actifs corporels;German=Irland, materielle Vermögenswerte
CBC_SE;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=Sweden;French=Suède;German=Schweden
CBC_SE1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_SE;English=Sweden, revenue from unrelated parties;French=Suède, revenus de tiers;German=Schweden, Erträge von Fremden
CBC_SE2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_SE;English=Sweden, revenue from related parties;French=Suède, revenus de parties liées;German=Schweden, Erträge von Verbundenen
CBC_SE3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_SE;English=Sweden, profit before income tax;French=Suède, résultat avant impôt;German=Schweden, Vorsteuerergebnis
CBC_SE4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_SE;English=Sweden, income tax paid;French=Suède, impôt payé;German=Schweden, gezahlte Ertragsteuern
CBC_SE5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_SE;English=Sweden, income tax accrued;French=Suède, impôt dû;German=Schweden, noch zu zahlende Ertragsteuern
CBC_SE6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_SE;English=Sweden, stated capital;French=Suède, capital social;German=Schweden, ausgewiesenes Kapital
CBC_SE7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_SE;English=Sweden, accumulated earnings;French=Suède, bénéfices non distribués;German=Schweden, einbehaltener Gewinn
CBC_SE8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_SE;English=Sweden, tangible assets;French=Suède, actifs corporels;German=Schweden, materielle Vermögenswerte
CBC_NO;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=Norway;French=Norvège;German=Norwegen
CBC_NO1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_NO;English=Norway, revenue from unrelated parties;French=Norvège, revenus de tiers;German=Norwegen, Erträge von Fremden
CBC_NO2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_NO;English=Norway, revenue from related parties;French=Norvège, revenus de parties liées;German=Norwegen, Erträge von Verbundenen
CBC_NO3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_NO;English=Norway, profit before income tax;French=Norvège, résultat avant impôt;German=Norwegen, Vorsteuerergebnis
CBC_NO4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_NO;English=Norway, income tax paid;French=Norvège, impôt payé;German=Norwegen, gezahlte Ertragsteuern
CBC_NO5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_NO;English=Norway, income tax accrued;French=Norvège, impôt dû;German=Norwegen, noch zu zahlende Ertragsteuern
CBC_NO6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_NO;English=Norway, stated capital;French=Norvège, capital social;German=Norwegen, ausgewiesenes Kapital
CBC_NO7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_NO;English=Norway, accumulated earnings;French=Norvège, bénéfices non distribués;German=Norwegen, einbehaltener Gewinn
CBC_NO8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_NO;English=Norway, tangible assets;French=Norvège, actifs corporels;German=Norwegen, materielle Vermögenswerte
CBC_DK;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=Denmark;French=Danemark;German=Dänemark
CBC_DK1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_DK;English=Denmark, revenue from unrelated parties;French=Danemark, revenus de tiers;German=Dänemark, Erträge von Fremden
CBC_DK2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_DK;English=Denmark, revenue from related parties;French=Danemark, revenus de parties liées;German=Dänemark, Erträge von Verbundenen
CBC_DK3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_DK;English=Denmark, profit before income tax;French=Danemark, résultat avant impôt;German=Dänemark, Vorsteuerergebnis
CBC_DK4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_DK;English=Denmark, income tax paid;French=Danemark, impôt payé;German=Dänemark, gezahlte Ertragsteuern
CBC_DK5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_DK;English=Denmark, income tax accrued;French=Danemark, impôt dû;German=Dänemark, noch zu zahlende Ertragsteuern
CBC_DK6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_DK;English=Denmark, stated capital;French=Danemark, capital social;German=Dänemark, ausgewiesenes Kapital
CBC_DK7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_DK;English=Denmark, accumulated earnings;French=Danemark, bénéfices non distribués;German=Dänemark, einbehaltener Gewinn
CBC_DK8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_DK;English=Denmark, tangible assets;French=Danemark, actifs corporels;German=Dänemark, materielle Vermögenswerte
CBC_FI;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=Finland;French=Finlande;German=Finnland
CBC_FI1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_FI;English=Finland, revenue from unrelated parties;French=Finlande, revenus de tiers;German=Finnland, Erträge von Fremden
CBC_FI2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_FI;English=Finland, revenue from related parties;French=Finlande, revenus de parties liées;German=Finnland, Erträge von Verbundenen
CBC_FI3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_FI;English=Finland, profit before income tax;French=Finlande, résultat avant impôt;German=Finnland, Vorsteuerergebnis
CBC_FI4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_FI;English=Finland, income tax paid;French=Finlande, impôt payé;German=Finnland, gezahlte Ertragsteuern
CBC_FI5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_FI;English=Finland, income tax accrued;French=Finlande, impôt dû;German=Finnland, noch zu zahlende Ertragsteuern
CBC_FI6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_FI;English=Finland, stated capital;French=Finlande, capital social;German=Finnland, ausgewiesenes Kapital
CBC_FI7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_FI;English=Finland, accumulated earnings;French=Finlande, bénéfices non distribués;German=Finnland, einbehaltener Gewinn
CBC_FI8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_FI;English=Finland, tangible assets;French=Finlande, actifs corporels;German=Finnland, materielle Vermögenswerte
CBC_EE;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=Estonia;French=Estonie;German=Estland
CBC_EE1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_EE;English=Estonia, revenue from unrelated parties;French=Estonie, revenus de tiers;German=Estland, Erträge von Fremden
CBC_EE2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_EE;English=Estonia, revenue from related parties;French=Estonie, revenus de parties liées;German=Estland, Erträge von Verbundenen
CBC_EE3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_EE;English=Estonia, profit before income tax;French=Estonie, résultat avant impôt;German=Estland, Vorsteuerergebnis
CBC_EE4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_EE;English=Estonia, income tax paid;French=Estonie, impôt payé;German=Estland, gezahlte Ertragsteuern
CBC_EE5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_EE;English=Estonia, income tax accrued;French=Estonie, impôt dû;German=Estland, noch zu zahlende Ertragsteuern
CBC_EE6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_EE;English=Estonia, stated capital;French=Estonie, capital social;German=Estland, ausgewiesenes Kapital
CBC_EE7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_EE;English=Estonia, accumulated earnings;French=Estonie, bénéfices non distribués;German=Estland, einbehaltener Gewinn
CBC_EE8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_EE;English=Estonia, tangible assets;French=Estonie, actifs corporels;German=Estland, materielle Vermögenswerte
CBC_FR;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=France;French=France;German=Frankreich
CBC_FR1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_FR;English=France, revenue from unrelated parties;French=France, revenus de tiers;German=Frankreich, Erträge von Fremden
CBC_FR2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_FR;English=France, revenue from related parties;French=France, revenus de parties liées;German=Frankreich, Erträge von Verbundenen
CBC_FR3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_FR;English=France, profit before income tax;French=France, résultat avant impôt;German=Frankreich, Vorsteuerergebnis
CBC_FR4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_FR;English=France, income tax paid;French=France, impôt payé;German=Frankreich, gezahlte Ertragsteuern
CBC_FR5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_FR;English=France, income tax accrued;French=France, impôt dû;German=Frankreich, noch zu zahlende Ertragsteuern
CBC_FR6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_FR;English=France, stated capital;French=France, capital social;German=Frankreich, ausgewiesenes Kapital
CBC_FR7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_FR;English=France, accumulated earnings;French=France, bénéfices non distribués;German=Frankreich, einbehaltener Gewinn
CBC_FR8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_FR;English=France, tangible assets;French=France, actifs corporels;German=Frankreich, materielle Vermögenswerte
CBC_BE;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=Belgium;French=Belgique;German=Belgien
CBC_BE1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_BE;English=Belgium, revenue from unrelated parties;French=Belgique, revenus de tiers;German=Belgien, Erträge von Fremden
CBC_BE2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_BE;English=Belgium, revenue from related parties;French=Belgique, revenus de parties liées;German=Belgien, Erträge von Verbundenen
CBC_BE3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_BE;English=Belgium, profit before income tax;French=Belgique, résultat avant impôt;German=Belgien, Vorsteuerergebnis
CBC_BE4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_BE;English=Belgium, income tax paid;French=Belgique, impôt payé;German=Belgien, gezahlte Ertragsteuern
CBC_BE5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_BE;English=Belgium, income tax accrued;French=Belgique, impôt dû;German=Belgien, noch zu zahlende Ertragsteuern
CBC_BE6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_BE;English=Belgium, stated capital;French=Belgique, capital social;German=Belgien, ausgewiesenes Kapital
CBC_BE7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_BE;English=Belgium, accumulated earnings;French=Belgique, bénéfices non distribués;German=Belgien, einbehaltener Gewinn
CBC_BE8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_BE;English=Belgium, tangible assets;French=Belgique, actifs corporels;German=Belgien, materielle Vermögenswerte
CBC_NL;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=Netherlands;French=Pays-Bas;German=Niederlande
CBC_NL1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_NL;English=Netherlands, revenue from unrelated parties;French=Pays-Bas, revenus de tiers;German=Niederlande, Erträge von Fremden
CBC_NL2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_NL;English=Netherlands, revenue from related parties;French=Pays-Bas, revenus de parties liées;German=Niederlande, Erträge von Verbundenen
CBC_NL3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_NL;English=Netherlands, profit before income tax;French=Pays-Bas, résultat avant impôt;German=Niederlande, Vorsteuerergebnis
CBC_NL4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_NL;English=Netherlands, income tax paid;French=Pays-Bas, impôt payé;German=Niederlande, gezahlte Ertragsteuern
CBC_NL5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_NL;English=Netherlands, income tax accrued;French=Pays-Bas, impôt dû;German=Niederlande, noch zu zahlende Ertragsteuern
CBC_NL6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_NL;English=Netherlands, stated capital;French=Pays-Bas, capital social;German=Niederlande, ausgewiesenes Kapital
CBC_NL7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_NL;English=Netherlands, accumulated earnings;French=Pays-Bas, bénéfices non distribués;German=Niederlande, einbehaltener Gewinn
CBC_NL8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_NL;English=Netherlands, tangible assets;French=Pays-Bas, actifs corporels;German=Niederlande, materielle Vermögenswerte
CBC_DE;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=Germany;French=Allemagne;German=Deutschland
CBC_DE1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_DE;English=Germany, revenue from unrelated parties;French=Allemagne, revenus de tiers;German=Deutschland, Erträge von Fremden
CBC_DE2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_DE;English=Germany, revenue from related parties;French=Allemagne, revenus de parties liées;German=Deutschland, Erträge von Verbundenen
CBC_DE3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_DE;English=Germany, profit before income tax;French=Allemagne, résultat avant impôt;German=Deutschland, Vorsteuerergebnis
CBC_DE4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_DE;English=Germany, income tax paid;French=Allemagne, impôt payé;German=Deutschland, gezahlte Ertragsteuern
CBC_DE5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_DE;English=Germany, income tax accrued;French=Allemagne, impôt dû;German=Deutschland, noch zu zahlende Ertragsteuern
CBC_DE6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_DE;English=Germany, stated capital;French=Allemagne, capital social;German=Deutschland, ausgewiesenes Kapital
CBC_DE7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_DE;English=Germany, accumulated earnings;French=Allemagne, bénéfices non distribués;German=Deutschland, einbehaltener Gewinn
CBC_DE8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_DE;English=Germany, tangible assets;French=Allemagne, actifs corporels;German=Deutschland, materielle Vermögenswerte
CBC_AT;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=Austria;French=Autriche;German=Österreich
CBC_AT1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_AT;English=Austria, revenue from unrelated parties;French=Autriche, revenus de tiers;German=Österreich, Erträge von Fremden
CBC_AT2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_AT;English=Austria, revenue from related parties;French=Autriche, revenus de parties liées;German=Österreich, Erträge von Verbundenen
CBC_AT3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_AT;English=Austria, profit before income tax;French=Autriche, résultat avant impôt;German=Österreich, Vorsteuerergebnis
CBC_AT4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_AT;English=Austria, income tax paid;French=Autriche, impôt payé;German=Österreich, gezahlte Ertragsteuern
CBC_AT5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_AT;English=Austria, income tax accrued;French=Autriche, impôt dû;German=Österreich, noch zu zahlende Ertragsteuern
CBC_AT6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_AT;English=Austria, stated capital;French=Autriche, capital social;German=Österreich, ausgewiesenes Kapital
CBC_AT7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_AT;English=Austria, accumulated earnings;French=Autriche, bénéfices non distribués;German=Österreich, einbehaltener Gewinn
CBC_AT8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_AT;English=Austria, tangible assets;French=Autriche, actifs corporels;German=Österreich, materielle Vermögenswerte
CBC_CH;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=Switzerland;French=Suisse;German=Schweiz
CBC_CH1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_CH;English=Switzerland, revenue from unrelated parties;French=Suisse, revenus de tiers;German=Schweiz, Erträge von Fremden
CBC_CH2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_CH;English=Switzerland, revenue from related parties;French=Suisse, revenus de parties liées;German=Schweiz, Erträge von Verbundenen
CBC_CH3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_CH;English=Switzerland, profit before income tax;French=Suisse, résultat avant impôt;German=Schweiz, Vorsteuerergebnis
CBC_CH4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_CH;English=Switzerland, income tax paid;French=Suisse, impôt payé;German=Schweiz, gezahlte Ertragsteuern
CBC_CH5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_CH;English=Switzerland, income tax accrued;French=Suisse, impôt dû;German=Schweiz, noch zu zahlende Ertragsteuern
CBC_CH6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_CH;English=Switzerland, stated capital;French=Suisse, capital social;German=Schweiz, ausgewiesenes Kapital
CBC_CH7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_CH;English=Switzerland, accumulated earnings;French=Suisse, bénéfices non distribués;German=Schweiz, einbehaltener Gewinn
CBC_CH8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_CH;English=Switzerland, tangible assets;French=Suisse, actifs corporels;German=Schweiz, materielle Vermögenswerte
CBC_ES;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=Spain;French=Espagne;German=Spanien
CBC_ES1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_ES;English=Spain, revenue from unrelated parties;French=Espagne, revenus de tiers;German=Spanien, Erträge von Fremden
CBC_ES2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_ES;English=Spain, revenue from related parties;French=Espagne, revenus de parties liées;German=Spanien, Erträge von Verbundenen
CBC_ES3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_ES;English=Spain, profit before income tax;French=Espagne, résultat avant impôt;German=Spanien, Vorsteuerergebnis
CBC_ES4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_ES;English=Spain, income tax paid;French=Espagne, impôt payé;German=Spanien, gezahlte Ertragsteuern
CBC_ES5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_ES;English=Spain, income tax accrued;French=Espagne, impôt dû;German=Spanien, noch zu zahlende Ertragsteuern
CBC_ES6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_ES;English=Spain, stated capital;French=Espagne, capital social;German=Spanien, ausgewiesenes Kapital
CBC_ES7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_ES;English=Spain, accumulated earnings;French=Espagne, bénéfices non distribués;German=Spanien, einbehaltener Gewinn
CBC_ES8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_ES;English=Spain, tangible assets;French=Espagne, actifs corporels;German=Spanien, materielle Vermögenswerte
CBC_PT;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=Portugal;French=Portugal;German=Portugal
CBC_PT1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_PT;English=Portugal, revenue from unrelated parties;French=Portugal, revenus de tiers;German=Portugal, Erträge von Fremden
CBC_PT2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_PT;English=Portugal, revenue from related parties;French=Portugal, revenus de parties liées;German=Portugal, Erträge von Verbundenen
CBC_PT3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_PT;English=Portugal, profit before income tax;French=Portugal, résultat avant impôt;German=Portugal, Vorsteuerergebnis
CBC_PT4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_PT;English=Portugal, income tax paid;French=Portugal, impôt payé;German=Portugal, gezahlte Ertragsteuern
CBC_PT5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_PT;English=Portugal, income tax accrued;French=Portugal, impôt dû;German=Portugal, noch zu zahlende Ertragsteuern
CBC_PT6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_PT;English=Portugal, stated capital;French=Portugal, capital social;German=Portugal, ausgewiesenes Kapital
CBC_PT7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_PT;English=Portugal, accumulated earnings;French=Portugal, bénéfices non distribués;German=Portugal, einbehaltener Gewinn
CBC_PT8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_PT;English=Portugal, tangible assets;French=Portugal, actifs corporels;German=Portugal, materielle Vermögenswerte
CBC_IT;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=Italy;French=Italie;German=Italien
CBC_IT1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_IT;English=Italy, revenue from unrelated parties;French=Italie, revenus de tiers;German=Italien, Erträge von Fremden
CBC_IT2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_IT;English=Italy, revenue from related parties;French=Italie, revenus de parties liées;German=Italien, Erträge von Verbundenen
CBC_IT3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_IT;English=Italy, profit before income tax;French=Italie, résultat avant impôt;German=Italien, Vorsteuerergebnis
CBC_IT4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_IT;English=Italy, income tax paid;French=Italie, impôt payé;German=Italien, gezahlte Ertragsteuern
CBC_IT5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_IT;English=Italy, income tax accrued;French=Italie, impôt dû;German=Italien, noch zu zahlende Ertragsteuern
CBC_IT6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_IT;English=Italy, stated capital;French=Italie, capital social;German=Italien, ausgewiesenes Kapital
CBC_IT7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_IT;English=Italy, accumulated earnings;French=Italie, bénéfices non distribués;German=Italien, einbehaltener Gewinn
CBC_IT8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_IT;English=Italy, tangible assets;French=Italie, actifs corporels;German=Italien, materielle Vermögenswerte
CBC_GR;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=Greece;French=Grèce;German=Griechenland
CBC_GR1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_GR;English=Greece, revenue from unrelated parties;French=Grèce, revenus de tiers;German=Griechenland, Erträge von Fremden
CBC_GR2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_GR;English=Greece, revenue from related parties;French=Grèce, revenus de parties liées;German=Griechenland, Erträge von Verbundenen
CBC_GR3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_GR;English=Greece, profit before income tax;French=Grèce, résultat avant impôt;German=Griechenland, Vorsteuerergebnis
CBC_GR4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_GR;English=Greece, income tax paid;French=Grèce, impôt payé;German=Griechenland, gezahlte Ertragsteuern
CBC_GR5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_GR;English=Greece, income tax accrued;French=Grèce, impôt dû;German=Griechenland, noch zu zahlende Ertragsteuern
CBC_GR6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_GR;English=Greece, stated capital;French=Grèce, capital social;German=Griechenland, ausgewiesenes Kapital
CBC_GR7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_GR;English=Greece, accumulated earnings;French=Grèce, bénéfices non distribués;German=Griechenland, einbehaltener Gewinn
CBC_GR8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_GR;English=Greece, tangible assets;French=Grèce, actifs corporels;German=Griechenland, materielle Vermögenswerte
CBC_PL;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=Poland;French=Pologne;German=Polen
CBC_PL1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_PL;English=Poland, revenue from unrelated parties;French=Pologne, revenus de tiers;German=Polen, Erträge von Fremden
CBC_PL2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_PL;English=Poland, revenue from related parties;French=Pologne, revenus de parties liées;German=Polen, Erträge von Verbundenen
CBC_PL3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_PL;English=Poland, profit before income tax;French=Pologne, résultat avant impôt;German=Polen, Vorsteuerergebnis
CBC_PL4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_PL;English=Poland, income tax paid;French=Pologne, impôt payé;German=Polen, gezahlte Ertragsteuern
CBC_PL5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_PL;English=Poland, income tax accrued;French=Pologne, impôt dû;German=Polen, noch zu zahlende Ertragsteuern
CBC_PL6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_PL;English=Poland, stated capital;French=Pologne, capital social;German=Polen, ausgewiesenes Kapital
CBC_PL7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_PL;English=Poland, accumulated earnings;French=Pologne, bénéfices non distribués;German=Polen, einbehaltener Gewinn
CBC_PL8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_PL;English=Poland, tangible assets;French=Pologne, actifs corporels;German=Polen, materielle Vermögenswerte
CBC_CZ;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=Czechia;French=Tchéquie;German=Tschechien
CBC_CZ1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_CZ;English=Czechia, revenue from unrelated parties;French=Tchéquie, revenus de tiers;German=Tschechien, Erträge von Fremden
CBC_CZ2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_CZ;English=Czechia, revenue from related parties;French=Tchéquie, revenus de parties liées;German=Tschechien, Erträge von Verbundenen
CBC_CZ3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_CZ;English=Czechia, profit before income tax;French=Tchéquie, résultat avant impôt;German=Tschechien, Vorsteuerergebnis
CBC_CZ4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_CZ;English=Czechia, income tax paid;French=Tchéquie, impôt payé;German=Tschechien, gezahlte Ertragsteuern
CBC_CZ5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_CZ;English=Czechia, income tax accrued;French=Tchéquie, impôt dû;German=Tschechien, noch zu zahlende Ertragsteuern
CBC_CZ6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_CZ;English=Czechia, stated capital;French=Tchéquie, capital social;German=Tschechien, ausgewiesenes Kapital
CBC_CZ7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_CZ;English=Czechia, accumulated earnings;French=Tchéquie, bénéfices non distribués;German=Tschechien, einbehaltener Gewinn
CBC_CZ8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_CZ;English=Czechia, tangible assets;French=Tchéquie, actifs corporels;German=Tschechien, materielle Vermögenswerte
CBC_HU;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=Hungary;French=Hongrie;German=Ungarn
CBC_HU1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_HU;English=Hungary, revenue from unrelated parties;French=Hongrie, revenus de tiers;German=Ungarn, Erträge von Fremden
CBC_HU2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_HU;English=Hungary, revenue from related parties;French=Hongrie, revenus de parties liées;German=Ungarn, Erträge von Verbundenen
CBC_HU3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_HU;English=Hungary, profit before income tax;French=Hongrie, résultat avant impôt;German=Ungarn, Vorsteuerergebnis
CBC_HU4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_HU;English=Hungary, income tax paid;French=Hongrie, impôt payé;German=Ungarn, gezahlte Ertragsteuern
CBC_HU5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_HU;English=Hungary, income tax accrued;French=Hongrie, impôt dû;German=Ungarn, noch zu zahlende Ertragsteuern
CBC_HU6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_HU;English=Hungary, stated capital;French=Hongrie, capital social;German=Ungarn, ausgewiesenes Kapital
CBC_HU7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_HU;English=Hungary, accumulated earnings;French=Hongrie, bénéfices non distribués;German=Ungarn, einbehaltener Gewinn
CBC_HU8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_HU;English=Hungary, tangible assets;French=Hongrie, actifs corporels;German=Ungarn, materielle Vermögenswerte
CBC_RO;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=Romania;French=Roumanie;German=Rumänien
CBC_RO1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_RO;English=Romania, revenue from unrelated parties;French=Roumanie, revenus de tiers;German=Rumänien, Erträge von Fremden
CBC_RO2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_RO;English=Romania, revenue from related parties;French=Roumanie, revenus de parties liées;German=Rumänien, Erträge von Verbundenen
CBC_RO3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_RO;English=Romania, profit before income tax;French=Roumanie, résultat avant impôt;German=Rumänien, Vorsteuerergebnis
CBC_RO4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_RO;English=Romania, income tax paid;French=Roumanie, impôt payé;German=Rumänien, gezahlte Ertragsteuern
CBC_RO5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_RO;English=Romania, income tax accrued;French=Roumanie, impôt dû;German=Rumänien, noch zu zahlende Ertragsteuern
CBC_RO6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_RO;English=Romania, stated capital;French=Roumanie, capital social;German=Rumänien, ausgewiesenes Kapital
CBC_RO7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_RO;English=Romania, accumulated earnings;French=Roumanie, bénéfices non distribués;German=Rumänien, einbehaltener Gewinn
CBC_RO8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_RO;English=Romania, tangible assets;French=Roumanie, actifs corporels;German=Rumänien, materielle Vermögenswerte
CBC_US;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=United States;French=États-Unis;German=Vereinigte Staaten
CBC_US1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_US;English=United States, revenue from unrelated parties;French=États-Unis, revenus de tiers;German=Vereinigte Staaten, Erträge von Fremden
CBC_US2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_US;English=United States, revenue from related parties;French=États-Unis, revenus de parties liées;German=Vereinigte Staaten, Erträge von Verbundenen
CBC_US3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_US;English=United States, profit before income tax;French=États-Unis, résultat avant impôt;German=Vereinigte Staaten, Vorsteuerergebnis
CBC_US4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_US;English=United States, income tax paid;French=États-Unis, impôt payé;German=Vereinigte Staaten, gezahlte Ertragsteuern
CBC_US5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_US;English=United States, income tax accrued;French=États-Unis, impôt dû;German=Vereinigte Staaten, noch zu zahlende Ertragsteuern
CBC_US6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_US;English=United States, stated capital;French=États-Unis, capital social;German=Vereinigte Staaten, ausgewiesenes Kapital
CBC_US7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_US;English=United States, accumulated earnings;French=États-Unis, bénéfices non distribués;German=Vereinigte Staaten, einbehaltener Gewinn
CBC_US8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_US;English=United States, tangible assets;French=États-Unis, actifs corporels;German=Vereinigte Staaten, materielle Vermögenswerte
CBC_CA;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=Canada;French=Canada;German=Kanada
CBC_CA1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_CA;English=Canada, revenue from unrelated parties;French=Canada, revenus de tiers;German=Kanada, Erträge von Fremden
CBC_CA2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_CA;English=Canada, revenue from related parties;French=Canada, revenus de parties liées;German=Kanada, Erträge von Verbundenen
CBC_CA3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_CA;English=Canada, profit before income tax;French=Canada, résultat avant impôt;German=Kanada, Vorsteuerergebnis
CBC_CA4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_CA;English=Canada, income tax paid;French=Canada, impôt payé;German=Kanada, gezahlte Ertragsteuern
CBC_CA5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_CA;English=Canada, income tax accrued;French=Canada, impôt dû;German=Kanada, noch zu zahlende Ertragsteuern
CBC_CA6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_CA;English=Canada, stated capital;French=Canada, capital social;German=Kanada, ausgewiesenes Kapital
CBC_CA7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_CA;English=Canada, accumulated earnings;French=Canada, bénéfices non distribués;German=Kanada, einbehaltener Gewinn
CBC_CA8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_CA;English=Canada, tangible assets;French=Canada, actifs corporels;German=Kanada, materielle Vermögenswerte
CBC_MX;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=Mexico;French=Mexique;German=Mexiko
CBC_MX1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_MX;English=Mexico, revenue from unrelated parties;French=Mexique, revenus de tiers;German=Mexiko, Erträge von Fremden
CBC_MX2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_MX;English=Mexico, revenue from related parties;French=Mexique, revenus de parties liées;German=Mexiko, Erträge von Verbundenen
CBC_MX3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_MX;English=Mexico, profit before income tax;French=Mexique, résultat avant impôt;German=Mexiko, Vorsteuerergebnis
CBC_MX4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_MX;English=Mexico, income tax paid;French=Mexique, impôt payé;German=Mexiko, gezahlte Ertragsteuern
CBC_MX5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_MX;English=Mexico, income tax accrued;French=Mexique, impôt dû;German=Mexiko, noch zu zahlende Ertragsteuern
CBC_MX6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_MX;English=Mexico, stated capital;French=Mexique, capital social;German=Mexiko, ausgewiesenes Kapital
CBC_MX7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_MX;English=Mexico, accumulated earnings;French=Mexique, bénéfices non distribués;German=Mexiko, einbehaltener Gewinn
CBC_MX8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_MX;English=Mexico, tangible assets;French=Mexique, actifs corporels;German=Mexiko, materielle Vermögenswerte
CBC_BR;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=Brazil;French=Brésil;German=Brasilien
CBC_BR1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_BR;English=Brazil, revenue from unrelated parties;French=Brésil, revenus de tiers;German=Brasilien, Erträge von Fremden
CBC_BR2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_BR;English=Brazil, revenue from related parties;French=Brésil, revenus de parties liées;German=Brasilien, Erträge von Verbundenen
CBC_BR3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_BR;English=Brazil, profit before income tax;French=Brésil, résultat avant impôt;German=Brasilien, Vorsteuerergebnis
CBC_BR4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_BR;English=Brazil, income tax paid;French=Brésil, impôt payé;German=Brasilien, gezahlte Ertragsteuern
CBC_BR5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_BR;English=Brazil, income tax accrued;French=Brésil, impôt dû;German=Brasilien, noch zu zahlende Ertragsteuern
CBC_BR6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_BR;English=Brazil, stated capital;French=Brésil, capital social;German=Brasilien, ausgewiesenes Kapital
CBC_BR7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_BR;English=Brazil, accumulated earnings;French=Brésil, bénéfices non distribués;German=Brasilien, einbehaltener Gewinn
CBC_BR8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_BR;English=Brazil, tangible assets;French=Brésil, actifs corporels;German=Brasilien, materielle Vermögenswerte
CBC_JP;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=Japan;French=Japon;German=Japan
CBC_JP1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_JP;English=Japan, revenue from unrelated parties;French=Japon, revenus de tiers;German=Japan, Erträge von Fremden
CBC_JP2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_JP;English=Japan, revenue from related parties;French=Japon, revenus de parties liées;German=Japan, Erträge von Verbundenen
CBC_JP3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_JP;English=Japan, profit before income tax;French=Japon, résultat avant impôt;German=Japan, Vorsteuerergebnis
CBC_JP4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_JP;English=Japan, income tax paid;French=Japon, impôt payé;German=Japan, gezahlte Ertragsteuern
CBC_JP5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_JP;English=Japan, income tax accrued;French=Japon, impôt dû;German=Japan, noch zu zahlende Ertragsteuern
CBC_JP6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_JP;English=Japan, stated capital;French=Japon, capital social;German=Japan, ausgewiesenes Kapital
CBC_JP7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_JP;English=Japan, accumulated earnings;French=Japon, bénéfices non distribués;German=Japan, einbehaltener Gewinn
CBC_JP8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_JP;English=Japan, tangible assets;French=Japon, actifs corporels;German=Japan, materielle Vermögenswerte
CBC_SG;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=Singapore;French=Singapour;German=Singapur
CBC_SG1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_SG;English=Singapore, revenue from unrelated parties;French=Singapour, revenus de tiers;German=Singapur, Erträge von Fremden
CBC_SG2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_SG;English=Singapore, revenue from related parties;French=Singapour, revenus de parties liées;German=Singapur, Erträge von Verbundenen
CBC_SG3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_SG;English=Singapore, profit before income tax;French=Singapour, résultat avant impôt;German=Singapur, Vorsteuerergebnis
CBC_SG4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_SG;English=Singapore, income tax paid;French=Singapour, impôt payé;German=Singapur, gezahlte Ertragsteuern
CBC_SG5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_SG;English=Singapore, income tax accrued;French=Singapour, impôt dû;German=Singapur, noch zu zahlende Ertragsteuern
CBC_SG6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_SG;English=Singapore, stated capital;French=Singapour, capital social;German=Singapur, ausgewiesenes Kapital
CBC_SG7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_SG;English=Singapore, accumulated earnings;French=Singapour, bénéfices non distribués;German=Singapur, einbehaltener Gewinn
CBC_SG8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_SG;English=Singapore, tangible assets;French=Singapour, actifs corporels;German=Singapur, materielle Vermögenswerte
CBC_AU;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=Australia;French=Australie;German=Australien
CBC_AU1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_AU;English=Australia, revenue from unrelated parties;French=Australie, revenus de tiers;German=Australien, Erträge von Fremden
CBC_AU2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_AU;English=Australia, revenue from related parties;French=Australie, revenus de parties liées;German=Australien, Erträge von Verbundenen
CBC_AU3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_AU;English=Australia, profit before income tax;French=Australie, résultat avant impôt;German=Australien, Vorsteuerergebnis
CBC_AU4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_AU;English=Australia, income tax paid;French=Australie, impôt payé;German=Australien, gezahlte Ertragsteuern
CBC_AU5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_AU;English=Australia, income tax accrued;French=Australie, impôt dû;German=Australien, noch zu zahlende Ertragsteuern
CBC_AU6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_AU;English=Australia, stated capital;French=Australie, capital social;German=Australien, ausgewiesenes Kapital
CBC_AU7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_AU;English=Australia, accumulated earnings;French=Australie, bénéfices non distribués;German=Australien, einbehaltener Gewinn
CBC_AU8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_AU;English=Australia, tangible assets;French=Australie, actifs corporels;German=Australien, materielle Vermögenswerte
CBC_ZA;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=South Africa;French=Afrique du Sud;German=Südafrika
CBC_ZA1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_ZA;English=South Africa, revenue from unrelated parties;French=Afrique du Sud, revenus de tiers;German=Südafrika, Erträge von Fremden
CBC_ZA2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_ZA;English=South Africa, revenue from related parties;French=Afrique du Sud, revenus de parties liées;German=Südafrika, Erträge von Verbundenen
CBC_ZA3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_ZA;English=South Africa, profit before income tax;French=Afrique du Sud, résultat avant impôt;German=Südafrika, Vorsteuerergebnis
CBC_ZA4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_ZA;English=South Africa, income tax paid;French=Afrique du Sud, impôt payé;German=Südafrika, gezahlte Ertragsteuern
CBC_ZA5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_ZA;English=South Africa, income tax accrued;French=Afrique du Sud, impôt dû;German=Südafrika, noch zu zahlende Ertragsteuern
CBC_ZA6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_ZA;English=South Africa, stated capital;French=Afrique du Sud, capital social;German=Südafrika, ausgewiesenes Kapital
CBC_ZA7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_ZA;English=South Africa, accumulated earnings;French=Afrique du Sud, bénéfices non distribués;German=Südafrika, einbehaltener Gewinn
CBC_ZA8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_ZA;English=South Africa, tangible assets;French=Afrique du Sud, actifs corporels;German=Südafrika, materielle Vermögenswerte
CBC_MA;FLOW;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];N;;0;DefaultParent=CBCR;English=Morocco;French=Maroc;German=Marokko
CBC_MA1;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_MA;English=Morocco, revenue from unrelated parties;French=Maroc, revenus de tiers;German=Marokko, Erträge von Fremden
CBC_MA2;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_MA;English=Morocco, revenue from related parties;French=Maroc, revenus de parties liées;German=Marokko, Erträge von Verbundenen
CBC_MA3;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_MA;English=Morocco, profit before income tax;French=Maroc, résultat avant impôt;German=Marokko, Vorsteuerergebnis
CBC_MA4;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_MA;English=Morocco, income tax paid;French=Maroc, impôt payé;German=Marokko, gezahlte Ertragsteuern
CBC_MA5;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_MA;English=Morocco, income tax accrued;French=Maroc, impôt dû;German=Marokko, noch zu zahlende Ertragsteuern
CBC_MA6;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_MA;English=Morocco, stated capital;French=Maroc, capital social;German=Marokko, ausgewiesenes Kapital
CBC_MA7;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_MA;English=Morocco, accumulated earnings;French=Maroc, bénéfices non distribués;German=Marokko, einbehaltener Gewinn
CBC_MA8;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;NOTE;CbCR;;;SC_TAX;[ICP None];Y;;1;DefaultParent=CBC_MA;English=Morocco, tangible assets;French=Maroc, actifs corporels;German=Marokko, materielle Vermögenswerte
ESG;GROUPLABEL;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];N;;0;DefaultParent=#root;English=Environment;French=Environnement;German=Umwelt
ENERGY;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];N;;0;DefaultParent=ESG;English=Energy used (MWh);French=Énergie consommée (MWh);German=Energieverbrauch (MWh)
ENE1;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];N;;0;DefaultParent=ENERGY;English=Electricity, grid;French=Électricité du réseau;German=Netzstrom
ENE11;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=ENE1;English=Electricity, grid, quantity;French=Électricité du réseau, quantité;German=Netzstrom, Menge
ENE12;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=ENE1;English=Electricity, grid, cost;French=Électricité du réseau, coût;German=Netzstrom, Kosten
ENE2;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];N;;0;DefaultParent=ENERGY;English=Electricity, own solar;French=Électricité solaire propre;German=Eigener Solarstrom
ENE21;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=ENE2;English=Electricity, own solar, quantity;French=Électricité solaire propre, quantité;German=Eigener Solarstrom, Menge
ENE22;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=ENE2;English=Electricity, own solar, cost;French=Électricité solaire propre, coût;German=Eigener Solarstrom, Kosten
ENE3;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];N;;0;DefaultParent=ENERGY;English=Natural gas;French=Gaz naturel;German=Erdgas
ENE31;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=ENE3;English=Natural gas, quantity;French=Gaz naturel, quantité;German=Erdgas, Menge
ENE32;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=ENE3;English=Natural gas, cost;French=Gaz naturel, coût;German=Erdgas, Kosten
ENE4;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];N;;0;DefaultParent=ENERGY;English=Heating oil;French=Fioul;German=Heizöl
ENE41;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=ENE4;English=Heating oil, quantity;French=Fioul, quantité;German=Heizöl, Menge
ENE42;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=ENE4;English=Heating oil, cost;French=Fioul, coût;German=Heizöl, Kosten
ENE5;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];N;;0;DefaultParent=ENERGY;English=Marine diesel;French=Gazole marin;German=Schiffsdiesel
ENE51;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=ENE5;English=Marine diesel, quantity;French=Gazole marin, quantité;German=Schiffsdiesel, Menge
ENE52;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=ENE5;English=Marine diesel, cost;French=Gazole marin, coût;German=Schiffsdiesel, Kosten
ENE6;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];N;;0;DefaultParent=ENERGY;English=Biomass;French=Biomasse;German=Biomasse
ENE61;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=ENE6;English=Biomass, quantity;French=Biomasse, quantité;German=Biomasse, Menge
ENE62;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=ENE6;English=Biomass, cost;French=Biomasse, coût;German=Biomasse, Kosten
ENE7;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];N;;0;DefaultParent=ENERGY;English=District heat;French=Chaleur de réseau;German=Fernwärme
ENE71;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=ENE7;English=District heat, quantity;French=Chaleur de réseau, quantité;German=Fernwärme, Menge
ENE72;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=ENE7;English=District heat, cost;French=Chaleur de réseau, coût;German=Fernwärme, Kosten
ENE8;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];N;;0;DefaultParent=ENERGY;English=Hydrogen;French=Hydrogène;German=Wasserstoff
ENE81;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=ENE8;English=Hydrogen, quantity;French=Hydrogène, quantité;German=Wasserstoff, Menge
ENE82;FLOW;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=ENE8;English=Hydrogen, cost;French=Hydrogène, coût;German=Wasserstoff, Kosten
CO2 t;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];N;;0;DefaultParent=ESG;English=Greenhouse gases (t CO2e);French=Gaz à effet de serre (t CO2e);German=Treibhausgase (t CO2e)
SCOPE1;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];N;;0;DefaultParent=CO2 t;English=Scope 1;French=Scope 1;German=Scope 1
S1-1;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=SCOPE1;English=Scope 1, Electricity, grid;French=Scope 1, Électricité du réseau;German=Scope 1, Netzstrom
S1-2;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=SCOPE1;English=Scope 1, Electricity, own solar;French=Scope 1, Électricité solaire propre;German=Scope 1, Eigener Solarstrom
S1-3;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=SCOPE1;English=Scope 1, Natural gas;French=Scope 1, Gaz naturel;German=Scope 1, Erdgas
S1-4;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=SCOPE1;English=Scope 1, Heating oil;French=Scope 1, Fioul;German=Scope 1, Heizöl
S1-5;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=SCOPE1;English=Scope 1, Marine diesel;French=Scope 1, Gazole marin;German=Scope 1, Schiffsdiesel
S1-6;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=SCOPE1;English=Scope 1, Biomass;French=Scope 1, Biomasse;German=Scope 1, Biomasse
S1-7;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=SCOPE1;English=Scope 1, District heat;French=Scope 1, Chaleur de réseau;German=Scope 1, Fernwärme
S1-8;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=SCOPE1;English=Scope 1, Hydrogen;French=Scope 1, Hydrogène;German=Scope 1, Wasserstoff
SCOPE2;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];N;;0;DefaultParent=CO2 t;English=Scope 2;French=Scope 2;German=Scope 2
S2-LOC;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=SCOPE2;English=Location-based;French=Selon la localisation;German=Standortbasiert
S2-MKT;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=SCOPE2;English=Market-based;French=Selon le marché;German=Marktbasiert
SCOPE3;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];N;;0;DefaultParent=CO2 t;English=Scope 3;French=Scope 3;German=Scope 3
S3-01;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=SCOPE3;English=Purchased goods and services;French=Achats de biens et services;German=Eingekaufte Güter und Leistungen
S3-02;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=SCOPE3;English=Capital goods;French=Biens d'équipement;German=Kapitalgüter
S3-03;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=SCOPE3;English=Fuel-related activities;French=Activités liées aux combustibles;German=Brennstoffbezogene Emissionen
S3-04;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=SCOPE3;English=Upstream transport;French=Transport amont;German=Vorgelagerter Transport
S3-05;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=SCOPE3;English=Waste;French=Déchets;German=Abfall
S3-06;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=SCOPE3;English=Business travel;French=Déplacements professionnels;German=Geschäftsreisen
S3-07;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=SCOPE3;English=Commuting;French=Trajets domicile-travail;German=Pendeln
S3-08;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=SCOPE3;English=Upstream leased assets;French=Actifs loués en amont;German=Gemietete Sachanlagen
S3-09;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=SCOPE3;English=Downstream transport;French=Transport aval;German=Nachgelagerter Transport
S3-10;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=SCOPE3;English=Processing of sold products;French=Transformation des produits vendus;German=Verarbeitung verkaufter Produkte
S3-11;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=SCOPE3;English=Use of sold products;French=Utilisation des produits vendus;German=Nutzung verkaufter Produkte
S3-12;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=SCOPE3;English=End of life;French=Fin de vie;German=Entsorgung
S3-13;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=SCOPE3;English=Downstream leased assets;French=Actifs loués en aval;German=Vermietete Sachanlagen
S3-14;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=SCOPE3;English=Franchises;French=Franchises;German=Franchise
S3-15;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=SCOPE3;English=Investments;French=Participations;German=Investitionen
Water m³;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];N;;0;DefaultParent=ESG;English=Water used (m³);French=Eau consommée (m³);German=Wasserverbrauch (m³)
WAT1;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=Water m³;English=Public supply;French=Réseau public;German=Öffentliches Netz
WAT2;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=Water m³;English=Own wells;French=Puits;German=Eigene Brunnen
WAT3;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=Water m³;English=Rivers and lakes;French=Rivières et lacs;German=Flüsse und Seen
Waste t;BALANCERECURRING;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];N;;0;DefaultParent=ESG;English=Waste (t);French=Déchets (t);German=Abfall (t)
WST1;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=Waste t;English=Recycled;French=Recyclés;German=Verwertet
WST2;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=Waste t;English=Burned;French=Incinérés;German=Verbrannt
WST3;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=Waste t;English=Landfill;French=Mis en décharge;German=Deponiert
WST4;BALANCERECURRING;N;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;ESG;;;;SC_ESG;[ICP None];Y;;1;DefaultParent=Waste t;English=Hazardous;French=Dangereux;German=Gefährlich
Ergebnis-Kontrolle;GROUPLABEL;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;0;DefaultParent=#root;English=Validation;French=Contrôles;German=Kontrollen
CHK GROUP;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;0;DefaultParent=Ergebnis-Kontrolle;English=Checks of the package;French=Contrôles de la liasse;German=Kontrollen des Berichtspakets
CHK01;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK GROUP;English=assets = liabilities + equity;French=actif = passif + capitaux propres;German=Aktiva = Passiva + Eigenkapital
CHK02;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK GROUP;English=result of the year = income statement;French=résultat du bilan = compte de résultat;German=Jahresergebnis = GuV
CHK03;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK GROUP;English=opening = closing of last year;French=ouverture = clôture précédente;German=Eröffnung = Schluss des Vorjahres
CHK04;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK GROUP;English=cash flow = change in cash;French=flux = variation de trésorerie;German=Cashflow = Veränderung der Mittel
CHK05;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK GROUP;English=movements complete;French=mouvements complets;German=Bewegungen vollständig
CHK06;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK GROUP;English=ownership adds up to 100%;French=détention à 100 %;German=Anteile ergeben 100 %
CHK07;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK GROUP;English=segments = group;French=secteurs = groupe;German=Segmente = Konzern
CHK08;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK GROUP;English=ageing = trade receivables;French=balance âgée = créances clients;German=Altersstruktur = Forderungen
CHK09;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK GROUP;English=maturities = borrowings;French=échéancier = emprunts;German=Fristigkeiten = Finanzschulden
CHK10;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK GROUP;English=headcount by function = total;French=effectif par fonction = total;German=Mitarbeiter je Funktion = Summe
CHK11;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK GROUP;English=tax proof complete;French=preuve d'impôt complète;German=Steuerüberleitung vollständig
CHK12;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK GROUP;English=rates entered;French=cours saisis;German=Kurse erfasst
CHK ROLL;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;0;DefaultParent=Ergebnis-Kontrolle;English=Checks of the movements;French=Contrôles des mouvements;German=Kontrollen der Bewegungen
CHK-I05;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Goodwill;French=Mouvements : Goodwill;German=Bewegungen: Geschäfts- oder Firmenwert
CHK-I10;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Patents and licences;French=Mouvements : Brevets et licences;German=Bewegungen: Patente und Lizenzen
CHK-I15;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Brands;French=Mouvements : Marques;German=Bewegungen: Marken
CHK-I20;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Software;French=Mouvements : Logiciels;German=Bewegungen: Software
CHK-I25;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Customer relationships;French=Mouvements : Relations clientèle;German=Bewegungen: Kundenbeziehungen
CHK-I30;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Development costs;French=Mouvements : Frais de développement;German=Bewegungen: Entwicklungskosten
CHK-I35;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Concessions;French=Mouvements : Concessions;German=Bewegungen: Konzessionen
CHK-I40;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: CO2 allowances;French=Mouvements : Quotas de CO2;German=Bewegungen: CO2-Zertifikate
CHK-P10;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Land;French=Mouvements : Terrains;German=Bewegungen: Grundstücke
CHK-P15;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Buildings;French=Mouvements : Constructions;German=Bewegungen: Gebäude
CHK-P20;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Plant and machinery;French=Mouvements : Installations et machines;German=Bewegungen: Technische Anlagen und Maschinen
CHK-P25;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Vessels;French=Mouvements : Navires;German=Bewegungen: Schiffe
CHK-P30;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Vehicles;French=Mouvements : Véhicules;German=Bewegungen: Fahrzeuge
CHK-P35;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: IT equipment;French=Mouvements : Matériel informatique;German=Bewegungen: EDV-Ausstattung
CHK-P40;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Furniture and fittings;French=Mouvements : Mobilier et agencements;German=Bewegungen: Betriebs- und Geschäftsausstattung
CHK-P45;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Assets under construction;French=Mouvements : Immobilisations en cours;German=Bewegungen: Anlagen im Bau
CHK-R10;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Leased land;French=Mouvements : Terrains loués;German=Bewegungen: Gemietete Grundstücke
CHK-R15;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Leased buildings;French=Mouvements : Constructions louées;German=Bewegungen: Gemietete Gebäude
CHK-R20;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Leased machinery;French=Mouvements : Machines louées;German=Bewegungen: Gemietete Maschinen
CHK-R25;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Chartered vessels;French=Mouvements : Navires affrétés;German=Bewegungen: Gecharterte Schiffe
CHK-R30;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Leased vehicles;French=Mouvements : Véhicules loués;German=Bewegungen: Gemietete Fahrzeuge
CHK-S10;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Raw materials;French=Mouvements : Matières premières;German=Bewegungen: Rohstoffe
CHK-S20;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Work in progress;French=Mouvements : En-cours de production;German=Bewegungen: Unfertige Erzeugnisse
CHK-S30;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Finished goods;French=Mouvements : Produits finis;German=Bewegungen: Fertige Erzeugnisse
CHK-S40;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Merchandise;French=Mouvements : Marchandises;German=Bewegungen: Handelswaren
CHK-S50;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Spare parts;French=Mouvements : Pièces de rechange;German=Bewegungen: Ersatzteile
CHK-S60;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Packaging;French=Mouvements : Emballages;German=Bewegungen: Verpackungsmaterial
CHK-D10;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Bonds;French=Mouvements : Emprunts obligataires;German=Bewegungen: Anleihen
CHK-D20;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Bank loans;French=Mouvements : Emprunts bancaires;German=Bewegungen: Bankdarlehen
CHK-D30;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Commercial paper;French=Mouvements : Billets de trésorerie;German=Bewegungen: Geldmarktpapiere
CHK-D40;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Lease liabilities;French=Mouvements : Dettes de location;German=Bewegungen: Leasingverbindlichkeiten
CHK-D50;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Private placements;French=Mouvements : Placements privés;German=Bewegungen: Schuldscheindarlehen
CHK-D60;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Factoring with recourse;French=Mouvements : Affacturage avec recours;German=Bewegungen: Unechtes Factoring
CHK-D70;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Other borrowings;French=Mouvements : Autres emprunts;German=Bewegungen: Sonstige Finanzschulden
CHK-V10;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Restructuring;French=Mouvements : Restructurations;German=Bewegungen: Restrukturierung
CHK-V20;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Warranties;French=Mouvements : Garanties;German=Bewegungen: Gewährleistung
CHK-V30;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Litigation;French=Mouvements : Litiges;German=Bewegungen: Rechtsstreitigkeiten
CHK-V40;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Site restoration;French=Mouvements : Remise en état des sites;German=Bewegungen: Rekultivierung
CHK-V50;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Onerous contracts;French=Mouvements : Contrats déficitaires;German=Bewegungen: Drohende Verluste
CHK-V60;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Jubilee benefits;French=Mouvements : Médailles du travail;German=Bewegungen: Jubiläumsleistungen
CHK-V70;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Dry-docking;French=Mouvements : Mise en cale sèche;German=Bewegungen: Trockendockung
CHK-V80;BALANCE;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;1;DefaultParent=CHK ROLL;English=Roll-forward: Other risks;French=Mouvements : Autres risques;German=Bewegungen: Sonstige Risiken
IC differences;BALANCE;Y;Y;N;;[None];[None];[None];[None];0;N;N;N;N;N;CTRL;;;;SC_CTRL;[ICP None];N;;0;DefaultParent=Ergebnis-Kontrolle;English=Intercompany differences;French=Écarts intragroupe;German=Konzerndifferenzen
PLUG_1;ASSET;N;Y;Y;;CLO;[None];[None];[None];0;N;Y;N;N;N;CTRL;;;;SC_CTRL;[ICP Top];Y;;1;DefaultParent=IC differences;English=Difference: goods and services;French=Écart : biens et services;German=Differenz: Lieferungen und Leistungen
PLUG_2;ASSET;N;Y;Y;;CLO;[None];[None];[None];0;N;Y;N;N;N;CTRL;;;;SC_CTRL;[ICP Top];Y;;1;DefaultParent=IC differences;English=Difference: loans and cash pooling;French=Écart : prêts et centralisation de trésorerie;German=Differenz: Darlehen und Cash-Pooling
PLUG_3;ASSET;N;Y;Y;;CLO;[None];[None];[None];0;N;Y;N;N;N;CTRL;;;;SC_CTRL;[ICP Top];Y;;1;DefaultParent=IC differences;English=Difference: dividends;French=Écart : dividendes;German=Differenz: Dividenden
PLUG_4;ASSET;N;Y;Y;;CLO;[None];[None];[None];0;N;Y;N;N;N;CTRL;;;;SC_CTRL;[ICP Top];Y;;1;DefaultParent=IC differences;English=Difference: interest;French=Écart : intérêts;German=Differenz: Zinsen
PLUG_5;ASSET;N;Y;Y;;CLO;[None];[None];[None];0;N;Y;N;N;N;CTRL;;;;SC_CTRL;[ICP Top];Y;;1;DefaultParent=IC differences;English=Difference: fixed assets sold;French=Écart : cessions d'immobilisations;German=Differenz: Anlagenverkäufe
PLUG_6;ASSET;N;Y;Y;;CLO;[None];[None];[None];0;N;Y;N;N;N;CTRL;;;;SC_CTRL;[ICP Top];Y;;1;DefaultParent=IC differences;English=Difference: leases;French=Écart : locations;German=Differenz: Leasing
RATES;GROUPLABEL;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;FX;;;;;[ICP None];N;;0;DefaultParent=#root;English=Exchange rates;French=Cours de change;German=Wechselkurse
RATE CLO;CURRENCYRATE;N;N;N;;[None];[None];[None];[None];6;N;N;N;N;N;FX;;;;;[ICP None];N;;1;DefaultParent=RATES;English=Closing rate;French=Cours de clôture;German=Stichtagskurs
RATE AVG;CURRENCYRATE;N;N;N;;[None];[None];[None];[None];6;N;N;N;N;N;FX;;;;;[ICP None];N;;1;DefaultParent=RATES;English=Average rate;French=Cours moyen;German=Durchschnittskurs
RATE OPE;CURRENCYRATE;N;N;N;;[None];[None];[None];[None];6;N;N;N;N;N;FX;;;;;[ICP None];N;;1;DefaultParent=RATES;English=Opening rate;French=Cours d'ouverture;German=Eröffnungskurs
RATE BUD;CURRENCYRATE;N;N;N;;[None];[None];[None];[None];6;N;N;N;N;N;FX;;;;;[ICP None];N;;1;DefaultParent=RATES;English=Budget rate;French=Cours budgété;German=Budgetkurs
COMMENTS;GROUPLABEL;Y;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;TXT;;;;;[ICP None];N;;0;DefaultParent=#root;English=Comments of the reporting unit;French=Commentaires de l'unité;German=Kommentare der Einheit
TXT1;TEXT;N;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;TXT;;;;;[ICP None];N;;1;DefaultParent=COMMENTS;English=Comment on revenue;French=Commentaire : chiffre d'affaires;German=Kommentar: Umsatz
TXT2;TEXT;N;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;TXT;;;;;[ICP None];N;;1;DefaultParent=COMMENTS;English=Comment on operating result;French=Commentaire : résultat opérationnel;German=Kommentar: Betriebsergebnis
TXT3;TEXT;N;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;TXT;;;;;[ICP None];N;;1;DefaultParent=COMMENTS;English=Comment on working capital;French=Commentaire : besoin en fonds de roulement;German=Kommentar: Working Capital
TXT4;TEXT;N;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;TXT;;;;;[ICP None];N;;1;DefaultParent=COMMENTS;English=Comment on cash flow;French=Commentaire : flux de trésorerie;German=Kommentar: Cashflow
TXT5;TEXT;N;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;TXT;;;;;[ICP None];N;;1;DefaultParent=COMMENTS;English=Comment on headcount;French=Commentaire : effectifs;German=Kommentar: Mitarbeiter
TXT6;TEXT;N;N;N;;[None];[None];[None];[None];0;N;N;N;N;N;TXT;;;;;[ICP None];N;;1;DefaultParent=COMMENTS;English=Comment on outlook;French=Commentaire : perspectives;German=Kommentar: Ausblick
[Active];BALANCERECURRING;N;N;Y;;[None];[None];[None];[None];0;N;N;N;N;N;;;;;;[ICP Top];N;;1;DefaultParent=#root;English=Active;French=Active;German=Aktiv
[PCON];BALANCE;N;N;Y;;[None];[None];[None];[None];0;N;N;N;N;N;;;;;;[ICP Top];N;;1;DefaultParent=#root;English=Percent consolidation;French=Pourcentage d'intégration;German=Konsolidierungsquote
[POWN];BALANCE;N;N;Y;;[None];[None];[None];[None];0;N;N;N;N;N;;;;;;[ICP Top];N;;1;DefaultParent=#root;English=Percent ownership;French=Pourcentage d'intérêt;German=Beteiligungsquote
[DOWN];BALANCE;N;N;Y;;[None];[None];[None];[None];0;N;N;N;N;N;;;;;;[ICP Top];N;;1;DefaultParent=#root;English=Direct percent ownership;French=Pourcentage d'intérêt direct;German=Direkte Beteiligungsquote
[PCTRL];BALANCE;N;N;Y;;[None];[None];[None];[None];0;N;N;N;N;N;;;;;;[ICP Top];N;;1;DefaultParent=#root;English=Percent control;French=Pourcentage de contrôle;German=Stimmrechtsquote
[Method];BALANCE;N;N;Y;;[None];[None];[None];[None];0;N;N;N;N;N;;;;;;[ICP Top];N;;1;DefaultParent=#root;English=Consolidation method;French=Méthode de consolidation;German=Konsolidierungsmethode
[Consol1];BALANCE;N;N;Y;;[None];[None];[None];[None];0;N;N;N;N;N;;;;;;[ICP Top];N;;1;DefaultParent=#root;English=Consolidation 1;French=Consolidation 1;German=Konsolidierung 1
[Consol2];BALANCE;N;N;Y;;[None];[None];[None];[None];0;N;N;N;N;N;;;;;;[ICP Top];N;;1;DefaultParent=#root;English=Consolidation 2;French=Consolidation 2;German=Konsolidierung 2
[Consol3];BALANCE;N;N;Y;;[None];[None];[None];[None];0;N;N;N;N;N;;;;;;[ICP Top];N;;1;DefaultParent=#root;English=Consolidation 3;French=Consolidation 3;German=Konsolidierung 3
[SharesOwned];BALANCE;N;N;Y;;[None];[None];[None];[None];0;N;N;N;N;N;;;;;;[ICP Top];N;;1;DefaultParent=#root;English=Shares owned;French=Actions détenues;German=Gehaltene Anteile
[VotingOwned];BALANCE;N;N;Y;;[None];[None];[None];[None];0;N;N;N;N;N;;;;;;[ICP Top];N;;1;DefaultParent=#root;English=Voting shares owned;French=Actions à droit de vote détenues;German=Gehaltene Stimmrechte
[SharesOutstanding];BALANCE;N;N;Y;;[None];[None];[None];[None];0;N;N;N;N;N;;;;;;[ICP Top];N;;1;DefaultParent=#root;English=Shares outstanding;French=Actions en circulation;German=Ausgegebene Anteile
[VotingOutstanding];BALANCE;N;N;Y;;[None];[None];[None];[None];0;N;N;N;N;N;;;;;;[ICP Top];N;;1;DefaultParent=#root;English=Voting shares outstanding;French=Actions à droit de vote en circulation;German=Ausgegebene Stimmrechte
[Shares%Owned];BALANCE;N;N;Y;;[None];[None];[None];[None];0;N;N;N;N;N;;;;;;[ICP Top];N;;1;DefaultParent=#root;English=Shares owned in %;French=Actions détenues en %;German=Gehaltene Anteile in %
[Voting%Owned];BALANCE;N;N;Y;;[None];[None];[None];[None];0;N;N;N;N;N;;;;;;[ICP Top];N;;1;DefaultParent=#root;English=Voting shares owned in %;French=Droits de vote détenus en %;German=Gehaltene Stimmrechte in %
!HIERARCHIES=Account
;Balance Sheet
Balance Sheet;ASSETS
ASSETS;NCA
NCA;INTANG
INTANG;1105
1105;11051
1105;11052
1105;11053
1105;11054
INTANG;1110
1110;11101
1110;11102
1110;11103
1110;11104
INTANG;1115
1115;11151
1115;11152
1115;11153
1115;11154
INTANG;1120
1120;11201
1120;11202
1120;11203
1120;11204
INTANG;1125
1125;11251
1125;11252
1125;11253
1125;11254
INTANG;1130
1130;11301
1130;11302
1130;11303
1130;11304
INTANG;1135
1135;11351
1135;11352
1135;11353
1135;11354
INTANG;1140
1140;11401
1140;11402
1140;11403
1140;11404
NCA;PPE
PPE;1210
1210;12101
1210;12102
1210;12103
1210;12104
PPE;1215
1215;12151
1215;12152
1215;12153
1215;12154
PPE;1220
1220;12201
1220;12202
1220;12203
1220;12204
PPE;1225
1225;12251
1225;12252
1225;12253
1225;12254
PPE;1230
1230;12301
1230;12302
1230;12303
1230;12304
PPE;1235
1235;12351
1235;12352
1235;12353
1235;12354
PPE;1240
1240;12401
1240;12402
1240;12403
1240;12404
PPE;1245
1245;12451
1245;12452
1245;12453
1245;12454
NCA;ROU
ROU;1310
1310;13101
1310;13102
1310;13103
1310;13104
ROU;1315
1315;13151
1315;13152
1315;13153
1315;13154
ROU;1320
1320;13201
1320;13202
1320;13203
1320;13204
ROU;1325
1325;13251
1325;13252
1325;13253
1325;13254
ROU;1330
1330;13301
1330;13302
1330;13303
1330;13304
NCA;FINASSETS
FINASSETS;1410
FINASSETS;50/50 ventures
FINASSETS;1420
FINASSETS;1430
FINASSETS;1440
FINASSETS;1450
FINASSETS;1460
FINASSETS;1470
NCA;DTA
DTA;1510
DTA;1520
DTA;1530
DTA;1540
DTA;1550
DTA;1560
DTA;1570
DTA;1580
ASSETS;CA
CA;STOCK
STOCK;2010
2010;20101
2010;20102
2010;20103
2010;20104
2010;20105
2010;20106
2010;20107
2010;20108
STOCK;2020
2020;20201
2020;20202
2020;20203
2020;20204
2020;20205
2020;20206
2020;20207
2020;20208
STOCK;2030
2030;20301
2030;20302
2030;20303
2030;20304
2030;20305
2030;20306
2030;20307
2030;20308
STOCK;2040
2040;20401
2040;20402
2040;20403
2040;20404
2040;20405
2040;20406
2040;20407
2040;20408
STOCK;2050
2050;20501
2050;20502
2050;20503
2050;20504
2050;20505
2050;20506
2050;20507
2050;20508
STOCK;2060
2060;20601
2060;20602
2060;20603
2060;20604
2060;20605
2060;20606
2060;20607
2060;20608
STOCK;2090
2090;20910
2090;20920
2090;20930
2090;20940
2090;20950
2090;20960
CA;RECEIV
RECEIV;2110
2110;21100
2110;21101
2110;21102
2110;21103
2110;21104
2110;21105
RECEIV;2120
RECEIV;2150
RECEIV;2190
2190;21900
2190;21901
2190;21902
2190;21903
2190;21904
2190;21905
CA;"Other" receivables
"Other" receivables;2210
"Other" receivables;2220
"Other" receivables;2230
"Other" receivables;2240
"Other" receivables;2250
"Other" receivables;2260
"Other" receivables;2270
"Other" receivables;2280
"Other" receivables;2290
CA;CURTAX_A
CA;CUR FIN ASSETS
CUR FIN ASSETS;2310
CUR FIN ASSETS;2320
CUR FIN ASSETS;2330
CUR FIN ASSETS;2340
CA;CASH
CASH;2410
CASH;2420
CASH;2430
CASH;2440
CASH;2450
CA;HFS_A
Balance Sheet;LIABEQ
LIABEQ;EQUITY
EQUITY;Owners' equity
Owners' equity;3010
Owners' equity;3020
Owners' equity;3030
Owners' equity;3040
Owners' equity;3050
Owners' equity;3060
Owners' equity;Résultat net
Owners' equity;3080
EQUITY;OCI reserves
OCI reserves;3110
OCI reserves;3120
OCI reserves;3130
OCI reserves;3140
OCI reserves;3150
OCI reserves;3160
OCI reserves;3170
EQUITY;NCI
NCI;3210
NCI;3220
NCI;3230
LIABEQ;LIABILITIES
LIABILITIES;BORROW
BORROW;4010
4010;40101
4010;40102
4010;40103
4010;40105
BORROW;4020
4020;40201
4020;40202
4020;40203
4020;40205
BORROW;4030
4030;40301
4030;40302
4030;40303
4030;40305
BORROW;4040
4040;40401
4040;40402
4040;40403
4040;40405
BORROW;4050
4050;40501
4050;40502
4050;40503
4050;40505
BORROW;4060
4060;40601
4060;40602
4060;40603
4060;40605
BORROW;4070
4070;40701
4070;40702
4070;40703
4070;40705
BORROW;4080
BORROW;4085
BORROW;4090
LIABILITIES;PROV
PROV;4110
4110;4110C
4110;4110N
PROV;4120
4120;4120C
4120;4120N
PROV;4130
4130;4130C
4130;4130N
PROV;4140
4140;4140C
4140;4140N
PROV;4150
4150;4150C
4150;4150N
PROV;4160
4160;4160C
4160;4160N
PROV;4170
4170;4170C
4170;4170N
PROV;4180
4180;4180C
4180;4180N
LIABILITIES;PENSIONS
PENSIONS;4210
PENSIONS;4220
PENSIONS;4230
PENSIONS;4240
PENSIONS;4250
LIABILITIES;DTL
DTL;4310
DTL;4320
DTL;4330
DTL;4340
DTL;4350
DTL;4360
DTL;4370
DTL;4380
LIABILITIES;PAYABLES
PAYABLES;4410
PAYABLES;4420
PAYABLES;4430
PAYABLES;4440
PAYABLES;4450
PAYABLES;4460
PAYABLES;4470
LIABILITIES;"Other" payables
"Other" payables;4510
"Other" payables;4520
"Other" payables;4530
"Other" payables;4540
"Other" payables;4550
"Other" payables;4560
"Other" payables;4570
"Other" payables;4580
"Other" payables;4585
"Other" payables;4590
LIABILITIES;CURTAX_L
LIABILITIES;HFS_L
;Income Statement
Income Statement;NETRESULT
NETRESULT;PBT
PBT;EBIT
EBIT;GROSS
GROSS;TURNOVER
GROSS;COGS
EBIT;OPEX
EBIT;OTHOPS
OTHOPS;6010
OTHOPS;6020
OTHOPS;6030
OTHOPS;6040
OTHOPS;6050
OTHOPS;6060
OTHOPS;6070
OTHOPS;6080
OTHOPS;6090
PBT;FINRESULT
FINRESULT;7010
FINRESULT;7020
FINRESULT;7030
FINRESULT;7040
FINRESULT;7050
7050;70510
7050;70520
7050;70530
7050;70540
7050;70550
7050;70560
7050;70570
FINRESULT;7060
FINRESULT;7070
FINRESULT;7080
FINRESULT;7090
FINRESULT;7095
PBT;ASSOCIATES
NETRESULT;TAX
TAX;7510
TAX;7520
TAX;7530
7530;7531
7530;7532
7530;7533
7530;7534
7530;7535
7530;7536
7530;7537
7530;7538
TAX;7540
NETRESULT;DISCONT
;P&L detail
P&L detail;REVENUES
REVENUES;5010
5010;5011
5010;5014
5010;5015
5010;5016
5010;5012
REVENUES;5020
5020;5021
5020;5024
5020;5025
5020;5026
5020;5022
REVENUES;5030
5030;5031
5030;5034
5030;5035
5030;5036
5030;5032
REVENUES;5040
5040;5041
5040;5044
5040;5045
5040;5046
5040;5042
REVENUES;5050
5050;5051
5050;5054
5050;5055
5050;5056
5050;5052
REVENUES;5060
5060;5061
5060;5064
5060;5065
5060;5066
5060;5062
REVENUES;5070
5070;5071
5070;5074
5070;5075
5070;5076
5070;5072
REVENUES;5080
5080;5081
5080;5084
5080;5085
5080;5086
5080;5082
REVENUES;5090
5090;5091
5090;5092
5090;5093
5090;5094
5090;5095
P&L detail;COSTS
COSTS;5510
5510;5511
5510;5512
5510;5513
5510;5514
5510;5515
5510;5516
5510;5517
5510;5518
5510;5519
COSTS;5520
5520;5521
5520;5522
5520;5523
5520;5524
5520;5525
5520;5526
5520;5527
5520;5528
5520;5529
COSTS;5530
5530;5531
5530;5532
5530;5533
5530;5534
5530;5535
5530;5536
5530;5537
5530;5538
5530;5539
COSTS;5540
5540;5541
5540;5542
5540;5543
5540;5544
5540;5545
5540;5546
5540;5547
5540;5548
5540;5549
COSTS;5550
5550;5551
5550;5552
5550;5553
5550;5554
5550;5555
5550;5556
5550;5557
5550;5558
5550;5559
COSTS;5560
5560;5561
5560;5562
5560;5563
5560;5564
5560;5565
5560;5566
5560;5567
5560;5568
5560;5569
COSTS;5570
5570;5571
5570;5572
5570;5573
5570;5574
5570;5575
5570;5576
5570;5577
5570;5578
5570;5579
COSTS;5580
5580;5581
5580;5582
5580;5583
5580;5584
5580;5585
5580;5586
5580;5587
5580;5588
5580;5589
P&L detail;FUNCTIONS
FUNCTIONS;6100
6100;6101
6100;6102
6100;6103
6100;6104
6100;6105
6100;6106
6100;6107
6100;6108
6100;6109
6100;6110
6100;6111
6100;6112
6100;6113
6100;6114
6100;6115
6100;6116
6100;6117
6100;6118
6100;6119
6100;6120
6100;6121
6100;6122
6100;6123
6100;6124
6100;6125
6100;6126
6100;6127
6100;6128
6100;6190
FUNCTIONS;6200
6200;6201
6200;6202
6200;6203
6200;6204
6200;6205
6200;6206
6200;6207
6200;6208
6200;6209
6200;6210
6200;6211
6200;6212
6200;6213
6200;6214
6200;6215
6200;6216
6200;6217
6200;6218
6200;6219
6200;6220
6200;6221
6200;6222
6200;6223
6200;6224
6200;6225
6200;6226
6200;6227
6200;6228
6200;6290
FUNCTIONS;6300
6300;6301
6300;6302
6300;6303
6300;6304
6300;6305
6300;6306
6300;6307
6300;6308
6300;6309
6300;6310
6300;6311
6300;6312
6300;6313
6300;6314
6300;6315
6300;6316
6300;6317
6300;6318
6300;6319
6300;6320
6300;6321
6300;6322
6300;6323
6300;6324
6300;6325
6300;6326
6300;6327
6300;6328
6300;6390
FUNCTIONS;6400
6400;6401
6400;6402
6400;6403
6400;6404
6400;6405
6400;6406
6400;6407
6400;6408
6400;6409
6400;6410
6400;6411
6400;6412
6400;6413
6400;6414
6400;6415
6400;6416
6400;6417
6400;6418
6400;6419
6400;6420
6400;6421
6400;6422
6400;6423
6400;6424
6400;6425
6400;6426
6400;6427
6400;6428
6400;6490
FUNCTIONS;6500
6500;6501
6500;6502
6500;6503
6500;6504
6500;6505
6500;6506
6500;6507
6500;6508
6500;6509
6500;6510
6500;6511
6500;6512
6500;6513
6500;6514
6500;6515
6500;6516
6500;6517
6500;6518
6500;6519
6500;6520
6500;6521
6500;6522
6500;6523
6500;6524
6500;6525
6500;6526
6500;6527
6500;6528
6500;6590
FUNCTIONS;6600
6600;6601
6600;6602
6600;6603
6600;6604
6600;6605
6600;6606
6600;6607
6600;6608
6600;6609
6600;6610
6600;6611
6600;6612
6600;6613
6600;6614
6600;6615
6600;6616
6600;6617
6600;6618
6600;6619
6600;6620
6600;6621
6600;6622
6600;6623
6600;6624
6600;6625
6600;6626
6600;6627
6600;6628
6600;6690
FUNCTIONS;6700
6700;6701
6700;6702
6700;6703
6700;6704
6700;6705
6700;6706
6700;6707
6700;6708
6700;6709
6700;6710
6700;6711
6700;6712
6700;6713
6700;6714
6700;6715
6700;6716
6700;6717
6700;6718
6700;6719
6700;6720
6700;6721
6700;6722
6700;6723
6700;6724
6700;6725
6700;6726
6700;6727
6700;6728
6700;6790
FUNCTIONS;6800
6800;6801
6800;6802
6800;6803
6800;6804
6800;6805
6800;6806
6800;6807
6800;6808
6800;6809
6800;6810
6800;6811
6800;6812
6800;6813
6800;6814
6800;6815
6800;6816
6800;6817
6800;6818
6800;6819
6800;6820
6800;6821
6800;6822
6800;6823
6800;6824
6800;6825
6800;6826
6800;6827
6800;6828
6800;6890
FUNCTIONS;6900
6900;6901
6900;6902
6900;6903
6900;6904
6900;6905
6900;6906
6900;6907
6900;6908
6900;6909
6900;6910
6900;6911
6900;6912
6900;6913
6900;6914
6900;6915
6900;6916
6900;6917
6900;6918
6900;6919
6900;6920
6900;6921
6900;6922
6900;6923
6900;6924
6900;6925
6900;6926
6900;6927
6900;6928
6900;6990
;KPI
KPI;Ratios
Ratios;Gross Margin %
Ratios;EBIT %
Ratios;EBITDA-ADJ %
Ratios;Tax rate %
Ratios;Days' sales
Ratios;Days' payables
Ratios;Stock turn
Ratios;ROCE %
Ratios;Gearing %
Ratios;Debt-to-EBITDA
Ratios;Capex %
Ratios;Utilisation %
Ratios;Accidents per 10^6 h
KPI;EBITDA
EBITDA;EBITDA-ADJ
EBITDA-ADJ;EBITDA before IFRS 16
EBITDA-ADJ;8010
EBITDA;8020
KPI;Personnel cost
Personnel cost;6101
Personnel cost;6201
Personnel cost;6301
Personnel cost;6401
Personnel cost;6501
Personnel cost;6601
Personnel cost;6701
Personnel cost;6801
Personnel cost;6901
Personnel cost;6102
Personnel cost;6202
Personnel cost;6302
Personnel cost;6402
Personnel cost;6502
Personnel cost;6602
Personnel cost;6702
Personnel cost;6802
Personnel cost;6902
Personnel cost;6103
Personnel cost;6203
Personnel cost;6303
Personnel cost;6403
Personnel cost;6503
Personnel cost;6603
Personnel cost;6703
Personnel cost;6803
Personnel cost;6903
Personnel cost;6104
Personnel cost;6204
Personnel cost;6304
Personnel cost;6404
Personnel cost;6504
Personnel cost;6604
Personnel cost;6704
Personnel cost;6804
Personnel cost;6904
Personnel cost;5513
Personnel cost;5523
Personnel cost;5533
Personnel cost;5543
Personnel cost;5553
Personnel cost;5563
Personnel cost;5573
Personnel cost;5583
KPI;D&A
D&A;6125
D&A;6225
D&A;6325
D&A;6425
D&A;6525
D&A;6625
D&A;6725
D&A;6825
D&A;6925
D&A;5517
D&A;5527
D&A;5537
D&A;5547
D&A;5557
D&A;5567
D&A;5577
D&A;5587
KPI;Net Debt
Net Debt;BORROW
Net Debt;CUR FIN ASSETS
Net Debt;CASH
KPI;Working Capital
Working Capital;STOCK
Working Capital;RECEIV
Working Capital;PAYABLES
KPI;CAPEMP
CAPEMP;INTANG
CAPEMP;PPE
CAPEMP;ROU
CAPEMP;PROV
KPI;Volumes
Volumes;VOL1
VOL1;VOL11
VOL1;VOL12
VOL1;VOL13
VOL1;VOL14
VOL1;VOL15
VOL1;VOL16
Volumes;VOL2
VOL2;VOL21
VOL2;VOL22
VOL2;VOL23
VOL2;VOL24
VOL2;VOL25
VOL2;VOL26
Volumes;VOL3
VOL3;VOL31
VOL3;VOL32
VOL3;VOL33
VOL3;VOL34
VOL3;VOL35
VOL3;VOL36
Volumes;VOL4
VOL4;VOL41
VOL4;VOL42
VOL4;VOL43
VOL4;VOL44
VOL4;VOL45
VOL4;VOL46
Volumes;VOL5
VOL5;VOL51
VOL5;VOL52
VOL5;VOL53
VOL5;VOL54
VOL5;VOL55
VOL5;VOL56
Volumes;VOL6
VOL6;VOL61
VOL6;VOL62
VOL6;VOL63
VOL6;VOL64
VOL6;VOL65
VOL6;VOL66
Volumes;VOL7
VOL7;VOL71
VOL7;VOL72
VOL7;VOL73
VOL7;VOL74
VOL7;VOL75
VOL7;VOL76
Volumes;VOL8
VOL8;VOL81
VOL8;VOL82
VOL8;VOL83
VOL8;VOL84
VOL8;VOL85
VOL8;VOL86
KPI;Bridge
Bridge;BRG1
BRG1;BRG11
BRG1;BRG12
BRG1;BRG13
BRG1;BRG14
BRG1;BRG15
Bridge;BRG2
BRG2;BRG21
BRG2;BRG22
BRG2;BRG23
BRG2;BRG24
BRG2;BRG25
Bridge;BRG3
BRG3;BRG31
BRG3;BRG32
BRG3;BRG33
BRG3;BRG34
BRG3;BRG35
Bridge;BRG4
BRG4;BRG41
BRG4;BRG42
BRG4;BRG43
BRG4;BRG44
BRG4;BRG45
Bridge;BRG5
BRG5;BRG51
BRG5;BRG52
BRG5;BRG53
BRG5;BRG54
BRG5;BRG55
Bridge;BRG6
BRG6;BRG61
BRG6;BRG62
BRG6;BRG63
BRG6;BRG64
BRG6;BRG65
Bridge;BRG7
BRG7;BRG71
BRG7;BRG72
BRG7;BRG73
BRG7;BRG74
BRG7;BRG75
Bridge;BRG8
BRG8;BRG81
BRG8;BRG82
BRG8;BRG83
BRG8;BRG84
BRG8;BRG85
;STAFF
STAFF;HEADS
HEADS;HC1
HC1;HC11
HC1;HC12
HC1;HC13
HEADS;HC2
HC2;HC21
HC2;HC22
HC2;HC23
HEADS;HC3
HC3;HC31
HC3;HC32
HC3;HC33
HEADS;HC4
HC4;HC41
HC4;HC42
HC4;HC43
HEADS;HC5
HC5;HC51
HC5;HC52
HC5;HC53
HEADS;HC6
HC6;HC61
HC6;HC62
HC6;HC63
HEADS;HC7
HC7;HC71
HC7;HC72
HC7;HC73
HEADS;HC8
HC8;HC81
HC8;HC82
HC8;HC83
HEADS;HC9
HC9;HC91
HC9;HC92
HC9;HC93
STAFF;FTE
FTE;FTE1
FTE1;FTE11
FTE1;FTE12
FTE1;FTE13
FTE;FTE2
FTE2;FTE21
FTE2;FTE22
FTE2;FTE23
FTE;FTE3
FTE3;FTE31
FTE3;FTE32
FTE3;FTE33
FTE;FTE4
FTE4;FTE41
FTE4;FTE42
FTE4;FTE43
FTE;FTE5
FTE5;FTE51
FTE5;FTE52
FTE5;FTE53
FTE;FTE6
FTE6;FTE61
FTE6;FTE62
FTE6;FTE63
FTE;FTE7
FTE7;FTE71
FTE7;FTE72
FTE7;FTE73
FTE;FTE8
FTE8;FTE81
FTE8;FTE82
FTE8;FTE83
FTE;FTE9
FTE9;FTE91
FTE9;FTE92
FTE9;FTE93
STAFF;AGE
AGE;AGE_W
AGE_W;AGE_W1
AGE_W;AGE_W2
AGE_W;AGE_W3
AGE_W;AGE_W4
AGE_W;AGE_W5
AGE;AGE_M
AGE_M;AGE_M1
AGE_M;AGE_M2
AGE_M;AGE_M3
AGE_M;AGE_M4
AGE_M;AGE_M5
STAFF;HC-REGION
HC-REGION;HC-R1
HC-R1;HC-R11
HC-R1;HC-R12
HC-R1;HC-R13
HC-REGION;HC-R2
HC-R2;HC-R21
HC-R2;HC-R22
HC-R2;HC-R23
HC-REGION;HC-R3
HC-R3;HC-R31
HC-R3;HC-R32
HC-R3;HC-R33
HC-REGION;HC-R4
HC-R4;HC-R41
HC-R4;HC-R42
HC-R4;HC-R43
HC-REGION;HC-R5
HC-R5;HC-R51
HC-R5;HC-R52
HC-R5;HC-R53
HC-REGION;HC-R6
HC-R6;HC-R61
HC-R6;HC-R62
HC-R6;HC-R63
HC-REGION;HC-R7
HC-R7;HC-R71
HC-R7;HC-R72
HC-R7;HC-R73
STAFF;SAFETY
SAFETY;SAF1
SAFETY;SAF2
SAFETY;SAF3
SAFETY;SAF4
SAFETY;SAF5
SAFETY;SAF6
;CASHFLOW
CASHFLOW;CF-NET
CF-NET;CF-OPE
CF-OPE;CF-SELF
CF-SELF;CF101
CF-SELF;CF102
CF-SELF;CF103
CF-SELF;CF104
CF-SELF;CF105
CF-SELF;CF106
CF-SELF;CF107
CF-SELF;CF108
CF-SELF;CF109
CF-SELF;CF110
CF-OPE;CF-WCR
CF-WCR;CF121
CF-WCR;CF122
CF-WCR;CF123
CF-WCR;CF124
CF-OPE;CF-TAX
CF-NET;CF-INV
CF-INV;CF-CAPEX
CF-CAPEX;CF210
CF-CAPEX;CF215
CF-CAPEX;CF220
CF-CAPEX;CF225
CF-CAPEX;CF230
CF-CAPEX;CF235
CF-CAPEX;CF240
CF-CAPEX;CF245
CF-INV;CF-DISP
CF-DISP;CF310
CF-DISP;CF315
CF-DISP;CF320
CF-DISP;CF325
CF-DISP;CF330
CF-DISP;CF335
CF-DISP;CF340
CF-DISP;CF345
CF-INV;CF-M&A
CF-M&A;CF251
CF-M&A;CF252
CF-M&A;CF253
CF-INV;CF-LOANS
CF-NET;CF-FIN
CF-FIN;CF-DEBT
CF-DEBT;CF410
CF410;CF410+
CF410;CF410-
CF-DEBT;CF420
CF420;CF420+
CF420;CF420-
CF-DEBT;CF430
CF430;CF430+
CF430;CF430-
CF-DEBT;CF440
CF440;CF440+
CF440;CF440-
CF-DEBT;CF450
CF450;CF450+
CF450;CF450-
CF-DEBT;CF460
CF460;CF460+
CF460;CF460-
CF-DEBT;CF470
CF470;CF470+
CF470;CF470-
CF-FIN;CF-DIV
CF-DIV;CF511
CF-DIV;CF512
CF-DIV;CF513
CF-FIN;CF-CAP
CF-FIN;CF-OWN
CF-NET;CF-FX
;NOTES
NOTES;SEGMENTS
SEGMENTS;SEG1
SEG1;SEG101
SEG1;SEG102
SEG1;SEG103
SEG1;SEG104
SEG1;SEG105
SEG1;SEG106
SEG1;SEG107
SEG1;SEG108
SEG1;SEG109
SEG1;SEG110
SEG1;SEG111
SEG1;SEG112
SEGMENTS;SEG2
SEG2;SEG201
SEG2;SEG202
SEG2;SEG203
SEG2;SEG204
SEG2;SEG205
SEG2;SEG206
SEG2;SEG207
SEG2;SEG208
SEG2;SEG209
SEG2;SEG210
SEG2;SEG211
SEG2;SEG212
SEGMENTS;SEG3
SEG3;SEG301
SEG3;SEG302
SEG3;SEG303
SEG3;SEG304
SEG3;SEG305
SEG3;SEG306
SEG3;SEG307
SEG3;SEG308
SEG3;SEG309
SEG3;SEG310
SEG3;SEG311
SEG3;SEG312
SEGMENTS;SEG4
SEG4;SEG401
SEG4;SEG402
SEG4;SEG403
SEG4;SEG404
SEG4;SEG405
SEG4;SEG406
SEG4;SEG407
SEG4;SEG408
SEG4;SEG409
SEG4;SEG410
SEG4;SEG411
SEG4;SEG412
SEGMENTS;SEG5
SEG5;SEG501
SEG5;SEG502
SEG5;SEG503
SEG5;SEG504
SEG5;SEG505
SEG5;SEG506
SEG5;SEG507
SEG5;SEG508
SEG5;SEG509
SEG5;SEG510
SEG5;SEG511
SEG5;SEG512
SEGMENTS;SEG6
SEG6;SEG601
SEG6;SEG602
SEG6;SEG603
SEG6;SEG604
SEG6;SEG605
SEG6;SEG606
SEG6;SEG607
SEG6;SEG608
SEG6;SEG609
SEG6;SEG610
SEG6;SEG611
SEG6;SEG612
SEGMENTS;SEG7
SEG7;SEG701
SEG7;SEG702
SEG7;SEG703
SEG7;SEG704
SEG7;SEG705
SEG7;SEG706
SEG7;SEG707
SEG7;SEG708
SEG7;SEG709
SEG7;SEG710
SEG7;SEG711
SEG7;SEG712
SEGMENTS;SEG8
SEG8;SEG801
SEG8;SEG802
SEG8;SEG803
SEG8;SEG804
SEG8;SEG805
SEG8;SEG806
SEG8;SEG807
SEG8;SEG808
SEG8;SEG809
SEG8;SEG810
SEG8;SEG811
SEG8;SEG812
NOTES;REV-DEST
REV-DEST;REV-D1
REV-D1;REV-D11
REV-D1;REV-D12
REV-D1;REV-D13
REV-D1;REV-D14
REV-D1;REV-D15
REV-D1;REV-D16
REV-D1;REV-D17
REV-DEST;REV-D2
REV-D2;REV-D21
REV-D2;REV-D22
REV-D2;REV-D23
REV-D2;REV-D24
REV-D2;REV-D25
REV-D2;REV-D26
REV-D2;REV-D27
REV-DEST;REV-D3
REV-D3;REV-D31
REV-D3;REV-D32
REV-D3;REV-D33
REV-D3;REV-D34
REV-D3;REV-D35
REV-D3;REV-D36
REV-D3;REV-D37
REV-DEST;REV-D4
REV-D4;REV-D41
REV-D4;REV-D42
REV-D4;REV-D43
REV-D4;REV-D44
REV-D4;REV-D45
REV-D4;REV-D46
REV-D4;REV-D47
REV-DEST;REV-D5
REV-D5;REV-D51
REV-D5;REV-D52
REV-D5;REV-D53
REV-D5;REV-D54
REV-D5;REV-D55
REV-D5;REV-D56
REV-D5;REV-D57
REV-DEST;REV-D6
REV-D6;REV-D61
REV-D6;REV-D62
REV-D6;REV-D63
REV-D6;REV-D64
REV-D6;REV-D65
REV-D6;REV-D66
REV-D6;REV-D67
REV-DEST;REV-D7
REV-D7;REV-D71
REV-D7;REV-D72
REV-D7;REV-D73
REV-D7;REV-D74
REV-D7;REV-D75
REV-D7;REV-D76
REV-D7;REV-D77
REV-DEST;REV-D8
REV-D8;REV-D81
REV-D8;REV-D82
REV-D8;REV-D83
REV-D8;REV-D84
REV-D8;REV-D85
REV-D8;REV-D86
REV-D8;REV-D87
NOTES;TAXPROOF
TAXPROOF;TXP01
TAXPROOF;TXP02
TAXPROOF;TXP03
TAXPROOF;TXP04
TAXPROOF;TXP05
TAXPROOF;TXP06
TAXPROOF;TXP07
TAXPROOF;TXP08
TAXPROOF;TXP09
TAXPROOF;TXP10
TAXPROOF;TXP11
TAXPROOF;TXP12
NOTES;CAPEX
CAPEX;CPX10
CPX10;CPX101
CPX10;CPX102
CPX10;CPX103
CPX10;CPX104
CAPEX;CPX15
CPX15;CPX151
CPX15;CPX152
CPX15;CPX153
CPX15;CPX154
CAPEX;CPX20
CPX20;CPX201
CPX20;CPX202
CPX20;CPX203
CPX20;CPX204
CAPEX;CPX25
CPX25;CPX251
CPX25;CPX252
CPX25;CPX253
CPX25;CPX254
CAPEX;CPX30
CPX30;CPX301
CPX30;CPX302
CPX30;CPX303
CPX30;CPX304
CAPEX;CPX35
CPX35;CPX351
CPX35;CPX352
CPX35;CPX353
CPX35;CPX354
CAPEX;CPX40
CPX40;CPX401
CPX40;CPX402
CPX40;CPX403
CPX40;CPX404
CAPEX;CPX45
CPX45;CPX451
CPX45;CPX452
CPX45;CPX453
CPX45;CPX454
NOTES;MATURITY
MATURITY;MAT10
MAT10;MAT101
MAT10;MAT102
MAT10;MAT103
MAT10;MAT105
MATURITY;MAT20
MAT20;MAT201
MAT20;MAT202
MAT20;MAT203
MAT20;MAT205
MATURITY;MAT30
MAT30;MAT301
MAT30;MAT302
MAT30;MAT303
MAT30;MAT305
MATURITY;MAT40
MAT40;MAT401
MAT40;MAT402
MAT40;MAT403
MAT40;MAT405
MATURITY;MAT50
MAT50;MAT501
MAT50;MAT502
MAT50;MAT503
MAT50;MAT505
MATURITY;MAT60
MAT60;MAT601
MAT60;MAT602
MAT60;MAT603
MAT60;MAT605
MATURITY;MAT70
MAT70;MAT701
MAT70;MAT702
MAT70;MAT703
MAT70;MAT705
NOTES;DEBT-CUR
DEBT-CUR;DBT_EUR
DBT_EUR;DBT_EUR1
DBT_EUR;DBT_EUR2
DEBT-CUR;DBT_USD
DBT_USD;DBT_USD1
DBT_USD;DBT_USD2
DEBT-CUR;DBT_GBP
DBT_GBP;DBT_GBP1
DBT_GBP;DBT_GBP2
DEBT-CUR;DBT_CHF
DBT_CHF;DBT_CHF1
DBT_CHF;DBT_CHF2
DEBT-CUR;DBT_SEK
DBT_SEK;DBT_SEK1
DBT_SEK;DBT_SEK2
DEBT-CUR;DBT_PLN
DBT_PLN;DBT_PLN1
DBT_PLN;DBT_PLN2
DEBT-CUR;DBT_OTH
DBT_OTH;DBT_OTH1
DBT_OTH;DBT_OTH2
NOTES;BONDS
BONDS;BOND-A
BOND-A;BOND-A1
BOND-A;BOND-A2
BOND-A;BOND-A3
BONDS;BOND-B
BOND-B;BOND-B1
BOND-B;BOND-B2
BOND-B;BOND-B3
BONDS;BOND-C
BOND-C;BOND-C1
BOND-C;BOND-C2
BOND-C;BOND-C3
BONDS;BOND-D
BOND-D;BOND-D1
BOND-D;BOND-D2
BOND-D;BOND-D3
BONDS;BOND-E
BOND-E;BOND-E1
BOND-E;BOND-E2
BOND-E;BOND-E3
NOTES;HEDGES
HEDGES;HDG1
HDG1;HDG11
HDG1;HDG12
HDG1;HDG13
HEDGES;HDG2
HDG2;HDG21
HDG2;HDG22
HDG2;HDG23
HEDGES;HDG3
HDG3;HDG31
HDG3;HDG32
HDG3;HDG33
HEDGES;HDG4
HDG4;HDG41
HDG4;HDG42
HDG4;HDG43
HEDGES;HDG5
HDG5;HDG51
HDG5;HDG52
HDG5;HDG53
NOTES;OFFBAL
OFFBAL;OFB1
OFB1;OFB11
OFB1;OFB12
OFB1;OFB13
OFB1;OFB15
OFFBAL;OFB2
OFB2;OFB21
OFB2;OFB22
OFB2;OFB23
OFB2;OFB25
OFFBAL;OFB3
OFB3;OFB31
OFB3;OFB32
OFB3;OFB33
OFB3;OFB35
OFFBAL;OFB4
OFB4;OFB41
OFB4;OFB42
OFB4;OFB43
OFB4;OFB45
OFFBAL;OFB5
OFB5;OFB51
OFB5;OFB52
OFB5;OFB53
OFB5;OFB55
OFFBAL;OFB6
OFB6;OFB61
OFB6;OFB62
OFB6;OFB63
OFB6;OFB65
NOTES;RELATED
RELATED;REL1
REL1;REL11
REL1;REL12
REL1;REL13
REL1;REL14
REL1;REL15
RELATED;REL2
REL2;REL21
REL2;REL22
REL2;REL23
REL2;REL24
REL2;REL25
RELATED;REL3
REL3;REL31
REL3;REL32
REL3;REL33
REL3;REL34
REL3;REL35
RELATED;REL4
REL4;REL41
REL4;REL42
REL4;REL43
REL4;REL44
REL4;REL45
RELATED;REL5
REL5;REL51
REL5;REL52
REL5;REL53
REL5;REL54
REL5;REL55
NOTES;CBCR
CBCR;CBC_GB
CBC_GB;CBC_GB1
CBC_GB;CBC_GB2
CBC_GB;CBC_GB3
CBC_GB;CBC_GB4
CBC_GB;CBC_GB5
CBC_GB;CBC_GB6
CBC_GB;CBC_GB7
CBC_GB;CBC_GB8
CBCR;CBC_IE
CBC_IE;CBC_IE1
CBC_IE;CBC_IE2
CBC_IE;CBC_IE3
CBC_IE;CBC_IE4
CBC_IE;CBC_IE5
CBC_IE;CBC_IE6
CBC_IE;CBC_IE7
CBC_IE;CBC_IE8
CBCR;CBC_SE
CBC_SE;CBC_SE1
CBC_SE;CBC_SE2
CBC_SE;CBC_SE3
CBC_SE;CBC_SE4
CBC_SE;CBC_SE5
CBC_SE;CBC_SE6
CBC_SE;CBC_SE7
CBC_SE;CBC_SE8
CBCR;CBC_NO
CBC_NO;CBC_NO1
CBC_NO;CBC_NO2
CBC_NO;CBC_NO3
CBC_NO;CBC_NO4
CBC_NO;CBC_NO5
CBC_NO;CBC_NO6
CBC_NO;CBC_NO7
CBC_NO;CBC_NO8
CBCR;CBC_DK
CBC_DK;CBC_DK1
CBC_DK;CBC_DK2
CBC_DK;CBC_DK3
CBC_DK;CBC_DK4
CBC_DK;CBC_DK5
CBC_DK;CBC_DK6
CBC_DK;CBC_DK7
CBC_DK;CBC_DK8
CBCR;CBC_FI
CBC_FI;CBC_FI1
CBC_FI;CBC_FI2
CBC_FI;CBC_FI3
CBC_FI;CBC_FI4
CBC_FI;CBC_FI5
CBC_FI;CBC_FI6
CBC_FI;CBC_FI7
CBC_FI;CBC_FI8
CBCR;CBC_EE
CBC_EE;CBC_EE1
CBC_EE;CBC_EE2
CBC_EE;CBC_EE3
CBC_EE;CBC_EE4
CBC_EE;CBC_EE5
CBC_EE;CBC_EE6
CBC_EE;CBC_EE7
CBC_EE;CBC_EE8
CBCR;CBC_FR
CBC_FR;CBC_FR1
CBC_FR;CBC_FR2
CBC_FR;CBC_FR3
CBC_FR;CBC_FR4
CBC_FR;CBC_FR5
CBC_FR;CBC_FR6
CBC_FR;CBC_FR7
CBC_FR;CBC_FR8
CBCR;CBC_BE
CBC_BE;CBC_BE1
CBC_BE;CBC_BE2
CBC_BE;CBC_BE3
CBC_BE;CBC_BE4
CBC_BE;CBC_BE5
CBC_BE;CBC_BE6
CBC_BE;CBC_BE7
CBC_BE;CBC_BE8
CBCR;CBC_NL
CBC_NL;CBC_NL1
CBC_NL;CBC_NL2
CBC_NL;CBC_NL3
CBC_NL;CBC_NL4
CBC_NL;CBC_NL5
CBC_NL;CBC_NL6
CBC_NL;CBC_NL7
CBC_NL;CBC_NL8
CBCR;CBC_DE
CBC_DE;CBC_DE1
CBC_DE;CBC_DE2
CBC_DE;CBC_DE3
CBC_DE;CBC_DE4
CBC_DE;CBC_DE5
CBC_DE;CBC_DE6
CBC_DE;CBC_DE7
CBC_DE;CBC_DE8
CBCR;CBC_AT
CBC_AT;CBC_AT1
CBC_AT;CBC_AT2
CBC_AT;CBC_AT3
CBC_AT;CBC_AT4
CBC_AT;CBC_AT5
CBC_AT;CBC_AT6
CBC_AT;CBC_AT7
CBC_AT;CBC_AT8
CBCR;CBC_CH
CBC_CH;CBC_CH1
CBC_CH;CBC_CH2
CBC_CH;CBC_CH3
CBC_CH;CBC_CH4
CBC_CH;CBC_CH5
CBC_CH;CBC_CH6
CBC_CH;CBC_CH7
CBC_CH;CBC_CH8
CBCR;CBC_ES
CBC_ES;CBC_ES1
CBC_ES;CBC_ES2
CBC_ES;CBC_ES3
CBC_ES;CBC_ES4
CBC_ES;CBC_ES5
CBC_ES;CBC_ES6
CBC_ES;CBC_ES7
CBC_ES;CBC_ES8
CBCR;CBC_PT
CBC_PT;CBC_PT1
CBC_PT;CBC_PT2
CBC_PT;CBC_PT3
CBC_PT;CBC_PT4
CBC_PT;CBC_PT5
CBC_PT;CBC_PT6
CBC_PT;CBC_PT7
CBC_PT;CBC_PT8
CBCR;CBC_IT
CBC_IT;CBC_IT1
CBC_IT;CBC_IT2
CBC_IT;CBC_IT3
CBC_IT;CBC_IT4
CBC_IT;CBC_IT5
CBC_IT;CBC_IT6
CBC_IT;CBC_IT7
CBC_IT;CBC_IT8
CBCR;CBC_GR
CBC_GR;CBC_GR1
CBC_GR;CBC_GR2
CBC_GR;CBC_GR3
CBC_GR;CBC_GR4
CBC_GR;CBC_GR5
CBC_GR;CBC_GR6
CBC_GR;CBC_GR7
CBC_GR;CBC_GR8
CBCR;CBC_PL
CBC_PL;CBC_PL1
CBC_PL;CBC_PL2
CBC_PL;CBC_PL3
CBC_PL;CBC_PL4
CBC_PL;CBC_PL5
CBC_PL;CBC_PL6
CBC_PL;CBC_PL7
CBC_PL;CBC_PL8
CBCR;CBC_CZ
CBC_CZ;CBC_CZ1
CBC_CZ;CBC_CZ2
CBC_CZ;CBC_CZ3
CBC_CZ;CBC_CZ4
CBC_CZ;CBC_CZ5
CBC_CZ;CBC_CZ6
CBC_CZ;CBC_CZ7
CBC_CZ;CBC_CZ8
CBCR;CBC_HU
CBC_HU;CBC_HU1
CBC_HU;CBC_HU2
CBC_HU;CBC_HU3
CBC_HU;CBC_HU4
CBC_HU;CBC_HU5
CBC_HU;CBC_HU6
CBC_HU;CBC_HU7
CBC_HU;CBC_HU8
CBCR;CBC_RO
CBC_RO;CBC_RO1
CBC_RO;CBC_RO2
CBC_RO;CBC_RO3
CBC_RO;CBC_RO4
CBC_RO;CBC_RO5
CBC_RO;CBC_RO6
CBC_RO;CBC_RO7
CBC_RO;CBC_RO8
CBCR;CBC_US
CBC_US;CBC_US1
CBC_US;CBC_US2
CBC_US;CBC_US3
CBC_US;CBC_US4
CBC_US;CBC_US5
CBC_US;CBC_US6
CBC_US;CBC_US7
CBC_US;CBC_US8
CBCR;CBC_CA
CBC_CA;CBC_CA1
CBC_CA;CBC_CA2
CBC_CA;CBC_CA3
CBC_CA;CBC_CA4
CBC_CA;CBC_CA5
CBC_CA;CBC_CA6
CBC_CA;CBC_CA7
CBC_CA;CBC_CA8
CBCR;CBC_MX
CBC_MX;CBC_MX1
CBC_MX;CBC_MX2
CBC_MX;CBC_MX3
CBC_MX;CBC_MX4
CBC_MX;CBC_MX5
CBC_MX;CBC_MX6
CBC_MX;CBC_MX7
CBC_MX;CBC_MX8
CBCR;CBC_BR
CBC_BR;CBC_BR1
CBC_BR;CBC_BR2
CBC_BR;CBC_BR3
CBC_BR;CBC_BR4
CBC_BR;CBC_BR5
CBC_BR;CBC_BR6
CBC_BR;CBC_BR7
CBC_BR;CBC_BR8
CBCR;CBC_JP
CBC_JP;CBC_JP1
CBC_JP;CBC_JP2
CBC_JP;CBC_JP3
CBC_JP;CBC_JP4
CBC_JP;CBC_JP5
CBC_JP;CBC_JP6
CBC_JP;CBC_JP7
CBC_JP;CBC_JP8
CBCR;CBC_SG
CBC_SG;CBC_SG1
CBC_SG;CBC_SG2
CBC_SG;CBC_SG3
CBC_SG;CBC_SG4
CBC_SG;CBC_SG5
CBC_SG;CBC_SG6
CBC_SG;CBC_SG7
CBC_SG;CBC_SG8
CBCR;CBC_AU
CBC_AU;CBC_AU1
CBC_AU;CBC_AU2
CBC_AU;CBC_AU3
CBC_AU;CBC_AU4
CBC_AU;CBC_AU5
CBC_AU;CBC_AU6
CBC_AU;CBC_AU7
CBC_AU;CBC_AU8
CBCR;CBC_ZA
CBC_ZA;CBC_ZA1
CBC_ZA;CBC_ZA2
CBC_ZA;CBC_ZA3
CBC_ZA;CBC_ZA4
CBC_ZA;CBC_ZA5
CBC_ZA;CBC_ZA6
CBC_ZA;CBC_ZA7
CBC_ZA;CBC_ZA8
CBCR;CBC_MA
CBC_MA;CBC_MA1
CBC_MA;CBC_MA2
CBC_MA;CBC_MA3
CBC_MA;CBC_MA4
CBC_MA;CBC_MA5
CBC_MA;CBC_MA6
CBC_MA;CBC_MA7
CBC_MA;CBC_MA8
;ESG
ESG;ENERGY
ENERGY;ENE1
ENE1;ENE11
ENE1;ENE12
ENERGY;ENE2
ENE2;ENE21
ENE2;ENE22
ENERGY;ENE3
ENE3;ENE31
ENE3;ENE32
ENERGY;ENE4
ENE4;ENE41
ENE4;ENE42
ENERGY;ENE5
ENE5;ENE51
ENE5;ENE52
ENERGY;ENE6
ENE6;ENE61
ENE6;ENE62
ENERGY;ENE7
ENE7;ENE71
ENE7;ENE72
ENERGY;ENE8
ENE8;ENE81
ENE8;ENE82
ESG;CO2 t
CO2 t;SCOPE1
SCOPE1;S1-1
SCOPE1;S1-2
SCOPE1;S1-3
SCOPE1;S1-4
SCOPE1;S1-5
SCOPE1;S1-6
SCOPE1;S1-7
SCOPE1;S1-8
CO2 t;SCOPE2
SCOPE2;S2-LOC
SCOPE2;S2-MKT
CO2 t;SCOPE3
SCOPE3;S3-01
SCOPE3;S3-02
SCOPE3;S3-03
SCOPE3;S3-04
SCOPE3;S3-05
SCOPE3;S3-06
SCOPE3;S3-07
SCOPE3;S3-08
SCOPE3;S3-09
SCOPE3;S3-10
SCOPE3;S3-11
SCOPE3;S3-12
SCOPE3;S3-13
SCOPE3;S3-14
SCOPE3;S3-15
ESG;Water m³
Water m³;WAT1
Water m³;WAT2
Water m³;WAT3
ESG;Waste t
Waste t;WST1
Waste t;WST2
Waste t;WST3
Waste t;WST4
;Ergebnis-Kontrolle
Ergebnis-Kontrolle;CHK GROUP
CHK GROUP;CHK01
CHK GROUP;CHK02
CHK GROUP;CHK03
CHK GROUP;CHK04
CHK GROUP;CHK05
CHK GROUP;CHK06
CHK GROUP;CHK07
CHK GROUP;CHK08
CHK GROUP;CHK09
CHK GROUP;CHK10
CHK GROUP;CHK11
CHK GROUP;CHK12
Ergebnis-Kontrolle;CHK ROLL
CHK ROLL;CHK-I05
CHK ROLL;CHK-I10
CHK ROLL;CHK-I15
CHK ROLL;CHK-I20
CHK ROLL;CHK-I25
CHK ROLL;CHK-I30
CHK ROLL;CHK-I35
CHK ROLL;CHK-I40
CHK ROLL;CHK-P10
CHK ROLL;CHK-P15
CHK ROLL;CHK-P20
CHK ROLL;CHK-P25
CHK ROLL;CHK-P30
CHK ROLL;CHK-P35
CHK ROLL;CHK-P40
CHK ROLL;CHK-P45
CHK ROLL;CHK-R10
CHK ROLL;CHK-R15
CHK ROLL;CHK-R20
CHK ROLL;CHK-R25
CHK ROLL;CHK-R30
CHK ROLL;CHK-S10
CHK ROLL;CHK-S20
CHK ROLL;CHK-S30
CHK ROLL;CHK-S40
CHK ROLL;CHK-S50
CHK ROLL;CHK-S60
CHK ROLL;CHK-D10
CHK ROLL;CHK-D20
CHK ROLL;CHK-D30
CHK ROLL;CHK-D40
CHK ROLL;CHK-D50
CHK ROLL;CHK-D60
CHK ROLL;CHK-D70
CHK ROLL;CHK-V10
CHK ROLL;CHK-V20
CHK ROLL;CHK-V30
CHK ROLL;CHK-V40
CHK ROLL;CHK-V50
CHK ROLL;CHK-V60
CHK ROLL;CHK-V70
CHK ROLL;CHK-V80
Ergebnis-Kontrolle;IC differences
IC differences;PLUG_1
IC differences;PLUG_2
IC differences;PLUG_3
IC differences;PLUG_4
IC differences;PLUG_5
IC differences;PLUG_6
;RATES
RATES;RATE CLO
RATES;RATE AVG
RATES;RATE OPE
RATES;RATE BUD
;COMMENTS
COMMENTS;TXT1
COMMENTS;TXT2
COMMENTS;TXT3
COMMENTS;TXT4
COMMENTS;TXT5
COMMENTS;TXT6
;[Active]
;[PCON]
;[POWN]
;[DOWN]
;[PCTRL]
;[Method]
;[Consol1]
;[Consol2]
;[Consol3]
;[SharesOwned]
;[VotingOwned]
;[SharesOutstanding]
;[VotingOutstanding]
;[Shares%Owned]
;[Voting%Owned]
!MEMBERS=Value
'Label;Descriptions
<Entity Currency>;English=Entity currency;French=Devise de l'entité;German=Währung der Einheit
<Parent Currency>;English=Parent currency;French=Devise de la mère;German=Währung der Mutter
[Proportion];English=Proportion;French=Quote-part;German=Anteil
[Elimination];English=Elimination;French=Élimination;German=Eliminierung
[Contribution];English=Contribution;French=Contribution;German=Beitrag
!MEMBERS=ICP
'Label;SecurityClass;Descriptions
[ICP Top];SC_ICP;English=All partners;French=Tous les partenaires;German=Alle Partner
[ICP None];SC_ICP;English=No partner;French=Sans partenaire;German=Ohne Partner
[ICP Entities];SC_ICP;English=Entities;French=Entités;German=Einheiten
