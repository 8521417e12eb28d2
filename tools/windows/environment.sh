#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
# Sourced by the scripts of this folder: where Qt for MinGW-w64 stands, and how a program that was
# built with it is started under Wine.

export ENVCHECK_WINDOWS_QT=${ENVCHECK_WINDOWS_QT:-$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)/build/qt5-mingw64}

# windows_path PATH: an absolute path as Wine's programs know it.
windows_path() { printf 'Z:%s' "${1//\//\\}"; }

# compiler_folders: where the DLLs of the compiler's runtime stand, one in a line.
compiler_folders()
{
    local name
    for name in libgcc_s_seh-1.dll libwinpthread-1.dll; do
        dirname "$(x86_64-w64-mingw32-g++ -print-file-name=$name)"
    done
}

# start_wine FOLDER: makes FOLDER a place to run programs at: a Wine prefix, a display and a sound
# server of its own. Two programs at one place would take the focus from each other.
start_wine()
{
    local log=$1/log fonts='HKCU\Software\Wine\Fonts\Replacements'
    start_display
    echo "$DISPLAY" >"$1/display"
    : >"$1/lock"
    mkdir "$1/prefix" "$1/sound"
    WINEPREFIX=$1/prefix in_wine wineserver --persistent
    # Unmanaged windows: there is no window manager here, and Wine would wait two seconds for it at
    # every window that is shown or hidden. The font of the pages is one that Windows has.
    if ! WINEPREFIX=$1/prefix in_wine wineboot --init >"$log" 2>&1 ||
        ! WINEPREFIX=$1/prefix in_wine wine reg add 'HKCU\Software\Wine\X11 Driver' \
            /v Managed /d N /f >>"$log" 2>&1 ||
        ! WINEPREFIX=$1/prefix LC_ALL=C.UTF-8 in_wine wine reg add "$fonts" \
            /v 微软雅黑 /d 'Noto Sans CJK SC' /f >>"$log" 2>&1; then
        cat "$log" >&2
        echo "Wine did not start." >&2
        exit 69
    fi
}

# end_wine FOLDER: ends what start_wine started, but for the display.
end_wine() { WINEPREFIX=$1/prefix in_wine wineserver --kill 2>/dev/null || true; }

# in_wine COMMAND...: without the questions for what Wine could install.
#   wine_debug: what Wine itself prints; nothing unless it is set
in_wine() { WINEDEBUG=${wine_debug:--all} WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe=' "$@"; }

# put_cameras PREFIX: whoever sets ENVCHECK_WINE_CAMERAS gets that DLL as the system's, all others Wine's own.
put_cameras()
{
    local system=$1/drive_c/windows/system32/mf.dll
    [ ! -e "$system.own" ] || mv "$system.own" "$system"
    if [ -n "${ENVCHECK_WINE_CAMERAS:-}" ]; then
        mv "$system" "$system.own"
        cp "$ENVCHECK_WINE_CAMERAS" "$system"
    fi
}

# wine_places: the folder that holds the places, each made by start_wine.
#   ENVCHECK_WINE_PLACES
#   wine_seconds: how long a program may take
#   wine_sound: the sound server; unless it is set, that of the place, if a test starts one there
#   ENVCHECK_WINE_CAMERAS: an mf.dll with cameras for tests, instead of the system's
# run_in_wine PROGRAM ARGUMENT...: at the first place that is free.
run_in_wine()
{
    local place lock status=0
    while :; do
        for place in "$ENVCHECK_WINE_PLACES"/*/; do
            exec {lock}<"$place/lock"
            if flock --nonblock "$lock"; then
                put_cameras "${place}prefix"
                WINEPREFIX=${place}prefix DISPLAY=$(<"$place/display") PULSE_SERVER=${wine_sound:-unix:${place}sound/native} \
                    in_wine timeout --foreground "${wine_seconds:-1000}" wine "$@" {lock}<&- || status=$?
                exec {lock}<&-
                return $status
            fi
            exec {lock}<&-
        done
        sleep 0.2
    done
}
