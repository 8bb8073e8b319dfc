"""An engineer replaces an oil heating, in German: from a new project through all pages to the finished
page, by keyboard. The temperatures are those of the same figures without a window."""

from planning import GERMAN, YEAR, begin_project, expect_finished_page, expect_same_headless
from wizard import PerMinute

BATCH = """\
[main]
simulation_time=10
max_number_of_fv_elements=1200
cell_increase_factor=25

[thermic]
exchange_caprock=true
exchange_bedrock=false

[hydraulic]
groundwater_gradient=0.12
aquifer_h=8
kf=0.0015
aquifer_porosity=0.3
groundwater_flow_direction=120

[installation]
number_of_wells=2
well_model\\size=2
well_model\\1\\0=Entnahme
well_model\\1\\1=70
well_model\\1\\2=75
well_model\\1\\3=-0.00075
well_model\\1\\4=0
well_model\\2\\0=Rueckgabe
well_model\\2\\1=85
well_model\\2\\2=60
well_model\\2\\3=0.00075
well_model\\2\\4=-4
"""


def journey(desk):
    wizard = begin_project(desk, GERMAN)
    describe_project(wizard)
    replace_oil_heating(wizard)
    describe_aquifer(wizard)
    place_wells(wizard)
    simulate(wizard, desk.table)
    words = ["Schule am Bach", "8.0 m", "Isotherme (-3 K)", "Entnahme", "Rueckgabe"]
    expect_finished_page(desk, wizard.program, GERMAN, words)
    expect_same_headless(desk, wizard.program, GERMAN, BATCH, [year * YEAR for year in range(1, 11)])


def describe_project(wizard):
    wizard.page("Anwender des Programms")
    wizard.forward("Projektangaben")
    wizard.fill("Name des Projekts", "Schule am Bach")


def replace_oil_heating(wizard):
    wizard.forward("Merkmale der Anlage")
    wizard.choose("Ersatz einer bestehenden Heizung (z. B. mit Öl oder Gas)")
    wizard.pick("Gebäudekategorie", "Schule")
    wizard.forward("Energieverbrauch der bestehenden Anlage")
    wizard.choose("Heizöl")
    wizard.refused("Bitte geben Sie einen gültigen Wert für den Heizölbedarf ein.")
    wizard.fill("Heizöl", "11000")
    wizard.forward("Angaben zur Wärmepumpe")
    wizard.fill("Jahresarbeitszahl", "4")
    wizard.fill("Mittlere Temperaturänderung", "4")
    wizard.forward("Energiebedarf und Grundwassernutzung")
    wizard.shown("138471", "4.0")


def describe_aquifer(wizard):
    wizard.forward("Eigenschaften des Grundwasserleiters")
    wizard.fill("Hydraulischer Gradient", "0.12")
    wizard.fill("Mächtigkeit", "8")
    wizard.fill("Durchlässigkeitsbeiwert", "1.5e-3")
    wizard.fill("Porosität", "30")
    wizard.forward("Konfiguration der Brunnen")
    wizard.choose("Ermitteln")
    wizard.forward("Berechnete Werte")


def place_wells(wizard):
    wizard.forward("Übersichtskarte")
    wizard.fill("X (Ost)", "0")
    wizard.fill("Y (Nord)", "0")
    wizard.choose("Horizontale Ausdehnung (West - Ost)")
    wizard.fill("Horizontale Ausdehnung (West - Ost)", "250")
    wizard.forward("Lage der Brunnen")
    wizard.table("Brunnen").fill([["Entnahme", 70, 75, PerMinute(-45), None], ["Rueckgabe", 85, 60, PerMinute(45), -4]])


def simulate(wizard, table):
    wizard.forward("Simulationsparameter")
    wizard.fill_count("Das Grundwasser fließt nach", 120)
    wizard.pick("Simulierte Zeit", "10")
    wizard.pick("Weitere Isotherme bei einer Änderung um ", ".5")
    wizard.fill_count("Maximale Anzahl finiter Volumen (ungefähr)", 1200)
    wizard.tick("Mit Sohlschicht", False)
    wizard.forward("Erweiterte Simulationsparameter")
    wizard.fill("Zunahmefaktor der Elementgröße", "25")
    wizard.tick("Brunnentemperaturen ausgeben")
    wizard.fill("Datei der Tabelle", str(table))
    wizard.finish(GERMAN.simulate)
