// The page of the smart combo box.
#include "PageSmart.h"
#include <array>
#include "oxa/formats/KxSemantic.h"
#include "resource.h"
#include "support/RealInput.h"

namespace
{
constexpr UINT_PTR refreshTimer = 1;
constexpr UINT refreshMilliseconds = 100;
constexpr UINT sectionId = 1750;
constexpr UINT boltId = 1751;
constexpr int manyValues = 10000;

constexpr std::array sectionFormats = {L"IPE[(N)3]", L"HE[(C)1]-[(N)3]", L"L[(N)3]x[(N)2]"};
constexpr std::array sections = {L"IPE200", L"IPE240", L"HEA-200", L"HEB-300", L"L100x10"};
constexpr auto boltFormat = L"M[(N)2]x[(N)3]-[(A)3]";
constexpr std::array bolts = {L"M16x060-8.8", L"M20x080-8.8", L"M24x100-A.9"};
constexpr std::array remarks = {L"galvanised", L"on site", L"Painted twice"};

template <std::size_t count> void fill(CStringList& list, const std::array<const wchar_t*, count>& texts)
{
    for (const wchar_t* const text : texts)
        list.AddTail(text);
}

template <std::size_t count> void remember(CKxSmartComboBox& control, const std::array<const wchar_t*, count>& texts)
{
    CStringList list;
    fill(list, texts);
    control.SetStringCombo(list);
}
} // namespace

// ---- The entry that follows

void CFollowedSmartCombo::createAt(CWnd& placeholder, UINT id)
{
    CWnd* const page = placeholder.GetParent();
    CRect place;
    placeholder.GetWindowRect(&place);
    page->ScreenToClient(&place);
    CreateEx(WS_EX_CONTROLPARENT, L"CKXSMARTCOMBOBOX", L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, place, page, id);
    SetWindowPos(&placeholder, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE); // in its place of the tab order
}

void CFollowedSmartCombo::follow()
{
    CString text, format = GetFormat();
    GetSelectText(text);
    CKxSemantic semantic;
    semantic.CheckSyntax(format);
    m_data.format.DeleteFormat();
    semantic.CreateListFormat(m_data.format);
    if (semantic.ValidAdd(text) == 0)
        text = text.Left(m_data.format.GetFirstGroup(0) + 1); // so that "+" refuses it
    m_data.format.SetString(text);
}

int CFollowedSmartCombo::countOfValues(CKxSmartComboBox& control)
{
    return static_cast<int>((control.*&CFollowedSmartCombo::m_data).list.GetCount());
}

// ---- The page

BEGIN_MESSAGE_MAP(CPageSmart, CPage)
    // void OnMode(UINT id)
    ON_CONTROL_RANGE(BN_CLICKED, IDC_SMART_PICKER, IDC_SMART_NONE, &CPageSmart::OnMode)
    // void OnSwitches()
    ON_BN_CLICKED(IDC_SMART_BUTTONS, &CPageSmart::OnSwitches)
    // void OnSwitches()
    ON_BN_CLICKED(IDC_SMART_ENABLED, &CPageSmart::OnSwitches)
    // void OnSwitches()
    ON_BN_CLICKED(IDC_SMART_AUTO_ADD, &CPageSmart::OnSwitches)
    // void OnSwitches()
    ON_BN_CLICKED(IDC_SMART_SORTED, &CPageSmart::OnSwitches)
    // void OnSwitches()
    ON_BN_CLICKED(IDC_SMART_ADD_ONLY, &CPageSmart::OnSwitches)
    // void OnSort()
    ON_BN_CLICKED(IDC_SMART_SORT, &CPageSmart::OnSort)
    // void OnMany()
    ON_BN_CLICKED(IDC_SMART_MANY, &CPageSmart::OnMany)
    // void OnFreeOfFormat()
    ON_BN_CLICKED(IDC_SMART_FREE_FORMAT, &CPageSmart::OnFreeOfFormat)
    // void OnClear()
    ON_BN_CLICKED(IDC_SMART_CLEAR, &CPageSmart::OnClear)
    // void OnTimer(UINT_PTR id)
    ON_WM_TIMER()
    // LRESULT OnEdited(WPARAM wParam, LPARAM lParam)
    ON_MESSAGE(WM_KX_SMART_EDITUPDATE, &CPageSmart::OnEdited)
