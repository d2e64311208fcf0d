#!/usr/bin/env python3
"""Writes tests/data/rankit_truth.csv, shapiro_weight_truth.csv, fit_truth.csv, transform_truth.csv
and royston_poly_truth.csv: expected normal order statistics, the fitted line and Shapiro's test, the
transformations of single values, and the test's polynomials, in arbitrary precision.

Reason: the tables of the method's own steps tell whether the method was built; these tell how good
it is. Method: rankits by quadrature of x times the density of an order statistic (mpmath, 30
digits). Weights, line and test by the published formulas with exact powers, logarithms and normal
areas (40 digits) from the very constants of data/; the outcomes are the doubles of
series_sorted.csv. Needs mpmath (python3-mpmath).
"""

import csv
import random
from functools import lru_cache
from pathlib import Path

import mpmath as mp

ROOT = Path(__file__).resolve().parents[2]
DATA = ROOT / "tests" / "data"


def constants(name):
    text = (ROOT / "data" / name).read_text(encoding="ascii").replace(",", "\n")
    return [mp.mpf(float(item)) for item in text.split()]


mp.mp.dps = 40
MAIN = constants("VALKORIN.COF")
TABLED, RANKIT = MAIN[:196], [None] + MAIN[196:220]
ROYSTON = constants("asr94COF.txt")
POLY, at = {}, 0
for column, count in enumerate((6, 6, 4, 4, 4, 3, 2, 2, 2, 2), 1):
    POLY[column], at = ROYSTON[at:at + count], at + count
Z90, Z95, Z99, ZM, ZSS, BF1, XX90, XX95 = ROYSTON[at:at + 8]
TH = ROYSTON[49]


def upper(x):
    return mp.erfc(x / mp.sqrt(2)) / 2


@lru_cache(maxsize=None)
def inverse(p):
    """The deviate with upper tail p, by Newton's steps on log Q."""
    if p > mp.mpf(1) / 2:
        return -inverse(1 - p)
    x = mp.sqrt(-2 * mp.log(p)) - 1 if p < mp.mpf("0.02") else mp.mpf(1) / 2
    for _ in range(100):
        q = upper(x)
        step = q * mp.sqrt(2 * mp.pi) * mp.exp(x * x / 2) * mp.log(q / p)
        x += step
        if abs(step) < mp.mpf(10) ** -35:
            return x
    raise ArithmeticError(f"no inverse for {p}")


def order_statistic(n, r):
    """Expected value of the r-th largest of n standard normal deviates."""
    p = mp.mpf(r) / (n + 1)
    centre = inverse(p)
    with mp.workdps(30):
        width = mp.sqrt(p * (1 - p) / n) * mp.sqrt(2 * mp.pi) * mp.exp(centre * centre / 2)
        scale = mp.log(mp.factorial(n)) - mp.log(mp.factorial(r - 1)) - mp.log(mp.factorial(n - r))

        def integrand(x):
            q = upper(x)
            log_density = scale + (r - 1) * mp.log(q) + (n - r) * mp.log1p(-q) - x * x / 2
            return x * mp.exp(log_density) / mp.sqrt(2 * mp.pi)

        return mp.quad(integrand, [centre + k * width for k in range(-24, 25, 4)])


