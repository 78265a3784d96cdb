// The collection classes with fixed element types.
#pragma once

#include <afx.h>

#include "kx/Collections.h"
