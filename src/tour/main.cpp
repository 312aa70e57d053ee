// kladez-tour FOLDER: plays the road of one shipment on a fresh copy of the demonstration books,
// with key and mouse events on the real windows, and leaves pictures of every screen, the printed
// page and its PDF in the folder.
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLibraryInfo>
#include <QTemporaryDir>
#include <QTranslator>
#include <cstdio>

#include "demo/DemoBooks.h"
#include "shell/frmMain.h"
#include "store/Errors.h"
#include "tour/Road.h"

namespace {

using namespace Qt::StringLiterals;

constexpr int kSplashMilliseconds = 400;

void Play(const QString& folder) {
  const QTemporaryDir home;
  const kladez::DataDir data(home.path());
  kladez::Clock clock;
  kladez::WriteDemonstrationBooks(data, clock.Today());
  kladez::Session session;
  kladez::SettingsStore settings(home.path() + u"/settings.ini"_s);
  const kladez::PrintOutDesk desk(data, [&] {
    const QString page = folder + u"/out.htm"_s;
    QFile::remove(page);
    QFile::copy(data.Root() + u"/out.htm"_s, page);
  });
  kladez::AppContext context{data, session, settings, clock, desk};
  kladez::frmMain window(context);
  window.resize(1280, 800);
  kladez::Robot robot(folder);
  robot.Run([&](kladez::Robot& player) {
    player.InWindow([&] {
      window.Start(kSplashMilliseconds);
      window.show();
      window.activateWindow();
    });
    kladez::OpenDatabaseByHand(player, u"Демонстрационная база"_s);
    kladez::PlayRoad(player);
    kladez::VisitScreens(player);
  });
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  // The title window closes before the main window comes up.
  QGuiApplication::setQuitOnLastWindowClosed(false);
  QTranslator translator;
  if (translator.load(u"qtbase_ru"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    application.installTranslator(&translator);
  }
  if (argc != 2) {
    std::fputs("usage: kladez-tour FOLDER\n", stderr);
    return 2;
  }
  const QString folder = QDir(QString::fromLocal8Bit(argv[1])).absolutePath();
  QDir().mkpath(folder);
  try {
    Play(folder);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", kladez::ErrorText(error).toLocal8Bit().constData());
    return 1;
  }
  std::printf("%s\n", folder.toLocal8Bit().constData());
  return 0;
}
