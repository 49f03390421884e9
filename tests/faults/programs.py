"""The test programs as the build makes them, and again with one source replaced."""

import json
import pathlib
import re
import shlex
import subprocess
import sys

from confined import TOO_LATE


class Programs:
    """What a configured build folder says about compiling and linking."""

    def __init__(self, root, build):
        self.root, self.build = root, build
        commands = json.loads((build / "compile_commands.json").read_text(encoding="utf-8"))
        # Each object with its source, and the command that makes it of that.
        self.objects = {}
        for entry in commands:
            command = shlex.split(entry["command"])
            source = pathlib.Path(entry["file"])
            if source.is_relative_to(root):
                made = command[command.index("-o") + 1]
                self.objects[made] = (source.relative_to(root).as_posix(), command)
        self.links = {}

    def link(self, program):
        """The command that links it."""
        if program not in self.links:
            told = subprocess.run(["ninja", "-C", str(self.build), "-t", "commands", program],
                                  check=True, capture_output=True, text=True).stdout
            last = told.splitlines()[-1].removeprefix(": && ").removesuffix(" && :")
            self.links[program] = shlex.split(last)
        return self.links[program]

    def object_in(self, program, path):
        """The object of a source that the program is linked with, itself or in a library;
        None when there is none."""
        words = self.link(program)
        libraries = {pathlib.Path(word).name for word in words if word.endswith(".a")}
        for made, (source, _) in self.objects.items():
            target = re.search(r"/(\w+)\.dir/", made)
            if source == path and (made in words or target and f"lib{target.group(1)}.a" in libraries):
                return made
        return None


def run(command, limit, **keywords):
    """The exit status; None when it takes longer than `limit` seconds."""
    confined = [sys.executable, "-S", "-E", str(pathlib.Path(__file__).with_name("confined.py")), str(limit)]
    status = subprocess.run(confined + command, check=False, stdin=subprocess.DEVNULL,
                            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **keywords).returncode
    return None if status == TOO_LATE else status


class Bench:
    """A folder where programs with a fault in them are made. The project and its build
    are only read."""

    # Programs that others start, and the name by which their path is compiled in.
    STARTED = {"platform_probe": "PLATFORM_PROBE", "OstrelInstallerHelper": "OSTREL_HELPER_PATH"}

    def __init__(self, programs, folder):
        self.programs, self.folder = programs, folder
        folder.mkdir(parents=True, exist_ok=True)
        # The objects that are always others than the build's.
        self.replaced = {}

    def path(self, program):
        return self.folder / program

    def prepare(self, program):
        """Makes the sources that name a started program name the one of this folder."""
        names = re.compile(r"\b(" + "|".join(self.STARTED.values()) + r")\b")
        paths = {name: str(self.path(started)) for started, name in self.STARTED.items()}
        for made in self.programs.link(program):
            source, command = self.programs.objects.get(made, (None, None))
            if source is None or not names.search((self.programs.root / source).read_text(encoding="utf-8")):
                continue
            own = [re.sub(r"^-D(\w+)=.*", lambda word: f'-D{word[1]}="{paths[word[1]]}"'
                          if word[1] in paths else word[0], word) for word in command]
            self.replaced[made] = str(self.folder / made.replace("/", "_"))
            own[own.index("-o") + 1] = self.replaced[made]
            subprocess.run(own, check=True, cwd=self.programs.build)

    def compile(self, path, text, made):
        """Makes an object of the text, as the build makes `made` of the source; None when
        it is no program."""
        source = self.folder / "sources" / path
        source.parent.mkdir(parents=True, exist_ok=True)
        source.write_text(text, encoding="utf-8")
        own = [str(source) if word == str(self.programs.root / path) else word
               for word in self.programs.objects[made][1]
               if not word.startswith(("-fprofile", "-fcoverage", "-W"))]
        faulty = str(source) + ".o"
        own[own.index("-o") + 1] = faulty
        return faulty if run(own, 300, cwd=self.programs.build) == 0 else None

    def link(self, program, made=None, faulty=None):
        """Links it, with an object in place of one of the build's; false when it cannot be."""
        words = list(self.programs.link(program))
        words[words.index("-o") + 1] = str(self.path(program))
        if made is not None and made not in words:
            # What comes before a library is taken instead of the library's own.
            words.insert(words.index("-o"), faulty)
        replaced = {**self.replaced, made: faulty}
        return run([replaced.get(word, word) for word in words], 300, cwd=self.programs.build) == 0
