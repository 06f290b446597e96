// SPDX-License-Identifier: MIT
//
// usage: node scripts/types.js [--check]
//
// Makes src/document.d.ts, the types of the document, from docs/json.schema.json; with --check, only
// tells whether it is up to date.
import { readFileSync, writeFileSync } from "node:fs";
import process from "node:process";

import { compile } from "json-schema-to-typescript";

const target = new URL("../src/document.d.ts", import.meta.url);
const schema = JSON.parse(
  readFileSync(new URL("../../docs/json.schema.json", import.meta.url), "utf8"),
);
const types = await compile({ ...schema, title: "A2LDocument" }, "A2LDocument", {
  bannerComment:
    "// SPDX-License-Identifier: MIT\n//\n" +
    "// The document of an A2L file. Made from docs/json.schema.json by `npm run types`.",
  additionalProperties: false,
  style: { printWidth: 100 },
});
if (!process.argv.includes("--check")) {
  writeFileSync(target, types);
} else if (readFileSync(target, "utf8") !== types) {
  console.error("src/document.d.ts is not what comes of the schema; run: npm run types");
  process.exitCode = 1;
}
