// The page of the bars.
#include "PageBars.h"
#include "resource.h"
#include "support/RealInput.h"

BEGIN_MESSAGE_MAP(CPageBars, CPage)
    // void OnPainted()
    ON_BN_CLICKED(IDC_BARS_PAINTED, &CPageBars::OnPainted)
    // void OnDisabled()
    ON_BN_CLICKED(IDC_BARS_DISABLED, &CPageBars::OnDisabled)
    // void OnSides()
    ON_BN_CLICKED(IDC_BARS_BOTTOM, &CPageBars::OnSides)
    ON_BN_CLICKED(IDC_BARS_RIGHT, &CPageBars::OnSides)
    // void OnLoads()
    ON_BN_CLICKED(IDC_BARS_LOADS, &CPageBars::OnLoads)
    // void OnReadOnly()
    ON_BN_CLICKED(IDC_BARS_READ_ONLY, &CPageBars::OnReadOnly)
END_MESSAGE_MAP()

CPageBars::CPageBars() : CPage(IDD_PAGE_BARS, L"Bars") {}

BOOL CPageBars::OnInitDialog()
{
    CPage::OnInitDialog();
    CWnd* const place = GetDlgItem(IDC_BARS_FRAME);
    CRect rect;
    place->GetWindowRect(&rect);
    ScreenToClient(&rect);
    m_frame = new CMemberFrame;
    m_frame->onChange = [this] { showState(); };
    m_frame->onMessage = [this](UINT message, WPARAM wParam, LPARAM lParam) { logMessage(message, wParam, lParam); };
    if (!m_frame->makeIn(this, rect))
        return FALSE;
    // First in the order of the keys, where the place was.
    m_frame->SetWindowPos(place, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    CheckDlgButton(IDC_BARS_PAINTED, BST_CHECKED);
    CheckDlgButton(IDC_BARS_LOADS, BST_CHECKED);
    m_frame->setPainted(true);
    showState();
    return TRUE;
}

void CPageBars::OnPainted()
{
    m_frame->setPainted(isChecked(IDC_BARS_PAINTED));
}

void CPageBars::OnDisabled()
{
    m_frame->setDisabled(isChecked(IDC_BARS_DISABLED));
}

void CPageBars::OnSides()
{
    m_frame->dock(m_frame->sectionBar, isChecked(IDC_BARS_BOTTOM) ? AFX_IDW_DOCKBAR_BOTTOM : AFX_IDW_DOCKBAR_TOP);
    m_frame->dock(m_frame->loadsBar, isChecked(IDC_BARS_RIGHT) ? AFX_IDW_DOCKBAR_RIGHT : AFX_IDW_DOCKBAR_LEFT);
}

void CPageBars::OnLoads()
{
    m_frame->ShowControlBar(&m_frame->loadsBar, isChecked(IDC_BARS_LOADS), FALSE);
}

void CPageBars::OnReadOnly()
{
    m_frame->setReadOnly(isChecked(IDC_BARS_READ_ONLY));
}

void CPageBars::showState()
{
    SetDlgItemText(IDC_BARS_STATE, m_frame->stateText());
}

void CPageBars::walk(const TakePicture& take)
{
    const auto update = [] { AfxGetThread()->OnIdle(0); };
    update();
    take(L"1-painted");
    click(middleOf(IDC_BARS_PAINTED));
    take(L"2-plain");
    click(middleOf(IDC_BARS_PAINTED));
    CWnd& bar = m_frame->sectionBar;
    click(centreOf(bar.GetDlgItem(IDC_MEMBER_FIXED)->m_hWnd));
    click(centreOf(m_frame->loadsBar.GetDlgItem(IDC_LOADS_WIND)->m_hWnd));
    bar.GetDlgItem(IDC_MEMBER_LENGTH)->SetFocus();
    bar.SendDlgItemMessage(IDC_MEMBER_LENGTH, EM_SETSEL, 0, -1);
    typeText(L"7.50");
    for (const int id : {IDC_BARS_BOTTOM, IDC_BARS_RIGHT})
        click(middleOf(id));
    take(L"3-other-sides-and-values");
    click(middleOf(IDC_BARS_DISABLED));
    update();
    take(L"4-disabled");
    for (const int id : {IDC_BARS_DISABLED, IDC_BARS_BOTTOM, IDC_BARS_RIGHT})
        click(middleOf(id));
    m_frame->onSheet = [&] { take(L"5-property-sheet"); };
    m_frame->showProperties();
    click(middleOf(IDC_BARS_READ_ONLY));
    m_frame->onSheet = [&] { take(L"6-for-reading-only"); };
    m_frame->showProperties();
    click(middleOf(IDC_BARS_READ_ONLY));
    m_frame->onSheet = nullptr;
}
