// The property sheet of the bars page: the member's name and its material.
#pragma once
#include "MemberBars.h"

class CNamePage : public CPropertyPage
{
public:
    explicit CNamePage(Member& member);

protected:
    void DoDataExchange(CDataExchange* exchange) override;

private:
    Member& m_member;
};

class CMaterialPage : public CPropertyPage
{
public:
    explicit CMaterialPage(Member& member);

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;

private:
    Member& m_member;
};

class CMemberSheet : public CKxPropertySheet
{
public:
    CMemberSheet(Member& member, CWnd* parent, bool readOnly);
    bool IsPropertySheetDisabled() override { return m_readOnly; }
    BOOL OnInitDialog() override;
    /// Where given: called when the sheet has been shown for a moment; it is cancelled then.
    std::function<void()> onShown;

protected:
    DECLARE_MESSAGE_MAP()
    void OnTimer(UINT_PTR id);

private:
    CNamePage m_name;
    CMaterialPage m_material;
    bool m_readOnly;
};
