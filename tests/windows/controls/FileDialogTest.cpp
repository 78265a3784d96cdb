// The dialogs for opening and saving files, driven by keys.
#include <afxdlgs.h>

#include "Support.h"
#include "support/ModalUser.h"

#include <dlgs.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <vector>

namespace
{
/// A folder of files that goes away with the object.
class Folder
{
public:
    explicit Folder(std::initializer_list<const wchar_t*> names)
        : m_path(std::filesystem::temp_directory_path() / L"file dialog")
    {
        std::filesystem::create_directories(m_path);
        for (const wchar_t* name : names)
            std::ofstream(m_path / name) << "content";
    }
    ~Folder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    std::wstring path(const wchar_t* name) const { return (m_path / name).wstring(); }
    std::wstring itself() const { return m_path.wstring(); }

private:
    std::filesystem::path m_path;
};

/// Carries out what a user does as soon as the dialog stands, and records what the dialog tells.
class CDrivenDialog : public CFileDialog
{
public:
    using CFileDialog::CFileDialog;

    /// One after the other; between two the dialog handles the keys of the first.
    std::vector<std::function<void(CDrivenDialog&)>> user;
    int refusals = 0; ///< how often a name is not accepted
    int accepted = 0;
    bool toldFolder = false;
    bool initialised = false;
    std::wstring nameWhenAccepted;

    HWND whole() const { return ::GetParent(m_hWnd); }

protected:
    BOOL OnInitDialog() override
    {
        initialised = true;
        return CFileDialog::OnInitDialog();
    }
    void OnInitDone() override
    {
        CFileDialog::OnInitDone();
        s_driven = this;
        m_step = 0;
        ::SetTimer(whole(), 77, 50, drive);
    }
    void OnFolderChange() override { toldFolder = true; }
    BOOL OnFileNameOK() override
    {
        ++accepted;
        nameWhenAccepted = plain(GetPathName());
        return refusals-- > 0;
    }

private:
    static void CALLBACK drive(HWND dialog, UINT, UINT_PTR id, DWORD)
    {
        ::KillTimer(dialog, id);
        CDrivenDialog& driven = *s_driven;
        if (driven.m_step >= driven.user.size())
            return;
        driven.user[driven.m_step++](driven);
        ::SetTimer(dialog, id, 50, drive);
    }
    size_t m_step = 0;
    inline static CDrivenDialog* s_driven = nullptr;
};
} // namespace

TEST(FileDialog, a_typed_name_is_the_answer)
{
    const Folder folder{L"beam.gif"};
    CParentWindow parent;
    CDrivenDialog dialog(TRUE, nullptr, nullptr, OFN_HIDEREADONLY, L"Pictures|*.gif||", &parent);
    dialog.user = {[&](CDrivenDialog&) { typeForModal(folder.path(L"beam.gif").c_str()); }};
    ASSERT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ(folder.path(L"beam.gif"), plain(dialog.GetPathName()));
    EXPECT_STREQ(L"beam.gif", dialog.GetFileName());
    EXPECT_STREQ(L"beam", dialog.GetFileTitle());
    EXPECT_STREQ(L"gif", dialog.GetFileExt());
    EXPECT_EQ(folder.path(L"beam.gif"), dialog.nameWhenAccepted);
    EXPECT_TRUE(dialog.initialised);
    EXPECT_TRUE(dialog.toldFolder);
    EXPECT_FALSE(dialog.GetReadOnlyPref());
    EXPECT_EQ(nullptr, dialog.m_hWnd);
    EXPECT_TRUE(parent.IsWindowEnabled());
    EXPECT_STREQ(L"", dialog.GetFolderPath());
}

TEST(FileDialog, escape_is_the_answer_cancel)
{
    CParentWindow parent;
    CDrivenDialog dialog(TRUE, nullptr, nullptr, OFN_HIDEREADONLY, nullptr, &parent);
    dialog.user = {[](CDrivenDialog&) { pressForModal(VK_ESCAPE); }};
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_EQ(0, dialog.accepted);
    EXPECT_EQ(nullptr, dialog.GetStartPosition());
}

TEST(FileDialog, a_dialog_can_be_opened_twice)
{
    const Folder folder{L"one.bmp", L"two.bmp"};
    CParentWindow parent;
    CDrivenDialog dialog(TRUE, nullptr, nullptr, OFN_HIDEREADONLY, nullptr, &parent);
    for (const wchar_t* name : {L"one.bmp", L"two.bmp"})
    {
        dialog.user = {[&](CDrivenDialog&) { typeForModal(folder.path(name).c_str()); }};
        *dialog.m_ofn.lpstrFile = L'\0';
        ASSERT_EQ(IDOK, dialog.DoModal());
        EXPECT_STREQ(name, dialog.GetFileName());
    }
}

