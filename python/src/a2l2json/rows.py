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
    by a blank, and arrays of objects become the number of these. The first column, MODULE, is the
    name of the module. All rows have the same columns. Raises KeyError for an unknown kind.
    """
    made: List[Row] = [
        dict([("MODULE", module["FNAME"]), *_cells(one, "")])
        for module in document["FModules"]
        for one in _objects(module["F" + kind])  # type: ignore[literal-required]
    ]
    # An object that is missing in one row and present in another gives columns to both.
    columns = list(dict.fromkeys(column for row in made for column in row))
    parents = {column.rpartition(".")[0] for column in columns if "." in column}
    return [{c: row.get(c) for c in columns if c not in parents} for row in made]


def _objects(value: Any) -> List[Any]:
    if value is None:
        return []
    return value if isinstance(value, list) else [value]


def _cells(one: Dict[str, Any], prefix: str) -> Iterator[Tuple[str, Any]]:
    for key, value in one.items():
        column = prefix + key[1:]
        if isinstance(value, dict):
            yield from _cells(value, column + ".")
        elif isinstance(value, list):
            objects = any(isinstance(item, dict) for item in value)
            yield column, len(value) if objects else " ".join(str(item) for item in value)
        else:
            yield column, value
