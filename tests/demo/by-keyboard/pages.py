"""Which pages of the help have their task, and why the others have none."""

import importlib
import os
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
HELP = os.path.join(HERE, "..", "..", "..", "assets", "help", "en")

# Pages that tell of something which nobody does by keys, and why.
TOLD_ALONE = {
    "contents": "the list of the pages",
    "index": "the list of the subjects",
}


def pages_of_the_help():
    for folder, _, names in os.walk(HELP):
        for name in names:
            if name.endswith(".html"):
                yield os.path.relpath(os.path.join(folder, name), HELP)[:-len(".html")]


def tasks():
    """Area, name of the task, its pages, and whether it is there."""
    for name in sorted(os.listdir(os.path.join(HERE, "tasks"))):
        if name.endswith(".py"):
            area = importlib.import_module("tasks." + name[:-3])
            for task, of in area.TASKS.items():
                yield name[:-3], task, of.split(), callable(getattr(area, task, None))


def problems():
    pages = set(pages_of_the_help())
    done = set()
    for area, task, of, there in tasks():
        done.update(of)
        if not there:
            yield f"{area}.{task} is in the table and nowhere else"
        for page in set(of) - pages:
            yield f"{area}.{task} is of the page {page}, which the help has not"
    for page in sorted(pages - done - set(TOLD_ALONE)):
        yield f"the page {page} has no task"
    for page in sorted(set(TOLD_ALONE) - pages):
        yield f"the page {page} is told alone, but the help has it not"
    for page in sorted(set(TOLD_ALONE) & done):
        yield f"the page {page} has a task, and need not be excused"


if __name__ == "__main__":
    found = list(problems())
    for each in found:
        print("by-keyboard:", each)
    sys.exit(1 if found else 0)
