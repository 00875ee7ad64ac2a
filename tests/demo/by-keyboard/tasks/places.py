"""Albums and shows go to other places and come back, and a folder for a disc is written."""

TASKS = {
    "export_an_album": "places/export-album places/transfer places/transfer-progress",
    "import_an_album": "places/import-album",
    "export_a_show": "places/export-show",
    "import_a_show": "places/import-show",
    "look_at_the_slides_of_an_album": "albums/album-viewer albums/picture-preview",
    "look_at_the_slides_of_a_show": "shows/show-viewer",
    "write_a_folder_for_a_disc": "places/disc-folder",
    "check_a_disc": "places/check-disc",
}


def export_an_album(user):
    user.choose("Import/Export", "Export Album")
    user.opened("Export Album")
    user.pick("Source Album", "Holiday")
    user.fill("Directory", user.disk.path("Stick"))
    user.press_on("Refresh")
    user.box("does not hold an NEB Slide Show Database")
    user.press_on("Yes")
    user.opened("Export Album")
    user.pick("Destination Album", "<NEW ALBUM>")
    user.fill("Album Name", "On the stick")
    user.press_on("Export")
    user.disk.becomes("the album on the stick", lambda: len(
        user.disk.captions("On the stick", user.disk.path("Stick"))) == 19)
    user.at_home()


def import_an_album(user):
    user.choose("Import/Export", "Import Album")
    user.opened("Import Album")
    user.fill("Directory", user.disk.path("Stick"))
    user.press_on("Refresh")
    user.pick("Source Album", "On the stick")
    user.pick("Destination Album", "<NEW ALBUM>")
    user.fill("Album Name", "From the stick")
    user.press_on("Import")
    user.disk.becomes("the album from the stick",
                      lambda: len(user.disk.captions("From the stick")) == 19)
    user.at_home()


def export_a_show(user):
    user.choose("Import/Export", "Export Slide Show")
    user.opened("Export Slide Show")
    user.pick("Source Album", "Holiday")
    user.pick("Source Slide Show", "Evening")
    user.fill("Directory", user.disk.path("Stick"))
    user.press_on("Refresh")
    user.pick("Destination Album", "On the stick")
    user.pick("Destination Slide Show", "<NEW SLIDE SHOW>")
    user.fill("Slide Show Name", "Late evening")
    user.press_on("Export")
    user.disk.becomes("the show on the stick", lambda: "Late evening" in user.disk.shows(
        "On the stick", user.disk.path("Stick")))
    user.at_home()


def import_a_show(user):
    user.choose("Import/Export", "Import Slide Show")
    user.opened("Import Slide Show")
    user.fill("Directory", user.disk.path("Stick"))
    user.press_on("Refresh")
    user.pick("Source Album", "On the stick")
    user.pick("Source Slide Show", "Late evening")
    user.pick("Destination Album", "Holiday")
    user.pick("Destination Slide Show", "<NEW SLIDE SHOW>")
    user.fill("Slide Show Name", "Come back")
    user.press_on("Import")
    user.disk.becomes("the show from the stick", lambda: "Come back" in user.disk.shows("Holiday"))
    user.at_home()


def look_at_the_slides_of_an_album(user):
    user.go_to_card("Album Holiday")
    user.press("Menu")
    user.go_down_to("View")
    user.press("Return")
    user.opened("Album")
    user.tab_to("Slides of the album")
    user.press("Down", "Return")
    user.opened("Picture Preview")
    user.press("Escape")
    user.opened("Album")
    user.press("Escape")
    user.at_home()


def look_at_the_slides_of_a_show(user):
    user.go_to_card("Slide show Evening")
    user.press("Menu")
    user.go_down_to("View")
    user.press("Return")
    user.opened("Slide Show")
    user.tab_to("Slides of the slide show")
    user.press("Down", "Return")
    user.opened("Picture Preview")
    user.press("Escape")
    user.opened("Slide Show")
    user.press("Escape")
    user.at_home()


def write_a_folder_for_a_disc(user):
    user.choose("Import/Export", "Write to a Folder")
    user.opened("Write to a Folder for a Disc")
    user.tab_to("Albums and slide shows")
    user.press("Home", "space")
    user.fill("Folder", user.disk.path("Disc"))
    user.press("Return")
    user.disk.becomes("the folder for a disc", lambda: not user.disk.check(user.disk.path("Disc")))
    user.acknowledge("is ready: ")
    user.at_home()


def check_a_disc(user):
    user.choose("Import/Export", "Check a Disc")
    user.opened("")
    user.write(user.disk.path("Disc"))
    user.press("Return")
    user.acknowledge("All is well: ")
    user.at_home()
