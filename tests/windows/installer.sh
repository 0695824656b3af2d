#!/usr/bin/env bash
# The installer for Windows: installs a former version, upgrades it over languages of the user's own, uses the tool, and
# uninstalls it. Usage: with-display with-wine installer.sh ZIP INSTALLER
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

zip=$1
setup=$2
home=$WINEPREFIX/drive_c/users/$(id -un)
folder="$home/AppData/Local/Programs/Calora configurator"
link="$home/AppData/Roaming/Microsoft/Windows/Start Menu/Programs/Calora configurator.lnk"
entry='HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\CaloraConfigurator'
work=$WINEPREFIX/drive_c/work
exe=$folder/calora-configurator.exe
mkdir -p "$work"
# shellcheck source=tests/windows/driving.sh
. tests/windows/driving.sh

# What lies in the zip, and a version before it, in which every language lacks a text.
unpack() {
    python3 - "$zip" "$work" <<'PY'
import re, shutil, sys, zipfile
from pathlib import Path
work = Path(sys.argv[2])
with zipfile.ZipFile(sys.argv[1]) as source:
    source.extractall(work)
(root,) = (path for path in work.iterdir() if path.is_dir())
root.rename(work / "new")
former = work / "calora-configurator-0.0.1-windows-x86_64"
shutil.copytree(work / "new", former)
(former / "guide/former.html").write_text("gone")
for language in (former / "language").glob("*.json"):
    text = language.read_text(encoding="utf-8")
    language.write_text(re.sub(r'^.*"Year":.*\n', "", text, flags=re.M), encoding="utf-8")
shutil.make_archive(former, "zip", work, former.name)
PY
    SOURCE_DATE_EPOCH=0 packaging/windows/installer.py "$work/calora-configurator-0.0.1-windows-x86_64.zip" 0.0.1 \
        resources/images/launcher_ic.ico
}
run() { wine64 "$@" /S; }
# It goes on in a copy of itself, which removes the uninstaller and after that what it is registered by.
uninstall() {
    run "$folder/uninstall.exe"
    wait_for "uninstalling doesn't end" unregistered
}
unregistered() { [[ ! -e $folder/uninstall.exe && -z $(registered DisplayVersion) ]]; }
winepath_of() { printf 'C:%s\n' "${1#"$WINEPREFIX/drive_c"}" | sed 's,/,\\,g'; }
registered() { wine64 reg query "$entry" /v "$1" 2>/dev/null | tr -d '\r' | sed -n "s/^ *$1 *REG_[A-Z]* *//p"; }
# Beside what is in the zip, only what the installer itself leaves.
is_whole() {
    diff -r --exclude language --exclude delivered --exclude uninstall.exe "$1" "$folder" && [[ -s $folder/uninstall.exe ]]
}

installs() {
    run "$work/calora-configurator-0.0.1-windows-x86_64-setup.exe"
    is_whole "$work/calora-configurator-0.0.1-windows-x86_64" || fail "not all is installed"
    diff -r "$work/calora-configurator-0.0.1-windows-x86_64/language" "$folder/language" || fail "languages aren't as delivered"
    [[ -s $link ]] || fail "the start menu has no entry"
    [[ $(registered DisplayVersion) == 0.0.1 ]] || fail "Windows isn't told of the version"
    [[ $(registered InstallLocation) == "$(winepath_of "$folder")" ]] || fail "Windows isn't told of the place"
}

upgrades() {
    echo >>"$folder/language/Deutsch.json"
    echo '{}' >"$folder/language/Own.json"
    printf Own >"$folder/language/language.ini"
    cp -r "$folder/language" "$work/own"
    run "$setup"
    is_whole "$work/new" || fail "the upgrade isn't whole"
    for file in English.json Čeština.json Ελληνικά.json; do
        cmp "$work/new/language/$file" "$folder/language/$file" || fail "the upgrade leaves $file without its new text"
    done
    for file in Deutsch.json Own.json language.ini; do
        cmp "$work/own/$file" "$folder/language/$file" || fail "the upgrade changes the user's $file"
    done
    [[ $(registered DisplayVersion) == "$version" ]] || fail "Windows isn't told of the upgrade"
}

# Whoever has the tool open is told to close it; without a window to tell so, nothing changes.
waits_for_the_tool() {
    printf English >"$folder/language/language.ini"
    saves_what_it_opened
    start
    local code=0
    run "$work/calora-configurator-0.0.1-windows-x86_64-setup.exe" || code=$?
    ((code == 2)) || fail "an upgrade beneath an open tool ends with $code"
    is_whole "$work/new" || fail "an upgrade beneath an open tool changes it"
    close
    printf Own >"$folder/language/language.ini"
}

leaves_own_languages() {
    uninstall
    [[ $(cd "$folder" && find . -type f | sort | xargs) == "./language/Deutsch.json ./language/Own.json ./language/language.ini" ]] ||
        fail "uninstalling leaves $(cd "$folder" && find . -type f | sort | xargs)"
    [[ ! -e $link ]] || fail "the start menu keeps its entry"
    run "$setup"
    for file in Deutsch.json Own.json language.ini; do
        cmp "$work/own/$file" "$folder/language/$file" || fail "installing anew changes the user's $file"
    done
}

leaves_nothing_else() {
    cp "$work/new"/language/* "$folder/language"
    rm "$folder/language/Own.json"
    uninstall
    [[ ! -e $folder ]] || fail "uninstalling leaves $(find "$folder" -printf '%P ')"
}

version=$(basename "$setup" | sed 's/calora-configurator-\(.*\)-windows.*/\1/')
unpack
for check in installs upgrades waits_for_the_tool leaves_own_languages leaves_nothing_else; do
    "$check"
    say "$check: good (${SECONDS} s)"
done
