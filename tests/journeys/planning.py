"""How an engineer begins a project in a language, and what must be there at the end: a finished page,
and temperatures that are those of the same figures without a window."""

from dataclasses import dataclass

from driver import containing, expect, press, wait
from temperatures import expect_same_without_window
from wizard import Wizard

YEAR = 31557600  # [s]


@dataclass
class Language:
    """What stands on the way in a language of use."""

    code: str
    chosen_by: str  # the entry of the English menu; empty if there is nothing to choose
    new_project: str
    only_simulation: str  # the button that leaves the energy and the design of the wells out
    all_pages: str  # the button that does not
    wizard: str
    forward: str
    simulate: str
    export: tuple  # the path in the menus
    export_title: str
    save_title: str
    settings: tuple  # of the question at the end, and the button that keeps none


GERMAN = Language(
    code="de",
    chosen_by="German",
    new_project="Neues Projekt beginnen",
    only_simulation="Ja",
    all_pages="Nein",
    wizard="Assistent für ein neues Projekt",
    forward="Weiter >",
    simulate="Simulieren",
    export=("Datei", "Exportieren", "Seite als PDF..."),
    export_title="Seite exportieren",
    save_title="TVR-Projektdatei speichern",
    settings=("Einstellungen", "Nein"),
)

FRENCH = Language(
    code="fr",
    chosen_by="French",
    new_project="Commencer un nouveau projet",
    only_simulation="Oui",
    all_pages="Non",
    wizard="Assistant de nouveau projet",
    forward="Suivant >",
    simulate="Simuler",
    export=("Fichier", "Exporter", "Page en PDF..."),
    export_title="Exporter la page",
    save_title="Enregistrer le fichier de projet TVR",
    settings=("Enregistrer les réglages", "Non"),
)

ENGLISH = Language(
    code="en",
    chosen_by="",
    new_project="Start a new project",
    only_simulation="Yes",
    all_pages="No",
    wizard="New project wizard",
    forward="Next >",
    simulate="Simulate",
    export=("File", "Export", "Page as PDF..."),
    export_title="Export page",
    save_title="Save TVR project file",
    settings=("Save settings?", "No"),
)


def begin_project(desk, language, whole=True):
    """Starts the program, and a new project in it: with all pages or for the simulation only. Returns
    the wizard."""
    program = desk.start()
    program.main_window()
    if language.chosen_by:
        program.choose("Settings", "Language of use", language.chosen_by)
        program.main_window()
    program.tab_to("push button", language.new_project)
    press("space")
    program.answer(language.all_pages if whole else language.only_simulation, "Tevrane")
    return Wizard(program, language.wizard, language.forward)


def expect_finished_page(desk, program, language, words):
    """Waits for the run to end, and fails unless all these words stand on the page."""
    wait(desk.table.exists, "the temperatures of the run")
    page = desk.files / "page.pdf"
    program.choose(*language.export)
    program.fill_file_dialog(language.export_title, page)
    wait(page.exists, "the page as a PDF")
    text = desk.text_of_pdf(page)
    for word in words:
        expect(word in text, f"no {word!r} on the page:\n{text}")


def expect_same_headless(desk, program, language, batch, times):
    """Saves the project and ends the program. Fails unless the temperatures that the run has written
    are those of the project without a window, and of a batch file with the figures of the user."""
    project = desk.files / "project.tvr"
    press("ctrl+s")
    program.fill_file_dialog(language.save_title, project)
    program.window(containing(project.name))
    program.quit(settings=language.settings)
    expect_same_without_window(desk, project, batch, times, language.code)
