"""The page of a project goes to a PDF by the dialog for printing."""

from driver import containing, expect, find, press, type_text, wait


def journey(desk):
    project = desk.project_file("doublet.tbat", "site.tvr")
    program = desk.start(project)
    program.dismiss("ready to use")
    program.main_window()
    press("ctrl+p")
    dialog = program.window("Print", "dialog")
    find(dialog, "combo box", "Print to File (PDF)")
    program.tab_to("text", containing("Output file"))
    press("ctrl+a")
    page = desk.files / "page.pdf"
    type_text(str(page))
    program.close_by("Return", dialog)
    wait(page.exists, "the page as a PDF")
    expect("Injection" in desk.text_of_pdf(page), "the printed page does not name the wells")
    program.quit()
