#!/usr/bin/env bash
# Runs the window program as a screen reader meets it: on a display of its own (Xvfb), with a private
# session bus and the accessibility bus, and walks every form of its menu through AT-SPI.
#   run_walk.sh PROGRAM          starts the display and the session bus, then itself inside them
set -euo pipefail
program=$1
here=$(cd "$(dirname "$0")" && pwd)

if [ "${LW_WALK_INSIDE:-}" != 1 ]; then
  for tool in xvfb-run dbus-run-session /usr/libexec/at-spi-bus-launcher; do
    command -v "$tool" >/dev/null || { echo "missing $tool: run tools/install-deps" >&2; exit 1; }
  done
  /usr/bin/python3 -c "import pyatspi" || { echo "missing python3-pyatspi: run tools/install-deps" >&2; exit 1; }
  export LW_WALK_INSIDE=1
  exec xvfb-run -a -s "-screen 0 1920x1200x24" dbus-run-session -- "$0" "$@"
fi

work=$(mktemp -d)
program_pid=""
bus_pid=""
finish() {
  for pid in $program_pid $bus_pid; do
    kill "$pid" 2>/dev/null || true
    wait "$pid" 2>/dev/null || true
  done
  rm -rf "$work"
}
trap finish EXIT

# The accessibility bus answers on the session bus; the program finds it there.
/usr/libexec/at-spi-bus-launcher --launch-immediately &
bus_pid=$!

export LEDGERWICK_ROOT="$work/root"
export XDG_RUNTIME_DIR="$work/runtime"
mkdir -p "$LEDGERWICK_ROOT" "$XDG_RUNTIME_DIR"
chmod 700 "$XDG_RUNTIME_DIR"
unset QT_QPA_PLATFORM
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
export QT_ACCESSIBILITY=1
"$program" >"$work/program.log" 2>&1 &
program_pid=$!

status=0
/usr/bin/python3 "$here/walk_forms.py" "$(basename "$program")" || status=$?
if ! kill -0 "$program_pid" 2>/dev/null; then
  echo "the program ended during the walk:" >&2
  cat "$work/program.log" >&2
  status=1
fi
exit $status
