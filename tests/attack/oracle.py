"""What may be there after a command was disturbed: every file wholly old or wholly new, nothing of
before missing, nothing strange beside it."""

import os

from stage import BIN, REPLACED


def in_bin(path):
    return path == "data" or path.startswith("data/Trash")


def holds_replaced(path):
    """In a folder of boards that a command has replaced, on its way to the bin or refused by it."""
    return ".tricklet-kept-" in path or REPLACED in path


def names_in(tree, folder, end):
    """What lies in the folder itself, without the ending."""
    inside = (path[len(folder):] for path in tree if path.startswith(folder) and path.endswith(end))
    return {name.removesuffix(end) for name in inside if "/" not in name}


def bin_faults(tree):
    """Things in the bin that cannot be restored, and records of things that are not there."""
    files = names_in(tree, BIN + "/files/", "")
    records = names_in(tree, BIN + "/info/", ".trashinfo")
    return ([f"{name} is in the bin without its record" for name in sorted(files - records)] +
            [f"the bin has a record of {name}, which is not there" for name in
             sorted(records - files)])


def is_part(now, old, new):
    """Results hold the records of the boards that were stored: any of the old and new lines."""
    lines = {line for text in (old, new) if text for line in text.splitlines(True)}
    return set(now.splitlines(True)) <= lines


def is_old_or_new(path, now, old, new):
    if now in (old, new):
        return True
    return os.path.basename(path) == "LIN.txt" and now and is_part(now, old, new)


def recycled(tree):
    return [data for path, data in tree.items()
            if data is not None and (in_bin(path) or holds_replaced(path))]


def missing(before, clean, after):
    """Files of before that are neither in their place nor in the bin (or on their way there) nor
    meant to be gone, and those that were replaced and were to be recycled."""
    there, meant = recycled(after), recycled(clean)
    for path, data in before.items():
        if data is None:
            if path not in after and path in clean:
                yield f"{path} is missing"
        elif path not in after and data not in there:
            yield f"{path} is missing"
        elif data in meant and data not in there and after.get(path) != data:
            yield f"{path} was replaced and is not in the bin"


def strange(before, clean, after):
    """Things of other names or contents. What is on its way has a name of its own, and can stay when
    it cannot be removed just now."""
    for path, data in after.items():
        if ".tricklet-" in path or in_bin(path):
            continue
        if holds_replaced(path):
            if data is not None and data not in before.values():
                yield f"{path} was never there to be replaced"
            continue
        if path not in before and path not in clean:
            yield f"{path} is strange here"
        elif data is not None and not is_old_or_new(path, data, before.get(path), clean.get(path)):
            yield f"{path} is neither old nor new ({len(data)} bytes)"


def differences(clean, after):
    for path in sorted(clean.keys() | after.keys()):
        if path not in after:
            yield f"{path} is missing"
        elif path not in clean and ".tricklet-" not in path:
            yield f"{path} is too many"
        elif path in clean and clean[path] != after[path]:
            yield f"{path} is not as in an undisturbed run"


def judge(before, clean, after, outcome, killed=False):
    """Everything that is wrong with the tree `after`."""
    faults = list(missing(before, clean, after)) + list(strange(before, clean, after))
    if not killed:
        faults += bin_faults(after)
        if outcome.wrong():
            faults.append(outcome.wrong())
        if outcome.code == 0:
            faults += [f"exit 0, but {text}" for text in differences(clean, after)]
    return faults
