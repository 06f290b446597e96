# SPDX-License-Identifier: MIT
from __future__ import annotations

import array
import errno
import gc
import json
import sys
import threading
from pathlib import Path
from typing import Any, List, Optional

import a2l2json
import pytest

HEAD = b"ASAP2_VERSION 1 71\n/begin PROJECT p \"\"\n/begin MODULE m \"\"\n"
TAIL = b"/end MODULE\n/end PROJECT\n"


def unit(name: bytes) -> bytes:
    """A file with one unit whose display text is `name`."""
    return HEAD + b'/begin UNIT u "" "' + name + b'" DERIVED\n/end UNIT\n' + TAIL


def display(result: a2l2json.Result) -> str:
    return result.document["FModules"][0]["FUNIT"][0]["FDISPLAY"]


def test_load_gives_the_document(top: Path, demo: Path) -> None:
    result = a2l2json.load(demo, mend=False)
    expected = (top / "examples" / "demo.json").read_bytes()
    assert result.json == expected
    assert result.document == json.loads(expected)
    assert result.document is result.document
    assert result.diagnostics == ()
    assert result.findings == ()
    assert result.mended is None


@pytest.mark.parametrize("enabled", [True, False])
def test_the_document_leaves_the_garbage_collector_as_it_is(demo: Path, enabled: bool) -> None:
    was_enabled = gc.isenabled()
    (gc.enable if enabled else gc.disable)()
    try:
        assert a2l2json.load(demo).document["FModules"]
        assert gc.isenabled() == enabled
    finally:
        (gc.enable if was_enabled else gc.disable)()


def test_large_texts_come_in_another_way(demo: Path, monkeypatch: pytest.MonkeyPatch) -> None:
    expected = a2l2json.load(demo).mended
    monkeypatch.setattr(a2l2json._convert, "_MOST_OF_STRING_AT", 0)
    assert a2l2json.load(demo).mended == expected


def test_what_is_raised_while_a_document_is_written_is_not_lost(
    demo: Path, tmp_path: Path, monkeypatch: pytest.MonkeyPatch
) -> None:
    def interrupt(*_: object) -> bool:
        raise KeyboardInterrupt

    monkeypatch.setattr(a2l2json._convert.Output, "write", interrupt)
    with pytest.raises(KeyboardInterrupt):
        a2l2json.convert(demo, tmp_path / "out.json")


def test_load_takes_text_and_path_alike(demo: Path) -> None:
    assert a2l2json.load(str(demo)).json == a2l2json.load(demo).json


def test_loads_takes_bytes_and_text() -> None:
    assert display(a2l2json.loads(unit("°C".encode()))) == "°C"
    assert display(a2l2json.loads(unit("°C".encode()).decode())) == "°C"


@pytest.mark.parametrize("encoding", [None, "cp1252"])
@pytest.mark.parametrize("kind", [bytearray, memoryview, lambda text: array.array("B", text)])
def test_loads_takes_what_holds_bytes(kind: Any, encoding: Optional[str]) -> None:
    assert display(a2l2json.loads(kind(unit(b"\xb0C")), encoding=encoding)) == "°C"


@pytest.mark.parametrize("encoding", [None, "cp1252"])
@pytest.mark.parametrize("text", [5, None, ["a"], Path("engine.a2l")])
def test_loads_takes_nothing_else(text: Any, encoding: Optional[str]) -> None:
    with pytest.raises(TypeError, match="bytes or a str, not " + type(text).__name__):
        a2l2json.loads(text, encoding=encoding)


@pytest.mark.parametrize("mend", [None, 0, "", 1, "yes", 256, 2**32])
def test_mend_is_true_or_false(demo: Path, mend: Any) -> None:
    assert (a2l2json.load(demo, mend=mend).mended is not None) == bool(mend)


def test_a_call_that_cannot_be_made_says_nothing_more(
    demo: Path, monkeypatch: pytest.MonkeyPatch
) -> None:
    unraisable: List[object] = []
    monkeypatch.setattr(sys, "unraisablehook", unraisable.append)
    with pytest.raises(ValueError, match="embedded null byte"):
        a2l2json._convert._Call(mend=True, folder="a\0b")
    gc.collect()
    assert unraisable == []


def test_bytes_that_are_no_utf_8_are_cp1252() -> None:
    assert display(a2l2json.loads(unit(b"\xb0C \x80"))) == "°C €"


def test_both_encodings_may_stand_in_one_file() -> None:
    assert display(a2l2json.loads(unit("Ω ".encode() + b"\xb0C"))) == "Ω °C"


def test_a_byte_that_no_encoding_has_is_kept_as_a_character() -> None:
    assert display(a2l2json.loads(unit(b"\x81"))) == "\x81"


def test_the_encoding_may_be_told() -> None:
    assert display(a2l2json.loads(unit("µ".encode("cp437")), encoding="cp437")) == "µ"


