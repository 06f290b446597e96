// SPDX-License-Identifier: MIT
//
// A whole text, of which only the lines in sight are in the page.
import { useEffect, useRef, useState } from "preact/hooks";

import type { Text } from "../worker/answers.ts";
import { backend } from "./backend.ts";
import { go } from "./route.ts";
import { Title } from "./title.tsx";
import { useRowHeight, useVirtualizer } from "./virtual.ts";
import { grouped } from "./words.ts";

const BLOCK = 200;
// Browsers cannot draw millions of lines below each other: these many around the line that counts.
const WINDOW = 100_000;

interface Props {
  readonly text: Text;
  readonly count: number;
  readonly line: number;
}

export function TextView({ text, count, line }: Props) {
  const before = Math.max(0, Math.min(line - WINDOW / 2, count - WINDOW));
  const shown = Math.min(WINDOW, count - before);
  const box = useRef<HTMLDivElement>(null);
  const height = useRowHeight(1.4);
  const virtualizer = useVirtualizer(box, shown, height);
  const [blocks, setBlocks] = useState<ReadonlyMap<number, string[]>>(new Map());
  const asked = useRef(new Set<number>());
  const [wanted, setWanted] = useState("");
  const items = virtualizer.getVirtualItems();

  useEffect(() => {
    requestAnimationFrame(() => virtualizer.scrollToIndex(line - 1 - before, { align: "center" }));
  }, [line, text]);
  useEffect(() => {
    for (const index of [items[0]?.index ?? 0, items.at(-1)?.index ?? 0]) {
      const block = Math.floor((before + index) / BLOCK);
      if (asked.current.has(block)) continue;
      asked.current.add(block);
      void backend.lines(text, block * BLOCK + 1, BLOCK).then((lines) => {
        setBlocks((old) => new Map(old).set(block, lines));
      });
    }
  });
  const leap = (to: number): void =>
    go({ view: text, number: Math.max(1, Math.min(count, Math.round(to))) });

  const title = text === "source" ? "Source" : "Mended text";
  return (
    <article class="whole" aria-labelledby="title">
      <Title>{title}</Title>
      <form
        class="leap"
        onSubmit={(event) => {
          event.preventDefault();
          if (Number(wanted) > 0) leap(Number(wanted));
        }}
      >
        <span class="quiet">
          Line {grouped(line)} of {grouped(count)}
        </span>
        <label for="line">Go to line</label>
        <input
          id="line"
          inputMode="numeric"
          size={9}
          value={wanted}
          onInput={(event) => setWanted(event.currentTarget.value)}
        />
        <button type="submit">Go</button>
        {before > 0 && (
          <button type="button" onClick={() => leap(before)}>
            Earlier lines
          </button>
        )}
        {before + shown < count && (
          <button type="button" onClick={() => leap(before + shown + 1)}>
            Later lines
          </button>
        )}
      </form>
      <div
        ref={box}
        class="code fill"
        tabIndex={0}
        role="region"
        aria-label={title}
        style={{ "--digits": String(count).length }}
      >
        <div style={{ height: virtualizer.getTotalSize(), position: "relative" }}>
          {items.map(({ index, start }) => {
            const at = before + index;
            return (
              <div
                key={at}
                class={`line${at === line - 1 ? " marked" : ""}`}
                style={{ height, transform: `translateY(${start}px)` }}
              >
                <span class="number">{at + 1}</span>
                {blocks.get(Math.floor(at / BLOCK))?.[at % BLOCK] ?? ""}
              </div>
            );
          })}
        </div>
      </div>
    </article>
  );
}
