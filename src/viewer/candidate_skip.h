// For the search by characters: passes over the characters that cannot begin a
// match, without decoding them.
#pragma once

#include "viewer/match_filter.h"
#include "viewer/text_file.h"

// Only over sure text, in which every character has the one form in bytes that
// belongs to it: there the bytes tell what the characters are. Elsewhere - a
// stray byte, a character that is cut off or longer than it has to be - nothing
// is passed over.
class CandidateSkip {
 public:
  // pattern: in the order of reading, folded unless caseSensitive.
  CandidateSkip(CTextFile& file, const Westring& pattern, bool caseSensitive, bool reverse);

  // Moves the file's Position in the direction of reading to the next character
  // that may begin a match or is not known; true if it moved.
  bool Move() { return reverse ? MoveBack() : MoveOn(); }

 private:
  bool MoveOn();
  bool MoveBack();
  // Whether a character begins after distance bytes of sure text, and at a byte.
  bool IsBoundary(int distance, uint8_t byte) const;
  int SureLength(const uint8_t* bytes, int n) const;
  int SureLengthBack(const uint8_t* bytes, int n) const;

  CTextFile& file;
  const bool reverse;
  const int unit;  // bytes of a character; 0 for UTF-8
  const MatchFilter filter;
  int64_t sureUntil;  // from here, in the direction of reading, nothing is known
};
