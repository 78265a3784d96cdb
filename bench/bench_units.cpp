// Reading and printing of unit texts, as a ratio to strtod and snprintf on the same values in the same run.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "bench/Fastest.h"
#include "kitrel/KxUnit.h"

namespace
{

constexpr size_t c_values = 2000;
constexpr int c_rounds = 200;
constexpr double c_goal = 0.5;

double g_sum; // keeps the work from being left out

struct Samples
{
    std::vector<double> values;
    std::vector<std::string> narrow;
    std::vector<std::wstring> wide;
};

Samples makeSamples()
{
    std::mt19937_64 random(20240917);
    std::uniform_real_distribution<double> spread(-2000.0, 20000.0);
    Samples samples;
    for (size_t i = 0; i < c_values; ++i)
    {
        const double value = spread(random);
        char text[64];
        std::snprintf(text, sizeof text, "%.3f", value);
        samples.values.push_back(value);
        samples.narrow.emplace_back(text);
        samples.wide.emplace_back(samples.narrow.back().begin(), samples.narrow.back().end());
    }
    return samples;
}

// The quickest of many rounds, in nanoseconds for one value.
template <class Work> double fastestEach(const Work& work)
{
    return bench::fastest(c_rounds,
                          [&]
                          {
                              for (size_t i = 0; i < c_values; ++i)
                                  work(i);
                          }) /
           static_cast<double>(c_values);
}

double line(const char* name, double ours, double peers)
{
    std::printf("%-42s %7.1f ns %7.1f ns   ratio %.3f\n", name, ours, peers, ours / peers);
    return ours / peers;
}

} // namespace

int main()
{
    const CKxUnit unit(1, 0, 3, L'.', 1.0, 1);
    Samples samples = makeSamples();

    const double read = fastestEach([&](size_t i) { g_sum += unit.String2Double(samples.wide[i].data(), nullptr, 1); });
    const double print = fastestEach(
        [&](size_t i)
        {
            wchar_t buffer[CKxUnit::c_nTextSize];
            unit.Double2String(buffer, samples.values[i], 1, L"%.*f", 1, 1, 50);
            g_sum += buffer[0];
        });
    const double peerRead = fastestEach([&](size_t i) { g_sum += std::strtod(samples.narrow[i].c_str(), nullptr); });
    const double peerPrint = fastestEach(
        [&](size_t i)
        {
            char buffer[64];
            std::snprintf(buffer, sizeof buffer, "%.*f m", 3, samples.values[i]);
            g_sum += buffer[0];
        });

    std::printf("%-42s %10s %10s\n", "decimal value, 3 decimals", "ours", "C library");
    line("read (String2Double / strtod)", read, peerRead);
    line("print (Double2String / snprintf)", print, peerPrint);
    const double both = line("read and print", read + print, peerRead + peerPrint);
    std::printf("goal: read and print at most %.2f: %s\n", c_goal, both <= c_goal ? "met" : "not met");
    return g_sum == 0.5 ? 1 : 0;
}
