// SPDX-License-Identifier: MIT
import assert from "node:assert/strict";
import { spawnSync } from "node:child_process";
import { existsSync, readFileSync } from "node:fs";
import path from "node:path";
import { test } from "node:test";

import { A2LError, convert } from "a2l2json";

import { goldenCases, temporaryFolder, top } from "./files.js";

const cases = goldenCases();

// The document that a conversion gives, or that is in its error; null where there is none.
async function documentOf(bytes) {
  try {
    return (await convert(bytes, { mend: false })).document;
  } catch (error) {
    assert.ok(error instanceof A2LError, error);
    assert.ok(["not-a2l", "not-converted"].includes(error.code), error.code);
    return error.document;
  }
}

test("every golden case gives the bytes of the program", async () => {
  assert.ok(cases.length > 500);
  for (const { name, path: input, document } of cases) {
    const made = await documentOf(readFileSync(input));
    if (document === null) assert.equal(made, null, name);
    else assert.ok(document.equals(made), name);
  }
});

test("the diagnostics are those of the console text", async () => {
  for (const { name, path: input, console: text } of cases) {
    const result = await convert(readFileSync(input), { mend: false }).catch((error) => error);
    const expected = text.toString("latin1").split("\n").filter((line) => line.includes("Line("));
    assert.equal(result.diagnostics.length, expected.length, name);
    result.diagnostics.forEach((diagnostic, i) => {
      assert.ok(expected[i].includes(`Line(${diagnostic.line}) `), name);
    });
  }
});

test("the program does the same with the first case of every topic and kind", (t) => {
  const folder = temporaryFolder(t);
  const seen = new Set();
  for (const { name, path: input, kind, console: text, document } of cases) {
    const group = `${path.dirname(name)} ${kind}`;
    if (seen.has(group)) continue;
    seen.add(group);
    const output = path.join(folder, `${seen.size}.json`);
    const run = spawnSync(process.execPath, [path.join(top, "js/bin/a2l2json.js"), input, output]);
    assert.equal(run.stderr.length, 0, name);
    assert.ok(text.equals(run.stdout), name);
    assert.equal(run.status, kind === "fail" ? 254 : 0, name);
    assert.equal(existsSync(output), document !== null, name);
    if (document !== null) assert.ok(document.equals(readFileSync(output)), name);
  }
  assert.ok(seen.size > 40);
});
