"""A batch file is saved as a project; a name without an ending gets one, and the file is a project."""

from driver import containing, expect, press


def journey(desk):
    program = desk.start(desk.batch_file("minimal.tbat"))
    program.dismiss("ready to use")
    program.main_window()
    press("alt+s")
    program.fill_file_dialog("Save TVR project file", desk.files / "kept")
    program.window(containing("kept.tvr"))
    expect("<" in (desk.files / "kept.tvr").read_text(), "a project without XML")
    program.quit()
