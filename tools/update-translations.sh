#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Brings the translations in src/ui/translations up to date with the texts of the program. With --check it changes
# nothing, and fails if they are not up to date or not complete.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/install.sh
install_packages qt6-l10n-tools

FOLDER=src/ui/translations
LUPDATE=/usr/lib/qt6/bin/lupdate
[ -x "$LUPDATE" ] || LUPDATE=lupdate

# Without the places of the texts, which would change with every line; what is no longer there goes.
update() {
    local folder=$1
    "$LUPDATE" src -silent -locations none -no-obsolete -no-ui-lines -ts "$folder"/ovisto_{de,fr,pl,zh_CN}.ts
    "$LUPDATE" src -silent -locations none -no-obsolete -no-ui-lines -pluralonly -ts "$folder"/ovisto_en.ts
}

if [ "${1:-}" != --check ]; then
    update "$FOLDER"
    exit
fi
copy=$(mktemp -d)
trap 'rm -r "$copy"' EXIT
cp "$FOLDER"/*.ts "$copy"
update "$copy"
diff -r "$FOLDER" "$copy" || { echo "Run tools/update-translations.sh, and translate what is new." >&2; exit 1; }
if grep -n 'type="unfinished"' "$FOLDER"/*.ts; then
    echo "Not all is translated." >&2
    exit 1
fi
