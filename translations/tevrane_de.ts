<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AquiferAndWellSummaryWizardPage</name>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>&lt;b&gt;Wells&lt;/b&gt;</source>
        <translation>&lt;b&gt;Brunnen&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Calculated values</source>
        <translation>Berechnete Werte</translation>
    </message>
    <message>
        <source>The construction that the simulation starts from. It follows from the largest flow and the aquifer, or from the page before.</source>
        <translation>Der Brunnenausbau, von dem die Simulation ausgeht. Er ergibt sich aus dem größten Volumenstrom und dem Grundwasserleiter oder aus der vorigen Seite.</translation>
    </message>
    <message>
        <source>Number of wells</source>
        <translation>Anzahl Brunnen</translation>
    </message>
    <message>
        <source>Pairs of a pumping and an injection well</source>
        <translation>Paare aus Entnahme- und Rückgabebrunnen</translation>
    </message>
    <message>
        <source>Minimum distance between wells of the same flow regime</source>
        <translation>Mindestabstand von Brunnen gleicher Betriebsart</translation>
    </message>
    <message>
        <source>The reach of a well: closer ones draw each other down. None with a single pair.</source>
        <translation>Die Reichweite eines Brunnens: Bei kleinerem Abstand verstärken Brunnen ihre Absenkung gegenseitig. Entfällt bei einem einzigen Paar.</translation>
    </message>
    <message>
        <source>Filter length</source>
        <translation>Filterlänge</translation>
    </message>
    <message>
        <source>Filter diameter</source>
        <translation>Filterdurchmesser</translation>
    </message>
    <message>
        <source>Diameter of the well</source>
        <translation>Brunnendurchmesser</translation>
    </message>
    <message>
        <source>Of the bore, with the gravel pack around the filter</source>
        <translation>Durchmesser der Bohrung, mit der Kiesschüttung um den Filter</translation>
    </message>
    <message>
        <source>Maximum drawdown</source>
        <translation>Größte Absenkung</translation>
    </message>
    <message>
        <source>In the pumping wells at the largest flow</source>
        <translation>In den Entnahmebrunnen beim größten Volumenstrom</translation>
    </message>
</context>
<context>
    <name>AquiferWizardPage</name>
    <message>
        <source>Aquifer</source>
        <translation>Grundwasserleiter</translation>
    </message>
    <message>
        <source>&lt;b&gt;Properties of the aquifer&lt;/b&gt;</source>
        <translation>&lt;b&gt;Eigenschaften des Grundwasserleiters&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Natural groundwater flow</source>
        <translation>Natürliche Grundwasserströmung</translation>
    </message>
    <message>
        <source>Hydraulic gradient</source>
        <translation>Hydraulischer Gradient</translation>
    </message>
    <message>
        <source>Fall of the groundwater table along the flow
0 to 100 m/100m</source>
        <translation>Gefälle des Grundwasserspiegels in Fließrichtung
0 bis 100 m/100m</translation>
    </message>
    <message>
        <source>How far the groundwater table falls over 100 m in the direction of flow. Read it from a map of groundwater contours. With the hydraulic conductivity it gives the velocity, and so how far heat and cold are carried away.</source>
        <translation>Um wie viel der Grundwasserspiegel auf 100 m in Fließrichtung fällt. Der Wert lässt sich aus einem Isohypsenplan ablesen. Mit dem Durchlässigkeitsbeiwert ergibt er die Geschwindigkeit und damit, wie weit Wärme und Kälte fortgetragen werden.</translation>
    </message>
    <message>
        <source>0 to 100 m/100m</source>
        <translation>0 bis 100 m/100m</translation>
    </message>
    <message>
        <source>m/100m</source>
        <translation>m/100m</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Confined</source>
        <translation>Gespannt</translation>
    </message>
    <message>
        <source>The groundwater is under pressure below a layer that lets little water through</source>
        <translation>Das Grundwasser steht unter einer gering durchlässigen Schicht unter Druck</translation>
    </message>
    <message>
        <source>Thickness</source>
        <translation>Mächtigkeit</translation>
    </message>
    <message>
        <source>From the base to the top of the aquifer
0 to 1000 m</source>
        <translation>Von der Sohle bis zur Oberkante des Grundwasserleiters
0 bis 1000 m</translation>
    </message>
    <message>
        <source>Thickness of the water-bearing layer below the confining bed. It bounds the filter length and the yield of a well.</source>
        <translation>Mächtigkeit der wasserführenden Schicht unter der Deckschicht. Sie begrenzt die Filterlänge und die Ergiebigkeit eines Brunnens.</translation>
    </message>
    <message>
        <source>0 to 1000 m</source>
        <translation>0 bis 1000 m</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>Unconfined</source>
        <translation>Ungespannt</translation>
    </message>
    <message>
        <source>The groundwater has a free surface</source>
        <translation>Das Grundwasser hat eine freie Oberfläche</translation>
    </message>
    <message>
        <source>Depth of the groundwater table (at low water level)</source>
        <translation>Tiefe des Grundwasserspiegels (bei Niedrigwasser)</translation>
    </message>
    <message>
        <source>Depth of the water below ground when it is low
0 to 1000 m</source>
        <translation>Tiefe des Wassers unter Gelände bei Niedrigwasser
0 bis 1000 m</translation>
    </message>
    <message>
        <source>The lowest table to be expected: wells have to give their water in a dry year too. The thickness of the groundwater is the depth of the base less this depth.</source>
        <translation>Der tiefste zu erwartende Grundwasserspiegel: Die Brunnen müssen auch in einem trockenen Jahr genug Wasser liefern. Die Mächtigkeit des Grundwassers ist die Tiefe der Sohle abzüglich dieser Tiefe.</translation>
    </message>
    <message>
        <source>m bgl</source>
        <translation>m u. GOK</translation>
    </message>
    <message>
        <source>Depth of the aquifer base</source>
        <translation>Tiefe der Sohle des Grundwasserleiters</translation>
    </message>
    <message>
        <source>Depth of the first layer below that lets little water through
0 to 1000 m</source>
        <translation>Tiefe der ersten gering durchlässigen Schicht darunter
0 bis 1000 m</translation>
    </message>
    <message>
        <source>From drilling logs. It lies below the groundwater table, and no well of the design goes deeper.</source>
        <translation>Aus Bohrprofilen. Die Sohle liegt unter dem Grundwasserspiegel, und kein Brunnen des Entwurfs reicht tiefer.</translation>
    </message>
    <message>
        <source>Known values of conductivity and porosity</source>
        <translation>Durchlässigkeitsbeiwert und Porosität bekannt</translation>
    </message>
    <message>
        <source>Without the check mark both follow from the material</source>
        <translation>Ohne das Häkchen ergeben sich beide aus dem Material</translation>
    </message>
    <message>
        <source>Hydraulic conductivity</source>
        <translation>Durchlässigkeitsbeiwert</translation>
    </message>
    <message>
        <source>Best from a pumping test near the site
0 to 1 m/s</source>
        <translation>Am besten aus einem Pumpversuch in der Nähe des Standorts
0 bis 1 m/s</translation>
    </message>
    <message>
        <source>Usual are 1e-3 to 1 m/s for gravel, 1e-6 to 1e-2 m/s for clean sand and 1e-7 to 1e-3 m/s for silty sand (Freeze and Cherry, Groundwater, 1979). It decides how much a well yields, how far its water table is drawn down, and how fast the groundwater flows.</source>
        <translation>Üblich sind 1e-3 bis 1 m/s für Kies, 1e-6 bis 1e-2 m/s für reinen Sand und 1e-7 bis 1e-3 m/s für schluffigen Sand (Freeze und Cherry, Groundwater, 1979). Der Wert bestimmt, wie ergiebig ein Brunnen ist, wie weit sein Wasserspiegel abgesenkt wird und wie schnell das Grundwasser fließt.</translation>
    </message>
    <message>
        <source>0 to 1 m/s</source>
        <translation>0 bis 1 m/s</translation>
    </message>
    <message>
        <source>m/s</source>
        <translation>m/s</translation>
    </message>
    <message>
        <source>Porosity</source>
        <translation>Porosität</translation>
    </message>
    <message>
        <source>The share of the pores through which water flows
0 to 100 %</source>
        <translation>Anteil der Poren, die vom Wasser durchflossen werden
0 bis 100&#xa0;%</translation>
    </message>
    <message>
        <source>The effective porosity. Specific yields, which come close to it, are 22 to 25 % for gravels and 21 to 27 % for sands (Johnson, USGS Water-Supply Paper 1662-D, 1967). The smaller it is, the faster the water moves.</source>
        <translation>Die effektive Porosität. Der entwässerbare Porenanteil, der ihr nahekommt, beträgt 22 bis 25&#xa0;% bei Kies und 21 bis 27&#xa0;% bei Sand (Johnson, USGS Water-Supply Paper 1662-D, 1967). Je kleiner sie ist, desto schneller bewegt sich das Wasser.</translation>
    </message>
    <message>
        <source>0 to 100 %</source>
        <translation>0 bis 100&#xa0;%</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Pre-defined values of conductivity and porosity</source>
        <translation>Vorgaben für Durchlässigkeitsbeiwert und Porosität</translation>
    </message>
    <message>
        <source>Material of the aquifer</source>
        <translation>Material des Grundwasserleiters</translation>
    </message>
    <message>
        <source>What the aquifer mainly consists of</source>
        <translation>Woraus der Grundwasserleiter hauptsächlich besteht</translation>
    </message>
    <message>
        <source>Behind each material stands the range of its hydraulic conductivity, and below it those of the chosen one. The geometric mean of the range is used, with the porosity of the material.</source>
        <translation>Hinter jedem Material steht der Bereich seines Durchlässigkeitsbeiwerts, darunter stehen die Werte des gewählten Materials. Verwendet werden das geometrische Mittel des Bereichs und die Porosität des Materials.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>What the figures of this page decide</source>
        <translation>Was die Werte dieser Seite bestimmen</translation>
    </message>
    <message>
        <source>What the figures of this page decide, and where to find them.</source>
        <translation>Was die Werte dieser Seite bestimmen und wo sie zu finden sind.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Gradient and conductivity give the velocity of the groundwater; thickness and conductivity decide how many wells are needed and how far they draw the water down.&lt;/p&gt;&lt;p&gt;A pumping test near the site is the best source. Without one, take the material from drilling logs: its figures are typical values (Hölting and Coldewey, Hydrogeologie, 2009), and a site may differ tenfold.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Gradient und Durchlässigkeitsbeiwert ergeben die Geschwindigkeit des Grundwassers; Mächtigkeit und Durchlässigkeitsbeiwert bestimmen, wie viele Brunnen nötig sind und wie weit sie das Wasser absenken.&lt;/p&gt;&lt;p&gt;Die beste Quelle ist ein Pumpversuch in der Nähe des Standorts. Fehlt er, lässt sich das Material Bohrprofilen entnehmen: Seine Werte sind typische Werte (Hölting und Coldewey, Hydrogeologie, 2009), und ein Standort kann um das Zehnfache davon abweichen.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>BatchFile</name>
    <message>
        <source>%1; the rest is left out</source>
        <translation>%1; der Rest wird weggelassen</translation>
    </message>
</context>
<context>
    <name>BrunnenWizard</name>
    <message>
        <source>An installation is not possible. More than 1000 wells are required.</source>
        <translation>Eine Anlage ist nicht möglich. Es sind mehr als 1000 Brunnen erforderlich.</translation>
    </message>
    <message>
        <source>Calculated values</source>
        <translation>Berechnete Werte</translation>
    </message>
    <message>
        <source>Values used</source>
        <translation>Verwendete Werte</translation>
    </message>
    <message>
        <source>Please provide a valid value for the hydraulic gradient.</source>
        <translation>Bitte geben Sie einen gültigen Wert für den hydraulischen Gradienten ein.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the aquifer thickness.</source>
        <translation>Bitte geben Sie einen gültigen Wert für die Mächtigkeit des Grundwasserleiters ein.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the depth of the groundwater table.</source>
        <translation>Bitte geben Sie einen gültigen Wert für die Tiefe des Grundwasserspiegels ein.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the depth of the aquifer base.</source>
        <translation>Bitte geben Sie einen gültigen Wert für die Tiefe der Sohle des Grundwasserleiters ein.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the depth of the aquifer base or of the groundwater table.</source>
        <translation>Bitte geben Sie einen gültigen Wert für die Tiefe der Sohle des Grundwasserleiters oder des Grundwasserspiegels ein.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the hydraulic conductivity.</source>
        <translation>Bitte geben Sie einen gültigen Wert für den Durchlässigkeitsbeiwert ein.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the aquifer porosity.</source>
        <translation>Bitte geben Sie einen gültigen Wert für die Porosität des Grundwasserleiters ein.</translation>
    </message>
    <message>
        <source>Reset all changes on the aquifer parameter?</source>
        <translation>Sollen alle Änderungen an den Parametern des Grundwasserleiters zurückgesetzt werden?</translation>
    </message>
    <message>
        <source>Please provide a valid value for the distance between wells.</source>
        <translation>Bitte geben Sie einen gültigen Wert für den Abstand zwischen den Brunnen ein.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the well depth.</source>
        <translation>Bitte geben Sie einen gültigen Wert für die Brunnentiefe ein.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the filter length.</source>
        <translation>Bitte geben Sie einen gültigen Wert für die Filterlänge ein.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the well depth and/or the filter length.</source>
        <translation>Bitte geben Sie einen gültigen Wert für die Brunnentiefe und/oder die Filterlänge ein.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the filter diameter.</source>
        <translation>Bitte geben Sie einen gültigen Wert für den Filterdurchmesser ein.</translation>
    </message>
    <message>
        <source>Reset all changes of the well configuration?</source>
        <translation>Sollen alle Änderungen am Brunnenausbau zurückgesetzt werden?</translation>
    </message>
    <message>
        <source>&lt;b&gt;The configuration is incorrect.&lt;/b&gt;&lt;br&gt;</source>
        <translation>&lt;b&gt;Der Brunnenausbau ist nicht korrekt.&lt;/b&gt;&lt;br&gt;</translation>
    </message>
    <message>
        <source>The corrected configuration is:&lt;br&gt;</source>
        <translation>Der korrigierte Brunnenausbau lautet:&lt;br&gt;</translation>
    </message>
    <message>
        <source>Number of wells</source>
        <translation>Anzahl Brunnen</translation>
    </message>
    <message>
        <source>Filter length</source>
        <translation>Filterlänge</translation>
    </message>
    <message>
        <source>Filter diameter</source>
        <translation>Filterdurchmesser</translation>
    </message>
    <message>
        <source>With a maximum drawdown in the well of %1 m.&lt;br&gt;</source>
        <translation>Mit einer größten Absenkung im Brunnen von %1 m.&lt;br&gt;</translation>
    </message>
    <message>
        <source>Should the configuration be changed?</source>
        <translation>Soll der Brunnenausbau geändert werden?</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Planning of the thermal use of groundwater</source>
        <translation>Planung der thermischen Nutzung von Grundwasser</translation>
    </message>
    <message>
        <source>Language of use: de, en or fr.</source>
        <translation>Sprache der Bedienung: de, en oder fr.</translation>
    </message>
    <message>
        <source>There is no language %1; there are de, en and fr.</source>
        <translation>Die Sprache %1 gibt es nicht; es gibt de, en und fr.</translation>
    </message>
    <message>
        <source>Project (.tvr) or batch file (.tbat) to open; the first of several.</source>
        <translation>Projekt (.tvr) oder Stapeldatei (.tbat), die zu öffnen ist; von mehreren die erste.</translation>
    </message>
</context>
<context>
    <name>CoolingAndHeatingInstallationWizardPage</name>
    <message>
        <source>Cooling (and heating) installation</source>
        <translation>Anlage zum Kühlen (und Heizen)</translation>
    </message>
    <message>
        <source>&lt;b&gt;Cooling (and heating) installation&lt;/b&gt;</source>
        <translation>&lt;b&gt;Anlage zum Kühlen (und Heizen)&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Cooling specification</source>
        <translation>Angaben zum Kühlen</translation>
    </message>
    <message>
        <source>Cooling demand per year</source>
        <translation>Jährlicher Kältebedarf</translation>
    </message>
    <message>
        <source>(Annual) cooling demand (kWh/a)
Heat that is brought into the groundwater in a year
0 to 100000 kWh/a</source>
        <translation>(Jährlicher) Kältebedarf (kWh/a)
Wärme, die in einem Jahr in das Grundwasser eingetragen wird
0 bis 100000 kWh/a</translation>
    </message>
    <message>
        <source>All of this heat goes into the groundwater. Where a chiller stands between, add the electric energy that it uses.</source>
        <translation>Diese Wärme geht ganz in das Grundwasser. Ist eine Kältemaschine dazwischengeschaltet, kommt die elektrische Energie hinzu, die sie verbraucht.</translation>
    </message>
    <message>
        <source>0 to 100000 kWh/a</source>
        <translation>0 bis 100000 kWh/a</translation>
    </message>
    <message>
        <source>kWh/a</source>
        <translation>kWh/a</translation>
    </message>
    <message>
        <source>Coefficient of full load hours</source>
        <translation>Volllaststunden</translation>
    </message>
    <message>
        <source>The power follows from demand and hours</source>
        <translation>Die Leistung ergibt sich aus Bedarf und Stunden</translation>
    </message>
    <message>
        <source>The power becomes the annual demand divided by the hours, in whole kilowatts. The arrow keys change between hours and power, Tab goes into the field that is open.</source>
        <translation>Die Leistung wird zum Jahresbedarf geteilt durch die Stunden, in ganzen Kilowatt. Die Pfeiltasten wechseln zwischen Stunden und Leistung, die Tabulatortaste geht in das Feld, das offen ist.</translation>
    </message>
    <message>
        <source>Annual demand divided by the largest power
0 to 8784 h/a</source>
        <translation>Jahresbedarf geteilt durch die größte Leistung
0 bis 8784 h/a</translation>
    </message>
    <message>
        <source>Some 500 to 1500 h are usual for the cooling of rooms, 4000 h and more for processes.</source>
        <translation>Üblich sind etwa 500 bis 1500 h für die Raumkühlung, 4000 h und mehr für Prozesse.</translation>
    </message>
    <message>
        <source>0 to 8784 h/a</source>
        <translation>0 bis 8784 h/a</translation>
    </message>
    <message>
        <source>h</source>
        <translation>h</translation>
    </message>
    <message>
        <source>Cooling power</source>
        <translation>Kälteleistung</translation>
    </message>
    <message>
        <source>The power is entered</source>
        <translation>Die Leistung wird eingegeben</translation>
    </message>
    <message>
        <source>The hours of full load are kept as they are; above 0 they are the choice when this page opens again. The arrow keys change between hours and power, Tab goes into the field that is open.</source>
        <translation>Die Volllaststunden bleiben, wie sie sind; sind sie größer als 0, so sind sie gewählt, wenn diese Seite wieder geöffnet wird. Die Pfeiltasten wechseln zwischen Stunden und Leistung, die Tabulatortaste geht in das Feld, das offen ist.</translation>
    </message>
    <message>
        <source>Cooling power at full load
0 to 100000 kW</source>
        <translation>Kälteleistung bei Volllast
0 bis 100000 kW</translation>
    </message>
    <message>
        <source>With the temperature change it decides the largest flow, and with that the wells. There has to be a figure also where the hours are used.</source>
        <translation>Mit der Temperaturänderung bestimmt sie den größten Volumenstrom und damit die Brunnen. Ein Wert ist auch nötig, wenn die Stunden verwendet werden.</translation>
    </message>
    <message>
        <source>0 to 100000 kW</source>
        <translation>0 bis 100000 kW</translation>
    </message>
    <message>
        <source>kW</source>
        <translation>kW</translation>
    </message>
    <message>
        <source>Mean temperatur change</source>
        <translation>Mittlere Temperaturänderung</translation>
    </message>
    <message>
        <source>By how much cooling warms the groundwater
0 to 100 K</source>
        <translation>Um wie viel das Kühlen das Grundwasser erwärmt
0 bis 100 K</translation>
    </message>
    <message>
        <source>3 to 6 K are usual for cooling. VDI 4640-2 allows 6 K between the wells; in Switzerland the groundwater around may change by 3 K (GSchV, annex 2). Twice the change needs half the water and makes the plume stronger.</source>
        <translation>Üblich sind 3 bis 6 K beim Kühlen. VDI 4640-2 lässt zwischen den Brunnen 6 K zu; in der Schweiz darf sich das Grundwasser der Umgebung um 3 K ändern (GSchV, Anhang 2). Die doppelte Änderung braucht halb so viel Wasser und verstärkt die Temperaturfahne.</translation>
    </message>
    <message>
        <source>0 to 100 K</source>
        <translation>0 bis 100 K</translation>
    </message>
    <message>
        <source>K</source>
        <translation>K</translation>
    </message>
    <message>
        <source>Heating specification</source>
        <translation>Angaben zum Heizen</translation>
    </message>
    <message>
        <source>Without a mark the installation only cools</source>
        <translation>Ohne Häkchen kühlt die Anlage nur</translation>
    </message>
    <message>
        <source>With a mark the installation heats as well. Without one it only cools, and the figures of heating become 0 when the page is left.</source>
        <translation>Mit Häkchen heizt die Anlage auch. Ohne Häkchen kühlt sie nur, und die Werte zum Heizen werden beim Verlassen der Seite 0.</translation>
    </message>
    <message>
        <source>Heating demand per year</source>
        <translation>Jährlicher Heizwärmebedarf</translation>
    </message>
    <message>
        <source>(Annual) heating demand (kWh/a)
Heat that the building needs in a year, with hot water
0 to 100000 kWh/a</source>
        <translation>(Jährlicher) Heizwärmebedarf (kWh/a)
