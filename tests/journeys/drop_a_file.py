"""A project file that is dropped on the window is opened."""

import os
import subprocess

from driver import containing, mouse, wait


def journey(desk):
    project = desk.project_file("doublet.tbat", "site.tvr")
    program = desk.start()
    program.main_window()
    source = subprocess.Popen([os.environ["TEVRANE_DRAG_SOURCE"], str(project)])
    try:
        mouse("mousemove", *middle_of("Files"), "mousedown", 1)
        target = middle_of("Tevrane")
        wait(lambda: is_welcome(target), "the window to take the file")
        mouse("mouseup", 1)
        wait(lambda: len(program.windows()) == 2, "the project to be loaded")
    finally:
        source.kill()
        source.wait()
    program.dismiss("ready to use")
    program.window(containing("site.tvr"))
    program.quit()


def is_welcome(place):
    """Goes on with the mouse around a place; whether a drop would be welcome there."""
    mouse("mousemove", *place, "mousemove_relative", 5, 5)
    return geometry_of("Files: welcome") is not None


def middle_of(title):
    """The middle of the window with this in its title, in pixels of the screen; waits for it."""
    place = wait(lambda: geometry_of(title), f"the window {title!r}")
    return [place[at] + place[size] // 2 for at, size in (("X", "WIDTH"), ("Y", "HEIGHT"))]


def geometry_of(title):
    """Where the window with this in its title is, None if there is none."""
    found = subprocess.run(
        ["xdotool", "search", "--onlyvisible", "--name", title, "getwindowgeometry", "--shell"],
        capture_output=True,
        text=True,
    )
    if found.returncode != 0:
        return None
    return {key: int(value) for key, value in (line.split("=") for line in found.stdout.split())}
