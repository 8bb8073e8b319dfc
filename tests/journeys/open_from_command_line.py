"""A project that the command line names is open when the window comes up."""

from driver import containing, find


def journey(desk):
    program = desk.start(desk.batch_file("doublet.tbat"))
    program.dismiss("ready to use")
    window = program.window(containing("doublet.tbat"))
    find(window, "table cell", "Hydraulic conductivity: 0.0025 m/s")
    program.quit()
