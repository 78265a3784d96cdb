// Ids of the gallery's own resources.
#pragma once

#define IDD_MAIN 100
#define IDD_PAGE_UNITS 101
#define IDD_PAGE_FORMATS 102
#define IDD_PAGE_TIPS 103

#define IDC_PAGES 1000
#define IDC_LOG 1001

// Units page: a row of four per field, in this order: entry, value in SI, canonical text, flags.
#define IDC_UNIT_METRE 1100
#define IDC_SI_METRE 1101
#define IDC_TEXT_METRE 1102
#define IDC_FLAGS_METRE 1103
#define IDC_UNIT_MILLIMETRE 1110
#define IDC_SI_MILLIMETRE 1111
#define IDC_TEXT_MILLIMETRE 1112
#define IDC_FLAGS_MILLIMETRE 1113
#define IDC_UNIT_FEET 1120
#define IDC_SI_FEET 1121
#define IDC_TEXT_FEET 1122
#define IDC_FLAGS_FEET 1123
#define IDC_UNIT_FORCE 1130
#define IDC_SI_FORCE 1131
#define IDC_TEXT_FORCE 1132
#define IDC_FLAGS_FORCE 1133
#define IDC_UNIT_STRESS 1140
#define IDC_SI_STRESS 1141
#define IDC_TEXT_STRESS 1142
#define IDC_FLAGS_STRESS 1143
#define IDC_ADD_VALUES 1150
#define IDC_SET_VARIANT 1151
#define IDC_CLEAR 1152
#define IDC_ENABLED 1153

// Formats page.
#define IDC_FORMAT 1200
#define IDC_SYNTAX 1201
#define IDC_TEXT 1202
#define IDC_VERDICT 1203
#define IDC_EDIT_TEXT 1204
#define IDC_PICTURE 1205
#define IDC_NODES 1206
#define IDC_ELEMENTS 1207
#define IDC_KEYSTROKES 1208

// Tips page.
#define IDC_TIP_TEXT 1300
#define IDC_BALLOON_LEFT 1301
#define IDC_BALLOON_RIGHT 1302
#define IDC_LINE_TIP 1303
#define IDC_STANDARD_TIP 1304
#define IDC_TIP_RECTANGLE 1305
