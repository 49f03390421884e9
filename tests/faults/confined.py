"""Runs a command, and ends with it all that it has started: a faulty program may leave
processes behind that stand in the way of the next one. Says 124 when the command took
longer than it may.

    confined.py SECONDS COMMAND [ARGUMENT...]
"""

import ctypes
import os
import pathlib
import signal
import subprocess
import sys
import time

PR_SET_CHILD_SUBREAPER = 36
TOO_LATE = 124
# The platform's daemons belong to the session, not to one program.
KEPT = {"gdnc", "gpbs", "gdomap"}


def children(process):
    found = []
    for thread in pathlib.Path(f"/proc/{process}/task").iterdir():
        found += [int(word) for word in (thread / "children").read_text(encoding="ascii").split()]
    return found


def end(process):
    """With all that it has started, the daemons excepted."""
    try:
        if pathlib.Path(f"/proc/{process}/comm").read_text(encoding="utf-8").strip() in KEPT:
            return False
        started = children(process)
        os.kill(process, signal.SIGKILL)
    except OSError:
        return False
    for each in started:
        end(each)
    return True


def end_leftovers():
    # Whoever has lost its parent becomes a child of this process.
    while any([end(process) for process in children(os.getpid())]):
        time.sleep(0.01)
        try:
            while os.waitpid(-1, os.WNOHANG)[0] != 0:
                pass
        except ChildProcessError:
            return


def main():
    ctypes.CDLL(None).prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0)
    command = subprocess.Popen(sys.argv[2:])  # pylint: disable=consider-using-with
    try:
        status = command.wait(float(sys.argv[1]))
    except subprocess.TimeoutExpired:
        status = TOO_LATE
    end_leftovers()
    return status if status >= 0 else 128 - status


if __name__ == "__main__":
    sys.exit(main())
