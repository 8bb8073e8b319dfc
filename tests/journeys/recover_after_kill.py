"""What a killed program left unsaved is offered at the next start, and is open again if it is taken."""

from driver import containing


def journey(desk):
    program = desk.start(desk.batch_file("minimal.tbat"))
    program.dismiss("ready to use")
    program.main_window()
    program.run_simulation()
    program.kill()

    program = desk.start()
    program.answer("Recover", "Recover unsaved projects")
    program.window(containing("minimal.tbat*"))
    program.quit(unsaved="Discard")

    program = desk.start()
    program.main_window()  # and nothing is offered any more
    program.quit()
