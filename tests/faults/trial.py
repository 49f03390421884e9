"""Tries faults one at a time: builds, and runs the suites that get to the place."""

import collections
import json
import os
import pathlib
import re
import subprocess
import threading
import time

from places import PARTS, part_of
from programs import Bench, run

# Of a suite without a fault: how long one with a fault may take before it counts as hanging.
SLOWER = 6
# Seconds; suites that take next to nothing may be held up by the machine.
LEAST_LIMIT = 20

Suite = collections.namedtuple("Suite", "name seconds lines")


def own_suites(names, path):
    stem = pathlib.Path(path).stem
    return [name for name in names if name.startswith(stem)]


class Reach:
    """The suites of each program with the lines that they get to."""

    STARTED = "OstrelInstallerHelper"
    SUITES_OF_STARTED = "tests/installer/GNUstep"
    # A machine that is busy with something else may spoil one.
    ATTEMPTS = 3

    def __init__(self, programs, folder):
        self.programs, self.folder = programs, folder
        folder.mkdir(parents=True, exist_ok=True)
        self.suites = {}

    @staticmethod
    def list_suites(program, environment):
        told = subprocess.run([str(program), "--gtest_list_tests"], check=True, capture_output=True,
                              text=True, env=environment).stdout
        heads = [line.split(".")[0].split("/") for line in told.splitlines() if re.match(r"[\w/]+\.", line)]
        # "Rows/SomeTest/0" belongs to SomeTest.
        names = [head[1] if len(head) > 1 and not head[1].isdigit() else head[0] for head in heads]
        return list(dict.fromkeys(names))

    def measure(self, bench, program, name, environment):
        """Runs a suite without any fault; it must pass."""
        profile = self.folder / f"{name}.profile"
        raw = self.folder / f"{name}.raw"
        raw.mkdir(exist_ok=True)
        for _ in range(self.ATTEMPTS):
            for old in raw.iterdir():
                old.unlink()
            start = time.monotonic()
            status = run(suite_command(bench, program, name), 600,
                         env={**environment, "LLVM_PROFILE_FILE": f"{raw}/%p"})
            seconds = time.monotonic() - start
            if status == 0:
                break
            print(f"{name} did not pass without a fault", flush=True)
        else:
            raise SystemExit(f"{name} does not pass without a fault.")
        lines = collections.defaultdict(list)
        written = [str(each) for each in raw.iterdir() if each.stat().st_size > 0]
        subprocess.run(["llvm-profdata", "merge", "-sparse", "-failure-mode=all", "-o", profile, *written],
                       check=True, stderr=subprocess.DEVNULL)
        told = subprocess.run(["llvm-cov", "export", "--format=lcov", f"-instr-profile={profile}",
                               bench.path(program)], check=True, capture_output=True, text=True).stdout
        path = None
        for line in told.splitlines():
            if line.startswith("SF:"):
                file = pathlib.Path(os.path.normpath(line[3:]))
                inside = file.is_relative_to(self.programs.root)
                path = file.relative_to(self.programs.root).as_posix() if inside else None
            elif line.startswith("DA:") and path and not path.startswith("tests/"):
                number, times = line[3:].split(",")[:2]
                if int(times) > 0:
                    lines[path].append(int(number) - 1)
        return Suite(name, seconds, {path: set(numbers) for path, numbers in lines.items()})

    def recall(self, part, built):
        """What was measured with the program as it is; false when there is nothing."""
        memory = self.folder / f"{PARTS[part]}.json"
        if not memory.exists() or memory.stat().st_mtime < built.stat().st_mtime:
            return False
        self.suites[part] = [
            Suite(name, seconds, {path: set(numbers) for path, numbers in lines.items()})
            for name, seconds, lines in json.loads(memory.read_text(encoding="utf-8"))]
        return True

    def keep(self, part):
        told = [(suite.name, suite.seconds, {path: sorted(lines) for path, lines in suite.lines.items()})
                for suite in self.suites[part]]
        (self.folder / f"{PARTS[part]}.json").write_text(json.dumps(told), encoding="utf-8")

    def of(self, fault):
        """The suites for a fault: those of its class, then those that get to the line."""
        suites = self.suites[part_of(fault.path)]
        own = own_suites([suite.name for suite in suites], fault.path)
        lines = range(fault.line, fault.line + fault.length)
        started = self.programs.object_in(self.STARTED, fault.path) is not None
        counted = any(number in suite.lines.get(fault.path, ()) for suite in suites for number in lines)

        def gets_there(suite):
            # What runs as a process of its own, with an environment of its own, counts nothing.
            if started and (self.programs.root / self.SUITES_OF_STARTED / f"{suite.name}.cpp").exists():
                return True
            reached = suite.lines.get(fault.path, set())
            # A line outside of functions is in nobody's count.
            return any(number in reached for number in lines) if counted else bool(reached)

        others = [suite for suite in suites if suite.name not in own and gets_there(suite)]
        return [suite for suite in suites if suite.name in own] + sorted(others, key=lambda each: each.seconds)


