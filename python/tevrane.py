"""Runs of Tevrane from Python.

    import tevrane
    result = tevrane.run("doublet.tbat", kf=2e-3)
    result.wells["Injection"].temperatures[-1]   # degrees Celsius
    tevrane.Study("study_doublet.tstudy").frame()

Needs nothing but the standard library; frames are those of pandas where that is installed. The
programs are looked for in the directory that TEVRANE_BIN names, or else on the PATH.
"""

import contextlib
import csv
import dataclasses
import itertools
import json
import math
import numbers
import os
import pathlib
import shutil
import sqlite3
import subprocess
import tempfile
import warnings

SCHEMA = 1  # of the reports that this module reads

# The columns of a study's tables that hold texts, whatever these look like: a well may be named "01",
# and the hash that names a run may read like a number. All others hold numbers.
TEXT_COLUMNS = {"run", "well", "quantity", "unit", "outcome", "reason"}


class TevraneError(Exception):
    """A run that was refused or failed; `errors` says why, a line each, and `status` is
    "refused", "failed" or "stopped"."""

    def __init__(self, status, errors):
        super().__init__("; ".join(errors) or status)
        self.status = status
        self.errors = errors


class OldAnswers(UserWarning):
    """The answers of a study are those of an older state of it."""


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


CELL_SECTION = "installation"


def _is_cell(key):
    return key.split("\\")[0] in ("well_model", "demand_model", "well_demand_model")


def with_values(text, values, section_of):
    """A batch file with other values: they stand at its end, where they count instead of what
    stands above. A key of the tables of wells is "well_model\\2\\3"; whether its cell is there is for the
    programs to say. Raises KeyError for any other key that batch files do not have."""
    lines = [text.rstrip("\n")]
    for key, value in values.items():
        section = CELL_SECTION if _is_cell(key) else section_of[key]
        lines += [f"[{section}]", f"{key}={_written(value)}"]
    return "\n".join(lines) + "\n"


def run(base, values=None, /, convergence=False, **keys):
    """Runs a batch file with other values for some of its keys, given by name or, where a key is no
    name of Python, as a dictionary. The file stays as it is, and nothing is left beside it. A project
    file is run as it stands. Raises TevraneError for a run that is refused or fails, and for values
    of a project file; KeyError for a key that batch files do not have, and for a cell that the tables
    of this one do not have."""
    base = pathlib.Path(base)
    values = {**(values or {}), **keys}
    if values and base.suffix == ".tvr":
        raise TevraneError("refused", [f"{base}: expected a batch file (.tbat) for values by key"])
    with tempfile.TemporaryDirectory(prefix="tevrane-") as directory:
        site = pathlib.Path(directory, base.name)
        text = base.read_bytes().decode("utf-8", errors="surrogateescape")
        if values:
            text = with_values(text, values, sections())
        site.write_bytes(text.encode("utf-8", errors="surrogateescape"))
        _refuse_missing_cells(site, [key for key in values if _is_cell(key)])
        return Result(_report(site, ["--convergence"] if convergence else []))


class Study:
    """The answers of a study in its folder: "NAME.study", or the study file "NAME.tstudy" that it
    stands beside."""

    def __init__(self, path):
        path = pathlib.Path(path)
        self.folder = path.with_suffix(".study") if path.suffix == ".tstudy" else path

    def rows(self, table="answers.csv"):
        """The rows of one of its tables, a dictionary each: of "answers.csv" (run, well, time,
        quantity, value, unit) or of "runs.csv" (a row for each run). Numbers are floats, nan where a
        cell is empty; TEXT_COLUMNS are texts. Warns of OldAnswers as summary() does."""
        if table != "runs.csv":
            self._warn_of_old_answers()
        with open(self.folder / table, newline="", encoding="utf-8") as file:
            return [
                {column: _read(column, text) for column, text in row.items()}
                for row in csv.DictReader(file)
            ]

    def frame(self, table="answers.csv"):
        """The same as a frame of pandas, or as rows() where pandas is not installed."""
        rows = self.rows(table)
        try:
            import pandas
        except ImportError:
            return rows
        return pandas.DataFrame(rows)

    def summary(self):
        """What `tevrane-study` says of the study as a whole. Answers are written when all runs are
        there: a warning, OldAnswers, tells that the study has other runs, keys or answers by now than
        the summary, by its table of runs or by the number of runs in the study file beside the folder.
        `tevrane-study run` brings the answers up to date."""
        self._warn_of_old_answers()
        return self._summary()

    def _summary(self):
        return json.loads((self.folder / "summary.json").read_text(encoding="utf-8"))

    def _warn_of_old_answers(self):
        if (self.folder / "summary.json").exists() and (reason := self._sign_of_age(self._summary())):
            text = f"{self.folder}: the answers are older than the study: {reason}"
            warnings.warn(text, OldAnswers, stacklevel=3)

    def _sign_of_age(self, summary):
        """In what the study differs from its answers, or None."""
        planned = _planned_runs(self.folder.with_suffix(".tstudy"))
        if planned not in (None, summary["repeats"]):
            return f"it has {planned} runs, they are of {summary['repeats']}"
        with open(self.folder / "runs.csv", newline="", encoding="utf-8") as file:
            table = csv.reader(file)
            _, _, _, *columns, _ = next(table)  # between run, repeats, outcome and reason
            keys = [f"{key['key']} [{key['unit']}]" for key in summary["keys"]]
            if columns[: len(keys)] != keys:
                return "other keys are varied"
            if len(columns) != len(keys) + len(summary["quantities"]):
                return "it asks for other answers"
            if not self._answers_are_of(row[0] for row in table):
                return "other runs are there"
        return None

    def _answers_are_of(self, runs):
        """Whether the answers are those of these runs, in the order of their names, and of no others."""
        place = (self.folder / "results.sqlite").absolute().as_uri()
        with contextlib.closing(sqlite3.connect(f"{place}?mode=ro", uri=True)) as results:
            answered = (run for (run,) in results.execute("SELECT run FROM runs ORDER BY id"))
            return all(run == other for run, other in itertools.zip_longest(runs, answered))


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


def _refuse_missing_cells(site, keys):
    """Raises KeyError for one of the keys whose cell the tables of the file do not have: the programs
    warn of it, and go on without it."""
    if not keys:
        return
    ignored = [text for text in _report(site, ["--check"])["warnings"] if text.endswith(", ignored")]
    for key in keys:
        if any(text.startswith(f"[{CELL_SECTION}] {key}: ") for text in ignored):
            raise KeyError(key)


def _written(value):
    value = value.item() if hasattr(value, "item") else value  # of NumPy, which writes its type along
    if isinstance(value, numbers.Integral):
        return str(int(value))  # flags are 1 and 0: some keys read "true" as no number
    return repr(float(value)) if isinstance(value, numbers.Real) else str(value)


def _read(column, text):
    if column in TEXT_COLUMNS:
        return text
    return float(text) if text else math.nan


def _planned_runs(study):
    """The number of runs that a study file asks for; None where its sample settles it, or where there
    is no such file."""
    if not study.exists():
        return None
    found = {}
    section = ""
    for line in study.read_text(encoding="utf-8", errors="replace").splitlines():
        line = line.strip()
        if line.startswith("["):
            section = line
        elif section == "[study]":
            key, _, value = line.partition("=")
            found[key.strip()] = value.strip()
    if found.get("sampler") in ("grid", "table"):
        return None
    runs = found.get("runs", "1000")
    return int(runs) if runs.isdigit() else None
