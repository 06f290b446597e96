// SPDX-License-Identifier: MIT
//
// The table of kinds against the JSON Schema: no key in it is misspelt, and no array of objects that
// a module has is forgotten.
import { readFileSync } from "node:fs";
import { expect, test } from "vitest";

import { KINDS } from "../../src/model/kinds.ts";

interface Schema {
  readonly $ref?: string;
  readonly $defs?: { readonly [name: string]: Schema };
  readonly properties?: { readonly [key: string]: Schema };
  readonly items?: Schema;
  readonly anyOf?: readonly Schema[];
  readonly oneOf?: readonly Schema[];
}

const schema = JSON.parse(
  readFileSync(new URL("../../../docs/json.schema.json", import.meta.url), "utf8"),
) as Schema;

// The schema of an object behind references, alternatives and arrays.
function objectOf(of: Schema | undefined): Schema | undefined {
  if (of === undefined || of.properties !== undefined) return of;
  if (of.$ref !== undefined) return objectOf(schema.$defs![of.$ref.replace("#/$defs/", "")]);
  for (const choice of [...(of.anyOf ?? []), ...(of.oneOf ?? [])]) {
    const found = objectOf(choice);
    if (found?.properties !== undefined) return found;
  }
  return objectOf(of.items);
}

const inside = (of: Schema | undefined, key: string): Schema | undefined =>
  objectOf(of)?.properties?.[key];

const module = inside(schema, "FModules");

test("every key of the table is a key of the document", () => {
  for (const { name, path, nameKey, textKey, addressKey, references } of KINDS) {
    const object = path.reduce<Schema | undefined>(inside, module);
    expect(object, name).toBeDefined();
    for (const key of [nameKey, textKey, addressKey ?? null]) {
      if (key !== null) expect(inside(object, key), `${name} ${key}`).toBeDefined();
    }
    for (const { path: reference } of references ?? []) {
      const steps = reference.replaceAll("[]", "").split(".");
      expect(
        steps.reduce<Schema | undefined>(inside, object),
        `${name} ${reference}`,
      ).toBeDefined();
    }
  }
});

test("every object of a module has a kind", () => {
  const known = new Set(KINDS.map(({ path }) => path[0]));
  const keys = Object.keys(objectOf(module)!.properties!);
  expect(keys.length).toBeGreaterThan(20);
  for (const key of keys) {
    if (key !== "FNAME" && key !== "FLONG_IDENTIFIER") expect(known.has(key), key).toBe(true);
  }
});
