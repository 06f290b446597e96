// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "a2l2json/model/element.h"

namespace a2l::bench {

/// Says what is wrong with the document of `root` in the file at `path`. Empty if its bytes are
/// those of the document, and a JSON reader that shares no code with the export accepts them.
std::string Complaint(const std::string& path, const VoA2LElement& root);

}  // namespace a2l::bench
