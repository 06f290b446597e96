# SPDX-License-Identifier: MIT
"""python -m a2l2json IN OUT: the same texts, exit codes and bytes as those of the program."""

from __future__ import annotations

import os
import sys
from typing import List

from . import _library
from ._convert import Output, _Call

_USAGE = 255
_NOT_READ = 254
_NOT_WRITTEN = 253


def main(arguments: List[str]) -> int:
    if len(arguments) != 2:
        return _say(b"Failed: using python -m a2l2json [in]a2l_file [out]json_file", _USAGE)
    path_in, path_out = arguments
    with Output(path_out) as output:
        # Once the file is open, the program checks nothing any more.
        call = _Call(mend=False, write=lambda text: output.write(text) or output.was_opened)
        call.file(path_in)
    messages = call.bytes("messages") or b""
    if call.code == _library.NOT_WRITTEN:
        path = os.fsencode(path_out)
        return _say(b"Failed: Can not write access json file " + path, _NOT_WRITTEN)
    if not output.was_opened:
        return _say(b"Failed: " + messages, _NOT_READ)
    return _say(b"Success.\n" + messages, 0)


def _say(text: bytes, code: int) -> int:
    if sys.stdout is None:  # as with >&- or without a console
        return code
    try:
        sys.stdout.buffer.write(text + b"\n")
        sys.stdout.buffer.flush()
    except OSError:  # a closed or full standard output changes nothing else
        os._exit(code)
    return code


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
