// SPDX-License-Identifier: MIT
import { useCallback, useEffect, useState } from "preact/hooks";

import { KINDS } from "../model/kinds.ts";
import type { Link, Summary } from "../worker/answers.ts";
import { backend } from "./backend.ts";
import { List } from "./list.tsx";
import { go } from "./route.ts";
import { Title } from "./title.tsx";
import { Nodes } from "./tree.tsx";
import { counted, grouped, sized } from "./words.ts";

interface Message {
  readonly line: number;
  readonly label: string;
  readonly text: string;
  readonly isBad: boolean;
}

function Messages(props: {
  readonly label: string;
  readonly messages: readonly Message[];
}) {
  const { label, messages } = props;
  const load = useCallback(
    (first: number, count: number) => Promise.resolve(messages.slice(first, first + count)),
    [messages],
  );
  return (
    <div class="messages" style={{ height: `${Math.min(messages.length, 7) * 3.25 + 0.2}rem` }}>
      <List<Message>
        label={label}
        count={messages.length}
        version={messages}
        load={load}
        opened={null}
        open={(i) => go({ view: "source", number: messages[i]!.line })}
        draw={({ line, label: word, text, isBad }) => (
          <>
            <span class="top">
              <span class={isBad ? "bad" : "mild"}>{word}</span> line {grouped(line)}
            </span>
            <span class="sub">{text}</span>
          </>
        )}
      />
    </div>
  );
}

function Roots({ kind, title }: { readonly kind: "GROUP" | "FUNCTION"; readonly title: string }) {
  const [roots, setRoots] = useState<readonly Link[] | null>(null);
  return (
    <details
      onToggle={(event) => {
        if (event.currentTarget.open && roots === null) void backend.roots(kind).then(setRoots);
      }}
    >
      <summary>{title}</summary>
      {roots !== null && <Nodes links={roots} />}
    </details>
  );
}

function Facts({ facts }: { readonly facts: readonly (readonly [string, string])[] }) {
  return (
    <dl class="values">
      {facts
        .filter(([, value]) => value !== "")
        .map(([name, value]) => (
          <div key={name}>
            <dt>{name}</dt>
            <dd>{value}</dd>
          </div>
        ))}
    </dl>
  );
}

export function Overview(props: {
  readonly summary: Summary;
  readonly showKind: (kind: number) => void;
}) {
  const { summary, showKind } = props;
  const { head, trouble, diagnostics, findings, counts } = summary;
  const [shown, setShown] = useState<{ problems: Message[]; found: Message[] } | null>(null);
  useEffect(() => {
    setShown({
      problems: diagnostics.map(({ line, severity, text }) => ({
        line,
        label: severity,
        text,
        isBad: severity === "error",
      })),
      found: findings.map(({ line, rule, text, mended }) => ({
        line,
        label: mended ? "mended" : "lost",
        text: `${text} [${rule}]`,
        isBad: !mended,
      })),
    });
  }, [summary]);
  const total = counts.reduce((sum, count) => sum + count, 0);
  const saved = findings.filter(({ mended }) => mended).length;
  const lost = findings.length - saved;
  // In what is not an A2L file, no line is worth a look.
  const hasLines = summary.lines.source > 0;
  return (
    <article aria-labelledby="title">
      <Title>{head?.project || summary.name}</Title>
      {trouble !== null && (
        <p class="trouble" role="alert">
          {trouble.sentence}
        </p>
      )}
      {head !== null && (
        <>
          {head.projectText !== "" && <p class="text">{head.projectText}</p>}
          <Facts
            facts={[
              ["File", `${summary.name}, ${sized(summary.size)}`],
              ["Project version", head.projectVersion],
              ["Project number", head.projectNumber],
              ["Header", head.comment],
              ["ASAP2 version", head.asap2Version],
              ...head.modules.map(
                ({ name, text }) => ["Module", text === "" ? name : `${name}, ${text}`] as const,
              ),
              ["Objects", grouped(total)],
              [
                "References",
                summary.unfound === 0
                  ? "every name is in the file"
                  : `${counted(summary.unfound, "name")} of other objects ${summary.unfound === 1 ? "is" : "are"} not in the file`,
              ],
              ["Read in", `${summary.seconds.toFixed(1)} s by a2l2json ${summary.version}`],
            ]}
          />
        </>
      )}
      {hasLines && (head !== null || diagnostics.length > 0) && (
        <section aria-labelledby="messages">
          <h3 id="messages">Messages</h3>
          {diagnostics.length === 0 ? (
            <p class="quiet">None.</p>
          ) : (
            <>
              <p>{counted(diagnostics.length, "message")}. Choose one to see its line.</p>
              {shown !== null && <Messages label="Messages" messages={shown.problems} />}
            </>
          )}
        </section>
      )}
      {hasLines && (head !== null || findings.length > 0) && (
        <section aria-labelledby="findings">
          <h3 id="findings">Findings</h3>
          {findings.length === 0 ? (
            <p class="quiet">Nothing was lost, and nothing had to be mended.</p>
          ) : (
            <>
              <p>
                {saved > 0 &&
                  `${counted(saved, "value")} ${saved === 1 ? "is" : "are"} mended: the layout of the file would have lost ${saved === 1 ? "it" : "them"}. `}
                {lost > 0 && `${counted(lost, "value")} ${lost === 1 ? "is" : "are"} lost. `}
                Choose one to see its line.
              </p>
              {shown !== null && <Messages label="Findings" messages={shown.found} />}
            </>
          )}
        </section>
      )}
      {head !== null && (
        <>
          <section aria-labelledby="kinds">
            <h3 id="kinds">Objects by kind</h3>
            {total === 0 && <p class="quiet">There are none.</p>}
            <ul class="kinds">
              {KINDS.map(
                ({ name }, kind) =>
                  counts[kind]! > 0 && (
                    <li key={name}>
                      <button type="button" onClick={() => showKind(kind)}>
                        <span>{name}</span> <b>{grouped(counts[kind]!)}</b>
                      </button>
                    </li>
                  ),
              )}
            </ul>
          </section>
          <section aria-labelledby="trees">
            <h3 id="trees">Groups and functions</h3>
            <Roots key={`g${summary.seconds}`} kind="GROUP" title="Tree of groups" />
            <Roots key={`f${summary.seconds}`} kind="FUNCTION" title="Tree of functions" />
          </section>
        </>
      )}
    </article>
  );
}
