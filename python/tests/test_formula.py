# SPDX-License-Identifier: MIT
from __future__ import annotations

import pytest
from a2l2json.formula import Formula, FormulaError


@pytest.mark.parametrize(
    ("text", "x1", "value"),
    [
        ("X1", 3, 3),
        ("2 * X1 + 1", 3, 7),
        ("-X1", 3, -3),
        ("X1 ^ 2", 3, 9),
        ("6 XOR 3", 0, 5),
        ("X1 & 12", 10, 8),
        ("X1 | 1", 10, 11),
        ("X1 << 2", 3, 12),
        ("X1 >> 1", 10, 5),
        ("~X1", 0, -1),
        ("(X1 > 2) && (X1 < 4)", 3, 1),
        ("(X1 > 2) || (X1 < 0)", 1, 0),
        ("!X1", 0, 1),
        ("X1 != 3", 3, 0),
        ("abs(X1)", -2, 2),
        ("pow(X1, 3)", 2, 8),
        ("log10(X1)", 1000, 3),
        ("0x10 + X1", 1, 17),
    ],
)
def test_value(text: str, x1: float, value: float) -> None:
    assert Formula(text)(x1) == pytest.approx(value)


@pytest.mark.parametrize(
    "text",
    [
        "",
        "X1 +",
        "X2",
        "open('x')",
        "X1.real",
        "'a'",
        "[X1]",
        "lambda: 0",
        "X1 if X1 else 0",
        "1 < X1 < 2",
        "(" * 300 + "X1" + ")" * 300,
    ],
)
def test_what_is_no_calculation_is_refused(text: str) -> None:
    with pytest.raises(FormulaError):
        Formula(text)


def test_a_shift_is_limited() -> None:
    with pytest.raises(ValueError, match="shift"):
        Formula("1 << X1")(1e9)


def test_a_power_is_limited() -> None:
    with pytest.raises(OverflowError):
        Formula("9 ^ (9 ^ X1)")(9)
