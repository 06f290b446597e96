// SPDX-License-Identifier: MIT
import assert from "node:assert/strict";
import { test } from "node:test";

import { checkEncoding, decode, toUtf8 } from "../src/text.js";

// Bytes of latin1, and the text that they are.
const rows = [
  ["", ""],
  ["plain", "plain"],
  ["\xEF\xBB\xBFmark", "\uFEFFmark"], // a character like any other
  ["\xC3\xBC \xE2\x82\xAC \xF0\x9F\x9A\x97", "ü € 🚗"],
  ["\xFC", "ü"],
  ["\x80\x85\x9F\x81", "€…Ÿ\x81"],
  ["\xC3\xBC\xFC\xC3\xBC", "üüü"],
  ["\xC3", "Ã"],
  ["\xE2\x82", "â‚"],
  ["\xE2\x82x", "â‚x"],
  ["\xC0\xAF", "À¯"], // longer than it needs to be
  ["\xE0\x80\x80", "à€€"],
  ["\xED\xA0\x80", "í\u00A0€"], // half a character of UTF-16
  ["\xF4\x90\x80\x80", "ô\x90€€"], // beyond Unicode
  ["\xF0\x8F\xBF\xBF", "ð\x8F¿¿"],
  ["\xF5\xFF\xFE", "õÿþ"],
  ["\xE1\xBF\xBF\xF1\x80\x80\x80\xFC", "\u1FFF\u{40000}ü"],
];

test("bytes are UTF-8 where they are valid, and windows-1252 elsewhere", () => {
  for (const [bytes, text] of rows) assert.equal(decode(Buffer.from(bytes, "latin1")), text);
});

test("with an encoding, every byte is in it", () => {
  assert.equal(decode(Buffer.from("\xC3\xBC", "latin1"), "windows-1252"), "Ã¼");
  assert.equal(decode(Buffer.from("\x80", "latin1"), "windows-1252"), "€");
});

test("pieces are put together over their edges", () => {
  const bytes = Buffer.from("\uFEFFgrün 車", "utf16le");
  for (let edge = 0; edge <= bytes.length; ++edge) {
    const pieces = toUtf8([bytes.subarray(0, edge), bytes.subarray(edge)], "utf-16le");
    assert.equal(Buffer.concat([...pieces]).toString(), "grün 車");
  }
});

// Every encoding that engines of JavaScript have, by its own name.
const ENCODINGS = [
  ...[2, 3, 4, 5, 6, 7, 8, 10, 13, 14, 15].map((part) => `iso-8859-${part}`),
  ...[0, 1, 2, 3, 4, 5, 6, 7, 8].map((last) => `windows-125${last}`),
  ...["utf-8", "ibm866", "iso-8859-8-i", "koi8-r", "koi8-u", "macintosh", "windows-874"],
  ...["x-mac-cyrillic", "gbk", "gb18030", "big5", "euc-jp", "iso-2022-jp", "shift_jis", "euc-kr"],
  ...["utf-16be", "utf-16le"],
];

test("without mending, no encoding is taken that hides a backslash or a quotation mark", () => {
  // Whether a mark stays what it is, whatever stands before it.
  const stays = (encoding, mark) => {
    const befores = [Buffer.from([0x1b, 0x24, 0x42]), Buffer.from([0x81, 0x30])];
    for (let byte = 0; byte < 256; ++byte) befores.push(Buffer.from([byte]));
    return befores.every((before) =>
      decode(Buffer.concat([before, Buffer.from(mark)]), encoding).endsWith(mark),
    );
  };
  for (const encoding of ENCODINGS) {
    checkEncoding(encoding, { mend: true });
    const check = () => checkEncoding(encoding, { mend: false });
    if (stays(encoding, "\\") && stays(encoding, '"')) check();
    else assert.throws(check, { name: "RangeError" }, encoding);
  }
  assert.throws(() => checkEncoding("SJIS", { mend: false }), { message: /^Texts in SJIS can only / });
});

test("a text that no string can hold is refused in a sentence", () => {
  assert.throws(() => decode({ length: 0x20000000 }), {
    name: "RangeError",
    message: "536870912 bytes are too many for a JavaScript string, which holds 536870888",
  });
});
