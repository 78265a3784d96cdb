// The pages of the member's property sheet.
#include "MemberSheet.h"
#include "resource.h"

namespace
{
constexpr UINT_PTR shownTimer = 1;
constexpr UINT shownDelay = 150;
} // namespace

BEGIN_MESSAGE_MAP(CMemberPage, CPropertyPage)
    // void OnTyped()
    ON_EN_CHANGE(IDC_SHEET_NAME, &CMemberPage::OnTyped)
    ON_CBN_SELCHANGE(IDC_SHEET_MATERIAL, &CMemberPage::OnTyped)
END_MESSAGE_MAP()

BOOL CMemberPage::OnInitDialog()
{
    const BOOL answer = CPropertyPage::OnInitDialog();
    if (readOnly)
        for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
            ::EnableWindow(child, FALSE);
    return answer;
}

// Every page that was shown comes here, and the copy has what all of them show.
BOOL CMemberPage::OnApply()
{
    m_member.name = m_copy.name;
    m_member.material = m_copy.material;
    SetModified(FALSE);
    if (onApplied)
        onApplied();
    return CPropertyPage::OnApply();
}

CNamePage::CNamePage(Member& member, Member& copy) : CMemberPage(IDD_SHEET_MEMBER, member, copy) {}

void CNamePage::DoDataExchange(CDataExchange* exchange)
{
    CMemberPage::DoDataExchange(exchange);
    DDX_Text(exchange, IDC_SHEET_NAME, m_copy.name);
}

CMaterialPage::CMaterialPage(Member& member, Member& copy) : CMemberPage(IDD_SHEET_MATERIAL, member, copy) {}

BOOL CMaterialPage::OnInitDialog()
{
    for (const wchar_t* steel : steels)
        SendDlgItemMessage(IDC_SHEET_MATERIAL, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(steel));
    return CMemberPage::OnInitDialog();
}

void CMaterialPage::DoDataExchange(CDataExchange* exchange)
{
    CMemberPage::DoDataExchange(exchange);
    DDX_CBIndex(exchange, IDC_SHEET_MATERIAL, m_copy.material);
}

BEGIN_MESSAGE_MAP(CMemberSheet, CKxPropertySheet)
    // void OnTimer(UINT_PTR)
    ON_WM_TIMER()
END_MESSAGE_MAP()

CMemberSheet::CMemberSheet(Member& member, CWnd* parent, bool readOnly)
    : CKxPropertySheet(L"Properties of " + member.name, parent, 0), m_copy(member), m_name(member, m_copy),
      m_material(member, m_copy), m_readOnly(readOnly)
{
    for (CMemberPage* page : {static_cast<CMemberPage*>(&m_name), static_cast<CMemberPage*>(&m_material)})
    {
        page->readOnly = readOnly;
        page->onApplied = [this]
        {
            if (onApplied)
                onApplied();
        };
        AddPage(page);
    }
}

BOOL CMemberSheet::OnInitDialog()
{
    const BOOL answer = CKxPropertySheet::OnInitDialog();
    if (onShown)
        SetTimer(shownTimer, shownDelay, nullptr);
    return answer;
}

void CMemberSheet::OnTimer(UINT_PTR id)
{
    if (id != shownTimer)
        return CKxPropertySheet::OnTimer(id);
    KillTimer(shownTimer);
    onShown();
    PressButton(PSBTN_CANCEL);
}