def suite_command(bench, program, name):
    return [str(bench.path(program)), f"--gtest_filter={name}.*:*/{name}.*:{name}/*", "--gtest_fail_fast"]


class Trial:
    """One worker: a bench, and the environment that its programs run in."""

    # The helper's turn is one for the whole machine, so its tests are not run side by side.
    alone = threading.Lock()

    def __init__(self, programs, reach, folder, environment):
        self.programs, self.reach, self.environment = programs, reach, environment
        self.bench = Bench(programs, folder)
        self.ready = set()

    def prepare(self, part):
        """Makes the part's programs without a fault."""
        program = PARTS[part]
        if part not in self.ready:
            self.bench.prepare(program)
            for each in self.programs_of(part):
                if not self.bench.link(each):
                    raise SystemExit(f"{each} cannot be linked.")
            self.ready.add(part)

    @staticmethod
    def programs_of(part):
        return [PARTS[part], *(Bench.STARTED if part == "installer" else ())]

    def measure(self, part):
        self.prepare(part)
        program = PARTS[part]
        names = self.reach.list_suites(self.bench.path(program), self.environment)
        self.reach.suites[part] = [
            self.reach.measure(self.bench, program, name, self.environment) for name in names]
        self.reach.keep(part)

    def build(self, fault):
        """All programs that have the fault in them; false when it is no program any more."""
        text = (self.programs.root / fault.path).read_text(encoding="utf-8")
        lines = text.splitlines(keepends=True)
        lines[fault.line:fault.line + fault.length] = [fault.after]
        part = part_of(fault.path)
        faulty = {}
        for program in self.programs_of(part):
            made = self.programs.object_in(program, fault.path)
            if made is None:
                if not self.bench.link(program):
                    return False
                continue
            if made not in faulty:
                faulty[made] = self.bench.compile(fault.path, "".join(lines), made)
            if faulty[made] is None or not self.bench.link(program, made, faulty[made]):
                return False
        return True

    def fails(self, program, suite):
        """Whether the suite fails, and fails again."""
        limit = max(LEAST_LIMIT, SLOWER * suite.seconds)
        for _ in range(2):
            status = run(suite_command(self.bench, program, suite.name), limit, env=self.environment)
            if status == 0:
                return ""
            if status is None:
                return "hangs"
        return "fails"

    def verdict(self, fault):
        """What became of it ("caught", "survived", or "not built"), and the suite that says so."""
        part = part_of(fault.path)
        self.prepare(part)
        if not self.build(fault):
            return "not built", ""
        suites = self.reach.of(fault)
        for suite in suites:
            if part != "installer":
                failure = self.fails(PARTS[part], suite)
            else:
                with self.alone:
                    failure = self.fails(PARTS[part], suite)
            if failure:
                return "caught", f"{suite.name} {failure}"
        return "survived", f"{len(suites)} suites passed" if suites else "no suite gets there"
