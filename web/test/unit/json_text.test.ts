// SPDX-License-Identifier: MIT
import { expect, test } from "vitest";

import { csv } from "../../src/model/csv.ts";
import { parseExact, pretty } from "../../src/model/json_text.ts";

test("JSON gets a line per value and keeps its numbers as they are", () => {
  expect(
    pretty('{"A": 0.10000000000000001, "B": [], "C": {"D": "x, {\\"y\\": 1}"}, "E": [1, 2]}'),
  ).toBe(
    [
      "{",
      '  "A": 0.10000000000000001,',
      '  "B": [],',
      '  "C": {',
      '    "D": "x, {\\"y\\": 1}"',
      "  },",
      '  "E": [',
      "    1,",
      "    2",
      "  ]",
      "}",
    ].join("\n"),
  );
  expect(pretty("{}")).toBe("{}");
  expect(pretty('"text"')).toBe('"text"');
});

test("numbers that JavaScript cannot hold stay as they are written", () => {
  expect(parseExact('{"A": 18446744073709551615, "B": 12, "C": "18446744073709551615 "}')).toEqual({
    A: "18446744073709551615",
    B: 12,
    C: "18446744073709551615 ",
  });
  expect(parseExact("0.10000000000000001")).toBe(0.1);
  expect(parseExact("-1234567890123456")).toBe(-1234567890123456);
});

test("CSV has quotes where it needs them", () => {
  expect(
    csv([
      ["a", "b c", ""],
      ['say "x"', "1,5", "two\nlines"],
    ]),
  ).toBe('a,b c,\r\n"say ""x""","1,5","two\nlines"\r\n');
});
