#include <QFile>
#include <QImageReader>
#include <cerrno>
#include <system_error>

#include "viewer/page/PageReader.h"
#include "viewer/page/PageText.h"

namespace kladez::viewer {
using namespace Qt::StringLiterals;

namespace {

// A picture of a print-out lies beside it. Whatever leads elsewhere is none.
QImage LoadPicture(const QDir& directory, const QString& name) {
  if (name.isEmpty() || name.startsWith(u'.') || name.contains(u'/') || name.contains(u'\\') ||
      name.contains(u':')) {
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
  return QImageReader(directory.filePath(found)).read();
}

}  // namespace

Page ReadPageFile(const QDir& directory, const QString& name, const Progress& progress) {
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
  const auto load = [&directory](const QString& picture) {
    return LoadPicture(directory, picture);
  };
  return ReadPage(DecodePage(bytes), load, progress);
}

}  // namespace kladez::viewer
