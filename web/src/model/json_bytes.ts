// SPDX-License-Identifier: MIT
//
// Finds the values in the bytes of a JSON document without making objects of them: a document may
// have more bytes than a JavaScript string can hold.

const QUOTE = 0x22;
const BACKSLASH = 0x5c;
const COMMA = 0x2c;
const COLON = 0x3a;
const OPEN = 0x5b;
const CLOSE = 0x5d;
const OPEN_OBJECT = 0x7b;
const CLOSE_OBJECT = 0x7d;

function skipBlanks(bytes: Uint8Array, at: number): number {
  while (bytes[at] === 0x20 || bytes[at] === 0x0a || bytes[at] === 0x0d || bytes[at] === 0x09) ++at;
  return at;
}

// Behind the string whose opening quote is at `at`.
function skipString(bytes: Uint8Array, at: number): number {
  for (++at; at < bytes.length; ++at) {
    const c = bytes[at];
    if (c === BACKSLASH) ++at;
    else if (c === QUOTE) return at + 1;
  }
  return bytes.length;
}

/** Behind the value that begins at `at`. */
export function skipValue(bytes: Uint8Array, at: number): number {
  if (bytes[at] === QUOTE) return skipString(bytes, at);
  let depth = 0;
  for (; at < bytes.length; ++at) {
    const c = bytes[at];
    if (c === QUOTE) at = skipString(bytes, at) - 1;
    else if (c === OPEN_OBJECT || c === OPEN) ++depth;
    else if (c === CLOSE_OBJECT || c === CLOSE) {
      if (depth === 0) return at;
      if (--depth === 0) return at + 1;
    } else if (c === COMMA && depth === 0) return at;
  }
  return at;
}

/**
 * Gets the place of a value. May give the end of the value where it knows it: the value is then not
 * looked through once more.
 */
export type Use = (begin: number, end: () => number) => number | void;

function useValue(bytes: Uint8Array, begin: number, use: Use): number {
  let end = -1;
  const find = (): number => (end < 0 ? (end = skipValue(bytes, begin)) : end);
  const at = skipBlanks(bytes, use(begin, find) ?? find());
  return bytes[at] === COMMA ? skipBlanks(bytes, at + 1) : at;
}

/** Calls `use` for every item of the array that begins at `at`; gives the end of the array. */
export function forEachItem(bytes: Uint8Array, at: number, use: Use): number {
  if (bytes[at] !== OPEN) return skipValue(bytes, at);
  at = skipBlanks(bytes, at + 1);
  while (at < bytes.length && bytes[at] !== CLOSE) at = useValue(bytes, at, use);
  return at + 1;
}

/**
 * Calls `use` for the value of every member of the object that begins at `at`; gives the end of the
 * object.
 */
export function forEachMember(
  bytes: Uint8Array,
  at: number,
  use: (key: string, ...place: Parameters<Use>) => ReturnType<Use>,
): number {
  if (bytes[at] !== OPEN_OBJECT) return skipValue(bytes, at);
  at = skipBlanks(bytes, at + 1);
  while (at < bytes.length && bytes[at] === QUOTE) {
    const keyEnd = skipString(bytes, at);
    const key = String.fromCharCode(...bytes.subarray(at + 1, keyEnd - 1));
    at = skipBlanks(bytes, keyEnd);
    if (bytes[at] === COLON) at = skipBlanks(bytes, at + 1);
    at = useValue(bytes, at, (begin, end) => use(key, begin, end));
  }
  return at + 1;
}
