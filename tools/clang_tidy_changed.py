#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
"""Runs clang-tidy over files, but not over those that it found clean before.

Clean stays clean while the file, all that it includes, its compiler flags, the checks and the version of
clang-tidy are the same. Which those were is remembered in the user's cache folder, by checksum.
Usage: clang_tidy_changed.py BUILD_FOLDER FILE.cpp...   Ends with 1 at any finding.
"""
import concurrent.futures
import hashlib
import json
import os
import pathlib
import shlex
import subprocess
import sys
import time

KEPT_DAYS = 30
GCC_ONLY = {"-fno-keep-inline-dllexport"}
TOP = pathlib.Path.cwd()


def output_of(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def dependencies(build):
    """What each object was made from, as ninja has it: {object: [path, ...]}."""
    result = {}
    for line in output_of("ninja", "-C", str(build), "-t", "deps").splitlines():
        if line.startswith("    "):
            result[current].append(build / line.strip())
        elif ": #deps" in line:
            current = line.split(": #deps")[0]
            result[current] = []
    return result


def object_of(command):
    words = shlex.split(command)
    return words[words.index("-o") + 1]


class Checksums:
    """Checksums of files, each read once."""

    def __init__(self):
        self._known = {}

    def of(self, path):
        if path not in self._known:
            self._known[path] = hashlib.sha256(path.read_bytes()).hexdigest()
        return self._known[path]


def keys(build, files):
    """What a verdict on each file depends on, as one checksum: {file: key}."""
    checks = output_of("clang-tidy", "--version") + (TOP / ".clang-tidy").read_text()
    made_from = dependencies(build)
    checksums = Checksums()
    result = {}
    for command in json.loads((build / "compile_commands.json").read_text()):
        file = os.path.relpath(command["file"], TOP)
        if file not in files or file in result:
            continue
        parts = [checks, command["command"].replace(str(TOP), "")]
        for path in made_from.get(object_of(command["command"]), []):
            parts.append(os.path.relpath(path, TOP) + checksums.of(path))
        if len(parts) > 2:
            result[file] = hashlib.sha256("\n".join(parts).encode()).hexdigest()
    return result


def include_folders(compiler):
    """Where a compiler looks for its own headers, as it says itself."""
    said = subprocess.run([compiler, "-E", "-v", "-x", "c++", os.devnull],
                          check=True, capture_output=True, text=True).stderr
    listed = said.split("#include <...> search starts here:\n")[1].split("End of search list.")[0]
    return [os.path.realpath(line.strip()) for line in listed.splitlines() if line.strip()]


def database(build):
    """The folder of a compile_commands.json that Clang understands: MinGW's is not."""
    commands = json.loads((build / "compile_commands.json").read_text())
    compiler = shlex.split(commands[0]["command"])[0]
    if "mingw32" not in compiler:
        return build
    flags = ["--target=x86_64-w64-windows-gnu"]
    # Clang has its own kind of the headers that belong to the compiler itself.
    for folder in include_folders(compiler):
        if "/gcc/" not in folder or "/c++" in folder:
            flags += ["-isystem", folder]
    for command in commands:
        words = [word for word in shlex.split(command["command"]) if word not in GCC_ONLY]
        command["command"] = shlex.join(words[:1] + flags + words[1:])
    folder = build / "clang-tidy"
    folder.mkdir(exist_ok=True)
    (folder / "compile_commands.json").write_text(json.dumps(commands))
    return folder


def forget_old(cache):
    for entry in cache.iterdir():
        if time.time() - entry.stat().st_mtime > KEPT_DAYS * 86400:
            entry.unlink(missing_ok=True)


def is_clean(folder, file, marker):
    run = subprocess.run(["clang-tidy", "-p", str(folder), "--quiet", file],
                         stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    print(run.stdout, end="", flush=True)
    if run.returncode == 0 and marker:
        marker.touch()
    return run.returncode == 0


def main():
    build, files = pathlib.Path(sys.argv[1]), sys.argv[2:]
    cache = pathlib.Path(os.environ.get("XDG_CACHE_HOME") or pathlib.Path.home() / ".cache")
    cache = cache / "envcheck-clang-tidy"
    cache.mkdir(parents=True, exist_ok=True)
    forget_old(cache)
    known = keys(build, set(files))
    markers = {file: cache / known[file] if file in known else None for file in files}
    changed = [file for file in files if not (markers[file] and markers[file].exists())]
    for file in set(files) - set(changed):
        markers[file].touch()
    print(f"clang-tidy over {len(changed)} of {len(files)} files; the others were clean before", flush=True)
    folder = database(build)
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        verdicts = list(pool.map(lambda file: is_clean(folder, file, markers[file]), changed))
    return 0 if all(verdicts) else 1


sys.exit(main())
