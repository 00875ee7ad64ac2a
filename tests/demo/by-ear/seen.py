"""What a screen reader finds of a window: every object with all that is said of it."""

import pyatspi

# what people use, as the roles are named from outside
CONTROLS = {
    "push button", "toggle button", "check box", "radio button", "text", "password text",
    "combo box", "spin button", "slider", "table", "tree table", "tree", "list", "document text",
    "document frame", "entry", "link", "dial",
}
# what is told before the name of what stands in it
GROUPS = {"tool bar", "panel", "page tab"}
# what is one stop for the keys, whatever it holds
LISTS = {"table", "tree table", "tree", "list", "combo box", "page tab list", "menu bar"}
# what stands for a place in a window, whoever looks at it
PLACELESS = {"filler", "unknown", "invalid", "unused", "redundant object", "layered pane"}
MOST_CHILDREN = 60


class Seen:
    """One object, as it was when it was looked at."""

    def __init__(self, node, parent):
        self.node = node
        self.parent = parent
        self.role = node.getRoleName()
        self.name = node.name or ""
        self.description = node.description or ""
        states = node.getState()
        self.focusable = states.contains(pyatspi.STATE_FOCUSABLE)
        self.enabled = states.contains(pyatspi.STATE_ENABLED)
        self.box = box_of(node)
        self.children = []

    def all(self):
        yield self
        for child in self.children:
            yield from child.all()

    def group(self):
        around = self.parent
        while around is not None and around.role not in GROUPS:
            around = around.parent
        return around.name if around is not None else ""

    def value(self):
        """What is chosen in it."""
        return self.node.queryText().getText(0, -1) if self.role == "combo box" else ""

    def is_control(self):
        return self.role in CONTROLS

    def is_place(self):
        """It only hands the keys on, to something in it."""
        return self.role in PLACELESS and any(each.focusable for each in self.all()
                                              if each is not self)

    def __str__(self):
        return f'{self.role} "{self.name}"'


def box_of(node):
    try:
        box = node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        return box.x, box.y, box.width, box.height
    except NotImplementedError:
        return 0, 0, 0, 0


def look(node, parent=None):
    """An object with all that is shown below it; what a list holds is the list's."""
    seen = Seen(node, parent)
    if seen.role in LISTS:
        return seen
    for index in range(min(node.childCount, MOST_CHILDREN)):
        child = node.getChildAtIndex(index)
        if child is not None and shown(child):
            seen.children.append(look(child, seen))
    return seen


def shown(node):
    states = node.getState()
    return states.contains(pyatspi.STATE_SHOWING) and states.contains(pyatspi.STATE_VISIBLE)
