<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>AquiferAndWellSummaryWizardPage</name>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>&lt;b&gt;Wells&lt;/b&gt;</source>
        <translation>&lt;b&gt;Puits&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Calculated values</source>
        <translation>Valeurs calculées</translation>
    </message>
    <message>
        <source>The construction that the simulation starts from. It follows from the largest flow and the aquifer, or from the page before.</source>
        <translation>L’équipement des puits dont part la simulation. Il résulte du débit maximal et de l’aquifère, ou de la page précédente.</translation>
    </message>
    <message>
        <source>Number of wells</source>
        <translation>Nombre de puits</translation>
    </message>
    <message>
        <source>Pairs of a pumping and an injection well</source>
        <translation>Paires d’un puits de prélèvement et d’un puits de restitution</translation>
    </message>
    <message>
        <source>Minimum distance between wells of the same flow regime</source>
        <translation>Distance minimale entre puits de même fonction</translation>
    </message>
    <message>
        <source>The reach of a well: closer ones draw each other down. None with a single pair.</source>
        <translation>La portée d’un puits&#xa0;: plus rapprochés, les puits rabattent mutuellement leur niveau. Aucune pour une seule paire.</translation>
    </message>
    <message>
        <source>Filter length</source>
        <translation>Longueur de la crépine</translation>
    </message>
    <message>
        <source>Filter diameter</source>
        <translation>Diamètre de la crépine</translation>
    </message>
    <message>
        <source>Diameter of the well</source>
        <translation>Diamètre du puits</translation>
    </message>
    <message>
        <source>Of the bore, with the gravel pack around the filter</source>
        <translation>Diamètre du forage, avec le massif filtrant autour de la crépine</translation>
    </message>
    <message>
        <source>Maximum drawdown</source>
        <translation>Rabattement maximal</translation>
    </message>
    <message>
        <source>In the pumping wells at the largest flow</source>
        <translation>Dans les puits de prélèvement, au débit maximal</translation>
    </message>
</context>
<context>
    <name>AquiferWizardPage</name>
    <message>
        <source>Aquifer</source>
        <translation>Aquifère</translation>
    </message>
    <message>
        <source>&lt;b&gt;Properties of the aquifer&lt;/b&gt;</source>
        <translation>&lt;b&gt;Propriétés de l’aquifère&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Natural groundwater flow</source>
        <translation>Écoulement naturel de la nappe</translation>
    </message>
    <message>
        <source>Hydraulic gradient</source>
        <translation>Gradient hydraulique</translation>
    </message>
    <message>
        <source>Fall of the groundwater table along the flow
0 to 100 m/100m</source>
        <translation>Baisse du niveau de la nappe le long de l’écoulement
0 à 100 m/100m</translation>
    </message>
    <message>
        <source>How far the groundwater table falls over 100 m in the direction of flow. Read it from a map of groundwater contours. With the hydraulic conductivity it gives the velocity, and so how far heat and cold are carried away.</source>
        <translation>Baisse du niveau de la nappe sur 100 m dans la direction d’écoulement. À lire sur une carte des isohypses de la nappe. Avec la perméabilité, elle donne la vitesse, et donc la distance à laquelle la chaleur et le froid sont emportés.</translation>
    </message>
    <message>
        <source>0 to 100 m/100m</source>
        <translation>0 à 100 m/100m</translation>
    </message>
    <message>
        <source>m/100m</source>
        <translation>m/100m</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Confined</source>
        <translation>Captive</translation>
    </message>
    <message>
        <source>The groundwater is under pressure below a layer that lets little water through</source>
        <translation>La nappe est sous pression, sous une couche peu perméable</translation>
    </message>
    <message>
        <source>Thickness</source>
        <translation>Épaisseur</translation>
    </message>
    <message>
        <source>From the base to the top of the aquifer
0 to 1000 m</source>
        <translation>De la base au toit de l’aquifère
0 à 1000 m</translation>
    </message>
    <message>
        <source>Thickness of the water-bearing layer below the confining bed. It bounds the filter length and the yield of a well.</source>
        <translation>Épaisseur de la couche aquifère sous la couche peu perméable. Elle limite la longueur de la crépine et le rendement d’un puits.</translation>
    </message>
    <message>
        <source>0 to 1000 m</source>
        <translation>0 à 1000 m</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>Unconfined</source>
        <translation>Libre</translation>
    </message>
    <message>
        <source>The groundwater has a free surface</source>
        <translation>La nappe a une surface libre</translation>
    </message>
    <message>
        <source>Depth of the groundwater table (at low water level)</source>
        <translation>Profondeur du niveau de la nappe (en basses eaux)</translation>
    </message>
    <message>
        <source>Depth of the water below ground when it is low
0 to 1000 m</source>
        <translation>Profondeur de l’eau sous le terrain en basses eaux
0 à 1000 m</translation>
    </message>
    <message>
        <source>The lowest table to be expected: wells have to give their water in a dry year too. The thickness of the groundwater is the depth of the base less this depth.</source>
        <translation>Le niveau le plus bas auquel il faut s’attendre&#xa0;: les puits doivent fournir leur eau même lors d’une année sèche. L’épaisseur de la nappe est la profondeur de la base moins cette profondeur.</translation>
    </message>
    <message>
        <source>m bgl</source>
        <translation>m sous TN</translation>
    </message>
    <message>
        <source>Depth of the aquifer base</source>
        <translation>Profondeur de la base de l’aquifère</translation>
    </message>
    <message>
        <source>Depth of the first layer below that lets little water through
0 to 1000 m</source>
        <translation>Profondeur de la première couche peu perméable en dessous
0 à 1000 m</translation>
    </message>
    <message>
        <source>From drilling logs. It lies below the groundwater table, and no well of the design goes deeper.</source>
        <translation>D’après les relevés de forage. La base se trouve sous le niveau de la nappe, et aucun puits du projet ne descend plus bas.</translation>
    </message>
    <message>
        <source>Known values of conductivity and porosity</source>
        <translation>Perméabilité et porosité connues</translation>
    </message>
    <message>
        <source>Without the check mark both follow from the material</source>
        <translation>Sans la coche, les deux résultent du matériau</translation>
    </message>
    <message>
        <source>Hydraulic conductivity</source>
        <translation>Perméabilité (conductivité hydraulique)</translation>
    </message>
    <message>
        <source>Best from a pumping test near the site
0 to 1 m/s</source>
        <translation>De préférence d’après un essai de pompage près du site
0 à 1 m/s</translation>
    </message>
    <message>
        <source>Usual are 1e-3 to 1 m/s for gravel, 1e-6 to 1e-2 m/s for clean sand and 1e-7 to 1e-3 m/s for silty sand (Freeze and Cherry, Groundwater, 1979). It decides how much a well yields, how far its water table is drawn down, and how fast the groundwater flows.</source>
        <translation>Valeurs usuelles&#xa0;: 1e-3 à 1 m/s pour le gravier, 1e-6 à 1e-2 m/s pour le sable propre et 1e-7 à 1e-3 m/s pour le sable limoneux (Freeze et Cherry, Groundwater, 1979). La perméabilité détermine le rendement d’un puits, son rabattement et la vitesse d’écoulement de la nappe.</translation>
    </message>
    <message>
        <source>0 to 1 m/s</source>
        <translation>0 à 1 m/s</translation>
    </message>
    <message>
        <source>m/s</source>
        <translation>m/s</translation>
    </message>
    <message>
        <source>Porosity</source>
        <translation>Porosité</translation>
    </message>
    <message>
        <source>The share of the pores through which water flows
0 to 100 %</source>
        <translation>La part des pores que l’eau traverse
0 à 100&#xa0;%</translation>
    </message>
    <message>
        <source>The effective porosity. Specific yields, which come close to it, are 22 to 25 % for gravels and 21 to 27 % for sands (Johnson, USGS Water-Supply Paper 1662-D, 1967). The smaller it is, the faster the water moves.</source>
        <translation>La porosité efficace. Les coefficients d’emmagasinement en nappe libre, qui en sont proches, valent 22 à 25&#xa0;% pour les graviers et 21 à 27&#xa0;% pour les sables (Johnson, USGS Water-Supply Paper 1662-D, 1967). Plus elle est petite, plus l’eau se déplace vite.</translation>
    </message>
    <message>
        <source>0 to 100 %</source>
        <translation>0 à 100&#xa0;%</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Pre-defined values of conductivity and porosity</source>
        <translation>Perméabilité et porosité prédéfinies</translation>
    </message>
    <message>
        <source>Material of the aquifer</source>
        <translation>Matériau de l’aquifère</translation>
    </message>
    <message>
        <source>What the aquifer mainly consists of</source>
        <translation>Ce dont l’aquifère se compose principalement</translation>
    </message>
    <message>
        <source>Behind each material stands the range of its hydraulic conductivity, and below it those of the chosen one. The geometric mean of the range is used, with the porosity of the material.</source>
        <translation>Derrière chaque matériau figure la plage de sa perméabilité, et au-dessous celle du matériau choisi. La moyenne géométrique de la plage est utilisée, avec la porosité du matériau.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>What the figures of this page decide</source>
        <translation>Ce que déterminent les valeurs de cette page</translation>
    </message>
    <message>
        <source>What the figures of this page decide, and where to find them.</source>
        <translation>Ce que déterminent les valeurs de cette page, et où les trouver.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Gradient and conductivity give the velocity of the groundwater; thickness and conductivity decide how many wells are needed and how far they draw the water down.&lt;/p&gt;&lt;p&gt;A pumping test near the site is the best source. Without one, take the material from drilling logs: its figures are typical values (Hölting and Coldewey, Hydrogeologie, 2009), and a site may differ tenfold.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Le gradient et la perméabilité donnent la vitesse de la nappe&#xa0;; l’épaisseur et la perméabilité déterminent le nombre de puits nécessaires et leur rabattement.&lt;/p&gt;&lt;p&gt;Un essai de pompage près du site est la meilleure source. À défaut, prenez le matériau dans les relevés de forage&#xa0;: ses valeurs sont typiques (Hölting et Coldewey, Hydrogeologie, 2009), et un site peut s’en écarter d’un facteur dix.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>BatchFile</name>
    <message>
        <source>%1; the rest is left out</source>
        <translation>%1&#xa0;; le reste est omis</translation>
    </message>
</context>
<context>
    <name>BrunnenWizard</name>
    <message>
        <source>An installation is not possible. More than 1000 wells are required.</source>
        <translation>Une installation n’est pas possible. Plus de 1000 puits sont nécessaires.</translation>
    </message>
    <message>
        <source>Calculated values</source>
        <translation>Valeurs calculées</translation>
    </message>
    <message>
        <source>Values used</source>
        <translation>Valeurs utilisées</translation>
    </message>
    <message>
        <source>Please provide a valid value for the hydraulic gradient.</source>
        <translation>Veuillez indiquer une valeur valable pour le gradient hydraulique.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the aquifer thickness.</source>
        <translation>Veuillez indiquer une valeur valable pour l’épaisseur de l’aquifère.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the depth of the groundwater table.</source>
        <translation>Veuillez indiquer une valeur valable pour la profondeur du niveau de la nappe.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the depth of the aquifer base.</source>
        <translation>Veuillez indiquer une valeur valable pour la profondeur de la base de l’aquifère.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the depth of the aquifer base or of the groundwater table.</source>
        <translation>Veuillez indiquer une valeur valable pour la profondeur de la base de l’aquifère ou du niveau de la nappe.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the hydraulic conductivity.</source>
        <translation>Veuillez indiquer une valeur valable pour la perméabilité.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the aquifer porosity.</source>
        <translation>Veuillez indiquer une valeur valable pour la porosité de l’aquifère.</translation>
    </message>
    <message>
        <source>Reset all changes on the aquifer parameter?</source>
        <translation>Annuler toutes les modifications des paramètres de l’aquifère&#xa0;?</translation>
    </message>
    <message>
        <source>Please provide a valid value for the distance between wells.</source>
        <translation>Veuillez indiquer une valeur valable pour la distance entre les puits.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the well depth.</source>
        <translation>Veuillez indiquer une valeur valable pour la profondeur du puits.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the filter length.</source>
        <translation>Veuillez indiquer une valeur valable pour la longueur de la crépine.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the well depth and/or the filter length.</source>
        <translation>Veuillez indiquer une valeur valable pour la profondeur du puits et/ou la longueur de la crépine.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the filter diameter.</source>
        <translation>Veuillez indiquer une valeur valable pour le diamètre de la crépine.</translation>
    </message>
    <message>
        <source>Reset all changes of the well configuration?</source>
        <translation>Annuler toutes les modifications de la configuration des puits&#xa0;?</translation>
    </message>
    <message>
        <source>&lt;b&gt;The configuration is incorrect.&lt;/b&gt;&lt;br&gt;</source>
        <translation>&lt;b&gt;La configuration est incorrecte.&lt;/b&gt;&lt;br&gt;</translation>
    </message>
    <message>
        <source>The corrected configuration is:&lt;br&gt;</source>
        <translation>La configuration corrigée est&#xa0;:&lt;br&gt;</translation>
    </message>
    <message>
        <source>Number of wells</source>
        <translation>Nombre de puits</translation>
    </message>
    <message>
        <source>Filter length</source>
        <translation>Longueur de la crépine</translation>
    </message>
    <message>
        <source>Filter diameter</source>
        <translation>Diamètre de la crépine</translation>
    </message>
    <message>
        <source>With a maximum drawdown in the well of %1 m.&lt;br&gt;</source>
        <translation>Avec un rabattement maximal dans le puits de %1 m.&lt;br&gt;</translation>
    </message>
    <message>
        <source>Should the configuration be changed?</source>
        <translation>Faut-il modifier la configuration&#xa0;?</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Planning of the thermal use of groundwater</source>
        <translation>Planification de l’utilisation thermique des eaux souterraines</translation>
    </message>
    <message>
        <source>Language of use: de, en or fr.</source>
        <translation>Langue d’utilisation&#xa0;: de, en ou fr.</translation>
    </message>
    <message>
        <source>There is no language %1; there are de, en and fr.</source>
        <translation>La langue %1 n’existe pas&#xa0;; il y a de, en et fr.</translation>
    </message>
    <message>
        <source>Project (.tvr) or batch file (.tbat) to open; the first of several.</source>
        <translation>Projet (.tvr) ou fichier de traitement (.tbat) à ouvrir&#xa0;; le premier s’il y en a plusieurs.</translation>
    </message>
</context>
<context>
    <name>CoolingAndHeatingInstallationWizardPage</name>
    <message>
        <source>Cooling (and heating) installation</source>
        <translation>Installation de refroidissement (et de chauffage)</translation>
    </message>
    <message>
        <source>&lt;b&gt;Cooling (and heating) installation&lt;/b&gt;</source>
        <translation>&lt;b&gt;Installation de refroidissement (et de chauffage)&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Cooling specification</source>
        <translation>Spécification du refroidissement</translation>
    </message>
    <message>
        <source>Cooling demand per year</source>
        <translation>Besoins annuels de froid</translation>
    </message>
    <message>
        <source>(Annual) cooling demand (kWh/a)
Heat that is brought into the groundwater in a year
0 to 100000 kWh/a</source>
        <translation>Besoins (annuels) de froid (kWh/a)
Chaleur introduite dans la nappe en un an
0 à 100000 kWh/a</translation>
    </message>
    <message>
        <source>All of this heat goes into the groundwater. Where a chiller stands between, add the electric energy that it uses.</source>
        <translation>Toute cette chaleur va dans la nappe. Avec une machine frigorifique intermédiaire, ajoutez l’énergie électrique qu’elle consomme.</translation>
    </message>
    <message>
        <source>0 to 100000 kWh/a</source>
        <translation>0 à 100000 kWh/a</translation>
    </message>
    <message>
        <source>kWh/a</source>
        <translation>kWh/a</translation>
    </message>
    <message>
        <source>Coefficient of full load hours</source>
        <translation>Heures de pleine charge</translation>
    </message>
    <message>
        <source>The power follows from demand and hours</source>
        <translation>La puissance résulte des besoins et des heures</translation>
    </message>
    <message>
        <source>The power becomes the annual demand divided by the hours, in whole kilowatts. The arrow keys change between hours and power, Tab goes into the field that is open.</source>
        <translation>La puissance est le quotient des besoins annuels par les heures, en kilowatts entiers. Les touches fléchées passent des heures à la puissance et inversement, Tab va dans le champ ouvert.</translation>
    </message>
    <message>
        <source>Annual demand divided by the largest power
0 to 8784 h/a</source>
        <translation>Besoins annuels divisés par la puissance maximale
0 à 8784 h/a</translation>
    </message>
    <message>
        <source>Some 500 to 1500 h are usual for the cooling of rooms, 4000 h and more for processes.</source>
        <translation>Valeurs usuelles&#xa0;: environ 500 à 1500 h pour le refroidissement des locaux, 4000 h et plus pour les procédés.</translation>
    </message>
    <message>
        <source>0 to 8784 h/a</source>
        <translation>0 à 8784 h/a</translation>
    </message>
    <message>
        <source>h</source>
        <translation>h</translation>
    </message>
    <message>
        <source>Cooling power</source>
        <translation>Puissance frigorifique</translation>
    </message>
    <message>
        <source>The power is entered</source>
        <translation>La puissance est saisie</translation>
    </message>
    <message>
        <source>The hours of full load are kept as they are; above 0 they are the choice when this page opens again. The arrow keys change between hours and power, Tab goes into the field that is open.</source>
        <translation>Les heures de pleine charge restent inchangées&#xa0;; supérieures à 0, elles sont le choix à la réouverture de cette page. Les touches fléchées passent des heures à la puissance et inversement, Tab va dans le champ ouvert.</translation>
    </message>
    <message>
        <source>Cooling power at full load
0 to 100000 kW</source>
        <translation>Puissance frigorifique à pleine charge
0 à 100000 kW</translation>
    </message>
    <message>
        <source>With the temperature change it decides the largest flow, and with that the wells. There has to be a figure also where the hours are used.</source>
        <translation>Avec la variation de température, elle détermine le débit maximal, et par là les puits. Une valeur est nécessaire même si les heures sont utilisées.</translation>
    </message>
    <message>
        <source>0 to 100000 kW</source>
        <translation>0 à 100000 kW</translation>
    </message>
    <message>
        <source>kW</source>
        <translation>kW</translation>
    </message>
    <message>
        <source>Mean temperatur change</source>
        <translation>Variation de température moyenne</translation>
    </message>
    <message>
        <source>By how much cooling warms the groundwater
0 to 100 K</source>
        <translation>De combien le refroidissement réchauffe la nappe
0 à 100 K</translation>
    </message>
    <message>
        <source>3 to 6 K are usual for cooling. VDI 4640-2 allows 6 K between the wells; in Switzerland the groundwater around may change by 3 K (GSchV, annex 2). Twice the change needs half the water and makes the plume stronger.</source>
        <translation>3 à 6 K sont usuels pour le refroidissement. VDI 4640-2 admet 6 K entre les puits&#xa0;; en Suisse, la nappe environnante peut varier de 3 K (OEaux, annexe 2). Une variation double demande moitié moins d’eau et renforce le panache.</translation>
    </message>
    <message>
        <source>0 to 100 K</source>
        <translation>0 à 100 K</translation>
    </message>
    <message>
        <source>K</source>
        <translation>K</translation>
    </message>
    <message>
        <source>Heating specification</source>
        <translation>Spécification du chauffage</translation>
    </message>
    <message>
        <source>Without a mark the installation only cools</source>
        <translation>Sans coche, l’installation ne fait que refroidir</translation>
    </message>
    <message>
        <source>With a mark the installation heats as well. Without one it only cools, and the figures of heating become 0 when the page is left.</source>
        <translation>Avec une coche, l’installation chauffe aussi. Sans coche, elle ne fait que refroidir, et les valeurs du chauffage passent à 0 lorsqu’on quitte la page.</translation>
    </message>
    <message>
        <source>Heating demand per year</source>
        <translation>Besoins annuels de chaleur pour le chauffage</translation>
    </message>
    <message>
        <source>(Annual) heating demand (kWh/a)
Heat that the building needs in a year, with hot water
0 to 100000 kWh/a</source>
        <translation>Besoins (annuels) de chaleur pour le chauffage (kWh/a)
Chaleur nécessaire au bâtiment en un an, eau chaude comprise
0 à 100000 kWh/a</translation>
    </message>
    <message>
        <source>The share 1 - 1/COP of it comes from the groundwater.</source>
        <translation>La part 1 - 1/COP de cette chaleur provient de la nappe.</translation>
    </message>
    <message>
        <source>1800 to 2300 h are usual for dwellings, with hot water up to 2700 h (SIA 384/6, VDI 4640-2).</source>
        <translation>1800 à 2300 h sont usuelles pour les habitations, jusqu’à 2700 h avec l’eau chaude (SIA 384/6, VDI 4640-2).</translation>
    </message>
    <message>
        <source>Heating power</source>
        <translation>Puissance de chauffage</translation>
    </message>
    <message>
        <source>Heating power at full load
0 to 100000 kW</source>
        <translation>Puissance de chauffage à pleine charge
0 à 100000 kW</translation>
    </message>
    <message>
        <source>Mean temperature change</source>
        <translation>Variation de température moyenne</translation>
    </message>
    <message>
        <source>By how much the heat pump cools the groundwater
0 to 100 K</source>
        <translation>De combien la pompe à chaleur refroidit la nappe
