# SPDX-License-Identifier: MIT
"""What docs/python.md shows does what it says."""

from __future__ import annotations

import re
import shutil
from pathlib import Path
from typing import Any, Dict

import pytest


def test_every_snippet_of_the_page_runs(
    top: Path,
    demo: Path,
    tmp_path: Path,
    monkeypatch: pytest.MonkeyPatch,
    capsys: pytest.CaptureFixture[str],
) -> None:
    shutil.copy(demo, tmp_path / "engine.a2l")
    monkeypatch.chdir(tmp_path)
    page = (top / "docs" / "python.md").read_text()
    snippets = re.findall(r"```python\n(.*?)```", page, re.DOTALL)
    assert len(snippets) > 5
    names: Dict[str, Any] = {}
    for snippet in snippets:  # one after the other, as a reader tries them
        exec(compile(snippet, "docs/python.md", "exec"), names)
    said = capsys.readouterr().out
    assert "EngineSpeed 0x" in said
    assert "\n2\n" in said
    assert "1000.0 1/min" in said
    assert (tmp_path / "engine.json").read_bytes() == demo.with_suffix(".json").read_bytes()
    assert (tmp_path / "measurements.csv").read_text().startswith("MODULE,ACCURACY,")
