// The portable core of the framework: objects, exceptions, strings, points and rectangles, diagnostics.
#pragma once

#include "kx/CaseFold.h"
#include "kx/Diagnostics.h"
#include "kx/Exceptions.h"
#include "kx/Export.h"
#include "kx/Geometry.h"
#include "kx/Object.h"
#include "kx/RuntimeClass.h"
#include "kx/String.h"
#include "kx/StringA.h"
#include "kx/WinTypes.h"
