// A text to search in: a file of its own, open in a given encoding.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "unit/scratch_directory.h"
#include "viewer/text_file.h"

class SearchedText : public CTextFile {
 public:
  explicit SearchedText(const std::string& bytes, int encoding = kUtf8) {
    directory.Write("text", bytes);
    OpenAs(encoding);
  }

  // Zeros that take no room on the disk.
  explicit SearchedText(uint64_t size) {
    directory.Write("text", "");
    std::filesystem::resize_file(directory.Path("text"), size);
    OpenAs(kUtf8);
  }

  // From now on a block of it cannot be read: it was not there when it was looked at.
  void LoseBlock(int block) {
    const auto path = directory.Path("text");
    const std::string whole = directory.Content("text");
    std::filesystem::resize_file(path, static_cast<uint64_t>(block) * kBlockSize);
    EXPECT_EQ(ByteAt(int64_t{block} * kBlockSize), -1);
    directory.Write("text", whole);
  }

  // The searches with what most tests want.
  int64_t Find(const Westring& text, int64_t start = 0) { return Search(text, start, true, false, false); }
  int64_t FindAnyCase(const Westring& text) { return Search(text, 0, false, false, false); }
  int64_t FindWord(const Westring& text, int64_t start = 0) { return Search(text, start, true, true, false); }
  int64_t FindBack(const Westring& text, int64_t start) { return Search(text, start, true, false, true); }
  int64_t FindWordBack(const Westring& text, int64_t start) { return Search(text, start, true, true, true); }

  static constexpr int kPage = 819;
  int64_t FindBytes(const Westring& text, int64_t start = 0) {
    return SearchBytes(text, start, false, true, false, kPage);
  }
  int64_t FindBytesAnyCase(const Westring& text, int codePage = kPage) {
    return SearchBytes(text, 0, false, false, false, codePage);
  }
  int64_t FindByteWord(const Westring& text, int64_t start = 0) {
    return SearchBytes(text, start, false, true, true, kPage);
  }
  int64_t FindBytesBack(const Westring& text, int64_t start) {
    return SearchBytes(text, start, true, true, false, kPage);
  }

 private:
  void OpenAs(int encoding) {
    Encoding = encoding;
    if (Open(Westring(directory.Path("text").c_str())) != 0) ADD_FAILURE() << "the text does not open";
  }

  ScratchDirectory directory;
};
