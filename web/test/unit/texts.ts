// SPDX-License-Identifier: MIT
import { Document } from "../../src/model/document.ts";

/** A document as the converter writes it: one line, a space behind commas and colons. */
export const documentOf = (modules: unknown[], head: object = {}): Document =>
  new Document(bytes(JSON.stringify({ ...head, FModules: modules }).replaceAll('":', '": ')));

export const bytes = (text: string): Uint8Array => new TextEncoder().encode(text);
