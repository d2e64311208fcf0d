#!/usr/bin/env python3
"""Writes the coefficient files VALKORIN.COF and asr94COF.txt from the published constants.

    write_coefficients.py           write both files into data/
    write_coefficients.py --check   compare them with what would be written; exit code 1 if they differ

constants.csv beside this script holds the constants under the names of the published listings
(AS 66 Hill 1973, AS 111 Beasley and Springer 1977, AS R94 Royston 1995, AS 177.3 Royston 1982),
exact_rankits.csv the expected normal order statistics, largest first.
"""

import csv
import sys
from decimal import Decimal
from pathlib import Path

HERE = Path(__file__).resolve().parent
DATA = HERE.parent.parent / "data"

# The order of the constants in the arrays of the program, index 1 first.
HILL_ORDER = "c6 c5 d5 c4 d4 c3 d3 c2 d2 c1 d1 r a3 a2 b2 a1 b1 p".split()  # then minus q
INVERSE_ORDER = "d2 d1 c3 c2 c1 c0 b4 b3 b2 b1 a2 a3 a1 a0".split()  # behind the floor
ROYSTON_POLYNOMIALS = [("C1", 6), ("C2", 6), ("C3", 4), ("C4", 4), ("C5", 4), ("C6", 3),
                       ("C7", 2), ("C8", 2), ("C9", 2), ("G", 2)]
ROYSTON_CONSTANTS = ("Z90 Z95 Z99 ZM ZSS BF1 XX90 XX95 ZERO ONE TWO THREE SQRTH QTR TH SMALL "
                     "PI6 STQR").split()
EXACT_RANKITS_PLACES = 196
RESERVED_A = 57
RESERVED_B = 59


def rows(name):
    with open(HERE / name, encoding="ascii", newline="") as table:
        return list(csv.DictReader(table))


def text(value):
    """A number without exponent, as the published listings print it."""
    return format(value, "f")


def rankit_coefficients(c):
    """The constants of AS 177.3 folded into the form in which the program uses them.

    The listing starts from (i - eps) / (n + gam); for i = 1, 2, 3 the difference is stored. The
    signs of dl2, bb, d and of the correction of the fourth order statistic are those with which
    the program's formulas write them.
    """
    eps, gam, lam, dl1, dl2 = ([c[f"{name}[{i}]"] for i in range(4)]
                               for name in ("eps", "gam", "lam", "dl1", "dl2"))
    dl2_sign = [1, 1, -1, -1]
    folded = []
    for i in range(3):
        folded += [i + 1 - eps[i], gam[i], lam[i], dl1[i], dl2_sign[i] * dl2[i]]
    folded += [lam[3], -c["bb"], -c["d"], eps[3], gam[3], dl1[3], dl2_sign[3] * dl2[3]]
    folded += [-c["mic"] * c["corr4_c3"], c["mic"] * c["corr4_c2"]]
    return [value.normalize() for value in folded]


def main_file(constants):
    exact = [row["value"] for row in rows("exact_rankits.csv")]
    exact += ["0"] * (EXACT_RANKITS_PLACES - len(exact))
    hill = constants["AS 66"]
    inverse = constants["AS 111"]
    items = exact
    items += map(text, rankit_coefficients(constants["AS 177.3"]))
    items += ["0"] * RESERVED_A
    items.append(text(constants["inverse floor"]["floor"]))
    items += (text(inverse[name]) for name in INVERSE_ORDER)
    items += (text(hill[name]) for name in HILL_ORDER)
    items.append(text(-hill["q"]))
    items += ["0"] * RESERVED_B
    assert len(items) == 370
    return items


def royston_file(constants):
    royston = constants["AS R94"]
    items = [text(royston[f"{name}[{i}]"])
             for name, count in ROYSTON_POLYNOMIALS for i in range(count)]
    items += (text(royston[name]) for name in ROYSTON_CONSTANTS)
    assert len(items) == 53
    return items


def read_constants():
    constants = {}
    for row in rows("constants.csv"):
        constants.setdefault(row["algorithm"], {})[row["name"]] = Decimal(row["value"])
    return constants


def main(arguments):
    constants = read_constants()
    files = {"VALKORIN.COF": main_file(constants), "asr94COF.txt": royston_file(constants)}
    contents = {name: "".join(item + "\n" for item in items).encode("ascii")
                for name, items in files.items()}
    if arguments == ["--check"]:
        stale = [name for name, content in contents.items()
                 if (DATA / name).read_bytes() != content]
        for name in stale:
            print(f"{name} differs from what {Path(__file__).name} writes", file=sys.stderr)
        return 1 if stale else 0
    if arguments:
        print(__doc__, file=sys.stderr)
        return 2
    for name, content in contents.items():
        (DATA / name).write_bytes(content)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
