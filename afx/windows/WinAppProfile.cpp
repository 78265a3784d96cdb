// Profile data of the application: in the registry once a key was set, else in an ini file.
#include <afxwin.h>

#include <vector>

namespace
{
/// An open key, closed at the end of the block.
class Key
{
public:
    explicit Key(HKEY key) : m_key(key) {}
    ~Key()
    {
        if (m_key != nullptr)
            ::RegCloseKey(m_key);
    }
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;
    operator HKEY() const { return m_key; }
    explicit operator bool() const { return m_key != nullptr; }

private:
    HKEY m_key;
};

HKEY openKey(HKEY parent, LPCTSTR name)
{
    HKEY key = nullptr;
    if (parent == nullptr || name == nullptr || *name == 0)
        return nullptr;
    const LSTATUS status = ::RegCreateKeyEx(parent, name, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_READ | KEY_WRITE,
                                            nullptr, &key, nullptr);
    return status == ERROR_SUCCESS ? key : nullptr;
}

bool readValue(HKEY key, LPCTSTR entry, DWORD wantedType, std::vector<BYTE>& data)
{
    DWORD type = 0;
    DWORD size = 0;
    if (::RegQueryValueEx(key, entry, nullptr, &type, nullptr, &size) != ERROR_SUCCESS || type != wantedType)
        return false;
    data.resize(size);
    return ::RegQueryValueEx(key, entry, nullptr, &type, data.data(), &size) == ERROR_SUCCESS && size == data.size();
}

BOOL writeValue(HKEY key, LPCTSTR entry, DWORD type, const void* data, size_t size)
{
    return ::RegSetValueEx(key, entry, 0, type, static_cast<const BYTE*>(data), static_cast<DWORD>(size)) ==
           ERROR_SUCCESS;
}
} // namespace

void CWinApp::SetRegistryKey(LPCTSTR company)
{
    m_ownRegistryKey = company;
    m_pszRegistryKey = m_ownRegistryKey;
    m_ownProfileName = AfxGetAppName(); // no file any more: the application's own key
    m_pszProfileName = m_ownProfileName;
}

void CWinApp::SetRegistryKey(UINT companyId)
{
    CString company;
    if (company.LoadString(companyId))
        SetRegistryKey(company);
}

HKEY CWinApp::GetAppRegistryKey()
{
    if (m_pszRegistryKey == nullptr || m_pszProfileName == nullptr)
        return nullptr;
    const Key software(openKey(HKEY_CURRENT_USER, _T("Software")));
    const Key company(openKey(software, m_pszRegistryKey));
    return openKey(company, m_pszProfileName);
}

HKEY CWinApp::GetSectionKey(LPCTSTR section)
{
    const Key app(GetAppRegistryKey());
    return openKey(app, section);
}

UINT CWinApp::GetProfileInt(LPCTSTR section, LPCTSTR entry, int defaultValue)
{
    if (m_pszRegistryKey == nullptr)
        return ::GetPrivateProfileInt(section, entry, defaultValue, m_pszProfileName);
    const Key key(GetSectionKey(section));
    std::vector<BYTE> data;
    if (!key || !readValue(key, entry, REG_DWORD, data) || data.size() != sizeof(DWORD))
        return static_cast<UINT>(defaultValue);
    DWORD value = 0;
    memcpy(&value, data.data(), sizeof value);
    return value;
}

BOOL CWinApp::WriteProfileInt(LPCTSTR section, LPCTSTR entry, int value)
{
    if (m_pszRegistryKey == nullptr)
    {
        CString text;
        text.Format(_T("%d"), value);
        return ::WritePrivateProfileString(section, entry, text, m_pszProfileName);
    }
    const Key key(GetSectionKey(section));
    return key && writeValue(key, entry, REG_DWORD, &value, sizeof value);
}

CString CWinApp::GetProfileString(LPCTSTR section, LPCTSTR entry, LPCTSTR defaultText)
{
    if (defaultText == nullptr)
        defaultText = _T("");
    if (m_pszRegistryKey == nullptr)
    {
        CString text;
        constexpr DWORD longest = 4096;
        const DWORD length = ::GetPrivateProfileString(section, entry, defaultText, text.GetBufferSetLength(longest),
                                                       longest, m_pszProfileName);
        text.ReleaseBuffer(static_cast<int>(length));
        return text;
    }
    const Key key(GetSectionKey(section));
    std::vector<BYTE> data;
    if (!key || !readValue(key, entry, REG_SZ, data))
        return defaultText;
    std::vector<wchar_t> text(data.size() / sizeof(wchar_t) + 1); // a stored text need not be terminated
    memcpy(text.data(), data.data(), (text.size() - 1) * sizeof(wchar_t));
    return text.data();
}

BOOL CWinApp::WriteProfileString(LPCTSTR section, LPCTSTR entry, LPCTSTR value)
{
    if (m_pszRegistryKey == nullptr)
        return ::WritePrivateProfileString(section, entry, value, m_pszProfileName);
    if (entry == nullptr)
    {
        const Key app(GetAppRegistryKey());
        return app && section != nullptr && ::RegDeleteKey(app, section) == ERROR_SUCCESS;
    }
    const Key key(GetSectionKey(section));
    if (!key)
        return FALSE;
    if (value == nullptr)
    {
        const LSTATUS status = ::RegDeleteValue(key, entry);
        return status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND;
    }
    return writeValue(key, entry, REG_SZ, value, (static_cast<size_t>(lstrlen(value)) + 1) * sizeof(wchar_t));
}

BOOL CWinApp::GetProfileBinary(LPCTSTR section, LPCTSTR entry, LPBYTE* data, UINT* bytes)
{
    *data = nullptr;
    *bytes = 0;
    std::vector<BYTE> read;
    if (m_pszRegistryKey != nullptr)
    {
        const Key key(GetSectionKey(section));
        if (!key || !readValue(key, entry, REG_BINARY, read))
            return FALSE;
    }
    else
    {
        // In the file each byte is two letters from A to P, the low half first.
        const CString text = GetProfileString(section, entry);
        if (text.IsEmpty() || text.GetLength() % 2 != 0)
            return FALSE;
        for (int i = 0; i < text.GetLength(); i += 2)
            read.push_back(static_cast<BYTE>((text[i] - L'A') + ((text[i + 1] - L'A') << 4)));
    }
    *data = new BYTE[read.size() + 1];
    std::copy(read.begin(), read.end(), *data);
    *bytes = static_cast<UINT>(read.size());
    return TRUE;
}

BOOL CWinApp::WriteProfileBinary(LPCTSTR section, LPCTSTR entry, LPBYTE data, UINT bytes)
{
    if (m_pszRegistryKey != nullptr)
    {
        const Key key(GetSectionKey(section));
        return key && writeValue(key, entry, REG_BINARY, data, bytes);
    }
    CString text;
    for (UINT i = 0; i < bytes; ++i)
    {
        text.AppendChar(static_cast<wchar_t>(L'A' + (data[i] & 0x0F)));
        text.AppendChar(static_cast<wchar_t>(L'A' + (data[i] >> 4)));
    }
    return WriteProfileString(section, entry, text);
}
