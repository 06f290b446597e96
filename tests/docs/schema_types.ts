// SPDX-License-Identifier: MIT
//
// Uses the types that are made from docs/json.schema.json as a user would. Each line below
// "@ts-expect-error" must be an error.
import type { ADocumentOfA2L2Json, MEASUREMENT } from "./document";

export function addresses(document: ADocumentOfA2L2Json): string[] {
  return document.FModules.flatMap((module) =>
    module.FMEASUREMENT.map((measurement) => measurement.FECU_ADDRESS ?? "none"),
  );
}

export function unit(measurement: MEASUREMENT): string | null {
  // @ts-expect-error: no such key
  measurement.FPHYSICAL_UNIT;
  // @ts-expect-error: the address may be null
  measurement.FECU_ADDRESS.length;
  // @ts-expect-error: no such word
  if (measurement.FDATATYPE === "FLOAT") return null;
  return measurement.FDATATYPE === "FLOAT32_IEEE" ? measurement.FPHYS_UNIT : null;
}
