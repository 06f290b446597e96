// SPDX-License-Identifier: MIT
import assert from "node:assert/strict";
import { openAsBlob, readFileSync, rmSync, writeFileSync } from "node:fs";
import path from "node:path";
import { test } from "node:test";
import { Worker } from "node:worker_threads";
import { gzipSync } from "node:zlib";

import { A2LError, convert, load, version } from "a2l2json";

import { temporaryFolder, top } from "./files.js";

const demo = readFileSync(path.join(top, "examples/demo.a2l"));
const demoDocument = readFileSync(path.join(top, "examples/demo.json"));

// A project whose description is `text`, as bytes of latin1.
const project = (text) =>
  Buffer.from(`/begin PROJECT P "${text}"\n/begin MODULE M ""\n/end MODULE\n/end PROJECT\n`, "latin1");

async function failure(input, options) {
  const error = await convert(input, options).then(() => null, (e) => e);
  assert.ok(error instanceof A2LError, String(error));
  assert.ok(error instanceof Error);
  assert.equal(error.name, "A2LError");
  return error;
}

test("a document comes as bytes, as text and as an object", async () => {
  const result = await convert(demo, { mend: false });
  assert.ok(result.document instanceof Uint8Array);
  assert.ok(demoDocument.equals(result.document));
  assert.equal(result.text(), demoDocument.toString());
  assert.deepEqual(result.json(), JSON.parse(demoDocument.toString()));
  assert.deepEqual(result.diagnostics, []);
  assert.deepEqual(result.findings, []);
  assert.equal(result.mended, null);
});

test("bytes and texts of every kind are taken", async () => {
  const buffer = new ArrayBuffer(demo.length + 10);
  new Uint8Array(buffer).set(demo, 10);
  const inputs = [
    demo.toString(),
    new Uint8Array(demo),
    buffer.slice(10),
    new Uint8Array(buffer, 10),
    new DataView(buffer, 10),
    new Blob([demo.subarray(0, 100), demo.subarray(100)]),
  ];
  for (const [i, input] of inputs.entries()) {
    assert.ok(demoDocument.equals((await convert(input, { mend: false })).document), String(i));
  }
});

test("many conversions go side by side", async () => {
  const texts = Array.from({ length: 20 }, (_, i) => `description ${i}`);
  const results = await Promise.all(texts.map((text) => convert(project(text))));
  assert.deepEqual(
    results.map((result) => result.json().FProject_LONG_IDENTIFIER),
    texts,
  );
});

test("warnings are data", async () => {
  const { diagnostics } = await convert(`COLOUR red\n${project("")}`, { mend: false });
  assert.deepEqual(diagnostics, [
    {
      line: 1,
      severity: "warning",
      kind: "unexpected-element",
      text: "unexpected element COLOUR",
      file: "",
    },
  ]);
});

test("diagnostics and findings name the file that they are in", async () => {
  const text = `COLOUR red\n${project("").toString().replace(/\n/g, " ")}`;
  for (const mend of [false, true]) {
    const { diagnostics, findings } = await convert(text, { mend, name: "engine ü.a2l" });
    assert.ok(diagnostics.length > 0);
    assert.equal(findings.length > 0, mend);
    for (const { file } of [...diagnostics, ...findings]) assert.equal(file, "engine ü.a2l");
  }
});

test("an error tells where it is, and what came before", async () => {
  const error = await failure('/begin PROJECT P ""\nWORD\n/end MODULE\n', {
    mend: false,
    name: "engine.a2l",
  });
  assert.equal(error.code, "not-converted");
  assert.equal(error.message, "engine.a2l, line 3: /end don't equal /begin PROJECT");
  assert.equal(error.line, 3);
  assert.equal(error.diagnostics.length, 2);
  assert.equal(error.diagnostics[0].severity, "warning");
  assert.equal(error.diagnostics[1].kind, "end-does-not-match");
  assert.equal(error.document, null);
});

test("what is not an A2L file gets a sentence", async () => {
  const sentences = [
    ["", "The text is not an A2L file. It is empty."],
    [gzipSync(demo), "The text is not an A2L file. It is packed with gzip: unpack it first."],
    ["Dear Sir or Madam", "The text is not an A2L file. Nothing in it could be read."],
  ];
  for (const [input, sentence] of sentences) {
    const error = await failure(input, { mend: false });
    assert.equal(error.code, "not-a2l");
    assert.equal(error.message, sentence);
    assert.equal(error.line, null);
  }
});

