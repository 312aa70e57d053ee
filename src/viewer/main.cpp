#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <memory>

#include "ui/base/Toolkit.h"
#include "viewer/window/ViewerWindow.h"

namespace {

using namespace Qt::StringLiterals;
using kladez::RussianToolkit;
using kladez::viewer::PageKind;
using kladez::viewer::ViewerWindow;

std::unique_ptr<ViewerWindow> WindowFor(const QStringList& arguments) {
  if (arguments.size() < 2) return std::make_unique<ViewerWindow>(QDir::current(), u"out.htm"_s);
  QFileInfo page(arguments.at(1));
  if (page.exists()) page.setFile(page.canonicalFilePath());  // its folder is that of the guide
  return std::make_unique<ViewerWindow>(page.absoluteDir(), page.fileName(), PageKind::kGuide);
}

}  // namespace

// kladez-report: shows out.htm of the directory that it is started in; with an argument, that page
// of the user guide.
int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(u"kladez-report"_s);
  QApplication::setApplicationDisplayName(QString());
  QApplication::setWindowIcon(QIcon::fromTheme(u"kladez"_s));  // as the program is installed
  const RussianToolkit russian;
  const std::unique_ptr<ViewerWindow> window = WindowFor(QApplication::arguments());
  if (!window->Load()) return 1;
  window->show();
  return QApplication::exec();
}
