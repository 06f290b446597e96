// SPDX-License-Identifier: MIT
//
// What a conversion does, as a curve or a table: raw values on one side, physical ones or texts on
// the other.
import { ticks } from "d3-array";
import type { COMPU_METHOD, COMPU_TAB, COMPU_VTAB, COMPU_VTAB_RANGE } from "a2l2json";
import { compileFormula } from "./formula.ts";

export interface Point {
  readonly raw: number;
  readonly physical: number;
}

export interface TableRow {
  readonly raw: string;
  readonly value: string;
}

export interface Shown {
  /** A sentence for a person: the formula. */
  readonly rule: string;
  readonly curve: readonly Point[];
  /** Whether nothing lies between two points of the curve. */
  readonly isStepped: boolean;
  readonly table: readonly TableRow[];
  readonly unit: string;
}

/** The table that a method refers to, with its kind. */
export type Table =
  | { readonly kind: "COMPU_TAB"; readonly json: COMPU_TAB }
  | { readonly kind: "COMPU_VTAB"; readonly json: COMPU_VTAB }
  | { readonly kind: "COMPU_VTAB_RANGE"; readonly json: COMPU_VTAB_RANGE };

/** The physical limits between which a curve is drawn. */
export interface Limits {
  readonly lower: number;
  readonly upper: number;
}

const POINTS = 128;
const DEFAULT: Limits = { lower: 0, upper: 100 };

const numbers = (joined: string | null): number[] =>
  joined === null ? [] : joined.split(",").map(Number);

const asNumber = (value: number | null): number => value ?? NaN;

const finite = (points: Point[]): Point[] =>
  points.filter(({ raw, physical }) => Number.isFinite(raw) && Number.isFinite(physical));

function steps({ lower, upper }: Limits): number[] {
  return Array.from({ length: POINTS + 1 }, (_, i) => lower + ((upper - lower) * i) / POINTS);
}

/** Limits that can be drawn, whatever an object says. */
export function drawable(limits: Limits | null): Limits {
  if (limits === null) return DEFAULT;
  const { lower, upper } = limits;
  const isGood = Number.isFinite(lower) && Number.isFinite(upper) && Number.isFinite(upper - lower);
  return isGood && lower < upper ? limits : DEFAULT;
}

const term = (factor: number, sign: string): string =>
  factor === 0
    ? ""
    : `${factor < 0 ? " − " : " + "}${Math.abs(factor) === 1 && sign !== "" ? "" : Math.abs(factor)}${Math.abs(factor) === 1 || sign === "" ? "" : " · "}${sign}`;

/** A sum as people write it, as in "2 · x − 40". */
export function sum(terms: readonly (readonly [number, string])[]): string {
  const text = terms.map(([factor, sign]) => term(factor, sign)).join("");
  if (text === "") return "0";
  return text.startsWith(" + ") ? text.slice(3) : `−${text.slice(3)}`;
}

/** raw = (a x² + b x + c) / (d x² + e x + f), x being the physical value. */
export function rationalRaw(c: readonly number[], x: number): number {
  return (c[0]! * x * x + c[1]! * x + c[2]!) / (c[3]! * x * x + c[4]! * x + c[5]!);
}

/** The physical values of a raw one: none, one, or two where the function is of second degree. */
export function rationalPhysical(c: readonly number[], raw: number): number[] {
  const [a, b, constant] = [c[0]! - raw * c[3]!, c[1]! - raw * c[4]!, c[2]! - raw * c[5]!];
  if (a === 0) return b === 0 ? [] : [-constant / b];
  const root = Math.sqrt(b * b - 4 * a * constant);
  if (Number.isNaN(root)) return [];
  return root === 0 ? [-b / (2 * a)] : [(-b - root) / (2 * a), (-b + root) / (2 * a)];
}

/** The physical values of a raw value, as far as a method without a table says. */
export function physicalOf(method: COMPU_METHOD, raw: number): number[] {
  switch (method.FCONVERSION_TYPE) {
    case "IDENTICAL":
      return [raw];
    case "LINEAR": {
      const [factor, offset] = numbers(method.FCOEFFS_LINEAR);
      return factor === undefined || offset === undefined ? [] : [factor * raw + offset];
    }
    case "RAT_FUNC": {
      const c = numbers(method.FCOEFFS);
      return c.length === 6 ? rationalPhysical(c, raw) : [];
    }
    case "FORM": {
      const formula = compileFormula(method.FFORMULA?.FFORMULA ?? "");
      const physical = formula?.(raw);
      return physical === undefined || !Number.isFinite(physical) ? [] : [physical];
    }
    default:
      return [];
  }
}

const fraction = (c: readonly number[]): string => {
  const above = sum([
    [c[0]!, "x²"],
    [c[1]!, "x"],
    [c[2]!, ""],
  ]);
  const below = sum([
    [c[3]!, "x²"],
    [c[4]!, "x"],
    [c[5]!, ""],
  ]);
  return below === "1" ? `raw = ${above}` : `raw = (${above}) / (${below})`;
};

type Drawing = Pick<Shown, "rule" | "curve" | "isStepped" | "table">;

const nothing = (rule: string): Drawing => ({ rule, curve: [], isStepped: false, table: [] });

function rows(points: readonly Point[]): TableRow[] {
  return points.map(({ raw, physical }) => ({ raw: String(raw), value: String(physical) }));
}

