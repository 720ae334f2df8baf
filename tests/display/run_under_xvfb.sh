#!/usr/bin/env bash
# Starts the real program on a private X server, waits for its main window,
# takes a screenshot of the screen and checks that the window was painted,
# then closes the window by its close box and checks that the program ends by
# itself and without an error (in a sanitizer build, that includes the leak
# check at its end). Every wait is bounded, so the test never hangs.
#
# Usage: run_under_xvfb.sh CLOSE_WINDOW PROGRAM [SCREENSHOT.png]
#   CLOSE_WINDOW is tests/display/close_window.cpp, built.
# Needs xvfb-run (xvfb, xauth), xwininfo (x11-utils) and import/identify
# (imagemagick).
set -euo pipefail

closer="$1"
program="$2"
shot="${3:-}"
title="Flickerscribe - by [QZT]Quillon"

if [ -z "${FS_UNDER_XVFB:-}" ]; then
  for tool in xvfb-run xwininfo import identify; do
    command -v "$tool" >/dev/null || { echo "missing $tool (scripts/setup.sh installs it)"; exit 1; }
  done
  # -a picks a free display number, so parallel runs don't meet.
  FS_UNDER_XVFB=1 exec timeout 170 xvfb-run -a -s "-screen 0 1024x768x24" "$0" "$@"
fi

work="$(mktemp -d)"
pid=""
finish() {
  if [ -n "$pid" ] && kill -0 "$pid" 2>/dev/null; then
    kill "$pid" 2>/dev/null || true
    for _ in $(seq 50); do kill -0 "$pid" 2>/dev/null || break; sleep 0.1; done
    kill -9 "$pid" 2>/dev/null || true
  fi
  rm -rf "$work"
}
trap finish EXIT

# The program's settings go to a folder of this run, never the user's.
export HOME="$work" XDG_CONFIG_HOME="$work/config" XDG_RUNTIME_DIR="$work/run"
mkdir -m 700 -p "$XDG_RUNTIME_DIR"
export QT_QPA_PLATFORM=xcb
# It opens the project file named on its command line, and keeps that
# animation when it closes.
printf '#v050#\r\n^1Hi\r\n15\r\n[none]\r\n' >"$work/start.fsq"
"$program" -platform xcb "$work/start.fsq" >"$work/program.log" 2>&1 &
pid=$!

# Wait up to 30 s for the main window to be mapped.
window=""
for _ in $(seq 300); do
  if ! kill -0 "$pid" 2>/dev/null; then
    echo "the program ended before its window showed:"; cat "$work/program.log"; exit 1
  fi
  window="$(xwininfo -root -tree 2>/dev/null | grep -F "\"$title\"" | awk '{print $1; exit}')" || true
  [ -n "$window" ] && break
  sleep 0.1
done
[ -n "$window" ] || { echo "no window titled '$title' within 30 s"; exit 1; }

# Painted means more than a handful of colours on the screen (an empty X
# screen is one colour); painting can follow the mapping by a moment.
colours=0
for _ in $(seq 50); do
  import -window root "$work/screen.png" 2>/dev/null || true
  colours="$(identify -format %k "$work/screen.png" 2>/dev/null || echo 0)"
  [ "$colours" -gt 16 ] && break
  sleep 0.2
done
[ -n "$shot" ] && cp "$work/screen.png" "$shot"
echo "window '$title' shown; screenshot has $colours colours"
[ "$colours" -gt 16 ] || { echo "the window was not painted"; exit 1; }

kill -0 "$pid" 2>/dev/null || { echo "the program ended while showing"; exit 1; }

# The close box: the program ends by itself, with status 0.
"$closer" "$window"
for _ in $(seq 300); do kill -0 "$pid" 2>/dev/null || break; sleep 0.1; done
if kill -0 "$pid" 2>/dev/null; then
  echo "the program did not end within 30 s of its window's close"; exit 1
fi
status=0
wait "$pid" || status=$?
pid=""
if [ "$status" -ne 0 ]; then
  echo "the program ended with status $status:"; cat "$work/program.log"; exit 1
fi
echo "closed; the program ended with status 0"
kept=("$HOME"/.local/share/Flickerscribe/kept-*.fsq)
cmp -s "$kept" "$work/start.fsq" || { echo "the file named on the command line was not opened and kept"; exit 1; }
echo "the file named on the command line was opened, and kept at the end"

# Asked to end by a signal (a shutdown, a logout), it ends as by Exit: by
# itself, with status 0, not killed by the signal.
for signal in TERM HUP; do
  "$program" -platform xcb >"$work/program.log" 2>&1 &
  pid=$!
  shown=""
  for _ in $(seq 300); do
    kill -0 "$pid" 2>/dev/null || break
    xwininfo -root -tree 2>/dev/null | grep -qF "\"$title\"" && { shown=1; break; }
    sleep 0.1
  done
  if [ -z "$shown" ]; then
    echo "for SIG$signal: no window within 30 s, or the program ended first:"; cat "$work/program.log"; exit 1
  fi
  kill -s "$signal" "$pid"
  for _ in $(seq 300); do kill -0 "$pid" 2>/dev/null || break; sleep 0.1; done
  status=0
  wait "$pid" || status=$?
  pid=""
  [ "$status" -eq 0 ] || { echo "SIG$signal ended the program with status $status"; exit 1; }
  echo "SIG$signal: the program ended with status 0"
done
echo "ok"
