"""Where in the product's sources a small fault can be planted, and what it would be."""

import collections
import hashlib
import re

# A folder of sources, and the program that tests it.
PARTS = {
    "Src/HXUI": "hxui_tests",
    "installer": "installer_tests",
    "support": "support_tests",
}

# Not built here, or started by nobody but the finished program.
LEFT_OUT = re.compile(r"/Apple/|/main\.mm$|/StartText\.cpp$")

# Lines that cannot change what the program does: room that is reserved ahead, and
# memory that is given back for good, which the tests of endurance watch.
WITHOUT_EFFECT = re.compile(
    r"\.reserve\(|^\s*(\[\w+ (?:release|drain)\]|\[super dealloc\]|"
    r"(XFree|std::free|va_end|(posix_spawn|pthread_)\w*_destroy)\(&?\w+\));$")

# The length of a local buffer: one more is never too few.
BUFFER = re.compile(r"^\s*(?:char|unsigned char) \w+\[[^]]*\]|std::array<\w+, \w+> ")

# `line` counts from 0; `after` stands in place of `before`, the text of `length` lines.
Fault = collections.namedtuple("Fault", "path line length kind before after")

# The starting value of what the next statement has a call fill in.
FILLED = re.compile(r"^\s*[\w:]+ (\w+) = -?\w+;$")

CALL = re.compile(r"^(\s+)(?:\w+(?:->|\.|::))*\w+\(.*\);\s*$|^(\s+)\[.*\];\s*$")
# The flags of a measurement, or of a text in no box, which change nothing (`HXCocoaDC`).
MEASURING_FLAGS = re.compile(r"(?:MeasureText\(.*|DrawText\(.*, 0, 0\}), (\d+)\);$")
# Fully transparent: nobody sees which colour it is.
NO_COLOR = "{0, 0, 0, 0}"

# Two properties of one object are set in either order.
SETTER = re.compile(r"^\s*(?:\[(\w+) set[A-Z]\w*:.*\]|(?:(\w+)(?:\.|->|::))?Set\w+\(.*\));\s*$")

SWAPPED_OPERATORS = (
    (" < ", " <= "), (" > ", " >= "), (" <= ", " < "), (" >= ", " > "), (" == ", " != "),
    (" != ", " == "), (" && ", " || "), (" || ", " && "), (" + ", " - "), (" - ", " + "))


def part_of(path):
    return next(part for part in PARTS if path.startswith(part + "/"))


def is_code(line):
    text = line.strip()
    return (bool(text) and not text.startswith(("//", "#", "*", "static_assert", "ASSERT"))
            and not WITHOUT_EFFECT.search(line))


def is_outside_texts(line, position):
    return line[:position].count('"') % 2 == 0 and "//" not in line[:position]


def indentation(line):
    return re.match(r"\s*", line).group(0)


def constants(line):
    """Each number becomes one larger."""
    if BUFFER.search(line) or "HXAssertFailed(" in line or NO_COLOR in line and "HXColor" in line:
        return
    flags = MEASURING_FLAGS.search(line)
    for match in re.finditer(r"(?<![\w.\"])(\d+)(\.\d+)?F?(?![\w.\"'])", line):
        if is_outside_texts(line, match.start()) and not (flags and match.start() == flags.start(1)):
            digits = match.group(1)
            larger = str(int(digits) + 1) + match.group(0)[len(digits):]
            yield "constant", line[:match.start()] + larger + line[match.end():]


def conditions(line):
    """A condition becomes its opposite; a lone comparison is left to `operators`."""
    match = re.match(r"^(\s*(?:\} else )?(?:if|while) )\((.*)\)( \{| return.*;| break;| continue;)\s*$", line)
    if not match:
        return
    condition = match.group(2)
    lone = re.search(r" [=!]= ", condition) and not re.search(r"&&|\|\|", condition)
    if not lone and "=" not in re.sub(r"[=!<>]=", "", condition):
        yield "condition", f"{match.group(1)}(!({condition})){match.group(3)}\n"


def operators(line):
    for old, new in SWAPPED_OPERATORS:
        position = line.find(old)
        if position >= 0 and is_outside_texts(line, position) and "template" not in line:
            yield "operator", line[:position] + new + line[position + len(old):]


def truths(line):
    for old, new in (("true", "false"), ("false", "true"), ("YES", "NO"), ("NO", "YES")):
        match = re.search(rf"\b{old}\b", line)
        if match and is_outside_texts(line, match.start()):
            yield "truth", line[:match.start()] + new + line[match.end():]


def calls(line, following):
    if not CALL.match(line) or line.strip().startswith("return"):
        return
    yield 1, "call removed", indentation(line) + ";\n"
    setters = SETTER.match(line), SETTER.match(following)
    if all(setters) and setters[0].groups() == setters[1].groups():
        return
    if (CALL.match(following) and is_code(following) and following != line
            and indentation(line) == indentation(following)):
        yield 2, "order swapped", following + line


def faults_of(root, path):
    lines = (root / path).read_text(encoding="utf-8").splitlines(keepends=True) + [""]
    for number, line in enumerate(lines[:-1]):
        filled = FILLED.match(line)
        statement = "".join(lines[number + 1:]).partition(";")[0]
        if not is_code(line) or filled and re.search(rf"&{filled.group(1)}\b", statement):
            continue
        offered = [(1, *fault) for find in (constants, conditions, operators, truths) for fault in find(line)]
        offered += calls(line, lines[number + 1])
        for length, kind, after in offered:
            yield Fault(path, number, length, kind, "".join(lines[number:number + length]), after)


def all_faults(root):
    """By file."""
    found = {}
    for part in PARTS:
        for file in sorted((root / part).rglob("*")):
            path = file.relative_to(root).as_posix()
            if file.suffix in (".cpp", ".mm") and not LEFT_OUT.search("/" + path):
                found[path] = list(faults_of(root, path))
    return found


def order(seed, *words):
    """As good as random, and the same whatever else is in the list that is sorted by it."""
    return hashlib.sha256("\n".join([str(seed), *map(str, words)]).encode()).digest()


def choose(found, count, seed):
    """`count` faults, in turn from every file, so that each class gets some; and what is
    left of each file, to replace those that turn out to be no programs. A change of one
    file changes the choice in the others by little or nothing."""
    left = {path: sorted(faults, key=lambda each: order(seed, path, each.before, each.after))
            for path, faults in found.items()}
    chosen = []
    turn = 0
    while len(chosen) < count and any(left.values()):
        turn += 1
        for path in sorted(left, key=lambda each: order(seed, turn, each)):
            if left[path] and len(chosen) < count:
                chosen.append(left[path].pop())
    return sorted(chosen), left