TEST(FileDialog, a_name_that_is_not_accepted_keeps_the_dialog_open)
{
    const Folder folder{L"beam.gif"};
    CParentWindow parent;
    CDrivenDialog dialog(TRUE, nullptr, nullptr, OFN_HIDEREADONLY, nullptr, &parent);
    dialog.refusals = 1;
    dialog.user = {[&](CDrivenDialog&) { typeForModal(folder.path(L"beam.gif").c_str()); },
                   [](CDrivenDialog& open)
                   {
                       EXPECT_EQ(1, open.accepted);
                       pressForModal(VK_RETURN);
                   }};
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ(2, dialog.accepted);
}

TEST(FileDialog, saving_appends_the_default_extension)
{
    const Folder folder{};
    CParentWindow parent;
    CDrivenDialog dialog(FALSE, L"gif", nullptr, OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, L"GIF|*.gif||", &parent);
    dialog.user = {[&](CDrivenDialog&) { typeForModal(folder.path(L"plan").c_str()); }};
    ASSERT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ(folder.path(L"plan.gif"), plain(dialog.GetPathName()));
}

TEST(FileDialog, the_open_dialog_tells_its_folder_and_name)
{
    const Folder folder{L"beam.gif"};
    CParentWindow parent;
    const std::wstring place = folder.itself();
    CDrivenDialog dialog(TRUE, nullptr, L"beam.gif", OFN_HIDEREADONLY, nullptr, &parent);
    dialog.m_ofn.lpstrInitialDir = place.c_str();
    const auto look = [&](CDrivenDialog& open)
    {
        EXPECT_EQ(place, plain(open.GetFolderPath()));
        EXPECT_STREQ(L"beam.gif", open.GetFileName());
        EXPECT_EQ(folder.path(L"beam.gif"), plain(open.GetPathName()));
        EXPECT_EQ(IDCANCEL, open.DoModal()); // not a second time
        open.SetControlText(IDOK, L"Take");
        wchar_t text[20] = L"";
        ::GetDlgItemTextW(open.whole(), IDOK, text, 20);
        EXPECT_STREQ(L"Take", text);
        open.HideControl(stc2);
        EXPECT_FALSE(::IsWindowVisible(::GetDlgItem(open.whole(), stc2)));
        pressForModal(VK_ESCAPE);
    };
    dialog.user = {look};
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
}

TEST(FileDialog, several_names_are_paths_in_one_folder)
{
    const Folder folder{L"a.txt", L"b.txt"};
    CParentWindow parent;
    const std::wstring place = folder.itself();
    CDrivenDialog dialog(TRUE, nullptr, nullptr, OFN_ALLOWMULTISELECT | OFN_HIDEREADONLY, nullptr, &parent);
    dialog.m_ofn.lpstrInitialDir = place.c_str();
    dialog.user = {[&](CDrivenDialog&) { typeForModal(L"\"a.txt\" \"b.txt\""); }};
    ASSERT_EQ(IDOK, dialog.DoModal());
    POSITION position = dialog.GetStartPosition();
    EXPECT_EQ(folder.path(L"a.txt"), plain(dialog.GetNextPathName(position)));
    ASSERT_NE(nullptr, position);
    EXPECT_EQ(folder.path(L"b.txt"), plain(dialog.GetNextPathName(position)));
    EXPECT_EQ(nullptr, position);
    EXPECT_STREQ(L"", dialog.GetNextPathName(position));
    position = reinterpret_cast<POSITION>(static_cast<UINT_PTR>(99));
    EXPECT_STREQ(L"", dialog.GetNextPathName(position));
}

TEST(FileDialog, the_filter_is_a_list_of_terminated_texts)
{
    struct Row
    {
        const wchar_t* filter;
        std::wstring list;
    };
    const Row rows[] = {
        {L"GIF|*.gif||", std::wstring(L"GIF\0*.gif\0\0", 11)},
        {L"GIF|*.gif", std::wstring(L"GIF\0*.gif\0\0", 11)}, // the closing bars forgotten
        {L"A|*.a|B|*.b||", std::wstring(L"A\0*.a\0B\0*.b\0\0", 13)},
        {L"", std::wstring(L"\0\0", 2)},
    };
    for (const Row& row : rows)
    {
        const CFileDialog dialog(TRUE, nullptr, nullptr, 0, row.filter);
        EXPECT_EQ(row.list, std::wstring(dialog.GetOFN().lpstrFilter, row.list.size()));
    }
}

TEST(FileDialog, arguments_of_any_length_are_held)
{
    const CString longName(L'x', 5000);
    CFileDialog dialog(FALSE, longName, longName, 0, longName);
    EXPECT_EQ(1023, static_cast<int>(wcslen(dialog.m_ofn.lpstrFile)));
    const CFileDialog plainDialog(TRUE);
    EXPECT_EQ(nullptr, plainDialog.GetOFN().lpstrFilter);
    EXPECT_EQ(nullptr, plainDialog.GetOFN().lpstrDefExt);
    EXPECT_STREQ(L"", plainDialog.GetFileName());
    dialog.SetControlText(1, nullptr); // nothing is open
    dialog.HideControl(1);
    dialog.SetDefExt(nullptr);
}
