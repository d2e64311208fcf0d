#!/usr/bin/env python3
"""Writes tests/data/land_truth.csv: Land's density, probability and root by quadrature.

Reason: shows what the adaptive Simpson rule with its absolute tolerance, the finite range of
integration and the stop of the root search cost. Method: with x = sqrt(nu) tan(theta) the
conditional density of the t statistic becomes cos(theta)^(nu - 1) exp((nu + 1) Aq sin(theta)),
smooth on a finite range, which is integrated by Gauss-Legendre panels on both sides of its peak
with 40 digits; the root of H(c) = p is bracketed and refined until it stands. None of the
program's own steps (range of integration, halving, search) is used. Needs mpmath
(python3-mpmath).
"""

import csv
from pathlib import Path

import mpmath as mp

mp.mp.dps = 40
TABLE = Path(__file__).resolve().parents[2] / "tests" / "data" / "land_truth.csv"
NUS = [1, 2, 3, 5, 6, 9, 19, 99, 300, 999]
SPREADS = [0.05, 0.4, 1.0, 2.4, 6.9]
SHARES = [-4.0, -1.0, -0.25, 0.0, 0.3, 1.0, 2.5, 8.0]
CONFIDENCES = [0.95, 30.0, 50.0, 95.0, 99.75]


def log_density(nu, a, theta):
    return (nu - 1) * mp.log(mp.cos(theta)) + (nu + 1) * a * mp.sin(theta)


def peak_of(nu, a):
    """Where the density in theta is largest: (nu - 1) sin = (nu + 1) a cos^2, a below 0."""
    b = (nu + 1) * a
    return mp.asin(2 * b / ((nu - 1) + mp.sqrt((nu - 1) ** 2 + 4 * b * b)))


def panels(nu, a, peak):
    """Break points: the peak and steps of growing width to both sides."""
    if nu > 1:
        curve = (nu - 1) / mp.cos(peak) ** 2 + (nu + 1) * a * mp.sin(peak)
        width = 1 / mp.sqrt(curve)
    else:
        width = min(mp.mpf(1) / 4, 1 / (2 * abs(a)), 1 / mp.sqrt(2 * abs(a)))
    points = {peak}
    for k in range(60):
        step = width * mp.mpf(2) ** (mp.mpf(k) / 2)
        points |= {peak - step, peak + step}
    half = mp.pi / 2
    return sorted(p for p in points | {-half, half} if -half <= p <= half)


def share_below(nu, a, theta0):
    peak = peak_of(nu, a)
    top = log_density(nu, a, peak)
    points = panels(nu, a, peak)

    def f(theta):
        return mp.exp(log_density(nu, a, theta) - top)

    below = [p for p in points if p < theta0] + [theta0]
    above = [theta0] + [p for p in points if p > theta0]
    low = mp.quad(f, below, method="gauss-legendre", maxdegree=5)
    high = mp.quad(f, above, method="gauss-legendre", maxdegree=5)
    return low / (low + high)


def arguments(nu, s, c):
    x0 = -mp.sqrt(nu + 1) * (s / 2 + c / s)
    a = -(s / 2) * mp.sqrt((nu + x0 ** 2) / (nu + 1))
    return x0, a


def probability(nu, s, c):
    x0, a = arguments(nu, s, c)
    return share_below(nu, a, mp.atan(x0 / mp.sqrt(nu)))


def root(nu, s, p):
    """The c with H(c) = p: bracketed by doubling steps, then by the Illinois rule."""
    step = s * (1 + s) / mp.sqrt(nu)
    lo = hi = mp.mpf(0)
    f_lo = f_hi = probability(nu, s, lo) - p
    while f_hi > 0:
        lo, f_lo = hi, f_hi
        hi, step = hi + step, 2 * step
        f_hi = probability(nu, s, hi) - p
    while f_lo < 0:
        hi, f_hi = lo, f_lo
        lo, step = lo - step, 2 * step
        f_lo = probability(nu, s, lo) - p
    side = 0
    last = None
    for _ in range(100):
        c = (lo * f_hi - hi * f_lo) / (f_hi - f_lo)
        f_c = probability(nu, s, c) - p
        if f_c == 0 or (last is not None and abs(c - last) <= mp.mpf(10) ** -20 * (s / nu)):
            return c
        last = c
        if f_c > 0:
            lo, f_lo = c, f_c
            if side == 1:
                f_hi /= 2
            side = 1
        else:
            hi, f_hi = c, f_c
            if side == -1:
                f_lo /= 2
            side = -1
    raise ArithmeticError("the root does not stand")


def density_rows():
    for nu in NUS:
        for a in (-0.02, -0.7, -5.0, -60.0):
            y = -mp.sqrt(mp.mpf(nu) / 2 * (mp.sqrt(1 + 4 * mp.mpf(a) ** 2) - 1))
            Yq = float(y)
            Zq = float(mp.mpf(Yq) / mp.sqrt(nu + mp.mpf(Yq) ** 2))
            for t in (0.0, 0.9, 1.0, 1.2, 3.0, -1.0):
                x = Yq * t
                r = (nu + mp.mpf(Yq) ** 2) / (nu + mp.mpf(x) ** 2)
                g = a * (x / mp.sqrt(nu + mp.mpf(x) ** 2) - mp.mpf(Zq)) + mp.log(r) / 2
                e = (nu + 1) * g
                yield ["LandIntegrand", nu, repr(a), repr(Yq), repr(Zq), repr(x),
                       mp.nstr(mp.exp(e) if e > -743 else mp.mpf(0), 20)]


def rows():
    yield from density_rows()
    for nu in NUS:
        for s in SPREADS:
            for share in SHARES:
                c = round(share * s * (1 + s) / nu ** 0.5, 6)
                yield ["LandProbability", nu, repr(s), repr(c), "", "",
                       mp.nstr(probability(nu, mp.mpf(s), mp.mpf(c)), 20)]
    for nu in NUS:
        for s in SPREADS:
            for confidence in CONFIDENCES:
                p = 1 - mp.mpf(confidence) / 100
                yield ["LandExactUCL", nu, repr(s), repr(confidence), "", "",
                       mp.nstr(root(nu, mp.mpf(s), p), 20)]


def main():
    with open(TABLE, "w", newline="") as out:
        writer = csv.writer(out, lineterminator="\n")
        writer.writerow(["function", "nu", "a2", "a3", "a4", "a5", "true"])
        writer.writerows(rows())


if __name__ == "__main__":
    main()
