// Ids of the dialogs that hold a tree list.
#pragma once

#define IDD_FRAME_HOST 200
#define IDD_FONTLESS_HOST 201
#define IDB_SORT_IMAGES 202
#define IDC_FRAME 1001
#define IDC_OTHER 1002
