# SPDX-License-Identifier: MIT

# Reads CHANGELOG.md and prints what was released, as `form` asks:
#     debian     the changelog of a Debian package (with `revision`, that of the package)
#     appstream  the <release> elements of the metainfo file
#     epoch      when the newest version was released, in seconds since 1970
# Sections without a date are not released yet. Run it with TZ=UTC and LC_ALL=C.

function finishItem() {
    if (item == "")
        return
    gsub(/`/, "", item)
    if (form == "debian")
        printItem(item)
    item = ""
}

# Debian's lines have at most 80 characters.
function printItem(text,    words, count, line, i) {
    count = split(text, words, " ")
    line = "  *"
    for (i = 1; i <= count; i++) {
        if (length(line " " words[i]) > 80) {
            print line
            line = "   "
        }
        line = line " " words[i]
    }
    print line
}

function finishRelease() {
    finishItem()
    if (version != "" && form == "debian")
        printf "\n -- The Ovisto authors <authors@ovisto.invalid>  %s\n\n", strftime("%a, %d %b %Y 00:00:00 +0000", seconds)
    version = ""
}

/^## / { finishRelease() }

/^## \[[0-9.]+\] - [0-9]+-[0-9]+-[0-9]+/ {
    version = substr($2, 2, length($2) - 2)
    day = $4
    gsub(/-/, " ", day)
    seconds = mktime(day " 00 00 00")
    if (form == "debian")
        printf "ovisto (%s-%s) bookworm; urgency=medium\n\n", version, revision
    else if (form == "appstream")
        printf "    <release version=\"%s\" date=\"%s\"/>\n", version, $4
    else if (form == "epoch") {
        print seconds
        exit
    }
    next
}

version == "" { next }
/^#/ || /^$/ { finishItem(); next }
/^- / { finishItem(); item = substr($0, 3); next }
{ sub(/^ +/, ""); item = item == "" ? $0 : item " " $0 }

END { finishRelease() }
