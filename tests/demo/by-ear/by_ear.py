"""Goes through every window from outside, by a screen reader's means and by Tab alone, and tells of
all that somebody would miss who does not see, or has no mouse."""

import subprocess
import sys
import time

import pyatspi
import rules
from keyboard import Keyboard
from seen import look

MOST_STOPS = 120
PATIENCE = 10.0  # seconds, in which a window comes up on a busy machine
WINDOWS = ("frame", "dialog", "window")
# The keys are not for these: a window that works has its Stop alone, or nothing at all.
WITHOUT_KEYS = ("frmPicturePopup", "frmLoading", "frmProgress", "frmTransferProgress")
MAIN = "frmNEBSlideShow"
PAGES = ("document frame", "document text")
AT_WORK = ("frmLoading", "frmProgress", "frmTransferProgress")


def waited_for(found):
    """What found() answers once that is something; None when nothing comes."""
    until = time.monotonic() + PATIENCE
    while True:
        answer = found()
        if answer is not None or time.monotonic() > until:
            return answer
        time.sleep(0.05)


def root(of):
    for program in pyatspi.Registry.getDesktop(0):
        if program is not None and program.get_process_id() == of.pid:
            return program
    return None


def window_called(program, title):
    """The innermost and last one: windows that have gone may still be listed before it."""
    found = None
    for top in program:
        for each in look(top).all():
            if each.role in WINDOWS and each.name.startswith(title):
                found = each
    return found


class Stops:
    """Where Tab goes in a window, and what is there."""

    def __init__(self, keyboard, window):
        self.keyboard = keyboard
        self.there = {each.node.path: each for each in window.all()}

    def of(self, node):
        """The control in which the keys are: of a cell its grid."""
        while node is not None and node.path not in self.there:
            node = node.parent if node.parent != node else None
        return self.there[node.path] if node is not None else None

    def next(self, back=False):
        return self.of(self.keyboard.tab(back))

    def before(self, stop):
        """Where Shift+Tab goes, past the links of a page."""
        for _ in range(MOST_STOPS):
            back = self.next(back=True)
            if back is not stop:
                return back
        return stop

    def round(self, at_each):
        """All until the first comes again; None behind them where it does not."""
        stops = []
        for _ in range(MOST_STOPS):
            stop = self.next()
            if stop is not None and stops and stop is stops[-1] and stop.role in PAGES:
                continue  # from link to link
            if stop is None or stop in stops:
                return stops + ([] if stops and stop is stops[0] else [None])
            stops.append(stop)
            at_each(stop)
        return stops + [None]


def wanted_stops(window):
    """What can be used, and so must be reached; of radio buttons one is enough."""
    return [each for each in window.all()
            if each.focusable and each.enabled and not each.is_place()
            and each.role not in WINDOWS + ("radio button",)]


def faults_of_grid(keyboard, grid):
    """The arrows go from row to row of a grid, and each is told with its place and as selected."""
    if grid.role != "table" or grid.node.queryTable().nRows < 2:
        return
    keyboard.press("Home", 0.1)
    cell = keyboard.press("Down")
    if cell is None or cell.getRoleName() != "table cell":
        yield f"{grid}: an arrow key tells of no cell"
        return
    table, place = grid.node.queryTable(), cell.getIndexInParent()
    row, column = table.getRowAtIndex(place), table.getColumnAtIndex(place)
    if row != 1 or column < 0:
        yield f"{grid}: the second row is told as row {row}, column {column}"
    if not cell.getState().contains(pyatspi.STATE_SELECTED):
        yield f'{grid}: row "{cell.name}" is not told as selected'


def faults_of_keys(keyboard, window):
    wanted = wanted_stops(window)
    if len(wanted) < 2:
        return
    faults = []
    stops = Stops(keyboard, window)
    there = stops.round(lambda stop: faults.extend(faults_of_grid(keyboard, stop)))
    if there[-1] is None:
        there.pop()
        yield f"Tab does not come round: {there[-1] if there else 'it goes nowhere'}"
    elif stops.before(there[0]) is not there[-1]:
        yield f"Shift+Tab does not go back from {there[0]} to {there[-1]}"
    for each in wanted:
        if each not in there:
            yield f"Tab never comes to {each}"
    yield from rules.of_order(there)
    yield from faults


def faults_of_work(keyboard):
    """How far it is comes by itself, time and again."""
    keyboard.progress.clear()
    keyboard.listen(PATIENCE, lambda: len(set(keyboard.progress)) > 1)
    if len(set(keyboard.progress)) < 2:
        yield "how far the work is comes to no ear"


def faults_of_notices(keyboard):
    """What comes up in the status bar is said though the keys are elsewhere."""
    keyboard.notices.clear()
    keyboard.press("ctrl+shift+z", 0.1)  # there is nothing to do again
    keyboard.listen(PATIENCE, lambda: keyboard.notices)
    if not any(keyboard.notices):
        yield "a notice in the status bar comes to no ear"


def faults_of(keyboard, shown, name, title):
    program = waited_for(lambda: root(shown))
    window = waited_for(lambda: window_called(program, title))
    if window is None:
        yield f'"{title}" is not to be found'
        return
    yield from rules.all_of(window)
    if name == MAIN:
        yield from faults_of_notices(keyboard)
    if name in AT_WORK:
        yield from faults_of_work(keyboard)
    if name not in WITHOUT_KEYS:
        yield from faults_of_keys(keyboard, window)


def main(command):
    shown = subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
    keyboard = Keyboard()
    count, wrong = 0, 0
    for line in shown.stdout:
        if "\t" not in line:
            print(line, end="")
            continue
        name, title = line.rstrip("\n").split("\t")
        began = time.monotonic()
        if count == 0:
            waited_for(lambda: keyboard.press("Tab"))  # from now on the program tells of the keys
        for fault in faults_of(keyboard, shown, name, title):
            print(f"{name}: {fault}")
            wrong += 1
        count += 1
        print(f"  {name} ({time.monotonic() - began:.1f} s)", flush=True)
        shown.stdin.write("\n")
        shown.stdin.flush()
    print(f"{count} windows, {wrong} faults")
    return 0 if shown.wait() == 0 and wrong == 0 and count > 0 else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
