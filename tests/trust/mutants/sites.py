"""The places of a source that can be changed, as clang reads it, and the changes of each."""

import random
from bisect import bisect_right
from dataclasses import dataclass, field

from clang.cindex import CursorKind, Index, TranslationUnit, TypeKind

# What an operator may become. The first that is drawn stands; where there are two, one moves the
# boundary and the other turns the condition round.
OPERATORS = {
    "<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="], ">=": [">", "<"],
    "==": ["!="], "!=": ["=="], "&&": ["||"], "||": ["&&"],
    "+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "%": ["/"], "|": ["&"], "&": ["|"],
}
ASSIGNMENTS = {"+=": "-=", "-=": "+=", "*=": "/=", "/=": "*=", "|=": "&=", "&=": "|="}
COMPARISONS = {"<", "<=", ">", ">=", "==", "!="}

FUNCTIONS = {
    CursorKind.FUNCTION_DECL, CursorKind.CXX_METHOD, CursorKind.CONSTRUCTOR, CursorKind.DESTRUCTOR,
    CursorKind.CONVERSION_FUNCTION,
}
# Dependent code, and what is evaluated by the compiler alone.
LEFT_OUT = {
    CursorKind.FUNCTION_TEMPLATE, CursorKind.CLASS_TEMPLATE, CursorKind.ENUM_DECL,
    CursorKind.STATIC_ASSERT,
}
WHOLE_NUMBERS = {
    TypeKind.CHAR_S, TypeKind.SCHAR, TypeKind.UCHAR, TypeKind.SHORT, TypeKind.USHORT, TypeKind.INT,
    TypeKind.UINT, TypeKind.LONG, TypeKind.ULONG, TypeKind.LONGLONG, TypeKind.ULONGLONG,
    TypeKind.WCHAR, TypeKind.CHAR16,
}


@dataclass
class Site:
    """One change at one place. Offsets count bytes of the file."""
    start: int
    end: int
    kind: str  # how it is written, see schemata.py
    line: int
    function: str
    original: str
    changed: str
    # Of an operator: where it stands between its operands.
    operator: tuple = None
    # Which of several changes that read alike in a line this is, from 0.
    turn: int = 0
    text: str = field(default="", repr=False)  # the line without its margin


