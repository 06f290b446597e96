// SPDX-License-Identifier: MIT
//
// Lists as CSV: fields in quotes where they need them, lines that end as RFC 4180 says.

const cell = (value: string): string =>
  /[",\r\n]/.test(value) ? `"${value.replaceAll('"', '""')}"` : value;

export const csv = (rows: Iterable<readonly string[]>): string => {
  let out = "";
  for (const row of rows) out += `${row.map(cell).join(",")}\r\n`;
  return out;
};
