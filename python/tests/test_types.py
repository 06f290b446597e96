# SPDX-License-Identifier: MIT
from __future__ import annotations

import subprocess
import sys
from pathlib import Path

import pytest


def test_the_types_are_those_of_the_schema(top: Path) -> None:
    tool = top / "python" / "tools" / "make_document_types.py"
    types = top / "python" / "src" / "a2l2json" / "document.py"
    schema = top / "docs" / "json.schema.json"
    ran = subprocess.run(
        [sys.executable, tool, "--check", schema, types], capture_output=True, text=True, check=False
    )
    assert ran.returncode == 0, ran.stdout


def test_the_package_is_typed(top: Path) -> None:
    pytest.importorskip("mypy")
    ran = subprocess.run(
        [sys.executable, "-m", "mypy", "--no-incremental"],
        capture_output=True,
        text=True,
        check=False,
        cwd=top / "python",
    )
    assert ran.returncode == 0, ran.stdout
