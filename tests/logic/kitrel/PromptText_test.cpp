// The file format of the texts that are filed for a template.
#include "kitrel/KxPromptText.h"
#include <gtest/gtest.h>
#include <cstring>
#include <string>

namespace
{
KxPromptText read(const char* text)
{
    return {text, std::strlen(text)};
}

std::wstring textOf(const KxPromptText& texts, unsigned int key)
{
    const CString* text = texts.find(key);
    return text ? std::wstring(static_cast<const wchar_t*>(*text)) : std::wstring(L"(none)");
}

std::wstring decoded(const std::string& bytes)
{
    return static_cast<const wchar_t*>(KxPromptText::decode(bytes.data(), bytes.size()));
}
} // namespace

TEST(PromptText, reads_caption_and_control_texts_in_utf_8)
{
    const KxPromptText texts = read("caption = Définition\n1052 = Nom :\n");
    EXPECT_EQ(textOf(texts, KxPromptText::c_caption), L"D\u00e9finition");
    EXPECT_EQ(textOf(texts, 1052), L"Nom :");
    EXPECT_EQ(textOf(texts, 1053), L"(none)");
    EXPECT_EQ(texts.count(), 2U);
}

TEST(PromptText, blanks_around_are_dropped_and_quotes_keep_them)
{
    const KxPromptText texts = read("  1 =  one \t\r\n2=\" two \"\n3 = \"\n4 = \"\"\n");
    EXPECT_EQ(textOf(texts, 1), L"one");
    EXPECT_EQ(textOf(texts, 2), L" two ");
    EXPECT_EQ(textOf(texts, 3), L"\"");
    EXPECT_EQ(textOf(texts, 4), L"");
}

TEST(PromptText, escapes_stand_for_line_feed_tab_quote_and_backslash)
{
    const KxPromptText texts = read("1 = a\\nb\\tc\\\"d\\\\e\n2 = x\\y\n3 = end\\\n");
    EXPECT_EQ(textOf(texts, 1), L"a\nb\tc\"d\\e");
    EXPECT_EQ(textOf(texts, 2), L"x\\y");
    EXPECT_EQ(textOf(texts, 3), L"end\\");
}

TEST(PromptText, comments_and_lines_without_a_key_are_passed_over)
{
    const KxPromptText texts = read("# 1 = no\n\nno sign\nword = no\n-5 = no\n12345678901 = no\n = no\n7 = a = b\n");
    EXPECT_EQ(texts.count(), 1U);
    EXPECT_EQ(textOf(texts, 7), L"a = b");
}

TEST(PromptText, the_first_of_two_lines_with_one_key_counts)
{
    EXPECT_EQ(textOf(read("5 = first\n5 = second"), 5), L"first");
}

TEST(PromptText, nothing_gives_no_texts)
{
    EXPECT_EQ(KxPromptText(nullptr, 0).count(), 0U);
    EXPECT_EQ(KxPromptText(nullptr, 10).count(), 0U);
    EXPECT_EQ(read("").count(), 0U);
}

TEST(PromptText, a_byte_order_mark_is_dropped)
{
    EXPECT_EQ(textOf(read("\xEF\xBB\xBF"
                          "caption = A"),
                     KxPromptText::c_caption),
              L"A");
}

TEST(PromptText, characters_beyond_the_first_plane_are_decoded)
{
    const std::wstring text = decoded("\xF0\x9F\x93\x90");
    EXPECT_EQ(text, sizeof(wchar_t) == 2 ? L"\xD83D\xDCD0" : L"\U0001F4D0");
}

TEST(PromptText, malformed_bytes_become_replacement_characters)
{
    EXPECT_EQ(decoded("a\x80z"), L"a\uFFFDz");       // a continuation byte alone
    EXPECT_EQ(decoded("\xC3"), L"\uFFFD");           // cut short at the end
    EXPECT_EQ(decoded("\xC0\xAF"), L"\uFFFD\uFFFD"); // longer than needed
    EXPECT_EQ(decoded("\xE0\x80\xAF"), L"\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(decoded("\xED\xA0\x80"), L"\uFFFD\uFFFD\uFFFD");           // half of a surrogate pair
    EXPECT_EQ(decoded("\xF4\x90\x80\x80"), L"\uFFFD\uFFFD\uFFFD\uFFFD"); // behind the last character
    EXPECT_EQ(decoded("\xFF\xFE"), L"\uFFFD\uFFFD");
    EXPECT_EQ(decoded("\xE2\x82"
                      "A"),
              L"\uFFFD\uFFFDA"); // cut short by another character
}

TEST(PromptText, a_hundred_thousand_lines_are_read_without_harm)
{
    std::string text;
    for (int i = 0; i < 100000; ++i)
        text += "1 = x\n";
    EXPECT_EQ(KxPromptText(text.data(), text.size()).count(), 1U);
}
