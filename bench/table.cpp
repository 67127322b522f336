// The benchmarks' rows.
#include "table.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>

namespace {

std::string NumberText(std::optional<double> value) {
  if (!value) return "";
  char text[32];
  snprintf(text, sizeof text, "%.2f", *value);
  return text;
}

}  // namespace

double Seconds(const std::function<void()>& work) {
  using Clock = std::chrono::steady_clock;
  const auto start = Clock::now();
  work();
  return std::chrono::duration<double>(Clock::now() - start).count();
}

double Median(std::vector<double> values) {
  if (values.empty()) return std::nan("");
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

double Least(std::vector<double> values) {
  return values.empty() ? std::nan("") : *std::min_element(values.begin(), values.end());
}

BenchRow CompareTimes(const std::string& what, int rounds, double limit, const std::function<double()>& ours,
                      const std::function<double()>& reference, Typical typical) {
  std::vector<double> oursTimes, referenceTimes;
  for (int i = 0; i < rounds; ++i) {
    referenceTimes.push_back(reference());
    oursTimes.push_back(ours());
  }
  return {what, "ms", typical(oursTimes) * 1e3, typical(referenceTimes) * 1e3, limit};
}

int PrintRows(const std::vector<BenchRow>& rows) {
  bool over = false;
  for (const BenchRow& row : rows) {
    const std::optional<double> ratio = row.reference ? std::optional(row.Figure()) : std::nullopt;
    printf("%s\t%s\t%s\t%s\t%s\t%s\t%s\n", row.what.c_str(), NumberText(row.ours).c_str(), row.unit.c_str(),
           NumberText(row.reference).c_str(), NumberText(ratio).c_str(), NumberText(row.limit).c_str(),
           row.IsOver() ? "over" : "");
    over |= row.IsOver();
  }
  return over ? 1 : 0;
}
