// SPDX-License-Identifier: MIT
//
// Formulas of conversions, as in "sqrt(X1 * 2) + 1". The parser is jsep's; here stands what its
// tree is worth.
import jsep, { type Expression } from "jsep";

// What the ASAP2 standard knows and JavaScript does not: powers.
jsep.addBinaryOp("^", 11, true);
jsep.addBinaryOp("XOR", 4);
jsep.addUnaryOp("~");

const FUNCTIONS: { readonly [name: string]: (...values: number[]) => number } = {
  abs: Math.abs,
  acos: Math.acos,
  asin: Math.asin,
  atan: Math.atan,
  cos: Math.cos,
  cosh: Math.cosh,
  exp: Math.exp,
  ln: Math.log,
  log: Math.log,
  log10: Math.log10,
  pow: Math.pow,
  sin: Math.sin,
  sinh: Math.sinh,
  sqrt: Math.sqrt,
  tan: Math.tan,
  tanh: Math.tanh,
  arcos: Math.acos,
  arcsin: Math.asin,
  arctan: Math.atan,
};

const OPERATORS: { readonly [sign: string]: (a: number, b: number) => number } = {
  "+": (a, b) => a + b,
  "-": (a, b) => a - b,
  "*": (a, b) => a * b,
  "/": (a, b) => a / b,
  "%": (a, b) => a % b,
  "^": (a, b) => a ** b,
  "&": (a, b) => a & b,
  "|": (a, b) => a | b,
  XOR: (a, b) => a ^ b,
  "<<": (a, b) => a << b,
  ">>": (a, b) => a >> b,
  "==": (a, b) => Number(a === b),
  "!=": (a, b) => Number(a !== b),
  "<": (a, b) => Number(a < b),
  ">": (a, b) => Number(a > b),
  "<=": (a, b) => Number(a <= b),
  ">=": (a, b) => Number(a >= b),
  "&&": (a, b) => Number(a !== 0 && b !== 0),
  "||": (a, b) => Number(a !== 0 || b !== 0),
};

const UNARY: { readonly [sign: string]: (a: number) => number } = {
  "-": (a) => -a,
  "+": (a) => a,
  "!": (a) => Number(a === 0),
  "~": (a) => ~a,
};

type Compiled = (x: number) => number;

const own = <T>(table: { readonly [key: string]: T }, key: string): T | undefined =>
  Object.hasOwn(table, key) ? table[key] : undefined;

class Unknown extends Error {}

function compile(node: Expression): Compiled {
  const part = (key: string): Compiled => compile(node[key] as Expression);
  switch (node.type) {
    case "Literal": {
      const value = Number(node.value);
      if (typeof node.value !== "number") throw new Unknown();
      return () => value;
    }
    case "Identifier":
      if (!/^X1?$/i.test(String(node.name))) throw new Unknown();
      return (x) => x;
    case "UnaryExpression": {
      const [work, argument] = [own(UNARY, String(node.operator)), part("argument")];
      if (work === undefined) throw new Unknown();
      return (x) => work(argument(x));
    }
    case "BinaryExpression": {
      const [work, left, right] = [
        own(OPERATORS, String(node.operator)),
        part("left"),
        part("right"),
      ];
      if (work === undefined) throw new Unknown();
      return (x) => work(left(x), right(x));
    }
    case "ConditionalExpression": {
      const [test, yes, no] = [part("test"), part("consequent"), part("alternate")];
      return (x) => (test(x) !== 0 ? yes(x) : no(x));
    }
    case "CallExpression": {
      const callee = node.callee as Expression;
      const work = own(FUNCTIONS, String(callee.name).toLowerCase());
      const values = (node.arguments as Expression[]).map(compile);
      if (callee.type !== "Identifier" || work === undefined) throw new Unknown();
      return (x) => work(...values.map((value) => value(x)));
    }
    default:
      throw new Unknown();
  }
}

// Deeper than any formula that a person has written, and far from the end of the stack.
const MOST_SIGNS = 2000;

/** The formula as a function of its only variable, X or X1; null where it is not such a formula. */
export function compileFormula(text: string): Compiled | null {
  if (text.length > MOST_SIGNS) return null;
  try {
    return compile(jsep(text));
  } catch {
    return null;
  }
}
