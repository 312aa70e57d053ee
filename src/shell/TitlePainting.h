// What the title window, the landing screen and "О программе" have in common.
#pragma once

#include <QFont>
#include <QStringView>

class QPainter;
class QRect;

namespace kladez {

inline constexpr QStringView kProgramTitle = u"Kladez 4.8";

// The deep ground with the program's sign large and faint in its corner.
void PaintTitleGround(QPainter& painter, const QRect& room);
QFont TitleFont(const QFont& base);

}  // namespace kladez
