// Ids of the resources of these tests.
#pragma once
#define IDI_BLUE 821   // 16 by 16, blue from 2 to 14 each way, transparent around
#define IDB_SQUARE 822 // 16 by 16, from 4 to 12 each way red above, light grey below, magenta around
#define IDB_TILES 823  // four tiles of 12 by 10: red, green, blue, light grey
#define IDX_MISSING 899
