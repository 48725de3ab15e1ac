"""Makes small changes to the rules, one at a time, and tells which of them no test notices.

Started by scripts/mutate, which says how it is used.
"""

import argparse
import hashlib
import json
import os
import pickle
import random
import shlex
import subprocess
import sys
from pathlib import Path

import reasons
import schemata
from sites import Reader
from trial import Trial

ROOT = Path(__file__).resolve().parents[3]
COPY = ROOT / "build/mutate"
BUILD = COPY / "build/dev"
SCRATCH = BUILD / "mutants"
HEADER = COPY / "src/libs/trel_mutant.h"
REASONS = Path(__file__).with_name("reasons.txt")

# The sources with rules in them: a folder with all below it, or one file.
RULES = [
    "src/libs/trelprogramschedulewidgets/service",
    "src/libs/trelprogramschedule/dispatch",
    "src/libs/trelprogramschedule/store",
    "src/libs/trelprogramschedule/json",
    "src/libs/trelprogramschedule/catalogue/ProgramCatalogue.cpp",
    "src/libs/trelprogramschedule/catalogue/ShownAddress.cpp",
    "src/libs/trelprogramschedule/PlanEnds.cpp",
    "src/libs/trelprogramschedule/ScheduleLimits.cpp",
    "src/libs/trelprogramschedule/ScheduleService.cpp",
    "src/libs/trelprogramschedule/TaskSets.cpp",
    "src/libs/tstranslate",
    "src/apps/schedulectl/CommandLine.cpp",
    "src/apps/schedulectl/language/LanguageTexts.cpp",
    "src/apps/schedulectl/screen/MomentText.cpp",
    "src/apps/common/DisplayText.cpp",
]

# The programs with the tests of these rules. Those that drive windows are left out: a rule is tested
# by itself.
PROGRAMS = [
    "tst_rules", "tst_dispatch", "tst_service", "tst_FileReplacement", "tst_ctl_parts", "tst_ctl",
    "tst_CtlHostLanguage", "tst_Translator", "trust_inputs", "trust_answers",
    "tst_OutOfMemory", "tst_StoreOutOfMemory",
]


def command(arguments, **options):
    return subprocess.run(arguments, check=True, **options)


def tracked_files():
    listed = command(["git", "ls-files", "-co", "--exclude-standard", "-z"], cwd=ROOT,
                     stdout=subprocess.PIPE).stdout.decode()
    return [name for name in listed.split("\0") if name and (ROOT / name).is_file()]


def put(path, contents):
    """Writes a file of the copy, unless it is so already: what is as it was is not built again."""
    if not path.exists() or path.read_bytes() != contents:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(contents)


def sources_with_rules():
    return sorted(name for name in tracked_files()
                  if name.endswith(".cpp") and any(
                      name == place or name.startswith(place + "/") for place in RULES))


def copy_tree(kept):
    """Copies all but the sources in `kept`, which are written with their changes."""
    names = set(tracked_files())
    for name in names:
        if name in kept and (COPY / name).exists():
            continue
        contents = (ROOT / name).read_bytes()
        if name.endswith("CMakeLists.txt"):
            contents += without_warnings(os.path.dirname(name), kept)
        put(COPY / name, contents)
        if os.access(ROOT / name, os.X_OK):
            (COPY / name).chmod(0o755)
    put(HEADER, schemata.HEADER.encode())
    for path in COPY.rglob("*"):
        if path.is_file() and BUILD.parent not in path.parents and path != HEADER \
                and str(path.relative_to(COPY)) not in names:
            path.unlink()


def without_warnings(folder, sources):
    """What a folder's list says of its changed sources: a change looks odd to the compiler."""
    here = [os.path.relpath(name, folder) for name in sources if owner_of(name) == folder]
    if not here:
        return b""
    return ("\nset_source_files_properties(\n  " + "\n  ".join(here)
            + "\n  PROPERTIES COMPILE_OPTIONS -w)\n").encode()


def owner_of(source):
    """The folder whose list names the source."""
    folder = os.path.dirname(source)
    while not (ROOT / folder / "CMakeLists.txt").exists():
        folder = os.path.dirname(folder)
    return folder


