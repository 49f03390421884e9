#!/usr/bin/env python3
"""Plants small faults in the product's sources, one at a time, and sees whether a test notices.

The project is only read: a fault is planted in a copy of one source, which is linked with
the rest of the build. Two faults are tried side by side, each worker in a session (a
display, a home, temporary folders) of its own. The same seed chooses the same faults.
"""

import argparse
import collections
import fcntl
import pathlib
import sys
import threading
import time

import places
from programs import Programs
from trial import Reach, Trial


class Campaign:
    def __init__(self, trials, chosen, left):
        self.trials, self.left = trials, left
        self.waiting = collections.deque(chosen)
        self.total = len(chosen)
        self.results = []
        self.not_built = 0
        self.lock = threading.Lock()
        self.trouble = None

    def take(self, last):
        with self.lock:
            return (self.waiting.pop() if last else self.waiting.popleft()) if self.waiting else None

    def replace(self, fault):
        with self.lock:
            self.not_built += 1
            others = self.left[fault.path]
            if others:
                return others.pop()
            self.total -= 1
            return None

    def work(self, trial, last):
        # One from the front, one from the end: seldom both in the same part.
        try:
            fault = self.take(last)
            while fault is not None and self.trouble is None:
                result, why = trial.verdict(fault)
                if result == "not built":
                    fault = self.replace(fault) or self.take(last)
                    continue
                with self.lock:
                    self.results.append((fault, result))
                    print(f"[{len(self.results)}/{self.total}] {result}: {fault.path}:{fault.line + 1}: "
                          f"{fault.kind} ({why})", flush=True)
                fault = self.take(last)
        except BaseException as trouble:  # pylint: disable=broad-except
            self.trouble = trouble
            raise

    def run(self):
        workers = [threading.Thread(target=self.work, args=(trial, number % 2 == 1))
                   for number, trial in enumerate(self.trials)]
        for worker in workers:
            worker.start()
        for worker in workers:
            worker.join()
        return self.trouble is None

    def table(self, name, key):
        rows = collections.defaultdict(list)
        for fault, result in self.results:
            rows[key(fault)].append(result == "caught")
        print(f"\n| {name} | faults | caught | share |\n|---|---|---|---|")
        for row in sorted(rows):
            caught = rows[row]
            print(f"| {row} | {len(caught)} | {sum(caught)} | {100 * sum(caught) / len(caught):.0f} % |")

    def report(self):
        """The share in per cent."""
        survivors = sorted(fault for fault, result in self.results if result == "survived")
        for fault in survivors:
            print(f"\n{fault.path}:{fault.line + 1}: {fault.kind}")
            for sign, text in (("-", fault.before), ("+", fault.after)):
                for line in text.rstrip("\n").splitlines():
                    print(f"{sign} {line.strip()}")
        self.table("kind", lambda fault: fault.kind)
        self.table("part", lambda fault: places.part_of(fault.path))
        tried = len(self.results)
        caught = tried - len(survivors)
        share = 100 * caught / tried if tried else 0
        print(f"\n{caught} of {tried} faults caught ({share:.1f} %); "
              f"{self.not_built} more were no programs and were replaced")
        return share


def read_environment(file):
    """As `env -0` has written it."""
    entries = file.read_bytes().decode().split("\0")
    return dict(entry.split("=", 1) for entry in entries if "=" in entry)


def prepare(trials, reach, built):
    """Learns what each suite gets to, from the last run where the program is the same."""
    unknown = collections.deque(part for part in places.PARTS if not reach.recall(part, built[part]))
    if unknown:
        print("==> Running all suites without a fault", flush=True)

    failures = []

    def work(trial):
        try:
            while unknown:
                trial.measure(unknown.popleft())
        except (SystemExit, IndexError) as trouble:
            if isinstance(trouble, SystemExit):
                failures.append(str(trouble))

    workers = [threading.Thread(target=work, args=(trial,)) for trial in trials]
    for worker in workers:
        worker.start()
    for worker in workers:
        worker.join()
    if failures:
        raise SystemExit(failures[0])


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("root", type=pathlib.Path, help="the project")
    parser.add_argument("build", type=pathlib.Path, help="its build folder, with the test programs in it")
    parser.add_argument("environments", type=pathlib.Path, nargs="+", help="of the sessions: what env -0 printed")
    parser.add_argument("--count", type=int, default=300, help="how many faults (300)")
    parser.add_argument("--seed", type=int, default=1, help="chooses the faults (1)")
    parser.add_argument("--share", type=float, default=90, help="per cent that must be caught (90)")
    parser.add_argument("--only", default="", help="only files whose path contains this")
    options = parser.parse_args()
    root, build = options.root.resolve(), options.build.resolve()

    found = {path: faults for path, faults in places.all_faults(root).items() if options.only in path}
    chosen, left = places.choose(found, options.count, options.seed)
    print(f"==> {len(chosen)} of {sum(map(len, found.values()))} possible faults, "
          f"in {len({fault.path for fault in chosen})} files", flush=True)

    folder = build / "faults"
    folder.mkdir(exist_ok=True)
    with (folder / "lock").open("w") as lock:
        try:
            fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
        except BlockingIOError:
            raise SystemExit("There is another run in this build folder.") from None
        return plant(root, build, options, chosen, left)


def plant(root, build, options, chosen, left):
    programs = Programs(root, build)
    reach = Reach(programs, build / "faults" / "reach")
    trials = [Trial(programs, reach, build / "faults" / f"worker-{number}", read_environment(file))
              for number, file in enumerate(options.environments, 1)]
    built = {part: build / programs.link(program)[programs.link(program).index("-o") + 1]
             for part, program in places.PARTS.items()}
    prepare(trials, reach, built)

    print("==> Planting faults", flush=True)
    start = time.monotonic()
    campaign = Campaign(trials, chosen, left)
    if not campaign.run():
        return 2
    share = campaign.report()
    print(f"in {(time.monotonic() - start) / 60:.0f} minutes, seed {options.seed}")
    return 0 if share >= options.share else 1


if __name__ == "__main__":
    sys.exit(main())
