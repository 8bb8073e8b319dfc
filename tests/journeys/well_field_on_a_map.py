"""An engineer simulates a well field that exists, on a map with a world file beside it, in English: the
wizard with the simulation only, to the finished page, by keyboard. The temperatures are those of the same
figures without a window."""

import struct
import subprocess
import zlib

from driver import expect, press, text_of
from planning import ENGLISH, YEAR, begin_project, expect_finished_page, expect_same_headless
from wizard import PerMinute

WIDTH, HEIGHT = 1400, 1200  # of the picture [pixels]
WORLD_FILE = "0.2\n0\n0\n-0.2\n680880.1\n227139.9\n"

WELLS = [  # [m] by the map, [l/min], [K]
    ("North 1", 680960, 227040, -200, None),
    ("North 2", 681000, 227050, -150, None),
    ("North 3", 681040, 227045, -250, None),
    ("South 1", 680975, 226990, 220, 3),
    ("South 2", 681015, 226985, 180, 4),
    ("South 3", 681055, 226995, 200, 5),
]

BATCH = """\
[main]
simulation_time=10
max_number_of_fv_elements=1800
cell_increase_factor=40

[thermic]
exchange_caprock=true
exchange_bedrock=true
wells_used_closed_loop=1

[hydraulic]
groundwater_gradient=0.3
aquifer_h=16
kf=0.004
aquifer_porosity=0.24
groundwater_flow_direction=340

[installation]
number_of_wells=6
{wells}
"""


def journey(desk):
    picture = desk.files / "map.png"
    draw_map(picture)
    picture.with_suffix(".pgw").write_text(WORLD_FILE)

    wizard = begin_project(desk, ENGLISH, whole=False)
    describe_aquifer(wizard)
    lay_map(wizard, picture)
    enter_wells(wizard)
    simulate(wizard, desk.table)
    words = ["Isotherm (1K)", "681000", *(name for name, *_ in WELLS)]
    expect_finished_page(desk, wizard.program, ENGLISH, words)
    expect_picture(desk)
    batch = BATCH.format(wells="\n".join(wells_of_batch_file()))
    expect_same_headless(desk, wizard.program, ENGLISH, batch, [year * YEAR for year in range(1, 11)])


def draw_map(file):
    """Draws two streets and a house, as a PNG file."""

    def chunk(name, content):
        return struct.pack(">I", len(content)) + name + content + struct.pack(">I", zlib.crc32(name + content))

    meadow, street, house = b"\xe8\xf0\xdc", b"\xc8\xc8\xc8", b"\xd8\xb0\xa0"
    usual = b"\0" + meadow * 200 + street * 60 + meadow * (WIDTH - 260)
    built = b"\0" + meadow * 200 + street * 60 + meadow * 300 + house * 240 + meadow * (WIDTH - 800)
    lines = [usual] * 350 + [built] * 180 + [usual] * 370 + [b"\0" + street * WIDTH] * 60
    lines += [usual] * (HEIGHT - len(lines))
    file.write_bytes(
        b"\x89PNG\r\n\x1a\n"
        + chunk(b"IHDR", struct.pack(">IIBBBBB", WIDTH, HEIGHT, 8, 2, 0, 0, 0))
        + chunk(b"IDAT", zlib.compress(b"".join(lines)))
        + chunk(b"IEND", b"")
    )


def describe_aquifer(wizard):
    wizard.page("Properties of the aquifer")
    wizard.fill("Hydraulic gradient", "0.3")
    wizard.tick("Confined")
    wizard.fill("Thickness", "16")
    wizard.fill("Hydraulic conductivity", "4e-3")
    wizard.fill("Porosity", "24")


def lay_map(wizard, picture):
    wizard.forward("General map")
    wizard.fill("X (East)", "680920")
    wizard.fill("Y (North)", "226930")
    wizard.choose("Horizontal extension (West - East)")
    wizard.fill("Horizontal extension (West - East)", "200")
    wizard.tick("Background image")
    wizard.program.tab_to("push button", "Choose the background image")
    press("space")
    wizard.program.fill_file_dialog("Open background image", picture)
    wizard.program.answer("OK", "Tevrane")
    for name, text in (
        ("X (East)", "680880.00"),
        ("Y (North)", "226900.00"),
        ("Horizontal extension (West - East)", "280.00"),
        ("Vertical extension (North - South)", "240.00"),
    ):
        field = wizard.program.tab_to("text", name)
        expect(text_of(field) == text, f"{text_of(field)!r} for {name!r} of the picture, not {text!r}")


def enter_wells(wizard):
    wizard.forward("Well positions")
    wizard.fill_count("Well count (injection and pumping well number are the same):", len(WELLS))
    wizard.table("Wells").fill([(*well[:3], PerMinute(well[3]), well[4]) for well in WELLS])


def simulate(wizard, table):
    wizard.forward("Simulation parameters")
    wizard.fill_count("Groundwater flows towards", 340)
    wizard.pick("Simulation time", "10")
    wizard.fill_count("Maximum number of finite volumes (approximately)", 1800)
    wizard.forward("Extended simulation parameter")
    wizard.tick("Usage of a closed loop for the water")
    wizard.fill("Element size increase factor", "40")
    wizard.tick("Write well temperature output")
    wizard.fill("File of the table", str(table))
    wizard.finish(ENGLISH.simulate)


def expect_picture(desk):
    """Fails unless there is a picture on the page beside those of the results and of the logo."""
    listed = subprocess.run(
        ["pdfimages", "-list", desk.files / "page.pdf"], check=True, capture_output=True, text=True
    ).stdout
    pictures = [line for line in listed.splitlines() if line.split()[2:3] == ["image"]]
    expect(len(pictures) == 3, f"not three pictures on the page:\n{listed}")


def wells_of_batch_file():
    """The array of a batch file with the figures of the wells."""
    yield f"well_model\\size={len(WELLS)}"
    for row, (name, x, y, rate, change) in enumerate(WELLS, 1):
        cells = (name, x, y, rate / 60000, change or 0)
        yield from (f"well_model\\{row}\\{column}={value}" for column, value in enumerate(cells))
