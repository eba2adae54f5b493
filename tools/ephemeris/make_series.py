#!/usr/bin/python3
"""make_series.py DIRECTORY: fits the series of the ephemeris and writes their tables in C++ there."""
import sys
from pathlib import Path

import numpy as np

import arguments
import sky
import table
from combinations import Combinations
from series import Search

DAYS_APART = 0.4
DAYS_TO_EACH_SIDE = 92311   # samples; to 1898-11-23 and 2101-02-08
SEARCHED_BESIDE = 1.1       # terms searched for each that is kept
ARCSECONDS = 3600.0         # of a degree
KILOMETRES = 149597870.7    # of an astronomical unit
MILLIARCSECOND, TEN_METRES, KILOMETRE = 0.001, 0.01, 1.0
NEGLIGIBLE = 4              # units; a smaller cosine or sine is left out
# By their places: with l and D, or the Earth and Jupiter, as inner part the tables are the shortest.
INNER_ANGLES = {"Moon": (0, 3), "Sun": (6, 8), "Nutation": (0, 3)}
EVEN, ODD = 0, 1            # how often F stands in the arguments of the Moon's coordinates


class Wanted:
    """A coordinate: its unit, the degree of its polynomial, how many terms, of which combinations."""

    def __init__(self, values, unit, degree, count, combinations, is_of_cosines=False):
        self.values, self.unit, self.degree, self.count = values, unit, degree, count
        self.combinations, self.is_of_cosines = combinations, is_of_cosines

    def fit(self, centuries):
        search = Search(centuries, self.values, self.degree, self.combinations)
        search.run(round(SEARCHED_BESIDE * self.count))
        polynomial, terms, pairs, residual = search.strongest(self.count, NEGLIGIBLE * self.unit)
        print(f"  {self.count} terms: RMS {np.sqrt(np.mean(residual ** 2)):.4f}, "
              f"largest {np.abs(residual).max():.4f}", file=sys.stderr)
        return table.Coordinate(self.unit, self.is_of_cosines, polynomial, terms, pairs)


def wanted(dates):
    even, odd, free = Combinations(EVEN), Combinations(ODD), Combinations()

    def direction(body):
        longitude, latitude = sky.direction(body, dates)
        return np.unwrap(longitude, period=360.0) * ARCSECONDS, latitude * ARCSECONDS

    moon, sun = direction(sky.MOON), direction(sky.SUN)
    nutation = sky.nutation(dates) * ARCSECONDS
    return {
        "Moon": [Wanted(moon[0], MILLIARCSECOND, 4, 400, even),
                 Wanted(moon[1], MILLIARCSECOND, 0, 200, odd),
                 Wanted(sky.distance(sky.MOON, dates) * KILOMETRES, TEN_METRES, 2, 118, even, is_of_cosines=True)],
        "Sun": [Wanted(sun[0], MILLIARCSECOND, 4, 100, free),
                Wanted(sun[1], MILLIARCSECOND, 1, 20, free),
                Wanted(sky.distance(sky.SUN, dates) * KILOMETRES, KILOMETRE, 2, 36, free, is_of_cosines=True)],
        "Nutation": [Wanted(nutation[0], MILLIARCSECOND / 10, 0, 20, free),
                     Wanted(nutation[1], MILLIARCSECOND / 10, 0, 20, free, is_of_cosines=True)],
    }


def main():
    directory = Path(sys.argv[1])
    dates = sky.J2000 + DAYS_APART * np.arange(-DAYS_TO_EACH_SIDE, DAYS_TO_EACH_SIDE + 1)
    (directory / "Angles.cpp").write_text(table.angles(arguments.turns()))
    for name, coordinates in wanted(dates).items():
        print(name, file=sys.stderr)
        fitted = [coordinate.fit(sky.centuries(dates)) for coordinate in coordinates]
        (directory / f"{name}Series.cpp").write_text(table.series(f"{name.lower()}Series", INNER_ANGLES[name], fitted))


if __name__ == "__main__":
    main()