def compile_arguments():
    """The arguments of each source of the copy, for clang."""
    entries = json.loads((BUILD / "compile_commands.json").read_text())
    found = {}
    for entry in entries:
        words = shlex.split(entry["command"])
        kept = []
        rest = iter(words)
        for word in rest:
            if word == "-isystem":
                kept += [word, next(rest)]
            elif word.startswith(("-I", "-D", "-std=")):
                kept.append(word)
        found.setdefault(os.path.relpath(entry["file"], COPY), kept)
    return found


def shares(counts, wanted):
    """How many changes each file gets: one at least, the others by the number of its places."""
    total = sum(counts.values())
    wanted = min(wanted, total)
    given = {name: min(1, count) for name, count in counts.items()}
    exact = {name: wanted * count / total for name, count in counts.items()}
    while sum(given.values()) < wanted:
        name = max((name for name in counts if given[name] < counts[name]),
                   key=lambda name: (exact[name] - given[name], name))
        given[name] += 1
    return given


def choose(seed, wanted, sources):
    """The changes of a seed: pairs of file and site, in the order of the files."""
    # Reading all sources takes minutes, and gives the same as long as nothing of this changes.
    asked = hashlib.sha256(f"{seed} {wanted}".encode())
    for part in [*(ROOT / name for name in sources), *Path(__file__).parent.glob("s*.py")]:
        asked.update(part.read_bytes())
    kept = SCRATCH / "choice"
    if kept.exists():
        key, chosen = pickle.loads(kept.read_bytes())
        if key == asked.digest():
            return chosen
    chosen = draw(seed, wanted, sources)
    kept.write_bytes(pickle.dumps((asked.digest(), chosen)))
    return chosen


def draw(seed, wanted, sources):
    arguments = compile_arguments()
    drawn = {}
    for name in sources:
        contents = (ROOT / name).read_bytes()
        reader = Reader(COPY / name, arguments[name], contents)
        drawn[name] = reader.sites(random.Random(f"{seed}:{name}"))
    chosen = []
    for name, number in shares({name: len(sites) for name, sites in drawn.items()}, wanted).items():
        compiler = None
        taken = []
        for site in drawn[name]:
            if len(taken) == number:
                break
            compiler = compiler or schemata.Compiler(
                COPY / name, [*arguments[name], "-include", str(HEADER)],
                (ROOT / name).read_bytes())
            if compiler.takes([site]):
                taken.append(site)
        chosen += [(name, site) for site in sorted(taken, key=lambda site: site.start)]
        print(f"{name}: {len(taken)} of {len(drawn[name])}", file=sys.stderr)
    return chosen


def write_changes(chosen, sources):
    for name in sources:
        numbered = [(number, site) for number, (file, site) in enumerate(chosen, start=1)
                    if file == name]
        contents = (ROOT / name).read_bytes()
        if numbered:
            header = os.path.relpath(HEADER, (COPY / name).parent)
            contents = b'#include "%s"\n' % header.encode() + schemata.rendered(contents, numbered)
        put(COPY / name, contents)


def reach(trial, names, longest):
    """What each test reaches, with its seconds; without those that fail or take too long."""
    reached = {}
    for name in names:
        seconds, passed = trial.run(name, longest)
        if not passed:
            why = "takes too long" if seconds >= longest else "fails"
            print(f"{name} {why} and is left out", file=sys.stderr)
            continue
        reached[name] = (seconds, trial.reached())
        print(f"{name}: {seconds:.1f} s, {len(reached[name][1])} changes", file=sys.stderr)
    return reached


def notice(trial, reached, number):
    """The test that notices a change, or None; and how many ran."""
    tests = sorted((seconds, name) for name, (seconds, numbers) in reached.items()
                   if number in numbers)
    for ran, (seconds, name) in enumerate(tests, start=1):
        if not trial.run(name, max(10, 5 * seconds), number)[1]:
            return name, ran
    return None, len(tests)


