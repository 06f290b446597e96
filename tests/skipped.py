#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""tests/skipped.py <JUnit file of ctest>: prints which tests were skipped, and why.

A GoogleTest program says why it skips a test. The scripts among the tests print "skipped: " and the
reason, even if they skip only a part of their work and pass.
"""

import re
import sys
import xml.etree.ElementTree as ElementTree

# What GoogleTest prints: the place of the GTEST_SKIP, the reason, and the name of the test.
SKIPPED = re.compile(r"^\S+:\d+: Skipped\n(.*?)\n+\[  SKIPPED \] (\S+)", re.MULTILINE | re.DOTALL)
SCRIPT = re.compile(r"^skipped: (.+)$", re.MULTILINE)


def skips(case):
    """The pairs of name and reason that one test of ctest gives."""
    name = case.get("name")
    output = case.findtext("system-out", "")
    found = [(test, " ".join(reason.split())) for reason, test in SKIPPED.findall(output)]
    found += [(name, reason) for reason in SCRIPT.findall(output)]
    if not found and case.find("skipped") is not None:
        found = [(name, case.find("skipped").get("message") or "no reason is given")]
    return found


def main():
    cases = ElementTree.parse(sys.argv[1]).getroot().iter("testcase")
    found = [skip for case in cases for skip in skips(case)]
    print("\nNothing was skipped." if not found else "\nSkipped, and why:")
    for name, reason in found:
        print(f"  {name}: {reason}")


if __name__ == "__main__":
    main()
