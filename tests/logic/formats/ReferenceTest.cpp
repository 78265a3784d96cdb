// The judgement against two slow judges, over all short texts of small alphabets.
#include "FormatFixture.h"
#include "support/ReferenceFormats.h"

namespace
{
using reference::Format;

/// Calls visit with every text of up to `longest` characters of `alphabet`.
template <class Visit> void everyText(const std::wstring& alphabet, std::size_t longest, Visit visit)
{
    std::vector<std::wstring> texts{L""};
    for (std::size_t length = 0; length <= longest; ++length)
    {
        std::vector<std::wstring> longer;
        for (const std::wstring& text : texts)
        {
            visit(text);
            for (const wchar_t ch : alphabet)
                longer.push_back(text + ch);
        }
        texts = std::move(longer);
    }
}

/// Counts the accepted texts, and fails on the first one that the judges see differently.
template <class Judge> int compare(const Format& format, const std::wstring& alphabet, std::size_t longest, Judge judge)
{
    const Parsed semantic(reference::spelled(format));
    EXPECT_EQ(semantic.result, 1);
    int accepted = 0;
    everyText(alphabet, longest,
              [&](const std::wstring& text)
              {
                  const int verdict = semantic.ValidAdd(framework(text));
                  accepted += verdict;
                  if (verdict != (judge(format, text) ? 1 : 0) && !testing::Test::HasFailure())
                      ADD_FAILURE() << testing::PrintToString(reference::spelled(format)) << " on "
                                    << testing::PrintToString(text) << ": " << verdict;
              });
    return accepted;
}

const auto acceptance = [](const Format& format, const std::wstring& text) { return reference::accepts(format, text); };
const auto steps = [](const Format& format, const std::wstring& text)
{ return reference::StepJudge(format).judge(text); };
} // namespace

TEST(Reference, the_acceptance_judge_tells_good_from_bad)
{
    const Format format{{'F', L"N", 2}, {'S', L"-", 1}, {'F', L"N", 1}};
    EXPECT_EQ(reference::spelled(format), L"[(N)2]-[(N)1]");
    EXPECT_TRUE(reference::accepts(format, L"12-3"));
    EXPECT_TRUE(reference::accepts(format, L"-3"));
    EXPECT_FALSE(reference::accepts(format, L"12-"));
    EXPECT_FALSE(reference::accepts(format, L"123-4"));
}

TEST(Reference, ordinary_formats_accept_just_what_the_grammar_says)
{
    const std::vector<Format> formats{
        {{'F', L"N", 3}},
        {{'O', L"C", 0}},
        {{'F', L"N", 2}, {'S', L"-", 1}, {'F', L"N", 1}},
        {{'O', L"N", 0}, {'S', L"-", 1}, {'O', L"A", 0}},
        {{'F', L"C", 1}, {'S', L"-1", 2}, {'F', L"N", 2}},
        {{'S', L"-", 1}, {'F', L"N", 2}, {'S', L"#", 1}, {'O', L"C", 0}},
        {{'F', L"1-2", 2}, {'S', L"a", 1}, {'O', L"N", 0}, {'S', L"-", 1}, {'F', L"C", 2}},
    };
    int accepted = 0;
    for (const Format& format : formats)
        accepted += compare(format, L"12a-#", 6, acceptance);
    EXPECT_GT(accepted, 1000);
}

