// The keys that have a code of their own. All other keys are text and belong
// to the input method. Start at FindKeyRow().
#include "console/key_codes.h"

namespace {

// Key symbols of the window system; printable ASCII stands for itself.
enum Symbol : uint32_t {
  kSymIsoLeftTab = 0xFE20,
  kSymBackSpace = 0xFF08, kSymTab = 0xFF09, kSymReturn = 0xFF0D, kSymEscape = 0xFF1B,
  kSymHome = 0xFF50, kSymLeft, kSymUp, kSymRight, kSymDown, kSymPageUp, kSymPageDown, kSymEnd,
  kSymInsert = 0xFF63,
  kSymPadEnter = 0xFF8D,
  kSymPadHome = 0xFF95, kSymPadLeft, kSymPadUp, kSymPadRight, kSymPadDown, kSymPadPageUp, kSymPadPageDown,
  kSymPadEnd, kSymPadBegin, kSymPadInsert, kSymPadDelete,
  kSymPadMultiply = 0xFFAA, kSymPadAdd = 0xFFAB, kSymPadSubtract = 0xFFAD, kSymPadDecimal = 0xFFAE,
  kSymPad0 = 0xFFB0, kSymPad1, kSymPad2, kSymPad3, kSymPad4, kSymPad5, kSymPad6, kSymPad7, kSymPad8, kSymPad9,
  kSymF1 = 0xFFBE, kSymF2, kSymF3, kSymF4, kSymF5, kSymF6, kSymF7, kSymF8, kSymF9, kSymF10, kSymF11, kSymF12,
  kSymShiftL = 0xFFE1, kSymShiftR, kSymControlL, kSymControlR,
  kSymMetaL = 0xFFE7, kSymMetaR, kSymAltL, kSymAltR,
  kSymDelete = 0xFFFF,
};

// The columns of the table, and the modifiers that choose each.
enum Column { kPlain, kShift, kCtrl, kAlt, kCtrlShift, kAltShift, kColumnCount };

constexpr uint32_t kColumnModifiers[kColumnCount] = {
    0, kModShift, kModCtrl, kModAlt, kModCtrl | kModShift, kModAlt | kModShift,
};

// A code of 0: there is no such key.
struct KeyRow {
  uint32_t symbol;
  Key codes[kColumnCount];
};

constexpr KeyRow FunctionRow(int n) {
  return {kSymF1 - 1 + static_cast<uint32_t>(n),
          {FKey(n), ShiftFKey(n), CtrlFKey(n), AltFKey(n), CtrlShiftFKey(n), AltShiftFKey(n)}};
}

// The number keys of the pad, in what they are with and without NumLock.
constexpr KeyRow PadRow(uint32_t symbol, Key plain, Key shift, int digit) {
  return {symbol, {plain, shift, CtrlPadDigit(digit), 0, CtrlShiftPadDigit(digit), 0}};
}

constexpr KeyRow kKeyTable[] = {
    FunctionRow(1), FunctionRow(2), FunctionRow(3), FunctionRow(4), FunctionRow(5),
    FunctionRow(6), FunctionRow(7), FunctionRow(8), FunctionRow(9), FunctionRow(10),
    {kSymF11, {0x10085, 0x30087, 0x10089, 0x1008B, 0x30089, 0x3008B}},
    {kSymF12, {0x10086, 0x30088, 0x1008A, 0x1008C, 0x3008A, 0x3008C}},

    // symbol         plain       Shift         Ctrl           Alt        Ctrl-Shift          Alt-Shift
    {kSymHome,       {kHome,      kShiftHome,   kCtrlHome,     kAltHome,  kCtrlShiftHome,     0}},
    {kSymLeft,       {kLeft,      kShiftLeft,   kCtrlLeft,     kAltLeft,  kCtrlShiftLeft,     0}},
    {kSymUp,         {kUp,        kShiftUp,     kCtrlUp,       kAltUp,    0,                  0}},
    {kSymRight,      {kRight,     kShiftRight,  kCtrlRight,    kAltRight, kCtrlShiftRight,    0}},
    {kSymDown,       {kDown,      kShiftDown,   kCtrlDown,     kAltDown,  0,                  0}},
    {kSymPageUp,     {kPageUp,    kShiftPageUp, kCtrlPageUp,   0,         kCtrlShiftPageUp,   0}},
    {kSymPageDown,   {kPageDown,  kShiftPageDown, kCtrlPageDown, 0,       kCtrlShiftPageDown, 0}},
    {kSymEnd,        {kEnd,       kShiftEnd,    kCtrlEnd,      0,         kCtrlShiftEnd,      0}},
    {kSymInsert,     {kInsert,    kShiftInsert, kCtrlInsert,   0,         kCtrlShiftInsert,   0}},
    {kSymDelete,     {kDelete,    kShiftDelete, kCtrlDelete,   0,         0,                  0}},
    {kSymReturn,     {kEnter,     kEnter,       kCtrlEnter,    kAltEnter, kCtrlShiftEnter,    0}},
    {kSymBackSpace,  {kBackspace, 0,            kCtrlBackspace, kAltBackspace, 0,   kAltShiftBackspace}},
    {kSymTab,        {kTab,       0,            kCtrlTab,      0,         0,                  0}},
    {kSymIsoLeftTab, {0,          kShiftTab,    0,             0,         0,                  0}},
    {kSymEscape,     {kEscape,    0,            0,             0,         0,                  0}},

    {kSymPadEnter,    {kEnter,     0, 0,              0,             0,                   0}},
    {kSymPadAdd,      {kGreyPlus,  0, kCtrlGreyPlus,  kAltGreyPlus,  kCtrlShiftGreyPlus,  0}},
    {kSymPadSubtract, {kGreyMinus, 0, kCtrlGreyMinus, kAltGreyMinus, kCtrlShiftGreyMinus, 0}},
    {kSymPadMultiply, {kGreyStar,  0, 0,              0,             0,                   0}},
    {kSymPadDelete,   {kDelete,    0, kCtrlDelete,    0,             0,                   0}},
    {kSymPadDecimal,  {0, kShiftDelete, 0,            0,             0,                   0}},

    PadRow(kSymPadInsert, kInsert, 0, 0),       PadRow(kSymPad0, 0, kShiftInsert, 0),
    PadRow(kSymPadEnd, kEnd, 0, 1),             PadRow(kSymPad1, 0, 0, 1),
    PadRow(kSymPadDown, kDown, 0, 2),           PadRow(kSymPad2, 0, 0, 2),
    PadRow(kSymPadPageDown, kPageDown, 0, 3),   PadRow(kSymPad3, 0, 0, 3),
    PadRow(kSymPadLeft, kLeft, 0, 4),           PadRow(kSymPad4, 0, 0, 4),
    PadRow(kSymPadBegin, 0, 0, 5),              PadRow(kSymPad5, 0, 0, 5),
    PadRow(kSymPadRight, kRight, 0, 6),         PadRow(kSymPad6, 0, 0, 6),
    PadRow(kSymPadHome, kHome, 0, 7),           PadRow(kSymPad7, 0, 0, 7),
    PadRow(kSymPadUp, kUp, 0, 8),               PadRow(kSymPad8, 0, 0, 8),
    PadRow(kSymPadPageUp, kPageUp, 0, 9),       PadRow(kSymPad9, 0, 0, 9),

    {'a', {0, 0, CtrlLetter('a'), 0x1001E, 0, 0}},
    {'b', {0, 0, CtrlLetter('b'), 0x10030, 0, 0}},
    {'c', {0, 0, CtrlLetter('c'), 0x1002E, 0, 0}},
    {'d', {0, 0, CtrlLetter('d'), 0x10020, 0, 0}},
    {'e', {0, 0, CtrlLetter('e'), 0x10012, 0, 0}},
    {'f', {0, 0, CtrlLetter('f'), 0x10021, kCtrlShiftF, 0}},
    {'g', {0, 0, CtrlLetter('g'), 0x10022, 0, 0}},
    {'h', {0, 0, CtrlLetter('h'), 0x10023, 0, 0}},
    {'i', {0, 0, kCtrlI, 0x10017, 0, 0}},  // kept apart from Tab
    {'j', {0, 0, CtrlLetter('j'), 0x10024, kCtrlShiftJ, 0}},
    {'k', {0, 0, CtrlLetter('k'), 0x10025, 0, 0}},
    {'l', {0, 0, CtrlLetter('l'), 0x10026, 0, 0}},
    {'m', {0, 0, kCtrlM, 0x10032, kCtrlShiftM, 0}},  // kept apart from Enter
    {'n', {0, 0, CtrlLetter('n'), 0x10031, 0, 0}},
    {'o', {0, 0, CtrlLetter('o'), 0x10018, 0, 0}},
    {'p', {0, 0, CtrlLetter('p'), 0x10019, 0, 0}},
    {'q', {0, 0, CtrlLetter('q'), 0x10010, 0, 0}},
    {'r', {0, 0, CtrlLetter('r'), 0x10013, 0, 0}},
    {'s', {0, 0, CtrlLetter('s'), 0x1001F, 0, 0}},
    {'t', {0, 0, CtrlLetter('t'), 0x10014, 0, 0}},
    {'u', {0, 0, CtrlLetter('u'), 0x10016, 0, 0}},
    {'v', {0, 0, CtrlLetter('v'), 0x1002F, 0, 0}},
    {'w', {0, 0, CtrlLetter('w'), 0x10011, 0, 0}},
    {'x', {0, 0, CtrlLetter('x'), 0x1002D, 0, 0}},
    {'y', {0, 0, CtrlLetter('y'), 0x10015, 0, 0}},
    {'z', {0, 0, CtrlLetter('z'), 0x1002C, 0, 0}},

    {'1', {0, 0, 0, 0x10078, 0, 0}},
    {'2', {0, 0, 0, 0x10079, 0, 0}},
    {'3', {0, 0, 0, 0x1007A, 0, 0}},
    {'4', {0, 0, 0, 0x1007B, 0, 0}},
    {'5', {0, 0, 0, 0x1007C, 0, 0}},
    {'6', {0, 0, 0, 0x1007D, 0, 0}},
    {'7', {0, 0, 0, 0x1007E, 0, 0}},
    {'8', {0, 0, 0, 0x1007F, 0, 0}},
    {'9', {0, 0, 0, 0x10080, 0, 0}},
    {'0', {0, 0, 0, 0x10081, 0, 0}},
    {'-', {0, 0, kCtrlMinus, 0x10082, 0, 0}},
    {'=', {0, 0, 0, 0x10083, 0, 0}},
    {'[', {0, 0, kEscape, 0x1001A, 0, 0}},
    {']', {0, 0, kCtrlRightBracket, 0x1001B, 0, 0}},
    {'\\', {0, 0, kCtrlBackslash, kAltBackslash, 0, 0}},
    {';', {0, 0, 0, 0x10027, 0, 0}},
    {'\'', {0, 0, 0, 0x10028, kCtrlShiftBackslash, 0x10028}},
    {',', {0, 0, 0, 0x10033, 0, 0}},
    {'.', {0, 0, 0, 0x10034, 0, 0}},
    {'#', {0, 0, kCtrlBackslash, 0x3007A, 0, 0x3007A}},
    {' ', {0, 0, ' ', 0, 0, 0}},
    {'|', {0, 0, 0, 0, kCtrlShiftBackslash, 0}},

    {'!', {0, 0, 0, 0, 0, 0x30078}},
    {'@', {0, 0, 0, 0, 0, 0x30079}},
    {'$', {0, 0, 0, 0, 0, 0x3007B}},
    {'%', {0, 0, 0, 0, 0, 0x3007C}},
    {'^', {0, 0, 0, 0, 0, 0x3007D}},
    {'&', {0, 0, 0, 0, 0, 0x3007E}},
    {'(', {0, 0, 0, 0, 0, 0x30080}},
    {')', {0, 0, 0, 0, 0, 0x30081}},
    {'_', {0, 0, 0, 0, 0, 0x30082}},
    {'+', {0, 0, 0, 0, 0, 0x30083}},
    {'{', {0, 0, 0, 0, 0, 0x3001A}},
    {'}', {0, 0, 0, 0, 0, 0x3001B}},
    {':', {0, 0, 0, 0, 0, 0x30027}},
    {'"', {0, 0, 0, 0, 0, 0x30028}},
    {'~', {0, 0, 0, 0, 0, 0x10029}},
};

// Keys that have the same code whatever else is held.
struct AnyModifierRow {
  uint32_t symbol;
  Key code;
};

constexpr AnyModifierRow kAnyModifierTable[] = {
    {kSymShiftL, kModifierKey}, {kSymShiftR, kModifierKey}, {kSymControlL, kModifierKey},
    {kSymControlR, kModifierKey}, {kSymAltL, kModifierKey}, {kSymAltR, kModifierKey},
    {kSymMetaL, kModifierKey}, {kSymMetaR, kModifierKey},  // what many keyboards call Alt with Shift
};

}  // namespace

Key FindKeyRow(uint32_t keyval, uint32_t modifiers) {
  for (const AnyModifierRow& row : kAnyModifierTable) {
    if (row.symbol == keyval) return row.code;
  }
  for (const KeyRow& row : kKeyTable) {
    if (row.symbol != keyval) continue;
    for (int column = 0; column < kColumnCount; ++column) {
      if (kColumnModifiers[column] == modifiers) return row.codes[column];
    }
  }
  return 0;
}
