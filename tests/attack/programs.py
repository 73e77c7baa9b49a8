"""Two programs change one library at the same time."""

import random

BUSY = "is being changed by"

# Rounds of jobs that are done at the same time, each on the root as it is.
ROUNDS = {
    "boards": ("--library Both --yes import a.pbn", "--library Both --yes import b.pbn",
               "--library Both --yes generate 1 4 --seed 11", "--library Both --yes generate 2 6 --seed 12"),
    "records": ("--library Both --yes import-lin a.lin", "--library Both --yes import-lin d.lin",
                "--library Both --yes import-lin c.lin"),
    "settings": ("settings PBNShark True", "settings PBNBids False", "settings SolverHost x.test"),
}


def write_inputs(stage):
    """Two files of the same boards with other deals, and LIN records of boards of their own."""
    stage.clear()
    (stage.home / "root").mkdir()
    stage.require("settings", "filelocation", str(stage.home / "root"))
    stage.require("settings", "AutoMakeable", "False")
    for name, first, last in (("a", 1, 6), ("b", 1, 6), ("c", 7, 9), ("d", 20, 24)):
        (stage.home / "root" / name).mkdir()
        stage.require("--library", name, "generate", str(first), str(last), "--seed", str(ord(name)))
        stage.require("--library", name, "export", str(first), str(last), f"{name}.pbn")
        stage.require("--library", name, "export", str(first), str(last), f"{name}.lin")
    (stage.home / "root/Both").mkdir()
    stage.keep()


class Rounds:
    def __init__(self, stage):
        self.stage = stage
        write_inputs(stage)
        self.alone = {job: self.result(job) for jobs in ROUNDS.values() for job in jobs}

    def result(self, job):
        """The files that a job leaves when it is alone."""
        self.stage.restore()
        before = self.stage.tree()
        self.stage.require(*job.split())
        after = self.stage.tree()
        return {path: data for path, data in after.items() if before.get(path, "") != data}

    def judge_job(self, job, outcome, after, others):
        """A file of a job that was done is there, as this job or another one left it."""
        if outcome.wrong():
            yield f"{job}: {outcome.wrong()}: {outcome.said}"
        elif outcome.code != 0 and BUSY not in outcome.said:
            yield f"{job}: exit {outcome.code}: {outcome.said}"
        elif outcome.code == 0:
            for path, data in self.alone[job].items():
                if data is None:
                    continue
                if path.endswith(("LIN.txt", ".conf")):
                    lost = set(data.splitlines()) - set(after.get(path, b"").splitlines())
                    yield from (f"{job}: {path} has lost {line!r}" for line in lost)
                elif after.get(path) not in [self.alone[other].get(path) for other in others]:
                    yield f"{job}: {path} is nobody's"

    def run(self, case):
        """Starts two or more jobs of a round at once."""
        _, name, seed = case.split("/")
        choice = random.Random(int(seed))
        jobs = choice.sample(ROUNDS[name], choice.randint(2, len(ROUNDS[name])))
        self.stage.restore()
        processes = [self.stage.start(job.split()) for job in jobs]
        outcomes = [self.stage.end(process) for process in processes]
        after = self.stage.tree()
        faults = [f"{path} is left" for path in after if ".tricklet-" in path]
        for job, outcome in zip(jobs, outcomes):
            faults += self.judge_job(job, outcome, after, jobs)
        return faults


def round_cases(seed):
    choice = random.Random(seed)
    while True:
        yield f"programs/{choice.choice(list(ROUNDS))}/{choice.randrange(10**6)}"
