# shellcheck shell=bash
# shellcheck disable=SC2154  # who sources this sets $exe, the executable, and $work, a folder of its own
# shellcheck disable=SC2119,SC2120  # arguments for the executable are given by some of them
# What tests of the delivered executable share: it is started, seen and driven from outside.

desktop=$WINEPREFIX/drive_c/users/$(id -un)/Desktop

say() { echo "${0##*/}: $1"; }
fail() { say "FAILED: $1"; exit 1; }

wait_for() { # what, command...
    local tries
    for ((tries = 0; tries < 300; tries++)); do
        "${@:2}" >/dev/null 2>&1 && return
        sleep 0.1
    done
    fail "$1"
}
visible() { window=$(xdotool search --onlyvisible --name "$1" | head -1) && [[ -n $window ]]; }
hidden() { ! visible "$1"; }
click() { xdotool mousemove --window "$tool" "$1" "$2" click 1; }

start() { # argument...
    env --unset=WINEQT_FORCE_STDERR_LOGGING wine64 "$exe" "$@" >"$work/output" 2>&1 &
    pid=$!
    wait_for "no window" visible '^Calora configurator$'
    tool=$window
}

size_is() { [[ $(xdotool getwindowgeometry "$tool" | sed -n 's/.*Geometry: //p') == "$1" ]]; }

close() {
    local code=0
    click 1416 20
    wait "$pid" || code=$?
    ((code == 0)) || fail "the tool ended with $code"
    [[ ! -s $work/output ]] || fail "the tool printed: $(cat "$work/output")"
}

# A whole settings file that misses nothing but to be seen and saved, and what Save makes of it.
settings() {
    python3 - "$1" "$2" <<'PY'
import json, sys
with open("resources/defaultsettings/KV5_AWHP_DATA_R32.json", encoding="utf-8") as file:
    document = json.load(file)
document["SettingInfo"]["user"]["DateInfo"].update(year=2026, month=4, mday=30)
document["IduFuncList"]["is_cool"] = "SET"
with open(sys.argv[1], "w", encoding="utf-8") as file:
    json.dump(document, file, indent=1)
with open(sys.argv[2], "w", encoding="utf-8") as file:
    json.dump(document, file, sort_keys=True, separators=(",", ":"), ensure_ascii=False)
PY
}

# The dialog of Windows itself starts at the desktop.
saves_what_it_opened() {
    settings "$desktop/plant.json" "$work/expected.json"
    start
    click 155 67 # Open
    wait_for "no dialog to open a file" visible '^Json File$'
    xdotool windowfocus --sync "$window" type --delay 50 plant.json
    xdotool key Return
    wait_for "the dialog stays" hidden '^Json File$'
    click 72 444                                        # Operation setting
    for tab in 620 938 1255; do click "$tab" 161; done  # User, Service, Installation
    click 251 67                                        # Save
    wait_for "the file wasn't saved as expected" cmp "$work/expected.json" "$desktop/plant.json"
    close
}
