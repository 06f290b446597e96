// SPDX-License-Identifier: MIT
//
// What the page asks its worker for, and gets.
import type { Diagnostic, Finding } from "a2l2json";

import type { Difference, State } from "../model/compare.ts";
import type { Shown } from "../model/conversion.ts";
import type { Head } from "../model/document.ts";
import type { Json } from "../model/json_text.ts";
import type { Place } from "../model/source.ts";

export type Text = "source" | "mended";
export type Side = "main" | "other";
export type Progress = (step: string) => void;

/** Why a file cannot be shown. */
export interface Trouble {
  readonly sentence: string;
  readonly code: string;
}

export interface Summary {
  readonly name: string;
  readonly size: number;
  readonly trouble: Trouble | null;
  readonly head: Head | null;
  /** Objects by the number of their kind. */
  readonly counts: readonly number[];
  readonly unfound: number;
  readonly diagnostics: readonly Diagnostic[];
  readonly findings: readonly Finding[];
  /** Lines of each text; 0 where there is none. */
  readonly lines: { readonly [text in Text]: number };
  readonly seconds: number;
  readonly version: string;
}

export interface Row {
  readonly object: number;
  readonly kind: string;
  readonly name: string;
  readonly text: string;
  readonly address: string;
}

export interface Link {
  readonly name: string;
  readonly kind: string | null;
  readonly text: string;
  /** Null where nothing of that name is in the file. */
  readonly object: number | null;
}

export interface Links {
  readonly role: string;
  /** The kind of those that refer; null for what is referred to. */
  readonly kind: string | null;
  readonly total: number;
  readonly links: readonly Link[];
}

export interface Detail {
  readonly row: Row;
  readonly module: string;
  readonly values: Json;
  readonly json: string;
  readonly place: Place | null;
  readonly to: readonly Links[];
  readonly from: readonly Links[];
  readonly shown: Shown | null;
  readonly unit: string;
  /** The units of the conversions that it refers to, by their names. */
  readonly units: { readonly [conversion: string]: string };
}

export interface ChangeRow {
  readonly state: State;
  readonly kind: string;
  readonly name: string;
  readonly text: string;
}

export interface Comparison {
  readonly name: string;
  readonly trouble: Trouble | null;
  readonly counts: { readonly [state in State]: number };
}

export interface ChangeDetail extends ChangeRow {
  readonly before: Json | undefined;
  readonly after: Json | undefined;
  readonly differences: readonly Difference[];
  /** The object in the file that is shown; null where it went. */
  readonly object: number | null;
}
