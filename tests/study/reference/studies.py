"""Studies that tevrane-study samples and computes."""

import csv
import json
import pathlib
import subprocess
import tempfile

import openturns as ot


def site(wells):
    """A batch file with as many free keys as wells: their y coordinates. It is computed at once:
    of the wells only the last one has a rate."""
    lines = ["[main]", "simulation_time=1", "max_number_of_fv_elements=100",
             "cell_increase_factor=90", "[installation]", rf"well_model\size={wells}"]
    lines += [rf"well_model\{well}\1={200 * well}" for well in range(1, wells + 1)]
    lines += [rf"well_model\{wells}\3=0.0001", ""]
    return "\n".join(lines)


def free_key(number):
    """A key that may have any value, from 0."""
    return rf"well_model\{number + 1}\2"


class Studies:
    """Calls the program in a directory of its own."""

    def __init__(self, program):
        self._program = program
        self._temporary = tempfile.TemporaryDirectory()
        self.directory = pathlib.Path(self._temporary.name)

    def sample(self, laws, correlations=(), **settings):
        """The sample of a study whose free keys have these laws; correlations are (place, place,
        correlation)."""
        lines = ["[study]", "base=site.tbat"]
        lines += [f"{name}={value}" for name, value in settings.items()]
        lines += ["[vary]"] + [f"{free_key(i)}={law}" for i, law in enumerate(laws)]
        lines += ["[correlations]"]
        lines += [f"{free_key(i)}, {free_key(j)}={value}" for i, j, value in correlations]
        (self.directory / "site.tbat").write_text(site(len(laws)))
        (self.directory / "a.tstudy").write_text("\n".join(lines) + "\n")
        self._call("plan", "a.tstudy", "--table", "sample.csv")
        return self._table("sample.csv")

    def run(self, study):
        """Computes a study that lies in the directory: its runs as rows by title, and its
        summary."""
        self._call("run", study)
        folder = self.directory / pathlib.Path(study).with_suffix(".study")
        with open(folder / "runs.csv", newline="") as table:
            return list(csv.DictReader(table)), json.loads((folder / "summary.json").read_text())

    def _call(self, command, *words):
        subprocess.run([self._program, command, *words, "--quiet"], cwd=self.directory, check=True,
                       stdout=subprocess.DEVNULL)

    def _table(self, name):
        with open(self.directory / name, newline="") as table:
            rows = list(csv.reader(table))
        return ot.Sample([[float(cell) for cell in row] for row in rows[1:]])
