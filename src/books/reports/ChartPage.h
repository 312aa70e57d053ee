// The page "temp.htm" of a printed chart: its title and the picture.
#pragma once

#include <QByteArray>
#include <QDate>
#include <QString>

namespace kladez {

// The picture beside the page.
inline constexpr QStringView kChartPicture = u"temp.gif";

// Throws std::system_error for a title with what Windows-1251 lacks.
QByteArray ChartPage(const QString& title, QDate today);

}  // namespace kladez
