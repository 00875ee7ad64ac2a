"""What somebody hears who has a screen reader, and the keys that he presses: no pointer at all."""

import os
import sys
import time

import pyatspi
from gi.repository import GLib

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "first-hour"))
from outside import PATIENCE, Missing, Program, await_, named, run  # noqa: E402

FOCUS = "object:state-changed:focused"
NAME = "object:property-change:accessible-name"
VALUE = "object:property-change:accessible-value"
MOST_STEPS = 60


class Ear:
    """Hears where the keys go, and what is said anew of that place."""

    def __init__(self):
        self.here = None  # what has the keys
        self.said = []  # names, in their order, of where the keys went and what changed there
        self.progress = []  # values of progress bars
        for kind in (FOCUS, NAME, VALUE):
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
        elif kind == FOCUS and event.detail1:
            self.here = event.source
            self.said.append(named(event.source))
        elif kind == NAME and self.here is not None and event.source.path == self.here.path:
            self.said.append(named(event.source))

    def listen(self, seconds):
        until = time.monotonic() + seconds
        while time.monotonic() < until:
            if not GLib.MainContext.default().iteration(False):
                time.sleep(0.005)

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

    def __init__(self, path, shots):
        super().__init__(path, shots)
        self.ear = Ear()

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
            places = [self.ear.here, self.ear.here.parent]
            return any(named(each).startswith(name) for each in places)
        except Exception:  # it has gone, or there was none yet
            return False

    def tab_to(self, name):
        """By Tab alone, as far as it takes."""
        for _ in range(MOST_STEPS):
            if self.is_at(name):
                return
            self.press("Tab")
        raise Missing(f'"{name}" by Tab')

    def press_on(self, name):
        self.tab_to(name)
        self.press("space")

    def hear(self, begins):
        self.ear.hear(begins)

    def opened(self, title):
        """A window of this title has come up."""
        def is_up():
            self.ear.listen(0.1)
            return any(named(node).startswith(title) for node in self.all()
                       if node.getRole() in (pyatspi.ROLE_DIALOG, pyatspi.ROLE_FRAME))

        await_(f'the window "{title}"', is_up)
        self.ear.listen(0.3)
