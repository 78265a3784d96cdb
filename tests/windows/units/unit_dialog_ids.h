// The numbers of the host dialog of the unit tests.
#define IDD_UNIT_HOST 301
#define IDC_BEFORE 1001
#define IDC_METRE 1002
#define IDC_FEET 1003
#define IDC_DROPLIST 1004
#define IDC_AFTER 1005
