// SPDX-License-Identifier: MIT
//
// Bytes of files as texts.

// What engines of JavaScript have room for in a string; none of them has more.
const MOST_BYTES = 0x1fffffe8;

const utf8 = new TextDecoder("utf-8", { fatal: true, ignoreBOM: true });
const encoder = new TextEncoder();

// In pieces, because Node 20 takes windows-1252 for ISO 8859-1 where it gets a text whole.
function decodeAs(bytes, encoding) {
  const decoder = new TextDecoder(encoding);
  return decoder.decode(bytes, { stream: true }) + decoder.decode();
}

// How many bytes the UTF-8 character at `i` has; 0 where there is none.
function lengthOfCharacter(bytes, i) {
  const first = bytes[i];
  const length = first >= 0xf0 ? 4 : first >= 0xe0 ? 3 : 2;
  if (first < 0xc2 || first > 0xf4 || i + length > bytes.length) return 0;
  for (let k = 1; k < length; ++k) {
    if ((bytes[i + k] & 0xc0) !== 0x80) return 0;
  }
  const second = bytes[i + 1];
  const isWrong =
    (first === 0xe0 && second < 0xa0) || // longer than it needs to be
    (first === 0xed && second > 0x9f) || // half a character of UTF-16
    (first === 0xf0 && second < 0x90) ||
    (first === 0xf4 && second > 0x8f); // beyond Unicode
  return isWrong ? 0 : length;
}

// The windows-1252 characters of the bytes from 0x80 on, each as UTF-8.
const asUtf8 = Array.from({ length: 0x80 }, (_, i) =>
  encoder.encode(decodeAs(Uint8Array.of(0x80 + i), "windows-1252")),
);

// The same text as UTF-8, every byte that is part of no UTF-8 character taken as windows-1252.
function repaired(bytes) {
  let room = bytes.length;
  for (let i = 0; i < bytes.length; ++i) room += bytes[i] < 0x80 ? 0 : 2;
  const out = new Uint8Array(room);
  let size = 0;
  for (let i = 0; i < bytes.length; ) {
    const length = bytes[i] < 0x80 ? 1 : lengthOfCharacter(bytes, i);
    if (length === 0) {
      const character = asUtf8[bytes[i++] - 0x80];
      out.set(character, size);
      size += character.length;
    } else {
      for (const end = i + length; i < end; ) out[size++] = bytes[i++];
    }
  }
  return out.subarray(0, size);
}

/**
 * Bytes as text: in `encoding` where there is one, otherwise UTF-8 where the bytes are valid, and
 * windows-1252 where they are not. Never fails over a byte; a RangeError where the text is too long.
 */
export function decode(bytes, encoding) {
  if (bytes.length > MOST_BYTES) {
    throw new RangeError(
      `${bytes.length} bytes are too many for a JavaScript string, which holds ${MOST_BYTES}`,
    );
  }
  if (encoding !== undefined) return decodeAs(bytes, encoding);
  try {
    return utf8.decode(bytes);
  } catch (error) {
    if (!(error instanceof TypeError)) throw error;
    return utf8.decode(repaired(bytes));
  }
}

/** Pieces of bytes in `encoding` as pieces of UTF-8, without the mark at the beginning. */
export function* toUtf8(pieces, encoding) {
  const decoder = new TextDecoder(encoding);
  for (const piece of pieces) yield encoder.encode(decoder.decode(piece, { stream: true }));
  yield encoder.encode(decoder.decode());
}

// Where the byte of a backslash may be a part of another character.
const WITH_HIDDEN_BACKSLASHES = [
  "big5",
  "gb18030",
  "gbk",
  "iso-2022-jp",
  "shift_jis",
  "utf-16be",
  "utf-16le",
];

/**
 * Throws a RangeError where no encoding has that name, and where the module would take parts of its
 * characters for marks of A2L: without mending, it reads the bytes of the file as they are.
 */
export function checkEncoding(encoding, { mend }) {
  const name = new TextDecoder(encoding).encoding;
  if (mend || !WITH_HIDDEN_BACKSLASHES.includes(name)) return;
  throw new RangeError(
    `Texts in ${encoding} can only be read with mending, because a backslash or a quotation mark ` +
      "may be a part of another character there: leave out mend: false.",
  );
}
