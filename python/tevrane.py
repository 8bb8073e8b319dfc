"""Runs of Tevrane from Python.

    import tevrane
    result = tevrane.run("doublet.tbat", kf=2e-3)
    result.wells["Injection"].temperatures[-1]   # degrees Celsius
    tevrane.Study("study_doublet.tstudy").frame()

Needs nothing but the standard library; frames are those of pandas where that is installed. The
programs are looked for in the directory that TEVRANE_BIN names, or else on the PATH.
"""

import csv
import dataclasses
import json
import os
import pathlib
import shutil
import subprocess
import tempfile

SCHEMA = 1  # of the reports that this module reads


class TevraneError(Exception):
    """A run that was refused or failed; `errors` says why, a line each, and `status` is
    "refused", "failed" or "stopped"."""

    def __init__(self, status, errors):
        super().__init__("; ".join(errors) or status)
        self.status = status
        self.errors = errors


@dataclasses.dataclass(frozen=True)
class Well:
    """The temperatures [degrees Celsius] of a well at times [s], as the integrator's steps gave
    them, and where it stands on the map [m]."""

    name: str
    x: float
    y: float
    times: list
    temperatures: list


@dataclasses.dataclass(frozen=True)
class Result:
    """What came of a run: `wells` by name, `parameters` by key with their values, and the whole
    `report`, which docs/json-report.md describes."""

    report: dict

    @property
    def wells(self):
        places = {well["name"]: well for well in self.report["wells"]}
        return {
            well["name"]: Well(
                well["name"],
                places[well["name"]]["x"],
                places[well["name"]]["y"],
                well["time"],
                well["temperature"],
            )
            for well in self.report["results"]["wells"]
        }

    @property
    def parameters(self):
        return {row["key"]: row["value"] for row in self.report["parameters"]}

    @property
    def warnings(self):
        return self.report["warnings"]


def program(name):
    """The path of a program of Tevrane. Raises FileNotFoundError."""
    found = shutil.which(name, path=os.environ.get("TEVRANE_BIN"))
    if not found:
        raise FileNotFoundError(f"{name} is neither on the PATH nor where TEVRANE_BIN says")
    return found


def sections():
    """The section of each key of batch files."""
    listing = subprocess.run(
        [program("tevrane-batch"), "--print-parameters", "--format", "json"],
        check=True, capture_output=True, text=True, encoding="utf-8",
    ).stdout
    return {
        place["key"]: place["section"]
        for row in json.loads(listing)
        for place in row.get("batch_file", [])
    }


def with_values(text, values, section_of):
    """A batch file with other values: they stand at its end, where they count instead of what
    stands above. A key of the tables of wells is "well_model\\2\\3". Raises KeyError for a key
    that batch files do not have."""
    lines = [text.rstrip("\n")]
    for key, value in values.items():
        is_cell = key.split("\\")[0] in ("well_model", "demand_model", "well_demand_model")
        section = "installation" if is_cell else section_of[key]
        lines += [f"[{section}]", f"{key}={_written(value)}"]
    return "\n".join(lines) + "\n"


def run(base, values=None, /, convergence=False, **keys):
    """Runs a batch file with other values for some of its keys, given by name or, where a key is no
    name of Python, as a dictionary. The file stays as it is, and nothing is left beside it. Raises
    TevraneError for a run that is refused or fails, KeyError for a key that batch files do not
    have."""
    base = pathlib.Path(base)
    values = {**(values or {}), **keys}
    with tempfile.TemporaryDirectory(prefix="tevrane-") as directory:
        site = pathlib.Path(directory, base.name)
        text = base.read_bytes().decode("utf-8", errors="surrogateescape")
        if values:
            text = with_values(text, values, sections())
        site.write_bytes(text.encode("utf-8", errors="surrogateescape"))
        return Result(_report(site, ["--convergence"] if convergence else []))


class Study:
    """The answers of a study in its folder: "NAME.study", or the study file "NAME.tstudy" that it
    stands beside."""

    def __init__(self, path):
        path = pathlib.Path(path)
        self.folder = path.with_suffix(".study") if path.suffix == ".tstudy" else path

    def rows(self, table="answers.csv"):
        """The rows of one of its tables, a dictionary each: of "answers.csv" (run, well, time,
        quantity, value, unit) or of "runs.csv" (a row for each run)."""
        with open(self.folder / table, newline="", encoding="utf-8") as file:
            return [{key: _read(text) for key, text in row.items()} for row in csv.DictReader(file)]

    def frame(self, table="answers.csv"):
        """The same as a frame of pandas, or as rows() where pandas is not installed."""
        rows = self.rows(table)
        try:
            import pandas
        except ImportError:
            return rows
        return pandas.DataFrame(rows)

    def summary(self):
        """What `tevrane-study` says of the study as a whole."""
        return json.loads((self.folder / "summary.json").read_text(encoding="utf-8"))


def _report(site, options):
    report = site.with_suffix(".json")
    table = site.with_suffix(".out")
    command = [program("tevrane-batch"), "--quiet", "--json", report, "--output", table]
    ended = subprocess.run([*command, *options, site], capture_output=True, check=False)
    if not report.exists():
        raise TevraneError("refused", ended.stderr.decode("utf-8", "replace").splitlines())
    found = json.loads(report.read_text(encoding="utf-8"))
    if found["schema"] != SCHEMA:
        raise TevraneError("refused", [f"a report of schema {found['schema']}, expected {SCHEMA}"])
    if found["status"] != "ok":
        raise TevraneError(found["status"], found["errors"])
    return found


def _written(value):
    if isinstance(value, bool):
        return "true" if value else "false"
    return repr(value) if isinstance(value, float) else str(value)


def _read(text):
    try:
        return float(text)
    except (TypeError, ValueError):
        return text
