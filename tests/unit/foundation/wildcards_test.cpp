// Wildcards: both folding matchers, the exact one of the scanner, rename masks.
#include "foundation/wildcards.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <random>
#include <string>

namespace {

bool Narrow(const char* pattern, const char* name) { return WildMatch(pattern, name); }
bool Wide(const char* pattern, const char* name) {
  return WildMatchW(Westring(pattern).Text(), Westring(name).Text());
}

void ExpectMatch(const char* pattern, const char* name) {
  EXPECT_TRUE(Narrow(pattern, name)) << pattern << " on " << name << ", narrow";
  EXPECT_TRUE(Wide(pattern, name)) << pattern << " on " << name << ", wide";
}

void ExpectNoMatch(const char* pattern, const char* name) {
  EXPECT_FALSE(Narrow(pattern, name)) << pattern << " on " << name << ", narrow";
  EXPECT_FALSE(Wide(pattern, name)) << pattern << " on " << name << ", wide";
}

std::string Repeated(const char* text, int times) {
  std::string result;
  for (int i = 0; i < times; ++i) result += text;
  return result;
}

std::string Renamed(const char* source, const char* mask) {
  Westring target;
  ApplyRenameMask(Westring(source).Text(), Westring(mask).Text(), target);
  return ToUtf8(target).Text();
}

// The rules one by one, by trying everything: slow, but plainly what is meant.
// Patterns of the tests below hold no "^" and no "-" in their sets.
bool Tried(const char* p, const char* n) {
  if (!*p) return !*n;
  if (*p == '*') {
    for (const char* rest = n;; ++rest) {
      if (Tried(p + 1, rest)) return true;
      if (!*rest) return false;
    }
  }
  const char* close = strchr(p, '}');
  if (*p == '{' && close && close != p + 1) {
    for (const char* a = p + 1;;) {
      const char* end = a + strcspn(a, ",}");
      const auto length = static_cast<size_t>(end - a);
      bool same = strlen(n) >= length;
      for (size_t i = 0; same && i < length; ++i) same = a[i] == '?' || a[i] == n[i];
      if (same && Tried(close + 1, n + length)) return true;
      if (*end == '}') break;
      a = end + 1;
    }
  }
  return *n && (*p == '?' || *p == *n) && Tried(p + 1, n + 1);
}

}  // namespace

// ---- "?" and "*" -----------------------------------------------------------

TEST(WildMatch, EmptyPatternMatchesOnlyAnEmptyName) {
  ExpectMatch("", "");
  ExpectNoMatch("", "a");
}

TEST(WildMatch, QuestionMarkTakesOneCharacterButNotTheEnd) {
  ExpectNoMatch("?", "");
  ExpectMatch("?", "a");
  ExpectNoMatch("?", "ab");
  ExpectMatch("a?c", "abc");
}

TEST(WildMatch, StarTakesAnyNumberOfCharacters) {
  ExpectMatch("*", "");
  ExpectMatch("*", "anything");
  ExpectMatch("a*", "a");
  ExpectMatch("*.txt", "a.b.txt");
  ExpectNoMatch("*.txt", "a.txt.gz");
  ExpectMatch("*a*b*", "xxaxxbxx");
  ExpectNoMatch("*a*b*", "xxbxxaxx");
  ExpectMatch("a**b", "ab");
}

TEST(WildMatch, LettersCompareWithoutRegardToCase) {
  ExpectMatch("ReadMe", "rEADmE");
  EXPECT_TRUE(WildMatchW(L"\u00C4\u0416*", L"\u00E4\u0436x"));  // in any alphabet of the wide form
}

TEST(MatchSimple, KnowsOnlyQuestionMarkAndStarAndMindsCase) {
  EXPECT_FALSE(MatchSimple(L"A*", L"abc"));
  EXPECT_TRUE(MatchSimple(L"a*", L"abc"));
  EXPECT_TRUE(MatchSimple(L"a?c", L"abc"));
  EXPECT_FALSE(MatchSimple(L"?", L""));
  EXPECT_TRUE(MatchSimple(L"", L""));
  EXPECT_TRUE(MatchSimple(L"[ab]", L"[ab]"));
  EXPECT_FALSE(MatchSimple(L"[ab]", L"a"));
  EXPECT_TRUE(MatchSimple(L"{a,b}", L"{a,b}"));
}

