// SPDX-License-Identifier: MIT
//
// What the worker answers, without a browser.
import { readFileSync } from "node:fs";
import { load } from "a2l2json";
import { beforeAll, expect, test } from "vitest";

import { LINKS, Session } from "../../src/worker/session.ts";

beforeAll(() => load(readFileSync(new URL("../../../js/dist/a2l2json.wasm", import.meta.url))));

const opened = async (body: string) => {
  const text = `/begin PROJECT P ""\n/begin MODULE M ""\n${body}\n/end MODULE\n/end PROJECT\n`;
  const session = new Session();
  const summary = await session.open(new File([text], "x.a2l"), () => {});
  expect(summary.trouble).toBeNull();
  const find = (name: string): number => session.search(name, null).objects[0]!;
  return { session, summary, find };
};

const method =
  '/begin COMPU_METHOD CM "" LINEAR "%4.2" "V"\nCOEFFS_LINEAR 2 0\n/end COMPU_METHOD\n';
const measurement = (i: number): string =>
  `/begin MEASUREMENT m${i} "" UBYTE CM 0 0 0 ${i}\n/end MEASUREMENT\n`;

test("an object that refers twice counts once", async () => {
  const axis = "/begin AXIS_DESCR STD_AXIS NO_INPUT_QUANTITY CM 4 0 10\n/end AXIS_DESCR\n";
  const { session, find } = await opened(
    `${method}/begin CHARACTERISTIC C "" MAP 0x10 RL 0 NO_COMPU_METHOD 0 1\n${axis}${axis}/end CHARACTERISTIC`,
  );
  const [group] = session.detail(find("CM")).from;
  expect(group).toMatchObject({ kind: "CHARACTERISTIC", role: "conversion of the axis", total: 1 });
  expect(session.detail(find("C")).units).toEqual({ CM: "V" });
});

test("very many that refer come in portions", async () => {
  const count = LINKS + 30;
  const { session, find } = await opened(
    method + Array.from({ length: count }, (_, i) => measurement(i)).join(""),
  );
  const [group] = session.detail(find("CM")).from;
  expect(group!.total).toBe(count);
  expect(group!.links.length).toBe(LINKS);
  const rest = session.referrers(find("CM"), "MEASUREMENT", "conversion", LINKS);
  expect(rest.map(({ name }) => name)).toEqual(
    Array.from({ length: 30 }, (_, i) => `m${LINKS + i}`),
  );
});

test("groups that hold each other, or nothing, are harmless", async () => {
  const group = (name: string, sub: string): string =>
    `/begin GROUP ${name} ""\n/begin SUB_GROUP ${sub} /end SUB_GROUP\n/end GROUP\n`;
  const { session, find } = await opened(group("A", "B") + group("B", "A") + group("R", "A Gone"));
  expect(session.roots("GROUP").map(({ name }) => name)).toEqual(["R"]);
  expect(
    session.to(find("R"))[0]!.links.map(({ name, object }) => [name, object !== null]),
  ).toEqual([
    ["A", true],
    ["Gone", false],
  ]);
});

test("objects of one name are found in their own lines", async () => {
  const { session } = await opened(measurement(1) + measurement(1));
  const places = [...session.search("m1", null).objects].map((i) => session.detail(i).place);
  expect(places).toEqual([
    { first: 3, last: 4 },
    { first: 5, last: 6 },
  ]);
});

test("what cannot be converted still has its lines and findings", async () => {
  const session = new Session();
  const text = '/begin PROJECT P ""\n/begin MODULE M ""\nUNIT_CONVERSION 1 2\n';
  const summary = await session.open(new File([text], "x.a2l"), () => {});
  expect(summary.trouble).toEqual({
    code: "not-converted",
    sentence: "x.a2l, line 3: unexpected property of element UNIT_CONVERSION",
  });
  expect(summary.lines.source).toBe(3);
  expect(session.lines("source", 3, 1)).toEqual(["UNIT_CONVERSION 1 2"]);
  expect(session.search("", null).objects.length).toBe(0);
});

test("what is not an A2L file, or too large, gets a sentence", async () => {
  const session = new Session();
  const trouble = async (file: File) => (await session.open(file, () => {})).trouble!;
  expect(await trouble(new File([], "x.a2l"))).toMatchObject({ code: "not-a2l" });
  const large = new File([], "x.a2l");
  Object.defineProperty(large, "size", { value: 2.2e9 });
  expect(await trouble(large)).toMatchObject({ code: "too-large" });
});
