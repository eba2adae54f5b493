"""Finds the terms of a series in evenly spaced samples of a coordinate and fits them by least squares.

Again and again: the Fourier transform of what the terms so far leave; its strongest lines; for each the simplest
combination of the angles that explains it; all terms fitted anew.
"""
from typing import NamedTuple

import numpy as np

import arguments
from sky import DAYS_PER_CENTURY

LINES_AT_ONCE = 20
WEAKEST_LINE = 0.3        # of the strongest; what is weaker waits until that one is gone
SAME_RATE = 0.4           # in widths of a line, which is 1 over the time that the samples span
CLOSEST_TERMS = 0.1       # closer ones cannot be told apart
REACH_OF_T = 2.5          # a term that grows shows two lines beside its own
NEARLY_AS_WELL = 0.98     # of what the best combination explains
CANDIDATES = 60
WEIGHT_OF_T = 3.0
BLOCK = 721               # samples; a line that is turned to rest stays so for that long


class Term(NamedTuple):
    """A combination of the angles and the power of T by which its cosine and sine are multiplied."""
    power: int
    combination: tuple

    def rate(self):
        return abs(float(np.dot(self.combination, arguments.rates())))


class Search:
    def __init__(self, centuries, values, degree, combinations):
        self.centuries, self.values, self.degree = centuries, values, degree
        self.combinations = combinations
        self.angles = arguments.radians(centuries)
        self.days = centuries * DAYS_PER_CENTURY
        self.step = self.days[1] - self.days[0]
        self.line = 1.0 / (len(values) * self.step)
        self.window = 0.5 - 0.5 * np.cos(2 * np.pi * (np.arange(len(values)) + 0.5) / len(values))  # Hann's
        self._make_blocks()
        self.terms = []
        self.columns = np.array([centuries ** power for power in range(degree + 1)])
        self.gram = self.columns @ self.columns.T
        self.right = self.columns @ values
        self._fit()

    def run(self, count):
        """Searches until there are so many terms."""
        while len(self.terms) < count:
            found = []
            for rate in self._lines(min(LINES_AT_ONCE, count - len(self.terms))):
                term = self._match(rate)
                if term is not None and term not in found: found.append(term)
            if not found: raise RuntimeError("no combination explains what is left")
            self._add(found)

    def strongest(self, count, negligible):
        """That many terms, refitted: coefficients of the polynomial, terms, their (cosine, sine), the residual.

        A cosine or a sine that is negligible is left out.
        """
        head = self.degree + 1
        pairs = self.coefficients[head:].reshape(-1, 2)
        order = np.argsort(-np.hypot(*pairs.T), kind="stable")[:count]
        columns = np.concatenate([np.arange(head), np.ravel(head + 2 * order[:, None] + np.arange(2))])
        used = np.ones(len(columns), bool)
        for _ in range(2):
            coefficients = np.zeros(len(columns))
            some = columns[used]
            coefficients[used] = np.linalg.solve(self.gram[np.ix_(some, some)], self.right[some])
            used[head:] = np.abs(coefficients[head:]) >= negligible
        residual = self.values - coefficients @ self.columns[columns]
        return coefficients[:head], [self.terms[i] for i in order], coefficients[head:].reshape(-1, 2), residual

    def _add(self, terms):
        new = np.concatenate([self._basis(term) for term in terms])
        cross = self.columns @ new.T
        self.gram = np.block([[self.gram, cross], [cross.T, new @ new.T]])
        self.right = np.concatenate([self.right, new @ self.values])
        self.columns = np.concatenate([self.columns, new])
        self.terms += terms
        self._fit()

    def _basis(self, term):
        phase = np.array(term.combination, float) @ self.angles
        return self.centuries ** term.power * np.array([np.cos(phase), np.sin(phase)])

    def _fit(self):
        self.coefficients = np.linalg.solve(self.gram, self.right)
        self.residual = self.values - self.coefficients @ self.columns

    def _lines(self, count):
        """Rates of the strongest lines of the residual that stand alone, turns a day."""
        size = 4 << (len(self.residual) - 1).bit_length()
        amplitude = np.abs(np.fft.rfft(self.residual * self.window, size))
        inner = amplitude[1:-1]
        tops = 1 + np.flatnonzero((inner >= amplitude[:-2]) & (inner > amplitude[2:]))
        tops = tops[np.argsort(-amplitude[tops], kind="stable")]
        width = 4 * size / len(self.residual)
        chosen = []
        for top in tops:
            if len(chosen) == count or (chosen and amplitude[top] < WEAKEST_LINE * amplitude[chosen[0]]): break
            if all(abs(top - other) > width for other in chosen): chosen.append(top)
        return [(top + _summit(np.log(amplitude[top - 1:top + 2]))) / (size * self.step) for top in chosen]

    def _match(self, rate):
        """The simplest term that explains the line nearly as well as the best one does."""
        near = [term for term in self.terms if abs(term.rate() - rate) < 3 * self.line]
        candidates = [(weight, Term(0, combination)) for weight, combination in
                      self.combinations.near(rate, SAME_RATE * self.line, CANDIDATES)]
        candidates += [(WEIGHT_OF_T, Term(1, term.combination)) for term in near
                       if term.power == 0 and abs(term.rate() - rate) < REACH_OF_T * self.line]
        candidates = [(weight, term) for weight, term in candidates
                      if all(term.power != other.power or
                             abs(term.rate() - other.rate()) > CLOSEST_TERMS * self.line for other in near)]
        if not candidates: return None
        at_rest = self.residual * self.window * np.exp(-2j * np.pi * rate * self.days)
        at_rest = np.add.reduceat(at_rest, self.blocks)
        explained = [self._explained(term, rate, at_rest) for _, term in candidates]
        limit = NEARLY_AS_WELL * max(explained)
        return min(candidate for candidate, share in zip(candidates, explained) if share >= limit)[1]

    def _explained(self, term, rate, at_rest):
        phase = np.array(term.combination) @ self.block_angles - 2 * np.pi * rate * self.block_days
        wave = self.block_centuries ** term.power * np.exp(1j * phase)
        return abs(np.vdot(wave, at_rest)) ** 2 / np.sum(self.block_window * abs(wave) ** 2)

    def _make_blocks(self):
        self.blocks = np.arange(0, len(self.values), BLOCK)
        sizes = np.diff(np.append(self.blocks, len(self.values)))
        self.block_days = np.add.reduceat(self.days, self.blocks) / sizes
        self.block_centuries = self.block_days / DAYS_PER_CENTURY
        self.block_angles = arguments.radians(self.block_centuries)
        self.block_window = np.add.reduceat(self.window, self.blocks)


def _summit(three):
    """Where the parabola through three values, the middle one the highest, is highest: from the middle one."""
    left, middle, right = three
    return 0.5 * (left - right) / (left - 2 * middle + right)
