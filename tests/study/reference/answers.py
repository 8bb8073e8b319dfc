"""The answers of a real study held against the library's figures of its table of runs."""

import math
import pathlib
import shutil

import openturns as ot

from indices import chaos, chaos_tolerance

RUNS = 300
KEYS = {
    "kf": "log-normal(0.0025, 1.75) within 0.0008 to 0.0075",
    "groundwater_gradient": "triangular(0.17, 0.25, 0.33)",
    "groundwater_flow_direction": "uniform(45, 85)",
    "aquifer_porosity": "triangular(0.12, 0.2, 0.28)",
    "aquifer_h": "uniform(10, 14)",
    "heat_conductivity_surrounding": "uniform(1.8, 2.6)",
}
LEAST_EXPLAINED = 0.8  # or there are no totals
NOISE = 1e-3  # [m, K]: answers that vary less are constant but for the error of the solvers


def run_doublet(studies, examples):
    """The study of the examples, with independent keys: rows by title, and the summary."""
    shutil.copy(pathlib.Path(examples) / "doublet.tbat", studies.directory)
    lines = ["[study]", "base=doublet.tbat", f"runs={RUNS}", "[vary]"]
    lines += [f"{key}={text}" for key, text in KEYS.items()]
    lines += ["[answers]", "times=30", "levels=-1"]
    (studies.directory / "doublet.tstudy").write_text("\n".join(lines) + "\n")
    return studies.run("doublet.tstudy")


def order_statistics(values, share):
    """A percentile and the bounds of its interval of 90 %, by the library's binomial law; None for
    a bound that the sample is too small for."""
    ordered = sorted(values)
    below = ot.Binomial(len(ordered), share)
    ranks = range(1, len(ordered) + 1)
    low = [rank for rank in ranks if below.computeCDF([rank - 1]) < 0.05]
    high = [rank for rank in ranks if below.computeCDF([rank - 1]) >= 0.95]
    return (ordered[math.ceil(share * len(ordered)) - 1], ordered[low[-1] - 1] if low else None,
            ordered[high[0] - 1] if high else None)


def percentiles_that_differ(quantity, values):
    shares = {"P5": 0.05, "P10": 0.1, "P50": 0.5, "P90": 0.9, "P95": 0.95}
    return sum((found["value"], *found["interval"]) != order_statistics(values, shares[name])
               for name, found in quantity["percentiles"].items())


def compare_spread(title, quantity, sample, comparison):
    scale = quantity["deviation"]
    mean = sample.computeMean()[0]
    comparison.near(f"{title}, mean", quantity["mean"], mean, 1e-9 * scale + 1e-14 * abs(mean))
    comparison.near(f"{title}, deviation", scale, sample.computeStandardDeviation()[0],
                    1e-9 * scale)
    comparison.below(f"{title}, percentiles that differ",
                     percentiles_that_differ(quantity, [value[0] for value in sample]), 0)


def compare_worst(what, names, here, reference, tolerance, comparison):
    """The key whose index differs most."""
    worst = max(range(len(names)), key=lambda i: abs(here[i] - reference[i]))
    comparison.near(f"{what}, {names[worst]}", here[worst], reference[worst], tolerance)


def compare_influences(title, quantity, keys, sample, comparison):
    first, total = chaos(list(KEYS.values()), keys, sample)
    found = [quantity["influences"][name] for name in KEYS]
    for index, reference in (("first_order", first), ("total", total)):
        compare_worst(f"{title}, {index}", list(KEYS), [one[index] for one in found], reference,
                      chaos_tolerance(quantity["explained"]), comparison)


def compare_answers(studies, examples, comparison):
    comparison.begin(
        "Answers of a study",
        f"{RUNS} runs of examples/study_doublet.tstudy without the correlation of its keys; figures"
        " of summary.json\nagainst the library's from runs.csv; indices of what polynomials"
        " foretell against a chaos, of each answer\nthe key that differs most.")
    rows, summary = run_doublet(studies, examples)
    titles = list(rows[0])
    first = titles.index("outcome") + 1
    keys = ot.Sample([[float(row[title]) for title in titles[first:first + len(KEYS)]]
                      for row in rows])
    for title, quantity in zip(titles[first + len(KEYS):], summary["quantities"]):
        sample = ot.Sample([[float(row[title])] for row in rows])
        compare_spread(title, quantity, sample, comparison)
        if quantity["deviation"] > NOISE and quantity["explained"] >= LEAST_EXPLAINED:
            compare_influences(title, quantity, keys, sample, comparison)
