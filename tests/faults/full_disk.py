# SPDX-License-Identifier: MIT
"""Lets the disk run full while files are saved, with less and less room to begin with:
    full_disk.py OVISTO-CLI
The disk is a small file system in memory where the rights to mount one are there. Everywhere, a limit on the size of
files does the same to each file."""

import os
import resource
import subprocess
import sys

import saves

STEP = 4096  # bytes in a block of the small file system


def status_faults(save, folder, run):
    wrong = saves.faults_after(save, folder, run.returncode, run.errors)
    if run.returncode != 0 and "Disk full" not in run.errors:
        wrong.append("the message does not say that the disk is full")
    return [(sentence, f"{run.returncode}: {run.errors}") for sentence in wrong]


def limited(save, program):
    """Saves with the size of files limited, from nothing to enough. Yields the faults of each round."""
    largest = max(len(save.after[name]) for name in save.targets)
    for limit in [*range(0, largest, largest // 12), largest]:
        with saves.Folder() as folder:
            save.prepare(folder)
            run = saves.execute([program, *save.arguments], folder,
                                preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (limit, limit)))
            wrong = status_faults(save, folder, run)
            wrong += [(sentence, "") for sentence in saves.faults_after_second(save, program, folder)]
            yield [(f"{save.name}, files of {limit} bytes at most", *fault) for fault in wrong]


def filled(save, program, disk):
    """Saves on a disk with less room than needed, from none to enough. Yields the faults of each round."""
    needed = sum(len(content) // STEP + 2 for content in save.after.values())
    for blocks in range(0, needed + 1, max(1, needed // 12)):
        with saves.Folder(disk) as folder:
            save.prepare(folder)
            filler = os.path.join(disk, "filler")
            fill(filler, disk, blocks)
            run = saves.execute([program, *save.arguments], folder)
            wrong = status_faults(save, folder, run)
            os.unlink(filler)
            wrong += [(sentence, "") for sentence in saves.faults_after_second(save, program, folder)]
            yield [(f"{save.name}, {blocks} blocks free", *fault) for fault in wrong]


def fill(path, disk, blocks):
    """Writes a file that leaves so many blocks."""
    status = os.statvfs(disk)
    with open(path, "wb") as file:
        file.write(bytes(max(0, status.f_bavail * status.f_frsize - blocks * STEP)))


class SmallDisk:
    """A file system of 4 MB in memory; no path where it may not be mounted."""

    def __enter__(self):
        self.folder = saves.Folder()
        mounted = subprocess.run(["mount", "-t", "tmpfs", "-o", "size=4m", "tmpfs", self.folder.path], check=False,
                                 stderr=subprocess.DEVNULL).returncode == 0
        self.path = self.folder.path if mounted else None
        return self.path

    def __exit__(self, *_):
        if self.path:
            subprocess.run(["umount", self.path], check=True)
        os.rmdir(self.folder.path)


def main():
    program = os.path.realpath(sys.argv[1])
    rounds, wrong = 0, []
    with SmallDisk() as disk:
        if not disk:
            print("Without a small disk, which may not be mounted here")
        for save in saves.all_saves(program):
            for faults in [*limited(save, program), *(filled(save, program, disk) if disk else [])]:
                rounds += 1
                wrong += faults
    saves.finish("Full disk", rounds, wrong)


if __name__ == "__main__":
    main()
