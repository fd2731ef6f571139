# shellcheck shell=bash
# SPDX-License-Identifier: LGPL-2.1-or-later
# Sourced by each script with its arguments: goes to the root of the sources and answers --help with the comment at
# the script's head.
set -euo pipefail

usage() {
    awk 'NR > 2 { if (!/^#/) exit; sub(/^# ?/, ""); print }' "$script"
}

# For arguments that a script does not know.
refuse() {
    echo "$(basename "$script"): $1" >&2
    usage >&2
    exit 2
}

# What follows a script's last argument: no_more "$@"
no_more() {
    [ $# -eq 0 ] || refuse "what is $1?"
}

whole_number() {
    [[ $1 =~ ^[1-9][0-9]*$ ]] || refuse "\"$1\" is not a number of seconds"
}

# The files of these patterns that are tracked or new go to the array files. Deleted ones are tracked until that
# is staged.
source_files() {
    local listed file
    listed=$(git ls-files --cached --others --exclude-standard -- "$@")
    files=()
    while read -r file; do
        if [ -f "$file" ]; then
            files+=("$file")
        fi
    done <<<"$listed"
    [ ${#files[@]} -gt 0 ] || { echo "$(basename "$script"): no sources found" >&2; exit 1; }
}

# As cmake --preset: configure PRESET [OPTION...]
configure() {
    cmake --preset "$@" >/dev/null
}

script=$(realpath "$0")
cd "$(dirname "$script")/.."
if [ "${1:-}" = --help ] || [ "${1:-}" = -h ]; then
    usage
    exit 0
fi
