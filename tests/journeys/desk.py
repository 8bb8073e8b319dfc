"""What a journey is given: a place for files, a home for the program's settings, and the program."""

import configparser
import os
import pathlib
import shutil
import subprocess

import driver

EXAMPLES = pathlib.Path(__file__).resolve().parents[2] / "examples"


class Desk:
    """A user's desk. What it starts ends with it."""

    def __init__(self, directory):
        self.files = directory / "files"
        self.home = directory / "home"
        self.table = self.files / "wells.txt"  # where a run is asked to write its temperatures
        self.programs = []
        for folder in (self.files, self.home / "config" / "Norvalt"):
            folder.mkdir(parents=True)

    def start(self, *arguments):
        """Starts the program as somebody does who has used it before."""
        settings = self.settings_file()
        if not settings.exists():
            settings.write_text("[window]\nstarted=true\n")
        return self.start_first(*arguments)

    def start_first(self, *arguments):
        """Starts the program with what it has kept of earlier starts, if there were any."""
        program = driver.Program(os.environ["TEVRANE_PROGRAM"], str(self.home), *map(str, arguments))
        self.programs.append(program)
        return program

    def settings_file(self):
        return self.home / "config" / "Norvalt" / "Tevrane.conf"

    def setting(self, section, key):
        """A value that the program has kept; None if it has kept none."""
        settings = configparser.ConfigParser(interpolation=None)
        settings.read(self.settings_file())
        return settings.get(section, key, fallback=None)

    def batch_file(self, example, **changes):
        """A copy of an example's batch file, with other values of keys that it has."""
        lines = (EXAMPLES / example).read_text().splitlines()
        for key, value in changes.items():
            driver.expect(any(line.startswith(key + "=") for line in lines), f"{example} has no {key}")
            lines = [f"{key}={value}" if line.startswith(key + "=") else line for line in lines]
        copy = self.files / example
        copy.write_text("\n".join(lines) + "\n")
        return copy

    def project_file(self, example, name):
        """A project file with a page, made of an example."""
        project = self.files / name
        subprocess.run(
            [os.environ["TEVRANE_BATCH"], "--quiet", "--save-project", project, self.batch_file(example)],
            check=True,
        )
        return project

    def text_of_pdf(self, file):
        """What is written on the pages of a PDF."""
        return subprocess.run(["pdftotext", "-layout", file, "-"], check=True, capture_output=True, text=True).stdout

    def leave(self):
        """Ends what is still running."""
        for program in self.programs:
            program.kill()
        shutil.rmtree(self.files, ignore_errors=True)
