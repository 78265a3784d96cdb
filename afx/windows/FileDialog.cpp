// The dialogs for opening and saving files: a hook window that tells what happens in the system's dialog.
#include <afxdlgs.h>

#include <dlgs.h>

#include <algorithm>

IMPLEMENT_DYNAMIC(CCommonDialog, CDialog)
IMPLEMENT_DYNAMIC(CFileDialog, CCommonDialog)

BEGIN_MESSAGE_MAP(CFileDialog, CCommonDialog)
    // LRESULT HandleInitDialog(WPARAM, LPARAM)
    ON_MESSAGE(WM_INITDIALOG, &CFileDialog::HandleInitDialog)
END_MESSAGE_MAP()

namespace
{
/// The dialog whose hook window is being made on this thread.
thread_local CFileDialog* t_opening = nullptr;

class Opening
{
public:
    explicit Opening(CFileDialog* dialog) : m_before(t_opening) { t_opening = dialog; }
    ~Opening() { t_opening = m_before; }
    Opening(const Opening&) = delete;
    Opening& operator=(const Opening&) = delete;

private:
    CFileDialog* m_before;
};

/// Bars become terminators, and two more stand at the end whatever the text ends with.
CString filterOf(LPCTSTR text)
{
    CString filter(text);
    for (int i = 0; i < filter.GetLength(); ++i)
        if (filter[i] == L'|')
            filter.SetAt(i, L'\0');
    filter += L'\0';
    filter += L'\0';
    return filter;
}

int nameStart(const CString& path)
{
    return std::max({path.ReverseFind(L'\\'), path.ReverseFind(L'/'), path.ReverseFind(L':')}) + 1;
}

CString withoutFolder(const CString& path)
{
    return path.Mid(nameStart(path));
}

bool isWholePath(const CString& text)
{
    return text.Mid(1, 2) == L":\\" || text.Left(2) == L"\\\\";
}
} // namespace

CCommonDialog::CCommonDialog(CWnd* pParentWnd) : CDialog(static_cast<UINT>(0), pParentWnd) {}

void CCommonDialog::OnOK()
{
    Default();
}

void CCommonDialog::OnCancel()
{
    Default();
}

CFileDialog::CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt, LPCTSTR lpszFileName, DWORD dwFlags,
                         LPCTSTR lpszFilter, CWnd* pParentWnd, DWORD, BOOL)
    : CCommonDialog(pParentWnd), m_ofn{}, m_bOpenFileDialog(bOpenFileDialog),
      m_defaultExtension(lpszDefExt), m_fileName{}, m_fileTitle{}
{
    m_ofn.lStructSize = sizeof m_ofn;
    m_ofn.Flags = dwFlags | OFN_EXPLORER | OFN_ENABLEHOOK;
    m_ofn.lpfnHook = hook;
    m_ofn.lpstrFile = m_fileName;
    m_ofn.nMaxFile = _countof(m_fileName);
    m_ofn.lpstrFileTitle = m_fileTitle;
    m_ofn.nMaxFileTitle = _countof(m_fileTitle);
    if (lpszDefExt != nullptr)
        m_ofn.lpstrDefExt = m_defaultExtension;
    if (lpszFileName != nullptr)
        lstrcpynW(m_fileName, lpszFileName, _countof(m_fileName));
    if (lpszFilter != nullptr)
    {
        m_strFilter = filterOf(lpszFilter);
        m_ofn.lpstrFilter = m_strFilter;
    }
}

CFileDialog::~CFileDialog() = default;

INT_PTR CFileDialog::DoModal()
{
    if (m_hWnd != nullptr)
        return IDCANCEL;
    m_ofn.hwndOwner = PreModal();
    BOOL chosen = FALSE;
    {
        const Opening opening(this);
        chosen = m_bOpenFileDialog ? ::GetOpenFileNameW(&m_ofn) : ::GetSaveFileNameW(&m_ofn);
    }
    PostModal();
    return chosen ? IDOK : IDCANCEL;
}

UINT_PTR CALLBACK CFileDialog::hook(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    CFileDialog* const opening = t_opening;
    if (message != WM_INITDIALOG || opening == nullptr)
        return 0;
    t_opening = nullptr; // the next window of this kind is another dialog's
    opening->SubclassWindow(wnd);
    return static_cast<UINT_PTR>(AfxCallWndProc(opening, wnd, message, wParam, lParam));
}

LRESULT CFileDialog::HandleInitDialog(WPARAM, LPARAM)
{
    PreInitDialog();
    return OnInitDialog();
}

BOOL CFileDialog::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    const auto* const note = reinterpret_cast<const OFNOTIFY*>(lParam);
    LRESULT result = 0;
    switch (note->hdr.code)
    {
    case CDN_INITDONE:
        OnInitDone();
        break;
    case CDN_SELCHANGE:
        OnFileNameChange();
        break;
    case CDN_FOLDERCHANGE:
        OnFolderChange();
        break;
    case CDN_TYPECHANGE:
        OnTypeChange();
        break;
    case CDN_FILEOK:
        result = OnFileNameOK();
        break;
    case CDN_SHAREVIOLATION:
        result = static_cast<LRESULT>(OnShareViolation(note->pszFile));
        break;
    default:
        return CCommonDialog::OnNotify(wParam, lParam, pResult);
    }
    ::SetWindowLongPtrW(m_hWnd, DWLP_MSGRESULT, result); // where the system looks for it
    *pResult = result;
    return TRUE;
}

