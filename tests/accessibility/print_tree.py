#!/usr/bin/python3
"""Prints the accessible tree of an application, as AT-SPI clients such as Orca find it.

    print_tree.py APPLICATION [START [BUTTON]]

START is the beginning of a name: only the first thing with such a name is printed, with all
that is in it. BUTTON is pressed then, and the text of the status bar is printed after it.
"""
import sys
import time

import pyatspi


def wait_for(find):
    """What find() returns, as soon as it is something."""
    for _ in range(100):
        found = find()
        if found:
            return found
        time.sleep(0.1)
    sys.exit("not found")


def application(name):
    return next((app for app in pyatspi.Registry.getDesktop(0) if app and app.name == name), None)


def print_tree(found, level=0):
    box = found.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    states = [pyatspi.stateToString(state) for state in found.getState().getStates()]
    shown = [state for state in states if state in ("focusable", "focused", "showing", "enabled")]
    line = f"{found.getRoleName()} {found.name!r}" if found.name else found.getRoleName()
    place = f"{box.x},{box.y} {box.width}x{box.height}"
    print(f"{'  ' * level}{line}  [{place}] {' '.join(sorted(shown))} {actions_of(found)}".rstrip())
    for child in found:
        print_tree(child, level + 1)


def actions_of(found):
    try:
        action = found.queryAction()
    except NotImplementedError:
        return ""
    names = [action.getName(i) for i in range(action.nActions)]
    return f"({', '.join(names)})" if names else ""


def press(button):
    action = button.queryAction()
    index = [action.getName(i) for i in range(action.nActions)].index("Press")
    action.doAction(index)


def main(name, start="", button=None):
    app = wait_for(lambda: application(name))

    def find(matches):
        return pyatspi.findDescendant(app, lambda found: found != app and matches(found))

    print_tree(wait_for(lambda: find(lambda found: found.name.startswith(start))))
    if not button:
        return
    press(find(lambda found: found.name == button and found.getRole() == pyatspi.ROLE_PUSH_BUTTON))
    time.sleep(0.5)
    bar = find(lambda found: found.getRole() == pyatspi.ROLE_STATUS_BAR)
    print(f"After pressing {button!r}, the status bar shows:")
    print_tree(bar)


if __name__ == "__main__":
    main(*sys.argv[1:])
