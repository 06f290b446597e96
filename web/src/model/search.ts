// SPDX-License-Identifier: MIT
//
// Finds objects by parts of their names, descriptions and addresses.
import type { Document } from "./document.ts";
import { KINDS } from "./kinds.ts";

export interface Found {
  /** The best first: a name that is the query, begins with it, has it; then what has it elsewhere. */
  readonly objects: Uint32Array;
  /** How many objects of each kind fit the query, whatever kind was asked for. */
  readonly counts: readonly number[];
}

const RANKS = 4;

const digits = (address: string): string => address.replace(/^0x0*/, "");

export class Search {
  readonly #document: Document;
  readonly #names: string[];
  // Description and address, after a sign that nobody can type.
  readonly #rest: string[];

  constructor(document: Document) {
    this.#document = document;
    this.#names = document.names.map((name) => name.toLowerCase());
    this.#rest = document.texts.map(
      (text, i) => `${text.toLowerCase()}\n${document.addresses[i]!.toLowerCase()}`,
    );
  }

  /** All words of the query must be in an object. `kind` null stands for all kinds. */
  find(query: string, kind: number | null): Found {
    const words = query
      .toLowerCase()
      .split(/\s+/)
      .filter((word) => word !== "");
    const counts = KINDS.map(() => 0);
    const ranked: number[][] = Array.from({ length: RANKS }, () => []);
    const { kinds, size } = this.#document;
    for (let i = 0; i < size; ++i) {
      const rank = this.#rank(i, words);
      if (rank === null) continue;
      ++counts[kinds[i]!]!;
      if (kind === null || kinds[i] === kind) ranked[rank]!.push(i);
    }
    return { objects: Uint32Array.from(ranked.flat()), counts };
  }

  #rank(object: number, words: readonly string[]): number | null {
    const name = this.#names[object]!;
    let worst = 0;
    for (const word of words) {
      const place = name.indexOf(word);
      if (place === 0) worst = Math.max(worst, name.length === word.length ? 0 : 1);
      else if (place > 0) worst = Math.max(worst, 2);
      else if (this.#rest[object]!.includes(word) || this.#isAddress(object, word)) worst = 3;
      else return null;
    }
    return worst;
  }

  // Addresses have no zeros in front, whatever a person writes.
  #isAddress(object: number, word: string): boolean {
    if (!/^0x0/.test(word)) return false;
    return digits(this.#document.addresses[object]!.toLowerCase()).startsWith(digits(word));
  }
}