def report(results, known):
    files = {}
    for result in results:
        counts = files.setdefault(result["file"], [0, 0, 0, 0])
        counts[0] += 1
        explained = reasons.key(result) in known
        counts[1 if result["noticed"] else 2 if explained else 3] += 1
    print("| File | Changes | Noticed | No difference | Not noticed |")
    print("|---|---:|---:|---:|---:|")
    for name, counts in files.items():
        short = name.removeprefix("src/libs/").removeprefix("src/apps/")
        print(f"| `{short}` | " + " | ".join(map(str, counts)) + " |")
    sums = [sum(counts[n] for counts in files.values()) for n in range(4)]
    print("| All | " + " | ".join(map(str, sums)) + " |")
    left = [result for result in results
            if not result["noticed"] and reasons.key(result) not in known]
    for result in left:
        print(f"\n{result['number']}: {result['file']}:{result['line']} in {result['function']}\n"
              f"    {result['text']}\n    {result['original']}  ->  {result['changed']}"
              f"{'' if result['ran'] else '    (no test comes here)'}")
    for result in results:
        if result["noticed"] and reasons.key(result) in known:
            print(f"\n{result['number']}: {result['file']}:{result['line']}: "
                  f"{result['noticed']} notices it; its reason can go", file=sys.stderr)
    return not left


def main():
    parser = argparse.ArgumentParser(add_help=False)
    parser.add_argument("--seed", default="1")
    parser.add_argument("--count", type=int, default=500)
    parser.add_argument("--longest", type=float, default=100)
    parser.add_argument("--only")
    parser.add_argument("--again", action="store_true")
    parser.add_argument("--told", action="store_true")
    parser.add_argument("--choose", action="store_true")
    options = parser.parse_args()

    known = reasons.read(REASONS)
    results_file = SCRATCH / f"results-{options.seed}-{options.count}.json"
    before = {}
    if results_file.exists():
        before = {reasons.key(result): result for result in json.loads(results_file.read_text())}
    if options.told:
        sys.exit(0 if report(list(before.values()), known) else 1)

    sources = sources_with_rules()
    copy_tree(sources)
    SCRATCH.mkdir(parents=True, exist_ok=True)
    # Without precompiled headers: the changed sources have options of their own.
    command(["cmake", "--preset", "dev", "-DTREL_PRECOMPILED_HEADERS=OFF"], cwd=COPY,
            stdout=subprocess.DEVNULL)
    chosen = choose(options.seed, options.count, sources)
    if options.choose:
        for number, (name, site) in enumerate(chosen, start=1):
            print(f"{number}: {name}:{site.line}: {site.text}: {site.original} -> {site.changed}")
        return
    write_changes(chosen, sources)
    command(["cmake", "--build", "--preset", "dev", "--target", *PROGRAMS], cwd=COPY,
            stdout=sys.stderr)

    results = []
    for number, (name, site) in enumerate(chosen, start=1):
        results.append({
            "number": number, "file": name, "line": site.line, "function": site.function,
            "text": site.text, "original": site.original, "changed": site.changed,
            "turn": site.turn, "noticed": None, "ran": 0})
    only = {int(number) for number in options.only.split(",")} if options.only else None

    def is_due(result):
        old = before.get(reasons.key(result))
        if only is not None:
            return result["number"] in only
        if options.again and old is not None:
            return not old["noticed"] and reasons.key(result) not in known
        return True

    trial = Trial(BUILD, SCRATCH, PROGRAMS)
    reached = reach(trial, trial.tests, options.longest)
    for result in results:
        if is_due(result):
            result["noticed"], result["ran"] = notice(trial, reached, result["number"])
            print(f"{result['number']}: {result['file']}:{result['line']}: "
                  f"{result['noticed'] or 'NOT NOTICED'} ({result['ran']})", file=sys.stderr,
                  flush=True)
        elif reasons.key(result) in before:
            old = before[reasons.key(result)]
            result["noticed"], result["ran"] = old["noticed"], old["ran"]
        results_file.write_text(json.dumps(results, indent=1))
    sys.exit(0 if report(results, known) else 1)


main()
