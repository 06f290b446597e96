// SPDX-License-Identifier: MIT
import { MOST_BYTES, OutOfMemory, Run } from "./module.js";
import { checkEncoding, decode, toUtf8 } from "./text.js";

// ------------------------------------------------------------------------------------------------
// The module

let source = null;
let compiled = null;

/** Says where the module comes from where nobody calls load(). */
export function setSource(get) {
  source = get;
}

export async function load(wasm) {
  if (wasm === undefined) return void (await module());
  const given = await compile(wasm);
  compiled = Promise.resolve(given);
}

async function compile(wasm) {
  const given = await wasm;
  if (given instanceof WebAssembly.Module) return given;
  if (typeof Response !== "undefined" && given instanceof Response) {
    if (!given.ok) throw new Error(`${given.url} cannot be loaded: ${given.status}`);
    return WebAssembly.compile(await given.arrayBuffer());
  }
  return WebAssembly.compile(given);
}

function module() {
  compiled ??= compile(source());
  // Whoever asks again after a failure gets another try.
  compiled.catch(() => (compiled = null));
  return compiled;
}

export async function version() {
  return (await Run.create(await module())).version;
}

// ------------------------------------------------------------------------------------------------
// What comes of a conversion

export class A2LError extends Error {
  constructor(message, details) {
    super(message, details.cause === undefined ? undefined : { cause: details.cause });
    this.name = "A2LError";
    this.code = details.code;
    this.diagnostics = details.diagnostics ?? [];
    this.findings = details.findings ?? [];
    this.mended = details.mended ?? null;
    this.document = details.document ?? null;
    const last = this.diagnostics.at(-1);
    this.line = last?.severity === "error" ? last.line : null;
  }
}

export class Conversion {
  #encoding;

  constructor({ document, diagnostics, findings, mended }, encoding) {
    this.document = document;
    this.diagnostics = diagnostics;
    this.findings = findings;
    this.mended = mended;
    this.#encoding = encoding;
  }

  text() {
    return decode(this.document, this.#encoding);
  }

  json() {
    return JSON.parse(this.text());
  }
}

// ------------------------------------------------------------------------------------------------
// Converting

const OPTIONS = ["mend", "encoding", "name"];

function checked(options, input) {
  for (const name of Object.keys(options)) {
    if (!OPTIONS.includes(name)) throw new TypeError(`convert() has no option ${name}`);
  }
  const { mend = true, encoding, name = "" } = options;
  // A string is in no encoding, whatever is named.
  if (encoding !== undefined) checkEncoding(encoding, { mend: mend || typeof input === "string" });
  return { mend: Boolean(mend), encoding, name: String(name) };
}

const isBlob = (input) => typeof Blob !== "undefined" && input instanceof Blob;

// The input's bytes without a copy, or its Blob; TypeError for what is neither bytes nor text.
function bytesOf(input) {
  if (typeof input === "string") return new TextEncoder().encode(input);
  if (ArrayBuffer.isView(input)) {
    return new Uint8Array(input.buffer, input.byteOffset, input.byteLength);
  }
  if (input instanceof ArrayBuffer) return new Uint8Array(input);
  if (typeof SharedArrayBuffer !== "undefined" && input instanceof SharedArrayBuffer) {
    return new Uint8Array(input).slice();
  }
  if (isBlob(input)) return input;
  throw new TypeError(
    "convert() takes A2L text as a string, or as bytes: a Uint8Array, an ArrayBuffer or a Blob",
  );
}

// In hundredths of a GB, rounded apart: a size that is too large is larger than the limit as shown.
function tooLarge(size, name) {
  const has = (Math.ceil(size / 1e7) / 100).toFixed(2);
  const most = (Math.floor(MOST_BYTES / 1e7) / 100).toFixed(2);
  return new A2LError(
    `${name || "The input"} has ${has} GB, and at most ${most} GB can be ` +
      "converted here: the program a2l2json has no such limit.",
    { code: "too-large" },
  );
}

// A Blob may be a file that is gone by now, or a folder that was dropped on a page.
async function read(reading, name) {
  try {
    return await reading;
  } catch (cause) {
    const sentence = "cannot be read: it may be a folder, or no longer there.";
    throw new A2LError(`${name || "The input"} ${sentence}`, { code: "not-read", cause });
  }
}

async function* piecesOf(input, name) {
  if (!isBlob(input)) return yield input;
  const reader = input.stream().getReader();
  const next = () => read(reader.read(), name);
  for (let piece = await next(); !piece.done; piece = await next()) yield piece.value;
}

// A string of JavaScript cannot hold all the text of a large file.
const SLICE = 2 ** 23;

function* slicesOf(bytes) {
  for (let at = 0; at < bytes.length; at += SLICE) yield bytes.subarray(at, at + SLICE);
}

// Copies the input into the module, transcoded where it has to be.
async function fill(run, input, encoding, name) {
  const size = isBlob(input) ? input.size : input.length;
  if (size > MOST_BYTES) throw tooLarge(size, name);
  if (encoding === undefined) {
    run.allocate(size);
    let offset = 0;
    for await (const piece of piecesOf(input, name)) {
      run.put(piece, offset);
      offset += piece.length;
    }
    return;
  }
  const bytes = isBlob(input) ? new Uint8Array(await read(input.arrayBuffer(), name)) : input;
  const pieces = [...toUtf8(slicesOf(bytes), encoding)];
  const total = pieces.reduce((sum, piece) => sum + piece.length, 0);
  if (total > MOST_BYTES) throw tooLarge(total, name);
  run.allocate(total);
  let offset = 0;
  for (const piece of pieces) {
    run.put(piece, offset);
    offset += piece.length;
  }
}

function joined(pieces) {
  const bytes = new Uint8Array(pieces.reduce((sum, piece) => sum + piece.length, 0));
  let offset = 0;
  for (const piece of pieces) {
    bytes.set(piece, offset);
    offset += piece.length;
  }
  return bytes;
}

// What a failure in the module is called outside.
function asA2LError(error, run) {
  if (error instanceof A2LError) return error;
  if (error instanceof OutOfMemory || error instanceof RangeError || run.endedByLength(error)) {
    return new A2LError("Memory ran out: the program a2l2json needs less.", {
      code: "no-memory",
      cause: error,
    });
  }
  return new A2LError("The library has a fault.", { code: "internal-error", cause: error });
}

export async function convert(input, options = {}) {
  const bytes = bytesOf(input);
  const { mend, encoding, name } = checked(options, input);
  const pieces = [];
  const run = await Run.create(await module(), (piece) => pieces.push(piece.slice()));
  try {
    // A string is in no encoding; and without mending the document has the bytes of the input.
    const from = typeof input === "string" || !mend ? undefined : encoding;
    await fill(run, bytes, from, name);
    const code = run.convert({ name, mend });
    const toText = typeof input === "string" || mend ? undefined : encoding;
    const asText = (text) => decode(text, toText);
    const details = {
      code,
      document: pieces.length > 0 ? joined(pieces) : null,
      diagnostics: run.diagnostics(asText),
      findings: run.findings(asText),
      mended: run.mended,
    };
    if (code !== "ok") throw new A2LError(asText(run.error), details);
    return new Conversion(details, toText);
  } catch (error) {
    throw asA2LError(error, run);
  }
}
