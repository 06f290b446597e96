# SPDX-License-Identifier: MIT
"""From A2L text to a document, by the shared library."""

from __future__ import annotations

import codecs
import ctypes
import gc
import io
import json
import os
from dataclasses import dataclass
from functools import cached_property
from typing import TYPE_CHECKING, Any, Callable, List, Optional, Tuple, Union, cast

from . import _library
from ._library import library

if TYPE_CHECKING:
    from .document import Document

PathLike = Union[str, "os.PathLike[str]"]
BytesLike = Union[bytes, bytearray, memoryview]

_MOST_OF_STRING_AT = 2**31 - 1  # it takes the size as an int of C
_MOST_HELD_BACK = 64 * 1024  # far more than the document of a file without any A2L


def version() -> str:
    """The version of the library, as in "1.0.0"."""
    return cast(bytes, library.a2l2json_version()).decode()


@dataclass(frozen=True)
class Diagnostic:
    """A warning or an error of the converter."""

    line: int  #: number of the line, the first being 1
    severity: str  #: "warning" or "error"; an error ends the read
    kind: str  #: a name that stays, as in "unexpected-element"
    text: str  #: as in "unexpected element COLOUR"
    file: str = ""  #: the file that it is in, which may be an included one; empty for text in memory

    def __str__(self) -> str:
        return f"{self.severity.capitalize()}: Line({self.line}) {self.text}"


@dataclass(frozen=True)
class Finding:
    """Something that the layout of the file would cost, or that is lost whatever the layout."""

    rule: str  #: a name that stays, as in "same-line"
    file: str  #: the file that it is in, which may be an included one
    line: int  #: the first is 1
    column: int  #: in bytes, the first is 1
    text: str  #: what is found there
    mended: bool  #: whether the document has it all the same

    def __str__(self) -> str:
        return f"{self.file}:{self.line}:{self.column}: {self.text} [{self.rule}]"


class A2LError(Exception):
    """A file that cannot be converted. Its text is a sentence for a person."""

    def __init__(
        self,
        message: str,
        diagnostics: Tuple[Diagnostic, ...] = (),
        findings: Tuple[Finding, ...] = (),
    ) -> None:
        super().__init__(message)
        self.diagnostics = diagnostics  #: all of them; the error is the last
        self.findings = findings

    @property
    def line(self) -> Optional[int]:
        """The line of the error; None where no line is to blame, as in what is not an A2L file."""
        last = self.diagnostics[-1] if self.diagnostics else None
        return last.line if last is not None and last.severity == "error" else None


@dataclass(frozen=True)
class Result:
    """What a conversion gave."""

    json: bytes  #: one line of JSON, as the program writes it; UTF-8 with an encoding
    diagnostics: Tuple[Diagnostic, ...]  #: warnings, in the order of the file
    findings: Tuple[Finding, ...]  #: what the layout would have cost; none with mend=False
    mended: Optional[bytes]  #: the mended A2L text; None with mend=False

    @cached_property
    def document(self) -> "Document":
        """The document. It is made when it is first asked for, and is then the same one."""
        text = _text(self.json)
        # The collector of cycles would look through all objects again and again while they are made,
        # which takes as long as making them; and there are no cycles in a document.
        was_enabled = gc.isenabled()
        gc.disable()
        try:
            return cast("Document", json.loads(text))
        finally:
            if was_enabled:
                gc.enable()


def load(path: PathLike, *, mend: bool = True, encoding: Optional[str] = None) -> Result:
    """Converts the file at `path`; `encoding` as in loads().

    With `mend`, the files that it includes are read, too, from its folder and those below; their
    bytes are read as UTF-8 or cp1252, whatever `encoding` says.
    Raises A2LError where the file cannot be read or converted, and ValueError where the path holds
    a null byte.
    """
    if encoding is not None:
        try:
            with open(path, "rb") as file:
                text = file.read()
        except OSError as error:
            raise A2LError(f"{os.fspath(path)} cannot be read: {error.strerror}") from error
        folder = os.path.dirname(os.path.abspath(path))
        return _convert(_recode(text, encoding), mend, os.fspath(path), folder)
    return _Call(mend=mend).file(path).result()


def loads(
    text: Union[BytesLike, str], *, mend: bool = True, encoding: Optional[str] = None
) -> Result:
    """Converts A2L text, or the bytes of it. Raises A2LError where that cannot be done.

    `encoding` is the encoding of bytes, by any name that Python knows. Without it, bytes that are
    valid UTF-8 are read as that, and all others as cp1252, each for itself: files often hold both.
    With it, the document is UTF-8 even with ``mend=False``, which else keeps the bytes of the file.
    """
    if isinstance(text, str):
        return _convert(text.encode("utf-8", "surrogatepass"), mend)
    if not isinstance(text, bytes):
        try:
            text = bytes(memoryview(text))
        except TypeError as error:
            kind = type(text).__name__
            raise TypeError(f"loads() takes bytes or a str, not {kind}") from error
    return _convert(text if encoding is None else _recode(text, encoding), mend)


def convert(path_in: PathLike, path_out: PathLike) -> Tuple[Diagnostic, ...]:
    """Writes the document of one file to another, to the byte as the program a2l2json does.

    Gives the warnings. Raises A2LError where the file cannot be converted, and leaves what is at
    `path_out` as it is; raises OSError where that cannot be written, and ValueError where a path
    holds a null byte. A large document is never in memory as a whole.
    """
    with Output(path_out) as output:
        # Of a file without any A2L, the library gives a small document before it says so.
        held = bytearray()

        def write(text: memoryview) -> bool:
            if not output.was_opened and len(held) + len(text) <= _MOST_HELD_BACK:
                held.extend(text)
                return True
            return release() and output.write(text)

        def release() -> bool:
            return output.was_opened or output.write(memoryview(held))

        call = _Call(mend=False, write=write).file(path_in)
        if call.code == _library.OK:
            release()
        if output.error is not None:
            raise output.error
        return call.result().diagnostics


