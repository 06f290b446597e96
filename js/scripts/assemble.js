// SPDX-License-Identifier: MIT
//
// usage: node scripts/assemble.js
//
// Puts into this folder what the package has from elsewhere: the module as the CMake preset `wasm`
// has built it, the schema, the licence, and the page about the package.
import { copyFileSync, mkdirSync, readFileSync, writeFileSync } from "node:fs";

const at = (path) => new URL(`../${path}`, import.meta.url);
mkdirSync(at("dist"), { recursive: true });
copyFileSync(at("../build/wasm/a2l2json.wasm"), at("dist/a2l2json.wasm"));
copyFileSync(at("../docs/json.schema.json"), at("dist/json.schema.json"));
copyFileSync(at("../LICENSE"), at("LICENSE"));
// The other pages do not come along: what leads to them is plain text.
const page = readFileSync(at("../docs/javascript.md"), "utf8");
writeFileSync(at("README.md"), page.replace(/\[([^\]]+)\]\((?!https?:|#)[^)]+\)/g, "$1"));
