// SPDX-License-Identifier: MIT
//
// Never run: what compiles in a project for Node, which knows nothing of pages.
import { Blob } from "node:buffer";
import { openAsBlob } from "node:fs";
import { readFile } from "node:fs/promises";
import { convert, load, type Conversion } from "a2l2json";

export async function conversions(path: string): Promise<Conversion[]> {
  await load(readFile("a2l2json.wasm"));
  await load(await readFile("a2l2json.wasm"));
  await load(fetch("a2l2json.wasm"));
  // @ts-expect-error: a path is no module
  load("a2l2json.wasm");
  const bytes = await readFile(path);
  // @ts-expect-error: a promise is no input
  convert(readFile(path));
  // @ts-expect-error: an answer is none
  convert(await fetch(path));
  const inputs = [bytes, new Uint8Array(bytes).buffer, new Blob([bytes]), await openAsBlob(path)];
  return Promise.all(inputs.map((input) => convert(input)));
}
