// The elements of a formatted text entry, and the operations that keep their positions consistent.
#pragma once

#include <afxcoll.h>
#include <afxtempl.h>
#include "oxa/Export.h"

class CKxGroup;
struct FormatElement;

/// The ordered list of the groups and separators of one edit text.
///
/// Each element owns a stretch of the edit text; the free places of a group hold "#". The list owns its CKxGroup and
/// CKxSeparator objects, which stand in the order of the edit text. An object of any other class in the list is skipped
/// by every operation, and is deleted with the rest.
///
/// All positions are zero-based character positions in the edit text, of any value. A position that falls in no element
/// changes nothing. No operation reports an error; one that would make the text of a group longer than
/// CKxGroup::MaxTextLength throws CMemoryException.
class OXA_API CKxFormat : public CObList
{
public:
    CKxFormat();
    ~CKxFormat() override;

    /// 1 after an Insert or a Delete in a group. The owner sets it to 0 after each rebuild; nothing here reads it.
    int GetModified() const { return m_modified; }
    void SetModified(int modified) { m_modified = modified; }

    /// The first element in list order that covers pos, or null. It stays the property of the list.
    CObject* GetElement(int pos) const;
    /// The texts of all elements joined: what the edit field shows.
    CString CreateEditFormat() const;

    /// Stretches the group at pos by one place and slides all elements behind it. Nothing at a position in no element.
    void IncFormat(int pos);
    /// Shrinks the group at pos by one place and slides all elements behind it.
    void DecFormat(int pos);
    /// Gives the group at pos one more "#". Its positions stay until the caller calls IncFormat.
    void AddFormatCarac(int pos);
    /// Takes the last character from the group at pos, and shrinks it by one place.
    void DeleteFormatCarac(int pos);

    /// Puts ch into the group at pos: over the character there in a group of fixed length, before it in an open one.
    void Insert(int pos, wchar_t ch);
    /// Takes the character at pos out of its group. A group of fixed length gets a "#" at its end instead.
    void Delete(int pos);
    /// Where the caret goes from pos: past a separator for direction 1, before it otherwise, and pos itself elsewhere.
    int Jump(int pos, int direction) const;

    /// 1 if the element at pos is a separator, else 0.
    int IsSeparator(int pos) const;
    /// Start of the first separator at or behind the element at pos, or -1.
    int GetFirstSeparator(int pos) const;
    /// Start of the first group at or behind the element at pos, or -1.
    int GetFirstGroup(int pos) const;

    /// Turns the text of every group into upper case.
    void MakeUpper();
    /// 1 if no group is all placeholders, else 0.
    int ValidAdd() const;
    /// 1 if every group holds only placeholders, else 0. (Not whether the list has elements: see CObList::IsEmpty.)
    int IsEmpty() const;
    /// True if some group still holds a placeholder.
    bool HaveAnyValue() const;

    /// Removes and deletes all elements.
    void DeleteFormat();
    /// Inserts the characters of text at the positions 0, 1, 2 and so on, leaving out those where a separator stands.
    void SetString(CString& text);
    /// Appends the number that each group's text begins with to values, 0 for none, and copies the text of the first
    /// separator, if there is one, to separator.
    void GetFeatureFormat(CString& separator, CList<int, int>& values) const;
    /// Fills the groups with placeholders for a text of the length of text.
    void UpdateFormat(CString text);

private:
    /// How far a run of insertions at rising positions has come: no element before `settled` reaches `position`.
    struct Sweep
    {
        POSITION settled;
        long long position;
    };

    FormatElement ElementAt(POSITION place) const;
    POSITION FindElement(int pos) const;
    FormatElement FirstOfKind(int pos, bool group) const;
    void Grow(POSITION place, long long pos, long long count);
    void InsertAt(POSITION place, int pos, wchar_t ch);
    void InsertRun(long long first, long long last, const wchar_t* characters);
    void InsertStretch(POSITION place, Sweep& sweep, long long stop, const wchar_t* characters);
    bool IsPlain() const;
    void UpdatePlain(int length);
    int ResetGroup(CKxGroup& group, int first, int last);
    void SlideBehind(POSITION place, long long by);
    POSITION NextElement(Sweep& sweep, long long& stop) const;

    int m_modified = 0;
};
