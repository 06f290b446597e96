// SPDX-License-Identifier: MIT
//
// A document as the page knows it: its bytes, where every object stands in them, what the list and
// the search need of each, and which objects refer to which.
import { forEachItem, forEachMember } from "./json_bytes.ts";
import { KINDS, KIND_NUMBER, NO_NAME, type Reference } from "./kinds.ts";
import type { Json } from "./json_text.ts";
import { decode } from "./text.ts";

export interface Head {
  readonly project: string;
  readonly projectText: string;
  readonly projectVersion: string;
  readonly projectNumber: string;
  readonly comment: string;
  readonly asap2Version: string;
  readonly modules: readonly { readonly name: string; readonly text: string }[];
}

/** Which object refers to which, and as what. */
interface Edges {
  readonly from: Uint32Array;
  /** Where the edges to an object begin in `from` and `role`, and, one further, where they end. */
  readonly begin: Uint32Array;
  /** Position of the reference among those of the kind of the object that refers. */
  readonly role: Uint8Array;
}

class Numbers {
  #items = new Uint32Array(1 << 12);
  #size = 0;
  push(value: number): void {
    if (this.#size === this.#items.length) {
      const larger = new Uint32Array(this.#size * 2);
      larger.set(this.#items);
      this.#items = larger;
    }
    this.#items[this.#size++] = value;
  }
  at(index: number): number {
    return this.#items[index]!;
  }
  get size(): number {
    return this.#size;
  }
  get all(): Uint32Array {
    return this.#items.subarray(0, this.#size);
  }
}

const asText = (value: Json | undefined): string => (value == null ? "" : String(value));

const members = (value: Json | undefined): { [key: string]: Json } =>
  value !== null && typeof value === "object" && !Array.isArray(value) ? value : {};

function at(value: Json, steps: readonly string[], found: (value: Json) => void): void {
  if (steps.length === 0) return found(value);
  const [step, ...rest] = steps as [string, ...string[]];
  const isArray = step.endsWith("[]");
  const inner = members(value)[isArray ? step.slice(0, -2) : step];
  if (inner == null) return;
  if (!isArray) return at(inner, rest, found);
  if (Array.isArray(inner)) for (const item of inner) at(item, rest, found);
}

/** The names that an object has for a reference, in their order. */
export function namesOf(object: Json, reference: Reference): string[] {
  const names: string[] = [];
  at(object, reference.path.split("."), (value) => {
    if (typeof value === "string") {
      names.push(...(reference.form === "joined" ? value.split(",") : [value]));
    } else if (Array.isArray(value)) names.push(...value.map(asText));
  });
  return names.map((name) => name.replace(/^"(.*)"$/, "$1")).filter((name) => !NO_NAME.has(name));
}

const NOTHING = 0xffffffff;

export class Document {
  readonly bytes: Uint8Array;
  head!: Head;
  readonly names: string[] = [];
  readonly texts: string[] = [];
  readonly addresses: string[] = [];
  #kinds = new Numbers();
  #modules = new Numbers();
  #begins = new Numbers();
  #ends = new Numbers();
  #numbers: Map<string, number>[][] = [];
  #edges!: Edges;
  #unfound = 0;

  constructor(bytes: Uint8Array) {
    this.bytes = bytes;
    this.#read();
    this.#link();
  }

  get size(): number {
    return this.names.length;
  }
  get modules(): number {
    return this.head.modules.length;
  }
  /** How many names refer to nothing in the document. */
  get unfound(): number {
    return this.#unfound;
  }
  kindOf(object: number): number {
    return this.#kinds.at(object);
  }
  moduleOf(object: number): number {
    return this.#modules.at(object);
  }
  get kinds(): Uint32Array {
    return this.#kinds.all;
  }
  bytesOf(object: number): Uint8Array {
    return this.bytes.subarray(this.#begins.at(object), this.#ends.at(object));
  }
  textOf(object: number): string {
    return decode(this.bytesOf(object));
  }
  jsonOf(object: number): Json {
    return JSON.parse(this.textOf(object)) as Json;
  }
  /** How many objects there are of each kind, by the number of the kind. */
  counts(): number[] {
    const counts = KINDS.map(() => 0);
    for (const kind of this.#kinds.all) ++counts[kind]!;
    return counts;
  }

  /** The object of one of these kinds that a name means, or null. */
  find(name: string, kinds: readonly string[], module: number): number | null {
    const maps = this.#numbers[module];
    if (maps === undefined) return null;
    const lookUp = (key: string, among: readonly string[]): number | undefined => {
      for (const kind of among) {
        const found = maps[KIND_NUMBER.get(kind)!]!.get(key);
        if (found !== undefined) return found;
      }
      return undefined;
    };
    const found = lookUp(name, kinds);
    if (found !== undefined) return found;
    // A part of an instance, as in "Injectors[2].duration".
    const part = name.search(/[.[]/);
    if (part <= 0 || !kinds.includes("INSTANCE")) return null;
    return lookUp(name.slice(0, part), ["INSTANCE"]) ?? null;
  }

  /** What refers to the object: `use` gets the object that does, and as what. */
  forEachReferrer(object: number, use: (from: number, reference: Reference) => void): void {
    const { begin, from, role } = this.#edges;
    for (let i = begin[object]!; i < begin[object + 1]!; ++i) {
      const referrer = from[i]!;
      use(referrer, KINDS[this.kindOf(referrer)]!.references![role[i]!]!);
    }
  }

  // ----------------------------------------------------------------------------------------------

  #read(): void {
    const { bytes } = this;
    const head: { [key: string]: Json } = {};
    const modules: { name: string; text: string }[] = [];
    const value = (begin: number, end: number): Json =>
      JSON.parse(decode(bytes.subarray(begin, end))) as Json;
    forEachMember(bytes, 0, (key, begin, end) => {
      if (key !== "FModules") return void (head[key] = value(begin, end()));
      return forEachItem(bytes, begin, (moduleBegin) => {
        const module = { name: "", text: "" };
        modules.push(module);
        return this.#readModule(moduleBegin, modules.length - 1, module);
      });
    });
    const version = [head.FASAP2_VERSION_VERSION_NO, head.FASAP2_VERSION_UPGRADE_NO];
    this.head = {
      project: asText(head.FProject_Name),
      projectText: asText(head.FProject_LONG_IDENTIFIER),
      projectVersion: asText(head.FProject_HEADER_VERSION),
      projectNumber: asText(head.FProject_HEADER_PROJECT_NO),
      comment: asText(head.FProject_HEADER_COMMENT),
      asap2Version: version[0] == null ? "" : version.map(asText).join("."),
      modules,
    };
  }

  #readModule(at: number, module: number, told: { name: string; text: string }): number {
    const { bytes } = this;
    const text = (begin: number, end: number): string =>
      JSON.parse(decode(bytes.subarray(begin, end))) as string;
    this.#numbers.push(KINDS.map(() => new Map<string, number>()));
    return forEachMember(bytes, at, (key, begin, end) => {
      if (key === "FNAME") told.name = text(begin, end());
      if (key === "FLONG_IDENTIFIER") told.text = text(begin, end());
      let known: number | undefined;
      KINDS.forEach(({ path }, kind) => {
        if (path[0] !== key) return;
        if (path.length === 1) return void (known = this.#addAll(kind, module, begin, end));
        forEachMember(bytes, begin, (innerKey, innerBegin, innerEnd) =>
          innerKey === path[1] ? this.#addAll(kind, module, innerBegin, innerEnd) : undefined,
        );
      });
      return known;
    });
  }

  #addAll(kind: number, module: number, begin: number, end: () => number): number {
    const first = String.fromCharCode(this.bytes[begin]!);
    if (first === "[") {
      return forEachItem(this.bytes, begin, (itemBegin, itemEnd) => {
        this.#add(kind, module, itemBegin, itemEnd());
      });
    }
    if (first !== "n") this.#add(kind, module, begin, end()); // not null
    return end();
  }

  #add(kind: number, module: number, begin: number, end: number): void {
    const { nameKey, textKey, addressKey, references, name: keyword } = KINDS[kind]!;
    const number = this.names.length;
    const json = JSON.parse(decode(this.bytes.subarray(begin, end))) as Json;
    const object = members(json);
    const name = nameKey === null ? keyword : asText(object[nameKey]);
    this.#kinds.push(kind);
    this.#modules.push(module);
    this.#begins.push(begin);
    this.#ends.push(end);
    this.names.push(name);
    this.texts.push(textKey === null ? "" : asText(object[textKey]));
    this.addresses.push(addressKey === undefined ? "" : asText(object[addressKey]));
    const numbers = this.#numbers[module]![kind]!;
    if (!numbers.has(name)) numbers.set(name, number);
    references?.forEach((reference, role) => {
      for (const target of namesOf(json, reference)) {
        this.#named.from.push(number);
        this.#named.role.push(role);
        this.#named.target.push(target);
      }
    });
  }

  // What the objects refer to, by name.
  #named = { from: new Numbers(), role: new Numbers(), target: [] as string[] };

  // Names can be looked up only when all objects are there.
  #link(): void {
    const named = this.#named;
    const found = new Uint32Array(named.target.length);
    const begin = new Uint32Array(this.size + 1);
    named.target.forEach((name, i) => {
      const from = named.from.at(i);
      const { to } = KINDS[this.kindOf(from)]!.references![named.role.at(i)]!;
      const target = this.find(name, to, this.moduleOf(from));
      found[i] = target ?? NOTHING;
      if (target === null) ++this.#unfound;
      else ++begin[target + 1]!;
    });
    for (let i = 1; i < begin.length; ++i) begin[i]! += begin[i - 1]!;
    const next = begin.slice();
    const from = new Uint32Array(begin[this.size]!);
    const role = new Uint8Array(from.length);
    found.forEach((target, i) => {
      if (target === NOTHING) return;
      const place = next[target]!++;
      from[place] = named.from.at(i);
      role[place] = named.role.at(i);
    });
    this.#edges = { from, begin, role };
    this.#named = { from: new Numbers(), role: new Numbers(), target: [] };
  }
}
