"""A table of what this program and a reference say."""


class Comparison:
    """Prints a row for each comparison, and counts those that lie outside of their tolerance."""

    WIDTHS = (62, 12, 12, 12, 11)

    def __init__(self):
        self.broken = 0
        self.rows = 0

    def begin(self, title, note=""):
        print(f"\n{title}\n{note}".rstrip() + "\n")
        self._line(("", "here", "reference", "difference", "tolerance"))

    def near(self, what, here, reference, tolerance):
        """Both numbers differ by the tolerance at most."""
        difference = here - reference
        self._row(what, here, reference, difference, tolerance, abs(difference) <= tolerance)

    def below(self, what, here, bound):
        """A number that has no counterpart is a bound at most."""
        self._row(what, here, "", "", bound, here <= bound)

    def counts(self, what, here, bound, there):
        """A count is a bound at most; that of the reference is for information."""
        self._row(what, here, there, "", bound, here <= bound)

    def _row(self, what, here, reference, difference, tolerance, holds):
        self.rows += 1
        self.broken += not holds
        numbers = (n if n == "" else f"{n:.4g}" for n in (here, reference, difference, tolerance))
        self._line((what, *numbers), "" if holds else "  <- broken")

    def _line(self, cells, remark=""):
        first, *others = (f"{cell:>{width}}" for cell, width in zip(cells, self.WIDTHS))
        print(f"{cells[0]:<{self.WIDTHS[0]}}" + "".join(others) + remark)
