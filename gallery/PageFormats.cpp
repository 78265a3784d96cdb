// The page of text formats: everything shown is said by the library's own classes.
#include "PageFormats.h"
#include "oxa/formats/KxFormat.h"
#include "oxa/formats/KxGroup.h"
#include "oxa/formats/KxSemantic.h"
#include "oxa/formats/KxSemanticNode.h"
#include "oxa/formats/KxSeparator.h"
#include "resource.h"
#include "support/RealInput.h"

namespace
{
constexpr int maximumShown = 200; // lines of a list; a longer format or text is cut on the page only

CString describe(const CKxSemanticNode& node)
{
    CString line;
    if (node.GetKind() == L"S")
        line.Format(L"separator \"%s\"", node.GetText().GetString());
    else if (node.GetKind() == L"x")
        line.Format(L"group %s, open", node.GetText().GetString());
    else
        line.Format(L"group %s, %d place%s", node.GetText().GetString(), node.GetCount(),
                    node.GetCount() == 1 ? L"" : L"s");
    return line;
}

CString describe(CObject* element)
{
    CString line;
    if (const auto* group = DYNAMIC_DOWNCAST(CKxGroup, element))
        line.Format(L"%d-%d  group \"%s\"%s", group->GetStart(), group->GetEnd(), group->GetText().GetString(),
                    group->GetMaxCount() == -1 ? L", open" : L"");
    else if (const auto* separator = DYNAMIC_DOWNCAST(CKxSeparator, element))
        line.Format(L"%d-%d  separator \"%s\"", separator->GetStart(), separator->GetEnd(),
                    separator->GetText().GetString());
    return line;
}
} // namespace

BEGIN_MESSAGE_MAP(CPageFormats, CPage)
    // void OnChange()
    ON_EN_CHANGE(IDC_FORMAT, &CPageFormats::OnChange)
    // void OnChange()
    ON_EN_CHANGE(IDC_TEXT, &CPageFormats::OnChange)
END_MESSAGE_MAP()

CPageFormats::CPageFormats() : CPage(IDD_PAGE_FORMATS, L"Formats") {}

BOOL CPageFormats::OnInitDialog()
{
    CPage::OnInitDialog();
    m_nodes.SubclassDlgItem(IDC_NODES, this);
    m_elements.SubclassDlgItem(IDC_ELEMENTS, this);
    m_keystrokes.SubclassDlgItem(IDC_KEYSTROKES, this);
    SetDlgItemText(IDC_FORMAT, L"[(N)3]-[(A)x]");
    OnChange();
    return TRUE;
}

CString CPageFormats::textOf(int id) const
{
    CString text;
    GetDlgItemText(id, text);
    return text;
}

void CPageFormats::OnChange()
{
    if (!m_keystrokes.m_hWnd)
        return; // still being built
    CKxSemantic semantic;
    CString format = textOf(IDC_FORMAT);
    const bool good = semantic.CheckSyntax(format) == 1;
    if (!good || semantic.GetNodes().IsEmpty())
    {
        showNothing(good ? L"an empty format" : L"not a format");
        return;
    }
    SetDlgItemText(IDC_SYNTAX, L"a good format");
    const CString text = textOf(IDC_TEXT);
    showNodes(semantic);
    showElements(semantic);
    showKeystrokes(semantic, text);
    showVerdict(semantic, text);
    SetDlgItemText(IDC_PICTURE, semantic.MakeToolTipsString(CString()));
}

void CPageFormats::showNothing(const wchar_t* why)
{
    SetDlgItemText(IDC_SYNTAX, why);
    SetDlgItemText(IDC_VERDICT, L"");
    SetDlgItemText(IDC_EDIT_TEXT, L"");
    SetDlgItemText(IDC_PICTURE, L"");
    m_nodes.ResetContent();
    m_elements.ResetContent();
    m_keystrokes.ResetContent();
}

void CPageFormats::showNodes(const CKxSemantic& semantic)
{
    m_nodes.ResetContent();
    const CObList& nodes = semantic.GetNodes();
    for (POSITION at = nodes.GetHeadPosition(); at && m_nodes.GetCount() < maximumShown;)
        m_nodes.AddString(describe(*static_cast<const CKxSemanticNode*>(nodes.GetNext(at))));
}

void CPageFormats::showElements(const CKxSemantic& semantic)
{
    m_elements.ResetContent();
    CKxFormat format;
    try
    {
        semantic.CreateListFormat(format);
    }
    catch (CException* exception) // a count that no memory should hold
    {
        exception->Delete();
        SetDlgItemText(IDC_EDIT_TEXT, L"too long to be built");
        return;
    }
    for (POSITION at = format.GetHeadPosition(); at && m_elements.GetCount() < maximumShown;)
        m_elements.AddString(describe(format.GetNext(at)));
    SetDlgItemText(IDC_EDIT_TEXT, format.CreateEditFormat().Left(maximumShown));
}

void CPageFormats::showKeystrokes(const CKxSemantic& semantic, const CString& text)
{
    m_keystrokes.ResetContent();
    CString standing;
    for (int i = 0; i < text.GetLength() && i < maximumShown; ++i)
    {
        const CString typed = standing + text[i];
        CString line;
        try
        {
            standing = semantic.AnalyseSemantic(typed);
            line.Format(L"%s  >  %s", typed.GetString(), standing.GetString());
        }
        catch (CInvalidArgException* exception) // behind the end of the format
        {
            exception->Delete();
            line.Format(L"%s  >  behind the end of the format", typed.GetString());
        }
        m_keystrokes.AddString(line);
    }
}

void CPageFormats::showVerdict(const CKxSemantic& semantic, const CString& text)
{
    try
    {
        SetDlgItemText(IDC_VERDICT, semantic.ValidAdd(text) == 1 ? L"a finished value" : L"not a finished value");
    }
    catch (CInvalidArgException* exception)
    {
        exception->Delete();
        SetDlgItemText(IDC_VERDICT, L"runs behind the end of the format");
    }
}

void CPageFormats::walk(const TakePicture& take)
{
    GetDlgItem(IDC_TEXT)->SetFocus();
    take(L"1-format");
    typeText(L"123");
    take(L"2-unfinished");
    typeText(L"-Ab7");
    take(L"3-finished");
    SetDlgItemText(IDC_TEXT, L"");
    SetDlgItemText(IDC_FORMAT, L"[(N)2]/[(C)2]x[(a-f)1]");
    typeText(L"12/Abxg");
    take(L"4-refused");
    SetDlgItemText(IDC_FORMAT, L"[(N)3");
    take(L"5-bad-format");
}
