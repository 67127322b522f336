// What keys send to a child.
#include "console/terminal.h"

namespace {

constexpr Key kFirstLongCode = 256;  // below: one byte, whatever it means

struct KeyBytes {
  Key key;
  const char* bytes;
};

// Behind ESC O in application mode, behind ESC [ otherwise.
constexpr KeyBytes kCursorKeys[] = {
    {kUp, "A"}, {kDown, "B"}, {kRight, "C"}, {kLeft, "D"}, {kHome, "H"}, {kEnd, "F"},
};

constexpr KeyBytes kOtherKeys[] = {
    {kPageUp, "\033[5~"},  {kPageDown, "\033[6~"}, {kCtrlPageUp, "\033[5;5~"}, {kCtrlPageDown, "\033[6;5~"},
    {kInsert, "\033[2~"},  {kDelete, "\033[3~"},   {FKey(1), "\033OP"},        {FKey(2), "\033OQ"},
    {FKey(3), "\033OR"},   {FKey(4), "\033OS"},    {FKey(5), "\033[15~"},      {FKey(6), "\033[17~"},
    {FKey(7), "\033[18~"}, {FKey(8), "\033[19~"},  {FKey(9), "\033[20~"},      {FKey(10), "\033[21~"},
    {kF11, "\033[23~"},    {kF12, "\033[24~"},     {kBackspace, "\b"},
};

}  // namespace

Estring KeySequence(Key code, bool applicationCursor) {
  Estring sequence;
  if (code < kFirstLongCode) {
    sequence += static_cast<char>(code);
    return sequence;
  }
  for (const KeyBytes& row : kCursorKeys) {
    if (row.key == code) return Estring(applicationCursor ? "\033O" : "\033[") + row.bytes;
  }
  for (const KeyBytes& row : kOtherKeys) {
    if (row.key == code) return Estring(row.bytes);
  }
  return sequence;
}

bool SendsBytes(Key code) { return code < kFirstLongCode || !KeySequence(code, false).IsEmpty(); }
