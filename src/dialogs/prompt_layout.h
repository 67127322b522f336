// The measures of a prompt's box, apart from any screen.
#pragma once

#include <vector>

#include "foundation/strings.h"

struct PromptLayout {
  static constexpr int kMostLines = 10;

  std::vector<Westring> lines;  // at least one
  Westring detail;              // shortened
  int width, height;            // of the box with its frame
};

// The lines of text: it breaks at line feeds, and where it is too long for the
// screen at blanks. What is left after ten lines is lost.
std::vector<Westring> SplitPromptText(const Westring& text, int screenColumns);

PromptLayout LayOutPrompt(const Westring& text, const Westring& detail, int buttonCells, int screenColumns);

// What the result of a prompt's dialog means: Enter is "y", and a negative one
// a blank.
int PromptAnswer(int result);
