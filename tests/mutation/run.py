#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Breaks the program on purpose, in one small way after the other, and reports which mutations the
tests do not notice.

mutations.txt lists the mutations: a line "@ <file>: <what it does>", then lines that begin with "-"
(the text to replace, which must occur exactly once) and with "+" (the text that takes its place).
Each mutation is applied to a copy of the repository in build/mutation. The copy is built and tested, the
fastest tests first, up to the first failure.

The exit code is 1 if a mutation survives. It is 2 if a text of mutations.txt does not occur exactly
once, the tests fail without any mutation, or a mutated program does not compile: the tests cannot
judge such a mutation, unless a static assertion has noticed it.
"""

import argparse
import dataclasses
import os
import pathlib
import re
import resource
import shutil
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
WORK = ROOT / "build" / "mutation"
COPY = WORK / "source"
BUILD = WORK / "build"

# Run when the mutated program is built, by the test program of the unchanged tree: only tests that
# look at the program from outside.
OUTSIDE = [("program", "Program.*"), ("golden cases", "Cases/Golden.ProgramGives*")]
# Run when the tests are built again as well.
INSIDE = [
    ("unit tests", "-Cases/*:Generator.*:Torture.*:Linear.*:Program.*"),
    ("golden cases in the library", "Cases/*-*ProgramGives*"),
    ("generated files", "Generator.*"),
    ("torture", "Torture.*:Linear.*"),
]
UNKNOWN = "nobody, it does not compile"
SECONDS = 300  # a test that takes longer has been caught in a loop


@dataclasses.dataclass
class Mutation:
    file: str
    title: str
    old: list[str] | str  # lines, then the text
    new: list[str] | str


def read_mutations(path):
    mutations = []
    for number, line in enumerate(path.read_text().splitlines(), 1):
        if not line or line.startswith("#"):
            continue
        sign, text = line[0], line[1:]
        if sign == "@":
            file, _, title = text.strip().partition(": ")
            mutations.append(Mutation(file, title, [], []))
        elif sign == "-":
            mutations[-1].old.append(text)
        elif sign == "+":
            mutations[-1].new.append(text)
        else:
            sys.exit(f"{path}:{number}: a line begins with @, -, + or #")
    for mutation in mutations:
        mutation.old, mutation.new = "\n".join(mutation.old), "\n".join(mutation.new)
    # Mutations of one file come next to each other, so that files that depend on it are built only
    # once for each.
    return sorted(mutations, key=lambda mutation: mutation.file)


def check(mutations):
    """Checks, before anything is built, that every text occurs exactly once."""
    complaints = []
    for mutation in mutations:
        path = ROOT / mutation.file
        count = path.read_text().count(mutation.old) if mutation.old and path.is_file() else 0
        if count != 1 or mutation.old == mutation.new or not mutation.title:
            complaints.append(f"{mutation.file}: {mutation.title}: the text occurs {count} times")
    if complaints:
        print("\n".join(complaints), file=sys.stderr)
        sys.exit(2)


def copy_tree():
    """Brings the copy up to date. Files that are the same keep their time."""
    listing = subprocess.run(
        ["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
        cwd=ROOT, check=True, stdout=subprocess.PIPE).stdout.decode()
    names = [name for name in listing.split("\0") if name and (ROOT / name).is_file()]
    for name in names:
        source, target = ROOT / name, COPY / name
        if target.is_file() and target.read_bytes() == source.read_bytes():
            continue
        target.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(source, target)
    for folder, _, files in os.walk(COPY):
        for file in files:
            name = (pathlib.Path(folder) / file).relative_to(COPY).as_posix()
            if name not in names and not name.startswith(".deps"):
                (COPY / name).unlink()
    if (ROOT / ".deps").is_dir() and not (COPY / ".deps").exists():
        (COPY / ".deps").symlink_to(ROOT / ".deps")


def build(target, jobs):
    return subprocess.run(["cmake", "--build", str(BUILD), "-j", str(jobs), "--target", target],
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT)


def limit_resources():
    limit = 6 << 30
    resource.setrlimit(resource.RLIMIT_AS, (limit, limit))
    # Also limits the program that a test runs, because nobody ends that program when the test is
    # ended.
    resource.setrlimit(resource.RLIMIT_CPU, (SECONDS, SECONDS))


def run_tests(program, stages):
    """The stage and the first test that fails, or None."""
    for stage, tests in stages:
        try:
            result = subprocess.run(
                [str(program), f"--gtest_filter={tests}", "--gtest_fail_fast", "--gtest_brief=1"],
                stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=SECONDS,
                preexec_fn=limit_resources)
        except subprocess.TimeoutExpired:
            return f"{stage}: no end"
        if result.returncode != 0:
            output = result.stdout.decode(errors="replace")
            failed = re.search(r"\[  FAILED  \] ([^\s,]+)", output)
            return f"{stage}: {failed[1] if failed else 'crash'}"
    return None


def compile_verdict(target, jobs):
    """None if the target compiles."""
    result = build(target, jobs)
    if result.returncode == 0:
        return None
    return "a static assertion" if b"static assertion failed" in result.stdout else UNKNOWN


def verdict(tests, jobs):
    """Who notices the mutation in the copy, or None."""
    if (noticed := compile_verdict("a2l2json", jobs)) is not None:
        return noticed
    caught = run_tests(tests, OUTSIDE)
    if caught is None:
        if (noticed := compile_verdict("a2l2json_tests", jobs)) is not None:
            return noticed
        caught = run_tests(BUILD / "a2l2json_tests", INSIDE)
    return caught


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--only", default="", help="mutations whose file or title match this")
    parser.add_argument("--jobs", type=int, default=int(os.environ.get("JOBS", "2")))
    parser.add_argument("--check", action="store_true", help="look for the texts, build nothing")
    arguments = parser.parse_args()

    mutations = read_mutations(ROOT / "tests" / "mutation" / "mutations.txt")
    check(mutations)
    print(f"{len(mutations)} mutations, every text is there once", flush=True)
    if arguments.check:
        return 0
    chosen = [m for m in mutations if re.search(arguments.only, f"{m.file}: {m.title}")]

    copy_tree()
    subprocess.run(["cmake", "-S", str(COPY), "-B", str(BUILD), "-G", "Ninja",
                    "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0 -g0",
                    "-DA2L2JSON_BUILD_TESTS=ON"],
                   check=True, stdout=subprocess.DEVNULL)
    result = build("all", arguments.jobs)
    if result.returncode != 0:
        print(result.stdout.decode(errors="replace"), file=sys.stderr)
        return 2
    tests = WORK / "unchanged_tests"
    shutil.copy2(BUILD / "a2l2json_tests", tests)
    if (failed := run_tests(tests, OUTSIDE + INSIDE)) is not None:
        print(f"without a mutation: {failed}", file=sys.stderr)
        return 2
    print("without a mutation all tests pass", flush=True)

    survivors = []
    unknown = []
    for number, mutation in enumerate(chosen, 1):
        path = COPY / mutation.file
        text = path.read_text()
        path.write_text(text.replace(mutation.old, mutation.new))
        begun = time.monotonic()
        try:
            caught = verdict(tests, arguments.jobs)
        finally:
            path.write_text(text)
        if caught is None:
            survivors.append(mutation)
        elif caught == UNKNOWN:
            unknown.append(mutation)
        print(f"[{number}/{len(chosen)}] {mutation.file}: {mutation.title}\n"
              f"    {'SURVIVES' if caught is None else 'caught by ' + caught}"
              f" ({time.monotonic() - begun:.0f} s)", flush=True)

    caught = len(chosen) - len(survivors) - len(unknown)
    print(f"{caught} of {len(chosen)} mutations are caught")
    for mutation in survivors:
        print(f"SURVIVES: {mutation.file}: {mutation.title}")
    for mutation in unknown:
        print(f"DOES NOT COMPILE: {mutation.file}: {mutation.title}")
    return 2 if unknown else 1 if survivors else 0


if __name__ == "__main__":
    sys.exit(main())
