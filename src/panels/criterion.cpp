// The criteria of filter expressions: keyword, operator, value.
#include "panels/criterion.h"

#include <grp.h>
#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <ctime>
#include <cwchar>
#include <cwctype>
#include <limits>
#include <vector>

#include "config/values/locale_format.h"
#include "foundation/strings.h"

namespace {

bool IsBlank(wchar_t ch) { return ch == L' ' || ch == L'\t'; }
bool IsDigit(wchar_t ch) { return ch >= L'0' && ch <= L'9'; }
bool IsLetter(wchar_t ch) { return iswalpha(static_cast<wint_t>(ch)) != 0; }
wchar_t Upper(wchar_t ch) { return static_cast<wchar_t>(towupper(static_cast<wint_t>(ch))); }

// ---- values ----------------------------------------------------------------

struct Unit {
  wchar_t letter;
  int64_t factor;
};

// The number in front, times the unit that the last character names.
template <size_t count>
int64_t ScaledNumber(const Westring& value, const Unit (&units)[count]) {
  int64_t number = wcstoll(value.Text(), nullptr, 10);
  const wchar_t last = Upper(value.Text()[Length(value) - 1]);
  for (const Unit& unit : units) {
    if (last != unit.letter) continue;
    const int64_t limit = std::numeric_limits<int64_t>::max() / unit.factor;
    number = std::clamp(number, -limit, limit) * unit.factor;
  }
  return number;
}

int64_t SizeValue(const Westring& value) {
  constexpr Unit kUnits[] = {{L'K', 1 << 10}, {L'M', 1 << 20}, {L'G', 1 << 30}};
  return ScaledNumber(value, kUnits);
}

int64_t AgeValue(const Westring& value) {
  constexpr Unit kUnits[] = {{L'D', 86400}, {L'H', 3600}, {L'M', 60}};
  return ScaledNumber(value, kUnits);
}

// Letters that are not in the mask's alphabet add nothing.
template <size_t count>
int64_t LetterMask(const Westring& value, const Unit (&bits)[count]) {
  int64_t mask = 0;
  for (const wchar_t* p = value.Text(); *p; ++p) {
    for (const Unit& bit : bits) {
      if (Upper(*p) == bit.letter) mask |= bit.factor;
    }
  }
  return mask;
}

int64_t AttributeValue(const Westring& value) {
  constexpr Unit kBits[] = {{L'H', kAttrHidden}, {L'R', kAttrReadOnly}, {L'D', kAttrDirectory}};
  return LetterMask(value, kBits);
}

int64_t PermissionValue(const Westring& value) {
  constexpr Unit kBits[] = {{L'R', 4}, {L'W', 2}, {L'X', 1}};
  return LetterMask(value, kBits);
}

// Where local midnight is left out by a change of clocks, both sides of a
// comparison move in the same way.
int64_t LocalMidnight(int year, int month, int day) {
  tm parts{};
  parts.tm_year = year - 1900;
  parts.tm_mon = month - 1;
  parts.tm_mday = day;
  parts.tm_isdst = -1;
  return mktime(&parts);
}

int FullYear(int year) {
  if (year > 99) return year;
  return year + (year < 71 ? 2000 : 1900);
}

int64_t DateValue(const Westring& value) {
  constexpr int kTooMuch = 100000;  // keeps any row of digits an int
  int numbers[3] = {};
  int index = 0;
  for (const wchar_t* p = value.Text(); *p && index < 3; ++p) {
    if (*p == static_cast<unsigned char>(DateSeparator))
      ++index;
    else if (IsDigit(*p))
      numbers[index] = std::min(numbers[index] * 10 + (*p - L'0'), kTooMuch);
  }
  const auto [first, second, third] = numbers;
  switch (DateOrder) {
    case kDateMonthFirst:
      return LocalMidnight(FullYear(third), first, second);
    case kDateDayFirst:
      return LocalMidnight(FullYear(third), second, first);
    default:
      return LocalMidnight(FullYear(first), second, third);
  }
}

int64_t FindUser(const char* name) {
  const passwd* const user = getpwnam(name);
  return user ? int64_t{user->pw_uid} : -1;
}

int64_t FindGroup(const char* name) {
  const group* const found = getgrnam(name);
  return found ? int64_t{found->gr_gid} : -1;
}

// The last name looked up. A listing asks for the same one with every entry,
// and each answer can cost reading a file or asking a server; within a second
// it stands.
struct NameLookup {
  Westring name;
  int64_t id = -1;
  time_t moment = 0;

