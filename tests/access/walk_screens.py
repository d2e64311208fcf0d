"""walk_screens.py DRIVER EXAMPLES: meets every screen as a screen reader and a keyboard do, from a
second process. Prints what is wrong, screen by screen, and fails when anything is."""

import re
import shutil
import sys
import tempfile
from collections import Counter

from order import order_faults
from program import Program, wait_for
from screens import NAMES, SCREENS

# Tags and entities, a mark of an access key, and the place where a long word may be broken.
MARKUP = re.compile(r"</?(qt|html|body|p|b|i|u|br|font|span|a)\b[^>]*>|&\w+;|&\w|\u200b", re.I)


def names_and_markup(program):
    for each in program.objects():
        if each.is_("FOCUSABLE") and not each.spoken.strip():
            yield f"{each} at {each.place} has no name"
        if each.name.rstrip().endswith("=") and each.role != "label":
            yield f"{each} is called by a caption that was not put into words"
        for text in (each.name, each.description):
            if MARKUP.search(text):
                yield f"{each} has markup: {text!r}"


def speaking_names(program, screen):
    names = {each.spoken for each in program.objects()}
    for wanted in NAMES.get(screen, []):
        if wanted not in names:
            yield f"nothing is called {wanted!r}"


def access_keys(program):
    """Of what can be seen; two things that answer the same key answer neither."""
    keys = Counter(each.access_key for each in program.objects())
    del keys[""]
    for key, count in keys.items():
        if count > 1:
            yield f"{key} is the access key of {count} things"


def first_menu_opens(program):
    """By its own key, every time."""
    for _ in range(2):
        program.press("alt+f")
        if not program.open_menu():
            yield "Alt+F does not open the File menu"
        program.press("Escape", "Escape")
        wait_for("the menu to close", lambda: not program.open_menu())


def reached_by_tab(program):
    """What Tab reaches, in its order, until it comes round."""
    reached = []
    met = set()
    while True:
        program.press("Tab")
        now = program.focused()
        if now is None or now.key in met:
            return reached
        reached.append(now)
        met.add(now.key)


def is_stop(each):
    """Whether Tab must stop here. Of a list it stops in the field, of a strip on the chosen tab, of
    a group of options on the chosen one."""
    if not each.is_("FOCUSABLE") or not each.is_("ENABLED"):
        return False
    if each.role in ("page tab", "radio button"):
        return each.is_("SELECTED") or each.is_("CHECKED")
    return each.role not in ("page tab list", "combo box")


def tab_order(program):
    reached = reached_by_tab(program)
    met = {each.key for each in reached}
    for each in program.objects():
        if is_stop(each) and each.key not in met:
            yield f"Tab does not reach {each}"
    # Tab may have scrolled the page: all places are those of now.
    now = {each.key: each for each in program.objects()}
    yield from order_faults([now[each.key] for each in reached if each.key in now])


CHECKS = [names_and_markup, access_keys, first_menu_opens, tab_order]


def walk(program):
    wrong = 0
    for screen, commands in SCREENS:
        program.play(*commands)
        faults = [fault for check in CHECKS for fault in check(program)]
        for fault in [*faults, *speaking_names(program, screen)]:
            wrong += 1
            print(f"{screen}: {fault}", flush=True)
    return wrong


def main():
    driver, examples = sys.argv[1:]
    with tempfile.TemporaryDirectory() as folder:
        shutil.copy(f"{examples}/welding_fume.vkr", folder)
        with Program(driver, folder) as program:
            wrong = walk(program)
    print(f"{len(SCREENS)} screens, {wrong} faults")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
