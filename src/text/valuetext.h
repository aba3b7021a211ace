#pragma once
// Value texts: the one place where the instrument's text becomes a number and a
// number becomes the text that the tree, the tables and the commands show.
// Everything here is a pure function of its arguments, except that the parsers
// set ValueValid and LevelToVolts asks the instrument through its query seam.
// Each family lives in a source of its own; this header gathers them for the
// many readers that use several.

#include "text/formatmask.h"
#include "text/valuetextformat.h"
#include "text/valuetextladder.h"
#include "text/valuetextlevel.h"
#include "text/valuetextmeasure.h"
#include "text/valuetextparse.h"
#include "text/valuetextprobe.h"
