// SPDX-License-Identifier: MIT
//
// The beginning and the end of a process, which differ from system to system.
#pragma once

namespace a2l {

/// To be called first in main. Afterwards, on systems with wide characters, the arguments are
/// UTF-8; on others they stay as they are. Standard output and error pass every byte on unchanged,
/// and a console shows the bytes as UTF-8. If standard output is a pipe that nobody reads any more,
/// the process goes on.
void BeginProcess(int& argc, char**& argv);

/// Whether standard error is a terminal.
bool ErrorsAreSeen();

/// Ends the process without destroying anything. Output that was not flushed is lost.
[[noreturn]] void EndAtOnce(int code);

}  // namespace a2l
