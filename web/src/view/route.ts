// SPDX-License-Identifier: MIT
//
// What the right side shows stands in the address, so that "back" leads back.
import { useEffect, useState } from "preact/hooks";

export type Route =
  | { readonly view: "overview" }
  | { readonly view: "object"; readonly number: number }
  | { readonly view: "comparison" }
  | { readonly view: "change"; readonly number: number }
  | { readonly view: "source"; readonly number: number }
  | { readonly view: "mended"; readonly number: number };

const VIEWS = ["object", "change", "source", "mended"] as const;

export function parse(hash: string): Route {
  if (hash === "#comparison") return { view: "comparison" };
  const [, name, digits] = /^#([a-z]+)=(\d+)$/.exec(hash) ?? [];
  const view = VIEWS.find((known) => known === name);
  return view === undefined ? { view: "overview" } : { view, number: Number(digits) };
}

export const href = (route: Route): string =>
  "number" in route ? `#${route.view}=${route.number}` : `#${route.view}`;

export const go = (route: Route): void => {
  location.hash = href(route);
};

export function useRoute(): Route {
  const [hash, setHash] = useState(location.hash);
  useEffect(() => {
    const listen = (): void => setHash(location.hash);
    addEventListener("hashchange", listen);
    return () => removeEventListener("hashchange", listen);
  }, []);
  return parse(hash);
}
