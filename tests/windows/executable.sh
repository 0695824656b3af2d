#!/usr/bin/env bash
# The executable for Windows as it is delivered, started from a copy of its folder under Wine, seen and driven from
# outside. Usage: with-display with-wine executable.sh EXECUTABLE
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

# Root may write everywhere but in a folder that is mounted read-only, which only this script is to see.
if ((EUID == 0)) && [[ -z ${CALORA_OWN_MOUNTS:-} ]] && unshare --mount true; then
    CALORA_OWN_MOUNTS=yes exec unshare --mount "${BASH_SOURCE[0]}" "$@"
fi

delivered=$(dirname "$1")
work=$WINEPREFIX/drive_c/work
folder=$work/calora
mkdir -p "$folder"
cp -r "$delivered/." "$folder"
exe=$folder/calora-configurator.exe

# shellcheck source=tests/windows/driving.sh
. tests/windows/driving.sh

# What Windows is told by the file itself.
is_made_for_windows() {
    local told
    told=$(x86_64-w64-mingw32-objdump -p "$exe")
    grep -q '^Subsystem.*(Windows GUI)$' <<<"$told" || fail "the executable has a console"
    # Every library that it needs is one of Windows.
    while read -r library; do
        [[ -e $WINEPREFIX/drive_c/windows/system32/${library,,} ]] || fail "the executable needs $library"
    done < <(sed -n 's/^\s*DLL Name: //p' <<<"$told")
    x86_64-w64-mingw32-objdump -h "$exe" | grep -q ' .rsrc ' || fail "the executable has no resources"
    python3 - "$exe" <<'PY' || fail "the executable lacks its icon or version"
import sys
image = open(sys.argv[1], "rb").read()
icon = open("resources/images/launcher_ic.ico", "rb").read()
texts = {"FileDescription": "Calora configurator", "OriginalFilename": "calora-configurator.exe"}
assert icon[-1000:] in image
for name, value in texts.items():
    assert name.encode("utf-16-le") + b"\0\0" in image and value.encode("utf-16-le") in image, name
PY
}

# Arguments are ignored, also those that Qt knows; nothing is printed.
starts_and_ends() {
    start -platform offscreen -style windows --help
    wait_for "the window isn't 1440 x 800" size_is 1440x800
    close
}

runs_in_a_read_only_folder() {
    if ((EUID != 0)); then
        chmod -R a-w "$folder"
    elif [[ -n ${CALORA_OWN_MOUNTS:-} ]]; then
        mount --bind "$folder" "$folder"
        mount -o remount,bind,ro "$folder"
    else
        say "no mounts here: skipped"
        return
    fi
    ! touch "$folder/a" 2>/dev/null || fail "the folder can be written"
    start
    wait_for "the window isn't 1440 x 800" size_is 1440x800
    close
    if ((EUID == 0)); then
        umount "$folder"
    else
        chmod -R u+w "$folder"
    fi
}

# Twice the usual density, which enlarges the windows of programs that ask for it.
isnt_scaled() {
    wine64 reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d 192 /f >/dev/null
    wineserver64 --kill
    wineserver64 --wait
    start
    wait_for "the window isn't 1440 x 800" size_is 1440x800
    close
}

for check in is_made_for_windows starts_and_ends saves_what_it_opened runs_in_a_read_only_folder isnt_scaled; do
    "$check"
    say "$check: good (${SECONDS} s)"
done
