// The frame of the bars page: a member of steel, its two dialog bars, its property sheet.
#pragma once
#include <afxext.h>

#include <array>
#include <functional>
#include <span>

#include "oxa/dialogs/KxDialogBarEx.h"
#include "oxa/dialogs/KxPropertySheet.h"

/// The materials that a member can have.
inline constexpr std::array steels = {L"S 235", L"S 275", L"S 355", L"S 460"};

/// What the bars and the sheet change.
struct Member
{
    CString name = L"B 1";
    CString section = L"HE 200 A";
    CString length = L"6.25";
    int material = 0;
    BOOL fixed = FALSE;
    BOOL weight = TRUE, snow = TRUE, wind = FALSE;
};

/// A bar of the member that can be shown for looking only.
class CMemberBar : public CKxDialogBarEx
{
public:
    explicit CMemberBar(Member& member) : m_member(member) {}
    bool disabled = false;
    bool IsDlgBarDisabled() override { return disabled; }
    /// Enables all, or all but what is spared.
    void setDisabled(bool disable);

protected:
    void OnInitDialogBar() override;
    /// Fills the lists.
    virtual void fill() = 0;
    /// Gives a list its lines, by the messages that empty it and add to it.
    void fillList(int id, UINT empty, UINT add, std::span<const wchar_t* const> lines);

    Member& m_member;
};

class CSectionBar : public CMemberBar
{
public:
    using CMemberBar::CMemberBar;

protected:
    void fill() override;
    void DoDataExchange(CDataExchange* exchange) override;
};

class CLoadsBar : public CMemberBar
{
public:
    using CMemberBar::CMemberBar;

protected:
    void fill() override;
    void DoDataExchange(CDataExchange* exchange) override;
};

/// The picture of the member that fills the rest of the frame.
class CMemberPlan : public CWnd
{
public:
    explicit CMemberPlan(const Member& member) : m_member(member) {}

protected:
    DECLARE_MESSAGE_MAP()
    void OnPaint();

private:
    void drawLoads(CDC& dc, const CRect& beam) const;
    const Member& m_member;
};

class CMemberFrame : public CFrameWnd
{
public:
    /// Called at each change; with the message of a bar's control.
    std::function<void()> onChange;
    std::function<void(UINT, WPARAM, LPARAM)> onMessage;
    /// Called when the sheet has been shown for a moment; it is cancelled then.
    std::function<void()> onSheet;

    bool makeIn(CWnd* parent, const CRect& place);
    void setPainted(bool painted);
    void setDisabled(bool disabled);
    void dock(CControlBar& bar, UINT side);
    void setReadOnly(bool readOnly) { m_readOnly = readOnly; }
    void showProperties() { OnProperties(); }
    CString stateText() const;

    Member member;
    CSectionBar sectionBar{member};
    CLoadsBar loadsBar{member};

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    DECLARE_MESSAGE_MAP()
    void OnChanged();
    void OnProperties();
    void OnHelpButton();
    void OnUpdateProperties(CCmdUI* ui);

private:
    CMemberPlan m_plan{member};
    bool m_readOnly = false;
    int m_helps = 0;
};