def rankits(M):
    c = RANKIT
    if M == 3:
        return [mp.mpf(0.84628)]
    if M <= 20:
        offset = sum(k // 2 for k in range(4, M))
        return TABLED[offset:offset + M // 2]
    R = []
    for i in range(1, M // 2 + 1):
        if i <= 3:
            c1, c2, c3, c4, c5 = c[5 * i - 4:5 * i + 1]
            e = c1 / (M + c2)
            f = e ** c3
            S = e + f * (c4 + (-f if i == 3 else f) * c5) / M
        else:
            e = (i - c[19]) / (M + c[20])
            f = e ** (c[16] - c[17] / (i - c[18]))
            S = e + f * (c[21] - f * c[22]) / M
            if i == 4 and M < 40:
                S += (c[23] / M / M - c[24]) / M / M
        R.append(inverse(S))
    return R


def poly(x, column):
    return sum(coefficient * x ** k for k, coefficient in enumerate(POLY[column]))


def weights(M):
    if M == 3:
        return [1 / mp.sqrt(2)]
    m = [-inverse((i - TH) / (M + mp.mpf(1) / 4)) for i in range(1, M // 2 + 1)]
    S2 = 2 * sum(x * x for x in m)
    tail = 2 if M > 5 else 1
    outer = [poly(1 / mp.sqrt(M), k + 1) - m[k] / mp.sqrt(S2) for k in range(tail)]
    FAC = mp.sqrt((S2 - 2 * sum(x * x for x in m[:tail])) / (1 - 2 * sum(x * x for x in outer)))
    return outer + [-x / FAC for x in m[tail:]]


def both_halves(half, M):
    return [-x for x in half] + [mp.mpf(0)] * (M % 2) + list(reversed(half))


def line(z, y):
    zbar, ybar = sum(z) / len(z), sum(y) / len(y)
    b = sum((u - zbar) * (v - ybar) for u, v in zip(z, y)) / sum((u - zbar) ** 2 for u in z)
    return ybar - b * zbar, b


def probability(W1, M, censored):
    if M == 3:
        return 1.5 * (mp.atan(mp.sqrt(1 - W1)) - mp.atan(mp.sqrt(3))) / mp.atan(1)
    Y, XX = mp.log(W1), mp.log(M)
    if M <= 11:
        gamma = poly(mp.mpf(M), 10)
        if Y >= gamma:
            return mp.mpf(0)
        Y, m, s = -mp.log(gamma - Y), poly(mp.mpf(M), 3), mp.exp(poly(mp.mpf(M), 4))
    else:
        m, s = poly(XX, 5), mp.exp(poly(XX, 6))
    if censored:
        LD, BF = -mp.log(mp.mpf(censored) / M), 1 + XX * BF1
        Z = [Z90 + BF * poly(XX90 ** XX, 7) ** LD, Z95 + BF * poly(XX95 ** XX, 8) ** LD,
             Z99 + BF * poly(XX, 9) ** LD]
        mean = sum(Z) / 3
        ZSD = sum(u * (v - mean) for u, v in zip((Z90, Z95, Z99), Z)) / ZSS
        m, s = m + s * (mean - ZM * ZSD), s * ZSD
    return upper((Y - m) / s)


def test(a, y, M):
    abar, ybar = sum(a) / len(a), sum(y) / len(y)
    SAX = sum((u - abar) * (v - ybar) for u, v in zip(a, y))
    both = sum((u - abar) ** 2 for u in a) * sum((v - ybar) ** 2 for v in y)
    W1 = 1 - SAX * SAX / both
    return 1 - W1, probability(W1, M, M - len(y))


TRANSFORMED = {
    "Log(x)": mp.log,
    "Sqr(x)": mp.sqrt,
    "Unt": lambda x: x,
    "x^2": lambda x: x * x,
    "1/x": lambda x: 1 / x,
}


def series():
    found = {}
    with open(DATA / "series_sorted.csv", encoding="ascii", newline="") as table:
        for row in csv.DictReader(table):
            if int(row["i"]) > 0:
                found.setdefault(row["series"], []).append(mp.mpf(float(row["C"])))
    return found


def ranges(M):
    found = [(1, M)]
    if M >= 8:
        found += [(M // 4 + 1, M), (1, M - M // 3), (M // 5 + 1, M - M // 5)]
    if M >= 20:  # one censored, and four fifths of them
        found += [(2, M), (1, M - 4 * M // 5), (4 * M // 5 + 1, M)]
    return found


def digits(x):
    return mp.nstr(x, 20)


def table(name, header, rows):
    with open(DATA / name, "w", encoding="ascii", newline="") as out:
        writer = csv.writer(out, lineterminator="\n")
        writer.writerow(header)
        writer.writerows(rows)


def rankit_rows():
    for n in [*range(3, 25), 26, 30, 38, 39, 40, 41, 60, 100, 200, 500, 1000, 1999, 2000]:
        wanted = range(1, n // 2 + 1)
        if n > 41:
            parts = {n // 20, n // 8, n // 4, n // 3, n // 2 - 1, n // 2}
            wanted = sorted({1, 2, 3, 4, 5, 10} | parts)
        for r in wanted:
            yield n, r, digits(order_statistic(n, r))


def fit_rows():
    for name, C in series().items():
        M = len(C)
        if M < 3 or (M > 600 and name != "R2000s3"):
            continue
        z, a = both_halves(rankits(M), M), both_halves(weights(M), M)
        for transformation, function in TRANSFORMED.items():
            y = sorted(map(function, C))
            for first, last in ranges(M):
                part = slice(first - 1, last)
                if y[first - 1] == y[last - 1]:
                    continue
                W = PW = mp.nan
                if last - first + 1 >= 3 and (M >= 20 or last - first + 1 == M):
                    W, PW = test(a[part], y[part], M)
                yield (name, transformation, first, last, *map(digits, line(z[part], y[part])),
                       *("" if mp.isnan(x) else digits(x) for x in (W, PW)))


def weight_rows():
    for M in (3, 4, 5, 6, 7, 10, 11, 12, 13, 19, 20, 21, 22, 50, 201, 500, 1001, 2000):
        half = weights(M)
        for i in sorted({1, 2, 3, 4, M // 4, M // 3, M // 2} & set(range(1, M // 2 + 1))):
            yield M, i, digits(half[i - 1])


INVERSE = {
    "Log(x)": mp.exp,
    "Sqr(x)": lambda y: y * y,
    "x^2": mp.sqrt,
    "Exp(x)": mp.log,
    "1/x": lambda y: 1 / y,
    "Lg(Lg(x))": lambda y: mp.exp(mp.exp(y)),
}


def transform_rows():
    there = {**TRANSFORMED, "Exp(x)": mp.exp, "Lg(Lg(x))": lambda x: mp.log(mp.log(x))}
    rng = random.Random(47)
    for name, back in INVERSE.items():
        top = {"Exp(x)": 44, "Lg(Lg(x))": 6}.get(name, 600)
        for _ in range(80):
            x = top ** rng.uniform(-1, 1)
            forward = x if name != "Lg(Lg(x))" else 1 + x
            yield name, "there", repr(forward), digits(there[name](mp.mpf(forward)))
            yield name, "back", repr(x), digits(back(mp.mpf(x)))


def polynomial_rows():
    with open(DATA / "royston_poly.csv", encoding="ascii", newline="") as rows:
        for row in csv.DictReader(rows):
            x, degree = mp.mpf(float(row["x"])), int(row["degree"])
            if int(row["column"]) not in POLY or degree > 6:
                continue
            terms = POLY[int(row["column"])][:degree + 1]
            value = sum((c * x ** k for k, c in enumerate(terms)), mp.mpf(0))
            yield repr(float(row["x"])), degree, row["column"], digits(value)


def main():
    table("royston_poly_truth.csv", ["x", "degree", "column", "true"], polynomial_rows())
    table("transform_truth.csv", ["name", "way", "argument", "true"], transform_rows())
    table("shapiro_weight_truth.csv", ["M", "i", "true"], weight_rows())
    table("fit_truth.csv", ["series", "Transformation", "first", "last", "a", "b", "W", "PW"],
          fit_rows())
    table("rankit_truth.csv", ["n", "r", "true"], rankit_rows())


if __name__ == "__main__":
    main()
