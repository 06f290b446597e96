// SPDX-License-Identifier: MIT
import { readFileSync, rmSync, truncateSync } from "node:fs";
import path from "node:path";
import { gzipSync } from "node:zlib";
import { describe, expect, test } from "vitest";

import {
  barriers,
  built,
  demo,
  executable,
  file,
  newPage,
  open,
  openObject,
  opened,
  overflow,
  saved,
  search,
  top,
  useBrowser,
} from "./browser.ts";

describe.skipIf(executable === undefined)("the page", () => {
  useBrowser();

  test("shows at once what is in a file", async () => {
    const page = await opened(demo);
    const detail = page.locator(".detail");
    for (const part of ["Demo", "Idle speed control of a demonstration engine", "R2.1", "1.71"]) {
      await expect.poll(() => detail.innerText()).toContain(part);
    }
    await expect.poll(() => page.getByRole("button", { name: "COMPU_METHOD 2" }).count()).toBe(1);
    await expect.poll(() => page.title()).toBe("demo.a2l – a2l2json");
  });

  test("carries the licences of what is in it", () => {
    const page = readFileSync(built, "utf8");
    for (const name of ["preact", "comlink", "@tanstack/virtual-core", "jsep", "d3-array"]) {
      expect(page).toMatch(new RegExp(`\\n${name}\\n\\n.*(License|Copyright)`, "s"));
    }
  });

  test("shows messages and findings with their lines, and the lines themselves", async () => {
    const text = [
      '/begin PROJECT P ""',
      '/begin MODULE M ""',
      "  COLOUR red",
      '  /begin MEASUREMENT A "" UBYTE NO_COMPU_METHOD 0 0 0 255 ECU_ADDRESS 0x10 FORMAT "%3.1" /end MEASUREMENT',
      "/end MODULE",
      "/end PROJECT",
      "",
    ].join("\n");
    const page = await opened(file("findings.a2l", text));
    const findings = page.getByRole("listbox", { name: "Findings" });
    const first = findings.getByRole("option").first();
    await expect.poll(() => first.innerText()).toMatch(/line [34]\b/);
    await first.click();
    await page.locator(".marked", { hasText: /COLOUR|ECU_ADDRESS/ }).waitFor();
    await page.goBack();
    await page.getByRole("listbox", { name: "Findings" }).waitFor();
    const message = page.getByRole("listbox", { name: "Messages" }).getByRole("option").first();
    await expect.poll(() => message.innerText()).toMatch(/line 3\b/);
    await message.click();
    await page.locator(".marked", { hasText: "COLOUR" }).waitFor();
    await expect.poll(() => page.getByRole("heading", { name: "Source" }).count()).toBe(1);
  });

  test("finds objects by name, description and address while one types", async () => {
    const page = await opened(demo);
    await search(page, "", "32 objects");
    await search(page, "idlespeed", "2 objects");
    await search(page, "crankshaft", "1 object");
    await search(page, "0x80001300", "1 object");
    await page.locator(".objects .row b", { hasText: "TemperatureAxis" }).waitFor();
    await expect.poll(() => page.locator(".objects .row").count()).toBe(1);
    await search(page, "nothing of that", "0 objects");
  });

  test("shows the objects of one kind", async () => {
    const page = await opened(demo);
    await page.getByRole("button", { name: "COMPU_METHOD 2" }).click();
    await expect.poll(() => page.locator(".objects .row").count()).toBe(2);
    await expect
      .poll(() => page.locator(".objects .row b").allInnerTexts())
      .toEqual(["CM_Speed", "CM_Temperature"]);
  });

  test("opens an object: values with units, references as links, source and JSON", async () => {
    const page = await opened(demo);
    await openObject(page, "IdleSpeed", "CHARACTERISTIC");
    const detail = page.locator(".detail");
    await expect.poll(() => detail.innerText()).toContain("500 1/min");
    await expect
      .poll(() => page.getByRole("region", { name: "Lines of the source" }).innerText())
      .toContain("AXIS_PTS_REF TemperatureAxis");
    await page.getByText("Show the JSON as it is").click();
    const json = page.locator("pre[aria-label=JSON]");
    const { FModules } = JSON.parse(readFileSync(path.join(top, "examples/demo.json"), "utf8"));
    await expect
      .poll(async () => JSON.parse(await json.innerText()))
      .toEqual(FModules[0].FCHARACTERISTIC[0]);

    // Along the references, and back.
    await detail.getByRole("link", { name: "TemperatureAxis" }).first().click();
    await page.locator("#title", { hasText: "TemperatureAxis" }).waitFor();
    await expect
      .poll(() => page.locator("#title").evaluate((e) => e === document.activeElement))
      .toBe(true);
    const from = page.getByRole("region", { name: "Referred to by" });
    await expect.poll(() => from.innerText()).toContain("IdleSpeed");
    await page.goBack();
    await page.locator("#title", { hasText: "IdleSpeed" }).waitFor();
    await detail.getByRole("link", { name: "IdleControl" }).click();
    await page.locator("#title", { hasText: "IdleControl" }).waitFor();
  });

  test("shows conversions as a curve or a table", async () => {
    const page = await opened(demo);
    await openObject(page, "CM_Speed");
    await expect
      .poll(() => page.getByRole("img", { name: /^Curve from raw/ }).getAttribute("aria-label"))
      .toBe(
        // of EngineSpeed, 0 to 8000: raw = 4 x
        "Curve from raw 0 to 32000, physical 0 to 8000 1/min",
      );
    await openObject(page, "CV_Gear");
    const table = page.getByRole("region", { name: "Table of the conversion" });
    await expect
      .poll(() => table.locator("tbody tr").allInnerTexts())
      .toEqual(["0\tneutral", "1\tdrive", "otherwise\tunknown"]);
  });

  test("shows groups and functions as trees", async () => {
    const page = await opened(demo);
    await page.getByText("Tree of groups").click();
    await page.locator("summary", { hasText: "Idle control" }).click();
    await page.getByRole("link", { name: "TemperatureAxis" }).click();
    await page.locator("#title", { hasText: "TemperatureAxis" }).waitFor();
  });

  test("compares two files", async () => {
    const text = readFileSync(demo, "utf8");
    const later = text
      .replace("UWORD CM_Speed 1 0.5 0 8000", "UWORD CM_Speed 1 0.5 0 9000")
      .replace("MEASUREMENT EngineSpeed", "MEASUREMENT  EngineSpeed")
      .replace("/begin COMPU_VTAB CV_Gear", "/begin COMPU_VTAB CV_Gears");
    expect(later).not.toBe(text);
    const page = await opened(file("later.a2l", later));
    await page.locator("input[type=file]").nth(1).setInputFiles(demo);
    const list = page.getByRole("listbox", { name: "Differences" });
    const rows = async (): Promise<string[]> => {
      const texts = await list.getByRole("option").allInnerTexts();
      return texts.map((text) => text.split("\n").slice(0, 2).join(" "));
    };
    await expect.poll(rows).toEqual(["came CV_Gears", "changed EngineSpeed", "went CV_Gear"]);
    expect(await barriers(page)).toEqual([]);
    await list.getByText("EngineSpeed").click();
    const table = page.getByRole("region", { name: "What changed" });
    await expect
      .poll(() => table.locator("tbody tr").allInnerTexts())
      .toEqual(["UPPER_LIMIT\t8000\t9000"]);
    expect(await barriers(page)).toEqual([]);
  });

  test("saves the JSON of the program, the mended text, and lists", async () => {
    const page = await opened(demo);
    const choose = (name: string) => async (): Promise<void> => {
      await page.locator("summary", { hasText: "Save" }).click();
      await page.getByRole("button", { name }).click();
    };
    const [jsonName, json] = await saved(page, choose("JSON, as the program writes it"));
    expect(jsonName).toBe("demo.json");
    expect(json.equals(readFileSync(path.join(top, "examples/demo.json")))).toBe(true);

    const [mendedName, mended] = await saved(page, choose("Mended A2L"));
    expect(mendedName).toBe("demo.mended.a2l");
    const [, mendedJson] = await saved(page, choose("JSON of the mended text"));
    const other = await opened(file("mended.a2l", mended));
    const [, again] = await saved(other, async () => {
      await other.locator("summary", { hasText: "Save" }).click();
      await other.getByRole("button", { name: "JSON, as the program writes it" }).click();
    });
    expect(again.equals(mendedJson)).toBe(true);

    await search(page, "temperatureaxis", "1 object");
    const [csvName, csv] = await saved(page, () =>
      page.getByRole("button", { name: "Save list as CSV" }).click(),
    );
    expect(csvName).toBe("demo.csv");
    expect(csv.toString()).toBe(
      "\uFEFFKind,Name,Description,Address,Module\r\n" +
        "AXIS_PTS,TemperatureAxis,Coolant temperature,0x80001300,Engine\r\n",
    );
  });

  test("takes a file that is dropped", async () => {
    const page = await newPage();
    const data = await page.evaluateHandle(
      (text) => {
        const transfer = new DataTransfer();
        transfer.items.add(new File([text], "dropped.a2l"));
        return transfer;
      },
      readFileSync(demo, "utf8"),
    );
    await page.dispatchEvent("body", "drop", { dataTransfer: data });
    await page.locator("#title", { hasText: "Demo" }).waitFor();
  });

  test("can be used with the keyboard alone", async () => {
    const page = await opened(demo);
    await page.getByLabel("Search names").focus();
    await page.keyboard.type("cm_");
    await expect.poll(() => page.locator(".objects .row").count()).toBe(2);
    await page.keyboard.press("ArrowDown"); // into the list
    await page.keyboard.press("ArrowDown");
    const active = page.locator("#Found-objects-1");
    await expect
      .poll(() => page.locator(".objects .list").getAttribute("aria-activedescendant"))
      .toBe(await active.getAttribute("id"));
    await page.keyboard.press("Enter");
    await page.locator("#title", { hasText: "CM_Temperature" }).waitFor();
    await expect.poll(() => active.getAttribute("aria-selected")).toBe("true");
    await page.keyboard.press("Home");
    await page.keyboard.press("Enter");
    await page.locator("#title", { hasText: "CM_Speed" }).waitFor();
  });

  test("says in a sentence why a file cannot be shown", async () => {
    const page = await newPage();
    const says = async (at: string, sentence: string): Promise<void> => {
      await open(page, at);
      await page.locator(".trouble", { hasText: sentence }).waitFor();
    };
    await says(file("empty.a2l", ""), "empty.a2l is not an A2L file. It is empty.");
    await says(
      file("packed.a2l", gzipSync(readFileSync(demo))),
      "packed.a2l is not an A2L file. It is packed with gzip: unpack it first.",
    );
    await says(file("letter.txt", "Dear reader,\n"), "letter.txt is not an A2L file.");
    expect(await page.getByRole("heading").allInnerTexts()).toEqual(["a2l2json", "letter.txt"]);
    const large = file("large.a2l", "");
    truncateSync(large, 2.2e9);
    await says(large, "large.a2l has 2.20 GB, and at most 2.14 GB can be converted here");
    await says(
      file("wrong.a2l", '/begin PROJECT P ""\n/begin MODULE M ""\nUNIT_CONVERSION 1 2\n'),
      "wrong.a2l, line 3: unexpected property of element UNIT_CONVERSION",
    );
    expect(await barriers(page)).toEqual([]);
    await open(page, demo); // and goes on
    await page.locator("#title", { hasText: "Demo" }).waitFor();

    const gone = file("gone.a2l", readFileSync(demo));
    await open(page, gone);
    rmSync(gone);
    await page.locator("summary", { hasText: "Save" }).click();
    await page.getByRole("button", { name: "JSON, as the program writes it" }).click();
    const alert = page.getByRole("alert");
    await expect
      .poll(() => alert.innerText())
      .toBe("gone.a2l cannot be read: it may be a folder, or no longer there.");
  });

  for (const colorScheme of ["light", "dark"] as const) {
    test(`has no barriers that axe finds, ${colorScheme}`, async () => {
      const page = await newPage({ colorScheme });
      expect(await barriers(page)).toEqual([]);
      await open(page, demo);
      expect(await barriers(page)).toEqual([]);
      await page.locator("summary", { hasText: "Save" }).click();
      expect(await barriers(page)).toEqual([]);
      await page.locator("summary", { hasText: "Save" }).click();
      for (const name of ["EngineSpeed", "CT_Sensor", "Idle", "RL_Axis"]) {
        await openObject(page, name);
        const source = page.getByRole("region", { name: "Lines of the source" });
        await expect.poll(() => source.innerText()).toContain(name);
        expect(await barriers(page), name).toEqual([]);
      }
      await page.getByRole("link", { name: "Source" }).click();
      await page.locator(".marked", { hasText: "An engine control unit" }).waitFor();
      expect(await barriers(page)).toEqual([]);
    });
  }

  test("fits a narrow window, and a wide one at 200 %, without scrolling sideways", async () => {
    for (const viewport of [
      { width: 360, height: 740 },
      { width: 640, height: 400 }, // what a window of 1280 by 800 has at 200 %
    ]) {
      const page = await opened(demo, { viewport });
      await page.getByRole("button", { name: "COMPU_METHOD 2" }).waitFor();
      expect(await overflow(page)).toBeLessThanOrEqual(0);
      await openObject(page, "IdleSpeed", "CHARACTERISTIC");
      await page.getByRole("img", { name: /^Curve from raw/ }).waitFor();
      expect(await overflow(page)).toBeLessThanOrEqual(0);
      await page.getByRole("link", { name: "Overview" }).click();
      await page.getByLabel("Search names").waitFor();
    }
  });
});
