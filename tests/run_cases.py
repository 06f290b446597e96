#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs a program on all golden cases, and compares what it says, its exit code and its documents.

usage: tests/run_cases.py <program> [<argument>...]

The program is called with these arguments, and two paths behind them.
"""

import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

CASES = Path(__file__).resolve().parent / "cases"


def trouble(command, case, folder):
    """What is wrong with a case, or None."""
    out = folder / f"{case.parent.name}_{case.stem}.json"
    ran = subprocess.run([*command, str(case), str(out)], capture_output=True, check=False)
    golden = case.with_suffix(".json")
    said = case.with_suffix(".out")
    # The document is one line; its golden form begins one for each key.
    expected = golden.read_bytes().replace(b"\n", b"") if golden.exists() else None
    text = said.read_bytes() if said.exists() else b"Success.\n\n"
    if ran.returncode != (254 if expected is None else 0):
        return f"exit code {ran.returncode}"
    if ran.stdout != text:
        return f"it says {ran.stdout!r}"
    if (out.read_bytes() if out.exists() else None) != expected:
        return "the document differs"
    return None


def main(command):
    if not command:
        sys.exit(__doc__)
    cases = sorted(CASES.glob("*/*.a2l"))
    with tempfile.TemporaryDirectory() as folder, ThreadPoolExecutor(4) as pool:
        troubles = pool.map(lambda case: trouble(command, case, Path(folder)), cases)
        found = [(case, what) for case, what in zip(cases, troubles) if what is not None]
    for case, what in found:
        print(f"{case.parent.name}/{case.name}: {what}")
    if found or not cases:
        sys.exit(f"{len(found)} of {len(cases)} cases differ")
    print(f"{len(cases)} cases: the same texts, exit codes and documents")


if __name__ == "__main__":
    main(sys.argv[1:])
