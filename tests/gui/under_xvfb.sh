#!/bin/sh
# Runs a command on a display of its own that nobody sees, and takes the display away afterwards.
# usage: under_xvfb.sh COMMAND [ARGUMENT...]
set -u

pipe=$(mktemp -u)
mkfifo "$pipe" || exit 1
Xvfb -displayfd 3 -screen 0 1600x1200x24 -nolisten tcp 3>"$pipe" 2>/dev/null &
server=$!
trap 'kill "$server" 2>/dev/null; rm -f "$pipe"' EXIT
trap 'exit 1' INT TERM

# Xvfb writes the number once the display can be used; without it the pipe just ends.
read -r number <"$pipe" || number=
if [ -z "$number" ]; then
  echo "Xvfb did not start" >&2
  exit 1
fi
DISPLAY=":$number" QT_QPA_PLATFORM=xcb "$@"
