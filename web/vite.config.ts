// SPDX-License-Identifier: MIT
import { readFileSync } from "node:fs";
import { fileURLToPath } from "node:url";
import type { Plugin } from "vite";
import { defineConfig } from "vitest/config";
import { viteSingleFile } from "vite-plugin-singlefile";

// The npm package of this repository, as browsers have it: its module stands beside it, in js/dist.
const alias = { a2l2json: fileURLToPath(new URL("../js/src/web.js", import.meta.url)) };

// Whoever hands the page on hands on what is in it: the licences go along.
const BUNDLED = ["@tanstack/virtual-core", "comlink", "d3-array", "jsep", "preact"];
const licences: Plugin = {
  name: "licences",
  transformIndexHtml: (html) => {
    const texts = BUNDLED.map((name) => {
      const text = readFileSync(new URL(`node_modules/${name}/LICENSE`, import.meta.url), "utf8");
      return `${name}\n\n${text.trim()}`;
    });
    return `${html.trim()}\n<!--\nThis page contains:\n\n${texts.join("\n\n")}\n-->\n`;
  },
};

const browser = {
  testTimeout: 180e3,
  hookTimeout: 180e3,
  fileParallelism: false,
  expect: { poll: { timeout: 30e3 } }, // a page may be slow on a machine that does much else
};

// Everything goes into the page: styles, the worker, and the module inside the worker.
export default defineConfig({
  plugins: [viteSingleFile(), licences],
  resolve: { alias },
  oxc: { jsx: { runtime: "automatic", importSource: "preact" } },
  worker: { format: "iife" },
  build: { target: "es2022", assetsInlineLimit: 100e6, chunkSizeWarningLimit: 10e3 },
  test: {
    projects: [
      { extends: true, test: { name: "unit", include: ["test/unit/**/*.test.ts"] } },
      { extends: true, test: { ...browser, name: "page", include: ["test/page/**/*.test.ts"] } },
      { extends: true, test: { ...browser, name: "slow", include: ["test/slow/**/*.test.ts"] } },
    ],
  },
});
