#!/usr/bin/env bash
# Times the whole process, from its start to the first painting of the main window, against a bare
# window with a table of 100 rows. The two run in turn, off screen; medians of 15 runs each.
#
#   bench/start.sh [BUILD]      BUILD is build/bench unless named
set -eu
home=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)
programs=${1:-$home/build/bench}/bench
runs=15
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
printf '[NGtracker]\r\nNG3Dir=%s\r\nDatDir=%s\r\n' \
  "$home/sample/characters" "$home/sample/DATA" > "$work/tracker.ini"
# The window layout of whoever measures stays out of it.
export QT_QPA_PLATFORM=offscreen XDG_CONFIG_HOME="$work"

# once PROGRAM: microseconds of one run.
once() {
  local start=${EPOCHREALTIME/./}
  "$programs/$1" "$work/tracker.ini" 2> "$work/errors" || { cat "$work/errors" >&2; return 1; }
  echo $((${EPOCHREALTIME/./} - start))
}

median() { sort -n "$1" | sed -n "$((runs / 2 + 1))p"; }

once start_window > /dev/null
once empty_window > /dev/null
for ((run = 0; run < runs; ++run)); do
  once start_window >> "$work/program"
  once empty_window >> "$work/empty"
done
program=$(median "$work/program")
empty=$(median "$work/empty")
awk -v p="$program" -v e="$empty" 'BEGIN {
  printf "program %.1f ms, empty window %.1f ms, ratio %.2f\n", p / 1000, e / 1000, p / e }'
