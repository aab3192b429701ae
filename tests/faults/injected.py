# SPDX-License-Identifier: MIT
"""Lets each system call of real saves fail, or kills the program there, and looks at what is left:
    injected.py OVISTO-CLI
OVISTO_FAULTS says how many faults there are to be (default 1000). strace makes the calls fail."""

import concurrent.futures
import itertools
import os
import re
import shutil
import subprocess
import sys

import saves

ERRORS = {
    "openat": "EIO ENOENT EACCES EMFILE ENFILE EINTR ENOSPC EDQUOT EROFS ELOOP ENOMEM",
    "read": "EIO EINTR", "pread64": "EIO EINTR ENOMEM", "write": "ENOSPC EDQUOT EIO EFBIG EINTR",
    "fstat": "EIO ENOMEM", "newfstatat": "EIO EACCES ENOMEM", "statx": "EIO EACCES",
    "fsync": "EIO ENOSPC EDQUOT EINTR", "fdatasync": "EIO ENOSPC", "syncfs": "EIO ENOSPC ENOSYS",
    "sync_file_range": "EIO ENOSPC", "ftruncate": "EIO ENOSPC", "lseek": "EIO EINVAL",
    "fchown": "EPERM EIO EINTR", "fchmod": "EPERM EIO EINTR", "fsetxattr": "EOPNOTSUPP EPERM ENOSPC",
    "flistxattr": "EOPNOTSUPP EIO", "fgetxattr": "EOPNOTSUPP EIO ERANGE",
    "flock": "EAGAIN ENOLCK EINTR EOPNOTSUPP", "fcntl": "EAGAIN EACCES",
    "rename": "EIO EACCES EPERM ENOSPC EROFS EBUSY EXDEV EDQUOT", "renameat": "EIO EACCES",
    "renameat2": "EIO EACCES EINVAL ENOSYS", "unlink": "EIO EACCES EBUSY", "unlinkat": "EIO EACCES EBUSY",
    "link": "EPERM EMLINK EIO ENOSPC EEXIST", "linkat": "EPERM EMLINK EIO ENOSPC EEXIST",
    "readlink": "EIO EACCES ENOMEM", "access": "EIO EACCES", "faccessat2": "EIO EACCES", "close": "EIO",
    "getdents64": "EIO", "mmap": "ENOMEM", "brk": "ENOMEM", "clone3": "EAGAIN",
}
PASSING = {"EINTR", "EAGAIN"}  # all others may also go on once they have begun
MEMORY = {"mmap", "brk", "mprotect", "clone3"}  # which no program survives for long
CALL = re.compile(r"^(\d+) +(?:<\.\.\. )?(\w+)")


def require_strace():
    """Ends the script where strace cannot be used."""
    if not shutil.which("strace") or subprocess.run(["strace", "-o", "/dev/null", "true"], check=False,
                                                    stderr=subprocess.DEVNULL).returncode != 0:
        print("Skipped: strace is missing, or may not trace")
        sys.exit(saves.SKIPPED)


def strace(log, options, command, folder):
    return saves.execute(["strace", "-f", "-y", "-qq", "-s", "0", "--seccomp-bpf", "-e", "trace=" + ",".join(ERRORS),
                          *options, "-o", log, *command], folder)


def whole_lines(log):
    """The lines of a log, those of a call that another thread interrupted put together."""
    begun = {}
    for line in open(log, encoding="utf-8", errors="replace"):
        line = line.rstrip("\n")
        thread = line.split(" ", 1)[0]
        if line.endswith("<unfinished ...>"):
            begun[thread] = line.removesuffix("<unfinished ...>")
        elif "resumed>" in line:
            yield begun.pop(thread, "") + line.split("resumed>", 1)[1]
        else:
            yield line


def calls(log, folder):
    """How often the busiest thread made each call, and how many of these came before the files were touched."""
    counts, before = {}, {}
    touched = False
    for line in whole_lines(log):
        match = CALL.match(line)
        if not match:
            continue
        thread, call = match.groups()
        touched = touched or "Merovel" in line or f'<{folder}/' in line
        counts[thread, call] = counts.get((thread, call), 0) + 1
        if not touched:
            before[call] = counts[thread, call]
    most = {}
    for (thread, call), count in counts.items():
        most[call] = max(most.get(call, 0), count)
    first = min(thread for thread, _ in counts)
    return {call: (before.get(call, 0) + 1 if (first, call) in counts else 1, count) for call, count in most.items()}


