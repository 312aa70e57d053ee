// What each unit of the layer asks before it changes the disk, and tells after.
#pragma once

#include "system/SystemCalls.h"

namespace kladez::syscalls {

// The errno with which a test lets the call fail, or 0.
int Fault(std::string_view call, const QByteArray& path);
void TellMade(const Made& made);

}  // namespace kladez::syscalls
