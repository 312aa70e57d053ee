#include "viewer/page/PagePaths.h"

#include <QFileInfo>
#include <QStringList>
#include <algorithm>

namespace kladez::viewer {
using namespace Qt::StringLiterals;

QString PathWithin(const QDir& folder, const QString& reference) {
  const QStringList parts = reference.split(u'/');
  const bool leads_out = std::any_of(parts.begin(), parts.end(), [](const QString& part) {
    return part.isEmpty() || part.startsWith(u'.') || part.contains(u'\\') || part.contains(u':') ||
           part.contains(QChar::Null);
  });
  const QString root = QFileInfo(folder.absolutePath()).canonicalFilePath();
  if (leads_out || root.isEmpty()) return {};
  const QFileInfo file(folder.absoluteFilePath(reference));
  const QString path = file.canonicalFilePath();
  const QString inside = root.endsWith(u'/') ? root : root + u'/';
  return path.startsWith(inside) && file.isFile() ? path : QString();
}

bool NamesPage(const QString& reference) {
  const bool page = reference.endsWith(u".htm"_s, Qt::CaseInsensitive) ||
                    reference.endsWith(u".html"_s, Qt::CaseInsensitive);
  return page && std::none_of(reference.begin(), reference.end(), [](QChar c) {
           return c == u'/' || c == u'\\' || c == u':' || c == u'?' || c == u'#' || c == u'%';
         });
}

}  // namespace kladez::viewer
