// Moved down: see formats/Progress.h.
#pragma once

#include "formats/Progress.h"
