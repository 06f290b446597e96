// SPDX-License-Identifier: MIT
//
// The package in browsers and workers: the module is fetched from beside this file.
import { setSource } from "./api.js";

setSource(() => fetch(new URL("../dist/a2l2json.wasm", import.meta.url)));

export { A2LError, Conversion, convert, load, version } from "./api.js";
