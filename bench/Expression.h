// A regular expression, compiled once, and its match data, used again for every text.
#pragma once
#ifndef PCRE2_CODE_UNIT_WIDTH
#define PCRE2_CODE_UNIT_WIDTH 32
#endif
#include <pcre2.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

// The letters of a format's class C, as a class of an expression.
#define LETTER L"[A-Za-wyz\u00e0\u00e9\u00e8\u00e7\u00f9\u00ea\u00f4\u00ef\u00ee]"

namespace bench
{
class Expression
{
public:
    explicit Expression(const std::wstring& pattern)
    {
        int error = 0;
        PCRE2_SIZE offset = 0;
        m_code =
            pcre2_compile(reinterpret_cast<PCRE2_SPTR>(pattern.c_str()), pattern.size(), 0, &error, &offset, nullptr);
        if (m_code == nullptr)
        {
            std::fprintf(stderr, "the expression does not compile (error %d at %zu)\n", error, offset);
            std::exit(1);
        }
        m_match = pcre2_match_data_create_from_pattern(m_code, nullptr);
    }
    ~Expression()
    {
        pcre2_match_data_free(m_match);
        pcre2_code_free(m_code);
    }
    Expression(const Expression&) = delete;
    Expression& operator=(const Expression&) = delete;

    /// Turns the expression into machine code.
    void makeQuick()
    {
        if (pcre2_jit_compile(m_code, PCRE2_JIT_COMPLETE) != 0)
        {
            std::fprintf(stderr, "the expression does not become machine code\n");
            std::exit(1);
        }
    }
    bool accepts(std::wstring_view text) const
    {
        return pcre2_match(m_code, reinterpret_cast<PCRE2_SPTR>(text.data()), text.size(), 0, 0, m_match, nullptr) > 0;
    }

private:
    pcre2_code* m_code;
    pcre2_match_data* m_match = nullptr;
};
} // namespace bench
