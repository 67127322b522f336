// The characters of the Alt and Alt-Shift keys, in the order of the keyboard.
#include "console/key_codes.h"

namespace {

struct AliasRow {
  Key code;
  char character;
};

constexpr AliasRow kAliases[] = {
    {0x10078, '1'}, {0x10079, '2'}, {0x1007A, '3'}, {0x1007B, '4'}, {0x1007C, '5'},
    {0x1007D, '6'}, {0x1007E, '7'}, {0x1007F, '8'}, {0x10080, '9'}, {0x10081, '0'},
    {0x10082, '-'}, {0x10083, '='},
    {0x10010, 'q'}, {0x10011, 'w'}, {0x10012, 'e'}, {0x10013, 'r'}, {0x10014, 't'},
    {0x10015, 'y'}, {0x10016, 'u'}, {0x10017, 'i'}, {0x10018, 'o'}, {0x10019, 'p'},
    {0x1001A, '['}, {0x1001B, ']'},
    {0x1001E, 'a'}, {0x1001F, 's'}, {0x10020, 'd'}, {0x10021, 'f'}, {0x10022, 'g'},
    {0x10023, 'h'}, {0x10024, 'j'}, {0x10025, 'k'}, {0x10026, 'l'},
    {0x10027, ';'}, {0x10028, '\''}, {0x10029, '`'}, {0x1002B, '\\'},
    {0x1002C, 'z'}, {0x1002D, 'x'}, {0x1002E, 'c'}, {0x1002F, 'v'}, {0x10030, 'b'},
    {0x10031, 'n'}, {0x10032, 'm'}, {0x10033, ','}, {0x10034, '.'},
    {0x30078, '!'}, {0x30079, '@'}, {0x3007A, '#'}, {0x3007B, '$'}, {0x3007C, '%'},
    {0x3007D, '^'}, {0x3007E, '&'}, {0x30080, '('}, {0x30081, ')'},
    {0x30082, '_'}, {0x30083, '+'}, {0x3001A, '{'}, {0x3001B, '}'},
    {0x10029, '~'},  // shares its code with the grave accent, which stands first and wins
    {0x30028, '"'},
};
static_assert(sizeof kAliases / sizeof kAliases[0] == 61);

}  // namespace

Key AliasKey(Key code) {
  for (const AliasRow& row : kAliases) {
    if (row.code == code) return static_cast<Key>(row.character);
  }
  return code;
}