def test_the_encoding_of_a_file_may_be_told(tmp_path: Path) -> None:
    path = tmp_path / "a.a2l"
    path.write_bytes(unit("Ж".encode("cp1251")))
    assert display(a2l2json.load(path, encoding="cp1251")) == "Ж"


def test_with_an_encoding_the_document_is_utf_8() -> None:
    text = unit(b"\xb0C")
    assert b'"\xb0C"' in a2l2json.loads(text, mend=False).json
    assert '"°C"'.encode() in a2l2json.loads(text, mend=False, encoding="cp1252").json


def test_a_byte_that_the_encoding_does_not_know_costs_no_more_than_itself() -> None:
    assert display(a2l2json.loads(unit(b"a\xffb"), encoding="ascii")) == "a\ufffdb"


def test_an_unknown_encoding_is_an_error_of_the_caller() -> None:
    with pytest.raises(LookupError):
        a2l2json.loads(unit(b""), encoding="no such encoding")


def test_a_warning_is_a_diagnostic() -> None:
    result = a2l2json.loads(HEAD + b"COLOUR red\n" + TAIL, mend=False)
    (one,) = result.diagnostics
    assert (one.line, one.severity, one.kind) == (4, "warning", "unexpected-element")
    assert one.text == "unexpected element COLOUR"
    assert str(one) == "Warning: Line(4) unexpected element COLOUR"


def test_a_file_that_cannot_be_converted_raises() -> None:
    with pytest.raises(a2l2json.A2LError) as raised:
        a2l2json.loads(HEAD + b"/end PROJECT\n", mend=False)
    assert raised.value.line == 4
    assert raised.value.diagnostics[-1].severity == "error"
    assert "4" in str(raised.value)


def test_a_file_that_is_not_there_raises(tmp_path: Path) -> None:
    for encoding in (None, "cp1252"):
        with pytest.raises(a2l2json.A2LError, match="missing.a2l") as raised:
            a2l2json.load(tmp_path / "missing.a2l", encoding=encoding)
        assert raised.value.line is None


@pytest.mark.parametrize(
    "text", [b"", b"\x1f\x8b\x08\x00\x00\x00\x00\x00", b"PK\x03\x04", b"name,address\nn,1\n"]
)
def test_what_is_not_a2l_raises_with_a_sentence(text: bytes) -> None:
    with pytest.raises(a2l2json.A2LError) as raised:
        a2l2json.loads(text)
    assert len(str(raised.value)) > 20
    assert raised.value.line is None


ONE_LINE = (
    b'/begin MEASUREMENT n "" UBYTE NO_COMPU_METHOD 0 0 0 255 ECU_ADDRESS 0x51A50 /end MEASUREMENT\n'
)


def test_mending_saves_what_the_layout_would_cost() -> None:
    def address(result: a2l2json.Result) -> object:
        return result.document["FModules"][0]["FMEASUREMENT"][0]["FECU_ADDRESS"]

    text = HEAD + ONE_LINE + TAIL
    mended = a2l2json.loads(text)
    assert address(mended) == "0x51A50"
    (finding,) = mended.findings
    assert (finding.rule, finding.line, finding.column) == ("same-line", 4, 57)
    assert finding.mended
    assert mended.mended is not None and b"ECU_ADDRESS 0x51A50\n" in mended.mended

    as_it_is = a2l2json.loads(text, mend=False)
    assert address(as_it_is) is None
    assert as_it_is.findings == ()


def test_mending_follows_included_files(tmp_path: Path) -> None:
    (tmp_path / "parts").mkdir()
    (tmp_path / "parts" / "one.a2l").write_bytes(ONE_LINE + b"COLOUR red\n")
    path = tmp_path / "engine.a2l"
    path.write_bytes(HEAD + b'/include "parts/one.a2l"\n' + TAIL)
    for encoding in (None, "cp1252"):
        result = a2l2json.load(path, encoding=encoding)
        assert result.document["FModules"][0]["FMEASUREMENT"][0]["FECU_ADDRESS"] == "0x51A50"
        (warning,) = result.diagnostics
        assert Path(warning.file).name == "one.a2l"
        assert warning.line == 2
    assert a2l2json.load(path, mend=False).document["FModules"][0]["FMEASUREMENT"] == []


def test_lines_are_those_of_the_file_where_it_is_mended() -> None:
    (warning,) = a2l2json.loads(b"\n\n" + HEAD + b"\n\nCOLOUR red\n" + TAIL).diagnostics
    assert warning.line == 8
    with pytest.raises(a2l2json.A2LError) as raised:
        a2l2json.loads(b"\n\n" + HEAD + b"\n\n/end PROJECT\n/begin UNIT\n/end MODULE\n")
    assert raised.value.line is not None and raised.value.line > 6


def test_convert_writes_what_the_program_writes(top: Path, demo: Path, tmp_path: Path) -> None:
    out = tmp_path / "demo.json"
    assert a2l2json.convert(demo, out) == ()
    assert out.read_bytes() == (top / "examples" / "demo.json").read_bytes()


