"""Plots the year's darkness at a city: python darkness_of_a_year.py Helsinki 2026 darkness.png"""

import sys
from datetime import date

import matplotlib

matplotlib.use("Agg")
import matplotlib.pyplot as plt
import velmora
from velmora import arrays


def main(name: str, year: int, path: str) -> None:
    city = velmora.cities(name)[0]
    days, _ = arrays.days(city.place, date(year, 1, 1), date(year, 12, 31), transits=False)
    when = arrays.times(days["start"])
    hours = (days["end"] - days["start"]) / 3600
    figure, axes = plt.subplots(figsize=(9, 4), layout="constrained")
    axes.fill_between(when, 0, days["darkness"] / 3600, color="#101840", label="dark (Sun below −18°)")
    axes.fill_between(when, days["darkness"] / 3600, hours - days["daylight"] / 3600, color="#5a6ea8", label="twilight")
    axes.fill_between(when, hours - days["daylight"] / 3600, hours, color="#f4d58d", label="daylight")
    axes.set(title=f"{city}: light and darkness of {year}", ylabel="hours a day", ylim=(0, 24),
             yticks=range(0, 25, 4), xlim=(when[0], when[-1]))
    axes.legend(loc="upper center", ncols=3)
    figure.savefig(path, dpi=120)


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit("usage: darkness_of_a_year.py CITY YEAR FILE.png")
    main(sys.argv[1], int(sys.argv[2]), sys.argv[3])
