"""A run shows how far it is, and its results are on the page when it is over."""

from driver import expect, find, find_now, press, wait

PROGRESS = "Progress of the simulation"


def journey(desk):
    program = desk.start(desk.batch_file("school_four_seasons.tbat"))
    program.dismiss("ready to use")
    window = program.main_window()
    press("ctrl+r")
    find(window, "progress bar", PROGRESS)
    wait(lambda: not find_now(window, "progress bar", PROGRESS), "the run to end")
    page = desk.files / "page.pdf"
    program.choose("File", "Export", "Page as PDF...")
    program.fill_file_dialog("Export page", page)
    wait(page.exists, "the page as a PDF")
    text = desk.text_of_pdf(page)
    for word in ("Isotherm (1K)", "Maximum extent of 3K temperature change"):
        expect(word in text, f"no {word!r} on the page:\n{text}")
    program.quit(unsaved="Discard")
