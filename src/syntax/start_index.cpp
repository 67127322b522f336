// What may begin with a character; see start_index.h.
#include "syntax/start_index.h"

#include "foundation/fold.h"

bool MayBeginAt(const SyntaxStart& start, int place) {
  if (start.character == 0) return false;
  // Without case some letters of ASCII stand for others far from them.
  if (place == kSyntaxStarts - 1) return SyntaxStartOf(start.character) == place || !start.caseSensitive;
  const auto c = static_cast<wchar_t>(place);
  return start.character == c || (!start.caseSensitive && LowerChar(start.character) == LowerChar(c));
}
