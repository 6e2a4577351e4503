"""Looks at the manager's window, and answers its boxes, as assistive programs do.

    window.py shows <text>                  waits for a label with this text
    window.py answer <title> <text> <button>  waits for a box with this title and text and presses its button

The status is 1 when that does not come within the patience; what the window shows is printed then.
"""

import sys
import time

import pyatspi

APPLICATION = "Orvel Task Scheduler"
PATIENCE_SECONDS = 30
PAUSE_SECONDS = 0.2


def children(node):
    for index in range(node.childCount):
        child = node.getChildAtIndex(index)
        if child is not None:
            yield child


def below(node, level=0):
    """The node and all below it, with their levels. Tables are left out, for their size."""
    yield node, level
    if node.getRole() not in (pyatspi.ROLE_TABLE, pyatspi.ROLE_TREE, pyatspi.ROLE_TREE_TABLE):
        for child in children(node):
            yield from below(child, level + 1)


def applications():
    return [node for node in children(pyatspi.Registry.getDesktop(0)) if node.name == APPLICATION]


def named(top, roles, name):
    return [node for node, _ in below(top) if node.getRole() in roles and node.name == name]


def has_label(top, text):
    return bool(named(top, [pyatspi.ROLE_LABEL], text))


def press_in_box(top, title, text, button):
    for box in named(top, [pyatspi.ROLE_ALERT, pyatspi.ROLE_DIALOG], title):
        buttons = named(box, [pyatspi.ROLE_PUSH_BUTTON], button)
        if has_label(box, text) and buttons:
            return buttons[0].queryAction().doAction(0)
    return False


def found(arguments):
    for application in applications():
        if arguments[0] == "shows" and has_label(application, arguments[1]):
            return True
        if arguments[0] == "answer" and press_in_box(application, *arguments[1:]):
            return True
    return False


def main(arguments):
    deadline = time.monotonic() + PATIENCE_SECONDS
    while time.monotonic() < deadline:
        try:
            if found(arguments):
                return 0
        except Exception:  # pylint: disable=broad-except
            # A window that goes away while it is looked at answers with errors of many kinds. The next look tells.
            pass
        time.sleep(PAUSE_SECONDS)
    print(f"not seen: {arguments}; instead there is:")
    for application in applications():
        for node, level in below(application):
            print("  " * level, node.getRoleName(), repr(node.name))
    return 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
