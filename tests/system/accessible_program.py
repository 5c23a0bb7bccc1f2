"""A running program as assistive technology sees it: the tree of its accessibles on the session's accessibility bus.

Everything is found by role and name, and used through the interfaces that the tree offers. Nothing here knows a place
on the screen. A step that finds nothing raises a Failure that holds the tree.
"""

import subprocess
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402 (the version first)

PATIENCE = 20  # seconds
REPLY_PATIENCE = 500  # milliseconds
POLL = 0.01  # seconds

SHOWING = Atspi.StateType.SHOWING
FOCUSABLE = Atspi.StateType.FOCUSABLE
FOCUSED = Atspi.StateType.FOCUSED
ACTIVE = Atspi.StateType.ACTIVE
ENABLED = Atspi.StateType.ENABLED
CHECKED = Atspi.StateType.CHECKED

RETURN = 0xFF0D  # key symbols
ESCAPE = 0xFF1B


class Failure(Exception):
    """What was looked for and is not there."""


def has(node, state):
    return node.get_state_set().contains(state)


def children(node):
    for place in range(node.get_child_count()):
        child = node.get_child_at_index(place)
        if child is not None:
            yield child


def walk(node):
    """The node and all below it that can be seen, but for the cells of tables, which are asked for by their place.
    What is hidden may be an editor that waits for its cell."""
    if not has(node, SHOWING) and node.get_role() != Atspi.Role.APPLICATION:
        return
    yield node
    for child in children(node) if node.get_role() != Atspi.Role.TABLE else ():
        yield from walk(child)


def described(node):
    states = " ".join(state.value_nick for state in node.get_state_set().get_states())
    text = f"{node.get_role_name()} '{node.get_name()}'"
    if node.get_description():
        text += f" ({node.get_description()})"
    return f"{text}  [{states}]"


def dump(node, depth=0):
    """The tree, a line an accessible, without empty cells; a part that goes while it is read is left out."""
    try:
        if node.get_role() == Atspi.Role.TABLE_CELL and not node.get_name():
            return []
        lines = ["  " * depth + described(node)]
        for child in children(node):
            lines += dump(child, depth + 1)
        return lines
    except GLib.Error:
        return []


