// The bars, the plan and the frame of the bars page.
#include "MemberBars.h"
#include "MemberSheet.h"
#include "resource.h"

namespace
{
constexpr std::array sections = {L"IPE 220", L"IPE 300", L"HE 160 A", L"HE 200 A", L"RHS 100 x 60"};
constexpr std::array combinations = {L"1.35 G", L"1.35 G + 1.5 S", L"1.35 G + 1.5 W", L"1.35 G + 1.5 S + 0.9 W"};
constexpr COLORREF steel = RGB(70, 90, 120);
constexpr COLORREF loadColor = RGB(170, 60, 40);
} // namespace

// ---- Bars

void CMemberBar::setDisabled(bool disable)
{
    disabled = disable;
    for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
        ::EnableWindow(child, TRUE);
    InitDlgBarFinished();
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void CMemberBar::OnInitDialogBar()
{
    fill();
    CKxDialogBarEx::OnInitDialogBar();
    InitDlgBarFinished();
}

void CMemberBar::fillList(int id, UINT empty, UINT add, std::span<const wchar_t* const> lines)
{
    SendDlgItemMessage(id, empty);
    for (const wchar_t* line : lines)
        SendDlgItemMessage(id, add, 0, reinterpret_cast<LPARAM>(line));
}

void CSectionBar::fill()
{
    SetHelpId(IDC_MEMBER_HELP);
    fillList(IDC_MEMBER_SECTION, CB_RESETCONTENT, CB_ADDSTRING, sections);
}

void CSectionBar::DoDataExchange(CDataExchange* exchange)
{
    DDX_CBString(exchange, IDC_MEMBER_SECTION, m_member.section);
    DDX_Text(exchange, IDC_MEMBER_LENGTH, m_member.length);
    DDX_Check(exchange, IDC_MEMBER_FIXED, m_member.fixed);
}

void CLoadsBar::fill()
{
    fillList(IDC_LOADS_LIST, LB_RESETCONTENT, LB_ADDSTRING, combinations);
}

void CLoadsBar::DoDataExchange(CDataExchange* exchange)
{
    DDX_Check(exchange, IDC_LOADS_WEIGHT, m_member.weight);
    DDX_Check(exchange, IDC_LOADS_SNOW, m_member.snow);
    DDX_Check(exchange, IDC_LOADS_WIND, m_member.wind);
}

// ---- The plan

BEGIN_MESSAGE_MAP(CMemberPlan, CWnd)
    // void OnPaint()
    ON_WM_PAINT()
END_MESSAGE_MAP()

void CMemberPlan::OnPaint()
{
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, ::GetSysColor(COLOR_WINDOW));
    CRect beam = client;
    beam.DeflateRect(40, 0);
    beam.top = client.CenterPoint().y - 5;
    beam.bottom = beam.top + 10;
    if (beam.Width() < 20)
        return;
    drawLoads(dc, beam);
    dc.FillSolidRect(&beam, steel);
    for (const int end : {beam.left, beam.right})
    {
        const CRect wall(end - 4, beam.top - 14, end + 4, beam.bottom + 14);
        const POINT hinge[3] = {{end, beam.bottom}, {end - 9, beam.bottom + 15}, {end + 9, beam.bottom + 15}};
        if (m_member.fixed)
            dc.FillSolidRect(&wall, RGB(120, 120, 120));
        else
            dc.Polygon(hinge, 3);
    }
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(::GetSysColor(COLOR_WINDOWTEXT));
    dc.SelectStockObject(DEFAULT_GUI_FONT);
    CRect text = client;
    text.top = beam.bottom + 24;
    const CString words = m_member.name + L":  " + m_member.section + L",  " + m_member.length + L" m";
    dc.DrawText(words, &text, DT_CENTER | DT_NOPREFIX);
}

// A row of arrows for each load.
void CMemberPlan::drawLoads(CDC& dc, const CRect& beam) const
{
    int rows = 0;
    for (const BOOL on : {m_member.weight, m_member.snow, m_member.wind})
        rows += on ? 1 : 0;
    for (int row = 0; row < rows; ++row)
        for (int x = beam.left + 6; x < beam.right; x += 16)
        {
            const int tip = beam.top - 4 - row * 22;
            dc.FillSolidRect(x, tip - 16, 1, 14, loadColor);
            dc.FillSolidRect(x - 2, tip - 5, 5, 1, loadColor);
            dc.FillSolidRect(x - 1, tip - 3, 3, 1, loadColor);
        }
}

