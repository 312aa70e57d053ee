#include "ui/base/Toolkit.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

namespace kladez {

using namespace Qt::StringLiterals;

RussianToolkit::RussianToolkit() {
  // Calendars name months and days by it. No number or date of ours asks it.
  QLocale::setDefault(QLocale(QLocale::Russian, QLocale::Russia));
  if (texts_.load(u"qtbase_ru"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(&texts_);
  }
}

}  // namespace kladez
