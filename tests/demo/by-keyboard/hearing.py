"""What somebody hears who has a screen reader, and the keys that he presses: no pointer at all."""

import os
import subprocess
import sys
import time

import pyatspi
from gi.repository import GLib

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "first-hour"))
from outside import PATIENCE, Missing, Program, await_, named, run, walk  # noqa: E402
from landing import Disk  # noqa: E402

FOCUS = "object:state-changed:focused"
NAME = "object:property-change:accessible-name"
VALUE = "object:property-change:accessible-value"
WINDOW = "window:activate"
MOST_STEPS = 60
WINDOWS = (pyatspi.ROLE_DIALOG, pyatspi.ROLE_FRAME, pyatspi.ROLE_ALERT)
ENTRIES = (pyatspi.ROLE_LIST_ITEM, pyatspi.ROLE_TABLE_CELL, pyatspi.ROLE_TREE_ITEM)
MENUS = {"File": "alt+f", "Edit": "alt+f Right", "Album": "alt+a", "Slide Show": "alt+l",
         "Import/Export": "alt+i", "Print": "alt+p", "Window": "alt+w", "Help": "alt+h"}


class Ear:
    """Hears where the keys go, and what is said anew of that place."""

    def __init__(self):
        self.here = None  # what has the keys
        self.window = None  # the window that came up last
        self.said = []  # names, in their order, of where the keys went and what changed there
        self.changed = []  # new names of entries, wherever the keys are
        self.progress = []  # values of progress bars
        for kind in (FOCUS, NAME, VALUE, WINDOW):
            pyatspi.Registry.registerEventListener(self.note, kind)

    def note(self, event):
        try:
            self.take(event)
        except Exception:  # it has gone meanwhile
            return

    def take(self, event):
        kind = str(event.type)
        if kind == VALUE and event.source.getRole() == pyatspi.ROLE_PROGRESS_BAR:
            self.progress.append(event.source.queryValue().currentValue)
        elif kind == WINDOW:
            self.window = event.source
        elif kind == FOCUS and event.detail1:
            self.here = event.source
            self.said.append(named(event.source))
        elif kind == NAME:
            if event.source.getRole() in ENTRIES:
                self.changed.append(named(event.source))
            if self.here is not None and event.source.path == self.here.path:
                self.said.append(named(event.source))

    def listen(self, seconds):
        until = time.monotonic() + seconds
        while time.monotonic() < until:
            if not GLib.MainContext.default().iteration(False):
                time.sleep(0.005)

    def listen_for_words(self, seconds):
        """Until something is said, and what comes right behind it."""
        until = time.monotonic() + seconds
        while not self.said and time.monotonic() < until:
            self.listen(0.01)
        self.listen(0.03)

    def hear(self, begins, patience=PATIENCE):
        """Until something is said that begins so."""
        def was_said():
            self.listen(0.05)
            return any(words.startswith(begins) for words in self.said)

        try:
            await_(f'to hear "{begins}"', was_said, patience)
        except Missing:
            raise Missing(f'to hear "{begins}"; said was {self.said[-12:]}') from None


