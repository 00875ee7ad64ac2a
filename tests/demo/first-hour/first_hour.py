"""Somebody new: the first start, a folder of pictures becomes a show, an album is looked through,
a mistake is taken back, every window is seen, and the program is ended and started again."""

import os
import sys
import time

import pyatspi
import windows_seen
from outside import Missing, Program, Walk, await_
from windows_seen import choose

program_path, home, shots = sys.argv[1:]
program = Program(program_path, shots)
walk = Walk(program)
holiday = os.path.join(home, "Holiday")
PICTURES = [name for name in os.listdir(holiday) if os.path.isfile(os.path.join(holiday, name))]
LONG = "A name that grows and grows until nobody would want to read it any more at all, ever " * 2


def text_of(node):
    return node.queryText().getText(0, -1)


def card(name):
    """Of the home, or of an album that is looked through."""
    return program.find(name, pyatspi.ROLE_LIST_ITEM)


def skip_the_speed_test():
    program.start()
    program.find("NEB Slide Show will now test...", pyatspi.ROLE_LABEL)
    program.click(program.find("Skip", pyatspi.ROLE_PUSH_BUTTON))
    program.gone("Skip", pyatspi.ROLE_PUSH_BUTTON)


def see_the_home():
    for name in ("Quick Show", "New Album", "Import"):
        program.find(name + "...", pyatspi.ROLE_PUSH_BUTTON)
    program.find("or drop a folder here", pyatspi.ROLE_LABEL)


def play_without_a_show():
    program.key("F5")
    program.find("There is no slide show yet...", pyatspi.ROLE_LABEL)


def hand_over_the_folder():
    program.key("Escape")
    if program.start_again(holiday) != 0:
        raise Missing("a second start that ends well")
    name = program.find("Slide Show Name", pyatspi.ROLE_TEXT)
    await_("a proposed name", lambda: text_of(name) == "Holiday")


def enter_saves_and_plays():
    program.key("Return")
    await_("the show on the screen", lambda: len(list(program.root())) > 1 and
           not program.is_there("Slide Show Name", pyatspi.ROLE_TEXT))
    time.sleep(2)
    program.key("Right", "Right")


def leave_the_show():
    program.key("Escape")
    card("Album Holiday...")
    card("Slide show Holiday...")


def look_through_the_album():
    program.click(card("Album Holiday..."), times=2)
    program.find("Back to the albums", pyatspi.ROLE_PUSH_BUTTON)
    card("Slide 1 of...")


def caption_in_place():
    program.key("F2")
    program.key("ctrl+a")
    program.type("First light")
    program.key("Return")
    await_("the new caption", lambda: any(
        "First light" in node.name for node in program.all(pyatspi.ROLE_LIST_ITEM)))


def on_the_whole_screen():
    program.key("Return")
    program.find("Slide...", pyatspi.ROLE_IMAGE)
    program.key("Right")


def deleted_by_mistake():
    program.key("Escape", "Home")
    program.find(f"Holiday, {len(PICTURES)} slides", pyatspi.ROLE_LABEL)
    program.key("Delete")
    program.click(program.find("Yes", pyatspi.ROLE_PUSH_BUTTON))
    program.find(f"Holiday, {len(PICTURES) - 1} slides", pyatspi.ROLE_LABEL)
    program.click(program.find("Edit", pyatspi.ROLE_MENU_ITEM))
    program.find("Undo Delete Slide...", pyatspi.ROLE_MENU_ITEM)


def taken_back():
    program.click(program.find("Undo Delete Slide...", pyatspi.ROLE_MENU_ITEM))
    program.find(f"Holiday, {len(PICTURES)} slides", pyatspi.ROLE_LABEL)


def search():
    program.click(program.find("Back to the albums", pyatspi.ROLE_PUSH_BUTTON))
    card("Album Holiday...")
    program.key("ctrl+f")
    program.type("first li")
    card("Slide First light...")


def a_name_too_long():
    program.key("Escape", "Escape")
    program.click(card("Album Holiday..."))
    program.key("F2")
    field = program.find("New Album Name", pyatspi.ROLE_TEXT)
    await_("the old name", lambda: text_of(field) == "Holiday")
    program.type(LONG)
    if len(text_of(field)) > 80:
        raise Missing("a name that ends at 80 characters")


def preferences_stay():
    program.key("Escape")
    program.key("ctrl+r")
    program.click(program.find("Apply", pyatspi.ROLE_PUSH_BUTTON))
    program.find("These settings are kept.", pyatspi.ROLE_LABEL)


def help_in_a_modal_window():
    program.key("F1")
    program.find("NEB Slide Show Help", None)


def end_and_begin_again():
    program.key("ctrl+q")
    if program.ended() != 0:
        raise Missing("an end that went well")
    program.start()
    card("Album Holiday...")


walk.step("speed-test-skipped", skip_the_speed_test)
walk.step("home-on-the-first-day", see_the_home)
walk.step("play-without-a-show", play_without_a_show)
walk.step("folder-handed-over", hand_over_the_folder)
walk.step("show-runs", enter_saves_and_plays)
walk.step("home-with-an-album", leave_the_show)
walk.step("album-looked-through", look_through_the_album)
walk.step("caption-in-place", caption_in_place)
walk.step("on-the-whole-screen", on_the_whole_screen)
walk.step("deleted-by-mistake", deleted_by_mistake)
walk.step("taken-back", taken_back)
walk.step("search", search)
walk.step("a-name-too-long", a_name_too_long)
walk.step("preferences-stay", preferences_stay)
walk.step("help-in-a-modal-window", help_in_a_modal_window)
program.key("Escape", "Escape")
windows_seen.see_all(program, walk)
walk.step("begun-again", end_and_begin_again)
program.key("ctrl+q")
sys.exit(program.ended())
