"""What is wrong with a window for somebody who hears it, or who has no mouse."""

from collections import Counter

from seen import PLACELESS


def of_objects(window):
    """Faults of the single objects: what has no name, description or role that says anything."""
    for each in window.all():
        if each.is_place():
            continue
        if each.role in PLACELESS and (each.focusable or each.name):
            yield f"{each} has no role that says what it is"
        if (each.is_control() or each.focusable) and not each.name.strip():
            yield f"{each} has no name ({each.description})"
        if each.is_control() and not each.description.strip():
            yield f"{each} has no description"
        if each.focusable and each.role == "label":
            yield f"{each} takes the keys and is no control"
        if each.name == each.value() != "":
            yield f"{each} is called by its value"


def of_twins(window):
    """Controls that cannot be told apart."""
    said = Counter((each.role, each.name, each.description, each.group())
                   for each in window.all() if each.is_control())
    for (role, name, description, _), count in said.items():
        if count > 1:
            yield f'{count} times {role} "{name}", "{description}"'


def of_tables(window):
    """Grids that do not tell of their columns."""
    for each in window.all():
        if each.role not in ("table", "tree table"):
            continue
        table = each.node.queryTable()
        if table.nColumns < 1:
            yield f"{each} has no columns"
        if table.nRows and not any(table.getColumnDescription(at) for at in range(table.nColumns)):
            yield f"{each} says of no column what it is"


def of_order(stops):
    """Steps of Tab that go against the eyes: up again, but for the next column, and once from the
    last of the window to its first."""
    up = [at for at, (here, there) in enumerate(zip(stops, stops[1:] + stops[:1]))
          if goes_up(here.box, there.box)]
    first = min(up, key=lambda at: stops[(at + 1) % len(stops)].box[1], default=None)
    for at, (here, there) in enumerate(zip(stops, stops[1:] + stops[:1])):
        if at in up and at != first:
            yield f"Tab goes up from {here} to {there}"
        if at != first and goes_back(here.box, there.box):
            yield f"Tab goes back from {here} to {there}"


def goes_up(here, there):
    x, y, width, _ = here
    to_x, to_y, _, to_height = there
    return to_y + to_height <= y and to_x < x + width


def goes_back(here, there):
    x, y, _, height = here
    to_x, to_y, _, to_height = there
    is_same_row = abs((to_y + to_height / 2) - (y + height / 2)) < min(height, to_height) / 2
    return is_same_row and to_x < x


def all_of(window):
    for rule in (of_objects, of_twins, of_tables):
        yield from rule(window)