test("a file that is gone by now gets a sentence", async (t) => {
  const file = path.join(temporaryFolder(t), "in.a2l");
  writeFileSync(file, demo);
  const blob = await openAsBlob(file);
  rmSync(file);
  for (const options of [{ name: "in.a2l" }, { name: "in.a2l", encoding: "windows-1252" }]) {
    const error = await failure(blob, options);
    assert.equal(error.code, "not-read");
    assert.equal(error.message, "in.a2l cannot be read: it may be a folder, or no longer there.");
  }
  assert.match((await failure(blob)).message, /^The input cannot be read: /);
});

test("an input that is too large gets a sentence before it is read", async () => {
  for (const [name, called, size, gigabytes] of [
    ["", "The input", 2.5e9, "2.50"],
    ["engine.a2l", "engine.a2l", 2 ** 31, "2.15"], // one byte too many is more than the limit
  ]) {
    const large = new Blob([]);
    Object.defineProperty(large, "size", { value: size });
    const error = await failure(large, { name });
    assert.equal(error.code, "too-large");
    assert.equal(
      error.message,
      `${called} has ${gigabytes} GB, and at most 2.14 GB can be converted here: ` +
        "the program a2l2json has no such limit.",
    );
  }
});

test("memory that runs out gets a sentence, and the next conversion works", async () => {
  // One text of 1.1 GB, which has to be in memory several times.
  const piece = Buffer.alloc(100e6, 120);
  const large = new Blob(['/begin PROJECT P "', ...Array(11).fill(piece), '"\n/end PROJECT\n']);
  const error = await failure(large, { mend: false });
  assert.equal(error.code, "no-memory");
  assert.equal(error.message, "Memory ran out: the program a2l2json needs less.");
  assert.ok(demoDocument.equals((await convert(demo, { mend: false })).document));
});

test("texts are UTF-8 where they can be, and windows-1252 elsewhere", async () => {
  const mixed = project("\xC3\xA4 and \xE4, \x80 5, \xE2\x82\xAC"); // ä, ä, €, €
  const result = await convert(mixed, { mend: false });
  assert.equal(result.json().FProject_LONG_IDENTIFIER, "ä and ä, € 5, €");
  assert.ok(Buffer.from(result.document).includes(Buffer.from("\xC3\xA4 and \xE4", "latin1")));
  const warning = await convert(Buffer.concat([Buffer.from([0xe4, 10]), mixed]), { mend: false });
  assert.equal(warning.diagnostics[0].text, "unexpected element ä");
});

test("texts are in the encoding that is named", async () => {
  const result = await convert(project("\xCF\xCE"), { mend: false, encoding: "koi8-r" });
  assert.equal(result.json().FProject_LONG_IDENTIFIER, "он");
  assert.ok(Buffer.from(result.document).includes(Buffer.from([0xcf, 0xce])), "the bytes stay");
});

// A text, an encoding, and the text's bytes in it, in hexadecimal digits.
const ENCODED = [
  ["für 5 €", "windows-1252", "66fc72203520 80"],
  ["Обороты", "windows-1251", "cee1eef0eef2fb"],
  ["表示能力", "shift_jis", "955c 8ea6 945c 97cd"], // two of them end in the byte of a backslash
  ["발동기", "euc-kr", "b9df b5bf b1e2"],
  ["Drehzahl 車 🚗", "utf-16le", "4400720065006800 7a00610068006c00 2000ca8e 20003dd897de"],
];

// A project whose description has those bytes, after a word that gives a warning.
function encodedProject(encoding, hex) {
  const text = Buffer.from(hex.replaceAll(" ", ""), "hex");
  const plain = (ascii) => Buffer.from(ascii, encoding === "utf-16le" ? "utf16le" : "latin1");
  const [begin, end] = project("\0").toString("latin1").split("\0");
  return Buffer.concat([text, plain(`\n${begin}`), text, plain(end)]);
}

test("with mending, the input is in the encoding that is named, and the document in UTF-8", async () => {
  for (const [text, encoding, hex] of ENCODED) {
    const bytes = encodedProject(encoding, hex);
    for (const input of [bytes, new Uint8Array(bytes).buffer, new Blob([bytes])]) {
      const result = await convert(input, { encoding });
      assert.equal(result.json().FProject_LONG_IDENTIFIER, text, encoding);
      assert.ok(Buffer.from(result.document).includes(Buffer.from(text)), encoding);
      assert.ok(Buffer.from(result.mended).includes(Buffer.from(text)), encoding);
      const [word] = text.split(" ");
      assert.equal(result.diagnostics[0].text, `unexpected element ${word}`, encoding);
    }
  }
});