class Program:
    """The program of a name on the bus, and what it has announced."""

    def __init__(self, name):
        Atspi.set_timeout(REPLY_PATIENCE, 0)
        self.announced = []
        self._listener = Atspi.EventListener.new(self._hear)
        for kind in (
            "object:property-change:accessible-value",
            "object:property-change:accessible-name",
            "object:property-change:accessible-description",
            "object:state-changed:focused",
        ):
            self._listener.register(kind)
        self.root = None
        self.root = self.wait_for(f"the program {name}", lambda: self._application(name))
        self.root.set_cache_mask(Atspi.Cache.NONE)

    @staticmethod
    def _application(name):
        return next((each for each in children(Atspi.get_desktop(0)) if each.get_name() == name), None)

    def _hear(self, event):
        try:
            source = event.source
            self.announced.append((event.type, source.get_role_name(), source.get_name(), event.detail1))
        except GLib.Error:
            pass  # it went before it could be asked

    def wait_for(self, what, find):
        """What find() answers, once that is something."""
        end = time.monotonic() + PATIENCE
        while True:
            while GLib.MainContext.default().iteration(False):
                pass
            try:
                found = find()
            except GLib.Error:
                found = None  # the tree changed under our hands
            if found:
                return found
            if time.monotonic() > end:
                raise Failure(f"{what}: not found in\n{self.tree()}")
            time.sleep(POLL)

    def tree(self):
        return "\n".join(dump(self.root)) if self.root else "(no tree)"

    def hear_from_now(self):
        self.announced.clear()

    def wait_for_announcement(self, kind, role, name, detail=0):
        """Waits until an event of the kind has come from the accessible, since hear_from_now()."""
        try:
            self.wait_for(f"'{name}' told by {kind}", lambda: (kind, role, name, detail) in self.announced)
        except Failure as failure:
            raise Failure(f"{failure}\nTold were\n{self.announced}") from None

    def wait_for_announcement_beginning(self, kind, role, beginning):
        heard = lambda: any(each[:2] == (kind, role) and each[2].startswith(beginning) for each in self.announced)
        self.wait_for(f"'{beginning}...' told by {kind}", heard)

    def windows(self):
        return [each for each in children(self.root) if has(each, SHOWING)]

    def window(self, role, name):
        """The window, once it is the one in front."""
        return self.wait_for(
            f"the active {role} '{name}'",
            lambda: next(
                (each for each in self.windows() if is_(each, role, name) and has(each, ACTIVE)),
                None,
            ),
        )

    def wait_until_gone(self, role, name):
        self.wait_for(
            f"the closing of {role} '{name}'",
            lambda: not any(is_(each, role, name) for each in self.windows()),
        )

    def find(self, role, name, under=None):
        return self.wait_for(
            f"{role} '{name}'",
            lambda: next((each for each in walk(under or self.root) if is_(each, role, name)), None),
        )

    def find_described(self, role, description):
        return self.wait_for(
            f"{role} described as '{description}'",
            lambda: next(
                (e for e in walk(self.root) if e.get_role_name() == role and e.get_description() == description), None
            ),
        )

    def act(self, node, action):
        """The action of that name. One that opens a dialog answers when the dialog is gone: nobody waits for that."""
        names = [node.get_action_name(place) for place in range(node.get_n_actions())]
        if action not in names:
            raise Failure(f"{described(node)} offers {names} and not {action}, in\n{self.tree()}")
        try:
            node.do_action(names.index(action))
        except GLib.Error as error:
            if "Did not receive a reply" not in str(error):
                raise

    def press(self, role, name, under=None):
        node = self.find(role, name, under)
        self.wait_for(f"{role} '{name}', enabled", lambda: has(node, ENABLED))
        self.act(node, "Press")

    def entries(self, menu):
        """The entries of a menu of the menu bar, separators left out."""
        bar = self.find("menu bar", "")
        found = [item for item in children(bar) if item.get_name() == menu]
        return [each for item in found for popup in children(item) for each in children(popup) if each.get_name()]

    def choose(self, menu, entry):
        """An entry of the menu bar, with no menu opened for it."""
        found = [each for each in self.entries(menu) if each.get_name() == entry and has(each, ENABLED)]
        if not found:
            raise Failure(f"the menu entry {menu} > {entry}: not found in\n{self.tree()}")
        self.act(found[0], "Press")

    def tabs(self, under=None):
        """The captions of the tabs in sight: in the window with the focus, unless said otherwise."""
        window = under or self.focused_window()
        return [each.get_name() for each in walk(window) if each.get_role_name() == "page tab"]

    def focused_window(self):
        """Of the windows in the main window's pane, the one with the focus; the window in front where there is none."""
        front = self.wait_for("the window in front", lambda: next((w for w in self.windows() if has(w, ACTIVE)), None))
        inner = [each for each in walk(front) if each.get_role_name() == "frame" and has(each, FOCUSED)]
        return inner[0] if inner else front

    def find_window_in_front(self, name):
        self.wait_for(f"the window '{name}' with the focus", lambda: self.focused_window().get_name().strip() == name)

    def wait_for_focus(self, node):
        self.wait_for(f"the focus on '{node.get_name()}'", lambda: has(node, FOCUSED))

    @staticmethod
    def click_at_top_right(node):
        """The click of the left button with Ctrl and Alt that is the hidden way to the memory map."""
        place = node.get_component_iface().get_extents(Atspi.CoordType.SCREEN)
        corner = (str(place.x + place.width - 8), str(place.y + 8))
        held = ("ctrl", "alt")
        subprocess.run(
            ["xdotool", "mousemove", *corner]
            + [word for key in held for word in ("keydown", key)]
            + ["click", "1"]
            + [word for key in held for word in ("keyup", key)],
            check=True,
        )

    @staticmethod
    def key(symbol):
        """A key of the keyboard, for the one with the focus."""
        Atspi.generate_keyboard_event(symbol, None, Atspi.KeySynthType.SYM)

    def check_names(self):
        """Every control in sight that takes the keyboard has a name. How many there are."""
        controls = [each for each in walk(self.root) if has(each, FOCUSABLE)]
        nameless = [each for each in controls if not is_named(each)]
        if nameless or not controls:
            found = "\n".join(described(each) for each in nameless) or "no control at all"
            raise Failure(f"controls without a name:\n{found}\nin\n{self.tree()}")
        return len(controls)


def is_named(control):
    """A list that opens has its value for its name on this system: what it is, its label or its description says."""
    if control.get_role() != Atspi.Role.COMBO_BOX or control.get_description():
        return control.get_name() != ""
    labels = [each for each in control.get_relation_set() if each.get_relation_type() == Atspi.RelationType.LABELLED_BY]
    return any(each.get_target(0).get_name() for each in labels)


def is_(node, role, name):
    return node.get_role_name() == role and node.get_name() == name
