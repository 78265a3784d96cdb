// A text that may be too long for the field that is to show it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// The field gets the beginning of a text that is too long for it. The text counts whole for as long as the field shows that.
class LongText
{
public:
    enum : int
    {
        mostShown = 10000 ///< characters
    };

    /// Takes what the field is to show. True when that is too long: the field gets Beginning() of it.
    bool Set(std::wstring_view text)
    {
        Clear();
        if (text.size() <= mostShown)
            return false;
        m_text = text;
        return true;
    }
    /// What the field shows is all.
    void Clear() { std::wstring().swap(m_text); }

    bool IsLong() const { return !m_text.empty(); }
    const std::wstring& Whole() const { return m_text; }
    /// As much as the field shows of a long text; a pair of surrogates is not cut in two.
    std::wstring_view Beginning() const
    {
        const bool cutsPair = IsLong() && m_text[mostShown - 1] >= 0xD800 && m_text[mostShown - 1] <= 0xDBFF;
        return std::wstring_view(m_text).substr(0, cutsPair ? mostShown - 1 : mostShown);
    }

private:
    std::wstring m_text; ///< empty for one that is not too long
};
