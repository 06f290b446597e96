// SPDX-License-Identifier: MIT
import { useCallback, useState } from "preact/hooks";

import type { State } from "../model/compare.ts";
import type { Json } from "../model/json_text.ts";
import type { ChangeRow, Comparison } from "../worker/answers.ts";
import { useAnswer } from "./answer.ts";
import { backend, renamed, save } from "./backend.ts";
import { List } from "./list.tsx";
import { go, href } from "./route.ts";
import { Title } from "./title.tsx";
import { counted, grouped, keyword } from "./words.ts";

const STATES: readonly State[] = ["came", "went", "changed"];
const NONE = new Uint32Array();

interface Props {
  readonly comparison: Comparison;
  readonly name: string;
}

export function ComparisonView({ comparison, name }: Props) {
  const [states, setStates] = useState<readonly State[]>(STATES);
  const [query, setQuery] = useState("");
  const about = [states, query, comparison];
  const found = useAnswer(() => backend.changes(states, query), about) ?? NONE;
  const load = useCallback(
    (first: number, count: number) => backend.changeRows([...found.subarray(first, first + count)]),
    [found],
  );
  const total = STATES.reduce((sum, state) => sum + comparison.counts[state], 0);
  const saveCsv = async (): Promise<void> => {
    save(await backend.changesCsv(states, query), renamed(name, ".changes.csv"));
  };
  return (
    <article class="whole" aria-labelledby="title">
      <Title>Comparison</Title>
      {comparison.trouble !== null ? (
        <p class="trouble" role="alert">
          {comparison.trouble.sentence}
        </p>
      ) : (
        <>
          <p>
            From <b>{comparison.name}</b> to <b>{name}</b>:{" "}
            {total === 0 ? "every object is the same." : counted(total, "difference") + "."}
          </p>
          <fieldset class="states">
            <legend>Show</legend>
            {STATES.map((state) => (
              <label key={state}>
                <input
                  type="checkbox"
                  checked={states.includes(state)}
                  onChange={(event) => {
                    const rest = states.filter((other) => other !== state);
                    setStates(event.currentTarget.checked ? [...rest, state] : rest);
                  }}
                />{" "}
                <span class={`state ${state}`}>{state}</span> {grouped(comparison.counts[state])}
              </label>
            ))}
          </fieldset>
          <div class="find">
            <label for="find-change">Find among the differences</label>
            <input
              id="find-change"
              type="search"
              value={query}
              onInput={(event) => setQuery(event.currentTarget.value)}
            />
            <button type="button" onClick={() => void saveCsv()}>
              Save this list as CSV
            </button>
          </div>
          <p class="quiet" role="status">
            {counted(found.length, "object")}
          </p>
          <List<ChangeRow>
            label="Differences"
            count={found.length}
            version={found}
            load={load}
            opened={null}
            open={(i) => go({ view: "change", number: found[i]! })}
            draw={({ state, kind, name: object, text }) => (
              <>
                <span class="top">
                  <span class={`state ${state}`}>{state}</span> <b>{object}</b>
                </span>
                <span class="sub">
                  <span class="kind">{kind}</span> {text}
                </span>
              </>
            )}
          />
        </>
      )}
    </article>
  );
}

const shown = (value: Json | undefined): string =>
  value === undefined ? "" : typeof value === "string" ? value : JSON.stringify(value);

export function ChangeView({ number }: { readonly number: number }) {
  const change = useAnswer(() => backend.change(number), [number]);
  if (change === null) return <p class="quiet">…</p>;
  const { state, kind, name, text, object } = change;
  const one = change.before ?? change.after;
  const rows =
    state === "changed"
      ? change.differences
      : [{ path: "", before: change.before, after: change.after }];
  return (
    <article aria-labelledby="title">
      <p>
        <a href={href({ view: "comparison" })}>Back to the comparison</a>
      </p>
      <p class="kind">{kind}</p>
      <Title>
        {name || kind} <span class={`state ${state}`}>{state}</span>
      </Title>
      {text !== "" && <p class="text">{text}</p>}
      {object !== null && (
        <p>
          <a href={href({ view: "object", number: object })}>Open the object</a>
        </p>
      )}
      {state === "changed" ? (
        <div class="scroll" tabIndex={0} role="region" aria-label="What changed">
          <table class="differences">
            <thead>
              <tr>
                <th scope="col">value</th>
                <th scope="col">before</th>
                <th scope="col">now</th>
              </tr>
            </thead>
            <tbody>
              {rows.slice(0, 1000).map(({ path, before, after }) => (
                <tr key={path}>
                  <th scope="row">{path.split(" ").map(keyword).join(" ")}</th>
                  <td class="before">{shown(before)}</td>
                  <td class="after">{shown(after)}</td>
                </tr>
              ))}
            </tbody>
          </table>
        </div>
      ) : (
        <pre tabIndex={0} aria-label="JSON">
          {JSON.stringify(one, null, 2)}
        </pre>
      )}
    </article>
  );
}
