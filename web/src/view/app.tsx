// SPDX-License-Identifier: MIT
import { useCallback, useEffect, useRef, useState } from "preact/hooks";

import { KINDS } from "../model/kinds.ts";
import type { Comparison, Progress, Row, Summary } from "../worker/answers.ts";
import { backend, onFailure, proxy, renamed, save } from "./backend.ts";
import { ChangeView, ComparisonView } from "./comparison.tsx";
import { List } from "./list.tsx";
import { ObjectView } from "./object.tsx";
import { Overview } from "./overview.tsx";
import { go, useRoute } from "./route.ts";
import { TextView } from "./text.tsx";
import { counted, grouped } from "./words.ts";

// ------------------------------------------------------------------------------------------------
// The list and its search

interface Found {
  readonly objects: Uint32Array;
  readonly counts: readonly number[];
}

/** The answer to the latest question; a question is asked only when the one before is answered. */
function useSearch(summary: Summary, query: string, kind: number | null): Found | null {
  const [found, setFound] = useState<Found | null>(null);
  const state = useRef({ isBusy: false, wanted: "" });
  useEffect(() => {
    const ask = async (): Promise<void> => {
      state.current.isBusy = true;
      let asked;
      do {
        asked = state.current.wanted;
        const [text, of] = JSON.parse(asked) as [string, number | null];
        const answer = await backend.search(text, of);
        if (asked === state.current.wanted) setFound(answer);
      } while (asked !== state.current.wanted);
      state.current.isBusy = false;
    };
    state.current.wanted = JSON.stringify([query, kind, summary.name, summary.seconds]);
    if (!state.current.isBusy) void ask();
  }, [summary, query, kind]);
  return found;
}

interface ObjectsProps {
  readonly summary: Summary;
  readonly kind: number | null;
  readonly setKind: (kind: number | null) => void;
  readonly opened: number | null;
}

function Objects({ summary, kind, setKind, opened }: ObjectsProps) {
  const [query, setQuery] = useState("");
  const found = useSearch(summary, query, kind);
  const objects = found?.objects ?? new Uint32Array();
  const load = useCallback(
    (first: number, count: number) => backend.rows([...objects.subarray(first, first + count)]),
    [objects],
  );
  const open = (index: number): void => {
    const object = objects[index];
    if (object !== undefined) go({ view: "object", number: object });
  };
  const saveCsv = async (): Promise<void> => {
    save(await backend.csv(query, kind), renamed(summary.name, ".csv"));
  };
  return (
    <section class="objects" aria-label="Objects">
      <div class="find">
        <label for="search">Search names, descriptions, addresses</label>
        <input
          id="search"
          type="search"
          autocomplete="off"
          spellcheck={false}
          value={query}
          onInput={(event) => setQuery(event.currentTarget.value)}
          onKeyDown={(event) => {
            if (event.key === "ArrowDown") {
              event.preventDefault();
              document.querySelector<HTMLElement>(".objects .list")?.focus();
            }
          }}
        />
        <label for="kind">Kind</label>
        <select
          id="kind"
          value={kind === null ? "" : String(kind)}
          onChange={({ currentTarget: { value } }) => setKind(value === "" ? null : Number(value))}
        >
          <option value="">All kinds</option>
          {KINDS.map(
            ({ name }, i) =>
              summary.counts[i]! > 0 && (
                <option key={name} value={String(i)}>
                  {name} ({grouped(found?.counts[i] ?? 0)})
                </option>
              ),
          )}
        </select>
      </div>
      <div class="count">
        <span role="status">{counted(objects.length, "object")}</span>
        <button type="button" onClick={() => void saveCsv()} disabled={objects.length === 0}>
          Save list as CSV
        </button>
      </div>
      <List<Row>
        label="Found objects"
        count={objects.length}
        version={objects}
        load={load}
        open={open}
        opened={opened === null ? null : objects.indexOf(opened)}
        draw={(row) => (
          <>
            <span class="top">
              <b>{row.name}</b> <span class="address">{row.address}</span>
            </span>
            <span class="sub">
              <span class="kind">{row.kind}</span> {row.text}
            </span>
          </>
        )}
      />
    </section>
  );
}