// ---- The frame

BEGIN_MESSAGE_MAP(CMemberFrame, CFrameWnd)
    // void OnChanged()
    ON_CBN_SELCHANGE(IDC_MEMBER_SECTION, &CMemberFrame::OnChanged)
    ON_EN_CHANGE(IDC_MEMBER_LENGTH, &CMemberFrame::OnChanged)
    ON_BN_CLICKED(IDC_MEMBER_FIXED, &CMemberFrame::OnChanged)
    ON_BN_CLICKED(IDC_LOADS_WEIGHT, &CMemberFrame::OnChanged)
    ON_BN_CLICKED(IDC_LOADS_SNOW, &CMemberFrame::OnChanged)
    ON_BN_CLICKED(IDC_LOADS_WIND, &CMemberFrame::OnChanged)
    // void OnProperties()
    ON_COMMAND(IDC_MEMBER_PROPERTIES, &CMemberFrame::OnProperties)
    // void OnHelpButton()
    ON_COMMAND(IDC_MEMBER_HELP, &CMemberFrame::OnHelpButton)
    // void OnUpdateProperties(CCmdUI*)
    ON_UPDATE_COMMAND_UI(IDC_MEMBER_PROPERTIES, &CMemberFrame::OnUpdateProperties)
END_MESSAGE_MAP()

bool CMemberFrame::makeIn(CWnd* parent, const CRect& place)
{
    if (!Create(nullptr, L"", WS_CHILD | WS_VISIBLE | WS_BORDER | WS_CLIPCHILDREN, place, parent))
        return false;
    EnableDocking(CBRS_ALIGN_ANY);
    sectionBar.EnableDocking(CBRS_ORIENT_HORZ);
    loadsBar.EnableDocking(CBRS_ORIENT_VERT);
    const bool made = sectionBar.Create(this, IDD_MEMBER_BAR, CBRS_TOP, AFX_IDW_DIALOGBAR) &&
                      loadsBar.Create(this, IDD_LOADS_BAR, CBRS_LEFT, AFX_IDW_DIALOGBAR + 1) &&
                      m_plan.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this, AFX_IDW_PANE_FIRST);
    RecalcLayout();
    return made;
}

LRESULT CMemberFrame::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (onMessage && message == WM_COMMAND)
        onMessage(message, wParam, lParam);
    return CFrameWnd::WindowProc(message, wParam, lParam);
}

void CMemberFrame::setPainted(bool painted)
{
    if (painted)
        CKxDialogBarEx::SetOvewriteStyle();
    // The library has no way back; a host that wants one clears the flag that all bars share.
    CKxDialogBarEx::m_bOverwriteStyle = painted && CKxDialogBarEx::m_bkBitmap.GetSafeHandle() != nullptr;
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void CMemberFrame::setDisabled(bool disabled)
{
    sectionBar.setDisabled(disabled);
    loadsBar.setDisabled(disabled);
}

void CMemberFrame::dock(CControlBar& bar, UINT side)
{
    const bool shown = bar.IsVisible();
    DockControlBar(&bar, side);
    if (!shown)
        ShowControlBar(&bar, FALSE, FALSE);
}

void CMemberFrame::OnChanged()
{
    // A notification comes before the combo box's own text has changed.
    sectionBar.UpdateData();
    loadsBar.UpdateData();
    m_plan.Invalidate();
    if (onChange)
        onChange();
}

void CMemberFrame::OnUpdateProperties(CCmdUI* ui)
{
    ui->Enable(!sectionBar.disabled);
}

void CMemberFrame::OnHelpButton()
{
    ++m_helps;
    if (onChange)
        onChange();
}

void CMemberFrame::OnProperties()
{
    CMemberSheet sheet(member, this, m_readOnly);
    sheet.onShown = onSheet;
    sheet.onApplied = [this] { OnChanged(); };
    sheet.DoModal();
}

CString CMemberFrame::stateText() const
{
    CString text;
    text.Format(L"%s: %s, %s   |   %s m, %s ends   |   help asked for %d %s", member.name.GetString(),
                member.section.GetString(), steels[static_cast<size_t>(member.material)], member.length.GetString(),
                member.fixed ? L"fixed" : L"hinged", m_helps, m_helps == 1 ? L"time" : L"times");
    return text;
}
