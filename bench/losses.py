# SPDX-License-Identifier: MIT
"""Counts what programs lose when they set a title. Called by losses.sh."""

import hashlib
import json
import os
import shutil
import subprocess
import sys
import tempfile

TITLE = "A title that was set"
TITLE_PATH = "/JPEG/Exif[@id='FFE1']/IFD[@id='9C9B']"


def ways(ovisto):
    """Each program, and how it sets the title of a file."""
    return {
        "ovisto-cli": [ovisto, "set", TITLE_PATH, TITLE],
        "with --rebuild": [ovisto, "set", "--rebuild", TITLE_PATH, TITLE],
        "exiftool": ["exiftool", "-q", "-overwrite_original", "-XPTitle=" + TITLE],
        "exiv2": ["exiv2", "-M", "set Exif.Image.XPTitle Byte " +
                  " ".join(str(byte) for byte in (TITLE + "\0").encode("utf-16-le"))],
    }


def output(*command):
    return subprocess.run(command, capture_output=True, check=False).stdout.decode("utf-8", "replace")


def kind_of(name):
    """The kind of data that a value of exiftool belongs to, by its group and name."""
    group, _, tag = name.partition(":")
    if tag == "XPTitle" or group in ("ExifTool", "System", "File", "Composite", "SourceFile", ""):
        return None
    if tag == "UserComment":
        return "user comments"
    if group in ("IFD0", "ExifIFD", "InteropIFD"):
        return "other Exif values"
    if group in ("IFD1", "SubIFD"):
        return "thumbnail and its values"
    if group == "GPS":
        return "GPS"
    if group == "PrintIM":
        return "PrintIM"
    if group.startswith("XMP") or group in ("IPTC", "Photoshop", "JFIF", "Adobe", "APP14", "MPF0") or "ICC" in group:
        return "XMP, IPTC, profiles, other segments"
    return "maker notes"


def values(path):
    """What exiftool tells, by kind; duplicates and unknown tags too."""
    report = output("exiftool", "-a", "-u", "-b", "-j", "-G1:4", path)
    told = json.loads(report)[0] if report else {}
    kinds = {}
    for name, value in told.items():
        group = name.split(":")[0]
        kind = kind_of(group + ":" + name.split(":")[-1])
        if kind and not name.endswith((":ThumbnailOffset", ":PreviewImageStart", ":StripOffsets", ":ExifOffset")):
            kinds.setdefault(kind, {})[name] = value
    return kinds


def segments(path):
    """The other segments, byte for byte, and everything from the scan on."""
    with open(path, "rb") as file:
        data = file.read()
    place, others = 2, []
    while place + 4 <= len(data):
        marker, length = data[place:place + 2], int.from_bytes(data[place + 2:place + 4], "big")
        segment = data[place:place + 2 + length]
        if marker == b"\xff\xda":
            break
        if not segment[4:].startswith(b"Exif\0"):
            others.append(segment)
        place += 2 + length
    return others, data[place:]


def witnesses(path):
    """All that is held against the original, by kind of data."""
    told = values(path)
    others, scan = segments(path)
    told["XMP, IPTC, profiles, other segments"] = others
    told["bytes from the scan on"] = scan
    told["the decoded picture"] = hashlib.sha256(
        subprocess.run(["djpeg", path], capture_output=True, check=False).stdout).hexdigest()
    told["what jhead tells"] = [line for line in output("jhead", path).splitlines()
                                if not line.startswith(("File name", "File size", "File date"))]
    told["what exiv2 tells"] = [line for line in output("exiv2", "-u", "-PEXIkv", path).splitlines()
                                if not any(tag in line for tag in ("XPTitle", "Offset", "ExifTag", "GPSTag",
                                                                   "InteroperabilityTag", "JPEGInterchangeFormat "))]
    return {kind: what for kind, what in told.items() if what}


def main(ovisto, folder):
    originals = sorted(os.path.join(where, name) for where, _, names in os.walk(folder) for name in names
                       if name.lower().endswith((".jpg", ".jpeg")))
    had, hurt, written = {}, {}, {}
    with tempfile.TemporaryDirectory() as work:
        for number, original in enumerate(originals):
            before = witnesses(original)
            for kind in before:
                had[kind] = had.get(kind, 0) + 1
            for program, command in ways(ovisto).items():
                copy = os.path.join(work, "%d.jpg" % number)
                shutil.copyfile(original, copy)
                os.chmod(copy, 0o600)
                subprocess.run(command + [copy], capture_output=True, check=False)
                if "XPTitle" not in output("exiftool", "-s", "-XPTitle", copy) or \
                        TITLE not in output("exiftool", "-s", "-XPTitle", copy):
                    continue
                written[program] = written.get(program, 0) + 1
                after = witnesses(copy)
                lost = [kind for kind in before if before[kind] != after.get(kind)]
                for kind in lost:
                    hurt[program, kind] = hurt.get((program, kind), 0) + 1
                if lost:
                    hurt[program, "any of these"] = hurt.get((program, "any of these"), 0) + 1
    programs = list(ways(ovisto))
    print("%-38s %6s " % ("%d files, a title set" % len(originals), "had it") +
          " ".join("%15s" % program for program in programs))
    print("%-38s %6s " % ("written", "") + " ".join("%15d" % written.get(program, 0) for program in programs))
    had["any of these"] = len(originals)
    for kind in sorted(had, key=lambda kind: (kind == "any of these", kind)):
        print("%-38s %6d " % (kind, had[kind]) +
              " ".join("%15d" % hurt.get((program, kind), 0) for program in programs))


main(sys.argv[1], sys.argv[2])
