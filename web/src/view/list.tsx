// SPDX-License-Identifier: MIT
//
// A list of any length, of which only what is in sight is in the page. Its rows come in blocks from
// elsewhere. To a screen reader it is a list box.
import type { ComponentChildren } from "preact";
import { useEffect, useRef, useState } from "preact/hooks";

import { useRowHeight, useVirtualizer } from "./virtual.ts";
import { grouped } from "./words.ts";

const BLOCK = 100;

// Browsers draw nothing beyond some ten million pixels; Firefox has the lowest limit.
const MOST_PIXELS = 15e6;

interface Props<Row> {
  readonly label: string;
  readonly count: number;
  /** Another value for another list. */
  readonly version: unknown;
  readonly load: (first: number, count: number) => Promise<Row[]>;
  readonly draw: (row: Row) => ComponentChildren;
  readonly open: (index: number) => void;
  readonly opened: number | null;
  readonly lines?: number;
}

/** What is in sight: rows, and what belongs to them. */
interface Shown<Row> extends Pick<Props<Row>, "version" | "count" | "load" | "open"> {
  readonly rows: ReadonlyMap<number, Row[]>;
}

export function List<Row>(props: Props<Row>) {
  const { label, version, draw, opened, lines = 3.25 } = props;
  const box = useRef<HTMLDivElement>(null);
  const height = useRowHeight(lines);
  const [active, setActive] = useState(0);
  const [shown, setShown] = useState<Shown<Row>>({ ...props, count: 0, rows: new Map() });
  const { rows, open, load } = shown;
  const count = Math.min(shown.count, Math.floor(MOST_PIXELS / height));
  const virtualizer = useVirtualizer(box, count, height);
  const asked = useRef(new Set<number>());

  // Another list takes the place of the one before when its first rows are there: nothing flickers
  // while a person types, and no row stands for another.
  useEffect(() => {
    let isWanted = true;
    void props.load(0, BLOCK).then((first) => {
      if (!isWanted) return;
      asked.current = new Set([0]);
      setShown({ ...props, rows: new Map([[0, first]]) });
      setActive(0);
      box.current?.scrollTo({ top: 0 });
    });
    return () => void (isWanted = false);
  }, [version]);

  const items = virtualizer.getVirtualItems();
  useEffect(() => {
    const first = Math.floor((items[0]?.index ?? 0) / BLOCK);
    const last = Math.floor((items.at(-1)?.index ?? 0) / BLOCK);
    for (let block = first; block <= last && block * BLOCK < count; ++block) {
      if (asked.current.has(block)) continue;
      asked.current.add(block);
      void load(block * BLOCK, BLOCK).then((loaded) => {
        setShown((before) =>
          before.version === shown.version
            ? { ...before, rows: new Map(before.rows).set(block, loaded) }
            : before,
        );
      });
    }
  });

  const move = (to: number): void => {
    const index = Math.max(0, Math.min(count - 1, to));
    setActive(index);
    virtualizer.scrollToIndex(index);
  };
  const page = Math.max(1, Math.floor((box.current?.clientHeight ?? 0) / height) - 1);
  const keys: { readonly [key: string]: () => void } = {
    ArrowDown: () => move(active + 1),
    ArrowUp: () => move(active - 1),
    PageDown: () => move(active + page),
    PageUp: () => move(active - page),
    Home: () => move(0),
    End: () => move(count - 1),
    Enter: () => open(active),
    " ": () => open(active),
  };
  const id = (index: number): string => `${label}-${index}`.replace(/\W+/g, "-");
  const isThere = items.some(({ index }) => index === active);

  const list = (
    <div
      ref={box}
      class="list"
      role="listbox"
      tabIndex={0}
      aria-label={label}
      aria-activedescendant={isThere && count > 0 ? id(active) : undefined}
      onKeyDown={(event) => {
        const work = keys[event.key];
        if (work === undefined || count === 0) return;
        event.preventDefault();
        work();
      }}
    >
      <div role="presentation" style={{ height: virtualizer.getTotalSize(), position: "relative" }}>
        {items.map(({ index, start }) => {
          const row = rows.get(Math.floor(index / BLOCK))?.[index % BLOCK];
          return (
            <div
              key={index}
              id={id(index)}
              role="option"
              class={`row${index === active ? " active" : ""}`}
              aria-selected={index === opened && shown.version === version}
              aria-setsize={count}
              aria-posinset={index + 1}
              style={{ height, transform: `translateY(${start}px)` }}
              onClick={() => {
                setActive(index);
                open(index);
              }}
            >
              {row === undefined ? <span class="quiet">…</span> : draw(row)}
            </div>
          );
        })}
      </div>
    </div>
  );
  if (count === shown.count) return list;
  return (
    <>
      {list}
      <p class="note">Only the first {grouped(count)} are shown: search for the others.</p>
    </>
  );
}
