# SPDX-License-Identifier: MIT
# Sourced by the benchmarks: times commands in turn, and compares their times.

# Seconds of each run, by the name of what was timed.
declare -A wall_times processor_times

# measure NAME COMMAND...: runs a command once more; its output does not count, nor whether it succeeds.
measure() {
    local name=$1 TIMEFORMAT='%R %U %S' wall user system
    shift
    read -r wall user system < <({ time "$@" >/dev/null 2>&1 || true; } 2>&1)
    wall_times[$name]+=" $wall"
    processor_times[$name]+=" $(awk "BEGIN { print $user + $system }")"
}

# Prints one of the times after sorting: minimum SECONDS..., median SECONDS...
minimum() { printf '%s\n' "$@" | sort -g | head -n 1; }
median() { printf '%s\n' "$@" | sort -g | sed -n "$((($# + 1) / 2))p"; }

# print_times NAME...: wall time and processor time of each, in seconds, after a line that says so.
print_times() {
    printf '  %-28s %10s %10s %10s\n' seconds minimum median processor
    local name
    for name in "$@"; do
        # shellcheck disable=SC2086
        printf '  %-28s %10.3f %10.3f %10.3f\n' "$name" "$(minimum ${wall_times[$name]})" \
            "$(median ${wall_times[$name]})" "$(minimum ${processor_times[$name]})"
    done
}

# ratio NAME OTHER [FACTOR]: how many times as long as OTHER the first took: by the shortest times, by the medians, and by
# the shortest processor times. With FACTOR, NAME did only that part (20 for a twentieth) of the work of OTHER.
ratio() {
    # shellcheck disable=SC2086
    awk -v factor="${3:-1}" -v least="$(minimum ${wall_times[$1]})/$(minimum ${wall_times[$2]})" \
        -v middle="$(median ${wall_times[$1]})/$(median ${wall_times[$2]})" \
        -v processor="$(minimum ${processor_times[$1]})/$(minimum ${processor_times[$2]})" '
        function quotient(text, parts) { split(text, parts, "/"); return factor * parts[1] / parts[2] }
        BEGIN { printf "%.1f x (median %.1f x, processor time %.1f x)", quotient(least), quotient(middle), quotient(processor) }'
}
