// The picture file that is open: its name and its bytes, or why there are none.
#pragma once
#include <afxwin.h>
#include <vector>

/// What the dialog for opening offers.
inline constexpr const wchar_t* pictureFilter = L"Pictures|*.gif;*.bmp;*.jpg;*.jpeg;*.ico;*.wmf;*.emf|All files|*.*||";

struct PictureSource
{
    CString name; ///< without its folder
    std::vector<unsigned char> bytes;
    CString trouble; ///< empty, or one sentence that says why there are no bytes

    bool isGif() const;

    static PictureSource read(const CString& path);
};

/// Writes a file; empty, or one sentence that says why it could not be written.
CString writeFile(const CString& path, const unsigned char* bytes, size_t count);

/// What stands behind the last separator of a path.
CString nameOf(const CString& path);

/// 1234567 as "1,234,567".
CString grouped(unsigned long long number);
