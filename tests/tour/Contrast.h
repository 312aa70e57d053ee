// Whether what stands on a window can be read: the contrast of its texts and icons with the ground
// that they stand on.
#pragma once

#include <QStringList>

class QWidget;

namespace kladez {

// What is too faint, in the light set of colours and in the dark one, of which a picture is kept.
QStringList FaintOf(QWidget* window, const QString& dark_picture);

}  // namespace kladez
