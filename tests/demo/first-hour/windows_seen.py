"""Every window that a menu opens, looked at and closed again."""

import pyatspi
from outside import Missing, await_

# menu, entry, how the title of the window begins
CHILDREN = [
    ("File", "Quick Show...", "Quick Show"),
    ("Album", "Slide Manager", "Slide Manager"),
    ("Album", "Bulk Slide Manager", "Bulk Slide Manager"),
    ("Slide Show", "Slide Show Manager", "Slide Show Manager"),
    ("Import/Export", "Import Album...", "Import Album"),
    ("Import/Export", "Export Album...", "Export Album"),
    ("Import/Export", "Import Slide Show...", "Import Slide Show"),
    ("Import/Export", "Export Slide Show...", "Export Slide Show"),
    ("Import/Export", "Write to a Folder for a Disc...", "Write to a Folder for a Disc"),
    ("Help", "Contents", "NEB Slide Show Help"),
]
MODAL = [
    ("File", "Restore Earlier Albums..."),
    ("File", "Check All Pictures..."),
    ("Album", "New Album..."),
    ("Album", "Rename Album..."),
    ("Album", "Delete Album..."),
    ("Slide Show", "Preferences..."),
    ("Print", "Print Album..."),
    ("Print", "Print Slide Show..."),
    ("Help", "About NEB Slide Show"),
]


def choose(program, menu, entry):
    """As a person does it with the pointer."""
    program.click(program.find(menu, pyatspi.ROLE_MENU_ITEM, 2.0))
    program.click(program.find(entry, pyatspi.ROLE_MENU_ITEM))


def word_of(entry):
    return entry.rstrip(".").lower().replace(" ", "-").replace("/", "-")


def see_all(program, walk):
    for menu, entry, title in CHILDREN:
        def open_child(menu=menu, entry=entry, title=title):
            choose(program, menu, entry)
            program.find(title + "...", pyatspi.ROLE_FRAME)

        walk.step(word_of(entry), open_child)
        program.key("ctrl+F4")
        program.gone(title + "...", pyatspi.ROLE_FRAME)
    for menu, entry in MODAL:
        def open_modal(menu=menu, entry=entry):
            before = len(list(program.root()))
            choose(program, menu, entry)
            await_("a window of its own", lambda: len(list(program.root())) > before)

        walk.step(word_of(entry), open_modal)
        before = len(list(program.root()))
        program.key("Escape")
        await_(f"{entry} to close", lambda: len(list(program.root())) < before)
