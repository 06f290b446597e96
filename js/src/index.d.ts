// SPDX-License-Identifier: MIT
import type { A2LDocument } from "./document.js";

export type * from "./document.js";

// What is asked of the objects of browsers and of Node: projects know one, the other, or both.

/** A Blob or a File. */
export interface Bytes {
  readonly size: number;
  readonly type: string;
  arrayBuffer(): Promise<ArrayBuffer>;
  slice(begin?: number, end?: number): Bytes;
}

/** What fetch() gives. */
export interface Answer {
  readonly ok: boolean;
  readonly status: number;
  readonly url: string;
  arrayBuffer(): Promise<ArrayBuffer>;
}

/** The module as bytes, as what fetch() gives, or compiled, a WebAssembly.Module. */
export type Module = ArrayBuffer | ArrayBufferView | Answer | object;

/** A2L text: a string, or the bytes of a file. */
export type Input = string | ArrayBuffer | ArrayBufferView | Bytes;

export interface Options {
  /**
   * Whether the text is mended first: read as the ASAP2 standard means it, whatever its layout, and
   * laid out so that nothing of it is lost. On unless it is false; the document then is, to the
   * byte, that of the program a2l2json.
   */
  mend?: boolean;
  /**
   * The encoding of the texts, by a name that TextDecoder knows. Without it, bytes that are valid
   * UTF-8 are taken as that and all others as windows-1252. Where `mend` is false, UTF-16,
   * Shift-JIS, GBK, GB 18030, Big5 and ISO-2022-JP are refused.
   */
  encoding?: string;
  /** What to call the input in errors and findings, as in "engine.a2l". */
  name?: string;
}

/** A warning or an error. */
export interface Diagnostic {
  /** Number of the physical line of the input, the first being 1; where the text is mended, too. */
  readonly line: number;
  readonly severity: "warning" | "error";
  /** As in "unexpected-element". */
  readonly kind: string;
  /** As in "unexpected element COLOUR". */
  readonly text: string;
  /** The file that it is in, as the option `name` calls it. */
  readonly file: string;
}

/** What the layout of the text would cost, or what is lost whatever the layout. */
export interface Finding {
  /** As in "same-line". */
  readonly rule: string;
  /** As in a diagnostic. */
  readonly file: string;
  readonly line: number;
  /** In bytes, the first being 1. */
  readonly column: number;
  readonly text: string;
  /** False where it is lost. */
  readonly mended: boolean;
}

/** What came of a conversion. */
export interface Conversion {
  /** The JSON document, one line. Where nothing is mended, its bytes are those of the program. */
  readonly document: Uint8Array;
  /** The document as a string. */
  text(): string;
  /** The document as an object, made anew by every call. */
  json(): A2LDocument;
  readonly diagnostics: readonly Diagnostic[];
  readonly findings: readonly Finding[];
  /** The mended text; null if `mend` is false. */
  readonly mended: Uint8Array | null;
}

export type ErrorCode =
  | "not-a2l" /** nothing of A2L is in the input, as in a compressed or an empty file */
  | "not-converted" /** the text holds an error, in `line` */
  | "not-read" /** the Blob is a folder, or a file that is no longer there */
  | "too-large"
  | "no-memory"
  | "internal-error";

/** The input cannot be converted; `message` is a sentence that tells why. */
export class A2LError extends Error {
  readonly name: "A2LError";
  readonly code: ErrorCode;
  /** The line of the error, where there is one. */
  readonly line: number | null;
  readonly diagnostics: readonly Diagnostic[];
  readonly findings: readonly Finding[];
  readonly mended: Uint8Array | null;
  /** What the program would write all the same: that of an empty project, for "not-a2l". */
  readonly document: Uint8Array | null;
}

/**
 * Converts A2L text. Rejects with an A2LError where that cannot be done, with a TypeError where
 * `input` or an option is none, and with a RangeError for an encoding that is unknown, or cannot be
 * read without mending.
 */
export function convert(input: Input, options?: Options): Promise<Conversion>;

/**
 * Makes the module ready before it is needed, or takes it from somewhere else than beside this
 * package: from its bytes, from a response of fetch(), or compiled.
 */
export function load(wasm?: Module | Promise<Module>): Promise<void>;

/** The version of the library, as in "1.0.0". */
export function version(): Promise<string>;