Wärme, die das Gebäude in einem Jahr braucht, mit Warmwasser
0 bis 100000 kWh/a</translation>
    </message>
    <message>
        <source>The share 1 - 1/COP of it comes from the groundwater.</source>
        <translation>Der Anteil 1 - 1/JAZ davon stammt aus dem Grundwasser.</translation>
    </message>
    <message>
        <source>1800 to 2300 h are usual for dwellings, with hot water up to 2700 h (SIA 384/6, VDI 4640-2).</source>
        <translation>Üblich sind 1800 bis 2300 h für Wohngebäude, mit Warmwasser bis 2700 h (SIA 384/6, VDI 4640-2).</translation>
    </message>
    <message>
        <source>Heating power</source>
        <translation>Heizleistung</translation>
    </message>
    <message>
        <source>Heating power at full load
0 to 100000 kW</source>
        <translation>Heizleistung bei Volllast
0 bis 100000 kW</translation>
    </message>
    <message>
        <source>Mean temperature change</source>
        <translation>Mittlere Temperaturänderung</translation>
    </message>
    <message>
        <source>By how much the heat pump cools the groundwater
0 to 100 K</source>
        <translation>Um wie viel die Wärmepumpe das Grundwasser abkühlt
0 bis 100 K</translation>
    </message>
    <message>
        <source>3 to 4 K are usual for heating. VDI 4640-2 allows 6 K between the wells; in Switzerland the groundwater around may change by 3 K (GSchV, annex 2). Twice the change needs half the water and makes the plume stronger.</source>
        <translation>Üblich sind 3 bis 4 K beim Heizen. VDI 4640-2 lässt zwischen den Brunnen 6 K zu; in der Schweiz darf sich das Grundwasser der Umgebung um 3 K ändern (GSchV, Anhang 2). Die doppelte Änderung braucht halb so viel Wasser und verstärkt die Temperaturfahne.</translation>
    </message>
    <message>
        <source>Coefficient of performance</source>
        <translation>Jahresarbeitszahl</translation>
    </message>
    <message>
        <source>Heat given in a year divided by the electric energy used for it
0 to 6</source>
        <translation>In einem Jahr abgegebene Wärme geteilt durch die dafür verbrauchte elektrische Energie
0 bis 6</translation>
    </message>
    <message>
        <source>The coefficient of performance over a whole year, with all pumps. Field measurements of heat pumps on ground and groundwater lie between 3 and 5 (Fraunhofer ISE). The share 1 - 1/COP of the heat comes from the groundwater, 71 % at 3.5: the higher the figure, the more water is needed. It has to be above 1.</source>
        <translation>Die Jahresarbeitszahl (JAZ), mit allen Pumpen. Feldmessungen an Wärmepumpen mit Erdreich und Grundwasser liegen zwischen 3 und 5 (Fraunhofer ISE). Der Anteil 1 - 1/JAZ der Wärme stammt aus dem Grundwasser, 71&#xa0;% bei 3.5: Je höher der Wert, desto mehr Wasser ist nötig. Er muss größer als 1 sein.</translation>
    </message>
    <message>
        <source>0 to 6</source>
        <translation>0 bis 6</translation>
    </message>
    <message>
        <source>best guess 3.5</source>
        <translation>Schätzwert 3.5</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>How the figures of this page work together</source>
        <translation>Wie die Werte dieser Seite zusammenwirken</translation>
    </message>
    <message>
        <source>How the figures of this page work together.</source>
        <translation>Wie die Werte dieser Seite zusammenwirken.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Hours of full load and power belong together: with the hours the power follows from the demand, otherwise it is entered. A figure for the power is needed in either case.&lt;/p&gt;&lt;p&gt;Of the heating demand and power the groundwater gives the share 1 - 1/COP. The larger power, that of cooling or this share of heating, decides the largest flow. The mean flow follows from what is left over in a year: cooling warms the ground and heating cools it, and the difference remains. The larger of the two yearly amounts also decides which temperature change counts.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Volllaststunden und Leistung gehören zusammen: Mit den Stunden ergibt sich die Leistung aus dem Bedarf, sonst wird sie eingegeben. Ein Wert für die Leistung ist in beiden Fällen nötig.&lt;/p&gt;&lt;p&gt;Von Heizwärmebedarf und Heizleistung liefert das Grundwasser den Anteil 1 - 1/JAZ. Die größere Leistung, die zum Kühlen oder dieser Anteil der Heizleistung, bestimmt den größten Volumenstrom. Der mittlere Volumenstrom ergibt sich aus dem, was in einem Jahr übrig bleibt: Kühlen erwärmt den Untergrund, Heizen kühlt ihn ab, und die Differenz verbleibt. Die größere der beiden Jahresmengen bestimmt auch, welche Temperaturänderung gilt.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>DemandModel</name>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
</context>
<context>
    <name>EnergieVerbrauchWizard</name>
    <message>
        <source>Energy demand wizard</source>
        <translation>Assistent für den Energiebedarf</translation>
    </message>
</context>
<context>
    <name>EnergyConsumptionWizardPage</name>
    <message>
        <source>Energy consumption</source>
        <translation>Energieverbrauch</translation>
    </message>
    <message>
        <source>&lt;b&gt;Energy consumption of the existing installation&lt;/b&gt;</source>
        <translation>&lt;b&gt;Energieverbrauch der bestehenden Anlage&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Fuel oil</source>
        <translation>Heizöl</translation>
    </message>
    <message>
        <source>The present heating uses fuel oil</source>
        <translation>Die bestehende Heizung verbraucht Heizöl</translation>
    </message>
    <message>
        <source>Opens the field beside it. The arrow keys go from one kind of energy to the next, Tab goes into the field.</source>
        <translation>Öffnet das Feld daneben. Die Pfeiltasten gehen von einem Energieträger zum nächsten, die Tabulatortaste geht in das Feld.</translation>
    </message>
    <message>
        <source>Fuel oil that the heating uses in a year
0 to 100000000 l/a</source>
        <translation>Heizöl, das die Heizung in einem Jahr verbraucht
0 bis 100000000 l/a</translation>
    </message>
    <message>
        <source>The annual energy demand is taken as 12.6 kWh for each litre (10.7 kWh divided by 0.85). This is on the safe side: of the heat in the fuel an old boiler brings less into the house. Take the mean of three to five years, without what is used for cooking or processes.</source>
        <translation>Als jährlicher Energiebedarf gelten 12.6 kWh je Liter (10.7 kWh geteilt durch 0.85). Das liegt auf der sicheren Seite: Von der Wärme im Brennstoff bringt ein alter Kessel weniger ins Haus. Empfohlen ist das Mittel aus drei bis fünf Jahren, ohne den Verbrauch für Kochen oder Prozesse.</translation>
    </message>
    <message>
        <source>0 to 100000000 l/a</source>
        <translation>0 bis 100000000 l/a</translation>
    </message>
    <message>
        <source>l/a</source>
        <translation>l/a</translation>
    </message>
    <message>
        <source>Natural gas</source>
        <translation>Erdgas</translation>
    </message>
    <message>
        <source>The present heating uses natural gas</source>
        <translation>Die bestehende Heizung verbraucht Erdgas</translation>
    </message>
    <message>
        <source>Natural gas that the heating uses in a year
0 to 100000000 m³/a</source>
        <translation>Erdgas, das die Heizung in einem Jahr verbraucht
0 bis 100000000 m³/a</translation>
    </message>
    <message>
        <source>The annual energy demand is taken as 11.3 kWh for each cubic metre (9.6 kWh divided by 0.85). This is on the safe side: of the heat in the fuel an old boiler brings less into the house. Take the mean of three to five years, without what is used for cooking or processes.</source>
        <translation>Als jährlicher Energiebedarf gelten 11.3 kWh je Kubikmeter (9.6 kWh geteilt durch 0.85). Das liegt auf der sicheren Seite: Von der Wärme im Brennstoff bringt ein alter Kessel weniger ins Haus. Empfohlen ist das Mittel aus drei bis fünf Jahren, ohne den Verbrauch für Kochen oder Prozesse.</translation>
    </message>
    <message>
        <source>0 to 100000000 m³/a</source>
        <translation>0 bis 100000000 m³/a</translation>
    </message>
    <message>
        <source>m&lt;sup&gt;3&lt;/sup&gt;/a</source>
        <translation>m&lt;sup&gt;3&lt;/sup&gt;/a</translation>
    </message>
    <message>
        <source>Electric power</source>
        <translation>Strom</translation>
    </message>
    <message>
        <source>The present heating uses electric power</source>
        <translation>Die bestehende Heizung verbraucht Strom</translation>
    </message>
    <message>
        <source>Electric power that the heating uses in a year
0 to 100000000 kWh/a</source>
        <translation>Strom, den die Heizung in einem Jahr verbraucht
0 bis 100000000 kWh/a</translation>
    </message>
    <message>
        <source>What is used for heating and hot water only. It is taken as the annual energy demand as it is. Take the mean of three to five years, without what is used for cooking or processes.</source>
        <translation>Nur der Verbrauch für Heizung und Warmwasser. Er gilt unverändert als jährlicher Energiebedarf. Empfohlen ist das Mittel aus drei bis fünf Jahren, ohne den Verbrauch für Kochen oder Prozesse.</translation>
    </message>
    <message>
        <source>0 to 100000000 kWh/a</source>
        <translation>0 bis 100000000 kWh/a</translation>
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
        <translation>Abschätzung des Energiebedarfs</translation>
    </message>
    <message>
        <source>&lt;b&gt;Approximation of the energy demand&lt;/b&gt;</source>
        <translation>&lt;b&gt;Abschätzung des Energiebedarfs&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Heated floor space</source>
        <translation>Energiebezugsfläche</translation>
    </message>
    <message>
        <source>Heated floor space of all storeys together
0 to 100000000 m²</source>
        <translation>Energiebezugsfläche aller Geschosse zusammen
0 bis 100000000 m²</translation>
    </message>
    <message>
        <source>The demand is the heat demand per square metre of the building type, times this floor space, times the degree days of the place divided by 3587. A one-family house has some 100 to 250 square metres.</source>
        <translation>Der Bedarf ist der Heizwärmebedarf je Quadratmeter der Gebäudekategorie, mal diese Fläche, mal die Heizgradtage des Orts geteilt durch 3587. Ein Einfamilienhaus hat etwa 100 bis 250 Quadratmeter.</translation>
    </message>
    <message>
        <source>0 to 100000000 m²</source>
        <translation>0 bis 100000000 m²</translation>
    </message>
    <message>
        <source>m&lt;sup&gt;2&lt;/sup&gt;</source>
        <translation>m&lt;sup&gt;2&lt;/sup&gt;</translation>
    </message>
    <message>
        <source>Including the supply of hot water</source>
        <translation>Einschließlich Warmwasserbereitung</translation>
    </message>
    <message>
        <source>The heat pump heats the drinking water too</source>
        <translation>Die Wärmepumpe erwärmt auch das Trinkwasser</translation>
    </message>
    <message>
        <source>Adds the hot water demand of the building type (SIA 380/1: 50 MJ per square metre and year in one-family houses, 75 MJ in apartment houses) and takes its longer hours of full load.</source>
        <translation>Fügt den Warmwasserbedarf der Gebäudekategorie hinzu (SIA 380/1: 50 MJ je Quadratmeter und Jahr in Einfamilienhäusern, 75 MJ in Mehrfamilienhäusern) und verwendet ihre höheren Volllaststunden.</translation>
    </message>
    <message>
        <source>In which vicinity is the project located?</source>
        <translation>In der Nähe welches Orts liegt das Projekt?</translation>
    </message>
    <message>
        <source>The place whose climate is most like that of the site</source>
        <translation>Der Ort, dessen Klima dem des Standorts am ähnlichsten ist</translation>
    </message>
    <message>
        <source>The place gives the heating degree days of a year (base 20/12, as in SIA 381/3). The estimated demand grows in proportion to them.</source>
        <translation>Der Ort ergibt die Heizgradtage eines Jahres (Basis 20/12, wie in SIA 381/3). Der geschätzte Bedarf wächst proportional dazu.</translation>
    </message>
</context>
<context>
    <name>EnergyDemandDefinitionWizardPage</name>
    <message>
        <source>Definition of the energy demand</source>
        <translation>Festlegung des Energiebedarfs</translation>
    </message>
    <message>
        <source>&lt;b&gt;Definition of the energy demand&lt;/b&gt;</source>
        <translation>&lt;b&gt;Festlegung des Energiebedarfs&lt;/b&gt;</translation>
    </message>
    <message>
        <source>The energy demand has been determined already (e.g. by the architect)</source>
        <translation>Der Energiebedarf ist bereits ermittelt (z. B. vom Architekten)</translation>
    </message>
    <message>
        <source>The annual demand is entered on the next page</source>
        <translation>Der Jahresbedarf wird auf der nächsten Seite eingegeben</translation>
    </message>
    <message>
        <source>The better choice where a calculation is at hand, such as the one of the permit.</source>
        <translation>Die bessere Wahl, wenn eine Berechnung vorliegt, etwa jene für die Baugenehmigung.</translation>
    </message>
    <message>
        <source>Approximation based on the size and location of the installation</source>
        <translation>Schätzung nach Größe und Ort der Anlage</translation>
    </message>
    <message>
        <source>The annual demand is estimated on the next page</source>
        <translation>Der Jahresbedarf wird auf der nächsten Seite geschätzt</translation>
    </message>
    <message>
        <source>The demand is estimated from the building type, the heated floor space and the degree days of the place. It is a first figure: insulation and habits may change it by a factor of two.</source>
        <translation>Der Bedarf wird aus Gebäudekategorie, Energiebezugsfläche und Heizgradtagen des Ortes geschätzt. Das ist ein erster Anhaltswert: Dämmung und Gewohnheiten können ihn um den Faktor zwei verändern.</translation>
    </message>
</context>
<context>
    <name>EnergyDemandDeterminationWizardPage</name>
    <message>
        <source>Determined energy demand</source>
        <translation>Ermittelter Energiebedarf</translation>
    </message>
    <message>
        <source>&lt;b&gt;Determined energy demand&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ermittelter Energiebedarf&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Calculated energy demand</source>
        <translation>Berechneter Energiebedarf</translation>
    </message>
    <message>
        <source>Heat that the building needs in a year, with hot water
0 to 100000000 kWh/a</source>
        <translation>Wärme, die das Gebäude im Jahr braucht, mit Warmwasser
0 bis 100000000 kWh/a</translation>
    </message>
    <message>
        <source>The heat that the heat pump has to give in a year, for rooms and hot water together. Divided by the hours of full load of the building type it gives the power, and both give the groundwater flow. A one-family house of 150 square metres needs some 8000 kWh/a as a new building and some 25000 kWh/a as an old one.</source>
        <translation>Die Wärme, die die Wärmepumpe im Jahr für Räume und Warmwasser zusammen liefern muss. Geteilt durch die Volllaststunden der Gebäudekategorie ergibt sie die Leistung, und aus beiden folgt der Volumenstrom des Grundwassers. Ein Einfamilienhaus mit 150 Quadratmetern braucht als Neubau rund 8000 kWh/a, als Altbau rund 25000 kWh/a.</translation>
    </message>
    <message>
        <source>0 to 100000000 kWh/a</source>
        <translation>0 bis 100000000 kWh/a</translation>
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
        <translation>Merkmale der Anlage</translation>
    </message>
    <message>
        <source>&lt;b&gt;Installation features&lt;/b&gt;</source>
        <translation>&lt;b&gt;Merkmale der Anlage&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Objective</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Replacement of an existing heating installation (e.g. oil or gas fueled)</source>
        <translation>Ersatz einer bestehenden Heizung (z. B. mit Öl oder Gas)</translation>
    </message>
    <message>
        <source>The demand follows from the consumption of the present heating</source>
        <translation>Der Bedarf folgt aus dem Verbrauch der bestehenden Heizung</translation>
    </message>
    <message>
        <source>The next page asks for the fuel oil, natural gas or electric power that the present heating uses in a year. Demand, power and groundwater flow follow from it.</source>
        <translation>Die nächste Seite fragt nach Heizöl, Erdgas oder Strom, die die bestehende Heizung im Jahr verbraucht. Daraus folgen Bedarf, Leistung und Volumenstrom des Grundwassers.</translation>
    </message>
    <message>
        <source>Install a new system for heating</source>
        <translation>Neue Anlage zum Heizen</translation>
    </message>
    <message>
        <source>The demand is known, or is estimated from the building</source>
        <translation>Der Bedarf ist bekannt oder wird aus dem Gebäude geschätzt</translation>
    </message>
    <message>
        <source>The next page asks whether the heating demand is known already. If it is not, it is estimated from use, floor space and place of the building.</source>
        <translation>Die nächste Seite fragt, ob der Heizwärmebedarf bereits bekannt ist. Wenn nicht, wird er aus Nutzung, Fläche und Ort des Gebäudes geschätzt.</translation>
    </message>
    <message>
        <source>Install a new system for cooling and heating</source>
        <translation>Neue Anlage zum Kühlen und Heizen</translation>
    </message>
    <message>
        <source>Demand and power of cooling are entered, and those of heating</source>
        <translation>Bedarf und Leistung werden für das Kühlen und für das Heizen eingegeben</translation>
    </message>
    <message>
        <source>The next page asks for demand, power and temperature change of cooling and, if there is any, of heating. The building type plays no part then.</source>
        <translation>Die nächste Seite fragt nach Bedarf, Leistung und Temperaturänderung für das Kühlen und, falls auch geheizt wird, für das Heizen. Die Gebäudekategorie spielt dann keine Rolle.</translation>
    </message>
    <message>
        <source>Building type</source>
        <translation>Gebäudekategorie</translation>
    </message>
    <message>
        <source>Use of the building, for the hours of full load and the heat demand</source>
        <translation>Nutzung des Gebäudes, für Volllaststunden und Wärmebedarf</translation>
    </message>
    <message>
        <source>The building type gives the hours of full load, by which the power follows from the annual demand, and the heat demand per square metre where the demand is estimated. The figures of the reference database lie in the range of SIA 384/6 and VDI 4640-2 (hours) and of SIA 380/1 (demand).</source>
        <translation>Die Gebäudekategorie bestimmt die Volllaststunden, mit denen die Leistung aus dem Jahresbedarf folgt, und bei geschätztem Bedarf den Wärmebedarf pro Quadratmeter. Die Werte der Referenzdatenbank liegen im Bereich von SIA 384/6 und VDI 4640-2 (Stunden) sowie SIA 380/1 (Bedarf).</translation>
    </message>
</context>
<context>
    <name>EnergyDemandResultWizardPage</name>
    <message>
        <source>Energy demand</source>
        <translation>Energiebedarf</translation>
    </message>
    <message>
        <source>&lt;b&gt;Energy demand and groundwater use&lt;/b&gt;</source>
        <translation>&lt;b&gt;Energiebedarf und Grundwassernutzung&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Energy demand and groundwater use</source>
        <translation>Energiebedarf und Grundwassernutzung</translation>
    </message>
    <message>
        <source>What follows from the demand</source>
        <translation>Was aus dem Bedarf folgt</translation>
    </message>
    <message>
        <source>What follows from the pages before. With large letters the arrow keys scroll.</source>
        <translation>Was aus den vorigen Seiten folgt. Bei großer Schrift wird mit den Pfeiltasten geblättert.</translation>
    </message>
    <message>
        <source>Annual energy demand</source>
        <translation>Jährlicher Energiebedarf</translation>
    </message>
    <message>
        <source>Heat that the heat pump gives in a year</source>
        <translation>Wärme, die die Wärmepumpe im Jahr liefert</translation>
    </message>
    <message>
        <source>From the pages before: entered, estimated, or out of the consumption of the present heating.</source>
        <translation>Aus den vorigen Seiten: eingegeben, geschätzt oder aus dem Verbrauch der bestehenden Heizung.</translation>
    </message>
    <message>
        <source>kWh/a</source>
        <translation>kWh/a</translation>
    </message>
    <message>
        <source>Heating/cooling power</source>
        <translation>Heiz-/Kälteleistung</translation>
    </message>
    <message>
        <source>Largest power of the installation</source>
        <translation>Größte Leistung der Anlage</translation>
    </message>
    <message>
        <source>Of a heating: the annual demand divided by the hours of full load of the building type. With cooling: the cooling power, or the share of the heating power that comes from the groundwater if that is larger.</source>
        <translation>Beim Heizen: der Jahresbedarf geteilt durch die Volllaststunden der Gebäudekategorie. Mit Kühlung: die Kälteleistung oder, wenn er größer ist, der Anteil der Heizleistung, der aus dem Grundwasser stammt.</translation>
    </message>
    <message>
        <source>kW</source>
        <translation>kW</translation>
    </message>
    <message>
        <source>Groundwater</source>
        <translation>Grundwasser</translation>
    </message>
    <message>
        <source>Mean temperature change of the groundwater</source>
        <translation>Mittlere Temperaturänderung des Grundwassers</translation>
    </message>
    <message>
        <source>Change between withdrawal and injection well</source>
        <translation>Änderung zwischen Entnahme- und Rückgabebrunnen</translation>
    </message>
    <message>
        <source>As entered. With cooling and heating it is that of the side which moves more heat in a year.</source>
        <translation>Wie eingegeben. Beim Kühlen und Heizen gilt der Wert jener Betriebsart, die im Jahr mehr Wärme umsetzt.</translation>
    </message>
    <message>
        <source>K</source>
        <translation>K</translation>
    </message>
    <message>
        <source>Maximum groundwater withdrawal rate</source>
        <translation>Maximaler Volumenstrom der Entnahme</translation>
    </message>
    <message>
        <source>Flow at full power, for which the wells are designed</source>
        <translation>Volumenstrom bei voller Leistung, auf den die Brunnen ausgelegt werden</translation>
    </message>
    <message>
        <source>What all withdrawal wells together have to give at full power. The flow is the heat that goes through the water, divided by its heat capacity and the temperature change.</source>
        <translation>Was alle Entnahmebrunnen zusammen bei voller Leistung liefern müssen. Der Volumenstrom ist die über das Wasser übertragene Wärme, geteilt durch dessen Wärmekapazität und die Temperaturänderung.</translation>
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
        <translation>Jahresvolumenstrom der Entnahme</translation>
    </message>
    <message>
        <source>Mean flow over a whole year</source>
        <translation>Mittlerer Volumenstrom über ein ganzes Jahr</translation>
    </message>
    <message>
        <source>It decides the reach of the plume and the recommended distances between the wells. The flow is the heat that goes through the water, divided by its heat capacity and the temperature change.</source>
        <translation>Er bestimmt die Reichweite der Temperaturfahne und die empfohlenen Abstände zwischen den Brunnen. Der Volumenstrom ist die über das Wasser übertragene Wärme, geteilt durch dessen Wärmekapazität und die Temperaturänderung.</translation>
    </message>