END_MESSAGE_MAP()

CPageSmart::CPageSmart() : CPage(IDD_PAGE_SMART, L"Smart combo")
{
    CKxSmartComboBox::RegisterWndClass(AfxGetInstanceHandle());
}

BOOL CPageSmart::OnInitDialog()
{
    CPage::OnInitDialog();
    for (const int id : {IDC_SMART_BUTTONS, IDC_SMART_ENABLED, IDC_SMART_AUTO_ADD, IDC_SMART_SORTED})
        CheckDlgButton(id, BST_CHECKED);
    m_free = static_cast<CKxSmartComboBox*>(GetDlgItem(IDC_SMART_FREE));
    remember(*m_free, remarks);
    m_free->AddFormatToolTip(L"Any text");
    m_bolt = new CFollowedSmartCombo;
    m_bolt->createAt(*GetDlgItem(IDC_SMART_BOLT), boltId);
    m_bolt->SetFormat(boltFormat);
    remember(*m_bolt, bolts);
    m_bolt->AddFormatToolTip(L"Diameter, length, strength");
    makeSection(IDC_SMART_PICKER);
    SetTimer(refreshTimer, refreshMilliseconds, nullptr);
    return TRUE;
}

void CPageSmart::makeSection(UINT mode)
{
    if (m_section != nullptr)
        m_section->DestroyWindow(); // and deletes it
    m_section = new CFollowedSmartCombo;
    m_section->createAt(*GetDlgItem(IDC_SMART_SECTION), sectionId);
    CStringList formats;
    fill(formats, sectionFormats);
    m_section->SetListFilterString(formats);
    CStringList none;
    switch (mode)
    {
    case IDC_SMART_PICKER:
        m_section->SetBitmapFormatList(formats, IDB_SECTION_FORMS, 3, L"I section;H section;Angle", 0);
        break;
    case IDC_SMART_ICON:
        m_section->SetBitmapOnly(IDI_BOLT);
        break;
    case IDC_SMART_BITMAP:
        m_section->SetBitmapOnly(none, IDB_PLATE);
        break;
    case IDC_SMART_DOUBLE:
        m_section->SetDoubleBitmap(none, IDI_BOLT, IDB_PLATE);
        break;
    default:
        m_section->SetNoBitmap();
        break;
    }
    remember(*m_section, sections);
    m_section->AddFormatToolTip(L"A rolled section");
    OnSwitches();
}

std::vector<CKxSmartComboBox*> CPageSmart::all()
{
    return {m_section, m_bolt, m_free};
}

void CPageSmart::OnMode(UINT id)
{
    makeSection(id);
}

void CPageSmart::OnSwitches()
{
    const auto isOn = [this](int id) { return IsDlgButtonChecked(id) == BST_CHECKED ? 1 : 0; };
    for (CKxSmartComboBox* const one : all())
    {
        if (one->GetActivateButton() != isOn(IDC_SMART_BUTTONS))
            one->SetVisibleAddDelete(isOn(IDC_SMART_BUTTONS));
        one->EnableWindow(isOn(IDC_SMART_ENABLED));
        one->SetAutoAddOnSelChange(isOn(IDC_SMART_AUTO_ADD));
        one->SetSort(isOn(IDC_SMART_SORTED));
        one->SetEnableAddDelete(1, isOn(IDC_SMART_ADD_ONLY) == 0);
    }
    Invalidate();
    showState();
}

void CPageSmart::OnSort()
{
    for (CKxSmartComboBox* const one : all())
        one->SortCombo();
}

void CPageSmart::OnMany()
{
    CStringList values;
    int index = 0;
    m_free->GetStringCombo(values, index, 0, 0);
    for (int i = 0; i < manyValues; ++i)
    {
        CString text;
        text.Format(L"Mark %05d", i * 7919 % manyValues);
        values.AddTail(text);
    }
    m_free->SetStringCombo(values);
}

