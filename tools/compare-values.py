#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Compares what values mean to us with what they mean to exiftool.

    tools/compare-values.py OVISTO-CLI FILE|FOLDER...

Prints first each value whose numbers differ, then, once for each tag, the pairs of words: those a person must read.
A pair that says two things in one language but one in the other is marked, as at most one of them can be right.
Exit status 1 if there are such pairs, or numbers that differ.
"""

import collections
import json
import os
import re
import subprocess
import sys
import tempfile

GROUPS = {"IFD0": "Exif", "ExifIFD": "IFDE", "InteropIFD": "IFDI", "GPS": "IFDG", "IFD1": "IFD1"}
SKIPPED = {  # what exiftool gives no value of, or another one: positions, and what is no value of the Exif data
    "8769", "8825", "A005", "927C", "0111", "0201", "EA1C"}

STYLE = """<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform"
    xmlns:values="urn:ovisto:values">
  <xsl:output method="text"/>
  <xsl:template match="/JPEGs"><xsl:for-each select="JPEG/Exif//IFD">
    <xsl:value-of select="concat(ancestor::JPEG/@folder, ancestor::JPEG/@fileName, '&#31;', name(..), '&#31;', @id,
      '&#31;', ., '&#31;', values:text(.), '&#30;')"/>
  </xsl:for-each></xsl:template>
</xsl:stylesheet>""".replace("&#31;", "&#xE001;").replace("&#30;", "&#xE002;")


def photographs(names):
    for name in names:
        if os.path.isdir(name):
            for folder, _, files in sorted(os.walk(name)):
                yield from (os.path.join(folder, file) for file in sorted(files) if file.lower().endswith(".jpg"))
        else:
            yield name


def our_values(cli, files):
    """(file, directory, tag): (raw, text)."""
    with tempfile.NamedTemporaryFile("w", suffix=".xsl") as style:
        style.write(STYLE)
        style.flush()
        run = subprocess.run([cli, "report", "--style", style.name, *files], capture_output=True, check=False)
    values = {}
    for line in run.stdout.decode("utf-8").split("\uE002"):
        if line:
            file, directory, tag, raw, text = line.split("\uE001")
            values.setdefault((os.path.realpath(file), directory, tag), (raw, text))
    return values


def their_values(files):
    run = subprocess.run(["exiftool", "-j", "-H", "-G1", "-u", "-a", "-e", "-charset", "filename=utf8", *files],
                         capture_output=True, check=False)
    values = {}
    for photograph in json.loads(run.stdout):
        file = os.path.realpath(photograph.pop("SourceFile"))
        for name, value in photograph.items():
            group = GROUPS.get(name.partition(":")[0])
            if group and isinstance(value, dict):
                tag = "%04X" % int(value["id"], 16)
                values.setdefault((file, group, tag), str(value["val"]))
    return values


def numbers(text):
    """The numbers of a text, fractions as decimals."""
    text = re.sub(r"(?<=\d),(?=\d{3}(\D|$))", "", text)
    text = re.sub(r"(\d+) (\d+)/(\d+)", lambda m: str(int(m[1]) + int(m[2]) / int(m[3])), text)
    text = re.sub(r"(\d+)/(\d+)", lambda m: str(int(m[1]) / max(1, int(m[2]))), text)
    return [float(number) for number in re.findall(r"(?<![\d.])-?\d+(?:\.\d+)?(?:e[-+]\d+)?", text)]


def equal(ours, theirs):
    mine, other = numbers(ours), numbers(theirs)
    return len(mine) == len(other) and all(abs(a - b) <= max(0.06, 0.03 * abs(b)) for a, b in zip(mine, other))


def is_named(raw, text):
    return text != raw and (text.endswith("(" + raw + ")") or re.search(r"\(0x[0-9A-F]+\)$", text))


def digits(text):
    """Those of a date or a version, without the zeros around it."""
    return re.sub(r"\D", "", text).strip("0")


def main(cli, names):
    files = list(photographs(names))
    ours, theirs = our_values(cli, files), their_values(files)
    different, pairs = [], collections.defaultdict(collections.Counter)
    same = 0
    for key, (raw, text) in sorted(ours.items()):
        other = theirs.get(key)
        if key[2] in SKIPPED or other is None or other.startswith("(Binary data"):
            continue
        if is_named(raw, text):
            pairs[key[1:]][text.rpartition(" (")[0], other] += 1
        elif text.strip() == other.strip() or digits(text) == digits(other) != "" or equal(text, other):
            same += 1
        else:
            different.append((key[1], key[2], raw, text, other, os.path.basename(key[0])))
    print(f"{len(ours)} values, {sum(key in theirs for key in ours)} known to exiftool; {same} say the same numbers\n")
    for directory, tag, raw, text, other, file in different:
        print(f"differs  {directory} {tag}  raw {raw[:40]!r}  ours {text[:50]!r}  exiftool {other[:50]!r}  {file}")
    marked = 0
    for (directory, tag), words in sorted(pairs.items()):
        mine = collections.Counter(text for text, _ in words)
        other = collections.Counter(text for _, text in words)
        for (text, their), count in sorted(words.items()):
            ambiguous = mine[text] > 1 or other[their] > 1
            marked += ambiguous
            print(f"{'MARKED ' if ambiguous else 'words  '}  {directory} {tag}  {text!r}  {their!r}  {count} times")
    return 1 if different or marked else 0


if __name__ == "__main__":
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    sys.exit(main(sys.argv[1], sys.argv[2:]))
