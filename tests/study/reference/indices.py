"""Sensitivity indices and figures of answers held against the library's and closed forms."""

import csv
import json
import math
import pathlib
import shutil
import subprocess

import openturns as ot

from laws import law

RUNS = 1000
MORE_RUNS = 2**17  # of the library's own experiments


class Function:
    """An answer with closed indices: the laws of the keys x1, x2 ..., a formula, and what each key
    has of the variance alone, and in all."""

    def __init__(self, name, laws, formula, first, total):
        self.name, self.laws = name, laws
        self.first, self.total = first, total
        self.model = ot.SymbolicFunction([f"x{i + 1}" for i in range(len(laws))], [formula])


def ishigami():
    """Ishigami and Homma (1990), with a = 7 and b = 0.1."""
    one = (1 + 0.1 * math.pi**4 / 5)**2 / 2
    two = 49 / 8
    one_and_three = 0.01 * math.pi**8 * 8 / 225
    variance = one + two + one_and_three
    return Function(
        "Ishigami", [f"uniform({-math.pi}, {math.pi})"] * 3,
        "sin(x1) + 7 * sin(x2)^2 + 0.1 * x3^4 * sin(x1)",
        [one / variance, two / variance, 0],
        [(one + one_and_three) / variance, two / variance, one_and_three / variance])


def linear():
    factors = (4, -1, 0.5, 60)
    laws = ["uniform(0, 1)", "normal(10, 1)", "triangular(0, 1, 4)", "log-uniform(0.001, 0.1)"]
    variances = [(factor * law(text).getStandardDeviation()[0])**2
                 for factor, text in zip(factors, laws)]
    shares = [variance / sum(variances) for variance in variances]
    return Function("Linear", laws, "4 * x1 - x2 + 0.5 * x3 + 60 * x4", shares, shares)


def product():
    """Factors 1 + a (2 u - 1) of even keys, each with a variance of a² / 3."""
    weights = (1, 0.8, 0.4)
    ratios = [weight**2 / 3 for weight in weights]
    whole = math.prod(1 + ratio for ratio in ratios)
    return Function(
        "Product", ["uniform(-1, 1)"] * len(weights),
        "(1 + x1) * (1 + 0.8 * x2) * (1 + 0.4 * x3)",
        [ratio / (whole - 1) for ratio in ratios],
        [ratio / (1 + ratio) * whole / (whole - 1) for ratio in ratios])


def indices_here(program, directory, sample, answers):
    """What the project's own estimators say of a table."""
    path = directory / "table.csv"
    with open(path, "w", newline="") as table:
        rows = csv.writer(table)
        rows.writerow([f"key_{i + 1}" for i in range(sample.getDimension())] + ["answer"])
        rows.writerows([*map(repr, key), repr(answer[0])] for key, answer in zip(sample, answers))
    output = subprocess.run([program, path], check=True, capture_output=True, text=True).stdout
    return json.loads(output)


def chaos(laws, sample, answers):
    """First order and total indices of a sparse polynomial chaos, fitted by the library."""
    distribution = ot.ComposedDistribution([law(text) for text in laws])
    basis = ot.OrthogonalProductPolynomialFactory(
        [ot.StandardDistributionPolynomialFactory(distribution.getMarginal(i))
         for i in range(len(laws))])
    terms = basis.getEnumerateFunction().getStrataCumulatedCardinal(10 if len(laws) < 4 else 5)
    strategy = ot.FixedStrategy(basis, min(terms, sample.getSize() // 2))
    projection = ot.LeastSquaresStrategy(
        ot.LeastSquaresMetaModelSelectionFactory(ot.LARS(), ot.CorrectedLeaveOneOut()))
    algorithm = ot.FunctionalChaosAlgorithm(sample, answers, distribution, strategy, projection)
    algorithm.run()
    indices = ot.FunctionalChaosSobolIndices(algorithm.getResult())
    keys = range(len(laws))
    return ([indices.getSobolIndex(i) for i in keys], [indices.getSobolTotalIndex(i) for i in keys])


def experiment(function, algorithm):
    """First order and total indices from runs that the library asks for itself."""
    distribution = ot.ComposedDistribution([law(text) for text in function.laws])
    points = ot.SobolIndicesExperiment(distribution, MORE_RUNS).generate()
    indices = algorithm(points, function.model(points), MORE_RUNS)
    return indices.getFirstOrderIndices(), indices.getTotalOrderIndices()


def ranks_tolerance(runs):
    """Three standard deviations of the estimator, which are below 1 / sqrt(runs)."""
    return 3 / math.sqrt(runs)


def chaos_tolerance(explained):
    """What the polynomials leave unexplained, and the sampling error of what they explain."""
    return 0.02 + (1 - explained)


def compare_function(function, studies, program, comparison):
    sample = studies.sample(function.laws, runs=RUNS)
    answers = function.model(sample)
    here = indices_here(program, studies.directory, sample, answers)
    references = {
        "closed form": (function.first, function.total),
        "chaos": chaos(function.laws, sample, answers),
        "Saltelli": experiment(function, ot.SaltelliSensitivityAlgorithm),
        "Martinez": experiment(function, ot.MartinezSensitivityAlgorithm),
    }
    for name, (first, total) in references.items():
        for key in range(len(function.laws)):
            of_key = f"{function.name}, key {key + 1}, {name}"
            comparison.near(f"{of_key}, first order by ranks", here["by_ranks"][key], first[key],
                            ranks_tolerance(RUNS))
            for index, reference in (("first_order", first), ("total", total)):
                comparison.near(f"{of_key}, {index}", here[index][key], reference[key],
                                chaos_tolerance(here["explained"]))


def compare_functions(studies, program, comparison):
    comparison.begin(
        "Sensitivity indices of functions",
        f"One Latin hypercube of {RUNS} runs, against the closed form, the library's polynomial"
        " chaos of the same runs,\nand its estimators of Saltelli and Martinez from"
        f" {MORE_RUNS} x (keys + 2) runs of its own.")
    for function in (ishigami(), linear(), product()):
        compare_function(function, studies, program, comparison)
