#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs the commands of docs/large-archives.md, as they stand there, over many copies of the samples: GNU parallel with two
# "hosts" that are this machine, everything killed in the middle and started again. The result must be that of one run.
# parallel.sh OVISTO_CLI: status 77 without parallel.
set -euo pipefail
command -v parallel >/dev/null || { echo "GNU parallel is not installed"; exit 77; }
source=$(cd "$(dirname "$0")/../.." && pwd)
PATH=$(dirname "$(realpath "$1")"):$PATH
export PATH ARCHIVE=archive LC_ALL=C.UTF-8
work=$(mktemp -d)
export WORK=$work HOME=$work # where parallel keeps what it remembers

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

# The processes of the session $1, all of which this script started.
session() {
    # After the name of the program, which may have blanks: state, parent, group, session.
    awk -v wanted="$1" '{ sub(/.*\) /, ""); if ($4 == wanted && $1 != "Z") { split(FILENAME, part, "/"); print part[3] } }' \
        /proc/[0-9]*/stat 2>/dev/null || true
}

end() {
    [ ! -s "$work/session" ] || session "$(cat "$work/session")" | xargs -r kill -KILL 2>/dev/null || true
    rm -rf "$work"
}
trap end EXIT

# The block of the page with this name.
block() {
    awk -v mark="<!-- $1 -->" '$0 == mark { found = 1 } found && /^```/ { if (inside) exit; inside = 1; next } inside' \
        "$source/docs/large-archives.md" | sed 's/-l 10000 /-l 20 /'
}

# In the place of ssh: HOST -- COMMAND, run here, in the home folder, with the shell in the environment as after each login.
# When $WORK/hang is there, the jobs after the eighth hang.
cat >"$work/ssh" <<'END'
#!/bin/sh
export SHELL=/bin/sh
shift
[ "$1" != -- ] || shift
if [ -e "$WORK/hang" ]; then
    echo job >>"$WORK/hang"
    [ "$(wc -l <"$WORK/hang")" -le 8 ] || exec sleep 1000
fi
cd "$HOME" && exec sh -c "$*"
END
chmod +x "$work/ssh"
export PARALLEL_SSH=$work/ssh

# Names of all kinds, in two folders; two files are no photographs.
mkdir -p "$work/one/archive/a folder" "$work/one/archive/b"
cd "$work/one"
for ((i = 0; i < 130; ++i)); do
    for sample in big-endian little-endian no-exif; do
        name="$i's Größe"
        ((i % 7)) || name+=$'\nline'
        cp "$source/samples/$sample.jpg" "archive/$([ $((i % 2)) = 0 ] && echo 'a folder' || echo b)/$name $sample.jpg"
    done
done
echo "not a photograph" >"archive/a folder/10 broken.jpg"
echo "nor this" >archive/b/99.jpg
cp -r "$work/one" "$work/many"

echo "== one run on one machine"
eval "$(block list)"
block part.sh | sed 's/^part=.*/part=all.list/' >part.sh
sh part.sh || [ $? = 1 ] || fail "the run"
[ "$(tr -cd '\0' <all.list.title.failed | wc -c)" = 2 ] || fail "not the two broken files were listed"
ovisto-cli report --style csv --output all.csv -0 --files-from all.list 2>/dev/null || true
ovisto-cli xml --full -0 --files-from all.list 2>/dev/null >documents || true

echo "== many runs, killed in the middle"
cd "$work/many"
eval "$(block list)"
cmp all.list ../one/all.list
for script in part.sh report.sh xml.sh slurm.sh; do
    block "$script" >"$script"
    [ -s "$script" ] || fail "no $script in the page"
done
parts=$(ls parts | wc -l)
: >"$work/hang"
setsid sh -c 'echo $$ >"$WORK/session"; exec sh -c "$0"' "$(block run)" >"$work/said" 2>&1 &
job=$!
done=0
for ((deadline = SECONDS + 120; done < 4 && SECONDS < deadline; )); do
    sleep 0.01
    done=$(find parts -name '*.failed' | wc -l)
    kill -0 "$job" 2>/dev/null || break
done
[ "$done" -ge 4 ] || fail "only $done parts were done: $(cat "$work/said")"
for ((i = 0; i < 1000; ++i)); do
    session "$(cat "$work/session")" >"$work/left"
    [ -s "$work/left" ] || break
    xargs kill -KILL <"$work/left" 2>/dev/null || true
done
wait "$job" 2>/dev/null || true
done=$(find parts -name '*.failed' | wc -l)
[ "$done" -lt "$parts" ] || fail "it was not killed in the middle"
echo "$done of $parts parts were done"
rm "$work/hang"

echo "== started again"
status=0
eval "$(block run)" 2>/dev/null || status=$?
[ "$status" = 2 ] || fail "$status parts failed, not the two with a broken file"
cmp <(cat parts/*.failed) ../one/all.list.title.failed
diff -r archive ../one/archive
[ "$(eval "$(block failed)" | grep -c .)" = 2 ] || fail "what failed is shown in another way"
eval "$(block verify)" 2>/dev/null && fail "the broken files have a title"
cmp <(sort -z have.list <(cat parts/*.failed)) <(sort -z all.list)

echo "== reports"
mv "archive/b/1's Größe no-exif.jpg" away.jpg
for failing in 3 2 2; do # a photograph that could not be read is tried again
    for script in report xml; do
        status=0
        eval "$(block run | sed "s/part.sh/$script.sh/")" 2>/dev/null || status=$?
        [ "$status" = "$failing" ] || fail "$script.sh: $status parts failed"
    done
    [ ! -e away.jpg ] || mv away.jpg "archive/b/1's Größe no-exif.jpg"
done
eval "$(block merge)"
cmp all.csv ../one/all.csv
cmp all.xml <(echo '<JPEGs>'; cat ../one/documents; echo '</JPEGs>')
xmllint --noout all.xml

echo "== the script for Slurm"
printf '#!/bin/sh\nexec "$@"\n' >"$work/srun"
chmod +x "$work/srun"
rm parts/0003.title.failed parts/0017.title.failed
SLURM_ARRAY_TASK_ID=1 PATH=$work:$PATH sh slurm.sh 2>/dev/null || [ $? = 1 ] || fail "slurm.sh"
SLURM_ARRAY_TASK_ID=0 PATH=$work:$PATH sh slurm.sh 2>/dev/null || [ $? = 1 ] || fail "slurm.sh"
cmp <(cat parts/*.failed) ../one/all.list.title.failed
diff -r archive ../one/archive

echo "== the words of the title elsewhere"
other="archive/b/1's Größe no-exif.jpg"
ovisto-cli set "/JPEG/Exif[@id='FFE1']/IFD[@id='9C9B']" "Town archives" "$other"
ovisto-cli set "/JPEG/Exif[@id='FFE1']/IFD[@id='010E']" "Town archive" "$other"
eval "$(block verify)" 2>/dev/null || true
cmp <(sort -z have.list <(printf '%s\0' "$other") <(cat parts/*.failed)) <(sort -z all.list)
