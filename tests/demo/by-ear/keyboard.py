"""Real keys, and where they go: the keyboard of somebody who has nothing else."""

import subprocess
import time

import pyatspi
from gi.repository import GLib

PATIENCE = 1.5  # seconds, in which the keyboard goes elsewhere on a busy machine
SETTLED = 0.02  # a place may be told twice: a list, and the entry in it
FOCUS = "object:state-changed:focused"
SHOWN = "object:state-changed:showing"
CARET = "object:text-caret-moved"
VALUE = "object:property-change:accessible-value"


class Keyboard:
    """Presses keys and hears of each object that gets them; hears of progress and notices, too."""

    def __init__(self):
        self.heard = []
        self.progress = []
        self.notices = []
        for kind in (FOCUS, SHOWN, CARET, VALUE):
            pyatspi.Registry.registerEventListener(self.note, kind)

    def note(self, event):
        try:
            self.take(str(event.type), event.source, event.detail1)
        except Exception:  # it has gone meanwhile
            return

    def take(self, kind, source, is_so):
        role = source.getRole()
        if kind == FOCUS and is_so or kind == CARET and role == pyatspi.ROLE_DOCUMENT_FRAME:
            self.heard.append(source)  # on a page the keys go from link to link
        if kind == SHOWN and is_so and role == pyatspi.ROLE_NOTIFICATION:
            self.notices.append(source.name)
        if kind == VALUE and role == pyatspi.ROLE_PROGRESS_BAR:
            self.progress.append(source.queryValue().currentValue)

    def listen(self, seconds, until=lambda: False):
        """So long, or until that is true."""
        end = time.monotonic() + seconds
        while not until() and time.monotonic() < end:
            if not GLib.MainContext.default().iteration(False):
                time.sleep(0.002)

    def press(self, key, patience=PATIENCE):
        """Where the keys are after this one, as xdotool names it; None where they stay."""
        while GLib.MainContext.default().iteration(False):
            pass
        self.heard.clear()
        subprocess.run(["xdotool", "key", "--delay", "2", key], check=True)
        self.listen(patience, lambda: self.heard)
        self.listen(SETTLED)
        return self.heard[-1] if self.heard else None

    def tab(self, back=False):
        return self.press("shift+Tab" if back else "Tab")
