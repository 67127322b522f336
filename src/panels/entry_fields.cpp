// Size, date, permissions and owner of an entry as text.
#include "panels/entry_fields.h"

#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdlib>
#include <ctime>

#include "config/values/locale_format.h"
#include "config/values/options.h"
#include "dialogs/number_format.h"

namespace {

// Codes 16 and 17 show as triangles.
constexpr wchar_t kLeftOfMark = 16, kRightOfMark = 17;
constexpr int kWideMark = 10;  // columns from which a mark stands in blanks

Westring DirectoryMark(const entry& e, int width) {
  const wchar_t* const word = IsDotDot(e) ? L"UP-DIR" : e.IsLink() ? L" LINK " : L"SUBDIR";
  const wchar_t* const blank = width >= kWideMark ? L" " : L"";
  Westring mark;
  mark += kLeftOfMark;
  mark += blank;
  mark += word;
  mark += blank;
  mark += kRightOfMark;
  return mark;
}

// A field of more digits takes every size whole.
constexpr int kMostLimitedDigits = 9;

// The first value that is too large for so many digits.
int64_t DigitLimit(int digits) {
  int64_t limit = 1;
  while (digits-- > 0) limit *= 10;
  return limit;
}

// Whole, in K or in M. What is too large even then goes on to larger units: a
// number cut to fit would be a wrong one.
Westring PlainSize(int64_t size, int width) {
  if (width > kMostLimitedDigits || size < DigitLimit(width)) return Westring(Estring::FromLong(size));
  constexpr wchar_t kUnits[] = L"KMGTPE";
  constexpr int kLastUnit = 5;
  int unit = 0;
  while (unit < kLastUnit && size >> (10 * (unit + 1)) >= DigitLimit(width - 1)) ++unit;
  Westring text(Estring::FromLong(size >> (10 * (unit + 1))));
  text += kUnits[unit];
  return text;
}

// A value just at one of the formatter's limits is longer than the field: then as
// for a narrower one.
Westring GroupedSize(int64_t size, int width) {
  Westring text = FormatSize(static_cast<uint64_t>(size), width);
  for (int narrower = width - 1; narrower > 0 && Length(text) > width; --narrower)
    text = FormatSize(static_cast<uint64_t>(size), narrower);
  return text;
}

bool LocalParts(const FileTime& time, tm& parts) {
  if (time == FileTime::None()) return false;
  const time_t seconds = time.seconds;
  return localtime_r(&seconds, &parts) != nullptr;
}

Westring Fitted(const Westring& text, int width) { return LJust(text, std::max(width, 0)); }

// Names by number, the latest of each slot: where accounts live in a directory
// service, a question for each row of each repaint would be slow.
class AccountNames {
 public:
  using LookUp = const char* (*)(unsigned id);
  explicit AccountNames(LookUp lookUpName) : lookUp(lookUpName) {}

  const Westring& Name(unsigned id) {
    Slot& slot = slots[id % kSlots];
    if (!slot.used || slot.id != id) {
      const char* const name = lookUp(id);
      slot.name = name ? Westring(name) : Westring(Estring::FromLong(id));
      slot.id = id;
      slot.used = true;
    }
    return slot.name;
  }

 private:
  static constexpr unsigned kSlots = 64;
  struct Slot {
    bool used = false;
    unsigned id = 0;
    Westring name;
  };
  Slot slots[kSlots];
  LookUp lookUp;
};

const char* UserName(unsigned id) {
  const passwd* const user = getpwuid(id);
  return user ? user->pw_name : nullptr;
}

const char* GroupName(unsigned id) {
  const group* const g = getgrgid(id);
  return g ? g->gr_name : nullptr;
}

struct Permission {
  uint16_t bit;
  wchar_t letter;
  uint16_t special;  // shown in the same place; 0 for none
  wchar_t withBit, withoutBit;
};

constexpr Permission kPermissions[] = {
    {S_IRUSR, L'r', 0, 0, 0}, {S_IWUSR, L'w', 0, 0, 0}, {S_IXUSR, L'x', S_ISUID, L's', L'S'},
    {S_IRGRP, L'r', 0, 0, 0}, {S_IWGRP, L'w', 0, 0, 0}, {S_IXGRP, L'x', S_ISGID, L's', L'S'},
    {S_IROTH, L'r', 0, 0, 0}, {S_IWOTH, L'w', 0, 0, 0}, {S_IXOTH, L'x', S_ISVTX, L't', L'T'},
};

}  // namespace

Westring SizeText(const entry& e, int width) {
  width = std::max(width, 0);
  Westring text;
  if (e.IsDirectory() && !e.sizeKnown)
    text = DirectoryMark(e, width);
  else if (e.size >= 0)
    text = Options::ThousandSep ? GroupedSize(e.size, width) : PlainSize(e.size, width);
  const bool whole = width > kMostLimitedDigits && !Options::ThousandSep;
  return RJust(text, whole ? std::max(width, Length(text)) : width);
}

Westring DateText(const FileTime& time, int width) {
  tm parts{};
  if (!LocalParts(time, parts)) return Fitted(Westring(), width);
  const int year = parts.tm_year % 100, month = parts.tm_mon + 1, day = parts.tm_mday;
  Estring text;
  if (DateOrder == kDateMonthFirst)
    text = Estring::Format(DateFormat.Text(), month, day, year);
  else if (DateOrder == kDateDayFirst)
    text = Estring::Format(DateFormat.Text(), day, month, year);
  else
    text = Estring::Format(DateFormat.Text(), year, month, day);
  return Fitted(Westring(text), width);
}

Westring TimeText(const FileTime& time, int width) {
  tm parts{};
  if (!LocalParts(time, parts)) return Fitted(Westring(), width);
  if (Options::TimeMode != 12)
    return Fitted(Westring(Estring::Format("%3d:%02d", parts.tm_hour, parts.tm_min)), width);
  const int hour = parts.tm_hour % 12 == 0 ? 12 : parts.tm_hour % 12;
  const char half = parts.tm_hour < 12 ? 'a' : 'p';
  return Fitted(Westring(Estring::Format("%2d:%02d%c", hour, parts.tm_min, half)), width);
}

Westring PermissionText(uint16_t mode) {
  Westring text;
  for (const Permission& p : kPermissions) {
    const bool set = mode & p.bit;
    if (mode & p.special)
      text += set ? p.withBit : p.withoutBit;
    else
      text += set ? p.letter : L'-';
  }
  return text;
}

Westring OwnerText(const entry& e, int width) {
  static AccountNames users(UserName);
  return Fitted(users.Name(e.uid), width);
}

Westring GroupText(const entry& e, int width) {
  static AccountNames groups(GroupName);
  return Fitted(groups.Name(e.gid), width);
}