</context>
<context>
    <name>EngerieVerbrauchWizard</name>
    <message>
        <source>Please provide a valid value for the cooling coefficient of full load hours.</source>
        <translation>Bitte geben Sie einen gültigen Wert für die Volllaststunden beim Kühlen ein.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the cooling power.</source>
        <translation>Bitte geben Sie einen gültigen Wert für die Kälteleistung ein.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the cooling demand.</source>
        <translation>Bitte geben Sie einen gültigen Wert für den Kältebedarf ein.</translation>
    </message>
    <message>
        <source>We need a valid value for the temperature change, used for cooling!</source>
        <translation>Für die Temperaturänderung beim Kühlen wird ein gültiger Wert benötigt!</translation>
    </message>
    <message>
        <source>We need a valid value for the colling coefficent of full load hours!</source>
        <translation>Für die Volllaststunden beim Kühlen wird ein gültiger Wert benötigt!</translation>
    </message>
    <message>
        <source>We need a valid value for the cooling power!</source>
        <translation>Für die Kälteleistung wird ein gültiger Wert benötigt!</translation>
    </message>
    <message>
        <source>We need a valid value for the heating demand!</source>
        <translation>Für den Heizwärmebedarf wird ein gültiger Wert benötigt!</translation>
    </message>
    <message>
        <source>We need a valid value for the temperature change, used for heating!</source>
        <translation>Für die Temperaturänderung beim Heizen wird ein gültiger Wert benötigt!</translation>
    </message>
    <message>
        <source>We need a valid value for the coefficient of performance (COP), used for heating!</source>
        <translation>Für die Jahresarbeitszahl (JAZ) beim Heizen wird ein gültiger Wert benötigt!</translation>
    </message>
    <message>
        <source>Reset all changes on the energy demand configuration?</source>
        <translation>Alle Änderungen an den Angaben zum Energiebedarf zurücksetzen?</translation>
    </message>
    <message>
        <source>Please provide a valid value for the fuel oil demand.</source>
        <translation>Bitte geben Sie einen gültigen Wert für den Heizölbedarf ein.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the gas demand.</source>
        <translation>Bitte geben Sie einen gültigen Wert für den Erdgasbedarf ein.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the energy demand.</source>
        <translation>Bitte geben Sie einen gültigen Wert für den Energiebedarf ein.</translation>
    </message>
    <message>
        <source>Reset all changes on the old energy demand configuration?</source>
        <translation>Alle Änderungen an den Angaben zum bisherigen Energiebedarf zurücksetzen?</translation>
    </message>
    <message>
        <source>Please provide a valid value for the area to be heated.</source>
        <translation>Bitte geben Sie einen gültigen Wert für die Energiebezugsfläche ein.</translation>
    </message>
    <message>
        <source>Reset all changes on the energy demand approximation?</source>
        <translation>Alle Änderungen an der Schätzung des Energiebedarfs zurücksetzen?</translation>
    </message>
    <message>
        <source>Reset all changes on the energy demand definition?</source>
        <translation>Alle Änderungen an der Festlegung des Energiebedarfs zurücksetzen?</translation>
    </message>
    <message>
        <source>Please provide a valid value for the coefficient of performance (COP) of the system.</source>
        <translation>Bitte geben Sie einen gültigen Wert für die Jahresarbeitszahl (JAZ) der Anlage ein.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the temperature change.</source>
        <translation>Bitte geben Sie einen gültigen Wert für die Temperaturänderung ein.</translation>
    </message>
    <message>
        <source>Reset all changes on the heat pump specification?</source>
        <translation>Alle Änderungen an den Angaben zur Wärmepumpe zurücksetzen?</translation>
    </message>
</context>
<context>
    <name>ExtendedSimulationParameterWizardPage</name>
    <message>
        <source>Extended simulation parameter</source>
        <translation>Erweiterte Simulationsparameter</translation>
    </message>
    <message>
        <source>Hydraulic dispersion</source>
        <translation>Hydrodynamische Dispersion</translation>
    </message>
    <message>
        <source>Heat spreads more than by conduction alone, since water takes many ways</source>
        <translation>Wärme breitet sich stärker aus als durch Leitung allein, da Wasser viele Wege nimmt</translation>
    </message>
    <message>
        <source>Longitudinal dispersivity [m]</source>
        <translation>Longitudinale Dispersivität [m]</translation>
    </message>
    <message>
        <source>Along the flow; counts only with the check mark
0.1 to 50 m</source>
        <translation>In Fließrichtung; gilt nur mit Häkchen
0.1 bis 50 m</translation>
    </message>
    <message>
        <source>It grows with the way of the water: about a tenth of the length of the plume (Lallemand-Barres and Peaudecerf, 1978); field values over 100 m are mostly 1 to 10 m (Gelhar, Welty and Rehfeldt, Water Resources Research 28, 1992). More of it makes the plume wider and weaker.</source>
        <translation>Sie wächst mit dem Fließweg des Wassers: rund ein Zehntel der Länge der Temperaturfahne (Lallemand-Barres und Peaudecerf, 1978); Feldwerte über 100 m Fließweg betragen meist 1 bis 10 m (Gelhar, Welty und Rehfeldt, Water Resources Research 28, 1992). Größere Werte machen die Temperaturfahne breiter und schwächer.</translation>
    </message>
    <message>
        <source>0.1 to 50 m</source>
        <translation>0.1 bis 50 m</translation>
    </message>
    <message>
        <source>Usage of a closed loop for the water</source>
        <translation>Wasser im geschlossenen Kreislauf</translation>
    </message>
    <message>
        <source>Injected water has the temperature of what is pumped, changed by the installation</source>
        <translation>Das zurückgegebene Wasser hat die Temperatur des entnommenen, verändert durch die Anlage</translation>
    </message>
    <message>
        <source>Where warmed or cooled water reaches the pumping wells, the injected water gets warmer or colder still. Without it, what is injected has a fixed change against the natural groundwater.</source>
        <translation>Wo erwärmtes oder abgekühltes Wasser die Entnahmebrunnen erreicht, wird das zurückgegebene Wasser noch wärmer oder kälter. Ohne Häkchen hat das zurückgegebene Wasser eine feste Änderung gegenüber dem natürlichen Grundwasser.</translation>
    </message>
    <message>
        <source>Numeric parameter</source>
        <translation>Numerische Parameter</translation>
    </message>
    <message>
        <source>Groundwater flow model</source>
        <translation>Grundwasserströmungsmodell</translation>
    </message>
    <message>
        <source>Tolerances of one&apos;s own instead of the defaults; decides for the heat flow model too</source>
        <translation>Eigene Toleranzen anstelle der Vorgaben; gilt auch für das Wärmetransportmodell</translation>
    </message>
    <message>
        <source>Absolute error tolerance</source>
        <translation>Absolute Fehlertoleranz</translation>
    </message>
    <message>
        <source>Error that is allowed in each step
1e-12 to 0.1 Pa</source>
        <translation>Zulässiger Fehler in jedem Zeitschritt
1e-12 bis 0.1 Pa</translation>
    </message>
    <message>
        <source>1e-5 is the default. A smaller one makes the run longer and the result a little sharper.</source>
        <translation>1e-5 ist die Vorgabe. Ein kleinerer Wert verlängert die Rechnung und macht das Resultat etwas genauer.</translation>
    </message>
    <message>
        <source>1e-12 to 0.1 Pa</source>
        <translation>1e-12 bis 0.1 Pa</translation>
    </message>
    <message>
        <source>Pa</source>
        <translation>Pa</translation>
    </message>
    <message>
        <source>Relative error tolerance</source>
        <translation>Relative Fehlertoleranz</translation>
    </message>
    <message>
        <source>Error that is allowed in each step, as a part of the value
1e-12 to 0.1</source>
        <translation>Zulässiger Fehler in jedem Zeitschritt, als Anteil des Wertes
1e-12 bis 0.1</translation>
    </message>
    <message>
        <source>1e-12 to 0.1</source>
        <translation>1e-12 bis 0.1</translation>
    </message>
    <message>
        <source>Heat flow model</source>
        <translation>Wärmetransportmodell</translation>
    </message>
    <message>
        <source>They count only while those of the groundwater flow model are switched on</source>
        <translation>Gelten nur, solange jene des Grundwasserströmungsmodells eingeschaltet sind</translation>
    </message>
    <message>
        <source>Error that is allowed in each step
1e-12 to 0.001 K</source>
        <translation>Zulässiger Fehler in jedem Zeitschritt
1e-12 bis 0.001 K</translation>
    </message>
    <message>
        <source>1e-7 is the default. A smaller one makes the run longer and the result a little sharper.</source>
        <translation>1e-7 ist die Vorgabe. Ein kleinerer Wert verlängert die Rechnung und macht das Resultat etwas genauer.</translation>
    </message>
    <message>
        <source>1e-12 to 0.001 K</source>
        <translation>1e-12 bis 0.001 K</translation>
    </message>
    <message>
        <source>K</source>
        <translation>K</translation>
    </message>
    <message>
        <source>Error that is allowed in each step, as a part of the value
1e-12 to 0.001</source>
        <translation>Zulässiger Fehler in jedem Zeitschritt, als Anteil des Wertes
1e-12 bis 0.001</translation>
    </message>
    <message>
        <source>1e-12 to 0.001</source>
        <translation>1e-12 bis 0.001</translation>
    </message>
    <message>
        <source>Element size increase factor</source>
        <translation>Zunahmefaktor der Elementgröße</translation>
    </message>
    <message>
        <source>By how many percent elements grow from one to the next away from a well
1 to 100 %</source>
        <translation>Um wie viel Prozent die Elemente vom Brunnen weg von einem zum nächsten wachsen
1 bis 100&#xa0;%</translation>
    </message>
    <message>
        <source>30 is the default. Smaller factors make smoother meshes with more elements.</source>
        <translation>30 ist die Vorgabe. Kleinere Faktoren ergeben gleichmäßigere Netze mit mehr Elementen.</translation>
    </message>
    <message>
        <source>1 to 100 %</source>
        <translation>1 bis 100&#xa0;%</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Minimal size of elements</source>
        <translation>Kleinste Elementgröße</translation>
    </message>
    <message>
        <source>Size of the elements at the wells
0 to 10 m</source>
        <translation>Größe der Elemente bei den Brunnen
0 bis 10 m</translation>
    </message>
    <message>
        <source>Smaller ones show the temperature at the wells finer and need more of them.</source>
        <translation>Kleinere Elemente zeigen die Temperatur bei den Brunnen feiner; es braucht mehr davon.</translation>
    </message>
    <message>
        <source>0 to 10 m</source>
        <translation>0 bis 10 m</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>Maximal size of elements</source>
        <translation>Größte Elementgröße</translation>
    </message>
    <message>
        <source>Size of the elements far from the wells
0 to 1000 m</source>
        <translation>Größe der Elemente fern von den Brunnen
0 bis 1000 m</translation>
    </message>
    <message>
        <source>Has to be larger than the minimal size.</source>
        <translation>Muss größer sein als die kleinste Elementgröße.</translation>
    </message>
    <message>
        <source>0 to 1000 m</source>
        <translation>0 bis 1000 m</translation>
    </message>
    <message>
        <source>Additional output</source>
        <translation>Zusätzliche Ausgabe</translation>
    </message>
    <message>
        <source>Write drawdown and temperatures in CSV and SHP file format</source>
        <translation>Absenkung und Temperaturen als CSV und SHP schreiben</translation>
    </message>
    <message>
        <source>At each output time files are written into a folder</source>
        <translation>Zu jedem Ausgabezeitpunkt werden Dateien in einen Ordner geschrieben</translation>
    </message>
    <message>
        <source>Folder of the files</source>
        <translation>Ordner der Dateien</translation>
    </message>
    <message>
        <source>The folder for the tables and shapefiles of each output time.</source>
        <translation>Der Ordner für die Tabellen und Shapefiles jedes Ausgabezeitpunkts.</translation>
    </message>
    <message>
        <source>Choose where to</source>
        <translation>Ziel wählen</translation>
    </message>
    <message>
        <source>Write well temperature output</source>
        <translation>Brunnentemperaturen ausgeben</translation>
    </message>
    <message>
        <source>A table of the temperatures at the wells over time</source>
        <translation>Eine Tabelle der Temperaturen bei den Brunnen im Lauf der Zeit</translation>
    </message>
    <message>
        <source>File of the table</source>
        <translation>Datei der Tabelle</translation>
    </message>
    <message>
        <source>A name that ends in .xml gives a table for spreadsheet programs, any other one tab-separated text.</source>
        <translation>Ein Name mit der Endung .xml ergibt eine Tabelle für Tabellenkalkulationen, jeder andere einen Text mit Tabulatoren.</translation>
    </message>
</context>
<context>
    <name>GeneralWizard</name>
    <message>
        <source>General wizard</source>
        <translation>Assistent für allgemeine Angaben</translation>
    </message>
</context>
<context>
    <name>GraphicWizard</name>
    <message>
        <source>Please provide a valid value for the x coordinate of the map origin.</source>
        <translation>Bitte geben Sie einen gültigen Wert für die X-Koordinate des Ursprungs der Karte ein.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the y coordinate of the map origin.</source>
        <translation>Bitte geben Sie einen gültigen Wert für die Y-Koordinate des Ursprungs der Karte ein.</translation>
    </message>
    <message>
        <source>We need a valid value for the map extention (West - East) or select a scale!</source>
        <translation>Für die Ausdehnung der Karte (West - Ost) wird ein gültiger Wert oder ein Maßstab benötigt!</translation>
    </message>
    <message>
        <source>Please provide a valid name for the background image file.</source>
        <translation>Bitte geben Sie einen gültigen Namen für die Datei des Hintergrundbilds ein.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the x coordinate of the background image origin.</source>
        <translation>Bitte geben Sie einen gültigen Wert für die X-Koordinate des Ursprungs des Hintergrundbilds ein.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the y coordinate of the background image origin.</source>
        <translation>Bitte geben Sie einen gültigen Wert für die Y-Koordinate des Ursprungs des Hintergrundbilds ein.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the horizontal image extension (West-East).</source>
        <translation>Bitte geben Sie einen gültigen Wert für die horizontale Ausdehnung des Bildes (West-Ost) ein.</translation>
    </message>
    <message>
        <source>Please provide a valid value for the vertical image extension (North-South).</source>
        <translation>Bitte geben Sie einen gültigen Wert für die vertikale Ausdehnung des Bildes (Nord-Süd) ein.</translation>
    </message>
    <message>
        <source>Reset all changes on the mapping information?</source>
        <translation>Alle Änderungen an den Angaben zur Kartendarstellung zurücksetzen?</translation>
    </message>
</context>
<context>
    <name>HeatPumpSpecificationWizardPage</name>
    <message>
        <source>Heat pump specifications</source>
        <translation>Angaben zur Wärmepumpe</translation>
    </message>
    <message>
        <source>&lt;b&gt;Heat pump specifications&lt;/b&gt;</source>
        <translation>&lt;b&gt;Angaben zur Wärmepumpe&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Coefficient of performance</source>
        <translation>Jahresarbeitszahl</translation>
    </message>
    <message>
        <source>Heat given in a year divided by the electric energy used for it
0 to 6</source>
        <translation>In einem Jahr abgegebene Wärme geteilt durch die dafür verbrauchte elektrische Energie
0 bis 6</translation>
    </message>
    <message>
        <source>The coefficient of performance over a whole year, with all pumps. Field measurements of heat pumps on ground and groundwater lie between 3 and 5 (Fraunhofer ISE). The share 1 - 1/COP of the heat comes from the groundwater, 71 % at 3.5: the higher the figure, the more water is needed. It has to be above 1.</source>
        <translation>Die Jahresarbeitszahl (JAZ), mit allen Pumpen. Feldmessungen an Wärmepumpen mit Erdreich und Grundwasser liegen zwischen 3 und 5 (Fraunhofer ISE). Der Anteil 1 - 1/JAZ der Wärme stammt aus dem Grundwasser, 71&#xa0;% bei 3.5: Je höher der Wert, desto mehr Wasser ist nötig. Er muss größer als 1 sein.</translation>
    </message>
    <message>
        <source>0 to 6</source>
        <translation>0 bis 6</translation>
    </message>
    <message>
        <source>Referenzwert 3.5</source>
        <translation>Referenzwert 3.5</translation>
    </message>
    <message>
        <source>Mean temperature change</source>
        <translation>Mittlere Temperaturänderung</translation>
    </message>
    <message>
        <source>By how much the heat pump cools the groundwater
0 to 100 K</source>
        <translation>Um wie viel die Wärmepumpe das Grundwasser abkühlt
0 bis 100 K</translation>
    </message>
    <message>
        <source>3 to 4 K are usual for heating. VDI 4640-2 allows 6 K between the wells; in Switzerland the groundwater around may change by 3 K (GSchV, annex 2). Twice the change needs half the water and makes the plume stronger.</source>
        <translation>Üblich sind 3 bis 4 K beim Heizen. VDI 4640-2 lässt zwischen den Brunnen 6 K zu; in der Schweiz darf sich das Grundwasser der Umgebung um 3 K ändern (GSchV, Anhang 2). Die doppelte Änderung braucht halb so viel Wasser und verstärkt die Temperaturfahne.</translation>
    </message>
    <message>
        <source>0 to 100 K</source>
        <translation>0 bis 100 K</translation>
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
        <translation>keine Änderung über %1 K</translation>
    </message>
</context>
<context>
    <name>MappingWizardPage</name>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>General map</source>
        <translation>Übersichtskarte</translation>
    </message>
    <message>
        <source>[Specifications may be adapted later on]</source>
        <translation>[Angaben können später angepasst werden]</translation>
    </message>
    <message>
        <source>Origin</source>
        <translation>Ursprung</translation>
    </message>
    <message>
        <source>X (East)</source>
        <translation>X (Ost)</translation>
    </message>
    <message>
        <source>Lower left corner of the map
0 to 18577795 m</source>
        <translation>Linke untere Ecke der Karte
0 bis 18577795 m</translation>
    </message>
    <message>
        <source>Where the lower left corner of the map lies, in metres of a national grid. With 0 the map has a grid of its own.</source>
        <translation>Wo die linke untere Ecke der Karte liegt, in Metern eines Landesnetzes. Mit 0 hat die Karte ein eigenes Koordinatennetz.</translation>
    </message>
    <message>
        <source>0 to 18577795 m</source>
        <translation>0 bis 18577795 m</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>Y (North)</source>
        <translation>Y (Nord)</translation>
    </message>
    <message>
        <source>Lower left corner of the map
0 to 10001889 m</source>
        <translation>Linke untere Ecke der Karte
0 bis 10001889 m</translation>
    </message>
    <message>
        <source>0 to 10001889 m</source>
        <translation>0 bis 10001889 m</translation>
    </message>
    <message>
        <source>Swiss or WGS84 Coordinates or 0</source>
        <translation>Schweizer oder WGS84-Koordinaten oder 0</translation>
    </message>
    <message>
        <source>Horizontal extension (West - East)</source>
        <translation>Horizontale Ausdehnung (West - Ost)</translation>
    </message>
    <message>
        <source>The width of the ground that the map shows</source>
        <translation>Breite des Geländes, das die Karte zeigt</translation>
    </message>
    <message>
        <source>The scale follows from the width of the ground and that of the map on the page.</source>
        <translation>Der Maßstab folgt aus der Breite des Geländes und jener der Karte auf der Seite.</translation>
    </message>
    <message>
        <source>The width of the ground that the map shows
0 to 10000 m</source>
        <translation>Breite des Geländes, das die Karte zeigt
0 bis 10000 m</translation>
    </message>
    <message>
        <source>Ten times the distance of the wells shows the plume of most sites.</source>
        <translation>Das Zehnfache des Brunnenabstands zeigt an den meisten Orten die Temperaturfahne.</translation>
    </message>
    <message>
        <source>0 to 10000 m</source>
        <translation>0 bis 10000 m</translation>
    </message>
    <message>
        <source>Map scale</source>
        <translation>Maßstab der Karte</translation>
    </message>
    <message>
        <source>The map gets the scale that is entered</source>
        <translation>Die Karte erhält den eingegebenen Maßstab</translation>
    </message>
    <message>
        <source>The width of the ground follows from the scale and the width of the map on the page.</source>
        <translation>Die Breite des Geländes folgt aus dem Maßstab und der Breite der Karte auf der Seite.</translation>
    </message>
    <message>
        <source>So many metres on the ground are one metre on the page
1 to 100000</source>
        <translation>So viele Meter im Gelände sind ein Meter auf der Seite
