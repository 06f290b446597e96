// SPDX-License-Identifier: MIT
//
// Two documents side by side: which objects came, went or changed, by kind and name.
import type { Document } from "./document.ts";
import type { Json } from "./json_text.ts";

export type State = "came" | "went" | "changed";

export interface Change {
  readonly state: State;
  /** The object before and after; null where there is none. */
  readonly before: number | null;
  readonly after: number | null;
}

// Modules count only where there are several: their name may be what changed.
function keys(document: Document, byModule: boolean): Map<string, number> {
  const found = new Map<string, number>();
  const counts = new Map<string, number>();
  for (let i = 0; i < document.size; ++i) {
    const module = byModule ? document.head.modules[document.moduleOf(i)]!.name : "";
    const key = `${module} ${document.kindOf(i)} ${document.names[i]}`;
    // Several of one name are compared in their order.
    const nth = counts.get(key) ?? 0;
    counts.set(key, nth + 1);
    found.set(`${key}\n${nth}`, i);
  }
  return found;
}

function areEqual(a: Uint8Array, b: Uint8Array): boolean {
  if (a.length !== b.length) return false;
  for (let i = 0; i < a.length; ++i) if (a[i] !== b[i]) return false;
  return true;
}

/** What differs, in the order of the later document; what went stands at the end. */
export function compare(before: Document, after: Document): Change[] {
  const byModule = before.modules > 1 && after.modules > 1;
  const old = keys(before, byModule);
  const changes: Change[] = [];
  for (const [key, now] of keys(after, byModule)) {
    const was = old.get(key);
    if (was === undefined) changes.push({ state: "came", before: null, after: now });
    else {
      old.delete(key);
      if (!areEqual(before.bytesOf(was), after.bytesOf(now))) {
        changes.push({ state: "changed", before: was, after: now });
      }
    }
  }
  for (const was of old.values()) changes.push({ state: "went", before: was, after: null });
  return changes;
}

export interface Difference {
  /** Keys from the object on, as in "FAXIS_DESCR 1 FUPPER_LIMIT". */
  readonly path: string;
  /** Undefined where there is none. */
  readonly before: Json | undefined;
  readonly after: Json | undefined;
}

const inside = (value: Json | undefined): Map<string, Json> | null => {
  if (value === null || typeof value !== "object") return null;
  if (Array.isArray(value)) return new Map(value.map((item, i) => [String(i + 1), item]));
  return new Map(Object.entries(value));
};

/** The values that differ between two objects. */
export function differences(before: Json, after: Json): Difference[] {
  const found: Difference[] = [];
  const walk = (path: string, a: Json | undefined, b: Json | undefined): void => {
    const [left, right] = [inside(a), inside(b)];
    if (left === null || right === null) {
      if (JSON.stringify(a) !== JSON.stringify(b)) found.push({ path, before: a, after: b });
      return;
    }
    for (const key of new Set([...left.keys(), ...right.keys()])) {
      walk(path === "" ? key : `${path} ${key}`, left.get(key), right.get(key));
    }
  };
  walk("", before, after);
  return found;
}
