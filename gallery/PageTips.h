// The page of tips: the balloon in both orientations, the line tip, and the standard tip of a window and of a rectangle.
#pragma once
#include "Page.h"
#include "oxa/tooltips/KxToolTip.h"
#include "oxa/tooltips/KxToolTip2.h"
#include "oxa/tooltips/ToolTip2.h"

class CPageTips : public CPage
{
public:
    CPageTips();
    void walk(const TakePicture& take) override;

protected:
    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* message) override;

    DECLARE_MESSAGE_MAP()
    void OnBalloonLeft();
    void OnBalloonRight();
    void OnLineTip();

private:
    CString tipText() const;
    /// The point of a control to which a balloon points: the middle of its upper edge, in screen pixels.
    CPoint pointOf(int id) const;

    KxToolTip2 m_leftBalloon, m_rightBalloon;
    CToolTip2 m_line;
    CKxToolTip m_standard;
};
