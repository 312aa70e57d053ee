#include "books/stock/DocumentHeads.h"

#include <QScopedValueRollback>

#include "system/PathNames.h"

namespace kladez {
namespace {

std::filesystem::file_time_type TimeOf(const QByteArray& path) {
  std::error_code none;
  return std::filesystem::last_write_time(path.toStdString(), none);
}

}  // namespace

void DocumentHeads::Scan(const DataDir& data, const QString& directory, const Visit& visit) {
  if (busy_) {  // whoever shows the progress of a scan may start another
    ScanDocuments(data, kind_, directory, Unreadable::kStop, [&](ScannedDocument& document) {
      visit(document);
      return true;
    });
    return;
  }
  const QScopedValueRollback busy(busy_, true);
  const QByteArray path = EncodePath(data.Resolve(directory));
  auto changed = watch_->Changes(path);
  if (changed) changed->merge(changed_);
  changed_.clear();
  time_ = TimeOf(path);
  // Watched from before the first file is read, so that no change falls between.
  if (!changed) watch_->Start(path);
  try {
    if (!changed) {
      ReadAll(data, directory, visit);
    } else if (changed->empty()) {
      VisitKept(visit);
    } else {
      ReadChanged(data, directory, *changed, visit);
    }
  } catch (...) {
    watch_->Stop();
    throw;
  }
}

bool DocumentHeads::MayHaveChanged(const DataDir& data, const QString& directory) {
  if (busy_) return false;
  const QByteArray path = EncodePath(data.Resolve(directory));
  auto changed = watch_->Changes(path);
  // What the system does not tell, the directory's time does, but for files written in place.
  if (!changed) return TimeOf(path) != time_;
  changed_.merge(*changed);
  return !changed_.empty();
}

void DocumentHeads::Keep(const ScannedDocument& document) {
  const QByteArrayView head = document.HeadBytes();
  kept_.push_back({document.File(), bytes_.size(), head.size()});
  bytes_.insert(bytes_.end(), head.begin(), head.end());
}

void DocumentHeads::ReadAll(const DataDir& data, const QString& directory, const Visit& visit) {
  kept_.clear();
  bytes_.clear();
  ScanDocuments(data, kind_, directory, Unreadable::kStop, [&](ScannedDocument& document) {
    Keep(document);
    visit(document);
    return true;
  });
}

void DocumentHeads::VisitKept(const Visit& visit) const {
  const auto count = static_cast<double>(kept_.size());
  for (size_t i = 0; i < kept_.size(); ++i) {
    const QByteArrayView head(bytes_.data() + kept_[i].begin, kept_[i].size);
    ScannedDocument document(FormatOf(kind_), kept_[i].file, head, static_cast<double>(i) / count);
    visit(document);
  }
}

void DocumentHeads::ReadChanged(const DataDir& data, const QString& directory,
                                const DirectoryWatch::Names& changed, const Visit& visit) {
  DocumentHeads now(kind_);
  QHash<QString, const Kept*> before;
  for (const Kept& kept : kept_) before.insert(kept.file, &kept);
  for (const QString& file : data.List(directory, FormatOf(kind_).extension)) {
    const Kept* kept = changed.contains(EncodePath(file)) ? nullptr : before.value(file);
    const QByteArray read = kept == nullptr ? data.Read(directory + u'\\' + file) : QByteArray();
    const QByteArrayView bytes = kept == nullptr
                                     ? QByteArrayView(read)
                                     : QByteArrayView(bytes_.data() + kept->begin, kept->size);
    now.Keep(ScannedDocument(FormatOf(kind_), file, bytes));
  }
  kept_ = std::move(now.kept_);
  bytes_ = std::move(now.bytes_);
  VisitKept(visit);
}

}  // namespace kladez
