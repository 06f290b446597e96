#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes src/a2l2json/document.py, the types of the document, from its JSON Schema.

usage: make_document_types.py [--check] <schema> <document.py>
"""

from __future__ import annotations

import json
import sys
import textwrap
from pathlib import Path

_HEAD = '''# SPDX-License-Identifier: MIT
# Made by tools/make_document_types.py from docs/json.schema.json; change neither by hand.
"""The types of a document: a TypedDict for each kind of object in it."""

from __future__ import annotations

from typing import Dict, List, Literal, TypedDict, Union

'''
_SIMPLE = {
    "string": "str",
    "integer": "int",
    "number": "float",
    "boolean": "bool",
    "null": "None",
}


def class_name(name: str) -> str:
    """AXIS_PTS becomes AxisPts."""
    return "".join(part[:1].upper() + part[1:].lower() for part in name.split("_"))


def union(types: list[str]) -> str:
    different = list(dict.fromkeys(types))
    return different[0] if len(different) == 1 else f"Union[{', '.join(different)}]"


def type_of(schema: dict) -> str:
    if "$ref" in schema:
        return class_name(schema["$ref"].rpartition("/")[2])
    for key in ("anyOf", "oneOf"):
        if key in schema:
            return union([type_of(one) for one in schema[key]])
    if "enum" in schema:
        words = [json.dumps(word) for word in schema["enum"] if word is not None]
        none = ["None"] if None in schema["enum"] else []
        return union([f"Literal[{', '.join(words)}]", *none])
    types = schema["type"]
    return union([_one(one, schema) for one in (types if isinstance(types, list) else [types])])


def _one(name: str, schema: dict) -> str:
    if name == "array":
        return f"List[{type_of(schema['items'])}]"
    if name == "object":
        return f"Dict[str, {type_of(schema['additionalProperties'])}]"
    return _SIMPLE[name]


def typed_dict(name: str, schema: dict) -> str:
    required = set(schema.get("required", ()))
    members = {True: [], False: []}
    for key, value in schema["properties"].items():
        says = value.get("description")
        comment = "".join(f"    # {line}\n" for line in textwrap.wrap(says, 94)) if says else ""
        members[key in required].append(f"{comment}    {key}: {type_of(value)}\n")
    if not members[False]:
        return f"class {name}(TypedDict):\n{''.join(members[True])}"
    text = f"class {name}(_{name}, total=False):\n{''.join(members[False])}"
    if not members[True]:
        return text.replace(f"_{name}, ", "TypedDict, ")
    return f"class _{name}(TypedDict):\n{''.join(members[True])}\n\n{text}"


def document_types(schema: dict) -> str:
    objects = dict(schema["$defs"])
    if "properties" in schema:  # the document itself
        objects["document"] = schema
    made = [typed_dict(class_name(name), one) for name, one in sorted(objects.items())]
    return _HEAD + "\n" + "\n\n".join(made)


def main(arguments: list[str]) -> int:
    check = arguments[:1] == ["--check"]
    schema, target = map(Path, arguments[check:])
    text = document_types(json.loads(schema.read_text()))
    if check:
        if target.read_text() == text:
            return 0
        print(f"{target} is out of date; make it anew with tools/make_document_types.py")
        return 1
    target.write_text(text)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
