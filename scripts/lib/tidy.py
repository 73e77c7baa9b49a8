#!/usr/bin/env python3
"""Analyses sources with clang-tidy, and remembers those that were found clean.

    tidy.py CLANG_TIDY CACHE SOURCE...

CLANG_TIDY is the program, CACHE the folder that remembers. To be run in the root of the project, whose
build/dev has been configured. Prints the findings; 1 when there are any.

Nearly all the time of an analysis goes into the headers that a source includes, and the sources of a
folder include the same ones. So a dozen of them are analysed as one source that includes them. Where
that cannot be compiled, its halves are analysed, and in the end each source by itself: in one file,
two sources may get in each other's way by names of their own, and that is no finding.
"""

import hashlib
import json
import os
import re
import shlex
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor

BATCH = 12
DATABASE = "build/dev"
FOLDER = "build/tidy"
# The search for unchecked optionals may, one time in many and by where its memory happens to lie, not
# come to an end: then it begins again.
PATIENCE = 180  # seconds, and as many again for each dozen sources
ATTEMPTS = 3


def flags_of(entry):
    """The words of a source's command, but for the compiler, the source and what is made of it."""
    flags = []
    skip = False
    for word in shlex.split(entry["command"]):
        if skip:
            skip = False
        elif word in ("-o", "-MT", "-MF"):
            skip = True
        elif word.startswith("-") and word not in ("-c", "-MD"):
            flags.append(word)
        elif flags and flags[-1] == "-isystem":
            flags.append(word)
    return flags


class Analysis:
    def __init__(self, program, cache):
        self.program = program
        self.cache = cache
        self.root = os.getcwd()
        self.version = self.output([program, "--version"])
        with open(f"{DATABASE}/compile_commands.json", encoding="utf-8") as file:
            entries = json.load(file)
        self.known = {os.path.relpath(each["file"]): flags_of(each) for each in entries}
        self.configs = {}

    def flags_for(self, source):
        """Its own; of what this build leaves out (benchmarks, fuzz targets) those of a source nearby."""
        if source not in self.known:
            near = max(self.known, key=lambda known: len(os.path.commonprefix([known, source])))
            self.known[source] = [*self.known[near], f"-I{self.root}"]
        return self.known[source]

    @staticmethod
    def output(command):
        return subprocess.run(command, check=True, capture_output=True, text=True).stdout

    def config_for(self, source):
        """The checks for the sources of its folder."""
        folder = os.path.dirname(source)
        if folder not in self.configs:
            self.configs[folder] = self.output(
                [self.program, "-p", DATABASE, "--dump-config", source]
            )
        return self.configs[folder]

    def batches(self, sources):
        """Sources of one folder with the same flags."""
        groups = {}
        for source in sources:
            key = (os.path.dirname(source), tuple(self.flags_for(source)))
            groups.setdefault(key, []).append(source)
        for group in groups.values():
            for begin in range(0, len(group), BATCH):
                yield group[begin : begin + BATCH]

    def key(self, file, flags, config):
        """What decides on the findings: checks, tool, flags, and the text of the sources with all
        that they include, comments too, as some of them silence a check. The same in every checkout."""
        command = ["g++", "-E", "-P", "-C", *flags, file]
        done = subprocess.run(command, capture_output=True, check=False)
        if done.returncode != 0:
            sys.exit(f"{file} cannot be read:\n{done.stderr.decode(errors='replace')}")
        text = done.stdout
        parts = [config, self.version, shlex.join(flags)]
        head = "\n".join(parts).replace(self.root, ".").encode()
        return hashlib.sha256(head + text.replace(self.root.encode(), b".")).hexdigest()

    def run(self, command, sources):
        """The findings; none when it is clean."""
        patience = PATIENCE * (1 + len(sources) // BATCH)
        for _ in range(ATTEMPTS):
            try:
                done = subprocess.run(
                    command, capture_output=True, text=True, timeout=patience, check=False
                )
            except subprocess.TimeoutExpired:
                continue
            text = "" if done.returncode == 0 else done.stdout + done.stderr
            return re.sub(r"^.* warnings?( and .*)? generated\.\n", "", text, flags=re.MULTILINE)
        return f"{' '.join(sources)}: no end after {patience} s\n"

    def analyse(self, sources):
        """The findings in sources of one batch."""
        config = self.config_for(sources[0])
        command = [self.program, "--quiet", f"--config={config}"]
        flags = self.flags_for(sources[0])
        file = sources[0] if len(sources) == 1 else self.write(sources)
        key = os.path.join(self.cache, self.key(file, flags, config))
        if os.path.exists(key):
            return ""
        findings = self.run([*command, file, "--", *flags], sources)
        if not findings:
            with open(key, "w", encoding="utf-8"):
                return ""
        if len(sources) == 1 or "[clang-diagnostic-" not in findings:
            return findings
        half = (len(sources) + 1) // 2
        return self.analyse(sources[:half]) + self.analyse(sources[half:])

    def write(self, sources):
        name = hashlib.sha256(" ".join(sources).encode()).hexdigest()[:16]
        path = os.path.join(FOLDER, f"{name}.cpp")
        with open(path, "w", encoding="utf-8") as file:
            for source in sources:
                place = os.path.join(self.root, source)
                file.write(f'#include "{place}"  // NOLINT(bugprone-suspicious-include)\n')
        return path


def main():
    program, cache, *sources = sys.argv[1:]
    os.makedirs(FOLDER, exist_ok=True)
    analysis = Analysis(program, cache)
    batches = list(analysis.batches([os.path.relpath(source) for source in sources]))
    found = False
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        for findings in pool.map(analysis.analyse, batches):
            found = found or bool(findings)
            print(findings, end="", flush=True)
    sys.exit(1 if found else 0)


main()
