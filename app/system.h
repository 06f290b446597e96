// SPDX-License-Identifier: MIT
//
// Where a process begins and ends differently from system to system.
#pragma once

namespace a2l {

/// Called first in main. From here on the arguments are UTF-8 where the system has wide
/// characters, and the same as before elsewhere; standard output passes every byte on as it is,
/// and a console takes it as UTF-8. A pipe at standard output that nobody reads any more does not
/// end the process.
void BeginProcess(int& argc, char**& argv);

/// Ends the process without tearing anything down. Only texts that were flushed come out.
[[noreturn]] void EndAtOnce(int code);

}  // namespace a2l
