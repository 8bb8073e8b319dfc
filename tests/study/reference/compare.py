"""Holds the statistics of studies against the library OpenTURNS, see scripts/compare-statistics."""

import sys

import openturns as ot

from answers import compare_answers
from comparison import Comparison
from indices import compare_functions
from samples import compare_samples
from studies import Studies


def main(program, indices, examples):
    ot.Log.Show(ot.Log.ERROR)
    ot.RandomGenerator.SetSeed(1)
    print(f"OpenTURNS {ot.__version__}")
    comparison = Comparison()
    studies = Studies(program)
    compare_samples(studies, comparison)
    compare_functions(studies, indices, comparison)
    compare_answers(studies, examples, comparison)
    print(f"\n{comparison.rows} comparisons, {comparison.broken} outside of their tolerance")
    return 1 if comparison.broken else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
