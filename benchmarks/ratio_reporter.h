#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

/// Two benchmarks of one run, and how many times the second the first may take; 0 sets no limit.
struct Ratio {
  const char *what;
  const char *ours;
  const char *other;
  double limit;
};

/// Reports as usual, and keeps the times for the ratios that matter.
class RatioReporter : public benchmark::ConsoleReporter {
 public:
  explicit RatioReporter(std::vector<Ratio> ratios) : ratios_(std::move(ratios)) {}

  void ReportRuns(const std::vector<Run> &runs) override {
    for (const Run &run : runs) {
      if (run.run_type != Run::RT_Iteration) continue;
      // What waits for the disk or for another process is measured by the clock, the rest without its neighbours'
      // share. Of several repetitions the quickest counts: the others waited.
      const bool waits = run.time_unit == benchmark::kMillisecond;
      const double total = waits ? run.real_accumulated_time : run.cpu_accumulated_time;
      const double seconds = total / static_cast<double>(run.iterations);
      const auto [known, added] = seconds_.try_emplace(run.run_name.function_name, seconds);
      if (!added) known->second = std::min(known->second, seconds);
    }
    ConsoleReporter::ReportRuns(runs);
  }

  /// Prints the ratios; true when all limits are kept.
  bool PrintRatios() const {
    bool kept = true;
    std::printf("\n");
    for (const Ratio &ratio : ratios_) {
      const double value = Seconds(ratio.ours) / Seconds(ratio.other);
      std::printf("%-58s %5.2f", ratio.what, value);
      if (ratio.limit > 0) std::printf("  (at most %.1f)%s", ratio.limit, value > ratio.limit ? "  EXCEEDED" : "");
      std::printf("\n");
      kept = kept && (ratio.limit == 0 || value <= ratio.limit);
    }
    return kept;
  }

  double Seconds(const char *name) const {
    const auto found = seconds_.find(name);
    return found == seconds_.end() ? 0 : found->second;
  }

 private:
  std::vector<Ratio> ratios_;
  std::map<std::string, double> seconds_;
};
