// SPDX-License-Identifier: MIT
//
// The lines of A2L text, and in which of them each object stands. It finds what stands between
// /begin and /end in any layout; what it cannot make out has no lines, which harms nobody.
import { KIND_NUMBER } from "./kinds.ts";
import { decode } from "./text.ts";

const LINE_FEED = 0x0a;
const QUOTE = 0x22;
const SLASH = 0x2f;
const STAR = 0x2a;
const BACKSLASH = 0x5c;

interface Open {
  readonly keyword: string;
  readonly entry: number;
}

const isMark = (first: number | undefined, second: number | undefined): boolean =>
  (first === 0xff && second === 0xfe) || (first === 0xfe && second === 0xff);

/** The same text in UTF-8 where it is in UTF-16. */
export function asBytes(text: Uint8Array): Uint8Array {
  if (!isMark(text[0], text[1])) return text;
  const decoder = new TextDecoder(text[0] === 0xff ? "utf-16le" : "utf-16be");
  return new TextEncoder().encode(decoder.decode(text));
}

export class Lines {
  readonly #text: Uint8Array;
  readonly #starts: Uint32Array;

  constructor(text: Uint8Array) {
    this.#text = text;
    let count = 1;
    for (let at = text.indexOf(LINE_FEED); at >= 0; at = text.indexOf(LINE_FEED, at + 1)) ++count;
    this.#starts = new Uint32Array(count);
    let line = 0;
    for (let at = text.indexOf(LINE_FEED); at >= 0; at = text.indexOf(LINE_FEED, at + 1)) {
      this.#starts[++line] = at + 1;
    }
  }

  get count(): number {
    const last = this.#starts.length - 1;
    return this.#starts[last] === this.#text.length ? last : last + 1;
  }

  /** Lines from `first` on, which begin with number 1; no more than there are. */
  take(first: number, count: number): string[] {
    const lines: string[] = [];
    for (let line = first; line < first + count && line <= this.count; ++line) {
      const begin = this.#starts[line - 1]!;
      const end = this.#starts[line] ?? this.#text.length;
      // A line of a megabyte helps nobody to read.
      const shown = decode(this.#text.subarray(begin, Math.min(end, begin + 5000)));
      lines.push(shown.replace(/\r?\n$/, ""));
    }
    return lines;
  }
}

export interface Place {
  readonly first: number;
  readonly last: number;
}

/** Where the objects of a text stand. */
export class Places {
  readonly #first: number[] = [];
  readonly #last: number[] = [];
  // Numbers of entries by kind and name, in the order of the text.
  readonly #entries = new Map<string, number | number[]>();

  constructor(text: Uint8Array) {
    this.#scan(text);
  }

  /** The `nth` object of this kind and name, from 0; null where there is none. */
  find(kind: string, name: string, nth = 0): Place | null {
    const found = this.#entries.get(`${kind} ${name}`);
    const entry = Array.isArray(found) ? found[nth] : nth === 0 ? found : undefined;
    return entry === undefined ? null : { first: this.#first[entry]!, last: this.#last[entry]! };
  }

  #enter(kind: string, name: string, line: number): number {
    const entry = this.#first.push(line) - 1;
    this.#last.push(line);
    const key = `${kind} ${name}`;
    const before = this.#entries.get(key);
    if (before === undefined) this.#entries.set(key, entry);
    else if (Array.isArray(before)) before.push(entry);
    else this.#entries.set(key, [before, entry]);
    return entry;
  }

  #scan(text: Uint8Array): void {
    const open: Open[] = [];
    let line = 1;
    let beganIn = 0; // the line of the /begin whose keyword and name are still to come
    let keyword: string | null = null;
    let ends = false;
    const size = text.length;

    const take = (begin: number, end: number, tokenLine: number): void => {
      if (ends) {
        ends = false;
        this.#close(open, word(text, begin, end), tokenLine);
      } else if (beganIn > 0 && keyword === null) {
        keyword = word(text, begin, end);
      } else if (beganIn > 0) {
        const isNamed = KIND_NUMBER.has(keyword!) && open.length >= 2;
        const name = !isNamed ? "" : isUnnamed(keyword!) ? keyword! : word(text, begin, end);
        open.push({
          keyword: keyword!,
          entry: isNamed ? this.#enter(keyword!, name, beganIn) : -1,
        });
        beganIn = 0;
        keyword = null;
      }
    };
    const flush = (): void => {
      if (beganIn > 0 && keyword !== null) open.push({ keyword, entry: -1 });
      beganIn = 0;
      keyword = null;
    };

    for (let at = 0; at < size;) {
      const c = text[at]!;
      if (c === LINE_FEED) {
        ++line;
        ++at;
      } else if (c <= 0x20) {
        ++at;
      } else if (c === SLASH && text[at + 1] === SLASH) {
        const end = text.indexOf(LINE_FEED, at);
        at = end < 0 ? size : end;
      } else if (c === SLASH && text[at + 1] === STAR) {
        at += 2;
        while (at < size && !(text[at] === STAR && text[at + 1] === SLASH)) {
          if (text[at++] === LINE_FEED) ++line;
        }
        at += 2;
      } else if (c === QUOTE) {
        const begin = at + 1;
        const beginLine = line;
        for (++at; at < size; ++at) {
          if (text[at] === LINE_FEED) ++line;
          else if (text[at] === BACKSLASH) {
            if (text[++at] === LINE_FEED) ++line;
          } else if (text[at] === QUOTE) break; // two of them are the end and another beginning
        }
        take(begin, at, beginLine);
        ++at;
      } else {
        const begin = at;
        for (++at; at < size; ++at) {
          const next = text[at]!;
          if (next <= 0x20 || next === QUOTE) break;
          if (next === SLASH && (text[at + 1] === STAR || text[at + 1] === SLASH)) break;
        }
        if (c === SLASH && is(text, begin, at, BEGIN)) {
          flush();
          beganIn = line;
        } else if (c === SLASH && is(text, begin, at, END)) {
          flush();
          ends = true;
        } else if (ends || beganIn > 0) take(begin, at, line);
      }
    }
  }

  #close(open: Open[], keyword: string, line: number): void {
    let depth = open.length - 1;
    while (depth >= 0 && open[depth]!.keyword !== keyword) --depth;
    if (depth < 0) return;
    const { entry } = open[depth]!;
    if (entry >= 0) this.#last[entry] = line;
    open.length = depth;
  }
}

const BEGIN = "/begin";
const END = "/end";

function is(text: Uint8Array, begin: number, end: number, word: string): boolean {
  if (end - begin !== word.length) return false;
  for (let i = 0; i < word.length; ++i) {
    if (text[begin + i] !== word.charCodeAt(i)) return false;
  }
  return true;
}

const word = (text: Uint8Array, begin: number, end: number): string =>
  decode(text.subarray(begin, Math.min(end, begin + 1000)));

const UNNAMED = new Set(["MOD_PAR", "MOD_COMMON", "VARIANT_CODING", "A2ML"]);
const isUnnamed = (keyword: string): boolean => UNNAMED.has(keyword);
