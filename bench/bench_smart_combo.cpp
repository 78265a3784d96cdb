// How long a smart combo box judges a text by fifty formats, against fifty regular expressions (PCRE2, JIT) of the same
// meaning; and how the time to fill and to sort it grows with the number of values, against the plain steps.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>
#include "bench/Expression.h"
#include "bench/Fastest.h"
#include "bench/TextsInDisorder.h"
#include "support/PlainSmartCombo.h"

namespace
{
using bench::Expression;
using bench::fastest;

void require(bool good, const char* what)
{
    if (!good)
    {
        std::fprintf(stderr, "%s\n", what);
        std::exit(1);
    }
}

// ---- Fifty formats

struct Rule
{
    std::wstring format;
    std::wstring expression;
};

/// Up to so many digits, a literal, up to so many letters: no two alike.
std::vector<Rule> fiftyRules()
{
    std::vector<Rule> rules;
    for (int i = 0; i < 50; ++i)
    {
        const std::wstring digits = std::to_wstring(i % 5 + 1);
        const std::wstring letters = std::to_wstring(i / 5 % 5 + 1);
        const std::wstring literal = i < 25 ? L"-" : L"/";
        rules.push_back({L"[(N)" + digits + L"]" + literal + L"[(C)" + letters + L"]",
                         L"\\A[0-9]{0," + digits + L"}" + literal + LETTER L"{1," + letters + L"}\\z"});
    }
    return rules;
}

/// Our time for a text against that of the expressions: read anew for the text as our formats are, and kept ready.
void judge(const std::vector<Rule>& rules, const wchar_t* text)
{
    constexpr int rounds = 300;
    const std::wstring wide = text;
    const CString value = text;
    MemorySmartCombo smart;
    for (const Rule& rule : rules)
        smart.data().formatList.AddTail(rule.format.c_str());
    int fits = 0;
    const auto takenBy = [&](const Rule& rule) { return Expression(rule.expression).accepts(wide); };
    const auto first = std::find_if(rules.begin(), rules.end(), takenBy);
    require((first != rules.end()) == (smart.call().ValidFreeFormat(value, 0) != 0), "the two disagree");

    std::vector<std::unique_ptr<Expression>> kept;
    for (const Rule& rule : rules)
    {
        kept.push_back(std::make_unique<Expression>(rule.expression));
        kept.back()->makeQuick();
    }
    const double ours = fastest(rounds, [&] { fits += smart.call().ValidFreeFormat(value, 0); });
    const double anew = fastest(rounds, [&] { fits += std::any_of(rules.begin(), rules.end(), takenBy) ? 1 : 0; });
    const double quick = fastest(rounds,
                                 [&]
                                 {
                                     for (const auto& one : kept)
                                         if (one->accepts(wide))
                                         {
                                             ++fits;
                                             break;
                                         }
                                 });
    volatile int sum = fits;
    static_cast<void>(sum);
    std::printf("%-14ls %12.0f %16.0f %9.3f %14.0f %9.3f\n", text, ours, anew, ours / anew, quick, ours / quick);
}

// ---- Many values

struct Times
{
    double fill;
    double sort;
};

Times quickTimes(CStringList& values)
{
    constexpr int rounds = 5;
    MemorySmartCombo smart;
    Times times{fastest(rounds, [&] { smart.call().SetStringCombo(values); }), 1e300};
    for (int round = 0; round < rounds; ++round)
    {
        RememberedValues::Assign(smart.data().list, values); // in disorder again
        times.sort = std::min(times.sort, fastest(1, [&] { smart.call().SortCombo(); }));
    }
    return times;
}

/// The standard library's sort of the same texts: the yardstick of n log n on this machine's memory.
double yardstick(const CStringList& values)
{
    return fastest(5,
                   [texts = RememberedValues::Copy(values)]
                   {
                       std::vector<CString> sorted = texts;
                       std::stable_sort(sorted.begin(), sorted.end(),
                                        [](const CString& a, const CString& b) { return a.CompareNoCase(b) < 0; });
                   });
}

Times plainTimes(CStringList& values)
{
    MemorySmartCombo smart;
    Times times{};
    times.fill = fastest(1, [&] { PlainSmartCombo::SetStringCombo(smart, values); });
    RememberedValues::Assign(smart.data().list, values);
    times.sort = fastest(1, [&] { PlainSmartCombo::SortCombo(smart); });
    return times;
}

void grow()
{
    constexpr int plainMost = 10000; // beyond, the plain steps take minutes
    for (const int count : {1000, 10000, 100000})
    {
        CStringList values;
        for (const CString& text : bench::textsInDisorder(count))
            values.AddTail(text);
        const Times quick = quickTimes(values);
        const double unit = yardstick(values);
        std::printf("%-8d %11.2f %11.2f %11.2f %9.2f %9.2f", count, quick.fill / 1e6, quick.sort / 1e6, unit / 1e6,
                    quick.fill / unit, quick.sort / unit);
        if (count <= plainMost)
        {
            const Times plain = plainTimes(values);
            std::printf(" %12.4f %11.4f", quick.fill / plain.fill, quick.sort / plain.sort);
        }
        std::printf("\n");
    }
}
} // namespace

int main()
{
    const std::vector<Rule> rules = fiftyRules();
    std::printf("ValidFreeFormat over %zu formats, nanoseconds for one text\n", rules.size());
    std::printf("%-14s %12s %16s %9s %14s %9s\n", "text", "ours", "PCRE2 anew", "ratio", "PCRE2 ready", "ratio");
    judge(rules, L"12345/abcde"); // the last format takes it
    judge(rules, L"1-a");         // the first one does
    judge(rules, L"12345678");    // none does
    judge(rules, L"12345/abcdef");
    std::printf("\nfilling and sorting, milliseconds; the library's stable sort of the same texts grows as n log n\n");
    std::printf("%-8s %11s %11s %11s %9s %9s %12s %11s\n", "values", "fill", "sort", "library", "fill/lib", "sort/lib",
                "fill/plain", "sort/plain");
    grow();
    return 0;
}
