"""A project that was open yesterday stands in the welcome window, and opens from there by keys."""

from driver import containing, find, press


def journey(desk):
    project = desk.project_file("doublet.tbat", "site.tvr")
    program = desk.start(project)
    program.dismiss("ready to use")
    program.main_window()
    program.quit()

    program = desk.start()
    window = program.main_window()
    find(window, "list item", containing("site.tvr"))
    program.tab_to("list", "Recent projects")
    press("Return")
    program.dismiss("ready to use")
    program.window(containing("site.tvr"))
    program.quit()
