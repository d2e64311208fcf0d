#!/usr/bin/env python3
"""Writes tests/data/estimator_truth.csv and linear_moments_truth.csv: the lognormal estimators, and
mean and standard deviation of the outcomes themselves, in arbitrary precision.

Reason: shows what the summation of Finney's series in doubles, and its stop, cost. Method: the
series are confluent hypergeometric limit functions, g(A) = 0F1(n / 2; A / 2); they and the linear
moments that follow from GM and GSD (with M = df + 1) are evaluated with 60 digits; so is the
standard deviation of a lognormal population. The outcomes are the doubles of series_sorted.csv.
Needs mpmath (python3-mpmath).
"""

import csv
from pathlib import Path

import mpmath as mp

mp.mp.dps = 60
DATA = Path(__file__).resolve().parents[2] / "tests" / "data"
DFS = [1, 2, 3, 4, 5, 7, 9, 14, 19, 29, 39, 99, 499, 1999]
GMS = [1.0, 0.037, 812.5]
GSDS = [1.001, 1.05, 1.5, 2.0, 2.7, 4.0, 8.0, 15.0, 24.0, 50.0, 200.0, 1000.0]


def g(n, A):
    return mp.hyp0f1(n / 2, A / 2)


def mean_mvu(n, gm, L):
    return gm * g(n, (n * L) ** 2 / 2 / (n + 1))


def mean_mmse(n, gm, L):
    return gm * g(n, (n - 3) * n * L ** 2 / (2 * (n + 1)))


def variance_mvu(n, gm, L):
    A = 2 * (n * L) ** 2 / (n + 1)
    B = (n - 1) * n * L ** 2 / (n + 1)
    return gm ** 2 * (g(n, A) - g(n, B))


def gm_unbiased(n, gm, L):
    return gm * mp.hyp0f1(n / 2 + 1, -L ** 2 / 4)


def linear_mean(n, gm, L):
    return gm * mp.exp(L ** 2 / 2)


def linear_deviation(n, gm, L):
    e = mp.exp(L ** 2 / 2)
    return mp.sqrt(gm ** 2 * e * (e - 1) * (n + 1) / n)


def population_deviation(n, gm, L):
    e = mp.exp(L ** 2)
    return gm * mp.sqrt(e * (e - 1))


ESTIMATORS = {"FinneyMeanMVU": mean_mvu, "FinneyMeanMMSE": mean_mmse,
              "FinneyVarianceMVU": variance_mvu, "GMUnbiased": gm_unbiased,
              "LinearMoments XM": linear_mean, "LinearMoments SDlin": linear_deviation,
              "population deviation": population_deviation}


def series():
    found = {}
    with open(DATA / "series_sorted.csv", encoding="ascii", newline="") as table:
        for row in csv.DictReader(table):
            if int(row["i"]) > 0:
                found.setdefault(row["series"], []).append(mp.mpf(float(row["C"])))
    return found


def moments(C):
    mean = sum(C) / len(C)
    return mean, mp.sqrt(sum((c - mean) ** 2 for c in C) / (len(C) - 1))


def in_domain(name, df, gsd):
    if name == "FinneyMeanMMSE":
        return df > 3
    if name == "GMUnbiased":
        return gsd / (df + 1) ** 2 <= 6
    return True


def main():
    with open(DATA / "linear_moments_truth.csv", "w", encoding="ascii", newline="") as table:
        out = csv.writer(table, lineterminator="\n")
        out.writerow(["series", "XM", "SDlin"])
        for name, C in series().items():
            out.writerow([name, *(mp.nstr(value, 20) for value in moments(C))])
    with open(DATA / "estimator_truth.csv", "w", encoding="ascii", newline="") as table:
        out = csv.writer(table, lineterminator="\n")
        out.writerow(["function", "df", "GM", "GSD", "true"])
        for name, estimator in ESTIMATORS.items():
            for df in DFS:
                for k, gsd in enumerate(GSDS):
                    gm = GMS[(df + k) % len(GMS)]
                    if in_domain(name, df, gsd):
                        true = estimator(mp.mpf(df), mp.mpf(gm), mp.log(mp.mpf(gsd)))
                        out.writerow([name, df, repr(gm), repr(gsd), mp.nstr(true, 20)])


if __name__ == "__main__":
    main()
