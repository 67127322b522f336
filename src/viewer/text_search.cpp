// Search by characters in a text of any encoding: CTextFile::Search.
#include <algorithm>

#include "console/input.h"
#include "foundation/fold.h"
#include "viewer/candidate_skip.h"

namespace {

constexpr unsigned kStepsBetweenBreaks = 64;  // a step may pass over a whole block

constexpr int kEnd = -1;  // of the file, in the direction of reading

Westring Reversed(Westring text) {
  std::reverse(text.Text(), text.Text() + Length(text));
  return text;
}

Westring InReadingOrder(const Westring& text, bool caseSensitive, bool reverse) {
  const Westring pattern = caseSensitive ? text : Fold(text);
  return reverse ? Reversed(pattern) : pattern;
}

class CharacterSearch {
 public:
  CharacterSearch(CTextFile& file, const Westring& text, bool caseSensitive, bool wholeWord, bool reverse)
      : file(file),
        pattern(InReadingOrder(text, caseSensitive, reverse)),
        length(Length(pattern)),
        caseSensitive(caseSensitive),
        wholeWord(wholeWord),
        reverse(reverse),
        skip(file, pattern, caseSensitive, reverse) {}

  int64_t Run();  // from the file's Position on

 private:
  enum class Rest { Hit, Differs, PartOfWord, EndOfFile };

  int Read() { return reverse ? ReadBack() : file.GetChar(); }
  int ReadBack();
  int ReadBehind();
  bool IsBehindWord();
  bool IsInFrontOfWord();
  bool Equals(int ch, int i) const { return (caseSensitive ? ch : FoldChar(ch)) == pattern[i]; }
  Rest MatchRest();

  CTextFile& file;
  const Westring pattern;
  const int length;
  const bool caseSensitive, wholeWord, reverse;
  CandidateSkip skip;
  BreakScope breaks;
  int lastRead = kEnd;
};

// What cannot be read ends the text, where the reader would step over it.
int CharacterSearch::ReadBack() { return file.ByteAt(file.Position - 1) < 0 ? kEnd : file.PrevChar(); }

// The character on the other side of Position, the one read before. Backward, the
// reader would leave a start between two units for the units' true places.
int CharacterSearch::ReadBehind() {
  if (reverse) return file.GetChar();
  if (file.Encoding == kUtf8) return ReadBack();
  file.Position -= file.BytesPerUnit();
  return file.Position >= 0 ? file.GetChar() : kEnd;
}

bool CharacterSearch::IsBehindWord() {
  if (!wholeWord) return false;
  const int64_t position = file.Position;
  const int ch = ReadBehind();
  file.Position = position;
  return IsWordChar(ch);
}

bool CharacterSearch::IsInFrontOfWord() {
  if (!wholeWord) return false;
  const int64_t position = file.Position;
  const int ch = Read();
  file.Position = position;
  return IsWordChar(ch);
}

// After a character that equals the pattern's first.
CharacterSearch::Rest CharacterSearch::MatchRest() {
  for (int i = 1; i < length; ++i) {
    lastRead = Read();
    if (lastRead == kEnd) return Rest::EndOfFile;
    if (!Equals(lastRead, i)) return Rest::Differs;
  }
  return IsInFrontOfWord() ? Rest::PartOfWord : Rest::Hit;
}

int64_t CharacterSearch::Run() {
  bool behindWord = IsBehindWord();
  for (unsigned steps = 0;; ++steps) {
    if (steps % kStepsBetweenBreaks == 0 && breaks.Stopped()) return kSearchStopped;
    if (skip.Move()) behindWord = IsBehindWord();
    const int64_t begin = file.Position;
    const int first = lastRead = Read();
    if (first == kEnd) return kSearchNone;
    if (!behindWord && Equals(first, 0)) {
      const Rest rest = MatchRest();
      if (rest == Rest::Hit) return reverse ? file.Position : begin;
      if (rest == Rest::EndOfFile) return kSearchNone;
      if (rest == Rest::Differs) {  // a match may begin within what was read
        file.Position = begin;
        lastRead = Read();
      }
    }
    behindWord = wholeWord && IsWordChar(lastRead);
  }
}

}  // namespace

int64_t CTextFile::Search(const Westring& text, int64_t start, bool caseSensitive, bool wholeWord,
                          bool reverse) {
  if (Encoding == kUnknownEncoding) DetectEncoding();
  if (Encoding == kUnknownEncoding || text.IsEmpty()) return kSearchStopped;
  Position = start < 0 ? DataStart : start;
  return CharacterSearch(*this, text, caseSensitive, wholeWord, reverse).Run();
}
