// The name under which CString is also included.
#pragma once

#include "kx/String.h"
#include "kx/StringA.h"
