// How long a judgement takes, against an anchored regular expression (PCRE2, JIT) that accepts the same texts.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>
#include "bench/Expression.h"
#include "oxa/formats/KxSemantic.h"

namespace
{
using Clock = std::chrono::steady_clock;

struct Case
{
    const wchar_t* format;
    const wchar_t* expression;
    std::vector<std::wstring> texts;
};

// The wide class inside brackets of an expression.
#define WIDE                                                                                                           \
    L"[A-Za-z0-9\u00e0\u00e2\u00e4\u00e9\u00e8\u00ea\u00eb\u00ef\u00ee\u00f6\u00f4\u00f9\u00fb\u00fc\u00e7./\\-+*_()'" \
    L"\\\\:;!?\u00b2,%&#{\\[|`@\\]=}$\u00a3\u00b5\u00b0 \u00f8]"

const std::vector<Case>& cases()
{
    static const std::vector<Case> all{
        {L"[(N)3]-[(A)x]",
         L"\\A[0-9]{0,3}-" WIDE L"+\\z",
         {L"123-b", L"123-Poutre HEB 200", L"1-2", L"12", L"1234-b", L"123-", L"7-section A/B (1)", L"12a-b"}},
        {L"[(N)2].[(N)2].[(N)4]",
         L"\\A[0-9]{0,2}\\.[0-9]{0,2}\\.[0-9]{1,4}\\z",
         {L"31.12.1999", L"1.2.3", L"31.12", L"31.12.19999", L"31/12/1999", L"01.01.2001", L"29.02.2000", L"1.1."}},
        {L"[(C)2][[(N)x]",
         L"\\A" LETTER L"{0,2}\\[[0-9]+\\z",
         {L"AB[123456789", L"ab[1", L"a[5", L"ax[1", L"AB[", L"AB", L"AB[12345678901234567890", L"\u00e9\u00e8[77"}},
        {L"[(N)x]",
         L"\\A[0-9]*\\z",
         {L"1", L"12345", L"1234567890", L"12345678901234567890", L"12a45", L"", L"a",
          L"999999999999999999999999999x"}},
        {L"[(A)x]",
         L"\\A" WIDE L"*\\z",
         {L"Poteau", L"Poutre HEB 200 de rive, \u00e9tage 2", L"a", L"x", L"~", L"niveau +3.20 (bas)", L"IPE",
          L"S235"}},
    };
    return all;
}

std::wstring_view viewOf(const CString& text)
{
    return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}

/// Nanoseconds for one text, in one round over all texts.
template <class Judge> double time(const std::vector<CString>& texts, Judge judge)
{
    constexpr int repeats = 400;
    int sum = 0;
    const auto start = Clock::now();
    for (int i = 0; i < repeats; ++i)
        for (const CString& text : texts)
            sum += judge(text);
    const std::chrono::duration<double, std::nano> spent = Clock::now() - start;
    volatile int kept = sum;
    static_cast<void>(kept);
    return spent.count() / repeats / static_cast<double>(texts.size());
}
} // namespace

// The two take turns in short rounds and the best one of each counts, so that a busy machine disturbs both alike.
int main()
{
    constexpr int rounds = 500;
    double ours = 0;
    double theirs = 0;
    std::printf("%-24s %12s %12s %8s\n", "format", "ValidAdd ns", "PCRE2 ns", "ratio");
    for (const Case& one : cases())
    {
        CKxSemantic semantic;
        CString format(one.format);
        bench::Expression expression(one.expression);
        expression.makeQuick();
        if (semantic.CheckSyntax(format) != 1)
            return 1;
        std::vector<CString> texts;
        for (const std::wstring& text : one.texts)
        {
            texts.emplace_back(text.c_str());
            if ((semantic.ValidAdd(texts.back()) != 0) != expression.accepts(text))
            {
                std::fprintf(stderr, "%ls: the two disagree on \"%ls\"\n", one.format, text.c_str());
                return 1;
            }
        }
        double a = 1e300;
        double b = 1e300;
        for (int round = 0; round < rounds; ++round)
        {
            a = std::min(a, time(texts, [&](const CString& text) { return semantic.ValidAdd(text); }));
            b = std::min(b, time(texts, [&](const CString& text) { return expression.accepts(viewOf(text)) ? 1 : 0; }));
        }
        std::printf("%-24ls %12.1f %12.1f %8.2f\n", one.format, a, b, a / b);
        ours += a;
        theirs += b;
    }
    std::printf("%-24s %12.1f %12.1f %8.2f   (goal: 0.50)\n", "all", ours, theirs, ours / theirs);
    return 0;
}
