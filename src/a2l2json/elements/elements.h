// SPDX-License-Identifier: MIT
//
// Every element class.
#pragma once

#include "a2l2json/elements/blocks/characteristic.h"
#include "a2l2json/elements/blocks/conversion.h"
#include "a2l2json/elements/blocks/functions.h"
#include "a2l2json/elements/blocks/instance.h"
#include "a2l2json/elements/blocks/measurement.h"
#include "a2l2json/elements/blocks/other.h"
#include "a2l2json/elements/blocks/project.h"
#include "a2l2json/elements/blocks/raw.h"
#include "a2l2json/elements/blocks/record_layout.h"
#include "a2l2json/elements/blocks/variant_coding.h"
#include "a2l2json/elements/properties/choices.h"
#include "a2l2json/elements/properties/flags.h"
#include "a2l2json/elements/properties/identifiers.h"
#include "a2l2json/elements/properties/lists.h"
#include "a2l2json/elements/properties/numbers.h"
#include "a2l2json/elements/properties/record_layout_entries.h"
#include "a2l2json/elements/properties/texts.h"
