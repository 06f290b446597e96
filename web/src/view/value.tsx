// SPDX-License-Identifier: MIT
//
// The values of an object, whatever they are.
import type { ComponentChildren } from "preact";

import type { Json } from "../model/json_text.ts";
import { keyword } from "./words.ts";

/** Whether a value says that the file has nothing. */
export const isAbsent = (value: Json): boolean =>
  value === null || value === false || value === "" || (Array.isArray(value) && value.length === 0);

// Physical values have the unit of the object.
const WITH_UNIT = new Set(["FLOWER_LIMIT", "FUPPER_LIMIT", "FSTEP_SIZE", "FMAX_DIFF", "FMAX_GRAD"]);
const BITS = new Set(["FBIT_MASK", "FERROR_MASK"]);
const MOST_ITEMS = 500;
const MOST_SIGNS = 20_000;

/** The link of a name in a key, or the name as it is. */
export type LinkOf = (key: string, name: string) => ComponentChildren;

interface Context {
  /** The unit of the object around. */
  readonly unit: string;
  /** Units by the names of conversions. */
  readonly units: { readonly [conversion: string]: string };
  readonly linkOf: LinkOf;
}

interface Props extends Context {
  readonly name: string;
  readonly value: Json;
}

function Leaf({ name, value, unit, linkOf }: Props) {
  if (value === null) return <span class="quiet">none</span>;
  if (value === true) return <>yes</>;
  if (value === false) return <>no</>;
  if (typeof value === "number" && BITS.has(name)) {
    return (
      <>
        {value} <span class="quiet">0x{(value >>> 0).toString(16).toUpperCase()}</span>
      </>
    );
  }
  if (typeof value === "number") {
    return <>{unit !== "" && WITH_UNIT.has(name) ? `${value} ${unit}` : String(value)}</>;
  }
  const text = String(value);
  if (/[\n\t]/.test(text) || text.length > 300) {
    return (
      <pre tabIndex={0} aria-label={keyword(name)}>
        {text.slice(0, MOST_SIGNS)}
        {text.length > MOST_SIGNS && " … see the JSON for the rest"}
      </pre>
    );
  }
  return <>{linkOf(name, text)}</>;
}

function Value(props: Props) {
  const { name, value, ...context } = props;
  if (Array.isArray(value)) {
    const isFlat = value.every((item) => item === null || typeof item !== "object");
    const shown = value.slice(0, MOST_ITEMS);
    const rest = value.length - shown.length;
    return (
      <>
        {isFlat ? (
          shown.map((item, i) => (
            <>
              {i > 0 && ", "}
              <Leaf {...props} value={item} />
            </>
          ))
        ) : (
          <ol class="items">
            {shown.map((item) => (
              <li>
                <Value {...props} value={item} />
              </li>
            ))}
          </ol>
        )}
        {rest > 0 && <p class="quiet">and {rest} more: see the JSON</p>}
      </>
    );
  }
  if (value !== null && typeof value === "object") {
    return <Values value={value} {...context} />;
  }
  return <Leaf name={name} value={value} {...context} />;
}

/** The members of an object that the file has. */
export function Values(props: Context & { readonly value: { [key: string]: Json } }) {
  const { value, ...context } = props;
  const conversion = value.FCONVERSION;
  const own =
    typeof value.FPHYS_UNIT === "string"
      ? value.FPHYS_UNIT
      : typeof conversion === "string"
        ? (context.units[conversion] ?? "")
        : context.unit;
  return (
    <dl class="values">
      {Object.entries(value)
        .filter(([, member]) => !isAbsent(member))
        .map(([key, member]) => (
          <div key={key}>
            <dt>{keyword(key)}</dt>
            <dd>
              <Value name={key} value={member} {...context} unit={own} />
            </dd>
          </div>
        ))}
    </dl>
  );
}