void CPageSmart::OnFreeOfFormat()
{
    for (CKxSmartComboBox* const one : all())
        one->SetFormatEmpty();
}

void CPageSmart::OnClear()
{
    for (CKxSmartComboBox* const one : all())
        one->ClearControl();
}

LRESULT CPageSmart::OnEdited(WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    for (CFollowedSmartCombo* const one : {m_section, m_bolt})
        if (!one->GetFormat().IsEmpty() && one->IsChild(GetFocus()))
            one->follow();
    return 0;
}

void CPageSmart::OnTimer(UINT_PTR id)
{
    if (id == refreshTimer)
        showState();
    CPage::OnTimer(id);
}

void CPageSmart::showState()
{
    const std::array states = {IDC_SMART_SECTION_STATE, IDC_SMART_BOLT_STATE, IDC_SMART_FREE_STATE};
    const std::vector<CKxSmartComboBox*> controls = all();
    for (std::size_t i = 0; i < controls.size(); ++i)
    {
        CKxSmartComboBox& one = *controls[i];
        const int selected = one.GetCurSel();
        CString text, number = L"none", format = L"free of format";
        if (selected >= 0)
            number.Format(L"%d", selected);
        if (!one.GetFormat().IsEmpty())
            format = L"under " + one.GetFormat();
        text.Format(L"%s\n%d values, selected: %s\n%s", format.GetString(), CFollowedSmartCombo::countOfValues(one),
                    number.GetString(), one.GetVisibility() != 0 ? L"touched by the user" : L"not touched");
        if (i == 0 && m_section->clicks != 0)
        {
            CString clicks;
            clicks.Format(L", picture clicked: %d", m_section->clicks);
            text += clicks;
        }
        CString old;
        GetDlgItemText(states[i], old);
        if (old != text) // else the page would flicker
            SetDlgItemText(states[i], text);
    }
}

// ---- Pictures

POINT CPageSmart::buttonOf(CKxSmartComboBox& control, int child)
{
    return centreOf(::GetDlgItem(control.m_hWnd, child));
}

void CPageSmart::typeInto(CKxSmartComboBox& control, const wchar_t* text)
{
    CWnd* const combo = control.GetDlgItem(CKxSmartComboBox::ID_COMBO);
    combo->SetFocus();
    combo->SendMessage(CB_SETEDITSEL, 0, MAKELPARAM(0, -1));
    typeText(text);
}

void CPageSmart::walk(const TakePicture& take)
{
    pumpFor(200);
    take(L"1-picker");
    typeInto(*m_section, L"IPE300");
    take(L"2-typed");
    click(buttonOf(*m_section, CKxSmartComboBox::ID_ADD));
    typeInto(*m_bolt, L"M30x120-8.8");
    click(buttonOf(*m_bolt, CKxSmartComboBox::ID_ADD));
    typeInto(*m_free, L"Bored");
    click(buttonOf(*m_free, CKxSmartComboBox::ID_ADD));
    pumpFor(200);
    take(L"3-added");
    m_section->GetDlgItem(CKxSmartComboBox::ID_COMBO)->SetFocus();
    key(VK_F4);
    pumpFor(200);
    take(L"4-list-open");
    key(VK_ESCAPE);
    click(middleOf(IDC_SMART_DOUBLE));
    pumpFor(200);
    take(L"5-two-buttons");
    click(middleOf(IDC_SMART_ICON));
    click(middleOf(IDC_SMART_BUTTONS));
    pumpFor(200);
    take(L"6-icon-without-plus-and-minus");
    click(middleOf(IDC_SMART_BUTTONS));
    click(middleOf(IDC_SMART_ENABLED));
    pumpFor(200);
    take(L"7-disabled");
    click(middleOf(IDC_SMART_ENABLED));
    click(middleOf(IDC_SMART_PICKER));
    click(middleOf(IDC_SMART_MANY));
    pumpFor(200);
    take(L"8-many-values");
}
