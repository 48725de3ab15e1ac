"""What a screen reader says of a control, and of what happens while keys are pressed."""

import subprocess
import time

import bus

# Longer than a program takes for a key, and for one at which it tells nothing.
ANSWER_SECONDS = 5


def said(thing):
    """A control as a screen reader says it."""
    states = thing.states()
    role = thing.role()
    words = [thing.name(), role]
    if role in ("check box", "list item"):
        words.append("checked" if "checked" in states else "not checked")
    if "expandable" in states:
        words.append("expanded" if "expanded" in states else "collapsed")
    if "Text" in thing.interfaces() and thing.text() and thing.text() != thing.name():
        words.append(thing.text())
    if "sensitive" not in states:
        words.append("unavailable")
    description = thing.description()
    return ", ".join(words) + (f" ({description})" if description else "")


class Keyboard:
    """Presses keys as a person does, through the input of the display, and prints what is said of it. Whoever has
    the focus gets them, as the manager of windows has it."""

    def __init__(self, ear):
        self.ear = ear
        self.focus = None
        self.last = ""
        self.lines = []

    def press(self, keys, times=1):
        for _ in range(times):
            self.hit(keys, [keys])

    def type(self, text):
        self.hit(f"types {text}", list(text))

    def hit(self, what, keys):
        self.listen()
        print(f"> {what}")
        self.lines = []
        subprocess.run(["xdotool", "key", *keys], check=True)
        end = time.monotonic() + ANSWER_SECONDS
        while not self.listen() and time.monotonic() < end:
            time.sleep(0.01)

    def listen(self):
        """Says what was told since; whether anything was."""
        news = self.ear.news()
        if news:
            # Programs tell and answer in turn: what was told before this answer has arrived with it.
            try:
                news[-1][0].role()
            except bus.Gone:
                pass
            news += self.ear.news()
        for event in news:
            try:
                self.take(*event)
            except bus.Gone:
                continue
        return bool(news)

    def take(self, thing, signal, what, value):
        if signal == "Activate":
            self.say(said(thing))
        elif signal == "StateChanged" and what == "focused" and value:
            self.focus = thing
            self.say(said(thing))
        elif signal == "StateChanged" and what == "showing" and value and thing.role() == "notification":
            self.say(f"! {thing.name()}")
        elif signal in ("StateChanged", "PropertyChange") and thing == self.focus:
            self.say(said(thing))

    def say(self, line):
        if line != self.last:
            print(f"  {line}")
            self.lines.append(line)
            self.last = line

    def wait(self, line):
        """Waits until something is said that begins so, since the last key."""
        def heard():
            self.listen()
            return any(one.startswith(line) for one in self.lines)
        bus.wait_for(heard, f"“{line}” to be said")

    def go(self, keys, name, most=40):
        """Presses a key until what has the focus has this name."""
        for _ in range(most):
            if self.focus and self.focus.name() == name:
                return
            self.press(keys)
        bus.wait_for(lambda: self.listen() or self.focus.name() == name, f"“{name}” to get the focus")
