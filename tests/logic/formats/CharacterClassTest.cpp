// The three closed character classes, by themselves and through the private tests of the semantic object.
#include "FormatFixture.h"
#include "formats/CharacterClasses.h"

/// The tests that the semantic object keeps to itself.
struct SemanticAccess
{
    static int numeric(const CKxSemantic& semantic, const std::wstring& part)
    {
        CString text = framework(part);
        return semantic.IsNumeric(text);
    }
    static int character(const std::wstring& part)
    {
        CString text = framework(part);
        return CKxSemantic().IsCharacter(text);
    }
    static int alphaNumeric(const std::wstring& part)
    {
        CString text = framework(part);
        return CKxSemantic().IsAlphaNumeric(text);
    }
    static int archNumber(const CKxSemantic& semantic, const std::wstring& part)
    {
        CString text = framework(part);
        return semantic.IsValidArchNumber(text);
    }
};

namespace
{
using Access = SemanticAccess;

std::wstring everyCharacterOf(unsigned kind)
{
    std::wstring all;
    for (unsigned code = 0; code < 0x10000; ++code)
        if ((CharacterClasses::of(static_cast<wchar_t>(code)) & kind) != 0)
            all += static_cast<wchar_t>(code);
    return all;
}

std::wstring sorted(std::wstring text)
{
    std::sort(text.begin(), text.end());
    return text;
}
} // namespace

TEST(CharacterClass, digits_are_the_ten_digits)
{
    EXPECT_EQ(everyCharacterOf(CharacterClasses::Digit), L"0123456789");
    EXPECT_EQ(everyCharacterOf(CharacterClasses::FeetAndInches), L"\"'-");
}

TEST(CharacterClass, letters_are_the_plain_ones_and_nine_accented_ones)
{
    EXPECT_EQ(everyCharacterOf(CharacterClasses::Letter), sorted(std::wstring(CharacterClasses::letters)));
    EXPECT_EQ(CharacterClasses::letters.size(), 61U);
    EXPECT_EQ(CharacterClasses::letters.substr(52), L"\u00e0\u00e9\u00e8\u00e7\u00f9\u00ea\u00f4\u00ef\u00ee");
}

TEST(CharacterClass, the_wide_class_is_its_list)
{
    EXPECT_EQ(everyCharacterOf(CharacterClasses::Wide), sorted(std::wstring(CharacterClasses::wide)));
    EXPECT_EQ(CharacterClasses::wide.size(), 110U); // 62 letters and digits, 15 accented, 33 signs
}

TEST(CharacterClass, the_wide_class_holds_the_blank_and_the_placeholder_but_no_double_quote)
{
    EXPECT_EQ(Access::alphaNumeric(L" "), 1);
    EXPECT_EQ(Access::alphaNumeric(L"#"), 1);
    EXPECT_EQ(Access::alphaNumeric(L"'"), 1);
    EXPECT_EQ(Access::alphaNumeric(L"\\"), 1);
    EXPECT_EQ(Access::alphaNumeric(L"\u00b5"), 1);
    EXPECT_EQ(Access::alphaNumeric(L"\u00f8"), 1);
    EXPECT_EQ(Access::alphaNumeric(L"\""), 0);
    EXPECT_EQ(Access::alphaNumeric(L"~"), 0);
    EXPECT_EQ(Access::alphaNumeric(L"<"), 0);
    EXPECT_EQ(Access::alphaNumeric(L"\u00c9"), 0);
}

TEST(CharacterClass, a_c_with_cedilla_is_a_letter_and_an_a_with_circumflex_is_only_wide)
{
    EXPECT_EQ(Access::character(L"\u00e7"), 1);
    EXPECT_EQ(Access::character(L"\u00e2"), 0);
    EXPECT_EQ(Access::alphaNumeric(L"\u00e2"), 1);
}

TEST(CharacterClass, the_small_x_is_a_letter_that_letter_groups_refuse)
{
    EXPECT_EQ(Access::character(L"x"), 1);
    EXPECT_EQ(CharacterClasses::of(L'x') & CharacterClasses::LetterButX, 0U);
    EXPECT_NE(CharacterClasses::of(L'X') & CharacterClasses::LetterButX, 0U);
}

TEST(CharacterClass, feet_and_inches_signs_are_numeric_in_architectural_mode_only)
{
    CKxSemantic semantic;
    for (const wchar_t* sign : {L"'", L"\"", L"-"})
    {
        semantic.SetUseArchitecturalFormat(false, CKxUnit());
        EXPECT_EQ(Access::numeric(semantic, sign), 0);
        semantic.SetUseArchitecturalFormat(true, feetUnit());
        EXPECT_EQ(Access::numeric(semantic, sign), 1);
    }
    EXPECT_EQ(Access::numeric(semantic, L"5"), 1);
    EXPECT_EQ(Access::numeric(semantic, L"/"), 0);
    EXPECT_EQ(Access::numeric(semantic, L"."), 0);
}

TEST(CharacterClass, the_argument_is_sought_as_a_part_of_the_list_so_the_empty_text_passes)
{
    const CKxSemantic semantic;
    EXPECT_EQ(Access::numeric(semantic, L""), 1);
    EXPECT_EQ(Access::character(L""), 1);
    EXPECT_EQ(Access::alphaNumeric(L""), 1);
    EXPECT_EQ(Access::numeric(semantic, L"345"), 1);
    EXPECT_EQ(Access::numeric(semantic, L"354"), 0);
    EXPECT_EQ(Access::character(L"Za"), 1);
    EXPECT_EQ(Access::alphaNumeric(L"z0"), 1);
}

TEST(CharacterClass, terminators_surrogates_and_far_characters_are_in_no_class)
{
    for (const unsigned code : {0x0U, 0xD800U, 0xDFFFU, 0xFFFFU, 0x100U, 0x130U, 0x3BCU})
        EXPECT_EQ(CharacterClasses::of(static_cast<wchar_t>(code)), 0U) << code;
    EXPECT_EQ(Access::alphaNumeric(std::wstring(1, L'\0')), 0);
}

TEST(ArchNumber, is_never_valid_while_the_mode_is_off)
{
    const CKxSemantic semantic;
    EXPECT_EQ(Access::archNumber(semantic, L"12"), 0);
}

TEST(ArchNumber, is_what_the_unit_understands)
{
    CKxSemantic semantic;
    semantic.SetUseArchitecturalFormat(true, feetUnit());
    EXPECT_NE(Access::archNumber(semantic, L"12"), 0);
    EXPECT_NE(Access::archNumber(semantic, L"1'-6\""), 0);
    EXPECT_EQ(Access::archNumber(semantic, L"''"), 0);
    EXPECT_EQ(Access::archNumber(semantic, L"--"), 0);
}
