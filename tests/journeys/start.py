"""The very first start: the notice of copyright, then the welcome window, and menus to go on from."""

from driver import containing, expect, find, press, wait

MENUS = ["File", "Edit", "View", "Tevrane", "Settings", "Window", "Help"]


def journey(desk):
    program = desk.start_first()
    notice = program.dialog()
    find(notice, "label", containing("Copyright information"))
    program.close_by("Escape", notice)

    window = program.main_window()
    find(window, "page tab", "TVR: Welcome")
    bar = find(window, "menu bar")
    for name in MENUS:
        find(bar, "menu item", name)
    press("Escape")
    program.choose("View", "Full Screen")
    wait(lambda: window.get_extents(0).x == 0 and window.get_extents(0).y == 0, "the whole screen")
    press("F11")
    wait(lambda: window.get_extents(0).y > 0, "a window again")
    expect(program.process.poll() is None, "Escape ended the program")
    program.quit()

    again = desk.start_first()
    again.main_window()
    expect(len(again.windows()) == 1, "the notice came a second time")
    again.quit()
