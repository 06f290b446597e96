#!/usr/bin/env node
// SPDX-License-Identifier: MIT
//
// The program a2l2json in JavaScript: the same arguments, texts, exit codes and bytes.
import { closeSync, fstatSync, openSync, readFileSync, readSync, writeSync } from "node:fs";
import process from "node:process";

import { MOST_BYTES, OutOfMemory, Run } from "../src/module.js";

// What the process returns: -1, -2 and -3, as every system reports them.
const SUCCESS = 0;
const USAGE = 255;
const NOT_READ = 254;
const NOT_WRITTEN = 253;

/** Writes all the bytes; what the system does not take is lost, as with the program. */
function write(file, bytes) {
  for (let begin = 0; begin < bytes.length; ) {
    try {
      begin += writeSync(file, bytes, begin);
    } catch (error) {
      if (error.code !== "EAGAIN") return;
    }
  }
}

function say(...parts) {
  for (const part of parts) write(1, typeof part === "string" ? Buffer.from(part) : part);
}

/** Copies the file into the module. What the system does not give is an error. */
function fill(run, file) {
  const status = fstatSync(file);
  const { size } = status;
  if (!status.isFile() || size === 0) {
    // A pipe tells its size at its end, and so do the files that the system makes up, as in /proc.
    const bytes = readFileSync(file);
    run.allocate(bytes.length);
    return run.put(bytes, 0);
  }
  if (size > MOST_BYTES) throw new OutOfMemory(`it has more than ${MOST_BYTES} bytes`);
  run.allocate(size);
  for (let offset = 0; offset < size; ) {
    const count = readSync(file, run.room(offset), 0, Math.min(size - offset, 2 ** 30), null);
    if (count === 0) throw new Error("the file became shorter while it was read");
    offset += count;
  }
}

function complain(path, error) {
  write(2, Buffer.from(`${path} is too large for WebAssembly (${error.message}): ` +
    "the program a2l2json has no such limit.\n"));
}

/** The file of the document. It is opened when the document begins: by then all has been read. */
class Output {
  #path;
  #file = null;

  constructor(path) {
    this.#path = path;
  }
  take(piece) {
    try {
      this.#file ??= openSync(this.#path, "w", 0o666);
    } catch {
      return false;
    }
    write(this.#file, piece);
    return true;
  }
  close() {
    if (this.#file !== null) closeSync(this.#file);
  }
}

/** Reads the file and converts it; gives the run and what came of it. */
function run(path, output) {
  const wasm = readFileSync(new URL("../dist/a2l2json.wasm", import.meta.url));
  const run = Run.createSync(new WebAssembly.Module(wasm), (piece) => output.take(piece));
  let file = null;
  try {
    file = openSync(path, "r");
    fill(run, file);
    return { code: run.convert(), messages: run.messages };
  } catch (error) {
    if (error instanceof OutOfMemory || run.endedByLength(error)) complain(path, error);
    return { code: "not-read", messages: "" };
  } finally {
    if (file !== null) closeSync(file);
    output.close();
  }
}

function convert(a2lPath, jsonPath) {
  const { code, messages } = run(a2lPath, new Output(jsonPath));
  switch (code) {
    case "ok":
    case "not-a2l": // the program makes a document of anything
      say("Success.\n", messages, "\n");
      return SUCCESS;
    case "not-written":
      say("Failed: Can not write access json file ", jsonPath, "\n");
      return NOT_WRITTEN;
    default:
      say("Failed: ", messages, "\n");
      return NOT_READ;
  }
}

const paths = process.argv.slice(2);
if (paths.length === 2) {
  process.exitCode = convert(...paths);
} else {
  say("Failed: using a2l2json [in]a2l_file [out]json_file\n");
  process.exitCode = USAGE;
}