class Reader:
    """Finds the sites of one source."""

    def __init__(self, path, arguments, contents):
        self.path = str(path)
        self.contents = contents
        self.unit = Index.create().parse(
            self.path, args=arguments, unsaved_files=[(self.path, contents.decode())],
            options=TranslationUnit.PARSE_DETAILED_PROCESSING_RECORD)
        self.constants = {}
        self.found = []
        self.macros = sorted(
            (cursor.extent.start.offset, cursor.extent.end.offset)
            for cursor in self.unit.cursor.get_children()
            if cursor.kind == CursorKind.MACRO_INSTANTIATION and self.is_here(cursor))
        self.macro_starts = [start for start, _ in self.macros]

    def sites(self, draw: random.Random):
        """All sites, in an order that `draw` decides; at most one change for each place."""
        for cursor in self.unit.cursor.get_children():
            self.walk(cursor, None, "")
        self.found.sort(key=lambda site: (site.start, site.end, site.kind, site.changed))
        turns = {}
        lines = self.contents.decode().splitlines()
        for site in self.found:
            site.text = lines[site.line - 1].strip()
            same = (site.line, site.original, site.changed)
            site.turn = turns.get(same, 0)
            turns[same] = site.turn + 1
        draw.shuffle(self.found)
        places = set()
        chosen = []
        for site in self.found:
            place = (site.start, site.end, site.kind)
            if place not in places:
                places.add(place)
                chosen.append(site)
        return chosen

    def is_here(self, cursor):
        return cursor.location.file is not None and cursor.location.file.name == self.path

    def text(self, start, end):
        return self.contents[start:end].decode()

    def in_macro(self, start, end):
        """Whether the place is a part of a macro's use; it may well contain such a use."""
        at = bisect_right(self.macro_starts, start) - 1
        if at >= 0 and start < self.macros[at][1]:
            return True
        at = bisect_right(self.macro_starts, end - 1) - 1
        return at >= 0 and end < self.macros[at][1]

    def add(self, cursor, kind, function, original, changed, operator=None):
        start, end = cursor.extent.start.offset, cursor.extent.end.offset
        if start < end and not self.in_macro(start, end):
            self.found.append(Site(start, end, kind, cursor.extent.start.line, function, original,
                                   changed, operator))

    def short(self, cursor):
        words = self.text(cursor.extent.start.offset, cursor.extent.end.offset).split()
        return " ".join(words)

    def is_constant(self, variable):
        """Whether a variable is a whole number that the compiler knows."""
        usr = variable.get_usr()
        if usr not in self.constants:
            known = variable.type.get_canonical().kind in WHOLE_NUMBERS
            self.constants[usr] = known and any(
                token.spelling == "constexpr" for token in variable.get_tokens())
        return self.constants[usr]

    def walk(self, cursor, parent, function):
        if not self.is_here(cursor) or cursor.kind in LEFT_OUT:
            return
        if cursor.kind in FUNCTIONS:
            words = [token.spelling for token in cursor.get_tokens()][:4]
            if "constexpr" in words or not cursor.is_definition():
                return
            function = cursor.spelling
        if cursor.kind == CursorKind.VAR_DECL and any(
                token.spelling == "constexpr" for token in cursor.get_tokens()):
            return
        children = list(cursor.get_children())
        self.look_at(cursor, parent, children, function)
        if cursor.kind == CursorKind.CASE_STMT:
            children = children[1:]
        for child in children:
            self.walk(child, cursor, function)

    def look_at(self, cursor, parent, children, function):
        kind = cursor.kind
        if kind == CursorKind.BINARY_OPERATOR and len(children) == 2:
            self.look_at_operator(cursor, children, function)
        elif kind == CursorKind.CALL_EXPR and cursor.spelling.startswith("operator"):
            operands = list(cursor.get_arguments())
            if len(operands) == 2 and cursor.spelling[len("operator"):] in COMPARISONS:
                self.look_at_operator(cursor, operands, function)
        elif kind == CursorKind.COMPOUND_ASSIGNMENT_OPERATOR and len(children) == 2:
            start, end = children[0].extent.end.offset, children[1].extent.start.offset
            operator = self.text(start, end).strip()
            if operator in ASSIGNMENTS:
                self.add(cursor, "operator", function, operator, ASSIGNMENTS[operator], (start, end))
        elif kind == CursorKind.UNARY_OPERATOR and len(children) == 1:
            self.look_at_sign(cursor, children[0], function)
        elif kind == CursorKind.INTEGER_LITERAL:
            text = self.short(cursor)
            for step in ("+ 1", "- 1"):
                self.add(cursor, step, function, text, f"{text} {step}")
        elif kind == CursorKind.CHARACTER_LITERAL:
            text = self.short(cursor)
            self.add(cursor, "+ 1", function, text, f"{text} + 1")
        elif kind == CursorKind.CXX_BOOL_LITERAL_EXPR:
            text = self.short(cursor)
            self.add(cursor, "not", function, text, "false" if text == "true" else "true")
        elif kind == CursorKind.DECL_REF_EXPR:
            variable = cursor.referenced
            if variable is not None and variable.kind == CursorKind.VAR_DECL \
                    and self.is_constant(variable):
                for step in ("+ 1", "- 1"):
                    self.add(cursor, step, function, cursor.spelling, f"{cursor.spelling} {step}")
        elif kind == CursorKind.RETURN_STMT and len(children) == 1:
            self.look_at_return(cursor, parent, children[0], function)
        condition = self.condition_of(cursor, children)
        if condition is not None and not self.is_turned_elsewhere(condition):
            text = self.short(condition)
            self.add(condition, "not", function, text, f"!({text})")

    def look_at_operator(self, cursor, operands, function):
        start, end = operands[0].extent.end.offset, operands[1].extent.start.offset
        operator = self.text(start, end).strip() if start < end else ""
        for changed in OPERATORS.get(operator, []):
            self.add(cursor, "operator", function, operator, changed, (start, end))

    def look_at_sign(self, cursor, operand, function):
        start, end = cursor.extent.start.offset, cursor.extent.end.offset
        inner = (operand.extent.start.offset, operand.extent.end.offset)
        before = self.text(start, inner[0]).strip() if start <= inner[0] else ""
        after = self.text(inner[1], end).strip() if inner[1] <= end else ""
        if before == "!":
            text = self.short(operand)
            self.add(cursor, "not", function, f"!{text}", text)
        elif before == "-":
            text = self.short(operand)
            self.add(cursor, "minus", function, f"-{text}", text)
        elif before in ("++", "--"):
            changed = "--" if before == "++" else "++"
            self.add(cursor, "operator", function, before, changed, (start, inner[0]))
        elif after in ("++", "--"):
            changed = "--" if after == "++" else "++"
            self.add(cursor, "operator", function, after, changed, (inner[1], end))

    def look_at_return(self, cursor, parent, value, function):
        if parent is None or parent.kind not in (
                CursorKind.COMPOUND_STMT, CursorKind.CASE_STMT, CursorKind.DEFAULT_STMT):
            return
        text = self.short(value)
        inside = self.inside_of(value)
        kind = value.type.get_canonical().kind
        if inside.kind in (CursorKind.INTEGER_LITERAL, CursorKind.CXX_BOOL_LITERAL_EXPR,
                           CursorKind.CXX_NULL_PTR_LITERAL_EXPR, CursorKind.CHARACTER_LITERAL):
            return
        if kind == TypeKind.BOOL:
            if not self.is_turned_elsewhere(value):
                self.add(value, "not", function, f"return {text}", f"return !({text})")
        elif kind in WHOLE_NUMBERS:
            self.add(value, "+ 1", function, f"return {text}", f"return {text} + 1")
        elif text not in ("{}", "std::nullopt") and not text.endswith(("()", "{}")):
            self.add(cursor, "return", function, f"return {text}", "return {}")

    def condition_of(self, cursor, children):
        if cursor.kind in (CursorKind.IF_STMT, CursorKind.WHILE_STMT):
            declared = [child for child in children[:2]
                        if child.kind in (CursorKind.VAR_DECL, CursorKind.DECL_STMT)]
            conditions = [child for child in children if child.kind.is_expression()]
            if not conditions:
                return None
            if any(child.extent.start.offset <= conditions[0].extent.start.offset
                   < child.extent.end.offset for child in declared):
                return None
            return conditions[0]
        if cursor.kind == CursorKind.FOR_STMT and len(children) == 4:
            return children[1]
        if cursor.kind == CursorKind.CONDITIONAL_OPERATOR and len(children) == 3:
            return children[0]
        return None

    def inside_of(self, cursor):
        """What stands under conversions that are written nowhere."""
        while cursor.kind == CursorKind.UNEXPOSED_EXPR:
            children = list(cursor.get_children())
            if len(children) != 1 or children[0].extent != cursor.extent:
                break
            cursor = children[0]
        return cursor

    def is_turned_elsewhere(self, condition):
        """Whether a change of the condition's own operator or literal turns it round as well."""
        inside = self.inside_of(condition)
        if inside.kind == CursorKind.BINARY_OPERATOR or inside.kind == CursorKind.CALL_EXPR:
            operands = list(inside.get_children() if inside.kind == CursorKind.BINARY_OPERATOR
                            else inside.get_arguments())
            if len(operands) != 2:
                return False
            start, end = operands[0].extent.end.offset, operands[1].extent.start.offset
            return start < end and self.text(start, end).strip() in COMPARISONS
        if inside.kind == CursorKind.UNARY_OPERATOR:
            return self.short(inside).startswith("!")
        return inside.kind == CursorKind.CXX_BOOL_LITERAL_EXPR
