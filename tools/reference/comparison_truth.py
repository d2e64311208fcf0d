#!/usr/bin/env python3
"""Writes tests/data/comparison_truth.csv: the probabilities of the comparison of two samples, or of
a sample and a population, in arbitrary precision.

Reason: the table of the method's own steps tells whether the comparison was built; this one tells
how good its distribution functions are. Method: F and t by the incomplete beta function, chi-square
by the incomplete gamma function, with 40 digits, on the statistics of the exact doubles whose
decimal text stands in the row; the degrees of freedom of separate variances are cut to a whole
number. Columns: the inputs, then the two-sided probabilities in percent for the dispersions and,
with pooled (or with the population) and with separate variances, for the locations; of two samples
also that of separate variances with the degrees of freedom uncut, and GM and GSD of both by the
method's own weights. Needs mpmath (python3-mpmath).
"""

import csv
import random
from pathlib import Path

import mpmath as mp

mp.mp.dps = 40
TABLE = Path(__file__).resolve().parents[2] / "tests" / "data" / "comparison_truth.csv"


def student_upper(df, t):
    half = mp.betainc(df / 2, mp.mpf(1) / 2, 0, df / (df + t * t), regularized=True) / 2
    return half if t >= 0 else 1 - half


def f_upper(d1, d2, f):
    return mp.betainc(d2 / 2, d1 / 2, 0, d2 / (d2 + d1 * f), regularized=True)


def chi_upper(df, chi):
    return mp.gammainc(df / 2, chi * chi / 2, mp.inf, regularized=True)


def percent(p):
    return 200 * min(p, 1 - p)


def sample(df, gm, gsd, df2, gm2, gsd2):
    x, y, distance = mp.log(gsd) ** 2, mp.log(gsd2) ** 2, mp.log(gm2 / gm)
    v = df + df2
    pooled = distance / mp.sqrt((df * x + df2 * y) / v) * mp.sqrt((df + 1) * (df2 + 1) / (v + 2))
    a, b = x / (df + 1), y / (df2 + 1)
    w = (a + b) ** 2 / (a * a / df + b * b / df2)
    separate = distance / mp.sqrt(a + b)
    return (percent(f_upper(df, df2, x / y)), percent(student_upper(v, pooled)),
            percent(student_upper(mp.floor(w), separate)), percent(student_upper(w, separate)))


def population(df, gm, gsd, gm2, gsd2):
    t = mp.sqrt(df + 1) * mp.log(gm / gm2) / mp.log(gsd)
    return percent(chi_upper(df, mp.sqrt(df) * mp.log(gsd) / mp.log(gsd2))), percent(
        student_upper(df, t))


def both(df, gm, gsd, df2, gm2, gsd2):
    """GM and GSD of both samples together; the second squared mean has the method's df2 + 2."""
    m, m2, count = mp.log(gm), mp.log(gm2), df + df2 + 2
    mean = ((df + 1) * m + (df2 + 1) * m2) / count
    squares = df * mp.log(gsd) ** 2 + df2 * mp.log(gsd2) ** 2
    squares += (df + 1) * m * m + (df2 + 2) * m2 * m2 - count * mean * mean
    return mp.exp(mean), mp.exp(mp.sqrt(squares / (count - 1)))


def main():
    rng = random.Random(1946)
    with open(TABLE, "w", encoding="ascii", newline="") as table:
        out = csv.writer(table, lineterminator="\n")
        out.writerow(["mode", "M", "GM", "GSD", "M2", "GM2", "GSD2", "dispersion", "pooled",
                      "separate", "uncut", "both_GM", "both_GSD"])
        sizes = [2, 3, 4, 5, 9, 10, 30, 60, 101, 201, 202, 999, 2000]
        for k in range(120):
            mode = "P" if k % 4 == 0 else "S"
            size = sizes[k % len(sizes)]
            size2 = rng.choice(sizes)
            gm, gsd = round(10 ** rng.uniform(-2, 2), 4), round(rng.uniform(1.3, 5), 3)
            spread = 3 / min(size, size2) ** 0.5
            gm2 = round(gm * gsd ** (rng.uniform(-1, 1) * spread), 5)
            gsd2 = round(1.001 + (gsd - 1) * 2 ** (rng.uniform(-1, 1) * spread), 4)
            exact = [mp.mpf(value) for value in (size - 1, gm, gsd, size2 - 1, gm2, gsd2)]
            if mode == "S":
                truth = sample(*exact) + both(*exact)
            else:
                truth = population(*exact[:3], *exact[4:])
            out.writerow([mode, size, repr(gm), repr(gsd), size2, repr(gm2), repr(gsd2)] +
                         [mp.nstr(value, 20) for value in truth] + [""] * (6 - len(truth)))


if __name__ == "__main__":
    main()
