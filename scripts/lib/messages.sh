# What the scripts say of themselves, all of it on standard error: standard output belongs to what was asked for.
# To be sourced under `set -o pipefail`.

say() {
    echo "${0##*/}: $*" >&2
}

fail() {
    say "$*"
    exit 1
}

# with_progress TITLE LOG COMMAND...: runs the command with its output in LOG, and says now and then that it lives.
with_progress() {
    local title=$1 log=$2
    shift 2
    say "$title"
    "$@" 2>&1 | report_progress >"$log"
}

# Passes its input on. What ninja or ctest counts, "[3/12]" or "3/12", is how far the work has come.
report_progress() {
    local interval=10 line counted="" state=0 started=$SECONDS told=$SECONDS
    while [ "$state" -eq 0 ] || [ "$state" -gt 128 ]; do  # above 128: nothing to read for a while
        state=0
        IFS= read -r -t "$interval" line || state=$?
        printf '%s' "$line"
        [ "$state" -ne 0 ] || echo
        [[ ! "$line" =~ ^\[?\ *([0-9]+/[0-9]+) ]] || counted="${BASH_REMATCH[1]}, "
        if [ $((SECONDS - told)) -ge "$interval" ]; then
            told=$SECONDS
            say "    $counted$((SECONDS - started)) s"
        fi
    done
}
