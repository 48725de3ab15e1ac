"""What is on the accessibility bus, asked of the programs themselves: nothing is kept between two questions."""

import os
import time

from gi.repository import Gio, GLib

REGISTRY = "org.a11y.atspi.Registry"
ROOT = "/org/a11y/atspi/accessible/root"
ATSPI = "org.a11y.atspi."
ANSWER_MSECS = 20000

# The places of the states in the two words that a program answers with.
STATES = {"active": 1, "checked": 4, "editable": 7, "collapsed": 5, "enabled": 8, "expandable": 9,
          "expanded": 10, "focusable": 11, "focused": 12, "modal": 16,
          "selected": 23, "sensitive": 24, "showing": 25, "visible": 30, "checkable": 41}

_connection = Gio.DBusConnection.new_for_address_sync(
    os.environ["AT_SPI_BUS_ADDRESS"],
    Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION,
    None, None)


class Gone(Exception):
    """What was asked is not there any more."""


def call(owner, path, interface, method, arguments=None):
    try:
        answer = _connection.call_sync(owner, path, interface, method, arguments, None,
                                       Gio.DBusCallFlags.NONE, ANSWER_MSECS, None)
    except GLib.Error as error:
        raise Gone(f"{interface}.{method}: {error.message}") from error
    return answer.unpack()


def wait_for(condition, what, seconds=20):
    """Asks until there is an answer, which it returns."""
    end = time.monotonic() + seconds
    while True:
        try:
            answer = condition()
        except Gone:
            answer = None
        if answer:
            return answer
        if time.monotonic() > end:
            raise AssertionError(f"Waited in vain for {what}.")
        time.sleep(0.02)


class Thing:
    """Something that a program shows, as a screen reader finds it."""

    def __init__(self, owner, path):
        self.owner = owner
        self.path = path

    def _get(self, interface, name):
        return call(self.owner, self.path, "org.freedesktop.DBus.Properties", "Get",
                    GLib.Variant("(ss)", (ATSPI + interface, name)))[0]

    def _call(self, interface, method, arguments=None):
        return call(self.owner, self.path, ATSPI + interface, method, arguments)

    def name(self):
        return self._get("Accessible", "Name")

    def description(self):
        return self._get("Accessible", "Description")

    def role(self):
        return self._call("Accessible", "GetRoleName")[0]

    def interfaces(self):
        return [name[len(ATSPI):] for name in self._call("Accessible", "GetInterfaces")[0]]

    def states(self):
        words = self._call("Accessible", "GetState")[0]
        bits = words[0] | words[1] << 32
        return {name for name, bit in STATES.items() if bits >> bit & 1}

    def children(self):
        return [Thing(owner, path) for owner, path in self._call("Accessible", "GetChildren")[0]]

    def size(self):
        return self._call("Component", "GetExtents", GLib.Variant("(u)", (0,)))[0][2:]

    def actions(self):
        return [action[0] for action in self._call("Action", "GetActions")[0]]

    def text(self):
        """The text of a field, or None for what has none."""
        return self._call("Text", "GetText", GLib.Variant("(ii)", (0, -1)))[0]

    def value(self):
        return self._get("Value", "CurrentValue")

    def set_text(self, text):
        """Writes a text in the place of all that stands in a field."""
        self._call("EditableText", "SetTextContents", GLib.Variant("(s)", (text,)))

    def set_value(self, value):
        call(self.owner, self.path, "org.freedesktop.DBus.Properties", "Set",
             GLib.Variant("(ssv)", (ATSPI + "Value", "CurrentValue", GLib.Variant("d", value))))

    def act(self, name):
        """Begins an action. The answer is not waited for: it comes when the window that opens is closed."""
        number = self.actions().index(name)
        _connection.call(self.owner, self.path, ATSPI + "Action", "DoAction",
                         GLib.Variant("(i)", (number,)), None, Gio.DBusCallFlags.NONE, -1, None,
                         None)
        _connection.flush_sync(None)

    def focus(self):
        self._call("Component", "GrabFocus")

    def __eq__(self, other):
        return isinstance(other, Thing) and (self.owner, self.path) == (other.owner, other.path)

    def __hash__(self):
        return hash((self.owner, self.path))


class Ear:
    """Hears what programs tell, as a screen reader does. It has to be there before a program is started, which
    tells nothing while nobody listens."""

    def __init__(self):
        self._heard = []
        for kind in ("object:", "window:"):
            call(REGISTRY, "/org/a11y/atspi/registry", REGISTRY, "RegisterEvent", GLib.Variant("(s)", (kind,)))
        for kind in ("Object", "Window"):
            _connection.signal_subscribe(None, f"{ATSPI}Event.{kind}", None, None, None,
                                         Gio.DBusSignalFlags.NONE, self._hear)

    def _hear(self, _connection, owner, path, _interface, signal, arguments):
        what, value = arguments.unpack()[:2]
        self._heard.append((Thing(owner, path), signal, what, value))

    def news(self):
        """What was told since, each as the thing, the kind of event, what of it, and the number that goes with it."""
        context = GLib.MainContext.default()
        while context.iteration(False):
            pass
        heard, self._heard = self._heard, []
        return heard


def application():
    """The one program that has registered."""
    programs = Thing(REGISTRY, ROOT).children()
    return programs[0] if programs else None
