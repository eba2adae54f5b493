"""The whole-number combinations of the angles that may be the argument of a term."""
import numpy as np

import arguments

# How often l, l', F, D may stand in one, and all of them together.
MOON = ((6, 4, 5, 8), 12)
# Beside planets and the node: l' comes as the Earth, which stands a nearly constant angle from it.
MOON_BESIDE_OTHERS = ((6, 0, 5, 7), 7)
NODE = 2
# Which planets come together (places in Ve, Ea, Ma, Ju, Sa), how often each and all of them.
PLANETS = [
    ((0, 1), (21, 21), 42),
    ((1, 2), (18, 9), 27),
    ((1, 3, 4), (6, 6, 4), 16),
    ((0, 3), (5, 4), 9),
    ((0, 1, 2), (8, 8, 3), 12),
]
# The more of this a combination has, the less simple it is; l, l', F, D, Om, Ve, Ea, Ma, Ju, Sa.
WEIGHTS = np.array([1.0, 1.0, 1.0, 1.0, 1.0, 0.3, 0.3, 0.5, 0.7, 0.9])
WEIGHT_OF_A_PLANET = 2.0
SLOWEST = 1e-9  # turns a day


def _within(limits, sum_limit):
    axes = np.meshgrid(*[np.arange(-n, n + 1) for n in limits], indexing="ij")
    rows = np.stack(axes, axis=-1).reshape(-1, len(limits))
    return rows[np.abs(rows).sum(axis=1) <= sum_limit]


def _planets():
    rows = []
    for places, limits, sum_limit in PLANETS:
        some = _within(limits, sum_limit)
        wide = np.zeros((len(some), arguments.PLANET_COUNT), int)
        wide[:, places] = some
        rows.append(wide)
    rows = np.unique(np.concatenate(rows), axis=0)
    return rows[np.any(rows, axis=1)]


def _all():
    """Those of l, l', F and D alone, those with the node, those with planets."""
    def join(moon, node, planets):
        count = len(moon)
        return np.hstack([moon, np.full((count, 1), node), np.tile(planets, (count, 1))])

    none = np.zeros(arguments.PLANET_COUNT, int)
    alone, beside = _within(*MOON), _within(*MOON_BESIDE_OTHERS)
    rows = [join(alone, 0, none)]
    rows += [join(beside, node, none) for node in range(-NODE, NODE + 1) if node]
    rows += [join(beside, 0, planets) for planets in _planets()]
    return np.concatenate(rows).astype(np.int8)


class Combinations:
    """Sorted by rate. Of the Moon those with F an even number of times, or an odd one for the latitude."""

    def __init__(self, parity_of_F=None):
        rows = _all()
        if parity_of_F is not None: rows = rows[rows[:, 2] % 2 == parity_of_F]
        rates = rows @ arguments.rates()
        rows, rates = rows[rates > SLOWEST], rates[rates > SLOWEST]
        order = np.argsort(rates, kind="stable")
        self._rows, self._rates = rows[order], rates[order]

    def near(self, rate, tolerance, count):
        """The simplest ones whose rate is that: pairs of weight and combination."""
        low, high = np.searchsorted(self._rates, [rate - tolerance, rate + tolerance])
        rows = self._rows[low:high]
        planets = rows[:, arguments.MOON_COUNT:]
        weights = (np.abs(rows) @ WEIGHTS + WEIGHT_OF_A_PLANET * np.count_nonzero(planets, axis=1) +
                   np.abs(planets.sum(axis=1)))
        order = np.argsort(weights, kind="stable")[:count]
        return [(weights[i], tuple(int(x) for x in rows[i])) for i in order]
