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
    record
}
# What the package says of the languages that it brings.
record() { (cd "$model/language" && sha256sum -- *.json >../delivered); }

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
record
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

# An upgrade that brings a new text, for languages that the user has left alone, has changed, or has made.
rm -rf "$own"
start
echo '{"Old": "my text"}' >"$own/language/Čeština.json"
echo '{"Old": "own text"}' >"$own/language/Mine.json"
printf Mine >"$own/language/language.ini"
for version in 2.0 3.0; do
    deliver "$version"
    echo "{\"New\": \"text of $version\", \"Old\": \"text\"}" | tee "$model/language/Čeština.json" >"$model/language/English.json"
    printf Čeština >"$model/language/language.ini"
    record
    start
    check "$version starts" started "$version" "$own" ''
    check "a language that is as delivered gets the new text of $version" cmp "$model/language/English.json" "$own/language/English.json"
    check "a changed one stays at $version" holds "$own/language/Čeština.json" '{"Old": "my text"}'
    check "an own one stays at $version" holds "$own/language/Mine.json" '{"Old": "own text"}'
    check "the choice stays at $version" holds "$own/language/language.ini" Mine
    check "what was delivered is told at $version" cmp "$model/delivered" "$own/delivered"
done
before=$(state)
start
check "the start after that writes nothing" is "$(state)" "$before"
cp "$model/language/Čeština.json" "$own/language"
deliver 1.0
start
check "one that was put back as delivered goes with the package again" holds "$own/language/Čeština.json" 'Czech of 1.0'

# Without knowing what was delivered, every language that exists counts as the user's.
rm "$own/delivered"
deliver 2.0
start
check "without a record languages stay" holds "$own/language/English.json" 'English of 1.0'
deliver 1.0
start
echo 'my English' >"$own/language/English.json"

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

# Damage under the right mark, as an interrupted copy by other means or a loss of power leaves it.
: >"$own/calora-configurator"
start
check "an empty executable is repaired" started 1.0 "$own" ''
truncate --size=20 "$own/calora-configurator"
start
check "a truncated executable is repaired" started 1.0 "$own" ''
truncate --size=20 "$own/calora-configurator"
truncate --size="$(stat -c %s "$model/calora-configurator")" "$own/calora-configurator"
start
check "an executable with a hole is repaired" started 1.0 "$own" ''
: >"$own/NotoSans-Bold.ttf"
start
check "an empty font is repaired" holds "$own/NotoSans-Bold.ttf" 'face of 1.0'
chmod a-x "$own/calora-configurator"
start
check "a lost permission comes again" started 1.0 "$own" ''
check "the languages stay as they are" holds "$own/language/English.json" 'my English'

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

# The copy fails at each file in turn, as on a disk that runs full, or is killed there. Stand-ins do the work of cp and mv
# file by file, until the count in the file "left" is used up; the file that cp stops at is cut short.
for tool in cp mv; do
    cat >"$work/bin/$tool" <<'SH'
