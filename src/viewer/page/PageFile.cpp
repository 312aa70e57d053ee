#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QImageReader>
#include <cerrno>
#include <system_error>

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

// Opens a plain file to be read. What hangs or never ends, such as a pipe or a device, is refused
// with ESPIPE; nobody is waited for.
void OpenPlain(const QString& path, QFile& file) {
  const int descriptor =
      ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
  if (descriptor < 0) ThrowFor(path, errno);
  struct stat status = {};
  const int failure = ::fstat(descriptor, &status) != 0 ? errno
                      : S_ISDIR(status.st_mode)         ? EISDIR
                      : S_ISREG(status.st_mode)         ? 0
                                                        : ESPIPE;
  if (failure != 0 || !file.open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle)) {
    ::close(descriptor);
    ThrowFor(path, failure);
  }
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
    errno = 0;
    const QByteArray bytes = file.read(limits::kBytes + 1);
    if (file.error() != QFileDevice::NoError) ThrowFor(path, errno);
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
