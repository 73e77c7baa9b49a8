"""One system call of a command fails, or the command is killed there."""

import errno
import random
import time

import oracle
from stage import COMMANDS, arguments_of

IO = ("EIO",)
MAKING = ("EIO", "ENOSPC", "EACCES")
ERRORS = {
    "access": ("EACCES",),
    "chmod": ("EIO", "EACCES"),
    "close": ("EIO", "EINTR"),
    "create": MAKING + ("EMFILE", "EINTR"),
    "flock": ("EINTR", "ENOLCK"),
    "fsync": ("EIO", "ENOSPC", "EINTR"),
    "ftruncate": IO,
    "link": MAKING,
    "mkdir": MAKING,
    "open": ("EIO", "EACCES", "EMFILE"),
    "opendir": ("EIO", "EACCES", "EMFILE"),
    "read": ("EIO", "EINTR"),
    "readdir": IO,
    "rename": MAKING,
    "stat": ("EIO", "EACCES"),
    "symlink": MAKING,
    "unlink": ("EIO", "EACCES"),
    "utimensat": ("EIO", "EACCES"),
    "write": ("EIO", "ENOSPC", "EINTR"),
}


class Clean:
    """Undisturbed runs of the commands on one stage, each made when it is first asked for."""

    def __init__(self, stage):
        self.stage = stage
        self.runs = {}

    def run(self, command):
        """The tree before, the tree after, the names of the calls, the seconds that it took."""
        if command not in self.runs:
            stage = self.stage
            stage.restore()
            before = stage.tree()
            begun = time.monotonic()
            outcome = stage.run(arguments_of(command), {})
            took = time.monotonic() - begun
            if outcome.code != 0:
                raise RuntimeError(f"{command}: exit {outcome.code}: {outcome.said}")
            self.runs[command] = (before, stage.tree(), stage.recorded(), took)
        return self.runs[command]

    def calls(self):
        """The names of the calls of each command."""
        return {command: self.run(command)[2] for command in COMMANDS}


def fault_cases(calls):
    """Every call of every command with every error that it can meet."""
    for command, names in calls.items():
        for number, name in enumerate(names, 1):
            for error in ERRORS[name]:
                yield f"faults/{command}/{number}/{error}/once"
                if error != "EINTR":
                    yield f"faults/{command}/{number}/{error}/on"


# What a fault has kept from being removed goes when the next command writes there.
SWEEP = ("--yes library copy Swept", "--yes edit 1 rotate cw",
         "--library Other --yes edit 1 rotate cw", "settings PBNShark False")


def left(tree):
    return [path for path in tree if ".tricklet-" in path and not oracle.in_bin(path)]


def sweep(stage, command):
    """What is left although commands have written to every folder since."""
    stage.run(["--yes", *(word for word in arguments_of(command) if word != "--yes")])
    for arguments in SWEEP:
        stage.run(arguments.split())
    return [f"{path} is left for ever" for path in left(stage.tree())]


def fault_run(clean, case):
    """Carries out one case; the faults found, each a text."""
    _, command, number, error, how = case.split("/")
    before, tree, names, _ = clean.run(command)
    stage = clean.stage
    stage.restore()
    orders = {"FAIL_AT": number, "FAIL_ERRNO": getattr(errno, error), "FAIL_ON": int(how == "on")}
    outcome = stage.run(arguments_of(command), orders)
    call = names[int(number) - 1] if int(number) <= len(names) else "?"
    after = stage.tree()
    found = oracle.judge(before, tree, after, outcome)
    if left(after):
        found += sweep(stage, command)
    return [f"{call} {error}: {fault}" for fault in found]


def kill_cases(calls, seed):
    """Without end: a command, and the number of the call or the share of its time."""
    choice = random.Random(seed)
    while True:
        command = choice.choice(list(calls))
        if choice.random() < 0.5:
            yield f"kills/{command}/call/{choice.randint(1, len(calls[command]))}"
        else:
            yield f"kills/{command}/time/{choice.random():.4f}"


def kill_run(clean, case):
    """Kills a command, then has it done again by one that is not killed."""
    _, command, by, when = case.split("/")
    before, tree, _, took = clean.run(command)
    stage = clean.stage
    stage.restore()
    if by == "call":
        outcome = stage.run(arguments_of(command), {"KILL_AT": when})
    else:
        process = stage.start(arguments_of(command), {})
        time.sleep(float(when) * took)
        process.kill()
        outcome = stage.end(process)
    faults = oracle.judge(before, tree, stage.tree(), outcome, killed=True)
    again = stage.run(arguments_of(command))
    after = stage.tree()
    found = list(oracle.missing(before, tree, after)) + list(oracle.strange(before, tree, after))
    if again.wrong():
        found.append(again.wrong())
    return faults + [f"afterwards: {text}" for text in found + sweep(stage, command)]
