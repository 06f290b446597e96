// SPDX-License-Identifier: MIT
//
// The package in Node: the module is a file beside this one.
import { readFile } from "node:fs/promises";

import { setSource } from "./api.js";

setSource(() => readFile(new URL("../dist/a2l2json.wasm", import.meta.url)));

export { A2LError, Conversion, convert, load, version } from "./api.js";