1 bis 100000</translation>
    </message>
    <message>
        <source>500 is usual for a plot of land, 2500 for a plume.</source>
        <translation>500 ist für ein Grundstück üblich, 2500 für eine Temperaturfahne.</translation>
    </message>
    <message>
        <source>1 to 100000</source>
        <translation>1 bis 100000</translation>
    </message>
    <message>
        <source>Background image</source>
        <translation>Hintergrundbild</translation>
    </message>
    <message>
        <source>A picture under isolines and wells</source>
        <translation>Ein Bild unter Isolinien und Brunnen</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Datei:</translation>
    </message>
    <message>
        <source>A picture of the map</source>
        <translation>Ein Bild der Karte</translation>
    </message>
    <message>
        <source>A plan or an aerial picture with north at the top. If a world file (.pgw, .tfw or .jgw) lies beside it, origin and extent are taken from there, after a question.</source>
        <translation>Ein Plan oder Luftbild mit Norden oben. Liegt eine World-Datei (.pgw, .tfw oder .jgw) daneben, so werden Ursprung und Ausdehnung nach einer Rückfrage daraus übernommen.</translation>
    </message>
    <message>
        <source>Choose the background image</source>
        <translation>Hintergrundbild wählen</translation>
    </message>
    <message>
        <source>Choose a picture</source>
        <translation>Bild wählen</translation>
    </message>
    <message>
        <source>Lower left corner of the picture
-18577795 to 18577795 m</source>
        <translation>Linke untere Ecke des Bildes
-18577795 bis 18577795 m</translation>
    </message>
    <message>
        <source>Where the lower left corner of the picture lies, in the coordinates of the map.</source>
        <translation>Wo die linke untere Ecke des Bildes liegt, in den Koordinaten der Karte.</translation>
    </message>
    <message>
        <source>-18577795 to 18577795 m</source>
        <translation>-18577795 bis 18577795 m</translation>
    </message>
    <message>
        <source>Lower left corner of the picture
-10001889 to 10001889 m</source>
        <translation>Linke untere Ecke des Bildes
-10001889 bis 10001889 m</translation>
    </message>
    <message>
        <source>-10001889 to 10001889 m</source>
        <translation>-10001889 bis 10001889 m</translation>
    </message>
    <message>
        <source>Width of the ground on the picture
0 to 10000 m</source>
        <translation>Breite des Geländes auf dem Bild
0 bis 10000 m</translation>
    </message>
    <message>
        <source>Measure it between two points that are known, or multiply the pixels by their size.</source>
        <translation>Zwischen zwei bekannten Punkten messen oder die Anzahl Pixel mit ihrer Größe multiplizieren.</translation>
    </message>
    <message>
        <source>Vertical extension (North - South)</source>
        <translation>Vertikale Ausdehnung (Nord - Süd)</translation>
    </message>
    <message>
        <source>Height of the ground on the picture
0 to 10000 m</source>
        <translation>Höhe des Geländes auf dem Bild
0 bis 10000 m</translation>
    </message>
</context>
<context>
    <name>PageTemplate</name>
    <message>
        <source>Months</source>
        <translation>Monate</translation>
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
        <translation>Das Plug-in %1 kann nicht geladen werden: %2

Installieren Sie bitte das Programm neu, um das Problem zu beheben.</translation>
    </message>
    <message>
        <source>The plug-in of the program is missing: there is none in the folder %1.

To solve this problem, please re-install the program.</source>
        <translation>Das Plug-in des Programms fehlt: Im Ordner %1 ist keines.

Installieren Sie bitte das Programm neu, um das Problem zu beheben.</translation>
    </message>
</context>
<context>
    <name>ProjectLimits</name>
    <message>
        <source>expected at most %1 wells, found %2</source>
        <translation>höchstens %1 Brunnen sind möglich, %2 sind es</translation>
    </message>
    <message>
        <source>expected at most %1 demand periods, found %2</source>
        <translation>höchstens %1 Bedarfsperioden sind möglich, %2 sind es</translation>
    </message>
    <message>
        <source>expected at most %1 pairs of well and demand period, found %2</source>
        <translation>höchstens %1 Paare aus Brunnen und Bedarfsperiode sind möglich, %2 sind es</translation>
    </message>
</context>
<context>
    <name>ProjectWizardPage</name>
    <message>
        <source>Project information</source>
        <translation>Projektangaben</translation>
    </message>
    <message>
        <source>&lt;b&gt;Project information&lt;/b&gt;</source>
        <translation>&lt;b&gt;Projektangaben&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Name of the project</source>
        <translation>Name des Projekts</translation>
    </message>
    <message>
        <source>The name of the project, as it stands on the printed page.</source>
        <translation>Der Name des Projekts, wie er auf der gedruckten Seite steht.</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Location of the project</source>
        <translation>Ort des Projekts</translation>
    </message>
    <message>
        <source>Address of the site</source>
        <translation>Adresse des Standorts</translation>
    </message>
    <message>
        <source>The address of the site, as it stands on the printed page. A double click or F2 begins to edit a line, and so does typing; Enter ends it. What is entered is kept at once.</source>
        <translation>Die Adresse des Standorts, wie sie auf der gedruckten Seite steht. Ein Doppelklick, F2 oder Tippen beginnt die Bearbeitung einer Zeile; die Eingabetaste beendet sie. Eingaben werden sofort übernommen.</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Description of the project</source>
        <translation>Beschreibung des Projekts</translation>
    </message>
    <message>
        <source>What the project is about</source>
        <translation>Worum es im Projekt geht</translation>
    </message>
    <message>
        <source>What the project is about, in as many words as you like. It is kept with the project. Ctrl+Tab puts in a tabulator.</source>
        <translation>Worum es im Projekt geht, in beliebig vielen Worten. Der Text wird mit dem Projekt gespeichert. Strg+Tab fügt einen Tabulator ein.</translation>
    </message>
</context>
<context>
    <name>PropertyTreeModel</name>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>name and value</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>ProvidedWellsWizardPage</name>
    <message>
        <source>Wells</source>
        <translation>Brunnen</translation>
    </message>
    <message>
        <source>&lt;b&gt;Configuration of the wells&lt;/b&gt;</source>
        <translation>&lt;b&gt;Konfiguration der Brunnen&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Specification</source>
        <translation>Festlegung</translation>
    </message>
    <message>
        <source>Determine</source>
        <translation>Ermitteln</translation>
    </message>
    <message>
        <source>Number, filter and distance of the wells follow from flow and aquifer</source>
        <translation>Anzahl, Filter und Abstand der Brunnen folgen aus Volumenstrom und Grundwasserleiter</translation>
    </message>
    <message>
        <source>Provide</source>
        <translation>Vorgeben</translation>
    </message>
    <message>
        <source>The wells exist already or are fixed</source>
        <translation>Die Brunnen bestehen bereits oder sind festgelegt</translation>
    </message>
    <message>
        <source>Number of wells</source>
        <translation>Anzahl Brunnen</translation>
    </message>
    <message>
        <source>Pairs of a pumping and an injection well
1 to 10000</source>
        <translation>Paare aus Entnahme- und Rückgabebrunnen
1 bis 10000</translation>
    </message>
    <message>
        <source>Each pair is one well that pumps and one that puts the water back. The flow is shared equally.</source>
        <translation>Jedes Paar besteht aus einem Brunnen, der Wasser entnimmt, und einem, der es zurückgibt. Der Volumenstrom wird gleichmäßig aufgeteilt.</translation>
    </message>
    <message>
        <source>1 to 10000</source>
        <translation>1 bis 10000</translation>
    </message>
    <message>
        <source>Minimum distance between wells</source>
        <translation>Mindestabstand zwischen den Brunnen</translation>
    </message>
    <message>
        <source>Between wells of the same kind
0 to 1000 m</source>
        <translation>Zwischen Brunnen gleicher Art
0 bis 1000 m</translation>
    </message>
    <message>
        <source>Wells that stand closer than their reach draw each other down. The water that is put back should not come back to the pumping well within the time of operation.</source>
        <translation>Brunnen, die näher beieinander liegen als ihre Reichweite, verstärken gegenseitig ihre Absenkung. Zurückgegebenes Wasser sollte den Entnahmebrunnen nicht innerhalb der Betriebsdauer erreichen.</translation>
    </message>
    <message>
        <source>0 to 1000 m</source>
        <translation>0 bis 1000 m</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>Total depth of one well</source>
        <translation>Gesamttiefe eines Brunnens</translation>
    </message>
    <message>
        <source>From ground level to the bottom of the well
0 to 1000 m</source>
        <translation>Von der Geländeoberkante bis zur Brunnensohle
0 bis 1000 m</translation>
    </message>
    <message>
        <source>The filter has to find room in it.</source>
        <translation>Der Filter muss darin Platz finden.</translation>
    </message>
    <message>
        <source>m bgl</source>
        <translation>m u. GOK</translation>
    </message>
    <message>
        <source>Filter length</source>
        <translation>Filterlänge</translation>
    </message>
    <message>
        <source>Length of the screen through which the water flows
0 to 1000 m</source>
        <translation>Länge des durchströmten Filters
0 bis 1000 m</translation>
    </message>
    <message>
        <source>Not more than the groundwater is thick. A longer filter yields more and draws the water down less.</source>
        <translation>Nicht mehr als die Mächtigkeit des Grundwassers. Ein längerer Filter ist ergiebiger und senkt den Grundwasserspiegel weniger ab.</translation>
    </message>
    <message>
        <source>Filter diameter</source>
        <translation>Filterdurchmesser</translation>
    </message>
    <message>
        <source>Inner diameter of the screen
0 to 1000 mm</source>
        <translation>Innendurchmesser des Filters
0 bis 1000 mm</translation>
    </message>
    <message>
        <source>The diameter of the bore is taken as 2.5 times this. Choose the unit first: a number stays as it is when the unit changes.</source>
        <translation>Als Bohrdurchmesser gilt das 2.5-Fache. Wählen Sie zuerst die Einheit: Eine Zahl bleibt unverändert, wenn die Einheit wechselt.</translation>
    </message>
    <message>
        <source>0 to 1000 mm</source>
        <translation>0 bis 1000 mm</translation>
    </message>
    <message>
        <source>Unit of the filter diameter</source>
        <translation>Einheit des Filterdurchmessers</translation>
    </message>
    <message>
        <source>The unit of the number beside it</source>
        <translation>Die Einheit der Zahl daneben</translation>
    </message>
    <message>
        <source>Millimetres or inches. The number beside it stays as it is.</source>
        <translation>Millimeter oder Zoll. Die Zahl daneben bleibt unverändert.</translation>
    </message>
    <message>
        <source>Drawdown calculation will use the superposition between wells</source>
        <translation>Absenkung mit Überlagerung der Brunnen berechnen</translation>
    </message>
    <message>
        <source>Wells in reach of each other draw each other down</source>
        <translation>Brunnen in gegenseitiger Reichweite verstärken ihre Absenkung</translation>
    </message>
    <message>
        <source>Check this data</source>
        <translation>Diese Angaben prüfen</translation>
    </message>
    <message>
        <source>Whether these wells can take the flow, with a proposal if they cannot</source>
        <translation>Ob diese Brunnen den Volumenstrom bewältigen; wenn nicht, mit einem Vorschlag</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>What the figures of this page decide</source>
        <translation>Was die Werte dieser Seite bestimmen</translation>
    </message>
    <message>
        <source>What the figures of this page decide, and where to find them.</source>
        <translation>Was die Werte dieser Seite bestimmen und wo sie zu finden sind.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Determined wells are the smallest number that can take the largest flow, with a drawdown that the aquifer bears.&lt;/p&gt;&lt;p&gt;Provided wells are taken as they are. With the check mark at the end they are held against flow and aquifer, and a construction that works is proposed if they fail.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Ermittelt wird die kleinste Anzahl Brunnen, die den größten Volumenstrom bewältigt, mit einer Absenkung, die der Grundwasserleiter zulässt.&lt;/p&gt;&lt;p&gt;Vorgegebene Brunnen werden unverändert übernommen. Mit dem Häkchen am Ende werden sie anhand von Volumenstrom und Grundwasserleiter geprüft; genügen sie nicht, wird ein geeigneter Brunnenausbau vorgeschlagen.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>QtVariantPropertyManager</name>
    <message>
        <source>True</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>False</source>
        <translation>Nein</translation>
    </message>
</context>
<context>
    <name>Simulation</name>
    <message>
        <source>the temperature of &quot;%1&quot; after %2 years would be %3 °C, but water has %4 to %5 °C</source>
        <translation>die Temperatur von „%1“ wäre nach %2 Jahren %3 °C, aber Wasser hat %4 bis %5 °C</translation>
    </message>
    <message>
        <source>the temperature of &quot;%1&quot; after %2 years would be %3 °C, but what flows in has %4 to %5 °C</source>
        <translation>die Temperatur von „%1“ wäre nach %2 Jahren %3 °C, aber das zufließende Wasser hat %4 bis %5 °C</translation>
    </message>
    <message>
        <source>the temperature of a cell would be %1 °C at the end, but water has %2 to %3 °C</source>
        <translation>die Temperatur einer Zelle wäre am Ende %1 °C, aber Wasser hat %2 bis %3 °C</translation>
    </message>
    <message>
        <source>the temperature of a cell would be %1 °C at the end, but what flows in has %2 to %3 °C</source>
        <translation>die Temperatur einer Zelle wäre am Ende %1 °C, aber das zufließende Wasser hat %2 bis %3 °C</translation>
    </message>
    <message>
        <source>The simulated time is not above 0.</source>
        <translation>Die simulierte Zeit ist nicht größer als 0.</translation>
    </message>
    <message>
        <source>%1 and %2 stand at one place (%3): give each well a place of its own.</source>
        <translation>%1 und %2 stehen am selben Ort (%3): Geben Sie jedem Brunnen einen eigenen Ort.</translation>
    </message>
    <message>
        <source>No well has a rate.</source>
        <translation>Kein Brunnen hat einen Volumenstrom.</translation>
    </message>
    <message>
        <source>The solver could not satisfy the accuracy demanded by the user for some internal step.&lt;br&gt;</source>
        <translation>Der Gleichungslöser konnte die geforderte Genauigkeit in einem internen Schritt nicht erreichen.&lt;br&gt;</translation>
    </message>
    <message>
        <source>Error test failures occurred too many times during one internal time step or minimum step size was reached.&lt;br&gt;</source>
        <translation>In einem internen Zeitschritt schlug die Fehlerprüfung zu oft fehl, oder die kleinste Schrittweite wurde erreicht.&lt;br&gt;</translation>
    </message>
    <message>
        <source>Convergence test failures occurred too many times during one internal time step or minimum step size was reached.&lt;br&gt;</source>
        <translation>In einem internen Zeitschritt blieb die Konvergenz zu oft aus, oder die kleinste Schrittweite wurde erreicht.&lt;br&gt;</translation>
    </message>
    <message>
        <source>The linear solver&apos;s initialization function failed.&lt;br&gt;</source>
        <translation>Der lineare Gleichungslöser konnte nicht vorbereitet werden.&lt;br&gt;</translation>
    </message>
    <message>
        <source>One of the function inputs is illegal.&lt;br&gt;</source>
        <translation>Eine der Eingaben des Gleichungslösers ist unzulässig.&lt;br&gt;</translation>
    </message>
    <message>
        <source>Please change the model size and/or the numerical parameter of the &lt;b&gt;heat model&lt;/b&gt;.</source>
        <translation>Bitte ändern Sie die Modellgröße oder die numerischen Parameter des &lt;b&gt;Wärmemodells&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Please change the model size and/or the numerical parameter of the &lt;b&gt;groundwater model&lt;/b&gt;.</source>
        <translation>Bitte ändern Sie die Modellgröße oder die numerischen Parameter des &lt;b&gt;Grundwassermodells&lt;/b&gt;.</translation>
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
        <translation>&lt;b&gt;Simulationsparameter&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Groundwater flow</source>
        <translation>Grundwasserströmung</translation>
    </message>
    <message>
        <source>Groundwater flows towards</source>
        <translation>Das Grundwasser fließt nach</translation>
    </message>
    <message>
        <source>Clockwise from north: 90 is east
0 to 360°</source>
        <translation>Von Norden im Uhrzeigersinn: 90 ist Osten
0 bis 360°</translation>
    </message>
    <message>
        <source>Read it from a map of groundwater contours: the water flows at a right angle to them, downhill. It decides where the plume lies; the needle of the compass tapers in this direction.</source>
        <translation>Abzulesen aus einem Grundwassergleichenplan: Das Wasser fließt rechtwinklig zu den Gleichen, in Richtung des Gefälles. Die Richtung bestimmt die Lage der Temperaturfahne; die Nadel des Kompasses läuft in dieser Richtung spitz zu.</translation>
    </message>
    <message>
        <source>0 to 360°</source>
        <translation>0 bis 360°</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Simulation time</source>
        <translation>Simulierte Zeit</translation>
    </message>
    <message>
        <source>For how many years of operation temperatures are computed</source>
        <translation>Für wie viele Betriebsjahre die Temperaturen berechnet werden</translation>
    </message>
    <message>
        <source>A plume grows for many years: 30 a, the life of an installation, shows nearly all of it; 10 a are computed sooner.</source>
        <translation>Eine Temperaturfahne wächst viele Jahre lang: 30 a, die Lebensdauer einer Anlage, zeigen sie nahezu ganz; 10 a sind schneller berechnet.</translation>
    </message>
    <message>
        <source>a</source>
        <translation>a</translation>
    </message>
    <message>
        <source>Supplementary</source>
        <translation>Ergänzungen</translation>
    </message>
    <message>
        <source>Additional isotherm for a temperature change of </source>
        <translation>Weitere Isotherme bei einer Änderung um </translation>
    </message>
    <message>
        <source>Drawn beside those of 1 K and 3 K</source>
        <translation>Wird neben denen für 1 K und 3 K gezeichnet</translation>
    </message>
    <message>
        <source>Isotherms of 1 K and 3 K are always drawn. Authorities may ask for another one.</source>
        <translation>Die Isothermen für 1 K und 3 K werden immer gezeichnet. Behörden verlangen unter Umständen eine weitere.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>K</source>
        <translation>K</translation>
    </message>
    <message>
        <source>Maximum number of finite volumes (approximately)</source>
        <translation>Maximale Anzahl finiter Volumen (ungefähr)</translation>
    </message>
    <message>
        <source>More elements show the plume finer and take longer
1000 to 100000</source>
        <translation>Mehr Elemente zeigen die Temperaturfahne feiner und brauchen mehr Zeit
1000 bis 100000</translation>
    </message>
    <message>
        <source>2500 are enough to design; take more where wells stand close together. Four times as many elements are half as wide.</source>
        <translation>2500 genügen für die Auslegung; mehr sind sinnvoll, wenn Brunnen nahe beieinander liegen. Viermal so viele Elemente sind halb so breit.</translation>
    </message>
    <message>
        <source>1000 to 100000</source>
        <translation>1000 bis 100000</translation>
    </message>
    <message>
        <source>Energy exchange with caprock and/or bedrock</source>
        <translation>Wärmeaustausch mit Deckschicht und/oder Sohlschicht</translation>
    </message>
    <message>
        <source>Rock above and below takes part of the heat</source>
        <translation>Das Gestein darüber und darunter nimmt einen Teil der Wärme auf</translation>
    </message>
    <message>
        <source>With exchange the plume stays smaller; without it the result is on the safe side.</source>
        <translation>Mit Wärmeaustausch bleibt die Temperaturfahne kleiner; ohne ihn liegt das Resultat auf der sicheren Seite.</translation>
    </message>
    <message>
        <source>Exchange with caprock</source>
        <translation>Mit Deckschicht</translation>
    </message>
    <message>
        <source>Heat flows through the layers above up to the surface</source>
        <translation>Wärme fließt durch die Schichten darüber bis zur Oberfläche</translation>
    </message>
    <message>
        <source>Exchange with bedrock</source>
        <translation>Mit Sohlschicht</translation>
    </message>
    <message>
        <source>Heat flows into the layers below</source>
        <translation>Wärme fließt in die Schichten darunter</translation>
    </message>
    <message>
        <source>Simulate</source>
        <translation>Simulieren</translation>
    </message>
