"""Usage: walk.py EDITOR SCHEDULECTL DEMONSTRATION [--run LANGUAGE:THEME]... [--known FILE] [--tree]

Opens every window of the schedule editor through the accessibility bus and lists what a screen reader
could not tell: a control without a role, a name, an action or a value; a name that is nothing but the
value; blanks at the ends of a name; two of one kind and one name beside each other. Ends with 1 where
there is anything. With --tree it prints what it walks through as well.
"""

import argparse
import json
import os
import re
import subprocess
import sys
import tempfile

import bus

# What the toolkit makes for itself, and a screen reader passes over.
SILENT = {"filler", "panel", "layered pane", "separator", "viewport", "scroll pane", "scroll bar",
          "root pane", "splitter", "tool bar", "menu bar", "popup menu", "status bar", "page tab list",
          "list", "label", "cell", "list item", "tree item", "grip"}
WORKED = {"push button", "toggle button", "check box", "radio button", "menu item", "check menu item",
          "radio menu item", "page tab", "combo box", "link"}
VALUED = {"spin box", "slider", "progress bar"}
# Two lines of a list may well say the same; their places tell them apart.
LISTED = {"cell", "list item", "tree item", "row header", "label", "filler", "panel", "separator"}

# Places in the menus, by menu and entry, which are the same in all languages. The calendar, which opens over
# the window like a menu, is none of the windows.
EDITOR = (0, 0)
SELECTION = (1, 5)
KEPT = {
    "panels": [(3, 0), (3, 1), (3, 2), (3, 4), (3, 5), (3, 6), (3, 7)],
    "no windows": [EDITOR, (0, 1), (0, 2), (0, 3), (0, 9), (0, 18), (1, 3)] +
                  [(2, 0), (2, 1), (2, 2), (2, 3), (3, 11), (3, 12), (3, 13)] +
                  [(4, language) for language in range(10)],
}


class Findings:
    def __init__(self):
        self.lines = {}

    def add(self, run, place, what):
        self.lines.setdefault(f"{place}: {what}", []).append(run)

    def tell(self):
        for line, runs in sorted(self.lines.items()):
            print(f"{line} ({', '.join(dict.fromkeys(runs))})")


