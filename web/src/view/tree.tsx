// SPDX-License-Identifier: MIT
//
// A group or function and what is in it, as lists in lists. What is in a part is asked for when a
// person opens it, so groups may hold each other.
import { useState } from "preact/hooks";

import type { Link, Links } from "../worker/answers.ts";
import { backend } from "./backend.ts";
import { href } from "./route.ts";
import { grouped } from "./words.ts";

const PORTION = 200;
const FOLDERS = new Set(["GROUP", "FUNCTION"]);

export function ObjectLink({ link }: { readonly link: Link }) {
  if (link.object === null) {
    return (
      <>
        {link.name} <span class="quiet">(not in this file)</span>
      </>
    );
  }
  return (
    <>
      <a href={href({ view: "object", number: link.object })}>{link.name || link.kind}</a>
      {link.text !== "" && <span class="quiet"> {link.text}</span>}
    </>
  );
}

function Folder({ link }: { readonly link: Link }) {
  const [parts, setParts] = useState<readonly Links[] | null>(null);
  return (
    <details
      onToggle={(event) => {
        if (event.currentTarget.open && parts === null) {
          void backend.to(link.object!).then(setParts);
        }
      }}
    >
      <summary>
        <span class="kind">{link.kind}</span> {link.name}
        {link.text !== "" && <span class="quiet"> {link.text}</span>}
      </summary>
      <p class="self">
        <a href={href({ view: "object", number: link.object! })}>Open {link.name}</a>
      </p>
      {parts !== null && <Tree parts={parts} />}
    </details>
  );
}

export function Nodes({ links }: { readonly links: readonly Link[] }) {
  const [shown, setShown] = useState(PORTION);
  const rest = links.length - shown;
  return (
    <>
      <ul class="tree">
        {links.slice(0, shown).map((link, i) => (
          <li key={i}>
            {link.object !== null && FOLDERS.has(link.kind ?? "") ? (
              <Folder link={link} />
            ) : (
              <ObjectLink link={link} />
            )}
          </li>
        ))}
      </ul>
      {rest > 0 && (
        <button type="button" onClick={() => setShown(shown + 5 * PORTION)}>
          Show more of the remaining {grouped(rest)}
        </button>
      )}
    </>
  );
}

export function Tree({ parts }: { readonly parts: readonly Links[] }) {
  if (parts.length === 0) return <p class="quiet">Nothing is in it.</p>;
  return (
    <>
      {parts.map(({ role, total, links }) => (
        <div key={role}>
          <p class="role">
            {role} <span class="quiet">{grouped(total)}</span>
          </p>
          <Nodes links={links} />
        </div>
      ))}
    </>
  );
}
