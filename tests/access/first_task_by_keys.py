"""Usage: first_task_by_keys.py EDITOR SCHEDULECTL DEMONSTRATION

Makes the first task of an operator by keys alone, which the display gives to whichever window has the focus: a
task, two dates, a plan with two programs, its time and its days. Prints what a screen reader hears of it over the
accessibility bus. The console host has to find the task in the database in the end, and nothing else changed. Ends
with 1 where it is not so.
"""

import sys

import bus
import first_task
import walk
from speech import Keyboard

# What is not there in the first second is asked for again.
MOST_TRIES = 10
TASK = f"Play task {first_task.TASK}"
PLAN = f"{TASK}, Plan 1:"


class ByKeys:
    """The steps of the task, in a program that has been started."""

    def __init__(self, tour, keyboard):
        self.tour = tour
        self.keys = keyboard

    def try_until(self, keys, condition, what):
        for _ in range(MOST_TRIES):
            self.keys.press(keys)
            try:
                return bus.wait_for(condition, what, 3)
            except AssertionError:
                continue
        raise AssertionError(f"{keys} was pressed in vain: {what}")

    def has_focus(self, name):
        self.keys.listen()
        return self.keys.focus and self.keys.focus.name() == name

    def open_editor(self):
        known = self.tour.windows()
        bus.wait_for(lambda: "active" in self.tour.window.states(), "the keys for the first window")
        editor = self.try_until("ctrl+e", lambda: self.tour.opened(known), "the editor")
        # The tasks that there are come one after the other.
        last = f"Play task {first_task.TASK - 1}"
        bus.wait_for(lambda: self.tour.find(editor, lambda thing: thing.name() == last), last)
        return editor

    def enter(self, name, digits, text):
        """Goes back to a field from the one behind it, where its last part comes first, and types into it."""
        self.keys.go("shift+Tab", name)
        self.keys.press("shift+Tab", 2)
        self.type(name, digits, text)

    def type(self, name, digits, text):
        """Types into a field. The whole value is said with its last digit."""
        self.keys.type(digits)
        self.keys.wait(f"{name}, spin box, {text}")

    def choose_programs(self):
        known = self.tour.windows()
        self.keys.press("ctrl+n")
        chooser = bus.wait_for(lambda: self.tour.opened(known), "the chooser")
        bus.wait_for(lambda: "active" in chooser.states(), "the keys for the chooser")
        for program in first_task.PROGRAMS:
            self.keys.press(program[0].lower())
            self.keys.wait(f"{program}, check box, not checked")
            self.keys.press("space")
            self.keys.wait(f"{program}, check box, checked")
        self.keys.press("Return")
        # Which is told where the focus is not.
        self.keys.wait(f"! {first_task.PROGRAMS[-1]}, ")
        self.keys.press("ctrl+Return")
        bus.wait_for(lambda: chooser not in self.tour.windows(), "the end of the chooser")
        bus.wait_for(lambda: self.has_focus(f"{PLAN} Mode"), "the mode of the plan")

    def choose_days(self):
        self.keys.go("Tab", f"{PLAN} Days")
        self.keys.press("alt+Down")
        self.keys.wait("Every day, list item, checked")
        for day, down in (("Mon", 1), ("Wed", 2)):
            self.keys.press("Down", down)
            self.keys.wait(f"{day}, list item, not checked")
            self.keys.press("space")
            self.keys.wait(f"{day}, list item, checked")
        self.keys.press("Escape")
        self.keys.wait(f"{PLAN} Days, combo box, collapsed, Mon,Wed")

    def make(self):
        editor = self.open_editor()
        self.try_until("ctrl+shift+n", lambda: self.has_focus(TASK), TASK)
        if "collapsed" in self.keys.focus.states():
            self.keys.press("space")
        # The end first: a start may not come after it.
        self.keys.go("Tab", f"{TASK} to")
        self.type(f"{TASK} to", "20990430", "2099.04.30")
        self.enter(f"{TASK} Valid from", "20990401", "2099.04.01")
        self.choose_programs()
        self.keys.go("Tab", f"{PLAN} to")
        self.type(f"{PLAN} to", "113000", "11:30:00")
        self.enter(f"{PLAN} from", "100000", "10:00:00")
        self.choose_days()
        self.keys.press("ctrl+Return")
        bus.wait_for(lambda: editor not in self.tour.windows(), "the end of the editor")


def main():
    options = first_task.arguments(__doc__)
    ear = bus.Ear()
    tour = walk.Walk(options, "en_US", "dark", walk.Findings())
    return first_task.check(options, tour, ByKeys(tour, Keyboard(ear)).make)


if __name__ == "__main__":
    sys.exit(main())
