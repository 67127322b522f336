// Rows of a directory tree: each stands behind the lines that lead to it.
#pragma once

#include "console/cell_string.h"
#include "panels/panel.h"

// Rows of the tree dialog, which are no panel's.
constexpr int kStyleTreeDialog = 6;
constexpr int kTreeDialogWidth = 70;

// A row's depth; the root's is 0.
inline int TreeDepth(const entry& e) { return e.sizeKnown; }

// Two cells for each level above e, in the row's default attribute.
void AppendTreeLines(CellString& row, const entry& e);

// The whole path of a row, found by the rows above it; empty for a wild index.
Westring TreeRowPath(const TPanel& panel, int index);
