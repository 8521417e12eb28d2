#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
# Unpacks the Debian package into an empty folder, runs the program from there, and builds and runs
# the example against it. Usage: package.sh SOURCE_FOLDER BUILD_FOLDER
set -euo pipefail
source=$1
build=$2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 HOME=$folder/home
mkdir "$HOME"

(cd "$build" && cpack -G DEB -B "$folder/package" >"$folder/cpack.log") || { cat "$folder/cpack.log"; exit 1; }
package=$(echo "$folder"/package/*.deb)
dpkg-deb --info "$package"
dpkg-deb -x "$package" "$folder/unpacked"
usr=$folder/unpacked/usr

# Nothing may come from where it was built.
no_build_tree()
{
    if grep -F "$build/" "$1"; then
        echo "Loaded from the build folder: see above"
        exit 1
    fi
}

cd "$folder"
LD_DEBUG=libs LD_DEBUG_OUTPUT="$folder/loaded" "$usr/bin/envcheck" --version
cat "$folder"/loaded.* >"$folder/all-loaded"
grep -q "$usr/lib/envcheck/.*libEnvCheck.so.1" "$folder/all-loaded"
no_build_tree "$folder/all-loaded"

"$usr/bin/envcheck" --platform scripted --scenario no-devices --language de --tour "$folder/tour" || [ $? -le 2 ]
find "$folder/tour" -name '*.png' -size +0 | grep -q . || { echo "The tour made no picture"; exit 1; }

cmake -G Ninja -S "$source/docs/example" -B "$folder/example" -DCMAKE_PREFIX_PATH="$usr" \
    -DCMAKE_CXX_COMPILER_LAUNCHER=ccache
cmake --build "$folder/example"
ldd "$folder/example/example" >"$folder/example-loaded"
no_build_tree "$folder/example-loaded"
"$folder/example/example" --walk
