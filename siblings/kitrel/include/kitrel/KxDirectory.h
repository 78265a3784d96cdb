// The files of one directory.
#pragma once
#include <afx.h>
#include "kitrel/Export.h"

/// One directory, named by its path. It is read at each call; nothing is kept.
class KITREL_API CKxDirectory
{
public:
    /// The path may end with its separator or not; it need not exist.
    explicit CKxDirectory(const CString& directory);
    virtual ~CKxDirectory();

    /// Lists the files with the extension `ext` (dot included, compared without regard to case), without directory and
    /// extension, sorted as a list box sorts. `*names` becomes an array from malloc, which the caller releases with
    /// free, and `*count` its length; what `*names` held before is neither read nor freed. 1 on success, also with no
    /// file at all, when `*names` becomes null and `*count` 0; 0, with the same, when the directory cannot be read,
    /// memory is short or an argument is null.
    int GetFileNames(wchar_t (**names)[260], unsigned int* count, const wchar_t* ext) const;

    /// `name`, a file name with its extension, if the directory has no entry of that name; otherwise the name with the
    /// first number from 1 on behind its stem that makes it new: "Style.sty", "Style1.sty", "Style2.sty".
    CString GetIncName(CString name) const;

private:
    CString m_path; // with its separator, empty for the current directory
};
