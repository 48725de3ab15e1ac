"""The tests of the copy, and what they notice."""

import json
import os
import resource
import shutil
import signal
import subprocess
import tempfile
import time
from pathlib import Path

from schemata import REACHED_BYTES

MEMORY = 8 << 30
FILE_SIZE = 2 << 30


class Trial:
    def __init__(self, build, scratch, programs):
        self.build = build
        self.scratch = scratch
        self.reached_file = scratch / "reached"
        scratch.mkdir(parents=True, exist_ok=True)
        listed = subprocess.run(["ctest", "--show-only=json-v1"], cwd=build, check=True,
                                stdout=subprocess.PIPE).stdout
        self.tests = {}
        for test in json.loads(listed)["tests"]:
            command = test.get("command")
            if command and Path(command[0]).name in programs:
                self.tests[test["name"]] = (command, self._settings(test))

    def run(self, name, limit, mutant=None):
        """Runs a test of the given name. Returns its seconds, and whether it passed in time."""
        command, settings = self.tests[name]
        temporary = Path(tempfile.mkdtemp(dir=self.scratch))
        environment = dict(os.environ, **settings, TMPDIR=str(temporary))
        if mutant is None:
            self.reached_file.write_bytes(bytes(REACHED_BYTES))
            environment["TREL_MUTANTS_REACHED"] = str(self.reached_file)
        else:
            environment["TREL_MUTANT"] = str(mutant)
        begin = time.monotonic()
        # Behind the end of a test stand the processes that it started; they go with it.
        process = subprocess.Popen(command, cwd=self.build / "tests", env=environment,
                                   stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL, start_new_session=True,
                                   preexec_fn=_limit)
        try:
            passed = process.wait(timeout=limit) == 0
        except subprocess.TimeoutExpired:
            passed = False
        seconds = time.monotonic() - begin
        try:
            os.killpg(process.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass
        process.wait()
        shutil.rmtree(temporary, ignore_errors=True)
        return seconds, passed

    def reached(self):
        """The numbers of the changes that the last run without one came past."""
        return {number for number, byte in enumerate(self.reached_file.read_bytes()) if byte}

    @staticmethod
    def _settings(test):
        settings = {}
        for entry in test.get("properties", []):
            if entry["name"] == "ENVIRONMENT":
                settings = dict(line.split("=", 1) for line in entry["value"])
        return settings


def _limit():
    # What a change lets grow without an end must not take the machine with it.
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
    resource.setrlimit(resource.RLIMIT_FSIZE, (FILE_SIZE, resource.getrlimit(resource.RLIMIT_FSIZE)[1]))
