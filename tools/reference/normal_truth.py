#!/usr/bin/env python3
"""Writes tests/data/normal_truth.csv: the upper tail of the standard normal distribution and its
inverse in arbitrary precision.

Reason: the tables of the method's own steps tell whether the method was built; this one tells how
good the method is. Method: Q(x) = erfc(x / sqrt 2) / 2 with 50 digits (mpmath); the inverse by
Newton's steps on log Q with 60 digits, from the deviate of the asymptotic tail. Arguments are the
exact doubles whose decimal text stands in the row. Needs mpmath (python3-mpmath).
"""

import csv
import random
from pathlib import Path

import mpmath as mp

mp.mp.dps = 60
TABLE = Path(__file__).resolve().parents[2] / "tests" / "data" / "normal_truth.csv"


def upper(x):
    return mp.erfc(x / mp.sqrt(2)) / 2


def inverse(p):
    if p > mp.mpf(1) / 2:
        return -inverse(1 - p)
    x = mp.sqrt(-2 * mp.log(p)) if p < 0.2 else mp.mpf(1) / 2
    for _ in range(200):
        density = mp.exp(-x * x / 2) / mp.sqrt(2 * mp.pi)
        step = upper(x) / density * mp.log(upper(x) / p)
        x += step
        if abs(step) < mp.mpf(10) ** -50:
            return x
    raise ArithmeticError(f"no inverse for {p}")


def deviates():
    rng = random.Random(66)
    borders = [1e-15, 1e-8, 0.5, 1.0, 1.28, 1.2800001, 1.6448536269514722, 2.5758293035489004,
               4.9999999, 5.0, 5.0000001, 8.0, 20.0, 30.0, 36.9999999, 37.0]
    values = borders + [k / 4 for k in range(1, 149)]
    values += [rng.uniform(0, 1.28) for _ in range(60)]
    values += [rng.uniform(1.28, 5) for _ in range(60)]
    values += [rng.uniform(5, 37) for _ in range(60)]
    return sorted({sign * value for value in values for sign in (1, -1)} | {0.0})


def probabilities():
    rng = random.Random(111)
    values = [0.5, 0.05, 0.95, 0.01, 0.99, 0.08, 0.92, 0.0799999, 0.0800001, 0.9200001, 1e-3,
              1e-16, 1e-100, 1e-200, 1e-305, 1e-300, 1.1e-300, 1e-299, 1 - 1e-15, 0.9999999999999998,
              0.9999999999999999]
    values += [rng.uniform(0, 1) for _ in range(120)]
    values += [10 ** rng.uniform(-300, -1) for _ in range(120)]
    values += [1 - 10 ** rng.uniform(-15, -1) for _ in range(60)]
    return sorted(set(values))


def main():
    with open(TABLE, "w", encoding="ascii", newline="") as table:
        out = csv.writer(table, lineterminator="\n")
        out.writerow(["function", "argument", "true"])
        for x in deviates():
            out.writerow(["upper", repr(x), mp.nstr(upper(mp.mpf(x)), 20)])
        for p in probabilities():
            out.writerow(["inverse", repr(p), mp.nstr(inverse(mp.mpf(p)), 20)])


if __name__ == "__main__":
    main()
