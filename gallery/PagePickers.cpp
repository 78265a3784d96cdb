// The page of pickers.
#include "PagePickers.h"
#include "resource.h"
#include "support/RealInput.h"

namespace
{
struct Paint
{
    const wchar_t* name;
    COLORREF color;
};
constexpr std::array paints = {
    Paint{L"Anthracite grey", RGB(41, 49, 51)}, Paint{L"Slate grey", RGB(94, 101, 104)},
    Paint{L"Window grey", RGB(157, 163, 166)},  Paint{L"Pure white", RGB(244, 244, 240)},
    Paint{L"Gentian blue", RGB(14, 81, 141)},   Paint{L"Sky blue", RGB(37, 128, 190)},
    Paint{L"Light blue", RGB(150, 192, 224)},   Paint{L"Mint green", RGB(73, 126, 118)},
    Paint{L"Moss green", RGB(50, 89, 40)},      Paint{L"Yellow green", RGB(97, 153, 59)},
    Paint{L"Traffic yellow", RGB(246, 185, 0)}, Paint{L"Pure orange", RGB(225, 92, 0)},
    Paint{L"Traffic red", RGB(187, 31, 17)},    Paint{L"Oxide red", RGB(100, 36, 36)},
    Paint{L"Clay brown", RGB(128, 84, 47)},     Paint{L"Beige", RGB(208, 182, 142)},
};
constexpr CSize paintGrid(8, 2);
constexpr CSize paintCell(20, 16);
constexpr CSize systemGrid(10, 1);
constexpr CSize systemCell(16, 16);

constexpr std::array hatches = {L"None",     L"Rising lines", L"Falling lines", L"Crossed lines",
                                L"Concrete", L"Steel",        L"Earth",         L"Wood"};
constexpr std::array sections = {L"I section", L"U section", L"Angle", L"T section", L"Box", L"Tube"};

constexpr COLORREF tabColor = RGB(210, 60, 40);

template <class Table, class Name> CString joined(const Table& table, Name name)
{
    CString text;
    for (const auto& row : table)
        text += (text.IsEmpty() ? L"" : L";") + CString(name(row));
    return text;
}

enum class Image
{
    none,
    icon,
    largeIcon,
    bitmap
};

void load(CKxBitmapButton& button, Image image)
{
    constexpr int small = 16;
    constexpr int large = 32;
    if (image == Image::bitmap)
        button.SetMaskedBitmap(IDB_LOAD, small, small, RGB(255, 0, 255));
    else if (image != Image::none)
        button.SetIcon(IDI_ADD, image == Image::icon ? small : large, image == Image::icon ? small : large);
}
} // namespace

COLORREF CPaintCombo::ColorOfIndex(int index) const
{
    const auto place = static_cast<std::size_t>(index);
    return index >= 0 && place < paints.size() ? paints[place].color : CKxButtonCombo::ColorOfIndex(-1);
}

BEGIN_MESSAGE_MAP(CPagePickers, CPage)
    // LRESULT OnPicked(WPARAM, LPARAM)
    ON_MESSAGE(WM_KX_BUTTONCOMBO_SELECT, &CPagePickers::OnPicked)
    // HBRUSH OnCtlColor(CDC*, CWnd*, UINT)
    ON_WM_CTLCOLOR()
    // void OnEnabled()
    ON_BN_CLICKED(IDC_PICK_ENABLED, &CPagePickers::OnEnabled)
    // void OnTry()
    ON_CBN_SELCHANGE(IDC_TRY_IMAGE, &CPagePickers::OnTry)
    ON_BN_CLICKED(IDC_TRY_TAB, &CPagePickers::OnTry)
    ON_BN_CLICKED(IDC_TRY_DEFAULT, &CPagePickers::OnTry)
    ON_BN_CLICKED(IDC_TRY_ENABLED, &CPagePickers::OnTry)
    ON_BN_CLICKED(IDC_TRY_POSITIONS, &CPagePickers::OnTry)
    ON_EN_CHANGE(IDC_TRY_CAPTION, &CPagePickers::OnTry)
    ON_EN_CHANGE(IDC_TRY_IMAGE_OFFSET, &CPagePickers::OnTry)
    ON_EN_CHANGE(IDC_TRY_TEXT_OFFSET, &CPagePickers::OnTry)
    ON_EN_CHANGE(IDC_TRY_IMAGE_X, &CPagePickers::OnTry)
    ON_EN_CHANGE(IDC_TRY_IMAGE_Y, &CPagePickers::OnTry)
    ON_EN_CHANGE(IDC_TRY_TEXT_X, &CPagePickers::OnTry)
    ON_EN_CHANGE(IDC_TRY_TEXT_Y, &CPagePickers::OnTry)
END_MESSAGE_MAP()

CPagePickers::CPagePickers() : CPage(IDD_PAGE_PICKERS, L"Pickers") {}

