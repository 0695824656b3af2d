#!/usr/bin/env bash
# Tests the launcher of the Debian package on a model folder whose executable only tells how it was started.
# Usage: launcher.sh LAUNCHER
set -uo pipefail

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
model=$work/usr/lib/calora-configurator
launcher=$work/usr/bin/calora-configurator
export HOME="$work/the user's home"
unset XDG_DATA_HOME
own=$HOME/.local/share/calora-configurator
passed=0
failed=0

check() { # what, command...
    if "${@:2}"; then
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
        printf 'FAIL: %s; the launcher said: %s\n' "$1" "$(cat "$work/out" "$work/err")"
    fi
}
is() { [[ $1 == "$2" ]]; }
holds() { is "$(cat "$1")" "$2"; }
start() { "$launcher" "$@" >"$work/out" 2>"$work/err"; }
# Started with $1 for a copy in $2; nothing half made is left.
started() {
    holds "$work/out" "$1 from $2: $3" && holds "$work/err" '' && is "$(find "$2" -name '.*')" ''
}
refused() { # code, reason
    is "$1" 1 && is "$(wc -l <"$work/err")" 1 && grep -qF -- "$2" "$work/err"
}
# Name, content and time of each file of the user's copy.
state() { (cd "$own" && find . -type f -printf '%p %i %T@\n' | sort); }

deliver() { # version: the package of that version is installed
    rm -rf "$model"
    mkdir -p "$model/language"
    # shellcheck disable=SC2016  # the model's executable expands it
    printf '#!/bin/sh\necho "%s from ${0%%/*}: $*"\nexit 7\n' "$1" >"$model/calora-configurator"
    chmod +x "$model/calora-configurator"
    echo "face of $1" >"$model/NotoSans-Bold.ttf"
    echo "English of $1" >"$model/language/English.json"
    echo "Czech of $1" >"$model/language/Čeština.json"
    printf English >"$model/language/language.ini"
    echo "$1" >"$model/version"
}

mkdir -p "$work/usr/bin" "$HOME"
cp "$1" "$launcher"

deliver 1.0
start one 'two three'
check "the exit code is the tool's" is $? 7
check "the first start sets up and starts" started 1.0 "$own" 'one two three'
check "all is the model's" diff -r "$model" "$own"

# What a user does in the tool.
printf Mine >"$own/language/language.ini"
echo mine >"$own/language/Mine.json"
echo 'my English' >"$own/language/English.json"
rm "$own/language/Čeština.json"
before=$(state)
start
check "the second start starts" started 1.0 "$own" ''
check "the second start writes nothing" is "$(state)" "$before"

deliver 2.0
echo 'Finnish of 2.0' >"$model/language/Suomi.json"
ln -s "$launcher" "$work/link"
"$work/link" >"$work/out" 2>"$work/err"
check "after an upgrade the new program starts, through a link too" started 2.0 "$own" ''
check "fonts are renewed" holds "$own/NotoSans-Bold.ttf" 'face of 2.0'
check "the chosen language stays" holds "$own/language/language.ini" Mine
check "an own language stays" holds "$own/language/Mine.json" mine
check "a changed language stays" holds "$own/language/English.json" 'my English'
check "a missing language comes again" holds "$own/language/Čeština.json" 'Czech of 2.0'
check "a new language comes" holds "$own/language/Suomi.json" 'Finnish of 2.0'

deliver 1.0
start
check "an older version replaces a newer one" started 1.0 "$own" ''

# A copy that was cut short: the mark of the version comes last.
rm "$own/version" "$own/NotoSans-Bold.ttf"
mkdir "$own/.new.123456"
touch --date '2 hours ago' "$own/.new.123456"
start
check "what was left is cleared away" is "$(find "$own" -name '.*')" ''
check "a half made folder is made whole" holds "$own/NotoSans-Bold.ttf" 'face of 1.0'
rm "$own/calora-configurator"
start
check "a lost executable comes again" started 1.0 "$own" ''

# Failures: one line, and what was there stays as it was. A stand-in for cp fills the disk.
deliver 2.0
before=$(state)
mkdir "$work/bin"
printf '#!/bin/sh\necho "cp: error writing: No space left on device" >&2\nexit 1\n' >"$work/bin/cp"
chmod +x "$work/bin/cp"
PATH=$work/bin:$PATH start
check "a full disk is told in one line" refused $? "cannot set up $own: cp: error writing: No space left on device"
check "a full disk changes nothing" is "$(state)" "$before"
check "a full disk leaves nothing" is "$(find "$own" -name '.*')" ''
touch "$work/file"
HOME=$work/file start
check "a home that can't be written is told in one line" refused $? "cannot set up $work/file/"
(unset HOME && start)
check "no home is told in one line" refused "$(($? ? 1 : 0))" HOME

XDG_DATA_HOME=$work/data start
check "the folder for data is heeded" started 2.0 "$work/data/calora-configurator" ''
XDG_DATA_HOME=relative start
check "a relative folder for data is not" started 2.0 "$own" ''

# Many at once, at a first start and after an upgrade. The executable comes whole or not at all.
at_once() {
    local number pids=() code=0
    for number in {1..12}; do
        "$launcher" >"$work/out.$number" 2>&1 &
        pids+=($!)
    done
    for number in "${pids[@]}"; do
        wait "$number"
        (($? == 7)) || code=1
    done
    return "$code"
}
rm -rf "$own"
check "first starts at once all start" at_once
check "they leave a whole folder" diff -r "$model" "$own"
printf Mine >"$own/language/language.ini"
deliver 3.0
check "starts at once after an upgrade all start" at_once
start
check "they leave the new version" started 3.0 "$own" ''
check "they leave the chosen language" holds "$own/language/language.ini" Mine

echo "$passed passed, $failed failed"
((failed == 0))
