// SPDX-License-Identifier: MIT
import { expect, test } from "vitest";

import { KIND_NUMBER } from "../../src/model/kinds.ts";
import { Search } from "../../src/model/search.ts";
import { documentOf } from "./texts.ts";

const document = documentOf([
  {
    FMEASUREMENT: [
      { FNAME: "Oil_Temp", FLONG_IDENTIFIER: "Of the oil", FECU_ADDRESS: "0x1F00" },
      { FNAME: "TempLimit", FLONG_IDENTIFIER: "Highest", FECU_ADDRESS: "0xA1F0" },
      { FNAME: "temp", FLONG_IDENTIFIER: "Öl, kühl", FECU_ADDRESS: null },
      { FNAME: "Speed", FLONG_IDENTIFIER: "temperature counts not", FECU_ADDRESS: "0x2" },
    ],
    FCOMPU_METHOD: [{ FNAME: "CM_Temp", FLONG_IDENTIFIER: "" }],
  },
]);
const search = new Search(document);

const names = (query: string, kind: string | null = null): string[] =>
  [...search.find(query, kind === null ? null : KIND_NUMBER.get(kind)!).objects].map(
    (object) => document.names[object]!,
  );

test("the best match comes first: the name itself, its beginning, its inside, then the rest", () => {
  expect(names("temp")).toEqual(["temp", "TempLimit", "Oil_Temp", "CM_Temp", "Speed"]);
});

test("capital letters count as small ones, in every language", () => {
  expect(names("SPEED")).toEqual(["Speed"]);
  expect(names("ÖL")).toEqual(["temp"]);
});

test("all words must be there, wherever they are", () => {
  expect(names("temp oil")).toEqual(["Oil_Temp"]);
  expect(names("temp nothing")).toEqual([]);
});

test("addresses are found by a part of them, and with zeros in front", () => {
  expect(names("1f0")).toEqual(["Oil_Temp", "TempLimit"]);
  expect(names("0x1f00")).toEqual(["Oil_Temp"]);
  expect(names("0x00001F00")).toEqual(["Oil_Temp"]);
});

test("an empty query finds all, in the order of the document", () => {
  expect(names("")).toEqual(["Oil_Temp", "TempLimit", "temp", "Speed", "CM_Temp"]);
  expect(names("  ", "COMPU_METHOD")).toEqual(["CM_Temp"]);
});

test("a kind narrows what is found, and not what is counted", () => {
  const { objects, counts } = search.find("temp", KIND_NUMBER.get("COMPU_METHOD")!);
  expect(objects.length).toBe(1);
  expect(counts[KIND_NUMBER.get("MEASUREMENT")!]).toBe(4);
  expect(counts[KIND_NUMBER.get("COMPU_METHOD")!]).toBe(1);
});

test("a sign that separates texts matches nothing", () => {
  expect(names("oil\n0x")).toEqual(["Oil_Temp"]); // two words
});