BOOL CPagePickers::OnInitDialog()
{
    CPage::OnInitDialog();
    createCombos();
    prepareButtons();
    CheckDlgButton(IDC_PICK_ENABLED, BST_CHECKED);
    CheckDlgButton(IDC_TRY_ENABLED, BST_CHECKED);
    for (const wchar_t* image : {L"None", L"Icon", L"Large icon", L"Bitmap"})
        SendDlgItemMessage(IDC_TRY_IMAGE, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(image));
    SendDlgItemMessage(IDC_TRY_IMAGE, CB_SETCURSEL, 1);
    SetDlgItemText(IDC_TRY_CAPTION, L"Add a load");
    SetDlgItemInt(IDC_TRY_IMAGE_OFFSET, 4);
    SetDlgItemInt(IDC_TRY_TEXT_OFFSET, 8);
    SetDlgItemInt(IDC_TRY_IMAGE_X, static_cast<UINT>(-1));
    SetDlgItemInt(IDC_TRY_IMAGE_Y, 8);
    SetDlgItemInt(IDC_TRY_TEXT_X, static_cast<UINT>(-1));
    SetDlgItemInt(IDC_TRY_TEXT_Y, 46);
    m_ready = true;
    OnTry();
    return TRUE;
}

// ---- Button combos

CRect CPagePickers::takePlace(int id)
{
    CWnd* const placeholder = GetDlgItem(id);
    CRect place;
    placeholder->GetWindowRect(&place);
    placeholder->DestroyWindow();
    ScreenToClient(&place);
    return place;
}

void CPagePickers::createCombos()
{
    const auto asIs = [](const wchar_t* name) { return name; };
    m_hatch.Create(takePlace(IDC_PICK_HATCH), CSize(4, 2), IDB_HATCHES, static_cast<int>(hatches.size()), this,
                   IDC_PICK_HATCH, joined(hatches, asIs));
    m_section.Create(takePlace(IDC_PICK_SECTION), CSize(3, 2), IDB_SECTIONS, static_cast<int>(sections.size()), this,
                     IDC_PICK_SECTION, CString());
    m_paint.Create(takePlace(IDC_PICK_PAINT), paintGrid, paintCell, this, IDC_PICK_PAINT,
                   joined(paints, [](const Paint& paint) { return paint.name; }));
    m_system.Create(takePlace(IDC_PICK_SYSTEM), systemGrid, systemCell, this, IDC_PICK_SYSTEM, CString());
    m_static.CreateStatic(takePlace(IDC_PICK_STATIC), IDB_PORTAL, this, IDC_PICK_STATIC);
    m_hatch.OnItemSelected(4, 4);
    m_section.OnItemSelected(0, 0);
    m_paint.OnItemSelected(static_cast<long>(paints[12].color), 12);
    m_system.OnItemSelected(static_cast<long>(m_system.ColorOfIndex(0)), 0);
}

LRESULT CPagePickers::OnPicked(WPARAM wParam, LPARAM lParam)
{
    const auto place = static_cast<std::size_t>(lParam);
    const auto color = static_cast<COLORREF>(lParam);
    CString value;
    value.Format(L"%d, %d, %d", GetRValue(color), GetGValue(color), GetBValue(color));
    switch (wParam)
    {
    case IDC_PICK_HATCH:
        SetDlgItemText(IDC_PICK_HATCH_NAME, hatches.at(place));
        break;
    case IDC_PICK_SECTION:
        SetDlgItemText(IDC_PICK_SECTION_NAME, sections.at(place));
        break;
    case IDC_PICK_PAINT:
        for (const Paint& paint : paints)
            if (paint.color == color)
                value = paint.name;
        SetDlgItemText(IDC_PICK_PAINT_NAME, value);
        showColor(IDC_PICK_PAINT_SWATCH, m_paintBrush, color);
        break;
    case IDC_PICK_SYSTEM:
        SetDlgItemText(IDC_PICK_SYSTEM_NAME, value);
        showColor(IDC_PICK_SYSTEM_SWATCH, m_systemBrush, color);
        break;
    default:
        break;
    }
    return 0;
}

void CPagePickers::showColor(int swatch, CBrush& brush, COLORREF color)
{
    brush.DeleteObject();
    brush.CreateSolidBrush(color);
    GetDlgItem(swatch)->Invalidate();
}

HBRUSH CPagePickers::OnCtlColor(CDC* dc, CWnd* control, UINT kind)
{
    const int id = control == nullptr ? 0 : control->GetDlgCtrlID();
    if (id == IDC_PICK_PAINT_SWATCH && m_paintBrush.m_hObject != nullptr)
        return m_paintBrush;
    if (id == IDC_PICK_SYSTEM_SWATCH && m_systemBrush.m_hObject != nullptr)
        return m_systemBrush;
    return CPage::OnCtlColor(dc, control, kind);
}

void CPagePickers::OnEnabled()
{
    for (CKxButtonCombo* combo : {&m_hatch, &m_section, static_cast<CKxButtonCombo*>(&m_paint), &m_system, &m_static})
        combo->EnableWindow(IsDlgButtonChecked(IDC_PICK_ENABLED) == BST_CHECKED);
}