class Walk:
    """One run of the editor, in a language and a theme."""

    def __init__(self, options, language, theme, findings, more=()):
        """With more options for the editor, if there are any."""
        self.run = f"{language} {theme}"
        self.findings = findings
        self.prints = options.tree
        self.schedulectl = options.schedulectl
        self.folder = tempfile.TemporaryDirectory()
        self.database = os.path.join(self.folder.name, "walk.db")
        environment = {name: value for name, value in os.environ.items() if name != "AT_SPI_BUS_ADDRESS"}
        self.editor = subprocess.Popen(
            [options.editor, "--database", self.database, "--demonstration", options.demonstration,
             "--language", language, "--theme", theme, *more], env=environment)
        self.program = bus.wait_for(bus.application, "the editor")
        self.window = bus.wait_for(lambda: next(iter(self.windows()), None), "the first window")

    def end(self):
        self.editor.terminate()
        self.editor.wait(20)
        bus.wait_for(lambda: bus.application() is None, "the end of the editor")
        self.folder.cleanup()

    def windows(self):
        return [window for window in self.program.children() if "showing" in window.states()]

    # What is looked for -----------------------------------------------------------------------

    def walk(self, thing, place, depth=0):
        """Looks at what is shown of a thing, and below it."""
        try:
            role, name, states = thing.role(), thing.name(), thing.states()
        except bus.Gone:
            return None
        if "showing" not in states:
            return None
        here = f"{place} > {role} “{name.strip()}”" if name.strip() else f"{place} > {role}"
        asked_again(lambda: self.look(thing, here, role, name, states, depth))
        if self.prints:
            print("  " * depth + f"{role} “{name}” {' '.join(sorted(states))}")
        kinds = {}
        for number, child in enumerate(asked_again(thing.children) or []):
            known = self.walk(child, here, depth + 1)
            if known and known[0] not in LISTED and known[1].strip() and known in kinds:
                self.findings.add(self.run, here, f"two of “{known[1]}”, {known[0]}")
            if known:
                kinds[known] = number
        return role, name

    def look(self, thing, here, role, name, states, depth):
        found = lambda what: self.findings.add(self.run, here, what)
        # The frame of tabs hands the focus on to them.
        children = [child.role() for child in thing.children()] if role == "filler" else []
        if role in ("", "unknown", "invalid", "filler") and "focusable" in states and (
                "page tab list" not in children):
            found("takes the focus and has no role")
        if name != name.strip():
            found(f"blanks at the ends of “{name}”")
        interfaces = thing.interfaces()
        # Below a window, a frame is a line around others.
        is_named = role not in SILENT and (role != "frame" or depth == 0)
        if not name.strip() and is_named and max(thing.size()) > 0:
            found("no name")
        if role == "label" and not name.strip() and min(thing.size()) > 1:
            found("a label without a text")
        if role in WORKED and "enabled" in states and ("Action" not in interfaces or not thing.actions()):
            found("no action")
        if role in VALUED and "Value" not in interfaces:
            found("no value")
        if role in ("text", "entry", "password text") and "Text" not in interfaces:
            found("no text")
        if role == "combo box" and name in self.choices(thing):
            found("its name is one of its choices")
        if role in ("text", "spin box") and "Text" in interfaces and name and name == thing.text():
            found("its name is its value")

    def choices(self, box):
        return [item.name() for part in box.children() if part.role() == "list"
                for item in part.children()]

    # What is opened ---------------------------------------------------------------------------

    def find(self, top, test):
        """The first thing below another one that passes a test, in the order in which it is read."""
        for child in top.children():
            try:
                found = child if test(child) else self.find(child, test)
            except bus.Gone:
                found = None
            if found:
                return found
        return None

    def menus(self):
        """The entries of the menus, by the places of menu and entry."""
        bar = self.find(self.window, lambda thing: thing.role() == "menu bar")
        entries = {}
        for number, title in enumerate(bar.children()):
            for menu in title.children():
                for place, entry in enumerate(menu.children()):
                    entries[number, place] = entry
        return entries

    def opened(self, known):
        """The window that has come since, or None."""
        return next((window for window in self.windows() if window not in known), None)

    def asked_for(self, place, known):
        """The window of an entry, which may not open in the first second of the program."""
        if not self.opened(known):
            self.menus()[place].act("Press")
        return self.opened(known)

    def open(self, entry, what):
        """Opens a window by an entry, walks through it and closes it."""
        known = self.windows()
        entry.act("Press")
        try:
            window = bus.wait_for(lambda: self.opened(known), what, 5)
        except AssertionError:
            self.findings.add(self.run, what, f"“{entry.name()}” opens nothing")
            return
        self.walk(window, what)
        self.close(window, what)

    def close(self, window, what):
        """Closes a window as everyone tries first. Where that does not work it is found, and stays open."""
        try:
            bus.wait_for(lambda: "active" in window.states(), f"the keys for {what}", 5)
            subprocess.run(["xdotool", "key", "Escape"], check=True)
            bus.wait_for(lambda: window not in self.windows(), f"the end of {what}", 5)
        except AssertionError as error:
            self.findings.add(self.run, what, f"Escape does not close it: {error}")

    def tour(self):
        """Through every window, each of which is closed again."""
        self.show_panels()
        self.walk(self.window, "window")
        self.walk_editor()
        self.walk_refused_save()
        self.select_program()
        asking = set(self.menus()) - {place for names in KEPT.values() for place in names}
        for place in sorted(asking):
            entry = self.menus()[place]
            if "enabled" in entry.states() and entry.name():
                self.open(entry, f"window of the menu entry {place}")

    def show_panels(self):
        for place in KEPT["panels"]:
            panel = self.menus()[place]
            if "checked" not in panel.states():
                panel.act("Press")
                bus.wait_for(lambda: "checked" in self.menus()[place].states(), "a panel")

    def open_editor(self):
        known = self.windows()
        return bus.wait_for(lambda: self.asked_for(EDITOR, known), "the editor")

    def open_by(self, button, what):
        """The window that a button or an entry opens."""
        known = self.windows()
        button.act("Press")
        return bus.wait_for(lambda: self.opened(known), what)

    def leave_by(self, button, what):
        known = self.windows()
        button.act("Press")
        bus.wait_for(lambda: len(self.windows()) < len(known), f"the end of {what}")

    def buttons(self, top):
        return [thing for thing in self.all(top) if is_button(thing)]

    def walk_refused_save(self):
        """Both this desk and another one change a task, and the other one saves first."""
        editor = self.open_editor()
        fold = bus.wait_for(lambda: self.find(editor, is_fold_bar), "the bar of a card")
        fold.act(fold.actions()[0])
        table = bus.wait_for(lambda: self.find(editor, is_shown_table), "the table of a card")
        # The second button of a plan copies it.
        before = len(self.buttons(table))
        self.buttons(table)[1].act("Press")
        bus.wait_for(lambda: len(self.buttons(table)) > before, "a copy of the plan")
        self.save_elsewhere()
        question = self.open_by(self.buttons(editor)[-1], "the question about the other save")
        self.walk(question, "refused save")
        # Behind the one that goes on.
        choices = self.open_by(self.buttons(question)[1], "the tasks that both have changed")
        self.walk(choices, "tasks changed at both desks")
        # The first one of each leads back.
        question = self.open_by(self.buttons(choices)[0], "the question once more")
        self.leave_by(self.buttons(question)[0], "the question")
        self.leave_by(self.buttons(editor)[-3], "the editor")

    def save_elsewhere(self):
        file = os.path.join(self.folder.name, "theirs.json")
        subprocess.run([self.schedulectl, "export", file, "--database", self.database], check=True,
                       stdout=subprocess.DEVNULL)
        with open(file, encoding="utf-8") as former:
            schedule = json.load(former)
        # A day before all others, so that it saves whatever else is valid when.
        schedule["tasks"][0]["startDate"] = "2020.01.01"
        with open(file, "w", encoding="utf-8") as later:
            json.dump(schedule, later)
        subprocess.run([self.schedulectl, "import-schedule", file, "--database", self.database],
                       check=True, stdout=subprocess.DEVNULL)

    def walk_editor(self):
        editor = self.open_editor()
        fold = bus.wait_for(lambda: self.find(editor, is_fold_bar), "the bar of a card")
        self.walk(editor, "editor, cards folded")
        fold.act(fold.actions()[0])
        table = bus.wait_for(lambda: self.find(editor, is_shown_table), "the table of a card")
        self.walk(editor, "editor")
        self.open(self.find(table, is_button), "chooser")
        # The last but two of its buttons leaves it, and nothing is changed.
        self.leave_by(self.buttons(editor)[-3], "the editor")

    def all(self, top):
        for child in top.children():
            yield child
            yield from self.all(child)

    def select_program(self):
        """Selects the first program of the catalogue, without which some entries are not offered."""
        # There are no players, whose table is empty.
        table = self.find(self.window, lambda thing: is_shown_table(thing) and self.find(thing, is_cell))
        self.find(table, is_cell).act("Toggle")
        bus.wait_for(lambda: "enabled" in self.menus()[SELECTION].states(), "the entries of a program")


