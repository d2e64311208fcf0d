#!/usr/bin/env python3
"""Writes tests/data/student_truth.csv: the upper tail of Student's t and its inverse in arbitrary
precision.

Reason: the tables of the method's own steps tell whether the method was built; this one tells how
good the method is. Method: the area by the incomplete beta function with 60 digits
(incomplete_beta.py); the inverse by Newton's steps on log P against log t, held inside a bracket.
Arguments are the exact doubles whose decimal text stands in the row. Needs mpmath
(python3-mpmath).
"""

import csv
import random
from pathlib import Path

import mpmath as mp

from incomplete_beta import student_upper

mp.mp.dps = 60
TABLE = Path(__file__).resolve().parents[2] / "tests" / "data" / "student_truth.csv"
DFS = [1, 2, 3, 4, 5, 6, 7, 10, 19, 20, 49, 99, 200, 201, 500, 999, 1000, 1001, 1999]
LARGE_DFS = [10000, 29999, 30000, 30001, 100000]
# Where a scan of a dense grid found the errors of a sum, of one normal tail and of Newton's steps
# under a loose stopping rule at their largest, and the neighbours of the borders between them.
WORST_AREAS = [(30000, 1.38), (30000, 3.07), (30001, 2.165), (30001, 3.09), (30002, 2.165)]
WORST_DEVIATES = [(5, 0.045852073963018491), (10, 0.035973962118275402),
                  (3, 0.025048518689717938), (5, 0.0010013165311513054),
                  (6, 0.0010316153156897975), (3, 0.00064852080923808537),
                  (2, 0.00010569228934534443)]
BORDER_DFS = [998, 1002]


def density(df, t):
    return mp.exp(mp.loggamma((df + 1) / 2) - mp.loggamma(df / 2) - mp.log(df * mp.pi) / 2
                  - (df + 1) / 2 * mp.log1p(t * t / df))


def inverse(df, p):
    if p > mp.mpf(1) / 2:
        return -inverse(df, 1 - p)
    low, high = mp.mpf(-50), mp.mpf(400)  # of log t
    x = mp.mpf(0)
    for _ in range(400):
        t = mp.exp(x)
        area = student_upper(df, t)
        low, high = (x, high) if area > p else (low, x)
        step = area * mp.log(area / p) / (density(df, t) * t)
        if abs(step) < mp.mpf(10) ** -30:
            return mp.exp(x + step)
        x = x + step if low < x + step < high else (low + high) / 2
    raise ArithmeticError(f"no inverse for {df}, {p}")


def deviates(rng):
    values = [1e-10, 1e-3, 0.1, 0.5, 1.0, 1.645, 2.5, 4.0, 6.0, 10.0, 30.0]
    values += [rng.uniform(0, 5) for _ in range(6)]
    return [sign * t for t in values for sign in (1, -1)] + [0.0]


def probabilities(rng):
    values = [0.5, 0.4999, 0.45, 0.3, 0.1, 0.05, 0.025, 0.01, 0.005, 0.0025, 0.001, 1e-4]
    values += [rng.uniform(0.001, 0.5) for _ in range(4)]
    return values + [1 - p for p in values[1:9]]


def main():
    rng = random.Random(26)
    with open(TABLE, "w", encoding="ascii", newline="") as table:
        out = csv.writer(table, lineterminator="\n")
        out.writerow(["function", "df", "argument", "true"])
        for df in DFS + LARGE_DFS:
            for t in deviates(rng):
                value = student_upper(mp.mpf(df), mp.mpf(t))
                out.writerow(["upper", df, repr(t), mp.nstr(value, 20)])
        for df in DFS:
            for p in probabilities(rng):
                t = mp.mpf(0) if p == 0.5 else inverse(mp.mpf(df), mp.mpf(p))
                out.writerow(["inverse", df, repr(p), mp.nstr(t, 20)])
        for df, t in WORST_AREAS:
            out.writerow(["upper", df, repr(t), mp.nstr(student_upper(mp.mpf(df), mp.mpf(t)), 20)])
        border = [(df, p) for df in BORDER_DFS for p in probabilities(rng) if p != 0.5]
        for df, p in WORST_DEVIATES + border:
            out.writerow(["inverse", df, repr(p), mp.nstr(inverse(mp.mpf(df), mp.mpf(p)), 20)])


if __name__ == "__main__":
    main()
