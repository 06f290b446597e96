// SPDX-License-Identifier: MIT
//
// A conversion as a curve, drawn as SVG, and as a table that says the same.
import { extent, ticks } from "d3-array";

import type { Point, Shown } from "../model/conversion.ts";

const WIDTH = 560;
const HEIGHT = 280;
const LEFT = 76;
const RIGHT = 28;
const TOP = 14;
const BOTTOM = 44;

const short = (value: number): string => String(Number(value.toPrecision(6)));

function scale(values: number[], from: number, to: number): (value: number) => number {
  const [low = 0, high = 0] = extent(values);
  if (low === high) return () => (from + to) / 2;
  return (value) => from + ((value - low) / (high - low)) * (to - from);
}

function path(curve: readonly Point[], isStepped: boolean, x: Scale, y: Scale): string {
  return curve
    .map(({ raw, physical }, i) => {
      const [px, py] = [x(raw).toFixed(1), y(physical).toFixed(1)];
      if (i === 0) return `M${px},${py}`;
      return isStepped ? `M${px},${py}` : `L${px},${py}`;
    })
    .join("");
}

type Scale = (value: number) => number;

function Curve({ curve, isStepped, unit }: Shown) {
  const raws = curve.map(({ raw }) => raw);
  const physicals = curve.map(({ physical }) => physical);
  const x = scale(raws, LEFT, WIDTH - RIGHT);
  const y = scale(physicals, HEIGHT - BOTTOM, TOP);
  const [x0 = 0, x1 = 0] = extent(raws);
  const [y0 = 0, y1 = 0] = extent(physicals);
  const shown = unit === "" ? "" : ` ${unit}`;
  const isDotted = isStepped || curve.length <= 40;
  return (
    <svg
      class="curve"
      viewBox={`0 0 ${WIDTH} ${HEIGHT}`}
      role="img"
      aria-label={`Curve from raw ${short(x0)} to ${short(x1)}, physical ${short(y0)} to ${short(y1)}${shown}`}
    >
      {ticks(y0, y1, 5).map((value) => (
        <g key={`y${value}`}>
          <line class="grid" x1={LEFT} x2={WIDTH - RIGHT} y1={y(value)} y2={y(value)} />
          <text x={LEFT - 8} y={y(value) + 4} text-anchor="end">
            {short(value)}
          </text>
        </g>
      ))}
      {ticks(x0, x1, 6).map((value) => (
        <g key={`x${value}`}>
          <line class="grid" x1={x(value)} x2={x(value)} y1={TOP} y2={HEIGHT - BOTTOM} />
          <text x={x(value)} y={HEIGHT - BOTTOM + 18} text-anchor="middle">
            {short(value)}
          </text>
        </g>
      ))}
      <text x={(LEFT + WIDTH - RIGHT) / 2} y={HEIGHT - 6} text-anchor="middle" class="axis">
        raw
      </text>
      <text
        x={14}
        y={HEIGHT / 2}
        text-anchor="middle"
        class="axis"
        transform={`rotate(-90 14 ${HEIGHT / 2})`}
      >
        physical{unit === "" ? "" : ` [${unit}]`}
      </text>
      <path class="line" d={path(curve, isStepped, x, y)} />
      {isDotted &&
        curve.map(({ raw, physical }, i) => (
          <circle key={i} class="dot" cx={x(raw)} cy={y(physical)} r={3.5} />
        ))}
    </svg>
  );
}

export function ConversionView({ shown }: { readonly shown: Shown }) {
  const { rule, curve, table, unit } = shown;
  const rows = table.slice(0, 500);
  return (
    <div class="conversion">
      {rule !== "" && <p class={rule.includes(" = ") ? "rule" : undefined}>{rule}</p>}
      {curve.length >= 2 && <Curve {...shown} />}
      {rows.length > 0 && (
        <div class="scroll" tabIndex={0} role="region" aria-label="Table of the conversion">
          <table>
            <thead>
              <tr>
                <th scope="col">raw</th>
                <th scope="col">{unit === "" ? "physical" : `physical [${unit}]`}</th>
              </tr>
            </thead>
            <tbody>
              {rows.map(({ raw, value }, i) => (
                <tr key={i}>
                  <td>{raw}</td>
                  <td>{value}</td>
                </tr>
              ))}
            </tbody>
          </table>
          {table.length > rows.length && <p class="quiet">and {table.length - rows.length} more</p>}
        </div>
      )}
    </div>
  );
}