  int64_t Find(const Westring& wanted, int64_t (*find)(const char*)) {
    const time_t now = time(nullptr);
    if (now != moment || wcscmp(wanted.Text(), name.Text()) != 0) {
      id = find(ToUtf8(wanted).Text());
      name = wanted;
      moment = now;
    }
    return id;
  }
};

int64_t UserValue(const Westring& value) {
  static NameLookup last;
  return last.Find(value, FindUser);
}

int64_t GroupValue(const Westring& value) {
  static NameLookup last;
  return last.Find(value, FindGroup);
}

// ---- the entry's side ------------------------------------------------------

int64_t SizeOf(const entry& e, int64_t) { return e.size; }
int64_t AgeOf(const entry& e, int64_t) { return int64_t{time(nullptr)} - e.modified.seconds; }
int64_t AttributesOf(const entry& e, int64_t mask) { return e.attributes & mask; }
int64_t OwnerOf(const entry& e, int64_t) { return e.uid; }
int64_t GroupOf(const entry& e, int64_t) { return e.gid; }

int64_t DayOf(const entry& e, int64_t) {
  const time_t moment = e.modified.seconds;
  tm parts{};
  localtime_r(&moment, &parts);
  return LocalMidnight(parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday);
}

bool IsOwnGroup(gid_t gid) {
  static const std::vector<gid_t> groups = [] {
    std::vector<gid_t> list(static_cast<size_t>(std::max(getgroups(0, nullptr), 0)));
    const int found = getgroups(static_cast<int>(list.size()), list.data());
    list.resize(static_cast<size_t>(std::max(found, 0)));
    return list;
  }();
  return std::find(groups.begin(), groups.end(), gid) != groups.end();
}

int64_t PermissionsOf(const entry& e, int64_t mask) {
  if (e.uid == geteuid()) return e.mode >> 6 & 7 & mask;
  if (IsOwnGroup(e.gid)) return e.mode >> 3 & 7 & mask;
  return e.mode & 7 & mask;
}

struct CriterionRow {
  const wchar_t* keyword;
  int64_t (*right)(const Westring& value);
  int64_t (*left)(const entry& e, int64_t right);
};

constexpr CriterionRow kCriteria[] = {
    {L"size", SizeValue, SizeOf},
    {L"date", DateValue, DayOf},
    {L"age", AgeValue, AgeOf},
    {L"attrib", AttributeValue, AttributesOf},
    {L"owner", UserValue, OwnerOf},
    {L"group", GroupValue, GroupOf},
    {L"perm", PermissionValue, PermissionsOf},
};

// ---- reading ---------------------------------------------------------------

struct Operator {
  wchar_t first = 0;
  bool hasEqual = false;  // "=" as its second character
};

void SkipBlanks(const wchar_t*& p) {
  while (IsBlank(*p)) ++p;
}

const CriterionRow* ReadKeyword(const wchar_t*& p) {
  const wchar_t* const start = ++p;  // behind the "%"
  while (IsLetter(*p)) ++p;
  const Westring keyword(start, static_cast<int>(p - start));
  for (const CriterionRow& row : kCriteria) {
    if (keyword == row.keyword) return &row;
  }
  return nullptr;
}

Operator ReadOperator(const wchar_t*& p) {
  Operator op;
  SkipBlanks(p);
  if (!*p) return op;
  op.first = *p++;
  if (*p == L'=') {
    op.hasEqual = true;
    ++p;
  } else if (op.first == L'=' && (*p == L'<' || *p == L'>')) {
    ++p;  // "=<" and "=>" are tested as "="
  }
  return op;
}

Westring ReadValue(const wchar_t*& p) {
  SkipBlanks(p);
  const wchar_t* const start = p;
  while (*p && (IsLetter(*p) || IsDigit(*p) || *p == static_cast<unsigned char>(DateSeparator))) ++p;
  return Westring(start, static_cast<int>(p - start));
}

// "<=", ">=" and "==" hold on equal numbers whatever stands in front of the
// "="; on others the first character alone decides.
bool CompareBy(const Operator& op, int64_t left, int64_t right, bool& error) {
  if (op.hasEqual && op.first != L'!' && left == right) return true;
  if (op.first == L'!' && op.hasEqual) return left != right;
  if (op.first == L'<') return left < right;
  if (op.first == L'=') return left == right;
  if (op.first == L'>') return left > right;
  error = true;
  return false;
}

}  // namespace

bool TestCriterion(const wchar_t*& p, const entry& e, bool& error) {
  const CriterionRow* const row = ReadKeyword(p);
  const Operator op = ReadOperator(p);
  const Westring value = ReadValue(p);
  if (!row || value.IsEmpty()) {
    error = true;
    return false;
  }
  const int64_t right = row->right(value);
  return CompareBy(op, row->left(e, right), right, error);
}