</context>
<context>
    <name>StudyPage</name>
    <message>
        <source>Time [a]</source>
        <translation>Zeit [a]</translation>
    </message>
    <message>
        <source>What makes the difference: %1</source>
        <translation>Was den Unterschied macht: %1</translation>
    </message>
    <message>
        <source>Median; pale: lowest tenth of what is varied, dark: highest</source>
        <translation>Median; hell: tiefstes Zehntel des Variierten, dunkel: höchstes</translation>
    </message>
    <message>
        <source>Share of the runs in which it is colder by %1 K or more</source>
        <translation>Anteil der Rechnungen, in denen es um %1 K oder mehr kälter ist</translation>
    </message>
    <message>
        <source>Share of the runs in which it is warmer by %1 K or more</source>
        <translation>Anteil der Rechnungen, in denen es um %1 K oder mehr wärmer ist</translation>
    </message>
    <message>
        <source>%1: %2 % of the runs are colder by %3 K or more as far as here</source>
        <translation>%1: %2&#xa0;% der Rechnungen sind bis hierher um %3 K oder mehr kälter</translation>
    </message>
    <message>
        <source>%1: %2 % of the runs are warmer by %3 K or more as far as here</source>
        <translation>%1: %2&#xa0;% der Rechnungen sind bis hierher um %3 K oder mehr wärmer</translation>
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
        <translation>Keine Rechnung erreicht eine der Stufen</translation>
    </message>
    <message>
        <source>Change of temperature by %1 K after %2 a</source>
        <translation>Temperaturänderung um %1 K nach %2 a</translation>
    </message>
    <message>
        <source>Mesh of the base: it could not be judged: %1</source>
        <translation>Netz des Ausgangsfalls: Es war nicht zu beurteilen: %1</translation>
    </message>
    <message>
        <source>Mesh of the base (%1 cells): %2; good enough</source>
        <translation>Netz des Ausgangsfalls (%1 Zellen): %2; gut genug</translation>
    </message>
    <message>
        <source>Mesh of the base (%1 cells): %2; not good enough for %3 of %4 figures</source>
        <translation>Netz des Ausgangsfalls (%1 Zellen): %2; nicht gut genug für %3 von %4 Größen</translation>
    </message>
    <message>
        <source>Duration of demand period %1</source>
        <translation>Dauer der Bedarfsperiode %1</translation>
    </message>
    <message>
        <source>Flow rate of %1 in demand period %2</source>
        <translation>Volumenstrom von %1 in der Bedarfsperiode %2</translation>
    </message>
    <message>
        <source>Temperature change of %1 in demand period %2</source>
        <translation>Temperaturänderung von %1 in der Bedarfsperiode %2</translation>
    </message>
    <message>
        <source>X coordinate of %1</source>
        <translation>X-Koordinate von %1</translation>
    </message>
    <message>
        <source>Y coordinate of %1</source>
        <translation>Y-Koordinate von %1</translation>
    </message>
    <message>
        <source>Mean annual flow rate of %1</source>
        <translation>Mittlerer Jahresvolumenstrom von %1</translation>
    </message>
    <message>
        <source>Temperature change of %1</source>
        <translation>Temperaturänderung von %1</translation>
    </message>
    <message>
        <source>Well diameter</source>
        <translation>Brunnendurchmesser</translation>
    </message>
    <message>
        <source>Length of the plume of %1 K after %2 a [m]</source>
        <translation>Länge der Temperaturfahne von %1 K nach %2 a [m]</translation>
    </message>
    <message>
        <source>Width of the plume of %1 K after %2 a [m]</source>
        <translation>Breite der Temperaturfahne von %1 K nach %2 a [m]</translation>
    </message>
    <message>
        <source>Area of the plume of %1 K after %2 a [m²]</source>
        <translation>Fläche der Temperaturfahne von %1 K nach %2 a [m²]</translation>
    </message>
    <message>
        <source>Greatest drawdown after %1 a [m]</source>
        <translation>Größte Absenkung nach %1 a [m]</translation>
    </message>
    <message>
        <source>Drawdown at %1 after %2 a [m]</source>
        <translation>Absenkung bei %1 nach %2 a [m]</translation>
    </message>
    <message>
        <source>Temperature of %1 after %2 a [°C]</source>
        <translation>Temperatur von %1 nach %2 a [°C]</translation>
    </message>
    <message>
        <source>Lowest temperature of %1 [°C]</source>
        <translation>Tiefste Temperatur von %1 [°C]</translation>
    </message>
    <message>
        <source>Highest temperature of %1 [°C]</source>
        <translation>Höchste Temperatur von %1 [°C]</translation>
    </message>
    <message>
        <source>length of the plume of %1 K</source>
        <translation>Länge der Temperaturfahne von %1 K</translation>
    </message>
    <message>
        <source>width of the plume of %1 K</source>
        <translation>Breite der Temperaturfahne von %1 K</translation>
    </message>
    <message>
        <source>temperature of %1</source>
        <translation>Temperatur von %1</translation>
    </message>
    <message>
        <source>greatest drawdown</source>
        <translation>größte Absenkung</translation>
    </message>
    <message>
        <source>Latin hypercube</source>
        <translation>lateinischer Hyperwürfel</translation>
    </message>
    <message>
        <source>Sobol&apos; sequence</source>
        <translation>Sobol-Folge</translation>
    </message>
    <message>
        <source>grid</source>
        <translation>Gitter</translation>
    </message>
    <message>
        <source>table of values</source>
        <translation>Tabelle von Werten</translation>
    </message>
    <message>
        <source>Rank correlation</source>
        <translation>Rangkorrelation</translation>
    </message>
    <message>
        <source>%1 of %2 runs (%3), of which %4 failed</source>
        <translation>%1 von %2 Rechnungen (%3), davon %4 gescheitert</translation>
    </message>
    <message>
        <source>Temperature of %1</source>
        <translation>Temperatur von %1</translation>
    </message>
    <message>
        <source>Temperature of %1, the coldest well that withdraws</source>
        <translation>Temperatur von %1, dem kältesten Entnahmebrunnen</translation>
    </message>
    <message>
        <source>Temperature of %1, the warmest well that withdraws</source>
        <translation>Temperatur von %1, dem wärmsten Entnahmebrunnen</translation>
    </message>
    <message>
        <source>Temperature of %1, the coldest well</source>
        <translation>Temperatur von %1, dem kältesten Brunnen</translation>
    </message>
    <message>
        <source>Temperature of %1, the warmest well</source>
        <translation>Temperatur von %1, dem wärmsten Brunnen</translation>
    </message>
    <message>
        <source>Drawdown at %1</source>
        <translation>Absenkung bei %1</translation>
    </message>
    <message>
        <source>Drawdown at %1, the greatest of the wells</source>
        <translation>Absenkung bei %1, die größte aller Brunnen</translation>
    </message>
    <message>
        <source>%1: variants of %2</source>
        <translation>%1: Varianten von %2</translation>
    </message>
    <message>
        <source>Varied</source>
        <translation>Variiert</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>Distribution</source>
        <translation>Verteilung</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Tevrane %1. On the map P10 is what one run of ten reaches; over time P10 is what one run of ten stays below.</source>
        <translation>Tevrane %1. Auf der Karte ist P10, was eine von zehn Rechnungen erreicht; über der Zeit ist P10, was eine von zehn Rechnungen unterschreitet.</translation>
    </message>
    <message>
        <source>Temperature [°C]</source>
        <translation>Temperatur [°C]</translation>
    </message>
    <message>
        <source>Drawdown [m]</source>
        <translation>Absenkung [m]</translation>
    </message>
    <message>
        <source>Nothing to show: no run has this answer</source>
        <translation>Nichts zu zeigen: keine Rechnung hat diese Antwort</translation>
    </message>
    <message>
        <source>Nothing makes a difference: the median is %1 everywhere</source>
        <translation>Nichts macht einen Unterschied: Der Median ist überall %1</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation>%1; %2</translation>
    </message>
</context>
<context>
    <name>TVR::Data::Manager</name>
    <message>
        <source>An internal error has occurred [%1]</source>
        <translation>Es ist ein interner Fehler aufgetreten [%1]</translation>
    </message>
    <message>
        <source>Query:	</source>
        <translation>Abfrage:	</translation>
    </message>
    <message>
        <source>Error:	</source>
        <translation>Fehler:	</translation>
    </message>
    <message>
        <source>Driver:	</source>
        <translation>Treiber:	</translation>
    </message>
    <message>
        <source>&lt;b&gt;A database error has occurred :&lt;/b&gt;
%1</source>
        <translation>&lt;b&gt;Es ist ein Datenbankfehler aufgetreten:&lt;/b&gt;
%1</translation>
    </message>
    <message>
        <source>the reference database is missing: %1</source>
        <translation>die Referenzdatenbank fehlt: %1</translation>
    </message>
    <message>
        <source>the reference database can&apos;t be read: %1</source>
        <translation>die Referenzdatenbank kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>the reference database is damaged: %1</source>
        <translation>die Referenzdatenbank ist beschädigt: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>TVR::Data::UndoHistory</name>
    <message>
        <source>Move wells</source>
        <translation>Brunnen verschieben</translation>
    </message>
    <message>
        <source>Change wells</source>
        <translation>Brunnen ändern</translation>
    </message>
    <message>
        <source>Change demand periods</source>
        <translation>Bedarfsperioden ändern</translation>
    </message>
    <message>
        <source>Change project</source>
        <translation>Projekt ändern</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>%1 ändern</translation>
    </message>
</context>
<context>
    <name>TVR::Desktop::AboutDialog</name>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>Planning of the thermal use of groundwater</source>
        <translation>Planung der thermischen Nutzung von Grundwasser</translation>
    </message>
    <message>
        <source>Build</source>
        <translation>Erstellung</translation>
    </message>
</context>
<context>
    <name>TVR::Desktop::GuideWindow</name>
    <message>
        <source>User Guide</source>
        <translation>Benutzerhandbuch</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>Navigation</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>The user guide is missing: there is no %1.

To solve this problem, please re-install the program.</source>
        <translation>Das Benutzerhandbuch fehlt: %1 gibt es nicht.

Installieren Sie bitte das Programm neu, um das Problem zu beheben.</translation>
    </message>
</context>
<context>
    <name>TVR::Desktop::HostActions</name>
    <message>
        <source>Sa&amp;ve</source>
        <translation>S&amp;peichern</translation>
    </message>
    <message>
        <source>Saves the project to the file that it was opened from</source>
        <translation>Speichert das Projekt in der Datei, aus der es geöffnet wurde</translation>
    </message>
    <message>
        <source>Page as &amp;PDF...</source>
        <translation>Seite als &amp;PDF...</translation>
    </message>
    <message>
        <source>Writes the page to a PDF file, at its size</source>
        <translation>Schreibt die Seite in ihrer Größe in eine PDF-Datei</translation>
    </message>
    <message>
        <source>Page as P&amp;NG...</source>
        <translation>Seite als P&amp;NG...</translation>
    </message>
    <message>
        <source>Writes the page to a picture of pixels</source>
        <translation>Schreibt die Seite als Rasterbild</translation>
    </message>
    <message>
        <source>Page as &amp;SVG...</source>
        <translation>Seite als &amp;SVG...</translation>
    </message>
    <message>
        <source>Writes the page to a picture of lines</source>
        <translation>Schreibt die Seite als Vektorbild</translation>
    </message>
    <message>
        <source>&amp;Isolines as DXF...</source>
        <translation>&amp;Isolinien als DXF...</translation>
    </message>
    <message>
        <source>Writes the isolines of the page to a DXF file</source>
        <translation>Schreibt die Isolinien der Seite in eine DXF-Datei</translation>
    </message>
    <message>
        <source>&amp;Drawing as DXF...</source>
        <translation>&amp;Zeichnung als DXF...</translation>
    </message>
    <message>
        <source>Writes wells, isolines and texts of the map to a drawing for CAD programs</source>
        <translation>Schreibt Brunnen, Isolinien und Texte der Karte in eine Zeichnung für CAD-Programme</translation>
    </message>
    <message>
        <source>Page Set-&amp;up...</source>
        <translation>Seite ein&amp;richten...</translation>
    </message>
    <message>
        <source>Chooses the paper that pages are printed on</source>
        <translation>Wählt das Papier, auf das gedruckt wird</translation>
    </message>
    <message>
        <source>Print Previe&amp;w...</source>
        <translation>Druck&amp;vorschau...</translation>
    </message>
    <message>
        <source>Shows the page as it will be printed</source>
        <translation>Zeigt die Seite, wie sie gedruckt wird</translation>
    </message>
    <message>
        <source>Pr&amp;int...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>Prints the page</source>
        <translation>Druckt die Seite</translation>
    </message>
    <message>
        <source>&amp;Close Window</source>
        <translation>Fenster s&amp;chließen</translation>
    </message>
    <message>
        <source>Closes the active window of the workspace</source>
        <translation>Schließt das aktive Fenster der Arbeitsfläche</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Beendet das Programm</translation>
    </message>
    <message>
        <source>&amp;Copy Page as Picture</source>
        <translation>Seite als Bild &amp;kopieren</translation>
    </message>
    <message>
        <source>Copies the page to the clipboard</source>
        <translation>Kopiert die Seite in die Zwischenablage</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Shows the page larger</source>
        <translation>Zeigt die Seite größer</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Shows the page smaller</source>
        <translation>Zeigt die Seite kleiner</translation>
    </message>
    <message>
        <source>&amp;Whole Page</source>
        <translation>Ganze &amp;Seite</translation>
    </message>
    <message>
        <source>Shows the whole page in its window</source>
        <translation>Zeigt die ganze Seite in ihrem Fenster</translation>
    </message>
    <message>
        <source>Page Wi&amp;dth</source>
        <translation>Seiten&amp;breite</translation>
    </message>
    <message>
        <source>Shows the page as wide as its window</source>
        <translation>Zeigt die Seite so breit wie ihr Fenster</translation>
    </message>
    <message>
        <source>&amp;100 %</source>
        <translation>&amp;100&#xa0;%</translation>
    </message>
    <message>
        <source>Shows the page as large as on paper</source>
        <translation>Zeigt die Seite so groß wie auf dem Papier</translation>
    </message>
    <message>
        <source>&amp;Tool Bar</source>
        <translation>&amp;Werkzeugleiste</translation>
    </message>
    <message>
        <source>Shows or hides the tool bar</source>
        <translation>Blendet die Werkzeugleiste ein oder aus</translation>
    </message>
    <message>
        <source>&amp;Project Data</source>
        <translation>&amp;Projektdaten</translation>
    </message>
    <message>
        <source>Shows or hides the window with the data of the project</source>
        <translation>Blendet das Fenster mit den Projektdaten ein oder aus</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>&amp;Vollbild</translation>
    </message>
    <message>
        <source>Fills the screen with the program</source>
        <translation>Füllt den Bildschirm mit dem Programm</translation>
    </message>
    <message>
        <source>&amp;Run Simulation</source>
        <translation>Simulation s&amp;tarten</translation>
    </message>
    <message>
        <source>Computes drawdown and temperatures of the project</source>
        <translation>Berechnet Absenkung und Temperaturen des Projekts</translation>
    </message>
    <message>
        <source>&amp;Cancel Simulation</source>
        <translation>Simulation abb&amp;rechen</translation>
    </message>
    <message>
        <source>Ends the simulation at its next step</source>
        <translation>Beendet die Simulation beim nächsten Zeitschritt</translation>
    </message>
    <message>
        <source>&amp;Next Window</source>
        <translation>&amp;Nächstes Fenster</translation>
    </message>
    <message>
        <source>Goes to the next window of the workspace</source>
        <translation>Wechselt zum nächsten Fenster der Arbeitsfläche</translation>
    </message>
    <message>
        <source>&amp;Previous Window</source>
        <translation>&amp;Vorheriges Fenster</translation>
    </message>
    <message>
        <source>Goes to the previous window of the workspace</source>
        <translation>Wechselt zum vorherigen Fenster der Arbeitsfläche</translation>
    </message>
    <message>
        <source>User &amp;Guide</source>
        <translation>&amp;Benutzerhandbuch</translation>
    </message>
    <message>
        <source>Opens the user guide</source>
        <translation>Öffnet das Benutzerhandbuch</translation>
    </message>
    <message>
        <source>&amp;Report a Problem...</source>
        <translation>&amp;Problem melden...</translation>
    </message>
    <message>
        <source>Shows what a report of a problem should hold</source>
        <translation>Zeigt, was eine Problemmeldung enthalten soll</translation>
    </message>
    <message>
        <source>&amp;About Tevrane</source>
        <translation>Über &amp;Tevrane</translation>
    </message>
    <message>
        <source>Shows version and copyright</source>
        <translation>Zeigt Version und Urheberrecht</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>Über &amp;Qt</translation>
    </message>
    <message>
        <source>Shows the version of the library of the windows</source>
        <translation>Zeigt die Version der Fensterbibliothek</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Takes back the last change of the project</source>
        <translation>Nimmt die letzte Änderung des Projekts zurück</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Makes again what was undone last</source>
        <translation>Stellt her, was zuletzt zurückgenommen wurde</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
</context>
<context>
    <name>TVR::Desktop::HostMenus</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>E&amp;xport</source>
        <translation>E&amp;xportieren</translation>
    </message>
    <message>
        <source>&amp;Recent Projects</source>
        <translation>&amp;Zuletzt geöffnete Projekte</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Tev&amp;rane</source>
        <translation>Tev&amp;rane</translation>
    </message>
    <message>
        <source>Se&amp;ttings</source>
        <translation>&amp;Einstellungen</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
</context>
<context>
    <name>TVR::Desktop::MainWindow</name>
    <message>
        <source>TVR batch file</source>
        <translation>TVR-Stapeldatei</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Ohne Titel</translation>
    </message>
    <message>
        <source>A simulation is running. Cancel it and close the program?</source>
        <translation>Eine Simulation läuft. Soll sie abgebrochen und das Programm geschlossen werden?</translation>
    </message>
    <message>
        <source>The project&apos;s results are on this page. Close it?</source>
        <translation>Die Resultate des Projekts stehen auf dieser Seite. Soll sie geschlossen werden?</translation>
    </message>
    <message>
        <source>Only the first file is opened: there is one project at a time.</source>
        <translation>Nur die erste Datei wird geöffnet: Es gibt immer nur ein Projekt.</translation>
    </message>
</context>
<context>
    <name>TVR::Desktop::PageCommands</name>
    <message>
        <source>%1 file (*.%2)</source>
        <translation>%1-Datei (*.%2)</translation>
    </message>
    <message>
        <source>Export page</source>
        <translation>Seite exportieren</translation>
    </message>
    <message>
        <source>Page written to %1</source>
        <translation>Seite geschrieben nach %1</translation>
    </message>
    <message>
        <source>The page cannot be written to %1</source>
        <translation>Die Seite kann nicht nach %1 geschrieben werden</translation>
    </message>
    <message>
        <source>Page copied to the clipboard</source>
        <translation>Seite in die Zwischenablage kopiert</translation>
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
        <translation>Problem melden</translation>
    </message>
    <message>
        <source>Tell what you did, what you expected and what happened instead, and add the text below. It holds the names of files that you opened.</source>
        <translation>Schildern Sie, was Sie getan haben, was Sie erwartet haben und was stattdessen geschah, und fügen Sie den Text unten hinzu. Er enthält die Namen der Dateien, die Sie geöffnet haben.</translation>
    </message>
    <message>
        <source>Text of the report</source>
        <translation>Text der Meldung</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
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
        <translation>Noch keine Projekte</translation>
    </message>
</context>
<context>
    <name>TVR::Desktop::RunStatus</name>
    <message>
        <source>Progress of the simulation</source>
        <translation>Fortschritt der Simulation</translation>
    </message>
    <message>
        <source>Cancel the simulation</source>
        <translation>Simulation abbrechen</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>noch %1 s</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>noch %1 min</translation>
    </message>
</context>
<context>
    <name>TVR::Desktop::Workspace</name>
    <message>
        <source>Open a project from the File menu, or drop its file here.</source>
        <translation>Öffnen Sie ein Projekt aus dem Menü „Datei“, oder ziehen Sie seine Datei hierher.</translation>
    </message>
</context>
<context>
    <name>TVR::DrawingExport</name>
    <message>
        <source>Save as dxf drawing</source>
        <translation>Als DXF-Zeichnung speichern</translation>
    </message>
    <message>
        <source>DXF drawing, release 12 (*.dxf)</source>
        <translation>DXF-Zeichnung, Version 12 (*.dxf)</translation>
    </message>
    <message>
        <source>Unable to create:%1</source>
        <translation>Kann nicht erstellt werden: %1</translation>
    </message>
</context>
<context>
    <name>TVR::DxfExport</name>
    <message>
        <source>Save as dxf file</source>
        <translation>Als DXF-Datei speichern</translation>
    </message>
    <message>
        <source>AutoCAD dxf-file (*.dxf)</source>
        <translation>AutoCAD-DXF-Datei (*.dxf)</translation>
    </message>
