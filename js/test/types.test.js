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

test("the types serve a program, and refuse a wrong one", () => {
  const { status, text } = node("node_modules/typescript/bin/tsc", "-p", "test/types");
  assert.equal(status, 0, text);
});
