// The program: finds its data directory, finishes what a crash left there, gives a new one the
// demonstration books, and shows the main window.
#include <QDir>
#include <QStandardPaths>

#include "books/store/Backup.h"
#include "books/store/SaveSet.h"
#include "demo/DemoBooks.h"
#include "shell/MainWindow.h"
#include "system/Process.h"
#include "ui/base/Toolkit.h"
#include "ui/controls/Guard.h"
#include "ui/controls/GuardedApplication.h"

namespace {

using namespace Qt::StringLiterals;

// Made at the first start, and the working directory of the whole run.
QString EnterDataDirectory() {
  const QString root =
      QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/kladez"_s;
  kladez::syscalls::ForgetErrors();
  if (!QDir().mkpath(root) || !QDir::setCurrent(root)) {
    kladez::ThrowFileError(u"Не удалось открыть каталог данных"_s, root,
                           kladez::syscalls::LastError());
  }
  return root;
}

int Run() {
  kladez::DataDir data(EnterDataDirectory());
  kladez::Guarded(nullptr, [&] {
    kladez::SaveSet::Recover(data);
    kladez::RemoveUnfinishedRestore(data);
    if (QDir(data.Root()).isEmpty()) {
      kladez::WriteDemonstrationBooks(data, kladez::Clock().Today());
    }
  });
  kladez::Session session;
  kladez::SettingsStore settings;
  const kladez::Clock clock;
  const kladez::PrintOutDesk print_outs(data, [&] { kladez::StartReportViewer(data); });
  kladez::Safekeeping keeping(data, settings, clock);
  kladez::AppContext context{data, session, settings, clock, print_outs, {}, {}, &keeping};
  kladez::MainWindow window(context);
  window.Start();
  window.show();
  QGuiApplication::setQuitOnLastWindowClosed(true);
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  kladez::syscalls::KeepToOwner();
  const kladez::GuardedApplication application(argc, argv);
  // The title window closes before the main window comes up.
  QGuiApplication::setQuitOnLastWindowClosed(false);
  const kladez::RussianToolkit toolkit;
  int code = 1;
  kladez::Guarded(nullptr, [&] { code = Run(); });
  return code;
}
