// Ids of the resources of these tests.
#pragma once
#define IDB_RED 701
#define IDB_STRIP 702
#define IDR_MENU 703
#define IDS_TIP 704
#define IDB_PUSHU 705
