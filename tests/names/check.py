#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: check.py [<C++ compiler>...]

Checks that macros of other people do no harm in the installed headers. names_begin.h sets aside the
macros that are names of ours, and names_end.h puts them back:

- both list the same names;
- a header with such a name includes the first one behind all others, and the second one at its end;
- no other name of the headers is a macro in the system's headers, as each compiler sees them: those
  of the C and C++ libraries, of POSIX and of Windows, as far as they are there.
"""

import pathlib
import re
import shutil
import subprocess
import sys

SRC = pathlib.Path(__file__).resolve().parents[2] / "src"
FACES = ["a2l2json/a2l2json.h", "a2l2json/export/json11_document.h"]
BEGIN, END = "a2l2json/names_begin.h", "a2l2json/names_end.h"
SYSTEM = """algorithm array bitset cfenv cmath cstdio ctime filesystem fstream functional istream memory
    random regex sstream string thread vector arpa/inet.h commctrl.h dirent.h elf.h endian.h fcntl.h
    inttypes.h langinfo.h limits.h locale.h math.h netdb.h netinet/in.h pthread.h signal.h shlobj.h
    stdio.h stdlib.h sys/file.h sys/ioctl.h sys/mman.h sys/param.h sys/resource.h sys/socket.h
    sys/stat.h sys/time.h sys/types.h sys/wait.h syslog.h termios.h time.h unistd.h winsock2.h
    ws2tcpip.h windows.h""".split()
OWN_INCLUDE = re.compile(r'^#include "(a2l2json/[^"]+)"$', re.M)
NOT_CODE = re.compile(r'"(?:\\.|[^"\\\n])*"|//[^\n]*|^#(?:pragma|undef|include|if|el|endif)[^\n]*', re.M)
NAME = re.compile(r"\b([A-Za-z]\w*)\b(\s*\()?")

complaints = []


def public_headers():
    found, open_ = [], list(FACES)
    while open_:
        header = open_.pop()
        if header in found or header in (BEGIN, END):
            continue
        found.append(header)
        open_ += OWN_INCLUDE.findall((SRC / header).read_text())
    return sorted(found)


def names_of(header):
    """The names in the code of a header, and whether one is followed by a parenthesis."""
    called = {}
    for name, parenthesis in NAME.findall(NOT_CODE.sub("", (SRC / header).read_text())):
        called[name] = called.get(name, False) or bool(parenthesis)
    return called


def check_pair(header, listed):
    text = (SRC / header).read_text()
    includes = OWN_INCLUDE.findall(text)
    wanted = sorted(listed.intersection(names_of(header)))
    guarded = BEGIN in includes and END in includes
    if wanted and not guarded:
        complaints.append(f"{header} names {', '.join(wanted)}: include {BEGIN} behind all others "
                          f"and {END} at its end")
    if guarded:
        own = [i for i in includes if not i.endswith(".def")]
        standard = text.rfind("#include <")
        if own[-2:] != [BEGIN, END] or standard > text.index(BEGIN):
            complaints.append(f"{header}: {BEGIN} is to be its last include, but for {END}")
        if not text.rstrip().endswith(f'#include "{END}"'):
            complaints.append(f"{header}: {END} is to stand at its end")


def macros(compiler):
    """The macros of a system: for each whether it has parameters, and what it stands for."""
    there = "".join(f"#if __has_include(<{i}>)\n#include <{i}>\n#endif\n" for i in SYSTEM)
    run = subprocess.run([compiler, "-std=gnu++20", "-w", "-dM", "-E", "-x", "c++", "-"], input=there,
                         capture_output=True, text=True, check=True)
    found = re.findall(r"^#define (\w+)(\()?(.*)$", run.stdout, re.M)
    return {name: (bool(parameters), text.strip()) for name, parameters, text in found}


def check_system(compiler, headers, listed):
    defined = macros(compiler)
    for header in headers:
        for name, called in names_of(header).items():
            has_parameters, text = defined.get(name, (True, name))
            if name in listed or text == name or (has_parameters and not called):
                continue
            complaints.append(f"{header}: {name} is a macro for {compiler}: list it in {BEGIN}")


def main():
    begin, end = ((SRC / header).read_text() for header in (BEGIN, END))
    pushed = re.findall(r'^#pragma push_macro\("(\w+)"\)\n#undef (\w+)$', begin, re.M)
    popped = re.findall(r'^#pragma pop_macro\("(\w+)"\)$', end, re.M)
    listed = {name for name, _ in pushed}
    if not listed or any(a != b for a, b in pushed) or sorted(popped) != sorted(listed):
        complaints.append(f"{BEGIN} and {END} do not have the same names")
    headers = public_headers()
    for header in headers:
        check_pair(header, listed)
    for compiler in sys.argv[1:]:
        if shutil.which(compiler):
            check_system(compiler, headers, listed)
        else:
            print(f"there is no {compiler} here: the macros of its system are not looked at")
    print("\n".join(complaints) or f"{len(headers)} headers, {len(listed)} names: all is well")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
