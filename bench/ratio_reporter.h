#pragma once

#include <benchmark/benchmark.h>
#include <map>
#include <string>
#include <vector>

namespace orvane::bench {

// Collects the medians and prints each measure beside its floor: "name" against "name/floor".
class RatioReporter : public benchmark::BenchmarkReporter
{
  public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& Runs) override;
    void Finalize() override;

  private:
    std::vector<std::string> Order;
    std::map<std::string, double> Medians; // microseconds
};

} // namespace orvane::bench
