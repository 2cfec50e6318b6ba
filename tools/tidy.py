#!/usr/bin/env python3
"""tidy.py native|windows [FILE...]: runs clang-tidy over the sources of a build.

A source whose text, headers, flags and checks did not change since it was last found clean is passed
over; build/tidy remembers. Findings are printed; ends 0 only when there are none. The windows build
is read with the headers of the cross compiler, and leaves out what the native build checks already.
"""
import concurrent.futures
import hashlib
import json
import os
import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
# What only the compiler of the build understands.
FOREIGN_FLAGS = ("-fno-keep-inline-dllexport", "-fno-devirtualize", "-fno-devirtualize-speculatively")


def build_folder(preset):
    return ROOT / "build" / preset


def commands(preset):
    entries = json.loads((build_folder(preset) / "compile_commands.json").read_text())
    ours = {}
    for entry in entries:
        source = pathlib.Path(entry["file"])
        inside = ROOT in source.parents and ROOT / "build" not in source.parents
        if inside and source.suffix == ".cpp":
            ours.setdefault(source, entry)
    return ours


def headers_read(preset):
    """For each object of the build: the files of this tree that its compilation read."""
    text = subprocess.run(["ninja", "-C", str(build_folder(preset)), "-t", "deps"],
                          capture_output=True, text=True, check=True).stdout
    read, current = {}, None
    for line in text.splitlines():
        if line.startswith("    "):
            path = pathlib.Path(build_folder(preset), line.strip())
            if ROOT in path.parents:
                read[current].append(path)
        elif ": #deps" in line:
            current = line.split(": #deps")[0]
            read[current] = []
    return read


def cross_flags():
    """Makes clang compile like the cross compiler: its target and its headers, clang's own
    intrinsics."""
    compiler = "x86_64-w64-mingw32-g++-posix"
    text = subprocess.run([compiler, "-E", "-x", "c++", "-v", os.devnull],
                          capture_output=True, text=True, check=True).stderr
    listed = text.split("search starts here:")[-1].split("End of search list")[0].splitlines()
    folders = [os.path.realpath(line.strip()) for line in listed if line.startswith(" /")]
    flags = ["--target=x86_64-w64-mingw32", "-nostdinc++"]
    for folder in folders:
        if not folder.endswith(("/include-fixed", "-posix/include")):
            flags += ["-isystem", folder]
    return flags


def prepare(preset):
    """Writes the flags that clang-tidy is to see; returns them per source."""
    chosen = commands(preset)
    extra = []
    if preset == "windows":
        for source in commands("native"):
            chosen.pop(source, None)
        extra = cross_flags()
    folder = ROOT / "build" / "tidy" / preset
    folder.mkdir(parents=True, exist_ok=True)
    database = []
    for source, entry in chosen.items():
        words = [word for word in entry["command"].split() if word not in FOREIGN_FLAGS]
        words[1:1] = extra
        database.append({"directory": entry["directory"], "file": str(source),
                         "arguments": [word.replace('\\"', '"') for word in words]})
    (folder / "compile_commands.json").write_text(json.dumps(database, indent=1))
    return folder, {pathlib.Path(entry["file"]): entry for entry in database}


def state_of(source, arguments, headers):
    digest = hashlib.sha256(" ".join(arguments).encode())
    for path in [ROOT / ".clang-tidy", ROOT / "tests" / ".clang-tidy", source, *sorted(headers)]:
        digest.update(path.read_bytes() if path.exists() else b"-")
    return digest.hexdigest()


def object_of(arguments):
    return arguments[arguments.index("-o") + 1]


def check(folder, source):
    return subprocess.run(["clang-tidy", "--quiet", "-p", str(folder), str(source)],
                          capture_output=True, text=True)


def main():
    preset, wanted = sys.argv[1], [pathlib.Path(name).resolve() for name in sys.argv[2:]]
    folder, database = prepare(preset)
    read = headers_read(preset)
    todo = {}
    for source, entry in database.items():
        state = folder / state_of(source, entry["arguments"],
                                  read.get(object_of(entry["arguments"]), []))
        if source in wanted or (not wanted and not state.exists()):
            todo[source] = state
    faulty = 0
    with concurrent.futures.ThreadPoolExecutor(int(os.environ.get("O7_JOBS", os.cpu_count()))) as pool:
        for source, answer in zip(todo, pool.map(lambda one: check(folder, one), todo)):
            if answer.returncode == 0:
                # A source that was never built has no known headers: nothing to remember it by.
                if object_of(database[source]["arguments"]) in read:
                    todo[source].touch()
                continue
            faulty += 1
            print(f"{source.relative_to(ROOT)}:\n{answer.stdout}{answer.stderr}")
    print(f"{len(todo)} of {len(database)} sources read, {faulty} with findings")
    return 1 if faulty else 0


sys.exit(main())