// ------------------------------------------------------------------------------------------------
// Opening and saving

function FileButton(props: {
  readonly label: string;
  readonly take: (file: File) => void;
  readonly isMain?: boolean;
}) {
  const input = useRef<HTMLInputElement>(null);
  return (
    <>
      <button
        type="button"
        class={props.isMain ? "primary" : undefined}
        onClick={() => input.current?.click()}
      >
        {props.label}
      </button>
      <input
        ref={input}
        type="file"
        hidden
        aria-label={props.label}
        onChange={({ currentTarget }) => {
          const file = currentTarget.files?.[0];
          if (file !== undefined) props.take(file);
          currentTarget.value = ""; // the same file may be chosen again
        }}
      />
    </>
  );
}

function SaveMenu({ summary, fail }: { readonly summary: Summary; fail: (text: string) => void }) {
  const menu = useRef<HTMLDetailsElement>(null);
  const give = (make: () => Promise<Blob>, ending: string) => async (): Promise<void> => {
    menu.current!.open = false;
    try {
      save(await make(), renamed(summary.name, ending));
    } catch (error) {
      fail(error instanceof Error ? error.message : String(error));
    }
  };
  const isRead = summary.head !== null;
  return (
    <details
      ref={menu}
      class="menu"
      onKeyDown={(event) => {
        if (event.key !== "Escape") return;
        menu.current!.open = false;
        menu.current!.querySelector("summary")!.focus();
      }}
      onFocusOut={(event) => {
        const to = event.relatedTarget as Node | null;
        if (to !== null && !menu.current!.contains(to)) menu.current!.open = false;
      }}
    >
      <summary>Save</summary>
      <ul>
        {isRead && (
          <li>
            <button type="button" onClick={give(() => backend.json("source"), ".json")}>
              JSON, as the program writes it
            </button>
          </li>
        )}
        {isRead && summary.lines.mended > 0 && (
          <li>
            <button type="button" onClick={give(() => backend.json("mended"), ".mended.json")}>
              JSON of the mended text
            </button>
          </li>
        )}
        {summary.lines.mended > 0 && (
          <li>
            <button type="button" onClick={give(() => backend.mended(), ".mended.a2l")}>
              Mended A2L
            </button>
          </li>
        )}
      </ul>
    </details>
  );
}

// ------------------------------------------------------------------------------------------------
// The page

