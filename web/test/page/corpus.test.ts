// SPDX-License-Identifier: MIT
//
// Files as users have them, where they are at hand: every one is shown, or a sentence tells why not.
import { existsSync, readdirSync } from "node:fs";
import path from "node:path";
import { describe, expect, test } from "vitest";

import { corpus, executable, newPage, open, useBrowser } from "./browser.ts";

const files = existsSync(corpus)
  ? readdirSync(corpus).filter((name) => name.toLowerCase().endsWith(".a2l"))
  : [];
if (files.length === 0) console.log("skipped: there is no folder ../shared/corpus beside this one");

describe.skipIf(executable === undefined || files.length === 0)("the corpus", () => {
  useBrowser();

  test("is shown, and one object of every kind of every file", { timeout: 300e3 }, async () => {
    const page = await newPage();
    let shown = 0;
    for (const name of files) {
      await open(page, path.join(corpus, name));
      await page.locator("#title").waitFor();
      if ((await page.locator(".trouble").count()) > 0) {
        const sentence = await page.locator(".trouble").innerText();
        expect(sentence).toMatch(/^\S+\.a2l(, line \d+:| is not an A2L file\.) .+/i);
        continue;
      }
      const kinds = await page.locator(".kinds button").count();
      if (kinds > 0) ++shown;
      for (let kind = 0; kind < kinds; ++kind) {
        await page.getByRole("link", { name: "Overview" }).click();
        const button = page.locator(".kinds button").nth(kind);
        const word = await button.locator("span").innerText();
        await button.click();
        await page
          .locator(".objects .row .kind", { hasText: new RegExp(`^${word}$`) })
          .first()
          .click();
        await page.locator("article > p.kind", { hasText: new RegExp(`^${word}$`) }).waitFor();
        // What stands in the file itself is found there.
        const source = page.getByRole("region", { name: "Source" });
        await source
          .getByText(/^Line|could not be found/)
          .first()
          .waitFor();
      }
    }
    expect(shown).toBeGreaterThan(files.length / 2);
  });
});
