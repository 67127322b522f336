// Encoding a row and finding where its colours change.
#include "console/row_text.h"

namespace {

void AppendUtf8(std::string& text, int32_t codePoint) {
  constexpr unsigned char kLead[] = {0, 0, 0xC0, 0xE0, 0xF0};
  const int length = Utf8Length(codePoint);
  for (int i = 0; i < length; ++i) {
    const int bits = codePoint >> (6 * (length - 1 - i));
    text += static_cast<char>(i == 0 ? kLead[length] | bits : 0x80 | (bits & 0x3F));
  }
}

bool StartsRun(const Cell& cell, uint8_t attribute) {
  if (cell.character == ' ') return Background(cell.attribute) != Background(attribute);
  return cell.attribute != attribute;
}

}  // namespace

int32_t ShownCharacter(int32_t character) {
  constexpr int32_t kSoftHyphen = 0xAD, kLineSeparator = 0x2028, kParagraphSeparator = 0x2029;
  if (character == 0) return ' ';
  if (character == kSoftHyphen) return '-';
  const bool control = character < ' ' || (character >= 127 && character <= 159);
  const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
  const bool separator = character == kLineSeparator || character == kParagraphSeparator;
  return control || surrogate || separator || character > 0x10FFFF ? kReplacement : character;
}

int Utf8Length(int32_t codePoint) {
  return 1 + (codePoint > 0x7F) + (codePoint > 0x7FF) + (codePoint > 0xFFFF);
}

void BuildRowText(const Cell* cells, int count, RowText& out) {
  out.utf8.clear();
  out.runs.clear();
  for (int i = 0; i < count; ++i) {
    if (out.runs.empty() || StartsRun(cells[i], out.runs.back().attribute)) {
      const int byte = static_cast<int>(out.utf8.size());
      out.runs.push_back({i, i, byte, byte, cells[i].attribute});
    }
    AppendUtf8(out.utf8, cells[i].character);
    out.runs.back().endCell = i + 1;
    out.runs.back().endByte = static_cast<int>(out.utf8.size());
  }
}
