// The pages of the member's property sheet.
#include "MemberSheet.h"
#include "resource.h"

namespace
{
constexpr UINT_PTR shownTimer = 1;
constexpr UINT shownDelay = 150;
} // namespace

CNamePage::CNamePage(Member& member) : CPropertyPage(IDD_SHEET_MEMBER), m_member(member) {}

void CNamePage::DoDataExchange(CDataExchange* exchange)
{
    CPropertyPage::DoDataExchange(exchange);
    DDX_Text(exchange, IDC_SHEET_NAME, m_member.name);
}

CMaterialPage::CMaterialPage(Member& member) : CPropertyPage(IDD_SHEET_MATERIAL), m_member(member) {}

BOOL CMaterialPage::OnInitDialog()
{
    for (const wchar_t* steel : {L"S 235", L"S 275", L"S 355", L"S 460"})
        SendDlgItemMessage(IDC_SHEET_MATERIAL, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(steel));
    return CPropertyPage::OnInitDialog();
}

void CMaterialPage::DoDataExchange(CDataExchange* exchange)
{
    CPropertyPage::DoDataExchange(exchange);
    DDX_CBIndex(exchange, IDC_SHEET_MATERIAL, m_member.material);
}

BEGIN_MESSAGE_MAP(CMemberSheet, CKxPropertySheet)
    // void OnTimer(UINT_PTR)
    ON_WM_TIMER()
END_MESSAGE_MAP()

CMemberSheet::CMemberSheet(Member& member, CWnd* parent, bool readOnly)
    : CKxPropertySheet(L"Properties of " + member.name, parent, 0), m_name(member), m_material(member),
      m_readOnly(readOnly)
{
    AddPage(&m_name);
    AddPage(&m_material);
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
