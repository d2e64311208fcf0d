"""print_by_cups.py DRIVER FILES: prints a report, a screen, the table and a picture through
the program on a printing system of its own, and compares what lies in the spool with what the
screens show. In the middle the system is killed: what could not be printed then is printed once it
is back."""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

import cups_server

SKIPPED = 77


class Driver:
    """valkorin-drive, which plays a line at a time."""

    def __init__(self, path, folder, environment):
        self.process = subprocess.Popen(
            [path, "-"], cwd=folder, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True,
            env={**environment, "QT_QPA_PLATFORM": "offscreen"})

    def play(self, *commands):
        """What the commands print."""
        for command in (*commands, "form"):
            self.process.stdin.write(command + "\n")
        self.process.stdin.flush()
        lines = []
        for line in self.process.stdout:
            if line.startswith("FAIL"):
                sys.exit(line)
            if line.startswith("form = "):
                return lines
            lines.append(line.rstrip("\n"))
        sys.exit("the driver has ended")

    def text(self, name):
        """What the control shows."""
        (line,) = self.play(f"get {name}")
        return re.search(r'"(.*)"', line)[1]

    def end(self):
        self.process.stdin.close()
        self.process.wait(timeout=30)


def expect(condition, what):
    if not condition:
        sys.exit(what)


def squeezed(text):
    return re.sub(r"\s+", " ", text).strip()


def expect_words(document, words):
    page = squeezed(document)
    for word in words:
        expect(squeezed(word) in page, f"{word!r} is not on the page:\n{document}")


# What of a screen's dump stands in no widget of its page.
NOT_ON_PAPER = ("menu ", "tab ")


def shown_texts(driver):
    """The captions and values that the shown screen has to see."""
    texts = []
    for line in driver.play("dump"):
        match = re.match(r'[\w()]+ = "(.*?)"', line)
        if not match or line.startswith(NOT_ON_PAPER) or " hidden" in line:
            continue
        texts += [part.replace("&&", "\0").replace("&", "").replace("\0", "&")
                  for part in re.split(r"\\r|\\n", match[1]) if part.strip()]
    return texts


# Screens in their states, each reached from the one before.
SCREENS = [
    ["tab descript"],
    ["tab basis"],
    ["tab raw", "click DetecChB", "type DetecLTxb 1.2"],
    ["tab descript"],
    ["tab raw", "click DetecChB", "tab grenzen", "type VkrValTxB 20"],
    ["tab extrapolation", "click LeidelCmb"],
    ["click WilksCmb"],
    ["click SampSizeCkb"],
    ["click SampSizeCkb", "click TuggleCmb"],
    ["tab mean", "click JahrCmb"],
    ["click LandCmb"],
    ["tab Compare", "answer no", "type SampSizTxB2 15", "answer no", "type GMTxB2 2.2", "answer no",
     "type GSDTxB2 1.8"],
]


def print_the_screens(server, driver):
    driver.play("printer screens")
    for number, commands in enumerate(SCREENS):
        driver.play(*commands, "box")
        print_the_screen(server, driver, number)


def print_the_screen(server, driver, number):
    driver.play("menu MenuPrinterPrint", "expect-no-box")
    document = server.text_of("screens", number)
    texts = shown_texts(driver)
    expect(len(texts) > 8, f"too little was read of the screen: {texts}")
    # A caption may be broken into lines, which stand beside others then.
    page = set(squeezed(document).split(" "))
    for text in texts:
        for word in squeezed(text).split(" "):
            expect(word in page, f"{word!r} of {text!r} is not on the page:\n{document}")
    expect_words(document, ["series.vkr", "date: 7 Mar 2024", "window "])


def print_the_table(server, driver):
    driver.play("tab raw", "printer tables", "menu MenuPrinter", "menu menuPrintgrid",
                "expect-no-box")
    document = server.text_of("tables")
    rows = int(re.search(r"rows\((\d+)\)", driver.play("get DBGridVkr")[0])[1])
    for row in range(1, rows + 1):
        expect_words(document, [driver.text(f"DBGridVkr({row},1)")])
    expect_words(document, ["page 1 of 1", "date: 7 Mar 2024"])


def print_a_picture(server, driver):
    driver.play("tab descript", "menu MenuVerd", "printer pictures", "menu Menuclose")
    driver.play("menu MenuPrinter", "menu MenuVerd", "menu MenuPrinterPrint", "expect-no-box")
    expect_words(server.text_of("pictures"), [driver.text("LblKoptekst").split("\\r")[0]])
    driver.play("menu Menuclose")


def print_reports(server, driver):
    """Killed in the middle, the system refuses the document; back again, it gets all of it."""
    driver.play("tab descript", "printer reports", "menu MenuPrinter", "menu MenuRapport")
    server.stop()
    driver.play("menu MenuRapport", "expect-no-box")
    for item in ("MenuPrinterPrint", "MenuGathered"):
        driver.play(f"menu {item}",
                    'expect-box "Print error" "The form can\'t be printed." exclamation ok -> ok')
    expect("(2)" in driver.text("MenuGathered"), "the document is lost")
    server.start()
    driver.play("menu MenuGathered", "expect-no-box")
    document = server.text_of("reports")
    expect(document.count("date: 7 Mar 2024") == 2, f"not two reports:\n{document}")
    for value in ("GMTxB", "GSDTxB", "AMmlTxb"):
        expect(document.count(driver.text(value).strip()) >= 2, f"{value} is missing:\n{document}")


def expect_vectors(server):
    """No page is a bitmap, and its fonts travel with it."""
    files = [(queue, file) for queue in ("screens", "tables", "pictures", "reports")
             for file in server.jobs(queue)]
    for queue, file in files:
        images = subprocess.run(["pdfimages", "-list", file], capture_output=True, text=True,
                                check=True).stdout.splitlines()
        expect(len(images) == 2, f"{queue} holds a bitmap: {images}")
        fonts = subprocess.run(["pdffonts", file], capture_output=True, text=True,
                               check=True).stdout.splitlines()[2:]
        expect(fonts, f"{queue} has no text")
        for font in fonts:
            expect(font.split()[-5] == "yes", f"{queue}: a font is not in the file: {font}")


def main():
    why = cups_server.missing()
    if why:
        print(f"SKIPPED: {why}")
        sys.exit(SKIPPED)
    driver_path, files = sys.argv[1], pathlib.Path(sys.argv[2])
    # The name of a socket must be short.
    folder = pathlib.Path(tempfile.mkdtemp(prefix="vkr-print-"))
    folder.chmod(0o755)
    server = cups_server.Server(folder / "cups")
    try:
        shutil.copy(files / "series.vkr", folder)
        server.start()
        for queue in ("screens", "tables", "pictures", "reports"):
            server.add_queue(queue)
        driver = Driver(driver_path, folder, server.environment)
        driver.play("printto system", "file series.vkr", "menu menuopen", "tab descript")
        print_the_screens(server, driver)
        print_the_table(server, driver)
        print_a_picture(server, driver)
        print_reports(server, driver)
        expect_vectors(server)
        driver.end()
    finally:
        server.stop()
        shutil.rmtree(folder, ignore_errors=True)


main()
