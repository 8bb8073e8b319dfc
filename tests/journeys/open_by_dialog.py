"""The key for opening asks for a file, and the project that was typed in is the one of the window."""

from driver import containing, find, press


def journey(desk):
    project = desk.project_file("doublet.tbat", "site.tvr")
    program = desk.start()
    find(program.main_window(), "page tab", "TVR: Welcome")
    press("alt+o")
    program.fill_file_dialog("Open TVR project file", project)
    program.dismiss("ready to use")
    window = program.window(containing("site.tvr"))
    find(window, "page tab", "Graphic 1")
    program.quit()
