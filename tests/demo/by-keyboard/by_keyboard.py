"""The first tasks of the help, by somebody without a mouse who does not see the screen: each control is
reached by Tab or its key, and what is heard says that the task is done."""

import os
import sys

import pyatspi
from hearing import ByKeyboard, Missing, await_
from outside import Walk

program_path, home, shots = sys.argv[1:]
program = ByKeyboard(program_path, shots)
walk = Walk(program)
holiday = os.path.join(home, "Holiday")
COUNT = len([name for name in os.listdir(holiday) if os.path.isfile(os.path.join(holiday, name))])


def first_start():
    program.start()
    program.opened("NEB Slide Show")
    program.press_on("Skip")
    program.hear("Quick Show")


def quick_show():
    program.press("ctrl+k")
    program.opened("Quick Show")
    program.press("ctrl+o")
    program.opened("Directory")
    program.tab_to("Directory")
    program.rewrite(holiday)
    program.press("Return")
    program.press_on("Select")
    program.tab_to("Slide Show Name")
    await_("progress that is told", lambda: program.ear.listen(0.1) or program.ear.progress)
    program.press("Return")
    program.hear(f"Slide 1 of {COUNT}")


def steer_the_show():
    program.press("Right")
    program.hear(f"Slide 2 of {COUNT}")
    program.press("g")
    program.hear("Go to slide")
    program.write("5")
    program.press("Return")
    program.hear(f"Slide 5 of {COUNT}")
    program.press("Home")
    program.hear(f"Slide 1 of {COUNT}")
    program.press("F1")
    program.hear("Keys of the show")
    program.press("F1", "Escape")
    program.hear("Album Holiday")


def look_through_the_album():
    program.press("Return")
    program.hear(f"Slide 1 of {COUNT}")
    program.press("Right")
    program.hear(f"Slide 2 of {COUNT}")


def caption_in_place():
    program.press("F2")
    program.rewrite("Autumn light")
    program.press("Return")
    program.hear(f"Slide 2 of {COUNT}, Autumn light")


def on_the_whole_screen():
    program.press("Return")
    program.hear(f"Slide 2 of {COUNT}, Autumn light")
    program.press("Right")
    program.hear(f"Slide 3 of {COUNT}")
    program.press("Escape")
    program.hear(f"Slide 3 of {COUNT}")


def turn_delete_and_take_back():
    program.press("ctrl+shift+r", "Delete")
    program.press_on("Yes")
    program.find(f"Holiday, {COUNT - 1} slides", pyatspi.ROLE_LABEL)
    program.press("ctrl+z")
    program.find(f"Holiday, {COUNT} slides", pyatspi.ROLE_LABEL)
    program.press("Escape")
    program.hear("Album Holiday")


def search():
    program.press("ctrl+f")
    program.hear("Search albums")
    program.write("autumn li")
    program.press("Down")
    program.hear("Slide Autumn light")
    program.press("Escape")


def ended():
    program.press("ctrl+q")
    if program.ended() != 0:
        raise Missing("an end that went well")


walk.step("first-start", first_start)
walk.step("quick-show", quick_show)
walk.step("steer-the-show", steer_the_show)
walk.step("look-through-the-album", look_through_the_album)
walk.step("caption-in-place", caption_in_place)
walk.step("on-the-whole-screen", on_the_whole_screen)
walk.step("turn-delete-and-take-back", turn_delete_and_take_back)
walk.step("search", search)
walk.step("end", ended)
