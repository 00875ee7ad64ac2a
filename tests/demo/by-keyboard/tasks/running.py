"""A show runs: steps, pause, black screen, captions, the menu, and where it goes on."""

TASKS = {
    "play_the_show_of_a_card": "shows/running-show",
    "steer_by_keys": "shows/show-keys",
    "stop_and_go_on_by_the_menu": "shows/show-menu",
    "go_to_the_end_by_the_menu": "shows/show-menu",
    "go_on_where_it_was_left": "shows/active-show",
}


def let_slides_stay(user):
    """Long enough for a busy machine."""
    user.press("ctrl+r")
    user.opened("Preferences")
    user.fill("Slide Timeout (Seconds)", "120")
    user.press_on("Apply")
    user.disk.becomes("the time kept", lambda: user.disk.setting("Timeout") == "120")
    user.press("Escape")
    user.at_home()


def play_the_show_of_a_card(user):
    let_slides_stay(user)
    user.go_to_card("Slide show Evening")
    user.press("Return")
    user.hear("Slide 1 of 19")


def steer_by_keys(user):
    for key, slide in (("Right", 2), ("Page_Down", 3), ("n", 4), ("Left", 3), ("BackSpace", 2),
                       ("End", 19), ("Home", 1)):
        user.press(key)
        user.hear(f"Slide {slide} of 19")
    user.press("g")
    user.hear("Go to slide")
    user.write("wood")
    user.press("Return")
    user.hear("Slide 2 of 19")
    user.press("space", "Menu")
    user.go_down_to("Resume")
    user.press("Return", "b")
    user.disk.becomes("a black screen", user.screen_is_black)
    user.press("b")
    user.disk.becomes("the picture again", lambda: not user.screen_is_black())
    user.press("c", "c")
    user.press("F1")
    user.hear("Keys of the show")
    user.press("F1")
    user.hear("Slide 2 of 19")


def stop_and_go_on_by_the_menu(user):
    user.press("Menu")
    user.go_down_to("Stop")
    user.press("Return")
    user.press("shift+F10")
    user.go_down_to("Resume")
    user.press("Return")
    user.hear("Slide 2 of 19")
    user.press("Menu")
    user.go_down_to("Preferences")
    user.press("Return")
    user.opened("Preferences")
    user.press("Escape")
    user.hear("Slide")


def go_to_the_end_by_the_menu(user):
    user.press("Menu")
    user.go_down_to("Goto End")
    user.press("Return")
    user.hear("Slide 19 of 19")
    user.press("Menu")
    user.go_down_to("Exit")
    user.press("Return")
    user.at_home()


def go_on_where_it_was_left(user):
    user.press("F5")
    user.hear("Slide 19 of 19")
    user.press("Home", "Right", "Right")
    user.hear("Slide 3 of 19")
    user.press("Escape")
    user.at_home()
    user.disk.becomes("the slide that comes next", lambda: user.disk.setting("NextSlideSeq") == "3")
    user.press("F5")
    user.hear("Slide 3 of 19")
    user.press("Escape")
    user.at_home()
