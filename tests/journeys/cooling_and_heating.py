"""An engineer plans a site that cools and heats with four wells and four seasons, in French: from a new
project through all pages to the finished page, by keyboard. The temperatures are those of the same
figures without a window."""

from itertools import accumulate

from driver import press
from planning import FRENCH, begin_project, expect_finished_page, expect_same_headless
from wizard import PerMinute

WELLS = [("P1", 20, 15), ("P2", 22, 60), ("I1", 50, 30), ("I2", 52, 66)]
PUMPING = WELLS[:2]
SEASONS = [  # [h], of each well [l/min], [K]
    (2200, 180, -4),
    (1750, 90, -3),
    (2630, 120, 4),
    (2186, 90, -3),
]
YEARS = 10

BATCH = """\
[main]
simulation_time={years}
max_number_of_fv_elements=1500
cell_increase_factor=20

[thermic]
exchange_caprock=false
exchange_bedrock=true

[hydraulic]
aquifer_unconfined=1
aquifer_basis=14
groundwater_table=4
groundwater_gradient=0.12
kf=0.0012
aquifer_porosity=0.18
groundwater_flow_direction=110

[installation]
number_of_demands_per_year=4
number_of_wells=4
{tables}
"""


def journey(desk):
    wizard = begin_project(desk, FRENCH)
    describe_project(wizard)
    cool_and_heat(wizard)
    describe_aquifer(wizard)
    provide_wells(wizard)
    place_wells(wizard)
    operate_by_season(wizard)
    simulate(wizard, desk.table)
    words = ["Site du pont", "Isotherme (1 K)", "Isotherme (-1 K)", *(name for name, _, _ in WELLS)]
    expect_finished_page(desk, wizard.program, FRENCH, words)
    ends = list(accumulate(hours * 3600 for _ in range(YEARS) for hours, _, _ in SEASONS))
    batch = BATCH.format(years=YEARS, tables="\n".join(tables_of_batch_file()))
    expect_same_headless(desk, wizard.program, FRENCH, batch, ends)


def describe_project(wizard):
    wizard.page("Utilisateur du programme")
    wizard.forward("Informations du projet")
    wizard.fill("Nom du projet", "Site du pont")


def cool_and_heat(wizard):
    wizard.forward("Caractéristiques de l’installation")
    wizard.choose("Nouvelle installation de refroidissement et de chauffage")
    wizard.pick("Catégorie de bâtiment", "École")
    wizard.forward("Installation de refroidissement (et de chauffage)")
    wizard.fill("Besoins annuels de froid", "60000")
    wizard.choose("Puissance frigorifique")
    wizard.fill("Puissance frigorifique", "60")
    wizard.fill("Variation de température moyenne", "3")
    wizard.fill("Besoins annuels de chaleur pour le chauffage", "90000")
    wizard.choose("Puissance de chauffage")
    wizard.fill("Puissance de chauffage", "50")
    wizard.fill("Variation de température moyenne", "4")
    wizard.fill("Coefficient de performance annuel", "3.8")
    wizard.forward("Besoins en énergie et utilisation des eaux souterraines")
    wizard.shown("60", "4.0", "215.0")


def describe_aquifer(wizard):
    wizard.forward("Propriétés de l’aquifère")
    wizard.fill("Gradient hydraulique", "0.12")
    wizard.tick("Libre")
    wizard.fill("Profondeur du niveau de la nappe (en basses eaux)", "4")
    wizard.fill("Profondeur de la base de l’aquifère", "14")
    wizard.fill("Perméabilité (conductivité hydraulique)", "1.2e-3")
    wizard.fill("Porosité", "18")


def provide_wells(wizard):
    wizard.forward("Configuration des puits")
    wizard.tick("Indiquer")
    wizard.fill_count("Nombre de puits", 2)
    wizard.fill("Distance minimale entre les puits", "30")
    wizard.fill("Profondeur totale d’un puits", "14")
    wizard.fill("Longueur de la crépine", "8")
    wizard.fill("Diamètre de la crépine", "200")
    wizard.tick("Vérifier ces données", False)
    wizard.forward("Valeurs calculées")
    wizard.shown("30.00", "8.00", "200.00", "0.50")
    wizard.forward("Carte générale")
    wizard.fill_count("Échelle de la carte", 1000)


def place_wells(wizard):
    wizard.forward("Position des puits")
    wizard.program.tab_to("push button", "Étendre")
    press("space")
    wizard.fill_count("Nombre de périodes de besoins par an (commun à tous les puits)\xa0:", len(SEASONS))
    wizard.table("Puits").fill(WELLS)


def operate_by_season(wizard):
    """Begins with the last well, where the table of wells has been left."""
    for well in reversed(WELLS):
        if well != WELLS[-1]:
            wells = wizard.table("Puits")
            press("Up")
            wells.leave()
        sign = -1 if well in PUMPING else 1
        wizard.table("Périodes de besoins du puits choisi").fill(
            [
                (None, hours, PerMinute(sign * rate), None if well in PUMPING else change)
                for hours, rate, change in SEASONS
            ]
        )


def simulate(wizard, table):
    wizard.forward("Paramètres de simulation")
    wizard.fill_count("La nappe s’écoule vers", 110)
    wizard.pick("Durée de simulation", str(YEARS))
    wizard.fill_count("Nombre maximal de volumes finis (approximatif)", 1500)
    wizard.tick("Échange avec le toit", False)
    wizard.forward("Paramètres de simulation étendus")
    wizard.fill("Facteur d’accroissement de la taille des éléments", "20")
    wizard.tick("Écrire les températures des puits")
    wizard.fill("Fichier du tableau", str(table))
    wizard.finish(FRENCH.simulate)


def tables_of_batch_file():
    """The arrays of a batch file with the figures of the wells and seasons."""
    yield f"demand_model\\size={len(SEASONS)}"
    for row, (hours, _, _) in enumerate(SEASONS, 1):
        yield f"demand_model\\{row}\\0={hours * 3600}"
    yield f"well_model\\size={len(WELLS)}"
    for row, well in enumerate(WELLS, 1):
        yield from (f"well_model\\{row}\\{column}={value}" for column, value in enumerate(well))
    steps = [(well, season) for well in WELLS for season in SEASONS]
    yield f"well_demand_model\\size={len(steps)}"
    for row, (well, (_, rate, change)) in enumerate(steps, 1):
        yield f"well_demand_model\\{row}\\2={-rate / 60000 if well in PUMPING else rate / 60000}"
        yield f"well_demand_model\\{row}\\3={0 if well in PUMPING else change}"
