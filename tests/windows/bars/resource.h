// Ids of the dialog bars of the tests.
#pragma once

#define IDD_PALE_BAR 300
#define IDD_EMPTY_BAR 301
#define IDD_INNER 302
#define IDD_SMALL_BAR 303
#define IDD_SHEET_PAGE 304
#define IDD_CUT_SHORT 305
#define IDD_TOO_MANY 306
#define IDD_NOT_A_TEMPLATE 307
#define IDC_LABEL 1001
#define IDC_EDIT 1002
#define IDC_LIST 1003
#define IDC_CHECK 1004
#define IDC_PUSH 1005
#define IDC_RADIO 1006
#define IDC_GROUP 1007
#define IDC_READ_ONLY 1008
#define IDC_OWN_CLASS 1009
#define IDC_COMBO 1010
#define IDC_INNER_EDIT 1011
#define IDC_PROPERTY 1012
#define IDC_HELP_BUTTON 1013
#define IDC_OFF_LABEL 1014
#define IDC_OFF_EDIT 1015
