"""Files of other programs, damaged at random, through every reader of the command line."""

import random

LIMIT = 10  # seconds for a file of a few boards

READERS = {
    "pbn": ("m.pbn", "--library New --yes import m.pbn"),
    "dlm": ("m.dlm", "--library New --yes import m.dlm"),
    "lin": ("m.lin", "--library New --yes import-lin m.lin"),
    "usebio": ("m.xml", "--library New --yes import m.xml"),
    "board_file": ("root/Sample/001.txt", "boards --long"),
    "lin_file": ("root/Sample/LIN.txt", "traveller 1"),
}


def mutate(choice, data, other):
    """One to eight changes of `data`, some with a piece of another file."""
    data = bytearray(data)
    for _ in range(choice.randint(1, 8)):
        at = choice.randint(0, len(data))
        size = choice.choice((1, 2, 8, 64, 512))
        piece = data[at:at + size]
        begin = choice.randint(0, len(other))
        data[at:at + choice.choice((0, size))] = choice.choice((
            b"", bytes(choice.randrange(256) for _ in range(size % 65)), piece * 2,
            other[begin:begin + size], bytes([choice.choice(b"\0\t\r\n\"'[]{}|<>&%;,.-+09 ")]) * size,
            str(choice.choice((-1, 0, 999, 1000, 2**31, 2**63, 10**40))).encode()))
    return bytes(data)


def mutant_cases(seed):
    choice = random.Random(seed)
    while True:
        yield f"mutants/{choice.choice(list(READERS))}/{choice.randrange(10**9)}"


def mutant_run(stage, case):
    _, kind, seed = case.split("/")
    choice = random.Random(int(seed))
    samples = stage.tools.samples(kind)
    data = mutate(choice, choice.choice(samples).read_bytes(), choice.choice(samples).read_bytes())
    stage.restore()
    name, command = READERS[kind]
    (stage.home / name).write_bytes(data)
    outcome = stage.run(command.split(), limit=LIMIT)
    if outcome.wrong():
        return [f"{kind}: {outcome.wrong()}"]
    stored = list((stage.home / "root/New").glob("[0-9][0-9][0-9].txt"))
    if " import" in command and outcome.code == 0 and not stored:
        return [f"{kind}: exit 0, but nothing was stored"]
    return []
