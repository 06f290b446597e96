// SPDX-License-Identifier: MIT
//
// Never run: what compiles here, and what must not.
import { A2LError, convert, load, version } from "a2l2json";
import type { A2LDocument, Conversion, Diagnostic, MEASUREMENT } from "a2l2json";

export async function names(bytes: Uint8Array): Promise<string[]> {
  const result: Conversion = await convert(bytes, { mend: false, encoding: "utf-8", name: "x" });
  const document: A2LDocument = result.json();
  const measurements: MEASUREMENT[] = document.FModules.flatMap((module) => module.FMEASUREMENT);
  // @ts-expect-error: there is no such key
  document.FMeasurements;
  // @ts-expect-error: nobody may change it
  result.diagnostics[0].line = 1;
  const files: string[] = [...result.diagnostics, ...result.findings].map(({ file }) => file);
  return [...files, ...measurements.map((measurement) => measurement.FNAME)];
}

export async function failures(text: string, blob: Blob): Promise<readonly Diagnostic[]> {
  await load(fetch("a2l2json.wasm"));
  await load(WebAssembly.compileStreaming(fetch("a2l2json.wasm")));
  await load(new WebAssembly.Module(new Uint8Array()));
  // @ts-expect-error: a path is no module
  load("a2l2json.wasm");
  // @ts-expect-error: a number is no input
  convert(5);
  // @ts-expect-error: there is no such option
  convert(text, { mended: true });
  try {
    await convert(blob);
  } catch (error) {
    if (error instanceof A2LError && error.code === "not-converted") return error.diagnostics;
  }
  const text2: string = await version();
  return text2 === "" ? [] : (await convert(text)).diagnostics;
}
