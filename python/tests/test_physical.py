# SPDX-License-Identifier: MIT
"""Expected values are worked out by hand from the formulas of the conversion methods."""

from __future__ import annotations

import math

import a2l2json
import pytest

# The coefficients a to f: raw = (a x^2 + b x + c) / (d x^2 + e x + f).
RATIONALS = {
    "ratio": "0 4 0 0 0 1",
    "hyperbola": "0 0 100 0 1 0",
    "square": "1 0 0 0 0 1",
    "tenth": "0 1 0 0 0 10",
    "minus": "0 -1 0 0 0 1",
    "nearly_line": "1e-12 1 0 0 0 1",
    "nearly_falling": "-1e-12 1 0 0 0 1",
    "parabola": "1 3 2 0 0 1",
    "parabola_left": "1 -3 2 0 0 1",
    "downwards": "-1 3 -2 0 0 1",
    "downwards_left": "-1 -3 -2 0 0 1",
}

# Formulas from raw to physical values.
FORMULAS = {
    "abs_of_two": "abs(X1, 2)",
    "pow_of_one": "pow(X1)",
    "late_abs": "1 / (X1 - 1) + abs(X1, 2)",
    "formula": "sqrt(X1) + 2^3",
    "attack": "__import__('os').system('true')",
}

METHODS = "".join(
    f'/begin COMPU_METHOD {name} "" RAT_FUNC "%4.2" ""\n COEFFS {numbers}\n/end COMPU_METHOD\n'
    for name, numbers in RATIONALS.items()
) + "".join(
    f'/begin COMPU_METHOD {name} "" FORM "%4.2" ""\n'
    f'/begin FORMULA "{formula}"\n/end FORMULA\n/end COMPU_METHOD\n'
    for name, formula in FORMULAS.items()
)

MODULE = f"""ASAP2_VERSION 1 71
/begin PROJECT p ""
/begin MODULE m ""
  /begin COMPU_METHOD same "" IDENTICAL "%4.0" "V"
  /end COMPU_METHOD
  /begin COMPU_METHOD line "" LINEAR "%4.2" "deg C"
    COEFFS_LINEAR 0.5 -40
  /end COMPU_METHOD
  /begin COMPU_METHOD holes "" TAB_VERB "%4.2" ""
    COMPU_TAB_REF holes_table
  /end COMPU_METHOD
{METHODS}  /begin COMPU_METHOD curve "" TAB_INTP "%4.2" "bar"
    COMPU_TAB_REF curve_table
  /end COMPU_METHOD
  /begin COMPU_METHOD steps "" TAB_NOINTP "%4.2" "bar"
    COMPU_TAB_REF step_table
  /end COMPU_METHOD
  /begin COMPU_METHOD gear "" TAB_VERB "%4.2" ""
    COMPU_TAB_REF gear_table
  /end COMPU_METHOD
  /begin COMPU_METHOD level "" TAB_VERB "%4.2" ""
    COMPU_TAB_REF level_table
  /end COMPU_METHOD
  /begin COMPU_METHOD lost "" TAB_VERB "%4.2" ""
    COMPU_TAB_REF nowhere
  /end COMPU_METHOD
  /begin COMPU_METHOD sensor "" LINEAR "%4.2" "V"
    COEFFS_LINEAR 0.1 0
    STATUS_STRING_REF gear_table
  /end COMPU_METHOD
  /begin COMPU_TAB curve_table "" TAB_INTP 3
    10 200
    0 100
    30 0
  /end COMPU_TAB
  /begin COMPU_TAB step_table "" TAB_NOINTP 2
    1 5
    2 7
    DEFAULT_VALUE_NUMERIC -1
  /end COMPU_TAB
  /begin COMPU_VTAB gear_table "" TAB_VERB 3
    0 "neutral"
    1 "first"
    1 "never seen"
  /end COMPU_VTAB
  /begin COMPU_VTAB_RANGE level_table "" 2
    0 4 "low"
    5 9 "high"
    DEFAULT_VALUE "odd"
  /end COMPU_VTAB_RANGE
  /begin COMPU_VTAB_RANGE holes_table "" 3
    1e999 1 "no lower limit"
    0 1e999 "no upper limit"
    2 3 "whole"
  /end COMPU_VTAB_RANGE
/end MODULE
/end PROJECT
"""


