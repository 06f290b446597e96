# SPDX-License-Identifier: MIT
"""Reads A2L files (ASAM MCD-2 MC) as JSON documents.

    import a2l2json

    result = a2l2json.load("engine.a2l")
    for module in result.document["FModules"]:
        for measurement in module["FMEASUREMENT"]:
            print(measurement["FNAME"], measurement["FECU_ADDRESS"])

A file is mended before it is converted: it is read as the ASAP2 standard means it, whatever its
layout, so that no value is lost. ``result.findings`` says what the file's layout would have cost.
``mend=False`` gives the document of the program a2l2json, byte for byte; with an ``encoding``, it
gives that of the same text in UTF-8.
"""

from ._convert import A2LError, Diagnostic, Finding, Result, convert, load, loads, version
from .physical import Conversion, ConversionError
from .rows import rows

__all__ = [
    "A2LError",
    "Conversion",
    "ConversionError",
    "Diagnostic",
    "Finding",
    "Result",
    "convert",
    "load",
    "loads",
    "rows",
    "version",
]

__version__ = version()
