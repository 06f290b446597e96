# SPDX-License-Identifier: MIT
"""Raw values to physical ones, by the conversion methods of a module.

    module = result.document["FModules"][0]
    speed = a2l2json.Conversion(module, "CM_Speed")
    speed(4000), speed.unit

COMPU_METHOD says how a value in memory becomes the value that a person reads: by a formula, by a
table of numbers, or by a table of words.
"""

from __future__ import annotations

import bisect
import math
from typing import TYPE_CHECKING, Any, Callable, Dict, List, Mapping, Optional, Sequence, Union

from .formula import Formula, FormulaError

if TYPE_CHECKING:
    from .document import Module

Physical = Union[float, str]


class ConversionError(ValueError):
    """A conversion that is not there, is incomplete, or has no value for a raw one."""


class Conversion:
    """One conversion method of a module: called with a raw value, it gives the physical one.

    That is a number or, by a table of words, a text. Raises ConversionError where the module has no
    such method, the method names a table that is not there, or a table has neither the value nor a
    default.
    """

    def __init__(self, module: "Module", name: str) -> None:
        self.name = name
        self.unit = ""
        self.format = ""
        self._status: Optional[Callable[[float], Optional[str]]] = None
        if name == "NO_COMPU_METHOD":
            self._convert: Callable[[float], Physical] = _identical
            return
        method = _by_name(module, "FCOMPU_METHOD", name)
        if method is None:
            raise ConversionError(f"there is no COMPU_METHOD {name}")
        self.unit = method["FUNIT"]
        self.format = method["FFORMAT"]
        make = _MAKERS.get(method["FCONVERSION_TYPE"])
        if make is None:
            raise ConversionError(f"COMPU_METHOD {name} has no conversion type")
        self._convert = make(module, method)
        if method["FSTATUS_STRING_REF"] is not None:
            self._status = _words(module, method["FSTATUS_STRING_REF"])[0]

    def __call__(self, raw: float) -> Physical:
        if self._status is not None:
            status = self._status(raw)
            if status is not None:
                return status
        return self._convert(raw)


def _identical(raw: float) -> float:
    return raw


def _linear(_: "Module", method: Mapping[str, Any]) -> Callable[[float], float]:
    a, b = _coefficients(method, "FCOEFFS_LINEAR", 2)
    return lambda raw: a * raw + b


def _rational(_: "Module", method: Mapping[str, Any]) -> Callable[[float], float]:
    # The coefficients lead from the physical value x to the raw one:
    #   raw = (a x^2 + b x + c) / (d x^2 + e x + f)
    # which is, for a raw value, an equation of the second degree for x.
    a, b, c, d, e, f = _coefficients(method, "FCOEFFS", 6)
    name = method["FNAME"]

    def physical(raw: float) -> float:
        square, single, constant = a - raw * d, b - raw * e, c - raw * f
        if square == 0:
            if single == 0:
                raise ConversionError(f"COMPU_METHOD {name} has no value for {raw}")
            return -constant / single + 0.0  # which makes 0 of -0
        discriminant = single * single - 4 * square * constant
        if discriminant < 0:
            raise ConversionError(f"COMPU_METHOD {name} has no value for {raw}")
        root = math.sqrt(discriminant)
        if single > 0:  # the sum of these two would cancel out most of their digits
            return 2 * constant / (-single - root) + 0.0
        return (-single + root) / (2 * square) + 0.0

    return physical


def _formula(_: "Module", method: Mapping[str, Any]) -> Callable[[float], float]:
    formula = method["FFORMULA"]
    if formula is None:
        raise ConversionError(f"COMPU_METHOD {method['FNAME']} has no FORMULA")
    try:
        compiled = Formula(formula["FFORMULA"])
    except FormulaError as error:
        raise ConversionError(f"COMPU_METHOD {method['FNAME']}: {error}") from error

    def physical(raw: float) -> float:
        try:
            return compiled(raw)
        except (ArithmeticError, FormulaError, ValueError) as error:
            raise ConversionError(f"{method['FNAME']} has no value for {raw}: {error}") from error

    return physical


