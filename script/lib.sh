# Shared by the scripts of this folder, which source it after `set -eu`: where the
# project is, how they speak, and a display of their own with all that they start on it.

project=$(CDPATH='' cd -- "$(dirname -- "$0")/.." && pwd -P)
bundle=$project/build/release/OstrelInstaller.app

# say TEXT...: progress, one line.
say() {
  printf '==> %s\n' "$*"
}

# fail TEXT...: one sentence on standard error, and the end of the script.
fail() {
  printf '%s: %s\n' "script/$(basename -- "$0")" "$*" >&2
  exit 1
}

# wait_while_false SECONDS COMMAND...: repeats the command until it succeeds; false when it is too late.
wait_while_false() {
  wait_end=$(($(date +%s) + $1))
  shift
  until "$@"; do
    [ "$(date +%s)" -lt "$wait_end" ] || return 1
    sleep 0.02
  done
}

# wait_until SECONDS TEXT COMMAND...: the same; fails with TEXT when it is too late.
wait_until() {
  wait_seconds=$1
  wait_text=$2
  shift 2
  wait_while_false "$wait_seconds" "$@" || fail "$wait_text"
}

# wait_for_program SECONDS TEXT LOG COMMAND...: the same for a program that writes to LOG; its
# last line follows TEXT.
wait_for_program() {
  wait_seconds=$1
  wait_text=$2
  wait_log=$3
  shift 3
  wait_while_false "$wait_seconds" "$@" || fail "$wait_text; it says: $(tail -n 1 "$wait_log" 2>/dev/null)"
}

# as_root COMMAND...: runs the command with administrator rights.
as_root() {
  if [ "$(id -u)" = 0 ]; then
    "$@"
  else
    sudo "$@"
  fi
}

# Whether a window can be opened on the display that the environment names.
has_display() {
  [ -n "${DISPLAY-}" ] && xdpyinfo >/dev/null 2>&1
}

# open_session FOLDER: from here on everything started by the script keeps its
# temporary files in FOLDER/tmp. GNUstep starts daemons that outlive the programs
# that needed them, and that all programs find which have the same TEMP; end_session
# finds them by TMPDIR. So sessions at the same time have daemons of their own.
# Keep FOLDER short: it becomes part of the names of sockets.
open_session() {
  session=$1
  mkdir -p "$session/tmp"
  # As open as the system's own: some tests act as another user in it. GNUstep
  # makes a folder inside that is only for the one who runs it.
  chmod 755 "$session"
  chmod 1777 "$session/tmp"
  TMPDIR=$session/tmp
  TEMP=$TMPDIR
  TMP=$TMPDIR
  export TMPDIR TEMP TMP
}

# The processes of the session, one id a line, without this script itself.
session_processes() {
  for session_entry in /proc/[0-9]*; do
    session_id=${session_entry#/proc/}
    [ "$session_id" != "$$" ] || continue
    if grep -qzxF "TMPDIR=$session/tmp" "$session_entry/environ" 2>/dev/null; then
      echo "$session_id"
    fi
  done
}

# end_session: ends every process of the session and nothing else.
end_session() {
  [ -n "${session-}" ] || return 0
  for session_signal in TERM KILL; do
    # shellcheck disable=SC2046
    kill -s "$session_signal" $(session_processes) 2>/dev/null || true
    session_tries=0
    while [ -n "$(session_processes)" ] && [ "$session_tries" -lt 50 ]; do
      sleep 0.02
      session_tries=$((session_tries + 1))
    done
  done
}

has_display_number() {
  [ -s "$session/display" ]
}

has_window_manager() {
  xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 0x
}

# Whether COUNT of GNUstep's daemons can be found by the programs of the session.
has_daemons() {
  [ "$(find "$session/tmp" -path '*/NSMessagePort/names/*' 2>/dev/null | wc -l)" -ge "$1" ]
}

# start_daemons: those that programs would start themselves. These would end with the last
# program that uses them, even while the next one turns to them.
start_daemons() {
  gdnc --no-fork >"$session/gdnc.log" 2>&1 </dev/null &
  wait_for_program 120 "gdnc did not start" "$session/gdnc.log" has_daemons 1
  gpbs --no-fork >"$session/gpbs.log" 2>&1 </dev/null &
  wait_for_program 120 "gpbs did not start" "$session/gpbs.log" has_daemons 2
}

# start_display: an X server with a window manager inside the session, and the daemons that
# GNUstep's programs share there; sets DISPLAY. Arguments go to the server.
start_display() {
  unset DISPLAY XAUTHORITY WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS
  # The server picks a free number and says which. Without -noreset it would start over as
  # soon as nobody is connected, and turn away whoever is just connecting.
  Xvfb -noreset -displayfd 3 -screen 0 1024x768x24 -dpi 96 -nolisten tcp "$@" 3>"$session/display" >"$session/server.log" 2>&1 </dev/null &
  wait_for_program 120 "the X server did not start" "$session/server.log" has_display_number
  DISPLAY=:$(cat "$session/display")
  export DISPLAY
  openbox --sm-disable >"$session/window-manager.log" 2>&1 </dev/null &
  wait_for_program 120 "the window manager did not start" "$session/window-manager.log" has_window_manager
  start_daemons
}

# open_test_session FOLDER: a session with a display, and folders of its own for tests on a
# machine that has nothing on it, not the one they run on. Who calls it ends the session.
open_test_session() {
  open_session "$1"
  # Some tests ask as an ordinary user, who cannot get into the session's own folder.
  mkdir "$1/files"
  chmod 755 "$1/files"
  TEST_TMPDIR=$1/files
  export TEST_TMPDIR
  start_display
  "$project/script/machine" create "$1/machine"
  "$project/script/machine" environment "$1/machine" >"$1/environment"
  while IFS= read -r line; do
    export "${line?}"
  done <"$1/environment"
  unset OSTREL_DATA_PATH OSTREL_USER_PATH
}
