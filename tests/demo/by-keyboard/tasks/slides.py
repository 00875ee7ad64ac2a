"""One slide at a time: its picture, its caption, its sound."""

TASKS = {
    "change_a_slide": "albums/slide-manager",
    "give_a_slide_a_sound": "albums/slide-manager shows/music",
    "record_a_voice": "albums/sound-recorder",
    "make_a_slide": "albums/slide-manager",
    "delete_a_slide": "albums/slide-manager",
}


def slide(user, caption):
    return next(each for each in user.disk.album("Holiday")["Slides"]
                if each["SlideText"] == caption)


def change_a_slide(user):
    user.press("ctrl+e")
    user.opened("Slide Manager")
    user.pick("Album", "Holiday")
    user.pick("Slide", "Rose Window")
    user.fill("Caption", "The rose")
    user.press("ctrl+shift+r")
    user.press_on("Save")
    user.disk.becomes("the caption", lambda: "The rose" in user.disk.captions("Holiday"))
    user.opened("Slide Manager")


def give_a_slide_a_sound(user):
    user.press("alt+j")
    user.opened("")
    user.write(user.disk.path("Holiday", "music", "Chime.wav"))
    user.press("Return")
    user.opened("Slide Manager")
    user.disk.becomes("the sound in the window", lambda: user.is_shown("A new sound"))
    user.press("alt+k", "alt+k")
    user.tick("In place of the show's music")
    user.press_on("Save")
    user.disk.becomes("the sound of the slide",
                      lambda: slide(user, "The rose")["SoundTrackLoc"] and
                      slide(user, "The rose")["Override"])
    user.opened("Slide Manager")


def record_a_voice(user):
    user.press_on("Record...")
    user.opened("Slide Sound Recorder")
    user.tab_to("Volume")
    user.press("Left")
    user.press_on("Record")
    user.hear_at("Stop")
    user.press("space")
    user.press_on("Play")
    user.press_on("Save")
    user.opened("Slide Manager")
    user.press_on("Cancel")


def make_a_slide(user):
    user.press_on("New")
    user.press("alt+g")
    user.opened("")
    user.write(user.disk.path("Holiday", "Sunset at Sea.jpg"))
    user.press("Return")
    user.opened("Slide Manager")
    user.fill("Caption", "A second sunset")
    user.press_on("Save")
    user.disk.becomes("one slide more", lambda: len(user.disk.captions("Holiday")) == 20)
    user.opened("Slide Manager")


def delete_a_slide(user):
    user.pick("Slide", "A second sunset")
    user.press_on("Delete")
    user.box("Are you sure")
    user.press_on("Yes")
    user.acknowledge("Slide Deleted")
    user.disk.becomes("one slide less", lambda: len(user.disk.captions("Holiday")) == 19)
    user.press("ctrl+F4")
    user.at_home()
