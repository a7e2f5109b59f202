#pragma once

#include <benchmark/benchmark.h>

#include <QString>
#include <cstdio>
#include <map>
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
      const QString name = QString::fromStdString(run.benchmark_name()).section(u'/', 0, 0);
      // What waits for the disk or for another process is measured by the clock, the rest without its neighbours'
      // share.
      const bool waits = run.time_unit == benchmark::kMillisecond;
      const double total = waits ? run.real_accumulated_time : run.cpu_accumulated_time;
      seconds_[name] = total / static_cast<double>(run.iterations);
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
    const auto found = seconds_.find(QString::fromLatin1(name));
    return found == seconds_.end() ? 0 : found->second;
  }

 private:
  std::vector<Ratio> ratios_;
  std::map<QString, double> seconds_;
};
