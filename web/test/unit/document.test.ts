// SPDX-License-Identifier: MIT
import { expect, test } from "vitest";

import { Document, namesOf } from "../../src/model/document.ts";
import { KINDS, KIND_NUMBER } from "../../src/model/kinds.ts";
import { bytes, documentOf } from "./texts.ts";

const measurement = (name: string, more: object = {}) => ({
  FNAME: name,
  FLONG_IDENTIFIER: `About ${name}`,
  FCONVERSION: "NO_COMPU_METHOD",
  ...more,
});

const document = documentOf(
  [
    {
      FNAME: "Engine",
      FLONG_IDENTIFIER: 'The "engine"',
      FA2ML: 'block "IF_DATA" { } ] [',
      FMEASUREMENT: [
        measurement("Speed", { FCONVERSION: "CM", FECU_ADDRESS: "0x1F00" }),
        measurement("Other", { FCONVERSION: "Gone" }),
      ],
      FCHARACTERISTIC: [
        {
          FNAME: "Curve",
          FCONVERSION: "CM",
          FDEPOSIT: "RL",
          FADDRESS: "0x20",
          FAXIS_DESCR: [{ FAXIS_PTS_REF: "Axis", FINPUT_QUANTITY: "Speed", FCONVERSION: "CM" }],
        },
      ],
      FAXIS_PTS: [{ FNAME: "Axis", FINPUT_QUANTITY: "Parts[2].speed", FCONVERSION: "CM" }],
      FINSTANCE: [{ FNAME: "Parts", FTYPEDEF_NAME: "T" }],
      FCOMPU_METHOD: [{ FNAME: "CM", FLONG_IDENTIFIER: "Method", FCOMPU_TAB_REF: "V" }],
      FCOMPU_VTAB: [{ FNAME: "V" }],
      FRECORD_LAYOUT: [{ FNAME: "RL" }],
      FGROUP: [
        { FGROUP_NAME: "G", FREF_CHARACTERISTIC: "Curve,Axis", FSUB_GROUP: "H" },
        { FGROUP_NAME: "H", FREF_MEASUREMENT: '"Speed",Other' },
      ],
      FMOD_PAR: { FCOMMENT: "Data", FMEMORY_SEGMENT: [{ FNAME: "Flash", FADDRESS: "0x8000" }] },
      FMOD_COMMON: null,
    },
    { FNAME: "Second", FMEASUREMENT: [measurement("Speed", { FCONVERSION: "CM" })] },
  ],
  {
    FASAP2_VERSION_UPGRADE_NO: 71,
    FASAP2_VERSION_VERSION_NO: 1,
    FProject_Name: "Demo",
    FProject_HEADER_VERSION: null,
  },
);

const number = (kind: string, name: string, module = 0): number =>
  document.find(name, [kind], module)!;

const referrers = (object: number): string[] => {
  const found: string[] = [];
  document.forEachReferrer(object, (from, { role }) => {
    found.push(`${document.names[from]}: ${role}`);
  });
  return found;
};

test("the head of a document is found", () => {
  expect(document.head).toEqual({
    project: "Demo",
    projectText: "",
    projectVersion: "",
    projectNumber: "",
    comment: "",
    asap2Version: "1.71",
    modules: [
      { name: "Engine", text: 'The "engine"' },
      { name: "Second", text: "" },
    ],
  });
});

test("objects of every kind are found, single ones and those within others too", () => {
  const counts = document.counts();
  const of = (kind: string): number => counts[KIND_NUMBER.get(kind)!]!;
  expect(of("MEASUREMENT")).toBe(3);
  expect(of("CHARACTERISTIC")).toBe(1);
  expect(of("GROUP")).toBe(2);
  expect(of("MOD_PAR")).toBe(1);
  expect(of("MEMORY_SEGMENT")).toBe(1);
  expect(of("A2ML")).toBe(1);
  expect(of("MOD_COMMON")).toBe(0);
  expect(document.size).toBe(counts.reduce((a, b) => a + b));
});

test("an object has its name, description, address and bytes", () => {
  const speed = number("MEASUREMENT", "Speed");
  expect(document.texts[speed]).toBe("About Speed");
  expect(document.addresses[speed]).toBe("0x1F00");
  expect(document.textOf(speed).startsWith('{"FNAME": "Speed"')).toBe(true);
  expect(document.jsonOf(number("COMPU_VTAB", "V"))).toEqual({ FNAME: "V" });
});

test("what refers to an object is known, and as what", () => {
  expect(referrers(number("COMPU_METHOD", "CM")).sort()).toEqual([
    "Axis: conversion",
    "Curve: conversion",
    "Curve: conversion of the axis",
    "Speed: conversion",
  ]);
  expect(referrers(number("MEASUREMENT", "Speed")).sort()).toEqual([
    "Curve: input quantity",
    "H: measurement",
  ]);
  expect(referrers(number("COMPU_VTAB", "V"))).toEqual(["CM: table"]);
  expect(referrers(number("GROUP", "H"))).toEqual(["G: sub-group"]);
});

test("a part of an instance refers to the instance", () => {
  expect(referrers(number("INSTANCE", "Parts"))).toEqual(["Axis: input quantity"]);
});

test("a name counts in its own module alone", () => {
  expect(referrers(number("MEASUREMENT", "Speed", 1))).toEqual([]);
  expect(document.find("CM", ["COMPU_METHOD"], 1)).toBeNull();
});

test("names of nothing are counted", () => {
  // Gone, T, and the CM of the second module; NO_COMPU_METHOD names nothing on purpose.
  expect(document.unfound).toBe(3);
});

test("names are taken from arrays, joined texts and objects in arrays", () => {
  const path = (path: string, form: "name" | "names" | "joined") =>
    ({ path, form, to: [], role: "" }) as const;
  expect(namesOf({ A: "x,y" }, path("A", "joined"))).toEqual(["x", "y"]);
  expect(namesOf({ A: "x,y" }, path("A", "name"))).toEqual(["x,y"]);
  expect(namesOf({ A: ['"x"', "y"] }, path("A", "names"))).toEqual(["x", "y"]);
  expect(namesOf({ A: [{ B: "x" }, { B: null }, { B: "y" }] }, path("A[].B", "name"))).toEqual([
    "x",
    "y",
  ]);
  expect(namesOf({ A: null }, path("A.B", "name"))).toEqual([]);
});

test("bytes that are no document give an empty one", () => {
  for (const text of ["", "{", "[]", '{"FModules": [', '{"FModules": null}']) {
    expect(new Document(bytes(text)).size, text).toBe(0);
  }
});

test("every reference leads to kinds that there are", () => {
  for (const { references } of KINDS) {
    for (const { to } of references ?? []) {
      for (const kind of to) expect(KIND_NUMBER.has(kind), kind).toBe(true);
    }
  }
});
