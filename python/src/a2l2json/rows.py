# SPDX-License-Identifier: MIT
"""The objects of a kind as rows of a table, for csv or pandas."""

from __future__ import annotations

from typing import TYPE_CHECKING, Any, Dict, Iterator, List, Tuple

if TYPE_CHECKING:
    from .document import Document

Row = Dict[str, Any]


def rows(document: "Document", kind: str) -> List[Row]:
    """A row for each object of `kind`, as in "MEASUREMENT", of all modules.

        pandas.DataFrame(a2l2json.rows(result.document, "MEASUREMENT"))

    The columns are the keys of the object without the leading F; the members of an object inside
    it become columns of their own (`SYMBOL_LINK.OFFSET`); texts and numbers in an array are joined
    by a blank, and arrays of objects become the number of these. A number that is null in the
    document is None, and nan among others in an array. The first column, MODULE, is the name of the
    module. All rows have the same columns. Raises KeyError for an unknown kind.
    """
    made: List[Row] = [
        dict([("MODULE", module["FNAME"]), *_cells(one, "")])
        for module in document["FModules"]
        for one in _objects(module, kind)
    ]
    # An object that is missing in one row and present in another gives columns to both.
    columns = list(dict.fromkeys(column for row in made for column in row))
    parents = {column.rpartition(".")[0] for column in columns if "." in column}
    return [{c: row.get(c) for c in columns if c not in parents} for row in made]


def _objects(module: Any, kind: str) -> List[Any]:
    value = module.get("F" + kind, "")
    if value is None:
        return []
    if isinstance(value, dict):
        return [value]
    if not isinstance(value, list):  # it is not there, or a member of the module itself, as NAME
        raise KeyError(kind)
    return value


def _cells(one: Dict[str, Any], prefix: str) -> Iterator[Tuple[str, Any]]:
    for key, value in one.items():
        column = prefix + key[1:]
        if isinstance(value, dict):
            yield from _cells(value, column + ".")
        elif isinstance(value, list):
            objects = any(isinstance(item, dict) for item in value)
            yield column, len(value) if objects else " ".join(map(_item, value))
        else:
            yield column, value


def _item(value: Any) -> str:
    # Every reader of numbers takes nan, and the others of the array keep their places.
    return "nan" if value is None else str(value)
