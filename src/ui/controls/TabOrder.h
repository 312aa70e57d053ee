// Tab goes through a window as the eye does: line by line, as its layouts stand.
#pragma once

class QWidget;

namespace kladez {

// For a window or screen that is laid out. What stands in no layout comes last.
void TabByEye(QWidget* screen);

}  // namespace kladez
