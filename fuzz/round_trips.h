// SPDX-License-Identifier: MIT
#pragma once

#include "a2l2json/model/element.h"

namespace a2l::fuzz {

/// True if the tree, written as A2L text and read again, must be written the same. That is not
/// promised for a tree with
///
/// - a TRANSFORMER, or a list of its objects that is not empty: their texts are written without
///   quotes;
/// - a CALIBRATION_HANDLE_TEXT, which is written under another keyword;
/// - an A2ML, which is written with an indentation that then counts as part of its text;
/// - a CALIBRATION_HANDLE or an ECU_CALIBRATION_OFFSET below 0, written as "0x-1A";
/// - a FORMAT without a text, which is an error;
/// - an enumeration without a word, or an empty name, because nothing is written in its place;
/// - a name with quotes that is not one quoted text, or was cut so that it ends with white space;
/// - a name or a line of kept text that holds the marks of a comment;
/// - a name of interface data that holds /begin or /end, or goes on over lines, if the first of
///   these ends with white space;
/// - a name that is a keyword, if it begins a line of a list;
/// - a text that ends with a backslash, because the quote behind it does not close the text;
/// - a table with more or fewer rows than declared;
/// - several version lines at the root, because their order is reversed.
///
/// Unknown blocks, and elements inside lists, are not written at all: the text is the same without
/// them.
bool RoundTrips(const VoA2LElement& root);

/// Removes from the tree everything for which that is not promised and everything that is not
/// written at all. Also forgets which objects are not valid, because the text does not say so. The
/// rest gives the same text and the same document again.
void KeepWhatRoundTrips(VoA2LElement& root);

}  // namespace a2l::fuzz
