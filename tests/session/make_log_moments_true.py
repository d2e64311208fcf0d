#!/usr/bin/env python3
"""Writes ../data/log_moments_true.csv: geometric mean and geometric standard deviation of every
series of series_sorted.csv with M - 1 degrees of freedom, in 60-digit arithmetic (mpmath), by the
definition: exp of the mean of the logarithms and exp of their standard deviation. The outcomes
are taken as the doubles that they are. GM_error and GSD_error are the relative errors that the
one-pass sums in double precision make on the same series: the marks of the test."""
import csv
import math
import pathlib

from mpmath import exp, log, mp, mpf, nstr, sqrt

mp.dps = 60
DATA = pathlib.Path(__file__).parent.parent / "data"


def one_pass(outcomes):
    s1 = s2 = 0.0
    for c in outcomes:
        logarithm = math.log(c)
        s1 += logarithm
        s2 += logarithm * logarithm
    m = len(outcomes)
    ss = s2 - s1 * s1 / m
    return math.exp(s1 / m), math.exp(math.sqrt(ss / (m - 1))) if ss > 1e-10 else None


def main():
    series = {}
    with open(DATA / "series_sorted.csv", newline="") as table:
        for row in csv.DictReader(table):
            if row["i"] != "0":
                series.setdefault(row["series"], []).append(float(row["C"]))
    with open(DATA / "log_moments_true.csv", "w", newline="") as out:
        writer = csv.writer(out, lineterminator="\n")
        writer.writerow(["series", "GM", "GSD", "GM_error", "GSD_error"])
        for name, outcomes in series.items():
            logs = [log(mpf(c)) for c in outcomes]
            mean = sum(logs) / len(logs)
            gm = exp(mean)
            gsd = exp(sqrt(sum((x - mean) ** 2 for x in logs) / (len(logs) - 1)))
            gm_double, gsd_double = one_pass(outcomes)
            if gsd_double is None:
                continue
            writer.writerow([name, nstr(gm, 20), nstr(gsd, 20),
                             f"{float(abs(gm_double / gm - 1)):.1e}",
                             f"{float(abs(gsd_double / gsd - 1)):.1e}"])


if __name__ == "__main__":
    main()