test("what came before an error is in the encoding that is named", async () => {
  const bytes = Buffer.from('\xCF\xCE\n/begin PROJECT P ""\n/begin X\n/end MODULE\n', "latin1");
  for (const mend of [true, false]) {
    const error = await failure(bytes, { mend, encoding: "koi8-r" });
    assert.equal(error.code, "not-converted");
    assert.equal(error.diagnostics[0].text, "unexpected element он");
  }
});

test("a text of many pieces is in the encoding that is named", async () => {
  const bytes = Buffer.concat([
    Buffer.from('/begin PROJECT P "x'), // an odd number, so that edges part characters
    Buffer.alloc(12e6, "8ed4", "hex"),
    Buffer.from('"\n/end PROJECT\n'),
  ]);
  const result = await convert(bytes, { encoding: "shift_jis" });
  assert.ok(result.json().FProject_LONG_IDENTIFIER === `x${"車".repeat(6e6)}`);
});

test("without mending, an encoding is one that hides no marks of A2L", async () => {
  for (const [text, encoding, hex] of ENCODED) {
    const bytes = encodedProject(encoding, hex);
    const converting = convert(bytes, { mend: false, encoding });
    if (encoding === "shift_jis" || encoding === "utf-16le") {
      await assert.rejects(converting, {
        name: "RangeError",
        message:
          `Texts in ${encoding} can only be read with mending, because a backslash or a quotation ` +
          "mark may be a part of another character there: leave out mend: false.",
      });
    } else {
      const result = await converting;
      assert.equal(result.json().FProject_LONG_IDENTIFIER, text);
      assert.match(result.diagnostics[0].text, /^unexpected element [^ ]+$/);
      assert.ok(result.diagnostics[0].text.endsWith(text.split(" ")[0]));
    }
  }
  // A string is in no encoding.
  const result = await convert(project("x").toString(), { mend: false, encoding: "utf-16le" });
  assert.equal(result.json().FProject_LONG_IDENTIFIER, "x");
});

test("what is no input or no option is refused", async () => {
  await assert.rejects(convert(5), TypeError);
  await assert.rejects(convert(undefined), TypeError);
  await assert.rejects(convert({ path: "engine.a2l" }), TypeError);
  await assert.rejects(convert(demo, { mended: false }), {
    name: "TypeError",
    message: "convert() has no option mended",
  });
  await assert.rejects(convert(demo, { encoding: "klingon" }), RangeError);
});

test("the version is that of the library and of the package", async () => {
  const manifest = JSON.parse(readFileSync(path.join(top, "js/package.json"), "utf8"));
  const project = readFileSync(path.join(top, "CMakeLists.txt"), "utf8");
  assert.equal(await version(), manifest.version);
  assert.match(project, new RegExp(`VERSION ${manifest.version.replaceAll(".", "\\.")}\n`));
});

test("the module can come from elsewhere", async () => {
  const wasm = readFileSync(path.join(top, "js/dist/a2l2json.wasm"));
  const sources = [
    wasm,
    Promise.resolve(wasm),
    WebAssembly.compile(wasm),
    new WebAssembly.Module(wasm),
    new Response(wasm, { headers: { "Content-Type": "application/wasm" } }),
  ];
  for (const source of sources) {
    await load(source);
    assert.ok(demoDocument.equals((await convert(demo, { mend: false })).document));
  }
  await assert.rejects(load(new Response("", { status: 404 })), /cannot be loaded: 404/);
  assert.ok(demoDocument.equals((await convert(demo, { mend: false })).document), "another try");
  await load();
});

test("it works in a worker", async () => {
  const code = `
    import { parentPort, workerData } from "node:worker_threads";
    import { convert } from ${JSON.stringify(new URL("../src/node.js", import.meta.url).href)};
    const { document } = await convert(workerData, { mend: false });
    parentPort.postMessage(document, [document.buffer]);`;
  const worker = new Worker(new URL(`data:text/javascript,${encodeURIComponent(code)}`), {
    workerData: new Uint8Array(demo),
  });
  const document = await new Promise((resolve, reject) => {
    worker.once("message", resolve);
    worker.once("error", reject);
  });
  assert.ok(demoDocument.equals(document));
});
