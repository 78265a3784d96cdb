// The first contents of lists and combo boxes, from the resource that stands beside a dialog template.
#include <afxwin.h>

#include <cstring>

namespace
{
// Message numbers of the resource format; older than the present ones of the controls.
constexpr WORD formatListAdd = 0x0401;
constexpr WORD formatComboAdd = 0x0403;
constexpr WORD formatComboExAdd = 0x1234;

/// Reads little numbers and texts from a block, never past its end.
class Block
{
public:
    Block(const void* data, DWORD size) : m_at(static_cast<const BYTE*>(data)), m_left(size) {}

    template <class Number> bool read(Number& value)
    {
        if (m_left < sizeof value)
            return false;
        memcpy(&value, m_at, sizeof value);
        skip(sizeof value);
        return true;
    }
    const BYTE* take(DWORD size)
    {
        if (m_left < size)
            return nullptr;
        const BYTE* start = m_at;
        skip(size);
        return start;
    }

private:
    void skip(size_t size)
    {
        m_at += size;
        m_left -= static_cast<DWORD>(size);
    }
    const BYTE* m_at;
    DWORD m_left;
};

bool add(HWND dialog, WORD id, WORD message, const BYTE* text, DWORD length)
{
    // The text ends within its length; a terminator of our own makes sure.
    const CStringA bytes(reinterpret_cast<LPCSTR>(text), static_cast<int>(length));
    const auto lParam = reinterpret_cast<LPARAM>(bytes.GetString());
    switch (message)
    {
    case formatListAdd:
        return ::SendDlgItemMessageA(dialog, id, LB_ADDSTRING, 0, lParam) >= 0;
    case formatComboAdd:
        return ::SendDlgItemMessageA(dialog, id, CB_ADDSTRING, 0, lParam) >= 0;
    case formatComboExAdd:
    {
        const CString wide(bytes.GetString());
        COMBOBOXEXITEM item = {};
        item.mask = CBEIF_TEXT;
        item.iItem = -1;
        item.pszText = const_cast<LPTSTR>(wide.GetString());
        return ::SendDlgItemMessage(dialog, id, CBEM_INSERTITEM, 0, reinterpret_cast<LPARAM>(&item)) >= 0;
    }
    default:
        return true; // records of later tools are passed over
    }
}
} // namespace

BOOL CWnd::ExecuteDlgInit(LPCTSTR resourceName)
{
    constexpr WORD dialogInitType = 240;
    if (resourceName == nullptr)
        return ExecuteDlgInit(nullptr, 0);
    LPCTSTR type = MAKEINTRESOURCE(dialogInitType);
    HINSTANCE module = AfxFindResourceHandle(resourceName, type);
    HRSRC found = ::FindResource(module, resourceName, type);
    if (found == nullptr)
        return ExecuteDlgInit(nullptr, 0);
    HGLOBAL loaded = ::LoadResource(module, found);
    return loaded != nullptr && ExecuteDlgInit(::LockResource(loaded), ::SizeofResource(module, found));
}

BOOL CWnd::ExecuteDlgInit(const void* resource, DWORD size)
{
    bool good = true;
    if (resource != nullptr)
    {
        Block block(resource, size);
        WORD id = 0;
        WORD message = 0;
        DWORD length = 0;
        while (good && block.read(id) && id != 0)
        {
            const BYTE* text = nullptr;
            good = block.read(message) && block.read(length) && (text = block.take(length)) != nullptr &&
                   add(m_hWnd, id, message, text, length);
        }
    }
    if (good)
        SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, FALSE, FALSE);
    return good;
}
