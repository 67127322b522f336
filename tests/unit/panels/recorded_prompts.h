// Messages that the user would have got. The unit tests have no screen, so this
// binary answers prompts on its own; see failed_read_test.cpp.
#pragma once

#include <string>
#include <vector>

struct RecordedPrompt {
  std::string text, detail;
  bool operator==(const RecordedPrompt&) const = default;
};

extern std::vector<RecordedPrompt> RecordedPrompts;
