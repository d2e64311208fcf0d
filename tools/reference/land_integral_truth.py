#!/usr/bin/env python3
"""Writes tests/data/land_integral_truth.csv: integrals of Land's density by quadrature.

Reason: shows what the adaptive Simpson rule with its absolute tolerance costs by itself, apart
from the range of integration that Land's probability chooses. Method: with x = sqrt(nu) tan(theta)
the range is finite and the density smooth; Gauss-Legendre panels on both sides of the peak, 40
digits. The arguments are the exact doubles whose decimal text stands in the row. Needs mpmath
(python3-mpmath).
"""

import csv
from pathlib import Path

import mpmath as mp

from land_truth import NUS, panels, peak_of

TABLE = Path(__file__).resolve().parents[2] / "tests" / "data" / "land_integral_truth.csv"
SLOPES = [-0.02, -0.7, -5.0, -60.0]


def integral(nu, a, y, z, start, end):
    """Of the density with its peak y, whose sine is z, from `start` to `end`."""
    if start > end:
        return -integral(nu, a, y, z, end, start)
    root = mp.sqrt(nu)

    def f(theta):
        r = (1 + y * y / nu) * mp.cos(theta) ** 2
        g = a * (mp.sin(theta) - z) + mp.log(r) / 2
        return mp.exp((nu + 1) * g) * root / mp.cos(theta) ** 2

    low, high = mp.atan(start / root), mp.atan(end / root)
    inside = [p for p in panels(nu, a, peak_of(nu, a)) if low < p < high]
    return mp.quad(f, [low] + inside + [high], method="gauss-legendre", maxdegree=5)


def ranges(y):
    """Both sides of the peak, near it and far out, and one of them backwards."""
    near, far = 0.2 * (abs(y) + 1), 10 * (abs(y) + 1)
    return [(y - near, y), (y, y + near), (y - far, y), (y, y + far), (y + near, y)]


def main():
    with open(TABLE, "w", encoding="ascii", newline="") as table:
        out = csv.writer(table, lineterminator="\n")
        out.writerow(["a", "b", "nu", "Aq", "Yq", "Zq", "true"])
        for nu in NUS:
            for a in SLOPES:
                y = float(-mp.sqrt(mp.mpf(nu) / 2 * (mp.sqrt(1 + 4 * mp.mpf(a) ** 2) - 1)))
                z = float(y / mp.sqrt(nu + mp.mpf(y) ** 2))
                for start, end in ranges(y):
                    value = integral(nu, mp.mpf(a), mp.mpf(y), mp.mpf(z), mp.mpf(start),
                                     mp.mpf(end))
                    out.writerow([repr(start), repr(end), nu, repr(a), repr(y), repr(z),
                                  mp.nstr(value, 20)])


if __name__ == "__main__":
    main()
