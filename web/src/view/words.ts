// SPDX-License-Identifier: MIT

const whole = new Intl.NumberFormat("en");

/** A number as people read it, as in "205,113". */
export const grouped = (value: number): string => whole.format(value);

/** "1 object", "3 objects". */
export const counted = (count: number, one: string, many = `${one}s`): string =>
  `${grouped(count)} ${count === 1 ? one : many}`;

/** "1.0 MB". */
export const sized = (bytes: number): string =>
  bytes < 1e6 ? `${(bytes / 1e3).toFixed(1)} kB` : `${(bytes / 1e6).toFixed(1)} MB`;

/** A key without its "F": the name that stands in the A2L file. */
export const keyword = (key: string): string => key.replace(/^F(?!F*$)/, "");
