# SPDX-License-Identifier: MIT
from __future__ import annotations

import math

import a2l2json
import pytest

TEXT = """ASAP2_VERSION 1 71
/begin PROJECT p ""
/begin MODULE one ""
  /begin MEASUREMENT a "first" UBYTE NO_COMPU_METHOD 0 0 0 255
    ECU_ADDRESS 0x10
    SYMBOL_LINK "sym" 4
    MATRIX_DIM 2 3
  /end MEASUREMENT
/end MODULE
/begin MODULE two ""
  /begin MEASUREMENT b "" UBYTE NO_COMPU_METHOD 0 0 0 255
  /end MEASUREMENT
/end MODULE
/end PROJECT
"""


def test_rows() -> None:
    document = a2l2json.loads(TEXT, mend=False).document
    first, second = a2l2json.rows(document, "MEASUREMENT")
    assert (first["MODULE"], first["NAME"], first["LONG_IDENTIFIER"]) == ("one", "a", "first")
    assert first["ECU_ADDRESS"] == "0x10"
    assert (first["SYMBOL_LINK.SYMBOL_NAME"], first["SYMBOL_LINK.OFFSET"]) == ("sym", 4)
    assert first["MATRIX_DIM"] == "2 3"
    assert (second["MODULE"], second["NAME"]) == ("two", "b")
    assert second["SYMBOL_LINK.OFFSET"] is None
    assert "SYMBOL_LINK" not in first and "SYMBOL_LINK" not in second
    assert list(first) == list(second)


def test_a_kind_without_objects_has_no_rows() -> None:
    assert a2l2json.rows(a2l2json.loads(TEXT).document, "CHARACTERISTIC") == []


@pytest.mark.parametrize("kind", ["COLOUR", "NAME", "LONG_IDENTIFIER", ""])
def test_an_unknown_kind_is_an_error(kind: str) -> None:
    with pytest.raises(KeyError) as raised:
        a2l2json.rows(a2l2json.loads(TEXT).document, kind)
    assert raised.value.args == (kind,)


def test_a_kind_that_a_module_does_not_have_has_no_rows() -> None:
    assert a2l2json.rows(a2l2json.loads(TEXT).document, "MOD_PAR") == []


def test_a_number_that_no_json_has_is_nan_in_a_list() -> None:
    table = """/begin COMPU_TAB t "" TAB_NOINTP 3
    1 10
    1e999 20
    4 30
  /end COMPU_TAB
/end MODULE
/begin MODULE two"""
    document = a2l2json.loads(TEXT.replace("/end MODULE\n/begin MODULE two", table)).document
    (row,) = a2l2json.rows(document, "COMPU_TAB")
    first, second, third = (float(number) for number in row["IN_VAL"].split(" "))
    assert (first, third) == (1, 4)
    assert math.isnan(second)
