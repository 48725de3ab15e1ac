"""Usage: windows_at_start.py EDITOR SCHEDULECTL DEMONSTRATION

Starts the editor as an operator does, and looks which windows are there: the main window alone, and with `--edit` the
editor beside it, with its tasks. Ends with 1 where it is not so.
"""

import argparse
import sys
import time

import bus
import walk

TASK = "Play task 1"
# Longer than the program takes to open what it opens by itself.
PATIENCE_SECONDS = 4


def has_tasks(tour):
    return any(tour.find(window, lambda thing: thing.name() == TASK) for window in tour.windows())


def check(options, more, count):
    tour = walk.Walk(options, "en_US", "dark", walk.Findings(), more)
    try:
        bus.wait_for(lambda: len(tour.windows()) == count, f"{count} windows")
        if count > 1:
            bus.wait_for(lambda: has_tasks(tour), TASK)
        end = time.monotonic() + PATIENCE_SECONDS
        while time.monotonic() < end:
            names = [window.name() for window in tour.windows()]
            if len(names) != count:
                raise AssertionError(f"With {list(more)} there are {names}.")
            time.sleep(0.2)
        print(f"{list(more)}: {names}")
    finally:
        tour.end()


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("editor")
    parser.add_argument("schedulectl")
    parser.add_argument("demonstration")
    options = parser.parse_args()
    options.tree = False
    check(options, (), 1)
    check(options, ("--edit",), 2)
    return 0


if __name__ == "__main__":
    sys.exit(main())
