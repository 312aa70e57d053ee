#include <QFile>
#include <QImageReader>
#include <cerrno>
#include <system_error>

#include "viewer/page/PagePaths.h"
#include "viewer/page/PageReader.h"
#include "viewer/page/PageText.h"

namespace kladez::viewer {
using namespace Qt::StringLiterals;

namespace {

// A picture of a print-out lies beside it, whatever the case of its letters.
QString BesidePrintOut(const QDir& directory, const QString& name) {
  if (name.contains(u'/')) {
    return {};
  }
  QString found = name;
  if (!directory.exists(name)) {
    for (const QString& entry : directory.entryList(QDir::Files)) {
      if (entry.compare(name, Qt::CaseInsensitive) == 0) {
        found = entry;
      }
    }
  }
  return found;
}

QImage LoadPicture(const QDir& directory, const QString& name, PageKind kind) {
  const QString reference = kind == PageKind::kGuide ? name : BesidePrintOut(directory, name);
  const QString path = PathWithin(directory, reference);
  return path.isEmpty() ? QImage() : QImageReader(path).read();
}

}  // namespace

Page ReadPageFile(const QDir& directory, const QString& name, const Progress& progress,
                  PageKind kind) {
  if (kind == PageKind::kGuide && PathWithin(directory, name).isEmpty()) {
    throw std::system_error(ENOENT, std::generic_category(), name.toStdString());
  }
  QFile file(directory.filePath(name));
  errno = 0;
  if (!file.open(QIODevice::ReadOnly)) {
    throw std::system_error(errno != 0 ? errno : EIO, std::generic_category(),
                            file.fileName().toStdString());
  }
  const QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError) {
    throw std::system_error(errno != 0 ? errno : EIO, std::generic_category(),
                            file.fileName().toStdString());
  }
  const auto load = [&directory, kind](const QString& picture) {
    return LoadPicture(directory, picture, kind);
  };
  return ReadPage(DecodePage(bytes), load, progress, kind);
}

}  // namespace kladez::viewer
