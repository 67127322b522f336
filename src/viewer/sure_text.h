// Text of which the bytes tell what the characters are.
#pragma once

#include <cstdint>
#include <vector>

// In sure text each character stands in the one form that belongs to it. What
// ends it: a stray byte, a character that is cut off or longer than it has to
// be, and the forms that are excepted.
class SureText {
 public:
  // The beginning of a form of two bytes or more in UTF-8.
  struct Exception {
    uint8_t first, second;
  };
  static constexpr int kMostExceptions = 4;

  // unit: bytes of a character; 0 for UTF-8.
  explicit SureText(int unit) : unit(unit) {}

  // False where there is no room for another one.
  bool Except(const Exception& exception);

  // How many bytes of sure text there are at the beginning and at the end of
  // bytes, where a character begins or ends.
  int Length(const uint8_t* bytes, int n) const;
  int LengthBack(const uint8_t* bytes, int n) const;

  // Whether a character begins distance bytes away from another one, at byte.
  bool IsBoundary(int distance, uint8_t byte) const;

 private:
  int CharacterLength(const uint8_t* bytes, int n) const;
  bool IsSureChunk(const uint8_t* chunk) const;

  const int unit;
  std::vector<Exception> exceptions;
};
