#!/usr/bin/env python3
"""Plants small faults in the product's sources, one at a time, and sees whether a test notices.

Works on a copy of the project, never on the project itself. Each fault is built and the
tests of the class it stands in are run, then, if none of them fails, all unit tests of that
part of the tree. What no test notices is listed at the end; the same seed chooses the
same faults.
"""

import argparse
import collections
import os
import pathlib
import random
import re
import subprocess
import sys
import time

# A folder of sources, and the program that tests it.
PARTS = [
    ("Src/HXUI", "hxui_tests", "tests/Src/HXUI/hxui_tests"),
    ("installer", "installer_tests", "tests/installer/installer_tests"),
    ("support", "support_tests", "tests/support/support_tests"),
]
# Not built here, or not within reach of the unit tests: entries of programs.
LEFT_OUT = re.compile(r"/Apple/|/main\.mm$|RootHelperMain\.cpp$")

Fault = collections.namedtuple("Fault", "path line kind before after")


def is_code(line):
    text = line.strip()
    return bool(text) and not text.startswith(("//", "#", "///", "*", "static_assert", "ASSERT"))


def outside_quotes(line, position):
    return line[:position].count('"') % 2 == 0 and "//" not in line[:position]


def faults_of_line(line, following):
    """All faults that one line offers, as (kind, new text of the line or of the two lines)."""
    for match in re.finditer(r"(?<![\w.\"])(\d+)(\.\d+)?F?(?![\w.\"'])", line):
        if outside_quotes(line, match.start()):
            whole = match.group(0)
            other = str(int(match.group(1)) + 1) + whole[len(match.group(1)):]
            yield "constant", line[: match.start()] + other + line[match.end():]
    match = re.match(r"^(\s*(?:\} else )?(?:if|while) )\((.*)\)( \{| return.*;| break;| continue;)\s*$", line)
    if match and "=" not in re.sub(r"[=!<>]=", "", match.group(2)):
        yield "condition", f"{match.group(1)}(!({match.group(2)})){match.group(3)}\n"
    for old, new in ((" < ", " <= "), (" > ", " >= "), (" <= ", " < "), (" >= ", " > "),
                     (" == ", " != "), (" != ", " == "), (" && ", " || "), (" || ", " && "),
                     (" + ", " - "), (" - ", " + ")):
        position = line.find(old)
        if position >= 0 and outside_quotes(line, position) and "template" not in line:
            yield "operator", line[:position] + new + line[position + len(old):]
    for old, new in (("true", "false"), ("false", "true")):
        match = re.search(rf"\b{old}\b", line)
        if match and outside_quotes(line, match.start()):
            yield "truth", line[: match.start()] + new + line[match.end():]
    call = r"^(\s+)(?:\w+(?:->|\.|::))*\w+\(.*\);\s*$|^(\s+)\[.*\];\s*$"
    if re.match(call, line) and not line.strip().startswith("return"):
        yield "call removed", re.match(r"^\s*", line).group(0) + ";\n"
        if following and re.match(call, following) and line != following and (
                re.match(r"^\s*", line).group(0) == re.match(r"^\s*", following).group(0)):
            yield "order swapped", following + line


def all_faults(root):
    found = []
    for folder, _, _ in PARTS:
        for path in sorted((root / folder).rglob("*")):
            name = path.relative_to(root).as_posix()
            if path.suffix not in (".cpp", ".mm") or LEFT_OUT.search("/" + name):
                continue
            lines = path.read_text(encoding="utf-8").splitlines(keepends=True)
            for number, line in enumerate(lines):
                if not is_code(line):
                    continue
                following = lines[number + 1] if number + 1 < len(lines) else ""
                for kind, after in faults_of_line(line, following):
                    found.append(Fault(name, number, kind, line, after))
    return found


def choose(faults, count, seed):
    """`count` faults, in turn from every file, so that each class gets some."""
    generator = random.Random(seed)
    by_file = collections.defaultdict(list)
    for fault in faults:
        by_file[fault.path].append(fault)
    for of_file in by_file.values():
        generator.shuffle(of_file)
    chosen = []
    while len(chosen) < count and any(by_file.values()):
        for path in sorted(by_file):
            if by_file[path] and len(chosen) < count:
                chosen.append(by_file[path].pop())
    return sorted(chosen)


