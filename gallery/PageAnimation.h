// The page of the animated picture control: play, stop, go on, the part that is shown, the background colour.
#pragma once
#include "Page.h"
#include "PictureSource.h"
#include "oxa/images/PictureEx.h"

class CPageAnimation : public CPage
{
public:
    CPageAnimation();
    void walk(const TakePicture& take) override;

    /// Opens a file as if it had been chosen; what came of it stands in the status line.
    void openFile(const CString& path);

protected:
    BOOL OnInitDialog() override;

    DECLARE_MESSAGE_MAP()
    void OnOpen();
    void OnSample();
    void OnPlay();
    void OnStop();
    void OnApplyPart();
    void OnShowAll();
    void OnBackground();
    void OnTimer(UINT_PTR id);

private:
    void open(const PictureSource& source);
    CString refusalOf(const PictureSource& source) const;
    bool load(const PictureSource& source);
    void place();
    CRect shownPart() const;
    COLORREF colorAt(CPoint point);
    void showPart();
    void showState();
    void say(const CString& sentence);

    CComboBox m_samples, m_colors;
    CStatic m_pane;
    CPictureEx m_picture; ///< a child of the pane, which clips it
    bool m_loaded = false, m_started = false;
};
