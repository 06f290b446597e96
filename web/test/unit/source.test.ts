// SPDX-License-Identifier: MIT
import { expect, test } from "vitest";

import { asBytes, Lines, Places } from "../../src/model/source.ts";
import { bytes } from "./texts.ts";

const text = [
  "ASAP2_VERSION 1 71", // 1
  '/begin PROJECT P "with /begin MEASUREMENT Not this"',
  "  /* /begin MEASUREMENT Nor",
  "     this /end */ // /begin MEASUREMENT Nor this",
  '  /begin MODULE M ""', // 5
  "    /begin MEASUREMENT",
  '      Speed "a \\" b" UBYTE',
  "      /begin ANNOTATION /end ANNOTATION",
  "    /end MEASUREMENT",
  '    /begin UNIT U "" /end UNIT /begin UNIT V "say ""/end UNIT""" ', // 10
  "    /end UNIT",
  '    /begin MOD_PAR ""',
  '      /begin MEMORY_SEGMENT Flash "" /end MEMORY_SEGMENT',
  "    /end MOD_PAR",
  '    /begin MEASUREMENT Speed "again"', // 15
  "    /end MEASUREMENT",
  '    /begin MEASUREMENT Open "',
  '  "',
  "  /end MODULE",
  "/end PROJECT", // 20
].join("\r\n");

const places = new Places(bytes(text));

test("objects are found between their lines, whatever the layout", () => {
  expect(places.find("MEASUREMENT", "Speed")).toEqual({ first: 6, last: 9 });
  expect(places.find("UNIT", "U")).toEqual({ first: 10, last: 10 });
  expect(places.find("UNIT", "V")).toEqual({ first: 10, last: 11 });
  expect(places.find("MEMORY_SEGMENT", "Flash")).toEqual({ first: 13, last: 13 });
});

test("objects without a name are found by their keyword", () => {
  expect(places.find("MOD_PAR", "MOD_PAR")).toEqual({ first: 12, last: 14 });
});

test("objects of one name are told apart by their order", () => {
  expect(places.find("MEASUREMENT", "Speed", 1)).toEqual({ first: 15, last: 16 });
  expect(places.find("MEASUREMENT", "Speed", 2)).toBeNull();
});

test("an object without an end has its first line", () => {
  expect(places.find("MEASUREMENT", "Open")).toEqual({ first: 17, last: 17 });
});

test("comments and texts hold no objects", () => {
  expect(places.find("MEASUREMENT", "Not")).toBeNull();
  expect(places.find("MEASUREMENT", "Nor")).toBeNull();
});

test("lines come without their ends, and no more than there are", () => {
  const lines = new Lines(bytes("a\r\n\u00e4\n\nlast"));
  expect(lines.count).toBe(4);
  expect(lines.take(1, 10)).toEqual(["a", "ä", "", "last"]);
  expect(lines.take(2, 1)).toEqual(["ä"]);
  expect(new Lines(bytes("a\n")).count).toBe(1);
  expect(new Lines(bytes("")).count).toBe(0);
});

test("bytes that are no UTF-8 are windows-1252", () => {
  expect(new Lines(Uint8Array.of(0xfc)).take(1, 1)).toEqual(["ü"]);
});

test("UTF-16 is read as well", () => {
  expect(
    new Lines(asBytes(Uint8Array.of(0xff, 0xfe, 0x61, 0, 0x0a, 0, 0x62, 0))).take(1, 5),
  ).toEqual(["a", "b"]);
});

test("text that ends in the middle of anything does no harm", () => {
  for (let size = 0; size < text.length; ++size) new Places(bytes(text.slice(0, size)));
});
