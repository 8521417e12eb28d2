#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
# In a Debian with nothing else: installs the packages with what they depend on alone, runs the program
# as an ordinary user, builds and runs the example, purges them, and looks for what they left.
# Usage: clean_root.sh FOLDER_OF_THE_PACKAGES, as root of the clean root (tools/debian)
set -euo pipefail
packages=$1
names=(envcheck envcheck-data libenvcheck1 libenvcheck-dev)
export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen

fail() { printf '%s\n' "$*"; exit 1; }
install() { apt-get install -y -qq --no-install-recommends "$@" >/tmp/apt.log 2>&1 || { cat /tmp/apt.log; exit 1; }; }
as_user() { su --preserve-environment --shell /bin/sh --command "HOME=/home/user; cd; $1" user; }

# What there is, without what packages, users and logs change by themselves.
files()
{
    find / -xdev \( -path /proc -o -path /sys -o -path /dev -o -path /tmp -o -path /root-files -o -path /var/lib/dpkg \
        -o -path /var/lib/apt -o -path /var/cache/apt -o -path /var/cache/ldconfig -o -path /var/log -o -path /var/lib/systemd \) -prune \
        -o ! -type d -printf '%p %y %s %l\n' -o -printf '%p %y\n' | sort
}

# install_dependencies DEB...: what apt adds to the packages, without these.
install_dependencies()
{
    local wanted
    wanted=$(apt-get install --simulate --no-install-recommends "$@" | sed -n 's/^Inst \([^ ]*\).*/\1/p' |
        grep -vxE "$(IFS='|'; echo "${names[*]}")")
    # shellcheck disable=SC2086
    install $wanted
}

try_program()
{
    local version
    version=$(dpkg-query -W -f '${source:Upstream-Version}' envcheck)
    [ "$(as_user "envcheck --version")" = "envcheck ${version%%+*}" ] || fail "Not the version of the package, $version"
    as_user "envcheck --platform scripted --scenario no-devices --language de --tour tour 2>log" || [ $? -le 2 ] ||
        fail "The tour failed: $(cat /home/user/log)"
    as_user "find tour -name '*.png' -size +0 | grep -q ." || fail "The tour made no picture"
    [ ! -s /home/user/log ] || fail "The tour said: $(cat /home/user/log)"
    as_user "envcheck check --unattended --platform scripted --scenario all-well --json report.json >/dev/null" ||
        fail "The check without a person ended with $?"
    as_user "envcheck report report.json | grep -q ." || fail "The report isn't shown"
    # There is no sound server here: that is said, and nothing worse happens.
    local code=0
    as_user "envcheck devices >devices 2>&1" || code=$?
    [ $code -eq 69 ] || fail "'envcheck devices' ended with $code: $(cat /home/user/devices)"
}

# Everything that the packages bring finds its libraries.
check_libraries()
{
    local lost
    lost=$(dpkg -L "${names[@]}" 2>/dev/null | grep -E '/lib/.*(/envcheck|\.so\.[0-9.]+)$' | sort -u |
        while read -r file; do [ -d "$file" ] || ldd "$file"; done | grep 'not found' || true)
    [ -z "$lost" ] || fail "$lost"
}

try_development()
{
    cp -r /usr/share/doc/libenvcheck-dev/examples /home/user/example
    chown -R user /home/user/example
    as_user "{ cmake -S example -B example/build && cmake --build example/build && example/build/example --walk; } >log 2>&1" ||
        fail "The example wasn't built, or failed: $(cat /home/user/log)"
    as_user "g++ -std=c++17 -fPIC -DDATA_FOLDER='\"/usr/share/envcheck\"' example/main.cpp -o plain \
        \$(pkg-config --cflags --libs EnvCheck ClassroomEngine) && ./plain --walk >log 2>&1" ||
        fail "The example wasn't built by pkg-config, or failed: $(cat /home/user/log)"
}

useradd --create-home user
programs=("$packages"/envcheck_*.deb "$packages"/envcheck-data_*.deb "$packages"/libenvcheck1_*.deb)
install_dependencies "${programs[@]}"
files >/tmp/before
install "${programs[@]}"
check_libraries
try_program
dpkg --purge "${names[@]}" >/tmp/purge.log 2>&1 || fail "$(cat /tmp/purge.log)"
rm -rf /home/user && mkdir -m 700 /home/user && chown user /home/user
cp -r /etc/skel/. /home/user/ && chown -R user:user /home/user
files >/tmp/after
diff /tmp/before /tmp/after || fail "Purging left something behind, or took too much: see above"

install "${programs[@]}" "$packages"/libenvcheck-dev_*.deb cmake g++ pkg-config make
try_development
dpkg --purge "${names[@]}" >/tmp/purge.log 2>&1 || fail "$(cat /tmp/purge.log)"
left=$(find / -xdev -ipath '*envcheck*' ! -path '/proc/*' ! -path '/home/*' ! -path "$packages/*" ! -path '/var/cache/apt/*' ! -path '/tmp/*')
[ -z "$left" ] || fail "Purging left: $left"
[ -z "$(dpkg-query -W -f '${Package} ${db:Status-Abbrev}\n' '*envcheck*' 2>/dev/null | grep -v ' un')" ] ||
    fail "Purging left a package"
