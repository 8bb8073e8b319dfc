"""Samplers held against the library's distributions, sequence, hypercubes and copulas."""

import math

import openturns as ot

from laws import law

LAWS = (
    "uniform(2, 6)",
    "uniform(0, 10) within 2 to 6",
    "log-uniform(0.001, 0.1)",
    "log-uniform(1, 10000) within 10 to 1000",
    "normal(10, 2)",
    "normal(10, 2) within 9 to 15",
    "normal(0, 1) within -6 to -2",
    "normal(0, 1) within 2 to 6",
    "log-normal(0.0025, 1.75)",
    "log-normal(0.0025, 1.75) within 0.0008 to 0.0075",
    "triangular(0.17, 0.25, 0.33)",
    "triangular(0, 1, 4) within 0.5 to 2",
    "list(5, 7, 9, 20)",
)

# Of Joe and Kuo (2008), new-joe-kuo-6.21201: the coefficients of the primitive polynomial as one
# number, and the first direction numbers, of the dimensions from 2.
PUBLISHED = (
    (0, (1,)), (1, (1, 3)), (1, (1, 3, 1)), (2, (1, 1, 1)), (1, (1, 1, 3, 3)), (4, (1, 3, 5, 13)),
    (2, (1, 1, 5, 5, 17)), (4, (1, 1, 5, 5, 5)), (7, (1, 1, 7, 11, 19)), (11, (1, 1, 5, 1, 1)),
    (13, (1, 1, 1, 3, 11)), (14, (1, 3, 5, 5, 31)), (1, (1, 3, 3, 9, 7, 49)),
    (13, (1, 1, 1, 15, 21, 21)), (16, (1, 3, 1, 13, 27, 49)),
)

DIGITS = 13
POINTS = 2**DIGITS - 1  # of a sequence, without its origin


def column(sample, place):
    return [point[place] for point in sample]


def furthest(one, other):
    return max(abs(a - b) for a, b in zip(one, other))


def compare_distributions(studies, comparison):
    points = 999
    comparison.begin(
        "Quantiles of distributions",
        f"Largest difference of {points} quantiles (a grid of one key), as a share of the"
        " distribution's\nstandard deviation, and of the library's probability of them to the one"
        " asked for.")
    shares = [(i + 0.5) / points for i in range(points)]
    for text in LAWS:
        reference = law(text)
        grid = {} if text.startswith("list") else {"grid_points": points}
        values = column(studies.sample([text], sampler="grid", **grid), 0)
        if not grid:
            comparison.below(text, furthest(values, column(reference.getSupport(), 0)), 0)
            continue
        quantiles = [reference.computeQuantile(share)[0] for share in shares]
        deviation = reference.getStandardDeviation()[0]
        comparison.below(text, furthest(values, quantiles) / deviation, 1e-9)
        probabilities = map(reference.computeCDF, values)
        comparison.below("  probability", furthest(shares, probabilities), 1e-12)


def compare_hypercube(studies, comparison):
    runs = 500
    comparison.begin(
        "Latin hypercube: stratification",
        f"Kolmogorov's distance of each key of one sample of {runs} runs, by the library: of one"
        " value in each\nshare 1 / runs at most, of independent draws about 0.87 / sqrt(runs) ="
        f" {0.87 / math.sqrt(runs):.3f}.")
    laws = [text for text in LAWS if not text.startswith("list")]
    sample = studies.sample(laws, runs=runs)
    for place, text in enumerate(laws):
        test = ot.FittingTest.Kolmogorov(sample.getMarginal(place), law(text))
        comparison.below(text, test.getStatistic(), 1 / runs + 1e-12)


def mean_discrepancy(samples):
    values = [ot.SpaceFillingC2().evaluate(sample) for sample in samples]
    mean = sum(values) / len(values)
    return mean, math.sqrt(sum((value - mean)**2 for value in values) / (len(values) - 1))


def compare_discrepancy(studies, comparison):
    runs, dimensions, seeds = 200, 6, 20
    comparison.begin(
        "Evenness: centred L2 discrepancy",
        f"Latin hypercubes of {runs} points in {dimensions} dimensions: mean of {seeds}, against"
        f" that of {10 * seeds} of the library;\ntolerance four standard deviations of the first."
        " Sequences: no less even than the library's by more than a tenth.")
    laws = ["uniform(0, 1)"] * dimensions
    box = ot.ComposedDistribution([ot.Uniform(0, 1)] * dimensions)
    here, deviation = mean_discrepancy(
        [studies.sample(laws, runs=runs, seed=seed) for seed in range(1, seeds + 1)])
    library, _ = mean_discrepancy(
        [ot.LHSExperiment(box, runs).generate() for _ in range(10 * seeds)])
    comparison.near("Latin hypercube", here, library, 4 * deviation / math.sqrt(seeds))
    sequence = ot.SobolSequence(dimensions).generate(POINTS)
    bound = 1.1 * ot.SpaceFillingC2().evaluate(sequence)
    for seed in (0, 1, 2):
        sample = studies.sample(laws, runs=POINTS, sampler="sobol", seed=seed)
        discrepancy = ot.SpaceFillingC2().evaluate(sample)
        comparison.below(f"Sobol' sequence, seed {seed}", discrepancy, bound)


