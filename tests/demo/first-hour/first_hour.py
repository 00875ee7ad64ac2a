"""Somebody new: the first start, a folder of pictures becomes a show, an album is looked through,
a mistake is taken back, every window is seen, and the program is ended and started again."""

import os
import sys
import time

import pyatspi
from outside import PATIENCE, Missing, Program, Walk, await_

program_path, home, shots = sys.argv[1:]
program = Program(program_path, shots)
walk = Walk(program)
holiday = os.path.join(home, "Holiday")
pictures = sorted(name for name in os.listdir(holiday)
                  if os.path.isfile(os.path.join(holiday, name)))


def choose(menu, entry):
    """As a person does it with the pointer."""
    program.click(program.find(menu, pyatspi.ROLE_MENU))
    program.click(program.find(entry, pyatspi.ROLE_MENU_ITEM))


def skip_the_speed_test():
    program.start()
    program.find("NEB Slide Show will now test...", pyatspi.ROLE_LABEL)
    program.click(program.find("Skip", pyatspi.ROLE_PUSH_BUTTON))
    program.gone("Skip", pyatspi.ROLE_PUSH_BUTTON)


def see_the_home():
    for name in ("Quick Show", "New Album", "Import"):
        program.find(name + "...", pyatspi.ROLE_PUSH_BUTTON)


def hand_over_the_folder():
    if program.start_again(holiday) != 0:
        raise Missing("a second start that ends well")
    program.find("Quick Show", None)
    name = program.find("Slide Show Name", pyatspi.ROLE_TEXT)
    await_("a proposed name",
           lambda: name.queryText().getText(0, -1) == "Holiday")


def enter_saves_and_plays():
    program.key("Return")
    await_("the show", lambda: program.is_there("Holiday", pyatspi.ROLE_FRAME) is None and
           len(list(program.root())) > 1)
    time.sleep(3)


def leave_the_show():
    program.key("Escape")
    program.find("Holiday...", pyatspi.ROLE_LIST_ITEM)


walk.step("speed-test-skipped", skip_the_speed_test)
walk.step("home-on-the-first-day", see_the_home)
walk.step("folder-handed-over", hand_over_the_folder)
walk.step("show-runs", enter_saves_and_plays)
walk.step("home-with-an-album", leave_the_show)
