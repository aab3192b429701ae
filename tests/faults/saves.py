# SPDX-License-Identifier: MIT
"""What the scripts of this folder have in common: saves by the real command line, and what must hold after each."""

import collections
import hashlib
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import threading

TITLE_PATH = "/JPEG/Exif[@id='FFE1']/IFD[@id='9C9B']"
SKIPPED = 77  # ctest counts it as skipped
ENDLESS = 60  # seconds that nothing here should take

Run = collections.namedtuple("Run", "returncode errors")


def photograph(title, image, comment=b"", littleEndian=True):
    """A small photograph with two values, a maker note that nothing else keeps, and this title."""
    order = "little" if littleEndian else "big"

    def number(value, size):
        return value.to_bytes(size, order)

    values = b""

    def entry(tag, kind, count, value):
        nonlocal values
        if len(value) <= 4:
            return number(tag, 2) + number(kind, 2) + number(count, 4) + value.ljust(4, b"\0")
        place = 8 + 2 + 3 * 12 + 4 + len(values)
        values += value
        return number(tag, 2) + number(kind, 2) + number(count, 4) + number(place, 4)

    wide = title.encode("utf-16-le") + b"\0\0"
    entries = (entry(0x010F, 2, 10, b"Castelmar\0") + entry(0x8825, 4, 1, number(0, 4)) +
               entry(0x9C9B, 1, len(wide), wide))
    tiff = (b"II" if littleEndian else b"MM") + number(42, 2) + number(8, 4) + number(3, 2) + entries + number(0, 4)

    def segment(marker, payload):
        return b"\xff" + bytes([marker]) + (len(payload) + 2).to_bytes(2, "big") + payload

    return (b"\xff\xd8" + segment(0xE1, b"Exif\0\0" + tiff + values) + segment(0xFE, comment) +
            segment(0xDA, b"\1\1\0\0\x3f\0") + image + b"\xff\xd9")


class Save:
    """One way in which the program saves: its arguments, and the files that are there before."""

    def __init__(self, name, arguments, files, targets=None, loses=False):
        self.name = name
        self.arguments = arguments
        self.files = files
        self.targets = targets or sorted(files)  # the names that get new content
        self.loses = loses
        self.after = {}  # all files after a save without a fault
        self.without_any = None  # a report on no file, which is one, too

    def prepare(self, folder):
        for name, content in self.files.items():
            with open(os.path.join(folder, name), "wb") as file:
                file.write(content)
            os.chmod(os.path.join(folder, name), 0o640)

    def learn(self, program):
        """Saves without a fault, to know what has to come out."""
        with Folder() as folder:
            self.prepare(folder)
            run = execute([program, *self.arguments], folder)
            assert run.returncode == 0, self.name + ": " + run.errors
            self.after = contents(folder)
        if self.name == "report":
            with Folder() as folder:
                self.prepare(folder)
                os.unlink(os.path.join(folder, "a.jpg"))
                execute([program, *self.arguments], folder)
                self.without_any = contents(folder)["report.txt"]
        return self


class Folder:
    """A folder for one round."""

    def __init__(self, parent=None):
        self.path = os.path.realpath(tempfile.mkdtemp(prefix="ovisto-faults-", dir=parent))

    def __enter__(self):
        return self.path

    def __exit__(self, *_):
        shutil.rmtree(self.path, ignore_errors=True)


def execute(command, folder, **options):
    """Runs a command. One that does not end is ended, with all that it started, and has a status of its own."""
    with subprocess.Popen(command, cwd=folder, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                          stderr=subprocess.PIPE, start_new_session=True, **options) as process:
        timer = threading.Timer(ENDLESS, os.killpg, (process.pid, signal.SIGKILL))
        timer.start()
        errors = process.stderr.read().decode("utf-8", "replace")
        process.wait()
        wasEnded = timer.finished.is_set()
        timer.cancel()
    return Run("never ended" if wasEnded else process.returncode, errors)


def contents(folder):
    found = {}
    for name in os.listdir(folder):
        with open(os.path.join(folder, name), "rb") as file:
            found[name] = file.read()
    return found


def named(errors, name):
    """The lines of standard error about a file, without those that only say what a finished save lost."""
    return [line for line in errors.splitlines() if name in line and "Lost by --rebuild" not in line]


