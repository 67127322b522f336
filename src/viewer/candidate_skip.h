// For the search by characters: passes over the characters that cannot begin a
// match, without decoding them.
#pragma once

#include "viewer/match_filter.h"
#include "viewer/sure_text.h"
#include "viewer/text_file.h"

// Only in sure text; elsewhere nothing is passed over.
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

  CTextFile& file;
  const bool reverse;
  const int unit;  // bytes of a character; 0 for UTF-8
  SureText sureText;
  const MatchFilter filter;
  int64_t sureUntil;  // from here, in the direction of reading, nothing is known
};
