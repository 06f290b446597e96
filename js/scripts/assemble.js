// SPDX-License-Identifier: MIT
//
// usage: node scripts/assemble.js
//
// Puts into this folder what the package has from elsewhere: the module as the CMake preset `wasm`
// has built it, the schema, the licence, and the page about the package.
import { copyFileSync, mkdirSync } from "node:fs";

const at = (path) => new URL(`../${path}`, import.meta.url);
mkdirSync(at("dist"), { recursive: true });
copyFileSync(at("../build/wasm/a2l2json.wasm"), at("dist/a2l2json.wasm"));
copyFileSync(at("../docs/json.schema.json"), at("dist/json.schema.json"));
copyFileSync(at("../LICENSE"), at("LICENSE"));
copyFileSync(at("../docs/javascript.md"), at("README.md"));
