# SPDX-License-Identifier: MIT
from __future__ import annotations

from pathlib import Path

import pytest

TOP = Path(__file__).resolve().parents[2]


@pytest.fixture
def top() -> Path:
    """The repository."""
    return TOP


@pytest.fixture
def demo() -> Path:
    return TOP / "examples" / "demo.a2l"
