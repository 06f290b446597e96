// SPDX-License-Identifier: MIT
//
// A file of 100 MB in the page, with figures of time and memory. The file comes from the generator
// of the benchmarks, and what the page saves is compared with what the program writes.
import { execFileSync } from "node:child_process";
import { existsSync, readdirSync, readFileSync, statSync } from "node:fs";
import path from "node:path";
import type { Page } from "playwright-core";
import { describe, expect, test } from "vitest";

import { built, executable, file, newPage, open, saved, top, useBrowser } from "../page/browser.ts";

const bench = process.env.A2L2JSON_BENCH ?? path.join(top, "build/bench");
const generate = path.join(bench, "a2l2json_generate");
const program = path.join(bench, "a2l2json");
const isThere = existsSync(generate) && existsSync(program);
if (!isThere) console.log("skipped: the benchmarks are not built (cmake --preset bench)");

// Megabytes that the process of a page has held at most; that with most of them counts.
function peak(): number {
  let most = 0;
  for (const name of readdirSync("/proc")) {
    if (!/^\d+$/.test(name)) continue;
    try {
      const line = readFileSync(`/proc/${name}/cmdline`, "utf8");
      if (!line.includes("--type=renderer")) continue;
      most = Math.max(
        most,
        Number(/VmHWM:\s*(\d+)/.exec(readFileSync(`/proc/${name}/status`, "utf8"))![1]),
      );
    } catch {
      // It has ended meanwhile.
    }
  }
  return Math.round(most / 1000);
}

/** Types the letters, and gives the longest time between two frames, in milliseconds. */
async function type(page: Page, text: string): Promise<number> {
  await page.evaluate(() => {
    const watch = { longest: 0, last: performance.now() };
    Object.assign(globalThis, { watch });
    const frame = (now: number): void => {
      watch.longest = Math.max(watch.longest, now - watch.last);
      watch.last = now;
      requestAnimationFrame(frame);
    };
    requestAnimationFrame(frame);
  });
  await page.getByLabel("Search names").pressSequentially(text, { delay: 60 });
  return page.evaluate(
    () => (globalThis as unknown as { watch: { longest: number } }).watch.longest,
  );
}

describe.skipIf(executable === undefined || !isThere)("large files", () => {
  useBrowser();

  for (const megabytes of [1, 20, 100]) {
    test(`${megabytes} MB are shown, searched and saved`, { timeout: 600e3 }, async () => {
      const text = file(`${megabytes}.a2l`, "");
      const json = file(`${megabytes}.json`, "");
      execFileSync(generate, [`${megabytes}M`, text]);
      execFileSync(program, [text, json]);

      const page = await newPage();
      const begun = performance.now();
      await open(page, text, 300e3);
      const seconds = (performance.now() - begun) / 1000;
      const memory = peak();

      const rows = page.locator(".objects .row");
      const count = page.locator(".count [role=status]");
      const first = await rows.first().locator("b").innerText();
      const name = await rows.nth(2).locator("b").innerText();
      const all = await count.innerText();
      const longest = await type(page, name);
      await rows.first().locator("b", { hasText: name }).waitFor();
      await rows.first().click();
      await page.locator("#title", { hasText: name }).waitFor();

      // The last object of all is in reach, and so are its lines.
      await page.getByLabel("Search names").fill("");
      await rows.first().locator("b", { hasText: first }).waitFor();
      await expect.poll(() => count.innerText()).toBe(all);
      const total = all.replace(/\D/g, "");
      await page.locator(`.objects .row[aria-setsize="${total}"]`).first().waitFor();
      await page.locator(".objects .list").press("End");
      const last = page.locator(`.objects .row[aria-posinset="${total}"]`);
      const lastName = await last.locator("b").innerText();
      await last.click();
      await page.locator("#title", { hasText: lastName }).waitFor();
      const kind = await page.locator("article > p.kind").innerText();
      await page.getByRole("link", { name: "in the whole file" }).click();
      await page.locator(".code .marked", { hasText: `/begin ${kind}` }).waitFor();

      const [, document] = await saved(page, async () => {
        await page.locator("summary", { hasText: "Save" }).click();
        await page.getByRole("button", { name: "JSON, as the program writes it" }).click();
      });
      expect(document.equals(readFileSync(json))).toBe(true);
      console.log(
        `${megabytes} MB: shown after ${seconds.toFixed(1)} s, ${memory} MB of memory, ` +
          `at most ${longest.toFixed(0)} ms between two frames while typing; ` +
          `the page has ${(statSync(built).size / 1e6).toFixed(2)} MB`,
      );
      await page.close();
    });
  }
});
