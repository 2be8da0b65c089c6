"""A screen reader's view of the running editor: walks its windows over the accessibility bus and opens windows by pressing
menu items there. Prints what has no role or no name; exit status 1 then, 77 where the bus can't be used.

    reader.py ITEM...     the menu items that are left out"""
import subprocess
import sys
import time

try:
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, GLib
except (ImportError, ValueError):
    sys.exit(77)

PATIENCE = 60
# What a person can press, set or type into
WORKED = {"push button", "toggle button", "check box", "radio button", "slider", "spin button", "combo box", "text", "entry",
          "list", "tree", "tree table", "table", "color chooser", "canvas", "menu item", "check menu item", "page tab"}


def waited(find, what=""):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        try:
            found = find()
        except GLib.Error:  # it went away meanwhile
            found = None
        if found:
            return found
        time.sleep(0.05)
    raise SystemExit(f"waited in vain for {what}")


def children(node):
    for i in range(node.get_child_count()):
        child = node.get_child_at_index(i)
        if child:
            yield child


def all_below(node, depth=0):
    yield node
    if depth < 30 and node.get_role_name() not in ("tree", "tree table", "list", "table"):  # what they list is no control
        for child in children(node):
            yield from all_below(child, depth + 1)


def editor():
    desktop = Atspi.get_desktop(0)
    return next((program for program in children(desktop) if program.get_name() == "velara-studio"), None)


def windows(program):
    return [child for child in children(program) if child.get_state_set().contains(Atspi.StateType.SHOWING)]


def named(node, role):
    """By itself, or as a part of something that is; separators and rows of tabs need no name."""
    return bool(node.get_name() or node.get_description() or role in ("menu item", "page tab list")
                or node.get_parent().get_role_name() in WORKED)


def look(window, seen, bad):
    for node in all_below(window):
        role = node.get_role_name()
        shown = f"{window.get_name()}: {role} '{node.get_name()}' {node.get_accessible_id() if hasattr(node, 'get_accessible_id') else ''}"
        states = node.get_state_set()
        focusable = states.contains(Atspi.StateType.FOCUSABLE)
        there = states.contains(Atspi.StateType.SHOWING) or "menu item" in role
        if there and (role in WORKED or focusable):
            seen.append(shown)
            if role in ("filler", "unknown", "invalid"):
                bad.append("no role: " + shown)
            elif not named(node, role):
                bad.append("no name: " + shown)


def press(node):
    try:
        node.do_action(0)
    except GLib.Error:  # no answer before a modal window ends
        pass


def main():
    Atspi.set_timeout(1000, PATIENCE * 1000)
    program = waited(editor, "the editor")
    frame = waited(lambda: windows(program), "its window")[0]
    seen, bad, opened = [], [], 0
    look(frame, seen, bad)
    items = {node.get_name(): node for node in all_below(frame) if "menu item" in node.get_role_name()}
    for name, node in items.items():
        if not name.endswith("...") or name in sys.argv[1:] or not node.get_state_set().contains(Atspi.StateType.ENABLED):
            continue
        press(node)
        window = waited(lambda: [w for w in windows(program) if w != frame], "the window of " + name)[-1]
        look(window, seen, bad)
        buttons = {n.get_name(): n for n in all_below(window) if n.get_role_name() == "push button"}
        close = next((buttons[n] for n in ("Cancel", "Close", "Exit", "Later", "OK") if n in buttons), None)
        if close:
            press(close)
        else:
            subprocess.run(["xdotool", "key", "Escape"], check=True)
        waited(lambda: len(windows(program)) == 1, f"the end of {name}")
        opened += 1
    print(f"{opened} windows, {len(seen)} controls, {len(bad)} without a role or a name")
    print("\n".join(sorted(set(bad))))
    return bool(bad) or opened < 30


if __name__ == "__main__":
    sys.exit(main())
