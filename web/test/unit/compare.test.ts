// SPDX-License-Identifier: MIT
import { expect, test } from "vitest";

import { compare, differences } from "../../src/model/compare.ts";
import { documentOf } from "./texts.ts";

const named = (name: string, value = 0) => ({ FNAME: name, FVALUE: value });
const module = (measurements: object[], more: object = {}) => ({
  FNAME: "M",
  FMEASUREMENT: measurements,
  ...more,
});

const states = (before: object[], after: object[]): string[] => {
  const [old, now] = [documentOf(before), documentOf(after)];
  return compare(old, now).map(({ state, before: was, after: is }) =>
    [state, is === null ? old.names[was!] : now.names[is]].join(" "),
  );
};

test("objects that came, went and changed are found by name", () => {
  const before = [module([named("A"), named("B"), named("C", 1)])];
  const after = [module([named("C", 2), named("A"), named("D")])];
  expect(states(before, after)).toEqual(["changed C", "came D", "went B"]);
});

test("the same name in another kind is another object", () => {
  const before = [module([named("A")])];
  const after = [module([], { FUNIT: [named("A")] })];
  expect(states(before, after)).toEqual(["came A", "went A"]);
});

test("several of one name are compared in their order", () => {
  const before = [module([named("A", 1), named("A", 2)])];
  const after = [module([named("A", 1), named("A", 3), named("A", 4)])];
  expect(states(before, after)).toEqual(["changed A", "came A"]);
});

test("the name of a single module does not count, those of several do", () => {
  const of = (name: string, value: number) => ({ ...module([named("A", value)]), FNAME: name });
  expect(states([of("M", 1)], [of("N", 1)])).toEqual([]);
  expect(states([of("M", 1), of("N", 2)], [of("N", 2), of("M", 1)])).toEqual([]);
});

test("differences are told value by value", () => {
  const before = { A: 1, B: { C: "x", D: [1, 2] }, E: null };
  const after = { A: 1, B: { C: "y", D: [1, 2, 3] }, E: { F: 1 } };
  expect(differences(before, after)).toEqual([
    { path: "B C", before: "x", after: "y" },
    { path: "B D 3", before: undefined, after: 3 },
    { path: "E", before: null, after: { F: 1 } },
  ]);
  expect(differences(before, before)).toEqual([]);
});
