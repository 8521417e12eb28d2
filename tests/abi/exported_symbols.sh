#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
# The library exports EnvCheckAgent, all of it and nothing else. Usage: exported_symbols.sh LIBRARY
set -euo pipefail

if [[ $1 == *.dll ]]; then
    # The names of the export table: a number in brackets before each.
    symbols=$(x86_64-w64-mingw32-objdump -p "$1" |
        sed -n '/^\[Ordinal\/Name Pointer\] Table/,/^$/s/^\t\[ *[0-9]*\] *\([0-9a-f]\{4\} \+\)\?//p' | c++filt | sort -u)
else
    symbols=$(nm -D --defined-only --demangle "$1" | cut -d' ' -f3- | sort -u)
fi

foreign=$(grep -vE '^(EnvCheckAgent::|(vtable|typeinfo|typeinfo name) for EnvCheckAgent$)' <<<"$symbols" || true)
if [ -n "$foreign" ]; then
    printf 'Exported, and not of EnvCheckAgent:\n%s\n' "$foreign"
    exit 1
fi
for wanted in 'instance()' 'release()' 'showEnvCheck(QWidget*)' 'showKestrel()' '~EnvCheckAgent()' \
    'signalHideLoginDialog()' 'signalShowMainWindow()' m_instance staticMetaObject \
    'metaObject() const' 'qt_metacast(char const*)' 'qt_metacall(QMetaObject::Call, int, void**)' \
    'EnvCheckAgent(QObject*)'; do
    grep -qxF "EnvCheckAgent::$wanted" <<<"$symbols" || { echo "Not exported: EnvCheckAgent::$wanted"; exit 1; }
done
printf '%s\n' "$symbols"
