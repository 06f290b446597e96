// SPDX-License-Identifier: MIT
import type { ComponentChildren } from "preact";
import { useEffect, useRef } from "preact/hooks";

/**
 * The heading of what the right side shows. Who came here by a link of the right side goes on here;
 * who moves along the list stays in the list.
 */
export function Title({ children }: { readonly children: ComponentChildren }) {
  const heading = useRef<HTMLHeadingElement>(null);
  useEffect(() => {
    const focused = document.activeElement;
    const side = heading.current?.closest(".detail");
    side?.scrollTo({ top: 0 });
    const isLost = focused === null || focused === document.body;
    if (isLost || side?.contains(focused)) heading.current?.focus({ preventScroll: true });
  }, []);
  return (
    <h2 id="title" tabIndex={-1} ref={heading}>
      {children}
    </h2>
  );
}
