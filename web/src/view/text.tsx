// SPDX-License-Identifier: MIT
//
// A whole text, of which only the lines in sight are in the page.
import { useEffect, useRef, useState } from "preact/hooks";

import type { Text } from "../worker/session.ts";
import { backend } from "./backend.ts";
import { Title } from "./title.tsx";
import { useRowHeight, useVirtualizer } from "./virtual.ts";
import { grouped } from "./words.ts";

const BLOCK = 200;

interface Props {
  readonly text: Text;
  readonly count: number;
  readonly line: number;
}

export function TextView({ text, count, line }: Props) {
  const box = useRef<HTMLDivElement>(null);
  const height = useRowHeight(1.4);
  const virtualizer = useVirtualizer(box, count, height);
  const [blocks, setBlocks] = useState<ReadonlyMap<number, string[]>>(new Map());
  const asked = useRef(new Set<number>());
  const items = virtualizer.getVirtualItems();

  useEffect(() => {
    requestAnimationFrame(() => virtualizer.scrollToIndex(line - 1, { align: "center" }));
  }, [line, text]);
  useEffect(() => {
    for (const index of [items[0]?.index ?? 0, items.at(-1)?.index ?? 0]) {
      const block = Math.floor(index / BLOCK);
      if (asked.current.has(block)) continue;
      asked.current.add(block);
      void backend.lines(text, block * BLOCK + 1, BLOCK).then((lines) => {
        setBlocks((before) => new Map(before).set(block, lines));
      });
    }
  });

  const title = text === "source" ? "Source" : "Mended text";
  return (
    <article class="whole" aria-labelledby="title">
      <Title>{title}</Title>
      <p class="quiet">
        Line {grouped(line)} of {grouped(count)}
      </p>
      <div
        ref={box}
        class="code fill"
        tabIndex={0}
        role="region"
        aria-label={title}
        style={{ "--digits": String(count).length }}
      >
        <div style={{ height: virtualizer.getTotalSize(), position: "relative" }}>
          {items.map(({ index, start }) => (
            <div
              key={index}
              class={`line${index === line - 1 ? " marked" : ""}`}
              style={{ height, transform: `translateY(${start}px)` }}
            >
              <span class="number">{index + 1}</span>
              {blocks.get(Math.floor(index / BLOCK))?.[index % BLOCK] ?? ""}
            </div>
          ))}
        </div>
      </div>
    </article>
  );
}
