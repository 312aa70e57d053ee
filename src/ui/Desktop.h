// Hands a file or an address to the program that the person's desktop has for it.
#pragma once

#include <functional>

class QUrl;

namespace kladez {

// `otherwise` runs, at once or a moment later, when the desktop has no such program.
void OpenOnDesktop(const QUrl& address, const std::function<void()>& otherwise);

}  // namespace kladez
