// Evaluation of filter expressions in one pass from left to right:
//   expression = term { "|" term }
//   term = factor { "&" factor }
//   factor = "!" factor | "(" expression ")" | criterion | pattern
// Every factor leaves one value on the stack; nothing is cut short.
#include "panels/expression.h"

#include <algorithm>
#include <cstdint>
#include <cwchar>

#include "foundation/wildcards.h"
#include "panels/criterion.h"

namespace {

constexpr int kStackSize = 100;
constexpr int kMaxDepth = 1000;  // of brackets; keeps any text off the end of the C stack

bool IsBlank(wchar_t ch) { return ch == L' ' || ch == L'\t'; }
bool EndsPattern(wchar_t ch) { return ch == L'|' || ch == L'&' || ch == L')'; }

class Evaluator {
 public:
  Evaluator(const wchar_t* text, const entry& subject) : p(text), e(subject) {}

  int Run() {
    Expression();
    return error ? -1 : Pop();
  }

 private:
  void Expression() {
    Term();
    while (Take(L'|')) {
      Term();
      const bool right = Pop(), left = Pop();
      Push(left || right);
    }
  }

  void Term() {
    Factor();
    while (Take(L'&')) {
      Factor();
      const bool right = Pop(), left = Pop();
      Push(left && right);
    }
  }

  void Factor() {
    bool negated = false;
    while (Take(L'!')) negated = !negated;
    if (Take(L'('))
      Bracket();
    else if (*p == L'%')
      Push(TestCriterion(p, e, error));
    else
      Pattern();
    if (negated) Push(!Pop());
  }

  void Bracket() {
    if (depth == kMaxDepth) return Fail();
    ++depth;
    Expression();
    --depth;
    if (!Take(L')')) error = true;
  }

  // The text up to an operator outside quotes is matched against the name.
  void Pattern() {
    const wchar_t* const start = p;
    bool quoted = false, hasQuotes = false;
    for (; *p && (quoted || !EndsPattern(*p)); ++p) {
      if (*p != L'"') continue;
      quoted = !quoted;
      hasQuotes = true;
    }
    // The last pattern of a text is the common case and needs no copy.
    const bool isWhole = !*p && p > start && !hasQuotes && !IsBlank(p[-1]);
    if (isWhole)
      Push(WildMatchW(start, e.name));
    else
      MatchCopy(start, p);
  }

  // Without quotes and trailing blanks.
  void MatchCopy(const wchar_t* start, const wchar_t* end) {
    Westring pattern = Westring::Reserved(static_cast<int>(end - start));
    wchar_t* last = std::remove_copy(start, end, pattern.Text(), L'"');
    while (last > pattern.Text() && IsBlank(last[-1])) --last;
    *last = 0;
    if (pattern.IsEmpty()) return Fail();
    Push(WildMatchW(pattern.Text(), e.name));
  }

  // Skips blanks, then ch if it is there.
  bool Take(wchar_t ch) {
    while (IsBlank(*p)) ++p;
    if (*p != ch) return false;
    ++p;
    return true;
  }

  // A factor that can't be read leaves a value all the same.
  void Fail() {
    error = true;
    Push(false);
  }

  void Push(bool value) {
    if (top + 1 < kStackSize)
      stack[++top] = value;
    else
      error = true;
  }

  // The stack runs short only behind a value that found it full.
  bool Pop() { return top >= 0 && stack[top--]; }

  const wchar_t* p;
  const entry& e;
  bool stack[kStackSize] = {};
  int top = -1;
  int depth = 0;
  bool error = false;
};

}  // namespace

int MatchEntry(const wchar_t* expression, const entry& e) {
  if (expression[0] == L'*' && expression[1] == 0) return 1;
  return Evaluator(expression, e).Run();
}

int MatchName(const wchar_t* expression, const wchar_t* name) {
  const OwnedEntry e(NewEntry(name));
  return MatchEntry(expression, *e);
}

bool HasSyntaxError(const Westring& expression) { return MatchName(expression.Text(), L"test") < 0; }

bool TestRuleList(AssociationSet& rules, const entry& e, Westring& text) {
  for (int i = 0; i < rules.Count(); ++i) {
    const Association& rule = *rules.Peek(i);
    if (MatchEntry(rule.test.Text(), e) == 0) continue;
    text = rule.value;
    return true;
  }
  return false;
}

bool TestRuleList(AssociationSet& rules, const wchar_t* name, Westring& text) {
  const OwnedEntry e(NewEntry(name));
  return TestRuleList(rules, *e, text);
}
