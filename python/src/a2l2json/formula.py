# SPDX-License-Identifier: MIT
"""The formulas of COMPU_METHODs: X1 is the value, and the operators are those of C, with ^ as power.

A formula is parsed by Python itself, of whose language only what stands below is let through, so
that a formula from a file can do nothing but calculate.
"""

from __future__ import annotations

import ast
import math
import operator
import re
from typing import Any, Callable, Dict

_WORDS = {"&&": " and ", "||": " or ", "^": "**", " XOR ": "^", "!": " not "}
_UNARY: Dict[type, Callable[[Any], Any]] = {
    ast.UAdd: operator.pos,
    ast.USub: operator.neg,
    ast.Invert: lambda value: ~_whole(value),
    ast.Not: lambda value: int(not value),
}
_BINARY: Dict[type, Callable[[Any, Any], Any]] = {
    ast.Add: operator.add,
    ast.Sub: operator.sub,
    ast.Mult: operator.mul,
    ast.Div: operator.truediv,
    ast.Mod: math.fmod,
    ast.Pow: math.pow,
    ast.LShift: lambda left, right: _whole(left) << _shift(right),
    ast.RShift: lambda left, right: _whole(left) >> _shift(right),
    ast.BitAnd: lambda left, right: _whole(left) & _whole(right),
    ast.BitOr: lambda left, right: _whole(left) | _whole(right),
    ast.BitXor: lambda left, right: _whole(left) ^ _whole(right),
}
_COMPARISONS: Dict[type, Callable[[Any, Any], bool]] = {
    ast.Eq: operator.eq,
    ast.NotEq: operator.ne,
    ast.Lt: operator.lt,
    ast.LtE: operator.le,
    ast.Gt: operator.gt,
    ast.GtE: operator.ge,
}
_FUNCTIONS: Dict[str, Callable[..., float]] = {
    **{name: getattr(math, name) for name in "sin cos tan sinh cosh tanh exp log10 sqrt pow".split()},
    **{"a" + name: getattr(math, "a" + name) for name in "sin cos tan".split()},
    **{"arc" + name: getattr(math, "a" + name) for name in "sin cos tan".split()},
    "abs": abs,
    "log": math.log,
    "ln": math.log,
}


class FormulaError(ValueError):
    """A formula that says more than a calculation, or one that cannot be read."""


class Formula:
    """A formula, called with the value of X1."""

    def __init__(self, text: str) -> None:
        # Two steps, for the sign of a power in A2L is the one of XOR in Python.
        python = re.sub(r"!(?!=)|&&|\|\||\^", lambda found: _WORDS[found.group()], text)
        python = re.sub(r"\bXOR\b", "^", python)
        try:
            self._tree = ast.parse(python.strip(), mode="eval").body
        except (SyntaxError, ValueError, RecursionError, MemoryError) as error:
            raise FormulaError(f"the formula {text!r} cannot be read") from error
        self._text = text
        self(1.0, check=True)

    def __call__(self, x1: float, check: bool = False) -> float:
        """The value of the formula; with `check`, only whether it can have one."""
        try:
            return float(self._value(self._tree, x1))
        except FormulaError:
            raise
        except (ArithmeticError, ValueError):
            if check:
                return 0.0
            raise
        except RecursionError as error:
            raise FormulaError("the formula is nested too deep") from error

    def _value(self, node: ast.expr, x1: float) -> Any:
        if isinstance(node, ast.Constant) and type(node.value) in (int, float):
            return node.value
        if isinstance(node, ast.Name) and node.id in ("X1", "X", "x1", "x"):
            return x1
        if isinstance(node, ast.UnaryOp):
            return _UNARY[type(node.op)](self._value(node.operand, x1))
        if isinstance(node, ast.BinOp) and type(node.op) in _BINARY:
            return _BINARY[type(node.op)](self._value(node.left, x1), self._value(node.right, x1))
        if isinstance(node, ast.BoolOp):
            values = [bool(self._value(value, x1)) for value in node.values]
            return int(all(values) if isinstance(node.op, ast.And) else any(values))
        if isinstance(node, ast.Compare) and len(node.ops) == 1:
            compare = _COMPARISONS.get(type(node.ops[0]))
            if compare is not None:
                left = self._value(node.left, x1)
                return int(compare(left, self._value(node.comparators[0], x1)))
        if isinstance(node, ast.Call) and isinstance(node.func, ast.Name) and not node.keywords:
            function = _FUNCTIONS.get(node.func.id.lower())
            if function is not None:
                values = [self._value(value, x1) for value in node.args]
                try:
                    return function(*values)
                except TypeError as error:  # too many arguments or too few
                    raise FormulaError(f"{ast.unparse(node)!r}: {error}") from error
        raise FormulaError(f"{ast.unparse(node)!r} in the formula {self._text!r} is not known")


def _whole(value: float) -> int:
    if value != int(value):
        raise ValueError(f"{value} is no whole number")
    return int(value)


def _shift(value: float) -> int:
    bits = _whole(value)
    if not 0 <= bits <= 64:
        raise ValueError(f"a shift by {bits} bits")
    return bits
