// SPDX-License-Identifier: MIT
import { readFileSync } from "node:fs";
import { expect, test } from "vitest";

const read = (name: string): string =>
  readFileSync(new URL(`../../${name}`, import.meta.url), "utf8");

test("every dependency has one version, and the lock file names no registry", () => {
  const { devDependencies } = JSON.parse(read("package.json"));
  for (const [name, version] of Object.entries(devDependencies)) {
    expect(version, name).toMatch(/^\d+\.\d+\.\d+$/);
  }
  const lock = JSON.parse(read("package-lock.json"));
  expect(Object.keys(lock.packages).length).toBeGreaterThan(20);
  for (const [name, entry] of Object.entries<object>(lock.packages)) {
    expect(entry, name).not.toHaveProperty("resolved");
  }
});
