#!/usr/bin/env bash
# Tests at what scripts/release stops before it makes anything, on a clone of this repository with what is there now.
# Usage: release.sh
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
clone=$work/clone
passed=0
failed=0

git() { command git -C "$clone" -c user.name=Test -c user.email=test@example.org "$@"; }
change() { sed -i "$2" "$clone/$1"; }
commit() { git add --all && git commit --quiet --message "$1"; }
# What scripts/release says of the facts alone, and ends with.
expect() { # exit code, text, argument...
    local code=0 told
    told=$("$clone/scripts/release" --only facts "${@:3}" 2>&1) || code=$?
    if [[ $code == "$1" && $told == *"$2"* ]]; then
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
        printf 'FAIL: %s ends with %s, not %s and "%s":\n%s\n' "${*:3}" "$code" "$1" "$2" "$told"
    fi
}

# Namespaces, which a kernel may refuse, are for what makes packages.
mkdir "$work/bin"
printf '#!/bin/sh\ntouch "%s/unshared"\nexec /usr/bin/unshare "$@"\n' "$work" >"$work/bin/unshare"
chmod +x "$work/bin/unshare"
PATH=$work/bin:$PATH

command git clone --quiet . "$clone"
# As they are now, whatever has been committed.
for file in scripts/release CMakeLists.txt CHANGELOG.md packaging/linux/metainfo.xml.in cmake/Packaging.cmake cmake/PackagingLinux.cmake \
    SECURITY.md; do
    cp "$file" "$clone/$file"
done
change CMakeLists.txt 's/^\(project(calora-configurator VERSION\) [0-9.]*/\1 7.3/'
change CHANGELOG.md '0,/^## .*/s//## 7.3 (not released)/'
change packaging/linux/metainfo.xml.in '0,/release version="[^"]*"/s//release version="7.3"/'
commit base

expect 2 'usage: '
expect 2 'usage: ' --unknown
expect 0 '7.3: the facts agree' --unpublished
expect 0 '7.3: the facts agree' 7.3 --unpublished
expect 1 'CMakeLists.txt has the version 7.3' 7.4 --unpublished
touch "$clone/new"
expect 1 'the tree has changes' --unpublished
rm "$clone/new"

# What may not be published.
expect 1 "says that 7.3 isn't released" 7.3
expect 1 'placeholder as address' 7.3
expect 1 'placeholder as identifier' 7.3
expect 1 'SECURITY.md still tells of a placeholder' 7.3
expect 1 "hasn't the tag v7.3" 7.3
change CHANGELOG.md 's/^## 7.3 (not released)/## 7.3 (1 May 2027)/'
change SECURITY.md '/placeholder/d'
change cmake/Packaging.cmake 's/example\.org/example.com/'
change cmake/PackagingLinux.cmake 's/io\.github\.calora/com.example.calora/'
commit published
git tag v7.3
expect 0 '7.3: the facts agree' 7.3

# A version that isn't everywhere the same.
for file in CMakeLists.txt CHANGELOG.md packaging/linux/metainfo.xml.in; do
    change "$file" 's/7\.3/7.4/'
    commit "$file"
    git tag --force v7.3 >/dev/null 2>&1
    expect 1 "$file" 7.3
    git revert --no-edit HEAD >/dev/null
done

if [[ -e $work/unshared ]]; then
    failed=$((failed + 1))
    echo "FAIL: facts alone asked for namespaces"
fi

echo "$passed passed, $failed failed"
((failed == 0))