// ---- sets ------------------------------------------------------------------

TEST(WildMatch, SetTakesOneOfItsCharacters) {
  ExpectMatch("[a-c]*", "Bx");
  ExpectNoMatch("[^a-c]*", "Bx");
  ExpectMatch("[^a-c]*", "dx");
  ExpectMatch("[xyz]", "y");
  ExpectNoMatch("[xyz]", "a");
  ExpectNoMatch("[xyz]", "");
  ExpectNoMatch("[^x]", "");
}

TEST(WildMatch, BracketWithoutItsPartnerIsAPlainCharacter) {
  ExpectMatch("[a", "[a");
  ExpectNoMatch("[a", "a");
  ExpectMatch("]", "]");
  ExpectMatch("x[[]", "x[");
}

TEST(WildMatch, EmptySetTakesNothingAndItsNegationEverything) {
  ExpectNoMatch("[]", "a");
  ExpectNoMatch("[]", "[]");
  ExpectMatch("[^]", "a");
}

TEST(WildMatch, LaterCaretInASetTurnsTheSenseForWhatFollows) {
  ExpectMatch("[a-z^m]", "l");
  ExpectNoMatch("[a-z^m]", "m");
  ExpectMatch("[^a-z^m]", "m");
  ExpectNoMatch("[^a-z^m]", "l");
  ExpectMatch("[^a-z^m]", "1");
  ExpectMatch("[a-z^m-o^n]", "n");
  ExpectNoMatch("[a-z^m-o^n]", "o");
}

TEST(WildMatch, BackwardsRangeIsEmpty) {
  ExpectNoMatch("[c-a]", "b");
  ExpectNoMatch("[9-0]", "5");
}

TEST(WildMatch, DashJustBeforeTheBracketRunsTo255) {
  ExpectMatch("[x-]", "~");
  ExpectNoMatch("[x-]", "5");
  EXPECT_TRUE(WildMatch("[x-]", "\xFF"));
  EXPECT_TRUE(WildMatchW(L"[x-]", L"\u00FE"));
}

TEST(WildMatch, DashWithNothingBeforeItIsItself) {
  ExpectMatch("[-a]", "-");
  ExpectMatch("[-a]", "a");
  ExpectNoMatch("[-a]", "5");
  ExpectMatch("[-]", "-");
  ExpectNoMatch("[-]", "a");
  ExpectNoMatch("[^-]", "-");
  ExpectMatch("[^-]", "a");
}

TEST(WildMatch, DashBehindARangeGoesOnFromItsEnd) {
  ExpectMatch("[a-e-n]", "j");
  ExpectNoMatch("[a-e-n]", "-");
}

TEST(WildMatch, SetFoldsItsContent) {
  ExpectMatch("[A-C]", "b");
  ExpectMatch("[a-c]", "B");
  ExpectNoMatch("[^A-C]", "b");
  // A range that spans both cases holds what lies between them, too.
  ExpectMatch("[Z-a]", "_");
  ExpectMatch("[Z-a]", "z");
  ExpectMatch("[Z-a]", "A");
  ExpectNoMatch("[Z-a]", "b");
}

TEST(WildMatch, SetsOfTheWideFormSeeOnlyTheLowByteOfTheName) {
  EXPECT_TRUE(WildMatchW(L"[\u00E4]", L"\u00C4"));
  // U+044F ends in 4F, the letter O.
  EXPECT_TRUE(WildMatchW(L"[o]", L"\u044F"));
  EXPECT_FALSE(WildMatchW(L"[\u044F]", L"\u044F"));
  EXPECT_TRUE(WildMatchW(L"\u044F", L"\u042F"));  // outside sets all is well
}

TEST(WildMatch, WideSetHoldsEveryCharacterThatFoldsAlike) {
  EXPECT_TRUE(WildMatchW(L"[\u0178]", L"\u00FF"));  // capital Y with dots lies above 255
  EXPECT_TRUE(WildMatchW(L"[\u039C]", L"\u00B5"));  // the micro sign folds to a Greek letter
  EXPECT_TRUE(WildMatchW(L"[\u0100-\uFFFF]", L"\u00FF"));
  EXPECT_FALSE(WildMatchW(L"[\u0100-\uFFFF]", L"\u00FE"));
}

