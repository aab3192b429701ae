# SPDX-License-Identifier: MIT
"""Lets another program change a photograph in the middle of saves:
    races.py OVISTO-CLI
strace stops each save after each of its system calls in turn, another program has its way with the file, and the save
goes on. OVISTO_FAULTS says how many rounds there are to be at least (default 1000, or as many as there are)."""

import concurrent.futures
import functools
import itertools
import os
import re
import signal
import subprocess
import sys
import time

import injected
import saves

OLD = saves.photograph("An old title", saves.image(0, 40_000), b"serial 0")
# What the other program writes says which version it is. It has the size of the old one, or not.
NEXT = saves.photograph("An old title", saves.image(1, 40_000), b"serial 1")
LONGER = saves.photograph("Somebody else's title", saves.image(2, 50_000), b"serial 2")


PROGRAM = os.path.realpath(sys.argv[1])


def in_place(content):
    def act(path):
        with open(path, "r+b") as file:
            file.write(content)
            file.truncate()
    return act


def by_rename(content):
    def act(path):
        with open(path + ".new", "wb") as file:
            file.write(content)
        os.rename(path + ".new", path)
    return act


def save(path):
    """Saves it with this program, which may refuse."""
    saves.execute([PROGRAM, *saves.set_title(["a.jpg"])[:-2], "Title of the other save", path], "/")


