// The page of the smart combo box: a steel section with pictures, a bolt code, a free list.
#pragma once
#include "Page.h"
#include "oxa/formats/KxSmartComboBox.h"

/// A smart combo box whose format follows what is typed, as a host does that adds by "+" under a format.
class CFollowedSmartCombo : public CKxSmartComboBox
{
public:
    void createAt(CWnd& placeholder, UINT id);
    /// Puts the text of the field on the places of the format.
    void follow();
    static int countOfValues(CKxSmartComboBox& control);

    void BitmapButtonClick() override { ++clicks; }
    void LeftBitmapButtonClick() override { ++clicks; }
    void RightBitmapButtonClick() override { ++clicks; }

    int clicks = 0; ///< on the bitmap buttons
};

class CPageSmart : public CPage
{
public:
    CPageSmart();
    void walk(const TakePicture& take) override;

protected:
    BOOL OnInitDialog() override;

    DECLARE_MESSAGE_MAP()
    void OnMode(UINT id);
    void OnSwitches();
    void OnSort();
    void OnMany();
    void OnFreeOfFormat();
    void OnClear();
    void OnTimer(UINT_PTR id);
    LRESULT OnEdited(WPARAM wParam, LPARAM lParam);

private:
    void makeSection(UINT mode);
    std::vector<CKxSmartComboBox*> all();
    void showState();
    void typeInto(CKxSmartComboBox& control, const wchar_t* text);
    static POINT buttonOf(CKxSmartComboBox& control, int child);

    CFollowedSmartCombo* m_section = nullptr; // each owned by its window
    CFollowedSmartCombo* m_bolt = nullptr;
    CKxSmartComboBox* m_free = nullptr;
};