class ByKeyboard(Program):
    """The program for somebody who has the keyboard alone, and goes by what is heard."""

    def __init__(self, bin_folder, home, shots):
        super().__init__(os.path.join(bin_folder, "neb-slide-show"), shots)
        self.ear = Ear()
        self.disk = Disk(bin_folder, home)

    def begin(self):
        """The program, at its home; at its very first start it asks for the speed test."""
        self.ear.here = None
        self.start()
        await_("the keyboard", self.has_keyboard)
        self.hear_at("Test Now", "Albums and slide shows", "Quick Show")
        if self.is_at("Test Now"):
            self.press_on("Skip")
            self.hear_at("Albums and slide shows", "Quick Show")
            await_("the keyboard", self.has_keyboard)

    def has_keyboard(self):
        """As the desktop sees it."""
        said = subprocess.run(["xdotool", "getactivewindow", "getwindowpid"], check=False,
                              capture_output=True, text=True)
        return said.stdout.strip() == str(self.process.pid)

    def begin_anew(self):
        self.process.kill()
        self.process.wait()
        self.begin()

    def end(self):
        self.press("ctrl+q")
        if self.ended() != 0:
            raise Missing("an end that went well")

    def click(self, node, button=1, times=1):
        raise Missing("a pointer")

    def press(self, *keys):
        for each in keys:
            self.ear.said.clear()
            run("xdotool", "key", "--delay", "20", each)
            self.ear.listen(0.12)

    def write(self, text):
        run("xdotool", "type", "--delay", "12", text)
        self.ear.listen(0.1)

    def rewrite(self, text):
        self.press("ctrl+a")
        self.write(text)

    def is_at(self, name):
        """The control itself, or the list whose entry has the keys."""
        try:
            places = [self.ear.here]
            if places[0].getRole() in ENTRIES:
                places.append(places[0].parent)
            return any(named(each).startswith(name) for each in places)
        except Exception:  # it has gone, or there was none yet
            return False

    def tab_to(self, name):
        """By Tab alone, as far as it takes."""
        came_by = []
        for _ in range(MOST_STEPS):
            if self.is_at(name):
                return
            self.ear.said.clear()
            run("xdotool", "key", "Tab")
            self.ear.listen_for_words(1.0)
            came_by += self.ear.said
        raise Missing(f'"{name}" by Tab, which came by {came_by[-30:]}')

    def press_on(self, name):
        self.tab_to(name)
        self.press("space")

    def fill(self, field, text):
        self.tab_to(field)
        self.rewrite(text)

    def hear(self, begins):
        self.ear.hear(begins)

    def hear_of_change(self, begins):
        """An entry is told to be called so now."""
        await_(f'to hear that "{begins}" is a new name', lambda: self.ear.listen(0.05) or any(
            name.startswith(begins) for name in self.ear.changed))

    def look(self):
        """Where the keys are, when that was not heard."""
        for window in list(self.root())[::-1]:
            for node in walk(window):
                if node.getState().contains(pyatspi.STATE_FOCUSED) and (
                        node.getRole() not in ENTRIES):
                    self.ear.here = node
                    self.ear.said.append(named(node))
                    return

    def above(self):
        """Where the keys are, and all that it is in; nothing where that has gone meanwhile."""
        above = []
        try:
            node = self.ear.here
            while node is not None and node.getRole() != pyatspi.ROLE_APPLICATION:
                above.append(node)
                node = node.parent
        except Exception:
            return []
        return above

    def windows(self):
        return [f"{node.getRoleName()} {named(node)!r}" for node in self.above()]

    def opened(self, title):
        """The keys are in a window of this title."""
        def is_in():
            self.ear.listen(0.1)
            if not self.above():
                self.look()
            return any(named(node).startswith(title) for node in [*self.above(), self.ear.window]
                       if node.getRole() in WINDOWS)

        try:
            await_(f'the keys in "{title}"', is_in)
        except Missing:
            raise Missing(f'the keys in "{title}"; they are in {self.windows()}') from None

    def choose(self, menu, entry):
        """An entry of the menu bar: Alt and the letter, then down to it."""
        self.open_menu(menu)
        self.go_down_to(entry)
        self.press("Return")

    def open_menu(self, menu):
        """Of the menu bar; one without a letter is beside one that has it."""
        for key in MENUS[menu].split():
            self.press(key)
            await_(f'the entries of "{menu}"', lambda: self.ear.listen(0.05) or (
                self.ear.here.parent.getRole() == pyatspi.ROLE_POPUP_MENU))

    def go_to_card(self, name):
        """In the list of the home, or of an album that is looked through."""
        self.press("End", "Home")
        self.go_down_to(name, "Right")

    def go_down_to(self, entry, key="Down"):
        """In a menu or a list, by one key; from its first entry again where nothing comes any more."""
        came_by = []
        step = key
        for _ in range(MOST_STEPS):
            if self.ear.said and self.ear.said[-1].startswith(entry) or self.is_at(entry):
                return
            self.ear.said.clear()
            run("xdotool", "key", step)
            self.ear.listen_for_words(0.5)
            came_by += self.ear.said
            step = "Home" if step == key and not self.ear.said else key
        raise Missing(f'"{entry}" by the key {key}, which came by {came_by[-30:]}')

    def value(self):
        """What the field that has the keys holds."""
        return self.ear.here.queryText().getText(0, -1)

    def pick(self, field, entry):
        """An entry of a field that drops down a list."""
        self.tab_to(field)
        self.press("Home")
        for _ in range(MOST_STEPS):
            if entry in self.value():
                return
            self.press("Down")
        raise Missing(f'"{entry}" in "{field}"')

    def reads(self, words):
        """What the keys are in holds these words."""
        await_(f'to read "{words}"', lambda: self.ear.listen(0.05) or words in self.value())

    def is_shown(self, words):
        """In the window that has the keys."""
        window = next(node for node in self.above() if node.getRole() in WINDOWS)
        return any(words in named(node) for node in walk(window))

    def is_ticked(self):
        return self.ear.here.getState().contains(pyatspi.STATE_CHECKED)

    def tick(self, name, on=True):
        self.tab_to(name)
        if self.is_ticked() != on:
            self.press("space")
        await_(f'"{name}" to be {"ticked" if on else "empty"}',
               lambda: self.is_ticked() == on)

    @staticmethod
    def screen_is_black():
        """But for a pointer, or a line of it."""
        said = subprocess.run(["import", "-window", "root", "-format", "%[fx:mean]", "info:"],
                              check=True, capture_output=True, text=True)
        return float(said.stdout) < 0.002

    def acknowledge(self, words):
        """A box that says so is read and closed."""
        self.box(words)
        self.press("Return")

    def box(self, words):
        """A box has the keys, and says so."""
        def says():
            self.ear.listen(0.1)
            box = next(node for node in self.above() if node.getRole() == pyatspi.ROLE_ALERT)
            return any(words in named(node) for node in walk(box))

        try:
            await_(f'a box that says "{words}"', says)
        except Missing as problem:
            raise Missing(f"{problem}; the keys are in {self.windows()}") from None

    def at_home(self):
        """All windows are closed, and the keys are in the list of the home."""
        self.opened("NEB Slide Show")
        self.hear_at("Albums and slide shows")
        await_("the keyboard", self.has_keyboard)

    def hear_at(self, *names):
        """The keys come to one of these."""
        await_(f"the keys at {names}",
               lambda: self.ear.listen(0.05) or any(self.is_at(name) for name in names))

    @staticmethod
    def missing(what):
        return Missing(what)
