// The file format of the texts that are filed for a dialog or menu template.
#pragma once
#include <afx.h>
#include <cstddef>
#include <vector>
#include "kitrel/Export.h"

/// The texts filed for one dialog or menu template. They stand in a resource of type PROMPTS whose id is that of the
/// template: a text file in UTF-8, one text a line,
///
///     # what follows '#' at the start of a line is a comment
///     caption = Nouveau style
///     1340 = "Nom du style : "
///
/// where the key is `caption` or the decimal id of a control or command. Blanks around key and text are dropped; a text
/// in double quotes keeps its own. \n, \t, \" and \\ stand for a line feed, a tab, a double quote and a backslash. A
/// line that is none of these is passed over, and the first of several lines with one key counts.
class KITREL_API KxPromptText
{
public:
    /// The key of the line `caption`.
    enum : unsigned int
    {
        c_caption = 0xFFFFFFFFU
    };

    /// Reads `size` bytes of text; a null pointer gives no texts. Bytes that are no UTF-8 become U+FFFD.
    KxPromptText(const void* text, std::size_t size);

    /// The text filed under a key, or null. It lives as long as this object.
    const CString* find(unsigned int key) const;

    /// How many keys have a text.
    std::size_t count() const { return m_entries.size(); }

    /// UTF-8 to text; a byte order mark at the start is dropped.
    static CString decode(const void* text, std::size_t size);

private:
    struct Entry
    {
        unsigned int key;
        CString text;
    };
    void readLine(const CString& line);
    std::vector<Entry> m_entries;
};