</context>
<context>
    <name>TVR::ExportOptionsDialog</name>
    <message>
        <source>Save isohypses</source>
        <translation>Isohypsen speichern</translation>
    </message>
    <message>
        <source>Save isothermes</source>
        <translation>Isothermen speichern</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Optionen:</translation>
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
        <translation>%1 bis %2 m/s</translation>
    </message>
    <message>
        <source>Hydraulic conductivity %1, porosity %2 %</source>
        <translation>Durchlässigkeitsbeiwert %1, Porosität %2&#xa0;%</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::CellPaste</name>
    <message>
        <source>a withdrawal well has no temperature change. Leave the cell empty.</source>
        <translation>ein Entnahmebrunnen hat keine Temperaturänderung. Lassen Sie die Zelle leer.</translation>
    </message>
    <message>
        <source>the cell cannot be changed here.</source>
        <translation>die Zelle kann hier nicht geändert werden.</translation>
    </message>
    <message>
        <source>the name is empty.</source>
        <translation>der Name ist leer.</translation>
    </message>
    <message>
        <source>a number is missing.</source>
        <translation>eine Zahl fehlt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has separators of thousands. Copy it without them.</source>
        <translation>„%1“ enthält Tausendertrennzeichen. Kopieren Sie die Zahl ohne sie.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number.</source>
        <translation>„%1“ ist keine Zahl.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has another decimal mark than the cells before it.</source>
        <translation>„%1“ hat ein anderes Dezimalzeichen als die Zellen davor.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is below %2 %3.</source>
        <translation>„%1“ ist kleiner als %2 %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not between %2 and %3 %4.</source>
        <translation>„%1“ liegt nicht zwischen %2 und %3 %4.</translation>
    </message>
    <message>
        <source>There is no text to paste.</source>
        <translation>Es gibt keinen Text zum Einfügen.</translation>
    </message>
    <message>
        <source>Choose the cell where the block begins first.</source>
        <translation>Wählen Sie zuerst die Zelle, in der der Block beginnt.</translation>
    </message>
    <message>
        <source>The block has %1 columns, but from the chosen cell on there are %2.</source>
        <translation>Der Block hat %1 Spalten, ab der gewählten Zelle gibt es aber nur %2.</translation>
    </message>
    <message>
        <source>Row %1, column &quot;%2&quot;: %3</source>
        <translation>Zeile %1, Spalte „%2“: %3</translation>
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
        <translation>NO</translation>
    </message>
    <message>
        <source>E</source>
        <translation>O</translation>
    </message>
    <message>
        <source>SE</source>
        <translation>SO</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>SW</source>
        <translation>SW</translation>
    </message>
    <message>
        <source>W</source>
        <translation>W</translation>
    </message>
    <message>
        <source>NW</source>
        <translation>NW</translation>
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
        <translation>Urheberrecht</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::DependencyMarks</name>
    <message>
        <source>Depends on the selected value, and it on this.</source>
        <translation>Hängt vom ausgewählten Wert ab und er von diesem.</translation>
    </message>
    <message>
        <source>The selected value depends on this.</source>
        <translation>Der ausgewählte Wert hängt hiervon ab.</translation>
    </message>
    <message>
        <source>Depends on the selected value.</source>
        <translation>Hängt vom ausgewählten Wert ab.</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::DesignPropertyEditor</name>
    <message>
        <source>Design Properties</source>
        <translation>Entwurfsgrößen</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>nicht gespeichert</translation>
    </message>
    <message>
        <source>Progress of the work at hand</source>
        <translation>Fortschritt des laufenden Schritts</translation>
    </message>
    <message>
        <source>Progress of the simulation</source>
        <translation>Fortschritt der Simulation</translation>
    </message>
    <message>
        <source>Stop the simulation</source>
        <translation>Simulation anhalten</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Shows on the page what each change leads to, before it is applied</source>
        <translation>Zeigt auf der Seite, wozu jede Änderung führt, bevor sie übernommen wird</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>Apply + Run</source>
        <translation>Übernehmen + Rechnen</translation>
    </message>
    <message>
        <source>Design of the project</source>
        <translation>Auslegung des Projekts</translation>
    </message>
    <message>
        <source>Stop editing</source>
        <translation>Bearbeiten beenden</translation>
    </message>
    <message>
        <source>Change design properties</source>
        <translation>Auslegung ändern</translation>
    </message>
    <message>
        <source>becomes %1</source>
        <translation>wird %1</translation>
    </message>
    <message>
        <source>was %1</source>
        <translation>war %1</translation>
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
        <translation>Alle Änderungen an den erweiterten Simulationsparametern zurücksetzen?</translation>
    </message>
    <message>
        <source>Select output file name</source>
        <translation>Name der Ausgabedatei wählen</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::InputWizard</name>
    <message>
        <source>Change values (%1)</source>
        <translation>Werte ändern (%1)</translation>
    </message>
    <message>
        <source>Reset values (%1)</source>
        <translation>Werte zurücksetzen (%1)</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::MappingWizardPage</name>
    <message>
        <source>Open background image</source>
        <translation>Hintergrundbild öffnen</translation>
    </message>
    <message>
        <source>The world file beside the picture cannot be used. %1</source>
        <translation>Die World-Datei neben dem Bild kann nicht verwendet werden. %1</translation>
    </message>
    <message>
        <source>%1 m by %2 m</source>
        <translation>%1 m auf %2 m</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Its extent of %1 at %2 cannot be entered here.</source>
        <translation>Ihre Ausdehnung von %1 bei %2 kann hier nicht eingegeben werden.</translation>
    </message>
    <message>
        <source>A world file beside the picture gives its origin as %1 and its extent as %2. Fill in these values?</source>
        <translation>Eine World-Datei neben dem Bild gibt als Ursprung %1 und als Ausdehnung %2 an. Sollen diese Werte eingetragen werden?</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::PictureChoice</name>
    <message>
        <source>Image files (%1)</source>
        <translation>Bilddateien (%1)</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::ProjectWizardPage</name>
    <message>
        <source>Reset all changes on the project information?</source>
        <translation>Alle Änderungen an den Projektangaben zurücksetzen?</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::RecoveryDialog</name>
    <message>
        <source>Project</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Automatically saved</source>
        <translation>Automatisch gespeichert</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>File saved</source>
        <translation>Datei gespeichert</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>In der Datei</translation>
    </message>
    <message>
        <source>Recover unsaved projects</source>
        <translation>Nicht gespeicherte Projekte wiederherstellen</translation>
    </message>
    <message>
        <source>The program ended before these projects were saved. What was saved automatically can be recovered; their files stay as they are until you save.</source>
        <translation>Das Programm endete, bevor diese Projekte gespeichert waren. Was automatisch gespeichert wurde, kann wiederhergestellt werden; die Dateien bleiben unverändert, bis Sie speichern.</translation>
    </message>
    <message>
        <source>&amp;Projects:</source>
        <translation>&amp;Projekte:</translation>
    </message>
    <message>
        <source>D&amp;ifferences:</source>
        <translation>&amp;Unterschiede:</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Projekte</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Unterschiede</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Discard...</source>
        <translation>&amp;Verwerfen...</translation>
    </message>
    <message>
        <source>Decide &amp;later</source>
        <translation>&amp;Später entscheiden</translation>
    </message>
    <message>
        <source>Without a name</source>
        <translation>Ohne Namen</translation>
    </message>
    <message>
        <source>Never saved</source>
        <translation>Nie gespeichert</translation>
    </message>
    <message>
        <source>What was saved automatically is damaged. It can only be discarded.</source>
        <translation>Was automatisch gespeichert wurde, ist beschädigt. Es kann nur verworfen werden.</translation>
    </message>
    <message>
        <source>This project was never saved. It is shown beside an empty project.</source>
        <translation>Dieses Projekt wurde nie gespeichert. Es wird neben einem leeren Projekt gezeigt.</translation>
    </message>
    <message>
        <source>The file of this project is not there any more, or cannot be read.</source>
        <translation>Die Datei dieses Projekts ist nicht mehr vorhanden oder kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>All values are as in the file; the page may be another one.</source>
        <translation>Alle Werte sind wie in der Datei; die Seite kann eine andere sein.</translation>
    </message>
    <message>
        <source>The page may differ as well.</source>
        <translation>Auch die Seite kann abweichen.</translation>
    </message>
    <message>
        <source>After one is recovered, the others are offered again at the next start.</source>
        <translation>Nachdem eines wiederhergestellt ist, werden die anderen beim nächsten Start wieder angeboten.</translation>
    </message>
    <message>
        <source>The file of this project is a batch file. It holds less than a project, so that the two are not compared.</source>
        <translation>Die Datei dieses Projekts ist eine Stapeldatei. Sie enthält weniger als ein Projekt, deshalb werden die beiden nicht verglichen.</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::SimulationParameterWizardPage</name>
    <message>
        <source>Groundwater flows towards</source>
        <translation>Das Grundwasser fließt nach</translation>
    </message>
    <message>
        <source>Press or drag to where the groundwater flows; arrow keys turn it too</source>
        <translation>Klicken oder ziehen Sie dorthin, wohin das Grundwasser fließt; auch die Pfeiltasten drehen die Nadel</translation>
    </message>
    <message>
        <source>The needle tapers in the direction of flow. Arrow keys turn it by a degree, Page Up and Page Down by ten, Home to north.</source>
        <translation>Die Nadel läuft in Fließrichtung spitz zu. Pfeiltasten drehen sie um ein Grad, Bild auf und Bild ab um zehn, Pos1 nach Norden.</translation>
    </message>
    <message>
        <source>Reset all changes on the simulation parameter?</source>
        <translation>Alle Änderungen an den Simulationsparametern zurücksetzen?</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::SpreadsheetView</name>
    <message>
        <source>A cell cannot be emptied. Type another value instead.</source>
        <translation>Eine Zelle kann nicht geleert werden. Geben Sie stattdessen einen anderen Wert ein.</translation>
    </message>
    <message>
        <source>Nothing was pasted. %1</source>
        <translation>Es wurde nichts eingefügt. %1</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::TreeAids</name>
    <message>
        <source>Reset to the default</source>
        <translation>Auf die Vorgabe zurücksetzen</translation>
    </message>
    <message>
        <source>Show flow rates in</source>
        <translation>Volumenströme anzeigen in</translation>
    </message>
    <message>
        <source>Show velocities in</source>
        <translation>Geschwindigkeiten anzeigen in</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::TreeFilter</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search the design</source>
        <translation>Auslegung durchsuchen</translation>
    </message>
    <message>
        <source>Finds values by name, key, unit and tool tip</source>
        <translation>Findet Werte nach Name, Schlüssel, Einheit und Hinweis</translation>
    </message>
    <message>
        <source>Only changed</source>
        <translation>Nur geänderte</translation>
    </message>
    <message>
        <source>Shows only values that differ from the defaults</source>
        <translation>Zeigt nur Werte, die von den Vorgaben abweichen</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::UserWizardPage</name>
    <message>
        <source>Reset all changes on the user information?</source>
        <translation>Alle Änderungen an den Angaben zum Anwender zurücksetzen?</translation>
    </message>
    <message>
        <source>Open logo image file</source>
        <translation>Bilddatei des Logos öffnen</translation>
    </message>
    <message>
        <source>no file</source>
        <translation>keine Datei</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::ValueRemark</name>
    <message>
        <source>Impossible: expected %1 to %2</source>
        <translation>Unmöglich: erwartet wird %1 bis %2</translation>
    </message>
    <message>
        <source>Unusual: usual is %1 to %2</source>
        <translation>Ungewöhnlich: üblich ist %1 bis %2</translation>
    </message>
    <message>
        <source>Impossible: the base has to lie below the groundwater table</source>
        <translation>Unmöglich: die Sohle muss unter dem Grundwasserspiegel liegen</translation>
    </message>
    <message>
        <source>Water-filled thickness of %1 m. %2</source>
        <translation>Wassererfüllte Mächtigkeit von %1 m. %2</translation>
    </message>
    <message>
        <source>Unusual: &quot;%1&quot; and &quot;%2&quot; stand only %3 m apart</source>
        <translation>Ungewöhnlich: „%1“ und „%2“ stehen nur %3 m auseinander</translation>
    </message>
    <message>
        <source>Impossible: &quot;%1&quot; and &quot;%2&quot; stand only %3 m apart, within one cell of the mesh (%4 m wide)</source>
        <translation>Unmöglich: „%1“ und „%2“ stehen nur %3 m auseinander, in derselben Zelle des Netzes (%4 m breit)</translation>
    </message>
    <message>
        <source>%1. Further pairs of near wells: %2</source>
        <translation>%1. Weitere Paare naher Brunnen: %2</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::ValueStory</name>
    <message>
        <source>From the reference database</source>
        <translation>Aus der Referenzdatenbank</translation>
    </message>
    <message>
        <source>Entered</source>
        <translation>Eingegeben</translation>
    </message>
    <message>
        <source>Computed from other values</source>
        <translation>Aus anderen Werten berechnet</translation>
    </message>
    <message>
        <source>Set by the program</source>
        <translation>Vom Programm gesetzt</translation>
    </message>
    <message>
        <source>From the file of the project</source>
        <translation>Aus der Datei des Projekts</translation>
    </message>
    <message>
        <source>From the last project</source>
        <translation>Aus dem letzten Projekt</translation>
    </message>
    <message>
        <source>%1 = %2 (%3)</source>
        <comment>symbol, value with unit, name of the value</comment>
        <translation>%1 = %2 (%3)</translation>
    </message>
    <message>
        <source>Found by a search for the wells that carry the flow rate</source>
        <translation>Gefunden durch Suche nach den Brunnen, die den Volumenstrom leisten</translation>
    </message>
    <message>
        <source>Formula: %1</source>
        <translation>Formel: %1</translation>
    </message>
    <message>
        <source>Source: %1</source>
        <translation>Quelle: %1</translation>
    </message>
    <message>
        <source>Set by a change of: %1</source>
        <translation>Ausgelöst durch eine Änderung von: %1</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::WellPositionAndUsageWizardPage</name>
    <message>
        <source>There is a mismatch by %1 % between the required pumping rate and the sum of the currently assigned pumping rates.&lt;br&gt;</source>
        <translation>Der erforderliche Entnahmevolumenstrom und die Summe der zugewiesenen Entnahmevolumenströme weichen um %1&#xa0;% voneinander ab.&lt;br&gt;</translation>
    </message>
    <message>
        <source>There is a mismatch by %1 % between the required pumping rate and the sum of the currently assigned pumping rates of demand step %2.&lt;br&gt;</source>
        <translation>Der erforderliche Entnahmevolumenstrom und die Summe der zugewiesenen Entnahmevolumenströme weichen in der Bedarfsperiode %2 um %1&#xa0;% voneinander ab.&lt;br&gt;</translation>
    </message>
    <message>
        <source>There is a mismatch by %1 % between the required injection rate and the sum of the currently assigned injection rates.&lt;br&gt;</source>
        <translation>Der erforderliche Rückgabevolumenstrom und die Summe der zugewiesenen Rückgabevolumenströme weichen um %1&#xa0;% voneinander ab.&lt;br&gt;</translation>
    </message>
    <message>
        <source>There is a mismatch by %1 % between the required injection rate and the sum of the currently assigned injection rates of demand step %2.&lt;br&gt;</source>
        <translation>Der erforderliche Rückgabevolumenstrom und die Summe der zugewiesenen Rückgabevolumenströme weichen in der Bedarfsperiode %2 um %1&#xa0;% voneinander ab.&lt;br&gt;</translation>
    </message>
    <message>
        <source>There is a mismatch by %1 % between the pumping and injection rate.&lt;br&gt;</source>
        <translation>Entnahme- und Rückgabevolumenstrom weichen um %1&#xa0;% voneinander ab.&lt;br&gt;</translation>
    </message>
    <message>
        <source>There is a mismatch between the pumping and injection rate of demand step %1.&lt;br&gt;</source>
        <translation>Entnahme- und Rückgabevolumenstrom weichen in der Bedarfsperiode %1 voneinander ab.&lt;br&gt;</translation>
    </message>
    <message>
        <source>Time unit: hours</source>
        <translation>Zeiteinheit: Stunden</translation>
    </message>
    <message>
        <source>Time unit: days</source>
        <translation>Zeiteinheit: Tage</translation>
    </message>
    <message>
        <source>Time unit: months</source>
        <translation>Zeiteinheit: Monate</translation>
    </message>
    <message>
        <source>The block needs %1 wells. Set the well count to it first.</source>
        <translation>Der Block braucht %1 Brunnen. Stellen Sie zuerst die Anzahl Brunnen darauf ein.</translation>
    </message>
    <message>
        <source>The block needs %1 demand steps. Set their number to it first.</source>
        <translation>Der Block braucht %1 Bedarfsperioden. Stellen Sie zuerst ihre Anzahl darauf ein.</translation>
    </message>
    <message>
        <source>Simplify</source>
        <translation>Vereinfachen</translation>
    </message>
    <message>
        <source>Extend</source>
        <translation>Erweitern</translation>
    </message>
    <message>
        <source>Total duration: %1 h (%2 a)</source>
        <translation>Gesamtdauer: %1 h (%2 a)</translation>
    </message>
    <message>
        <source>Reset all changes on the well position and demand parameter?</source>
        <translation>Alle Änderungen an der Lage der Brunnen und den Bedarfsparametern zurücksetzen?</translation>
    </message>
    <message>
        <source>Please provide a valid x coordinate for the well: </source>
        <translation>Bitte geben Sie eine gültige X-Koordinate an für den Brunnen: </translation>
    </message>
    <message>
        <source>Please provide a valid y coordinate for the well: </source>
        <translation>Bitte geben Sie eine gültige Y-Koordinate an für den Brunnen: </translation>
    </message>
    <message>
        <source>The design gives no distance between wells yet.</source>
        <translation>Die Auslegung ergibt noch keinen Abstand zwischen den Brunnen.</translation>
    </message>
    <message>
        <source>Wells that were placed by hand: %1. Move all wells to the recommended places?</source>
        <translation>Von Hand platzierte Brunnen: %1. Sollen alle Brunnen an die empfohlenen Orte verschoben werden?</translation>
    </message>
    <message>
        <source>Paste a cell</source>
        <translation>Eine Zelle einfügen</translation>
    </message>
    <message>
        <source>Paste %1 cells</source>
        <translation>%1 Zellen einfügen</translation>
    </message>
    <message>
        <source>Place wells</source>
        <translation>Brunnen platzieren</translation>
    </message>
    <message>
        <source>Take back the placing of wells</source>
        <translation>Anordnung der Brunnen zurücknehmen</translation>
    </message>
</context>
<context>
    <name>TVR::GUI::WorldFile</name>
    <message>
        <source>It cannot be read.</source>
        <translation>Sie kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>It is larger than six numbers can be.</source>
        <translation>Sie ist größer, als sechs Zahlen sein können.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number.</source>
        <translation>„%1“ ist keine Zahl.</translation>
    </message>
    <message>
        <source>It holds %1 numbers instead of 6.</source>
        <translation>Sie enthält %1 Zahlen statt 6.</translation>
    </message>
    <message>
        <source>It turns the picture: north has to be at the top.</source>
        <translation>Sie dreht das Bild: Norden muss oben sein.</translation>
    </message>
    <message>
        <source>It mirrors the picture: the first number has to be above 0.</source>
        <translation>Sie spiegelt das Bild: Die erste Zahl muss größer als 0 sein.</translation>
    </message>
    <message>
        <source>It puts the picture upside down: the fourth number has to be below 0.</source>
        <translation>Sie stellt das Bild auf den Kopf: Die vierte Zahl muss kleiner als 0 sein.</translation>
    </message>
</context>
<context>
    <name>TVR::OutdatedResults</name>
    <message>
        <source>%1: %2</source>
        <comment>what was changed, and its new value</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2 → %3</source>
        <comment>what was changed, its old and new value</comment>
        <translation>%1: %2 → %3</translation>
    </message>
</context>
<context>
    <name>TVR::OutdatedSign</name>
    <message>
        <source>Results out of date</source>
        <translation>Resultate veraltet</translation>
    </message>
    <message>
        <source>and others: %1</source>
        <translation>und weitere: %1</translation>
    </message>
    <message>
        <source>The project was changed after the simulation.</source>
        <translation>Das Projekt wurde nach der Simulation geändert.</translation>
    </message>
    <message>
        <source>Changed after the simulation:</source>
        <translation>Nach der Simulation geändert:</translation>
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
        <translation>Seite einpassen</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>Graphic %1</source>
        <translation>Grafik %1</translation>
    </message>
