"""Albums are kept safe: checked, brought back, mended, moved, and reported on."""

TASKS = {
    "check_all_pictures": "safety/check-pictures",
    "hear_of_a_changed_picture": "safety/check-pictures safety/troubleshooting",
    "go_back_to_earlier_albums": "safety/restore",
    "lose_nothing_by_a_crash": "safety/promises",
    "go_on_after_damage": "safety/damaged-albums",
    "restore_after_damage": "safety/damaged-albums",
    "move_to_another_computer": "safety/moving safety/backups safety/command-line safety/kept",
    "copy_a_report": "safety/report",
}


def first_picture(user):
    return user.disk.path(user.disk.documents, "Albums", "1", "Slides", "00000001.jpg")


def check_all_pictures(user):
    user.choose("File", "Check All Pictures")
    user.opened("Check All Pictures")
    user.disk.becomes("a good end", lambda: user.is_shown("All is well"))
    user.press("Escape")
    user.at_home()


def hear_of_a_changed_picture(user):
    with open(first_picture(user), "ab") as file:
        file.write(b"changed")
    user.choose("File", "Check All Pictures")
    user.opened("Check All Pictures")
    user.tab_to("What was found")
    user.disk.becomes("the name of the picture", lambda: "00000001" in user.value())
    user.press_on("Copy the list")
    user.press("Escape")
    user.at_home()


def go_back_to_earlier_albums(user):
    user.go_to_card("Album Holiday")
    user.press("F2")
    user.opened("Rename Album")
    user.tab_to("New Album Name")
    user.rewrite("Journey")
    user.press("Return")
    user.disk.becomes("the new name", lambda: "Journey" in user.disk.albums())
    user.end()
    user.begin()
    user.choose("File", "Restore Earlier Albums")
    user.opened("Restore Earlier Albums")
    user.tab_to("All albums as they were")
    user.press("Down", "Up")
    user.press_on("Restore")
    user.box("Do you want all albums")
    user.press_on("Yes")
    user.acknowledge("The albums are as they were saved")
    user.disk.becomes("the old name", lambda: "Holiday" in user.disk.albums())
    user.press("Escape")
    user.at_home()


def lose_nothing_by_a_crash(user):
    user.go_to_card("Slide show Evening")
    user.press("F2")
    user.opened("Rename Slide Show")
    user.rewrite("Late")
    user.press("Return")
    user.disk.becomes("the new name", lambda: "Late" in user.disk.shows("Holiday"))
    user.begin_anew()
    user.go_to_card("Slide show Late")


def damage(user, name):
    user.end()
    with open(user.disk.path(user.disk.documents, name), "r+b") as file:
        file.truncate(7)
    user.start()
    user.opened("Damaged Albums")


def go_on_after_damage(user):
    damage(user, "NextIDs.dat")
    user.tab_to("What is wrong")
    user.press_on("Go On With What Is Left")
    user.box("Backups")
    user.press("Return")
    user.at_home()
    user.disk.becomes("all slides", lambda: len(user.disk.captions("Holiday")) == 19)


def restore_after_damage(user):
    damage(user, "Slides.dat")
    user.press("Return")
    user.box("Backups")
    user.press("Return")
    user.at_home()
    user.disk.becomes("all slides", lambda: len(user.disk.captions("Holiday")) == 19)


def move_to_another_computer(user):
    user.end()
    there = user.disk.path("There")
    user.disk.copy(user.disk.path("Documents"), there)
    user.start("--documents", there)
    user.at_home()
    user.go_to_card("Album Holiday")
    user.end()
    user.begin()


def copy_a_report(user):
    user.choose("Help", "Copy Report")
    user.press("ctrl+f", "ctrl+v")
    user.disk.becomes("the report", lambda: "NEB Slide Show" in user.value())
    user.press("Escape")
