// Putting characters in and taking them out, and what that does to the positions of all elements.
#include <functional>
#include "FormatFixture.h"

namespace
{
using Edit = std::function<void(CKxFormat&)>;

Edit grow(int pos)
{
    return [pos](CKxFormat& format) { format.IncFormat(pos); };
}
Edit shrink(int pos)
{
    return [pos](CKxFormat& format) { format.DecFormat(pos); };
}
Edit addPlace(int pos)
{
    return [pos](CKxFormat& format) { format.AddFormatCarac(pos); };
}
Edit dropPlace(int pos)
{
    return [pos](CKxFormat& format) { format.DeleteFormatCarac(pos); };
}
Edit insert(int pos, wchar_t ch)
{
    return [pos, ch](CKxFormat& format) { format.Insert(pos, ch); };
}
Edit take(int pos)
{
    return [pos](CKxFormat& format) { format.Delete(pos); };
}

/// What one edit makes of a list, both as elements() writes them.
struct Change
{
    const char* says;
    const wchar_t* before;
    Edit edit;
    std::wstring after;
};

void expectChanges(const std::vector<Change>& changes)
{
    for (const Change& change : changes)
    {
        const Listed original(change.before);
        EXPECT_EQ(elements(original), change.before);
        Listed format(change.before);
        change.edit(format);
        EXPECT_EQ(elements(format), change.after) << change.says << ", from " << change.before;
    }
}

/// The list stays as it was, and unmodified, under an edit at a separator or outside all elements.
void expectNothing(const std::function<Edit(int)>& editAt)
{
    for (const int pos : {3, 4, 7, -1})
    {
        Listed format(L"O0-2:12# S3-4:-- G5-6:##");
        format.SetModified(0);
        editAt(pos)(format);
        EXPECT_EQ(elements(format), L"O0-2:12# S3-4:-- G5-6:##") << pos;
        EXPECT_EQ(format.GetModified(), 0) << pos;
    }
}
} // namespace

TEST(FormatShift, the_group_at_the_position_stretches_and_what_follows_slides)
{
    expectChanges({
        {"in the first group", L"O0-2:12# S3-4:-- G5-6:##", grow(1), L"O0-3:12# S4-5:-- G6-7:##"},
        {"a later group leaves the earlier ones", L"O0-2:12# S3-4:-- G5-6:##", grow(6), L"O0-2:12# S3-4:-- G5-7:##"},
        {"a separator stays itself", L"O0-2:12# S3-4:-- G5-6:##", grow(3), L"O0-2:12# S3-4:-- G6-7:##"},
        {"shrinking is the same walk backwards", L"O0-2:12# S3-4:-- G5-6:##", shrink(0), L"O0-1:12# S2-3:-- G4-5:##"},
        {"from a separator too", L"O0-2:12# S3-4:-- G5-6:##", shrink(4), L"O0-2:12# S3-4:-- G4-5:##"},
        {"elements behind that also cover the position stretch or stay", L"O0-5:# O2-8:# S3-3:- S9-9:+", grow(3),
         L"O0-6:# O2-9:# S3-3:- S10-10:+"},
    });
}

TEST(FormatShift, a_position_in_no_element_moves_nothing)
{
    for (const int pos : {7, -1})
        expectChanges({
            {"growing", L"O0-2:12# S3-4:-- G5-6:##", grow(pos), L"O0-2:12# S3-4:-- G5-6:##"},
            {"shrinking", L"O0-2:12# S3-4:-- G5-6:##", shrink(pos), L"O0-2:12# S3-4:-- G5-6:##"},
        });
}

TEST(FormatCarac, adding_appends_a_place_and_deleting_takes_the_last_character)
{
    expectChanges({
        {"adding lets the end lag", L"O0-2:12# S3-4:-- G5-6:##", addPlace(5), L"O0-2:12# S3-4:-- G5-6:###"},
        {"until the caller grows", L"O0-2:12# S3-4:-- G5-6:###", grow(5), L"O0-2:12# S3-4:-- G5-7:###"},
        {"deleting shrinks", L"O0-2:12# S3-4:-- G5-6:##", dropPlace(0), L"O0-1:12 S2-3:-- G4-5:##"},
        {"a group without text shrinks all the same", L"O0-0: S1-1:-", dropPlace(0), L"O0--1: S0-0:-"},
    });
}

TEST(FormatCarac, separators_and_outer_positions_are_left_alone)
{
    expectNothing(addPlace);
    expectNothing(dropPlace);
}

TEST(FormatInsert, a_fixed_group_takes_the_character_in_place)
{
    expectChanges({
        {"over a placeholder", L"G0-2:###", insert(1, L'7'), L"G0-2:#7#"},
        {"over a character", L"G0-1:12 S2-2:- G3-3:3", insert(3, L'9'), L"G0-1:12 S2-2:- G3-3:9"},
        {"nothing moves", L"G0-1:12 S2-2:- G3-3:9", insert(0, L'8'), L"G0-1:82 S2-2:- G3-3:9"},
        {"a placeholder may be inserted", L"G0-1:12", insert(1, L'#'), L"G0-1:1#"},
        {"behind the text nothing is replaced", L"G0-4:1", insert(3, L'2'), L"G0-4:1"},
    });
}

