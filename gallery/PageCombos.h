// The page of the combo box family: five classes, each enabled, disabled, empty and in a special state.
#pragma once
#include "Page.h"
#include "oxa/dropdowns/KxBitmapComboBox.h"
#include "oxa/dropdowns/KxComboBox.h"
#include "oxa/dropdowns/KxComboBoxEx.h"
#include "oxa/dropdowns/KxComboColorPicker.h"
#include <array>

class CPageCombos : public CPage
{
public:
    CPageCombos();
    void walk(const TakePicture& take) override;

protected:
    BOOL OnInitDialog() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    DECLARE_MESSAGE_MAP()
    void OnClear();
    void OnEnabled();
    void OnField();
    void OnTimer(UINT_PTR id);
    LRESULT OnOtherColor(WPARAM wParam, LPARAM lParam);

private:
    enum Column
    {
        enabled,
        disabled,
        empty,
        special,
        columnCount
    };
    template <class Control> using Row = std::array<Control, columnCount>;

    void fillEdits();
    void fillCombos();
    void fillImages();
    void fillBitmaps();
    void fillColors();
    void showHeard(UINT message, WPARAM wParam);
    void showState();

    Row<CKxEdit> m_edits;
    Row<CKxComboBox> m_combos;
    Row<CKxComboBoxEx> m_imageCombos;
    Row<CKxBitmapComboBox> m_bitmapCombos;
    Row<CKxComboColorPicker> m_pickers;
    CImageList m_pictures;
};
