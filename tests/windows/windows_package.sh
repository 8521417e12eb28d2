#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
# Packs the zip and unpacks it into a folder whose path has blanks and Chinese letters. From there,
# with nothing else on the path, the program walks through the check, and again with decoys of every
# DLL it could ask for in the working folder and on the path; an example is built against it.
# Usage: windows_package.sh SOURCE_FOLDER BUILD_FOLDER
set -euo pipefail
source=$1
build=$2
. "$source/tools/windows/environment.sh"
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export LC_ALL=C.UTF-8
unset WINEPATH QT_PLUGIN_PATH QT_QPA_PLATFORM

fail() { printf '%s\n' "$*"; exit 1; }

(cd "$build" && cpack -G ZIP -B package >"$folder/cpack.log") || { cat "$folder/cpack.log"; exit 1; }
zip=$(echo "$build"/package/*.zip)
place="$folder/在线课堂 (class room)/第 1 间"
mkdir -p "$place"
unzip -q "$zip" -d "$place"
root=$(echo "$place"/*)
bin=$root/bin
echo "$(stat -c %s "$zip") bytes: $(basename "$zip"), with"
(cd "$root" && find . -type f -printf '%P\n' | sort | tee "$folder/content")

for wanted in bin/EnvCheck.dll lib/libEnvCheck.dll.a include/envcheck/agent/EnvCheckAgent.h \
    lib/cmake/EnvCheck/EnvCheckConfig.cmake bin/envcheck.exe bin/Qt5Widgets.dll bin/Qt5Svg.dll \
    bin/platforms/qwindows.dll bin/imageformats/qsvg.dll bin/qt.conf \
    bin/translations/envcheck_zh_CN.qm bin/translations/qtbase_zh_CN.qm \
    bin/ClassroomDevices.dll bin/Qt5Network.dll bin/libcares.dll bin/libmpg123-0.dll bin/libnice-stun.dll \
    bin/libjpeg-62.dll bin/libyuv.dll share/doc/EnvCheck/licenses/{kissfft,libsamplerate,mpg123}/COPYING \
    share/doc/EnvCheck/licenses/libjpeg-turbo/README.ijg share/doc/EnvCheck/licenses/libyuv/LICENSE \
    share/doc/EnvCheck/licenses/c-ares.md share/doc/EnvCheck/licenses/libnice/COPYING.LGPL; do
    grep -qxF "$wanted" "$folder/content" || fail "Not in the zip: $wanted"
done
for wanted in "$source"/share/sounds/*.mp3 "$build"/bin/translations/*.qm; do
    grep -q "/$(basename "$wanted")\$" "$folder/content" || fail "Not in the zip: $(basename "$wanted")"
done

# The DLLs that the files of the zip import, and those whose names stand in them otherwise.
find "$root" -name '*.dll' -o -name '*.exe' >"$folder/files"
imported=$(xargs -d '\n' -n 1 x86_64-w64-mingw32-objdump -p <"$folder/files" |
    sed -n 's/^\tDLL Name: //p' | sort -uf)
named=$(xargs -d '\n' sh -c 'strings -n 5 "$@"; strings -n 5 -e l "$@"' - <"$folder/files" |
    grep -iE '^[a-z0-9_.-]+\.dll$' | sort -uf)
names=$(printf '%s\n%s\n' "$imported" "$named" | sort -uf)

# A check of real facts, on devices that all work, so that the walk passes.
cat >"$place/课堂.json" <<'JSON'
{ "base": "all-well", "machine": { "real": true } }
JSON

# walk NAME: a whole check from the program's folder, with a report; its exit code.
walk()
{
    run_in_wine "$bin/envcheck.exe" --platform scripted --language zh_CN \
        --scenario "$(windows_path "$place/课堂.json")" --tour "$(windows_path "$place/$1")" \
        --report "$(windows_path "$place/$1.json")" >"$folder/$1.log" 2>&1
}

expect_walk()
{
    local status=0
    walk "$1" || status=$?
    [ $status -eq 0 ] || { cat "$folder/$1.log"; fail "The walk \"$1\" ended with exit code $status"; }
    [ "$(find "$place/$1" -name '*.png' -size +0 | wc -l)" -ge 5 ] || fail "The walk \"$1\" has too few pictures"
}

cd "$folder"
expect_walk 检测
python3 - "$place/检测.json" <<'PY'
import json, sys
report = json.load(open(sys.argv[1], encoding="utf-8"))
facts = json.dumps(report["system"], ensure_ascii=False)
assert report["outcome"] == "passed", report["outcome"]
assert "Windows" in facts and "x86_64" in facts, facts
print("The machine as the report has it:", facts)
PY

# A user who is put out by the server: the program's other end.
status=0
run_in_wine "$bin/envcheck.exe" --platform scripted --scenario kicked-out \
    --report "$(windows_path "$place/out.json")" || status=$?
[ $status -eq 3 ] || fail "A user who is put out: exit code $status"

# The network, on a real STUN server and where nobody listens.
free_port() { python3 -c 'import socket; s = socket.socket(type=socket.SOCK_DGRAM); s.bind(("127.0.0.1", 0)); print(s.getsockname()[1])'; }
port=$(free_port)
mkdir "$folder/coturn"
(cd "$folder/coturn" && exec turnserver -n --no-auth --stun-only --listening-ip=127.0.0.1 \
    --listening-port="$port" --no-tls --no-dtls --no-cli --no-tcp --pidfile=pid --log-file=stdout \
    --userdb=db >log 2>&1) &
coturn=$!
trap 'kill $coturn 2>/dev/null || true; rm -rf "$folder"' EXIT
status=0
run_in_wine "$bin/envcheck.exe" network --json --count 3 --server "127.0.0.1:$port" \
    >"$folder/network.json" || status=$?
[ $status -eq 0 ] || { cat "$folder/network.json"; fail "network: exit code $status"; }
status=0
run_in_wine "$bin/envcheck.exe" network --json --count 3 --server "127.0.0.1:$(free_port)" \
    >"$folder/refused.json" || status=$?
[ $status -eq 1 ] || { cat "$folder/refused.json"; fail "network where nobody listens: exit code $status"; }
# With a camera, which only this run and the list of devices have.
cat >"$folder/cameras.json" <<'JSON'
[{ "link": "desk", "name": "教室 <b>Camera</b>", "modes": [{ "format": "YUY2", "size": [640, 480], "rate": 30 }] }]
JSON
with_camera()
{
    ENVCHECK_WINE_CAMERAS=$build/tests/devices/windowscameras/mf.dll \
        ENVCHECK_STAGED_CAMERAS=$(windows_path "$folder/cameras.json") "$@"
}
status=0
with_camera run_in_wine "$bin/envcheck.exe" check --unattended --server "127.0.0.1:$port" \
    --report "$(windows_path "$folder/unattended.json")" >"$folder/unattended.log" 2>&1 || status=$?
[ $status -eq 1 ] || { cat "$folder/unattended.log"; fail "check --unattended: exit code $status"; }

# Devices: without any, then with a camera and a sound server.
list_devices()
{
    status=0
    wine_sound=unix:$folder/pulse run_in_wine "$bin/envcheck.exe" devices --json >"$folder/$1.json" 2>/dev/null ||
        status=$?
    [ $status -eq 0 ] || { cat "$folder/$1.json"; fail "devices: exit code $status"; }
}
list_devices none
pulseaudio -n --daemonize=no --use-pid-file=no --exit-idle-time=-1 --realtime=no --high-priority=no \
    --log-target=null \
    --load="module-native-protocol-unix socket=$folder/pulse auth-anonymous=1 auth-cookie-enabled=0" \
    --load="module-null-sink sink_name=speaker sink_properties=device.description=Loudspeaker" \
    --load="module-null-sink sink_name=feed sink_properties=device.description=Feed" \
    --load="module-remap-source source_name=mic master=feed.monitor source_properties=device.description=Mic" &
pulse=$!
trap 'kill $coturn $pulse 2>/dev/null || true; rm -rf "$folder"' EXIT
for ((i = 0; i < 100; ++i)); do
    ! pactl --server="unix:$folder/pulse" info >/dev/null 2>&1 || break
    sleep 0.1
done
with_camera list_devices some
kill $pulse
python3 - "$folder" <<'PY'
import json, sys
def lines(name): return [json.loads(line) for line in open(f"{sys.argv[1]}/{name}.json")]
answered = lines("network")
assert len(answered) == 3 and answered[2]["lossPercent"] == 0 and answered[2]["answered"] >= 25, answered
refused = lines("refused")
assert refused[0]["sent"] >= 8 and refused[2]["sent"] >= 27, refused
assert refused[2]["lossPercent"] == 100 and refused[2]["cause"] == "refused", refused
none, some = (json.load(open(f"{sys.argv[1]}/{name}.json")) for name in ("none", "some"))
assert none["causes"] == {"cameras": "absent", "microphones": "absent", "speakers": "absent"}, none
names = lambda kind: {device["name"] for device in some[kind] if device["state"] == "ready"}
assert names("microphones") == {"Mic"} and names("speakers") == {"Loudspeaker", "Feed"}, some
assert names("cameras") == {"教室 <b>Camera</b>"}, some
report = json.load(open(f"{sys.argv[1]}/unattended.json", encoding="utf-8"))
checks = {check["check"]: (check["verdict"], check.get("causes")) for check in report["checks"]}
assert checks.pop("network")[0] == "works", report
assert checks.pop("camera") == ("works", None), report
assert all(check[1] == ["absent"] for check in checks.values()), checks
print("network:", answered[2])
print("network where nobody listens:", refused[0], refused[2])
PY

# The responder, asked from outside of Wine.
port=$(free_port)
wine_seconds=60 run_in_wine "$bin/envcheck.exe" serve --port "$port" >"$folder/serve.log" 2>&1 &
serve=$!
python3 - "$port" <<'PY'
import socket, sys, time
client = socket.socket(type=socket.SOCK_DGRAM)
client.settimeout(0.5)
for attempt in range(30):
    client.sendto(bytes.fromhex("000100002112a442") + b"transaction1", ("127.0.0.1", int(sys.argv[1])))
    try:
        answer = client.recv(1500)
        assert answer[:2] == b"\x01\x01" and answer[8:20] == b"transaction1", answer
        print("serve answers with", answer.hex())
        sys.exit()
    except ConnectionRefusedError:
        time.sleep(0.5)
    except TimeoutError:
        pass
sys.exit("serve doesn't answer")
PY
pkill -P $serve || true
wait $serve || true

# Decoys. That one is found at all is shown by a program that doesn't search safely.
decoys=$folder/decoys
mkdir -p "$decoys/cwd/platforms" "$decoys/path" "$decoys/alone"
for name in $names; do
    cp "$build/bin/decoy.dll" "$decoys/cwd/$name"
    cp "$build/bin/decoy.dll" "$decoys/path/$name"
done
cp "$build/bin/decoy.dll" "$decoys/cwd/platforms/qwindows.dll"
cp "$build/bin/decoy.dll" "$decoys/alone/envcheck_decoy.dll"
loaded() { find "$decoys" -name '*.loaded'; }
expect_decoy() # 0 where the decoy is to be loaded, 1 where not; then the options
{
    local status=0 expected=$1
    shift
    rm -f "$decoys"/alone/*.loaded
    "$source/tools/windows/run-program" "$build/bin/load_decoy.exe" envcheck_decoy.dll "$@" || status=$?
    [ $status -eq "$expected" ] || fail "load_decoy $*: exit code $status"
    [ "$(loaded | wc -l)" -eq $((1 - expected)) ] || fail "load_decoy $*: $(loaded | wc -l) decoys left a mark"
}
cd "$decoys/alone"
expect_decoy 0
expect_decoy 1 --safely
cd "$folder"
WINEPATH=$(windows_path "$decoys/alone") expect_decoy 0
WINEPATH=$(windows_path "$decoys/alone") expect_decoy 1 --safely

cd "$decoys/cwd"
WINEPATH=$(windows_path "$decoys/path") expect_walk decoys
[ -z "$(loaded)" ] || { loaded; fail "Decoys were loaded"; }
echo "$(wc -w <<<"$names") names of DLLs, $(wc -w <<<"$imported") of them imported: no decoy was loaded"
cd "$folder"

# What a developer of a client gets.
cmake -G Ninja -S "$source/docs/example" -B "$folder/example" \
    -DEnvCheck_DIR="$root/lib/cmake/EnvCheck" \
    -DClassroomEngine_DIR="$root/lib/cmake/ClassroomEngine" -DCMAKE_CXX_COMPILER_LAUNCHER=ccache \
    -DCMAKE_TOOLCHAIN_FILE="$source/tools/windows/toolchain.cmake" >/dev/null
cmake --build "$folder/example"
cp "$folder"/example/example.exe "$bin"
run_in_wine "$bin/example.exe" --walk || fail "The example ended with exit code $?"
echo "The example was built against the zip, and walks through the check"
