#include <QFile>
#include <QImageReader>
#include <cerrno>
#include <system_error>

#include "system/Process.h"
#include "viewer/page/Limits.h"
#include "viewer/page/PagePaths.h"
#include "viewer/page/PageReader.h"
#include "viewer/page/PageText.h"

namespace kladez::viewer {
using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void ThrowFor(const QString& path, int error) {
  throw std::system_error(error != 0 ? error : EIO, std::generic_category(), path.toStdString());
}

void OpenPlain(const QString& path, QFile& file) {
  if (const int error = syscalls::OpenToRead(path, file)) ThrowFor(path, error);
}

// A picture of a print-out lies beside it, whatever the case of its letters.
QString BesidePrintOut(const QDir& directory, const QString& name) {
  if (name.contains(u'/')) return {};
  QString found = name;
  if (!directory.exists(name)) {
    for (const QString& entry : directory.entryList(QDir::Files))
      if (entry.compare(name, Qt::CaseInsensitive) == 0) found = entry;
  }
  return found;
}

// Plain pictures only: others could name files of their own.
QImage ReadPicture(const QString& path, qsizetype room) {
  QFile file;
  try {
    OpenPlain(path, file);
  } catch (const std::system_error&) {
    return {};
  }
  QImageReader reader(&file);
  reader.setDecideFormatFromContent(true);
  static const QList<QByteArray> kPlain = {"gif", "png", "jpeg", "jpg", "bmp"};
  const QSize size = reader.size();
  const bool fits = size.isValid() && file.size() <= limits::kPictureBytes &&
                    static_cast<qint64>(size.width()) * size.height() * 4 <= room;
  return fits && kPlain.contains(reader.format()) ? reader.read() : QImage();
}

}  // namespace

Page ReadPageFile(const QDir& directory, const QString& name, const Progress& progress,
                  PageKind kind) {
  if (kind == PageKind::kGuide && PathWithin(directory, name).isEmpty()) ThrowFor(name, ENOENT);
  const QString path = directory.filePath(name);
  QString text;
  {
    QFile file;
    OpenPlain(path, file);
    syscalls::ForgetErrors();
    const QByteArray bytes = file.read(limits::kBytes + 1);
    if (file.error() != QFileDevice::NoError) ThrowFor(path, syscalls::LastError());
    text = DecodePage(bytes);
  }
  qsizetype room = limits::kPicturePoints;
  const auto load = [&directory, &room, kind](const QString& picture) {
    const QString reference =
        kind == PageKind::kGuide ? picture : BesidePrintOut(directory, picture);
    const QString file = PathWithin(directory, reference);
    const QImage image = file.isEmpty() ? QImage() : ReadPicture(file, room);
    room -= image.sizeInBytes();
    return image;
  };
  return ReadPage(text, load, progress, kind);
}

}  // namespace kladez::viewer
