"""First steps: a folder becomes a show, the home, the windows, taking back, the help."""

TASKS = {
    "skip_the_speed_test": "shows/speed-test",
    "make_a_show_of_a_folder": "start/first-album start/quick-show albums/choose-folder",
    "begin_with_the_home": "start/home",
    "search_the_home": "start/home",
    "rename_a_show": "albums/give-a-name",
    "take_back_and_do_again": "start/undo",
    "go_from_window_to_window": "start/windows start/keys",
    "read_the_help": "start/help",
    "search_the_help": "start/help",
    "be_answered_no": "start/messages",
    "read_about_the_program": "start/about",
}


def skip_the_speed_test(user):
    user.begin()


def make_a_show_of_a_folder(user):
    user.press("ctrl+k")
    user.opened("Quick Show")
    user.press("ctrl+o")
    user.opened("Directory")
    user.fill("Directory", user.disk.pictures)
    user.press("Return")
    user.press_on("Select")
    user.opened("Quick Show")
    user.tab_to("Slide Show Name")
    user.disk.becomes("progress that is told",
                      lambda: user.ear.listen(0.1) or user.ear.progress)
    user.press("Return")
    user.hear("Slide 1 of 19")
    user.press("Escape")
    user.hear("Album Holiday")
    user.disk.becomes("the show of the folder",
                      lambda: len(user.disk.shows("Holiday")["Holiday"]["Details"]) == 19)


def begin_with_the_home(user):
    user.press("ctrl+m")
    user.opened("Slide Show Manager")
    user.press("alt+Home")
    user.hear("Album Holiday")
    user.go_to_card("Slide show Holiday")
    user.press("Menu")
    user.go_down_to("Rehearse")
    user.press("Escape")
    user.press("alt+Home")
    user.opened("Slide Show Manager")
    user.press("ctrl+F4")
    user.hear("Slide show Holiday")


def search_the_home(user):
    user.press("ctrl+f")
    user.hear("Search albums")
    user.write("kathe")
    user.press("Down")
    user.hear("Slide Käthe")
    user.press("Return")
    user.hear("Slide 7 of 19")
    user.press("Escape")
    user.press("ctrl+f")
    user.press("Escape")


def rename_a_show(user):
    user.tab_to("Albums and slide shows")
    user.go_to_card("Slide show Holiday")
    user.press("F2")
    user.opened("Rename Slide Show")
    user.rewrite("Summer")
    user.press("Return")
    user.disk.becomes("the new name", lambda: "Summer" in user.disk.shows("Holiday"))
    user.at_home()
    user.hear_of_change("Slide show Summer")


def take_back_and_do_again(user):
    user.press("ctrl+z")
    user.disk.becomes("the old name", lambda: "Holiday" in user.disk.shows("Holiday"))
    user.choose("Edit", "Redo")
    user.disk.becomes("the new name again", lambda: "Summer" in user.disk.shows("Holiday"))
    user.press("ctrl+z")
    user.press("ctrl+shift+z")
    user.disk.becomes("the new name once more", lambda: "Summer" in user.disk.shows("Holiday"))


def go_from_window_to_window(user):
    user.press("ctrl+e")
    user.opened("Slide Manager")
    user.press("ctrl+b")
    user.opened("Bulk Slide Manager")
    user.press("ctrl+Tab")
    user.opened("Slide Manager")
    user.press("ctrl+shift+Tab")
    user.opened("Bulk Slide Manager")
    user.choose("Window", "Tile")
    user.opened("Bulk Slide Manager")
    user.choose("Window", "Cascade")
    user.opened("Bulk Slide Manager")
    user.choose("Window", "1")
    user.opened("Slide Manager")
    user.choose("Window", "Close")
    user.opened("Bulk Slide Manager")
    user.press("ctrl+w")
    user.at_home()


def read_the_help(user):
    user.press("ctrl+r")
    user.opened("Preferences")
    user.press("F1")
    user.opened("NEB Slide Show Help")
    user.reads("Nothing is kept before Apply")
    user.press("F6")
    user.hear_at("Contents")
    user.write("transitions")
    user.press("Return", "F6")
    user.hear_at("Help")
    user.reads("leads from one picture to the next")
    user.press("alt+Left")
    user.hear("Preferences")
    user.look()
    user.reads("Nothing is kept before Apply")
    user.press("Escape")
    user.opened("Preferences")
    user.press("Escape")


def search_the_help(user):
    user.choose("Help", "Contents")
    user.opened("NEB Slide Show Help")
    user.press("F6")
    user.hear_at("Contents")
    user.press("alt+s")
    user.hear("Words to look for")
    user.write("microphone")
    user.press("Down")
    user.hear("Sound recorder")
    user.press("Return", "F6")
    user.hear_at("Help")
    user.reads("up to 20 seconds")
    user.press("ctrl+f")
    user.hear("Find on this page")
    user.write("20 seconds")
    user.press("F3")
    user.press("Escape", "Escape")
    user.at_home()


def be_answered_no(user):
    user.go_to_card("Slide show Summer")
    user.press("Delete")
    user.box("Are you sure")
    user.press("Return")
    user.at_home()
    if "Summer" not in user.disk.shows("Holiday"):
        raise user.missing("a show that stays")


def read_about_the_program(user):
    user.choose("Help", "About")
    user.opened("About NEB Slide Show")
    user.tab_to("Third-party notices")
    user.press("Escape")
    user.at_home()
