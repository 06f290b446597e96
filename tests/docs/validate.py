#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks every document in the repository against docs/json.schema.json.

All golden documents and those of the examples must conform to it. One of them, spoiled at a single
place, must not: with a key missing, a value of a wrong type, or a key too many in an object.

Needs the Python package jsonschema, 4.0 or newer (python3-jsonschema on Debian). Without it,
says so and ends with the exit code 77.
"""

import copy
import json
import pathlib
import sys

try:
    from jsonschema import Draft202012Validator
except ImportError:
    print("skipped: the Python package jsonschema (4.0 or newer) is not installed")
    sys.exit(77)

ROOT = pathlib.Path(__file__).resolve().parents[2]
SPOILED = ROOT / "examples" / "demo.json"  # every kind of object is in it

# Keys that may be missing, and the object whose keys come from the file.
OPTIONAL_KEYS = ("FANNOTATION_LABEL", "FANNOTATION_ORIGIN", "FANNOTATION_TEXT")
FREE_KEYS = "FVAR_FORBIDDEN_COMB"


def load(path):
    """A document. Its texts may hold any byte, because bytes pass through the converter."""
    return json.loads(path.read_bytes().decode("latin-1"))


def place(error):
    return "/".join(str(step) for step in error.absolute_path) or "the document"


def check_documents(validator):
    paths = sorted(ROOT.glob("tests/cases/**/*.json")) + sorted(ROOT.glob("examples/*.json"))
    failures = 0
    for path in paths:
        for error in validator.iter_errors(load(path)):
            print(f"{path.relative_to(ROOT)}: {place(error)}: {error.message[:200]}")
            failures += 1
    print(f"{len(paths)} documents, {failures} deviations from the schema")
    return bool(paths) and failures == 0


def objects_in(value, path=()):
    """Every object of a document with its path; of an array, only the first item."""
    if isinstance(value, dict):
        yield path, value
        for key, member in value.items():
            yield from objects_in(member, path + (key,))
    elif isinstance(value, list) and value:
        yield from objects_in(value[0], path + (0,))


def at(document, path):
    for step in path:
        document = document[step]
    return document


def spoilings(document):
    """Possible faults of a document: the name of each, and a function that makes it."""
    for path, members in objects_in(document):
        free = FREE_KEYS in path
        extra = 0 if free else "a text"
        yield f"{path}: a key too many", path, lambda o, v=extra: o.update(FNO_SUCH_KEY=v)
        for key in members:
            if key not in OPTIONAL_KEYS and not free:
                yield f"{path}: without {key}", path, lambda o, k=key: o.pop(k)
            # No key has both an array and an object among its types.
            wrong = {} if isinstance(members[key], list) else [[]]
            yield f"{path}: {key} of a wrong type", path, lambda o, k=key, v=wrong: o.update({k: v})


def check_faults_are_found(validator):
    sound = load(SPOILED)
    count = 0
    missed = []
    for name, path, spoil in spoilings(sound):
        document = copy.deepcopy(sound)
        spoil(at(document, path))
        count += 1
        if validator.is_valid(document):
            missed.append(name)
    for name in missed:
        print(f"not found: {name}")
    print(f"{count} faults in {SPOILED.relative_to(ROOT)}, {len(missed)} of them not found")
    return count > 0 and not missed


def main():
    schema = json.loads((ROOT / "docs" / "json.schema.json").read_text(encoding="utf-8"))
    Draft202012Validator.check_schema(schema)
    validator = Draft202012Validator(schema)
    sound = check_documents(validator)
    found = check_faults_are_found(validator)
    return 0 if sound and found else 1


if __name__ == "__main__":
    sys.exit(main())
