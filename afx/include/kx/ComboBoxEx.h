// The combo box with images.
#pragma once
#include "kx/Edits.h"
#include "kx/ImageList.h"
#include "kx/Lists.h"

/// A combo box whose items have images and indents. Adding, inserting and searching by text go by InsertItem.
class KXAFX_API CComboBoxEx : public CComboBox
{
    DECLARE_DYNAMIC(CComboBoxEx)
public:
    CComboBoxEx();
    ~CComboBoxEx() override;
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// The count that is left, or CB_ERR.
    int DeleteItem(int iIndex);
    BOOL GetItem(COMBOBOXEXITEM* pCBItem);
    /// The index of the new item, -1 on failure.
    int InsertItem(const COMBOBOXEXITEM* pCBItem);
    BOOL SetItem(const COMBOBOXEXITEM* pCBItem);
    DWORD GetExtendedStyle() const;
    DWORD SetExtendedStyle(DWORD dwExMask, DWORD dwExStyle);
    BOOL HasEditChanged();
    CEdit* GetEditCtrl();
    CComboBox* GetComboBoxCtrl();
    CImageList* GetImageList() const;
    /// The list shown before. The caller owns both.
    CImageList* SetImageList(CImageList* pImageList);

    using CComboBox::DeleteItem;
};
