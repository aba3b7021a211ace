#pragma once
// The value editor without its window: which node a tree path names
// (editpath.h), what the dialog offers for it and the nodes that act at once
// (editplan.h), and OK's store, send and read-back (editapply.h). The window and
// `selvane-cli set` both go through these.

#include "controller/editapply.h"
#include "controller/editpath.h"
#include "controller/editplan.h"
