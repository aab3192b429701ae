#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs the commands that the documents show, and compares what they print with what the documents say.

    tools/check-examples.py PROGRAMS [DOCUMENT...]

PROGRAMS is the folder of ovisto-cli. Without a DOCUMENT, README.md and docs/*.md are checked. In an indented block, a
line "$ command" is run as a reader would run it, all commands of a document one after the other in a fresh copy of the
folder samples, with the folder data beside it. The lines after it are what it prints, standard error included; a line
"..." stands for any number of lines. A command that fails is followed by "$ echo $?".

A command that installs or builds something or opens the window says so in a comment, "# builds ...". It is not run; only
the program has to be there.
"""
import difflib
import re
import shlex
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

PROJECT = Path(__file__).resolve().parent.parent
INDENT = "    "
PROMPT = INDENT + "$ "
NOT_RUN = re.compile(r"#.*\b(installs|builds|opens)\b")
END = "\x1e"  # after the output of a command, around its status


class Example:
    def __init__(self, place, command):
        self.place = place
        self.command = command
        self.expected = []
        self.is_run = not NOT_RUN.search(command)


def examples_of(document):
    """The commands of a document, in order, each with the lines that follow it in its block."""
    examples = []
    example = None  # of the block at hand
    lines = enumerate(document.read_text(encoding="utf-8").splitlines(), 1)
    for number, line in lines:
        if line.startswith(PROMPT):
            command = line[len(PROMPT):]
            here = re.search(r"<<'?(\w+)'?", command)
            while command.endswith("\\") or (here and command.rsplit("\n", 1)[-1] != here[1]):
                command += "\n" + next(lines)[1][len(INDENT):]
            example = Example(f"{document.name}:{number}", command)
            examples.append(example)
        elif line.lstrip().startswith("$ "):
            sys.exit(f"{document.name}:{number}: a command stands after four blanks")
        elif line.strip() and not line.startswith(INDENT):
            example = None
        elif example:
            example.expected.append(line[len(INDENT):].rstrip())
    for example in examples:
        while example.expected and not example.expected[-1]:
            example.expected.pop()
    return examples


def matches(expected, printed):
    """Whether the lines are the same, where "..." is any number of them."""
    if not expected:
        return not printed
    if expected[0] == "...":
        return any(matches(expected[1:], printed[skipped:]) for skipped in range(len(printed) + 1))
    return bool(printed) and expected[0] == printed[0] and matches(expected[1:], printed[1:])


def run(examples, programs):
    """What each command prints, and its status."""
    with tempfile.TemporaryDirectory() as folder:
        shutil.copytree(PROJECT / "samples", Path(folder, "samples"))
        shutil.copytree(PROJECT / "data", Path(folder, "data"))
        script = "exec 2>&1\n" + "".join(
            f"{example.command}\nstatus=$?; printf '{END}%s{END}' $status; (exit $status)\n" for example in examples)
        shell = subprocess.run(["bash", "-c", script], cwd=Path(folder, "samples"), stdout=subprocess.PIPE, check=False,
                               env={"PATH": f"{programs.resolve()}:/usr/bin:/bin", "HOME": folder, "LC_ALL": "C.UTF-8"})
    pieces = shell.stdout.decode(errors="replace").split(END)
    return list(zip(pieces[0::2], map(int, pieces[1::2])))


def faults_of_run(examples, programs):
    results = run(examples, programs)
    for index, (example, (output, status)) in enumerate(zip(examples, results)):
        printed = [line.rstrip() for line in output.splitlines()]
        if not matches(example.expected, printed):
            yield f"{example.place}: $ {example.command}\n" + "\n".join(
                line[:200] for line in difflib.unified_diff(example.expected, printed, "the document", "the command",
                                                            lineterm=""))
        is_asked = index + 1 < len(examples) and examples[index + 1].command == "echo $?"
        if status and not is_asked:
            yield f"{example.place}: $ {example.command}\nends with status {status}"
    if len(results) < len(examples):
        yield f"{examples[len(results)].place}: the shell ends here"


def faults_of_others(examples):
    for example in examples:
        words = [word for word in shlex.split(example.command, comments=True) if word != "sudo"]
        is_there = shutil.which(str(PROJECT / words[0]) if "/" in words[0] else words[0])
        if not is_there:
            yield f"{example.place}: there is no program {words[0]}"


def main():
    programs, *names = map(Path, sys.argv[1:])
    faults = []
    count = 0
    for document in names or [PROJECT / "README.md", *sorted(PROJECT.glob("docs/*.md"))]:
        examples = examples_of(document)
        count += len(examples)
        faults += faults_of_run([example for example in examples if example.is_run], programs)
        faults += faults_of_others([example for example in examples if not example.is_run])
    print("\n\n".join(faults) or f"{count} commands do what the documents say")
    sys.exit(bool(faults) or not count)


if __name__ == "__main__":
    main()