def test_convert_leaves_what_is_there_where_it_fails(tmp_path: Path) -> None:
    broken, out = tmp_path / "broken.a2l", tmp_path / "out.json"
    broken.write_bytes(HEAD + b"/end PROJECT\n")
    out.write_bytes(b"as before")
    with pytest.raises(a2l2json.A2LError):
        a2l2json.convert(broken, out)
    assert out.read_bytes() == b"as before"


@pytest.mark.parametrize("text", [b"", b"name,address\nn,1\n"])
def test_convert_leaves_what_is_there_where_the_input_is_not_a2l(
    tmp_path: Path, text: bytes
) -> None:
    table, out = tmp_path / "table.csv", tmp_path / "out.json"
    table.write_bytes(text)
    for path in (out, table):
        before = path.read_bytes() if path.exists() else None
        with pytest.raises(a2l2json.A2LError, match="is not an A2L file"):
            a2l2json.convert(table, path)
        assert (path.read_bytes() if path.exists() else None) == before


def many(count: int) -> bytes:
    return b"".join(b'/begin UNIT u%d "" "" DERIVED\n/end UNIT\n' % i for i in range(count))


@pytest.mark.parametrize("count", [1, 20_000])
def test_convert_may_write_to_its_input(tmp_path: Path, count: int) -> None:
    path = tmp_path / "engine.a2l"
    path.write_bytes(HEAD + many(count) + TAIL)
    expected = a2l2json.load(path, mend=False).json
    a2l2json.convert(path, path)
    assert path.read_bytes() == expected


def test_convert_writes_a_large_document_piece_by_piece(
    tmp_path: Path, monkeypatch: pytest.MonkeyPatch
) -> None:
    path, out = tmp_path / "engine.a2l", tmp_path / "engine.json"
    path.write_bytes(HEAD + many(20_000) + TAIL)
    expected = a2l2json.load(path, mend=False).json
    sizes = []
    write = a2l2json._convert.Output.write

    def seen(output: a2l2json._convert.Output, text: memoryview) -> bool:
        sizes.append(len(text))
        return write(output, text)

    monkeypatch.setattr(a2l2json._convert.Output, "write", seen)
    a2l2json.convert(path, out)
    assert out.read_bytes() == expected
    assert sum(sizes) == len(expected)
    assert max(sizes) < len(expected) / 2


@pytest.mark.skipif(not Path("/dev/full").exists(), reason="needs /dev/full")
@pytest.mark.parametrize("count", [1, 20_000])
def test_convert_says_where_the_disk_is_full(tmp_path: Path, count: int) -> None:
    path = tmp_path / "engine.a2l"
    path.write_bytes(HEAD + many(count) + TAIL)
    with pytest.raises(OSError) as raised:
        a2l2json.convert(path, "/dev/full")
    assert raised.value.errno == errno.ENOSPC


def test_a_path_with_a_null_byte_is_an_error_of_the_caller(demo: Path, tmp_path: Path) -> None:
    for path in (f"{demo}\0", f"{demo}\0x"):
        for encoding in (None, "cp1252"):
            with pytest.raises(ValueError, match="embedded null byte"):
                a2l2json.load(path, encoding=encoding)
        with pytest.raises(ValueError, match="embedded null byte"):
            a2l2json.convert(path, tmp_path / "out.json")
    with pytest.raises(ValueError, match="embedded null byte"):
        a2l2json.convert(demo, f"{tmp_path / 'out.json'}\0x")
    assert list(tmp_path.iterdir()) == []


def test_convert_says_where_it_cannot_write(demo: Path, tmp_path: Path) -> None:
    with pytest.raises(FileNotFoundError):
        a2l2json.convert(demo, tmp_path / "no such folder" / "out.json")


def test_other_threads_run_while_one_converts() -> None:
    objects = b"".join(
        b'/begin MEASUREMENT n%d "" UBYTE NO_COMPU_METHOD 0 0 0 255\n/end MEASUREMENT\n' % i
        for i in range(60_000)
    )
    text = HEAD + objects + TAIL
    steps = 0
    stop = threading.Event()

    def count() -> None:
        nonlocal steps
        while not stop.is_set():
            steps += 1

    other = threading.Thread(target=count)
    other.start()
    try:
        # Between the two readings there is nothing but the call: a thread that is kept from running
        # makes a handful of steps at most.
        most = 0
        for _ in range(20):
            call = a2l2json._convert._Call(mend=False)
            before = steps
            call.text(text)
            most = max(most, steps - before)
            if most > 1000:
                break
    finally:
        stop.set()
        other.join()
    assert most > 1000


def test_many_threads_may_convert_at_once(demo: Path) -> None:
    expected = a2l2json.load(demo).json
    results = []
    threads = [
        threading.Thread(target=lambda: results.append(a2l2json.load(demo).json)) for _ in range(8)
    ]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert results == [expected] * 8


def test_the_version_is_that_of_the_project(top: Path) -> None:
    assert f"VERSION {a2l2json.version()}\n" in (top / "CMakeLists.txt").read_text()
    assert a2l2json.__version__ == a2l2json.version()