@pytest.fixture(scope="module")
def module() -> object:
    return a2l2json.loads(MODULE, mend=False).document["FModules"][0]


@pytest.mark.parametrize(
    ("name", "raw", "physical"),
    [
        ("NO_COMPU_METHOD", 7, 7),
        ("same", 7, 7),
        ("line", 100, 10),  # 0.5 * 100 - 40
        ("ratio", 4000, 1000),  # raw = 4 x
        ("hyperbola", 4, 25),  # raw = 100 / x
        ("square", 16, 4),  # raw = x^2, of whose two roots the larger one counts
        ("parabola", 0, -1),  # (x + 1) (x + 2) = 0, and the square root is added
        ("parabola_left", 0, 2),  # (x - 1) (x - 2) = 0
        ("downwards", 0, 1),  # -(x - 1) (x - 2) = 0
        ("downwards_left", 0, -2),  # -(x + 1) (x + 2) = 0
        ("holes", 2, "whole"),  # of the other ranges a limit is not known
        ("formula", 9, 11),  # 3 + 8
        ("curve", 0, 100),
        ("curve", 5, 150),  # half way from 100 to 200
        ("curve", 25, 50),  # three quarters from 200 to 0
        ("curve", -5, 100),  # before the table: its first value
        ("curve", 99, 0),  # behind it: its last
        ("steps", 2, 7),
        ("steps", 1.5, -1),  # no row, so the default
        ("gear", 1, "first"),
        ("level", 4, "low"),
        ("level", 5, "high"),
        ("level", 4.5, "odd"),
        ("sensor", 1, "first"),  # a status goes before the number
        ("sensor", 30, 3),
    ],
)
def test_physical(module: object, name: str, raw: float, physical: object) -> None:
    value = a2l2json.Conversion(module, name)(raw)
    if isinstance(physical, str):
        assert value == physical
    else:
        assert math.isclose(value, physical)


@pytest.mark.parametrize(
    ("name", "physical"),
    [
        ("nearly_line", 5 - 2.5e-11),  # 1e-12 x^2 + x = 5, so x is 5 - 1e-12 * 5^2
        ("nearly_falling", 5 + 2.5e-11),
    ],
)
def test_a_tiny_coefficient_costs_no_digits(module: object, name: str, physical: float) -> None:
    assert math.isclose(a2l2json.Conversion(module, name)(5), physical, rel_tol=1e-15)


@pytest.mark.parametrize("name", ["ratio", "tenth", "minus", "square", "nearly_line"])
def test_nothing_is_zero_without_a_sign(module: object, name: str) -> None:
    assert repr(a2l2json.Conversion(module, name)(0)) == "0.0"


def test_unit_and_format(module: object) -> None:
    conversion = a2l2json.Conversion(module, "line")
    assert (conversion.unit, conversion.format) == ("deg C", "%4.2")


@pytest.mark.parametrize(
    ("name", "says"),
    [
        ("unheard_of", "no COMPU_METHOD unheard_of"),
        ("lost", "no COMPU_VTAB or COMPU_VTAB_RANGE nowhere"),
        ("attack", "__import__"),
        ("abs_of_two", "abs"),
        ("pow_of_one", "pow"),
    ],
)
def test_a_conversion_that_cannot_be_made(module: object, name: str, says: str) -> None:
    with pytest.raises(a2l2json.ConversionError, match=says):
        a2l2json.Conversion(module, name)


@pytest.mark.parametrize(
    ("name", "raw"),
    [
        ("gear", 9),
        ("hyperbola", 0),
        ("square", -1),
        ("formula", -1),
        ("late_abs", 3),
        ("holes", 1),
    ],
)
def test_a_value_without_a_physical_one(module: object, name: str, raw: float) -> None:
    with pytest.raises(a2l2json.ConversionError):
        a2l2json.Conversion(module, name)(raw)
