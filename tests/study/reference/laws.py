"""The library's distributions for those of study files."""

import math
import re

import openturns as ot

SHAPES = {
    "uniform": ot.Uniform,
    "log-uniform": lambda a, b: ot.LogUniform(math.log(a), math.log(b)),
    "normal": ot.Normal,
    "log-normal": lambda median, factor: ot.LogNormal(math.log(median), math.log(factor)),
    "triangular": ot.Triangular,
    "list": lambda *values: ot.UserDefined([[value] for value in values]),
}

FORM = re.compile(r"([a-z-]+)\(([^()]*)\)(?: within (\S+) to (\S+))?$")


def law(text):
    """The distribution that a study file writes like this."""
    shape, numbers, least, most = FORM.match(text).groups()
    distribution = SHAPES[shape](*(float(number) for number in numbers.split(",")))
    if least is None:
        return distribution
    return ot.TruncatedDistribution(distribution, float(least), float(most))
