"""Plays report.session and reads what it has written as the receiver does: every value of the text
and of the table is found in the PDF file, its letters are embedded, and no page is a bitmap.
usage: read_report.py DRIVE SCRIPT SERIES"""
import csv
import io
import os
import shutil
import subprocess
import sys
import tempfile

SKIPPED = 77


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def words(text):
    """Without the blanks, which a page sets anew."""
    return "".join(text.split())


def check(holds, what):
    if not holds:
        sys.exit("FAIL: " + what)


def read_pdf(path):
    text = run("pdftotext", "-raw", path, "-")
    images = run("pdfimages", "-list", path).splitlines()[2:]
    check(not images, f"{path} has bitmaps: {images}")
    fonts = run("pdffonts", path).splitlines()[2:]
    check(fonts, f"{path} has no font")
    for font in fonts:
        check(font.split()[-5] == "yes", f"{path}: not embedded: {font}")
    return text


def main():
    drive, script, series = (os.path.abspath(path) for path in sys.argv[1:])
    if not all(shutil.which(tool) for tool in ("pdftotext", "pdfimages", "pdffonts")):
        print("SKIPPED: poppler-utils is not installed")
        return SKIPPED
    with tempfile.TemporaryDirectory() as folder:
        os.chdir(folder)
        shutil.copy(series, "series.vkr")
        with open("series.vkr", "rb") as file:
            before = file.read()
        os.mkdir("a_folder.pdf")
        os.environ["QT_QPA_PLATFORM"] = "offscreen"
        played = subprocess.run([drive, script], capture_output=True, text=True)
        check(played.returncode == 0, played.stdout)
        with open("series.vkr", "rb") as file:
            check(file.read() == before, "the series was written over")
        left = {"series.vkr", "a_folder.pdf", "report.pdf", "report.txt", "report.CSV", "raw.pdf",
                "plot.pdf", "limits.pdf", "tests.pdf", "mean.pdf", "compare.pdf"}
        check(set(os.listdir()) == left, f"other files than {left}: {os.listdir()}")
        page = words(read_pdf("report.pdf"))
        with open("report.txt", encoding="utf-8", newline="") as file:
            text = file.read()
        with open("report.CSV", encoding="utf-8", newline="") as file:
            rows = list(csv.DictReader(io.StringIO(file.read(), newline=""), strict=True))
        check(len(rows) > 40, f"only {len(rows)} results")
        for row in rows:
            # The unit of the outcomes stands above them, what W is in its sentence.
            outcome = row["Name"].startswith("Outcome ") and row["Name"][8:].isdigit()
            in_words = row["Name"] in ("Shapiro and Wilk's W", "Probability A(W)")
            parts = [row["Value"]]
            if outcome:
                parts.append(row["Name"][8:])
            # The tests stand side by side, under captions of their own.
            elif not in_words and row["Name"] in text and row["Method"] in text:
                parts = [row["Name"], row["Value"] + row["Unit"], row["Method"]]
            for part in parts:
                check(words(part) in page, f"the page lacks {part!r} of {row}")
            check(row["Value"] in text, f"the text lacks {row}")
        for other in sorted(left - {"report.pdf", "a_folder.pdf"}):
            if other.endswith(".pdf"):
                check("Reportonexposuredata" in words(read_pdf(other)), other)
    return 0


sys.exit(main())
