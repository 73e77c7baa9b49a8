"""A home of the program's user in a folder of its own: settings, libraries, files to exchange."""

import dataclasses
import os
import pathlib
import re
import shutil
import subprocess

TIME_LIMIT = 30  # seconds for one command; the slowest takes about one


@dataclasses.dataclass(frozen=True)
class Tools:
    """What the attack is made with."""
    cli: str
    calls: str  # the library that stands between the program and its system calls
    checkout: pathlib.Path

    def samples(self, kind):
        return sorted((self.checkout / "tests/fuzz/corpus" / kind).iterdir())


@dataclasses.dataclass(frozen=True)
class Outcome:
    code: int  # negative: the number of the signal that ended it; None: no end within the limit
    said: str
    printed: str

    def wrong(self):
        """What is wrong with any outcome at all; nothing otherwise."""
        if self.code is None:
            return f"no end within {TIME_LIMIT} s"
        if self.code < 0 or self.code > 2:
            return f"ended by {self.code}"
        if self.code != 0 and not self.said.strip():
            return f"exit {self.code} without a word"
        return None


class Stage:
    def __init__(self, tools, folder):
        self.tools = tools
        self.home = pathlib.Path(folder).resolve() / "home"
        self.kept = self.home.with_name("kept")
        self.calls = self.home.with_name("calls")

    def environment(self):
        """Of the person's own environment nothing but where programs are."""
        home = str(self.home)
        return {
            "PATH": os.environ["PATH"],
            "LC_ALL": "C.UTF-8",
            "HOME": home,
            "XDG_CONFIG_HOME": home + "/config",
            "XDG_DATA_HOME": home + "/data",
        }

    def start(self, arguments, orders=None):
        """Starts the command line; `orders` are for the library that watches its calls."""
        environment = self.environment()
        if orders is not None:
            watched = {"WATCH": self.home, "CALLS": self.calls, **orders}
            environment["LD_PRELOAD"] = self.tools.calls
            environment.update({"TRICKLET_" + name: str(value) for name, value in watched.items()})
        return subprocess.Popen(
            [self.tools.cli, *arguments], cwd=self.home, env=environment, stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE, stderr=subprocess.PIPE)

    @staticmethod
    def end(process, limit=TIME_LIMIT):
        try:
            printed, said = process.communicate(timeout=limit)
        except subprocess.TimeoutExpired:
            process.kill()
            process.communicate()
            return Outcome(None, "", "")
        decoded = [text.decode("utf-8", "replace") for text in (said, printed)]
        return Outcome(process.returncode, *decoded)

    def run(self, arguments, orders=None, limit=TIME_LIMIT):
        self.calls.unlink(missing_ok=True)
        return self.end(self.start(arguments, orders), limit)

    def require(self, *arguments):
        outcome = self.run(arguments)
        if outcome.code != 0:
            raise RuntimeError(f"{' '.join(arguments)}: exit {outcome.code}: {outcome.said}")

    def recorded(self):
        """The names of the calls of the last command that was watched, the first being number 1."""
        lines = self.calls.read_text(errors="replace").splitlines()
        columns = [line.split("\t") for line in lines]
        return [column[1] for column in columns if column[0] != "0"]

    def prepare(self):
        """Three libraries, two of them with results; a file to replace; a folder to copy from."""
        self.clear()
        for kind, name, to in (("pbn", "two_games_lf.pbn", "in.pbn"),
                               ("dlm", "two_boards_lf.dlm", "in.dlm"),
                               ("lin", "two_rooms.lin", "in.lin"),
                               ("script", "weak_two.dlr", "conditions.dlr"),
                               ("usebio", "pairs.xml", "in.xml")):
            shutil.copy(self.tools.checkout / "tests/fuzz/corpus" / kind / name, self.home / to)
        (self.home / "root").mkdir()
        self.require("settings", "filelocation", str(self.home / "root"))
        self.require("settings", "AutoMakeable", "False")
        self.require("settings", "PBNBids", "False")
        self.require("settings", "RecycleReplaced", "False")  # the bin is to be empty
        self.require("--library", "Sample", "--yes", "import", "in.xml")
        self.require("--library", "Sample", "--yes", "generate", "1", "4", "--seed", "1")
        self.require("--library", "Sample", "--yes", "auction", "2", "1n", "ap")
        (self.home / "root/Other").mkdir()
        self.require("--library", "Other", "generate", "1", "2", "--seed", "2")
        self.require("settings", "library", "Sample")
        shutil.copytree(self.home / "root/Other", self.home / "more/Third")
        shutil.copytree(self.home / "root/Other", self.home / "there/Sample")
        self.require("export", "1", "1", "old.pbn")
        # What is published or reported is then no other when a table cannot be stored.
        self.require("--library", "Other", "analyse")
        self.require("--library", "Played", "import", "in.xml")
        self.require("--library", "Played", "analyse")
        self.require("settings", "RecycleReplaced", "True")
        self.keep()

    def clear(self):
        shutil.rmtree(self.home, ignore_errors=True)
        self.home.mkdir(parents=True)

    def keep(self):
        shutil.rmtree(self.kept, ignore_errors=True)
        shutil.copytree(self.home, self.kept, symlinks=True)

    def restore(self):
        shutil.rmtree(self.home, ignore_errors=True)
        shutil.copytree(self.kept, self.home, symlinks=True)

    def tree(self):
        """Each path with the bytes of the file; None for a folder. Without the times of replacing
        and recycling, and without what a report keeps to be quicker the next time."""
        tree = {}

        def take(path, data):
            shown = re.sub(r" \d{4}-\d\d-\d\d \d\d\.\d\d before ", REPLACED,
                           os.path.relpath(path, self.home))
            tree[shown] = data

        for folder, folders, files in os.walk(self.home):
            for name in folders:
                take(os.path.join(folder, name), None)
            for name in files:
                if name == ".tricklet-review":
                    continue
                path = os.path.join(folder, name)
                data = pathlib.Path(path).read_bytes()
                if name.endswith(".trashinfo"):
                    data = re.sub(rb"DeletionDate=.*|\d{4}-\d\d-\d\d%20\d\d\.\d\d", b"", data)
                    # Where it cannot be brought out of the library, it goes to the bin from there.
                    data = re.sub(rb"/[^/\n]+/\.tricklet-kept-[^/]+", b"", data)
                take(path, data)
        return tree


