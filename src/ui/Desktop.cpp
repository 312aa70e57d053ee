#include "ui/Desktop.h"

#include <QDesktopServices>
#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// Milliseconds in which the launcher tells that it has found nothing. Where it stays until the
// browser is closed, what it says then is no answer any more.
constexpr qint64 kAnswerTime = 10000;

// The toolkit starts the launcher and asks no further, so that a page nobody shows counts as shown.
void Launch(const QString& launcher, const QUrl& address, const std::function<void()>& otherwise) {
  // It belongs to nobody, so that a browser which it waits for outlives the program.
  auto* process = new QProcess;
  for (const auto set : {&QProcess::setStandardOutputFile, &QProcess::setStandardErrorFile}) {
    (process->*set)(QProcess::nullDevice(), QIODevice::Truncate);
  }
  process->setStandardInputFile(QProcess::nullDevice());
  QElapsedTimer since_start;
  since_start.start();
  QObject::connect(process, &QProcess::finished, [=](int code, QProcess::ExitStatus status) {
    process->deleteLater();
    const bool good = status == QProcess::NormalExit && code == 0;
    if (!good && since_start.elapsed() < kAnswerTime) otherwise();
  });
  QObject::connect(process, &QProcess::errorOccurred, [=](QProcess::ProcessError error) {
    if (error != QProcess::FailedToStart) return;
    process->deleteLater();
    otherwise();
  });
  process->start(launcher, {address.toString(QUrl::FullyEncoded)});
}

}  // namespace

void OpenOnDesktop(const QUrl& address, const std::function<void()>& otherwise) {
  const QString launcher = QStandardPaths::findExecutable(u"xdg-open"_s);
  if (!launcher.isEmpty()) {
    Launch(launcher, address, otherwise);
  } else if (!QDesktopServices::openUrl(address)) {
    otherwise();
  }
}

}  // namespace kladez
