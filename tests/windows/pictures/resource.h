// Ids of the resources of these tests.
#pragma once
#define IDB_KEYED 801    // red, green, nearly green; green, blue, white
#define IDB_GREYS 802    // magenta, dark grey, light grey, red, with a palette
#define IDP_QUARTERS 811 // red, blue; white, yellow
#define IDP_HALF 812     // red, transparent
#define IDP_BROKEN 813
#define IDP_SHORT 814
#define IDP_MISSING 899
