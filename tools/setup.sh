# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
# Sourced by run, test and .ci/run: the Debian packages that each needs, and how they get here.

. tools/progress.sh

run_packages=(
    cmake ninja-build g++ ccache pkg-config
    qtbase5-dev qtbase5-private-dev libqt5svg5-dev qttools5-dev qttools5-dev-tools qttranslations5-l10n
    libnice-dev libc-ares-dev libpulse-dev libmpg123-dev libsamplerate0-dev libkissfft-dev
    libpipewire-0.3-dev libspa-0.2-dev libyuv-dev libjpeg62-turbo-dev libutf8proc-dev
    libgstreamer1.0-dev libgstreamer-plugins-base1.0-dev libudev-dev
    libqt5x11extras5-dev libxcb1-dev
    gstreamer1.0-plugins-base gstreamer1.0-plugins-good
    xvfb fonts-dejavu-core fonts-noto-core fonts-noto-cjk
)
test_packages=(
    coturn espeak-ng pulseaudio pulseaudio-utils pipewire pipewire-bin pipewire-pulse wireplumber
    libspa-0.2-modules libc-l10n umockdev libumockdev-dev dbus ffmpeg fluidsynth fluid-soundfont-gm
    postgresql sqlite3 openssl apache2-bin libapache2-mod-wsgi-py3 python3-psycopg2
    dnsmasq-base unzip python3 python3-numpy python3-scipy python3-jsonschema
    binutils dpkg-dev file abigail-tools appstream desktop-file-utils
    bash-completion zsh fish
    openbox metacity xcompmgr xdotool x11-utils imagemagick weston qtwayland5 adwaita-qt qt5ct
)
benchmark_packages=(qtmultimedia5-dev libqt5multimedia5-plugins
    gstreamer1.0-pipewire gstreamer1.0-x python3-matplotlib)
ci_packages=(clang-format clang-tidy)
fuzz_packages=(clang libclang-rt-dev)
debian_packages=(debhelper dpkg-dev git lintian mmdebstrap)
# The posix threads alone: only with them has the cross compiler std::thread.
windows_packages=(
    g++-mingw-w64-x86-64-posix mingw-w64-tools nasm wine wine64 fonts-wine unzip make dpkg-dev
    coturn dnsmasq-base ffmpeg python3 pulseaudio pulseaudio-utils
)

# install_packages NAME...: nothing where all are there; as root or through sudo; without either the
# one line to run, and the end.
install_packages()
{
    local missing=() name
    for name in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$name" 2>/dev/null)" = installed ] || missing+=("$name")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    local apt=(env DEBIAN_FRONTEND=noninteractive LC_ALL=C apt-get)
    if [ "$(id -u)" -ne 0 ]; then
        if ! sudo -n true 2>/dev/null && ! { [ -t 0 ] && command -v sudo >/dev/null; }; then
            echo "These packages are missing, and only root may install them. Please run:" >&2
            echo "    apt-get install -y --no-install-recommends ${missing[*]}" >&2
            exit 69
        fi
        apt=(sudo "${apt[@]}")
    fi
    echo "Installing ${#missing[@]} packages: ${missing[*]}"
    if ! "${apt[@]}" update -qq ||
        ! with_progress "Packages" "the build" "${apt[@]}" install -y -q --no-install-recommends "${missing[@]}"; then
        echo "The packages could not be installed: see above." >&2
        exit 69
    fi
}

display_pids=()
end_displays()
{
    [ ${#display_pids[@]} -gt 0 ] || return 0
    kill "${display_pids[@]}" 2>/dev/null || true
    wait "${display_pids[@]}" 2>/dev/null || true
}

# start_display: a virtual display in DISPLAY, ended with the script.
start_display()
{
    local folder
    folder=$(mktemp -d)
    mkfifo "$folder/number"
    Xvfb -displayfd 3 -screen 0 1280x900x24 -nolisten tcp -noreset 3<>"$folder/number" >"$folder/log" 2>&1 &
    display_pids+=($!)
    trap end_displays EXIT
    local number
    read -r -t 20 number <>"$folder/number" || { cat "$folder/log" >&2; echo "No virtual display came up." >&2; exit 69; }
    export DISPLAY=":$number"
    rm -rf "$folder"
}
