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
# Of F, in the arguments of the Moon's coordinates.
EVEN, ODD = 0, 1


class Wanted:
    def __init__(self, name, unit, degree, count, combinations):
        self.name, self.unit, self.degree, self.count, self.combinations = name, unit, degree, count, combinations

    def fit(self, centuries, values):
        search = Search(centuries, values, self.degree, self.combinations)
        search.run(round(SEARCHED_BESIDE * self.count))
        polynomial, terms, pairs, residual = search.strongest(self.count)
        print(f"{self.name}: {self.count} terms, RMS {np.sqrt(np.mean(residual ** 2)):.4f}, "
              f"largest {np.abs(residual).max():.4f}", file=sys.stderr)
        return table.Coordinate(self.name, self.unit, polynomial, terms, pairs)


def unwrapped(longitudes):
    return np.unwrap(longitudes, period=360.0)


def main():
    directory = Path(sys.argv[1])
    dates = sky.J2000 + DAYS_APART * np.arange(-DAYS_TO_EACH_SIDE, DAYS_TO_EACH_SIDE + 1)
    centuries = sky.centuries(dates)
    moon, sun, nutation = sky.apparent(sky.MOON, dates), sky.apparent(sky.SUN, dates), sky.nutation(dates)
    even, odd, free = Combinations(EVEN), Combinations(ODD), Combinations()
    every = {
        "Moon": [
            (Wanted("Longitude", MILLIARCSECOND, 4, 400, even), unwrapped(moon[0]) * ARCSECONDS),
            (Wanted("Latitude", MILLIARCSECOND, 0, 200, odd), moon[1] * ARCSECONDS),
            (Wanted("Distance", TEN_METRES, 2, 100, even), moon[2] * KILOMETRES)],
        "Sun": [
            (Wanted("Longitude", MILLIARCSECOND, 4, 100, free), unwrapped(sun[0]) * ARCSECONDS),
            (Wanted("Latitude", MILLIARCSECOND, 1, 20, free), sun[1] * ARCSECONDS),
            (Wanted("Distance", KILOMETRE, 2, 40, free), sun[2] * KILOMETRES)],
        "Nutation": [
            (Wanted("Longitude", MILLIARCSECOND / 10, 0, 20, free), nutation[0] * ARCSECONDS),
            (Wanted("Obliquity", MILLIARCSECOND / 10, 0, 20, free), nutation[1] * ARCSECONDS)],
    }
    (directory / "Angles.cpp").write_text(table.angles(arguments.turns()))
    for name, coordinates in every.items():
        fitted = [wanted.fit(centuries, values) for wanted, values in coordinates]
        (directory / f"{name}Series.cpp").write_text(table.series(f"{name.lower()}Series", fitted))


if __name__ == "__main__":
    main()
