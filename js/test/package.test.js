// SPDX-License-Identifier: MIT
//
// The package as a user gets it: packed, installed from its file in a folder of its own, called, and
// taken at its word in docs/javascript.md.
import assert from "node:assert/strict";
import { spawnSync } from "node:child_process";
import { copyFileSync, mkdtempSync, readdirSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import path from "node:path";
import { after, before, test } from "node:test";

import { top } from "./files.js";

const js = path.join(top, "js");
const folder = mkdtempSync(path.join(tmpdir(), "a2l2json-package-"));
const page = readFileSync(path.join(top, "docs/javascript.md"), "utf8");
let packed = null;

function run(command, args, cwd = folder) {
  const options = { cwd, encoding: "utf8", shell: process.platform === "win32" };
  const { status, stdout, stderr } = spawnSync(command, args, options);
  assert.equal(status, 0, `${command} ${args.join(" ")}: ${stdout}${stderr}`);
  return stdout;
}

// The snippets of the page in a language.
const snippets = (language) =>
  [...page.matchAll(/^```(.*)\n([^]*?)^```$/gm)]
    .filter((match) => match[1] === language)
    .map((match) => match[2]);

before(() => {
  [packed] = JSON.parse(run("npm", ["pack", "--json", "--pack-destination", folder], js));
  writeFileSync(path.join(folder, "package.json"), '{ "type": "module", "private": true }');
  run("npm", ["install", "--offline", "--no-audit", "--no-fund", `./${packed.filename}`]);
  copyFileSync(path.join(top, "examples/demo.a2l"), path.join(folder, "engine.a2l"));
  copyFileSync(path.join(js, "dist/a2l2json.wasm"), path.join(folder, "a2l2json.wasm"));
});
after(() => rmSync(folder, { recursive: true }));

test("the package has what it needs and nothing else", () => {
  assert.deepEqual(packed.files.map((file) => file.path).sort(), [
    "LICENSE",
    "README.md",
    "bin/a2l2json.js",
    "dist/a2l2json.wasm",
    "dist/json.schema.json",
    "package.json",
    "src/api.js",
    "src/document.d.ts",
    "src/index.d.ts",
    "src/module.js",
    "src/node.js",
    "src/text.js",
    "src/wasi.js",
    "src/web.js",
  ]);
  assert.deepEqual(
    readdirSync(path.join(folder, "node_modules")).filter((name) => !name.startsWith(".")),
    ["a2l2json"],
    "it needs no other package",
  );
});

test("no link of its page leads to what is not in it", () => {
  const readme = readFileSync(path.join(folder, "node_modules/a2l2json/README.md"), "utf8");
  assert.match(readme, /^# a2l2json in JavaScript$/m);
  assert.deepEqual(readme.match(/\]\((?!https?:|#)[^)]*\)/g), null);
});

test("npx runs the program", () => {
  const out = run("npx", ["--offline", "a2l2json", "engine.a2l", "engine.json"]);
  assert.equal(out, "Success.\n\n");
  assert.ok(
    readFileSync(path.join(folder, "engine.json")).equals(
      readFileSync(path.join(top, "examples/demo.json")),
    ),
  );
});

test("the lock file names no registry", () => {
  const lock = JSON.parse(readFileSync(path.join(js, "package-lock.json"), "utf8"));
  for (const [name, entry] of Object.entries(lock.packages)) {
    assert.equal(entry.resolved, undefined, name);
  }
});

test("what the page shows runs, and prints what it says", () => {
  const shown = snippets("js");
  assert.ok(shown.length >= 3);
  for (const [i, code] of shown.entries()) {
    const file = path.join(folder, `snippet${i}.js`);
    writeFileSync(file, code);
    const lines = run(process.execPath, [file]).split("\n");
    const said = [...code.matchAll(/console\.log\(.*\); \/\/ (.*)$/gm)].map((match) => match[1]);
    if (said.length === 0) assert.ok(lines.includes("EngineSpeed"), "the measurement of the demo");
    else assert.deepEqual(lines, [...said, ""]);
  }
});

test("what the page shows for browsers runs where there is a page", () => {
  const [code] = snippets("js browser");
  const document = `
    import { readFileSync } from "node:fs";
    const files = [new File([readFileSync("engine.a2l")], "engine.a2l")];
    globalThis.document = {
      querySelector: () => ({ addEventListener: (type, call) => call({ target: { files } }) }),
    };`;
  writeFileSync(path.join(folder, "document.js"), document);
  writeFileSync(path.join(folder, "browser.js"), code);
  const demo = JSON.parse(readFileSync(path.join(top, "examples/demo.json"), "utf8"));
  const name = demo.FModules[0].FNAME;
  assert.equal(run(process.execPath, ["--import", "./document.js", "browser.js"]), `[ '${name}' ]\n`);
});

test("what the page shows in TypeScript compiles with the package", () => {
  const [code] = snippets("ts");
  writeFileSync(path.join(folder, "snippet.ts"), `declare const text: string;\n${code}export { measurements };\n`);
  run(process.execPath, [
    path.join(js, "node_modules/typescript/bin/tsc"),
    ...["--strict", "--noEmit", "--target", "es2022", "--module", "nodenext"],
    ...["--lib", "es2023,dom", "snippet.ts"],
  ]);
});
