"""The examples run, and what they say is right."""

import subprocess
import sys
from pathlib import Path

import numpy as np
import pytest

EXAMPLES = Path(__file__).parents[1] / "examples"


def run(name, *arguments):
    answer = subprocess.run([sys.executable, EXAMPLES / name, *map(str, arguments)], capture_output=True, text=True,
                            check=False)
    assert answer.returncode == 0, answer.stderr
    return answer.stdout


def test_world_grid_gives_the_same_spread_by_dask():
    pytest.importorskip("distributed")
    alone = run("world_grid.py", "--days", 3, "--step", 10)
    assert alone.startswith(f"{3 * 18 * 36} place-days")
    assert run("world_grid.py", "--days", 3, "--step", 10, "--dask") == alone


def test_january_is_dark_in_the_north():
    hours = [float(line.split()[1]) for line in run("world_grid.py", "--step", 10).splitlines()[1:]]
    assert hours == sorted(hours, reverse=True)
    assert 12.3 < hours[2] < 12.5  # five degrees south of the equator


def test_plot_of_darkness_is_drawn(tmp_path):
    image = tmp_path / "darkness.png"
    run("darkness_of_a_year.py", "Helsinki", 2026, image)
    import matplotlib.image

    pixels = matplotlib.image.imread(image)
    assert pixels.shape == (480, 1080, 4)
    assert len(np.unique(pixels.reshape(-1, 4), axis=0)) > 3
