"""The angles of which every term's argument is a whole-number combination.

IERS Conventions (2010), IERS Technical Note 36, chapter 5: the Moon's and the Sun's from formula 5.43 (Simon et al.,
Astronomy and Astrophysics 282 (1994) 663), the planets' mean longitudes from formula 5.44.
"""
import numpy as np

from sky import DAYS_PER_CENTURY

TURN = 1296000.0  # seconds of arc

# Seconds of arc at J2000, then for each power of Julian centuries TT.
POLYNOMIALS = {
    "l": (485868.249036, 1717915923.2178, 31.8792, 0.051635, -0.00024470),    # mean anomaly of the Moon
    "l'": (1287104.793048, 129596581.0481, -0.5532, 0.000136, -0.00001149),   # mean anomaly of the Sun
    "F": (335779.526232, 1739527262.8478, -12.7512, -0.001037, 0.00000417),   # the Moon from its node
    "D": (1072260.703692, 1602961601.2090, -6.3706, 0.006593, -0.00003169),   # the Moon from the Sun
    "Om": (450160.398036, -6962890.5431, 7.4722, 0.007702, -0.00005939),      # the node of the Moon
}
# Radians at J2000 and a century.
PLANETS = {
    "Ve": (3.176146697, 1021.3285546211),
    "Ea": (1.753470314, 628.3075849991),
    "Ma": (6.203480913, 334.0612426700),
    "Ju": (0.599546497, 52.9690962641),
    "Sa": (0.874016757, 21.3299104960),
}
COUNT = len(POLYNOMIALS) + len(PLANETS)
MOON_COUNT = len(POLYNOMIALS)
PLANET_COUNT = len(PLANETS)
DEGREE = 4


def turns():
    """For each angle the coefficients of the powers of T, in turns."""
    rows = [np.array(seconds) / TURN for seconds in POLYNOMIALS.values()]
    rows += [np.array([start, rate, 0, 0, 0]) / (2 * np.pi) for start, rate in PLANETS.values()]
    return np.array(rows)


def radians(centuries):
    """The angles at the given centuries, one row each."""
    powers = np.vander(centuries, DEGREE + 1, increasing=True).T
    return 2 * np.pi * ((turns() @ powers) % 1.0)


def rates():
    """Turns a day at J2000."""
    return turns()[:, 1] / DAYS_PER_CENTURY
