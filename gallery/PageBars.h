// The page of the bars: a frame with docked dialog bars, painted or plain, enabled or not, and a property sheet.
#pragma once
#include "MemberBars.h"
#include "Page.h"

class CPageBars : public CPage
{
public:
    CPageBars();
    void walk(const TakePicture& take) override;

protected:
    BOOL OnInitDialog() override;

    DECLARE_MESSAGE_MAP()
    void OnPainted();
    void OnDisabled();
    void OnSides();
    void OnLoads();
    void OnReadOnly();

private:
    bool isChecked(int id) const { return IsDlgButtonChecked(id) == BST_CHECKED; }
    void showState();

    CMemberFrame* m_frame = nullptr; ///< deletes itself with its window, which ends with the page's
};
