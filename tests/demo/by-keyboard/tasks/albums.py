"""Albums: a new one, its pictures, its name, and its end."""

TASKS = {
    "make_an_album": "albums/new-album albums/choose-folder",
    "choose_its_pictures": "albums/import-pictures albums/order-and-captions albums/sizes",
    "find_pictures_of_one_format": "albums/find-graphics albums/formats",
    "rename_an_album": "albums/rename-album",
    "delete_an_album_and_take_it_back": "albums/delete-album",
}
FROM = "Pictures not yet selected for import"
CHOSEN = "Pictures selected for import"


def make_an_album(user):
    user.press("ctrl+n")
    user.opened("New Album")
    user.fill("Enter the name for your new Photo Album", "Garden")
    user.fill("Directory", user.disk.pictures)
    user.press("Return")
    user.tick("Import Sub-directories", on=False)
    user.press_on("Next")
    user.opened("Picture Import Filter - Garden")


def choose_its_pictures(user):
    user.pick("Order pictures", "By name")
    user.tick("Captions from the pictures' own words")
    user.pick("Keep pictures at most", "1920")
    user.tab_to(FROM)
    user.press("Home", "shift+Down", "alt+Right")
    user.tab_to(CHOSEN)
    user.press("Down", "F2")
    user.rewrite("From the terrace")
    user.press("Return")
    user.tab_to("Save To Album")
    user.press("space")
    user.acknowledge("2 slides successfully imported")
    user.disk.becomes("two pictures in the album", lambda: sorted(
        user.disk.captions("Garden"))[-1] == "From the terrace")
    user.opened("Slide Show Manager")
    user.press("ctrl+F4")
    user.at_home()


def find_pictures_of_one_format(user):
    user.press("ctrl+e")
    user.opened("Slide Manager")
    user.pick("Album", "Garden")
    user.press("ctrl+o")
    user.opened("Directory")
    user.fill("Directory", user.disk.pictures)
    user.press("Return")
    user.press_on("Select")
    user.opened("Picture Import Filter")
    user.press("ctrl+f")
    user.box("discard the remaining")
    user.press_on("Yes")
    user.opened("Find Graphics")
    user.tab_to("Search Path")
    user.press("End")
    user.opened("Directory")
    user.fill("Directory", user.disk.pictures)
    user.press("Return")
    user.press_on("Select")
    user.opened("Find Graphics")
    user.fill("File Name Filter", "*Mill*")
    user.press("Return")
    user.tab_to("Search Results")
    user.press("ctrl+a")
    user.press_on("Import Selected")
    user.opened("Picture Import Filter")
    user.tab_to(FROM)
    user.press("ctrl+a", "alt+Right")
    user.press_on("Save To Album")
    user.acknowledge("1 slides successfully imported")
    user.disk.becomes("the picture that was found",
                      lambda: "The Old Mill" in user.disk.captions("Garden"))
    user.opened("Slide Manager")
    user.press("ctrl+F4")
    user.at_home()


def rename_an_album(user):
    user.go_to_card("Album Garden")
    user.press("F2")
    user.opened("Rename Album")
    user.tab_to("New Album Name")
    user.rewrite("The garden")
    user.press("Return")
    user.disk.becomes("the new name", lambda: "The garden" in user.disk.albums())
    user.at_home()


def delete_an_album_and_take_it_back(user):
    user.choose("Album", "Delete Album")
    user.opened("Delete Album")
    user.pick("Album", "The garden")
    user.press_on("Delete")
    user.box("Are you sure")
    user.press_on("Yes")
    user.disk.becomes("one album less", lambda: "The garden" not in user.disk.albums())
    user.press("Escape")
    user.at_home()
    user.press("ctrl+z")
    user.disk.becomes("the album again", lambda: len(user.disk.captions("The garden")) == 3)
