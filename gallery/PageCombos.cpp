// The page of the combo box family.
#include "PageCombos.h"
#include "TreePictures.h"
#include "resource.h"
#include "support/RealInput.h"
#include <commdlg.h>

namespace
{
constexpr UINT_PTR refreshTimer = 1;
constexpr UINT refreshMilliseconds = 100; // texts and selections are read live
constexpr int lineHeight = 12;            // of the bitmaps
constexpr const wchar_t* forbidden = L"*?";

constexpr std::array sections = {L"HEA 200", L"HEB 300",   L"IPE 240",     L"IPE 300",
                                 L"UPN 120", L"L 80x80x8", L"RHS 120x60x4"};
constexpr std::array<unsigned short, 5> lines = {IDB_LINE_SOLID, IDB_LINE_DASHED, IDB_LINE_DOTTED, IDB_LINE_DASH_DOT,
                                                 IDB_LINE_DOUBLE};

/// A part of a building with its picture; what belongs to another stands one step to the right of it.
struct Part
{
    const wchar_t* name;
    int picture;
    int indent;
};
constexpr std::array parts = {
    Part{L"Ground floor", 0, 0}, Part{L"Column C1", 1, 1}, Part{L"Bar 12 mm", 2, 2}, Part{L"Beam B4", 1, 1},
    Part{L"First floor", 0, 0},  Part{L"Column C1", 1, 1}, Part{L"Beam B7", 1, 1},   Part{L"Bar 16 mm", 2, 2},
    Part{L"Roof", 0, 0},         Part{L"Purlin P2", 1, 1},
};

void addParts(CKxComboBoxEx& combo, CImageList& pictures)
{
    combo.SetImageList(&pictures);
    for (size_t i = 0; i < parts.size(); ++i)
    {
        COMBOBOXEXITEM item = {};
        item.mask = CBEIF_TEXT | CBEIF_IMAGE | CBEIF_SELECTEDIMAGE | CBEIF_OVERLAY | CBEIF_INDENT;
        item.iItem = static_cast<INT_PTR>(i);
        item.pszText = const_cast<wchar_t*>(parts[i].name); // only read by CBEM_INSERTITEM
        item.iImage = item.iSelectedImage = item.iOverlay = parts[i].picture;
        item.iIndent = parts[i].indent;
        combo.InsertItem(&item);
    }
}

template <class Row> void subclassAll(Row& row, int firstId, CWnd* page)
{
    for (auto& control : row)
        control.SubclassDlgItem(static_cast<UINT>(firstId++), page);
}

const wchar_t* nameOf(UINT message)
{
    switch (message)
    {
    case WM_CHAR:
        return L"WM_CHAR";
    case WM_KEYDOWN:
        return L"WM_KEYDOWN";
    case WM_SYSCHAR:
        return L"WM_SYSCHAR";
    default:
        return L"WM_LBUTTONDOWN";
    }
}
} // namespace

BEGIN_MESSAGE_MAP(CPageCombos, CPage)
    // void OnClear()
    ON_BN_CLICKED(IDC_COMBOS_CLEAR, &CPageCombos::OnClear)
    // void OnEnabled()
    ON_BN_CLICKED(IDC_COMBOS_ENABLED, &CPageCombos::OnEnabled)
    // void OnField()
    ON_BN_CLICKED(IDC_COMBOS_FIELD, &CPageCombos::OnField)
    // void OnTimer(UINT_PTR id)
    ON_WM_TIMER()
    // LRESULT OnOtherColor(WPARAM picker, LPARAM)
    ON_MESSAGE(WM_KX_PICK_OTHER_COLOR, &CPageCombos::OnOtherColor)
END_MESSAGE_MAP()

CPageCombos::CPageCombos() : CPage(IDD_PAGE_COMBOS, L"Combos")
{
    const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_USEREX_CLASSES}; // the template has some of them
    ::InitCommonControlsEx(&classes);
}

BOOL CPageCombos::OnInitDialog()
{
    CPage::OnInitDialog();
    makeRowPictures(m_pictures);
    fillEdits();
    fillCombos();
    fillImages();
    fillBitmaps();
    fillColors();
    CheckDlgButton(IDC_COMBOS_ENABLED, BST_CHECKED);
    CheckDlgButton(IDC_COMBOS_FIELD, BST_CHECKED);
    SetTimer(refreshTimer, refreshMilliseconds, nullptr);
    showState();
    return TRUE;
}

