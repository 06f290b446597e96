// SPDX-License-Identifier: MIT
//
// Every element class.
#pragma once

#include "elements/blocks/characteristic.h"
#include "elements/blocks/conversion.h"
#include "elements/blocks/functions.h"
#include "elements/blocks/instance.h"
#include "elements/blocks/measurement.h"
#include "elements/blocks/other.h"
#include "elements/blocks/project.h"
#include "elements/blocks/raw.h"
#include "elements/blocks/record_layout.h"
#include "elements/blocks/variant_coding.h"
#include "elements/properties/choices.h"
#include "elements/properties/flags.h"
#include "elements/properties/identifiers.h"
#include "elements/properties/lists.h"
#include "elements/properties/numbers.h"
#include "elements/properties/record_layout_entries.h"
#include "elements/properties/texts.h"
