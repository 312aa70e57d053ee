#include <QApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "viewer/window/ViewerWindow.h"

// kladez-report: shows out.htm of the directory that it is started in. It takes no arguments.
int main(int argc, char** argv) {
  using namespace Qt::StringLiterals;
  QApplication application(argc, argv);
  QApplication::setApplicationName(u"kladez-report"_s);
  QApplication::setApplicationDisplayName(QString());
  QLocale::setDefault(QLocale(QLocale::Russian, QLocale::Russia));
  QTranslator toolkit;
  if (toolkit.load(u"qtbase_ru"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(&toolkit);
  }
  kladez::viewer::ViewerWindow window(QDir::current(), u"out.htm"_s);
  if (!window.Load()) {
    return 1;
  }
  window.show();
  return QApplication::exec();
}