def faults_after(save, folder, status, errors, killed=False, mute=False):
    """What is wrong after a save that met a fault, a sentence each. `mute`: it could not write to standard error."""
    found = contents(folder)
    silent = not killed and not mute and not errors.strip()
    wrong = []
    for name in save.targets:
        content, old, new = found.get(name), save.files.get(name), save.after[name]
        if content not in (old, new) and not (status == 1 and content == save.without_any):
            wrong.append(f"{name} is neither the old nor the new file")
        elif killed:
            continue
        elif content == new != old and named(errors, name) and "not known to be" not in errors:
            wrong.append(f"{name} is new and reported as failed")
        elif content != new and status == 0:
            wrong.append(f"{name} is not new, and the status is 0")
    for name, content in found.items():
        if name in save.files or name in save.targets:
            continue
        if name.endswith(".original"):
            if content != save.files[name.removesuffix(".original")]:
                wrong.append(f"{name} is not the old file")
        elif not killed and not (content in save.after.values() and (mute or named(errors, name))):
            wrong.append(f"{name} was left over")
    if not killed and status not in (0, 1, 2):
        wrong.append(f"the status is {status}")
    if status and silent:
        wrong.append(f"status {status} without a word")
    return wrong


def faults_after_second(save, program, folder):
    """What is wrong after the same save once more, without a fault, if there is anything left to do."""
    if contents(folder) == save.after:
        return []
    run = execute([program, *save.arguments], folder)
    found = contents(folder)
    wrong = []
    if run.returncode != 0:
        wrong.append(f"the second run failed: {run.errors.strip()}")
    for name in save.targets:
        if found.get(name) != save.after[name]:
            wrong.append(f"{name} is not new after the second run")
    for name in found.keys() - save.after.keys():
        if not name.endswith(".original"):
            wrong.append(f"{name} is left after the second run")
    return wrong


def image(seed, size):
    """Image data that compresses as little as the real one, the same for the same seed."""
    stretch = hashlib.sha512(str(seed).encode()).digest().replace(b"\xff", b"\xfe")
    return (stretch * (size // len(stretch) + 1))[:size]


def set_title(files, *options):
    return ["set", *options, TITLE_PATH, "A new title", *files]


def all_saves(program):
    """The saves that meet the faults."""
    one = {"a.jpg": photograph("An old title", image(0, 150_000))}
    many = {f"{number:02}.jpg": photograph(f"Title {number}", image(number, 20_000), littleEndian=number % 2 == 0)
            for number in range(16)}
    with Folder() as folder:
        Save("", [], one).prepare(folder)
        document = subprocess.run([program, "xml", "a.jpg"], cwd=folder, capture_output=True, check=True).stdout
    edited = document.replace(b"An old title", b"An odd title")
    style = b"""<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
<xsl:template match="/"><r><xsl:copy-of select="//IFD"/></r></xsl:template></xsl:stylesheet>"""
    saves = [
        Save("set", set_title(one), one),
        Save("set --rebuild", set_title(one, "--rebuild"), one),
        Save("write --document", ["write", "--document", "edited.xml", "a.jpg"], {**one, "edited.xml": edited}),
        Save("write --rebuild", ["write", "--rebuild", "--document", "edited.xml", "a.jpg"],
             {**one, "edited.xml": edited}),
        Save("set on many", set_title(many, "--jobs", "2"), many),
        Save("set --rebuild on many", set_title(many, "--jobs", "2", "--rebuild"), many),
        Save("export", ["export", "a.jpg"], one, ["a.jpg.XML"]),
        Save("report", ["report", "--style", "style.xsl", "--output", "report.txt", "a.jpg"],
             {**one, "style.xsl": style, "report.txt": b"an older report"}, ["report.txt"]),
    ]
    return [save.learn(program) for save in saves]


def finish(what, rounds, wrong):
    """Prints the figures and what is wrong, and ends the script. `wrong` has for each fault where it happened, what is
    wrong, and what the program said."""
    kinds = {}
    for where, sentence, said in wrong:
        kind = re.sub(r"[~\w.]+\.(jpg|XML|txt)[.\w]*", "a file", sentence)
        kinds.setdefault(kind, []).append(f"{where}: {sentence} [{said.strip()[:300]}]")
    print(f"{what}: {rounds} rounds, {len(wrong)} faults")
    for kind, lines in sorted(kinds.items(), key=lambda item: -len(item[1])):
        print(f"{len(lines)} x {kind}, as in")
        for line in lines[:3]:
            print("    " + line)
    sys.exit(1 if wrong else 0)
