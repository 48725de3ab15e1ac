"""Sources in which each change can be switched on when the program runs."""

from clang.cindex import Diagnostic, Index, TranslationUnit

# Goes to the head of every source that is changed. A byte of the shared file for each change says
# that a process has come past it; it stays when the process is killed.
HEADER = """#pragma once
#include <cstdlib>
#include <fcntl.h>
#include <sys/mman.h>
#include <type_traits>
#include <unistd.h>

struct TrelMutants
{
    int active = 0;
    char* reached = nullptr;
    TrelMutants()
    {
        if (const char* number = std::getenv("TREL_MUTANT")) {
            active = std::atoi(number);
        }
        const char* file = std::getenv("TREL_MUTANTS_REACHED");
        const int opened = file ? ::open(file, O_RDWR | O_CLOEXEC) : -1;
        if (opened >= 0) {
            void* mapped = ::mmap(nullptr, 65536, PROT_READ | PROT_WRITE, MAP_SHARED, opened, 0);
            reached = mapped == MAP_FAILED ? nullptr : static_cast<char*>(mapped);
            ::close(opened);
        }
    }
};
inline bool trel_mutant(int number)
{
    static const TrelMutants mutants;
    if (mutants.reached) {
        mutants.reached[number] = 1;
    }
    return number == mutants.active;
}
"""
REACHED_BYTES = 65536


def rendered(contents, numbered):
    """The source with all changes in it. `numbered` are pairs of number and site."""
    # From the outside in. What is written on the same place goes round what was there before.
    ordered = sorted(numbered, key=lambda pair: (pair[1].start, -pair[1].end, pair[1].kind))
    return _between(contents, 0, len(contents), ordered)


def _between(contents, start, end, ordered):
    parts = []
    at = start
    rest = list(ordered)
    while rest:
        number, site = rest.pop(0)
        inner = []
        while rest and rest[0][1].end <= site.end:
            inner.append(rest.pop(0))
        parts.append(contents[at:site.start])
        parts.append(_changed(contents, number, site, inner))
        at = site.end
    parts.append(contents[at:end])
    return b"".join(parts)


def _changed(contents, number, site, inner):
    switch = b"trel_mutant(%d)" % number
    if site.kind == "operator":
        start, end = site.operator
        left = _between(contents, site.start, start,
                        [pair for pair in inner if pair[1].end <= start])
        right = _between(contents, end, site.end, [pair for pair in inner if pair[1].start >= end])
        was = contents[start:end]
        becomes = b" " + site.changed.encode() + b" "
        return b"(%s ? (%s%s%s) : (%s%s%s))" % (switch, left, becomes, right, left, was, right)
    if site.kind == "return":
        value = _between(contents, site.start + len("return"), site.end, inner)
        return b"if (%s) { return {}; } return %s" % (switch, value)
    whole = _between(contents, site.start, site.end, inner)
    if site.kind == "not":
        return b"(%s != static_cast<bool>(%s))" % (switch, whole)
    if site.kind == "minus":
        return b"((%s) * (%s ? -1 : 1))" % (whole, switch)
    sign = site.kind[0].encode()
    return b"static_cast<std::decay_t<decltype(%s)>>((%s) %s (%s ? 1 : 0))" % (
        whole, whole, sign, switch)


class Compiler:
    """Tells whether a source compiles with a change in it."""

    def __init__(self, path, arguments, contents):
        self.path = str(path)
        self.contents = contents
        self.unit = Index.create().parse(
            self.path, args=arguments, unsaved_files=[self._source(contents)],
            options=TranslationUnit.PARSE_PRECOMPILED_PREAMBLE | TranslationUnit.PARSE_INCOMPLETE)
        # The first time makes the preamble.
        self.unit.reparse([self._source(contents)])
        if self._errors():
            raise SystemExit(f"{self.path}: {self._errors()[0]}")

    def takes(self, sites):
        numbered = list(enumerate(sites, start=1))
        self.unit.reparse([self._source(rendered(self.contents, numbered))])
        return not self._errors()

    def _source(self, contents):
        # Known here without a header: what the preamble holds stays the same.
        return (self.path, contents.decode() + "\n")

    def _errors(self):
        return [str(told) for told in self.unit.diagnostics if told.severity >= Diagnostic.Error]
