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

# configure PRESET [OPTION...]: CMake before 3.21 knows no presets and gets what is in the file as options.
configure() {
    local preset=$1 options
    if cmake --list-presets >/dev/null 2>&1; then
        cmake --preset "$@" >/dev/null
    else
        options=$(python3 - "$preset" <<'END'
import json, os, sys
presets = {preset["name"]: preset for preset in json.load(open("CMakePresets.json"))["configurePresets"]}
def variables(name):
    inherited = variables(presets[name]["inherits"]) if "inherits" in presets[name] else {}
    return {**inherited, **presets[name].get("cacheVariables", {})}
for name, value in variables(sys.argv[1]).items():
    print("-D%s=%s" % (name, os.path.expandvars(value.replace("$env{", "${"))))
END
        )
        mapfile -t options <<<"$options"
        cmake -S . -B "build/$preset" -G Ninja "${options[@]}" "${@:2}" >/dev/null
    fi
}

script=$(realpath "$0")
cd "$(dirname "$script")/.."
if [ "${1:-}" = --help ] || [ "${1:-}" = -h ]; then
    usage
    exit 0
fi
