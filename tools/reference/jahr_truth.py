#!/usr/bin/env python3
"""Writes tests/data/jahr_truth.csv: Jahr's limit and exceedance in arbitrary precision.

Reason: both are closed forms of one Student deviate and one Student area, whose errors they carry;
the table shows how much of them reaches the limit. Method: the same formulas with the deviate by
Newton's steps and the area by the incomplete beta function, 60 digits. Every argument is the exact
double whose decimal text stands in the row. What the method lacks against the exact limit of the
mean is another matter: see land_truth.py. Needs mpmath (python3-mpmath).
"""

import csv
from pathlib import Path

import mpmath as mp

from incomplete_beta import student_upper
from student_truth import inverse

mp.mp.dps = 60
TABLE = Path(__file__).resolve().parents[2] / "tests" / "data" / "jahr_truth.csv"
DFS = [1, 2, 3, 4, 5, 6, 7, 9, 10, 19, 49, 99, 200, 201, 999, 1000, 1001, 1999]
CONFIDENCES = [0.01, 0.95, 5.0, 30.0, 50.0, 70.0, 95.0, 99.75, 99.99]
MEANS = [(3.5, 2.7), (0.0123, 1.05), (1e4, 1000.0)]
SHARES = [0.02, 0.7, 0.9, 1.0, 1.3, 2.0, 4.0, 30.0, 1e4]  # OELV as a part of AMu


def limit(df, mean, spread, confidence):
    p = 1 - mp.mpf(confidence) / 100
    t = mp.mpf(0) if confidence == 50 else inverse(mp.mpf(df), p)
    return mp.log(mp.mpf(mean)) + t / mp.sqrt(df) * mp.log(mp.mpf(spread))


def exceedance(df, mean, spread, oelv):
    x = mp.log(mp.mpf(oelv) / mp.mpf(mean)) / mp.log(mp.mpf(spread)) * mp.sqrt(df)
    return 100 * student_upper(mp.mpf(df), x)


def main():
    with open(TABLE, "w", encoding="ascii", newline="") as table:
        out = csv.writer(table, lineterminator="\n")
        out.writerow(["df", "AMu", "GSD", "OELV", "D", "UCL", "PercEx"])
        for df in DFS:
            for mean, spread in MEANS:
                for confidence, share in zip(CONFIDENCES, SHARES):
                    oelv = float(repr(mean * share))
                    out.writerow([df, repr(mean), repr(spread), repr(oelv), repr(confidence),
                                  mp.nstr(limit(df, mean, spread, confidence), 20),
                                  mp.nstr(exceedance(df, mean, spread, oelv), 20)])


if __name__ == "__main__":
    main()
