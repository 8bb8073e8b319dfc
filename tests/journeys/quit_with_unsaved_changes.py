"""A program with unsaved changes asks before it ends: Cancel keeps it, Save keeps the changes."""

from driver import containing, expect, press


def journey(desk):
    program = desk.start(desk.batch_file("minimal.tbat"))
    program.dismiss("ready to use")
    program.main_window()
    program.run_simulation()
    press("ctrl+q")
    program.answer("Cancel", "Tevrane")
    program.window(containing("minimal.tbat*"))

    press("ctrl+q")
    program.answer("Save", "Tevrane")
    program.fill_file_dialog("Save TVR project file", desk.files / "kept.tvr")
    program.answer("No", containing("Save settings?"))
    expect(program.wait_for_end() == 0, "the program failed")
    expect((desk.files / "kept.tvr").exists(), "the changes are not saved")
