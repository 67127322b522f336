// Going to a line or to an offset.
#pragma once

#include "viewer/viewer.h"

constexpr int kWholeSearchString = -1;  // instead of a number of cells

// The line that holds offset becomes visible, with so many cells marked from there
// on.
void ShowOffset(CViewer& viewer, int64_t offset, int cells);

// Whether the file has a byte at offset by now.
bool Reaches(CViewer& viewer, int64_t offset);

struct LineWalk {
  enum End { kArrived, kFileEnded, kStopped } end;
  int64_t offset;  // behind the last of the lines
  int64_t lines;   // gone
};

// From the beginning over so many lines. The user may stop it.
LineWalk WalkLines(CViewer& viewer, int64_t lines);

// Both ask where to go.
void GotoLine(CViewer& viewer);
void GotoOffset(CViewer& viewer);
