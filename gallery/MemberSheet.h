// The property sheet of the bars page: the member's name and its material.
#pragma once
#include "MemberBars.h"

/// A page that works on a copy of the member: what is typed counts when it is applied.
class CMemberPage : public CPropertyPage
{
public:
    CMemberPage(UINT templateId, Member& member, Member& copy)
        : CPropertyPage(templateId), m_copy(copy), m_member(member)
    {
    }
    BOOL OnInitDialog() override;
    BOOL OnApply() override;
    bool readOnly = false; ///< before it is shown: its controls are disabled
    /// Called when the member has been changed.
    std::function<void()> onApplied;

protected:
    DECLARE_MESSAGE_MAP()
    void OnTyped() { SetModified(); }

    Member& m_copy;

private:
    Member& m_member;
};

class CNamePage : public CMemberPage
{
public:
    CNamePage(Member& member, Member& copy);

protected:
    void DoDataExchange(CDataExchange* exchange) override;
};

class CMaterialPage : public CMemberPage
{
public:
    CMaterialPage(Member& member, Member& copy);

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
};

class CMemberSheet : public CKxPropertySheet
{
public:
    CMemberSheet(Member& member, CWnd* parent, bool readOnly);
    bool IsPropertySheetDisabled() override { return m_readOnly; }
    BOOL OnInitDialog() override;
    /// Where given: called when the sheet has been shown for a moment; it is cancelled then.
    std::function<void()> onShown;
    /// Where given: called when a page has changed the member.
    std::function<void()> onApplied;

protected:
    DECLARE_MESSAGE_MAP()
    void OnTimer(UINT_PTR id);

private:
    Member m_copy; ///< what the pages show
    CNamePage m_name;
    CMaterialPage m_material;
    bool m_readOnly;
};
