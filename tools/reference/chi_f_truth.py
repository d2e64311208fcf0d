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
# Pairs whose product is 32767, 32768 or a little more, and the longest sums of either kind.
BORDER_PAIRS = [(31, 1057), (1057, 31), (32, 1024), (1024, 32), (17, 1928), (1928, 17), (16, 1999),
                (1999, 16), (1, 1999), (1999, 1), (15, 1989)]
BORDER_CHI_DFS = [198, 202]
# Where a scan of a dense grid found the errors at their largest.
WORST_CHI = [(180, 8.24), (181, 8.8), (201, 13.6608), (201, 16.3774)]
WORST_F = [(1, 1692, 0.060810062625217973), (2, 1989, 0.049787068367863944),
           (2, 1989, 2.1170000166126748), (15, 1989, 0.38674102345450123),
           (1989, 17, 1.2840254166877414), (2, 1982, 0.0016615572731739339),
           (1, 1994, 2.2115664858298806e-13), (1, 1994, 1.0721362989003941e-09),
           (1, 1994, 0.00010185913880541169), (1, 1994, 0.010025360539605233),
           (3, 1994, 0.33527409584841628), (1999, 1999, 1.0000000000999)]


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


def chi_rows(pairs):
    for df, chi in pairs:
        value = chi_upper(mp.mpf(df), mp.mpf(chi))
        if value > mp.mpf(10) ** -300:  # below lie no doubles
            yield ["chi", df, 0, repr(chi), mp.nstr(value, 20)]


def f_rows(triples):
    for d1, d2, ratio in triples:
        value = f_upper(mp.mpf(d1), mp.mpf(d2), mp.mpf(ratio))
        if value > mp.mpf(10) ** -300:
            yield ["f", d1, d2, repr(ratio), mp.nstr(value, 20)]


def main():
    rng = random.Random(268)
    with open(TABLE, "w", encoding="ascii", newline="") as table:
        out = csv.writer(table, lineterminator="\n")
        out.writerow(["function", "d1", "d2", "argument", "true"])
        out.writerows(chi_rows((df, chi) for df in CHI_DFS for chi in chis(df, rng)))
        out.writerows(f_rows((*pair, ratio) for pair in PAIRS for ratio in ratios(rng)))
        out.writerows(chi_rows((df, chi) for df in BORDER_CHI_DFS for chi in chis(df, rng)))
        out.writerows(chi_rows(WORST_CHI))
        out.writerows(f_rows((*pair, ratio) for pair in BORDER_PAIRS for ratio in ratios(rng)))
        out.writerows(f_rows(WORST_F))


if __name__ == "__main__":
    main()