// ---- alternatives ----------------------------------------------------------

TEST(WildMatch, AlternativesAreTriedOneByOne) {
  ExpectMatch("*.{txt,doc}", "A.DOC");
  ExpectMatch("*.{txt,doc}", "a.b.txt");
  ExpectNoMatch("*.{txt,doc}", "a.do");
  ExpectNoMatch("*.{txt,doc}", "a.docx");
  ExpectMatch("{a,ab}c", "abc");
  ExpectMatch("{ab,a}bc", "abc");
  ExpectMatch("{a,b}{c,d}", "bc");
}

TEST(WildMatch, AlternativeMayBeEmpty) {
  ExpectMatch("a{,b}c", "ac");
  ExpectMatch("a{,b}c", "abc");
  ExpectMatch("a{b,}c", "ac");
  ExpectNoMatch("a{,b}c", "abbc");
}

TEST(WildMatch, AlternativeTakesQuestionMarksAndSetsButNoStar) {
  ExpectMatch("{a?,[x-z]1}.c", "ab.c");
  ExpectMatch("{a?,[x-z]1}.c", "Y1.c");
  ExpectNoMatch("{a?,[x-z]1}.c", "w1.c");
  ExpectNoMatch("{a*,b}", "axx");
  ExpectMatch("{a*,b}", "a*");
  ExpectMatch("{[a,b]x,c}", ",x");  // a comma in a set divides nothing
}

TEST(WildMatch, BraceIsAlsoAPlainCharacter) {
  ExpectMatch("{a,b}", "{a,b}");
  ExpectMatch("x{a*}", "x{aaa}");
  ExpectMatch("{a", "{a");
  ExpectMatch("a}", "a}");
  ExpectMatch("{{a,b}}", "{a}");
  ExpectMatch("{{a,b}}", "{A}");
}

TEST(WildMatch, EmptyBracesArePlainCharacters) {
  ExpectMatch("{}", "{}");
  ExpectNoMatch("{}", "");
  ExpectNoMatch("a{}b", "ab");
  ExpectMatch("a{}b,c}d", "a{}b,c}d");
  ExpectNoMatch("a{}b,c}d", "ad");
}

TEST(WildMatch, AgreesWithTryingEverything) {
  std::mt19937 random(7);
  const char patternLetters[] = "ab?*{},";
  const char nameLetters[] = "ab{},";
  int matches = 0;
  for (int i = 0; i < 60000; ++i) {
    std::string pattern, name;
    for (auto n = random() % 10; n > 0; n--) pattern += patternLetters[random() % 7];
    for (auto n = random() % 7; n > 0; n--) name += nameLetters[random() % 5];
    const bool expected = Tried(pattern.c_str(), name.c_str());
    matches += expected;
    ASSERT_EQ(Narrow(pattern.c_str(), name.c_str()), expected) << pattern << " on " << name;
    ASSERT_EQ(Wide(pattern.c_str(), name.c_str()), expected) << pattern << " on " << name;
  }
  EXPECT_GT(matches, 1000);
}

// ---- bounds ----------------------------------------------------------------

TEST(WildMatch, ManyStarsStayCheap) {
  const auto start = std::chrono::steady_clock::now();
  const std::string name = Repeated("a", 20000);
  EXPECT_FALSE(Narrow("*a*a*a*a*a*a*a*a*b", name.c_str()));
  EXPECT_FALSE(Wide("*a*a*a*a*a*a*a*a*b", name.c_str()));
  const std::string shorter = Repeated("a", 250);
  const std::string starred = Repeated("*{a,aa,?}", 50) + "b";
  EXPECT_FALSE(Narrow(starred.c_str(), shorter.c_str()));
  EXPECT_FALSE(Wide(starred.c_str(), shorter.c_str()));
  // Trying all divisions would take longer than the universe has.
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(60));
}