</context>
<context>
    <name>TVR::ParameterName</name>
    <message>
        <source>Program version</source>
        <translation>Programmversion</translation>
    </message>
    <message>
        <source>General information</source>
        <translation>Allgemeine Angaben</translation>
    </message>
    <message>
        <source>Well and aquifer</source>
        <translation>Brunnen und Grundwasserleiter</translation>
    </message>
    <message>
        <source>Energy demand</source>
        <translation>Energiebedarf</translation>
    </message>
    <message>
        <source>Mapping</source>
        <translation>Kartendarstellung</translation>
    </message>
    <message>
        <source>Simulation</source>
        <translation>Simulation</translation>
    </message>
    <message>
        <source>Heating specification</source>
        <translation>Angaben zum Heizen</translation>
    </message>
    <message>
        <source>Cooling specification</source>
        <translation>Angaben zum Kühlen</translation>
    </message>
    <message>
        <source>Origin for the view</source>
        <translation>Ursprung des Ausschnitts</translation>
    </message>
    <message>
        <source>Numerical parameter</source>
        <translation>Numerische Parameter</translation>
    </message>
    <message>
        <source>Groundwater flow model</source>
        <translation>Grundwasserströmungsmodell</translation>
    </message>
    <message>
        <source>Heat transport model</source>
        <translation>Wärmetransportmodell</translation>
    </message>
    <message>
        <source>Last results</source>
        <translation>Letzte Resultate</translation>
    </message>
    <message>
        <source>Density of the rock</source>
        <translation>Dichte des Gesteins</translation>
    </message>
    <message>
        <source>Density of the rock material of the aquifer</source>
        <translation>Dichte des Gesteins im Grundwasserleiter</translation>
    </message>
    <message>
        <source>Density of the rock material surrounding the aquifer</source>
        <translation>Dichte des Gesteins um den Grundwasserleiter</translation>
    </message>
    <message>
        <source>Density of the water</source>
        <translation>Dichte des Wassers</translation>
    </message>
    <message>
        <source>Distance between wells</source>
        <translation>Abstand zwischen den Brunnen</translation>
    </message>
    <message>
        <source>Dynamic viscosity of the water</source>
        <translation>Dynamische Viskosität des Wassers</translation>
    </message>
    <message>
        <source>g</source>
        <translation>g</translation>
    </message>
    <message>
        <source>Heat conductivity of the rock</source>
        <translation>Wärmeleitfähigkeit des Gesteins</translation>
    </message>
    <message>
        <source>Heat conductivity of the rock material of the aquifer</source>
        <translation>Wärmeleitfähigkeit des Gesteins im Grundwasserleiter</translation>
    </message>
    <message>
        <source>Heat conductivity of the  rock material surrounding the aquifer</source>
        <translation>Wärmeleitfähigkeit des Gesteins um den Grundwasserleiter</translation>
    </message>
    <message>
        <source>Heating period</source>
        <translation>Heizperiode</translation>
    </message>
    <message>
        <source>Maximum number of finite volume elements</source>
        <translation>Maximale Anzahl Finite-Volumen-Elemente</translation>
    </message>
    <message>
        <source>Increase factor of element size</source>
        <translation>Zunahmefaktor der Elementgröße</translation>
    </message>
    <message>
        <source>Maximum drawdown</source>
        <translation>Größte Absenkung</translation>
    </message>
    <message>
        <source>Specific heat capacity of the rock</source>
        <translation>Spezifische Wärmekapazität des Gesteins</translation>
    </message>
    <message>
        <source>Specific heat capacity of the water</source>
        <translation>Spezifische Wärmekapazität des Wassers</translation>
    </message>
    <message>
        <source>Maximum extent of 3K temperature change</source>
        <translation>Größte Ausdehnung der Temperaturänderung von 3 K</translation>
    </message>
    <message>
        <source>Time of the maximum extent</source>
        <translation>Zeitpunkt der größten Ausdehnung</translation>
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
        <translation>Empfohlener Abstand zwischen Entnahme- und Rückgabebrunnen</translation>
    </message>
    <message>
        <source>Used distance between withdrawal and injection well(s)</source>
        <translation>Verwendeter Abstand zwischen Entnahme- und Rückgabebrunnen</translation>
    </message>
    <message>
        <source>Default position for new withdrawal and injection well(s)</source>
        <translation>Vorgabe der Lage neuer Entnahme- und Rückgabebrunnen</translation>
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
        <translation>Dauer der Spitzenlast</translation>
    </message>
    <message>
        <source>Filter diameter</source>
        <translation>Filterdurchmesser</translation>
    </message>
    <message>
        <source>Filter length</source>
        <translation>Filterlänge</translation>
    </message>
    <message>
        <source>Water filled thickness of an unconfined aquifer</source>
        <translation>Wassererfüllte Mächtigkeit eines ungespannten Grundwasserleiters</translation>
    </message>
    <message>
        <source>Heating days</source>
        <translation>Heiztage</translation>
    </message>
    <message>
        <source>Heating degree days</source>
        <translation>Heizgradtage</translation>
    </message>
    <message>
        <source>Hydraulic conductivity</source>
        <translation>Durchlässigkeitsbeiwert</translation>
    </message>
    <message>
        <source>Maximum hydraulic conductivity</source>
        <translation>Größter Durchlässigkeitsbeiwert</translation>
    </message>
    <message>
        <source>Minimum hydraulic conductivity</source>
        <translation>Kleinster Durchlässigkeitsbeiwert</translation>
    </message>
    <message>
        <source>lambda</source>
        <translation>lambda</translation>
    </message>
    <message>
        <source>Number of wells</source>
        <translation>Anzahl Brunnen</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Leistung</translation>
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
        <translation>Brunnenradius</translation>
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
        <translation>Absenkung</translation>
    </message>
    <message>
        <source>Drawdown when using the mean flow rate</source>
        <translation>Absenkung beim mittleren Volumenstrom</translation>
    </message>
    <message>
        <source>Drawdown when using the mean flow rate for the heating period</source>
        <translation>Absenkung beim mittleren Volumenstrom der Heizperiode</translation>
    </message>
    <message>
        <source>Mean annual flow rate</source>
        <translation>Mittlerer Jahresvolumenstrom</translation>
    </message>
    <message>
        <source>Groundwater flow rate</source>
        <translation>Filtergeschwindigkeit des Grundwassers</translation>
    </message>
    <message>
        <source>Mean flow rate for the heating period</source>
        <translation>Mittlerer Volumenstrom der Heizperiode</translation>
    </message>
    <message>
        <source>Mean flow rate for the heating period inside the tubing</source>
        <translation>Mittlerer Volumenstrom der Heizperiode in der Leitung</translation>
    </message>
    <message>
        <source>Maximum flow rate</source>
        <translation>Maximaler Volumenstrom</translation>
    </message>
    <message>
        <source>Maximum flow rate of one well</source>
        <translation>Maximaler Volumenstrom eines Brunnens</translation>
    </message>
    <message>
        <source>Well diameter</source>
        <translation>Brunnendurchmesser</translation>
    </message>
    <message>
        <source>Additional isotherm</source>
        <translation>Zusätzliche Isotherme</translation>
    </message>
    <message>
        <source>Aquifer base</source>
        <translation>Sohle des Grundwasserleiters</translation>
    </message>
    <message>
        <source>Thickness</source>
        <translation>Mächtigkeit</translation>
    </message>
    <message>
        <source>Aquifer material</source>
        <translation>Material des Grundwasserleiters</translation>
    </message>
    <message>
        <source>Porosity</source>
        <translation>Porosität</translation>
    </message>
    <message>
        <source>Unconfined aquifer</source>
        <translation>Ungespannter Grundwasserleiter</translation>
    </message>
    <message>
        <source>Absolute error tolerance (groundwater flow model)</source>
        <translation>Absolute Fehlertoleranz (Grundwasserströmungsmodell)</translation>
    </message>
    <message>
        <source>Absolute error tolerance (heat transport model)</source>
        <translation>Absolute Fehlertoleranz (Wärmetransportmodell)</translation>
    </message>
    <message>
        <source>Include a background map</source>
        <translation>Hintergrundkarte einbinden</translation>
    </message>
    <message>
        <source>Horizontal extent of the background map</source>
        <translation>Horizontale Ausdehnung der Hintergrundkarte</translation>
    </message>
    <message>
        <source>Vertical extent of the background map</source>
        <translation>Vertikale Ausdehnung der Hintergrundkarte</translation>
    </message>
    <message>
        <source>X coordinate of the origin for the background map</source>
        <translation>X-Koordinate des Ursprungs der Hintergrundkarte</translation>
    </message>
    <message>
        <source>Y coordinate of the origin for the background map</source>
        <translation>Y-Koordinate des Ursprungs der Hintergrundkarte</translation>
    </message>
    <message>
        <source>Hydraulic dispersion</source>
        <translation>Hydrodynamische Dispersion</translation>
    </message>
    <message>
        <source>Building type</source>
        <translation>Gebäudekategorie</translation>
    </message>
    <message>
        <source>Calculate the energy demand</source>
        <translation>Energiebedarf berechnen</translation>
    </message>
    <message>
        <source>Calculate the well construction</source>
        <translation>Brunnen dimensionieren</translation>
    </message>
    <message>
        <source>Check the well construction</source>
        <translation>Brunnenausbau prüfen</translation>
    </message>
    <message>
        <source>Closest location</source>
        <translation>Nächstgelegener Ort</translation>
    </message>
    <message>
        <source>Cooling demand per year</source>
        <translation>Jährlicher Kältebedarf</translation>
    </message>
    <message>
        <source>Coefficient of full hours load</source>
        <translation>Volllaststunden</translation>
    </message>
    <message>
        <source>Cooling power</source>
        <translation>Kälteleistung</translation>
    </message>
    <message>
        <source>Mean temperature change used</source>
        <translation>Verwendete mittlere Temperaturänderung</translation>
    </message>
    <message>
        <source>Usage of a closed loop for the water</source>
        <translation>Wasser im geschlossenen Kreislauf</translation>
    </message>
    <message>
        <source>Energy exchange with the caprock</source>
        <translation>Wärmeaustausch mit der Deckschicht</translation>
    </message>
    <message>
        <source>Energy exchange with the bedrock</source>
        <translation>Wärmeaustausch mit der Sohlschicht</translation>
    </message>
    <message>
        <source>Energy demand evaluation type</source>
        <translation>Art der Bedarfsermittlung</translation>
    </message>
    <message>
        <source>Filter diameter provided</source>
        <translation>Vorhandener Filterdurchmesser</translation>
    </message>
    <message>
        <source>Filter length provided</source>
        <translation>Vorhandene Filterlänge</translation>
    </message>
    <message>
        <source>Natural gas demand</source>
        <translation>Erdgasbedarf</translation>
    </message>
    <message>
        <source>Groundwater flow direction</source>
        <translation>Fließrichtung des Grundwassers</translation>
    </message>
    <message>
        <source>Hydraulic gradient</source>
        <translation>Hydraulischer Gradient</translation>
    </message>
    <message>
        <source>Groundwater table</source>
        <translation>Grundwasserspiegel</translation>
    </message>
    <message>
        <source>GUI language</source>
        <translation>Sprache der Bedienung</translation>
    </message>
    <message>
        <source>Heated foot space</source>
        <translation>Energiebezugsfläche</translation>
    </message>
    <message>
        <source>Heating demand per year</source>
        <translation>Jährlicher Heizwärmebedarf</translation>
    </message>
    <message>
        <source>Heating power</source>
        <translation>Heizleistung</translation>
    </message>
    <message>
        <source>Used mean temperature change</source>
        <translation>Verwendete mittlere Temperaturänderung</translation>
    </message>
    <message>
        <source>Including provision of hot water</source>
        <translation>Einschließlich Warmwasserbereitung</translation>
    </message>
    <message>
        <source>Number of wells provided</source>
        <translation>Anzahl vorhandener Brunnen</translation>
    </message>
    <message>
        <source>Number of demand periods per year</source>
        <translation>Anzahl Bedarfsperioden pro Jahr</translation>
    </message>
    <message>
        <source>Minimal size of elements</source>
        <translation>Kleinste Elementgröße</translation>
    </message>
    <message>
        <source>Maximal size of elements</source>
        <translation>Größte Elementgröße</translation>
    </message>
    <message>
        <source>Fuel oil demand</source>
        <translation>Heizölbedarf</translation>
    </message>
    <message>
        <source>Project address</source>
        <translation>Projektadresse</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Project file name</source>
        <translation>Name der Projektdatei</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Project name</source>
        <translation>Projektname</translation>
    </message>
    <message>
        <source>Street</source>
        <translation>Straße</translation>
    </message>
    <message>
        <source>Postal code</source>
        <translation>Postleitzahl</translation>
    </message>
    <message>
        <source>Energy demand type provided</source>
        <translation>Energieträger des angegebenen Bedarfs</translation>
    </message>
    <message>
        <source>Reference temperature</source>
        <translation>Referenztemperatur</translation>
    </message>
    <message>
        <source>Relative error tolerance (groundwater flow model)</source>
        <translation>Relative Fehlertoleranz (Grundwasserströmungsmodell)</translation>
    </message>
    <message>
        <source>Relative error tolerance (heat transport model)</source>
        <translation>Relative Fehlertoleranz (Wärmetransportmodell)</translation>
    </message>
    <message>
        <source>Operation time</source>
        <translation>Betriebsdauer</translation>
    </message>
    <message>
        <source>Coefficient of performance</source>
        <translation>Jahresarbeitszahl</translation>
    </message>
    <message>
        <source>Tectplot output file name</source>
        <translation>Name der Tecplot-Ausgabedatei</translation>
    </message>
    <message>
        <source>User address</source>
        <translation>Adresse des Anwenders</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Use of provided aquifer properties</source>
        <translation>Angegebene Eigenschaften des Grundwasserleiters verwenden</translation>
    </message>
    <message>
        <source>Temperature change</source>
        <translation>Änderung der Temperatur</translation>
    </message>
    <message>
        <source>Number of elements used</source>
        <translation>Anzahl verwendeter Elemente</translation>
    </message>
    <message>
        <source>User defined tollerances of the groundwater model</source>
        <translation>Benutzerdefinierte Toleranzen des Grundwassermodells</translation>
    </message>
    <message>
        <source>User defined tollerances of the heat model</source>
        <translation>Benutzerdefinierte Toleranzen des Wärmemodells</translation>
    </message>
    <message>
        <source>Well temperature output file name</source>
        <translation>Name der Ausgabedatei der Brunnentemperaturen</translation>
    </message>
    <message>
        <source>Horizontal extent of the view</source>
        <translation>Horizontale Ausdehnung des Ausschnitts</translation>
    </message>
    <message>
        <source>Scale of the view</source>
        <translation>Maßstab des Ausschnitts</translation>
    </message>
    <message>
        <source>Use the extension to scale the view</source>
        <translation>Maßstab des Ausschnitts aus der Ausdehnung</translation>
    </message>
    <message>
        <source>X coordinate of the origin for the view</source>
        <translation>X-Koordinate des Ursprungs des Ausschnitts</translation>
    </message>
    <message>
        <source>Y coordinate of the origin for the view</source>
        <translation>Y-Koordinate des Ursprungs des Ausschnitts</translation>
    </message>
    <message>
        <source>Well depth</source>
        <translation>Brunnentiefe</translation>
    </message>
    <message>
        <source>Well material type</source>
        <translation>Material des Brunnenausbaus</translation>
    </message>
    <message>
        <source>days</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>m bgl</source>
        <translation>m u. GOK</translation>
    </message>
</context>
<context>
    <name>TVR::ProjectDifferences</name>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>Wells</source>
        <translation>Brunnen</translation>
    </message>
    <message>
        <source>Wells with other values</source>
        <translation>Brunnen mit anderen Werten</translation>
    </message>
    <message>
        <source>Demand periods</source>
        <translation>Bedarfsperioden</translation>
    </message>
    <message>
        <source>Demand periods of another length</source>
        <translation>Bedarfsperioden anderer Länge</translation>
    </message>
</context>
<context>
    <name>TVR::ProjectDocument</name>
    <message>
        <source>The project has changes that are not saved. Do you want to save them?</source>
        <translation>Das Projekt enthält Änderungen, die nicht gespeichert sind. Möchten Sie sie speichern?</translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; has changes that are not saved. Do you want to save them?</source>
        <translation>Das Projekt „%1“ enthält Änderungen, die nicht gespeichert sind. Möchten Sie sie speichern?</translation>
    </message>
    <message>
        <source>The project cannot be saved automatically in %1.</source>
        <translation>Das Projekt kann nicht automatisch in %1 gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>TVR::ProjectRecovery</name>
    <message>
        <source>Discard what was saved automatically? It cannot be brought back.</source>
        <translation>Soll verworfen werden, was automatisch gespeichert wurde? Es kann nicht zurückgeholt werden.</translation>
    </message>
</context>
<context>
    <name>TVR::PropertyModel</name>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
</context>
<context>
    <name>TVR::ResultImport</name>
    <message>
        <source>File: %1</source>
        <translation>Datei: %1</translation>
    </message>
    <message>
        <source>Project: %1</source>
        <translation>Projekt: %1</translation>
    </message>
    <message>
        <source>There is no active graphic.
There are no data to import.</source>
        <translation>Es ist keine Grafik aktiv.
Es gibt keine Daten zu importieren.</translation>
    </message>
    <message>
        <source>Import results from TVR project file</source>
        <translation>Resultate aus TVR-Projektdatei importieren</translation>
    </message>
    <message>
        <source>TVR project files (*.tvr)</source>
        <translation>TVR-Projektdateien (*.tvr)</translation>
    </message>
    <message>
        <source>The file could not open.
There are no data to import.</source>
        <translation>Die Datei konnte nicht geöffnet werden.
Es gibt keine Daten zu importieren.</translation>
    </message>
    <message>
        <source>This is not a valid xml file.
There are no data to import.</source>
        <translation>Dies ist keine gültige XML-Datei.
Es gibt keine Daten zu importieren.</translation>
    </message>
    <message>
        <source>The version of result file supports not the saving of results.
There are no data to import.</source>
        <translation>Die Version der Datei sieht das Speichern von Resultaten nicht vor.
Es gibt keine Daten zu importieren.</translation>
    </message>
</context>
<context>
    <name>TVR::ShapefileExport</name>
    <message>
        <source>Save shapefile</source>
        <translation>Shapefile speichern</translation>
    </message>
    <message>
        <source>Shapefile (*.shp *.shx *.dbf)</source>
        <translation>Shapefile (*.shp *.shx *.dbf)</translation>
    </message>
    <message>
        <source>Unable to create:%1</source>
        <translation>Kann nicht erstellt werden: %1</translation>
    </message>
    <message>
        <source>Unable to create dbf file for %1</source>
        <translation>Die DBF-Datei zu %1 kann nicht erstellt werden</translation>
    </message>
    <message>
        <source>Unable to open:%1</source>
        <translation>Kann nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>draw down</source>
        <translation>Absenkung</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>temperature change</source>
        <translation>Temperaturänderung</translation>
    </message>
    <message>
        <source>K</source>
        <translation>K</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Zu wenig Arbeitsspeicher</translation>
    </message>
</context>
<context>
    <name>TVR::WelcomeWindow</name>
    <message>
        <source>TVR: Welcome Window</source>
        <translation>TVR: Willkommen</translation>
    </message>
    <message>
        <source>Start a new project</source>
        <translation>Neues Projekt beginnen</translation>
    </message>
    <message>
        <source>Rece&amp;nt projects</source>
        <translation>&amp;Zuletzt geöffnete Projekte</translation>
    </message>
    <message>
        <source>Projects that you open are listed here.</source>
        <translation>Hier werden die Projekte aufgeführt, die Sie öffnen.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Version Information</source>
        <translation>Versionsangaben</translation>
    </message>
    <message>
        <source>%1 Version: %2</source>
        <translation>%1 Version: %2</translation>
    </message>
    <message>
        <source>&lt;span style=&quot;color:#ffffff;&quot;&gt;Version: %1%2 created on %3&lt;/span&gt;</source>
        <translation>&lt;span style=&quot;color:#ffffff;&quot;&gt;Version: %1%2 erstellt am %3&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>Zuletzt geöffnete Projekte</translation>
    </message>
    <message>
        <source>Runs with Qt %1</source>
        <translation>Läuft mit Qt %1</translation>
    </message>