/** A few rows of a curve, at round raw values. */
function sample(method: COMPU_METHOD, curve: readonly Point[]): TableRow[] {
  const raws = curve.map(({ raw }) => raw);
  return ticks(Math.min(...raws), Math.max(...raws), 8).map((raw) => ({
    raw: String(raw),
    value: physicalOf(method, raw)
      .map((value) => String(Number(value.toPrecision(6))))
      .join(" or "),
  }));
}

function drawMethod(method: COMPU_METHOD, limits: Limits, raws: Limits): Drawing {
  const drawn = (rule: string, curve: Point[]): Drawing => ({
    rule,
    curve,
    isStepped: false,
    table: curve.length === 0 ? [] : sample(method, curve),
  });
  switch (method.FCONVERSION_TYPE) {
    case "IDENTICAL":
      return drawn("physical = raw", finite(steps(limits).map((x) => ({ raw: x, physical: x }))));
    case "LINEAR": {
      const [factor, offset] = numbers(method.FCOEFFS_LINEAR);
      if (factor === undefined || offset === undefined) return nothing("The factors are missing.");
      const rule = `physical = ${sum([
        [factor, "raw"],
        [offset, ""],
      ])}`;
      const curve = steps(limits).map((x) => ({ raw: (x - offset) / factor, physical: x }));
      return drawn(rule, finite(curve));
    }
    case "RAT_FUNC": {
      const c = numbers(method.FCOEFFS);
      if (c.length !== 6) return nothing("The factors are missing.");
      const curve = steps(limits).map((x) => ({ raw: rationalRaw(c, x), physical: x }));
      return drawn(`${fraction(c)}, x being the physical value`, finite(curve));
    }
    case "FORM": {
      const text = method.FFORMULA?.FFORMULA ?? "";
      const formula = compileFormula(text);
      if (formula === null) return nothing(`physical = ${text}, which this page cannot compute`);
      // Of the raw values, those that give physical ones between the limits.
      const within = (x: number): boolean => x >= limits.lower && x <= limits.upper;
      const wide = steps(raws).map((x) => ({ raw: x, physical: formula(x) }));
      const fitting = finite(wide).filter(({ physical }) => within(physical));
      const ends = fitting.map(({ raw }) => raw);
      const range =
        fitting.length < 2 ? limits : { lower: Math.min(...ends), upper: Math.max(...ends) };
      const curve = finite(steps(range).map((x) => ({ raw: x, physical: formula(x) })));
      return drawn(`physical = ${text}`, curve);
    }
    default:
      return nothing("");
  }
}

// The raw values of the types of data; floating ones have no limits of their own.
const RAWS: { readonly [type: string]: Limits } = {
  UBYTE: { lower: 0, upper: 2 ** 8 - 1 },
  SBYTE: { lower: -(2 ** 7), upper: 2 ** 7 - 1 },
  UWORD: { lower: 0, upper: 2 ** 16 - 1 },
  SWORD: { lower: -(2 ** 15), upper: 2 ** 15 - 1 },
  ULONG: { lower: 0, upper: 2 ** 32 - 1 },
  SLONG: { lower: -(2 ** 31), upper: 2 ** 31 - 1 },
};

function pairs(tab: COMPU_TAB): Point[] {
  const count = Math.min(tab.FIN_VAL.length, tab.FOUT_VAL.length);
  return Array.from({ length: count }, (_, i) => ({
    raw: asNumber(tab.FIN_VAL[i]!),
    physical: asNumber(tab.FOUT_VAL[i]!),
  }));
}

const otherwise = (value: string | number | null): TableRow[] =>
  value === null ? [] : [{ raw: "otherwise", value: String(value) }];

/** What a table does. */
export function drawTable(table: Table): Drawing {
  switch (table.kind) {
    case "COMPU_TAB": {
      const { json } = table;
      const points = pairs(json);
      const isStepped = json.FCONVERSION_TYPE === "TAB_NOINTP";
      return {
        rule: isStepped
          ? "One physical value for each raw value of the table."
          : "Physical values lie on a line between two rows of the table.",
        curve: finite(points).sort((a, b) => a.raw - b.raw),
        isStepped,
        table: [...rows(points), ...otherwise(json.FDEFAULT_VALUE_NUMERIC ?? json.FDEFAULT_VALUE)],
      };
    }
    case "COMPU_VTAB":
      return {
        ...nothing("A text for each raw value."),
        table: [
          ...table.json.FOUT_VAL.map((value, i) => ({ raw: String(table.json.FIN_VAL[i]), value })),
          ...otherwise(table.json.FDEFAULT_VALUE),
        ],
      };
    case "COMPU_VTAB_RANGE": {
      const { FIN_VAL_MIN: from, FIN_VAL_MAX: to, FOUT_VAL: out } = table.json;
      return {
        ...nothing("A text for each range of raw values."),
        table: [
          ...out.map((value, i) => ({
            raw: from[i] === to[i] ? String(from[i]) : `${from[i]} to ${to[i]}`,
            value,
          })),
          ...otherwise(table.json.FDEFAULT_VALUE),
        ],
      };
    }
  }
}

/**
 * What a method does, with the table that it refers to where it has one, for an object with these
 * limits and this type of data where they are known.
 */
export function draw(
  method: COMPU_METHOD,
  table: Table | null,
  limits: Limits | null,
  type = "",
): Shown {
  const between = drawable(limits);
  const drawing =
    table === null ? drawMethod(method, between, RAWS[type] ?? between) : drawTable(table);
  return { ...drawing, unit: method.FUNIT };
}