// ---- What the controls hold

void CPageCombos::fillEdits()
{
    subclassAll(m_edits, IDC_COMBOS_EDIT_ENABLED, this);
    for (CKxEdit& edit : m_edits)
        edit.SetNotAllowedChars(forbidden);
    for (const Column column : {enabled, disabled, special})
        m_edits[column].SetWindowText(L"Column C1");
}

void CPageCombos::fillCombos()
{
    subclassAll(m_combos, IDC_COMBOS_COMBO_ENABLED, this);
    for (CKxComboBox& combo : m_combos)
    {
        combo.m_edit.SubclassWindow(::GetWindow(combo.m_hWnd, GW_CHILD));
        combo.m_edit.SetNotAllowedChars(forbidden);
    }
    for (const Column column : {enabled, disabled})
    {
        for (const wchar_t* section : sections)
            m_combos[column].AddString(section);
        m_combos[column].SetCurSel(2);
    }
    CKxComboBox& many = m_combos[special];
    for (int i = 1; i <= 500; ++i)
    {
        CString text;
        text.Format(L"Bar number %d", i);
        many.AddString(text);
    }
    many.SetCurSel(249);
    many.m_edit.SetReadOnly();
}

void CPageCombos::fillImages()
{
    subclassAll(m_imageCombos, IDC_COMBOS_IMAGES_ENABLED, this);
    for (const Column column : {enabled, disabled, special})
    {
        addParts(m_imageCombos[column], m_pictures);
        m_imageCombos[column].SetCurSel(3);
    }
    m_imageCombos[special].SetVisibility(false);
    m_imageCombos[enabled].AddFormatToolTip(L"The parts of a building");
}

void CPageCombos::fillBitmaps()
{
    int id = IDC_COMBOS_BITMAPS_ENABLED;
    for (CKxBitmapComboBox& combo : m_bitmapCombos)
    {
        combo.SubclassDlgItem(lineHeight, static_cast<unsigned int>(id++), this);
        combo.SetItemHeight(-1, lineHeight + 4);
    }
    for (const Column column : {enabled, disabled, special})
    {
        const size_t count = column == special ? 60 : lines.size();
        for (size_t i = 0; i < count; ++i)
            m_bitmapCombos[column].AddBitmap(lines[i % lines.size()]);
        m_bitmapCombos[column].SetCurSel(3);
    }
    m_bitmapCombos[enabled].AddFormatToolTip(L"The line of an axis");
}

void CPageCombos::fillColors()
{
    subclassAll(m_pickers, IDC_COMBOS_COLORS_ENABLED, this);
    m_pickers[empty].ResetContent();
    for (const Column column : {enabled, disabled})
        m_pickers[column].SetCurSel(0);
    CKxComboColorPicker& own = m_pickers[special];
    for (BYTE step = 1; step <= 15; ++step)
        own.GetColorIndex(RGB(17 * step, 90, 255 - 17 * step));
    own.SetCurSel(own.GetLastIndex() - 8);
}

// ---- What the user does

LRESULT CPageCombos::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_CHAR || message == WM_KEYDOWN || message == WM_SYSCHAR || message == WM_LBUTTONDOWN)
        showHeard(message, wParam);
    return CPage::WindowProc(message, wParam, lParam);
}

void CPageCombos::OnClear()
{
    m_edits[enabled].ClearControl();
    m_combos[enabled].ClearControl();
    m_imageCombos[enabled].SetCurSel(-1);
    m_bitmapCombos[enabled].SetCurSel(-1);
    m_pickers[enabled].SetCurSel(-1);
    showState();
}

void CPageCombos::OnEnabled()
{
    const BOOL on = IsDlgButtonChecked(IDC_COMBOS_ENABLED) == BST_CHECKED;
    for (CWnd* const control :
         std::initializer_list<CWnd*>{&m_edits[enabled], &m_combos[enabled], &m_imageCombos[enabled],
                                      &m_bitmapCombos[enabled], &m_pickers[enabled]})
    {
        control->EnableWindow(on);
    }
}

