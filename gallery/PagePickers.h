// The page of pickers: button combos in their three forms, bitmap buttons with every option.
#pragma once
#include "Page.h"
#include "oxa/buttons/KxBitmapButton.h"
#include "oxa/buttons/KxButtonCombo.h"
#include <array>

/// A picker of the page's own colours: where the screen has no palette, a host brings one.
class CPaintCombo : public CKxButtonCombo
{
public:
    COLORREF ColorOfIndex(int index) const override;
};

class CPagePickers : public CPage
{
public:
    CPagePickers();
    void walk(const TakePicture& take) override;

protected:
    BOOL OnInitDialog() override;

    DECLARE_MESSAGE_MAP()
    LRESULT OnPicked(WPARAM wParam, LPARAM lParam);
    HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind);
    void OnEnabled();
    void OnTry();

private:
    void createCombos();
    void prepareButtons();
    /// Where the template has the placeholder of a combo, which goes away.
    CRect takePlace(int id);
    void showColor(int swatch, CBrush& brush, COLORREF color);
    void openPalette(CKxButtonCombo& combo, CPoint onPalette);

    CKxButtonCombo m_hatch, m_section, m_system, m_static;
    CPaintCombo m_paint;
    CBrush m_paintBrush, m_systemBrush;
    std::array<CKxBitmapButton, 9> m_buttons;
    std::unique_ptr<CKxBitmapButton> m_try;
    bool m_ready = false;
};
