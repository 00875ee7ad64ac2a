"""An album is looked through: captions, turned pictures, deleted ones, and many at once."""

TASKS = {
    "look_through_an_album": "albums/looking-through",
    "find_it_among_recent_things": "start/desktop",
    "write_a_caption_in_place": "albums/captions albums/looking-through",
    "see_a_picture_on_the_whole_screen": "albums/whole-screen",
    "turn_pictures": "albums/rotating",
    "delete_and_take_back": "albums/looking-through start/undo",
    "write_captions_in_a_list": "albums/bulk-slide-manager albums/captions",
    "find_and_replace_in_captions": "albums/bulk-slide-manager",
    "give_many_slides_one_caption": "albums/set-captions",
}


def size_of(user, slide):
    """Of the picture file, as width and height, told by the desktop's own tool."""
    name = user.disk.album("Holiday")["Slides"][slide - 1]["SlideLoc"]
    return user.disk.size_of_picture("Holiday", name)


def look_through_an_album(user):
    user.go_to_card("Album Holiday")
    user.press("Return")
    user.hear("Slide 1 of 19")
    user.press("ctrl+plus", "ctrl+minus")
    user.press("Right")
    user.hear("Slide 2 of 19")


def find_it_among_recent_things(user):
    """In the list that the desktop keeps."""
    recent = user.disk.path(".local", "share", "recently-used.xbel")
    user.disk.becomes("the album in the list", lambda: user.disk.holds(recent, "Holiday"))


def write_a_caption_in_place(user):
    user.press("F2")
    user.rewrite("Autumn light")
    user.press("Return")
    user.hear("Slide 2 of 19, Autumn light")
    user.disk.becomes("the caption", lambda: user.disk.captions("Holiday")[1] == "Autumn light")


def see_a_picture_on_the_whole_screen(user):
    user.press("Return")
    user.hear("Slide 2 of 19, Autumn light")
    user.press("Right")
    user.hear("Slide 3 of 19")
    user.press("F2")
    user.rewrite("Up and away")
    user.press("Return")
    user.disk.becomes("the caption", lambda: user.disk.captions("Holiday")[2] == "Up and away")
    user.press("Home")
    user.hear("Slide 1 of 19")
    user.press("Escape")
    user.hear("Slide 1 of 19")


def turn_pictures(user):
    wide = size_of(user, 1)
    user.go_to_card("Slide 1 of 19")
    user.press("ctrl+shift+r")
    user.disk.becomes("a turned picture", lambda: size_of(user, 1) == wide[::-1])
    user.press("ctrl+z")
    user.disk.becomes("the picture as it was", lambda: size_of(user, 1) == wide)


def delete_and_take_back(user):
    user.press("End", "Delete")
    user.box("Are you sure")
    user.press_on("Yes")
    user.disk.becomes("one slide less", lambda: len(user.disk.captions("Holiday")) == 18)
    user.press("ctrl+z")
    user.disk.becomes("the slide again", lambda: len(user.disk.captions("Holiday")) == 19)
    user.press("Escape")
    user.at_home()


def write_captions_in_a_list(user):
    user.press("ctrl+b")
    user.opened("Bulk Slide Manager")
    user.pick("Album", "Holiday")
    user.tab_to("Slides of the album")
    user.press("Down", "F2")
    user.rewrite("Second of the list")
    user.press("Return")
    user.press("ctrl+s")
    user.acknowledge("successfully saved")
    user.disk.becomes("the caption of the list",
                      lambda: "Second of the list" in user.disk.captions("Holiday"))
    user.opened("Bulk Slide Manager")


def find_and_replace_in_captions(user):
    user.press("ctrl+h")
    user.tab_to("Find")
    user.rewrite("of the list")
    user.fill("Replace with", "in the row")
    user.press("ctrl+alt+Return")
    user.press("Escape")
    user.press("ctrl+s")
    user.acknowledge("successfully saved")
    user.disk.becomes("the words replaced",
                      lambda: "Second in the row" in user.disk.captions("Holiday"))


def give_many_slides_one_caption(user):
    user.tab_to("Slides of the album")
    user.press("Home", "ctrl+a", "shift+F2")
    user.opened("Set Captions")
    user.tab_to("Caption for all selected slides")
    user.rewrite("Picture ##")
    user.press("Return")
    user.opened("Bulk Slide Manager")
    user.press("ctrl+s")
    user.acknowledge("successfully saved")
    user.disk.becomes("numbered captions", lambda: sorted(
        user.disk.captions("Holiday"))[-1] == "Picture 19")
    user.press("ctrl+F4")
    user.at_home()
