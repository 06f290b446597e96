// SPDX-License-Identifier: MIT
import assert from "node:assert/strict";
import { spawnSync } from "node:child_process";
import path from "node:path";
import { test } from "node:test";

import { top } from "./files.js";

const js = path.join(top, "js");

function node(...args) {
  const { status, stdout, stderr } = spawnSync(process.execPath, args, { cwd: js });
  return { status, text: `${stdout}${stderr}` };
}

test("the types of the document are those of the schema", () => {
  const { status, text } = node("scripts/types.js", "--check");
  assert.equal(status, 0, text);
});

for (const [where, project] of [
  ["for a page", "test/types"],
  ["for Node", "test/types/tsconfig.node.json"],
]) {
  test(`the types serve a program ${where}, and refuse a wrong one`, () => {
    const { status, text } = node("node_modules/typescript/bin/tsc", "-p", project);
    assert.equal(status, 0, text);
  });
}

test("the types need no others", () => {
  const project = "test/types/tsconfig.alone.json";
  const { status, text } = node("node_modules/typescript/bin/tsc", "-p", project);
  assert.equal(status, 0, text);
});
