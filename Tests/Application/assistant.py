"""What an assistant for people who do not see the screen reads of a program, and does in it."""

from gi.repository import Gio, GLib

from session import wait_until

_PREFIX = "org.a11y.atspi."
_STATES = {"active": 1, "checked": 4, "enabled": 8, "focusable": 11, "focused": 12, "modal": 16, "selected": 23, "showing": 25,
           "checkable": 41}
_CALL_LIMIT = 30_000


class Element:
    """One thing on the screen. Asks anew each time: nothing is remembered."""

    def __init__(self, bus, owner, path):
        self._bus, self._owner, self._path = bus, owner, path

    def _call(self, interface, method, arguments=None):
        return self._bus.call_sync(self._owner, self._path, interface, method, arguments, None, Gio.DBusCallFlags.NONE,
                                   _CALL_LIMIT, None).unpack()

    def _property(self, name):
        return self._call("org.freedesktop.DBus.Properties", "Get", GLib.Variant("(ss)", (_PREFIX + "Accessible", name)))[0]

    @property
    def name(self):
        return self._property("Name")

    @property
    def description(self):
        return self._property("Description")

    @property
    def role(self):
        return self._call(_PREFIX + "Accessible", "GetRoleName")[0]

    @property
    def states(self):
        low, high = self._call(_PREFIX + "Accessible", "GetState")[0]
        bits = low | high << 32
        return {name for name, bit in _STATES.items() if bits >> bit & 1}

    @property
    def children(self):
        return [Element(self._bus, owner, path)
                for owner, path in self._call(_PREFIX + "Accessible", "GetChildren")[0]]

    def act(self):
        """Its first action but to take the focus: a press, or a toggle."""
        names = [action[0] for action in self._call(_PREFIX + "Action", "GetActions")[0]]
        index = next((index for index, name in enumerate(names) if name not in ("SetFocus", "Set Focus")), 0)
        self._call(_PREFIX + "Action", "DoAction", GLib.Variant("(i)", (index,)))

    def focus(self):
        self._call(_PREFIX + "Component", "GrabFocus")

    def place(self):
        """On the screen: x, y, width, height."""
        return self._call(_PREFIX + "Component", "GetExtents", GLib.Variant("(u)", (0,)))[0]

    def all_showing(self):
        """This and all below that is on show, as it is read."""
        try:
            if "showing" not in self.states:
                return
            yield self
            children = self.children
        except GLib.Error:
            return  # gone meanwhile
        for child in children:
            yield from child.all_showing()


class Assistant:
    """Reads the program with this process number."""

    def __init__(self, session, process_number):
        self._bus = session.accessibility_bus
        self._process = process_number
        self._owner = None

    def windows(self):
        """Those on show, the popover among them."""
        if self._owner is None:
            self._owner = self._find_owner()
            if self._owner is None:
                return []
        try:
            return [window for window in self._root().children if "showing" in window.states]
        except GLib.Error:
            return []

    def _root(self):
        return Element(self._bus, self._owner, "/org/a11y/atspi/accessible/root")

    def _find_owner(self):
        registry = Element(self._bus, "org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root")
        try:
            owners = [child._owner for child in registry.children]
        except GLib.Error:
            return None
        return next((owner for owner in owners if self._process_of(owner) == self._process), None)

    def _process_of(self, owner):
        try:
            return self._bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                                       "GetConnectionUnixProcessID", GLib.Variant("(s)", (owner,)), None,
                                       Gio.DBusCallFlags.NONE, _CALL_LIMIT, None).unpack()[0]
        except GLib.Error:
            return None

    def elements(self):
        for window in self.windows():
            yield from window.all_showing()

    def find(self, name, role=None, states=()):
        """The first on show that has this name, or one that `name` accepts; nothing where there is none."""
        accepts = name if callable(name) else lambda text: text == name
        for element in self.elements():
            try:
                if accepts(element.name) and (role is None or element.role == role) and set(states) <= element.states:
                    return element
            except GLib.Error:
                continue
        return None

    def wait_for(self, name, role=None, states=(), limit=None):
        return wait_until(lambda: self.find(name, role, states),
                          lambda: f"{role or 'something'} named {name} {states}, on show is\n{self.told()}", limit)

    def wait_without(self, name, role=None):
        wait_until(lambda: self.find(name, role) is None, lambda: f"{name} goes, on show is\n{self.told()}")

    def focused(self):
        return self.find(lambda name: True, states=["focused"])

    def told(self):
        """All that is on show, for a person who reads why a test failed."""
        lines = []
        for element in self.elements():
            try:
                name = element.name
                if name:
                    lines.append(f"  {element.role}: {name!r} {sorted(element.states - {'showing'})}")
            except GLib.Error:
                continue
        return "\n".join(lines) or "  nothing"
