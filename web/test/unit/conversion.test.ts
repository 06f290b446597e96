// SPDX-License-Identifier: MIT
import type { COMPU_METHOD } from "a2l2json";
import { describe, expect, test } from "vitest";

import { draw, drawTable, drawable, physicalOf, sum } from "../../src/model/conversion.ts";
import { compileFormula } from "../../src/model/formula.ts";

const method = (type: COMPU_METHOD["FCONVERSION_TYPE"], more: Partial<COMPU_METHOD> = {}) =>
  ({
    FCONVERSION_TYPE: type,
    FCOEFFS: null,
    FCOEFFS_LINEAR: null,
    FFORMULA: null,
    FUNIT: "",
    ...more,
  }) as COMPU_METHOD;

const formula = (text: string) =>
  method("FORM", { FFORMULA: { FFORMULA: text, FFORMULA_INV: null } });

describe("physical values", () => {
  test("IDENTICAL changes nothing", () => {
    expect(physicalOf(method("IDENTICAL"), 7)).toEqual([7]);
  });

  test("LINEAR: physical = factor * raw + offset", () => {
    // 0.5 * 100 - 40
    expect(physicalOf(method("LINEAR", { FCOEFFS_LINEAR: "0.5,-40" }), 100)).toEqual([10]);
  });

  test("RAT_FUNC: raw = (b x + c) / f, solved for x", () => {
    // raw = 4 x: 100 is 25
    expect(physicalOf(method("RAT_FUNC", { FCOEFFS: "0,4,0,0,0,1" }), 100)).toEqual([25]);
    // raw = (2 x + 6) / 4: raw 5 gives 2 x = 14
    expect(physicalOf(method("RAT_FUNC", { FCOEFFS: "0,2,6,0,0,4" }), 5)).toEqual([7]);
    // raw = 1 / x: raw 4 gives 0.25
    expect(physicalOf(method("RAT_FUNC", { FCOEFFS: "0,0,1,0,1,0" }), 4)).toEqual([0.25]);
  });

  test("RAT_FUNC of second degree has two values, one, or none", () => {
    const square = method("RAT_FUNC", { FCOEFFS: "1,0,0,0,0,1" }); // raw = x²
    expect(physicalOf(square, 9)).toEqual([-3, 3]);
    expect(physicalOf(square, 0).map(Math.abs)).toEqual([0]);
    expect(physicalOf(square, -1)).toEqual([]);
  });

  test("RAT_FUNC without a solution, and factors that are missing, give nothing", () => {
    expect(physicalOf(method("RAT_FUNC", { FCOEFFS: "0,0,1,0,0,1" }), 4)).toEqual([]);
    expect(physicalOf(method("RAT_FUNC"), 4)).toEqual([]);
    expect(physicalOf(method("LINEAR"), 4)).toEqual([]);
  });

  test("FORM computes its formula", () => {
    expect(physicalOf(formula("X1 * 2 + 1"), 3)).toEqual([7]);
    expect(physicalOf(formula("1 / X1"), 0)).toEqual([]);
    expect(physicalOf(formula("whatever"), 1)).toEqual([]);
  });
});

describe("formulas", () => {
  const at = (text: string, x: number): number | undefined => compileFormula(text)?.(x);

  test("have the signs and functions of the standard", () => {
    expect(at("2^3^2", 0)).toBe(512);
    expect(at("-X1 + 5", 2)).toBe(3);
    expect(at("sqrt(X1) + pow(X1, 2)", 9)).toBe(84);
    expect(at("(X & 15) << 1", 0x12)).toBe(4);
    expect(at("X1 > 3 ? 10 : 20", 4)).toBe(10);
    expect(at("ABS(X1)", -4)).toBe(4);
  });

  test("that are none, or have other variables, are refused", () => {
    for (const text of [
      "",
      "X1 +",
      "X2",
      "X1.constructor",
      "constructor(X1)",
      "alert(1)",
      "this",
    ]) {
      expect(compileFormula(text), text).toBeNull();
    }
  });

  test("may be deep without harm", () => {
    expect(compileFormula("(".repeat(100_000))).toBeNull();
    expect(compileFormula(`${"-".repeat(1500)}1`)?.(0)).toBe(1);
    expect(compileFormula(`${"1+".repeat(1500)}1`)).toBeNull();
  });
});

