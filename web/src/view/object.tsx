// SPDX-License-Identifier: MIT
import { useState } from "preact/hooks";

import type { Detail, Link, Links } from "../worker/answers.ts";
import { useAnswer } from "./answer.ts";
import { backend } from "./backend.ts";
import { ConversionView } from "./curve.tsx";
import { href } from "./route.ts";
import { Title } from "./title.tsx";
import { ObjectLink, Tree } from "./tree.tsx";
import { Values, type LinkOf } from "./value.tsx";
import { grouped } from "./words.ts";

const MOST_LINES = 400;
const MOST_JSON = 200_000;

function Referrers({ object, group }: { readonly object: number; readonly group: Links }) {
  const [links, setLinks] = useState<readonly Link[]>(group.links);
  const rest = group.total - links.length;
  const more = async (): Promise<void> => {
    const next = await backend.referrers(object, group.kind!, group.role, links.length);
    setLinks([...links, ...next]);
  };
  return (
    <div>
      <p class="role">
        {group.role} of <span class="kind">{group.kind}</span>{" "}
        <span class="quiet">{grouped(group.total)}</span>
      </p>
      <ul class="links">
        {links.map((link, i) => (
          <li key={i}>
            <ObjectLink link={link} />
          </li>
        ))}
      </ul>
      {rest > 0 && (
        <button type="button" onClick={() => void more()}>
          Show more of the remaining {grouped(rest)}
        </button>
      )}
    </div>
  );
}

function Source({ first, last }: { readonly first: number; readonly last: number }) {
  const count = Math.min(last - first + 1, MOST_LINES);
  const lines = useAnswer(() => backend.lines("source", first, count), [first, count]) ?? [];
  return (
    <>
      <p>
        <a href={href({ view: "source", number: first })}>
          {first === last ? `Line ${first}` : `Lines ${first} to ${last}`} in the whole file
        </a>
      </p>
      <div class="code scroll" tabIndex={0} role="region" aria-label="Lines of the source">
        {lines.map((line, i) => (
          <div key={i}>
            <span class="number">{first + i}</span>
            {line}
          </div>
        ))}
      </div>
      {last - first + 1 > count && (
        <p class="quiet">and {grouped(last - first + 1 - count)} more</p>
      )}
    </>
  );
}

/** Links of the names that are the value of one key. */
function linkIn(detail: Detail): LinkOf {
  const known = new Map<string, Link>();
  for (const { links } of detail.to) for (const link of links) known.set(link.name, link);
  return (key, value) => {
    if (key === "FNAME" || key === "FLONG_IDENTIFIER") return value;
    const names = value.split(",");
    if (!names.some((name) => known.has(name))) return value;
    return names.map((name, i) => {
      const object = known.get(name)?.object ?? null;
      return (
        <>
          {i > 0 && ", "}
          {object === null ? name : <a href={href({ view: "object", number: object })}>{name}</a>}
        </>
      );
    });
  };
}

export function ObjectView({ object }: { readonly object: number }) {
  const detail = useAnswer(() => backend.detail(object), [object]);
  if (detail === null) return <p class="quiet">…</p>;

  const { row, values, json, place, to, from, shown, unit, module } = detail;
  const isFolder = row.kind === "GROUP" || row.kind === "FUNCTION";
  const isConversion = row.kind.startsWith("COMPU_");
  const conversion = shown !== null &&
    (shown.curve.length > 0 || shown.table.length > 0 || shown.rule !== "") && (
      <section key="conversion" aria-labelledby="conversion">
        <h3 id="conversion">Conversion</h3>
        <ConversionView shown={shown} />
      </section>
    );
  const valueList = (
    <section key="values" aria-labelledby="values">
      <h3 id="values">Values</h3>
      {values !== null && typeof values === "object" && !Array.isArray(values) ? (
        <Values value={values} unit={unit} units={detail.units} linkOf={linkIn(detail)} />
      ) : (
        <pre tabIndex={0} aria-labelledby="values">
          {String(values)}
        </pre>
      )}
    </section>
  );
  return (
    <article key={detail.row.object} aria-labelledby="title">
      <p class="kind">{row.kind}</p>
      <Title>{row.name || row.kind}</Title>
      {row.text !== "" && <p class="text">{row.text}</p>}
      <p class="quiet">
        in module {module}
        {row.address !== "" && <> · address {row.address}</>}
        {unit !== "" && <> · unit {unit}</>}
      </p>

      {isConversion ? [conversion, valueList] : isFolder ? null : [valueList, conversion]}

      {isFolder ? (
        <section aria-labelledby="tree">
          <h3 id="tree">What is in it</h3>
          <Tree parts={to} />
        </section>
      ) : (
        to.length > 0 && (
          <section aria-labelledby="to">
            <h3 id="to">Refers to</h3>
            {to.map(({ role, links }) => (
              <div key={role}>
                <p class="role">{role}</p>
                <ul class="links">
                  {links.slice(0, MOST_LINES).map((link, i) => (
                    <li key={i}>
                      {link.kind !== null && <span class="kind">{link.kind}</span>}{" "}
                      <ObjectLink link={link} />
                    </li>
                  ))}
                </ul>
              </div>
            ))}
          </section>
        )
      )}

      <section aria-labelledby="from">
        <h3 id="from">Referred to by</h3>
        {from.length === 0 && <p class="quiet">Nothing refers to it.</p>}
        {from.map((group) => (
          <Referrers key={`${group.kind} ${group.role}`} object={row.object} group={group} />
        ))}
      </section>

      {isFolder && valueList}

      <section aria-labelledby="source">
        <h3 id="source">Source</h3>
        {place === null ? (
          <p class="quiet">
            Its lines could not be found: its name may be written in another way.
          </p>
        ) : (
          <Source {...place} />
        )}
      </section>

      <section aria-labelledby="json">
        <h3 id="json">JSON</h3>
        <details>
          <summary>Show the JSON as it is</summary>
          <pre tabIndex={0} aria-label="JSON">
            {json.slice(0, MOST_JSON)}
          </pre>
          {json.length > MOST_JSON && <p class="quiet">It is cut off here: save the JSON.</p>}
        </details>
      </section>
    </article>
  );
}