def direction_numbers(points):
    """The direction numbers of a dimension of a sequence in the order of the Gray code, each as an
    odd number below a power of 2, from its first points."""
    whole = [0] + [round(point * 2**DIGITS) for point in points]
    differences = [whole[2**k] ^ whole[2**k - 1] for k in range(DIGITS)]
    return [number >> (DIGITS - 1 - k) for k, number in enumerate(differences)]


def grown(coefficients, first):
    """The direction numbers that a primitive polynomial makes of the first ones."""
    degree = len(first)
    numbers = list(first)
    while len(numbers) < DIGITS:
        number = numbers[-degree] ^ (numbers[-degree] << degree)
        for k in range(1, degree):
            if coefficients >> (degree - 1 - k) & 1:
                number ^= numbers[-k] << k
        numbers.append(number)
    return numbers


def compare_sequence(studies, comparison):
    dimensions = 1 + len(PUBLISHED)
    comparison.begin(
        "Sobol' sequence, dimension by dimension",
        f"First {POINTS} points. The two dimensions that all tables of direction numbers share are"
        " held against the\nlibrary. Beyond them the library has an older table, of 1111"
        " dimensions, as its numbers tell: what\nis counted is how many of the first"
        f" {DIGITS} differ from Joe and Kuo (2008), here and there.")
    sample = studies.sample(["uniform(0, 1)"] * dimensions, runs=POINTS, sampler="sobol", seed=0)
    library = ot.SobolSequence(dimensions).generate(POINTS)
    for place in range(dimensions):
        here, other = column(sample, place), column(library, place)
        name = f"dimension {place + 1}"
        if place < 2:
            comparison.below(f"{name}, difference", furthest(here, other), 0)
        if place > 0:
            published = grown(*PUBLISHED[place - 1])
            comparison.counts(f"{name}, direction numbers",
                              differing(direction_numbers(here), published), 0,
                              differing(direction_numbers(other), published))


def differing(one, other):
    return sum(a != b for a, b in zip(one, other))


def compare_correlations(studies, comparison):
    runs = 1000
    asked = ((0, 1, 0.6), (1, 2, -0.4), (2, 3, 0.7))
    laws = ["uniform(0, 1)", "normal(10, 2)", "log-normal(0.0025, 1.75)", "triangular(0, 1, 4)"]
    comparison.begin(
        "Rank correlation",
        f"Spearman's by the library, of {runs} runs; what is not asked for is 0.")
    for sampler in ("latin-hypercube", "sobol"):
        sample = studies.sample(laws, asked, sampler=sampler, runs=runs)
        found = sample.computeSpearmanCorrelation()
        for i in range(len(laws)):
            for j in range(i):
                wanted = next((value for a, b, value in asked if (a, b) == (j, i)), 0)
                comparison.near(f"{sampler}, keys {j + 1} and {i + 1}", found[i, j], wanted, 0.02)
    compare_copula(studies, comparison, asked)


def compare_copula(studies, comparison, asked):
    comparison.begin(
        "Normal copula of a sequence",
        "Largest difference to the library's conditional quantiles at the points that are bent.")
    even = ["uniform(0, 1)"] * 4
    settings = {"sampler": "sobol", "runs": POINTS, "seed": 3}
    ranks = ot.CorrelationMatrix(4)
    for i, j, value in asked:
        ranks[i, j] = value
    copula = ot.NormalCopula(ot.NormalCopula.GetCorrelationFromSpearmanCorrelation(ranks))
    bent = [copula.computeSequentialConditionalQuantile(point)
            for point in studies.sample(even, **settings)]
    here = studies.sample(even, asked, **settings)
    for place in range(4):
        difference = furthest(column(here, place), column(bent, place))
        comparison.below(f"key {place + 1}", difference, 1e-9)


def compare_samples(studies, comparison):
    for compare in (compare_distributions, compare_hypercube, compare_discrepancy,
                    compare_sequence, compare_correlations):
        compare(studies, comparison)
