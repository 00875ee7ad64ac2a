"""The tasks of one area of the help, by somebody without a mouse who does not see the screen: each
control is reached by Tab or its key, and what is heard, and what lies on the disk then, says that
the task is done."""

import importlib
import subprocess
import sys
import time

from hearing import ByKeyboard, Missing


def told(name, problem, user):
    print(f"by-keyboard: {name}: {problem}")
    for window in user.windows():
        print("   ", window)
    user.shot(name + "-FAILED")


def done(name, do, user):
    """Whether the task went well; else the program begins anew, for those behind it."""
    began = time.monotonic()
    try:
        do(user)
    except (Missing, subprocess.SubprocessError) as problem:
        told(name, problem, user)
        user.begin_anew()
        return False
    user.shot(name)
    print(f"  {name} ({time.monotonic() - began:.1f} s)", flush=True)
    return True


def main(bin_folder, area, home, shots):
    module = importlib.import_module("tasks." + area)
    user = ByKeyboard(bin_folder, home, shots)
    if area != "start":
        user.begin()
    well = [done(name, getattr(module, name), user) for name in module.TASKS]
    user.end()
    return 0 if all(well) else 1


sys.exit(main(*sys.argv[1:]))