void CPageCombos::OnField()
{
    m_imageCombos[enabled].SetVisibility(IsDlgButtonChecked(IDC_COMBOS_FIELD) == BST_CHECKED);
    m_imageCombos[enabled].RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

LRESULT CPageCombos::OnOtherColor(WPARAM wParam, LPARAM /*lParam*/)
{
    static COLORREF ownColors[16] = {};
    auto& picker = *reinterpret_cast<CKxComboColorPicker*>(wParam);
    CHOOSECOLOR choice = {};
    choice.lStructSize = sizeof choice;
    choice.hwndOwner = m_hWnd;
    choice.lpCustColors = ownColors;
    choice.rgbResult = RGB(230, 126, 34);
    choice.Flags = CC_RGBINIT | CC_FULLOPEN;
    return ::ChooseColor(&choice) ? picker.GetColorIndex(choice.rgbResult) : 0;
}

void CPageCombos::OnTimer(UINT_PTR id)
{
    if (id == refreshTimer)
        showState();
    CPage::OnTimer(id);
}

// ---- What the page shows

void CPageCombos::showHeard(UINT message, WPARAM wParam)
{
    CString text;
    text.Format(L"Handed on last: %s, 0x%I64X", nameOf(message), static_cast<unsigned long long>(wParam));
    if (message == WM_CHAR && wParam > L' ')
        text += L" (" + CString(static_cast<wchar_t>(wParam)) + L")";
    SetDlgItemText(IDC_COMBOS_HEARD, text);
}

void CPageCombos::showState()
{
    CString edit, combo, state, old;
    m_edits[enabled].GetWindowText(edit);
    m_combos[enabled].GetWindowText(combo);
    const CKxComboColorPicker& picker = m_pickers[enabled];
    state.Format(L"First column: \"%s\"; \"%s\"; part %d; line %d; colour %d of %d", edit.GetString(),
                 combo.GetString(), m_imageCombos[enabled].GetCurSel(), m_bitmapCombos[enabled].GetCurSel(),
                 picker.GetCurSel(), picker.GetLastIndex());
    const COLORREF color = picker.GetColor();
    if (color != CLR_INVALID)
    {
        CString values;
        values.Format(L": red %d, green %d, blue %d", GetRValue(color), GetGValue(color), GetBValue(color));
        state += values;
    }
    GetDlgItemText(IDC_COMBOS_STATE, old);
    if (old != state) // else the page would flicker
        SetDlgItemText(IDC_COMBOS_STATE, state);
}

void CPageCombos::walk(const TakePicture& take)
{
    take(L"1-all-states");
    m_edits[empty].SetFocus();
    typeText(L"2*3?m");
    pumpFor(200);
    take(L"2-forbidden-characters");
    m_combos[enabled].SetFocus();
    m_combos[enabled].ShowDropDown(TRUE);
    pumpFor(200);
    take(L"3-texts");
    m_combos[enabled].ShowDropDown(FALSE);
    m_combos[special].ShowDropDown(TRUE);
    pumpFor(200);
    take(L"4-many-rows");
    m_combos[special].ShowDropDown(FALSE);
    m_imageCombos[enabled].GetComboBoxCtrl()->SetFocus();
    m_imageCombos[enabled].ShowDropDown(TRUE);
    pumpFor(200);
    take(L"5-images");
    m_imageCombos[enabled].ShowDropDown(FALSE);
    m_bitmapCombos[enabled].SetFocus();
    m_bitmapCombos[enabled].ShowDropDown(TRUE);
    pumpFor(200);
    take(L"6-bitmaps");
    m_bitmapCombos[enabled].ShowDropDown(FALSE);
    m_pickers[enabled].SetFocus();
    m_pickers[enabled].SetCurSel(m_pickers[enabled].GetColorIndex(RGB(230, 126, 34)));
    m_pickers[enabled].ShowDropDown(TRUE);
    pumpFor(200);
    take(L"7-colours");
    m_pickers[enabled].ShowDropDown(FALSE);
    click(middleOf(IDC_COMBOS_ENABLED));
    pumpFor(200);
    take(L"8-first-column-disabled");
    click(middleOf(IDC_COMBOS_ENABLED));
    click(middleOf(IDC_COMBOS_FIELD));
    click(middleOf(IDC_COMBOS_CLEAR));
    pumpFor(200);
    take(L"9-cleared");
    click(middleOf(IDC_COMBOS_FIELD));
}
