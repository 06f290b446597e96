// SPDX-License-Identifier: MIT
//
// The JSON of one object as people read it. Numbers stay as they are written: JavaScript's own
// would round those of more than 15 digits.

export type Json = null | boolean | number | string | Json[] | { [key: string]: Json };

// A string, a number, a word, or one of the signs between them.
const TOKENS = /"(?:[^"\\]|\\.)*"|[[\]{},:]|[^\s[\]{},:"]+/g;

/** The same JSON with a line per value; empty objects and arrays stay on one. */
export function pretty(json: string): string {
  const tokens = json.match(TOKENS) ?? [];
  let indent = "\n";
  let out = "";
  tokens.forEach((token, i) => {
    if (token === "{" || token === "[") {
      const closes = tokens[i + 1] === "}" || tokens[i + 1] === "]";
      if (!closes) indent += "  ";
      out += closes ? token : token + indent;
    } else if (token === "}" || token === "]") {
      const opened = tokens[i - 1] === "{" || tokens[i - 1] === "[";
      if (!opened) indent = indent.slice(0, -2);
      out += opened ? token : indent + token;
    } else if (token === ",") out += "," + indent;
    else if (token === ":") out += ": ";
    else out += token;
  });
  return out;
}

/** Parses, and keeps the numbers that JavaScript cannot hold as strings of their digits. */
export function parseExact(json: string): Json {
  const kept = json.replace(/"(?:[^"\\]|\\.)*"|-?\d[\d.eE+-]*/g, (token) =>
    /^-?\d{16,}$/.test(token) && !Number.isSafeInteger(Number(token)) ? `"${token}"` : token,
  );
  return JSON.parse(kept) as Json;
}
