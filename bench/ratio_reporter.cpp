#include "ratio_reporter.h"

#include <cstdio>

namespace orvane::bench {

void RatioReporter::ReportRuns(const std::vector<Run>& Runs)
{
    for (const Run& Each : Runs)
        if (Each.aggregate_name == "median") {
            Order.push_back(Each.run_name.function_name);
            Medians[Order.back()] = Each.GetAdjustedRealTime();
        }
}

void RatioReporter::Finalize()
{
    std::printf("%-44s %10s %10s %8s\n", "measure (median, microseconds)", "program", "floor",
                "ratio");
    for (const std::string& Name : Order)
        if (const auto Floor = Medians.find(Name + "/floor"); Floor != Medians.end())
            std::printf("%-44s %10.2f %10.2f %8.2f\n", Name.c_str(), Medians[Name], Floor->second,
                        Medians[Name] / Floor->second);
}

} // namespace orvane::bench