ACTIONS = {
    "rewrites it in place": in_place(NEXT),
    "makes it longer in place": in_place(LONGER),
    "replaces it by rename": by_rename(NEXT),
    "replaces it by a longer one": by_rename(LONGER),
    "cuts it in half": lambda path: os.truncate(path, len(OLD) // 2),
    "empties it": lambda path: os.truncate(path, 0),
    "deletes it": os.unlink,
    "saves it": save,
}
WAYS = {"set": saves.set_title(["a.jpg"]), "set --rebuild": saves.set_title(["a.jpg"], "--rebuild"),
        "write --document": ["write", "--document", "edited.xml", "a.jpg"]}


def version_file(folder, content, name="a.jpg"):
    with open(os.path.join(folder, name), "wb") as file:
        file.write(content)


def version_in(folder):
    """The photograph that is there; none where it is not."""
    return saves.contents(folder).get("a.jpg")


def saved_from(arguments, content, document):
    """What a save makes of a version of the file; none where it refuses."""
    if content is None:
        return None
    with saves.Folder() as folder:
        version_file(folder, content)
        version_file(folder, document, "edited.xml")
        run = saves.execute([PROGRAM, *arguments], folder)
        return version_in(folder) if run.returncode == 0 else None


def places(arguments, document):
    """The calls of a save from the first that touches the file, as strace counts them; and of these the ones from the
    last look at the old file to its replacement, between which nobody can see a change."""
    with saves.Folder() as folder, saves.Folder() as logs:
        version_file(folder, OLD)
        version_file(folder, document, "edited.xml")
        log = logs + "/log"
        injected.strace(log, [], [PROGRAM, *arguments], folder)
        counts, found, blind = {}, [], []
        for line in injected.whole_lines(log):
            match = injected.CALL.match(line)
            if not match:
                continue
            call = match.group(2)
            counts[call] = counts.get(call, 0) + 1
            isOfOldFile = re.search(r'"a\.jpg"|<[^>]*/a\.jpg>', line) is not None
            if found or f"<{folder}/a.jpg>" in line:
                found.append((call, counts[call]))
            if call.startswith("rename") and isOfOldFile:
                break
            blind = found[-1:] if isOfOldFile and "stat" in call else [*blind, *found[-1:]]
        return found, blind


def stopped(log, process):
    """Waits until the traced program has stopped. Its process number; none if it ended instead."""
    while True:
        ended = process.poll() is not None
        with open(log, encoding="utf-8", errors="replace") as file:
            match = re.search(r"^(\d+) +--- stopped by SIGSTOP", file.read(), re.M)
        if match:
            return int(match.group(1))
        if ended:
            return None
        time.sleep(0.001)


class Round:
    """A save that another program disturbs after one of its calls."""

    def __init__(self, way, place, action, document):
        self.way, self.place, self.action, self.document = way, place, action, document
        self.was_stopped = self.was_replaced = False
        self.before = self.version = None  # the photograph before and after what the other program did

    def run(self):
        with saves.Folder() as folder, saves.Folder() as logs:
            version_file(folder, OLD)
            version_file(folder, self.document, "edited.xml")
            log = logs + "/log"
            open(log, "w", encoding="utf-8").close()
            command = ["strace", "-f", "-y", "-qq", "-s", "0", "-e", "trace=" + ",".join(injected.ERRORS), "-e",
                       f"inject={self.place[0]}:signal=STOP:when={self.place[1]}", "-o", log, PROGRAM, *WAYS[self.way]]
            with subprocess.Popen(command, cwd=folder, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                  stderr=subprocess.PIPE) as process:
                number = stopped(log, process)
                if number:
                    self.disturb(folder)
                    os.kill(number, signal.SIGCONT)
                self.errors = process.stderr.read().decode("utf-8", "replace")
                self.status = process.wait()
            self.files = saves.contents(folder)
        return self

    def disturb(self, folder):
        self.was_stopped = True
        self.before = version_in(folder)
        self.was_replaced = self.before != OLD
        ACTIONS[self.action](os.path.join(folder, "a.jpg"))
        self.version = version_in(folder)

    def fault(self):
        """What is wrong afterwards, if anything."""
        found, saved = self.files.get("a.jpg"), made_from(self.way, OLD, self.document)
        if self.was_replaced:  # the save was over
            return "" if found == self.version else "destroyed after the save"
        if self.version == self.before:  # the other one refused
            return "" if found == saved and self.status == 0 else "not saved, although the other one refused"
        if found == self.version and self.status != 0 and "a.jpg" in self.errors:
            left = self.files.keys() - {"a.jpg", "edited.xml"}
            return f"{sorted(left)} left over" if left else ""
        if found is not None and found == made_from(self.way, self.version, self.document) and self.status == 0:
            return ""  # the save was made from the other's version
        if found == self.version:
            return "called a success, although the file is the other's"
        return "silently overwritten" if found == saved else "destroyed"


@functools.lru_cache(None)
def made_from(way, version, document):
    return saved_from(WAYS[way], version, document)


def main():
    injected.require_strace()
    wanted = int(os.environ.get("OVISTO_FAULTS", "1000"))
    with saves.Folder() as folder:
        version_file(folder, OLD)
        document = subprocess.run([PROGRAM, "xml", "a.jpg"], cwd=folder, capture_output=True, check=True).stdout
    document = document.replace(b"An old title", b"An odd title")  # as long as before: the image stays at its place
    rounds, blind = [], {}
    for way, arguments in WAYS.items():
        found, blind[way] = places(arguments, document)
        rounds.append([Round(way, place, action, document) for place in injected.spread(found) for action in ACTIONS])
    todo = [disturbed for group in itertools.zip_longest(*rounds) for disturbed in group if disturbed][:wanted]

    with concurrent.futures.ThreadPoolExecutor(max(2, os.cpu_count() or 1)) as pool:
        done = [disturbed for disturbed in pool.map(Round.run, todo) if disturbed.was_stopped]
    wrong, unseen = [], 0
    for disturbed in done:
        fault = disturbed.fault()
        if fault and disturbed.place in blind[disturbed.way]:
            unseen += 1
        elif fault:
            where = f"{disturbed.way}, after {' '.join(map(str, disturbed.place))} another program {disturbed.action}"
            wrong.append((where, fault, f"{disturbed.status}: {disturbed.errors}"))
    print(f"{unseen} changes between the last look at the old file and its replacement, which nobody can see")
    saves.finish("Races", len(done), wrong)


if __name__ == "__main__":
    main()
