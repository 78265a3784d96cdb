// List boxes and combo boxes.
#pragma once
#include "kx/Wnd.h"

/// A list box. A result of LB_ERR says that there is no such item, LB_ERRSPACE that memory is short.
class KXAFX_API CListBox : public CWnd
{
    DECLARE_DYNAMIC(CListBox)
public:
    CListBox();
    ~CListBox() override;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // The list as a whole
    int GetCount() const;
    int GetHorizontalExtent() const;
    void SetHorizontalExtent(int cxExtent);
    int GetTopIndex() const;
    int SetTopIndex(int nIndex);
    LCID GetLocale() const;
    LCID SetLocale(LCID nNewLocale);
    int InitStorage(int nItems, UINT nBytes);
    UINT ItemFromPoint(CPoint pt, BOOL& bOutside) const;
    DWORD GetListBoxInfo() const;

    // Selection of one item
    int GetCurSel() const;
    int SetCurSel(int nSelect);

    // Selection of several
    int GetSel(int nIndex) const;
    /// Index -1: all items.
    int SetSel(int nIndex, BOOL bSelect = TRUE);
    int GetSelCount() const;
    int GetSelItems(int nMaxItems, LPINT rgIndex) const;
    int SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem);
    void SetAnchorIndex(int nIndex);
    int GetAnchorIndex() const;
    int SetCaretIndex(int nIndex, BOOL bScroll = TRUE);
    int GetCaretIndex() const;

    // Items
    DWORD_PTR GetItemData(int nIndex) const;
    int SetItemData(int nIndex, DWORD_PTR dwItemData);
    void* GetItemDataPtr(int nIndex) const;
    int SetItemDataPtr(int nIndex, void* pData);
    int GetItemRect(int nIndex, LPRECT lpRect) const;
    /// The caller's buffer has room for GetTextLen characters and the null.
    int GetText(int nIndex, LPTSTR lpszBuffer) const;
    /// Empty when there is no such item.
    void GetText(int nIndex, CString& rString) const;
    int GetTextLen(int nIndex) const;
    void SetColumnWidth(int cxWidth);
    /// Tab stops in dialog units. Without an argument: every 32.
    void SetTabStops();
    BOOL SetTabStops(const int& cxEachStop);
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops);
    int SetItemHeight(int nIndex, UINT cyItemHeight);
    int GetItemHeight(int nIndex) const;

    // Changing and searching; a search begins behind nStartAfter and wraps
    /// The index of the new item.
    int AddString(LPCTSTR lpszItem);
    /// The count that is left.
    int DeleteString(UINT nIndex);
    /// Index -1: at the end.
    int InsertString(int nIndex, LPCTSTR lpszItem);
    void ResetContent();
    int Dir(UINT attr, LPCTSTR lpszWildCard);
    int FindString(int nStartAfter, LPCTSTR lpszItem) const;
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const;
    int SelectString(int nStartAfter, LPCTSTR lpszItem);

    // Called for owner-drawn list boxes and for those that want the keyboard; they do nothing here
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);
    /// -2: handled; -1: the default; else the item to go to.
    virtual int VKeyToItem(UINT nKey, UINT nIndex);
    virtual int CharToItem(UINT nKey, UINT nIndex);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

/// A combo box. A result of CB_ERR says that there is no such item, CB_ERRSPACE that memory is short.
class KXAFX_API CComboBox : public CWnd
{
    DECLARE_DYNAMIC(CComboBox)
public:
    CComboBox();
    ~CComboBox() override;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // The list
    int GetCount() const;
    int GetCurSel() const;
    /// Index -1 clears the field. Sends no notification.
    int SetCurSel(int nSelect);
    LCID GetLocale() const;
    LCID SetLocale(LCID nNewLocale);
    int GetTopIndex() const;
    int SetTopIndex(int nIndex);
    int InitStorage(int nItems, UINT nBytes);
    void SetHorizontalExtent(UINT nExtent);
    UINT GetHorizontalExtent() const;
    int SetDroppedWidth(UINT nWidth);
    int GetDroppedWidth() const;
    BOOL GetComboBoxInfo(PCOMBOBOXINFO pcbi) const;

    // The edit field
    /// Low word: first character; high word: the one behind the last. CB_ERR without an edit field.
    DWORD GetEditSel() const;
    BOOL SetEditSel(int nStartChar, int nEndChar);
    BOOL LimitText(int nMaxChars);
    void Clear();
    void Copy();
    void Cut();
    void Paste();
    BOOL SetCueBanner(LPCTSTR lpszText);
    BOOL GetCueBanner(LPTSTR lpszText, int cchText) const;
    CString GetCueBanner() const;

    // Items
    DWORD_PTR GetItemData(int nIndex) const;
    int SetItemData(int nIndex, DWORD_PTR dwItemData);
    void* GetItemDataPtr(int nIndex) const;
    int SetItemDataPtr(int nIndex, void* pData);
    /// The caller's buffer has room for GetLBTextLen characters and the null.
    int GetLBText(int nIndex, LPTSTR lpszText) const;
    /// Empty when there is no such item.
    void GetLBText(int nIndex, CString& rString) const;
    int GetLBTextLen(int nIndex) const;
    /// Index -1: the field.
    int SetItemHeight(int nIndex, UINT cyItemHeight);
    int GetItemHeight(int nIndex) const;
    int SetMinVisibleItems(int iMinVisible);
    int GetMinVisible() const;

    // Dropping down
    void ShowDropDown(BOOL bShowIt = TRUE);
    BOOL GetDroppedState() const;
    /// Screen coordinates.
    void GetDroppedControlRect(LPRECT lprect) const;
    BOOL GetExtendedUI() const;
    int SetExtendedUI(BOOL bExtended = TRUE);

    // Changing and searching; a search begins behind nStartAfter and wraps
    /// The index of the new item.
    int AddString(LPCTSTR lpszString);
    /// The count that is left.
    int DeleteString(UINT nIndex);
    /// Index -1: at the end.
    int InsertString(int nIndex, LPCTSTR lpszString);
    void ResetContent();
    int Dir(UINT attr, LPCTSTR lpszWildCard);
    int FindString(int nStartAfter, LPCTSTR lpszString) const;
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const;
    int SelectString(int nStartAfter, LPCTSTR lpszString);

    // Called for owner-drawn combo boxes; they do nothing here
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
