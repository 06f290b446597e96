// SPDX-License-Identifier: MIT
//
// The page as it was built, in a real browser, from the disk.
import AxeBuilder from "axe-core";
import { existsSync, mkdtempSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import path from "node:path";
import { fileURLToPath, pathToFileURL } from "node:url";
import {
  chromium,
  type Browser,
  type BrowserContext,
  type BrowserContextOptions,
  type Page,
} from "playwright-core";
import { afterAll, afterEach, beforeAll, expect } from "vitest";

export const top = fileURLToPath(new URL("../../../", import.meta.url));
export const built = path.join(top, "web/dist/index.html");
export const demo = path.join(top, "examples/demo.a2l");
export const corpus = path.join(top, "../shared/corpus");

const CHROMIUMS = [
  process.env.CHROMIUM ?? "",
  "/usr/bin/chromium",
  "/usr/bin/chromium-browser",
  "/usr/bin/google-chrome",
];

/** Where the browser is; tests have none where it is undefined. */
export const executable = CHROMIUMS.find((file) => file !== "" && existsSync(file));
if (executable === undefined) console.log("skipped: there is no chromium here to try the page in");
if (!existsSync(built)) throw new Error("there is no page: run npm run build first");

let browser: Browser;
let contexts: BrowserContext[] = [];
let folder: string;

/** A browser for the tests of a file, and a folder for their files. */
export function useBrowser(): void {
  beforeAll(async () => {
    folder = mkdtempSync(path.join(tmpdir(), "a2l2json-page-"));
    browser = await chromium.launch({
      executablePath: executable!,
      args: ["--no-sandbox", "--disable-dev-shm-usage"],
    });
  });
  afterEach(async () => {
    await Promise.all(contexts.map((context) => context.close()));
    contexts = [];
  });
  afterAll(async () => {
    await browser?.close();
    rmSync(folder, { recursive: true, force: true });
  });
}

/** A file of this content. */
export function file(name: string, content: string | Uint8Array): string {
  const at = path.join(folder, name);
  writeFileSync(at, content);
  return at;
}

/** The page, empty. Whatever it complains about, or wants from elsewhere, fails the test. */
export async function newPage(options: BrowserContextOptions = {}): Promise<Page> {
  const context = await browser.newContext({ viewport: { width: 1280, height: 800 }, ...options });
  contexts.push(context);
  const page = await context.newPage();
  page.on("pageerror", (error) => expect.unreachable(`the page has a fault: ${error.message}`));
  page.on("console", (message) => {
    if (message.type() === "error") expect.unreachable(`the page complains: ${message.text()}`);
  });
  page.on("request", (request) => {
    expect(request.url()).toMatch(/^(file|blob|data):/);
  });
  await page.goto(pathToFileURL(built).href);
  return page;
}

/** Opens a file, and waits until the page shows it, and not the one before. */
export async function open(page: Page, at: string, timeout = 30_000): Promise<void> {
  await page.locator("input[type=file]").first().setInputFiles(at);
  const name = page.locator(`header .file:text-is(${JSON.stringify(path.basename(at))})`);
  await name.waitFor({ state: "attached", timeout });
  await page.locator("main.loaded").waitFor({ timeout });
}

export async function opened(at: string, options: BrowserContextOptions = {}): Promise<Page> {
  const page = await newPage(options);
  await open(page, at);
  return page;
}

/** Types into the search, and waits for what it finds. */
export async function search(page: Page, query: string, objects: string): Promise<void> {
  await page.getByLabel("Search names").fill(query);
  await page.locator(".count [role=status]", { hasText: new RegExp(`^${objects}$`) }).waitFor();
}

/** Opens the object of this name, and gives what is then shown. */
export async function openObject(page: Page, name: string, kind = ""): Promise<void> {
  await page.getByLabel("Search names").fill(name);
  await page
    .locator(".objects .row", { has: page.locator(`b:text-is("${name}")`), hasText: kind })
    .first()
    .click();
  await page.locator(`#title:text-is("${name}")`).waitFor();
}

/** The bytes of what the page saves when `act` is done. */
export async function saved(page: Page, act: () => Promise<void>): Promise<[string, Buffer]> {
  const download = page.waitForEvent("download");
  await act();
  const got = await download;
  return [got.suggestedFilename(), readFileSync(await got.path())];
}

/** How many pixels of the page are beyond the right edge of the window. */
export async function overflow(page: Page): Promise<number> {
  return page.evaluate(() => document.documentElement.scrollWidth - window.innerWidth);
}

/** What axe finds wrong for people who use a keyboard or a screen reader. */
export async function barriers(page: Page): Promise<string[]> {
  // Not as a script of the page: its own rules would refuse that.
  await page.evaluate(AxeBuilder.source);
  const results = await page.evaluate(async () => {
    const { axe } = globalThis as unknown as { axe: typeof AxeBuilder };
    return axe.run(document, { resultTypes: ["violations"] });
  });
  return results.violations.map(
    ({ id, nodes }) => `${id}: ${nodes.map(({ html }) => html).join("\n")}`,
  );
}