TEST(Reference, odd_formats_follow_the_documented_steps)
{
    const std::vector<Format> formats{
        {{'F', L"N", 2}, {'S', L"-", 1}},
        {{'O', L"N", 0}, {'S', L"-", 1}},
        {{'S', L"a-", 2}},
        {{'F', L"N", 1}, {'S', L"1", 1}, {'F', L"N", 1}, {'S', L"2", 1}, {'F', L"A", 2}},
        {{'F', L"A", 2}, {'S', L"A", 1}, {'F', L"A", 1}, {'S', L"-", 1}, {'O', L"C", 0}},
        {{'F', L"A", 1}, {'S', L"C1-", 3}, {'F', L"C", 3}, {'S', L"N", 1}},
        {{'F', L"N", 0}, {'S', L"a", 1}, {'F', L"N", 0}},
        {{'F', L"N", 1}, {'S', L"a2", 2}, {'F', L"a-a", 2}, {'S', L"A", 1}, {'F', L"2-1", 1}},
        {{'O', L"A", 0}, {'S', L"-", 1}, {'F', L"N", 1}},
        {{'S', L"1", 1}, {'F', L"A", 3}, {'S', L"-1", 2}, {'O', L"N", 0}},
    };
    for (const Format& format : formats)
        compare(format, L"12aA-#", 5, steps);
}

TEST(Reference, both_judges_agree_on_ordinary_formats)
{
    const Format format{{'F', L"N", 2}, {'S', L"-", 1}, {'O', L"N", 0}};
    everyText(L"12a-", 6,
              [&](const std::wstring& text)
              { EXPECT_EQ(reference::accepts(format, text), reference::StepJudge(format).judge(text)); });
}

TEST(Reference, marks_and_symbols_are_left_out_before_the_steps)
{
    const std::vector<Format> formats{
        {{'O', L"N", 0}},
        {{'F', L"A", 2}},
        {{'O', L"A", 0}, {'S', L"\u00b1", 1}, {'F', L"N", 1}},
        {{'F', L"N", 1}, {'S', L" ", 1}, {'F', L"C", 1}},
        {{'O', L"\u00a0-\u00ff", 0}},
        {{'F', L"\u2240-\u2250", 2}, {'S', L"1", 1}, {'O', L"A", 0}},
        {{'S', L"\u2248", 1}, {'F', L"A", 3}, {'S', L"m", 1}},
    };
    const auto bare = [](const Format& format, const std::wstring& text)
    {
        CString left = framework(text);
        CKxUnit::EliminateUnitsSymbol(11, left);
        CKxUnit::EliminatePrecision(left);
        return reference::StepJudge(format).judge(wide(left));
    };
    int accepted = 0;
    for (const Format& format : formats)
        accepted += compare(format, L"1 m\u00b1\u2248\t", 5, bare);
    EXPECT_GT(accepted, 1000);
}

TEST(Reference, architectural_formats_follow_the_documented_steps)
{
    const std::vector<Format> formats{
        {{'O', L"N", 0}},
        {{'F', L"N", 3}},
        {{'O', L"N", 0}, {'S', L"/", 1}, {'O', L"N", 0}},
        {{'O', L"N", 0}, {'S', L"/", 1}, {'F', L"N", 2}, {'S', L"/", 1}, {'O', L"A", 0}},
        {{'F', L"N", -1}, {'S', L"/", 1}, {'O', L"N", 0}},
        {{'O', L"N", 0}, {'S', L"/", 1}, {'F', L"N", -2}, {'S', L"/", 1}, {'F', L"N", 1}},
    };
    const CKxUnit unit = feetUnit();
    const auto isNumber = [&unit](const std::wstring& text)
    {
        int flag = 0;
        unit.String2Double(framework(text), &flag, 1);
        return flag != 0;
    };
    int accepted = 0;
    for (const Format& format : formats)
    {
        const ParsedFeet semantic(reference::spelled(format).c_str());
        ASSERT_EQ(semantic.result, 1);
        everyText(L"1'\"-/", 6,
                  [&](const std::wstring& text)
                  {
                      const int verdict = semantic.ValidAdd(framework(text));
                      accepted += verdict;
                      if (verdict != (reference::StepJudge(format, isNumber).judge(text) ? 1 : 0) && !HasFailure())
                          ADD_FAILURE() << testing::PrintToString(reference::spelled(format)) << " on "
                                        << testing::PrintToString(text) << ": " << verdict;
                  });
    }
    EXPECT_GT(accepted, 1000);
}