void CFileDialog::OnInitDone()
{
    GetParent()->CenterWindow();
}

void CFileDialog::OnFileNameChange() {}

void CFileDialog::OnFolderChange() {}

void CFileDialog::OnTypeChange() {}

BOOL CFileDialog::OnFileNameOK()
{
    return FALSE;
}

UINT CFileDialog::OnShareViolation(LPCTSTR)
{
    return OFN_SHAREWARN;
}

HWND CFileDialog::dialog() const
{
    return m_hWnd == nullptr ? nullptr : ::GetParent(m_hWnd);
}

CString CFileDialog::askDialog(UINT message) const
{
    CString text;
    for (int room = MAX_PATH; room <= 0x10000;)
    {
        const auto needed = static_cast<int>(::SendMessageW(dialog(), message, static_cast<WPARAM>(room),
                                                            reinterpret_cast<LPARAM>(text.GetBuffer(room))));
        text.ReleaseBuffer(needed < 0 ? 0 : std::min(needed, room) - (needed > 0 ? 1 : 0));
        if (needed <= room)
            break;
        room = needed;
    }
    return text;
}

CString CFileDialog::GetPathName() const
{
    if (m_hWnd != nullptr)
    {
        // A path that was typed is one already; not every system leaves it as it is.
        const CString typed = askDialog(CDM_GETSPEC);
        return isWholePath(typed) ? typed : askDialog(CDM_GETFILEPATH);
    }
    const std::vector<CString> paths = chosenPaths();
    return paths.empty() ? CString() : paths.front();
}

CString CFileDialog::GetFileName() const
{
    return withoutFolder(m_hWnd != nullptr ? askDialog(CDM_GETSPEC) : GetPathName());
}

CString CFileDialog::GetFileTitle() const
{
    const CString name = GetFileName();
    const int dot = name.ReverseFind(L'.');
    return dot < 0 ? name : name.Left(dot);
}

CString CFileDialog::GetFileExt() const
{
    const CString name = GetFileName();
    const int dot = name.ReverseFind(L'.');
    return dot < 0 ? CString() : name.Mid(dot + 1);
}

CString CFileDialog::GetFolderPath() const
{
    return m_hWnd == nullptr ? CString() : askDialog(CDM_GETFOLDERPATH);
}

BOOL CFileDialog::GetReadOnlyPref() const
{
    return (m_ofn.Flags & OFN_READONLY) != 0;
}

// One name is a whole path; of several, the first is the folder of the others.
std::vector<CString> CFileDialog::chosenPaths() const
{
    std::vector<CString> texts;
    const wchar_t* next = m_ofn.lpstrFile;
    const wchar_t* const end = next == nullptr ? nullptr : next + m_ofn.nMaxFile;
    while (next != end && *next != L'\0')
    {
        const wchar_t* const stop = std::find(next, end, L'\0');
        texts.emplace_back(next, static_cast<int>(stop - next));
        const bool several = (m_ofn.Flags & OFN_ALLOWMULTISELECT) != 0;
        next = several && stop != end ? stop + 1 : end;
    }
    if (texts.size() < 2)
        return texts;
    const CString folder = texts.front().Right(1) == L"\\" ? texts.front() : texts.front() + L"\\";
    texts.erase(texts.begin());
    for (CString& text : texts)
        text = folder + text;
    return texts;
}

// A position is the number of a path, counted from 1.
POSITION CFileDialog::GetStartPosition() const
{
    return chosenPaths().empty() ? nullptr : reinterpret_cast<POSITION>(static_cast<UINT_PTR>(1));
}

CString CFileDialog::GetNextPathName(POSITION& pos) const
{
    const std::vector<CString> paths = chosenPaths();
    const auto number = reinterpret_cast<UINT_PTR>(pos);
    pos = number != 0 && number < paths.size() ? reinterpret_cast<POSITION>(number + 1) : nullptr;
    return number != 0 && number <= paths.size() ? paths[number - 1] : CString();
}

void CFileDialog::SetControlText(int nID, LPCTSTR lpsz)
{
    if (m_hWnd != nullptr)
        ::SendMessageW(dialog(), CDM_SETCONTROLTEXT, static_cast<WPARAM>(nID),
                       reinterpret_cast<LPARAM>(lpsz != nullptr ? lpsz : L""));
}

void CFileDialog::HideControl(int nID)
{
    if (m_hWnd != nullptr)
        ::SendMessageW(dialog(), CDM_HIDECONTROL, static_cast<WPARAM>(nID), 0);
}

void CFileDialog::SetDefExt(LPCTSTR lpsz)
{
    m_defaultExtension = lpsz;
    if (m_hWnd != nullptr)
        ::SendMessageW(dialog(), CDM_SETDEFEXT, 0, reinterpret_cast<LPARAM>(m_defaultExtension.GetString()));
}

void CFileDialog::SetTemplate(LPCTSTR, LPCTSTR lpWin4ID)
{
    if (!IS_INTRESOURCE(lpWin4ID))
        lpWin4ID = m_templateName = lpWin4ID;
    m_ofn.lpTemplateName = lpWin4ID;
    m_ofn.hInstance = AfxFindResourceHandle(lpWin4ID, RT_DIALOG);
    m_ofn.Flags |= OFN_ENABLETEMPLATE;
}

void CFileDialog::SetTemplate(UINT, UINT nWin4ID)
{
    SetTemplate(nullptr, MAKEINTRESOURCE(nWin4ID));
}
