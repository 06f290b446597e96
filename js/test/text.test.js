// SPDX-License-Identifier: MIT
import assert from "node:assert/strict";
import { test } from "node:test";

import { decode, toUtf8 } from "../src/text.js";

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

test("a text that no string can hold is refused in a sentence", () => {
  assert.throws(() => decode({ length: 0x20000000 }), {
    name: "RangeError",
    message: "536870912 bytes are too many for a JavaScript string, which holds 536870888",
  });
});
