#!/usr/bin/env python3
"""Writes tests/data/chi_f_truth.csv: the upper tails of chi-square and F in arbitrary precision.

Reason: the tables of the method's own steps tell whether the method was built; this one tells how
good the method is. Method: chi-square by the incomplete gamma function of mpmath, F by the
incomplete beta function (incomplete_beta.py), both with 60 digits. Arguments are the exact doubles
whose decimal text stands in the row; for chi-square the argument is the square root. Needs mpmath
(python3-mpmath).
"""

import csv
import random
from pathlib import Path

import mpmath as mp

from incomplete_beta import f_upper

mp.mp.dps = 60
TABLE = Path(__file__).resolve().parents[2] / "tests" / "data" / "chi_f_truth.csv"
CHI_DFS = [1, 2, 3, 4, 5, 10, 19, 50, 99, 199, 200, 201, 500, 1999]
PAIRS = [(1, 1), (1, 2), (2, 1), (2, 2), (3, 3), (1, 9), (9, 1), (4, 5), (5, 4), (7, 7), (10, 10),
         (19, 29), (20, 29), (29, 20), (99, 99), (100, 100), (3, 1001), (2, 1999), (1999, 2),
         (1001, 3), (181, 181), (180, 182), (181, 182), (182, 181), (200, 200), (3, 12001),
         (1999, 1999), (499, 1500), (17, 1999), (1999, 17)]


def chi_upper(df, chi):
    return mp.gammainc(df / 2, chi * chi / 2, mp.inf, regularized=True)


def chis(df, rng):
    """Roots around the mean, which lies near sqrt df with a deviation of 1 / sqrt 2."""
    values = [1e-10, 0.01, 0.5, 1.0, 3.0, 10.0, 23.9999, 24.0, 24.0001, 30.0]
    values += [max(1e-3, df ** 0.5 + shift / 2 ** 0.5) for shift in (-3, -2, -1, 0, 1, 2, 3, 5)]
    return values + [max(1e-3, df ** 0.5 + rng.uniform(-3, 3)) for _ in range(4)]


def ratios(rng):
    values = [1e-30, 1e-6, 0.01, 0.2, 0.5, 0.8, 1.0, 1.00000000005, 1.1, 1.5, 2.0, 4.0, 10.0, 100.0]
    return values + [10 ** rng.uniform(-1.5, 1.5) for _ in range(8)]


def main():
    rng = random.Random(268)
    with open(TABLE, "w", encoding="ascii", newline="") as table:
        out = csv.writer(table, lineterminator="\n")
        out.writerow(["function", "d1", "d2", "argument", "true"])
        for df in CHI_DFS:
            for chi in chis(df, rng):
                value = chi_upper(mp.mpf(df), mp.mpf(chi))
                if value > mp.mpf(10) ** -300:
                    out.writerow(["chi", df, 0, repr(chi), mp.nstr(value, 20)])
        for d1, d2 in PAIRS:
            for ratio in ratios(rng):
                value = f_upper(mp.mpf(d1), mp.mpf(d2), mp.mpf(ratio))
                if value > mp.mpf(10) ** -300:  # below lie no doubles
                    out.writerow(["f", d1, d2, repr(ratio), mp.nstr(value, 20)])


if __name__ == "__main__":
    main()
