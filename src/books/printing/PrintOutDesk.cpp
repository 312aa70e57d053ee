#include "books/printing/PrintOutDesk.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryFile>

#include "books/store/Errors.h"
#include "formats/DatabaseFiles.h"
#include "system/Process.h"

namespace kladez {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kPieceBytes = 1 << 16;

}  // namespace

PrintOutDesk::PrintOutDesk(const DataDir& data, std::function<void()> start_viewer)
    : data_(data), start_viewer_(std::move(start_viewer)) {}

void PrintOutDesk::Write(const QString& name, const QByteArray& bytes) const {
  SaveSet save(data_);
  save.Write(name, bytes);
  save.Commit();
}

void PrintOutDesk::WriteInPieces(const QString& name, const SaveSet::Contents& contents) const {
  // Made beforehand: making it may take long, and the commit holds the lock of the directory.
  QTemporaryFile made;
  syscalls::ForgetErrors();
  const auto check = [&made](bool good) {
    if (!good) ThrowFileError(u"Не удалось записать"_s, made.fileName(), syscalls::LastError());
  };
  check(made.open());
  contents([&](QByteArrayView piece) { check(made.write(piece.data(), piece.size()) >= 0); });
  check(made.flush() && made.seek(0));
  SaveSet save(data_);
  save.WriteInPieces(name, [&](const ByteSink& sink) {
    while (!made.atEnd()) {
      const QByteArray piece = made.read(kPieceBytes);
      check(!piece.isEmpty());
      sink(piece);
    }
  });
  save.Commit();
}

void PrintOutDesk::OpenPrintOut(const QString& name) const {
  const QString out = data_.Root() + u'/' + files::kPrintOut;
  QFile::remove(out);
  QFile::rename(data_.Root() + u'/' + name, out);
  if (start_viewer_) start_viewer_();
}

void PrintOutDesk::Show(const QString& name, const QByteArray& bytes) const {
  Write(name, bytes);
  OpenPrintOut(name);
}

bool StartReportViewer(const DataDir& data, const QStringList& arguments) {
  // The one beside this program first, however the system ends the names of programs.
  QString program =
      QStandardPaths::findExecutable(u"kladez-report"_s, {QCoreApplication::applicationDirPath()});
  if (program.isEmpty()) program = QStandardPaths::findExecutable(u"kladez-report"_s);
  return !program.isEmpty() && QProcess::startDetached(program, arguments, data.Root());
}

}  // namespace kladez
