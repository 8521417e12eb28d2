#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
"""How large the library and the package are, installed and without debug information, and how many
shared libraries the program loads, beside the smallest program with a dialog.

    bench_sizes.py build/dev-ci/bin/envcheck [--smoke]

Installs the build that the program belongs to into a temporary folder.
"""
import argparse
import pathlib
import subprocess
import sys
import tarfile
import tempfile

MOST_LIBRARY_KB = 600
MOST_PACKAGE_KB = 3000  # packed
BYTES_OF_KB = 1000.0


def installed(build, folder):
    subprocess.run(["cmake", "--install", str(build), "--strip", "--prefix", str(folder)],
                   check=True, stdout=subprocess.DEVNULL)
    return [file for file in sorted(folder.rglob("*")) if file.is_file() and not file.is_symlink()]


def kilobytes(files):
    return sum(file.stat().st_size for file in files) / BYTES_OF_KB


def packed_kilobytes(folder):
    with tempfile.NamedTemporaryFile(suffix=".tar.xz") as archive:
        with tarfile.open(archive.name, "w:xz") as tar:
            tar.add(folder, "envcheck")
        return pathlib.Path(archive.name).stat().st_size / BYTES_OF_KB


def loaded_libraries(program):
    """Those that the dynamic linker loads before main()."""
    output = subprocess.run(["ldd", str(program)], check=True, stdout=subprocess.PIPE, text=True)
    return len(output.stdout.splitlines())


def named(files, *patterns):
    found = [file for file in files if any(file.match(pattern) for pattern in patterns)]
    if not found:
        sys.exit("Not installed: " + ", ".join(patterns))
    return found


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("program", type=pathlib.Path)
    parser.add_argument("--smoke", action="store_true")
    options = parser.parse_args()
    binaries = options.program.resolve().parent
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        files = installed(binaries.parent, folder)
        library = kilobytes(named(files, "libEnvCheck.so.*"))
        engine = [file for file in named(files, "*.so.*") if not file.match("libEnvCheck.so.*")]
        packed = packed_kilobytes(folder)
        rows = [
            ("the library EnvCheck", library),
            ("the engine's libraries", kilobytes(engine)),
            ("the program", kilobytes(named(files, "lib/*/envcheck", "lib/*/*/envcheck"))),
            ("texts", kilobytes(named(files, "*.qm"))),
            ("sounds", kilobytes(named(files, "*.mp3"))),
            ("all that is installed", kilobytes(files)),
            ("all of it, packed (tar.xz)", packed),
        ]
    print("| installed, without debug information | KB |\n|---|---|")
    for label, size in rows:
        print(f"| {label} | {size:,.0f} |")
    print("\n| started | shared libraries |\n|---|---|")
    print(f"| this program | {loaded_libraries(options.program)} |")
    bare = binaries / "bare_dialog"
    if bare.exists():
        print(f"| an empty QDialog | {loaded_libraries(bare)} |")
    is_good = library <= MOST_LIBRARY_KB and packed <= MOST_PACKAGE_KB
    print("\nWithin the bounds." if is_good else "\nOUT OF BOUNDS.")
    return 0 if is_good or options.smoke else 1


sys.exit(main())