export function App() {
  const route = useRoute();
  const [summary, setSummary] = useState<Summary | null>(null);
  const [comparison, setComparison] = useState<Comparison | null>(null);
  const [busy, setBusy] = useState<string | null>(null);
  const [fault, setFault] = useState<string | null>(null);
  const [kind, setKind] = useState<number | null>(null);
  const [isOver, setIsOver] = useState(false);
  const isBusy = useRef(false);
  const isShown = summary !== null && summary.head !== null;

  const work = async (name: string, run: (progress: Progress) => Promise<void>) => {
    if (isBusy.current) return;
    isBusy.current = true;
    setFault(null);
    setBusy(`Opening ${name}`);
    try {
      // A step may be told when all is done: it comes by another way than the result.
      await run((step) => isBusy.current && setBusy(`${name}: ${step}`));
    } catch (error) {
      setFault(error instanceof Error ? error.message : String(error));
    } finally {
      isBusy.current = false;
      setBusy(null);
    }
  };
  const open = (file: File): void =>
    void work(file.name, async (progress) => {
      setSummary(null);
      setComparison(null);
      setKind(null);
      go({ view: "overview" });
      setSummary(await backend.open(file, proxy(progress)));
    });
  const compare = (file: File): void =>
    void work(file.name, async (progress) => {
      setComparison(await backend.compareWith(file, proxy(progress)));
      go({ view: "comparison" });
    });

  useEffect(() => {
    const over = (event: DragEvent): void => {
      event.preventDefault();
      setIsOver(true);
    };
    const leave = (event: DragEvent): void => {
      if (event.relatedTarget === null) setIsOver(false);
    };
    const drop = (event: DragEvent): void => {
      event.preventDefault();
      setIsOver(false);
      const file = event.dataTransfer?.files[0];
      if (file !== undefined) open(file);
    };
    addEventListener("dragover", over);
    addEventListener("dragleave", leave);
    addEventListener("drop", drop);
    return () => {
      removeEventListener("dragover", over);
      removeEventListener("dragleave", leave);
      removeEventListener("drop", drop);
    };
  }, []);

  useEffect(
    () =>
      onFailure((sentence) => {
        isBusy.current = false;
        setBusy(null);
        setFault(sentence);
      }),
    [],
  );

  useEffect(() => {
    document.title = summary === null ? "a2l2json" : `${summary.name} – a2l2json`;
  }, [summary]);

  const content = () => {
    if (summary === null) return null;
    if (route.view === "object" && isShown) return <ObjectView object={route.number} />;
    if (route.view === "comparison" && comparison !== null) {
      return <ComparisonView comparison={comparison} name={summary.name} />;
    }
    if (route.view === "change" && comparison !== null) return <ChangeView number={route.number} />;
    if ((route.view === "source" || route.view === "mended") && summary.lines[route.view] > 0) {
      return (
        <TextView
          key={route.view}
          text={route.view}
          count={summary.lines[route.view]}
          line={Math.max(1, Math.min(route.number, summary.lines[route.view]))}
        />
      );
    }
    return <Overview summary={summary} showKind={setKind} />;
  };

  return (
    <div class={isOver ? "page over" : "page"}>
      <header>
        <h1>a2l2json</h1>
        {summary !== null && <span class="file">{summary.name}</span>}
        {summary !== null && (
          <nav aria-label="Views">
            <a href="#overview" aria-current={route.view === "overview" ? "page" : undefined}>
              Overview
            </a>
            {summary.lines.source > 0 && (
              <a href="#source=1" aria-current={route.view === "source" ? "page" : undefined}>
                Source
              </a>
            )}
            {summary.lines.mended > 0 && (
              <a href="#mended=1" aria-current={route.view === "mended" ? "page" : undefined}>
                Mended text
              </a>
            )}
            {comparison !== null && (
              <a href="#comparison" aria-current={route.view === "comparison" ? "page" : undefined}>
                Comparison
              </a>
            )}
          </nav>
        )}
        <div class="actions">
          {summary !== null && <FileButton label="Open file" take={open} />}
          {isShown && <FileButton label="Compare with earlier file" take={compare} />}
          {summary !== null && (isShown || summary.lines.mended > 0) && (
            <SaveMenu summary={summary} fail={setFault} />
          )}
        </div>
      </header>

      <div class="status" role="status">
        {busy !== null && (
          <p class="busy">
            <progress aria-label="Working" /> {busy}
          </p>
        )}
      </div>
      {fault !== null && (
        <p class="trouble" role="alert">
          {fault}
        </p>
      )}

      {summary === null ? (
        <main class="empty">
          {busy === null && (
            <div class="drop">
              <h2>What is in an A2L file</h2>
              <p>Drop a file here, or choose one. Nothing leaves this machine.</p>
              <FileButton label="Open an A2L file" take={open} isMain />
              <p class="quiet">
                Search its objects, follow their references, see conversions as curves, compare two
                files, and save the JSON.
              </p>
            </div>
          )}
        </main>
      ) : (
        <main class={`loaded ${route.view === "overview" ? "at-home" : "at-detail"}`}>
          {isShown && (
            <Objects
              key={`${summary.name} ${summary.seconds}`}
              summary={summary}
              kind={kind}
              setKind={setKind}
              opened={route.view === "object" ? route.number : null}
            />
          )}
          <div class="detail" tabIndex={-1}>
            {content()}
          </div>
        </main>
      )}
    </div>
  );
}