0 à 100 K</translation>
    </message>
    <message>
        <source>3 to 4 K are usual for heating. VDI 4640-2 allows 6 K between the wells; in Switzerland the groundwater around may change by 3 K (GSchV, annex 2). Twice the change needs half the water and makes the plume stronger.</source>
        <translation>3 à 4 K sont usuels pour le chauffage. VDI 4640-2 admet 6 K entre les puits&#xa0;; en Suisse, la nappe environnante peut varier de 3 K (OEaux, annexe 2). Une variation double demande moitié moins d’eau et renforce le panache.</translation>
    </message>
    <message>
        <source>Coefficient of performance</source>
        <translation>Coefficient de performance annuel</translation>
    </message>
    <message>
        <source>Heat given in a year divided by the electric energy used for it
0 to 6</source>
        <translation>Chaleur fournie en un an divisée par l’énergie électrique consommée à cet effet
0 à 6</translation>
    </message>
    <message>
        <source>The coefficient of performance over a whole year, with all pumps. Field measurements of heat pumps on ground and groundwater lie between 3 and 5 (Fraunhofer ISE). The share 1 - 1/COP of the heat comes from the groundwater, 71 % at 3.5: the higher the figure, the more water is needed. It has to be above 1.</source>
        <translation>Le coefficient de performance sur toute une année, avec toutes les pompes. Les mesures sur site de pompes à chaleur sur sol et sur nappe se situent entre 3 et 5 (Fraunhofer ISE). La part 1 - 1/COP de la chaleur provient de la nappe, soit 71&#xa0;% pour 3.5&#xa0;: plus la valeur est élevée, plus il faut d’eau. Elle doit être supérieure à 1.</translation>
    </message>
    <message>
        <source>0 to 6</source>
        <translation>0 à 6</translation>
    </message>
    <message>
        <source>best guess 3.5</source>
        <translation>valeur indicative 3.5</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>How the figures of this page work together</source>
        <translation>Comment les valeurs de cette page sont liées</translation>
    </message>
    <message>
        <source>How the figures of this page work together.</source>
        <translation>Comment les valeurs de cette page sont liées.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Hours of full load and power belong together: with the hours the power follows from the demand, otherwise it is entered. A figure for the power is needed in either case.&lt;/p&gt;&lt;p&gt;Of the heating demand and power the groundwater gives the share 1 - 1/COP. The larger power, that of cooling or this share of heating, decides the largest flow. The mean flow follows from what is left over in a year: cooling warms the ground and heating cools it, and the difference remains. The larger of the two yearly amounts also decides which temperature change counts.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Les heures de pleine charge et la puissance vont ensemble&#xa0;: avec les heures, la puissance résulte des besoins&#xa0;; sinon elle est saisie. Une valeur de la puissance est nécessaire dans les deux cas.&lt;/p&gt;&lt;p&gt;La nappe fournit la part 1 - 1/COP des besoins et de la puissance de chauffage. La plus grande puissance, celle du refroidissement ou cette part du chauffage, détermine le débit maximal. Le débit moyen résulte du solde annuel&#xa0;: le refroidissement réchauffe le sous-sol, le chauffage le refroidit, et la différence subsiste. La plus grande des deux quantités annuelles détermine aussi quelle variation de température compte.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>DemandModel</name>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
</context>
<context>
    <name>EnergieVerbrauchWizard</name>
    <message>
        <source>Energy demand wizard</source>
        <translation>Assistant des besoins en énergie</translation>
    </message>
</context>
<context>
    <name>EnergyConsumptionWizardPage</name>
    <message>
        <source>Energy consumption</source>
        <translation>Consommation d’énergie</translation>
    </message>
    <message>
        <source>&lt;b&gt;Energy consumption of the existing installation&lt;/b&gt;</source>
        <translation>&lt;b&gt;Consommation d’énergie de l’installation existante&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Fuel oil</source>
        <translation>Mazout</translation>
    </message>
    <message>
        <source>The present heating uses fuel oil</source>
        <translation>Le chauffage actuel utilise du mazout</translation>
    </message>
    <message>
        <source>Opens the field beside it. The arrow keys go from one kind of energy to the next, Tab goes into the field.</source>
        <translation>Ouvre le champ à côté. Les touches fléchées passent d’un agent énergétique au suivant, Tab va dans le champ.</translation>
    </message>
    <message>
        <source>Fuel oil that the heating uses in a year
0 to 100000000 l/a</source>
        <translation>Mazout consommé par le chauffage en un an
0 à 100000000 l/a</translation>
    </message>
    <message>
        <source>The annual energy demand is taken as 12.6 kWh for each litre (10.7 kWh divided by 0.85). This is on the safe side: of the heat in the fuel an old boiler brings less into the house. Take the mean of three to five years, without what is used for cooking or processes.</source>
        <translation>Les besoins annuels en énergie sont comptés à 12.6 kWh par litre (10.7 kWh divisés par 0.85). C’est du côté de la sécurité&#xa0;: une ancienne chaudière fournit à la maison moins que la chaleur contenue dans le combustible. Prenez la moyenne de trois à cinq ans, sans la consommation pour la cuisson ou les procédés.</translation>
    </message>
    <message>
        <source>0 to 100000000 l/a</source>
        <translation>0 à 100000000 l/a</translation>
    </message>
    <message>
        <source>l/a</source>
        <translation>l/a</translation>
    </message>
    <message>
        <source>Natural gas</source>
        <translation>Gaz naturel</translation>
    </message>
    <message>
        <source>The present heating uses natural gas</source>
        <translation>Le chauffage actuel utilise du gaz naturel</translation>
    </message>
    <message>
        <source>Natural gas that the heating uses in a year
0 to 100000000 m³/a</source>
        <translation>Gaz naturel consommé par le chauffage en un an
0 à 100000000 m³/a</translation>
    </message>
    <message>
        <source>The annual energy demand is taken as 11.3 kWh for each cubic metre (9.6 kWh divided by 0.85). This is on the safe side: of the heat in the fuel an old boiler brings less into the house. Take the mean of three to five years, without what is used for cooking or processes.</source>
        <translation>Les besoins annuels en énergie sont comptés à 11.3 kWh par mètre cube (9.6 kWh divisés par 0.85). C’est du côté de la sécurité&#xa0;: une ancienne chaudière fournit à la maison moins que la chaleur contenue dans le combustible. Prenez la moyenne de trois à cinq ans, sans la consommation pour la cuisson ou les procédés.</translation>
    </message>
    <message>
        <source>0 to 100000000 m³/a</source>
        <translation>0 à 100000000 m³/a</translation>
    </message>
    <message>
        <source>m&lt;sup&gt;3&lt;/sup&gt;/a</source>
        <translation>m&lt;sup&gt;3&lt;/sup&gt;/a</translation>
    </message>
    <message>
        <source>Electric power</source>
        <translation>Électricité</translation>
    </message>
    <message>
        <source>The present heating uses electric power</source>
        <translation>Le chauffage actuel utilise de l’électricité</translation>
    </message>
    <message>
        <source>Electric power that the heating uses in a year
0 to 100000000 kWh/a</source>
        <translation>Électricité consommée par le chauffage en un an
0 à 100000000 kWh/a</translation>
    </message>
    <message>
        <source>What is used for heating and hot water only. It is taken as the annual energy demand as it is. Take the mean of three to five years, without what is used for cooking or processes.</source>
        <translation>Seulement la consommation pour le chauffage et l’eau chaude. Elle est reprise telle quelle comme besoins annuels en énergie. Prenez la moyenne de trois à cinq ans, sans la consommation pour la cuisson ou les procédés.</translation>
    </message>
    <message>
        <source>0 to 100000000 kWh/a</source>
        <translation>0 à 100000000 kWh/a</translation>
    </message>
    <message>
        <source>kWh/a</source>
        <translation>kWh/a</translation>
    </message>
</context>
<context>
    <name>EnergyDemandApproximationWizardPage</name>
    <message>
        <source>Approximation of the energy demand</source>
        <translation>Estimation des besoins en énergie</translation>
    </message>
    <message>
        <source>&lt;b&gt;Approximation of the energy demand&lt;/b&gt;</source>
        <translation>&lt;b&gt;Estimation des besoins en énergie&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Heated floor space</source>
        <translation>Surface de référence énergétique</translation>
    </message>
    <message>
        <source>Heated floor space of all storeys together
0 to 100000000 m²</source>
        <translation>Surface chauffée de tous les étages ensemble
