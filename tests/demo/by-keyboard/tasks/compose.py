"""A show with music is composed, rehearsed and made a film of."""

TASKS = {
    "compose_a_show": "shows/slide-show-manager",
    "lay_music_under_it": "shows/music",
    "save_it_under_another_name": "shows/slide-show-manager",
    "rehearse_it": "shows/rehearsal",
    "make_a_film_of_it": "shows/film",
    "stop_a_film": "start/work-under-way shows/film",
    "delete_a_show": "shows/slide-show-manager",
}


def compose_a_show(user):
    user.press("ctrl+m")
    user.opened("Slide Show Manager")
    user.pick("Album", "Holiday")
    user.pick("Slide show", "<NEW SLIDE SHOW>")
    user.fill("Name", "By keys")
    user.pick("Progression", "Automatic")
    user.tab_to("Slides not in the show")
    user.press("Home", "shift+Down", "shift+Down", "ctrl+Right")
    user.tab_to("Slides in the show")
    user.press("Home", "alt+Down")
    user.press("ctrl+s")
    user.acknowledge("Saved Successfully")
    user.disk.becomes("three slides, the second first", lambda: [
        each["SlideID"] for each in sorted(user.disk.shows("Holiday")["By keys"]["Details"],
                                           key=lambda each: each["SlideSeq"])] == [2, 1, 3])
    user.opened("Slide Show Manager")


def lay_music_under_it(user):
    user.tab_to("Sound tracks")
    user.press("Home")
    for _ in range(8):
        user.press("Right")
    user.press("F2")
    user.rewrite(user.disk.path("Holiday", "music", "Chime.wav"))
    user.press("Return")
    user.press("ctrl+space", "ctrl+space")
    user.press("ctrl+s")
    user.acknowledge("Saved Successfully")
    user.disk.becomes("a track over all slides", lambda: user.disk.shows(
        "Holiday")["By keys"]["SoundTracks"][0]["SlideSeqEnd"] == 3)
    user.opened("Slide Show Manager")


def save_it_under_another_name(user):
    user.fill("Name", "By other keys")
    user.press("ctrl+shift+s")
    user.acknowledge("Saved Successfully")
    user.disk.becomes("the other show", lambda: "By other keys" in user.disk.shows("Holiday"))
    user.press("ctrl+F4")
    user.at_home()


def rehearse_it(user):
    user.go_to_card("Slide show By keys")
    user.press("Menu")
    user.go_down_to("Rehearse")
    user.press("Return")
    user.opened("Rehearsal")
    user.tab_to("Cue sheet")
    user.press("Down", "Return")
    user.opened("Slide Show Manager")
    user.press("ctrl+F4")
    user.opened("Rehearsal")
    user.press("ctrl+F4")
    user.at_home()


def make_a_film_of_it(user):
    user.go_to_card("Slide show By keys")
    user.press("Menu")
    user.go_down_to("Make a Film")
    user.press("Return")
    user.opened("Film")
    user.fill("File", user.disk.path("By keys.webm"))
    user.pick("Format", "WebM")
    user.pick("Size", "Another size")
    user.fill("Width in pixels", "160")
    user.fill("Height in pixels", "120")
    user.pick("Frames a second", "24")
    user.fill("Last slide", "1")
    user.press_on("Make film")
    user.disk.becomes("the film", lambda: user.disk.begins("By keys.webm", b"\x1a\x45\xdf\xa3"))
    user.hear_at("Open film", "Make another", "Close")
    user.press("ctrl+F4")
    user.at_home()


def stop_a_film(user):
    user.go_to_card("Slide show Evening")
    user.press("Menu")
    user.go_down_to("Make a Film")
    user.press("Return")
    user.opened("Film")
    user.fill("File", user.disk.path("Evening.mp4"))
    user.pick("Format", "MP4")
    user.pick("Size", "Ultra HD")
    user.press_on("Make film")
    user.hear_at("Stop")
    user.disk.becomes("progress that is told",
                      lambda: user.ear.listen(0.1) or user.ear.progress)
    user.press("Escape")
    user.hear_at("File", "Make film", "Close")
    user.disk.becomes("nothing of the film", lambda: not user.disk.named("Evening"))
    user.press("ctrl+F4")
    user.at_home()


def delete_a_show(user):
    user.go_to_card("Slide show By other keys")
    user.press("Delete")
    user.box("Are you sure")
    user.press_on("Yes")
    user.disk.becomes("one show less", lambda: "By other keys" not in user.disk.shows("Holiday"))
    user.at_home()
