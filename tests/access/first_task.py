"""Usage: first_task.py EDITOR SCHEDULECTL DEMONSTRATION

Makes the first task of an operator through the accessibility bus alone, without a key and without the
mouse: a task, two dates, a plan with two programs, its time and its days. Prints what a screen reader says
of each control that it works. The console host has to find the task in the database in the end, and
nothing else changed. Ends with 1 where it is not so.
"""

import argparse
import json
import subprocess
import sys

import bus
import walk
from speech import said

# The demonstration has three.
TASK = 4
PROGRAMS = ("Weather", "City news")
WANTED = "2099.04.01-2099.04.30 10:00:00-11:30:00 days [1, 3] Weather, City news"


class FirstTask:
    """The steps of the task, in a program that has been started."""

    def __init__(self, tour):
        self.tour = tour
        self.editor = None

    def wanted(self, role, name, top=None):
        """The one control of a role and a name that is on show, once it is there."""
        top = top or self.editor
        return bus.wait_for(lambda: self.tour.find(top, lambda thing: self.fits(thing, role, name)),
                            f"{role} “{name}”")

    @staticmethod
    def fits(thing, role, name):
        return thing.role() == role and thing.name() == name and "showing" in thing.states()

    def act(self, what, action):
        print(f"> {action} {said(what)}")
        what.act(action)

    def press(self, name, top=None):
        self.act(self.wanted("push button", name, top), "Press")

    def enter(self, name, text):
        """Writes a text into a field, and waits until it stands there."""
        field = self.wanted("spin box", name)
        print(f"> Write {text}: {said(field)}")
        field.set_text(text)
        bus.wait_for(lambda: field.text() == text, f"{text} in “{name}”")
        print(f"  {said(field)}")

    def step(self, name, value, text):
        """Sets the value of a field, and waits for the text that stands for it."""
        field = self.wanted("spin box", name)
        print(f"> Set {value}: {said(field)}")
        field.set_value(value)
        bus.wait_for(lambda: field.text() == text, f"{text} in “{name}”")
        print(f"  {said(field)}")

    def choose_programs(self, button):
        known = self.tour.windows()
        self.press(button)
        chooser = bus.wait_for(lambda: self.tour.opened(known), "the chooser")
        print(f"  {said(chooser)}")
        for program in PROGRAMS:
            box = self.wanted("check box", program, chooser)
            self.act(box, "Toggle")
            bus.wait_for(lambda: "checked" in box.states(), f"the mark of “{program}”")
            print(f"  {said(box)}")
        self.press("Select programs", chooser)
        for program in PROGRAMS:
            self.wanted("spin box", f"{program}, Plays", chooser)
        self.press("OK", chooser)
        bus.wait_for(lambda: chooser not in self.tour.windows(), "the end of the chooser")

    def choose_days(self, name):
        box = self.wanted("combo box", name)
        self.act(box, "ShowMenu")
        bus.wait_for(lambda: "expanded" in box.states(), "the list of days")
        for day in ("Mon", "Wed"):
            entry = self.wanted("list item", day, self.tour.program)
            self.act(entry, "Toggle")
            bus.wait_for(lambda: "checked" in entry.states(), f"the mark of “{day}”")
            print(f"  {said(entry)}")
        self.act(box, "ShowMenu")
        bus.wait_for(lambda: "collapsed" in box.states(), "the end of the list of days")
        print(f"  {said(box)}")

    def add(self, task):
        """Adds a task. Right after the editor has read the tasks, it adds none."""
        for _ in range(10):
            self.press("Add play task")
            try:
                bus.wait_for(lambda: self.tour.find(
                    self.editor, lambda thing: self.fits(thing, "push button", task)), task, 8)
                return
            except AssertionError:
                continue

    def open_editor(self):
        known = self.tour.windows()
        self.editor = bus.wait_for(lambda: self.tour.asked_for(walk.EDITOR, known), "the editor")

    def make(self):
        self.open_editor()
        # The tasks that there are come one after the other.
        self.wanted("push button", f"Play task {TASK - 1}")
        task = f"Play task {TASK}"
        self.add(task)
        bar = self.wanted("push button", task)
        if "collapsed" in bar.states():
            self.act(bar, "Press")
        # The end first: a start may not come after it.
        self.enter(f"{task} to", "2099.04.30")
        self.enter(f"{task} Valid from", "2099.04.01")
        self.choose_programs(f"{task} Select programs")
        plan = f"{task}, Plan 1:"
        self.step(f"{plan} to", 11.5 * 3600, "11:30:00")
        self.enter(f"{plan} from", "10:00:00")
        self.choose_days(f"{plan} Days")
        print(f"  {said(self.wanted('push button', f'{plan} Select programs'))}")
        self.press("OK")
        bus.wait_for(lambda: self.editor not in self.tour.windows(), "the end of the editor")


def line(task):
    """A task with its plans, without what nobody has entered."""
    plans = [f"{plan['startTime']}-{plan['endTime']} days {plan['days']} "
             + ", ".join(program["name"] for program in plan["programs"]) for plan in task["plans"]]
    return f"{task['startDate']}-{task['endDate']} " + "; ".join(plans)


def saved(schedulectl, database):
    """The tasks as the console host finds them in the database, each as a line, by their numbers."""
    answer = subprocess.run([schedulectl, "--database", database, "--json", "show"],
                            check=True, capture_output=True, text=True)
    return {task["id"]: line(task) for task in json.loads(answer.stdout)["tasks"]}


def arguments(usage):
    parser = argparse.ArgumentParser(description=usage)
    parser.add_argument("editor")
    parser.add_argument("schedulectl")
    parser.add_argument("demonstration")
    options = parser.parse_args()
    options.tree = False
    return options


def check(options, tour, make):
    """Makes the task and ends the program. Returns 0 where the task has come into the database, and nothing else."""
    before = saved(options.schedulectl, tour.database)
    make()
    after = saved(options.schedulectl, tour.database)
    tour.end()
    print(after.get(TASK))
    return 0 if after == {**before, TASK: WANTED} and len(before) == TASK - 1 else 1


def main():
    options = arguments(__doc__)
    tour = walk.Walk(options, "en_US", "dark", walk.Findings())
    return check(options, tour, FirstTask(tour).make)


if __name__ == "__main__":
    sys.exit(main())
