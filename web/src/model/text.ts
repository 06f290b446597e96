// SPDX-License-Identifier: MIT

const utf8 = new TextDecoder("utf-8", { fatal: true, ignoreBOM: true });
const windows = new TextDecoder("windows-1252");

/** Bytes as text: UTF-8 where they are valid, windows-1252 where they are not. */
export function decode(bytes: Uint8Array): string {
  try {
    return utf8.decode(bytes);
  } catch {
    return windows.decode(bytes);
  }
}