def run(command, limit, **keywords):
    """The exit status; None when it takes longer than `limit` seconds."""
    process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL, start_new_session=True, **keywords)
    try:
        return process.wait(limit)
    except subprocess.TimeoutExpired:
        os.killpg(process.pid, 9)
        process.wait()
        return None


class Trial:
    def __init__(self, root, build, limit):
        self.root, self.build, self.limit = root, build, limit
        self.suites = {}

    def part_of(self, path):
        return next(part for part in PARTS if path.startswith(part[0] + "/"))

    def prepare(self):
        """Builds all test programs without a fault; what they take is the measure for hangs."""
        for _, target, program in PARTS:
            subprocess.run(["ninja", "-C", str(self.build), target], check=True, stdout=subprocess.DEVNULL)
            listed = subprocess.run([str(self.build / program), "--gtest_list_tests"], check=True,
                                    capture_output=True, text=True).stdout
            self.suites[program] = [line.split(".")[0] for line in listed.splitlines()
                                    if line and not line.startswith(" ") and "." in line]

    def filters(self, program, name):
        own = [suite for suite in self.suites[program] if suite.split("/")[-1].startswith(name)]
        if own:
            yield ":".join(f"*{suite}*.*" for suite in own)
        yield "*"

    def verdict(self, fault):
        """"caught", "survived", or "not built" when the fault is no program any more."""
        _, target, program = self.part_of(fault.path)
        path = self.root / fault.path
        text = path.read_text(encoding="utf-8")
        lines = text.splitlines(keepends=True)
        lines[fault.line] = fault.after
        if fault.kind == "order swapped":
            lines[fault.line + 1] = ""
        path.write_text("".join(lines), encoding="utf-8")
        try:
            if run(["ninja", "-C", str(self.build), target], 600) != 0:
                return "not built"
            for tests in self.filters(program, pathlib.Path(fault.path).stem):
                command = [str(self.build / program), f"--gtest_filter={tests}", "--gtest_fail_fast"]
                if run(command, self.limit) != 0:
                    return "caught"
            return "survived"
        finally:
            path.write_text(text, encoding="utf-8")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("root", type=pathlib.Path, help="a copy of the project, already configured")
    parser.add_argument("build", type=pathlib.Path, help="its build folder")
    parser.add_argument("--count", type=int, default=300, help="how many faults (300)")
    parser.add_argument("--seed", type=int, default=1, help="chooses the faults (1)")
    parser.add_argument("--limit", type=int, default=300, help="seconds until tests count as hanging (300)")
    parser.add_argument("--share", type=float, default=90, help="per cent that must be caught (90)")
    parser.add_argument("--only", default="", help="only files whose path contains this")
    options = parser.parse_args()

    faults = [fault for fault in all_faults(options.root) if options.only in fault.path]
    chosen = choose(faults, options.count, options.seed)
    print(f"{len(chosen)} of {len(faults)} possible faults, seed {options.seed}", flush=True)
    trial = Trial(options.root, options.build, options.limit)
    trial.prepare()

    results = collections.Counter()
    survivors = []
    start = time.monotonic()
    for number, fault in enumerate(chosen, 1):
        result = trial.verdict(fault)
        results[result] += 1
        if result == "survived":
            survivors.append(fault)
        print(f"[{number}/{len(chosen)} {time.monotonic() - start:.0f} s] {result}: "
              f"{fault.path}:{fault.line + 1}: {fault.kind}", flush=True)

    for fault in survivors:
        print(f"\n{fault.path}:{fault.line + 1}: {fault.kind}\n- {fault.before.strip()}\n+ "
              + fault.after.strip().replace("\n", "\n+ "))
    tried = results["caught"] + results["survived"]
    share = 100 * results["caught"] / tried if tried else 0
    print(f"\n{results['caught']} of {tried} faults caught ({share:.0f} %); "
          f"{results['not built']} were no programs")
    return 0 if tried and share >= options.share else 1


if __name__ == "__main__":
    sys.exit(main())
