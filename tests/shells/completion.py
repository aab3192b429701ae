# SPDX-License-Identifier: MIT
"""Types command lines into a real shell, with its Tab key, and looks at what the shell then starts. With "man" as the
shell, looks at the manual pages instead.

completion.py SHELL OVISTO_CLI FOLDER: the completions and pages of the build are in FOLDER. Exit status 77 without the
shell."""

import os
import pty
import re
import select
import shutil
import subprocess
import sys
import tempfile

SKIPPED = 77
ENDLESS = 60  # seconds that nothing here should take
READY = "ready>"
TITLE = "/JPEG/Exif[@id='FFE1']/IFD[@id='9C9B']"
TAKEN = "/JPEG/Exif[@id='FFE1']/IFDE/IFD[@id='9003']"

# What is typed after the name of the program, a tabulator for the Tab key, and the arguments that must come out.
LINES = [
    ("--vers\t", ["--version"]),
    ("rep\t--sty\tcs\tn\t", ["report", "--style", "csv", "n.jpg"]),
    ("report --style ./ow\t--encoding utf-1\tn.jpg", ["report", "--style", "./own.xsl", "--encoding", "utf-16", "n.jpg"]),
    ("clean --keep copyr\t", ["clean", "--keep", "copyright"]),
    ("clean --keep names,copyr\t", ["clean", "--keep", "names,copyright"]),
    ("show my\t", ["show", "my lake's.JPG"]),
    ("show --jobs 2 fol\tin\t", ["show", "--jobs", "2", "folder/inside.jpeg"]),
    ("show --files-from=li\tn.jpg", ["show", "--files-from", "list.txt", "n.jpg"]),
    ("find --words lake fol\t", ["find", "--words", "lake", "folder"]),
    ("set --verb\t\"/JPEG/Exif[@id='FFE1']/IFD[@id='9C9B\tn\t n\t",
     ["set", "--verbose", TITLE, "n", "n.jpg"]),  # a value is not completed
    ("set \"/JPEG/Exif[@id='FFE1']/IFDE/IFD[@id='9003\tnow n\t", ["set", TAKEN, "now", "n.jpg"]),
    ("delete /JPEG/Exif\\[@id\\=\\'FFE1\\'\\]/IFD\\[@id=\\'9C9B\tn\t", ["delete", TITLE, "n.jpg"]),
]
# Where the shells differ: what stands in the line already, and whether labels are searched.
OWN_LINES = {
    "bash": [
        ("show 'my\t", ["show", "my lake's.JPG"]),
        ("set /JP\tE\t[\tE\tIFD[@id='9003\tnow n\t", ["set", TAKEN, "now", "n.jpg"]),
        ("set '/JPEG/Exif[@id='\\''FFE1'\\'']/IFD[@id='\\''9C9B\tx n\t", ["set", TITLE, "x", "n.jpg"]),
        ("set camera\\ own\tx n\t", ["set", "/JPEG/Exif[@id='FFE1']/IFDE/IFD[@id='A430']", "x", "n.jpg"]),
        ("show a:b\t", ["show", "a:b=c.jpg"]),
    ],
    "zsh": [
        ("set camera\\ own\tx n\t", ["set", "/JPEG/Exif[@id='FFE1']/IFDE/IFD[@id='A430']", "x", "n.jpg"]),
        ("show a:b\t", ["show", "a:b=c.jpg"]),
    ],
    "fish": [
        ("show 'my\t", ["show", "my lake's.JPG"]),
        ("set '/JPEG/Exif[@id=\\'FFE1\\']/IFD[@id=\\'9C9B\tx n\t", ["set", TITLE, "x", "n.jpg"]),
        ("show a:b\t", ["show", "a:b=c.jpg"]),
    ],
}


