// SPDX-License-Identifier: MIT
//
// @tanstack/virtual-core for Preact.
import {
  elementScroll,
  observeElementOffset,
  observeElementRect,
  Virtualizer,
} from "@tanstack/virtual-core";
import type { RefObject } from "preact";
import { useEffect, useLayoutEffect, useReducer, useState } from "preact/hooks";

export type ListVirtualizer = Virtualizer<HTMLElement, HTMLElement>;

/** Which rows of a list are in sight: all have the same height, in pixels. */
export function useVirtualizer(
  element: RefObject<HTMLElement>,
  count: number,
  height: number,
): ListVirtualizer {
  const [, draw] = useReducer((n: number) => n + 1, 0);
  const options = {
    count,
    getScrollElement: () => element.current,
    estimateSize: () => height,
    observeElementRect,
    observeElementOffset,
    scrollToFn: elementScroll,
    overscan: 8,
    onChange: () => draw(undefined),
  };
  const [virtualizer] = useState(() => new Virtualizer<HTMLElement, HTMLElement>(options));
  virtualizer.setOptions(options);
  useEffect(() => virtualizer._didMount(), []);
  useLayoutEffect(() => virtualizer._willUpdate());
  useLayoutEffect(() => virtualizer.measure(), [height]);
  return virtualizer;
}

/** The height of so many lines of text, in pixels, as large as the person has it. */
export function useRowHeight(lines: number): number {
  const measure = (): number =>
    Math.round(parseFloat(getComputedStyle(document.documentElement).fontSize) * lines);
  const [height, setHeight] = useState(measure);
  useEffect(() => {
    const listen = (): void => setHeight(measure());
    addEventListener("resize", listen);
    return () => removeEventListener("resize", listen);
  }, []);
  return height;
}
