// SPDX-License-Identifier: MIT
#pragma once

namespace a2l {

// What a2lmend returns. Scripts rely on these values.
enum MendExitCode { kNothingLost = 0, kFindings = 1, kTrouble = 2 };

}  // namespace a2l
