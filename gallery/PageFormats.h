// The page of text formats: a format and a text, and what the format classes make of them.
#pragma once
#include "Page.h"

class CKxSemantic;

class CPageFormats : public CPage
{
public:
    CPageFormats();
    void walk(const TakePicture& take) override;

protected:
    BOOL OnInitDialog() override;

    DECLARE_MESSAGE_MAP()
    void OnChange();

private:
    CString textOf(int id) const;
    void showNothing(const wchar_t* why);
    void showNodes(const CKxSemantic& semantic);
    void showElements(const CKxSemantic& semantic);
    void showKeystrokes(const CKxSemantic& semantic, const CString& text);
    void showVerdict(const CKxSemantic& semantic, const CString& text);
    CListBox m_nodes, m_elements, m_keystrokes;
};
