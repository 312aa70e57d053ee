// For sources that are being written at this moment; goes with them.
#pragma once

#include "system/SystemCalls.h"
