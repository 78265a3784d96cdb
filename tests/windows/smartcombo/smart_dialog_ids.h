// The numbers of the host dialog of the smart combo tests.
#define IDD_SMART_HOST 401
#define IDD_SMART_BAR 402
#define IDC_BEFORE 2001
#define IDC_SMART 2002
#define IDC_AFTER 2003
#define IDB_TILES 411
#define IDB_MASKED 412
#define IDI_BOLT 413