class Output:
    """A file that is opened when the first bytes of a document come."""

    def __init__(self, path: PathLike) -> None:
        self.error: Optional[OSError] = None
        self._path = path
        self._file: Any = None

    def __enter__(self) -> "Output":
        return self

    def __exit__(self, *_: object) -> None:
        if self._file is not None:
            self._file.close()

    @property
    def was_opened(self) -> bool:
        return self._file is not None

    def write(self, text: memoryview) -> bool:
        """Whether the bytes were written; if not, `error` says why."""
        try:
            if self._file is None:
                self._file = open(self._path, "wb", buffering=0)
            while text:
                text = text[self._file.write(text) :]
        except OSError as error:
            self.error = error
            return False
        return True


class _Call:
    """One call of the library, and what it gave."""

    def __init__(
        self,
        mend: bool,
        name: str = "",
        folder: str = "",
        write: Optional[Callable[[memoryview], bool]] = None,
    ) -> None:
        self._pointer = ctypes.c_void_p()  # first of all, for it is freed even where this fails
        # It takes the document piece by piece: a large one is not in memory twice.
        document = self._document = io.BytesIO()
        raised: List[BaseException] = []
        self._raised = raised

        def keep(text: memoryview) -> bool:
            document.write(text)
            return True

        take = keep if write is None else write

        def receive(_: object, address: int, size: int) -> int:
            try:
                return 0 if take(_view(address, size)) else 1
            except BaseException as error:  # as that of Ctrl-C, which C would let go by
                raised.append(error)
                return 1

        self._options = _library.Options(
            mend=int(bool(mend)),
            name=_path(name) if name else None,
            folder=_path(folder) if folder else None,
            write=_library.Write(receive),
        )
        self.code = -1

    def __del__(self) -> None:
        library.a2l2json_free(self._pointer)

    def text(self, text: bytes) -> "_Call":
        return self._done(
            library.a2l2json_convert_text(text, len(text), self._options, self._pointer)
        )

    def file(self, path: PathLike) -> "_Call":
        return self._done(
            library.a2l2json_convert_file(_path(path), self._options, self._pointer)
        )

    def _done(self, code: int) -> "_Call":
        self.code = code
        if self._raised:
            raise self._raised[0]
        return self

    def bytes(self, what: str) -> Optional[bytes]:
        """The messages or the mended text."""
        size = ctypes.c_size_t()
        address = getattr(library, "a2l2json_" + what)(self._pointer, size)
        return None if address is None else _bytes(address, size.value)

    def diagnostics(self) -> Tuple[Diagnostic, ...]:
        return tuple(
            Diagnostic(
                line=one.line,
                severity="error" if one.severity else "warning",
                kind=one.kind_name.decode(),
                text=_text(_bytes(one.text, one.text_size)),
                file=_text(one.file),
            )
            for one in self._all("diagnostic")
        )

    def findings(self) -> Tuple[Finding, ...]:
        return tuple(
            Finding(
                rule=one.rule.decode(),
                file=_text(one.file),
                line=one.line,
                column=one.column,
                text=_text(_bytes(one.text, one.text_size)),
                mended=bool(one.mended),
            )
            for one in self._all("finding")
        )

    def result(self) -> Result:
        if self.code != _library.OK:
            message = _text(library.a2l2json_error(self._pointer) or b"memory ran out")
            raise A2LError(message, self.diagnostics(), self.findings())
        return Result(
            json=self._document.getvalue(),
            diagnostics=self.diagnostics(),
            findings=self.findings(),
            mended=self.bytes("mended"),
        )

    def _all(self, what: str) -> List[Any]:
        count = getattr(library, f"a2l2json_{what}_count")(self._pointer)
        at = getattr(library, f"a2l2json_{what}_at")
        return [at(self._pointer, i).contents for i in range(count)]


def _convert(text: bytes, mend: bool, name: str = "", folder: str = "") -> Result:
    return _Call(mend=mend, name=name, folder=folder).text(text).result()


def _view(address: int, size: int) -> memoryview:
    return memoryview((ctypes.c_char * size).from_address(address)).cast("B")


def _bytes(address: int, size: int) -> bytes:
    if size <= _MOST_OF_STRING_AT:  # it is the faster one
        return ctypes.string_at(address, size)
    return bytes(_view(address, size))


def _path(path: PathLike) -> bytes:
    text = os.fspath(path)
    name = text.encode("utf-8", "surrogatepass") if os.name == "nt" else os.fsencode(text)
    if b"\0" in name:  # to C, the path would end there
        raise ValueError("embedded null byte")
    return name


def _recode(text: bytes, encoding: str) -> bytes:
    # A file may hold bytes that its encoding does not know; one of them must not cost the rest.
    return text.decode(encoding, "replace").encode("utf-8", "surrogatepass")


def _text(text: bytes) -> str:
    return text.decode("utf-8", "a2l2json.cp1252")


def _as_cp1252(error: UnicodeError) -> Tuple[str, int]:
    assert isinstance(error, UnicodeDecodeError)
    wrong = error.object[error.start : error.end]
    # cp1252 leaves five bytes undefined; they stay control characters, as in Latin-1.
    text = "".join(bytes([byte]).decode("cp1252", "ignore") or chr(byte) for byte in wrong)
    return text, error.end


codecs.register_error("a2l2json.cp1252", _as_cp1252)
