#!/usr/bin/env python3
"""Writes tests/data/noncentral_t_truth.csv and owen_t_truth.csv: the lower distribution function of
the noncentral t, and Owen's T function, in arbitrary precision.

Reason: the tables of the method's own steps tell whether the method was built; these tell how good
the method is. Method: with n = f + 1, noncentrality z sqrt n and t = K sqrt n, P(T' <= t) is the
integral over s of Phi(t s - z sqrt n) times the density of s = chi / sqrt f. With s = e^x the
trapezoidal rule converges exponentially; the integrand is positive, so that small areas keep their
digits. z is the root of erfc(z / sqrt 2) / 2 = p. T by adaptive quadrature of its definition. 40
digits; arguments are the exact doubles whose decimal text stands in the row. Needs mpmath
(python3-mpmath).
"""

import csv
import random
from pathlib import Path

import mpmath as mp

from normal_truth import inverse as normal_inverse

mp.mp.dps = 40
DATA = Path(__file__).resolve().parents[2] / "tests" / "data"
FS = [1, 2, 3, 4, 5, 8, 13, 20, 35, 60, 99, 100, 199, 200, 201, 300, 999, 1999]
PS = [0.001, 0.01, 0.05, 0.2, 0.4, 0.7, 0.95]
# Where a method that takes T(h, a) for Q(h) / 2 beyond h a = 4 is worst.
CROSSING = [(1, 0.00182, 2.971), (1, 0.00182, 2.98), (3, 0.0182, 3.64), (1, 0.00182, -2.971)]
CROSSING_OWEN = [(0.95, 4.2111), (0.9496, 4.2124), (0.9, 4.4445)]
# The same for more degrees of freedom, as a scan of a dense grid found them.
MORE_CROSSING = [(1, 0.0017855788383832616, -2.8891314272407369),
                 (3, 0.018705514564201775, 3.0079529857150424),
                 (5, 0.047956377911735681, 4.6079075129248626),
                 (7, 0.93056337666666822, -3.0366083924674161),
                 (9, 0.097660114741274562, 4.3321830896064961),
                 (15, 0.14372098365096775, 2.6800281599502078),
                 (29, 0.21586051935737427, 2.4661017039812481)]
# Where a series that ends at a small term is worst, and both sides of the borders at h a = 4, h =
# 37, a = 1 and the smallest a.
BORDER_OWEN = [(6.7786444816632434, 0.57543993733715659), (8 * (1 - 1e-12), 0.5),
               (8 * (1 + 1e-12), 0.5), (2 * (1 - 1e-12), 2.0), (2 * (1 + 1e-12), 2.0),
               (36.9999999, 0.1), (37.0, 0.1), (37.0000001, 0.1), (1.0, 1 - 1e-12),
               (1.0, 1 + 1e-12), (1.0, 3.9e-8), (1.0, 4.1e-8)]
# Neighbours of the border between series and approximation, and the outermost proportions.
BORDER_FS = [198, 202, 203]
OUTER_FS = [1, 2, 3, 10, 199, 200, 201, 1999]
OUTER_PS = [0.0001, 0.9999]


def noncentral_lower(f, z, K):
    root = mp.sqrt(f + 1)
    constant = mp.log(2) + f / 2 * mp.log(f / 2) - mp.loggamma(f / 2)

    def integrand(x):
        s = mp.exp(x)
        return mp.ncdf(root * (K * s - z)) * mp.exp(constant + f * x - f * s * s / 2)

    # From the highest point outwards until nothing is added.
    step = min(mp.mpf(1) / 20, 1 / mp.sqrt(2 * f) / 4)
    grid = [k * step for k in range(-int(4 / step), int(2 / step))]
    start = max(grid[::5], key=integrand)
    total = integrand(start)
    for direction in (1, -1):
        x = start
        while True:
            x += direction * step
            value = integrand(x)
            total += value
            if value <= total * mp.mpf(10) ** -36:
                break
    return total * step


def factors(z, f, rng):
    """Factors around the one whose confidence is a half, and some far from it."""
    spread = ((1 + z * z / 2) / (f + 1)) ** 0.5
    values = [z + shift * spread for shift in (-3.0, -1.645, -0.5, 0.0, 0.5, 1.645, 3.0, 6.0)]
    return values + [-0.5, rng.uniform(-1, 5), rng.uniform(0, 3)]


def owen(h, a):
    def integrand(x):
        return mp.exp(-h * h * (1 + x * x) / 2) / (1 + x * x)

    cuts = [mp.mpf(c) / max(h, mp.mpf("0.01")) for c in (0, 1, 3, 6, 10, 20)]
    return mp.quad(integrand, [c for c in cuts if c < a] + [a]) / (2 * mp.pi)


def owen_arguments(rng):
    pairs = [(h, a) for h in (1e-6, 0.1, 0.7, 1.0, 2.5, 4.0, 5.0, 10.0, 35.0)
             for a in (4e-8, 1e-6, 0.1, 0.5, 0.79, 0.9999999, 1.0, 1.0000001, 2.0, 30.0)]
    pairs += [(10 ** rng.uniform(-2, 1), 10 ** rng.uniform(-2, 1)) for _ in range(150)]
    return pairs + CROSSING_OWEN + BORDER_OWEN


def deviate(p):
    with mp.workdps(60):
        return normal_inverse(mp.mpf(p))


def lower(f, p, K):
    return noncentral_lower(mp.mpf(f), deviate(p), mp.mpf(K))


def border_arguments(rng):
    pairs = [(f, p) for f in BORDER_FS for p in PS] + [(f, p) for f in OUTER_FS for p in OUTER_PS]
    return [(f, p, K) for f, p in pairs
            for K in factors(float(deviate(p)), f, rng)]


def main():
    rng = random.Random(5)
    with open(DATA / "noncentral_t_truth.csv", "w", encoding="ascii", newline="") as table:
        out = csv.writer(table, lineterminator="\n")
        out.writerow(["f", "p", "K", "true"])
        for f, p, K in CROSSING:
            out.writerow([f, repr(p), repr(K), mp.nstr(lower(f, p, K), 20)])
        for f in FS:
            for p in PS:
                z = deviate(p)
                for K in factors(float(z), f, rng):
                    value = noncentral_lower(mp.mpf(f), z, mp.mpf(K))
                    if value < mp.mpf(10) ** -300:  # below the doubles
                        continue
                    out.writerow([f, repr(p), repr(K), mp.nstr(value, 20)])
        for f, p, K in MORE_CROSSING + border_arguments(random.Random(200)):
            value = lower(f, p, K)
            if value > mp.mpf(10) ** -300:
                out.writerow([f, repr(p), repr(K), mp.nstr(value, 20)])
    with open(DATA / "owen_t_truth.csv", "w", encoding="ascii", newline="") as table:
        out = csv.writer(table, lineterminator="\n")
        out.writerow(["h", "a", "true"])
        for h, a in owen_arguments(rng):
            out.writerow([repr(h), repr(a), mp.nstr(owen(mp.mpf(h), mp.mpf(a)), 20)])


if __name__ == "__main__":
    main()
