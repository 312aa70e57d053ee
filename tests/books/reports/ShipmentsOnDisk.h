// The former name of BooksOnDisk, for as long as a test uses it.
#pragma once

#include "SmallBooks.h"

namespace kladez {

using ShipmentsOnDisk = BooksOnDisk;

}  // namespace kladez
