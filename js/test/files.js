// SPDX-License-Identifier: MIT
//
// Files of the repository, for tests.
import { mkdtempSync, readdirSync, readFileSync, rmSync } from "node:fs";
import { tmpdir } from "node:os";
import path from "node:path";
import { fileURLToPath } from "node:url";

export const top = fileURLToPath(new URL("../../", import.meta.url));

const cases = path.join(top, "tests/cases");

/** The golden cases: input, console text and, unless they fail, the document. */
export function goldenCases() {
  return readdirSync(cases, { recursive: true })
    .filter((name) => name.endsWith(".a2l"))
    .map((name) => {
      const base = path.join(cases, name.slice(0, -".a2l".length));
      const kind = path.basename(base).split("_")[0];
      return {
        name,
        path: `${base}.a2l`,
        kind,
        console: kind === "ok" ? Buffer.from("Success.\n\n") : readFileSync(`${base}.out`),
        // The files have a line feed before every key, and the document has none.
        document: kind === "fail" ? null : withoutLineFeeds(readFileSync(`${base}.json`)),
      };
    });
}

function withoutLineFeeds(bytes) {
  return Buffer.from(bytes.filter((byte) => byte !== 10));
}

/** A folder for one test, which is removed after it. */
export function temporaryFolder(test) {
  const folder = mkdtempSync(path.join(tmpdir(), "a2l2json-"));
  test.after(() => rmSync(folder, { recursive: true }));
  return folder;
}