describe("drawings", () => {
  test("a curve goes from the lower to the upper limit", () => {
    const { curve, rule, table } = draw(method("RAT_FUNC", { FCOEFFS: "0,4,0,0,0,1" }), null, {
      lower: 0,
      upper: 100,
    });
    expect(curve[0]).toEqual({ raw: 0, physical: 0 });
    expect(curve.at(-1)).toEqual({ raw: 400, physical: 100 });
    expect(rule).toBe("raw = 4 · x, x being the physical value");
    expect(table).toContainEqual({ raw: "200", value: "50" });
  });

  test("a line tells its formula", () => {
    const { rule, curve } = draw(method("LINEAR", { FCOEFFS_LINEAR: "0.1,-40" }), null, {
      lower: -40,
      upper: 60,
    });
    expect(rule).toBe("physical = 0.1 · raw − 40");
    expect(curve.at(-1)).toEqual({ raw: 1000, physical: 60 });
  });

  test("a formula is drawn over the raw values that give physical ones between the limits", () => {
    const { curve } = draw(formula("X1 * 2"), null, { lower: 0, upper: 100 }, "UBYTE");
    expect(curve[0]).toEqual({ raw: 0, physical: 0 });
    // 128 steps over 0 to 255: the last below 50 is the 25th
    expect(curve.at(-1)!.raw).toBeCloseTo((25 * 255) / 128);
  });

  test("limits that cannot be drawn become 0 to 100", () => {
    const usual = { lower: 0, upper: 100 };
    expect(drawable(null)).toEqual(usual);
    expect(drawable({ lower: 5, upper: 5 })).toEqual(usual);
    expect(drawable({ lower: -Infinity, upper: 5 })).toEqual(usual);
    expect(drawable({ lower: -1.7e308, upper: 1.7e308 })).toEqual(usual);
  });

  test("numeric tables are points in their order, and what stands for all others", () => {
    const drawing = drawTable({
      kind: "COMPU_TAB",
      json: {
        FCONVERSION_TYPE: "TAB_INTP",
        FIN_VAL: [10, 0, null],
        FOUT_VAL: [1.5, 2, 3],
        FDEFAULT_VALUE: null,
        FDEFAULT_VALUE_NUMERIC: -273,
      } as never,
    });
    expect(drawing.curve).toEqual([
      { raw: 0, physical: 2 },
      { raw: 10, physical: 1.5 },
    ]);
    expect(drawing.table.at(-1)).toEqual({ raw: "otherwise", value: "-273" });
    expect(drawing.isStepped).toBe(false);
  });

  test("tables of texts and of ranges are rows", () => {
    const texts = { FOUT_VAL: ["off", "on"], FDEFAULT_VALUE: "?" };
    expect(
      drawTable({ kind: "COMPU_VTAB", json: { ...texts, FIN_VAL: [0, 1] } as never }).table,
    ).toEqual([
      { raw: "0", value: "off" },
      { raw: "1", value: "on" },
      { raw: "otherwise", value: "?" },
    ]);
    const ranges = { ...texts, FIN_VAL_MIN: [0, 5], FIN_VAL_MAX: [4, 5], FDEFAULT_VALUE: null };
    expect(drawTable({ kind: "COMPU_VTAB_RANGE", json: ranges as never }).table).toEqual([
      { raw: "0 to 4", value: "off" },
      { raw: "5", value: "on" },
    ]);
  });

  test("sums leave out what is nothing", () => {
    expect(
      sum([
        [1, "x²"],
        [0, "x"],
        [-3, ""],
      ]),
    ).toBe("x² − 3");
    expect(
      sum([
        [-1, "x"],
        [0, ""],
      ]),
    ).toBe("−x");
    expect(
      sum([
        [0, "x"],
        [0, ""],
      ]),
    ).toBe("0");
    expect(
      sum([
        [2.5, "x"],
        [1, ""],
      ]),
    ).toBe("2.5 · x + 1");
  });
});
