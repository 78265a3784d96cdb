// The ids of the test program's own resources.
#pragma once

#define IDD_FILED 101
#define IDD_UNFILED 102
#define IDM_FILED 103
#define IDM_OWN_ID 104
#define IDD_RESTLESS 105
#define IDD_BEAM 106

#define ID_FIRST 201
#define ID_SECOND 202
#define ID_DEEP 203
#define ID_OWN 204

#define IDC_FILED_LABEL 301
#define IDC_PLAIN_LABEL 302
#define IDC_FILED_BUTTON 303
#define IDC_HELPED 304
#define IDC_UNHELPED 305
#define IDC_SPAN 306
#define IDC_DEPTH 307
#define IDC_NOTE 308

#define IDS_TWO_PLACES 401
#define IDS_REPEATED 402

#define HELP_ALONE 501
#define HELP_UNFILED 131174 // 0x20000 plus the template
