"""Escape ends a long run, and nothing else."""

from driver import expect, find, find_now, press, wait

PROGRESS = "Progress of the simulation"
LONG = 999  # [a]; a file that says 1000 or more means seconds


def journey(desk):
    program = desk.start(desk.batch_file("school_four_seasons.tbat", simulation_time=LONG))
    program.dismiss("ready to use")
    window = program.main_window()
    press("ctrl+r")
    find(window, "progress bar", PROGRESS)
    press("Escape")
    program.dismiss("Simulation will be stopped at next step!")
    program.wait_for_end_of_run(window)
    wait(lambda: not find_now(window, "progress bar", PROGRESS), "the progress to go")
    expect(program.process.poll() is None, "Escape ended the program")
    program.quit(unsaved="Discard")
