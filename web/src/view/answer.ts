// SPDX-License-Identifier: MIT
import { useEffect, useState } from "preact/hooks";

/**
 * What the worker answers to `ask`; null until it does. It is asked anew where one of `about` is
 * another, and the answer before stays until then.
 */
export function useAnswer<T>(ask: () => Promise<T>, about: readonly unknown[]): T | null {
  const [answer, setAnswer] = useState<T | null>(null);
  useEffect(() => {
    let isWanted = true;
    void ask().then((got) => isWanted && setAnswer(got));
    return () => void (isWanted = false);
  }, about);
  return answer;
}
