#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Measures the converter and prints one table.

    bench/run.py --bench PROGRAM --program PROGRAM --generate PROGRAM [--rounds N] [--sizes 1,8]

Every round measures everything once, one after the other, so that other work of the machine affects
everything alike. The table shows the medians of the rounds. Nothing is built here, and no figure
makes the run fail, because times depend on the machine.
"""

import argparse
import json
import os
import re
import resource
import shutil
import statistics
import sys
import tempfile
import time

MB = 1_000_000
STAGES = ("Tokenize/NextToken", "Read", "Export", "Destroy")
SMALL_RUNS = 21  # conversions of the smallest file per round


def run(command, output=os.devnull):
    """Runs a program. Gives processor time and wall clock in seconds, and peak memory in bytes."""
    flags = os.O_WRONLY | os.O_CREAT | os.O_TRUNC
    begin = time.perf_counter()
    actions = [(os.POSIX_SPAWN_OPEN, 1, output, flags, 0o600)]
    child = os.posix_spawn(command[0], command, os.environ, file_actions=actions)
    _, status, usage = os.wait4(child, 0)
    wall = time.perf_counter() - begin
    if status != 0:
        sys.exit("failed: " + " ".join(command))
    unit = 1 if sys.platform == "darwin" else 1024
    return {
        "cpu": usage.ru_utime + usage.ru_stime,
        "wall": wall,
        "peak": usage.ru_maxrss * unit,
    }


class Samples:
    """All measured values, by name and size, and their medians."""

    def __init__(self):
        self.values = {}

    def add(self, name, size, value):
        self.values.setdefault((name, size), []).append(value)

    def median(self, name, size, field):
        samples = self.values.get((name, size))
        return statistics.median(sample[field] for sample in samples) if samples else None


def make_files(generate, folder, sizes):
    """The input files, and their numbers of objects and bytes."""
    inputs = {}
    for size in sizes + ["1k"]:
        path = os.path.join(folder, f"{size}.a2l")
        listing = os.path.join(folder, "listing")
        run([generate, size if size == "1k" else f"{size}M", path], listing)
        with open(listing, encoding="ascii") as lines:
            objects = int(lines.readline().split()[1])
        inputs[size] = {"path": path, "objects": objects, "bytes": os.path.getsize(path)}
    return inputs


def measure_stages(bench, folder, sizes, samples):
    """Reading, export and release in memory. The program checks each before it times it."""
    names = "|".join(STAGES)
    wanted = "|".join(str(size) for size in sizes)
    output = os.path.join(folder, "stages.json")
    run(
        [
            bench,
            f"--benchmark_filter=^(({names})/({wanted})|ExportJson11/8)(/|$)",
            "--benchmark_format=json",
            "--benchmark_min_time=0.1",
        ],
        output,
    )
    with open(output, encoding="utf-8") as file:
        for result in json.load(file)["benchmarks"]:
            if result.get("error_occurred"):
                sys.exit(f"{result['name']}: {result['error_message']}")
            stage, size = re.match(r"(.*?)/(\d+)", result["name"]).groups()
            to_seconds = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1}[result["time_unit"]]
            samples.add(
                stage,
                int(size),
                {
                    "cpu": result["cpu_time"] * to_seconds,
                    "wall": result["real_time"] * to_seconds,
                },
            )


def measure_mending(mend, folder, inputs, samples):
    """The program that mends; measure_processes adds the limit for the bytes that it wrote."""
    output = os.path.join(folder, "mended.a2l")
    for size, data in inputs.items():
        if size == "1k":
            continue
        samples.add("Mend", size, run([mend, "--quiet", data["path"], output]))
        data["mended"] = os.path.getsize(output)
        os.remove(output)


def measure_processes(bench, program, folder, inputs, samples):
    """The program, and directly after it cat and the physical limit for the same bytes."""
    output = os.path.join(folder, "out.json")
    copy_of_output = os.path.join(folder, "copy.json")
    for size, data in inputs.items():
        for _ in range(SMALL_RUNS if size == "1k" else 1):
            samples.add("Whole", size, run([program, data["path"], output]))
            written = os.path.getsize(output)
            if "output" not in data:
                run([bench, "--check", data["path"], output])
                data["output"] = written
            elif written != data["output"]:
                sys.exit(f"two runs for {data['path']} wrote documents of different length")
            if size != "1k":
                cat = 'cat "$0" >/dev/null; cat "$1" >"$2"'
                files = [data["path"], output, copy_of_output]
                samples.add("Cat", size, run(["/bin/sh", "-c", cat, *files]))
                os.remove(copy_of_output)
            os.remove(output)  # each run makes a new file; emptying an old one takes time
        if size != "1k":
            copy = [bench, "--plain-copy", data["path"], output, str(written)]
            samples.add("Limit", size, run(copy))
            os.remove(output)
        if "mended" in data:
            copy = [bench, "--plain-copy", data["path"], output, str(data["mended"])]
            samples.add("MendLimit", size, run(copy))
            os.remove(output)


def number(value, digits):
    return "-" if value is None else f"{value:,.{digits}f}"


def print_table(title, sizes, rows):
    width = max(len(label) for label, _ in rows) + 2
    print(f"{title:{width}}" + "".join(f"{f'{size} MB':>12}" for size in sizes))
    print("-" * (width + 12 * len(sizes)))
    for label, cells in rows:
        print(f"{label:{width}}" + "".join(f"{cell:>12}" for cell in cells))
    print()


def report(sizes, inputs, samples):
    def each(name, field, compute, digits):
        cells = []
        for size in sizes:
            value = samples.median(name, size, field)
            cells.append(number(None if value is None else compute(value, inputs[size]), digits))
        return cells

    def speed(seconds, data):
        return data["bytes"] / seconds / MB

    def per_object(seconds, data):
        return seconds / data["objects"] * 1e9

    def milliseconds(seconds, _):
        return seconds * 1e3

    # For a new process, the system counts the peak from the size of the process that starts it.
    floor = resource.getrusage(resource.RUSAGE_SELF).ru_maxrss * 1024

    def peak(value, data):
        return value / data["bytes"] if value > 1.2 * floor else float("nan")

    rows = [("objects", [number(inputs[size]["objects"], 0) for size in sizes])]
    for label, name in (
        ("finding tokens", "Tokenize/NextToken"),
        ("reading (text to tree)", "Read"),
        ("export (tree to JSON text)", "Export"),
        ("destroying the tree", "Destroy"),
        ("whole conversion (process)", "Whole"),
        ("mending (process)", "Mend"),
    ):
        rows.append((label + ", MB/s of input", each(name, "cpu", speed, 0)))
        rows.append((label + ", ns per object", each(name, "cpu", per_object, 0)))
    rows += [
        ("whole conversion, processor ms", each("Whole", "cpu", milliseconds, 1)),
        ("physical limit, processor ms", each("Limit", "cpu", milliseconds, 1)),
        ("cat of input and document, processor ms", each("Cat", "cpu", milliseconds, 1)),
        ("whole conversion, wall clock ms", each("Whole", "wall", milliseconds, 1)),
        ("physical limit, wall clock ms", each("Limit", "wall", milliseconds, 1)),
        ("peak memory of the process / input",
         [cell.replace("nan", "-") for cell in each("Whole", "peak", peak, 2)]),
        ("peak memory of mending / input",
         [cell.replace("nan", "-") for cell in each("Mend", "peak", peak, 2)]),
        ("output / input", [number(inputs[s]["output"] / inputs[s]["bytes"], 2) for s in sizes]),
    ]
    print_table("processor time unless it says wall clock", sizes, rows)

    def ratio(above, below, digits=2):
        return "-" if None in (above, below) else f"{above / below:.{digits}f}"

    def per_byte(name, size, field="cpu"):
        value = samples.median(name, size, field)
        return None if value is None else value / inputs[size]["bytes"]

    ratios = []
    if samples.median("Mend", 64, "cpu") is not None:
        ratios.append(("mending / physical limit of its bytes at 64 MB, processor time",
                       ratio(per_byte("Mend", 64), per_byte("MendLimit", 64))))
    ratios += [
        ("whole conversion / physical limit at 64 MB, processor time",
         ratio(per_byte("Whole", 64), per_byte("Limit", 64)) if 64 in inputs else "-"),
        ("whole conversion / physical limit at 64 MB, wall clock",
         ratio(per_byte("Whole", 64, "wall"), per_byte("Limit", 64, "wall"))
         if 64 in inputs else "-"),
        ("whole conversion / cat of input and document at 64 MB, processor time",
         ratio(per_byte("Whole", 64), per_byte("Cat", 64)) if 64 in inputs else "-"),
        ("export by way of json11 / export at 8 MB",
         ratio(per_byte("ExportJson11", 8), per_byte("Export", 8), 1) if 8 in inputs else "-"),
        ("time per MB at 256 MB / time per MB at 8 MB",
         ratio(per_byte("Whole", 256), per_byte("Whole", 8))
         if 8 in inputs and 256 in inputs else "-"),
    ]
    for size in (64, 256):
        if size in inputs:
            value = samples.median("Whole", size, "peak") / inputs[size]["bytes"]
            ratios.append((f"peak memory / input at {size} MB", f"{value:.2f}"))
    small = samples.median("Whole", "1k", "cpu")
    ratios.append(("processor time of converting a 1 kB file", f"{small * 1e3:.2f} ms"))
    width = max(len(label) for label, _ in ratios) + 2
    for label, value in ratios:
        print(f"{label:{width}}{value:>10}")


def machine():
    try:
        load = ", ".join(f"{value:.1f}" for value in os.getloadavg())
    except OSError:
        load = "not known"
    return f"{os.cpu_count()} processors, load average {load}"


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n", maxsplit=1)[0])
    parser.add_argument("--bench", required=True, help="the benchmark program")
    parser.add_argument("--program", required=True, help="the converter")
    parser.add_argument("--generate", required=True, help="the generator")
    parser.add_argument("--mend", help="the program that mends; a2lmend beside the converter")
    parser.add_argument("--rounds", type=int, default=5)
    parser.add_argument("--sizes", default="1,8,64,256", help="in MB")
    arguments = parser.parse_args()
    bench, program, generate = (
        os.path.abspath(path) for path in (arguments.bench, arguments.program, arguments.generate)
    )
    mend = os.path.abspath(arguments.mend or os.path.join(os.path.dirname(program), "a2lmend"))
    sizes = [int(size) for size in arguments.sizes.split(",")]

    in_memory = "/dev/shm" if os.access("/dev/shm", os.W_OK) else None
    folder = tempfile.mkdtemp(prefix="a2l2json-bench-", dir=in_memory)
    try:
        print(f"{machine()} at the beginning; files in {os.path.dirname(folder)}")
        inputs = make_files(generate, folder, sizes)
        samples = Samples()
        for done in range(arguments.rounds):
            print(f"round {done + 1} of {arguments.rounds}", file=sys.stderr)
            if arguments.mend or os.path.exists(mend):
                measure_mending(mend, folder, inputs, samples)
            measure_processes(bench, program, folder, inputs, samples)
            measure_stages(bench, folder, sizes, samples)
        print(f"{machine()} at the end; medians of {arguments.rounds} rounds")
        print("1 MB is 1,000,000 bytes of input; the load above is that of other programs and these runs\n")
        report(sizes, inputs, samples)
    finally:
        shutil.rmtree(folder)


if __name__ == "__main__":
    main()
