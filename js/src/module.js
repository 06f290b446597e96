// SPDX-License-Identifier: MIT
//
// One conversion in the WebAssembly module. Each has an instance of its own, so that its memory goes
// when it is done, and nothing is left of one that failed.
import { systemCalls } from "./wasi.js";

/** What an instance can take: its addresses have 32 bits, and the tree needs room beside the text. */
export const MOST_BYTES = 2 ** 31 - 1;

// What a conversion gives, in the order of the C interface.
const CODES = [
  "ok",
  "not-a2l",
  "not-converted",
  "not-read",
  "not-written",
  "no-memory",
  "bad-argument",
  "not-available",
  "internal-error",
];

/** Memory ran out in the module. */
export class OutOfMemory extends Error {}

// The members of the structures of the C interface, as they lie in the module's memory.
const DIAGNOSTIC = { line: 0, severity: 4, kind: 12, text: 16, size: 20, file: 24 };
const FINDING = { rule: 0, file: 4, line: 8, column: 12, text: 16, size: 20, mended: 24 };

export class Run {
  #exports;
  #result = 0;
  #text = 0;
  #size = 0;

  /** The imports of the instance; `write` takes a piece of the document, and gives true to go on. */
  static #imports(run, write) {
    const memory = () => run.#exports.memory;
    return {
      a2l2json: {
        write: (bytes, size) => (write(run.#bytes(bytes, size)) ? 0 : 1),
        outOfMemory: () => {
          throw new OutOfMemory("memory ran out");
        },
      },
      wasi_snapshot_preview1: systemCalls(memory, () => {}),
    };
  }

  static #begin(run, instance) {
    run.#exports = instance.exports;
    run.#exports._initialize();
    return run;
  }

  static async create(module, write = () => true) {
    const run = new Run();
    return Run.#begin(run, await WebAssembly.instantiate(module, Run.#imports(run, write)));
  }

  static createSync(module, write = () => true) {
    const run = new Run();
    return Run.#begin(run, new WebAssembly.Instance(module, Run.#imports(run, write)));
  }

  get version() {
    return this.#string(this.#exports.a2l2json_version());
  }

  /**
   * Whether `error` ended the module because something would have been longer than its addresses
   * reach: the C++ library then ends without a word, and only a large memory tells.
   */
  endedByLength(error) {
    return error instanceof WebAssembly.RuntimeError && this.#exports.memory.buffer.byteLength > 2 ** 30;
  }

  /** Makes room for `size` bytes of text, to be filled by put(). */
  allocate(size) {
    this.#text = this.#allocate(Math.max(size, 1));
    this.#size = size;
  }

  /** Copies bytes to a place of the text. */
  put(bytes, offset) {
    this.#bytes(this.#text, this.#size).set(bytes, offset);
  }

  /** A place of the text, to be filled before anything else is called. */
  room(offset) {
    return this.#bytes(this.#text, this.#size).subarray(offset);
  }

  /** Converts the text; gives the code, "ok" where all is well. */
  convert({ name = "", mend = false } = {}) {
    const bytes = new TextEncoder().encode(`${name}\0`);
    const at = name === "" ? 0 : this.#allocate(bytes.length);
    if (at !== 0) this.#bytes(at, bytes.length).set(bytes);
    this.#result = this.#exports.convert(this.#text, this.#size, at, mend ? 1 : 0);
    return CODES[this.#exports.a2l2json_result_code(this.#result)];
  }

  /** Copies of the bytes of the messages and of the error, and of the mended text or null. */
  get messages() {
    return this.#sized(this.#exports.a2l2json_messages);
  }
  get mended() {
    return this.#sized(this.#exports.a2l2json_mended);
  }
  get error() {
    return this.#zeroEnded(this.#exports.a2l2json_error(this.#result)).slice();
  }

  /** Diagnostics and findings, with texts by `decode`. */
  diagnostics(decode) {
    const { a2l2json_diagnostic_count: count, a2l2json_diagnostic_at: at } = this.#exports;
    return this.#items(count, at, DIAGNOSTIC, ({ number, string, text }) => ({
      line: number("line"),
      severity: number("severity") === 0 ? "warning" : "error",
      kind: string("kind"),
      text: decode(text()),
      file: string("file"),
    }));
  }
  findings(decode) {
    const { a2l2json_finding_count: count, a2l2json_finding_at: at } = this.#exports;
    return this.#items(count, at, FINDING, ({ number, string, text }) => ({
      rule: string("rule"),
      file: string("file"),
      line: number("line"),
      column: number("column"),
      text: decode(text()),
      mended: number("mended") !== 0,
    }));
  }

  #items(count, at, places, item) {
    return Array.from({ length: count(this.#result) }, (_, i) => {
      const begin = at(this.#result, i);
      const number = (member) => this.#number(begin + places[member]);
      const string = (member) => this.#string(number(member));
      return item({ number, string, text: () => this.#bytes(number("text"), number("size")) });
    });
  }

  #allocate(size) {
    const at = this.#exports.allocate(size);
    if (at === 0) throw new OutOfMemory("memory ran out");
    return at >>> 0;
  }
  #bytes(begin, size) {
    return new Uint8Array(this.#exports.memory.buffer, begin >>> 0, size >>> 0);
  }
  #number(place) {
    return new DataView(this.#exports.memory.buffer).getUint32(place >>> 0, true);
  }
  #sized(get) {
    const size = this.#allocate(4);
    const begin = get(this.#result, size);
    return begin === 0 ? null : this.#bytes(begin, this.#number(size)).slice();
  }
  #zeroEnded(begin) {
    const memory = new Uint8Array(this.#exports.memory.buffer);
    return memory.subarray(begin >>> 0, memory.indexOf(0, begin >>> 0));
  }
  #string(begin) {
    return new TextDecoder().decode(this.#zeroEnded(begin));
  }
}
