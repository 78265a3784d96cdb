// The name under which CPoint, CSize and CRect are also included.
#pragma once

#include "kx/Geometry.h"
