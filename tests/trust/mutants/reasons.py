"""The changes that make no difference that anyone could notice, each with its reason.

Blocks of lines, with an empty line between them; a line that starts with # is a comment:

    file: src/libs/tstranslate/LanguageFile.cpp
    line: if (begin >= end) {
    change: >= -> >
    reason: An empty part is read as nothing as well.

A change is known by the text of its line, so that it may move. Where a line has several that read
alike, "turn: 1" means the second of them.
"""


def key(result):
    """What a change is known by, in this file and from one run to the next."""
    change = f"{result['original']} -> {result['changed']}"
    return (result["file"], result["text"], change, int(result["turn"]))


def read(path):
    known = {}
    for block in path.read_text().split("\n\n"):
        fields = dict(line.split(": ", 1) for line in block.splitlines()
                      if line and not line.startswith("#"))
        if fields:
            known[(fields["file"], fields["line"], fields["change"],
                   int(fields.get("turn", 0)))] = fields["reason"]
    return known