</context>
<context>
    <name>TVRPlugin</name>
    <message>
        <source>Import results of TVR project</source>
        <translation>Resultate eines TVR-Projekts importieren</translation>
    </message>
    <message>
        <source>Import the results of a TVR project and show them on current graphic.</source>
        <translation>Importiert die Resultate eines TVR-Projekts und zeigt sie auf der aktuellen Grafik.</translation>
    </message>
    <message>
        <source>Export to &amp;Shapefile</source>
        <translation>Als &amp;Shapefile exportieren</translation>
    </message>
    <message>
        <source>Exports the isolines to a shapefile</source>
        <translation>Exportiert die Isolinien in ein Shapefile</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Englisch</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Französisch</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>a</source>
        <translation>a</translation>
    </message>
    <message>
        <source>cycle</source>
        <translation>Zyklen</translation>
    </message>
    <message>
        <source>Initialise Simulation</source>
        <translation>Simulation wird vorbereitet</translation>
    </message>
    <message>
        <source>Using %1 nodes ...</source>
        <translation>Rechnet mit %1 Knoten ...</translation>
    </message>
    <message>
        <source>Simulate t = %1 %2</source>
        <translation>Simulation, t = %1 %2</translation>
    </message>
    <message>
        <source>Finished ...</source>
        <translation>Beendet ...</translation>
    </message>
    <message>
        <source>Fill-up the resulting mesh element on graphic ...</source>
        <translation>Resultate der Netzelemente werden in die Grafik eingetragen ...</translation>
    </message>
    <message>
        <source>Calculate isohypses ...</source>
        <translation>Isohypsen werden berechnet ...</translation>
    </message>
    <message>
        <source>Calculate isotherms ...</source>
        <translation>Isothermen werden berechnet ...</translation>
    </message>
    <message>
        <source>Error at t = %1 %2</source>
        <translation>Fehler bei t = %1 %2</translation>
    </message>
    <message>
        <source>&lt;b&gt;An error occured during the simulation:&lt;/b&gt;&lt;br&gt;</source>
        <translation>&lt;b&gt;Während der Simulation ist ein Fehler aufgetreten:&lt;/b&gt;&lt;br&gt;</translation>
    </message>
    <message>
        <source>error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Isotherm (%1K change)</source>
        <translation>Isotherme (Änderung um %1 K)</translation>
    </message>
    <message>
        <source>Isotherm (%1K)</source>
        <translation>Isotherme (%1 K)</translation>
    </message>
    <message>
        <source>Isohypse (%1 m change)</source>
        <translation>Isohypse (Änderung um %1 m)</translation>
    </message>
    <message>
        <source>Isohypse (%1 m)</source>
        <translation>Isohypse (%1 m)</translation>
    </message>
    <message>
        <source>Map scale</source>
        <translation>Maßstab der Karte</translation>
    </message>
    <message>
        <source>Map image</source>
        <translation>Kartenbild</translation>
    </message>
    <message>
        <source>Wells</source>
        <translation>Brunnen</translation>
    </message>
    <message>
        <source>The picture %1 cannot be read. The page is without it.</source>
        <translation>Das Bild %1 kann nicht gelesen werden. Es fehlt auf der Seite.</translation>
    </message>
    <message>
        <source>Simulation results</source>
        <translation>Simulationsresultate</translation>
    </message>
    <message>
        <source>Head</source>
        <translation>Potenzialhöhe</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>Legende</translation>
    </message>
    <message>
        <source>Program identification</source>
        <translation>Programmkennung</translation>
    </message>
    <message>
        <source>Project address</source>
        <translation>Projektadresse</translation>
    </message>
    <message>
        <source>Map view</source>
        <translation>Kartenausschnitt</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>Demand plot (rates)</source>
        <translation>Bedarfsdiagramm (Volumenströme)</translation>
    </message>
    <message>
        <source>Rate label</source>
        <translation>Beschriftung der Volumenströme</translation>
    </message>
    <message>
        <source>&lt;font color=&quot;#6EA5A5&quot;&gt;&lt;b&gt;l/min&lt;/b&gt;&lt;/font&gt;</source>
        <translation>&lt;font color=&quot;#6EA5A5&quot;&gt;&lt;b&gt;l/min&lt;/b&gt;&lt;/font&gt;</translation>
    </message>
    <message>
        <source>Demand plot (temperature)</source>
        <translation>Bedarfsdiagramm (Temperatur)</translation>
    </message>
    <message>
        <source>Temperature label</source>
        <translation>Beschriftung der Temperatur</translation>
    </message>
    <message>
        <source>&lt;b&gt;K&lt;/b&gt;</source>
        <translation>&lt;b&gt;K&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Map legend</source>
        <translation>Kartenlegende</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>Aquifer type</source>
        <translation>Art des Grundwasserleiters</translation>
    </message>
    <message>
        <source>unconfined</source>
        <translation>ungespannt</translation>
    </message>
    <message>
        <source>confined</source>
        <translation>gespannt</translation>
    </message>
    <message>
        <source>Maximum drawdown in withdrawal wells</source>
        <translation>Größte Absenkung in den Entnahmebrunnen</translation>
    </message>
    <message>
        <source>The simulation ends after %1 a instead of %2 a</source>
        <translation>Die Simulation endet nach %1 a statt nach %2 a</translation>
    </message>
    <message>
        <source>Hydraulic dispersion not inlcuded</source>
        <translation>Hydrodynamische Dispersion nicht berücksichtigt</translation>
    </message>
    <message>
        <source>could not be determined, since %1</source>
        <translation>konnte nicht bestimmt werden, da %1</translation>
    </message>
    <message>
        <source>no well injects water</source>
        <translation>kein Brunnen Wasser zurückgibt</translation>
    </message>
    <message>
        <source>along the groundwater flow no injection well lies at a coordinate above 0</source>
        <translation>in Fließrichtung des Grundwassers kein Rückgabebrunnen bei einer Koordinate über 0 liegt</translation>
    </message>
    <message>
        <source>there are no results on the map</source>
        <translation>keine Resultate auf der Karte sind</translation>
    </message>
    <message>
        <source>Withdrawal wells</source>
        <translation>Entnahmebrunnen</translation>
    </message>
    <message>
        <source>Injection wells</source>
        <translation>Rückgabebrunnen</translation>
    </message>
    <message>
        <source>Wells for both in turns</source>
        <translation>Brunnen im Wechselbetrieb</translation>
    </message>
    <message>
        <source>New project wizard</source>
        <translation>Assistent für ein neues Projekt</translation>
    </message>
    <message>
        <source>Aquifer &amp; well wizard</source>
        <translation>Assistent für Grundwasserleiter &amp; Brunnen</translation>
    </message>
    <message>
        <source>Graphical mapping wizard</source>
        <translation>Assistent für die Kartendarstellung</translation>
    </message>
    <message>
        <source>Simulation wizard</source>
        <translation>Assistent für die Simulation</translation>
    </message>
    <message>
        <source>Extenetd Simulation wizard</source>
        <translation>Erweiterter Assistent für die Simulation</translation>
    </message>
    <message>
        <source>TVR: Welcome</source>
        <translation>TVR: Willkommen</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Copyright information</source>
        <translation>Urheberrecht</translation>
    </message>
    <message>
        <source>This program based on:</source>
        <translation>Dieses Programm beruht auf:</translation>
    </message>
    <message>
        <source>More information you will find on the program installation directory.</source>
        <translation>Weitere Angaben finden Sie im Installationsverzeichnis des Programms.</translation>
    </message>
    <message>
        <source> TVR plugin:</source>
        <translation> TVR-Plug-in:</translation>
    </message>
    <message>
        <source> Static simulator library:</source>
        <translation> Statische Bibliothek des Simulators:</translation>
    </message>
    <message>
        <source> Static sundials library:</source>
        <translation> Statische Sundials-Bibliothek:</translation>
    </message>
    <message>
        <source> Qt library:</source>
        <translation> Qt-Bibliothek:</translation>
    </message>
    <message>
        <source>&amp;%1</source>
        <translation>&amp;%1</translation>
    </message>
    <message>
        <source>Scale of the map</source>
        <translation>Maßstab der Karte</translation>
    </message>
    <message>
        <source>Position of the mouse on the map</source>
        <translation>Lage der Maus auf der Karte</translation>
    </message>
    <message>
        <source>TVR Welcome Window</source>
        <translation>TVR-Willkommensfenster</translation>
    </message>
    <message>
        <source>Opens a new TVR welcome window</source>
        <translation>Öffnet ein neues TVR-Willkommensfenster</translation>
    </message>
    <message>
        <source>&amp;TVR Project</source>
        <translation>&amp;TVR-Projekt</translation>
    </message>
    <message>
        <source>Opens a new TVR project</source>
        <translation>Beginnt ein neues TVR-Projekt</translation>
    </message>
    <message>
        <source>Open TVR &amp;Project</source>
        <translation>TVR-Projekt ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Opens a TVR project</source>
        <translation>Öffnet ein TVR-Projekt</translation>
    </message>
    <message>
        <source>Save the TVR project</source>
        <translation>TVR-Projekt speichern</translation>
    </message>
    <message>
        <source>Saves a TVR project</source>
        <translation>Speichert ein TVR-Projekt</translation>
    </message>
    <message>
        <source>&amp;General Project Information</source>
        <translation>&amp;Allgemeine Projektangaben</translation>
    </message>
    <message>
        <source>Shows the general property wizard</source>
        <translation>Zeigt den Assistenten für allgemeine Angaben</translation>
    </message>
    <message>
        <source>&amp;Energy Demand</source>
        <translation>&amp;Energiebedarf</translation>
    </message>
    <message>
        <source>Shows the energy demand wizard</source>
        <translation>Zeigt den Assistenten für den Energiebedarf</translation>
    </message>
    <message>
        <source>&amp;Wells and aquifer</source>
        <translation>&amp;Brunnen und Grundwasserleiter</translation>
    </message>
    <message>
        <source>Shows the well design wizard</source>
        <translation>Zeigt den Assistenten für die Brunnen</translation>
    </message>
    <message>
        <source>&amp;Mapping</source>
        <translation>&amp;Kartendarstellung</translation>
    </message>
    <message>
        <source>Shows the mapping wizard</source>
        <translation>Zeigt den Assistenten für die Kartendarstellung</translation>
    </message>
    <message>
        <source>&amp;Simulation</source>
        <translation>&amp;Simulation</translation>
    </message>
    <message>
        <source>Shows the simulation wizard</source>
        <translation>Zeigt den Assistenten für die Simulation</translation>
    </message>
    <message>
        <source>&amp;Clear registry entries</source>
        <translation>&amp;Gespeicherte Einstellungen löschen</translation>
    </message>
    <message>
        <source>Clears all settings that are stored for you</source>
        <translation>Löscht alle Einstellungen, die für Sie gespeichert sind</translation>
    </message>
    <message>
        <source>&amp;Language of use</source>
        <translation>Sprache der &amp;Bedienung</translation>
    </message>
    <message>
        <source>Should the open project saved before opening a new project?</source>
        <translation>Soll das offene Projekt gespeichert werden, bevor ein neues geöffnet wird?</translation>
    </message>
    <message>
        <source>Should the project only include the simulation part?</source>
        <translation>Soll das Projekt nur den Simulationsteil umfassen?</translation>
    </message>
    <message>
        <source>Open TVR project file</source>
        <translation>TVR-Projektdatei öffnen</translation>
    </message>
    <message>
        <source>TVR project files (*.tvr)</source>
        <translation>TVR-Projektdateien (*.tvr)</translation>
    </message>
    <message>
        <source>Unable to open:%1</source>
        <translation>Kann nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;TVR project &amp;laquo;%1&amp;raquo; ready to use.&lt;/b&gt;</source>
        <translation>&lt;b&gt;Das TVR-Projekt &amp;bdquo;%1&amp;ldquo; ist bereit.&lt;/b&gt;</translation>
    </message>
    <message>
        <source>read from file: %1</source>
        <translation>gelesen aus der Datei: %1</translation>
    </message>
    <message>
        <source>Save TVR project file</source>
        <translation>TVR-Projektdatei speichern</translation>
    </message>
    <message>
        <source>TVR project file (*.tvr);;TVR batch file (*.tbat)</source>
        <translation>TVR-Projektdatei (*.tvr);;TVR-Stapeldatei (*.tbat)</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 existiert bereits.
Möchten Sie die Datei ersetzen?</translation>
    </message>
    <message>
        <source>Unable to create:%1</source>
        <translation>Kann nicht erstellt werden: %1</translation>
    </message>
    <message>
        <source>Operation abort because simulation is running.</source>
        <translation>Der Vorgang wurde abgebrochen, weil eine Simulation läuft.</translation>
    </message>
    <message>
        <source>All stored settings will be removed.
Do you want to go on?</source>
        <translation>Alle gespeicherten Einstellungen werden gelöscht.
Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>All stored settings of the previous program generation will be removed.
Do you want to go on?</source>
        <translation>Alle gespeicherten Einstellungen der vorigen Programmgeneration werden gelöscht.
Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Simulation will be stopped at next step!</source>
        <translation>Die Simulation wird beim nächsten Zeitschritt angehalten!</translation>
    </message>
    <message>
        <source>TVR project</source>
        <translation>TVR-Projekt</translation>
    </message>
    <message>
        <source>No graphics library! The result plots cannot be displayed. To solve this problem, please re-install the program.</source>
        <translation>Die Grafikbibliothek fehlt! Die Resultatgrafiken können nicht angezeigt werden. Installieren Sie bitte das Programm neu, um das Problem zu beheben.</translation>
    </message>
    <message>
        <source>Save settings? -- Tevrane</source>
        <translation>Einstellungen speichern? -- Tevrane</translation>
    </message>
    <message>
        <source>Save all settings?</source>
        <translation>Alle Einstellungen speichern?</translation>
    </message>
    <message>
        <source>The mesh of cells around the wells cannot be made. Please change the size of the model and/or the numerical parameters.

%1</source>
        <translation>Das Netz der Zellen um die Brunnen kann nicht erzeugt werden. Bitte ändern Sie die Modellgröße oder die numerischen Parameter.

%1</translation>
    </message>
    <message>
        <source>%1: </source>
        <translation>%1: </translation>
    </message>
    <message>
        <source>true</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>false</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>effectiv %1</source>
        <translation>Effektiver %1</translation>
    </message>
    <message>
        <source>%1 (injection or pumping): </source>
        <translation>%1 (Rückgabe oder Entnahme): </translation>
    </message>
    <message>
        <source>%1 : </source>
        <translation>%1: </translation>
    </message>
    <message>
        <source>%1 length</source>
        <translation>%1 (Länge)</translation>
    </message>
    <message>
        <source>This wizard has no pages.</source>
        <translation>Dieser Assistent hat keine Seiten.</translation>
    </message>
    <message>
        <source>&lt;b&gt;More then one well at one position not supported started with version 1.2!&lt;br&gt;Redefine the wells in use!&lt;/b&gt;&lt;br&gt;</source>
        <translation>&lt;b&gt;Mehr als ein Brunnen an derselben Stelle wird ab Version 1.2 nicht unterstützt!&lt;br&gt;Bitte die verwendeten Brunnen neu festlegen!&lt;/b&gt;&lt;br&gt;</translation>
    </message>
    <message>
        <source>&lt;b&gt;Preview&lt;/b&gt;: %1</source>
        <translation>&lt;b&gt;Vorschau&lt;/b&gt;: %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Preview&lt;/b&gt; (dashed: last run)</source>
        <translation>&lt;b&gt;Vorschau&lt;/b&gt; (gestrichelt: letzte Berechnung)</translation>
    </message>
    <message>
        <source>&lt;b&gt;Preview&lt;/b&gt;</source>
        <translation>&lt;b&gt;Vorschau&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;b&gt;Preview&lt;/b&gt;, is being refined (dashed: last run)</source>
        <translation>&lt;b&gt;Vorschau&lt;/b&gt;, wird verfeinert (gestrichelt: letzte Berechnung)</translation>
    </message>
    <message>
        <source>&lt;b&gt;Preview&lt;/b&gt;, is being refined</source>
        <translation>&lt;b&gt;Vorschau&lt;/b&gt;, wird verfeinert</translation>
    </message>
    <message>
        <source>Move wells</source>
        <translation>Brunnen verschieben</translation>
    </message>
    <message>
        <source>Move map image</source>
        <translation>Kartenbild verschieben</translation>
    </message>
</context>
<context>
    <name>UserWizardPage</name>
    <message>
        <source>Program user</source>
        <translation>Anwender des Programms</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Anwender</translation>
    </message>
    <message>
        <source>Name and address of the planner</source>
        <translation>Name und Adresse des Planers</translation>
    </message>
    <message>
        <source>Name and address of the planner, as they stand on the printed page. A double click or F2 begins to edit a line, and so does typing; Enter ends it. What is entered is kept at once.</source>
        <translation>Name und Adresse des Planers, wie sie auf der gedruckten Seite stehen. Ein Doppelklick, F2 oder Tippen beginnt die Bearbeitung einer Zeile; die Eingabetaste beendet sie. Eingaben werden sofort übernommen.</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>no file</source>
        <translation>keine Datei</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Choose a logo</source>
        <translation>Logo wählen</translation>
    </message>
    <message>
        <source>Chooses a picture as the logo of the planner</source>
        <translation>Wählt ein Bild als Logo des Planers</translation>
    </message>
    <message>
        <source>The picture that the printed page shows as the logo of the planner. Drawings such as SVG are not shown.</source>
        <translation>Das Bild, das die gedruckte Seite als Logo des Planers zeigt. Vektorbilder wie SVG werden nicht gezeigt.</translation>
    </message>
    <message>
        <source>No logo</source>
        <translation>Kein Logo</translation>
    </message>
    <message>
        <source>The page gets no logo</source>
        <translation>Die Seite erhält kein Logo</translation>
    </message>
    <message>
        <source>Takes the logo away; the file stays.</source>
        <translation>Entfernt das Logo; die Datei bleibt erhalten.</translation>
    </message>
    <message>
        <source>Picture of the logo</source>
        <translation>Bild des Logos</translation>
    </message>
</context>
<context>
    <name>WellDemandModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Mean rate</source>
        <translation>Mittlerer Volumenstrom</translation>
    </message>
    <message>
        <source>Temperature change</source>
        <translation>Änderung der Temperatur</translation>
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
        <translation>Brunnen %1</translation>
    </message>
    <message>
        <source>Well</source>
        <translation>Brunnen</translation>
    </message>
    <message>
        <source>X coordinate</source>
        <translation>X-Koordinate</translation>
    </message>
    <message>
        <source>Y coordinate</source>
        <translation>Y-Koordinate</translation>
    </message>
    <message>
        <source>Mean annual rate</source>
        <translation>Mittlerer jährlicher Volumenstrom</translation>
    </message>
    <message>
        <source>Temperature change</source>
        <translation>Änderung der Temperatur</translation>
    </message>
</context>
<context>
    <name>WellPositionAndUsageWizardPage</name>
    <message>
        <source>Well positions</source>
        <translation>Lage der Brunnen</translation>
    </message>
    <message>
        <source>Wells</source>
        <translation>Brunnen</translation>
    </message>
    <message>
        <source>Well count (injection and pumping well number are the same):</source>
        <translation>Anzahl Brunnen (gleich viele Rückgabe- und Entnahmebrunnen):</translation>
    </message>
    <message>
        <source>Withdrawal and injection wells together</source>
        <translation>Entnahme- und Rückgabebrunnen zusammen</translation>
    </message>
    <message>
        <source>The first half of the wells withdraws, the second half injects; the sign of a rate may say otherwise. Fewer wells lose the last rows of the table with all that was entered there.</source>
        <translation>Die erste Hälfte der Brunnen entnimmt, die zweite gibt zurück; das Vorzeichen eines Volumenstroms kann es anders bestimmen. Bei weniger Brunnen entfallen die letzten Zeilen der Tabelle mit allen Eingaben darin.</translation>
    </message>
    <message>
        <source>Number of demand steps per year (for all wells the same):</source>
        <translation>Anzahl Bedarfsperioden pro Jahr (für alle Brunnen gleich):</translation>
    </message>
    <message>
        <source>Parts of the year, each with rates of its own</source>
        <translation>Abschnitte des Jahres mit jeweils eigenen Volumenströmen</translation>
    </message>
    <message>
        <source>Two steps are usual for heating in winter and cooling in summer, four for seasons, twelve for months. The first step takes over the mean annual rate of a well, all further ones begin without flow.</source>
        <translation>Üblich sind zwei Perioden für Heizen im Winter und Kühlen im Sommer, vier für Jahreszeiten, zwölf für Monate. Die erste Periode übernimmt den mittleren Jahresvolumenstrom eines Brunnens, alle weiteren beginnen ohne Volumenstrom.</translation>
    </message>
    <message>
        <source>Place, mean annual rate and temperature change of each well</source>
        <translation>Ort, mittlerer Jahresvolumenstrom und Temperaturänderung jedes Brunnens</translation>
    </message>
    <message>
        <source>Coordinates in metres of the national grid, as on the map, where the wells can be dragged too. A negative rate withdraws, any other injects. The temperature change is that of the water that is injected: negative where heat is drawn. Tab, Enter and the arrows move from cell to cell, Ctrl+Tab leaves the table. Ctrl+C copies the selected cells, Ctrl+V pastes a block from a spreadsheet, in the units shown; a block that does not fit changes nothing.</source>
        <translation>Koordinaten in Metern des Landesnetzes, wie auf der Karte, in der sich die Brunnen auch ziehen lassen. Ein negativer Volumenstrom entnimmt, jeder andere gibt zurück. Die Temperaturänderung ist die des zurückgegebenen Wassers: negativ, wo Wärme entzogen wird. Tabulator-, Eingabe- und Pfeiltasten gehen von Zelle zu Zelle, Strg+Tab verlässt die Tabelle. Strg+C kopiert die gewählten Zellen, Strg+V fügt einen Block aus einer Tabellenkalkulation ein, in den angezeigten Einheiten; ein Block, der nicht passt, ändert nichts.</translation>
    </message>
    <message>
        <source>Demand steps of the chosen well</source>
        <translation>Bedarfsperioden des gewählten Brunnens</translation>
    </message>
    <message>
        <source>What the chosen well does in each demand step; the context menu has the units of time</source>
        <translation>Was der gewählte Brunnen in jeder Bedarfsperiode tut; das Kontextmenü enthält die Zeiteinheiten</translation>
    </message>
    <message>
        <source>The demand steps of the well that is chosen in the table of wells. Durations are the same for all wells, in hours, days or months, as the context menu says. Tab, Enter and the arrows move from cell to cell, Ctrl+Tab leaves the table. Ctrl+C copies the selected cells, Ctrl+V pastes a block from a spreadsheet, in the units shown; a block that does not fit changes nothing.</source>
        <translation>Die Bedarfsperioden des Brunnens, der in der Tabelle der Brunnen gewählt ist. Die Dauern sind für alle Brunnen gleich, in Stunden, Tagen oder Monaten, je nach Wahl im Kontextmenü. Tabulator-, Eingabe- und Pfeiltasten gehen von Zelle zu Zelle, Strg+Tab verlässt die Tabelle. Strg+C kopiert die gewählten Zellen, Strg+V fügt einen Block aus einer Tabellenkalkulation ein, in den angezeigten Einheiten; ein Block, der nicht passt, ändert nichts.</translation>
    </message>
    <message>
        <source>validate well rates</source>
        <translation>Volumenströme der Brunnen prüfen</translation>
    </message>
    <message>
        <source>Compare the sums of the rates with each other and with the design when the page is left</source>
        <translation>Summen der Volumenströme beim Verlassen der Seite miteinander und mit der Auslegung vergleichen</translation>
    </message>
    <message>
        <source>Without the check mark only the coordinates are tested. Pumped and injected water then need not be the same.</source>
        <translation>Ohne Häkchen werden nur die Koordinaten geprüft. Entnommenes und zurückgegebenes Wasser müssen dann nicht gleich viel sein.</translation>
    </message>
    <message>
        <source>Total duration: xxx h (y.y a)</source>
        <translation>Gesamtdauer: xxx h (y.y a)</translation>
    </message>
    <message>
        <source>Sum of all demand steps; a year has 8760 hours</source>
        <translation>Summe aller Bedarfsperioden; ein Jahr hat 8760 Stunden</translation>
    </message>
    <message>
        <source>Place wells</source>
        <translation>Brunnen platzieren</translation>
    </message>
    <message>
        <source>Lay the wells out in two rows across the regional flow, at the recommended distances</source>
        <translation>Brunnen in den empfohlenen Abständen in zwei Reihen quer zur regionalen Strömung anordnen</translation>
    </message>
    <message>
        <source>The withdrawal wells become a row upstream and the injection wells a row downstream, around the middle of the map. Asks before it moves wells that were placed by hand.</source>
        <translation>Die Entnahmebrunnen bilden eine Reihe stromaufwärts, die Rückgabebrunnen eine Reihe stromabwärts, um die Mitte der Karte. Vor dem Verschieben von Hand platzierter Brunnen wird nachgefragt.</translation>
    </message>
    <message>
        <source>Undo placing</source>
        <translation>Platzieren rückgängig</translation>
    </message>
    <message>
        <source>Put the wells back to where they stood before they were placed</source>
        <translation>Brunnen dorthin zurücksetzen, wo sie vor dem Platzieren lagen</translation>
    </message>
    <message>
        <source>Possible until a well is moved or the page is left.</source>
        <translation>Möglich, bis ein Brunnen verschoben oder die Seite verlassen wird.</translation>
    </message>
    <message>
        <source>Extend</source>
        <translation>Erweitern</translation>
    </message>
    <message>
        <source>Change between mean annual rates and rates by demand step</source>
        <translation>Zwischen mittleren Jahresvolumenströmen und Volumenströmen je Bedarfsperiode wechseln</translation>
    </message>
    <message>
        <source>The simple view has one rate for each well and the whole year. The extended view divides the year into demand steps.</source>
        <translation>Die einfache Ansicht hat einen Volumenstrom je Brunnen für das ganze Jahr. Die erweiterte Ansicht teilt das Jahr in Bedarfsperioden.</translation>
    </message>
    <message>
        <source>Recommended distance between wells</source>
        <translation>Empfohlener Abstand zwischen den Brunnen</translation>
    </message>
    <message>
        <source>Holds as long as all wells carry about the same rate</source>
        <translation>Gilt, solange alle Brunnen etwa den gleichen Volumenstrom haben</translation>
    </message>
    <message>
        <source>Between two injection wells or two withdrawal wells</source>
        <translation>Zwischen zwei Rückgabebrunnen oder zwei Entnahmebrunnen</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>Between an injection and a withdrawal well</source>
        <translation>Zwischen einem Rückgabe- und einem Entnahmebrunnen</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Why the page cannot be left or a block not be pasted</source>
        <translation>Warum die Seite nicht verlassen oder ein Block nicht eingefügt werden kann</translation>
    </message>
    <message>
        <source>What has to be changed before the page can be left, or why nothing was pasted. What is longer than the room scrolls.</source>
        <translation>Was zu ändern ist, bevor die Seite verlassen werden kann, oder warum nichts eingefügt wurde. Längere Texte lassen sich rollen.</translation>
    </message>
</context>
</TS>
