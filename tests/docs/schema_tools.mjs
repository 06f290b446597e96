// SPDX-License-Identifier: MIT
//
// Run by schema_tools.sh: <schema> <file for the types> <folders with documents>...
import { readFileSync, readdirSync, writeFileSync } from "node:fs";
import { join } from "node:path";

import { Ajv2020 } from "ajv/dist/2020.js";
import { compile } from "json-schema-to-typescript";

const [schemaPath, typesPath, ...folders] = process.argv.slice(2);
const readSchema = () => JSON.parse(readFileSync(schemaPath, "utf8"));

// A document may hold any byte, because the bytes of texts pass through the converter.
const readDocument = (path) => JSON.parse(readFileSync(path, "latin1"));

const validate = new Ajv2020({ strict: true, allErrors: true }).compile(readSchema());
let documents = 0;
let deviations = 0;
for (const folder of folders) {
  for (const name of readdirSync(folder, { recursive: true })) {
    if (!name.endsWith(".json")) continue;
    ++documents;
    if (validate(readDocument(join(folder, name)))) continue;
    ++deviations;
    const [error] = validate.errors;
    console.log(`${join(folder, name)}: ${error.instancePath || "the document"} ${error.message}`);
  }
}
console.log(`ajv: ${documents} documents, ${deviations} deviations from the schema`);
if (validate({})) {
  console.log("ajv: an empty object is no document, but conforms");
  ++deviations;
}

const types = await compile(readSchema(), "Document");
writeFileSync(typesPath, types);
console.log(`json-schema-to-typescript: ${types.match(/^export interface/gm).length} interfaces`);
process.exitCode = documents > 0 && deviations === 0 ? 0 : 1;