#!/bin/bash
tick() {
    left=$(($(cat "$work/left") - 1))
    echo "$left" >"$work/left"
    ((left)) && return
    [[ ! -e $work/kill ]] || { kill -KILL "$PPID"; exit 1; }
    [[ -z ${1:-} ]] || truncate --size=5 "$1"
    echo "${0##*/}: error writing: No space left on device" >&2
    exit 1
}
target=${@: -1}
if [[ ${0##*/} == cp ]]; then
    /bin/cp "$@" || exit
    find "$target" -type f | while read -r file; do tick "$file" || exit; done || exit
    exit 0
fi
options=()
for file in "${@:1:$#-1}"; do
    case $file in
    -*) options+=("$file") ;;
    *) tick && /bin/mv "${options[@]}" "$file" "$target" || exit ;;
    esac
done
SH
    chmod +x "$work/bin/$tool"
done
export work
# Each file is one of either version as a whole, and the mark still that of the former.
consistent() {
    local file
    for file in calora-configurator NotoSans-Bold.ttf; do
        cmp -s "$own/$file" "$model/$file" || cmp -s "$own/$file" "$work/former/$file" || return
    done
    is "$(state_of language/language.ini language/English.json)" "$users" && holds "$own/version" 1.0
}
state_of() { (cd "$own" && sha256sum "$@"); }
deliver 1.0
start
rm -f "$own/language/Suomi.json"
echo 'my English' >"$own/language/English.json"
users=$(state_of language/language.ini language/English.json)
cp -R "$own" "$work/former"
deliver_with_finnish() {
    deliver "$1"
    echo "Finnish of $1" >"$model/language/Suomi.json"
    record
}
deliver_with_finnish 2.0
for way in full kill; do
    rm -f "$work/kill"
    [[ $way == full ]] || touch "$work/kill"
    for ((n = 1; n < 100; n++)); do
        rm -rf "$own"
        cp -R "$work/former" "$own"
        echo "$n" >"$work/left"
        PATH=$work/bin:$PATH start
        code=$?
        ((code != 7)) || break
        check "$way at file $n: told" refused "$code" "cannot set up $own"
        check "$way at file $n: no half file, no early mark" consistent
        [[ $way == kill ]] || check "$way at file $n: nothing is left" is "$(find "$own" -name '.*')" ''
        rm -rf "$own"/.new.*
        rm -rf "$work/cut"
        cp -R "$own" "$work/cut"
        start
        check "$way at file $n: the next start mends it" started 2.0 "$own" ''
        check "$way at file $n: all of it" holds "$own/NotoSans-Bold.ttf" 'face of 2.0'
        check "$way at file $n: languages are renewed" holds "$own/language/Čeština.json" 'Czech of 2.0'
        [[ $way == kill ]] || continue
        rm -rf "$own"
        mv "$work/cut" "$own"
        deliver_with_finnish 3.0
        start
        check "$way at file $n: languages are renewed by the version after, too" holds "$own/language/Čeština.json" 'Czech of 3.0'
        check "$way at file $n: the user's stay" is "$(state_of language/language.ini language/English.json)" "$users"
        deliver_with_finnish 2.0
    done
    check "$way: all files had their turn" is "$((n > 10))" 1
done

# Ended in the midst of the copy, by Ctrl+C, a closed terminal or the end of the session, which reach the whole group.
rm "$work/bin/mv"
# shellcheck disable=SC2016  # the stand-in expands them
printf '#!/bin/sh\n/bin/cp "$@"\n: >"$work/copied"\nexec sleep 60\n' >"$work/bin/cp"
wait_until() { # command...
    local tries
    for ((tries = 0; tries < 100; tries++)); do
        "$@" && return
        sleep 0.1
    done
    return 1
}
nothing_half_made() { is "$(find "$own" -name '.*')" ''; }
rm -rf "$own"
cp -R "$work/former" "$own"
before=$(state)
for signal in HUP INT TERM HUP INT TERM HUP INT TERM; do
    rm -f "$work/copied"
    PATH=$work/bin:$PATH setsid env --default-signal "$launcher" >"$work/out" 2>"$work/err" &
    group=$!
    wait_until test -e "$work/copied"
    kill -s "$signal" -- "-$group"
    wait "$group" 2>/dev/null
    check "$signal in the midst ends it" is "$(($? > 128))" 1
    check "$signal in the midst leaves nothing" wait_until nothing_half_made
    check "$signal in the midst changes nothing" is "$(state)" "$before"
done

# Where no program may be run: a file system without such permissions, and one that is mounted so.
not_started() { is "$1" 126 && is "$(wc -l <"$work/err")" 1 && grep -qF "cannot start $2/calora-configurator" "$work/err"; }
# shellcheck disable=SC2016  # the stand-in expands them
printf '#!/bin/sh\n/bin/cp "$@" && chmod a-x "$3/calora-configurator"\n' >"$work/bin/cp"
PATH=$work/bin:$PATH start
check "a home without permission to execute is told in one line" not_started $? "$own"
rm "$work/bin/cp"
own_mounts=(unshare --mount)
((EUID == 0)) || own_mounts+=(--map-root-user)
mkdir "$work/noexec"
# shellcheck disable=SC2016  # the inner shell expands them
if "${own_mounts[@]}" mount -t tmpfs -o noexec tmpfs "$work/noexec" 2>/dev/null; then
    XDG_DATA_HOME=$work/noexec "${own_mounts[@]}" sh -c 'mount -t tmpfs -o noexec tmpfs "$XDG_DATA_HOME" && exec "$0"' \
        "$launcher" >"$work/out" 2>"$work/err"
    check "a home mounted without permission to execute is told in one line" not_started $? "$work/noexec/calora-configurator"
else
    echo "no mounts here: a home mounted without permission to execute is skipped"
fi

start
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