TEST(FormatInsert, a_group_with_a_character_counts_as_filled)
{
    Listed format(L"G0-2:###");
    EXPECT_EQ(format.ValidAdd(), 0);
    EXPECT_EQ(format.IsEmpty(), 1);
    format.Insert(1, L'7');
    EXPECT_EQ(format.ValidAdd(), 1);
    EXPECT_EQ(format.IsEmpty(), 0);
}

TEST(FormatInsert, an_open_group_with_a_free_place_at_its_end_grows_by_one)
{
    expectChanges({
        {"before the free place", L"O0-0:# S1-1:-", insert(0, L'a'), L"O0-1:a# S2-2:-"},
        {"and again", L"O0-1:a# S2-2:-", insert(1, L'b'), L"O0-2:ab# S3-3:-"},
        {"at the head", L"O0-2:ab# S3-3:-", insert(0, L'c'), L"O0-3:cab# S4-4:-"},
        {"behind its text the missing part is nothing", L"O0-9:#", insert(5, L'a'), L"O0-10:#a"},
    });
}

TEST(FormatInsert, a_full_open_group_overwrites_the_character_before_and_adds_two_positions)
{
    expectChanges({
        {"the first 1 of abc, X, abc from 2 on", L"O0-2:abc S3-3:-", insert(2, L'X'), L"O0-4:aXc# S5-5:-"},
        {"at its head it loses nothing", L"O0-2:abc S3-3:-", insert(0, L'X'), L"O0-4:Xabc# S5-5:-"},
        {"without text it counts as full", L"O0-0: S1-1:-", insert(0, L'X'), L"O0-2:X# S3-3:-"},
        {"behind its text the missing part is nothing", L"O0-9:ab", insert(5, L'c'), L"O0-11:abc#"},
        {"the first 1 of ab, c, nothing", L"O0-9:ab", insert(2, L'c'), L"O0-11:ac#"},
    });
}

TEST(FormatInsert, an_embedded_terminator_is_a_character)
{
    Listed format(L"O0-0:#");
    format.Insert(0, L'\0');
    format.Insert(1, L'a');
    EXPECT_EQ(elements(format), std::wstring(L"O0-2:\0a#", 8));
}

TEST(FormatInsert, separators_and_outer_positions_take_nothing)
{
    expectNothing([](int pos) { return insert(pos, L'z'); });
}

TEST(FormatInsert, every_group_case_marks_the_list_as_modified)
{
    for (const wchar_t* list : {L"O0-0:#", L"O0-0:a", L"G0-0:#"})
    {
        Listed format(list);
        format.SetModified(0);
        format.Insert(0, L'b');
        EXPECT_EQ(format.GetModified(), 1) << list;
    }
    Listed behind(L"G0-4:1");
    behind.SetModified(0);
    behind.Insert(3, L'2');
    EXPECT_EQ(behind.GetModified(), 1);
}

TEST(FormatDelete, a_fixed_group_gets_a_placeholder_at_its_end_and_nothing_moves)
{
    expectChanges({
        {"at its head", L"G0-2:123 S3-3:-", take(0), L"G0-2:23# S3-3:-"},
        {"behind the text nothing goes, and the place comes", L"G0-4:1", take(3), L"G0-4:1#"},
    });
}

TEST(FormatDelete, an_open_group_keeps_a_free_place)
{
    expectChanges({
        {"with one left it shrinks", L"O0-2:12# S3-3:- G4-4:#", take(0), L"O0-1:2# S2-2:- G3-3:#"},
        {"without one it keeps its positions", L"O0-1:12 S2-2:-", take(0), L"O0-1:2# S2-2:-"},
        {"the only one is given back", L"O0-0:# S1-1:-", take(0), L"O0-0:# S1-1:-"},
        {"behind the text nothing goes, and it shrinks", L"O0-4:1# S5-5:-", take(3), L"O0-3:1# S4-4:-"},
    });
}

TEST(FormatDelete, separators_and_outer_positions_lose_nothing)
{
    expectNothing(take);
}

TEST(FormatDelete, a_group_marks_the_list_as_modified)
{
    for (const int pos : {0, 6})
    {
        Listed format(L"O0-2:12# S3-4:-- G5-6:##");
        format.SetModified(0);
        format.Delete(pos);
        EXPECT_EQ(format.GetModified(), 1) << pos;
    }
    Listed behind(L"O0-4:1# S5-5:-");
    behind.SetModified(0);
    behind.Delete(3);
    EXPECT_EQ(behind.GetModified(), 1);
}
