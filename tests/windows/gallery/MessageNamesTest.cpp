// What the gallery's log calls the messages of controls.
#include "gallery/MessageNames.h"
#include "GalleryHost.h"
#include "gallery/PageCombos.h"
#include "gallery/resource.h"

#include <commctrl.h>

namespace
{
std::wstring nameOfNotification(UINT code)
{
    NMHDR header = {nullptr, 1, code};
    return std::wstring(nameOfControlMessage(WM_NOTIFY, 1, reinterpret_cast<LPARAM>(&header)));
}
std::wstring nameOfCommand(HWND control, WORD code)
{
    return std::wstring(nameOfControlMessage(WM_COMMAND, MAKEWPARAM(1, code), reinterpret_cast<LPARAM>(control)));
}

TEST(MessageNames, are_those_of_the_notifications_of_a_combo_box_with_images)
{
    const struct
    {
        int code;
        const wchar_t* name;
    } rows[] = {
        {-801, L"CBEN_INSERTITEM"},        {-802, L"CBEN_DELETEITEM"}, {-804, L"CBEN_BEGINEDIT"},
        {-805, L"CBEN_ENDEDIT"},           {-806, L"CBEN_ENDEDIT"},    {-809, L"CBEN_DRAGBEGIN"},
        {-12345, L"WM_NOTIFY 0xFFFFCFC7"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(nameOfNotification(static_cast<UINT>(row.code)), row.name);
    NMHDR question = {nullptr, 1, static_cast<UINT>(CBEN_GETDISPINFOW)};
    EXPECT_FALSE(isControlMessage(WM_NOTIFY, reinterpret_cast<LPARAM>(&question))) << "asked at each paint";
}

TEST(MessageNames, go_by_the_class_of_the_control)
{
    PageHost<CPageCombos> host;
    EXPECT_EQ(nameOfCommand(host.control(IDC_COMBOS_COMBO_ENABLED), CBN_DROPDOWN), L"CBN_DROPDOWN");
    EXPECT_EQ(nameOfCommand(host.control(IDC_COMBOS_IMAGES_ENABLED), CBN_DROPDOWN), L"CBN_DROPDOWN");
    EXPECT_EQ(nameOfCommand(host.control(IDC_COMBOS_EDIT_ENABLED), EN_CHANGE), L"EN_CHANGE");
    EXPECT_EQ(nameOfCommand(host.control(IDC_COMBOS_CLEAR), BN_CLICKED), L"BN_CLICKED");
}
} // namespace
