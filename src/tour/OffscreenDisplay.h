// The size of the screen on the platform without a display; 800x800 unless told.
#pragma once

#include <QSize>
#include <QTemporaryFile>
#include <memory>

namespace kladez {

// Call before the application object is made, and keep the answer while it lives. Sets
// QT_QPA_PLATFORM. `size` is in pixels of the device, before any scale factor.
std::unique_ptr<QTemporaryFile> UseOffscreenDisplay(QSize size);

}  // namespace kladez
