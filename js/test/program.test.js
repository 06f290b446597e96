// SPDX-License-Identifier: MIT
//
// The program's promises, which that of C++ keeps as well.
import assert from "node:assert/strict";
import { spawnSync } from "node:child_process";
import { existsSync, readFileSync, truncateSync, writeFileSync } from "node:fs";
import path from "node:path";
import { test } from "node:test";

import { temporaryFolder, top } from "./files.js";

const program = path.join(top, "js/bin/a2l2json.js");
const demo = path.join(top, "examples/demo.a2l");
const demoDocument = readFileSync(path.join(top, "examples/demo.json"));

function run(args, options = {}) {
  const { status, stdout, stderr } = spawnSync(process.execPath, [program, ...args], options);
  return { status, out: String(stdout), err: String(stderr) };
}

test("it says how to call it", () => {
  const out = "Failed: using a2l2json [in]a2l_file [out]json_file\n";
  for (const args of [[], ["one"], ["one", "two", "three"]]) {
    assert.deepEqual(run(args), { status: 255, out, err: "" });
  }
});

test("it converts, and takes paths as they are", (t) => {
  const output = path.join(temporaryFolder(t), "mit Leerzeichen ü 車.json");
  assert.deepEqual(run([demo, output]), { status: 0, out: "Success.\n\n", err: "" });
  assert.ok(demoDocument.equals(readFileSync(output)));
});

test("it says what it cannot read, and leaves the output alone", (t) => {
  const folder = temporaryFolder(t);
  const output = path.join(folder, "out.json");
  writeFileSync(output, "before");
  for (const input of [path.join(folder, "missing.a2l"), folder]) {
    assert.deepEqual(run([input, output]), { status: 254, out: "Failed: \n", err: "" });
  }
  assert.equal(readFileSync(output, "utf8"), "before");
});

test("it says what it cannot write, after it has read", (t) => {
  const folder = temporaryFolder(t);
  const output = path.join(folder, "missing", "out.json");
  const out = `Failed: Can not write access json file ${output}\n`;
  assert.deepEqual(run([demo, output]), { status: 253, out, err: "" });
  assert.equal(run([folder, output]).status, 254);
});

test("it can replace its input", (t) => {
  const file = path.join(temporaryFolder(t), "demo.a2l");
  writeFileSync(file, readFileSync(demo));
  assert.equal(run([file, file]).status, 0);
  assert.ok(demoDocument.equals(readFileSync(file)));
});

test("it makes a document of what is not an A2L file", (t) => {
  const folder = temporaryFolder(t);
  writeFileSync(path.join(folder, "in"), "");
  const result = run(["in", "out"], { cwd: folder });
  assert.deepEqual(result, { status: 0, out: "Success.\n\n", err: "" });
  assert.equal(JSON.parse(readFileSync(path.join(folder, "out"), "utf8")).FProject_Name, null);
});

const onUnix = { skip: process.platform === "win32" && "there are no such files here" };

test("it reads from a pipe", onUnix, (t) => {
  const output = path.join(temporaryFolder(t), "out.json");
  const command = `cat '${demo}' | "$0" "$1" /dev/stdin '${output}'`;
  const { status } = spawnSync("sh", ["-c", command, process.execPath, program]);
  assert.equal(status, 0);
  assert.ok(demoDocument.equals(readFileSync(output)));
});

const ofNoSize = "/proc/version";

test("it reads a file of the system to its end", { skip: !existsSync(ofNoSize) }, (t) => {
  const folder = temporaryFolder(t);
  writeFileSync(path.join(folder, "copy"), readFileSync(ofNoSize));
  const copied = run(["copy", "out"], { cwd: folder });
  assert.match(copied.out, /unexpected element/);
  assert.deepEqual(run([ofNoSize, "out"], { cwd: folder }), copied);
});

test("it does its work without a standard output, and on a full disk", onUnix, (t) => {
  const output = path.join(temporaryFolder(t), "out.json");
  const full = existsSync("/dev/full");
  for (const rest of [`'${output}' >&-`, full ? `'${output}' >/dev/full` : "", full ? "/dev/full" : ""]) {
    if (rest === "") continue;
    const command = `"$0" "$1" '${demo}' ${rest}`;
    assert.equal(spawnSync("sh", ["-c", command, process.execPath, program]).status, 0, rest);
    assert.ok(demoDocument.equals(readFileSync(output)));
  }
});

test("a file that is too large gets a sentence", onUnix, (t) => {
  const folder = temporaryFolder(t);
  writeFileSync(path.join(folder, "large.a2l"), "");
  truncateSync(path.join(folder, "large.a2l"), 2 ** 31); // all of it is a hole
  assert.deepEqual(run(["large.a2l", "out.json"], { cwd: folder }), {
    status: 254,
    out: "Failed: \n",
    err:
      "large.a2l is too large for WebAssembly (it has more than 2147483647 bytes): " +
      "the program a2l2json has no such limit.\n",
  });
});
