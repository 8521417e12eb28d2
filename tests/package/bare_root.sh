#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
# In a Debian that has build-essential alone: installs what debian/control declares for the build, and builds
# the packages from their source. Not optimised, since only what the build needs is to be shown.
# Usage: bare_root.sh FOLDER_OF_THE_SOURCE_PACKAGE, as root of the bare root (tools/debian --from-bare)
set -euo pipefail
cd "$1"
export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 DEB_BUILD_OPTIONS="noopt parallel=$(nproc)"

apt-get build-dep -y -qq --no-install-recommends ./*.dsc >/tmp/apt.log 2>&1 || { cat /tmp/apt.log; exit 1; }
dpkg-source -x ./*.dsc source >/dev/null
cd source
dpkg-buildpackage -us -uc -b >/tmp/build.log 2>&1 || { tail -n 60 /tmp/build.log; exit 1; }
printf 'Built in a bare root:\n'
ls ../*.deb
