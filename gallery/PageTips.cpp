// The page of tips.
#include "PageTips.h"
#include "resource.h"
#include "support/RealInput.h"

namespace
{
constexpr COLORREF darkBlue = RGB(0, 0, 128);
} // namespace

BEGIN_MESSAGE_MAP(CPageTips, CPage)
    // void OnBalloonLeft()
    ON_BN_CLICKED(IDC_BALLOON_LEFT, &CPageTips::OnBalloonLeft)
    // void OnBalloonRight()
    ON_BN_CLICKED(IDC_BALLOON_RIGHT, &CPageTips::OnBalloonRight)
    // void OnLineTip()
    ON_BN_CLICKED(IDC_LINE_TIP, &CPageTips::OnLineTip)
END_MESSAGE_MAP()

CPageTips::CPageTips() : CPage(IDD_PAGE_TIPS, L"Tips") {}

BOOL CPageTips::OnInitDialog()
{
    CPage::OnInitDialog();
    SetDlgItemText(IDC_TIP_TEXT, L"Span between supports <6.25 m>");
    m_leftBalloon.Create(this);
    m_rightBalloon.SetLeftOriented(false);
    m_rightBalloon.Create(this);
    m_line.SetHeight(16);
    m_line.Create(this);
    m_standard.Create(this, TTS_ALWAYSTIP);
    m_standard.AddWindowTool(GetDlgItem(IDC_STANDARD_TIP), L"The standard tip of a window");
    CRect r;
    GetDlgItem(IDC_TIP_RECTANGLE)->GetWindowRect(&r);
    ScreenToClient(&r);
    m_standard.AddRectTool(this, L"The standard tip of a rectangle", &r, 1);
    return TRUE;
}

BOOL CPageTips::PreTranslateMessage(MSG* message)
{
    if (m_leftBalloon.m_hWnd)
        m_leftBalloon.RelayEvent(message);
    if (m_rightBalloon.m_hWnd)
        m_rightBalloon.RelayEvent(message);
    return CPage::PreTranslateMessage(message);
}

CString CPageTips::tipText() const
{
    CString text;
    GetDlgItemText(IDC_TIP_TEXT, text);
    return text;
}

CPoint CPageTips::pointOf(int id) const
{
    CRect r;
    GetDlgItem(id)->GetWindowRect(&r);
    return {r.CenterPoint().x, r.top};
}

void CPageTips::OnBalloonLeft()
{
    CWnd* button = GetDlgItem(IDC_BALLOON_LEFT);
    m_rightBalloon.Hide();
    m_leftBalloon.AddTool(button, tipText(), pointOf(IDC_BALLOON_LEFT), darkBlue);
    m_leftBalloon.ShowToolTip(button->m_hWnd);
}

void CPageTips::OnBalloonRight()
{
    CWnd* button = GetDlgItem(IDC_BALLOON_RIGHT);
    m_leftBalloon.Hide();
    m_rightBalloon.AddTool(button, tipText(), pointOf(IDC_BALLOON_RIGHT), darkBlue);
    m_rightBalloon.ShowToolTip(button->m_hWnd);
}

void CPageTips::OnLineTip()
{
    CPoint point = pointOf(IDC_LINE_TIP);
    ScreenToClient(&point);
    m_line.Close();
    m_line.SetText(tipText());
    m_line.Show(point - CSize(0, 24));
}

void CPageTips::walk(const TakePicture& take)
{
    click(middleOf(IDC_BALLOON_LEFT));
    pumpFor(100);
    take(L"1-balloon-left");
    SetDlgItemText(
        IDC_TIP_TEXT,
        L"A longer text is centred and only wraps when it must: this one needs several lines of the balloon.");
    click(middleOf(IDC_BALLOON_RIGHT));
    pumpFor(100);
    take(L"2-balloon-right-wrapped");
    m_rightBalloon.Hide();
    SetDlgItemText(IDC_TIP_TEXT, L"Span between supports <6.25 m>");
    click(middleOf(IDC_LINE_TIP));
    pumpFor(100);
    take(L"3-line-tip");
    m_line.Close();
    const auto tipShown = [this] { return m_standard.IsWindowVisible() != FALSE; };
    moveTo(middleOf(IDC_STANDARD_TIP));
    waitFor(tipShown, 3000);
    take(L"4-standard-window");
    moveTo(middleOf(IDC_TIP_TEXT));
    waitFor([&] { return !tipShown(); }, 3000);
    moveTo(middleOf(IDC_TIP_RECTANGLE));
    waitFor(tipShown, 3000);
    take(L"5-standard-rectangle");
}
