"""A day or a year over a grid of the world: where the longest day is, and how long the Sun is up everywhere.

    python world_grid.py                      one day in this process, on all its cores
    python world_grid.py --days 366 --dask    a year, spread by Dask over a cluster of this machine
    python world_grid.py --days 366 --dask tcp://scheduler:8786    the same on a cluster that runs elsewhere
"""

import argparse
import os
from datetime import datetime, timedelta, timezone

import numpy as np
from velmora import arrays

START = datetime(2024, 1, 1, tzinfo=timezone.utc)


def grid(step: float) -> tuple[np.ndarray, np.ndarray]:
    """Latitudes and longitudes of the grid's points, degrees."""
    latitudes = np.arange(-90 + step / 2, 90, step)
    longitudes = np.arange(-180 + step / 2, 180, step)
    north, east = np.meshgrid(latitudes, longitudes, indexing="ij")
    return north, east


def daylight(day: int, step: float, threads: int) -> np.ndarray:
    """Hours of daylight of one day at every point of the grid."""
    start = START + timedelta(days=day)
    world = arrays.at_places(*grid(step), start, start + timedelta(days=1), threads=threads)
    return world["daylight"] / 3600


def spread(days: int, step: float, scheduler: str) -> np.ndarray:
    """The days' daylight, a task a day, on the cluster of that scheduler or one of this machine."""
    from dask.distributed import Client, LocalCluster

    with Client(scheduler or LocalCluster(n_workers=os.cpu_count(), threads_per_worker=1)) as client:
        return np.stack(client.gather([client.submit(daylight, day, step, 1) for day in range(days)]))


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--days", type=int, default=1)
    parser.add_argument("--step", type=float, default=0.5, help="degrees between the points")
    parser.add_argument("--dask", nargs="?", const="", help="spread by Dask; the scheduler's address, or a local one")
    given = parser.parse_args()
    if given.dask is None:
        hours = np.stack([daylight(day, given.step, os.cpu_count() or 1) for day in range(given.days)])
    else:
        hours = spread(given.days, given.step, given.dask)
    latitudes = grid(given.step)[0][:, 0]
    print(f"{hours.size} place-days")
    for latitude in (-60, -30, 0, 30, 60):
        row = np.abs(latitudes - latitude).argmin()
        print(f"{latitudes[row]:6.2f}: {hours[:, row].mean():.2f} hours of daylight a day")


if __name__ == "__main__":
    main()
