#!/bin/bash
# play.sh OFFER DRIVE FOLDER FILES SCRIPT KIND...: on an X server of its own, plays SCRIPT while another
# process offers FILES/SCRIPT.text and FILES/SCRIPT.html, as KIND (text, html) says, on the clipboard.
set -euo pipefail
offer=$1 drive=$2 folder=$3 files=$4 script=$5
shift 5

rm -rf "$folder"
mkdir -p "$folder"
cd "$folder"
printf '1\r\n2\r\n4\r\n' > series.vkr
arguments=()
for kind in "$@"; do arguments+=("--$kind" "$files/$script.$kind"); done

# Everything that is started here ends with this script, the server last.
end() {
  local process
  for process in "${other_PID:-}" "${server:-}"; do
    kill "$process" 2> /dev/null || true
    wait "$process" 2> /dev/null || true
  done
}
trap end EXIT

mkfifo display
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3> display 2> xvfb.log &
server=$!
read -r number < display
export DISPLAY=:$number QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY

coproc other { exec "$offer" "${arguments[@]}"; }
read -r said <&"${other[0]}"
[[ $said == offered ]]
timeout 60 "$drive" "$files/$script.session"
