// kladez-tour FOLDER: plays the road of one shipment on a fresh copy of the demonstration books,
// with key and mouse events on the real windows, and leaves pictures of every screen, the printed
// page and its PDF in the folder.
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>

#include "books/store/Errors.h"
#include "demo/DemoBooks.h"
#include "tour/OffscreenDisplay.h"
#include "tour/Road.h"
#include "tour/Stage.h"
#include "tour/Visits.h"
#include "ui/base/Toolkit.h"
#include "viewer/page/PageReader.h"
#include "viewer/paper/Output.h"
#include "viewer/window/ViewerWindow.h"

namespace {

using namespace Qt::StringLiterals;

constexpr int kSheetDotsPerInch = 96;

// The page that was printed last, and as the viewer shows it and prints it.
void KeepPage(const QString& data, const QString& folder) {
  const QString kept = folder + u"/out.htm"_s;
  QFile::remove(kept);
  QFile::copy(data + u"/out.htm"_s, kept);
  const auto page = std::make_shared<const kladez::viewer::Page>(
      kladez::viewer::ReadPageFile(QDir(folder), u"out.htm"_s));
  kladez::viewer::RenderWindowPicture(page, folder + u"/out.png"_s);
  kladez::viewer::ExportSheetPictures(page, folder, u"out-sheet"_s, kSheetDotsPerInch);
  kladez::viewer::ExportPdf(page, folder + u"/out.pdf"_s);
}

void Play(const QString& folder) {
  const QTemporaryDir home;
  const kladez::Clock clock;
  const QString data = home.path() + u"/data"_s;
  QDir().mkpath(data);
  kladez::WriteDemonstrationBooks(kladez::DataDir(data), clock.Today());
  kladez::Stage stage(data, home.path() + u"/settings.ini"_s, clock);
  kladez::Robot robot(folder);
  stage.Play(robot, [&](kladez::Robot& player) {
    kladez::OpenDatabaseByHand(player, u"Демонстрационная база"_s);
    kladez::PlayRoad(player);
    player.InWindow([&] { KeepPage(data, folder); });
    kladez::VisitScreens(player);
  });
}

// The platform without a display remarks on what it lacks at each window; only faults are told.
void TellFaults(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type != QtCriticalMsg && type != QtFatalMsg) return;
  std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
}

}  // namespace

int main(int argc, char** argv) {
  const std::unique_ptr<QTemporaryFile> display = qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")
                                                      ? kladez::UseOffscreenDisplay({1280, 1024})
                                                      : nullptr;
  qInstallMessageHandler(TellFaults);
  QApplication application(argc, argv);
  // The title window closes before the main window comes up.
  QGuiApplication::setQuitOnLastWindowClosed(false);
  const kladez::RussianToolkit toolkit;
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