0 à 100000000 m²</translation>
    </message>
    <message>
        <source>The demand is the heat demand per square metre of the building type, times this floor space, times the degree days of the place divided by 3587. A one-family house has some 100 to 250 square metres.</source>
        <translation>Les besoins sont les besoins de chaleur par mètre carré de la catégorie de bâtiment, multipliés par cette surface et par les degrés-jours du lieu divisés par 3587. Une maison individuelle a environ 100 à 250 mètres carrés.</translation>
    </message>
    <message>
        <source>0 to 100000000 m²</source>
        <translation>0 à 100000000 m²</translation>
    </message>
    <message>
        <source>m&lt;sup&gt;2&lt;/sup&gt;</source>
        <translation>m&lt;sup&gt;2&lt;/sup&gt;</translation>
    </message>
    <message>
        <source>Including the supply of hot water</source>
        <translation>Y compris la production d’eau chaude</translation>
    </message>
    <message>
        <source>The heat pump heats the drinking water too</source>
        <translation>La pompe à chaleur produit aussi l’eau chaude sanitaire</translation>
    </message>
    <message>
        <source>Adds the hot water demand of the building type (SIA 380/1: 50 MJ per square metre and year in one-family houses, 75 MJ in apartment houses) and takes its longer hours of full load.</source>
        <translation>Ajoute les besoins pour l’eau chaude de la catégorie de bâtiment (SIA 380/1&#xa0;: 50 MJ par mètre carré et par an pour l’habitat individuel, 75 MJ pour l’habitat collectif) et prend ses heures de pleine charge, plus nombreuses.</translation>
    </message>
    <message>
        <source>In which vicinity is the project located?</source>
        <translation>Près de quel lieu se trouve le projet&#xa0;?</translation>
    </message>
    <message>
        <source>The place whose climate is most like that of the site</source>
        <translation>Le lieu dont le climat ressemble le plus à celui du site</translation>
    </message>
    <message>
        <source>The place gives the heating degree days of a year (base 20/12, as in SIA 381/3). The estimated demand grows in proportion to them.</source>
        <translation>Le lieu donne les degrés-jours de chauffage d’une année (base 20/12, comme dans SIA 381/3). Les besoins estimés leur sont proportionnels.</translation>
    </message>
</context>
<context>
    <name>EnergyDemandDefinitionWizardPage</name>
    <message>
        <source>Definition of the energy demand</source>
        <translation>Définition des besoins en énergie</translation>
    </message>
    <message>
        <source>&lt;b&gt;Definition of the energy demand&lt;/b&gt;</source>
        <translation>&lt;b&gt;Définition des besoins en énergie&lt;/b&gt;</translation>
    </message>
    <message>
        <source>The energy demand has been determined already (e.g. by the architect)</source>
        <translation>Les besoins en énergie sont déjà déterminés (p. ex. par l’architecte)</translation>
    </message>
    <message>
        <source>The annual demand is entered on the next page</source>
        <translation>Les besoins annuels sont saisis à la page suivante</translation>
    </message>
    <message>
        <source>The better choice where a calculation is at hand, such as the one of the permit.</source>
        <translation>Le meilleur choix si un calcul est disponible, p. ex. celui du permis de construire.</translation>
    </message>
    <message>
        <source>Approximation based on the size and location of the installation</source>
        <translation>Estimation d’après la taille et le lieu de l’installation</translation>
    </message>
    <message>
        <source>The annual demand is estimated on the next page</source>
        <translation>Les besoins annuels sont estimés à la page suivante</translation>
    </message>
    <message>
        <source>The demand is estimated from the building type, the heated floor space and the degree days of the place. It is a first figure: insulation and habits may change it by a factor of two.</source>
        <translation>Les besoins sont estimés d’après la catégorie de bâtiment, la surface de référence énergétique et les degrés-jours du lieu. C’est un premier ordre de grandeur&#xa0;: l’isolation et les habitudes peuvent le modifier d’un facteur deux.</translation>
    </message>
</context>
<context>
    <name>EnergyDemandDeterminationWizardPage</name>
    <message>
        <source>Determined energy demand</source>
        <translation>Besoins en énergie déterminés</translation>
    </message>
    <message>
        <source>&lt;b&gt;Determined energy demand&lt;/b&gt;</source>
        <translation>&lt;b&gt;Besoins en énergie déterminés&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Calculated energy demand</source>
        <translation>Besoins en énergie calculés</translation>
    </message>
    <message>
        <source>Heat that the building needs in a year, with hot water
0 to 100000000 kWh/a</source>
        <translation>Chaleur nécessaire au bâtiment par an, eau chaude comprise
0 à 100000000 kWh/a</translation>
    </message>
    <message>
        <source>The heat that the heat pump has to give in a year, for rooms and hot water together. Divided by the hours of full load of the building type it gives the power, and both give the groundwater flow. A one-family house of 150 square metres needs some 8000 kWh/a as a new building and some 25000 kWh/a as an old one.</source>
        <translation>La chaleur que la pompe à chaleur doit fournir par an, pour les locaux et l’eau chaude ensemble. Divisée par les heures de pleine charge de la catégorie de bâtiment, elle donne la puissance&#xa0;; les deux donnent le débit d’eau souterraine. Une maison individuelle de 150 mètres carrés a besoin d’environ 8000 kWh/a si elle est neuve et d’environ 25000 kWh/a si elle est ancienne.</translation>
    </message>
    <message>
        <source>0 to 100000000 kWh/a</source>
        <translation>0 à 100000000 kWh/a</translation>
    </message>
    <message>
        <source>kWh/a</source>
        <translation>kWh/a</translation>
    </message>
</context>
<context>
    <name>EnergyDemandFeatureWizardPage</name>
    <message>
        <source>Installation features</source>
        <translation>Caractéristiques de l’installation</translation>
    </message>
    <message>
        <source>&lt;b&gt;Installation features&lt;/b&gt;</source>
        <translation>&lt;b&gt;Caractéristiques de l’installation&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Objective</source>
        <translation>Objectif</translation>
    </message>
    <message>
        <source>Replacement of an existing heating installation (e.g. oil or gas fueled)</source>
        <translation>Remplacement d’un chauffage existant (p. ex. au mazout ou au gaz)</translation>
    </message>
    <message>
        <source>The demand follows from the consumption of the present heating</source>
        <translation>Les besoins résultent de la consommation du chauffage actuel</translation>
    </message>
    <message>
        <source>The next page asks for the fuel oil, natural gas or electric power that the present heating uses in a year. Demand, power and groundwater flow follow from it.</source>
        <translation>La page suivante demande le mazout, le gaz naturel ou l’électricité que le chauffage actuel consomme par an. Les besoins, la puissance et le débit d’eau souterraine en résultent.</translation>
    </message>
    <message>
        <source>Install a new system for heating</source>
        <translation>Nouvelle installation de chauffage</translation>
    </message>
    <message>
        <source>The demand is known, or is estimated from the building</source>
        <translation>Les besoins sont connus ou estimés d’après le bâtiment</translation>
    </message>
    <message>
        <source>The next page asks whether the heating demand is known already. If it is not, it is estimated from use, floor space and place of the building.</source>
        <translation>La page suivante demande si les besoins de chaleur pour le chauffage sont déjà connus. Sinon, ils sont estimés d’après l’affectation, la surface de référence énergétique et le lieu du bâtiment.</translation>
    </message>
    <message>
        <source>Install a new system for cooling and heating</source>
        <translation>Nouvelle installation de refroidissement et de chauffage</translation>
    </message>
    <message>
        <source>Demand and power of cooling are entered, and those of heating</source>
        <translation>Besoins et puissance sont saisis pour le refroidissement et le chauffage</translation>
    </message>
    <message>
        <source>The next page asks for demand, power and temperature change of cooling and, if there is any, of heating. The building type plays no part then.</source>
        <translation>La page suivante demande les besoins, la puissance et la variation de température du refroidissement et, le cas échéant, du chauffage. La catégorie de bâtiment ne joue alors aucun rôle.</translation>
    </message>
    <message>
        <source>Building type</source>
        <translation>Catégorie de bâtiment</translation>
    </message>
    <message>
        <source>Use of the building, for the hours of full load and the heat demand</source>
        <translation>Affectation du bâtiment, pour les heures de pleine charge et les besoins de chaleur</translation>
    </message>
    <message>
        <source>The building type gives the hours of full load, by which the power follows from the annual demand, and the heat demand per square metre where the demand is estimated. The figures of the reference database lie in the range of SIA 384/6 and VDI 4640-2 (hours) and of SIA 380/1 (demand).</source>
        <translation>La catégorie de bâtiment donne les heures de pleine charge, qui permettent de déduire la puissance des besoins annuels, et les besoins de chaleur par mètre carré lorsque les besoins sont estimés. Les valeurs de la base de données de référence se situent dans les plages de SIA 384/6 et VDI 4640-2 (heures) et de SIA 380/1 (besoins).</translation>
    </message>
</context>
<context>
    <name>EnergyDemandResultWizardPage</name>
    <message>
        <source>Energy demand</source>
        <translation>Besoins en énergie</translation>
    </message>
    <message>
        <source>&lt;b&gt;Energy demand and groundwater use&lt;/b&gt;</source>
        <translation>&lt;b&gt;Besoins en énergie et utilisation des eaux souterraines&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Energy demand and groundwater use</source>
        <translation>Besoins en énergie et utilisation des eaux souterraines</translation>
    </message>
    <message>
        <source>What follows from the demand</source>
        <translation>Ce qui résulte des besoins</translation>
    </message>
    <message>
        <source>What follows from the pages before. With large letters the arrow keys scroll.</source>
        <translation>Ce qui résulte des pages précédentes. Avec de grands caractères, les touches fléchées font défiler le contenu.</translation>
    </message>
    <message>
        <source>Annual energy demand</source>
        <translation>Besoins annuels en énergie</translation>
    </message>
    <message>
        <source>Heat that the heat pump gives in a year</source>
        <translation>Chaleur que la pompe à chaleur fournit par an</translation>
    </message>
    <message>
        <source>From the pages before: entered, estimated, or out of the consumption of the present heating.</source>
        <translation>D’après les pages précédentes&#xa0;: saisis, estimés ou tirés de la consommation du chauffage actuel.</translation>
    </message>
    <message>
        <source>kWh/a</source>
        <translation>kWh/a</translation>
    </message>
    <message>
        <source>Heating/cooling power</source>
        <translation>Puissance de chauffage/frigorifique</translation>
    </message>
    <message>
        <source>Largest power of the installation</source>
        <translation>Puissance maximale de l’installation</translation>
    </message>
    <message>
        <source>Of a heating: the annual demand divided by the hours of full load of the building type. With cooling: the cooling power, or the share of the heating power that comes from the groundwater if that is larger.</source>
        <translation>Pour un chauffage&#xa0;: les besoins annuels divisés par les heures de pleine charge de la catégorie de bâtiment. Avec refroidissement&#xa0;: la puissance frigorifique, ou la part de la puissance de chauffage tirée des eaux souterraines si elle est plus grande.</translation>
    </message>
    <message>
        <source>kW</source>
        <translation>kW</translation>
    </message>
    <message>
        <source>Groundwater</source>
        <translation>Eaux souterraines</translation>
    </message>
    <message>
        <source>Mean temperature change of the groundwater</source>
        <translation>Variation de température moyenne des eaux souterraines</translation>
    </message>
    <message>
        <source>Change between withdrawal and injection well</source>
        <translation>Variation entre le puits de prélèvement et le puits de restitution</translation>
    </message>
    <message>
        <source>As entered. With cooling and heating it is that of the side which moves more heat in a year.</source>
        <translation>Telle que saisie. Avec refroidissement et chauffage, c’est celle du côté qui échange le plus de chaleur par an.</translation>
    </message>
    <message>
        <source>K</source>
        <translation>K</translation>
    </message>
    <message>
        <source>Maximum groundwater withdrawal rate</source>
        <translation>Débit de prélèvement maximal</translation>
    </message>
    <message>
        <source>Flow at full power, for which the wells are designed</source>
        <translation>Débit à pleine puissance, pour lequel les puits sont dimensionnés</translation>
    </message>
    <message>
        <source>What all withdrawal wells together have to give at full power. The flow is the heat that goes through the water, divided by its heat capacity and the temperature change.</source>
        <translation>Ce que tous les puits de prélèvement ensemble doivent fournir à pleine puissance. Le débit est la chaleur échangée avec l’eau, divisée par la capacité thermique de l’eau et la variation de température.</translation>
    </message>
    <message>
        <source>m&lt;sup&gt;3&lt;/sup&gt;/h</source>
        <translation>m&lt;sup&gt;3&lt;/sup&gt;/h</translation>
    </message>
    <message>
        <source>l/min</source>
        <translation>l/min</translation>
    </message>
    <message>
        <source>Annual groundwater withdrawal rate</source>
        <translation>Débit de prélèvement annuel</translation>
    </message>
    <message>
        <source>Mean flow over a whole year</source>
        <translation>Débit moyen sur une année entière</translation>
    </message>
    <message>
        <source>It decides the reach of the plume and the recommended distances between the wells. The flow is the heat that goes through the water, divided by its heat capacity and the temperature change.</source>
        <translation>Il détermine l’étendue du panache et les distances recommandées entre les puits. Le débit est la chaleur échangée avec l’eau, divisée par la capacité thermique de l’eau et la variation de température.</translation>
    </message>
</context>
<context>
    <name>EngerieVerbrauchWizard</name>
    <message>
        <source>Please provide a valid value for the cooling coefficient of full load hours.</source>
        <translation>Veuillez indiquer une valeur valable pour les heures de pleine charge du refroidissement.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the cooling power.</source>
        <translation>Veuillez indiquer une valeur valable pour la puissance frigorifique.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the cooling demand.</source>
        <translation>Veuillez indiquer une valeur valable pour les besoins de froid.</translation>
    </message>
    <message>
        <source>We need a valid value for the temperature change, used for cooling!</source>
        <translation>Il faut une valeur valable pour la variation de température du refroidissement&#xa0;!</translation>
    </message>
    <message>
        <source>We need a valid value for the colling coefficent of full load hours!</source>
        <translation>Il faut une valeur valable pour les heures de pleine charge du refroidissement&#xa0;!</translation>
    </message>
    <message>
        <source>We need a valid value for the cooling power!</source>
        <translation>Il faut une valeur valable pour la puissance frigorifique&#xa0;!</translation>
    </message>
    <message>
        <source>We need a valid value for the heating demand!</source>
        <translation>Il faut une valeur valable pour les besoins de chaleur pour le chauffage&#xa0;!</translation>
    </message>
    <message>
        <source>We need a valid value for the temperature change, used for heating!</source>
        <translation>Il faut une valeur valable pour la variation de température du chauffage&#xa0;!</translation>
    </message>
    <message>
        <source>We need a valid value for the coefficient of performance (COP), used for heating!</source>
        <translation>Il faut une valeur valable pour le coefficient de performance annuel du chauffage&#xa0;!</translation>
    </message>
    <message>
        <source>Reset all changes on the energy demand configuration?</source>
        <translation>Annuler toutes les modifications de la configuration des besoins en énergie&#xa0;?</translation>
    </message>
    <message>
        <source>Please provide a valid value for the fuel oil demand.</source>
        <translation>Veuillez indiquer une valeur valable pour les besoins en mazout.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the gas demand.</source>
        <translation>Veuillez indiquer une valeur valable pour les besoins en gaz naturel.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the energy demand.</source>
        <translation>Veuillez indiquer une valeur valable pour les besoins en énergie.</translation>
    </message>
    <message>
        <source>Reset all changes on the old energy demand configuration?</source>
        <translation>Annuler toutes les modifications de la configuration des anciens besoins en énergie&#xa0;?</translation>
    </message>
    <message>
        <source>Please provide a valid value for the area to be heated.</source>
        <translation>Veuillez indiquer une valeur valable pour la surface à chauffer.</translation>
    </message>
    <message>
        <source>Reset all changes on the energy demand approximation?</source>
        <translation>Annuler toutes les modifications de l’estimation des besoins en énergie&#xa0;?</translation>
    </message>
    <message>
        <source>Reset all changes on the energy demand definition?</source>
        <translation>Annuler toutes les modifications de la définition des besoins en énergie&#xa0;?</translation>
    </message>
    <message>
        <source>Please provide a valid value for the coefficient of performance (COP) of the system.</source>
        <translation>Veuillez indiquer une valeur valable pour le coefficient de performance annuel de l’installation.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the temperature change.</source>
        <translation>Veuillez indiquer une valeur valable pour la variation de température.</translation>
    </message>
    <message>
        <source>Reset all changes on the heat pump specification?</source>
        <translation>Annuler toutes les modifications des spécifications de la pompe à chaleur&#xa0;?</translation>
    </message>
</context>
<context>
    <name>ExtendedSimulationParameterWizardPage</name>
    <message>
        <source>Extended simulation parameter</source>
        <translation>Paramètres de simulation étendus</translation>
    </message>
    <message>
        <source>Hydraulic dispersion</source>
        <translation>Dispersion hydrodynamique</translation>
    </message>
    <message>
        <source>Heat spreads more than by conduction alone, since water takes many ways</source>
        <translation>La chaleur se propage plus que par la seule conduction, car l’eau suit de nombreux chemins</translation>
    </message>
    <message>
        <source>Longitudinal dispersivity [m]</source>
        <translation>Dispersivité longitudinale [m]</translation>
    </message>
    <message>
        <source>Along the flow; counts only with the check mark
0.1 to 50 m</source>
        <translation>Dans le sens d’écoulement&#xa0;; ne compte que si la case est cochée
0.1 à 50 m</translation>
    </message>
    <message>
        <source>It grows with the way of the water: about a tenth of the length of the plume (Lallemand-Barres and Peaudecerf, 1978); field values over 100 m are mostly 1 to 10 m (Gelhar, Welty and Rehfeldt, Water Resources Research 28, 1992). More of it makes the plume wider and weaker.</source>
        <translation>Elle croît avec le trajet de l’eau&#xa0;: environ un dixième de la longueur du panache (Lallemand-Barres et Peaudecerf, 1978)&#xa0;; les valeurs de terrain sur 100 m sont le plus souvent de 1 à 10 m (Gelhar, Welty et Rehfeldt, Water Resources Research 28, 1992). Une valeur plus grande rend le panache plus large et plus faible.</translation>
    </message>
    <message>
        <source>0.1 to 50 m</source>
        <translation>0.1 à 50 m</translation>
    </message>
    <message>
        <source>Usage of a closed loop for the water</source>
        <translation>Circulation de l’eau en circuit fermé</translation>
    </message>
    <message>
        <source>Injected water has the temperature of what is pumped, changed by the installation</source>
        <translation>L’eau restituée a la température de l’eau prélevée, modifiée par l’installation</translation>
    </message>
    <message>
        <source>Where warmed or cooled water reaches the pumping wells, the injected water gets warmer or colder still. Without it, what is injected has a fixed change against the natural groundwater.</source>
        <translation>Là où de l’eau réchauffée ou refroidie atteint les puits de prélèvement, l’eau restituée devient encore plus chaude ou plus froide. Sans cette option, l’eau restituée a un écart fixe par rapport à la nappe naturelle.</translation>
    </message>
    <message>
        <source>Numeric parameter</source>
        <translation>Paramètres numériques</translation>
    </message>
    <message>
        <source>Groundwater flow model</source>
        <translation>Modèle d’écoulement souterrain</translation>
    </message>
    <message>
        <source>Tolerances of one&apos;s own instead of the defaults; decides for the heat flow model too</source>
        <translation>Tolérances définies par l’utilisateur au lieu des valeurs par défaut&#xa0;; vaut aussi pour le modèle de transport de chaleur</translation>
    </message>
    <message>
        <source>Absolute error tolerance</source>
        <translation>Tolérance d’erreur absolue</translation>
    </message>
    <message>
        <source>Error that is allowed in each step
1e-12 to 0.1 Pa</source>
        <translation>Erreur admise à chaque pas
1e-12 à 0.1 Pa</translation>
    </message>
    <message>
        <source>1e-5 is the default. A smaller one makes the run longer and the result a little sharper.</source>
        <translation>La valeur par défaut est 1e-5. Une valeur plus petite allonge le calcul et rend le résultat un peu plus précis.</translation>
    </message>
    <message>
        <source>1e-12 to 0.1 Pa</source>
        <translation>1e-12 à 0.1 Pa</translation>
    </message>
    <message>
        <source>Pa</source>
        <translation>Pa</translation>
    </message>
    <message>
        <source>Relative error tolerance</source>
        <translation>Tolérance d’erreur relative</translation>
    </message>
    <message>
        <source>Error that is allowed in each step, as a part of the value
1e-12 to 0.1</source>
        <translation>Erreur admise à chaque pas, en fraction de la valeur
1e-12 à 0.1</translation>
    </message>
    <message>
        <source>1e-12 to 0.1</source>
        <translation>1e-12 à 0.1</translation>
    </message>
    <message>
        <source>Heat flow model</source>
        <translation>Modèle de transport de chaleur</translation>
    </message>
    <message>
        <source>They count only while those of the groundwater flow model are switched on</source>
        <translation>Ne comptent que si celles du modèle d’écoulement souterrain sont activées</translation>
    </message>
    <message>
        <source>Error that is allowed in each step
1e-12 to 0.001 K</source>
        <translation>Erreur admise à chaque pas
1e-12 à 0.001 K</translation>
    </message>
    <message>
        <source>1e-7 is the default. A smaller one makes the run longer and the result a little sharper.</source>
        <translation>La valeur par défaut est 1e-7. Une valeur plus petite allonge le calcul et rend le résultat un peu plus précis.</translation>
    </message>
    <message>
        <source>1e-12 to 0.001 K</source>
        <translation>1e-12 à 0.001 K</translation>
    </message>
    <message>
        <source>K</source>
        <translation>K</translation>
    </message>
    <message>
        <source>Error that is allowed in each step, as a part of the value
1e-12 to 0.001</source>
        <translation>Erreur admise à chaque pas, en fraction de la valeur
1e-12 à 0.001</translation>
    </message>
    <message>
        <source>1e-12 to 0.001</source>
        <translation>1e-12 à 0.001</translation>
    </message>
    <message>
        <source>Element size increase factor</source>
        <translation>Facteur d’accroissement de la taille des éléments</translation>
    </message>
    <message>
        <source>By how many percent elements grow from one to the next away from a well
1 to 100 %</source>
        <translation>Accroissement en pour-cent d’un élément au suivant en s’éloignant d’un puits
1 à 100&#xa0;%</translation>
    </message>
    <message>
        <source>30 is the default. Smaller factors make smoother meshes with more elements.</source>
        <translation>La valeur par défaut est 30. Des facteurs plus petits donnent des maillages plus réguliers avec plus d’éléments.</translation>
    </message>
    <message>
        <source>1 to 100 %</source>
        <translation>1 à 100&#xa0;%</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Minimal size of elements</source>
        <translation>Taille minimale des éléments</translation>
    </message>
    <message>
        <source>Size of the elements at the wells
0 to 10 m</source>
        <translation>Taille des éléments près des puits
0 à 10 m</translation>
    </message>
    <message>
        <source>Smaller ones show the temperature at the wells finer and need more of them.</source>
        <translation>Des éléments plus petits montrent plus finement la température près des puits, mais il en faut davantage.</translation>
    </message>
    <message>
        <source>0 to 10 m</source>
        <translation>0 à 10 m</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>Maximal size of elements</source>
        <translation>Taille maximale des éléments</translation>
    </message>
    <message>
        <source>Size of the elements far from the wells
0 to 1000 m</source>
        <translation>Taille des éléments loin des puits
0 à 1000 m</translation>
    </message>
    <message>
        <source>Has to be larger than the minimal size.</source>
        <translation>Doit être supérieure à la taille minimale.</translation>
    </message>
    <message>
        <source>0 to 1000 m</source>
        <translation>0 à 1000 m</translation>
    </message>
    <message>
        <source>Additional output</source>
        <translation>Sorties supplémentaires</translation>
    </message>
    <message>
        <source>Write drawdown and temperatures in CSV and SHP file format</source>
        <translation>Écrire rabattement et températures en formats CSV et SHP</translation>
    </message>
    <message>
        <source>At each output time files are written into a folder</source>
        <translation>À chaque instant de sortie, des fichiers sont écrits dans un dossier</translation>
    </message>
    <message>
        <source>Folder of the files</source>
        <translation>Dossier des fichiers</translation>
    </message>
    <message>
        <source>The folder for the tables and shapefiles of each output time.</source>
        <translation>Le dossier des tableaux et des fichiers Shapefile de chaque instant de sortie.</translation>
    </message>
    <message>
        <source>Choose where to</source>
        <translation>Choisir la destination</translation>
    </message>
    <message>
        <source>Write well temperature output</source>
        <translation>Écrire les températures des puits</translation>
    </message>
    <message>
        <source>A table of the temperatures at the wells over time</source>
        <translation>Un tableau des températures aux puits au cours du temps</translation>
    </message>
    <message>
        <source>File of the table</source>
        <translation>Fichier du tableau</translation>
    </message>
    <message>
        <source>A name that ends in .xml gives a table for spreadsheet programs, any other one tab-separated text.</source>
        <translation>Un nom terminé par .xml donne un tableau pour tableurs, tout autre nom un texte séparé par des tabulations.</translation>
    </message>
</context>
<context>
    <name>GeneralWizard</name>
    <message>
        <source>General wizard</source>
        <translation>Assistant des informations générales</translation>
    </message>
</context>
<context>
    <name>GraphicWizard</name>
    <message>
        <source>Please provide a valid value for the x coordinate of the map origin.</source>
        <translation>Veuillez indiquer une valeur valable pour la coordonnée X de l’origine de la carte.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the y coordinate of the map origin.</source>
        <translation>Veuillez indiquer une valeur valable pour la coordonnée Y de l’origine de la carte.</translation>
    </message>
    <message>
        <source>We need a valid value for the map extention (West - East) or select a scale!</source>
        <translation>Il faut une valeur valable pour l’étendue de la carte (ouest - est), ou choisir une échelle&#xa0;!</translation>
    </message>
    <message>
        <source>Please provide a valid name for the background image file.</source>
        <translation>Veuillez indiquer un nom valable pour le fichier de l’image de fond.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the x coordinate of the background image origin.</source>
        <translation>Veuillez indiquer une valeur valable pour la coordonnée X de l’origine de l’image de fond.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the y coordinate of the background image origin.</source>
        <translation>Veuillez indiquer une valeur valable pour la coordonnée Y de l’origine de l’image de fond.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the horizontal image extension (West-East).</source>
        <translation>Veuillez indiquer une valeur valable pour l’étendue horizontale de l’image (ouest-est).</translation>
    </message>
    <message>
        <source>Please provide a valid value for the vertical image extension (North-South).</source>
        <translation>Veuillez indiquer une valeur valable pour l’étendue verticale de l’image (nord-sud).</translation>
    </message>
    <message>
        <source>Reset all changes on the mapping information?</source>
        <translation>Annuler toutes les modifications de la cartographie&#xa0;?</translation>
    </message>
</context>
<context>
    <name>HeatPumpSpecificationWizardPage</name>
    <message>
        <source>Heat pump specifications</source>
        <translation>Spécifications de la pompe à chaleur</translation>
    </message>
    <message>
        <source>&lt;b&gt;Heat pump specifications&lt;/b&gt;</source>
        <translation>&lt;b&gt;Spécifications de la pompe à chaleur&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Coefficient of performance</source>
        <translation>Coefficient de performance annuel</translation>
    </message>
    <message>
        <source>Heat given in a year divided by the electric energy used for it
0 to 6</source>
        <translation>Chaleur fournie en un an divisée par l’énergie électrique consommée à cet effet
0 à 6</translation>
    </message>
    <message>
        <source>The coefficient of performance over a whole year, with all pumps. Field measurements of heat pumps on ground and groundwater lie between 3 and 5 (Fraunhofer ISE). The share 1 - 1/COP of the heat comes from the groundwater, 71 % at 3.5: the higher the figure, the more water is needed. It has to be above 1.</source>
        <translation>Le coefficient de performance sur toute une année, avec toutes les pompes. Les mesures sur site de pompes à chaleur sur sol et sur nappe se situent entre 3 et 5 (Fraunhofer ISE). La part 1 - 1/COP de la chaleur provient de la nappe, soit 71&#xa0;% pour 3.5&#xa0;: plus la valeur est élevée, plus il faut d’eau. Elle doit être supérieure à 1.</translation>
    </message>
    <message>
        <source>0 to 6</source>
        <translation>0 à 6</translation>
    </message>
    <message>
        <source>Referenzwert 3.5</source>
        <translation>Valeur de référence 3.5</translation>
    </message>
    <message>
        <source>Mean temperature change</source>
        <translation>Variation de température moyenne</translation>
    </message>
    <message>
        <source>By how much the heat pump cools the groundwater
0 to 100 K</source>
        <translation>De combien la pompe à chaleur refroidit la nappe
0 à 100 K</translation>
    </message>
    <message>
        <source>3 to 4 K are usual for heating. VDI 4640-2 allows 6 K between the wells; in Switzerland the groundwater around may change by 3 K (GSchV, annex 2). Twice the change needs half the water and makes the plume stronger.</source>
        <translation>3 à 4 K sont usuels pour le chauffage. VDI 4640-2 admet 6 K entre les puits&#xa0;; en Suisse, la nappe environnante peut varier de 3 K (OEaux, annexe 2). Une variation double demande moitié moins d’eau et renforce le panache.</translation>
    </message>
    <message>
        <source>0 to 100 K</source>
        <translation>0 à 100 K</translation>
    </message>
    <message>
        <source>K</source>
        <translation>K</translation>
    </message>
</context>
<context>
    <name>Legend</name>
    <message>
        <source>no change above %1 K</source>
        <translation>aucune variation supérieure à %1 K</translation>
    </message>
</context>
<context>
    <name>MappingWizardPage</name>
    <message>
        <source>Map</source>
        <translation>Carte</translation>
    </message>
    <message>
        <source>General map</source>
        <translation>Carte générale</translation>
    </message>
    <message>
        <source>[Specifications may be adapted later on]</source>
        <translation>[Ces indications peuvent être adaptées plus tard]</translation>
    </message>
    <message>
        <source>Origin</source>
        <translation>Origine</translation>
    </message>
    <message>
        <source>X (East)</source>
        <translation>X (est)</translation>
    </message>
    <message>
        <source>Lower left corner of the map
0 to 18577795 m</source>
        <translation>Angle inférieur gauche de la carte
0 à 18577795 m</translation>
    </message>
    <message>
        <source>Where the lower left corner of the map lies, in metres of a national grid. With 0 the map has a grid of its own.</source>
        <translation>Position de l’angle inférieur gauche de la carte, en mètres d’un système de coordonnées national. Avec 0, la carte a son propre système.</translation>
    </message>
    <message>
        <source>0 to 18577795 m</source>
        <translation>0 à 18577795 m</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>Y (North)</source>
        <translation>Y (nord)</translation>
    </message>
    <message>
        <source>Lower left corner of the map
0 to 10001889 m</source>
        <translation>Angle inférieur gauche de la carte
0 à 10001889 m</translation>
    </message>
    <message>
        <source>0 to 10001889 m</source>
        <translation>0 à 10001889 m</translation>
    </message>
    <message>
        <source>Swiss or WGS84 Coordinates or 0</source>
        <translation>Coordonnées suisses ou WGS84, ou 0</translation>
    </message>
    <message>
        <source>Horizontal extension (West - East)</source>
        <translation>Étendue horizontale (ouest - est)</translation>
    </message>
    <message>
        <source>The width of the ground that the map shows</source>
        <translation>Largeur du terrain que la carte montre</translation>
    </message>
    <message>
        <source>The scale follows from the width of the ground and that of the map on the page.</source>
        <translation>L’échelle résulte de la largeur du terrain et de celle de la carte sur la page.</translation>
    </message>
    <message>
        <source>The width of the ground that the map shows
0 to 10000 m</source>
        <translation>Largeur du terrain que la carte montre
0 à 10000 m</translation>
    </message>
    <message>
        <source>Ten times the distance of the wells shows the plume of most sites.</source>
        <translation>Dix fois la distance entre les puits montre le panache de la plupart des sites.</translation>
    </message>
    <message>
        <source>0 to 10000 m</source>
        <translation>0 à 10000 m</translation>
    </message>
    <message>
        <source>Map scale</source>
        <translation>Échelle de la carte</translation>
    </message>
    <message>
        <source>The map gets the scale that is entered</source>
        <translation>La carte prend l’échelle saisie</translation>
    </message>
    <message>
        <source>The width of the ground follows from the scale and the width of the map on the page.</source>
        <translation>La largeur du terrain résulte de l’échelle et de la largeur de la carte sur la page.</translation>
    </message>
    <message>
        <source>So many metres on the ground are one metre on the page
1 to 100000</source>
        <translation>Nombre de mètres sur le terrain pour un mètre sur la page
1 à 100000</translation>
    </message>
    <message>
        <source>500 is usual for a plot of land, 2500 for a plume.</source>
        <translation>500 est usuel pour une parcelle, 2500 pour un panache.</translation>
    </message>
    <message>
        <source>1 to 100000</source>
        <translation>1 à 100000</translation>
    </message>
    <message>
        <source>Background image</source>
        <translation>Image de fond</translation>
    </message>
    <message>
        <source>A picture under isolines and wells</source>
        <translation>Une image sous les isolignes et les puits</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Fichier&#xa0;:</translation>
    </message>
    <message>
        <source>A picture of the map</source>
        <translation>Une image de la carte</translation>
    </message>
    <message>
        <source>A plan or an aerial picture with north at the top. If a world file (.pgw, .tfw or .jgw) lies beside it, origin and extent are taken from there, after a question.</source>
        <translation>Un plan ou une photo aérienne avec le nord en haut. Si un fichier de calage (.pgw, .tfw ou .jgw) se trouve à côté, l’origine et l’étendue en sont reprises, après confirmation.</translation>
    </message>
    <message>
        <source>Choose the background image</source>
        <translation>Choisir l’image de fond</translation>
    </message>
    <message>
        <source>Choose a picture</source>
        <translation>Choisir une image</translation>
    </message>
    <message>
        <source>Lower left corner of the picture
-18577795 to 18577795 m</source>
        <translation>Angle inférieur gauche de l’image
-18577795 à 18577795 m</translation>
    </message>
    <message>
        <source>Where the lower left corner of the picture lies, in the coordinates of the map.</source>
        <translation>Position de l’angle inférieur gauche de l’image, dans les coordonnées de la carte.</translation>
    </message>
    <message>
        <source>-18577795 to 18577795 m</source>
        <translation>-18577795 à 18577795 m</translation>
    </message>
    <message>
        <source>Lower left corner of the picture
-10001889 to 10001889 m</source>
        <translation>Angle inférieur gauche de l’image
-10001889 à 10001889 m</translation>
    </message>
    <message>
        <source>-10001889 to 10001889 m</source>
        <translation>-10001889 à 10001889 m</translation>
    </message>
    <message>
        <source>Width of the ground on the picture
0 to 10000 m</source>
        <translation>Largeur du terrain sur l’image
0 à 10000 m</translation>
    </message>
    <message>
        <source>Measure it between two points that are known, or multiply the pixels by their size.</source>
        <translation>À mesurer entre deux points connus, ou nombre de pixels multiplié par leur taille.</translation>
    </message>
    <message>
        <source>Vertical extension (North - South)</source>
        <translation>Étendue verticale (nord - sud)</translation>
    </message>
    <message>
        <source>Height of the ground on the picture
0 to 10000 m</source>
        <translation>Hauteur du terrain sur l’image
0 à 10000 m</translation>
    </message>
</context>
<context>
    <name>PageTemplate</name>
    <message>
        <source>Months</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>E [m]</source>
        <translation>E [m]</translation>
    </message>
    <message>
        <source>N [m]</source>
        <translation>N [m]</translation>
    </message>
</context>
<context>
    <name>PluginLoading</name>
    <message>
        <source>The plug-in %1 cannot be loaded: %2

To solve this problem, please re-install the program.</source>
        <translation>Le module %1 ne peut pas être chargé&#xa0;: %2

Pour résoudre ce problème, veuillez réinstaller le programme.</translation>
    </message>
    <message>
        <source>The plug-in of the program is missing: there is none in the folder %1.

To solve this problem, please re-install the program.</source>
        <translation>Le module du programme est absent&#xa0;: il n’y en a pas dans le dossier %1.

Pour résoudre ce problème, veuillez réinstaller le programme.</translation>
    </message>
</context>
<context>
    <name>ProjectLimits</name>
    <message>
        <source>expected at most %1 wells, found %2</source>
        <translation>%1 puits au plus sont possibles, il y en a %2</translation>
    </message>
    <message>
        <source>expected at most %1 demand periods, found %2</source>
        <translation>%1 périodes de besoins au plus sont possibles, il y en a %2</translation>
    </message>
    <message>
        <source>expected at most %1 pairs of well and demand period, found %2</source>
        <translation>%1 couples de puits et de période de besoins au plus sont possibles, il y en a %2</translation>
    </message>
</context>
<context>
    <name>ProjectWizardPage</name>
    <message>
        <source>Project information</source>
        <translation>Informations du projet</translation>
    </message>
    <message>
        <source>&lt;b&gt;Project information&lt;/b&gt;</source>
        <translation>&lt;b&gt;Informations du projet&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Name of the project</source>
        <translation>Nom du projet</translation>
    </message>
    <message>
        <source>The name of the project, as it stands on the printed page.</source>
        <translation>Le nom du projet, tel qu’il figure sur la page imprimée.</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Localité</translation>
    </message>
    <message>
        <source>Location of the project</source>
        <translation>Lieu du projet</translation>
    </message>
    <message>
        <source>Address of the site</source>
        <translation>Adresse du site</translation>
    </message>
    <message>
        <source>The address of the site, as it stands on the printed page. A double click or F2 begins to edit a line, and so does typing; Enter ends it. What is entered is kept at once.</source>
        <translation>L’adresse du site, telle qu’elle figure sur la page imprimée. Un double clic, F2 ou la frappe ouvre une ligne à la saisie&#xa0;; Entrée la termine. Ce qui est saisi est conservé aussitôt.</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Description of the project</source>
        <translation>Description du projet</translation>
    </message>
    <message>
        <source>What the project is about</source>
        <translation>L’objet du projet</translation>
    </message>
    <message>
        <source>What the project is about, in as many words as you like. It is kept with the project. Ctrl+Tab puts in a tabulator.</source>
        <translation>L’objet du projet, en autant de mots que vous voulez. Le texte est conservé avec le projet. Ctrl+Tab insère une tabulation.</translation>
    </message>
</context>
<context>
    <name>PropertyTreeModel</name>
    <message>
        <source>Parameter</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>name and value</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>ProvidedWellsWizardPage</name>
    <message>
        <source>Wells</source>
        <translation>Puits</translation>
    </message>
    <message>
        <source>&lt;b&gt;Configuration of the wells&lt;/b&gt;</source>
        <translation>&lt;b&gt;Configuration des puits&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Specification</source>
        <translation>Spécification</translation>
    </message>
    <message>
        <source>Determine</source>
        <translation>Déterminer</translation>
    </message>
    <message>
        <source>Number, filter and distance of the wells follow from flow and aquifer</source>
        <translation>Le nombre, la crépine et la distance des puits résultent du débit et de l’aquifère</translation>
    </message>
    <message>
        <source>Provide</source>
        <translation>Indiquer</translation>
    </message>
    <message>
        <source>The wells exist already or are fixed</source>
        <translation>Les puits existent déjà ou sont imposés</translation>
    </message>
    <message>
        <source>Number of wells</source>
        <translation>Nombre de puits</translation>
    </message>
    <message>
        <source>Pairs of a pumping and an injection well
1 to 10000</source>
        <translation>Couples de puits de prélèvement et de restitution
1 à 10000</translation>
    </message>
    <message>
        <source>Each pair is one well that pumps and one that puts the water back. The flow is shared equally.</source>
        <translation>Chaque couple comprend un puits qui prélève l’eau et un puits qui la restitue. Le débit est réparti à parts égales.</translation>
    </message>
    <message>
        <source>1 to 10000</source>
        <translation>1 à 10000</translation>
    </message>
    <message>
        <source>Minimum distance between wells</source>
        <translation>Distance minimale entre les puits</translation>
    </message>
    <message>
        <source>Between wells of the same kind
0 to 1000 m</source>
        <translation>Entre puits de même fonction
0 à 1000&#xa0;m</translation>
    </message>
    <message>
        <source>Wells that stand closer than their reach draw each other down. The water that is put back should not come back to the pumping well within the time of operation.</source>
        <translation>Les puits plus proches que leur portée se rabattent mutuellement. L’eau restituée ne devrait pas revenir au puits de prélèvement pendant la durée d’exploitation.</translation>
    </message>
    <message>
        <source>0 to 1000 m</source>
        <translation>0 à 1000 m</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>Total depth of one well</source>
        <translation>Profondeur totale d’un puits</translation>
    </message>
    <message>
        <source>From ground level to the bottom of the well
0 to 1000 m</source>
        <translation>Du terrain naturel au fond du puits
0 à 1000&#xa0;m</translation>
    </message>
    <message>
        <source>The filter has to find room in it.</source>
        <translation>La crépine doit y trouver place.</translation>
    </message>
    <message>
        <source>m bgl</source>
        <translation>m sous TN</translation>
    </message>
    <message>
        <source>Filter length</source>
        <translation>Longueur de la crépine</translation>
    </message>
    <message>
        <source>Length of the screen through which the water flows
0 to 1000 m</source>
        <translation>Longueur de la crépine que l’eau traverse
0 à 1000&#xa0;m</translation>
    </message>
    <message>
        <source>Not more than the groundwater is thick. A longer filter yields more and draws the water down less.</source>
        <translation>Au plus l’épaisseur de la nappe. Une crépine plus longue fournit plus d’eau et cause moins de rabattement.</translation>
    </message>
    <message>
        <source>Filter diameter</source>
        <translation>Diamètre de la crépine</translation>
    </message>
    <message>
        <source>Inner diameter of the screen
0 to 1000 mm</source>
        <translation>Diamètre intérieur de la crépine
0 à 1000&#xa0;mm</translation>
    </message>
    <message>
        <source>The diameter of the bore is taken as 2.5 times this. Choose the unit first: a number stays as it is when the unit changes.</source>
        <translation>Le diamètre du forage est supposé égal à 2.5 fois cette valeur. Choisissez d’abord l’unité&#xa0;: un nombre ne change pas avec l’unité.</translation>
    </message>
    <message>
        <source>0 to 1000 mm</source>
        <translation>0 à 1000&#xa0;mm</translation>
    </message>
    <message>
        <source>Unit of the filter diameter</source>
        <translation>Unité du diamètre de la crépine</translation>
    </message>
    <message>
        <source>The unit of the number beside it</source>
        <translation>L’unité du nombre à côté</translation>
    </message>
    <message>
        <source>Millimetres or inches. The number beside it stays as it is.</source>
        <translation>Millimètres ou pouces. Le nombre à côté ne change pas.</translation>
    </message>
    <message>
        <source>Drawdown calculation will use the superposition between wells</source>
        <translation>Superposer les puits dans le calcul du rabattement</translation>
    </message>
    <message>
        <source>Wells in reach of each other draw each other down</source>
        <translation>Les puits à portée les uns des autres se rabattent mutuellement</translation>
    </message>
    <message>
        <source>Check this data</source>
        <translation>Vérifier ces données</translation>
    </message>
    <message>
        <source>Whether these wells can take the flow, with a proposal if they cannot</source>
        <translation>Ces puits suffisent-ils au débit&#xa0;? Sinon, une proposition est faite</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>What the figures of this page decide</source>
        <translation>Ce que déterminent les valeurs de cette page</translation>
    </message>
    <message>
        <source>What the figures of this page decide, and where to find them.</source>
        <translation>Ce que déterminent les valeurs de cette page, et où les trouver.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Determined wells are the smallest number that can take the largest flow, with a drawdown that the aquifer bears.&lt;/p&gt;&lt;p&gt;Provided wells are taken as they are. With the check mark at the end they are held against flow and aquifer, and a construction that works is proposed if they fail.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Les puits déterminés sont le plus petit nombre de puits qui suffit au débit maximal, avec un rabattement que l’aquifère supporte.&lt;/p&gt;&lt;p&gt;Les puits indiqués sont repris tels quels. Si la case à la fin est cochée, ils sont confrontés au débit et à l’aquifère, et un équipement qui convient est proposé s’ils ne suffisent pas.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>QtVariantPropertyManager</name>
    <message>
        <source>True</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>False</source>
        <translation>Non</translation>
    </message>
</context>
<context>
    <name>Simulation</name>
    <message>
        <source>the temperature of &quot;%1&quot; after %2 years would be %3 °C, but water has %4 to %5 °C</source>
        <translation>la température de «&#xa0;%1&#xa0;» serait de %3&#xa0;°C après %2 ans, mais l’eau a de %4 à %5&#xa0;°C</translation>
    </message>
    <message>
        <source>the temperature of &quot;%1&quot; after %2 years would be %3 °C, but what flows in has %4 to %5 °C</source>
        <translation>la température de «&#xa0;%1&#xa0;» serait de %3&#xa0;°C après %2 ans, mais l’eau qui entre a de %4 à %5&#xa0;°C</translation>
    </message>
    <message>
        <source>the temperature of a cell would be %1 °C at the end, but water has %2 to %3 °C</source>
        <translation>la température d’une maille serait de %1&#xa0;°C à la fin, mais l’eau a de %2 à %3&#xa0;°C</translation>
    </message>
    <message>
        <source>the temperature of a cell would be %1 °C at the end, but what flows in has %2 to %3 °C</source>
        <translation>la température d’une maille serait de %1&#xa0;°C à la fin, mais l’eau qui entre a de %2 à %3&#xa0;°C</translation>
    </message>
    <message>
        <source>The simulated time is not above 0.</source>
        <translation>La durée simulée n’est pas supérieure à 0.</translation>
    </message>
    <message>
        <source>%1 and %2 stand at one place (%3): give each well a place of its own.</source>
        <translation>%1 et %2 se trouvent au même endroit (%3)&#xa0;: donnez à chaque puits un emplacement propre.</translation>
    </message>
    <message>
        <source>No well has a rate.</source>
        <translation>Aucun puits n’a de débit.</translation>
    </message>
    <message>
        <source>The solver could not satisfy the accuracy demanded by the user for some internal step.&lt;br&gt;</source>
        <translation>Le solveur n’a pas pu atteindre la précision demandée lors d’un pas interne.&lt;br&gt;</translation>
    </message>
    <message>
        <source>Error test failures occurred too many times during one internal time step or minimum step size was reached.&lt;br&gt;</source>
        <translation>Le test d’erreur a échoué trop souvent pendant un pas de temps interne, ou le pas minimal a été atteint.&lt;br&gt;</translation>
    </message>
    <message>
        <source>Convergence test failures occurred too many times during one internal time step or minimum step size was reached.&lt;br&gt;</source>
        <translation>La convergence a échoué trop souvent pendant un pas de temps interne, ou le pas minimal a été atteint.&lt;br&gt;</translation>
    </message>
    <message>
        <source>The linear solver&apos;s initialization function failed.&lt;br&gt;</source>
        <translation>L’initialisation du solveur linéaire a échoué.&lt;br&gt;</translation>
    </message>
    <message>
        <source>One of the function inputs is illegal.&lt;br&gt;</source>
        <translation>L’une des données d’entrée du solveur n’est pas admissible.&lt;br&gt;</translation>
    </message>
    <message>
        <source>Please change the model size and/or the numerical parameter of the &lt;b&gt;heat model&lt;/b&gt;.</source>
        <translation>Veuillez modifier la taille du modèle ou les paramètres numériques du &lt;b&gt;modèle de chaleur&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Please change the model size and/or the numerical parameter of the &lt;b&gt;groundwater model&lt;/b&gt;.</source>
        <translation>Veuillez modifier la taille du modèle ou les paramètres numériques du &lt;b&gt;modèle d’écoulement souterrain&lt;/b&gt;.</translation>
    </message>
</context>
<context>
    <name>SimulationParameterWizardPage</name>
    <message>
        <source>Simulation</source>
        <translation>Simulation</translation>
    </message>
    <message>
        <source>&lt;b&gt;Simulation parameters&lt;/b&gt;</source>
        <translation>&lt;b&gt;Paramètres de simulation&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Groundwater flow</source>
        <translation>Écoulement de la nappe</translation>
    </message>
    <message>
        <source>Groundwater flows towards</source>
        <translation>La nappe s’écoule vers</translation>
    </message>
    <message>
        <source>Clockwise from north: 90 is east
0 to 360°</source>
        <translation>Dans le sens horaire depuis le nord&#xa0;: 90 est l’est
0 à 360°</translation>
    </message>
    <message>
        <source>Read it from a map of groundwater contours: the water flows at a right angle to them, downhill. It decides where the plume lies; the needle of the compass tapers in this direction.</source>
        <translation>Se lit sur une carte des isohypses de la nappe&#xa0;: l’eau s’écoule perpendiculairement à celles-ci, vers l’aval. Cette direction décide de la position du panache&#xa0;; l’aiguille de la boussole s’effile dans cette direction.</translation>
    </message>
    <message>
        <source>0 to 360°</source>
        <translation>0 à 360°</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Simulation time</source>
        <translation>Durée de simulation</translation>
    </message>
    <message>
        <source>For how many years of operation temperatures are computed</source>
        <translation>Nombre d’années d’exploitation pour lesquelles les températures sont calculées</translation>
    </message>
    <message>
        <source>A plume grows for many years: 30 a, the life of an installation, shows nearly all of it; 10 a are computed sooner.</source>
        <translation>Un panache croît pendant de nombreuses années&#xa0;: 30&#xa0;a, la durée de vie d’une installation, le montrent presque entier&#xa0;; 10&#xa0;a sont calculés plus vite.</translation>
    </message>
    <message>
        <source>a</source>
        <translation>a</translation>
    </message>
    <message>
        <source>Supplementary</source>
        <translation>Compléments</translation>
    </message>
    <message>
        <source>Additional isotherm for a temperature change of </source>
        <translation>Isotherme supplémentaire pour une variation de </translation>
    </message>
    <message>
        <source>Drawn beside those of 1 K and 3 K</source>
        <translation>Dessinée à côté de celles de 1&#xa0;K et de 3&#xa0;K</translation>
    </message>
    <message>
        <source>Isotherms of 1 K and 3 K are always drawn. Authorities may ask for another one.</source>
        <translation>Les isothermes de 1&#xa0;K et de 3&#xa0;K sont toujours dessinées. Les autorités peuvent en demander une autre.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucune</translation>
    </message>
    <message>
        <source>K</source>
        <translation>K</translation>
    </message>
    <message>
        <source>Maximum number of finite volumes (approximately)</source>
        <translation>Nombre maximal de volumes finis (approximatif)</translation>
    </message>
    <message>
        <source>More elements show the plume finer and take longer
1000 to 100000</source>
        <translation>Plus d’éléments montrent le panache plus finement et demandent plus de temps
1000 à 100000</translation>
    </message>
    <message>
        <source>2500 are enough to design; take more where wells stand close together. Four times as many elements are half as wide.</source>
        <translation>2500 suffisent pour dimensionner&#xa0;; prenez-en plus si les puits sont proches les uns des autres. Quatre fois plus d’éléments sont deux fois moins larges.</translation>
    </message>
    <message>
        <source>1000 to 100000</source>
        <translation>1000 à 100000</translation>
    </message>
    <message>
        <source>Energy exchange with caprock and/or bedrock</source>
        <translation>Échange de chaleur avec le toit ou le mur de l’aquifère</translation>
    </message>
    <message>
        <source>Rock above and below takes part of the heat</source>
        <translation>La roche au-dessus et au-dessous absorbe une partie de la chaleur</translation>
    </message>
    <message>
        <source>With exchange the plume stays smaller; without it the result is on the safe side.</source>
        <translation>Avec l’échange, le panache reste plus petit&#xa0;; sans lui, le résultat est du côté de la sécurité.</translation>
    </message>
    <message>
        <source>Exchange with caprock</source>
        <translation>Échange avec le toit</translation>
    </message>
    <message>
        <source>Heat flows through the layers above up to the surface</source>
        <translation>La chaleur traverse les couches supérieures jusqu’à la surface</translation>
    </message>
    <message>
        <source>Exchange with bedrock</source>
        <translation>Échange avec le mur</translation>
    </message>
    <message>
        <source>Heat flows into the layers below</source>
        <translation>La chaleur pénètre dans les couches inférieures</translation>
    </message>
    <message>
        <source>Simulate</source>
        <translation>Simuler</translation>
    </message>
</context>
<context>
    <name>StudyPage</name>
    <message>
        <source>Time [a]</source>
        <translation>Temps [a]</translation>
    </message>
    <message>
        <source>What makes the difference: %1</source>
        <translation>Ce qui fait la différence&#xa0;: %1</translation>
    </message>
    <message>
        <source>Median; pale: lowest tenth of what is varied, dark: highest</source>
        <translation>Médiane&#xa0;; clair&#xa0;: dixième le plus bas de ce qui varie, foncé&#xa0;: le plus haut</translation>
    </message>
    <message>
        <source>Share of the runs in which it is colder by %1 K or more</source>
        <translation>Part des calculs où il fait plus froid de %1 K ou plus</translation>
    </message>
    <message>
        <source>Share of the runs in which it is warmer by %1 K or more</source>
        <translation>Part des calculs où il fait plus chaud de %1 K ou plus</translation>
    </message>
    <message>
        <source>%1: %2 % of the runs are colder by %3 K or more as far as here</source>
        <translation>%1&#xa0;: dans %2&#xa0;% des calculs, il fait plus froid de %3 K ou plus jusqu’ici</translation>
    </message>
    <message>
        <source>%1: %2 % of the runs are warmer by %3 K or more as far as here</source>
        <translation>%1&#xa0;: dans %2&#xa0;% des calculs, il fait plus chaud de %3 K ou plus jusqu’ici</translation>
    </message>
    <message>
        <source>E [m]</source>
        <translation>E [m]</translation>
    </message>
    <message>
        <source>N [m]</source>
        <translation>N [m]</translation>
    </message>
    <message>
        <source>No run reaches any of the levels</source>
        <translation>Aucun calcul n’atteint l’un des niveaux</translation>
    </message>
    <message>
        <source>Change of temperature by %1 K after %2 a</source>
        <translation>Variation de température de %1 K après %2 a</translation>
    </message>
    <message>
        <source>Mesh of the base: it could not be judged: %1</source>
        <translation>Maillage du cas de base&#xa0;: il n’a pas pu être évalué&#xa0;: %1</translation>
    </message>
    <message>
        <source>Mesh of the base (%1 cells): %2; good enough</source>
        <translation>Maillage du cas de base (%1 mailles)&#xa0;: %2&#xa0;; suffisant</translation>
    </message>
    <message>
        <source>Mesh of the base (%1 cells): %2; not good enough for %3 of %4 figures</source>
        <translation>Maillage du cas de base (%1 mailles)&#xa0;: %2&#xa0;; insuffisant pour %3 grandeurs sur %4</translation>
    </message>
    <message>
        <source>Duration of demand period %1</source>
        <translation>Durée de la période de besoins %1</translation>
    </message>
    <message>
        <source>Flow rate of %1 in demand period %2</source>
        <translation>Débit de %1 dans la période de besoins %2</translation>
    </message>
    <message>
        <source>Temperature change of %1 in demand period %2</source>
        <translation>Variation de température de %1 dans la période de besoins %2</translation>
    </message>
    <message>
        <source>X coordinate of %1</source>
        <translation>Coordonnée X de %1</translation>
    </message>
    <message>
        <source>Y coordinate of %1</source>
        <translation>Coordonnée Y de %1</translation>
    </message>
    <message>
        <source>Mean annual flow rate of %1</source>
        <translation>Débit annuel moyen de %1</translation>
    </message>
    <message>
        <source>Temperature change of %1</source>
        <translation>Variation de température de %1</translation>
    </message>
    <message>
        <source>Well diameter</source>
        <translation>Diamètre du puits</translation>
    </message>
    <message>
        <source>Length of the plume of %1 K after %2 a [m]</source>
        <translation>Longueur du panache de %1 K après %2 a [m]</translation>
    </message>
    <message>
        <source>Width of the plume of %1 K after %2 a [m]</source>
        <translation>Largeur du panache de %1 K après %2 a [m]</translation>
    </message>
    <message>
        <source>Area of the plume of %1 K after %2 a [m²]</source>
        <translation>Surface du panache de %1 K après %2 a [m²]</translation>
    </message>
    <message>
        <source>Greatest drawdown after %1 a [m]</source>
        <translation>Plus grand rabattement après %1 a [m]</translation>
    </message>
    <message>
        <source>Drawdown at %1 after %2 a [m]</source>
        <translation>Rabattement à %1 après %2 a [m]</translation>
    </message>
    <message>
        <source>Temperature of %1 after %2 a [°C]</source>
        <translation>Température de %1 après %2 a [°C]</translation>
    </message>
    <message>
        <source>Lowest temperature of %1 [°C]</source>
        <translation>Température la plus basse de %1 [°C]</translation>
    </message>
    <message>
        <source>Highest temperature of %1 [°C]</source>
        <translation>Température la plus haute de %1 [°C]</translation>
    </message>
    <message>
        <source>length of the plume of %1 K</source>
        <translation>longueur du panache de %1 K</translation>
    </message>
    <message>
        <source>width of the plume of %1 K</source>
        <translation>largeur du panache de %1 K</translation>
    </message>
    <message>
        <source>temperature of %1</source>
        <translation>température de %1</translation>
    </message>
    <message>
        <source>greatest drawdown</source>
        <translation>plus grand rabattement</translation>
    </message>
    <message>
        <source>Latin hypercube</source>
        <translation>hypercube latin</translation>
    </message>
    <message>
        <source>Sobol&apos; sequence</source>
        <translation>suite de Sobol</translation>
    </message>
    <message>
        <source>grid</source>
        <translation>grille</translation>
    </message>
    <message>
        <source>table of values</source>
        <translation>tableau de valeurs</translation>
    </message>
    <message>
        <source>Rank correlation</source>
        <translation>Corrélation des rangs</translation>
    </message>
    <message>
        <source>%1 of %2 runs (%3), of which %4 failed</source>
        <translation>%1 calculs sur %2 (%3), dont %4 ont échoué</translation>
    </message>
    <message>
        <source>Temperature of %1</source>
        <translation>Température de %1</translation>
    </message>
    <message>
        <source>Temperature of %1, the coldest well that withdraws</source>
        <translation>Température de %1, le puits de prélèvement le plus froid</translation>
    </message>
    <message>
        <source>Temperature of %1, the warmest well that withdraws</source>
        <translation>Température de %1, le puits de prélèvement le plus chaud</translation>
    </message>
    <message>
        <source>Temperature of %1, the coldest well</source>
        <translation>Température de %1, le puits le plus froid</translation>
    </message>
    <message>
        <source>Temperature of %1, the warmest well</source>
        <translation>Température de %1, le puits le plus chaud</translation>
    </message>
    <message>
        <source>Drawdown at %1</source>
        <translation>Rabattement à %1</translation>
    </message>
    <message>
        <source>Drawdown at %1, the greatest of the wells</source>
        <translation>Rabattement à %1, le plus grand de tous les puits</translation>
    </message>
    <message>
        <source>%1: variants of %2</source>
        <translation>%1&#xa0;: variantes de %2</translation>
    </message>
    <message>
        <source>Varied</source>
        <translation>Ce qui varie</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Clé</translation>
    </message>
    <message>
        <source>Distribution</source>
        <translation>Distribution</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>Tevrane %1. On the map P10 is what one run of ten reaches; over time P10 is what one run of ten stays below.</source>
        <translation>Tevrane %1. Sur la carte, P10 est ce qu’un calcul sur dix atteint&#xa0;; au cours du temps, P10 est ce au-dessous de quoi reste un calcul sur dix.</translation>
    </message>
    <message>
        <source>Temperature [°C]</source>
        <translation>Température [°C]</translation>
    </message>
    <message>
        <source>Drawdown [m]</source>
        <translation>Rabattement [m]</translation>
    </message>
    <message>
        <source>Nothing to show: no run has this answer</source>
        <translation>Rien à montrer&#xa0;: aucun calcul n’a cette réponse</translation>
    </message>
    <message>
        <source>Nothing makes a difference: the median is %1 everywhere</source>
        <translation>Rien ne fait de différence&#xa0;: la médiane est partout %1</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation>%1&#xa0;; %2</translation>
    </message>
</context>
<context>
    <name>TVR::Data::Manager</name>
    <message>
        <source>An internal error has occurred [%1]</source>
        <translation>Une erreur interne s’est produite [%1]</translation>
    </message>
    <message>
        <source>Query:	</source>
        <translation>Requête&#xa0;:	</translation>
    </message>
    <message>
        <source>Error:	</source>
        <translation>Erreur&#xa0;:	</translation>
    </message>
    <message>
        <source>Driver:	</source>
        <translation>Pilote&#xa0;:	</translation>
    </message>
    <message>
        <source>&lt;b&gt;A database error has occurred :&lt;/b&gt;
%1</source>
        <translation>&lt;b&gt;Une erreur de base de données s’est produite&#xa0;:&lt;/b&gt;
%1</translation>
    </message>
    <message>
        <source>the reference database is missing: %1</source>
        <translation>la base de données de référence est absente&#xa0;: %1</translation>
    </message>
    <message>
        <source>the reference database can&apos;t be read: %1</source>
        <translation>la base de données de référence ne peut pas être lue&#xa0;: %1</translation>
    </message>
    <message>
        <source>the reference database is damaged: %1</source>
        <translation>la base de données de référence est endommagée&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>TVR::Data::UndoHistory</name>
    <message>
        <source>Move wells</source>
        <translation>Déplacer les puits</translation>
    </message>
    <message>
        <source>Change wells</source>
        <translation>Modifier les puits</translation>
    </message>
    <message>
        <source>Change demand periods</source>
        <translation>Modifier les périodes de besoin</translation>
    </message>
    <message>
        <source>Change project</source>
        <translation>Modifier le projet</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>Modifier %1</translation>
    </message>
</context>
<context>
    <name>TVR::Desktop::AboutDialog</name>
    <message>
        <source>About %1</source>
        <translation>À propos de %1</translation>
    </message>
    <message>
        <source>Planning of the thermal use of groundwater</source>
        <translation>Planification de l’utilisation thermique des eaux souterraines</translation>
    </message>
    <message>
        <source>Build</source>
        <translation>Version compilée</translation>
    </message>
</context>
<context>
    <name>TVR::Desktop::GuideWindow</name>
    <message>
        <source>User Guide</source>
        <translation>Guide de l’utilisateur</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>Navigation</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Sommaire</translation>
    </message>
    <message>
        <source>The user guide is missing: there is no %1.

To solve this problem, please re-install the program.</source>
        <translation>Le guide de l’utilisateur est absent&#xa0;: %1 n’existe pas.

Pour résoudre ce problème, veuillez réinstaller le programme.</translation>
    </message>
</context>
<context>
    <name>TVR::Desktop::HostActions</name>
    <message>
        <source>Sa&amp;ve</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Saves the project to the file that it was opened from</source>
        <translation>Enregistre le projet dans le fichier d’où il a été ouvert</translation>
    </message>
    <message>
        <source>Page as &amp;PDF...</source>
        <translation>Page en &amp;PDF...</translation>
    </message>
    <message>
        <source>Writes the page to a PDF file, at its size</source>
        <translation>Écrit la page à sa taille dans un fichier PDF</translation>
    </message>
    <message>
        <source>Page as P&amp;NG...</source>
        <translation>Page en P&amp;NG...</translation>
    </message>
    <message>
        <source>Writes the page to a picture of pixels</source>
        <translation>Écrit la page comme image matricielle</translation>
    </message>
    <message>
        <source>Page as &amp;SVG...</source>
        <translation>Page en &amp;SVG...</translation>
    </message>
    <message>
        <source>Writes the page to a picture of lines</source>
        <translation>Écrit la page comme image vectorielle</translation>
    </message>
    <message>
        <source>&amp;Isolines as DXF...</source>
        <translation>&amp;Isolignes en DXF...</translation>
    </message>
    <message>
        <source>Writes the isolines of the page to a DXF file</source>
        <translation>Écrit les isolignes de la page dans un fichier DXF</translation>
    </message>
    <message>
        <source>&amp;Drawing as DXF...</source>
        <translation>&amp;Dessin en DXF...</translation>
    </message>
    <message>
        <source>Writes wells, isolines and texts of the map to a drawing for CAD programs</source>
        <translation>Écrit les puits, les isolignes et les textes de la carte dans un dessin pour les logiciels de CAO</translation>
    </message>
    <message>
        <source>Page Set-&amp;up...</source>
        <translation>Mise en &amp;page...</translation>
    </message>
    <message>
        <source>Chooses the paper that pages are printed on</source>
        <translation>Choisit le papier pour l’impression des pages</translation>
    </message>
    <message>
        <source>Print Previe&amp;w...</source>
        <translation>Aperçu a&amp;vant impression...</translation>
    </message>
    <message>
        <source>Shows the page as it will be printed</source>
        <translation>Montre la page telle qu’elle sera imprimée</translation>
    </message>
    <message>
        <source>Pr&amp;int...</source>
        <translation>&amp;Imprimer...</translation>
    </message>
    <message>
        <source>Prints the page</source>
        <translation>Imprime la page</translation>
    </message>
    <message>
        <source>&amp;Close Window</source>
        <translation>&amp;Fermer la fenêtre</translation>
    </message>
    <message>
        <source>Closes the active window of the workspace</source>
        <translation>Ferme la fenêtre active de l’espace de travail</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Quitte le programme</translation>
    </message>
    <message>
        <source>&amp;Copy Page as Picture</source>
        <translation>&amp;Copier la page comme image</translation>
    </message>
    <message>
        <source>Copies the page to the clipboard</source>
        <translation>Copie la page dans le presse-papiers</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Agrandir</translation>
    </message>
    <message>
        <source>Shows the page larger</source>
        <translation>Montre la page plus grande</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;Réduire</translation>
    </message>
    <message>
        <source>Shows the page smaller</source>
        <translation>Montre la page plus petite</translation>
    </message>
    <message>
        <source>&amp;Whole Page</source>
        <translation>&amp;Page entière</translation>
    </message>
    <message>
        <source>Shows the whole page in its window</source>
        <translation>Montre la page entière dans sa fenêtre</translation>
    </message>
    <message>
        <source>Page Wi&amp;dth</source>
        <translation>&amp;Largeur de la page</translation>
    </message>
    <message>
        <source>Shows the page as wide as its window</source>
        <translation>Montre la page à la largeur de sa fenêtre</translation>
    </message>
    <message>
        <source>&amp;100 %</source>
        <translation>&amp;100&#xa0;%</translation>
    </message>
    <message>
        <source>Shows the page as large as on paper</source>
        <translation>Montre la page à la taille du papier</translation>
    </message>
    <message>
        <source>&amp;Tool Bar</source>
        <translation>&amp;Barre d’outils</translation>
    </message>
    <message>
        <source>Shows or hides the tool bar</source>
        <translation>Montre ou cache la barre d’outils</translation>
    </message>
    <message>
        <source>&amp;Project Data</source>
        <translation>&amp;Données du projet</translation>
    </message>
    <message>
        <source>Shows or hides the window with the data of the project</source>
        <translation>Montre ou cache la fenêtre des données du projet</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>Plein é&amp;cran</translation>
    </message>
    <message>
        <source>Fills the screen with the program</source>
        <translation>Remplit l’écran avec le programme</translation>
    </message>
    <message>
        <source>&amp;Run Simulation</source>
        <translation>&amp;Lancer la simulation</translation>
    </message>
    <message>
        <source>Computes drawdown and temperatures of the project</source>
        <translation>Calcule le rabattement et les températures du projet</translation>
    </message>
    <message>
        <source>&amp;Cancel Simulation</source>
        <translation>&amp;Annuler la simulation</translation>
    </message>
    <message>
        <source>Ends the simulation at its next step</source>
        <translation>Arrête la simulation au prochain pas de temps</translation>
    </message>
    <message>
        <source>&amp;Next Window</source>
        <translation>Fenêtre &amp;suivante</translation>
    </message>
    <message>
        <source>Goes to the next window of the workspace</source>
        <translation>Passe à la fenêtre suivante de l’espace de travail</translation>
    </message>
    <message>
        <source>&amp;Previous Window</source>
        <translation>Fenêtre &amp;précédente</translation>
    </message>
    <message>
        <source>Goes to the previous window of the workspace</source>
        <translation>Passe à la fenêtre précédente de l’espace de travail</translation>
    </message>
    <message>
        <source>User &amp;Guide</source>
        <translation>&amp;Guide de l’utilisateur</translation>
    </message>
    <message>
        <source>Opens the user guide</source>
        <translation>Ouvre le guide de l’utilisateur</translation>
    </message>
    <message>
        <source>&amp;Report a Problem...</source>
        <translation>&amp;Signaler un problème...</translation>
    </message>
    <message>
        <source>Shows what a report of a problem should hold</source>
        <translation>Montre ce que le signalement d’un problème doit contenir</translation>
    </message>
    <message>
        <source>&amp;About Tevrane</source>
        <translation>À &amp;propos de Tevrane</translation>
    </message>
    <message>
        <source>Shows version and copyright</source>
        <translation>Montre la version et les droits d’auteur</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>À propos de &amp;Qt</translation>
    </message>
    <message>
        <source>Shows the version of the library of the windows</source>
        <translation>Montre la version de la bibliothèque des fenêtres</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Takes back the last change of the project</source>
        <translation>Annule la dernière modification du projet</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Makes again what was undone last</source>
        <translation>Rétablit ce qui a été annulé en dernier</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Annuler&#xa0;: %1</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>&amp;Rétablir&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>TVR::Desktop::HostMenus</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>E&amp;xport</source>
        <translation>E&amp;xporter</translation>
    </message>
    <message>
        <source>&amp;Recent Projects</source>
        <translation>Projets &amp;récents</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Éd&amp;ition</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>Tev&amp;rane</source>
        <translation>Tev&amp;rane</translation>
    </message>
    <message>
        <source>Se&amp;ttings</source>
        <translation>Ré&amp;glages</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>Fe&amp;nêtre</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ai&amp;de</translation>
    </message>
</context>
<context>
    <name>TVR::Desktop::MainWindow</name>
    <message>
        <source>TVR batch file</source>
        <translation>Fichier de traitement TVR</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>A simulation is running. Cancel it and close the program?</source>
        <translation>Une simulation est en cours. L’annuler et fermer le programme&#xa0;?</translation>
    </message>
    <message>
        <source>The project&apos;s results are on this page. Close it?</source>
        <translation>Les résultats du projet sont sur cette page. La fermer&#xa0;?</translation>
    </message>
    <message>
        <source>Only the first file is opened: there is one project at a time.</source>
        <translation>Seul le premier fichier est ouvert&#xa0;: il n’y a qu’un projet à la fois.</translation>
    </message>
</context>
<context>
    <name>TVR::Desktop::PageCommands</name>
    <message>
        <source>%1 file (*.%2)</source>
        <translation>Fichier %1 (*.%2)</translation>
    </message>
    <message>
        <source>Export page</source>
        <translation>Exporter la page</translation>
    </message>
    <message>
        <source>Page written to %1</source>
        <translation>Page écrite dans %1</translation>
    </message>
    <message>
        <source>The page cannot be written to %1</source>
        <translation>La page ne peut pas être écrite dans %1</translation>
    </message>
    <message>
        <source>Page copied to the clipboard</source>
        <translation>Page copiée dans le presse-papiers</translation>
    </message>
</context>
<context>
    <name>TVR::Desktop::PageCoordinates</name>
    <message>
        <source>X %1   Y %2</source>
        <translation>X %1   Y %2</translation>
    </message>
</context>
<context>
    <name>TVR::Desktop::ProblemReport</name>
    <message>
        <source>Report a Problem</source>
        <translation>Signaler un problème</translation>
    </message>
    <message>
        <source>Tell what you did, what you expected and what happened instead, and add the text below. It holds the names of files that you opened.</source>
        <translation>Dites ce que vous avez fait, ce que vous attendiez et ce qui s’est passé à la place, et ajoutez le texte ci-dessous. Il contient les noms des fichiers que vous avez ouverts.</translation>
    </message>
    <message>
        <source>Text of the report</source>
        <translation>Texte du signalement</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
</context>
<context>
    <name>TVR::Desktop::RecentMenu</name>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>No projects yet</source>
        <translation>Pas encore de projets</translation>
    </message>
</context>
<context>
    <name>TVR::Desktop::RunStatus</name>
    <message>
        <source>Progress of the simulation</source>
        <translation>Avancement de la simulation</translation>
    </message>
    <message>
        <source>Cancel the simulation</source>
        <translation>Annuler la simulation</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>encore %1&#xa0;s</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>encore %1&#xa0;min</translation>
    </message>
</context>
<context>
    <name>TVR::Desktop::Workspace</name>
    <message>
        <source>Open a project from the File menu, or drop its file here.</source>
        <translation>Ouvrez un projet depuis le menu «&#xa0;Fichier&#xa0;», ou déposez son fichier ici.</translation>
    </message>
</context>
<context>
    <name>TVR::DrawingExport</name>
    <message>
        <source>Save as dxf drawing</source>
        <translation>Enregistrer comme dessin DXF</translation>
    </message>
    <message>
        <source>DXF drawing, release 12 (*.dxf)</source>
        <translation>Dessin DXF, version 12 (*.dxf)</translation>
    </message>
    <message>
        <source>Unable to create:%1</source>
        <translation>Impossible de créer&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>TVR::DxfExport</name>
    <message>
        <source>Save as dxf file</source>
        <translation>Enregistrer comme fichier DXF</translation>
    </message>
    <message>
        <source>AutoCAD dxf-file (*.dxf)</source>
        <translation>Fichier DXF AutoCAD (*.dxf)</translation>
    </message>
</context>
<context>
    <name>TVR::ExportOptionsDialog</name>
    <message>
        <source>Save isohypses</source>
        <translation>Enregistrer les isohypses</translation>
    </message>
    <message>
        <source>Save isothermes</source>
        <translation>Enregistrer les isothermes</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Options&#xa0;:</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::AquiferWizardPage</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 to %2 m/s</source>
        <translation>%1 à %2&#xa0;m/s</translation>
    </message>
    <message>
        <source>Hydraulic conductivity %1, porosity %2 %</source>
        <translation>Perméabilité %1, porosité %2&#xa0;%</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::CellPaste</name>
    <message>
        <source>a withdrawal well has no temperature change. Leave the cell empty.</source>
        <translation>un puits de prélèvement n’a pas de variation de température. Laissez la cellule vide.</translation>
    </message>
    <message>
        <source>the cell cannot be changed here.</source>
        <translation>la cellule ne peut pas être modifiée ici.</translation>
    </message>
    <message>
        <source>the name is empty.</source>
        <translation>le nom est vide.</translation>
    </message>
    <message>
        <source>a number is missing.</source>
        <translation>il manque un nombre.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has separators of thousands. Copy it without them.</source>
        <translation>«&#xa0;%1&#xa0;» contient des séparateurs de milliers. Copiez le nombre sans eux.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has another decimal mark than the cells before it.</source>
        <translation>«&#xa0;%1&#xa0;» a un autre séparateur décimal que les cellules précédentes.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is below %2 %3.</source>
        <translation>«&#xa0;%1&#xa0;» est inférieur à %2&#xa0;%3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not between %2 and %3 %4.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas compris entre %2 et %3&#xa0;%4.</translation>
    </message>
    <message>
        <source>There is no text to paste.</source>
        <translation>Il n’y a pas de texte à coller.</translation>
    </message>
    <message>
        <source>Choose the cell where the block begins first.</source>
        <translation>Choisissez d’abord la cellule où le bloc commence.</translation>
    </message>
    <message>
        <source>The block has %1 columns, but from the chosen cell on there are %2.</source>
        <translation>Le bloc a %1 colonnes, mais il y en a %2 à partir de la cellule choisie.</translation>
    </message>
    <message>
        <source>Row %1, column &quot;%2&quot;: %3</source>
        <translation>Ligne %1, colonne «&#xa0;%2&#xa0;»&#xa0;: %3</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::CompassWidget</name>
    <message>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <source>NE</source>
        <translation>NE</translation>
    </message>
    <message>
        <source>E</source>
        <translation>E</translation>
    </message>
    <message>
        <source>SE</source>
        <translation>SE</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>SW</source>
        <translation>SO</translation>
    </message>
    <message>
        <source>W</source>
        <translation>O</translation>
    </message>
    <message>
        <source>NW</source>
        <translation>NO</translation>
    </message>
    <message>
        <source>%1° %2</source>
        <translation>%1° %2</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::CopyrightDialog</name>
    <message>
        <source>Copyright information</source>
        <translation>Droits d’auteur</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::DependencyMarks</name>
    <message>
        <source>Depends on the selected value, and it on this.</source>
        <translation>Dépend de la valeur sélectionnée, et réciproquement.</translation>
    </message>
    <message>
        <source>The selected value depends on this.</source>
        <translation>La valeur sélectionnée en dépend.</translation>
    </message>
    <message>
        <source>Depends on the selected value.</source>
        <translation>Dépend de la valeur sélectionnée.</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::DesignPropertyEditor</name>
    <message>
        <source>Design Properties</source>
        <translation>Grandeurs du projet</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>non enregistré</translation>
    </message>
    <message>
        <source>Progress of the work at hand</source>
        <translation>Avancement de l’étape en cours</translation>
    </message>
    <message>
        <source>Progress of the simulation</source>
        <translation>Avancement de la simulation</translation>
    </message>
    <message>
        <source>Stop the simulation</source>
        <translation>Arrêter la simulation</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Shows on the page what each change leads to, before it is applied</source>
        <translation>Montre sur la page l’effet de chaque modification avant qu’elle soit appliquée</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Direct</translation>
    </message>
    <message>
        <source>Apply + Run</source>
        <translation>Appliquer + calculer</translation>
    </message>
    <message>
        <source>Design of the project</source>
        <translation>Dimensionnement du projet</translation>
    </message>
    <message>
        <source>Stop editing</source>
        <translation>Arrêter la modification</translation>
    </message>
    <message>
        <source>Change design properties</source>
        <translation>Modifier le dimensionnement</translation>
    </message>
    <message>
        <source>becomes %1</source>
        <translation>devient %1</translation>
    </message>
    <message>
        <source>was %1</source>
        <translation>était %1</translation>
    </message>
    <message>
        <source>→ %1</source>
        <comment>what a value is going to be</comment>
        <translation>→ %1</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::ExtendedSimulationParameterWizardPage</name>
    <message>
        <source>Reset all changes on the extended simulation parameter?</source>
        <translation>Annuler toutes les modifications des paramètres de simulation étendus&#xa0;?</translation>
    </message>
    <message>
        <source>Select output file name</source>
        <translation>Choisir le nom du fichier de sortie</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::InputWizard</name>
    <message>
        <source>Change values (%1)</source>
        <translation>Modifier les valeurs (%1)</translation>
    </message>
    <message>
        <source>Reset values (%1)</source>
        <translation>Réinitialiser les valeurs (%1)</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::MappingWizardPage</name>
    <message>
        <source>Open background image</source>
        <translation>Ouvrir une image de fond</translation>
    </message>
    <message>
        <source>The world file beside the picture cannot be used. %1</source>
        <translation>Le fichier de calage à côté de l’image ne peut pas être utilisé. %1</translation>
    </message>
    <message>
        <source>%1 m by %2 m</source>
        <translation>%1&#xa0;m sur %2&#xa0;m</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Its extent of %1 at %2 cannot be entered here.</source>
        <translation>Son étendue de %1 à partir de %2 ne peut pas être saisie ici.</translation>
    </message>
    <message>
        <source>A world file beside the picture gives its origin as %1 and its extent as %2. Fill in these values?</source>
        <translation>Un fichier de calage à côté de l’image indique l’origine %1 et l’étendue %2. Reprendre ces valeurs&#xa0;?</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::PictureChoice</name>
    <message>
        <source>Image files (%1)</source>
        <translation>Fichiers d’image (%1)</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::ProjectWizardPage</name>
    <message>
        <source>Reset all changes on the project information?</source>
        <translation>Annuler toutes les modifications des informations du projet&#xa0;?</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::RecoveryDialog</name>
    <message>
        <source>Project</source>
        <translation>Projet</translation>
    </message>
    <message>
        <source>Automatically saved</source>
        <translation>Enregistré automatiquement</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>File saved</source>
        <translation>Fichier enregistré</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>Dans le fichier</translation>
    </message>
    <message>
        <source>Recover unsaved projects</source>
        <translation>Récupérer les projets non enregistrés</translation>
    </message>
    <message>
        <source>The program ended before these projects were saved. What was saved automatically can be recovered; their files stay as they are until you save.</source>
        <translation>Le programme s’est arrêté avant l’enregistrement de ces projets. Ce qui a été enregistré automatiquement peut être récupéré&#xa0;; les fichiers restent inchangés jusqu’à ce que vous enregistriez.</translation>
    </message>
    <message>
        <source>&amp;Projects:</source>
        <translation>&amp;Projets&#xa0;:</translation>
    </message>
    <message>
        <source>D&amp;ifferences:</source>
        <translation>&amp;Différences&#xa0;:</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Projets</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Différences</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>&amp;Récupérer</translation>
    </message>
    <message>
        <source>&amp;Discard...</source>
        <translation>&amp;Supprimer...</translation>
    </message>
    <message>
        <source>Decide &amp;later</source>
        <translation>Décider plus &amp;tard</translation>
    </message>
    <message>
        <source>Without a name</source>
        <translation>Sans nom</translation>
    </message>
    <message>
        <source>Never saved</source>
        <translation>Jamais enregistré</translation>
    </message>
    <message>
        <source>What was saved automatically is damaged. It can only be discarded.</source>
        <translation>Ce qui a été enregistré automatiquement est endommagé. On ne peut que le supprimer.</translation>
    </message>
    <message>
        <source>This project was never saved. It is shown beside an empty project.</source>
        <translation>Ce projet n’a jamais été enregistré. Il est montré à côté d’un projet vide.</translation>
    </message>
    <message>
        <source>The file of this project is not there any more, or cannot be read.</source>
        <translation>Le fichier de ce projet n’existe plus ou ne peut pas être lu.</translation>
    </message>
    <message>
        <source>All values are as in the file; the page may be another one.</source>
        <translation>Toutes les valeurs sont comme dans le fichier&#xa0;; la page peut être différente.</translation>
    </message>
    <message>
        <source>The page may differ as well.</source>
        <translation>La page peut aussi être différente.</translation>
    </message>
    <message>
        <source>After one is recovered, the others are offered again at the next start.</source>
        <translation>Une fois l’un d’eux récupéré, les autres sont proposés de nouveau au prochain démarrage.</translation>
    </message>
    <message>
        <source>The file of this project is a batch file. It holds less than a project, so that the two are not compared.</source>
        <translation>Le fichier de ce projet est un fichier de traitement. Il contient moins qu’un projet&#xa0;; les deux ne sont donc pas comparés.</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::SimulationParameterWizardPage</name>
    <message>
        <source>Groundwater flows towards</source>
        <translation>La nappe s’écoule vers</translation>
    </message>
    <message>
        <source>Press or drag to where the groundwater flows; arrow keys turn it too</source>
        <translation>Cliquez ou faites glisser vers l’aval de la nappe&#xa0;; les touches fléchées tournent aussi l’aiguille</translation>
    </message>
    <message>
        <source>The needle tapers in the direction of flow. Arrow keys turn it by a degree, Page Up and Page Down by ten, Home to north.</source>
        <translation>L’aiguille s’effile dans le sens d’écoulement. Les touches fléchées la tournent d’un degré, Page précédente et Page suivante de dix, Début la ramène au nord.</translation>
    </message>
    <message>
        <source>Reset all changes on the simulation parameter?</source>
        <translation>Annuler toutes les modifications des paramètres de simulation&#xa0;?</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::SpreadsheetView</name>
    <message>
        <source>A cell cannot be emptied. Type another value instead.</source>
        <translation>Une cellule ne peut pas être vidée. Saisissez plutôt une autre valeur.</translation>
    </message>
    <message>
        <source>Nothing was pasted. %1</source>
        <translation>Rien n’a été collé. %1</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::TreeAids</name>
    <message>
        <source>Reset to the default</source>
        <translation>Rétablir la valeur par défaut</translation>
    </message>
    <message>
        <source>Show flow rates in</source>
        <translation>Afficher les débits en</translation>
    </message>
    <message>
        <source>Show velocities in</source>
        <translation>Afficher les vitesses en</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::TreeFilter</name>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search the design</source>
        <translation>Rechercher dans le dimensionnement</translation>
    </message>
    <message>
        <source>Finds values by name, key, unit and tool tip</source>
        <translation>Trouve les valeurs par nom, clé, unité et infobulle</translation>
    </message>
    <message>
        <source>Only changed</source>
        <translation>Modifiées</translation>
    </message>
    <message>
        <source>Shows only values that differ from the defaults</source>
        <translation>Ne montre que les valeurs qui diffèrent des valeurs par défaut</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::UserWizardPage</name>
    <message>
        <source>Reset all changes on the user information?</source>
        <translation>Annuler toutes les modifications des informations de l’utilisateur&#xa0;?</translation>
    </message>
    <message>
        <source>Open logo image file</source>
        <translation>Ouvrir un fichier d’image pour le logo</translation>
    </message>
    <message>
        <source>no file</source>
        <translation>aucun fichier</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::ValueRemark</name>
    <message>
        <source>Impossible: expected %1 to %2</source>
        <translation>Impossible&#xa0;: attendu de %1 à %2</translation>
    </message>
    <message>
        <source>Unusual: usual is %1 to %2</source>
        <translation>Inhabituel&#xa0;: la plage usuelle va de %1 à %2</translation>
    </message>
    <message>
        <source>Impossible: the base has to lie below the groundwater table</source>
        <translation>Impossible&#xa0;: la base doit se trouver sous le niveau de la nappe</translation>
    </message>
    <message>
        <source>Water-filled thickness of %1 m. %2</source>
        <translation>Épaisseur mouillée de %1 m. %2</translation>
    </message>
    <message>
        <source>Unusual: &quot;%1&quot; and &quot;%2&quot; stand only %3 m apart</source>
        <translation>Inhabituel&#xa0;: «&#xa0;%1&#xa0;» et «&#xa0;%2&#xa0;» ne sont distants que de %3 m</translation>
    </message>
    <message>
        <source>Impossible: &quot;%1&quot; and &quot;%2&quot; stand only %3 m apart, within one cell of the mesh (%4 m wide)</source>
        <translation>Impossible&#xa0;: «&#xa0;%1&#xa0;» et «&#xa0;%2&#xa0;» ne sont distants que de %3 m, dans la même maille (large de %4 m)</translation>
    </message>
    <message>
        <source>%1. Further pairs of near wells: %2</source>
        <translation>%1. Autres paires de puits proches&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::ValueStory</name>
    <message>
        <source>From the reference database</source>
        <translation>De la base de référence</translation>
    </message>
    <message>
        <source>Entered</source>
        <translation>Saisie</translation>
    </message>
    <message>
        <source>Computed from other values</source>
        <translation>Calculée à partir d’autres valeurs</translation>
    </message>
    <message>
        <source>Set by the program</source>
        <translation>Fixée par le programme</translation>
    </message>
    <message>
        <source>From the file of the project</source>
        <translation>Du fichier du projet</translation>
    </message>
    <message>
        <source>From the last project</source>
        <translation>Du dernier projet</translation>
    </message>
    <message>
        <source>%1 = %2 (%3)</source>
        <comment>symbol, value with unit, name of the value</comment>
        <translation>%1 = %2 (%3)</translation>
    </message>
    <message>
        <source>Found by a search for the wells that carry the flow rate</source>
        <translation>Trouvée en cherchant les puits capables de fournir le débit</translation>
    </message>
    <message>
        <source>Formula: %1</source>
        <translation>Formule&#xa0;: %1</translation>
    </message>
    <message>
        <source>Source: %1</source>
        <translation>Source&#xa0;: %1</translation>
    </message>
    <message>
        <source>Set by a change of: %1</source>
        <translation>Fixée lors d’une modification de&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::WellPositionAndUsageWizardPage</name>
    <message>
        <source>There is a mismatch by %1 % between the required pumping rate and the sum of the currently assigned pumping rates.&lt;br&gt;</source>
        <translation>Il y a un écart de %1&#xa0;% entre le débit de prélèvement requis et la somme des débits de prélèvement attribués.&lt;br&gt;</translation>
    </message>
    <message>
        <source>There is a mismatch by %1 % between the required pumping rate and the sum of the currently assigned pumping rates of demand step %2.&lt;br&gt;</source>
        <translation>Il y a un écart de %1&#xa0;% entre le débit de prélèvement requis et la somme des débits de prélèvement attribués dans la période de besoins %2.&lt;br&gt;</translation>
    </message>
    <message>
        <source>There is a mismatch by %1 % between the required injection rate and the sum of the currently assigned injection rates.&lt;br&gt;</source>
        <translation>Il y a un écart de %1&#xa0;% entre le débit de restitution requis et la somme des débits de restitution attribués.&lt;br&gt;</translation>
    </message>
    <message>
        <source>There is a mismatch by %1 % between the required injection rate and the sum of the currently assigned injection rates of demand step %2.&lt;br&gt;</source>
        <translation>Il y a un écart de %1&#xa0;% entre le débit de restitution requis et la somme des débits de restitution attribués dans la période de besoins %2.&lt;br&gt;</translation>
    </message>
    <message>
        <source>There is a mismatch by %1 % between the pumping and injection rate.&lt;br&gt;</source>
        <translation>Il y a un écart de %1&#xa0;% entre les débits de prélèvement et de restitution.&lt;br&gt;</translation>
    </message>
    <message>
        <source>There is a mismatch between the pumping and injection rate of demand step %1.&lt;br&gt;</source>
        <translation>Il y a un écart entre les débits de prélèvement et de restitution dans la période de besoins %1.&lt;br&gt;</translation>
    </message>
    <message>
        <source>Time unit: hours</source>
        <translation>Unité de temps&#xa0;: heures</translation>
    </message>
    <message>
        <source>Time unit: days</source>
        <translation>Unité de temps&#xa0;: jours</translation>
    </message>
    <message>
        <source>Time unit: months</source>
        <translation>Unité de temps&#xa0;: mois</translation>
    </message>
    <message>
        <source>The block needs %1 wells. Set the well count to it first.</source>
        <translation>Le bloc exige %1 puits. Réglez d’abord le nombre de puits en conséquence.</translation>
    </message>
    <message>
        <source>The block needs %1 demand steps. Set their number to it first.</source>
        <translation>Le bloc exige %1 périodes de besoins. Réglez d’abord leur nombre en conséquence.</translation>
    </message>
    <message>
        <source>Simplify</source>
        <translation>Simplifier</translation>
    </message>
    <message>
        <source>Extend</source>
        <translation>Étendre</translation>
    </message>
    <message>
        <source>Total duration: %1 h (%2 a)</source>
        <translation>Durée totale&#xa0;: %1&#xa0;h (%2&#xa0;a)</translation>
    </message>
    <message>
        <source>Reset all changes on the well position and demand parameter?</source>
        <translation>Annuler toutes les modifications de la position des puits et des besoins&#xa0;?</translation>
    </message>
    <message>
        <source>Please provide a valid x coordinate for the well: </source>
        <translation>Veuillez indiquer une coordonnée X valable pour le puits&#xa0;: </translation>
    </message>
    <message>
        <source>Please provide a valid y coordinate for the well: </source>
        <translation>Veuillez indiquer une coordonnée Y valable pour le puits&#xa0;: </translation>
    </message>
    <message>
        <source>The design gives no distance between wells yet.</source>
        <translation>Le dimensionnement ne donne pas encore de distance entre les puits.</translation>
    </message>
    <message>
        <source>Wells that were placed by hand: %1. Move all wells to the recommended places?</source>
        <translation>Puits placés à la main&#xa0;: %1. Déplacer tous les puits aux emplacements recommandés&#xa0;?</translation>
    </message>
    <message>
        <source>Paste a cell</source>
        <translation>Coller une cellule</translation>
    </message>
    <message>
        <source>Paste %1 cells</source>
        <translation>Coller %1 cellules</translation>
    </message>
    <message>
        <source>Place wells</source>
        <translation>Placer les puits</translation>
    </message>
    <message>
        <source>Take back the placing of wells</source>
        <translation>Annuler le placement des puits</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::WorldFile</name>
    <message>
        <source>It cannot be read.</source>
        <translation>Il ne peut pas être lu.</translation>
    </message>
    <message>
        <source>It is larger than six numbers can be.</source>
        <translation>Il est plus grand que six nombres ne peuvent l’être.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre.</translation>
    </message>
    <message>
        <source>It holds %1 numbers instead of 6.</source>
        <translation>Il contient %1 nombres au lieu de 6.</translation>
    </message>
    <message>
        <source>It turns the picture: north has to be at the top.</source>
        <translation>Il tourne l’image&#xa0;: le nord doit être en haut.</translation>
    </message>
    <message>
        <source>It mirrors the picture: the first number has to be above 0.</source>
        <translation>Il inverse l’image en miroir&#xa0;: le premier nombre doit être supérieur à 0.</translation>
    </message>
    <message>
        <source>It puts the picture upside down: the fourth number has to be below 0.</source>
        <translation>Il met l’image à l’envers&#xa0;: le quatrième nombre doit être inférieur à 0.</translation>
    </message>
</context>
<context>
    <name>TVR::OutdatedResults</name>
    <message>
        <source>%1: %2</source>
        <comment>what was changed, and its new value</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: %2 → %3</source>
        <comment>what was changed, its old and new value</comment>
        <translation>%1&#xa0;: %2 → %3</translation>
    </message>
</context>
<context>
    <name>TVR::OutdatedSign</name>
    <message>
        <source>Results out of date</source>
        <translation>Résultats périmés</translation>
    </message>
    <message>
        <source>and others: %1</source>
        <translation>et d’autres&#xa0;: %1</translation>
    </message>
    <message>
        <source>The project was changed after the simulation.</source>
        <translation>Le projet a été modifié après la simulation.</translation>
    </message>
    <message>
        <source>Changed after the simulation:</source>
        <translation>Modifié après la simulation&#xa0;:</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>TVR::Page::PageWindow</name>
    <message>
        <source>Fit page</source>
        <translation>Ajuster la page</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Taille réelle</translation>
    </message>
    <message>
        <source>Graphic %1</source>
        <translation>Graphique %1</translation>
    </message>
</context>
<context>
    <name>TVR::ParameterName</name>
    <message>
        <source>Program version</source>
        <translation>Version du programme</translation>
    </message>
    <message>
        <source>General information</source>
        <translation>Informations générales</translation>
    </message>
    <message>
        <source>Well and aquifer</source>
        <translation>Puits et aquifère</translation>
    </message>
    <message>
        <source>Energy demand</source>
        <translation>Besoins en énergie</translation>
    </message>
    <message>
        <source>Mapping</source>
        <translation>Cartographie</translation>
    </message>
    <message>
        <source>Simulation</source>
        <translation>Simulation</translation>
    </message>
    <message>
        <source>Heating specification</source>
        <translation>Spécification du chauffage</translation>
    </message>
    <message>
        <source>Cooling specification</source>
        <translation>Spécification du refroidissement</translation>
    </message>
    <message>
        <source>Origin for the view</source>
        <translation>Origine de la vue</translation>
    </message>
    <message>
        <source>Numerical parameter</source>
        <translation>Paramètres numériques</translation>
    </message>
    <message>
        <source>Groundwater flow model</source>
        <translation>Modèle d’écoulement souterrain</translation>
    </message>
    <message>
        <source>Heat transport model</source>
        <translation>Modèle de transport de chaleur</translation>
    </message>
    <message>
        <source>Last results</source>
        <translation>Derniers résultats</translation>
    </message>
    <message>
        <source>Density of the rock</source>
        <translation>Masse volumique de la roche</translation>
    </message>
    <message>
        <source>Density of the rock material of the aquifer</source>
        <translation>Masse volumique de la roche de l’aquifère</translation>
    </message>
    <message>
        <source>Density of the rock material surrounding the aquifer</source>
        <translation>Masse volumique de la roche entourant l’aquifère</translation>
    </message>
    <message>
        <source>Density of the water</source>
        <translation>Masse volumique de l’eau</translation>
    </message>
    <message>
        <source>Distance between wells</source>
        <translation>Distance entre les puits</translation>
    </message>
    <message>
        <source>Dynamic viscosity of the water</source>
        <translation>Viscosité dynamique de l’eau</translation>
    </message>
    <message>
        <source>g</source>
        <translation>g</translation>
    </message>
    <message>
        <source>Heat conductivity of the rock</source>
        <translation>Conductivité thermique de la roche</translation>
    </message>
    <message>
        <source>Heat conductivity of the rock material of the aquifer</source>
        <translation>Conductivité thermique de la roche de l’aquifère</translation>
    </message>
    <message>
        <source>Heat conductivity of the  rock material surrounding the aquifer</source>
        <translation>Conductivité thermique de la roche entourant l’aquifère</translation>
    </message>
    <message>
        <source>Heating period</source>
        <translation>Période de chauffage</translation>
    </message>
    <message>
        <source>Maximum number of finite volume elements</source>
        <translation>Nombre maximal d’éléments de volumes finis</translation>
    </message>
    <message>
        <source>Increase factor of element size</source>
        <translation>Facteur d’accroissement de la taille des éléments</translation>
    </message>
    <message>
        <source>Maximum drawdown</source>
        <translation>Rabattement maximal</translation>
    </message>
    <message>
        <source>Specific heat capacity of the rock</source>
        <translation>Capacité thermique massique de la roche</translation>
    </message>
    <message>
        <source>Specific heat capacity of the water</source>
        <translation>Capacité thermique massique de l’eau</translation>
    </message>
    <message>
        <source>Maximum extent of 3K temperature change</source>
        <translation>Extension maximale de la variation de température de 3&#xa0;K</translation>
    </message>
    <message>
        <source>Time of the maximum extent</source>
        <translation>Moment de l’extension maximale</translation>
    </message>
    <message>
        <source>a_min</source>
        <translation>a_min</translation>
    </message>
    <message>
        <source>big_r</source>
        <translation>R</translation>
    </message>
    <message>
        <source>Recommended distance between withdrawal and injection well(s)</source>
        <translation>Distance recommandée entre puits de prélèvement et de restitution</translation>
    </message>
    <message>
        <source>Used distance between withdrawal and injection well(s)</source>
        <translation>Distance utilisée entre puits de prélèvement et de restitution</translation>
    </message>
    <message>
        <source>Default position for new withdrawal and injection well(s)</source>
        <translation>Position par défaut des nouveaux puits de prélèvement et de restitution</translation>
    </message>
    <message>
        <source>delta_hf</source>
        <translation>delta_hf</translation>
    </message>
    <message>
        <source>delta_W</source>
        <translation>delta_W</translation>
    </message>
    <message>
        <source>delta_W_pot</source>
        <translation>delta_W_pot</translation>
    </message>
    <message>
        <source>delta_W_rr</source>
        <translation>delta_W_rr</translation>
    </message>
    <message>
        <source>Duration of peak load</source>
        <translation>Durée de la charge de pointe</translation>
    </message>
    <message>
        <source>Filter diameter</source>
        <translation>Diamètre de la crépine</translation>
    </message>
    <message>
        <source>Filter length</source>
        <translation>Longueur de la crépine</translation>
    </message>
    <message>
        <source>Water filled thickness of an unconfined aquifer</source>
        <translation>Épaisseur saturée d’une nappe libre</translation>
    </message>
    <message>
        <source>Heating days</source>
        <translation>Jours de chauffage</translation>
    </message>
    <message>
        <source>Heating degree days</source>
        <translation>Degrés-jours de chauffage</translation>
    </message>
    <message>
        <source>Hydraulic conductivity</source>
        <translation>Perméabilité (conductivité hydraulique)</translation>
    </message>
    <message>
        <source>Maximum hydraulic conductivity</source>
        <translation>Perméabilité maximale</translation>
    </message>
    <message>
        <source>Minimum hydraulic conductivity</source>
        <translation>Perméabilité minimale</translation>
    </message>
    <message>
        <source>lambda</source>
        <translation>lambda</translation>
    </message>
    <message>
        <source>Number of wells</source>
        <translation>Nombre de puits</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Puissance</translation>
    </message>
    <message>
        <source>qf</source>
        <translation>qf</translation>
    </message>
    <message>
        <source>qf_max</source>
        <translation>qf_max</translation>
    </message>
    <message>
        <source>qh</source>
        <translation>qh</translation>
    </message>
    <message>
        <source>qhz</source>
        <translation>qhz</translation>
    </message>
    <message>
        <source>qww</source>
        <translation>qww</translation>
    </message>
    <message>
        <source>Well radius</source>
        <translation>Rayon du puits</translation>
    </message>
    <message>
        <source>rb_max</source>
        <translation>rb_max</translation>
    </message>
    <message>
        <source>re</source>
        <translation>re</translation>
    </message>
    <message>
        <source>Drawdown</source>
        <translation>Rabattement</translation>
    </message>
    <message>
        <source>Drawdown when using the mean flow rate</source>
        <translation>Rabattement au débit moyen</translation>
    </message>
    <message>
        <source>Drawdown when using the mean flow rate for the heating period</source>
        <translation>Rabattement au débit moyen de la période de chauffage</translation>
    </message>
    <message>
        <source>Mean annual flow rate</source>
        <translation>Débit annuel moyen</translation>
    </message>
    <message>
        <source>Groundwater flow rate</source>
        <translation>Vitesse de filtration de la nappe</translation>
    </message>
    <message>
        <source>Mean flow rate for the heating period</source>
        <translation>Débit moyen de la période de chauffage</translation>
    </message>
    <message>
        <source>Mean flow rate for the heating period inside the tubing</source>
        <translation>Débit moyen de la période de chauffage dans la conduite</translation>
    </message>
    <message>
        <source>Maximum flow rate</source>
        <translation>Débit maximal</translation>
    </message>
    <message>
        <source>Maximum flow rate of one well</source>
        <translation>Débit maximal d’un puits</translation>
    </message>
    <message>
        <source>Well diameter</source>
        <translation>Diamètre du puits</translation>
    </message>
    <message>
        <source>Additional isotherm</source>
        <translation>Isotherme supplémentaire</translation>
    </message>
    <message>
        <source>Aquifer base</source>
        <translation>Base de l’aquifère</translation>
    </message>
    <message>
        <source>Thickness</source>
        <translation>Épaisseur</translation>
    </message>
    <message>
        <source>Aquifer material</source>
        <translation>Matériau de l’aquifère</translation>
    </message>
    <message>
        <source>Porosity</source>
        <translation>Porosité</translation>
    </message>
    <message>
        <source>Unconfined aquifer</source>
        <translation>Nappe libre</translation>
    </message>
    <message>
        <source>Absolute error tolerance (groundwater flow model)</source>
        <translation>Tolérance d’erreur absolue (modèle d’écoulement souterrain)</translation>
    </message>
    <message>
        <source>Absolute error tolerance (heat transport model)</source>
        <translation>Tolérance d’erreur absolue (modèle de transport de chaleur)</translation>
    </message>
    <message>
        <source>Include a background map</source>
        <translation>Inclure un fond de carte</translation>
    </message>
    <message>
        <source>Horizontal extent of the background map</source>
        <translation>Étendue horizontale du fond de carte</translation>
    </message>
    <message>
        <source>Vertical extent of the background map</source>
        <translation>Étendue verticale du fond de carte</translation>
    </message>
    <message>
        <source>X coordinate of the origin for the background map</source>
        <translation>Coordonnée X de l’origine du fond de carte</translation>
    </message>
    <message>
        <source>Y coordinate of the origin for the background map</source>
        <translation>Coordonnée Y de l’origine du fond de carte</translation>
    </message>
    <message>
        <source>Hydraulic dispersion</source>
        <translation>Dispersion hydrodynamique</translation>
    </message>
    <message>
        <source>Building type</source>
        <translation>Catégorie de bâtiment</translation>
    </message>
    <message>
        <source>Calculate the energy demand</source>
        <translation>Calculer les besoins en énergie</translation>
    </message>
    <message>
        <source>Calculate the well construction</source>
        <translation>Dimensionner les puits</translation>
    </message>
    <message>
        <source>Check the well construction</source>
        <translation>Vérifier l’équipement des puits</translation>
    </message>
    <message>
        <source>Closest location</source>
        <translation>Lieu le plus proche</translation>
    </message>
    <message>
        <source>Cooling demand per year</source>
        <translation>Besoins annuels de froid</translation>
    </message>
    <message>
        <source>Coefficient of full hours load</source>
        <translation>Heures de pleine charge</translation>
    </message>
    <message>
        <source>Cooling power</source>
        <translation>Puissance frigorifique</translation>
    </message>
    <message>
        <source>Mean temperature change used</source>
        <translation>Variation de température moyenne utilisée</translation>
    </message>
    <message>
        <source>Usage of a closed loop for the water</source>
        <translation>Circulation de l’eau en circuit fermé</translation>
    </message>
    <message>
        <source>Energy exchange with the caprock</source>
        <translation>Échange de chaleur avec le toit de l’aquifère</translation>
    </message>
    <message>
        <source>Energy exchange with the bedrock</source>
        <translation>Échange de chaleur avec le mur de l’aquifère</translation>
    </message>
    <message>
        <source>Energy demand evaluation type</source>
        <translation>Mode de détermination des besoins</translation>
    </message>
    <message>
        <source>Filter diameter provided</source>
        <translation>Diamètre de crépine existant</translation>
    </message>
    <message>
        <source>Filter length provided</source>
        <translation>Longueur de crépine existante</translation>
    </message>
    <message>
        <source>Natural gas demand</source>
        <translation>Besoins en gaz naturel</translation>
    </message>
    <message>
        <source>Groundwater flow direction</source>
        <translation>Direction d’écoulement de la nappe</translation>
    </message>
    <message>
        <source>Hydraulic gradient</source>
        <translation>Gradient hydraulique</translation>
    </message>
    <message>
        <source>Groundwater table</source>
        <translation>Niveau de la nappe</translation>
    </message>
    <message>
        <source>GUI language</source>
        <translation>Langue de l’interface</translation>
    </message>
    <message>
        <source>Heated foot space</source>
        <translation>Surface de référence énergétique</translation>
    </message>
    <message>
        <source>Heating demand per year</source>
        <translation>Besoins annuels de chaleur pour le chauffage</translation>
    </message>
    <message>
        <source>Heating power</source>
        <translation>Puissance de chauffage</translation>
    </message>
    <message>
        <source>Used mean temperature change</source>
        <translation>Variation de température moyenne utilisée</translation>
    </message>
    <message>
        <source>Including provision of hot water</source>
        <translation>Y compris la production d’eau chaude</translation>
    </message>
    <message>
        <source>Number of wells provided</source>
        <translation>Nombre de puits existants</translation>
    </message>
    <message>
        <source>Number of demand periods per year</source>
        <translation>Nombre de périodes de besoins par an</translation>
    </message>
    <message>
        <source>Minimal size of elements</source>
        <translation>Taille minimale des éléments</translation>
    </message>
    <message>
        <source>Maximal size of elements</source>
        <translation>Taille maximale des éléments</translation>
    </message>
    <message>
        <source>Fuel oil demand</source>
        <translation>Besoins en mazout</translation>
    </message>
    <message>
        <source>Project address</source>
        <translation>Adresse du projet</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Project file name</source>
        <translation>Nom du fichier de projet</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Localité</translation>
    </message>
    <message>
        <source>Project name</source>
        <translation>Nom du projet</translation>
    </message>
    <message>
        <source>Street</source>
        <translation>Rue</translation>
    </message>
    <message>
        <source>Postal code</source>
        <translation>Code postal</translation>
    </message>
    <message>
        <source>Energy demand type provided</source>
        <translation>Agent énergétique des besoins indiqués</translation>
    </message>
    <message>
        <source>Reference temperature</source>
        <translation>Température de référence</translation>
    </message>
    <message>
        <source>Relative error tolerance (groundwater flow model)</source>
        <translation>Tolérance d’erreur relative (modèle d’écoulement souterrain)</translation>
    </message>
    <message>
        <source>Relative error tolerance (heat transport model)</source>
        <translation>Tolérance d’erreur relative (modèle de transport de chaleur)</translation>
    </message>
    <message>
        <source>Operation time</source>
        <translation>Durée d’exploitation</translation>
    </message>
    <message>
        <source>Coefficient of performance</source>
        <translation>Coefficient de performance annuel</translation>
    </message>
    <message>
        <source>Tectplot output file name</source>
        <translation>Nom du fichier de sortie Tecplot</translation>
    </message>
    <message>
        <source>User address</source>
        <translation>Adresse de l’utilisateur</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Use of provided aquifer properties</source>
        <translation>Utiliser les propriétés indiquées de l’aquifère</translation>
    </message>
    <message>
        <source>Temperature change</source>
        <translation>Variation de température</translation>
    </message>
    <message>
        <source>Number of elements used</source>
        <translation>Nombre d’éléments utilisés</translation>
    </message>
    <message>
        <source>User defined tollerances of the groundwater model</source>
        <translation>Tolérances du modèle d’écoulement définies par l’utilisateur</translation>
    </message>
    <message>
        <source>User defined tollerances of the heat model</source>
        <translation>Tolérances du modèle de chaleur définies par l’utilisateur</translation>
    </message>
    <message>
        <source>Well temperature output file name</source>
        <translation>Nom du fichier des températures des puits</translation>
    </message>
    <message>
        <source>Horizontal extent of the view</source>
        <translation>Étendue horizontale de la vue</translation>
    </message>
    <message>
        <source>Scale of the view</source>
        <translation>Échelle de la vue</translation>
    </message>
    <message>
        <source>Use the extension to scale the view</source>
        <translation>Échelle de la vue d’après l’étendue</translation>
    </message>
    <message>
        <source>X coordinate of the origin for the view</source>
        <translation>Coordonnée X de l’origine de la vue</translation>
    </message>
    <message>
        <source>Y coordinate of the origin for the view</source>
        <translation>Coordonnée Y de l’origine de la vue</translation>
    </message>
    <message>
        <source>Well depth</source>
        <translation>Profondeur du puits</translation>
    </message>
    <message>
        <source>Well material type</source>
        <translation>Matériau de l’équipement du puits</translation>
    </message>
    <message>
        <source>days</source>
        <translation>jours</translation>
    </message>
    <message>
        <source>m bgl</source>
        <translation>m sous TN</translation>
    </message>
</context>
<context>
    <name>TVR::ProjectDifferences</name>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <source>Wells</source>
        <translation>Puits</translation>
    </message>
    <message>
        <source>Wells with other values</source>
        <translation>Puits avec d’autres valeurs</translation>
    </message>
    <message>
        <source>Demand periods</source>
        <translation>Périodes de besoins</translation>
    </message>
    <message>
        <source>Demand periods of another length</source>
        <translation>Périodes de besoins d’une autre durée</translation>
    </message>
</context>
<context>
    <name>TVR::ProjectDocument</name>
    <message>
        <source>The project has changes that are not saved. Do you want to save them?</source>
        <translation>Le projet contient des modifications qui ne sont pas enregistrées. Voulez-vous les enregistrer&#xa0;?</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; has changes that are not saved. Do you want to save them?</source>
        <translation>Le projet «&#xa0;%1&#xa0;» contient des modifications qui ne sont pas enregistrées. Voulez-vous les enregistrer&#xa0;?</translation>
    </message>
    <message>
        <source>The project cannot be saved automatically in %1.</source>
        <translation>Le projet ne peut pas être enregistré automatiquement dans %1.</translation>
    </message>
</context>
<context>
    <name>TVR::ProjectRecovery</name>
    <message>
        <source>Discard what was saved automatically? It cannot be brought back.</source>
        <translation>Supprimer ce qui a été enregistré automatiquement&#xa0;? Cela ne pourra pas être récupéré.</translation>
    </message>
</context>
<context>
    <name>TVR::PropertyModel</name>
    <message>
        <source>Parameter</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
</context>
<context>
    <name>TVR::ResultImport</name>
    <message>
        <source>File: %1</source>
        <translation>Fichier&#xa0;: %1</translation>
    </message>
    <message>
        <source>Project: %1</source>
        <translation>Projet&#xa0;: %1</translation>
    </message>
    <message>
        <source>There is no active graphic.
There are no data to import.</source>
        <translation>Aucun graphique n’est actif.
Il n’y a pas de données à importer.</translation>
    </message>
    <message>
        <source>Import results from TVR project file</source>
        <translation>Importer les résultats d’un fichier de projet TVR</translation>
    </message>
    <message>
        <source>TVR project files (*.tvr)</source>
        <translation>Fichiers de projet TVR (*.tvr)</translation>
    </message>
    <message>
        <source>The file could not open.
There are no data to import.</source>
        <translation>Le fichier n’a pas pu être ouvert.
Il n’y a pas de données à importer.</translation>
    </message>
    <message>
        <source>This is not a valid xml file.
There are no data to import.</source>
        <translation>Ce n’est pas un fichier XML valable.
Il n’y a pas de données à importer.</translation>
    </message>
    <message>
        <source>The version of result file supports not the saving of results.
There are no data to import.</source>
        <translation>La version du fichier ne prévoit pas l’enregistrement de résultats.
Il n’y a pas de données à importer.</translation>
    </message>
</context>
<context>
    <name>TVR::ShapefileExport</name>
    <message>
        <source>Save shapefile</source>
        <translation>Enregistrer un fichier de formes (Shapefile)</translation>
    </message>
    <message>
        <source>Shapefile (*.shp *.shx *.dbf)</source>
        <translation>Shapefile (*.shp *.shx *.dbf)</translation>
    </message>
    <message>
        <source>Unable to create:%1</source>
        <translation>Impossible de créer&#xa0;: %1</translation>
    </message>
    <message>
        <source>Unable to create dbf file for %1</source>
        <translation>Impossible de créer le fichier DBF pour %1</translation>
    </message>
    <message>
        <source>Unable to open:%1</source>
        <translation>Impossible d’ouvrir&#xa0;: %1</translation>
    </message>
    <message>
        <source>draw down</source>
        <translation>rabattement</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>temperature change</source>
        <translation>variation de température</translation>
    </message>
    <message>
        <source>K</source>
        <translation>K</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Mémoire insuffisante</translation>
    </message>
</context>
<context>
    <name>TVR::WelcomeWindow</name>
    <message>
        <source>TVR: Welcome Window</source>
        <translation>TVR&#xa0;: Bienvenue</translation>
    </message>
    <message>
        <source>Start a new project</source>
        <translation>Commencer un nouveau projet</translation>
    </message>
    <message>
        <source>Rece&amp;nt projects</source>
        <translation>&amp;Projets récents</translation>
    </message>
    <message>
        <source>Projects that you open are listed here.</source>
        <translation>Les projets que vous ouvrez apparaissent ici.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Version Information</source>
        <translation>Informations sur la version</translation>
    </message>
    <message>
        <source>%1 Version: %2</source>
        <translation>%1 Version&#xa0;: %2</translation>
    </message>
    <message>
        <source>&lt;span style=&quot;color:#ffffff;&quot;&gt;Version: %1%2 created on %3&lt;/span&gt;</source>
        <translation>&lt;span style=&quot;color:#ffffff;&quot;&gt;Version&#xa0;: %1%2 créée le %3&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>Projets récents</translation>
    </message>
    <message>
        <source>Runs with Qt %1</source>
        <translation>Fonctionne avec Qt %1</translation>
    </message>
</context>
<context>
    <name>TVRPlugin</name>
    <message>
        <source>Import results of TVR project</source>
        <translation>Importer les résultats d’un projet TVR</translation>
    </message>
    <message>
        <source>Import the results of a TVR project and show them on current graphic.</source>
        <translation>Importe les résultats d’un projet TVR et les montre sur le graphique actuel.</translation>
    </message>
    <message>
        <source>Export to &amp;Shapefile</source>
        <translation>Exporter en &amp;Shapefile</translation>
    </message>
    <message>
        <source>Exports the isolines to a shapefile</source>
        <translation>Exporte les isolignes dans un fichier Shapefile</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Anglais</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Allemand</translation>
    </message>
    <message>
        <source>a</source>
        <translation>a</translation>
    </message>
    <message>
        <source>cycle</source>
        <translation>cycles</translation>
    </message>
    <message>
        <source>Initialise Simulation</source>
        <translation>Préparation de la simulation</translation>
    </message>
    <message>
        <source>Using %1 nodes ...</source>
        <translation>Calcul avec %1 nœuds ...</translation>
    </message>
    <message>
        <source>Simulate t = %1 %2</source>
        <translation>Simulation, t = %1 %2</translation>
    </message>
    <message>
        <source>Finished ...</source>
        <translation>Terminé ...</translation>
    </message>
    <message>
        <source>Fill-up the resulting mesh element on graphic ...</source>
        <translation>Report des résultats du maillage sur le graphique ...</translation>
    </message>
    <message>
        <source>Calculate isohypses ...</source>
        <translation>Calcul des isohypses ...</translation>
    </message>
    <message>
        <source>Calculate isotherms ...</source>
        <translation>Calcul des isothermes ...</translation>
    </message>
    <message>
        <source>Error at t = %1 %2</source>
        <translation>Erreur à t = %1 %2</translation>
    </message>
    <message>
        <source>&lt;b&gt;An error occured during the simulation:&lt;/b&gt;&lt;br&gt;</source>
        <translation>&lt;b&gt;Une erreur s’est produite pendant la simulation&#xa0;:&lt;/b&gt;&lt;br&gt;</translation>
    </message>
    <message>
        <source>error</source>
        <translation>erreur</translation>
    </message>
    <message>
        <source>Isotherm (%1K change)</source>
        <translation>Isotherme (variation de %1&#xa0;K)</translation>
    </message>
    <message>
        <source>Isotherm (%1K)</source>
        <translation>Isotherme (%1&#xa0;K)</translation>
    </message>
    <message>
        <source>Isohypse (%1 m change)</source>
        <translation>Isohypse (variation de %1&#xa0;m)</translation>
    </message>
    <message>
        <source>Isohypse (%1 m)</source>
        <translation>Isohypse (%1 m)</translation>
    </message>
    <message>
        <source>Map scale</source>
        <translation>Échelle de la carte</translation>
    </message>
    <message>
        <source>Map image</source>
        <translation>Image de la carte</translation>
    </message>
    <message>
        <source>Wells</source>
        <translation>Puits</translation>
    </message>
    <message>
        <source>The picture %1 cannot be read. The page is without it.</source>
        <translation>L’image %1 ne peut pas être lue. Elle manque sur la page.</translation>
    </message>
    <message>
        <source>Simulation results</source>
        <translation>Résultats de la simulation</translation>
    </message>
    <message>
        <source>Head</source>
        <translation>Charge hydraulique</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>Légende</translation>
    </message>
    <message>
        <source>Program identification</source>
        <translation>Identification du programme</translation>
    </message>
    <message>
        <source>Project address</source>
        <translation>Adresse du projet</translation>
    </message>
    <message>
        <source>Map view</source>
        <translation>Vue de la carte</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>Demand plot (rates)</source>
        <translation>Diagramme des besoins (débits)</translation>
    </message>
    <message>
        <source>Rate label</source>
        <translation>Étiquette des débits</translation>
    </message>
    <message>
        <source>&lt;font color=&quot;#6EA5A5&quot;&gt;&lt;b&gt;l/min&lt;/b&gt;&lt;/font&gt;</source>
        <translation>&lt;font color=&quot;#6EA5A5&quot;&gt;&lt;b&gt;l/min&lt;/b&gt;&lt;/font&gt;</translation>
    </message>
    <message>
        <source>Demand plot (temperature)</source>
        <translation>Diagramme des besoins (température)</translation>
    </message>
    <message>
        <source>Temperature label</source>
        <translation>Étiquette de la température</translation>
    </message>
    <message>
        <source>&lt;b&gt;K&lt;/b&gt;</source>
        <translation>&lt;b&gt;K&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Map legend</source>
        <translation>Légende de la carte</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>Aquifer type</source>
        <translation>Type de nappe</translation>
    </message>
    <message>
        <source>unconfined</source>
        <translation>libre</translation>
    </message>
    <message>
        <source>confined</source>
        <translation>captive</translation>
    </message>
    <message>
        <source>Maximum drawdown in withdrawal wells</source>
        <translation>Rabattement maximal dans les puits de prélèvement</translation>
    </message>
    <message>
        <source>The simulation ends after %1 a instead of %2 a</source>
        <translation>La simulation se termine après %1&#xa0;a au lieu de %2&#xa0;a</translation>
    </message>
    <message>
        <source>Hydraulic dispersion not inlcuded</source>
        <translation>Dispersion hydrodynamique non prise en compte</translation>
    </message>
    <message>
        <source>could not be determined, since %1</source>
        <translation>n’a pas pu être déterminée, car %1</translation>
    </message>
    <message>
        <source>no well injects water</source>
        <translation>aucun puits ne restitue d’eau</translation>
    </message>
    <message>
        <source>along the groundwater flow no injection well lies at a coordinate above 0</source>
        <translation>dans le sens d’écoulement de la nappe, aucun puits de restitution n’a de coordonnée supérieure à 0</translation>
    </message>
    <message>
        <source>there are no results on the map</source>
        <translation>il n’y a pas de résultats sur la carte</translation>
    </message>
    <message>
        <source>Withdrawal wells</source>
        <translation>Puits de prélèvement</translation>
    </message>
    <message>
        <source>Injection wells</source>
        <translation>Puits de restitution</translation>
    </message>
    <message>
        <source>Wells for both in turns</source>
        <translation>Puits à usage alterné</translation>
    </message>
    <message>
        <source>New project wizard</source>
        <translation>Assistant de nouveau projet</translation>
    </message>
    <message>
        <source>Aquifer &amp; well wizard</source>
        <translation>Assistant de l’aquifère &amp; des puits</translation>
    </message>
    <message>
        <source>Graphical mapping wizard</source>
        <translation>Assistant de cartographie</translation>
    </message>
    <message>
        <source>Simulation wizard</source>
        <translation>Assistant de simulation</translation>
    </message>
    <message>
        <source>Extenetd Simulation wizard</source>
        <translation>Assistant de simulation étendu</translation>
    </message>
    <message>
        <source>TVR: Welcome</source>
        <translation>TVR&#xa0;: Bienvenue</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Copyright information</source>
        <translation>Droits d’auteur</translation>
    </message>
    <message>
        <source>This program based on:</source>
        <translation>Ce programme est basé sur&#xa0;:</translation>
    </message>
    <message>
        <source>More information you will find on the program installation directory.</source>
        <translation>Vous trouverez plus d’informations dans le répertoire d’installation du programme.</translation>
    </message>
    <message>
        <source> TVR plugin:</source>
        <translation> Module TVR&#xa0;:</translation>
    </message>
    <message>
        <source> Static simulator library:</source>
        <translation> Bibliothèque statique du simulateur&#xa0;:</translation>
    </message>
    <message>
        <source> Static sundials library:</source>
        <translation> Bibliothèque statique Sundials&#xa0;:</translation>
    </message>
    <message>
        <source> Qt library:</source>
        <translation> Bibliothèque Qt&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;%1</source>
        <translation>&amp;%1</translation>
    </message>
    <message>
        <source>Scale of the map</source>
        <translation>Échelle de la carte</translation>
    </message>
    <message>
        <source>Position of the mouse on the map</source>
        <translation>Position de la souris sur la carte</translation>
    </message>
    <message>
        <source>TVR Welcome Window</source>
        <translation>Fenêtre de bienvenue TVR</translation>
    </message>
    <message>
        <source>Opens a new TVR welcome window</source>
        <translation>Ouvre une nouvelle fenêtre de bienvenue TVR</translation>
    </message>
    <message>
        <source>&amp;TVR Project</source>
        <translation>Projet &amp;TVR</translation>
    </message>
    <message>
        <source>Opens a new TVR project</source>
        <translation>Commence un nouveau projet TVR</translation>
    </message>
    <message>
        <source>Open TVR &amp;Project</source>
        <translation>Ouvrir un projet &amp;TVR</translation>
    </message>
    <message>
        <source>Opens a TVR project</source>
        <translation>Ouvre un projet TVR</translation>
    </message>
    <message>
        <source>Save the TVR project</source>
        <translation>Enregistrer le projet TVR</translation>
    </message>
    <message>
        <source>Saves a TVR project</source>
        <translation>Enregistre un projet TVR</translation>
    </message>
    <message>
        <source>&amp;General Project Information</source>
        <translation>&amp;Informations générales du projet</translation>
    </message>
    <message>
        <source>Shows the general property wizard</source>
        <translation>Montre l’assistant des informations générales</translation>
    </message>
    <message>
        <source>&amp;Energy Demand</source>
        <translation>&amp;Besoins en énergie</translation>
    </message>
    <message>
        <source>Shows the energy demand wizard</source>
        <translation>Montre l’assistant des besoins en énergie</translation>
    </message>
    <message>
        <source>&amp;Wells and aquifer</source>
        <translation>&amp;Puits et aquifère</translation>
    </message>
    <message>
        <source>Shows the well design wizard</source>
        <translation>Montre l’assistant des puits</translation>
    </message>
    <message>
        <source>&amp;Mapping</source>
        <translation>&amp;Cartographie</translation>
    </message>
    <message>
        <source>Shows the mapping wizard</source>
        <translation>Montre l’assistant de cartographie</translation>
    </message>
    <message>
        <source>&amp;Simulation</source>
        <translation>&amp;Simulation</translation>
    </message>
    <message>
        <source>Shows the simulation wizard</source>
        <translation>Montre l’assistant de simulation</translation>
    </message>
    <message>
        <source>&amp;Clear registry entries</source>
        <translation>&amp;Effacer les réglages enregistrés</translation>
    </message>
    <message>
        <source>Clears all settings that are stored for you</source>
        <translation>Efface tous les réglages enregistrés pour vous</translation>
    </message>
    <message>
        <source>&amp;Language of use</source>
        <translation>&amp;Langue d’utilisation</translation>
    </message>
    <message>
        <source>Should the open project saved before opening a new project?</source>
        <translation>Faut-il enregistrer le projet ouvert avant d’en ouvrir un nouveau&#xa0;?</translation>
    </message>
    <message>
        <source>Should the project only include the simulation part?</source>
        <translation>Le projet doit-il comprendre seulement la partie simulation&#xa0;?</translation>
    </message>
    <message>
        <source>Open TVR project file</source>
        <translation>Ouvrir un fichier de projet TVR</translation>
    </message>
    <message>
        <source>TVR project files (*.tvr)</source>
        <translation>Fichiers de projet TVR (*.tvr)</translation>
    </message>
    <message>
        <source>Unable to open:%1</source>
        <translation>Impossible d’ouvrir&#xa0;: %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;TVR project &amp;laquo;%1&amp;raquo; ready to use.&lt;/b&gt;</source>
        <translation>&lt;b&gt;Le projet TVR &amp;laquo;&amp;nbsp;%1&amp;nbsp;&amp;raquo; est prêt.&lt;/b&gt;</translation>
    </message>
    <message>
        <source>read from file: %1</source>
        <translation>lu dans le fichier&#xa0;: %1</translation>
    </message>
    <message>
        <source>Save TVR project file</source>
        <translation>Enregistrer le fichier de projet TVR</translation>
    </message>
    <message>
        <source>TVR project file (*.tvr);;TVR batch file (*.tbat)</source>
        <translation>Fichier de projet TVR (*.tvr);;Fichier de traitement TVR (*.tbat)</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 existe déjà.
Voulez-vous le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>Unable to create:%1</source>
        <translation>Impossible de créer&#xa0;: %1</translation>
    </message>
    <message>
        <source>Operation abort because simulation is running.</source>
        <translation>Opération interrompue, car une simulation est en cours.</translation>
    </message>
    <message>
        <source>All stored settings will be removed.
Do you want to go on?</source>
        <translation>Tous les réglages enregistrés seront supprimés.
Voulez-vous continuer&#xa0;?</translation>
    </message>
    <message>
        <source>All stored settings of the previous program generation will be removed.
Do you want to go on?</source>
        <translation>Tous les réglages enregistrés de la génération précédente du programme seront supprimés.
Voulez-vous continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Simulation will be stopped at next step!</source>
        <translation>La simulation sera arrêtée au prochain pas de temps&#xa0;!</translation>
    </message>
    <message>
        <source>TVR project</source>
        <translation>Projet TVR</translation>
    </message>
    <message>
        <source>No graphics library! The result plots cannot be displayed. To solve this problem, please re-install the program.</source>
        <translation>La bibliothèque graphique est absente&#xa0;! Les graphiques des résultats ne peuvent pas être affichés. Pour résoudre ce problème, veuillez réinstaller le programme.</translation>
    </message>
    <message>
        <source>Save settings? -- Tevrane</source>
        <translation>Enregistrer les réglages&#xa0;? -- Tevrane</translation>
    </message>
    <message>
        <source>Save all settings?</source>
        <translation>Enregistrer tous les réglages&#xa0;?</translation>
    </message>
    <message>
        <source>The mesh of cells around the wells cannot be made. Please change the size of the model and/or the numerical parameters.

%1</source>
        <translation>Le maillage autour des puits ne peut pas être créé. Veuillez modifier la taille du modèle ou les paramètres numériques.

%1</translation>
    </message>
    <message>
        <source>%1: </source>
        <translation>%1&#xa0;: </translation>
    </message>
    <message>
        <source>true</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>false</source>
        <translation>non</translation>
    </message>
    <message>
        <source>effectiv %1</source>
        <translation>%1 effectifs</translation>
    </message>
    <message>
        <source>%1 (injection or pumping): </source>
        <translation>%1 (restitution ou prélèvement)&#xa0;: </translation>
    </message>
    <message>
        <source>%1 : </source>
        <translation>%1&#xa0;: </translation>
    </message>
    <message>
        <source>%1 length</source>
        <translation>%1 (longueur)</translation>
    </message>
    <message>
        <source>This wizard has no pages.</source>
        <translation>Cet assistant n’a pas de pages.</translation>
    </message>
    <message>
        <source>&lt;b&gt;More then one well at one position not supported started with version 1.2!&lt;br&gt;Redefine the wells in use!&lt;/b&gt;&lt;br&gt;</source>
        <translation>&lt;b&gt;Plusieurs puits au même endroit ne sont plus pris en charge depuis la version 1.2&#xa0;!&lt;br&gt;Redéfinissez les puits utilisés&#xa0;!&lt;/b&gt;&lt;br&gt;</translation>
    </message>
    <message>
        <source>&lt;b&gt;Preview&lt;/b&gt;: %1</source>
        <translation>&lt;b&gt;Aperçu&lt;/b&gt;&#xa0;: %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Preview&lt;/b&gt; (dashed: last run)</source>
        <translation>&lt;b&gt;Aperçu&lt;/b&gt; (en tirets&#xa0;: dernier calcul)</translation>
    </message>
    <message>
        <source>&lt;b&gt;Preview&lt;/b&gt;</source>
        <translation>&lt;b&gt;Aperçu&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;b&gt;Preview&lt;/b&gt;, is being refined (dashed: last run)</source>
        <translation>&lt;b&gt;Aperçu&lt;/b&gt;, en cours d’affinage (en tirets&#xa0;: dernier calcul)</translation>
    </message>
    <message>
        <source>&lt;b&gt;Preview&lt;/b&gt;, is being refined</source>
        <translation>&lt;b&gt;Aperçu&lt;/b&gt;, en cours d’affinage</translation>
    </message>
    <message>
        <source>Move wells</source>
        <translation>Déplacer les puits</translation>
    </message>
    <message>
        <source>Move map image</source>
        <translation>Déplacer l’image de la carte</translation>
    </message>
</context>
<context>
    <name>UserWizardPage</name>
    <message>
        <source>Program user</source>
        <translation>Utilisateur du programme</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>Name and address of the planner</source>
        <translation>Nom et adresse du planificateur</translation>
    </message>
    <message>
        <source>Name and address of the planner, as they stand on the printed page. A double click or F2 begins to edit a line, and so does typing; Enter ends it. What is entered is kept at once.</source>
        <translation>Nom et adresse du planificateur, tels qu’ils figurent sur la page imprimée. Un double clic, F2 ou la frappe ouvre une ligne à la saisie&#xa0;; Entrée la termine. Ce qui est saisi est conservé aussitôt.</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>no file</source>
        <translation>aucun fichier</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Choose a logo</source>
        <translation>Choisir un logo</translation>
    </message>
    <message>
        <source>Chooses a picture as the logo of the planner</source>
        <translation>Choisit une image comme logo du planificateur</translation>
    </message>
    <message>
        <source>The picture that the printed page shows as the logo of the planner. Drawings such as SVG are not shown.</source>
        <translation>L’image que la page imprimée montre comme logo du planificateur. Les images vectorielles telles que SVG ne sont pas montrées.</translation>
    </message>
    <message>
        <source>No logo</source>
        <translation>Pas de logo</translation>
    </message>
    <message>
        <source>The page gets no logo</source>
        <translation>La page reste sans logo</translation>
    </message>
    <message>
        <source>Takes the logo away; the file stays.</source>
        <translation>Enlève le logo&#xa0;; le fichier est conservé.</translation>
    </message>
    <message>
        <source>Picture of the logo</source>
        <translation>Image du logo</translation>
    </message>
</context>
<context>
    <name>WellDemandModel</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Mean rate</source>
        <translation>Débit moyen</translation>
    </message>
    <message>
        <source>Temperature change</source>
        <translation>Variation de température</translation>
    </message>
    <message>
        <source>h</source>
        <translation>h</translation>
    </message>
    <message>
        <source>d</source>
        <translation>d</translation>
    </message>
    <message>
        <source>M</source>
        <translation>M</translation>
    </message>
</context>
<context>
    <name>WellModel</name>
    <message>
        <source>Well %1</source>
        <translation>Puits %1</translation>
    </message>
    <message>
        <source>Well</source>
        <translation>Puits</translation>
    </message>
    <message>
        <source>X coordinate</source>
        <translation>Coordonnée X</translation>
    </message>
    <message>
        <source>Y coordinate</source>
        <translation>Coordonnée Y</translation>
    </message>
    <message>
        <source>Mean annual rate</source>
        <translation>Débit annuel moyen</translation>
    </message>
    <message>
        <source>Temperature change</source>
        <translation>Variation de température</translation>
    </message>
</context>
<context>
    <name>WellPositionAndUsageWizardPage</name>
    <message>
        <source>Well positions</source>
        <translation>Position des puits</translation>
    </message>
    <message>
        <source>Wells</source>
        <translation>Puits</translation>
    </message>
    <message>
        <source>Well count (injection and pumping well number are the same):</source>
        <translation>Nombre de puits (autant de restitution que de prélèvement)&#xa0;:</translation>
    </message>
    <message>
        <source>Withdrawal and injection wells together</source>
        <translation>Puits de prélèvement et de restitution ensemble</translation>
    </message>
    <message>
        <source>The first half of the wells withdraws, the second half injects; the sign of a rate may say otherwise. Fewer wells lose the last rows of the table with all that was entered there.</source>
        <translation>La première moitié des puits prélève, la seconde restitue&#xa0;; le signe d’un débit peut en décider autrement. Si le nombre de puits diminue, les dernières lignes du tableau sont perdues avec tout ce qui y a été saisi.</translation>
    </message>
    <message>
        <source>Number of demand steps per year (for all wells the same):</source>
        <translation>Nombre de périodes de besoins par an (commun à tous les puits)&#xa0;:</translation>
    </message>
    <message>
        <source>Parts of the year, each with rates of its own</source>
        <translation>Parties de l’année, chacune avec ses propres débits</translation>
    </message>
    <message>
        <source>Two steps are usual for heating in winter and cooling in summer, four for seasons, twelve for months. The first step takes over the mean annual rate of a well, all further ones begin without flow.</source>
        <translation>Deux périodes sont usuelles pour chauffer en hiver et refroidir en été, quatre pour les saisons, douze pour les mois. La première période reprend le débit annuel moyen d’un puits, toutes les autres commencent sans débit.</translation>
    </message>
    <message>
        <source>Place, mean annual rate and temperature change of each well</source>
        <translation>Emplacement, débit annuel moyen et variation de température de chaque puits</translation>
    </message>
    <message>
        <source>Coordinates in metres of the national grid, as on the map, where the wells can be dragged too. A negative rate withdraws, any other injects. The temperature change is that of the water that is injected: negative where heat is drawn. Tab, Enter and the arrows move from cell to cell, Ctrl+Tab leaves the table. Ctrl+C copies the selected cells, Ctrl+V pastes a block from a spreadsheet, in the units shown; a block that does not fit changes nothing.</source>
        <translation>Coordonnées nationales en mètres, comme sur la carte, où les puits peuvent aussi être déplacés avec la souris. Un débit négatif est un prélèvement, tout autre une restitution. La variation de température est celle de l’eau restituée&#xa0;: négative si de la chaleur est soutirée. Tab, Entrée et les flèches passent de cellule en cellule, Ctrl+Tab quitte le tableau. Ctrl+C copie les cellules sélectionnées, Ctrl+V colle un bloc d’un tableur, dans les unités affichées&#xa0;; un bloc qui ne convient pas ne change rien.</translation>
    </message>
    <message>
        <source>Demand steps of the chosen well</source>
        <translation>Périodes de besoins du puits choisi</translation>
    </message>
    <message>
        <source>What the chosen well does in each demand step; the context menu has the units of time</source>
        <translation>Ce que fait le puits choisi dans chaque période de besoins&#xa0;; le menu contextuel propose les unités de temps</translation>
    </message>
    <message>
        <source>The demand steps of the well that is chosen in the table of wells. Durations are the same for all wells, in hours, days or months, as the context menu says. Tab, Enter and the arrows move from cell to cell, Ctrl+Tab leaves the table. Ctrl+C copies the selected cells, Ctrl+V pastes a block from a spreadsheet, in the units shown; a block that does not fit changes nothing.</source>
        <translation>Les périodes de besoins du puits choisi dans le tableau des puits. Les durées sont les mêmes pour tous les puits, en heures, en jours ou en mois, selon le menu contextuel. Tab, Entrée et les flèches passent de cellule en cellule, Ctrl+Tab quitte le tableau. Ctrl+C copie les cellules sélectionnées, Ctrl+V colle un bloc d’un tableur, dans les unités affichées&#xa0;; un bloc qui ne convient pas ne change rien.</translation>
    </message>
    <message>
        <source>validate well rates</source>
        <translation>vérifier les débits des puits</translation>
    </message>
    <message>
        <source>Compare the sums of the rates with each other and with the design when the page is left</source>
        <translation>Compare les sommes des débits entre elles et avec le dimensionnement quand on quitte la page</translation>
    </message>
    <message>
        <source>Without the check mark only the coordinates are tested. Pumped and injected water then need not be the same.</source>
        <translation>Si la case n’est pas cochée, seules les coordonnées sont vérifiées. L’eau prélevée et l’eau restituée peuvent alors différer.</translation>
    </message>
    <message>
        <source>Total duration: xxx h (y.y a)</source>
        <translation>Durée totale&#xa0;: xxx&#xa0;h (y.y&#xa0;a)</translation>
    </message>
    <message>
        <source>Sum of all demand steps; a year has 8760 hours</source>
        <translation>Somme de toutes les périodes de besoins&#xa0;; une année a 8760 heures</translation>
    </message>
    <message>
        <source>Place wells</source>
        <translation>Placer les puits</translation>
    </message>
    <message>
        <source>Lay the wells out in two rows across the regional flow, at the recommended distances</source>
        <translation>Dispose les puits en deux rangées en travers de l’écoulement régional, aux distances recommandées</translation>
    </message>
    <message>
        <source>The withdrawal wells become a row upstream and the injection wells a row downstream, around the middle of the map. Asks before it moves wells that were placed by hand.</source>
        <translation>Les puits de prélèvement forment une rangée en amont et les puits de restitution une rangée en aval, autour du milieu de la carte. Une confirmation est demandée avant de déplacer des puits placés à la main.</translation>
    </message>
    <message>
        <source>Undo placing</source>
        <translation>Annuler le placement</translation>
    </message>
    <message>
        <source>Put the wells back to where they stood before they were placed</source>
        <translation>Remet les puits là où ils se trouvaient avant le placement</translation>
    </message>
    <message>
        <source>Possible until a well is moved or the page is left.</source>
        <translation>Possible jusqu’à ce qu’un puits soit déplacé ou la page quittée.</translation>
    </message>
    <message>
        <source>Extend</source>
        <translation>Étendre</translation>
    </message>
    <message>
        <source>Change between mean annual rates and rates by demand step</source>
        <translation>Passe des débits annuels moyens aux débits par période de besoins, et inversement</translation>
    </message>
    <message>
        <source>The simple view has one rate for each well and the whole year. The extended view divides the year into demand steps.</source>
        <translation>La vue simple a un seul débit par puits pour toute l’année. La vue étendue divise l’année en périodes de besoins.</translation>
    </message>
    <message>
        <source>Recommended distance between wells</source>
        <translation>Distance recommandée entre les puits</translation>
    </message>
    <message>
        <source>Holds as long as all wells carry about the same rate</source>
        <translation>Valable tant que tous les puits ont à peu près le même débit</translation>
    </message>
    <message>
        <source>Between two injection wells or two withdrawal wells</source>
        <translation>Entre deux puits de restitution ou deux puits de prélèvement</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>Between an injection and a withdrawal well</source>
        <translation>Entre un puits de restitution et un puits de prélèvement</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>Why the page cannot be left or a block not be pasted</source>
        <translation>Pourquoi la page ne peut pas être quittée ou un bloc ne peut pas être collé</translation>
    </message>
    <message>
        <source>What has to be changed before the page can be left, or why nothing was pasted. What is longer than the room scrolls.</source>
        <translation>Ce qu’il faut modifier avant de pouvoir quitter la page, ou pourquoi rien n’a été collé. Un texte plus long que la place disponible défile.</translation>
    </message>
</context>
</TS>
