// SPDX-License-Identifier: MIT
#pragma once

#include "a2l2json/model/element.h"

namespace a2l::fuzz {

/// True when the tree, written as A2L text and read again, is promised to be written the same.
/// It is not where it holds
///
/// - a TRANSFORMER, or a list of its objects that is not empty: their texts are written without
///   quotes;
/// - a CALIBRATION_HANDLE_TEXT, which is written under another keyword;
/// - an A2ML, which is written with an indentation that then counts as part of its text;
/// - a CALIBRATION_HANDLE or an ECU_CALIBRATION_OFFSET below 0, written as "0x-1A";
/// - a FORMAT without a text, which is wrong;
/// - an enumeration without a word, or an empty name: nothing is written in its place;
/// - a name with quotes that is not one quoted text as a whole, or cut so that white space is last;
/// - a name or a line of kept text that holds the signs of a comment;
/// - a name of interface data that holds a marker, or goes on over lines, the first of which ends
///   with white space;
/// - a name that is a keyword, where it begins a line of a list;
/// - a text that ends with a backslash: the quote behind it does not close;
/// - a table whose rows are not as many as declared;
/// - several version lines at the root, whose order is turned round.
///
/// Unknown blocks, and what stands inside of lists, are not written at all: the text is the same
/// without them.
bool RoundTrips(const VoA2LElement& root);

/// Takes out of the tree whatever stands against that promise, and what is not written at all, and
/// forgets which objects were not valid, which the text does not say. What is left comes back
/// complete: the same text, the same document.
void KeepWhatRoundTrips(VoA2LElement& root);

}  // namespace a2l::fuzz
