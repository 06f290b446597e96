# SPDX-License-Identifier: MIT
"""python -m a2l2json gives the texts, exit codes and documents of the program."""

from __future__ import annotations

import os
import subprocess
import sys
from pathlib import Path

import pytest
from a2l2json.__main__ import main

TOP = Path(__file__).resolve().parents[2]
CASES = sorted((TOP / "tests" / "cases").glob("*/*.a2l"))


def test_there_are_cases() -> None:
    assert len(CASES) > 700


@pytest.mark.parametrize("case", CASES, ids=lambda case: f"{case.parent.name}/{case.stem}")
def test_golden_cases(
    case: Path, tmp_path: Path, capfdbinary: pytest.CaptureFixture[bytes]
) -> None:
    out = tmp_path / "out.json"
    code = main([str(case), str(out)])
    said = case.with_suffix(".out")
    text = said.read_bytes() if said.exists() else b"Success.\n\n"
    assert capfdbinary.readouterr().out == text
    fails = case.name.startswith("fail_")
    assert code == (254 if fails else 0)
    # The document is one line; its golden form begins one for each key.
    golden = case.with_suffix(".json")
    assert fails == (not golden.exists())
    if not fails:
        assert out.read_bytes() == golden.read_bytes().replace(b"\n", b"")


@pytest.mark.parametrize("arguments", [[], ["one"], ["one", "two", "three"]])
def test_without_two_paths_it_says_how_to_call_it(
    arguments: list[str], capfdbinary: pytest.CaptureFixture[bytes]
) -> None:
    assert main(arguments) == 255
    usage = b"Failed: using python -m a2l2json [in]a2l_file [out]json_file\n"
    assert capfdbinary.readouterr().out == usage


def test_a_file_that_is_not_there(
    tmp_path: Path, capfdbinary: pytest.CaptureFixture[bytes]
) -> None:
    assert main([str(tmp_path / "missing.a2l"), str(tmp_path / "out.json")]) == 254
    assert capfdbinary.readouterr().out == b"Failed: \n"
    assert not (tmp_path / "out.json").exists()


def test_an_output_that_cannot_be_opened(
    demo: Path, tmp_path: Path, capfdbinary: pytest.CaptureFixture[bytes]
) -> None:
    out = tmp_path / "no such folder" / "out.json"
    assert main([str(demo), str(out)]) == 253
    said = b"Failed: Can not write access json file " + bytes(out) + b"\n"
    assert capfdbinary.readouterr().out == said


def test_what_is_not_a2l_gives_a_document(
    tmp_path: Path, capfdbinary: pytest.CaptureFixture[bytes]
) -> None:
    table, out = tmp_path / "table.csv", tmp_path / "out.json"
    table.write_bytes(b"name,address\nn,1\n")
    assert main([str(table), str(out)]) == 0
    assert capfdbinary.readouterr().out.startswith(b"Success.\n")
    assert out.read_bytes().startswith(b"{")


@pytest.mark.skipif(os.name == "nt", reason="needs a shell of POSIX")
def test_without_a_standard_output_it_says_nothing(demo: Path, tmp_path: Path) -> None:
    out = tmp_path / "out.json"
    for paths, code in (([demo, out], 0), ([demo], 255)):
        ran = subprocess.run(
            ["sh", "-c", '"$0" -m a2l2json "$@" >&-', sys.executable, *paths],
            stderr=subprocess.PIPE,
            check=False,
        )
        assert (ran.returncode, ran.stderr) == (code, b"")
    assert out.read_bytes() == demo.with_suffix(".json").read_bytes()


def test_the_module_runs_as_a_program(demo: Path, tmp_path: Path) -> None:
    out = tmp_path / "out.json"
    ran = subprocess.run(
        [sys.executable, "-m", "a2l2json", demo, out], capture_output=True, check=False
    )
    assert (ran.returncode, ran.stdout, ran.stderr) == (0, b"Success.\n\n", b"")
    assert out.read_bytes() == (demo.with_suffix(".json")).read_bytes()