class Shell:
    """A shell at a terminal in `folder`, which starts a program that only notes its arguments."""

    def __init__(self, name, completions, folder):
        self.arguments = os.path.join(folder, ".arguments")
        self.completed = os.path.join(folder, ".completed")
        self.isOneByOne = name == "zsh"  # which does not complete while more input waits
        programs = os.path.join(folder, ".programs")
        os.mkdir(programs)
        stub = os.path.join(programs, "ovisto-cli")
        with open(stub, "w") as file:
            file.write(f"#!/bin/sh\nprintf '%s\\0' \"$@\" >'{self.arguments}.new'\n"
                       f"mv '{self.arguments}.new' '{self.arguments}'\n")
        os.chmod(stub, 0o755)
        environment = {
            "PATH": programs + ":" + os.environ["PATH"], "HOME": folder, "TERM": "xterm", "LC_ALL": "C.UTF-8",
            "PS1": READY, "XDG_CONFIG_HOME": folder + "/.config", "XDG_DATA_HOME": folder + "/.data",
        }
        commands = {
            "bash": (["bash", "--norc", "--noprofile", "-i"], f"source '{completions}/ovisto-cli'"),
            "zsh": (["zsh", "-f", "-i"],
                    f"fpath=('{completions}' $fpath); autoload -Uz compinit; compinit -D -u; PS1='{READY}'; "
                    f"completed() {{ zle expand-or-complete; : >'{self.completed}' }}; zle -N completed; "
                    "bindkey '^I' completed"),
            "fish": (["fish", "--no-config", "-i", "-C", f"function fish_prompt; echo -n '{READY}'; end; "
                      "set fish_greeting; set fish_autosuggestion_enabled 0"], f"source '{completions}/ovisto-cli.fish'"),
        }
        command, first = commands[name]
        self.process, self.terminal = pty.fork()
        if self.process == 0:
            os.chdir(folder)
            os.execvpe(command[0], command, environment)
        self.shown = ""
        self.await_text(READY)
        self.type(first + "\r")
        self.run("--loaded")

    def type(self, keys):
        """Types `keys`, each tabulator when what was before it is done with."""
        for part in re.findall(r"[^\t]+|\t", keys) if self.isOneByOne else [keys]:
            os.write(self.terminal, part.encode())
            if part == "\t" and self.isOneByOne:
                if not self.await_file(self.completed):
                    return
                os.remove(self.completed)

    def read(self):
        """More of what the shell shows, if it does at once."""
        if select.select([self.terminal], [], [], 0.05)[0]:
            try:
                self.shown += os.read(self.terminal, 65536).decode("utf-8", "replace")
            except OSError:
                sys.exit("The shell ended:\n" + self.shown)
            return True
        return False

    def await_text(self, text):
        for _ in range(ENDLESS * 20):
            if text in self.shown:
                return
            self.read()
        sys.exit("Not shown: " + text + "\n" + self.shown)

    def await_file(self, path):
        for _ in range(ENDLESS * 20):
            self.read()
            if os.path.exists(path):
                return True
        return False

    def run(self, keys):
        """The arguments of the program after these keys and Enter."""
        self.shown = ""
        self.type("ovisto-cli " + keys + "\r")
        if not self.await_file(self.arguments):
            shown, self.shown = self.shown, ""
            self.type("\x03")
            self.await_text(READY)
            return shown
        with open(self.arguments) as file:
            text = file.read()
        os.remove(self.arguments)
        # A shell may put "=" after an option, and leave out the "/" after a folder.
        return [word.removesuffix("/") for word in re.sub(r"(?<=\0)(--[a-z-]+)=", "\\1\0", text).split("\0")[:-1]]


def options_in_help(program, command):
    text = subprocess.run([program, command, "--help"], capture_output=True, text=True, check=True).stdout
    return set(re.findall(r"^  (--?[a-z0-9-]+)", text, re.M)) | set(re.findall(r"^  -h, (--help)", text, re.M))


def options_offered(shell, completions, command):
    """The options that a shell offers without a terminal; zsh has no way to do so."""
    line = f"ovisto-cli {command} -"
    if shell == "bash":
        script = (f"source '{completions}/ovisto-cli'; COMP_LINE='{line}' COMP_POINT={len(line)}; "
                  "_ovisto_cli ovisto-cli - ''; printf '%s\\n' \"${COMPREPLY[@]}\"")
        return set(subprocess.run(["bash", "-c", script], capture_output=True, text=True, check=True).stdout.split())
    script = f"source '{completions}/ovisto-cli.fish'; complete -C '{line}'; complete -C '{line}-'"
    shown = subprocess.run(["fish", "--no-config", "-c", script], capture_output=True, text=True, check=True).stdout
    return {row.split("\t")[0] for row in shown.splitlines()}


def check_manual(program, commands, folder):
    """What is wrong with the pages: a warning, or other options than those of the help."""
    failures = []
    shown = {}
    for page in (name for name in os.listdir(folder) if name.endswith(".1")):
        run = subprocess.run(["man", "--warnings", "-E", "UTF-8", "-l", os.path.join(folder, page)], capture_output=True,
                             text=True, env={**os.environ, "LC_ALL": "C.UTF-8", "MANWIDTH": "80"})
        shown[page] = run.stdout
        if run.returncode or run.stderr:
            failures.append(f"{page}: {run.stderr}")
    common = re.search(r"^OPTIONS FOR EVERY COMMAND\n(.*?)^[A-Z]", shown["ovisto-cli.1"], re.M | re.S)[1]
    for command in commands:
        own = re.search(rf"^   ovisto-cli {command} .*?\n(.*?)^(?:   ovi|[A-Z])", shown["ovisto-cli.1"], re.M | re.S)[1]
        options = set(re.findall(r"^       (--?[a-z0-9-]+)", own + common, re.M)) | {"--help"}
        if options != options_in_help(program, command):
            failures.append(f"{command}: the page has {sorted(options)}")
    return failures


def main():
    name, program, completions = sys.argv[1], *map(os.path.abspath, sys.argv[2:])
    if shutil.which(name) is None:
        print(f"{name} is not installed")
        return SKIPPED
    failures = []
    commands = re.findall(r"^  ([a-z]+) {3,}", subprocess.run([program, "--help"], capture_output=True, text=True,
                                                            check=True).stdout, re.M)
    if name == "man":
        print("\n".join(failures := check_manual(program, commands, completions)))
        return 1 if failures else 0
    for command in commands if name != "zsh" else []:
        expected, offered = options_in_help(program, command), options_offered(name, completions, command)
        if expected != offered:
            failures.append(f"{command}: offered {sorted(offered)}, --help has {sorted(expected)}")
    with tempfile.TemporaryDirectory() as folder:
        os.mkdir(folder + "/folder")
        for file in ("n.jpg", "notes.txt", "my lake's.JPG", "own.xsl", "list.txt", "folder/inside.jpeg", "a:b=c.jpg"):
            with open(os.path.join(folder, file), "w"):
                pass
        shell = Shell(name, completions, folder)
        for keys, expected in LINES + OWN_LINES[name]:
            arguments = shell.run(keys)
            if arguments != expected:
                failures.append(f"{keys!r}: {arguments}, expected {expected}")
    print("\n".join(failures))
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
