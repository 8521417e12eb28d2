#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
# Installs into an empty folder, runs the program from there, and builds and runs
# the example and the client of docs/integration.md against it. Usage: package.sh SOURCE_FOLDER BUILD_FOLDER
set -euo pipefail
source=$1
build=$2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 HOME=$folder/home
mkdir "$HOME"

usr=$folder/usr
cmake --install "$build" --prefix "$usr" >"$folder/install.log" || { cat "$folder/install.log"; exit 1; }

desktop-file-validate "$usr/share/applications/envcheck.desktop"
appstreamcli validate --no-net --pedantic "$usr/share/metainfo/org.example.envcheck.metainfo.xml"

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

# documented LANGUAGE: the text that docs/integration.md has in this language.
documented()
{
    sed -n "/^\`\`\`$1\$/,/^\`\`\`\$/{/^\`\`\`/!p}" "$source/docs/integration.md"
}

# Runs a client, which gets no devices: there are no servers.
run_client()
{
    "$1" >"$folder/results.json" 2>"$folder/client.log" || { echo "$1 ended with $?"; cat "$folder/client.log"; exit 1; }
    python3 -c 'import json, sys; assert json.load(sys.stdin), "no results"' <"$folder/results.json"
}

export XDG_RUNTIME_DIR=$folder/run QT_LOGGING_RULES="engine.*=false"
mkdir -m 700 "$XDG_RUNTIME_DIR"
mkdir "$folder/client"
documented cmake >"$folder/client/CMakeLists.txt"
documented cpp >"$folder/client/main.cpp"
cmake -G Ninja -S "$folder/client" -B "$folder/client/build" -DCMAKE_PREFIX_PATH="$usr" \
    -DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DCMAKE_PROJECT_Client_INCLUDE="$source/tests/package/add-walker.cmake"
cmake --build "$folder/client/build"
run_client "$folder/client/build/client"
if grep 'The check opens without' "$folder/client.log"; then
    exit 1
fi

# The same without CMake, and without what belongs beside it: one warning says so.
export PKG_CONFIG_PATH=$usr/lib/pkgconfig
read -ra flags < <(pkg-config --cflags --libs EnvCheck ClassroomEngine)
mkdir "$folder/bare"
cp -r "$folder/client/build/translations" "$folder/bare/"
g++ -std=c++17 -fPIC "$folder/client/main.cpp" "$source/tests/package/walker.cpp" -o "$folder/bare/client" "${flags[@]}" \
    "-Wl,-rpath,$(pkg-config --variable=libdir EnvCheck)"
run_client "$folder/bare/client"
grep -q 'sounds (no \*.mp3 in .*picture ":/common/images/common/invite_more.svg".*envcheck_deploy' "$folder/client.log"
