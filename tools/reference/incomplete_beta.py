"""The regularised incomplete beta function to 60 digits, for the tails of Student's t and of F.

Method: I_x(a, b) = x^a (1 - x)^b / (a B(a, b)) times the sum of x^n (a + b)_n / (a + 1)_n
(Abramowitz and Stegun 26.5.4 as a hypergeometric series), whose terms are all positive, so that
nothing cancels. Beyond the mean the complement is summed, and also where the direct sum would take too
long; there the working precision covers what the difference from 1 loses.
"""

import mpmath as mp

DIGITS = 60
LONG = 20000  # terms


def _series(x, y, a, b):
    factor = mp.exp(a * mp.log(x) + b * mp.log(y) - mp.log(a)
                    - mp.loggamma(a) - mp.loggamma(b) + mp.loggamma(a + b))
    term = total = mp.mpf(1)
    n = 0
    while term > total * mp.eps or (a + b + n) * x >= a + 1 + n:
        term = term * (a + b + n) * x / (a + 1 + n)
        total += term
        n += 1
    return factor * total


def regularised(x, y, a, b):
    """I_x(a, b) with y = 1 - x, both above 0."""
    with mp.workdps(DIGITS):
        if x > (a + 1) / (a + b + 2):
            return 1 - _series(y, x, b, a)
        if mp.mpf(2.31) * DIGITS < LONG * -mp.log(x):
            return _series(x, y, a, b)
    with mp.workdps(6 * DIGITS):
        return 1 - _series(y, x, b, a)


def student_upper(df, t):
    """P(T > t)."""
    if t == 0:
        return mp.mpf(1) / 2
    with mp.workdps(7 * DIGITS):
        x, y = df / (df + t * t), t * t / (df + t * t)
    half = regularised(x, y, df / 2, mp.mpf(1) / 2) / 2
    return half if t > 0 else 1 - half


def f_upper(d1, d2, F):
    """P(X > F)."""
    with mp.workdps(7 * DIGITS):
        x, y = d2 / (d2 + d1 * F), d1 * F / (d2 + d1 * F)
    return regularised(x, y, d2 / 2, d1 / 2)
