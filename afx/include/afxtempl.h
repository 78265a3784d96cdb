// The collection class templates.
#pragma once

#include <afx.h>
#include <afxcoll.h>

#include "kx/Array.h"
#include "kx/Elements.h"
#include "kx/List.h"
#include "kx/Map.h"
#include "kx/TypedPtr.h"
