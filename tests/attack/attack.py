"""Attacks the program: system calls fail, programs are killed or meet each other, files are damaged,
the window is clicked at random. Ends with exit 1 when something was found, each finding with the command to repeat it."""

import argparse
import collections
import contextlib
import os
import pathlib
import random
import shutil
import subprocess
import sys
import tempfile
import threading
import time

import faults
import mutants
import programs
import stage

# Of the time; the order of the calls is looked at once, which takes some seconds.
SHARES = {"order": 0, "faults": 5, "kills": 2, "programs": 2, "mutants": 2, "window": 2}
MOST_FINDINGS = 40  # printed; more are counted


class Report:
    def __init__(self):
        self.lock = threading.Lock()
        self.ran = collections.Counter()
        self.found = 0
        self.seen = set()

    def take(self, case, texts, repeat=None):
        with self.lock:
            self.ran[case.split("/")[0]] += 1
            self.found += bool(texts)
            command = case.split("/")[1]
            if texts and (command, texts[0]) not in self.seen and len(self.seen) < MOST_FINDINGS:
                self.seen.add((command, texts[0]))
                print(f"FOUND: {case}: " + "\n       ".join(texts) +
                      f"\n       repeat: scripts/attack {repeat or '--case ' + case}", flush=True)


class Part:
    """One part of the attack on one stage."""

    def __init__(self, name, work_stage):
        if name == "programs":
            self.run = programs.Rounds(work_stage).run
            return
        work_stage.prepare()
        clean = faults.Clean(work_stage)
        self.run = {
            "faults": lambda case: faults.fault_run(clean, case),
            "kills": lambda case: faults.kill_run(clean, case),
            "mutants": lambda case: mutants.mutant_run(work_stage, case),
        }[name]
        self.clean = clean


def cases_of(name, part, seed):
    """The cases of a part, shuffled by the seed; all but the faults are without end."""
    if name == "faults":
        cases = list(faults.fault_cases(part.clean.calls()))
        random.Random(seed).shuffle(cases)
        print(f"faults: {len(cases)} cases in all", flush=True)
        return iter(cases)
    if name == "kills":
        return faults.kill_cases(part.clean.calls(), seed)
    return programs.round_cases(seed) if name == "programs" else mutants.mutant_cases(seed)


def work(part, cases, lock, until, report, failures):
    try:
        while time.monotonic() < until:
            with lock:
                case = next(cases, None)
            if case is None:
                return
            report.take(case, part.run(case))
    except Exception as failure:  # of the attack itself; reported by the main thread
        failures.append(failure)


def attack(name, tools, folder, options, seconds, report):
    """Runs the cases of a part until its time is over, on as many stages as there are jobs."""
    stages = [stage.Stage(tools, folder / f"{name}{job}") for job in range(options.jobs)]
    parts = [Part(name, each) for each in stages]
    cases, lock, failures = cases_of(name, parts[0], options.seed), threading.Lock(), []
    until = time.monotonic() + seconds
    threads = [threading.Thread(target=work, args=(part, cases, lock, until, report, failures))
               for part in parts]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    if failures:
        raise failures[0]


def program_of(name, options, seconds):
    """The command of a part that is a program of its own and says by itself what it finds; or None."""
    tests = options.build / "tests"
    return {
        "order": [tests / "tricklet_durability_test", "--gtest_brief=1"],
        "window": [tests / "tricklet_window_monkey", "--minutes", f"{seconds / 60:.2f}",
                   "--seed", str(options.seed)],
    }.get(name)


def attack_by_program(name, command, options, report):
    ended = subprocess.run(command, env={**os.environ, "QT_QPA_PLATFORM": "offscreen"}, check=False)
    texts = [f"it ended with {ended.returncode}"] if ended.returncode else []
    repeat = f"--parts {name} --minutes {options.minutes} --seed {options.seed}"
    report.take(f"{name}/all", texts, repeat)


def read_options():
    parser = argparse.ArgumentParser(prog="scripts/attack", description=__doc__)
    parser.add_argument("--minutes", type=float, default=2, help="for all parts together")
    parser.add_argument("--seed", type=int, default=int(time.time()), help="default: the clock")
    parser.add_argument("--parts", default=",".join(SHARES), help="of " + ",".join(SHARES))
    parser.add_argument("--jobs", type=int, default=os.cpu_count(), help="at the same time")
    parser.add_argument("--case", help="this case alone, as a finding names it")
    parser.add_argument("--build", type=pathlib.Path, required=True, help=argparse.SUPPRESS)
    options = parser.parse_args()
    options.build = options.build.resolve()
    unknown = set(options.parts.split(",")) - SHARES.keys()
    if unknown:
        parser.error("there is no part " + ", ".join(sorted(unknown)))
    return options


@contextlib.contextmanager
def scratch():
    """In memory where that can be: flushing costs nothing there, and the calls are the same."""
    memory = "/dev/shm"
    where = memory if os.access(memory, os.W_OK) else None
    with tempfile.TemporaryDirectory(prefix="tricklet-attack-", dir=where) as folder:
        yield pathlib.Path(folder)


def attack_all(tools, folder, options, report):
    """Each part of those that were built has its share of the time."""
    asked = options.parts.split(",")
    names = [name for name in asked
             if (program_of(name, options, 0) or [options.build])[0].exists()]
    for name in asked:
        if name not in names:
            print(f"{name}: has not been built, and is left out", flush=True)
    whole = sum(SHARES[name] for name in names) or 1
    for name in names:
        seconds = options.minutes * 60 * SHARES[name] / whole
        command = program_of(name, options, seconds)
        if command:
            attack_by_program(name, command, options, report)
        else:
            attack(name, tools, folder, options, seconds, report)


def main():
    options = read_options()
    report = Report()
    print(f"seed {options.seed}", flush=True)
    with scratch() as folder:
        # Its own path may hold a blank, which would end the name of what is preloaded.
        calls = shutil.copy(options.build / "tests/libtricklet_file_calls.so", folder)
        tools = stage.Tools(str(options.build / "cli/tricklet-cli"), str(calls),
                            pathlib.Path(__file__).resolve().parents[2])
        if options.case:
            part = Part(options.case.split("/")[0], stage.Stage(tools, folder))
            report.take(options.case, part.run(options.case))
        else:
            attack_all(tools, folder, options, report)
    print("ran " + ", ".join(f"{count} {name}" for name, count in report.ran.items()) +
          f"; {report.found} with a finding")
    return 1 if report.found else 0


if __name__ == "__main__":
    sys.exit(main())
