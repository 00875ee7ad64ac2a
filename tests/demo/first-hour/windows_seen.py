"""Every window that a menu opens, looked at and closed again."""

import pyatspi
from outside import Missing, await_

# menu, entry, what must be seen in the window, how it is closed
CHILDREN = [
    ("File", "Quick Show...", "Save"),
    ("Album", "Slide Manager", "Save"),
    ("Album", "Bulk Slide Manager", "Save"),
    ("Slide Show", "Slide Show Manager", "Save"),
    ("Import/Export", "Import Album...", "Close"),
    ("Import/Export", "Export Album...", "Close"),
    ("Import/Export", "Import Slide Show...", "Close"),
    ("Import/Export", "Export Slide Show...", "Close"),
    ("Import/Export", "Write to a Folder for a Disc...", "Close"),
    ("Help", "Contents", None),
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
    for menu, entry, expected in CHILDREN:
        def open_child(menu=menu, entry=entry, expected=expected):
            choose(program, menu, entry)
            if expected:
                program.find(expected, pyatspi.ROLE_PUSH_BUTTON)

        walk.step(word_of(entry), open_child)
        program.key("ctrl+F4")
    for menu, entry in MODAL:
        def open_modal(menu=menu, entry=entry):
            before = len(list(program.root()))
            choose(program, menu, entry)
            await_("a window of its own", lambda: len(list(program.root())) > before)

        walk.step(word_of(entry), open_modal)
        before = len(list(program.root()))
        program.key("Escape")
        await_(f"{entry} to close", lambda: len(list(program.root())) < before)
