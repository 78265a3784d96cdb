// The page of the tree list: the bill of materials of a building, sorted, edited with units, moved and coloured.
#pragma once
#include "Page.h"
#include "kitrel/KxUnitManager.h"
#include "oxa/treelist/KxTreeListFrame.h"

/// A tree list that tells which messages its tree sends it.
class CToldTreeList : public CKxTreeListFrame
{
public:
    std::function<void(UINT, WPARAM, LPARAM)> onMessage;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

class CPageTree : public CPage
{
public:
    CPageTree();
    void walk(const TakePicture& take) override;

protected:
    BOOL OnInitDialog() override;

    DECLARE_MESSAGE_MAP()
    void OnBuilding();
    void OnMany();
    void OnBold();
    void OnColor();
    void OnUp();
    void OnDown();
    void OnNextStorey();
    void OnDelete();
    void OnModifiable();
    void OnTreeSort();
    void OnUnit();
    void OnSelectionChanged(NMHDR* notification, LRESULT* result);
    LRESULT OnCellWritten(WPARAM wParam, LPARAM lParam);

private:
    void prepareTree();
    void chooseUnit(int index);
    void move(HTREEITEM parent, HTREEITEM after);
    void showState();
    CPoint cellPoint(HTREEITEM row, int column);

    CToldTreeList m_list;
    CKxUnitManager m_units;
    CImageList m_rowPictures;
    CImageList m_sortPictures;
    int m_written = 0;
};
