"""The program from outside: what a screen reader finds of it, and a person's pointer and keys."""

import os
import subprocess
import sys
import time

import pyatspi

PATIENCE = float(os.environ.get("NEB_PATIENCE", "20"))  # seconds that a step may take at most
SCALE = float(os.environ.get("QT_SCALE_FACTOR", "1"))  # places come in logical pixels


class Missing(Exception):
    """Something that a step needs, or promises, is not there."""


def run(*words):
    subprocess.run(words, check=True, stdout=subprocess.DEVNULL)


def await_(what, found, patience=PATIENCE):
    """The first thing that found() answers which is true; Missing when nothing comes."""
    until = time.monotonic() + patience
    while True:
        try:
            answer = found()
        except Exception:  # what was on the way out while it was looked at
            answer = None
        if answer:
            return answer
        if time.monotonic() > until:
            raise Missing(what)
        time.sleep(0.1)


def named(node):
    return node.name.replace("&", "")


def walk(node, depth=0):
    """All that is on the screen below a node, itself first."""
    yield node
    if depth > 24 or node.getRole() == pyatspi.ROLE_TABLE and depth > 0:
        return
    for index in range(min(node.childCount, 400)):
        child = node.getChildAtIndex(index)
        if child is not None:
            yield from walk(child, depth + 1)


def is_seen(node):
    states = node.getState()
    return states.contains(pyatspi.STATE_SHOWING) and states.contains(pyatspi.STATE_VISIBLE)


def resting(node):
    """Where it is, once it stays there: windows move as they open."""
    last = None
    while True:
        box = node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        now = (box.x, box.y, box.width, box.height)
        if now == last:
            return box
        last = now
        time.sleep(0.25)


class Program:
    """One running program, its windows and what is in them."""

    def __init__(self, path, shots):
        self.path = path
        self.shots = shots
        self.count = len(os.listdir(shots))
        self.process = None

    def start(self, *words):
        self.process = subprocess.Popen([self.path, *words], stderr=subprocess.DEVNULL)
        await_("the program on the screen", lambda: self.root().childCount > 0)

    def start_again(self, *words):
        """A second start beside the one that runs; its exit code."""
        return subprocess.run([self.path, *words], timeout=PATIENCE, check=False).returncode

    def root(self):
        for program in pyatspi.Registry.getDesktop(0):
            if program is not None and program.get_process_id() == self.process.pid:
                return program
        raise Missing("the program")

    def all(self, role=None):
        for window in self.root():
            for node in walk(window):
                if (role is None or node.getRole() == role) and is_seen(node):
                    yield node

    def find(self, name, role=None, patience=PATIENCE):
        """What bears this name, or begins with it where it ends in "..."."""
        def fits(node):
            text = named(node)
            return text.startswith(name[:-3]) if name.endswith("...") else text == name

        def look():
            return next((node for node in self.all(role) if fits(node)), None)

        return await_(f'"{name}"', look, patience)

    def is_there(self, name, role=None):
        try:
            return self.find(name, role, 0.0)
        except Missing:
            return None

    def gone(self, name, role=None):
        await_(f'"{name}" to go', lambda: not self.is_there(name, role))

    def click(self, node, button=1, times=1):
        box = resting(node)
        x, y = (box.x + box.width / 2) * SCALE, (box.y + box.height / 2) * SCALE
        run("xdotool", "mousemove", str(round(x)), str(round(y)))
        run("xdotool", "click", "--repeat", str(times), "--delay", "60", str(button))
        time.sleep(0.2)

    def key(self, *keys):
        for each in keys:
            run("xdotool", "key", "--delay", "30", each)
            time.sleep(0.15)

    def type(self, text):
        run("xdotool", "type", "--delay", "20", text)
        time.sleep(0.2)

    def focused(self):
        return next((node for node in self.all()
                     if node.getState().contains(pyatspi.STATE_FOCUSED)), None)

    def shot(self, name):
        time.sleep(0.4)
        self.count += 1
        # packed lightly: at twice the size, it took most of the time
        run("import", "-window", "root", "-quality", "10", f"{self.shots}/{self.count:02}-{name}.png")

    def ended(self):
        await_("the end of the program", lambda: self.process.poll() is not None)
        return self.process.returncode


class Walk:
    """Steps in a row: each is told, tried, and photographed, whether it went well or not."""

    def __init__(self, program):
        self.program = program

    def step(self, name, do):
        try:
            do()
        except (Missing, subprocess.SubprocessError) as problem:
            self.program.shot(name + "-FAILED")
            print(f"first-hour: {name}: not there: {problem}")
            for node in self.program.all():
                print("   ", node.getRoleName(), repr(named(node)))
            sys.exit(1)
        self.program.shot(name)
        print(f"  {name}")