def plan(save, program):
    """All faults of a save: strace's option for each, in an order of which every beginning is a fair choice."""
    with saves.Folder() as folder, saves.Folder() as logs:
        save.prepare(folder)
        strace(logs + "/log", [], [program, *save.arguments], folder)
        ranges = calls(logs + "/log", folder)
    kinds = []
    for call, (first, last) in ranges.items():
        modes = [f"error={error}" for error in ERRORS[call].split()] + ["signal=KILL"]
        if call == "pread64":
            modes.append("retval=0")  # the file has become shorter
        for mode in modes:
            lasting = (mode.startswith("error=") and mode.removeprefix("error=") not in PASSING
                       and call not in MEMORY)
            whens = [f"{when}{more}" for more in ["", *(["+"] if lasting else [])] for when in range(first, last + 1)]
            kinds.append([f"inject={call}:{mode}:when={when}" for when in spread(whens)])
    return [fault for group in itertools.zip_longest(*kinds) for fault in group if fault]


def spread(items):
    """The same items, ends and middles first."""
    step = 1
    while step < len(items):
        step *= 2
    order, seen = [], set()
    while step:
        for place in range(0, len(items), step):
            if place not in seen:
                seen.add(place)
                order.append(items[place])
        step //= 2
    return order


def unsynced(save, log, folder):
    """The files that were put in place without having been brought to disk."""
    thread_synced, dirty, wrong, renamed = {}, set(), [], {}
    for line in whole_lines(log):
        match = CALL.match(line)
        if not match:
            continue
        thread, call = match.groups()
        done = "(INJECTED)" not in line and " = -1 " not in line
        handle = re.search(r"\(\d+<([^>]*)>", line)
        path = handle.group(1) if handle else ""
        if call == "write":
            dirty.add((thread, path))
        elif call == "fsync" and done:
            dirty.discard((thread, path))
            for name in [name for name, where in renamed.items() if where == path]:
                renamed.pop(name)
        elif call == "syncfs" and done:
            dirty = {entry for entry in dirty if entry[0] != thread}
        elif call.startswith("rename") and done:
            old, new = (os.path.join(folder, name) for name in re.findall(r'"([^"]*)"', line)[-2:])
            if (thread, old) in dirty:
                wrong.append(os.path.basename(new) + " was put in place before the disk had it")
            renamed[new] = os.path.dirname(new)
    return wrong + [os.path.basename(name) + " was put in place, and its folder not brought to disk" for name in renamed]


def round_of(save, program, fault):
    """Returns how many calls failed, and what was wrong."""
    with saves.Folder() as folder, saves.Folder() as logs:
        save.prepare(folder)
        log = logs + "/log"
        run = strace(log, ["-e", fault], [program, *save.arguments], folder)
        killed = "signal=KILL" in fault
        text = open(log, encoding="utf-8", errors="replace").read()
        injected = text.count("(INJECTED)")
        if killed:
            injected = 1 if run.returncode in (-9, 137) else 0
        if not injected:
            return 0, []
        # A save that cannot see which file is its own deletes none, and one that is locked belongs to another save.
        if "flock:error=EAGAIN" in fault or re.search(r"stat(at|x)?:", fault):
            remove_new(save, folder)
        mute = re.search(r"write\(2<.*INJECTED", text) is not None
        wrong = saves.faults_after(save, folder, run.returncode, run.errors, killed, mute)
        if run.returncode == 0:
            wrong += unsynced(save, log, folder)
        for name, content in saves.contents(folder).items():
            mode = os.stat(os.path.join(folder, name)).st_mode & 0o777
            # Whoever is told that there is no old file takes nothing from it.
            mayDiffer = "inject=fch" in fault or "ENOENT" in fault
            if name in save.files and mode != 0o640 and not mayDiffer:
                wrong.append(f"{name} has the permissions {mode:o}")
        wrong += saves.faults_after_second(save, program, folder)
        hits = [line.split(" ", 1)[1] for line in text.splitlines() if "(INJECTED)" in line]
        where = f"{save.name}, {fault} {hits[:1]}"
        return injected, [(where, sentence, f"{run.returncode}: {run.errors}") for sentence in wrong]


def remove_new(save, folder):
    for name in os.listdir(folder):
        if name not in save.files and name not in save.after:
            os.unlink(os.path.join(folder, name))


def main():
    program = os.path.realpath(sys.argv[1])
    wanted = int(os.environ.get("OVISTO_FAULTS", "1000"))
    require_strace()
    ways = saves.all_saves(program)
    faults = [[(save, fault) for fault in plan(save, program)] for save in ways]
    todo = [job for group in itertools.zip_longest(*faults) for job in group if job]
    print(f"{len(todo)} faults are possible")
    done, wrong = 0, []
    with concurrent.futures.ThreadPoolExecutor(max(2, os.cpu_count() or 1)) as pool:
        jobs = iter(todo)
        while done < wanted and (batch := list(itertools.islice(jobs, 100))):
            for count, sentences in pool.map(lambda job: round_of(job[0], program, job[1]), batch):
                done += count > 0
                wrong += sentences
    saves.finish("Injected faults", done, wrong)


if __name__ == "__main__":
    main()
