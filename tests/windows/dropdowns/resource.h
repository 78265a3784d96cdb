// The resources of the tests.
#define IDB_BLOCK 201 // 12 by 8, pure green with a red block of 4 by 4 at 4, 2
#define IDD_BAR 301