// ---- Bitmap buttons

void CPagePickers::prepareButtons()
{
    const struct
    {
        int id;
        Image image;
    } rows[] = {
        {IDC_BUTTON_ICON, Image::icon},         {IDC_BUTTON_BITMAP, Image::bitmap},
        {IDC_BUTTON_IMAGE_ALONE, Image::icon},  {IDC_BUTTON_CAPTION, Image::none},
        {IDC_BUTTON_TAB, Image::bitmap},        {IDC_BUTTON_DEFAULT, Image::icon},
        {IDC_BUTTON_LARGE, Image::largeIcon},   {IDC_BUTTON_ICON_OFF, Image::icon},
        {IDC_BUTTON_BITMAP_OFF, Image::bitmap},
    };
    for (std::size_t i = 0; i < m_buttons.size(); ++i)
    {
        m_buttons[i].SubclassDlgItem(static_cast<UINT>(rows[i].id), this);
        load(m_buttons[i], rows[i].image);
        if (rows[i].id == IDC_BUTTON_TAB)
            m_buttons[i].SetColorTab(tabColor);
        else if (rows[i].id == IDC_BUTTON_DEFAULT)
            m_buttons[i].SetDefaultButton(TRUE);
        else if (rows[i].id == IDC_BUTTON_LARGE)
        {
            m_buttons[i].SetImagePos(CPoint(-1, 18));
            m_buttons[i].SetTextPos(CPoint(-1, 64));
        }
    }
}

// The tab cannot be turned off, and icons and bitmaps are not to be mixed: each state is a button of its own.
void CPagePickers::OnTry()
{
    if (!m_ready)
        return;
    if (m_try)
        m_try->UnsubclassWindow();
    m_try = std::make_unique<CKxBitmapButton>();
    m_try->SubclassDlgItem(IDC_TRY_BUTTON, this);
    CString caption;
    GetDlgItemText(IDC_TRY_CAPTION, caption);
    m_try->SetWindowText(caption);
    load(*m_try, static_cast<Image>(SendDlgItemMessage(IDC_TRY_IMAGE, CB_GETCURSEL)));
    if (IsDlgButtonChecked(IDC_TRY_TAB) == BST_CHECKED)
        m_try->SetColorTab(tabColor);
    const auto number = [this](int id) { return static_cast<int>(GetDlgItemInt(id)); };
    if (IsDlgButtonChecked(IDC_TRY_POSITIONS) == BST_CHECKED)
    {
        m_try->SetImagePos(CPoint(number(IDC_TRY_IMAGE_X), number(IDC_TRY_IMAGE_Y)));
        m_try->SetTextPos(CPoint(number(IDC_TRY_TEXT_X), number(IDC_TRY_TEXT_Y)));
    }
    else
    {
        m_try->SetImageOffset(number(IDC_TRY_IMAGE_OFFSET));
        m_try->SetTextOffset(number(IDC_TRY_TEXT_OFFSET));
    }
    if (IsDlgButtonChecked(IDC_TRY_DEFAULT) == BST_CHECKED)
        m_try->SetDefaultButton(TRUE);
    m_try->EnableWindow(IsDlgButtonChecked(IDC_TRY_ENABLED) == BST_CHECKED);
}

// ---- Pictures

void CPagePickers::openPalette(CKxButtonCombo& combo, CPoint onPalette)
{
    CRect face;
    combo.GetWindowRect(&face);
    moveTo(CPoint(face.left + 7, face.CenterPoint().y));
    mouseButton(MOUSEEVENTF_LEFTDOWN);
    moveTo(CPoint(face.left + onPalette.x, face.bottom + onPalette.y));
    pumpFor(20);
}

void CPagePickers::walk(const TakePicture& take)
{
    take(L"1-at-first");
    const auto pick = [&](CKxButtonCombo& combo, CPoint onPalette, const wchar_t* picture)
    {
        openPalette(combo, onPalette);
        take(picture);
        mouseButton(MOUSEEVENTF_LEFTUP);
    };
    pick(m_hatch, CPoint(60, 40), L"2-pictures-with-names");
    pick(m_section, CPoint(70, 40), L"3-pictures");
    pick(m_paint, CPoint(100, 10), L"4-colours-of-the-page");
    pick(m_system, CPoint(60, 10), L"5-colours-of-the-system");
    click(middleOf(IDC_PICK_ENABLED));
    for (const int id : {IDC_TRY_TAB, IDC_TRY_DEFAULT})
        click(middleOf(id));
    take(L"6-chosen-and-disabled");
    click(middleOf(IDC_PICK_ENABLED));
    SendDlgItemMessage(IDC_TRY_IMAGE, CB_SETCURSEL, 2);
    click(middleOf(IDC_TRY_POSITIONS));
    OnTry();
    GetDlgItem(IDC_TRY_BUTTON)->SetFocus();
    take(L"7-at-positions");
}
