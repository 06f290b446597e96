// SPDX-License-Identifier: MIT
//
// What the page asks for, answered away from the page: everything that takes time is done here.
import {
  A2LError,
  convert,
  version,
  type COMPU_METHOD,
  type Diagnostic,
  type Finding,
  type MEASUREMENT,
} from "a2l2json";

import { compare, differences, type Change, type State } from "../model/compare.ts";
import { draw, drawTable, type Limits, type Shown, type Table } from "../model/conversion.ts";
import { csv } from "../model/csv.ts";
import { Document, namesOf } from "../model/document.ts";
import { parseExact, pretty, type Json } from "../model/json_text.ts";
import { KINDS } from "../model/kinds.ts";
import { Search } from "../model/search.ts";
import { asBytes, Lines, Places } from "../model/source.ts";
import type {
  ChangeDetail,
  ChangeRow,
  Comparison,
  Detail,
  Link,
  Links,
  Progress,
  Row,
  Side,
  Summary,
  Text,
  Trouble,
} from "./answers.ts";

/** How many links of one role go to the page at once. */
export const LINKS = 100;

interface Loaded {
  readonly file: File;
  readonly document: Document;
}

const wait = (): Promise<void> => new Promise((resolve) => setTimeout(resolve));

function asTrouble(error: unknown): Trouble {
  if (error instanceof A2LError) return { sentence: error.message, code: error.code };
  if (error instanceof RangeError) {
    return { sentence: "Memory ran out: the program a2l2json needs less.", code: "no-memory" };
  }
  const text = error instanceof Error ? error.message : String(error);
  return { sentence: `The page has a fault: ${text}`, code: "internal-error" };
}

export class Session {
  #loaded: { [side in Side]?: Loaded } = {};
  #mended: Uint8Array | null = null;
  #search: Search | null = null;
  #texts: { [text in Text]?: Lines } = {};
  #places: Places | null = null;
  #nth = new Map<number, number>();
  #changes: Change[] = [];

  // ----------------------------------------------------------------------------------------------
  // Opening

  async open(file: File, progress: Progress): Promise<Summary> {
    this.#loaded = {};
    this.#search = null;
    this.#texts = {};
    this.#places = null;
    this.#changes = [];
    const begun = performance.now();
    const told = {
      diagnostics: [] as readonly Diagnostic[],
      findings: [] as readonly Finding[],
      mended: null as Uint8Array | null,
    };
    let trouble: Trouble | null = null;
    let document: Document | null = null;
    try {
      progress("Reading and converting");
      const result = await convert(file, { name: file.name });
      Object.assign(told, result);
      progress("Looking for names and references");
      await wait();
      document = new Document(result.document);
      this.#loaded.main = { file, document };
      this.#search = new Search(document);
    } catch (error) {
      if (error instanceof A2LError) Object.assign(told, error);
      trouble = asTrouble(error);
      document = null;
      this.#loaded.main = undefined;
    }
    const { diagnostics, findings, mended } = told;
    this.#mended = mended;
    if (trouble === null || trouble.code === "not-converted") {
      progress("Looking for the lines of objects");
      await wait();
      await this.#readTexts(file, mended);
      if (document !== null) this.#numberNamesakes(document);
    }
    return {
      name: file.name,
      size: file.size,
      trouble,
      head: document?.head ?? null,
      counts: document?.counts() ?? KINDS.map(() => 0),
      unfound: document?.unfound ?? 0,
      diagnostics: [...diagnostics],
      findings: [...findings],
      lines: {
        source: this.#texts.source?.count ?? 0,
        mended: this.#texts.mended?.count ?? 0,
      },
      seconds: (performance.now() - begun) / 1000,
      version: await version(),
    };
  }

