!FILE_FORMAT=4.1
!APPLICATION_SETTINGS
DefaultCurrency=EUR
ConsolidationRules=Y
!MEMBERS=Account
BS,GROUPLABEL,Y,N,N,,[None],[None],[None],[None],0,N,N,N,N,N,BS,,,,,[ICP None],N,DefaultParent=#root,English=Balance sheet,German=Bilanz
1000,ASSET,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],N,DefaultParent=BS,English=Assets,German=Aktiva
1100,ASSET,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],N,DefaultParent=1000,English=Cash and equivalents,German=Zahlungsmittel
1110,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=1100,English=Cash in hand,German=Kasse
1120,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=1100,English=Cash at bank – EUR,German=Bankguthaben – EUR
1130,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=1100,English=Cash at bank – other currencies,German=Bankguthaben – Fremdwährung
1140,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=1100,English=Deposits up to 3 months,German=Termingelder bis 3 Monate
1190,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=1100,English=Cash in transit,German=Geldtransit
1200,ASSET,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],N,DefaultParent=1000,English=Receivables,German=Forderungen
1210,ASSET,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],N,DefaultParent=1200,English=Third parties,German=Dritte
12100,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=1210,English=Third parties – not due,German=Dritte – nicht fällig
12101,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=1210,English=Third parties – 1 to 30 days overdue,German=Dritte – 1 bis 30 Tage überfällig
12102,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=1210,English=Third parties – 31 to 60 days overdue,German=Dritte – 31 bis 60 Tage überfällig
12103,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=1210,English=Third parties – 61 to 90 days overdue,German=Dritte – 61 bis 90 Tage überfällig
12104,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=1210,English=Third parties – 91 to 180 days overdue,German=Dritte – 91 bis 180 Tage überfällig
12105,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=1210,English=Third parties – more than 180 days overdue,German=Dritte – mehr als 180 Tage überfällig
1220,ASSET,N,Y,R,9910,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP Top],Y,DefaultParent=1200,English=Group companies,German=Verbundene Unternehmen
1230,ASSET,N,Y,R,9920,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP Top],Y,DefaultParent=1200,English=Loans to group companies,German=Ausleihungen an verbundene Unternehmen
1280,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=1200,English=Sundry receivables,German=Sonstige Forderungen
1290,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=1200,English=Allowance for bad debts,German=Wertberichtigungen
1300,ASSET,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],N,DefaultParent=1000,English=Inventories,German=Vorräte
13100,ASSET,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],N,DefaultParent=1300,English=Raw materials,German=Rohstoffe
13101,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=13100,English=Raw materials – at cost,German=Rohstoffe – Anschaffungswert
13102,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=13100,English=Raw materials – written down,German=Rohstoffe – Abwertung
13200,ASSET,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],N,DefaultParent=1300,English=Work in progress,German=Unfertige Erzeugnisse
13201,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=13200,English=Work in progress – at cost,German=Unfertige Erzeugnisse – Anschaffungswert
13202,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=13200,English=Work in progress – written down,German=Unfertige Erzeugnisse – Abwertung
13300,ASSET,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],N,DefaultParent=1300,English=Finished goods,German=Fertige Erzeugnisse
13301,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=13300,English=Finished goods – at cost,German=Fertige Erzeugnisse – Anschaffungswert
13302,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=13300,English=Finished goods – written down,German=Fertige Erzeugnisse – Abwertung
13400,ASSET,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],N,DefaultParent=1300,English=Merchandise,German=Handelswaren
13401,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=13400,English=Merchandise – at cost,German=Handelswaren – Anschaffungswert
13402,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=13400,English=Merchandise – written down,German=Handelswaren – Abwertung
13500,ASSET,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],N,DefaultParent=1300,English=Spare parts,German=Ersatzteile
13501,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=13500,English=Spare parts – at cost,German=Ersatzteile – Anschaffungswert
13502,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=13500,English=Spare parts – written down,German=Ersatzteile – Abwertung
13600,ASSET,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],N,DefaultParent=1300,English=Packaging,German=Verpackungsmaterial
13601,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=13600,English=Packaging – at cost,German=Verpackungsmaterial – Anschaffungswert
13602,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=13600,English=Packaging – written down,German=Verpackungsmaterial – Abwertung
1500,ASSET,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],N,DefaultParent=1000,English=Fixed assets,German=Anlagevermögen
1510,ASSET,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],N,DefaultParent=1500,English=Land,German=Grundstücke
15101,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1510,English=Land – gross value,German=Grundstücke – Bruttowert
15102,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1510,English=Land – accumulated depreciation,German=Grundstücke – kumulierte Abschreibungen
15103,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1510,English=Land – accumulated impairment,German=Grundstücke – kumulierte Wertminderungen
15104,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1510,English=Land – revaluation,German=Grundstücke – Neubewertung
1515,ASSET,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],N,DefaultParent=1500,English=Buildings,German=Gebäude
15151,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1515,English=Buildings – gross value,German=Gebäude – Bruttowert
15152,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1515,English=Buildings – accumulated depreciation,German=Gebäude – kumulierte Abschreibungen
15153,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1515,English=Buildings – accumulated impairment,German=Gebäude – kumulierte Wertminderungen
15154,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1515,English=Buildings – revaluation,German=Gebäude – Neubewertung
1520,ASSET,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],N,DefaultParent=1500,English=Plant and machinery,German=Technische Anlagen und Maschinen
15201,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1520,English=Plant and machinery – gross value,German=Technische Anlagen und Maschinen – Bruttowert
15202,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1520,English=Plant and machinery – accumulated depreciation,German=Technische Anlagen und Maschinen – kumulierte Abschreibungen
15203,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1520,English=Plant and machinery – accumulated impairment,German=Technische Anlagen und Maschinen – kumulierte Wertminderungen
15204,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1520,English=Plant and machinery – revaluation,German=Technische Anlagen und Maschinen – Neubewertung
1525,ASSET,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],N,DefaultParent=1500,English=Vessels,German=Schiffe
15251,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1525,English=Vessels – gross value,German=Schiffe – Bruttowert
15252,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1525,English=Vessels – accumulated depreciation,German=Schiffe – kumulierte Abschreibungen
15253,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1525,English=Vessels – accumulated impairment,German=Schiffe – kumulierte Wertminderungen
15254,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1525,English=Vessels – revaluation,German=Schiffe – Neubewertung
1530,ASSET,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],N,DefaultParent=1500,English=Vehicles,German=Fahrzeuge
15301,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1530,English=Vehicles – gross value,German=Fahrzeuge – Bruttowert
15302,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1530,English=Vehicles – accumulated depreciation,German=Fahrzeuge – kumulierte Abschreibungen
15303,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1530,English=Vehicles – accumulated impairment,German=Fahrzeuge – kumulierte Wertminderungen
15304,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1530,English=Vehicles – revaluation,German=Fahrzeuge – Neubewertung
1535,ASSET,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],N,DefaultParent=1500,English=IT equipment,German=EDV-Ausstattung
15351,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1535,English=IT equipment – gross value,German=EDV-Ausstattung – Bruttowert
15352,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1535,English=IT equipment – accumulated depreciation,German=EDV-Ausstattung – kumulierte Abschreibungen
15353,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1535,English=IT equipment – accumulated impairment,German=EDV-Ausstattung – kumulierte Wertminderungen
15354,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1535,English=IT equipment – revaluation,German=EDV-Ausstattung – Neubewertung
1540,ASSET,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],N,DefaultParent=1500,English=Furniture and fittings,German=Betriebs- und Geschäftsausstattung
15401,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1540,English=Furniture and fittings – gross value,German=Betriebs- und Geschäftsausstattung – Bruttowert
15402,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1540,English=Furniture and fittings – accumulated depreciation,German=Betriebs- und Geschäftsausstattung – kumulierte Abschreibungen
15403,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1540,English=Furniture and fittings – accumulated impairment,German=Betriebs- und Geschäftsausstattung – kumulierte Wertminderungen
15404,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1540,English=Furniture and fittings – revaluation,German=Betriebs- und Geschäftsausstattung – Neubewertung
1545,ASSET,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],N,DefaultParent=1500,English=Assets under construction,German=Anlagen im Bau
15451,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1545,English=Assets under construction – gross value,German=Anlagen im Bau – Bruttowert
15452,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1545,English=Assets under construction – accumulated depreciation,German=Anlagen im Bau – kumulierte Abschreibungen
15453,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1545,English=Assets under construction – accumulated impairment,German=Anlagen im Bau – kumulierte Wertminderungen
15454,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 4,,,,[ICP None],Y,DefaultParent=1545,English=Assets under construction – revaluation,German=Anlagen im Bau – Neubewertung
1600,ASSET,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],N,DefaultParent=1000,English=Intangible assets,German=Immaterielle Vermögenswerte
1605,ASSET,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],N,DefaultParent=1600,English=Goodwill,German=Geschäfts- oder Firmenwert
16051,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1605,English=Goodwill – gross value,German=Geschäfts- oder Firmenwert – Bruttowert
16052,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1605,English=Goodwill – accumulated depreciation,German=Geschäfts- oder Firmenwert – kumulierte Abschreibungen
16053,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1605,English=Goodwill – accumulated impairment,German=Geschäfts- oder Firmenwert – kumulierte Wertminderungen
16054,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1605,English=Goodwill – revaluation,German=Geschäfts- oder Firmenwert – Neubewertung
1610,ASSET,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],N,DefaultParent=1600,English=Patents and licences,German=Patente und Lizenzen
16101,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1610,English=Patents and licences – gross value,German=Patente und Lizenzen – Bruttowert
16102,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1610,English=Patents and licences – accumulated depreciation,German=Patente und Lizenzen – kumulierte Abschreibungen
16103,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1610,English=Patents and licences – accumulated impairment,German=Patente und Lizenzen – kumulierte Wertminderungen
16104,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1610,English=Patents and licences – revaluation,German=Patente und Lizenzen – Neubewertung
1615,ASSET,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],N,DefaultParent=1600,English=Brands,German=Marken
16151,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1615,English=Brands – gross value,German=Marken – Bruttowert
16152,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1615,English=Brands – accumulated depreciation,German=Marken – kumulierte Abschreibungen
16153,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1615,English=Brands – accumulated impairment,German=Marken – kumulierte Wertminderungen
16154,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1615,English=Brands – revaluation,German=Marken – Neubewertung
1620,ASSET,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],N,DefaultParent=1600,English=Software,German=Software
16201,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1620,English=Software – gross value,German=Software – Bruttowert
16202,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1620,English=Software – accumulated depreciation,German=Software – kumulierte Abschreibungen
16203,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1620,English=Software – accumulated impairment,German=Software – kumulierte Wertminderungen
16204,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1620,English=Software – revaluation,German=Software – Neubewertung
1625,ASSET,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],N,DefaultParent=1600,English=Customer relationships,German=Kundenbeziehungen
16251,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1625,English=Customer relationships – gross value,German=Kundenbeziehungen – Bruttowert
16252,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1625,English=Customer relationships – accumulated depreciation,German=Kundenbeziehungen – kumulierte Abschreibungen
16253,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1625,English=Customer relationships – accumulated impairment,German=Kundenbeziehungen – kumulierte Wertminderungen
16254,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1625,English=Customer relationships – revaluation,German=Kundenbeziehungen – Neubewertung
1630,ASSET,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],N,DefaultParent=1600,English=Development costs,German=Entwicklungskosten
16301,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1630,English=Development costs – gross value,German=Entwicklungskosten – Bruttowert
16302,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1630,English=Development costs – accumulated depreciation,German=Entwicklungskosten – kumulierte Abschreibungen
16303,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1630,English=Development costs – accumulated impairment,German=Entwicklungskosten – kumulierte Wertminderungen
16304,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1630,English=Development costs – revaluation,German=Entwicklungskosten – Neubewertung
1635,ASSET,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],N,DefaultParent=1600,English=Concessions,German=Konzessionen
16351,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1635,English=Concessions – gross value,German=Konzessionen – Bruttowert
16352,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1635,English=Concessions – accumulated depreciation,German=Konzessionen – kumulierte Abschreibungen
16353,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1635,English=Concessions – accumulated impairment,German=Konzessionen – kumulierte Wertminderungen
16354,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1635,English=Concessions – revaluation,German=Konzessionen – Neubewertung
1640,ASSET,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],N,DefaultParent=1600,English=CO2 allowances,German=CO2-Zertifikate
16401,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1640,English=CO2 allowances – gross value,German=CO2-Zertifikate – Bruttowert
16402,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1640,English=CO2 allowances – accumulated depreciation,German=CO2-Zertifikate – kumulierte Abschreibungen
16403,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1640,English=CO2 allowances – accumulated impairment,German=CO2-Zertifikate – kumulierte Wertminderungen
16404,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,Anhang 5,,,,[ICP None],Y,DefaultParent=1640,English=CO2 allowances – revaluation,German=CO2-Zertifikate – Neubewertung
1800,ASSET,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=1000,English=Deferred taxes,German=Latente Steuern
1900,ASSET,N,Y,R,9930,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP Top],Y,DefaultParent=1000,English=Shares in group companies,German=Anteile an verbundenen Unternehmen
2000,LIABILITY,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],N,DefaultParent=BS,English=Liabilities and equity,German=Passiva
2100,LIABILITY,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],N,DefaultParent=2000,English=Payables,German=Verbindlichkeiten
2110,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=2100,English=Suppliers,German=Lieferanten
2120,LIABILITY,N,Y,R,9910,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP Top],Y,DefaultParent=2100,English=Group companies (payable),German=Verbundene Unternehmen (Verbindlichkeit)
2130,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Personnel,[ICP None],Y,DefaultParent=2100,English=Payroll,German=Löhne und Gehälter
2140,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Personnel,[ICP None],Y,DefaultParent=2100,English=Social security,German=Sozialversicherung
2150,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=2100,English=Advances from customers,German=Erhaltene Anzahlungen
2190,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=2100,English=Sundry,German=Sonstiges
2200,LIABILITY,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],N,DefaultParent=2000,English=Provisions,German=Rückstellungen
2210,LIABILITY,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],N,DefaultParent=2200,English=Restructuring,German=Restrukturierung
2210C,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=2210,English=Restructuring – current,German=Restrukturierung – kurzfristig
2210N,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=2210,English=Restructuring – non-current,German=Restrukturierung – langfristig
2220,LIABILITY,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],N,DefaultParent=2200,English=Warranties,German=Gewährleistung
2220C,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=2220,English=Warranties – current,German=Gewährleistung – kurzfristig
2220N,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=2220,English=Warranties – non-current,German=Gewährleistung – langfristig
2230,LIABILITY,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],N,DefaultParent=2200,English=Litigation,German=Rechtsstreitigkeiten
2230C,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=2230,English=Litigation – current,German=Rechtsstreitigkeiten – kurzfristig
2230N,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=2230,English=Litigation – non-current,German=Rechtsstreitigkeiten – langfristig
2240,LIABILITY,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],N,DefaultParent=2200,English=Site restoration,German=Rekultivierung
2240C,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=2240,English=Site restoration – current,German=Rekultivierung – kurzfristig
2240N,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=2240,English=Site restoration – non-current,German=Rekultivierung – langfristig
2250,LIABILITY,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],N,DefaultParent=2200,English=Onerous contracts,German=Drohende Verluste
2250C,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=2250,English=Onerous contracts – current,German=Drohende Verluste – kurzfristig
2250N,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=2250,English=Onerous contracts – non-current,German=Drohende Verluste – langfristig
2260,LIABILITY,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],N,DefaultParent=2200,English=Jubilee benefits,German=Jubiläumsleistungen
2260C,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=2260,English=Jubilee benefits – current,German=Jubiläumsleistungen – kurzfristig
2260N,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=2260,English=Jubilee benefits – non-current,German=Jubiläumsleistungen – langfristig
2270,LIABILITY,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],N,DefaultParent=2200,English=Dry-docking,German=Trockendockung
2270C,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=2270,English=Dry-docking – current,German=Trockendockung – kurzfristig
2270N,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=2270,English=Dry-docking – non-current,German=Trockendockung – langfristig
2280,LIABILITY,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],N,DefaultParent=2200,English=Other risks,German=Sonstige Risiken
2280C,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=2280,English=Other risks – current,German=Sonstige Risiken – kurzfristig
2280N,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=2280,English=Other risks – non-current,German=Sonstige Risiken – langfristig
2400,LIABILITY,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],N,DefaultParent=2000,English=Borrowings,German=Finanzschulden
2410,LIABILITY,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],N,DefaultParent=2400,English=Bonds,German=Anleihen
24101,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=2410,English=Bonds – due within 1 year,German=Anleihen – fällig innerhalb eines Jahres
24102,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=2410,English=Bonds – due in 1 to 2 years,German=Anleihen – fällig in 1 bis 2 Jahren
24103,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=2410,English=Bonds – due in 2 to 5 years,German=Anleihen – fällig in 2 bis 5 Jahren
24105,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=2410,English=Bonds – due after 5 years,German=Anleihen – fällig nach 5 Jahren
2420,LIABILITY,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],N,DefaultParent=2400,English=Bank loans,German=Bankdarlehen
24201,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=2420,English=Bank loans – due within 1 year,German=Bankdarlehen – fällig innerhalb eines Jahres
24202,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=2420,English=Bank loans – due in 1 to 2 years,German=Bankdarlehen – fällig in 1 bis 2 Jahren
24203,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=2420,English=Bank loans – due in 2 to 5 years,German=Bankdarlehen – fällig in 2 bis 5 Jahren
24205,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=2420,English=Bank loans – due after 5 years,German=Bankdarlehen – fällig nach 5 Jahren
2430,LIABILITY,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],N,DefaultParent=2400,English=Commercial paper,German=Geldmarktpapiere
24301,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=2430,English=Commercial paper – due within 1 year,German=Geldmarktpapiere – fällig innerhalb eines Jahres
24302,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=2430,English=Commercial paper – due in 1 to 2 years,German=Geldmarktpapiere – fällig in 1 bis 2 Jahren
24303,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=2430,English=Commercial paper – due in 2 to 5 years,German=Geldmarktpapiere – fällig in 2 bis 5 Jahren
24305,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=2430,English=Commercial paper – due after 5 years,German=Geldmarktpapiere – fällig nach 5 Jahren
2440,LIABILITY,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],N,DefaultParent=2400,English=Lease liabilities,German=Leasingverbindlichkeiten
24401,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=2440,English=Lease liabilities – due within 1 year,German=Leasingverbindlichkeiten – fällig innerhalb eines Jahres
24402,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=2440,English=Lease liabilities – due in 1 to 2 years,German=Leasingverbindlichkeiten – fällig in 1 bis 2 Jahren
24403,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=2440,English=Lease liabilities – due in 2 to 5 years,German=Leasingverbindlichkeiten – fällig in 2 bis 5 Jahren
24405,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=2440,English=Lease liabilities – due after 5 years,German=Leasingverbindlichkeiten – fällig nach 5 Jahren
2450,LIABILITY,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],N,DefaultParent=2400,English=Private placements,German=Schuldscheindarlehen
24501,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=2450,English=Private placements – due within 1 year,German=Schuldscheindarlehen – fällig innerhalb eines Jahres
24502,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=2450,English=Private placements – due in 1 to 2 years,German=Schuldscheindarlehen – fällig in 1 bis 2 Jahren
24503,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=2450,English=Private placements – due in 2 to 5 years,German=Schuldscheindarlehen – fällig in 2 bis 5 Jahren
24505,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=2450,English=Private placements – due after 5 years,German=Schuldscheindarlehen – fällig nach 5 Jahren
2460,LIABILITY,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],N,DefaultParent=2400,English=Factoring with recourse,German=Unechtes Factoring
24601,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=2460,English=Factoring with recourse – due within 1 year,German=Unechtes Factoring – fällig innerhalb eines Jahres
24602,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=2460,English=Factoring with recourse – due in 1 to 2 years,German=Unechtes Factoring – fällig in 1 bis 2 Jahren
24603,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=2460,English=Factoring with recourse – due in 2 to 5 years,German=Unechtes Factoring – fällig in 2 bis 5 Jahren
24605,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=2460,English=Factoring with recourse – due after 5 years,German=Unechtes Factoring – fällig nach 5 Jahren
2470,LIABILITY,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],N,DefaultParent=2400,English=Other borrowings,German=Sonstige Finanzschulden
24701,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=2470,English=Other borrowings – due within 1 year,German=Sonstige Finanzschulden – fällig innerhalb eines Jahres
24702,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=2470,English=Other borrowings – due in 1 to 2 years,German=Sonstige Finanzschulden – fällig in 1 bis 2 Jahren
24703,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=2470,English=Other borrowings – due in 2 to 5 years,German=Sonstige Finanzschulden – fällig in 2 bis 5 Jahren
24705,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP None],Y,DefaultParent=2470,English=Other borrowings – due after 5 years,German=Sonstige Finanzschulden – fällig nach 5 Jahren
2490,LIABILITY,N,Y,R,9920,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,Treasury,[ICP Top],Y,DefaultParent=2400,English=Loans from group companies,German=Darlehen von verbundenen Unternehmen
2600,LIABILITY,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],N,DefaultParent=2000,English=Taxes,German=Steuern
2610,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=2600,English=Income tax payable,German=Ertragsteuern
2620,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=2600,English=VAT,German=Umsatzsteuer
2630,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=2600,English=Deferred taxes (liability),German=Latente Steuern (passiv)
2900,LIABILITY,Y,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],N,DefaultParent=2000,English=Equity,German=Eigenkapital
2910,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=2900,English=Share capital,German=Grundkapital
2920,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=2900,English=Premium,German=Agio
2930,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=2900,English=Reserves,German=Rücklagen
2940,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=2900,English=Translation differences,German=Umrechnungsdifferenzen
2950,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=2900,English=Result of the year,German=Jahresergebnis
2990,LIABILITY,N,Y,N,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,BS,,,,,[ICP None],Y,DefaultParent=2900,English=Minorities,German=Minderheiten
PL,GROUPLABEL,Y,N,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,,[ICP None],N,DefaultParent=#root,English=Income statement,German=Gewinn- und Verlustrechnung
3000,INCOME,Y,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,,[ICP None],N,DefaultParent=PL,English=Result of the year after tax,German=Ergebnis nach Steuern
3100,INCOME,Y,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,,[ICP None],N,DefaultParent=3000,English=Operating income,German=Betriebsergebnis
4000,INCOME,Y,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,,[ICP None],N,DefaultParent=3100,English=Sales,German=Umsatz
4100,INCOME,N,Y,N,,[None],TotProd,TotCust,TotAdj,0,N,N,Y,Y,Y,PL,,,,,[ICP None],Y,DefaultParent=4000,English=Instruments,German=Instrumente
4200,INCOME,N,Y,N,,[None],TotProd,TotCust,TotAdj,0,N,N,Y,Y,Y,PL,,,,,[ICP None],Y,DefaultParent=4000,English=Spare parts,German=Ersatzteile
4300,INCOME,N,Y,N,,[None],TotProd,TotCust,TotAdj,0,N,N,Y,Y,Y,PL,,,,,[ICP None],Y,DefaultParent=4000,English=Service,German=Service
4400,INCOME,N,Y,N,,[None],TotProd,TotCust,TotAdj,0,N,N,Y,Y,Y,PL,,,,,[ICP None],Y,DefaultParent=4000,English=„Zenith Plus“ contracts,German=„Zenith Plus“-Verträge
4500,INCOME,N,Y,R,9940,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,,[ICP Top],Y,DefaultParent=4000,English=Sales to group companies,German=Umsatz mit verbundenen Unternehmen
4900,INCOME,N,Y,N,,[None],TotProd,TotCust,TotAdj,0,N,N,Y,Y,Y,PL,,,,,[ICP None],Y,DefaultParent=4000,English=Rebates,German=Rabatte
5000,EXPENSE,Y,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,,[ICP None],N,DefaultParent=3100,English=Cost of sales,German=Herstellungskosten
5100,EXPENSE,N,Y,N,,[None],TotProd,[None],TotAdj,0,N,N,Y,N,Y,PL,,,,,[ICP None],Y,DefaultParent=5000,English=Material,German=Material
5200,EXPENSE,N,Y,N,,[None],TotProd,[None],TotAdj,0,N,N,Y,N,Y,PL,,,,,[ICP None],Y,DefaultParent=5000,English=Labour,German=Fertigungslöhne
5300,EXPENSE,N,Y,N,,[None],TotProd,[None],TotAdj,0,N,N,Y,N,Y,PL,,,,,[ICP None],Y,DefaultParent=5000,English=Energy,German=Energie
5400,EXPENSE,N,Y,R,9940,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,,[ICP Top],Y,DefaultParent=5000,English=Purchases from group companies,German=Bezüge von verbundenen Unternehmen
5500,EXPENSE,N,Y,N,,[None],TotProd,[None],TotAdj,0,N,N,Y,N,Y,PL,,,,,[ICP None],Y,DefaultParent=5000,English=Change in inventories,German=Bestandsveränderung
5600,EXPENSE,N,Y,N,,[None],TotProd,[None],TotAdj,0,N,N,Y,N,Y,PL,,,,,[ICP None],Y,DefaultParent=5000,English=Plant depreciation,German=Abschreibungen Werk
6000,EXPENSE,Y,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,,[ICP None],N,DefaultParent=3100,English=Expenses,German=Aufwand
6100,EXPENSE,N,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,,[ICP None],Y,DefaultParent=6000,English=Sales,German=Vertrieb
6200,EXPENSE,N,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,,[ICP None],Y,DefaultParent=6000,English=Service,German=Service
6300,EXPENSE,N,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,,[ICP None],Y,DefaultParent=6000,English=Development,German=Entwicklung
6400,EXPENSE,N,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,,[ICP None],Y,DefaultParent=6000,English=Production,German=Fertigung
6500,EXPENSE,N,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,,[ICP None],Y,DefaultParent=6000,English=Purchasing,German=Einkauf
6600,EXPENSE,N,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,,[ICP None],Y,DefaultParent=6000,English=Finance,German=Finanzen
6700,EXPENSE,N,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,,[ICP None],Y,DefaultParent=6000,English=Personnel,German=Personal
6800,EXPENSE,N,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,,[ICP None],Y,DefaultParent=6000,English=Management,German=Leitung
3200,INCOME,Y,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,Treasury,[ICP None],N,DefaultParent=3000,English=Financial result,German=Finanzergebnis
7100,INCOME,N,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,Treasury,[ICP None],Y,DefaultParent=3200,English=Interest received,German=Zinserträge
7150,INCOME,N,Y,R,9950,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,Treasury,[ICP Top],Y,DefaultParent=3200,English=Interest from group companies,German=Zinserträge von verbundenen Unternehmen
7200,EXPENSE,N,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,Treasury,[ICP None],Y,DefaultParent=3200,English=Interest paid,German=Zinsaufwand
7250,EXPENSE,N,Y,R,9950,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,Treasury,[ICP Top],Y,DefaultParent=3200,English=Interest to group companies,German=Zinsaufwand an verbundene Unternehmen
7300,EXPENSE,N,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,Treasury,[ICP None],Y,DefaultParent=3200,English=Exchange differences,German=Kursdifferenzen
7400,INCOME,N,Y,R,9930,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,Treasury,[ICP Top],Y,DefaultParent=3200,English=Dividends from group companies,German=Dividenden von verbundenen Unternehmen
3300,EXPENSE,Y,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,,[ICP None],N,DefaultParent=3000,English=Income taxes,German=Ertragsteuern
7500,EXPENSE,N,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,,[ICP None],Y,DefaultParent=3300,English=Current taxes,German=Laufende Steuern
7600,EXPENSE,N,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,,[ICP None],Y,DefaultParent=3300,English=Deferred taxes (expense),German=Latenter Steueraufwand
EXP,GROUPLABEL,Y,N,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,,[ICP None],N,DefaultParent=#root,English=Expenses by department,German=Aufwand nach Abteilung
61,EXPENSE,Y,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,,[ICP None],N,DefaultParent=EXP,English=Department: Sales,German=Abteilung: Vertrieb
6111,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=61,English=Sales – wages,German=Vertrieb – Löhne
6112,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=61,English=Sales – salaries,German=Vertrieb – Gehälter
6113,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=61,English=Sales – social security,German=Vertrieb – Sozialabgaben
6114,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=61,English=Sales – pensions,German=Vertrieb – Altersversorgung
6121,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=61,English=Sales – travel,German=Vertrieb – Reisekosten
6122,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=61,English=Sales – cars,German=Vertrieb – Fahrzeuge
6123,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=61,English=Sales – representation,German=Vertrieb – Bewirtung
6131,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=61,English=Sales – rent,German=Vertrieb – Miete
6132,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=61,English=Sales – energy,German=Vertrieb – Energie
6133,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=61,English=Sales – repairs,German=Vertrieb – Reparaturen
6134,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=61,English=Sales – cleaning,German=Vertrieb – Reinigung
6141,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=61,English=Sales – post and telephone,German=Vertrieb – Porto und Telefon
6142,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=61,English=Sales – software,German=Vertrieb – Software
6143,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=61,English=Sales – supplies,German=Vertrieb – Bürobedarf
6151,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=61,English=Sales – advice,German=Vertrieb – Beratung
6152,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=61,English=Sales – insurance,German=Vertrieb – Versicherung
6153,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=61,English=Sales – advertising,German=Vertrieb – Werbung
6161,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=61,English=Sales – depreciation,German=Vertrieb – Abschreibung
6199,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=61,English=Sales – sundry,German=Vertrieb – Sonstiges
62,EXPENSE,Y,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,,[ICP None],N,DefaultParent=EXP,English=Department: Service,German=Abteilung: Service
6211,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=62,English=Service – wages,German=Service – Löhne
6212,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=62,English=Service – salaries,German=Service – Gehälter
6213,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=62,English=Service – social security,German=Service – Sozialabgaben
6214,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=62,English=Service – pensions,German=Service – Altersversorgung
6221,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=62,English=Service – travel,German=Service – Reisekosten
6222,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=62,English=Service – cars,German=Service – Fahrzeuge
6223,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=62,English=Service – representation,German=Service – Bewirtung
6231,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=62,English=Service – rent,German=Service – Miete
6232,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=62,English=Service – energy,German=Service – Energie
6233,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=62,English=Service – repairs,German=Service – Reparaturen
6234,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=62,English=Service – cleaning,German=Service – Reinigung
6241,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=62,English=Service – post and telephone,German=Service – Porto und Telefon
6242,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=62,English=Service – software,German=Service – Software
6243,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=62,English=Service – supplies,German=Service – Bürobedarf
6251,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=62,English=Service – advice,German=Service – Beratung
6252,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=62,English=Service – insurance,German=Service – Versicherung
6253,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=62,English=Service – advertising,German=Service – Werbung
6261,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=62,English=Service – depreciation,German=Service – Abschreibung
6299,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=62,English=Service – sundry,German=Service – Sonstiges
63,EXPENSE,Y,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,,[ICP None],N,DefaultParent=EXP,English=Department: Development,German=Abteilung: Entwicklung
6311,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=63,English=Development – wages,German=Entwicklung – Löhne
6312,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=63,English=Development – salaries,German=Entwicklung – Gehälter
6313,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=63,English=Development – social security,German=Entwicklung – Sozialabgaben
6314,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=63,English=Development – pensions,German=Entwicklung – Altersversorgung
6321,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=63,English=Development – travel,German=Entwicklung – Reisekosten
6322,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=63,English=Development – cars,German=Entwicklung – Fahrzeuge
6323,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=63,English=Development – representation,German=Entwicklung – Bewirtung
6331,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=63,English=Development – rent,German=Entwicklung – Miete
6332,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=63,English=Development – energy,German=Entwicklung – Energie
6333,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=63,English=Development – repairs,German=Entwicklung – Reparaturen
6334,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=63,English=Development – cleaning,German=Entwicklung – Reinigung
6341,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=63,English=Development – post and telephone,German=Entwicklung – Porto und Telefon
6342,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=63,English=Development – software,German=Entwicklung – Software
6343,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=63,English=Development – supplies,German=Entwicklung – Bürobedarf
6351,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=63,English=Development – advice,German=Entwicklung – Beratung
6352,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=63,English=Development – insurance,German=Entwicklung – Versicherung
6353,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=63,English=Development – advertising,German=Entwicklung – Werbung
6361,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=63,English=Development – depreciation,German=Entwicklung – Abschreibung
6399,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=63,English=Development – sundry,German=Entwicklung – Sonstiges
64,EXPENSE,Y,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,,[ICP None],N,DefaultParent=EXP,English=Department: Production,German=Abteilung: Fertigung
6411,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=64,English=Production – wages,German=Fertigung – Löhne
6412,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=64,English=Production – salaries,German=Fertigung – Gehälter
6413,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=64,English=Production – social security,German=Fertigung – Sozialabgaben
6414,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=64,English=Production – pensions,German=Fertigung – Altersversorgung
6421,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=64,English=Production – travel,German=Fertigung – Reisekosten
6422,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=64,English=Production – cars,German=Fertigung – Fahrzeuge
6423,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=64,English=Production – representation,German=Fertigung – Bewirtung
6431,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=64,English=Production – rent,German=Fertigung – Miete
6432,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=64,English=Production – energy,German=Fertigung – Energie
6433,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=64,English=Production – repairs,German=Fertigung – Reparaturen
6434,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=64,English=Production – cleaning,German=Fertigung – Reinigung
6441,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=64,English=Production – post and telephone,German=Fertigung – Porto und Telefon
6442,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=64,English=Production – software,German=Fertigung – Software
6443,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=64,English=Production – supplies,German=Fertigung – Bürobedarf
6451,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=64,English=Production – advice,German=Fertigung – Beratung
6452,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=64,English=Production – insurance,German=Fertigung – Versicherung
6453,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=64,English=Production – advertising,German=Fertigung – Werbung
6461,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=64,English=Production – depreciation,German=Fertigung – Abschreibung
6499,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=64,English=Production – sundry,German=Fertigung – Sonstiges
65,EXPENSE,Y,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,,[ICP None],N,DefaultParent=EXP,English=Department: Purchasing,German=Abteilung: Einkauf
6511,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=65,English=Purchasing – wages,German=Einkauf – Löhne
6512,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=65,English=Purchasing – salaries,German=Einkauf – Gehälter
6513,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=65,English=Purchasing – social security,German=Einkauf – Sozialabgaben
6514,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=65,English=Purchasing – pensions,German=Einkauf – Altersversorgung
6521,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=65,English=Purchasing – travel,German=Einkauf – Reisekosten
6522,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=65,English=Purchasing – cars,German=Einkauf – Fahrzeuge
6523,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=65,English=Purchasing – representation,German=Einkauf – Bewirtung
6531,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=65,English=Purchasing – rent,German=Einkauf – Miete
6532,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=65,English=Purchasing – energy,German=Einkauf – Energie
6533,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=65,English=Purchasing – repairs,German=Einkauf – Reparaturen
6534,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=65,English=Purchasing – cleaning,German=Einkauf – Reinigung
6541,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=65,English=Purchasing – post and telephone,German=Einkauf – Porto und Telefon
6542,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=65,English=Purchasing – software,German=Einkauf – Software
6543,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=65,English=Purchasing – supplies,German=Einkauf – Bürobedarf
6551,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=65,English=Purchasing – advice,German=Einkauf – Beratung
6552,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=65,English=Purchasing – insurance,German=Einkauf – Versicherung
6553,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=65,English=Purchasing – advertising,German=Einkauf – Werbung
6561,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=65,English=Purchasing – depreciation,German=Einkauf – Abschreibung
6599,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=65,English=Purchasing – sundry,German=Einkauf – Sonstiges
66,EXPENSE,Y,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,,[ICP None],N,DefaultParent=EXP,English=Department: Finance,German=Abteilung: Finanzen
6611,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=66,English=Finance – wages,German=Finanzen – Löhne
6612,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=66,English=Finance – salaries,German=Finanzen – Gehälter
6613,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=66,English=Finance – social security,German=Finanzen – Sozialabgaben
6614,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=66,English=Finance – pensions,German=Finanzen – Altersversorgung
6621,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=66,English=Finance – travel,German=Finanzen – Reisekosten
6622,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=66,English=Finance – cars,German=Finanzen – Fahrzeuge
6623,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=66,English=Finance – representation,German=Finanzen – Bewirtung
6631,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=66,English=Finance – rent,German=Finanzen – Miete
6632,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=66,English=Finance – energy,German=Finanzen – Energie
6633,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=66,English=Finance – repairs,German=Finanzen – Reparaturen
6634,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=66,English=Finance – cleaning,German=Finanzen – Reinigung
6641,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=66,English=Finance – post and telephone,German=Finanzen – Porto und Telefon
6642,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=66,English=Finance – software,German=Finanzen – Software
6643,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=66,English=Finance – supplies,German=Finanzen – Bürobedarf
6651,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=66,English=Finance – advice,German=Finanzen – Beratung
6652,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=66,English=Finance – insurance,German=Finanzen – Versicherung
6653,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=66,English=Finance – advertising,German=Finanzen – Werbung
6661,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=66,English=Finance – depreciation,German=Finanzen – Abschreibung
6699,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=66,English=Finance – sundry,German=Finanzen – Sonstiges
67,EXPENSE,Y,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,,[ICP None],N,DefaultParent=EXP,English=Department: Personnel,German=Abteilung: Personal
6711,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=67,English=Personnel – wages,German=Personal – Löhne
6712,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=67,English=Personnel – salaries,German=Personal – Gehälter
6713,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=67,English=Personnel – social security,German=Personal – Sozialabgaben
6714,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=67,English=Personnel – pensions,German=Personal – Altersversorgung
6721,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=67,English=Personnel – travel,German=Personal – Reisekosten
6722,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=67,English=Personnel – cars,German=Personal – Fahrzeuge
6723,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=67,English=Personnel – representation,German=Personal – Bewirtung
6731,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=67,English=Personnel – rent,German=Personal – Miete
6732,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=67,English=Personnel – energy,German=Personal – Energie
6733,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=67,English=Personnel – repairs,German=Personal – Reparaturen
6734,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=67,English=Personnel – cleaning,German=Personal – Reinigung
6741,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=67,English=Personnel – post and telephone,German=Personal – Porto und Telefon
6742,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=67,English=Personnel – software,German=Personal – Software
6743,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=67,English=Personnel – supplies,German=Personal – Bürobedarf
6751,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=67,English=Personnel – advice,German=Personal – Beratung
6752,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=67,English=Personnel – insurance,German=Personal – Versicherung
6753,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=67,English=Personnel – advertising,German=Personal – Werbung
6761,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=67,English=Personnel – depreciation,German=Personal – Abschreibung
6799,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=67,English=Personnel – sundry,German=Personal – Sonstiges
68,EXPENSE,Y,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,PL,,,,,[ICP None],N,DefaultParent=EXP,English=Department: Management,German=Abteilung: Leitung
6811,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=68,English=Management – wages,German=Leitung – Löhne
6812,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=68,English=Management – salaries,German=Leitung – Gehälter
6813,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=68,English=Management – social security,German=Leitung – Sozialabgaben
6814,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=68,English=Management – pensions,German=Leitung – Altersversorgung
6821,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=68,English=Management – travel,German=Leitung – Reisekosten
6822,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=68,English=Management – cars,German=Leitung – Fahrzeuge
6823,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=68,English=Management – representation,German=Leitung – Bewirtung
6831,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=68,English=Management – rent,German=Leitung – Miete
6832,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=68,English=Management – energy,German=Leitung – Energie
6833,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=68,English=Management – repairs,German=Leitung – Reparaturen
6834,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=68,English=Management – cleaning,German=Leitung – Reinigung
6841,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=68,English=Management – post and telephone,German=Leitung – Porto und Telefon
6842,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=68,English=Management – software,German=Leitung – Software
6843,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=68,English=Management – supplies,German=Leitung – Bürobedarf
6851,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=68,English=Management – advice,German=Leitung – Beratung
6852,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=68,English=Management – insurance,German=Leitung – Versicherung
6853,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=68,English=Management – advertising,German=Leitung – Werbung
6861,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=68,English=Management – depreciation,German=Leitung – Abschreibung
6899,EXPENSE,N,Y,N,,[None],[None],[None],TotAdj,0,Y,N,N,N,Y,PL,,,,,[ICP None],Y,DefaultParent=68,English=Management – sundry,German=Leitung – Sonstiges
STAT,GROUPLABEL,Y,N,N,,[None],[None],[None],[None],0,N,N,N,N,N,ST,,,,,[ICP None],N,DefaultParent=#root,English=Statistics,German=Statistik
8100,BALANCE,Y,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,ST,,,,Personnel,[ICP None],N,DefaultParent=STAT,English=Headcount,German=Mitarbeiter
811,BALANCE,N,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,ST,,,,Personnel,[ICP None],Y,DefaultParent=8100,English=Headcount – Sales,German=Mitarbeiter – Vertrieb
812,BALANCE,N,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,ST,,,,Personnel,[ICP None],Y,DefaultParent=8100,English=Headcount – Service,German=Mitarbeiter – Service
813,BALANCE,N,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,ST,,,,Personnel,[ICP None],Y,DefaultParent=8100,English=Headcount – Development,German=Mitarbeiter – Entwicklung
814,BALANCE,N,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,ST,,,,Personnel,[ICP None],Y,DefaultParent=8100,English=Headcount – Production,German=Mitarbeiter – Fertigung
815,BALANCE,N,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,ST,,,,Personnel,[ICP None],Y,DefaultParent=8100,English=Headcount – Purchasing,German=Mitarbeiter – Einkauf
816,BALANCE,N,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,ST,,,,Personnel,[ICP None],Y,DefaultParent=8100,English=Headcount – Finance,German=Mitarbeiter – Finanzen
817,BALANCE,N,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,ST,,,,Personnel,[ICP None],Y,DefaultParent=8100,English=Headcount – Personnel,German=Mitarbeiter – Personal
818,BALANCE,N,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,ST,,,,Personnel,[ICP None],Y,DefaultParent=8100,English=Headcount – Management,German=Mitarbeiter – Leitung
8200,FLOW,Y,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,ST,,,,,[ICP None],N,DefaultParent=STAT,English=Orders,German=Aufträge
8210,FLOW,N,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,ST,,,,,[ICP None],Y,DefaultParent=8200,English=Orders received (€ 000),German=Auftragseingang (T€)
8220,FLOW,N,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,ST,,,,,[ICP None],Y,DefaultParent=8200,English=Orders cancelled (€ 000),German=Stornierungen (T€)
8230,FLOW,N,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,ST,,,,,[ICP None],Y,DefaultParent=8200,English=Order book (€ 000),German=Auftragsbestand (T€)
8300,FLOW,Y,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,ST,,,,,[ICP None],N,DefaultParent=STAT,English=Quality,German=Qualität
8310,FLOW,N,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,ST,,,,,[ICP None],Y,DefaultParent=8300,English=Complaints (‰),German=Reklamationen (‰)
8320,FLOW,N,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,ST,,,,,[ICP None],Y,DefaultParent=8300,English=Returns (‰),German=Rücksendungen (‰)
8330,FLOW,N,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,ST,,,,,[ICP None],Y,DefaultParent=8300,English=Ø days to repair,German=Ø Tage bis Reparatur
8400,BALANCE,Y,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,ST,,,,,[ICP None],N,DefaultParent=STAT,English=Net working capital,German=Nettoumlaufvermögen
8500,DYNAMIC,Y,N,N,,[None],[None],[None],[None],1,N,N,N,N,N,ST,,,,,[ICP None],N,DefaultParent=STAT,English=Margins,German=Margen
GM%,DYNAMIC,Y,N,N,,[None],[None],[None],[None],1,N,N,N,N,N,ST,,,,,[ICP None],N,DefaultParent=8500,English=Gross margin,German=Bruttomarge
EBIT%,DYNAMIC,Y,N,N,,[None],[None],[None],[None],1,N,N,N,N,N,ST,,,,,[ICP None],N,DefaultParent=8500,English=Operating margin,German=Betriebsmarge
Rates,GROUPLABEL,Y,N,N,,[None],[None],[None],[None],0,N,N,N,N,N,,,,,,[ICP None],N,DefaultParent=#root,English=Exchange rates,German=Wechselkurse
CLO RATE,CURRENCYRATE,N,N,N,,[None],[None],[None],[None],6,N,N,N,N,N,,,,,,[ICP None],N,DefaultParent=Rates,English=Closing rate,German=Stichtagskurs
AVE RATE,CURRENCYRATE,N,N,N,,[None],[None],[None],[None],6,N,N,N,N,N,,,,,,[ICP None],N,DefaultParent=Rates,English=Average rate,German=Ø-Kurs
ELIM,BALANCE,Y,Y,N,,[None],[None],[None],[None],0,N,N,N,N,N,,,,,,[ICP None],N,DefaultParent=#root,English=Intercompany differences,German=Konzerndifferenzen
9910,ASSET,N,Y,Y,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,,,,,,[ICP Top],Y,DefaultParent=ELIM,English=Trade,German=Lieferungen und Leistungen
9920,ASSET,N,Y,Y,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,,,,,,[ICP Top],Y,DefaultParent=ELIM,English=Loans,German=Darlehen
9930,ASSET,N,Y,Y,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,,,,,,[ICP Top],Y,DefaultParent=ELIM,English=Shares and dividends,German=Anteile und Dividenden
9940,ASSET,N,Y,Y,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,,,,,,[ICP Top],Y,DefaultParent=ELIM,English=Sales and purchases,German=Umsatz und Bezüge
9950,ASSET,N,Y,Y,,EndBal,[None],[None],TotAdj,0,N,Y,N,N,Y,,,,,,[ICP Top],Y,DefaultParent=ELIM,English=Interest,German=Zinsen
Active,BALANCERECURRING,N,N,Y,,[None],[None],[None],[None],0,N,N,N,N,N,,,,,,[ICP Top],N,DefaultParent=#root,English=Active
PCON,BALANCE,N,N,Y,,[None],[None],[None],[None],0,N,N,N,N,N,,,,,,[ICP Top],N,DefaultParent=#root,English=Percent consolidation,German=Konsolidierungsquote
POWN,BALANCE,N,N,Y,,[None],[None],[None],[None],0,N,N,N,N,N,,,,,,[ICP Top],N,DefaultParent=#root,English=Percent ownership,German=Beteiligungsquote
PCTRL,BALANCE,N,N,Y,,[None],[None],[None],[None],0,N,N,N,N,N,,,,,,[ICP Top],N,DefaultParent=#root,English=Percent control,German=Stimmrechtsquote
Method,BALANCE,N,N,Y,,[None],[None],[None],[None],0,N,N,N,N,N,,,,,,[ICP Top],N,DefaultParent=#root,English=Method,German=Methode
SharesOwned,BALANCE,N,N,Y,,[None],[None],[None],[None],0,N,N,N,N,N,,,,,,[ICP Top],N,DefaultParent=#root,English=Shares owned,German=Gehaltene Anteile
SharesOutstanding,BALANCE,N,N,Y,,[None],[None],[None],[None],0,N,N,N,N,N,,,,,,[ICP Top],N,DefaultParent=#root,English=Shares outstanding,German=Ausgegebene Anteile
!HIERARCHIES=Account
,BS
BS,1000
1000,1100
1100,1110
1100,1120
1100,1130
1100,1140
1100,1190
1000,1200
1200,1210
1210,12100
1210,12101
1210,12102
1210,12103
1210,12104
1210,12105
1200,1220
1200,1230
1200,1280
1200,1290
1000,1300
1300,13100
13100,13101
13100,13102
1300,13200
13200,13201
13200,13202
1300,13300
13300,13301
13300,13302
1300,13400
13400,13401
13400,13402
1300,13500
13500,13501
13500,13502
1300,13600
13600,13601
13600,13602
1000,1500
1500,1510
1510,15101
1510,15102
1510,15103
1510,15104
1500,1515
1515,15151
1515,15152
1515,15153
1515,15154
1500,1520
1520,15201
1520,15202
1520,15203
1520,15204
1500,1525
1525,15251
1525,15252
1525,15253
1525,15254
1500,1530
1530,15301
1530,15302
1530,15303
1530,15304
1500,1535
1535,15351
1535,15352
1535,15353
1535,15354
1500,1540
1540,15401
1540,15402
1540,15403
1540,15404
1500,1545
1545,15451
1545,15452
1545,15453
1545,15454
1000,1600
1600,1605
1605,16051
1605,16052
1605,16053
1605,16054
1600,1610
1610,16101
1610,16102
1610,16103
1610,16104
1600,1615
1615,16151
1615,16152
1615,16153
1615,16154
1600,1620
1620,16201
1620,16202
1620,16203
1620,16204
1600,1625
1625,16251
1625,16252
1625,16253
1625,16254
1600,1630
1630,16301
1630,16302
1630,16303
1630,16304
1600,1635
1635,16351
1635,16352
1635,16353
1635,16354
1600,1640
1640,16401
1640,16402
1640,16403
1640,16404
1000,1800
1000,1900
BS,2000
2000,2100
2100,2110
2100,2120
2100,2130
2100,2140
2100,2150
2100,2190
2000,2200
2200,2210
2210,2210C
2210,2210N
2200,2220
2220,2220C
2220,2220N
2200,2230
2230,2230C
2230,2230N
2200,2240
2240,2240C
2240,2240N
2200,2250
2250,2250C
2250,2250N
2200,2260
2260,2260C
2260,2260N
2200,2270
2270,2270C
2270,2270N
2200,2280
2280,2280C
2280,2280N
2000,2400
2400,2410
2410,24101
2410,24102
2410,24103
2410,24105
2400,2420
2420,24201
2420,24202
2420,24203
2420,24205
2400,2430
2430,24301
2430,24302
2430,24303
2430,24305
2400,2440
2440,24401
2440,24402
2440,24403
2440,24405
2400,2450
2450,24501
2450,24502
2450,24503
2450,24505
2400,2460
2460,24601
2460,24602
2460,24603
2460,24605
2400,2470
2470,24701
2470,24702
2470,24703
2470,24705
2400,2490
2000,2600
2600,2610
2600,2620
2600,2630
2000,2900
2900,2910
2900,2920
2900,2930
2900,2940
2900,2950
2900,2990
,PL
PL,3000
3000,3100
3100,4000
4000,4100
4000,4200
4000,4300
4000,4400
4000,4500
4000,4900
3100,5000
5000,5100
5000,5200
5000,5300
5000,5400
5000,5500
5000,5600
3100,6000
6000,6100
6000,6200
6000,6300
6000,6400
6000,6500
6000,6600
6000,6700
6000,6800
3000,3200
3200,7100
3200,7150
3200,7200
3200,7250
3200,7300
3200,7400
3000,3300
3300,7500
3300,7600
,EXP
EXP,61
61,6111
61,6112
61,6113
61,6114
61,6121
61,6122
61,6123
61,6131
61,6132
61,6133
61,6134
61,6141
61,6142
61,6143
61,6151
61,6152
61,6153
61,6161
61,6199
EXP,62
62,6211
62,6212
62,6213
62,6214
62,6221
62,6222
62,6223
62,6231
62,6232
62,6233
62,6234
62,6241
62,6242
62,6243
62,6251
62,6252
62,6253
62,6261
62,6299
EXP,63
63,6311
63,6312
63,6313
63,6314
63,6321
63,6322
63,6323
63,6331
63,6332
63,6333
63,6334
63,6341
63,6342
63,6343
63,6351
63,6352
63,6353
63,6361
63,6399
EXP,64
64,6411
64,6412
64,6413
64,6414
64,6421
64,6422
64,6423
64,6431
64,6432
64,6433
64,6434
64,6441
64,6442
64,6443
64,6451
64,6452
64,6453
64,6461
64,6499
EXP,65
65,6511
65,6512
65,6513
65,6514
65,6521
65,6522
65,6523
65,6531
65,6532
65,6533
65,6534
65,6541
65,6542
65,6543
65,6551
65,6552
65,6553
65,6561
65,6599
EXP,66
66,6611
66,6612
66,6613
66,6614
66,6621
66,6622
66,6623
66,6631
66,6632
66,6633
66,6634
66,6641
66,6642
66,6643
66,6651
66,6652
66,6653
66,6661
66,6699
EXP,67
67,6711
67,6712
67,6713
67,6714
67,6721
67,6722
67,6723
67,6731
67,6732
67,6733
67,6734
67,6741
67,6742
67,6743
67,6751
67,6752
67,6753
67,6761
67,6799
EXP,68
68,6811
68,6812
68,6813
68,6814
68,6821
68,6822
68,6823
68,6831
68,6832
68,6833
68,6834
68,6841
68,6842
68,6843
68,6851
68,6852
68,6853
68,6861
68,6899
,STAT
STAT,8100
8100,811
8100,812
8100,813
8100,814
8100,815
8100,816
8100,817
8100,818
STAT,8200
8200,8210
8200,8220
8200,8230
STAT,8300
8300,8310
8300,8320
8300,8330
STAT,8400
8400,1200
8400,1300
8400,2100
STAT,8500
8500,GM%
8500,EBIT%
,Rates
Rates,CLO RATE
Rates,AVE RATE
,ELIM
ELIM,9910
ELIM,9920
ELIM,9930
ELIM,9940
ELIM,9950
,Active
,PCON
,POWN
,PCTRL
,Method
,SharesOwned
,SharesOutstanding
!MEMBERS=Custom1
[None],N,N,N,,,,,DefaultParent=#root
EndBal,Y,N,N,,,,,DefaultParent=#root,English=Ending balance,German=Endbestand
BegBal,N,N,N,,,,,DefaultParent=EndBal,English=Beginning balance,German=Anfangsbestand
Changes,Y,N,N,,,,,DefaultParent=EndBal,English=Changes of the year,German=Veränderungen
Add,N,N,N,,,,,DefaultParent=Changes,English=Additions,German=Zugänge
Ret,N,N,N,,,,,DefaultParent=Changes,English=Retirements,German=Abgänge
Depr,N,N,N,,,,,DefaultParent=Changes,English=Depreciation,German=Abschreibungen
Impair,N,N,N,,,,,DefaultParent=Changes,English=Impairment,German=Wertminderungen
Transf,N,N,N,,,,,DefaultParent=Changes,English=Transfers,German=Umbuchungen
Acq,N,N,N,,,,,DefaultParent=Changes,English=Acquisitions,German=Erstkonsolidierung
Disp,N,N,N,,,,,DefaultParent=Changes,English=Disposals,German=Entkonsolidierung
Alloc,N,N,N,,,,,DefaultParent=Changes,English=Allocated,German=Zuführung
Used,N,N,N,,,,,DefaultParent=Changes,English=Used,German=Verbrauch
Releas,N,N,N,,,,,DefaultParent=Changes,English=Released,German=Auflösung
Divid,N,N,N,,,,,DefaultParent=Changes,English=Dividends,German=Dividenden
Income,N,N,N,,,,,DefaultParent=Changes,English=Net income,German=Jahresergebnis
Translation,Y,N,N,,,,,DefaultParent=EndBal,English=Translation,German=Umrechnung
CashMvt,Y,N,N,,,,,DefaultParent=#root,English=Cash movements,German=Zahlungswirksam
!HIERARCHIES=Custom1
,[None],0
,EndBal,1
EndBal,BegBal,1
EndBal,Changes,1
Changes,Add,1
Changes,Ret,1
Changes,Depr,1
Changes,Impair,1
Changes,Transf,1
Changes,Acq,1
Changes,Disp,1
Changes,Alloc,1
Changes,Used,1
Changes,Releas,1
Changes,Divid,1
Changes,Income,1
EndBal,Translation,1
,CashMvt,1
CashMvt,Add,1
CashMvt,Ret,1
CashMvt,Divid,1
!MEMBERS=Custom2
[None],N,N,N,,,,,DefaultParent=#root
TotProd,Y,N,N,,,,,DefaultParent=#root,English=All instruments,German=Alle Instrumente
I1,Y,N,N,,,,,DefaultParent=TotProd,English=Scales,German=Waagen
I1A,Y,N,N,,,,,DefaultParent=I1,English=Scales – pocket,German=Waagen – Tasche
I1A1,N,N,N,,,,,DefaultParent=I1A,English=Scales – pocket – standard,German=Waagen – Tasche – Standard
I1A2,N,N,N,,,,,DefaultParent=I1A,English=Scales – pocket – precision ±0.1%,German=Waagen – Tasche – Präzision ±0.1%
I1A3,N,N,N,,,,,DefaultParent=I1A,English=Scales – pocket – explosion-proof,German=Waagen – Tasche – explosionsgeschützt
I1B,Y,N,N,,,,,DefaultParent=I1,English=Scales – bench,German=Waagen – Tisch
I1B1,N,N,N,,,,,DefaultParent=I1B,English=Scales – bench – standard,German=Waagen – Tisch – Standard
I1B2,N,N,N,,,,,DefaultParent=I1B,English=Scales – bench – precision ±0.1%,German=Waagen – Tisch – Präzision ±0.1%
I1B3,N,N,N,,,,,DefaultParent=I1B,English=Scales – bench – explosion-proof,German=Waagen – Tisch – explosionsgeschützt
I1C,Y,N,N,,,,,DefaultParent=I1,English=Scales – floor,German=Waagen – Boden
I1C1,N,N,N,,,,,DefaultParent=I1C,English=Scales – floor – standard,German=Waagen – Boden – Standard
I1C2,N,N,N,,,,,DefaultParent=I1C,English=Scales – floor – precision ±0.1%,German=Waagen – Boden – Präzision ±0.1%
I1C3,N,N,N,,,,,DefaultParent=I1C,English=Scales – floor – explosion-proof,German=Waagen – Boden – explosionsgeschützt
I1D,Y,N,N,,,,,DefaultParent=I1,English=Scales – built-in,German=Waagen – Einbau
I1D1,N,N,N,,,,,DefaultParent=I1D,English=Scales – built-in – standard,German=Waagen – Einbau – Standard
I1D2,N,N,N,,,,,DefaultParent=I1D,English=Scales – built-in – precision ±0.1%,German=Waagen – Einbau – Präzision ±0.1%
I1D3,N,N,N,,,,,DefaultParent=I1D,English=Scales – built-in – explosion-proof,German=Waagen – Einbau – explosionsgeschützt
I2,Y,N,N,,,,,DefaultParent=TotProd,English=Thermometers,German=Thermometer
I2A,Y,N,N,,,,,DefaultParent=I2,English=Thermometers – pocket,German=Thermometer – Tasche
I2A1,N,N,N,,,,,DefaultParent=I2A,English=Thermometers – pocket – standard,German=Thermometer – Tasche – Standard
I2A2,N,N,N,,,,,DefaultParent=I2A,English=Thermometers – pocket – precision ±0.1%,German=Thermometer – Tasche – Präzision ±0.1%
I2A3,N,N,N,,,,,DefaultParent=I2A,English=Thermometers – pocket – explosion-proof,German=Thermometer – Tasche – explosionsgeschützt
I2B,Y,N,N,,,,,DefaultParent=I2,English=Thermometers – bench,German=Thermometer – Tisch
I2B1,N,N,N,,,,,DefaultParent=I2B,English=Thermometers – bench – standard,German=Thermometer – Tisch – Standard
I2B2,N,N,N,,,,,DefaultParent=I2B,English=Thermometers – bench – precision ±0.1%,German=Thermometer – Tisch – Präzision ±0.1%
I2B3,N,N,N,,,,,DefaultParent=I2B,English=Thermometers – bench – explosion-proof,German=Thermometer – Tisch – explosionsgeschützt
I2C,Y,N,N,,,,,DefaultParent=I2,English=Thermometers – floor,German=Thermometer – Boden
I2C1,N,N,N,,,,,DefaultParent=I2C,English=Thermometers – floor – standard,German=Thermometer – Boden – Standard
I2C2,N,N,N,,,,,DefaultParent=I2C,English=Thermometers – floor – precision ±0.1%,German=Thermometer – Boden – Präzision ±0.1%
I2C3,N,N,N,,,,,DefaultParent=I2C,English=Thermometers – floor – explosion-proof,German=Thermometer – Boden – explosionsgeschützt
I2D,Y,N,N,,,,,DefaultParent=I2,English=Thermometers – built-in,German=Thermometer – Einbau
I2D1,N,N,N,,,,,DefaultParent=I2D,English=Thermometers – built-in – standard,German=Thermometer – Einbau – Standard
I2D2,N,N,N,,,,,DefaultParent=I2D,English=Thermometers – built-in – precision ±0.1%,German=Thermometer – Einbau – Präzision ±0.1%
I2D3,N,N,N,,,,,DefaultParent=I2D,English=Thermometers – built-in – explosion-proof,German=Thermometer – Einbau – explosionsgeschützt
I3,Y,N,N,,,,,DefaultParent=TotProd,English=Pressure gauges,German=Manometer
I3A,Y,N,N,,,,,DefaultParent=I3,English=Pressure gauges – pocket,German=Manometer – Tasche
I3A1,N,N,N,,,,,DefaultParent=I3A,English=Pressure gauges – pocket – standard,German=Manometer – Tasche – Standard
I3A2,N,N,N,,,,,DefaultParent=I3A,English=Pressure gauges – pocket – precision ±0.1%,German=Manometer – Tasche – Präzision ±0.1%
I3A3,N,N,N,,,,,DefaultParent=I3A,English=Pressure gauges – pocket – explosion-proof,German=Manometer – Tasche – explosionsgeschützt
I3B,Y,N,N,,,,,DefaultParent=I3,English=Pressure gauges – bench,German=Manometer – Tisch
I3B1,N,N,N,,,,,DefaultParent=I3B,English=Pressure gauges – bench – standard,German=Manometer – Tisch – Standard
I3B2,N,N,N,,,,,DefaultParent=I3B,English=Pressure gauges – bench – precision ±0.1%,German=Manometer – Tisch – Präzision ±0.1%
I3B3,N,N,N,,,,,DefaultParent=I3B,English=Pressure gauges – bench – explosion-proof,German=Manometer – Tisch – explosionsgeschützt
I3C,Y,N,N,,,,,DefaultParent=I3,English=Pressure gauges – floor,German=Manometer – Boden
I3C1,N,N,N,,,,,DefaultParent=I3C,English=Pressure gauges – floor – standard,German=Manometer – Boden – Standard
I3C2,N,N,N,,,,,DefaultParent=I3C,English=Pressure gauges – floor – precision ±0.1%,German=Manometer – Boden – Präzision ±0.1%
I3C3,N,N,N,,,,,DefaultParent=I3C,English=Pressure gauges – floor – explosion-proof,German=Manometer – Boden – explosionsgeschützt
I3D,Y,N,N,,,,,DefaultParent=I3,English=Pressure gauges – built-in,German=Manometer – Einbau
I3D1,N,N,N,,,,,DefaultParent=I3D,English=Pressure gauges – built-in – standard,German=Manometer – Einbau – Standard
I3D2,N,N,N,,,,,DefaultParent=I3D,English=Pressure gauges – built-in – precision ±0.1%,German=Manometer – Einbau – Präzision ±0.1%
I3D3,N,N,N,,,,,DefaultParent=I3D,English=Pressure gauges – built-in – explosion-proof,German=Manometer – Einbau – explosionsgeschützt
I4,Y,N,N,,,,,DefaultParent=TotProd,English=Flow meters,German=Durchflussmesser
I4A,Y,N,N,,,,,DefaultParent=I4,English=Flow meters – pocket,German=Durchflussmesser – Tasche
I4A1,N,N,N,,,,,DefaultParent=I4A,English=Flow meters – pocket – standard,German=Durchflussmesser – Tasche – Standard
I4A2,N,N,N,,,,,DefaultParent=I4A,English=Flow meters – pocket – precision ±0.1%,German=Durchflussmesser – Tasche – Präzision ±0.1%
I4A3,N,N,N,,,,,DefaultParent=I4A,English=Flow meters – pocket – explosion-proof,German=Durchflussmesser – Tasche – explosionsgeschützt
I4B,Y,N,N,,,,,DefaultParent=I4,English=Flow meters – bench,German=Durchflussmesser – Tisch
I4B1,N,N,N,,,,,DefaultParent=I4B,English=Flow meters – bench – standard,German=Durchflussmesser – Tisch – Standard
I4B2,N,N,N,,,,,DefaultParent=I4B,English=Flow meters – bench – precision ±0.1%,German=Durchflussmesser – Tisch – Präzision ±0.1%
I4B3,N,N,N,,,,,DefaultParent=I4B,English=Flow meters – bench – explosion-proof,German=Durchflussmesser – Tisch – explosionsgeschützt
I4C,Y,N,N,,,,,DefaultParent=I4,English=Flow meters – floor,German=Durchflussmesser – Boden
I4C1,N,N,N,,,,,DefaultParent=I4C,English=Flow meters – floor – standard,German=Durchflussmesser – Boden – Standard
I4C2,N,N,N,,,,,DefaultParent=I4C,English=Flow meters – floor – precision ±0.1%,German=Durchflussmesser – Boden – Präzision ±0.1%
I4C3,N,N,N,,,,,DefaultParent=I4C,English=Flow meters – floor – explosion-proof,German=Durchflussmesser – Boden – explosionsgeschützt
I4D,Y,N,N,,,,,DefaultParent=I4,English=Flow meters – built-in,German=Durchflussmesser – Einbau
I4D1,N,N,N,,,,,DefaultParent=I4D,English=Flow meters – built-in – standard,German=Durchflussmesser – Einbau – Standard
I4D2,N,N,N,,,,,DefaultParent=I4D,English=Flow meters – built-in – precision ±0.1%,German=Durchflussmesser – Einbau – Präzision ±0.1%
I4D3,N,N,N,,,,,DefaultParent=I4D,English=Flow meters – built-in – explosion-proof,German=Durchflussmesser – Einbau – explosionsgeschützt
I5,Y,N,N,,,,,DefaultParent=TotProd,English=Microscopes,German=Mikroskope
I5A,Y,N,N,,,,,DefaultParent=I5,English=Microscopes – pocket,German=Mikroskope – Tasche
I5A1,N,N,N,,,,,DefaultParent=I5A,English=Microscopes – pocket – standard,German=Mikroskope – Tasche – Standard
I5A2,N,N,N,,,,,DefaultParent=I5A,English=Microscopes – pocket – precision ±0.1%,German=Mikroskope – Tasche – Präzision ±0.1%
I5A3,N,N,N,,,,,DefaultParent=I5A,English=Microscopes – pocket – explosion-proof,German=Mikroskope – Tasche – explosionsgeschützt
I5B,Y,N,N,,,,,DefaultParent=I5,English=Microscopes – bench,German=Mikroskope – Tisch
I5B1,N,N,N,,,,,DefaultParent=I5B,English=Microscopes – bench – standard,German=Mikroskope – Tisch – Standard
I5B2,N,N,N,,,,,DefaultParent=I5B,English=Microscopes – bench – precision ±0.1%,German=Mikroskope – Tisch – Präzision ±0.1%
I5B3,N,N,N,,,,,DefaultParent=I5B,English=Microscopes – bench – explosion-proof,German=Mikroskope – Tisch – explosionsgeschützt
I5C,Y,N,N,,,,,DefaultParent=I5,English=Microscopes – floor,German=Mikroskope – Boden
I5C1,N,N,N,,,,,DefaultParent=I5C,English=Microscopes – floor – standard,German=Mikroskope – Boden – Standard
I5C2,N,N,N,,,,,DefaultParent=I5C,English=Microscopes – floor – precision ±0.1%,German=Mikroskope – Boden – Präzision ±0.1%
I5C3,N,N,N,,,,,DefaultParent=I5C,English=Microscopes – floor – explosion-proof,German=Mikroskope – Boden – explosionsgeschützt
I5D,Y,N,N,,,,,DefaultParent=I5,English=Microscopes – built-in,German=Mikroskope – Einbau
I5D1,N,N,N,,,,,DefaultParent=I5D,English=Microscopes – built-in – standard,German=Mikroskope – Einbau – Standard
I5D2,N,N,N,,,,,DefaultParent=I5D,English=Microscopes – built-in – precision ±0.1%,German=Mikroskope – Einbau – Präzision ±0.1%
I5D3,N,N,N,,,,,DefaultParent=I5D,English=Microscopes – built-in – explosion-proof,German=Mikroskope – Einbau – explosionsgeschützt
I6,Y,N,N,,,,,DefaultParent=TotProd,English=Theodolites,German=Theodolite
I6A,Y,N,N,,,,,DefaultParent=I6,English=Theodolites – pocket,German=Theodolite – Tasche
I6A1,N,N,N,,,,,DefaultParent=I6A,English=Theodolites – pocket – standard,German=Theodolite – Tasche – Standard
I6A2,N,N,N,,,,,DefaultParent=I6A,English=Theodolites – pocket – precision ±0.1%,German=Theodolite – Tasche – Präzision ±0.1%
I6A3,N,N,N,,,,,DefaultParent=I6A,English=Theodolites – pocket – explosion-proof,German=Theodolite – Tasche – explosionsgeschützt
I6B,Y,N,N,,,,,DefaultParent=I6,English=Theodolites – bench,German=Theodolite – Tisch
I6B1,N,N,N,,,,,DefaultParent=I6B,English=Theodolites – bench – standard,German=Theodolite – Tisch – Standard
I6B2,N,N,N,,,,,DefaultParent=I6B,English=Theodolites – bench – precision ±0.1%,German=Theodolite – Tisch – Präzision ±0.1%
I6B3,N,N,N,,,,,DefaultParent=I6B,English=Theodolites – bench – explosion-proof,German=Theodolite – Tisch – explosionsgeschützt
I6C,Y,N,N,,,,,DefaultParent=I6,English=Theodolites – floor,German=Theodolite – Boden
I6C1,N,N,N,,,,,DefaultParent=I6C,English=Theodolites – floor – standard,German=Theodolite – Boden – Standard
I6C2,N,N,N,,,,,DefaultParent=I6C,English=Theodolites – floor – precision ±0.1%,German=Theodolite – Boden – Präzision ±0.1%
I6C3,N,N,N,,,,,DefaultParent=I6C,English=Theodolites – floor – explosion-proof,German=Theodolite – Boden – explosionsgeschützt
I6D,Y,N,N,,,,,DefaultParent=I6,English=Theodolites – built-in,German=Theodolite – Einbau
I6D1,N,N,N,,,,,DefaultParent=I6D,English=Theodolites – built-in – standard,German=Theodolite – Einbau – Standard
I6D2,N,N,N,,,,,DefaultParent=I6D,English=Theodolites – built-in – precision ±0.1%,German=Theodolite – Einbau – Präzision ±0.1%
I6D3,N,N,N,,,,,DefaultParent=I6D,English=Theodolites – built-in – explosion-proof,German=Theodolite – Einbau – explosionsgeschützt
I7,Y,N,N,,,,,DefaultParent=TotProd,English=Gas detectors,German=Gasmelder
I7A,Y,N,N,,,,,DefaultParent=I7,English=Gas detectors – pocket,German=Gasmelder – Tasche
I7A1,N,N,N,,,,,DefaultParent=I7A,English=Gas detectors – pocket – standard,German=Gasmelder – Tasche – Standard
I7A2,N,N,N,,,,,DefaultParent=I7A,English=Gas detectors – pocket – precision ±0.1%,German=Gasmelder – Tasche – Präzision ±0.1%
I7A3,N,N,N,,,,,DefaultParent=I7A,English=Gas detectors – pocket – explosion-proof,German=Gasmelder – Tasche – explosionsgeschützt
I7B,Y,N,N,,,,,DefaultParent=I7,English=Gas detectors – bench,German=Gasmelder – Tisch
I7B1,N,N,N,,,,,DefaultParent=I7B,English=Gas detectors – bench – standard,German=Gasmelder – Tisch – Standard
I7B2,N,N,N,,,,,DefaultParent=I7B,English=Gas detectors – bench – precision ±0.1%,German=Gasmelder – Tisch – Präzision ±0.1%
I7B3,N,N,N,,,,,DefaultParent=I7B,English=Gas detectors – bench – explosion-proof,German=Gasmelder – Tisch – explosionsgeschützt
I7C,Y,N,N,,,,,DefaultParent=I7,English=Gas detectors – floor,German=Gasmelder – Boden
I7C1,N,N,N,,,,,DefaultParent=I7C,English=Gas detectors – floor – standard,German=Gasmelder – Boden – Standard
I7C2,N,N,N,,,,,DefaultParent=I7C,English=Gas detectors – floor – precision ±0.1%,German=Gasmelder – Boden – Präzision ±0.1%
I7C3,N,N,N,,,,,DefaultParent=I7C,English=Gas detectors – floor – explosion-proof,German=Gasmelder – Boden – explosionsgeschützt
I7D,Y,N,N,,,,,DefaultParent=I7,English=Gas detectors – built-in,German=Gasmelder – Einbau
I7D1,N,N,N,,,,,DefaultParent=I7D,English=Gas detectors – built-in – standard,German=Gasmelder – Einbau – Standard
I7D2,N,N,N,,,,,DefaultParent=I7D,English=Gas detectors – built-in – precision ±0.1%,German=Gasmelder – Einbau – Präzision ±0.1%
I7D3,N,N,N,,,,,DefaultParent=I7D,English=Gas detectors – built-in – explosion-proof,German=Gasmelder – Einbau – explosionsgeschützt
I8,Y,N,N,,,,,DefaultParent=TotProd,English=Clocks,German=Uhren
I8A,Y,N,N,,,,,DefaultParent=I8,English=Clocks – pocket,German=Uhren – Tasche
I8A1,N,N,N,,,,,DefaultParent=I8A,English=Clocks – pocket – standard,German=Uhren – Tasche – Standard
I8A2,N,N,N,,,,,DefaultParent=I8A,English=Clocks – pocket – precision ±0.1%,German=Uhren – Tasche – Präzision ±0.1%
I8A3,N,N,N,,,,,DefaultParent=I8A,English=Clocks – pocket – explosion-proof,German=Uhren – Tasche – explosionsgeschützt
I8B,Y,N,N,,,,,DefaultParent=I8,English=Clocks – bench,German=Uhren – Tisch
I8B1,N,N,N,,,,,DefaultParent=I8B,English=Clocks – bench – standard,German=Uhren – Tisch – Standard
I8B2,N,N,N,,,,,DefaultParent=I8B,English=Clocks – bench – precision ±0.1%,German=Uhren – Tisch – Präzision ±0.1%
I8B3,N,N,N,,,,,DefaultParent=I8B,English=Clocks – bench – explosion-proof,German=Uhren – Tisch – explosionsgeschützt
I8C,Y,N,N,,,,,DefaultParent=I8,English=Clocks – floor,German=Uhren – Boden
I8C1,N,N,N,,,,,DefaultParent=I8C,English=Clocks – floor – standard,German=Uhren – Boden – Standard
I8C2,N,N,N,,,,,DefaultParent=I8C,English=Clocks – floor – precision ±0.1%,German=Uhren – Boden – Präzision ±0.1%
I8C3,N,N,N,,,,,DefaultParent=I8C,English=Clocks – floor – explosion-proof,German=Uhren – Boden – explosionsgeschützt
I8D,Y,N,N,,,,,DefaultParent=I8,English=Clocks – built-in,German=Uhren – Einbau
I8D1,N,N,N,,,,,DefaultParent=I8D,English=Clocks – built-in – standard,German=Uhren – Einbau – Standard
I8D2,N,N,N,,,,,DefaultParent=I8D,English=Clocks – built-in – precision ±0.1%,German=Uhren – Einbau – Präzision ±0.1%
I8D3,N,N,N,,,,,DefaultParent=I8D,English=Clocks – built-in – explosion-proof,German=Uhren – Einbau – explosionsgeschützt
I9,N,N,N,,,,,DefaultParent=TotProd,English=Not allocated,German=Nicht zugeordnet
Precision,Y,N,N,,,,,DefaultParent=#root,English=All precision instruments,German=Alle Präzisionsinstrumente
Ex-proof,Y,N,N,,,,,DefaultParent=#root,English=All explosion-proof instruments,German=Alle explosionsgeschützten Instrumente
!HIERARCHIES=Custom2
,[None],0
,TotProd,1
TotProd,I1,1
I1,I1A,1
I1A,I1A1,1
I1A,I1A2,1
I1A,I1A3,1
I1,I1B,1
I1B,I1B1,1
I1B,I1B2,1
I1B,I1B3,1
I1,I1C,1
I1C,I1C1,1
I1C,I1C2,1
I1C,I1C3,1
I1,I1D,1
I1D,I1D1,1
I1D,I1D2,1
I1D,I1D3,1
TotProd,I2,1
I2,I2A,1
I2A,I2A1,1
I2A,I2A2,1
I2A,I2A3,1
I2,I2B,1
I2B,I2B1,1
I2B,I2B2,1
I2B,I2B3,1
I2,I2C,1
I2C,I2C1,1
I2C,I2C2,1
I2C,I2C3,1
I2,I2D,1
I2D,I2D1,1
I2D,I2D2,1
I2D,I2D3,1
TotProd,I3,1
I3,I3A,1
I3A,I3A1,1
I3A,I3A2,1
I3A,I3A3,1
I3,I3B,1
I3B,I3B1,1
I3B,I3B2,1
I3B,I3B3,1
I3,I3C,1
I3C,I3C1,1
I3C,I3C2,1
I3C,I3C3,1
I3,I3D,1
I3D,I3D1,1
I3D,I3D2,1
I3D,I3D3,1
TotProd,I4,1
I4,I4A,1
I4A,I4A1,1
I4A,I4A2,1
I4A,I4A3,1
I4,I4B,1
I4B,I4B1,1
I4B,I4B2,1
I4B,I4B3,1
I4,I4C,1
I4C,I4C1,1
I4C,I4C2,1
I4C,I4C3,1
I4,I4D,1
I4D,I4D1,1
I4D,I4D2,1
I4D,I4D3,1
TotProd,I5,1
I5,I5A,1
I5A,I5A1,1
I5A,I5A2,1
I5A,I5A3,1
I5,I5B,1
I5B,I5B1,1
I5B,I5B2,1
I5B,I5B3,1
I5,I5C,1
I5C,I5C1,1
I5C,I5C2,1
I5C,I5C3,1
I5,I5D,1
I5D,I5D1,1
I5D,I5D2,1
I5D,I5D3,1
TotProd,I6,1
I6,I6A,1
I6A,I6A1,1
I6A,I6A2,1
I6A,I6A3,1
I6,I6B,1
I6B,I6B1,1
I6B,I6B2,1
I6B,I6B3,1
I6,I6C,1
I6C,I6C1,1
I6C,I6C2,1
I6C,I6C3,1
I6,I6D,1
I6D,I6D1,1
I6D,I6D2,1
I6D,I6D3,1
TotProd,I7,1
I7,I7A,1
I7A,I7A1,1
I7A,I7A2,1
I7A,I7A3,1
I7,I7B,1
I7B,I7B1,1
I7B,I7B2,1
I7B,I7B3,1
I7,I7C,1
I7C,I7C1,1
I7C,I7C2,1
I7C,I7C3,1
I7,I7D,1
I7D,I7D1,1
I7D,I7D2,1
I7D,I7D3,1
TotProd,I8,1
I8,I8A,1
I8A,I8A1,1
I8A,I8A2,1
I8A,I8A3,1
I8,I8B,1
I8B,I8B1,1
I8B,I8B2,1
I8B,I8B3,1
I8,I8C,1
I8C,I8C1,1
I8C,I8C2,1
I8C,I8C3,1
I8,I8D,1
I8D,I8D1,1
I8D,I8D2,1
I8D,I8D3,1
TotProd,I9,1
,Precision,1
Precision,I1B2,1
Precision,I2B2,1
Precision,I3B2,1
Precision,I4B2,1
Precision,I5B2,1
Precision,I6B2,1
Precision,I7B2,1
Precision,I8B2,1
Precision,I1D2,1
Precision,I2D2,1
Precision,I3D2,1
Precision,I4D2,1
Precision,I5D2,1
Precision,I6D2,1
Precision,I7D2,1
Precision,I8D2,1
,Ex-proof,1
Ex-proof,I7,1
Ex-proof,I3A3,1
Ex-proof,I3B3,1
Ex-proof,I3C3,1
Ex-proof,I3D3,1
Ex-proof,I4A3,1
Ex-proof,I4B3,1
Ex-proof,I4C3,1
Ex-proof,I4D3,1
!MEMBERS=Custom3
[None],N,N,N,,,,,DefaultParent=#root
TotCust,Y,N,N,,,,,DefaultParent=#root,English=All customers,German=Alle Kunden
T01,Y,N,N,,,,,DefaultParent=TotCust,English=Laboratories,German=Labore
T01_1,N,N,N,,,,,DefaultParent=T01,English=Laboratories – Europe,German=Labore – Europa
T01_2,N,N,N,,,,,DefaultParent=T01,English=Laboratories – Americas,German=Labore – Amerika
T01_3,N,N,N,,,,,DefaultParent=T01,English=Laboratories – Asia,German=Labore – Asien
T01_4,N,N,N,,,,,DefaultParent=T01,English=Laboratories – Rest of the world,German=Labore – Übrige Welt
T02,Y,N,N,,,,,DefaultParent=TotCust,English=Hospitals,German=Krankenhäuser
T02_1,N,N,N,,,,,DefaultParent=T02,English=Hospitals – Europe,German=Krankenhäuser – Europa
T02_2,N,N,N,,,,,DefaultParent=T02,English=Hospitals – Americas,German=Krankenhäuser – Amerika
T02_3,N,N,N,,,,,DefaultParent=T02,English=Hospitals – Asia,German=Krankenhäuser – Asien
T02_4,N,N,N,,,,,DefaultParent=T02,English=Hospitals – Rest of the world,German=Krankenhäuser – Übrige Welt
T03,Y,N,N,,,,,DefaultParent=TotCust,English=Pharmacies,German=Apotheken
T03_1,N,N,N,,,,,DefaultParent=T03,English=Pharmacies – Europe,German=Apotheken – Europa
T03_2,N,N,N,,,,,DefaultParent=T03,English=Pharmacies – Americas,German=Apotheken – Amerika
T03_3,N,N,N,,,,,DefaultParent=T03,English=Pharmacies – Asia,German=Apotheken – Asien
T03_4,N,N,N,,,,,DefaultParent=T03,English=Pharmacies – Rest of the world,German=Apotheken – Übrige Welt
T04,Y,N,N,,,,,DefaultParent=TotCust,English=Chemical industry,German=Chemische Industrie
T04_1,N,N,N,,,,,DefaultParent=T04,English=Chemical industry – Europe,German=Chemische Industrie – Europa
T04_2,N,N,N,,,,,DefaultParent=T04,English=Chemical industry – Americas,German=Chemische Industrie – Amerika
T04_3,N,N,N,,,,,DefaultParent=T04,English=Chemical industry – Asia,German=Chemische Industrie – Asien
T04_4,N,N,N,,,,,DefaultParent=T04,English=Chemical industry – Rest of the world,German=Chemische Industrie – Übrige Welt
T05,Y,N,N,,,,,DefaultParent=TotCust,English=Food industry,German=Lebensmittelindustrie
T05_1,N,N,N,,,,,DefaultParent=T05,English=Food industry – Europe,German=Lebensmittelindustrie – Europa
T05_2,N,N,N,,,,,DefaultParent=T05,English=Food industry – Americas,German=Lebensmittelindustrie – Amerika
T05_3,N,N,N,,,,,DefaultParent=T05,English=Food industry – Asia,German=Lebensmittelindustrie – Asien
T05_4,N,N,N,,,,,DefaultParent=T05,English=Food industry – Rest of the world,German=Lebensmittelindustrie – Übrige Welt
T06,Y,N,N,,,,,DefaultParent=TotCust,English=Machine builders,German=Maschinenbau
T06_1,N,N,N,,,,,DefaultParent=T06,English=Machine builders – Europe,German=Maschinenbau – Europa
T06_2,N,N,N,,,,,DefaultParent=T06,English=Machine builders – Americas,German=Maschinenbau – Amerika
T06_3,N,N,N,,,,,DefaultParent=T06,English=Machine builders – Asia,German=Maschinenbau – Asien
T06_4,N,N,N,,,,,DefaultParent=T06,English=Machine builders – Rest of the world,German=Maschinenbau – Übrige Welt
T07,Y,N,N,,,,,DefaultParent=TotCust,English=Shipyards,German=Werften
T07_1,N,N,N,,,,,DefaultParent=T07,English=Shipyards – Europe,German=Werften – Europa
T07_2,N,N,N,,,,,DefaultParent=T07,English=Shipyards – Americas,German=Werften – Amerika
T07_3,N,N,N,,,,,DefaultParent=T07,English=Shipyards – Asia,German=Werften – Asien
T07_4,N,N,N,,,,,DefaultParent=T07,English=Shipyards – Rest of the world,German=Werften – Übrige Welt
T08,Y,N,N,,,,,DefaultParent=TotCust,English=Power stations,German=Kraftwerke
T08_1,N,N,N,,,,,DefaultParent=T08,English=Power stations – Europe,German=Kraftwerke – Europa
T08_2,N,N,N,,,,,DefaultParent=T08,English=Power stations – Americas,German=Kraftwerke – Amerika
T08_3,N,N,N,,,,,DefaultParent=T08,English=Power stations – Asia,German=Kraftwerke – Asien
T08_4,N,N,N,,,,,DefaultParent=T08,English=Power stations – Rest of the world,German=Kraftwerke – Übrige Welt
T09,Y,N,N,,,,,DefaultParent=TotCust,English=Water works,German=Wasserwerke
T09_1,N,N,N,,,,,DefaultParent=T09,English=Water works – Europe,German=Wasserwerke – Europa
T09_2,N,N,N,,,,,DefaultParent=T09,English=Water works – Americas,German=Wasserwerke – Amerika
T09_3,N,N,N,,,,,DefaultParent=T09,English=Water works – Asia,German=Wasserwerke – Asien
T09_4,N,N,N,,,,,DefaultParent=T09,English=Water works – Rest of the world,German=Wasserwerke – Übrige Welt
T10,Y,N,N,,,,,DefaultParent=TotCust,English=Universities,German=Universitäten
T10_1,N,N,N,,,,,DefaultParent=T10,English=Universities – Europe,German=Universitäten – Europa
T10_2,N,N,N,,,,,DefaultParent=T10,English=Universities – Americas,German=Universitäten – Amerika
T10_3,N,N,N,,,,,DefaultParent=T10,English=Universities – Asia,German=Universitäten – Asien
T10_4,N,N,N,,,,,DefaultParent=T10,English=Universities – Rest of the world,German=Universitäten – Übrige Welt
T11,Y,N,N,,,,,DefaultParent=TotCust,English=Weights and measures offices,German=Eichämter
T11_1,N,N,N,,,,,DefaultParent=T11,English=Weights and measures offices – Europe,German=Eichämter – Europa
T11_2,N,N,N,,,,,DefaultParent=T11,English=Weights and measures offices – Americas,German=Eichämter – Amerika
T11_3,N,N,N,,,,,DefaultParent=T11,English=Weights and measures offices – Asia,German=Eichämter – Asien
T11_4,N,N,N,,,,,DefaultParent=T11,English=Weights and measures offices – Rest of the world,German=Eichämter – Übrige Welt
T12,Y,N,N,,,,,DefaultParent=TotCust,English=Dealers,German=Händler
T12_1,N,N,N,,,,,DefaultParent=T12,English=Dealers – Europe,German=Händler – Europa
T12_2,N,N,N,,,,,DefaultParent=T12,English=Dealers – Americas,German=Händler – Amerika
T12_3,N,N,N,,,,,DefaultParent=T12,English=Dealers – Asia,German=Händler – Asien
T12_4,N,N,N,,,,,DefaultParent=T12,English=Dealers – Rest of the world,German=Händler – Übrige Welt
ByZone,Y,N,N,,,,,DefaultParent=#root,English=By zone,German=Nach Zone
ZONE_1,Y,N,N,,,,,DefaultParent=ByZone,English=Europe,German=Europa
ZONE_2,Y,N,N,,,,,DefaultParent=ByZone,English=Americas,German=Amerika
ZONE_3,Y,N,N,,,,,DefaultParent=ByZone,English=Asia,German=Asien
ZONE_4,Y,N,N,,,,,DefaultParent=ByZone,English=Rest of the world,German=Übrige Welt
!HIERARCHIES=Custom3
,[None],0
,TotCust,1
TotCust,T01,1
T01,T01_1,1
T01,T01_2,1
T01,T01_3,1
T01,T01_4,1
TotCust,T02,1
T02,T02_1,1
T02,T02_2,1
T02,T02_3,1
T02,T02_4,1
TotCust,T03,1
T03,T03_1,1
T03,T03_2,1
T03,T03_3,1
T03,T03_4,1
TotCust,T04,1
T04,T04_1,1
T04,T04_2,1
T04,T04_3,1
T04,T04_4,1
TotCust,T05,1
T05,T05_1,1
T05,T05_2,1
T05,T05_3,1
T05,T05_4,1
TotCust,T06,1
T06,T06_1,1
T06,T06_2,1
T06,T06_3,1
T06,T06_4,1
TotCust,T07,1
T07,T07_1,1
T07,T07_2,1
T07,T07_3,1
T07,T07_4,1
TotCust,T08,1
T08,T08_1,1
T08,T08_2,1
T08,T08_3,1
T08,T08_4,1
TotCust,T09,1
T09,T09_1,1
T09,T09_2,1
T09,T09_3,1
T09,T09_4,1
TotCust,T10,1
T10,T10_1,1
T10,T10_2,1
T10,T10_3,1
T10,T10_4,1
TotCust,T11,1
T11,T11_1,1
T11,T11_2,1
T11,T11_3,1
T11,T11_4,1
TotCust,T12,1
T12,T12_1,1
T12,T12_2,1
T12,T12_3,1
T12,T12_4,1
,ByZone,1
ByZone,ZONE_1,1
ZONE_1,T01_1,1
ZONE_1,T02_1,1
ZONE_1,T03_1,1
ZONE_1,T04_1,1
ZONE_1,T05_1,1
ZONE_1,T06_1,1
ZONE_1,T07_1,1
ZONE_1,T08_1,1
ZONE_1,T09_1,1
ZONE_1,T10_1,1
ZONE_1,T11_1,1
ZONE_1,T12_1,1
ByZone,ZONE_2,1
ZONE_2,T01_2,1
ZONE_2,T02_2,1
ZONE_2,T03_2,1
ZONE_2,T04_2,1
ZONE_2,T05_2,1
ZONE_2,T06_2,1
ZONE_2,T07_2,1
ZONE_2,T08_2,1
ZONE_2,T09_2,1
ZONE_2,T10_2,1
ZONE_2,T11_2,1
ZONE_2,T12_2,1
ByZone,ZONE_3,1
ZONE_3,T01_3,1
ZONE_3,T02_3,1
ZONE_3,T03_3,1
ZONE_3,T04_3,1
ZONE_3,T05_3,1
ZONE_3,T06_3,1
ZONE_3,T07_3,1
ZONE_3,T08_3,1
ZONE_3,T09_3,1
ZONE_3,T10_3,1
ZONE_3,T11_3,1
ZONE_3,T12_3,1
ByZone,ZONE_4,1
ZONE_4,T01_4,1
ZONE_4,T02_4,1
ZONE_4,T03_4,1
ZONE_4,T04_4,1
ZONE_4,T05_4,1
ZONE_4,T06_4,1
ZONE_4,T07_4,1
ZONE_4,T08_4,1
ZONE_4,T09_4,1
ZONE_4,T10_4,1
ZONE_4,T11_4,1
ZONE_4,T12_4,1
!MEMBERS=Custom4
[None],N,N,N,,,,,DefaultParent=#root
TotAdj,Y,N,N,,,,,DefaultParent=#root,English=All sources,German=Alle Quellen
Local,Y,N,N,,,,,DefaultParent=TotAdj,English=Local books,German=Lokaler Abschluss
Ledger,N,N,N,,,,,DefaultParent=Local,English=Ledger,German=Hauptbuch
Manual,N,N,N,,,,,DefaultParent=Local,English=Entered by hand,German=Manuell erfasst
Late,N,N,N,,,,,DefaultParent=Local,English=Late entries,German=Nachbuchungen
Group,Y,N,N,,,,,DefaultParent=TotAdj,English=Group entries,German=Konzernbuchungen
GAAP,N,N,N,,,,,DefaultParent=Group,English=Local GAAP to group GAAP,German=Lokale zu Konzernvorschriften
Lease,N,N,N,,,,,DefaultParent=Group,English=Leases,German=Leasing
Pension,N,N,N,,,,,DefaultParent=Group,English=Pensions,German=Pensionen
Profit,N,N,N,,,,,DefaultParent=Group,English=Unrealised profit,German=Zwischenergebnis
PPA,N,N,N,,,,,DefaultParent=Group,English=Purchase price allocation,German=Kaufpreisallokation
Mgmt,Y,N,N,,,,,DefaultParent=TotAdj,English=Management entries,German=Führungsbuchungen
Accr,N,N,N,,,,,DefaultParent=Mgmt,English=Accruals,German=Abgrenzungen
Alloc,N,N,N,,,,,DefaultParent=Mgmt,English=Allocations,German=Umlagen
Legal,Y,N,N,,,,,DefaultParent=#root,English=Legal view,German=Rechtliche Sicht
!HIERARCHIES=Custom4
,[None],0
,TotAdj,1
TotAdj,Local,1
Local,Ledger,1
Local,Manual,1
Local,Late,1
TotAdj,Group,1
Group,GAAP,1
Group,Lease,1
Group,Pension,1
Group,Profit,1
Group,PPA,1
TotAdj,Mgmt,1
Mgmt,Accr,1
Mgmt,Alloc,1
,Legal,1
Legal,Local,1
Legal,Group,1
!MEMBERS=Entity
[None],,N,N,N,,,,,,,DefaultParent=#root
ZENITH,EUR,Y,N,Y,Corporate,,,,ZHOLD,,DefaultParent=#root,English=Zenith Instruments Group,German=Zenith-Instruments-Gruppe
ZHOLD,EUR,Y,Y,N,Corporate,,,,,,DefaultParent=ZENITH,English=Zenith Holding – Kassel,German=Zenith Holding – Kassel
ZPROD,EUR,Y,N,Y,Production,,,,,,DefaultParent=ZENITH,English=Production companies,German=Produktionsgesellschaften
ZDE1,EUR,Y,N,Y,Production,,,,,,DefaultParent=ZPROD,English=Zenith Feinmechanik Kassel,German=Zenith Feinmechanik Kassel
ZDE1-10,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZDE1,English=Zenith Feinmechanik Kassel – parts,German=Zenith Feinmechanik Kassel – Teilefertigung
ZDE1-20,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZDE1,English=Zenith Feinmechanik Kassel – assembly,German=Zenith Feinmechanik Kassel – Montage
ZDE1-30,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZDE1,English=Zenith Feinmechanik Kassel – calibration,German=Zenith Feinmechanik Kassel – Kalibrierung
ZDE1-40,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZDE1,English=Zenith Feinmechanik Kassel – tool shop,German=Zenith Feinmechanik Kassel – Werkzeugbau
ZDE2,EUR,Y,N,Y,Production,,,,,,DefaultParent=ZPROD,English=Zenith Waagen Görlitz,German=Zenith Waagen Görlitz
ZDE2-10,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZDE2,English=Zenith Waagen Görlitz – parts,German=Zenith Waagen Görlitz – Teilefertigung
ZDE2-20,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZDE2,English=Zenith Waagen Görlitz – assembly,German=Zenith Waagen Görlitz – Montage
ZDE2-30,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZDE2,English=Zenith Waagen Görlitz – calibration,German=Zenith Waagen Görlitz – Kalibrierung
ZDE2-40,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZDE2,English=Zenith Waagen Görlitz – tool shop,German=Zenith Waagen Görlitz – Werkzeugbau
ZCH1,EUR,Y,N,Y,Production,,,,,,DefaultParent=ZPROD,English=Zenith Messtechnik Winterthur,German=Zenith Messtechnik Winterthur
ZCH1-10,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZCH1,English=Zenith Messtechnik Winterthur – parts,German=Zenith Messtechnik Winterthur – Teilefertigung
ZCH1-20,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZCH1,English=Zenith Messtechnik Winterthur – assembly,German=Zenith Messtechnik Winterthur – Montage
ZCH1-30,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZCH1,English=Zenith Messtechnik Winterthur – calibration,German=Zenith Messtechnik Winterthur – Kalibrierung
ZCH1-40,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZCH1,English=Zenith Messtechnik Winterthur – tool shop,German=Zenith Messtechnik Winterthur – Werkzeugbau
ZFR1,EUR,Y,N,Y,Production,,,,,,DefaultParent=ZPROD,English=Zenith Mesure Besançon,German=Zenith Mesure Besançon
ZFR1-10,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZFR1,English=Zenith Mesure Besançon – parts,German=Zenith Mesure Besançon – Teilefertigung
ZFR1-20,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZFR1,English=Zenith Mesure Besançon – assembly,German=Zenith Mesure Besançon – Montage
ZFR1-30,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZFR1,English=Zenith Mesure Besançon – calibration,German=Zenith Mesure Besançon – Kalibrierung
ZFR1-40,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZFR1,English=Zenith Mesure Besançon – tool shop,German=Zenith Mesure Besançon – Werkzeugbau
ZAT1,EUR,Y,N,Y,Production,,,,,,DefaultParent=ZPROD,English=Zenith Manometer Graz,German=Zenith Manometer Graz
ZAT1-10,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZAT1,English=Zenith Manometer Graz – parts,German=Zenith Manometer Graz – Teilefertigung
ZAT1-20,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZAT1,English=Zenith Manometer Graz – assembly,German=Zenith Manometer Graz – Montage
ZAT1-30,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZAT1,English=Zenith Manometer Graz – calibration,German=Zenith Manometer Graz – Kalibrierung
ZAT1-40,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZAT1,English=Zenith Manometer Graz – tool shop,German=Zenith Manometer Graz – Werkzeugbau
ZGB1,EUR,Y,N,Y,Production,,,,,,DefaultParent=ZPROD,English=Zenith Gauges Sheffield,German=Zenith Gauges Sheffield
ZGB1-10,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZGB1,English=Zenith Gauges Sheffield – parts,German=Zenith Gauges Sheffield – Teilefertigung
ZGB1-20,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZGB1,English=Zenith Gauges Sheffield – assembly,German=Zenith Gauges Sheffield – Montage
ZGB1-30,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZGB1,English=Zenith Gauges Sheffield – calibration,German=Zenith Gauges Sheffield – Kalibrierung
ZGB1-40,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZGB1,English=Zenith Gauges Sheffield – tool shop,German=Zenith Gauges Sheffield – Werkzeugbau
ZIT1,EUR,Y,N,Y,Production,,,,,,DefaultParent=ZPROD,English=Zenith Bilance Forlì,German=Zenith Bilance Forlì
ZIT1-10,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZIT1,English=Zenith Bilance Forlì – parts,German=Zenith Bilance Forlì – Teilefertigung
ZIT1-20,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZIT1,English=Zenith Bilance Forlì – assembly,German=Zenith Bilance Forlì – Montage
ZIT1-30,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZIT1,English=Zenith Bilance Forlì – calibration,German=Zenith Bilance Forlì – Kalibrierung
ZIT1-40,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZIT1,English=Zenith Bilance Forlì – tool shop,German=Zenith Bilance Forlì – Werkzeugbau
ZSE1,EUR,Y,N,Y,Production,,,,,,DefaultParent=ZPROD,English=Zenith Mätteknik Göteborg,German=Zenith Mätteknik Göteborg
ZSE1-10,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZSE1,English=Zenith Mätteknik Göteborg – parts,German=Zenith Mätteknik Göteborg – Teilefertigung
ZSE1-20,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZSE1,English=Zenith Mätteknik Göteborg – assembly,German=Zenith Mätteknik Göteborg – Montage
ZSE1-30,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZSE1,English=Zenith Mätteknik Göteborg – calibration,German=Zenith Mätteknik Göteborg – Kalibrierung
ZSE1-40,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZSE1,English=Zenith Mätteknik Göteborg – tool shop,German=Zenith Mätteknik Göteborg – Werkzeugbau
ZUS1,EUR,Y,N,Y,Production,,,,,,DefaultParent=ZPROD,English=Zenith Instruments Dayton,German=Zenith Instruments Dayton
ZUS1-10,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZUS1,English=Zenith Instruments Dayton – parts,German=Zenith Instruments Dayton – Teilefertigung
ZUS1-20,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZUS1,English=Zenith Instruments Dayton – assembly,German=Zenith Instruments Dayton – Montage
ZUS1-30,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZUS1,English=Zenith Instruments Dayton – calibration,German=Zenith Instruments Dayton – Kalibrierung
ZUS1-40,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZUS1,English=Zenith Instruments Dayton – tool shop,German=Zenith Instruments Dayton – Werkzeugbau
ZJP1,EUR,Y,N,Y,Production,,,,,,DefaultParent=ZPROD,English=Zenith Instruments Nagoya,German=Zenith Instruments Nagoya
ZJP1-10,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZJP1,English=Zenith Instruments Nagoya – parts,German=Zenith Instruments Nagoya – Teilefertigung
ZJP1-20,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZJP1,English=Zenith Instruments Nagoya – assembly,German=Zenith Instruments Nagoya – Montage
ZJP1-30,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZJP1,English=Zenith Instruments Nagoya – calibration,German=Zenith Instruments Nagoya – Kalibrierung
ZJP1-40,EUR,Y,Y,N,Production,,,,,,DefaultParent=ZJP1,English=Zenith Instruments Nagoya – tool shop,German=Zenith Instruments Nagoya – Werkzeugbau
ZSALES,EUR,Y,N,Y,Sales,,,,,,DefaultParent=ZENITH,English=Sales companies,German=Vertriebsgesellschaften
Z_GB,GBP,Y,N,Y,Sales,GB,,,,,DefaultParent=ZSALES,English=Zenith United Kingdom,German=Zenith Vereinigtes Königreich
Z_GB.S,GBP,Y,Y,N,Sales,GB,,,,,DefaultParent=Z_GB,English=Zenith United Kingdom – sales,German=Zenith Vereinigtes Königreich – Vertrieb
Z_GB.V,GBP,Y,Y,N,Sales,GB,,,,,DefaultParent=Z_GB,English=Zenith United Kingdom – service,German=Zenith Vereinigtes Königreich – Service
Z_GB.W,GBP,Y,Y,N,Sales,GB,,,,,DefaultParent=Z_GB,English=Zenith United Kingdom – warehouse,German=Zenith Vereinigtes Königreich – Lager
Z_GB.F,GBP,Y,Y,N,Sales,GB,,,,,DefaultParent=Z_GB,English=Zenith United Kingdom – finance,German=Zenith Vereinigtes Königreich – Finanzen
Z_IE,EUR,Y,N,Y,Sales,IE,,,,,DefaultParent=ZSALES,English=Zenith Ireland,German=Zenith Irland
Z_IE.S,EUR,Y,Y,N,Sales,IE,,,,,DefaultParent=Z_IE,English=Zenith Ireland – sales,German=Zenith Irland – Vertrieb
Z_IE.V,EUR,Y,Y,N,Sales,IE,,,,,DefaultParent=Z_IE,English=Zenith Ireland – service,German=Zenith Irland – Service
Z_IE.W,EUR,Y,Y,N,Sales,IE,,,,,DefaultParent=Z_IE,English=Zenith Ireland – warehouse,German=Zenith Irland – Lager
Z_IE.F,EUR,Y,Y,N,Sales,IE,,,,,DefaultParent=Z_IE,English=Zenith Ireland – finance,German=Zenith Irland – Finanzen
Z_SE,SEK,Y,N,Y,Sales,SE,,,,,DefaultParent=ZSALES,English=Zenith Sweden,German=Zenith Schweden
Z_SE.S,SEK,Y,Y,N,Sales,SE,,,,,DefaultParent=Z_SE,English=Zenith Sweden – sales,German=Zenith Schweden – Vertrieb
Z_SE.V,SEK,Y,Y,N,Sales,SE,,,,,DefaultParent=Z_SE,English=Zenith Sweden – service,German=Zenith Schweden – Service
Z_SE.W,SEK,Y,Y,N,Sales,SE,,,,,DefaultParent=Z_SE,English=Zenith Sweden – warehouse,German=Zenith Schweden – Lager
Z_SE.F,SEK,Y,Y,N,Sales,SE,,,,,DefaultParent=Z_SE,English=Zenith Sweden – finance,German=Zenith Schweden – Finanzen
Z_NO,NOK,Y,N,Y,Sales,NO,,,,,DefaultParent=ZSALES,English=Zenith Norway,German=Zenith Norwegen
Z_NO.S,NOK,Y,Y,N,Sales,NO,,,,,DefaultParent=Z_NO,English=Zenith Norway – sales,German=Zenith Norwegen – Vertrieb
Z_NO.V,NOK,Y,Y,N,Sales,NO,,,,,DefaultParent=Z_NO,English=Zenith Norway – service,German=Zenith Norwegen – Service
Z_NO.W,NOK,Y,Y,N,Sales,NO,,,,,DefaultParent=Z_NO,English=Zenith Norway – warehouse,German=Zenith Norwegen – Lager
Z_NO.F,NOK,Y,Y,N,Sales,NO,,,,,DefaultParent=Z_NO,English=Zenith Norway – finance,German=Zenith Norwegen – Finanzen
Z_DK,DKK,Y,N,Y,Sales,DK,,,,,DefaultParent=ZSALES,English=Zenith Denmark,German=Zenith Dänemark
Z_DK.S,DKK,Y,Y,N,Sales,DK,,,,,DefaultParent=Z_DK,English=Zenith Denmark – sales,German=Zenith Dänemark – Vertrieb
Z_DK.V,DKK,Y,Y,N,Sales,DK,,,,,DefaultParent=Z_DK,English=Zenith Denmark – service,German=Zenith Dänemark – Service
Z_DK.W,DKK,Y,Y,N,Sales,DK,,,,,DefaultParent=Z_DK,English=Zenith Denmark – warehouse,German=Zenith Dänemark – Lager
Z_DK.F,DKK,Y,Y,N,Sales,DK,,,,,DefaultParent=Z_DK,English=Zenith Denmark – finance,German=Zenith Dänemark – Finanzen
Z_FI,EUR,Y,N,Y,Sales,FI,,,,,DefaultParent=ZSALES,English=Zenith Finland,German=Zenith Finnland
Z_FI.S,EUR,Y,Y,N,Sales,FI,,,,,DefaultParent=Z_FI,English=Zenith Finland – sales,German=Zenith Finnland – Vertrieb
Z_FI.V,EUR,Y,Y,N,Sales,FI,,,,,DefaultParent=Z_FI,English=Zenith Finland – service,German=Zenith Finnland – Service
Z_FI.W,EUR,Y,Y,N,Sales,FI,,,,,DefaultParent=Z_FI,English=Zenith Finland – warehouse,German=Zenith Finnland – Lager
Z_FI.F,EUR,Y,Y,N,Sales,FI,,,,,DefaultParent=Z_FI,English=Zenith Finland – finance,German=Zenith Finnland – Finanzen
Z_EE,EUR,Y,N,Y,Sales,EE,,,,,DefaultParent=ZSALES,English=Zenith Estonia,German=Zenith Estland
Z_EE.S,EUR,Y,Y,N,Sales,EE,,,,,DefaultParent=Z_EE,English=Zenith Estonia – sales,German=Zenith Estland – Vertrieb
Z_EE.V,EUR,Y,Y,N,Sales,EE,,,,,DefaultParent=Z_EE,English=Zenith Estonia – service,German=Zenith Estland – Service
Z_EE.W,EUR,Y,Y,N,Sales,EE,,,,,DefaultParent=Z_EE,English=Zenith Estonia – warehouse,German=Zenith Estland – Lager
Z_EE.F,EUR,Y,Y,N,Sales,EE,,,,,DefaultParent=Z_EE,English=Zenith Estonia – finance,German=Zenith Estland – Finanzen
Z_FR,EUR,Y,N,Y,Sales,FR,,,,,DefaultParent=ZSALES,English=Zenith France,German=Zenith Frankreich
Z_FR.S,EUR,Y,Y,N,Sales,FR,,,,,DefaultParent=Z_FR,English=Zenith France – sales,German=Zenith Frankreich – Vertrieb
Z_FR.V,EUR,Y,Y,N,Sales,FR,,,,,DefaultParent=Z_FR,English=Zenith France – service,German=Zenith Frankreich – Service
Z_FR.W,EUR,Y,Y,N,Sales,FR,,,,,DefaultParent=Z_FR,English=Zenith France – warehouse,German=Zenith Frankreich – Lager
Z_FR.F,EUR,Y,Y,N,Sales,FR,,,,,DefaultParent=Z_FR,English=Zenith France – finance,German=Zenith Frankreich – Finanzen
Z_BE,EUR,Y,N,Y,Sales,BE,,,,,DefaultParent=ZSALES,English=Zenith Belgium,German=Zenith Belgien
Z_BE.S,EUR,Y,Y,N,Sales,BE,,,,,DefaultParent=Z_BE,English=Zenith Belgium – sales,German=Zenith Belgien – Vertrieb
Z_BE.V,EUR,Y,Y,N,Sales,BE,,,,,DefaultParent=Z_BE,English=Zenith Belgium – service,German=Zenith Belgien – Service
Z_BE.W,EUR,Y,Y,N,Sales,BE,,,,,DefaultParent=Z_BE,English=Zenith Belgium – warehouse,German=Zenith Belgien – Lager
Z_BE.F,EUR,Y,Y,N,Sales,BE,,,,,DefaultParent=Z_BE,English=Zenith Belgium – finance,German=Zenith Belgien – Finanzen
Z_NL,EUR,Y,N,Y,Sales,NL,,,,,DefaultParent=ZSALES,English=Zenith Netherlands,German=Zenith Niederlande
Z_NL.S,EUR,Y,Y,N,Sales,NL,,,,,DefaultParent=Z_NL,English=Zenith Netherlands – sales,German=Zenith Niederlande – Vertrieb
Z_NL.V,EUR,Y,Y,N,Sales,NL,,,,,DefaultParent=Z_NL,English=Zenith Netherlands – service,German=Zenith Niederlande – Service
Z_NL.W,EUR,Y,Y,N,Sales,NL,,,,,DefaultParent=Z_NL,English=Zenith Netherlands – warehouse,German=Zenith Niederlande – Lager
Z_NL.F,EUR,Y,Y,N,Sales,NL,,,,,DefaultParent=Z_NL,English=Zenith Netherlands – finance,German=Zenith Niederlande – Finanzen
Z_DE,EUR,Y,N,Y,Sales,DE,,,,,DefaultParent=ZSALES,English=Zenith Germany,German=Zenith Deutschland
Z_DE.S,EUR,Y,Y,N,Sales,DE,,,,,DefaultParent=Z_DE,English=Zenith Germany – sales,German=Zenith Deutschland – Vertrieb
Z_DE.V,EUR,Y,Y,N,Sales,DE,,,,,DefaultParent=Z_DE,English=Zenith Germany – service,German=Zenith Deutschland – Service
Z_DE.W,EUR,Y,Y,N,Sales,DE,,,,,DefaultParent=Z_DE,English=Zenith Germany – warehouse,German=Zenith Deutschland – Lager
Z_DE.F,EUR,Y,Y,N,Sales,DE,,,,,DefaultParent=Z_DE,English=Zenith Germany – finance,German=Zenith Deutschland – Finanzen
Z_AT,EUR,Y,N,Y,Sales,AT,,,,,DefaultParent=ZSALES,English=Zenith Austria,German=Zenith Österreich
Z_AT.S,EUR,Y,Y,N,Sales,AT,,,,,DefaultParent=Z_AT,English=Zenith Austria – sales,German=Zenith Österreich – Vertrieb
Z_AT.V,EUR,Y,Y,N,Sales,AT,,,,,DefaultParent=Z_AT,English=Zenith Austria – service,German=Zenith Österreich – Service
Z_AT.W,EUR,Y,Y,N,Sales,AT,,,,,DefaultParent=Z_AT,English=Zenith Austria – warehouse,German=Zenith Österreich – Lager
Z_AT.F,EUR,Y,Y,N,Sales,AT,,,,,DefaultParent=Z_AT,English=Zenith Austria – finance,German=Zenith Österreich – Finanzen
Z_CH,CHF,Y,N,Y,Sales,CH,,,,,DefaultParent=ZSALES,English=Zenith Switzerland,German=Zenith Schweiz
Z_CH.S,CHF,Y,Y,N,Sales,CH,,,,,DefaultParent=Z_CH,English=Zenith Switzerland – sales,German=Zenith Schweiz – Vertrieb
Z_CH.V,CHF,Y,Y,N,Sales,CH,,,,,DefaultParent=Z_CH,English=Zenith Switzerland – service,German=Zenith Schweiz – Service
Z_CH.W,CHF,Y,Y,N,Sales,CH,,,,,DefaultParent=Z_CH,English=Zenith Switzerland – warehouse,German=Zenith Schweiz – Lager
Z_CH.F,CHF,Y,Y,N,Sales,CH,,,,,DefaultParent=Z_CH,English=Zenith Switzerland – finance,German=Zenith Schweiz – Finanzen
Z_ES,EUR,Y,N,Y,Sales,ES,,,,,DefaultParent=ZSALES,English=Zenith Spain,German=Zenith Spanien
Z_ES.S,EUR,Y,Y,N,Sales,ES,,,,,DefaultParent=Z_ES,English=Zenith Spain – sales,German=Zenith Spanien – Vertrieb
Z_ES.V,EUR,Y,Y,N,Sales,ES,,,,,DefaultParent=Z_ES,English=Zenith Spain – service,German=Zenith Spanien – Service
Z_ES.W,EUR,Y,Y,N,Sales,ES,,,,,DefaultParent=Z_ES,English=Zenith Spain – warehouse,German=Zenith Spanien – Lager
Z_ES.F,EUR,Y,Y,N,Sales,ES,,,,,DefaultParent=Z_ES,English=Zenith Spain – finance,German=Zenith Spanien – Finanzen
Z_PT,EUR,Y,N,Y,Sales,PT,,,,,DefaultParent=ZSALES,English=Zenith Portugal,German=Zenith Portugal
Z_PT.S,EUR,Y,Y,N,Sales,PT,,,,,DefaultParent=Z_PT,English=Zenith Portugal – sales,German=Zenith Portugal – Vertrieb
Z_PT.V,EUR,Y,Y,N,Sales,PT,,,,,DefaultParent=Z_PT,English=Zenith Portugal – service,German=Zenith Portugal – Service
Z_PT.W,EUR,Y,Y,N,Sales,PT,,,,,DefaultParent=Z_PT,English=Zenith Portugal – warehouse,German=Zenith Portugal – Lager
Z_PT.F,EUR,Y,Y,N,Sales,PT,,,,,DefaultParent=Z_PT,English=Zenith Portugal – finance,German=Zenith Portugal – Finanzen
Z_IT,EUR,Y,N,Y,Sales,IT,,,,,DefaultParent=ZSALES,English=Zenith Italy,German=Zenith Italien
Z_IT.S,EUR,Y,Y,N,Sales,IT,,,,,DefaultParent=Z_IT,English=Zenith Italy – sales,German=Zenith Italien – Vertrieb
Z_IT.V,EUR,Y,Y,N,Sales,IT,,,,,DefaultParent=Z_IT,English=Zenith Italy – service,German=Zenith Italien – Service
Z_IT.W,EUR,Y,Y,N,Sales,IT,,,,,DefaultParent=Z_IT,English=Zenith Italy – warehouse,German=Zenith Italien – Lager
Z_IT.F,EUR,Y,Y,N,Sales,IT,,,,,DefaultParent=Z_IT,English=Zenith Italy – finance,German=Zenith Italien – Finanzen
Z_GR,EUR,Y,N,Y,Sales,GR,,,,,DefaultParent=ZSALES,English=Zenith Greece,German=Zenith Griechenland
Z_GR.S,EUR,Y,Y,N,Sales,GR,,,,,DefaultParent=Z_GR,English=Zenith Greece – sales,German=Zenith Griechenland – Vertrieb
Z_GR.V,EUR,Y,Y,N,Sales,GR,,,,,DefaultParent=Z_GR,English=Zenith Greece – service,German=Zenith Griechenland – Service
Z_GR.W,EUR,Y,Y,N,Sales,GR,,,,,DefaultParent=Z_GR,English=Zenith Greece – warehouse,German=Zenith Griechenland – Lager
Z_GR.F,EUR,Y,Y,N,Sales,GR,,,,,DefaultParent=Z_GR,English=Zenith Greece – finance,German=Zenith Griechenland – Finanzen
Z_PL,PLN,Y,N,Y,Sales,PL,,,,,DefaultParent=ZSALES,English=Zenith Poland,German=Zenith Polen
Z_PL.S,PLN,Y,Y,N,Sales,PL,,,,,DefaultParent=Z_PL,English=Zenith Poland – sales,German=Zenith Polen – Vertrieb
Z_PL.V,PLN,Y,Y,N,Sales,PL,,,,,DefaultParent=Z_PL,English=Zenith Poland – service,German=Zenith Polen – Service
Z_PL.W,PLN,Y,Y,N,Sales,PL,,,,,DefaultParent=Z_PL,English=Zenith Poland – warehouse,German=Zenith Polen – Lager
Z_PL.F,PLN,Y,Y,N,Sales,PL,,,,,DefaultParent=Z_PL,English=Zenith Poland – finance,German=Zenith Polen – Finanzen
Z_CZ,CZK,Y,N,Y,Sales,CZ,,,,,DefaultParent=ZSALES,English=Zenith Czechia,German=Zenith Tschechien
Z_CZ.S,CZK,Y,Y,N,Sales,CZ,,,,,DefaultParent=Z_CZ,English=Zenith Czechia – sales,German=Zenith Tschechien – Vertrieb
Z_CZ.V,CZK,Y,Y,N,Sales,CZ,,,,,DefaultParent=Z_CZ,English=Zenith Czechia – service,German=Zenith Tschechien – Service
Z_CZ.W,CZK,Y,Y,N,Sales,CZ,,,,,DefaultParent=Z_CZ,English=Zenith Czechia – warehouse,German=Zenith Tschechien – Lager
Z_CZ.F,CZK,Y,Y,N,Sales,CZ,,,,,DefaultParent=Z_CZ,English=Zenith Czechia – finance,German=Zenith Tschechien – Finanzen
Z_HU,HUF,Y,N,Y,Sales,HU,,,,,DefaultParent=ZSALES,English=Zenith Hungary,German=Zenith Ungarn
Z_HU.S,HUF,Y,Y,N,Sales,HU,,,,,DefaultParent=Z_HU,English=Zenith Hungary – sales,German=Zenith Ungarn – Vertrieb
Z_HU.V,HUF,Y,Y,N,Sales,HU,,,,,DefaultParent=Z_HU,English=Zenith Hungary – service,German=Zenith Ungarn – Service
Z_HU.W,HUF,Y,Y,N,Sales,HU,,,,,DefaultParent=Z_HU,English=Zenith Hungary – warehouse,German=Zenith Ungarn – Lager
Z_HU.F,HUF,Y,Y,N,Sales,HU,,,,,DefaultParent=Z_HU,English=Zenith Hungary – finance,German=Zenith Ungarn – Finanzen
Z_RO,RON,Y,N,Y,Sales,RO,,,,,DefaultParent=ZSALES,English=Zenith Romania,German=Zenith Rumänien
Z_RO.S,RON,Y,Y,N,Sales,RO,,,,,DefaultParent=Z_RO,English=Zenith Romania – sales,German=Zenith Rumänien – Vertrieb
Z_RO.V,RON,Y,Y,N,Sales,RO,,,,,DefaultParent=Z_RO,English=Zenith Romania – service,German=Zenith Rumänien – Service
Z_RO.W,RON,Y,Y,N,Sales,RO,,,,,DefaultParent=Z_RO,English=Zenith Romania – warehouse,German=Zenith Rumänien – Lager
Z_RO.F,RON,Y,Y,N,Sales,RO,,,,,DefaultParent=Z_RO,English=Zenith Romania – finance,German=Zenith Rumänien – Finanzen
Z_US,USD,Y,N,Y,Sales,US,,,,,DefaultParent=ZSALES,English=Zenith United States,German=Zenith Vereinigte Staaten
Z_US.S,USD,Y,Y,N,Sales,US,,,,,DefaultParent=Z_US,English=Zenith United States – sales,German=Zenith Vereinigte Staaten – Vertrieb
Z_US.V,USD,Y,Y,N,Sales,US,,,,,DefaultParent=Z_US,English=Zenith United States – service,German=Zenith Vereinigte Staaten – Service
Z_US.W,USD,Y,Y,N,Sales,US,,,,,DefaultParent=Z_US,English=Zenith United States – warehouse,German=Zenith Vereinigte Staaten – Lager
Z_US.F,USD,Y,Y,N,Sales,US,,,,,DefaultParent=Z_US,English=Zenith United States – finance,German=Zenith Vereinigte Staaten – Finanzen
Z_CA,CAD,Y,N,Y,Sales,CA,,,,,DefaultParent=ZSALES,English=Zenith Canada,German=Zenith Kanada
Z_CA.S,CAD,Y,Y,N,Sales,CA,,,,,DefaultParent=Z_CA,English=Zenith Canada – sales,German=Zenith Kanada – Vertrieb
Z_CA.V,CAD,Y,Y,N,Sales,CA,,,,,DefaultParent=Z_CA,English=Zenith Canada – service,German=Zenith Kanada – Service
Z_CA.W,CAD,Y,Y,N,Sales,CA,,,,,DefaultParent=Z_CA,English=Zenith Canada – warehouse,German=Zenith Kanada – Lager
Z_CA.F,CAD,Y,Y,N,Sales,CA,,,,,DefaultParent=Z_CA,English=Zenith Canada – finance,German=Zenith Kanada – Finanzen
Z_MX,MXN,Y,N,Y,Sales,MX,,,,,DefaultParent=ZSALES,English=Zenith Mexico,German=Zenith Mexiko
Z_MX.S,MXN,Y,Y,N,Sales,MX,,,,,DefaultParent=Z_MX,English=Zenith Mexico – sales,German=Zenith Mexiko – Vertrieb
Z_MX.V,MXN,Y,Y,N,Sales,MX,,,,,DefaultParent=Z_MX,English=Zenith Mexico – service,German=Zenith Mexiko – Service
Z_MX.W,MXN,Y,Y,N,Sales,MX,,,,,DefaultParent=Z_MX,English=Zenith Mexico – warehouse,German=Zenith Mexiko – Lager
Z_MX.F,MXN,Y,Y,N,Sales,MX,,,,,DefaultParent=Z_MX,English=Zenith Mexico – finance,German=Zenith Mexiko – Finanzen
Z_BR,BRL,Y,N,Y,Sales,BR,,,,,DefaultParent=ZSALES,English=Zenith Brazil,German=Zenith Brasilien
Z_BR.S,BRL,Y,Y,N,Sales,BR,,,,,DefaultParent=Z_BR,English=Zenith Brazil – sales,German=Zenith Brasilien – Vertrieb
Z_BR.V,BRL,Y,Y,N,Sales,BR,,,,,DefaultParent=Z_BR,English=Zenith Brazil – service,German=Zenith Brasilien – Service
Z_BR.W,BRL,Y,Y,N,Sales,BR,,,,,DefaultParent=Z_BR,English=Zenith Brazil – warehouse,German=Zenith Brasilien – Lager
Z_BR.F,BRL,Y,Y,N,Sales,BR,,,,,DefaultParent=Z_BR,English=Zenith Brazil – finance,German=Zenith Brasilien – Finanzen
Z_JP,JPY,Y,N,Y,Sales,JP,,,,,DefaultParent=ZSALES,English=Zenith Japan,German=Zenith Japan
Z_JP.S,JPY,Y,Y,N,Sales,JP,,,,,DefaultParent=Z_JP,English=Zenith Japan – sales,German=Zenith Japan – Vertrieb
Z_JP.V,JPY,Y,Y,N,Sales,JP,,,,,DefaultParent=Z_JP,English=Zenith Japan – service,German=Zenith Japan – Service
Z_JP.W,JPY,Y,Y,N,Sales,JP,,,,,DefaultParent=Z_JP,English=Zenith Japan – warehouse,German=Zenith Japan – Lager
Z_JP.F,JPY,Y,Y,N,Sales,JP,,,,,DefaultParent=Z_JP,English=Zenith Japan – finance,German=Zenith Japan – Finanzen
Z_SG,SGD,Y,N,Y,Sales,SG,,,,,DefaultParent=ZSALES,English=Zenith Singapore,German=Zenith Singapur
Z_SG.S,SGD,Y,Y,N,Sales,SG,,,,,DefaultParent=Z_SG,English=Zenith Singapore – sales,German=Zenith Singapur – Vertrieb
Z_SG.V,SGD,Y,Y,N,Sales,SG,,,,,DefaultParent=Z_SG,English=Zenith Singapore – service,German=Zenith Singapur – Service
Z_SG.W,SGD,Y,Y,N,Sales,SG,,,,,DefaultParent=Z_SG,English=Zenith Singapore – warehouse,German=Zenith Singapur – Lager
Z_SG.F,SGD,Y,Y,N,Sales,SG,,,,,DefaultParent=Z_SG,English=Zenith Singapore – finance,German=Zenith Singapur – Finanzen
Z_AU,AUD,Y,N,Y,Sales,AU,,,,,DefaultParent=ZSALES,English=Zenith Australia,German=Zenith Australien
Z_AU.S,AUD,Y,Y,N,Sales,AU,,,,,DefaultParent=Z_AU,English=Zenith Australia – sales,German=Zenith Australien – Vertrieb
Z_AU.V,AUD,Y,Y,N,Sales,AU,,,,,DefaultParent=Z_AU,English=Zenith Australia – service,German=Zenith Australien – Service
Z_AU.W,AUD,Y,Y,N,Sales,AU,,,,,DefaultParent=Z_AU,English=Zenith Australia – warehouse,German=Zenith Australien – Lager
Z_AU.F,AUD,Y,Y,N,Sales,AU,,,,,DefaultParent=Z_AU,English=Zenith Australia – finance,German=Zenith Australien – Finanzen
Z_ZA,ZAR,Y,N,Y,Sales,ZA,,,,,DefaultParent=ZSALES,English=Zenith South Africa,German=Zenith Südafrika
Z_ZA.S,ZAR,Y,Y,N,Sales,ZA,,,,,DefaultParent=Z_ZA,English=Zenith South Africa – sales,German=Zenith Südafrika – Vertrieb
Z_ZA.V,ZAR,Y,Y,N,Sales,ZA,,,,,DefaultParent=Z_ZA,English=Zenith South Africa – service,German=Zenith Südafrika – Service
Z_ZA.W,ZAR,Y,Y,N,Sales,ZA,,,,,DefaultParent=Z_ZA,English=Zenith South Africa – warehouse,German=Zenith Südafrika – Lager
Z_ZA.F,ZAR,Y,Y,N,Sales,ZA,,,,,DefaultParent=Z_ZA,English=Zenith South Africa – finance,German=Zenith Südafrika – Finanzen
Z_MA,MAD,Y,N,Y,Sales,MA,,,,,DefaultParent=ZSALES,English=Zenith Morocco,German=Zenith Marokko
Z_MA.S,MAD,Y,Y,N,Sales,MA,,,,,DefaultParent=Z_MA,English=Zenith Morocco – sales,German=Zenith Marokko – Vertrieb
Z_MA.V,MAD,Y,Y,N,Sales,MA,,,,,DefaultParent=Z_MA,English=Zenith Morocco – service,German=Zenith Marokko – Service
Z_MA.W,MAD,Y,Y,N,Sales,MA,,,,,DefaultParent=Z_MA,English=Zenith Morocco – warehouse,German=Zenith Marokko – Lager
Z_MA.F,MAD,Y,Y,N,Sales,MA,,,,,DefaultParent=Z_MA,English=Zenith Morocco – finance,German=Zenith Marokko – Finanzen
ZELIM,EUR,N,N,N,Corporate,,,,,,DefaultParent=ZENITH,English=Group eliminations,German=Konzernbuchungen
REGIONS,EUR,Y,N,Y,Corporate,,,,,,DefaultParent=#root,English=By region,German=Nach Region
NORTH,EUR,Y,N,Y,Corporate,,,,,,DefaultParent=REGIONS,English=North,German=Nord
CENTRE,EUR,Y,N,Y,Corporate,,,,,,DefaultParent=REGIONS,English=Centre,German=Mitte
SOUTH,EUR,Y,N,Y,Corporate,,,,,,DefaultParent=REGIONS,English=South and west,German=Süd und West
OVERSEAS,EUR,Y,N,Y,Corporate,,,,,,DefaultParent=REGIONS,English=Overseas,German=Übersee
FUNCTIONS,EUR,Y,N,Y,Corporate,,,,,,DefaultParent=#root,English=By function,German=Nach Funktion
FUN_S,EUR,Y,N,Y,Corporate,,,,,,DefaultParent=FUNCTIONS,English=All: sales,German=Alle: Vertrieb
FUN_V,EUR,Y,N,Y,Corporate,,,,,,DefaultParent=FUNCTIONS,English=All: service,German=Alle: Service
FUN_W,EUR,Y,N,Y,Corporate,,,,,,DefaultParent=FUNCTIONS,English=All: warehouse,German=Alle: Lager
FUN_F,EUR,Y,N,Y,Corporate,,,,,,DefaultParent=FUNCTIONS,English=All: finance,German=Alle: Finanzen
FUN_10,EUR,Y,N,Y,Corporate,,,,,,DefaultParent=FUNCTIONS,English=All: parts,German=Alle: Teilefertigung
FUN_20,EUR,Y,N,Y,Corporate,,,,,,DefaultParent=FUNCTIONS,English=All: assembly,German=Alle: Montage
FUN_30,EUR,Y,N,Y,Corporate,,,,,,DefaultParent=FUNCTIONS,English=All: calibration,German=Alle: Kalibrierung
FUN_40,EUR,Y,N,Y,Corporate,,,,,,DefaultParent=FUNCTIONS,English=All: tool shop,German=Alle: Werkzeugbau
!HIERARCHIES=Entity
,[None]
,ZENITH
ZENITH,ZHOLD
ZENITH,ZPROD
ZPROD,ZDE1
ZDE1,ZDE1-10
ZDE1,ZDE1-20
ZDE1,ZDE1-30
ZDE1,ZDE1-40
ZPROD,ZDE2
ZDE2,ZDE2-10
ZDE2,ZDE2-20
ZDE2,ZDE2-30
ZDE2,ZDE2-40
ZPROD,ZCH1
ZCH1,ZCH1-10
ZCH1,ZCH1-20
ZCH1,ZCH1-30
ZCH1,ZCH1-40
ZPROD,ZFR1
ZFR1,ZFR1-10
ZFR1,ZFR1-20
ZFR1,ZFR1-30
ZFR1,ZFR1-40
ZPROD,ZAT1
ZAT1,ZAT1-10
ZAT1,ZAT1-20
ZAT1,ZAT1-30
ZAT1,ZAT1-40
ZPROD,ZGB1
ZGB1,ZGB1-10
ZGB1,ZGB1-20
ZGB1,ZGB1-30
ZGB1,ZGB1-40
ZPROD,ZIT1
ZIT1,ZIT1-10
ZIT1,ZIT1-20
ZIT1,ZIT1-30
ZIT1,ZIT1-40
ZPROD,ZSE1
ZSE1,ZSE1-10
ZSE1,ZSE1-20
ZSE1,ZSE1-30
ZSE1,ZSE1-40
ZPROD,ZUS1
ZUS1,ZUS1-10
ZUS1,ZUS1-20
ZUS1,ZUS1-30
ZUS1,ZUS1-40
ZPROD,ZJP1
ZJP1,ZJP1-10
ZJP1,ZJP1-20
ZJP1,ZJP1-30
ZJP1,ZJP1-40
ZENITH,ZSALES
ZSALES,Z_GB
Z_GB,Z_GB.S
Z_GB,Z_GB.V
Z_GB,Z_GB.W
Z_GB,Z_GB.F
ZSALES,Z_IE
Z_IE,Z_IE.S
Z_IE,Z_IE.V
Z_IE,Z_IE.W
Z_IE,Z_IE.F
ZSALES,Z_SE
Z_SE,Z_SE.S
Z_SE,Z_SE.V
Z_SE,Z_SE.W
Z_SE,Z_SE.F
ZSALES,Z_NO
Z_NO,Z_NO.S
Z_NO,Z_NO.V
Z_NO,Z_NO.W
Z_NO,Z_NO.F
ZSALES,Z_DK
Z_DK,Z_DK.S
Z_DK,Z_DK.V
Z_DK,Z_DK.W
Z_DK,Z_DK.F
ZSALES,Z_FI
Z_FI,Z_FI.S
Z_FI,Z_FI.V
Z_FI,Z_FI.W
Z_FI,Z_FI.F
ZSALES,Z_EE
Z_EE,Z_EE.S
Z_EE,Z_EE.V
Z_EE,Z_EE.W
Z_EE,Z_EE.F
ZSALES,Z_FR
Z_FR,Z_FR.S
Z_FR,Z_FR.V
Z_FR,Z_FR.W
Z_FR,Z_FR.F
ZSALES,Z_BE
Z_BE,Z_BE.S
Z_BE,Z_BE.V
Z_BE,Z_BE.W
Z_BE,Z_BE.F
ZSALES,Z_NL
Z_NL,Z_NL.S
Z_NL,Z_NL.V
Z_NL,Z_NL.W
Z_NL,Z_NL.F
ZSALES,Z_DE
Z_DE,Z_DE.S
Z_DE,Z_DE.V
Z_DE,Z_DE.W
Z_DE,Z_DE.F
ZSALES,Z_AT
Z_AT,Z_AT.S
Z_AT,Z_AT.V
Z_AT,Z_AT.W
Z_AT,Z_AT.F
ZSALES,Z_CH
Z_CH,Z_CH.S
Z_CH,Z_CH.V
Z_CH,Z_CH.W
Z_CH,Z_CH.F
ZSALES,Z_ES
Z_ES,Z_ES.S
Z_ES,Z_ES.V
Z_ES,Z_ES.W
Z_ES,Z_ES.F
ZSALES,Z_PT
Z_PT,Z_PT.S
Z_PT,Z_PT.V
Z_PT,Z_PT.W
Z_PT,Z_PT.F
ZSALES,Z_IT
Z_IT,Z_IT.S
Z_IT,Z_IT.V
Z_IT,Z_IT.W
Z_IT,Z_IT.F
ZSALES,Z_GR
Z_GR,Z_GR.S
Z_GR,Z_GR.V
Z_GR,Z_GR.W
Z_GR,Z_GR.F
ZSALES,Z_PL
Z_PL,Z_PL.S
Z_PL,Z_PL.V
Z_PL,Z_PL.W
Z_PL,Z_PL.F
ZSALES,Z_CZ
Z_CZ,Z_CZ.S
Z_CZ,Z_CZ.V
Z_CZ,Z_CZ.W
Z_CZ,Z_CZ.F
ZSALES,Z_HU
Z_HU,Z_HU.S
Z_HU,Z_HU.V
Z_HU,Z_HU.W
Z_HU,Z_HU.F
ZSALES,Z_RO
Z_RO,Z_RO.S
Z_RO,Z_RO.V
Z_RO,Z_RO.W
Z_RO,Z_RO.F
ZSALES,Z_US
Z_US,Z_US.S
Z_US,Z_US.V
Z_US,Z_US.W
Z_US,Z_US.F
ZSALES,Z_CA
Z_CA,Z_CA.S
Z_CA,Z_CA.V
Z_CA,Z_CA.W
Z_CA,Z_CA.F
ZSALES,Z_MX
Z_MX,Z_MX.S
Z_MX,Z_MX.V
Z_MX,Z_MX.W
Z_MX,Z_MX.F
ZSALES,Z_BR
Z_BR,Z_BR.S
Z_BR,Z_BR.V
Z_BR,Z_BR.W
Z_BR,Z_BR.F
ZSALES,Z_JP
Z_JP,Z_JP.S
Z_JP,Z_JP.V
Z_JP,Z_JP.W
Z_JP,Z_JP.F
ZSALES,Z_SG
Z_SG,Z_SG.S
Z_SG,Z_SG.V
Z_SG,Z_SG.W
Z_SG,Z_SG.F
ZSALES,Z_AU
Z_AU,Z_AU.S
Z_AU,Z_AU.V
Z_AU,Z_AU.W
Z_AU,Z_AU.F
ZSALES,Z_ZA
Z_ZA,Z_ZA.S
Z_ZA,Z_ZA.V
Z_ZA,Z_ZA.W
Z_ZA,Z_ZA.F
ZSALES,Z_MA
Z_MA,Z_MA.S
Z_MA,Z_MA.V
Z_MA,Z_MA.W
Z_MA,Z_MA.F
ZENITH,ZELIM
,REGIONS
REGIONS,NORTH
NORTH,Z_GB
NORTH,Z_IE
NORTH,Z_SE
NORTH,Z_NO
NORTH,Z_DK
NORTH,Z_FI
NORTH,Z_EE
NORTH,ZGB1
NORTH,ZSE1
REGIONS,CENTRE
CENTRE,Z_DE
CENTRE,Z_AT
CENTRE,Z_CH
CENTRE,Z_PL
CENTRE,Z_CZ
CENTRE,Z_HU
CENTRE,Z_RO
CENTRE,ZDE1
CENTRE,ZDE2
CENTRE,ZCH1
CENTRE,ZAT1
REGIONS,SOUTH
SOUTH,Z_FR
SOUTH,Z_BE
SOUTH,Z_NL
SOUTH,Z_ES
SOUTH,Z_PT
SOUTH,Z_IT
SOUTH,Z_GR
SOUTH,ZFR1
SOUTH,ZIT1
REGIONS,OVERSEAS
OVERSEAS,Z_US
OVERSEAS,Z_CA
OVERSEAS,Z_MX
OVERSEAS,Z_BR
OVERSEAS,Z_JP
OVERSEAS,Z_SG
OVERSEAS,Z_AU
OVERSEAS,Z_ZA
OVERSEAS,Z_MA
OVERSEAS,ZUS1
OVERSEAS,ZJP1
,FUNCTIONS
FUNCTIONS,FUN_S
FUN_S,Z_GB.S
FUN_S,Z_IE.S
FUN_S,Z_SE.S
FUN_S,Z_NO.S
FUN_S,Z_DK.S
FUN_S,Z_FI.S
FUN_S,Z_EE.S
FUN_S,Z_FR.S
FUN_S,Z_BE.S
FUN_S,Z_NL.S
FUN_S,Z_DE.S
FUN_S,Z_AT.S
FUN_S,Z_CH.S
FUN_S,Z_ES.S
FUN_S,Z_PT.S
FUN_S,Z_IT.S
FUN_S,Z_GR.S
FUN_S,Z_PL.S
FUN_S,Z_CZ.S
FUN_S,Z_HU.S
FUN_S,Z_RO.S
FUN_S,Z_US.S
FUN_S,Z_CA.S
FUN_S,Z_MX.S
FUN_S,Z_BR.S
FUN_S,Z_JP.S
FUN_S,Z_SG.S
FUN_S,Z_AU.S
FUN_S,Z_ZA.S
FUN_S,Z_MA.S
FUNCTIONS,FUN_V
FUN_V,Z_GB.V
FUN_V,Z_IE.V
FUN_V,Z_SE.V
FUN_V,Z_NO.V
FUN_V,Z_DK.V
FUN_V,Z_FI.V
FUN_V,Z_EE.V
FUN_V,Z_FR.V
FUN_V,Z_BE.V
FUN_V,Z_NL.V
FUN_V,Z_DE.V
FUN_V,Z_AT.V
FUN_V,Z_CH.V
FUN_V,Z_ES.V
FUN_V,Z_PT.V
FUN_V,Z_IT.V
FUN_V,Z_GR.V
FUN_V,Z_PL.V
FUN_V,Z_CZ.V
FUN_V,Z_HU.V
FUN_V,Z_RO.V
FUN_V,Z_US.V
FUN_V,Z_CA.V
FUN_V,Z_MX.V
FUN_V,Z_BR.V
FUN_V,Z_JP.V
FUN_V,Z_SG.V
FUN_V,Z_AU.V
FUN_V,Z_ZA.V
FUN_V,Z_MA.V
FUNCTIONS,FUN_W
FUN_W,Z_GB.W
FUN_W,Z_IE.W
FUN_W,Z_SE.W
FUN_W,Z_NO.W
FUN_W,Z_DK.W
FUN_W,Z_FI.W
FUN_W,Z_EE.W
FUN_W,Z_FR.W
FUN_W,Z_BE.W
FUN_W,Z_NL.W
FUN_W,Z_DE.W
FUN_W,Z_AT.W
FUN_W,Z_CH.W
FUN_W,Z_ES.W
FUN_W,Z_PT.W
FUN_W,Z_IT.W
FUN_W,Z_GR.W
FUN_W,Z_PL.W
FUN_W,Z_CZ.W
FUN_W,Z_HU.W
FUN_W,Z_RO.W
FUN_W,Z_US.W
FUN_W,Z_CA.W
FUN_W,Z_MX.W
FUN_W,Z_BR.W
FUN_W,Z_JP.W
FUN_W,Z_SG.W
FUN_W,Z_AU.W
FUN_W,Z_ZA.W
FUN_W,Z_MA.W
FUNCTIONS,FUN_F
FUN_F,Z_GB.F
FUN_F,Z_IE.F
FUN_F,Z_SE.F
FUN_F,Z_NO.F
FUN_F,Z_DK.F
FUN_F,Z_FI.F
FUN_F,Z_EE.F
FUN_F,Z_FR.F
FUN_F,Z_BE.F
FUN_F,Z_NL.F
FUN_F,Z_DE.F
FUN_F,Z_AT.F
FUN_F,Z_CH.F
FUN_F,Z_ES.F
FUN_F,Z_PT.F
FUN_F,Z_IT.F
FUN_F,Z_GR.F
FUN_F,Z_PL.F
FUN_F,Z_CZ.F
FUN_F,Z_HU.F
FUN_F,Z_RO.F
FUN_F,Z_US.F
FUN_F,Z_CA.F
FUN_F,Z_MX.F
FUN_F,Z_BR.F
FUN_F,Z_JP.F
FUN_F,Z_SG.F
FUN_F,Z_AU.F
FUN_F,Z_ZA.F
FUN_F,Z_MA.F
FUNCTIONS,FUN_10
FUN_10,ZDE1-10
FUN_10,ZDE2-10
FUN_10,ZCH1-10
FUN_10,ZFR1-10
FUN_10,ZAT1-10
FUN_10,ZGB1-10
FUN_10,ZIT1-10
FUN_10,ZSE1-10
FUN_10,ZUS1-10
FUN_10,ZJP1-10
FUNCTIONS,FUN_20
FUN_20,ZDE1-20
FUN_20,ZDE2-20
FUN_20,ZCH1-20
FUN_20,ZFR1-20
FUN_20,ZAT1-20
FUN_20,ZGB1-20
FUN_20,ZIT1-20
FUN_20,ZSE1-20
FUN_20,ZUS1-20
FUN_20,ZJP1-20
FUNCTIONS,FUN_30
FUN_30,ZDE1-30
FUN_30,ZDE2-30
FUN_30,ZCH1-30
FUN_30,ZFR1-30
FUN_30,ZAT1-30
FUN_30,ZGB1-30
FUN_30,ZIT1-30
FUN_30,ZSE1-30
FUN_30,ZUS1-30
FUN_30,ZJP1-30
FUNCTIONS,FUN_40
FUN_40,ZDE1-40
FUN_40,ZDE2-40
FUN_40,ZCH1-40
FUN_40,ZFR1-40
FUN_40,ZAT1-40
FUN_40,ZGB1-40
FUN_40,ZIT1-40
FUN_40,ZSE1-40
FUN_40,ZUS1-40
FUN_40,ZJP1-40
!MEMBERS=Scenario
ACTUAL,MTD,YTD,YTD,YTD,Y,,,,Y,Corporate,10,Y,Y,DefaultParent=#root,English=Actual,German=Ist
BUDGET,MTD,Periodic,Periodic,Periodic,N,,,,Y,Corporate,5,Y,Y,DefaultParent=#root,English=Budget,German=Plan
LE1,MTD,Periodic,Periodic,Periodic,N,,,,Y,Corporate,5,Y,Y,DefaultParent=#root,English=First estimate,German=Erste Schätzung
LE2,MTD,Periodic,Periodic,Periodic,N,,,,Y,Corporate,5,Y,Y,DefaultParent=#root,English=Second estimate,German=Zweite Schätzung
PRIOR,MTD,YTD,YTD,YTD,Y,,,,N,Corporate,0,Y,Y,DefaultParent=#root,English=Prior year restated,German=Vorjahr angepasst
!HIERARCHIES=Scenario
,ACTUAL
,BUDGET
,LE1
,LE2
,PRIOR
!CONSOLIDATION_METHODS
'Label,UsedByCalcRoutine,IsHoldingMethod,ToPercentControlComp,ToPercentControl,PercentConsol,Control,Descriptions
HOLDING,Y,Y,<=,100,100,Full,English=Holding company,German=Muttergesellschaft
GLOBAL,Y,N,<=,100,100,Full,English=Full consolidation,German=Vollkonsolidierung
PROPORTIONAL,Y,N,<=,50,50,Limited,English=Proportional consolidation,German=Quotenkonsolidierung
EQUITY,Y,N,<,50,0,Limited,English=Equity method,German=Equity-Methode
NONE,Y,N,<,20,0,No,English=Not consolidated,German=Nicht konsolidiert
!CURRENCIES
'Label,Scale,TranslationOperator,DisplayInICT,Descriptions
EUR,0,,Y,English=Euro,German=Euro
GBP,0,,Y,English=Pound sterling,German=Pfund Sterling
USD,0,,Y,English=US dollar,German=US-Dollar
SEK,0,,Y,English=Swedish krona,German=Schwedische Krone
NOK,0,,Y,English=Norwegian krone,German=Norwegische Krone
DKK,0,,Y,English=Danish krone,German=Dänische Krone
CHF,0,,Y,English=Swiss franc,German=Schweizer Franken
PLN,0,,Y,English=Polish zloty,German=Polnischer Zloty
CZK,0,,Y,English=Czech koruna,German=Tschechische Krone
HUF,0,,Y,English=Hungarian forint,German=Ungarischer Forint
RON,0,,Y,English=Romanian leu,German=Rumänischer Leu
CAD,0,,Y,English=Canadian dollar,German=Kanadischer Dollar
MXN,0,,Y,English=Mexican peso,German=Mexikanischer Peso
BRL,0,,Y,English=Brazilian real,German=Brasilianischer Real
JPY,0,,Y,English=Japanese yen,German=Japanischer Yen
SGD,0,,Y,English=Singapore dollar,German=Singapur-Dollar
AUD,0,,Y,English=Australian dollar,German=Australischer Dollar
ZAR,0,,Y,English=South African rand,German=Südafrikanischer Rand
MAD,0,,Y,English=Moroccan dirham,German=Marokkanischer Dirham