TEST(WildMatch, LongPatternsNeedNoDeepStack) {
  const std::string stars = Repeated("*?", 30000);
  EXPECT_TRUE(Narrow(stars.c_str(), Repeated("x", 30000).c_str()));
  EXPECT_FALSE(Narrow(stars.c_str(), Repeated("x", 29999).c_str()));
  const std::string braces = Repeated("{a,b}", 5000);
  EXPECT_TRUE(Narrow(braces.c_str(), Repeated("b", 5000).c_str()));
  EXPECT_FALSE(Narrow(braces.c_str(), Repeated("b", 4999).c_str()));
}

// ---- outside samples -------------------------------------------------------

namespace {

// The two places where our rules are known to differ from other matchers: a star
// inside alternatives is a plain character, and a dash behind a range goes on
// from its end.
bool DiffersOnPurpose(const std::string& pattern) {
  const auto open = pattern.find('{');
  const auto star = pattern.find('*', open);
  if (open != std::string::npos && star < pattern.find('}', open)) return true;
  const auto set = pattern.find('[');
  if (set == std::string::npos) return false;
  for (size_t i = set + 2; i + 3 < pattern.size() && pattern[i] != ']'; ++i)
    if (pattern[i] == '-' && pattern[i + 2] == '-' && pattern[i + 3] != ']') return true;
  return false;
}

std::string CorpusDirectory() {
  if (const char* given = getenv("ORVANE_CORPUS")) return given;
#ifdef ORVANE_SOURCE_DIR
  return ORVANE_SOURCE_DIR "/../shared/corpus";
#else
  return "";
#endif
}

}  // namespace

TEST(WildMatch, AgreesWithOtherMatchersWhereTheRulesAreTheSame) {
  std::ifstream rows(CorpusDirectory() + "/wildcard/safe.tsv");
  if (!rows) GTEST_SKIP() << "no samples";
  int checked = 0;
  for (std::string row; std::getline(rows, row);) {
    const auto first = row.find('\t'), second = row.find('\t', first + 1);
    if (row.empty() || row[0] == '#' || second == std::string::npos) continue;
    const std::string pattern = row.substr(0, first), name = row.substr(first + 1, second - first - 1);
    if (DiffersOnPurpose(pattern)) continue;
    const bool expected = row[second + 1] == '1';
    EXPECT_EQ(Narrow(pattern.c_str(), name.c_str()), expected) << pattern << " on " << name;
    EXPECT_EQ(Wide(pattern.c_str(), name.c_str()), expected) << pattern << " on " << name;
    checked++;
  }
  EXPECT_GT(checked, 400);
}

// ---- rename masks ----------------------------------------------------------

TEST(RenameMask, StarCopiesUpToTheNextDot) {
  EXPECT_EQ(Renamed("a.txt", "*.bak"), "a.bak");
  EXPECT_EQ(Renamed("a.txt", "*.*"), "a.txt");
  EXPECT_EQ(Renamed("a.tar.gz", "*.*"), "a.tar");
  EXPECT_EQ(Renamed("a.tar.gz", "*.*.*"), "a.tar.gz");
  EXPECT_EQ(Renamed("name", "*"), "name");
  EXPECT_EQ(Renamed("a.b", "*"), "a");
}

TEST(RenameMask, QuestionMarkCopiesOneCharacterIfThereIsOne) {
  EXPECT_EQ(Renamed("abc", "??"), "ab");
  EXPECT_EQ(Renamed("a", "???"), "a");
  EXPECT_EQ(Renamed("a.b", "???"), "a.b");  // the dot too
}

TEST(RenameMask, DotGoesBehindTheSourcesNextDot) {
  EXPECT_EQ(Renamed("name.txt", "?.*"), "n.txt");
  EXPECT_EQ(Renamed("name", "*.txt"), "name.txt");
  EXPECT_EQ(Renamed("name", "*.*"), "name.");
}

TEST(RenameMask, OtherCharactersDoNotMoveInTheSource) {
  EXPECT_EQ(Renamed("abc.txt", "x*.*"), "xabc.txt");
  EXPECT_EQ(Renamed("abc.txt", "x?*"), "xabc");
  EXPECT_EQ(Renamed("abc.txt", "new"), "new");
  EXPECT_EQ(Renamed("abc.txt", ""), "");
}

TEST(RenameMask, TargetMayBeTheSourceItself) {
  Westring name("a.txt");
  ApplyRenameMask(name.Text(), L"*.bak", name);
  EXPECT_STREQ(name.Text(), L"a.bak");
}
