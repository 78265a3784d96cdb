// The classic controls.
#pragma once
#include "kx/Buttons.h"
#include "kx/Edits.h"
#include "kx/Lists.h"
