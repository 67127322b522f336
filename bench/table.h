// The benchmarks' rows: a measured figure beside a reference of the same run.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

struct BenchRow {
  std::string what;
  std::string unit;
  double ours = 0;
  std::optional<double> reference;
  std::optional<double> limit;  // of ours / reference, or of ours where there is no reference

  // What the limit is about.
  double Figure() const { return reference ? ours / *reference : ours; }
  bool IsOver() const { return limit && !(Figure() <= *limit); }
};

double Seconds(const std::function<void()>& work);  // that work takes
double Median(std::vector<double> values);          // NaN of none
double Least(std::vector<double> values);           // NaN of none

// What stands for many measurements of one thing.
using Typical = double (*)(std::vector<double> values);

// A row of typical times in seconds. The two take turns, so that both see the same
// machine.
BenchRow CompareTimes(const std::string& what, int rounds, double limit, const std::function<double()>& ours,
                      const std::function<double()>& reference, Typical typical = Median);

// One line for each row, its fields divided by tabs: what, ours, unit,
// reference, ratio, limit, and "over" where it is. Fields without a value are
// empty. Returns what main returns: 1 if a row is over its limit.
int PrintRows(const std::vector<BenchRow>& rows);