def asked_again(question, times=20):
    """The answer of what may be built anew while it is asked, as the lists of a file dialog are while it reads its
    folder. What stays away has no answer, and nothing in it can be wrong."""
    for _ in range(times):
        try:
            return question()
        except bus.Gone:
            pass
    return None


def is_cell(thing):
    return thing.role() == "cell"


def is_button(thing):
    return thing.role() == "push button"


def is_fold_bar(thing):
    return is_button(thing) and "expandable" in thing.states()


def is_shown_table(thing):
    return thing.role() == "table" and "showing" in thing.states()


def without(known, findings):
    """The findings that no line of a file of expressions stands for."""
    with open(known, encoding="utf-8") as file:
        lines = [line.strip() for line in file]
    expressions = [re.compile(line) for line in lines if line and not line.startswith("#")]
    for line in list(findings.lines):
        if any(expression.search(line) for expression in expressions):
            del findings.lines[line]


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("editor")
    parser.add_argument("schedulectl")
    parser.add_argument("demonstration")
    parser.add_argument("--run", action="append", help="LANGUAGE:THEME")
    parser.add_argument("--known", help="a file with an expression a line, of findings that are passed over")
    parser.add_argument("--tree", action="store_true")
    options = parser.parse_args()
    findings = Findings()
    for run in options.run or ["en_US:dark", "de_DE:light"]:
        language, theme = run.split(":")
        walk = Walk(options, language, theme, findings)
        walk.tour()
        walk.end()
    if options.known:
        without(options.known, findings)
    findings.tell()
    return 1 if findings.lines else 0


if __name__ == "__main__":
    sys.exit(main())
