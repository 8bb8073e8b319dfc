"""Another language of use changes the menus at once, and all that is open with them."""

from driver import find


def journey(desk):
    program = desk.start()
    find(program.main_window(), "page tab", "TVR: Welcome")
    program.choose("Settings", "Language of use", "German")
    window = program.main_window()
    find(find(window, "menu bar"), "menu item", "Datei")
    find(window, "push button", "Neues Projekt beginnen")
    find(window, "table cell", "Durchlässigkeitsbeiwert")
    program.choose("Einstellungen", "Sprache der Bedienung", "Französisch")
    find(find(window, "menu bar"), "menu item", "Fichier")
    program.quit(settings=("Enregistrer les réglages", "Non"))