def _table(interpolate: bool) -> Callable[["Module", Mapping[str, Any]], Callable[[float], float]]:
    def make(module: "Module", method: Mapping[str, Any]) -> Callable[[float], float]:
        table = _table_of(module, method, "FCOMPU_TAB")
        # A number that is infinite or none is null in the document.
        rows = zip(table["FIN_VAL"], table["FOUT_VAL"])
        pairs = sorted((float(i), float(o)) for i, o in rows if i is not None and o is not None)
        ins = [pair[0] for pair in pairs]
        outs = [pair[1] for pair in pairs]
        default: Optional[float] = table["FDEFAULT_VALUE_NUMERIC"]

        def physical(raw: float) -> float:
            at = bisect.bisect_left(ins, raw)
            if at < len(ins) and ins[at] == raw:
                return outs[at]
            if interpolate and 0 < at < len(ins):
                part = (raw - ins[at - 1]) / (ins[at] - ins[at - 1])
                return outs[at - 1] + part * (outs[at] - outs[at - 1])
            if default is not None:
                return default
            if interpolate and ins:  # the ends of a table go on, as those of a curve do
                return outs[0] if at == 0 else outs[-1]
            raise ConversionError(f"COMPU_TAB {table['FNAME']} has no value for {raw}")

        return physical

    return make


def _verbal(module: "Module", method: Mapping[str, Any]) -> Callable[[float], str]:
    name = method["FCOMPU_TAB_REF"]
    find, default = _words(module, name)

    def physical(raw: float) -> str:
        text = find(raw)
        if text is None:
            text = default
        if text is None:
            raise ConversionError(f"{name} has no text for {raw}")
        return text

    return physical


def _words(
    module: "Module", name: Optional[str]
) -> "tuple[Callable[[float], Optional[str]], Optional[str]]":
    """What finds the text of a value in a table of words, and the table's default."""
    table = _by_name(module, "FCOMPU_VTAB", name)
    if table is not None:
        # Of two rows with one value, the first counts.
        texts: Dict[float, str] = dict(reversed([*zip(table["FIN_VAL"], table["FOUT_VAL"])]))
        return texts.get, table["FDEFAULT_VALUE"]
    table = _by_name(module, "FCOMPU_VTAB_RANGE", name)
    if table is None:
        raise ConversionError(f"there is no COMPU_VTAB or COMPU_VTAB_RANGE {name}")
    rows = zip(table["FIN_VAL_MIN"], table["FIN_VAL_MAX"], table["FOUT_VAL"])
    # A limit that is infinite or no number is null in the document: which values it means is lost.
    ranges = [row for row in rows if row[0] is not None and row[1] is not None]

    def find(raw: float) -> Optional[str]:
        return next((text for low, high, text in ranges if low <= raw <= high), None)

    return find, table["FDEFAULT_VALUE"]


def _table_of(module: "Module", method: Mapping[str, Any], kind: str) -> Mapping[str, Any]:
    name = method["FCOMPU_TAB_REF"]
    table = _by_name(module, kind, name)
    if table is None:
        raise ConversionError(f"there is no {kind[1:]} {name}, to which {method['FNAME']} refers")
    return table


def _coefficients(method: Mapping[str, Any], key: str, count: int) -> List[float]:
    text = method[key]
    if text is None:
        raise ConversionError(f"COMPU_METHOD {method['FNAME']} has no {key[1:]}")
    numbers = [float(number) for number in text.split(",")]
    if len(numbers) != count:
        raise ConversionError(f"COMPU_METHOD {method['FNAME']} has a wrong {key[1:]}: {text}")
    return numbers


def _by_name(module: Any, key: str, name: Optional[str]) -> Optional[Mapping[str, Any]]:
    objects: Sequence[Mapping[str, Any]] = module[key]
    return next((one for one in objects if one["FNAME"] == name), None)


_MAKERS: Dict[str, Callable[["Module", Mapping[str, Any]], Callable[[float], Physical]]] = {
    "IDENTICAL": lambda module, method: _identical,
    "LINEAR": _linear,
    "RAT_FUNC": _rational,
    "FORM": _formula,
    "TAB_INTP": _table(interpolate=True),
    "TAB_NOINTP": _table(interpolate=False),
    "TAB_VERB": _verbal,
}
