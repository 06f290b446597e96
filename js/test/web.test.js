// SPDX-License-Identifier: MIT
//
// The face for browsers and workers, where fetch() is all there is.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import path from "node:path";
import { test } from "node:test";

import { convert, load } from "../src/web.js";
import { top } from "./files.js";

test("the module is fetched once, from beside the package", async (t) => {
  const asked = [];
  t.mock.method(globalThis, "fetch", async (url) => {
    asked.push(String(url));
    if (asked.length === 1) return new Response("", { status: 404 });
    return new Response(readFileSync(url));
  });
  await assert.rejects(load(), /cannot be loaded: 404/);
  await load();
  const { document } = await convert(readFileSync(path.join(top, "examples/demo.a2l")), {
    mend: false,
  });
  assert.ok(readFileSync(path.join(top, "examples/demo.json")).equals(document));
  assert.equal(asked.length, 2, "what failed is tried again, what was loaded is not");
  for (const url of asked) assert.match(url, /\/js\/dist\/a2l2json\.wasm$/);
});
