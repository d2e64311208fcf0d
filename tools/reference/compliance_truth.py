#!/usr/bin/env python3
"""Writes tests/data/compliance_truth.csv: exceedances, confidences, tolerance factors and fractions
of the compliance tests in arbitrary precision.

Reason: the tables of the methods' own steps tell whether a test was built; this one tells how good
the method is. Method: Student's tail by the incomplete beta function; the noncentral t by
quadrature of the normal integral over the chi density with 20 digits; tolerance factors and
fractions by bracketing on that quadrature until the confidence is right to 1E-12. Rows:

  wilks     df, a = Ur           true = percent above the limit
  wilksutl  df, a = U, b = GSD   true = ln(UTL / GM)
  conf      df, a = u, b = r     true = confidence in percent that u percent lie below mean + r s
  factor    df, a = U, b = D     true = r with that confidence D
  fraction  df, a = Ur, b = D    true = u in percent with that confidence D

A value below 1E-300 is written as 0. Arguments are the exact doubles whose decimal text stands in the row. Needs mpmath
(python3-mpmath).
"""

import csv
import random
from pathlib import Path

import mpmath as mp

mp.mp.dps = 20
TABLE = Path(__file__).resolve().parents[2] / "tests" / "data" / "compliance_truth.csv"


def student_upper(df, t):
    half = mp.betainc(df / 2, mp.mpf(1) / 2, 0, df / (df + t * t), regularized=True) / 2
    return half if t >= 0 else 1 - half


def student_deviate(df, p):
    if p == mp.mpf(1) / 2:
        return mp.mpf(0)
    if p > mp.mpf(1) / 2:
        return -student_deviate(df, 1 - p)
    x = mp.findroot(lambda y: mp.log(student_upper(df, mp.exp(y)) / p), (mp.mpf(0), mp.mpf(1)),
                    tol=1e-40)
    return mp.exp(x)


def confidence(df, z, r):
    """P(T' <= r sqrt(n)) with noncentrality z sqrt(n), n = df + 1."""
    root = mp.sqrt(df + 1)
    log_scale = mp.log(2) + df / 2 * mp.log(df / 2) - mp.loggamma(df / 2)

    def integrand(s):
        density = mp.exp(log_scale + (df - 1) * mp.log(s) - df * s * s / 2)
        return density * mp.ncdf(root * (r * s - z))

    width = 1 / mp.sqrt(2 * df)
    inner = [s for s in (1 + k * width for k in (-8, -4, -2, 0, 2, 4, 8)) if s > 0.01]
    if r != 0 and z / r > 0.02:
        inner += [z / r]
    return mp.quad(integrand, sorted({mp.mpf(0), *inner, 1 + 16 * width}))


def quantile(u):
    return mp.sqrt(2) * mp.erfinv(2 * u / 100 - 1)


def root(function, start, step):
    """The root of a monotone function, from a bracket that grows around `start`."""
    low, high = start - step, start + step
    while function(low) * function(high) > 0:
        step *= 2
        low, high = start - step, start + step
    return mp.findroot(function, (low, high), solver="anderson", tol=1e-24, maxsteps=60)


def factor(df, u, d):
    z = quantile(u)
    return root(lambda r: confidence(df, z, r) - d / 100, z, 1 / mp.sqrt(df + 1))


def fraction(df, r, d):
    z = root(lambda q: confidence(df, q, r) - d / 100, r, 1 / mp.sqrt(df + 1))
    return 100 * mp.ncdf(z)


def rows():
    rng = random.Random(689)
    m = mp.mpf
    degrees = [1, 2, 3, 4, 5, 9, 10, 29, 60, 199, 200, 201, 500, 1000, 1001, 1999]
    for df in degrees:
        for ur in (-2.5, 0.3, 1.6448536269514722, rng.uniform(1, 4), rng.uniform(4, 9)):
            yield "wilks", df, ur, "", 100 * student_upper(m(df), m(ur) / mp.sqrt(m(1) / (df + 1) + 1))
        for u in (60.0, 95.0, 99.99, 20.0):
            g = mp.sqrt(m(1) / (df + 1) + 1) * student_deviate(m(df), 1 - m(u) / 100)
            yield "wilksutl", df, u, 2.5, g * mp.log(m(2.5))
    for df in (1, 2, 3, 5, 6, 10, 29, 100, 199, 200, 201, 1999):
        for u, r in ((95.0, 1.7), (80.0, 2.3), (99.0, 1.1), (60.0, -0.4), (30.0, 0.2)):
            yield "conf", df, u, r, 100 * confidence(m(df), quantile(m(u)), m(r))
    for df in (1, 2, 5, 10, 29, 200, 201, 1999):
        for u, d in ((95.0, 70.0), (90.0, 95.0), (99.0, 50.0), (70.0, 5.0)):
            yield "factor", df, u, d, factor(m(df), m(u), m(d))
        for ur, d in ((1.7, 70.0), (0.4, 95.0), (2.6, 20.0)):
            yield "fraction", df, ur, d, fraction(m(df), m(ur), m(d))


def main():
    with open(TABLE, "w", encoding="ascii", newline="") as table:
        out = csv.writer(table, lineterminator="\n")
        out.writerow(["kind", "df", "a", "b", "true"])
        for kind, df, a, b, truth in rows():
            text = mp.nstr(truth, 18) if abs(truth) > 1e-300 else "0"
            out.writerow([kind, df, repr(a), repr(b) if b != "" else "", text])


if __name__ == "__main__":
    main()
