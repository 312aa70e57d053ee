#include "viewer/window/FileColumns.h"

#include <QDateTime>
#include <QFileSystemModel>
#include <QLocale>

namespace kladez::viewer {
namespace {

using namespace Qt::StringLiterals;

// Columns of the toolkit's model.
constexpr int kKind = 2;
constexpr int kChanged = 3;

QString KindOf(const QFileInfo& file) {
  if (file.isDir()) return u"Папка"_s;
  const QString suffix = file.suffix();
  return suffix.isEmpty() ? u"Файл"_s : u"Файл "_s + suffix.toUpper();
}

}  // namespace

QVariant FileColumns::data(const QModelIndex& index, int role) const {
  const auto* files = qobject_cast<const QFileSystemModel*>(sourceModel());
  if (files != nullptr && role == Qt::DisplayRole &&
      (index.column() == kKind || index.column() == kChanged)) {
    const QFileInfo file = files->fileInfo(mapToSource(index));
    return index.column() == kKind ? KindOf(file)
                                   : QLocale().toString(file.lastModified(), QLocale::ShortFormat);
  }
  return QIdentityProxyModel::data(index, role);
}

}  // namespace kladez::viewer