BIN = "data/Trash"
# In the name of a folder of boards that a command has replaced, for the date and the time.
REPLACED = " DATE before "

# Each command that writes. What it names is what `prepare` makes.
COMMANDS = {
    "import-pbn": "--library Sample --yes import in.pbn",
    "import-new": "--library New import in.pbn",
    "import-dlm": "--library Sample --yes import in.dlm",
    "import-xml": "--library Other --yes import in.xml",
    "import-xml-again": "--library Sample --yes import in.xml",
    "import-lin": "--library Sample --yes import-lin in.lin",
    "export-pbn": "--yes export 1 4 old.pbn",
    "export-dlm": "export 1 4 new.dlm",
    "export-lin": "export 1 4 new.lin",
    "generate": "--yes generate 3 7 --seed 5",
    "deal": "--yes deal conditions.dlr --first 3 --produce 5 --seed 5",
    "edit": "--yes edit 1 clear",
    "edit-new": "edit 9 fill --seed 3",
    "auction": "--yes auction 1 1n ap",
    "notes": "notes 1 --set Signals",
    "analyse": "--yes analyse 1 2",
    "library-copy": "library copy Copy",
    "library-export": "library export new/folder",
    "library-export-over": "--yes library export there",
    "library-export-all": "--yes library export new --all",
    "library-import": "library import more/Third",
    "library-import-all": "--yes library import more --all",
    "library-move": "--yes library move new/root",
    "library-delete": "library delete Other",
    "publish": "--library Other publish new/site",
    "report": "--library Played report --csv",
    "settings": "settings PBNShark True",
}


def arguments_of(command):
    return COMMANDS[command].split()