  async #readTexts(file: File, mended: Uint8Array | null): Promise<void> {
    const source = asBytes(new Uint8Array(await file.arrayBuffer()));
    this.#texts.source = new Lines(source);
    if (mended !== null) this.#texts.mended = new Lines(mended);
    this.#places = new Places(source);
  }

  // Objects of one kind and name are told apart by their order.
  #numberNamesakes(document: Document): void {
    this.#nth = new Map();
    const counts = new Map<string, number>();
    for (let i = 0; i < document.size; ++i) {
      const key = `${document.kindOf(i)} ${document.names[i]}`;
      const nth = counts.get(key) ?? 0;
      counts.set(key, nth + 1);
      if (nth > 0) this.#nth.set(i, nth);
    }
  }

  #document(side: Side = "main"): Document {
    const loaded = this.#loaded[side];
    if (loaded === undefined) throw new Error("no file is open");
    return loaded.document;
  }

  // ----------------------------------------------------------------------------------------------
  // Lists

  search(query: string, kind: number | null): { objects: Uint32Array; counts: readonly number[] } {
    return this.#search?.find(query, kind) ?? { objects: new Uint32Array(), counts: [] };
  }

  rows(objects: readonly number[]): Row[] {
    return objects.map((object) => this.#row(object));
  }

  #row(object: number, side: Side = "main"): Row {
    const document = this.#document(side);
    return {
      object,
      kind: KINDS[document.kindOf(object)]!.name,
      name: document.names[object]!,
      text: document.texts[object]!,
      address: document.addresses[object]!,
    };
  }

  // ----------------------------------------------------------------------------------------------
  // An object

  detail(object: number): Detail {
    const document = this.#document();
    const text = document.textOf(object);
    const row = this.#row(object);
    const shown = this.#shown(object);
    const json = JSON.parse(text) as { FPHYS_UNIT?: string | null; FUNIT?: string };
    const to = this.to(object);
    return {
      row,
      module: document.head.modules[document.moduleOf(object)]!.name,
      values: parseExact(text),
      json: pretty(text),
      place: this.#places?.find(row.kind, row.name, this.#nth.get(object) ?? 0) ?? null,
      to,
      from: this.#from(object),
      shown,
      unit: json?.FPHYS_UNIT || json?.FUNIT || shown?.unit || "",
      units: this.#units(to),
    };
  }

  /** What the object refers to, by role. */
  to(object: number): Links[] {
    const document = this.#document();
    const json = document.jsonOf(object);
    const found = new Map<string, Link[]>();
    for (const reference of KINDS[document.kindOf(object)]!.references ?? []) {
      for (const name of new Set(namesOf(json, reference))) {
        const target = document.find(name, reference.to, document.moduleOf(object));
        const links = found.get(reference.role) ?? [];
        found.set(reference.role, links);
        const kind = target === null ? null : KINDS[document.kindOf(target)]!.name;
        const text = target === null ? "" : document.texts[target]!;
        links.push({ name, kind, text, object: target });
      }
    }
    return [...found].map(([role, links]) => ({ role, kind: null, total: links.length, links }));
  }

  #units(to: readonly Links[]): { [conversion: string]: string } {
    const units: { [conversion: string]: string } = {};
    for (const { name, kind, object } of to.flatMap(({ links }) => links)) {
      if (kind !== "COMPU_METHOD") continue;
      units[name] = (this.#document().jsonOf(object!) as { FUNIT?: string }).FUNIT ?? "";
    }
    return units;
  }

  #from(object: number): Links[] {
    const document = this.#document();
    const found = new Map<string, { role: string; kind: string; objects: number[] }>();
    document.forEachReferrer(object, (from, { role }) => {
      const kind = KINDS[document.kindOf(from)]!.name;
      const key = `${kind} ${role}`;
      const group = found.get(key) ?? { role, kind, objects: [] };
      found.set(key, group);
      // An object may refer to another twice, as with two axes.
      if (group.objects.at(-1) !== from) group.objects.push(from);
    });
    return [...found.values()].map(({ role, kind, objects }) => ({
      role,
      kind,
      total: objects.length,
      links: objects.slice(0, LINKS).map((from) => this.#row(from)),
    }));
  }

  /** More of those that refer to the object in one role, from the `first` on. */
  referrers(object: number, kind: string, role: string, first: number): Link[] {
    const document = this.#document();
    const objects = new Set<number>();
    document.forEachReferrer(object, (from, reference) => {
      if (reference.role === role && KINDS[document.kindOf(from)]!.name === kind) objects.add(from);
    });
    return [...objects].slice(first, first + 10 * LINKS).map((from) => this.#row(from));
  }

  /** Groups or functions that are part of no other. */
  roots(kind: "GROUP" | "FUNCTION"): Link[] {
    const document = this.#document();
    const number = KINDS.findIndex(({ name }) => name === kind);
    const part = kind === "GROUP" ? "sub-group" : "sub-function";
    const found: Link[] = [];
    document.kinds.forEach((of, object) => {
      if (of !== number) return;
      let isPart = false;
      document.forEachReferrer(object, (from, { role }) => {
        isPart ||= role === part && from !== object;
      });
      if (!isPart) found.push(this.#row(object));
    });
    return found;
  }

  // ----------------------------------------------------------------------------------------------
  // Conversions

  #shown(object: number): Shown | null {
    const document = this.#document();
    const kind = KINDS[document.kindOf(object)]!.name;
    const json = document.jsonOf(object);
    if (kind === "COMPU_METHOD")
      return this.#drawMethod(json as never, object, this.#users(object));
    if (kind === "COMPU_TAB" || kind === "COMPU_VTAB" || kind === "COMPU_VTAB_RANGE") {
      const [method] = this.#users(object) as { FUNIT?: string }[];
      return { ...drawTable({ kind, json } as never), unit: method?.FUNIT ?? "" };
    }
    const name = (json as { FCONVERSION?: unknown } | null)?.FCONVERSION;
    if (typeof name !== "string") return null;
    const method = document.find(name, ["COMPU_METHOD"], document.moduleOf(object));
    return method === null
      ? null
      : this.#drawMethod(document.jsonOf(method) as never, method, [json]);
  }

  // Some of the objects that refer to this one, or their axes: all of them could be very many.
  #users(object: number): Json[] {
    const document = this.#document();
    const users: Json[] = [];
    document.forEachReferrer(object, (from, { path }) => {
      if (users.length >= LINKS) return;
      const user = document.jsonOf(from) as { FAXIS_DESCR?: { FCONVERSION?: string }[] };
      if (!path.startsWith("FAXIS_DESCR[]")) users.push(user);
      else {
        const name = document.names[object];
        users.push(...(user.FAXIS_DESCR ?? []).filter(({ FCONVERSION }) => FCONVERSION === name));
      }
    });
    return users;
  }

  // Between the widest limits of those that use it.
  #drawMethod(method: COMPU_METHOD, number: number, users: readonly Json[]): Shown {
    const document = this.#document();
    const fields = users.map((user) => (user ?? {}) as Partial<MEASUREMENT>);
    const type = fields.find(({ FDATATYPE }) => FDATATYPE !== undefined)?.FDATATYPE;
    const limits = fields.flatMap(({ FLOWER_LIMIT: lower, FUPPER_LIMIT: upper }): Limits[] =>
      lower == null || upper == null ? [] : [{ lower, upper }],
    );
    const widest: Limits = {
      lower: Math.min(...limits.map(({ lower }) => lower)),
      upper: Math.max(...limits.map(({ upper }) => upper)),
    };
    const kinds = ["COMPU_TAB", "COMPU_VTAB", "COMPU_VTAB_RANGE"];
    const found =
      method.FCOMPU_TAB_REF === null
        ? null
        : document.find(method.FCOMPU_TAB_REF, kinds, document.moduleOf(number));
    const table =
      found === null
        ? null
        : ({
            kind: KINDS[document.kindOf(found)]!.name,
            json: document.jsonOf(found),
          } as unknown as Table);
    return draw(method, table, widest, type);
  }

  // ----------------------------------------------------------------------------------------------
  // Text

  lines(text: Text, first: number, count: number): string[] {
    return this.#texts[text]?.take(first, count) ?? [];
  }

  // ----------------------------------------------------------------------------------------------
  // Comparing

  /** Compares with an earlier state of the file that is open. */
  async compareWith(file: File, progress: Progress): Promise<Comparison> {
    const counts = { came: 0, went: 0, changed: 0 };
    this.#changes = [];
    try {
      progress("Reading and converting");
      const result = await convert(file, { name: file.name });
      progress("Comparing");
      await wait();
      const document = new Document(result.document);
      this.#loaded.other = { file, document };
      this.#changes = compare(document, this.#document());
    } catch (error) {
      return { name: file.name, trouble: asTrouble(error), counts };
    }
    for (const { state } of this.#changes) ++counts[state];
    return { name: file.name, trouble: null, counts };
  }

  /** Numbers of the changes in these states whose name or kind has all words of the query. */
  changes(states: readonly State[], query: string): Uint32Array {
    const words = query
      .toLowerCase()
      .split(/\s+/)
      .filter((word) => word !== "");
    const fits = (change: Change): boolean => {
      if (!states.includes(change.state)) return false;
      if (words.length === 0) return true;
      const { kind, name, text } = this.#changeRow(change);
      const all = `${kind} ${name} ${text}`.toLowerCase();
      return words.every((word) => all.includes(word));
    };
    return Uint32Array.from([...this.#changes.keys()].filter((i) => fits(this.#changes[i]!)));
  }

  #changeRow({ state, before, after }: Change): ChangeRow {
    const { kind, name, text } =
      after === null ? this.#row(before!, "other") : this.#row(after, "main");
    return { state, kind, name, text };
  }

  changeRows(numbers: readonly number[]): ChangeRow[] {
    return numbers.map((number) => this.#changeRow(this.#changes[number]!));
  }

  change(number: number): ChangeDetail {
    const change = this.#changes[number]!;
    const json = (side: Side, object: number | null): Json | undefined =>
      object === null ? undefined : parseExact(this.#document(side).textOf(object));
    const before = json("other", change.before);
    const after = json("main", change.after);
    return {
      ...this.#changeRow(change),
      before,
      after,
      differences: before === undefined || after === undefined ? [] : differences(before, after),
      object: change.after,
    };
  }

  // ----------------------------------------------------------------------------------------------
  // Saving

  /** The bytes that the program writes for the file, or for its mended text. */
  async json(of: Text): Promise<Blob> {
    const { file, document } = this.#loaded.main ?? {};
    if (file === undefined || document === undefined) throw new Error("no file is open");
    const bytes =
      of === "mended"
        ? document.bytes
        : (await convert(file, { mend: false, name: file.name })).document;
    return new Blob([bytes as BlobPart], { type: "application/json" });
  }

  mended(): Blob {
    if (this.#mended === null) throw new Error("there is no mended text");
    return new Blob([this.#mended as BlobPart], { type: "text/plain" });
  }

  /** The list that a search gives. */
  csv(query: string, kind: number | null): Blob {
    const rows = [["Kind", "Name", "Description", "Address", "Module"]];
    const document = this.#document();
    for (const object of this.search(query, kind).objects) {
      const { kind: of, name, text, address } = this.#row(object);
      rows.push([of, name, text, address, document.head.modules[document.moduleOf(object)]!.name]);
    }
    return asCsv(rows);
  }

  changesCsv(states: readonly State[], query: string): Blob {
    const rows = [["Change", "Kind", "Name", "Description"]];
    for (const { state, kind, name, text } of this.changeRows([...this.changes(states, query)])) {
      rows.push([state, kind, name, text]);
    }
    return asCsv(rows);
  }
}

// With the mark of UTF-8, without which spreadsheets take it for another encoding.
const asCsv = (rows: string[][]): Blob => new Blob(["\uFEFF", csv(rows)], { type: "text/csv" });
