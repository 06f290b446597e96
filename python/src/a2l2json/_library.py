# SPDX-License-Identifier: MIT
"""The functions of the shared library, as ctypes knows them.

ctypes lets other threads run while such a function does.
"""

from __future__ import annotations

import ctypes
import os
from pathlib import Path

OK = 0
NOT_READ = 3
NOT_WRITTEN = 4

Write = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p, ctypes.c_size_t)


class Options(ctypes.Structure):
    """a2l2json_options"""

    _fields_ = [
        ("size", ctypes.c_size_t),
        ("mend", ctypes.c_int),
        ("name", ctypes.c_char_p),
        ("folder", ctypes.c_char_p),
        ("write", Write),
        ("context", ctypes.c_void_p),
    ]

    def __init__(self, **members: object) -> None:
        super().__init__(size=ctypes.sizeof(type(self)), **members)


class Diagnostic(ctypes.Structure):
    """a2l2json_diagnostic"""

    _fields_ = [
        ("line", ctypes.c_size_t),
        ("severity", ctypes.c_int),
        ("kind", ctypes.c_int),
        ("kind_name", ctypes.c_char_p),
        ("text", ctypes.c_void_p),
        ("text_size", ctypes.c_size_t),
        ("file", ctypes.c_char_p),
    ]


class Finding(ctypes.Structure):
    """a2l2json_finding"""

    _fields_ = [
        ("rule", ctypes.c_char_p),
        ("file", ctypes.c_char_p),
        ("line", ctypes.c_size_t),
        ("column", ctypes.c_size_t),
        ("text", ctypes.c_void_p),
        ("text_size", ctypes.c_size_t),
        ("mended", ctypes.c_int),
    ]


_RESULT = ctypes.c_void_p
_SIZE = ctypes.POINTER(ctypes.c_size_t)
_OPTIONS = ctypes.POINTER(Options)
_FUNCTIONS = {
    "version": (ctypes.c_char_p, []),
    "convert_text": (
        ctypes.c_int,
        [ctypes.c_char_p, ctypes.c_size_t, _OPTIONS, ctypes.POINTER(_RESULT)],
    ),
    "convert_file": (ctypes.c_int, [ctypes.c_char_p, _OPTIONS, ctypes.POINTER(_RESULT)]),
    "free": (None, [_RESULT]),
    "error": (ctypes.c_char_p, [_RESULT]),
    "messages": (ctypes.c_void_p, [_RESULT, _SIZE]),
    "mended": (ctypes.c_void_p, [_RESULT, _SIZE]),
    "diagnostic_count": (ctypes.c_size_t, [_RESULT]),
    "diagnostic_at": (ctypes.POINTER(Diagnostic), [_RESULT, ctypes.c_size_t]),
    "finding_count": (ctypes.c_size_t, [_RESULT]),
    "finding_at": (ctypes.POINTER(Finding), [_RESULT, ctypes.c_size_t]),
}


def _load() -> ctypes.CDLL:
    path = os.environ.get("A2L2JSON_LIBRARY")  # for working on the package itself
    if path is None:
        here = Path(__file__).parent
        found = [*here.glob("*.so*"), *here.glob("*.dll"), *here.glob("*.dylib")]
        if not found:
            raise ImportError(f"the library of a2l2json is not in {here}; install the wheel")
        path = str(found[0])
    library = ctypes.CDLL(path)
    for name, (result, arguments) in _FUNCTIONS.items():
        function = getattr(library, "a2l2json_" + name)
        function.restype = result
        function.argtypes = arguments
    return library


library = _load()
