"""Preferences are changed and kept, effects tried, and the speed measured."""

TASKS = {
    "choose_the_active_show": "shows/preferences shows/active-show",
    "choose_the_effects": "shows/preferences shows/transitions",
    "keep_them_to_the_next_start": "shows/preferences safety/settings",
    "begin_the_speed_test_and_leave_it": "shows/speed-test",
}


def choose_the_active_show(user):
    user.press("ctrl+r")
    user.opened("Preferences")
    user.pick("Album", "Holiday")
    user.pick("Slide Show", "Evening")
    user.fill("Next Slide", "5")
    user.fill("Slide Timeout (Seconds)", "7")
    user.pick("Keep pictures at most", "1920")
    user.tick("Keep where a picture was taken", on=False)
    user.press_on("Apply")
    for key, value in (("ActiveSlideShow", "1"), ("NextSlideSeq", "5"), ("Timeout", "7"),
                       ("KeepAtMost", "1920x1080"), ("KeepPlace", "False")):
        user.disk.becomes(f"{key}={value}", lambda: user.disk.setting(key) == value)


def choose_the_effects(user):
    user.tab_to("Only Show Effects")
    user.press("Down")
    user.hear("Use the Selected Effects")
    user.press_on("Select None")
    user.tab_to("Effects to use")
    user.write("fade")
    user.press("space")
    user.press("alt+p")
    user.press_on("Apply")
    user.disk.becomes("one effect", lambda: user.disk.setting("UseEffectLevel") == "False")
    user.press("Escape")
    user.at_home()


def keep_them_to_the_next_start(user):
    user.end()
    user.begin()
    user.press("ctrl+r")
    user.opened("Preferences")
    user.tab_to("Slide Timeout (Seconds)")
    if user.value() != "7":
        raise user.missing("the time of the slides as it was left")
    user.press("Escape")
    user.at_home()


def begin_the_speed_test_and_leave_it(user):
    user.choose("Slide Show", "Test Graphics Speed")
    user.hear_at("Test Now")
    user.press("Return")
    user.opened("Testing Graphics Performance")
    user.press("Escape")
    user.at_home()
