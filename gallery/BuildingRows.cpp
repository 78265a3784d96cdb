// The bill of materials.
#include "BuildingRows.h"
#include <array>
#include <cstdlib>

namespace
{
using namespace building;

struct Section
{
    const wchar_t* name;
    double kilogramsPerMetre;
};

constexpr std::array sections = {
    Section{L"HEA 200", 42.3}, Section{L"HEB 300", 117.0}, Section{L"IPE 300", 42.2}, Section{L"IPE 450", 77.6},
    Section{L"L 80x8", 9.66},  Section{L"D 12", 0.888},    Section{L"D 16", 1.58},    Section{L"D 20", 2.47},
};

struct Part
{
    const wchar_t* name;
    int section;
    double length;
    int count;
};

struct Member
{
    const wchar_t* name;
    int section;
    double length;
    int count;
    std::array<Part, 2> parts;
};

constexpr std::array members = {
    Member{L"Column C1", 1, 3.6, 8, {{{L"Bar 1, along", 7, 3.95, 12}, {L"Bar 2, stirrup", 5, 1.46, 24}}}},
    Member{L"Column C2", 0, 3.6, 4, {{{L"Bar 3, along", 6, 3.85, 8}, {L"Bar 4, stirrup", 5, 1.16, 24}}}},
    Member{L"Beam B1", 3, 7.25, 6, {{{L"Bar 5, below", 7, 7.6, 6}, {L"Bar 6, above", 6, 7.6, 4}}}},
    Member{L"Beam B2", 2, 5.4, 12, {{{L"Bar 7, below", 7, 5.75, 4}, {L"Bar 10, above", 6, 5.75, 2}}}},
    Member{L"Brace X1", 4, 4.52, 16, {{{L"Bar 8, plate", 6, 0.42, 4}, {L"Bar 9, plate", 6, 0.36, 4}}}},
};

constexpr std::array storeys = {L"Basement", L"Ground floor", L"Storey 1", L"Storey 2", L"Roof"};
constexpr COLORREF barColor = RGB(70, 90, 120);
constexpr COLORREF storeyColor = RGB(0, 70, 130);

double kilogramsPerMetre(const CString& section)
{
    for (const Section& known : sections)
        if (section.CompareNoCase(known.name) == 0)
            return known.kilogramsPerMetre;
    return 0.0;
}

CString fixed(double value)
{
    CString text;
    text.Format(L"%.1f", value);
    return text;
}

HTREEITEM addRow(CKxTreeListViewCtrl& tree, HTREEITEM parent, const wchar_t* name, Picture picture, const Part& part)
{
    HTREEITEM const row = tree.InsertItem(name, picture, picture, parent, TVI_LAST);
    CString count;
    count.Format(L"%d", part.count);
    tree.SetItemText(row, sectionColumn, sections[static_cast<size_t>(part.section)].name);
    tree.SetItemValue(row, lengthColumn, part.length);
    const double each = sections[static_cast<size_t>(part.section)].kilogramsPerMetre * part.length;
    tree.SetItemText(row, weightColumn, fixed(each * part.count));
    tree.SetItemText(row, countColumn, count);
    return row;
}

HTREEITEM addStorey(CKxTreeListViewCtrl& tree, const wchar_t* name)
{
    HTREEITEM const storey = tree.InsertItem(name, storeyPicture, storeyPicture, TVI_ROOT, TVI_LAST);
    tree.SetItemBold(storey, TRUE, FALSE);
    tree.SetItemColor(storey, storeyColor, FALSE);
    return storey;
}

void addMember(CKxTreeListViewCtrl& tree, HTREEITEM storey, const Member& member, double longer)
{
    const Part self = {member.name, member.section, member.length + longer, member.count};
    HTREEITEM const row = addRow(tree, storey, member.name, memberPicture, self);
    for (const Part& part : member.parts)
    {
        HTREEITEM const bar = addRow(tree, row, part.name, barPicture, part);
        tree.SetItemColor(bar, barColor, FALSE);
    }
}

double ownWeight(CKxTreeListViewCtrl& tree, HTREEITEM row)
{
    const int count = _wtoi(tree.GetItemText(row, countColumn));
    return kilogramsPerMetre(tree.GetItemText(row, sectionColumn)) * tree.GetItemValue(row, lengthColumn) * count;
}

double weightOfChildren(CKxTreeListViewCtrl& tree, HTREEITEM parent)
{
    double sum = 0.0;
    for (HTREEITEM row = tree.GetChildItem(parent); row != nullptr; row = tree.GetNextSiblingItem(row))
        sum += std::wcstod(tree.GetItemText(row, weightColumn), nullptr);
    return sum;
}
} // namespace

void building::addColumns(CKxTreeListViewCtrl& tree)
{
    constexpr int left = 0;
    constexpr int right = 1;
    tree.InsertColumn(nameColumn, L"Name", left, 170, 0);
    tree.InsertColumn(lengthColumn, L"Length", right, 96, 0);
    tree.InsertColumn(sectionColumn, L"Section", left, 80, 0);
    tree.InsertColumn(weightColumn, L"Weight [kg]", right, 92, 0);
    tree.InsertColumn(countColumn, L"Count", right, 68, 0);
}

void building::fill(CKxTreeListFrame& frame)
{
    CKxTreeListViewCtrl& tree = frame.m_tree;
    tree.SetRedraw(FALSE);
    tree.DeleteAllItems();
    for (size_t i = 0; i < storeys.size(); ++i)
    {
        HTREEITEM const storey = addStorey(tree, storeys[i]);
        for (const Member& member : members)
            addMember(tree, storey, member, 0.1 * static_cast<double>(i));
        weigh(tree, storey);
    }
    frame.ExpandTree();
    tree.SetRedraw(TRUE);
    tree.Invalidate();
    tree.ResetVertScrollBar();
}

void building::addMany(CKxTreeListFrame& frame, int count)
{
    CKxTreeListViewCtrl& tree = frame.m_tree;
    tree.SetRedraw(FALSE);
    HTREEITEM const storey = addStorey(tree, L"Site store");
    for (int i = 0; i < count; ++i)
    {
        CString name;
        name.Format(L"Bar %d", i + 1);
        const Part part = {nullptr, 5 + i % 3, 1.0 + 0.25 * (i * 7 % 23), 1 + i % 9};
        addRow(tree, storey, name, barPicture, part);
    }
    weigh(tree, storey);
    tree.Expand(storey, TVE_EXPAND);
    tree.SetRedraw(TRUE);
    tree.Invalidate();
    tree.ResetVertScrollBar();
}

void building::weigh(CKxTreeListViewCtrl& tree, HTREEITEM item)
{
    for (HTREEITEM row = item; row != nullptr; row = tree.GetParentItem(row))
    {
        const bool storey = tree.GetParentItem(row) == nullptr;
        tree.SetItemText(row, weightColumn, fixed(storey ? weightOfChildren(tree, row) : ownWeight(tree, row)));
    }
}
