// SPDX-License-Identifier: MIT
import { proxy, wrap } from "comlink";

import type { Session } from "../worker/session.ts";
import Work from "../worker/worker.ts?worker&inline";

const worker = new Work();

/** The session in its worker. */
export const backend = wrap<Session>(worker);

/** Calls `tell` where the worker itself fails: nobody else would answer then. */
export function onFailure(tell: (sentence: string) => void): void {
  worker.addEventListener("error", ({ message }) => {
    tell(`The page cannot work in this browser${message ? `: ${message}` : "."}`);
  });
}

export { proxy };

/** Gives a file to the person. */
export function save(blob: Blob, name: string): void {
  const link = document.createElement("a");
  link.href = URL.createObjectURL(blob);
  link.download = name;
  link.click();
  // The browser has taken it long before.
  setTimeout(() => URL.revokeObjectURL(link.href), 60_000);
}

/** The name without its ending, with another. */
export const renamed = (name: string, ending: string): string =>
  name.replace(/\.[^.]*$/, "") + ending;
