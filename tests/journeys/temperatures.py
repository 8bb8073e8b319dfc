"""Temperatures of wells: the table of a run in the window, held against runs without one."""

import os
import subprocess

from driver import expect

PROJECT_TOLERANCE = 1e-9  # [K]
BATCH_TOLERANCE = 1e-4  # [K]


class Temperatures:
    """A table of well temperatures in tab-separated text."""

    def __init__(self, file):
        heading, *lines = file.read_text().splitlines()
        self.wells = heading.split("\t")[2:-1]
        rows = [[float(cell) for cell in line.split("\t")[:-1]] for line in lines]
        self.rows = {seconds: temperatures for seconds, _, *temperatures in rows}

    def expect_like(self, other, times, tolerance):
        """Fails unless another table has the same wells, with the same temperatures at these times."""
        expect(self.wells == other.wells, f"wells {self.wells} and {other.wells}")
        for time in times:
            for table in (self, other):
                expect(time in table.rows, f"no temperatures at {time} s")
            for well, here, there in zip(self.wells, self.rows[time], other.rows[time]):
                expect(abs(here - there) <= tolerance, f"{well}: {here} and {there} °C at {time} s")


def simulate(file, *options):
    """Runs a file without a window, and returns its temperatures."""
    table = file.with_suffix(".out")
    subprocess.run([os.environ["TEVRANE_BATCH"], "--quiet", *map(str, options), str(file)], check=True)
    return Temperatures(table)


def expect_same_without_window(desk, project, batch, times, language):
    """Fails unless the table of the window is the one of the project that it has saved, run with a
    page, and that of the text of a batch file at these output times [s]."""
    shown = Temperatures(desk.table)
    again = simulate(project, "--page", desk.files / "page.png", "--language", language)
    shown.expect_like(again, shown.rows, PROJECT_TOLERANCE)
    again.expect_like(shown, again.rows, PROJECT_TOLERANCE)
    plain = desk.files / "plain.tbat"
    plain.write_text(batch)
    shown.expect_like(simulate(plain), times, BATCH_TOLERANCE)
