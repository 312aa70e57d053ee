#include "books/stock/DocumentScan.h"

#include <algorithm>

#include "formats/Dates.h"

namespace kladez {
namespace {

using H = DocumentHead;

// At most eight fields: a walk is quicker than any table.
template <typename Field>
size_t PlaceOf(const std::vector<Field>& fields, Field field) {
  return static_cast<size_t>(std::find(fields.begin(), fields.end(), field) - fields.begin());
}

}  // namespace

ScannedDocument::ScannedDocument(const DocumentFormat& format, const QString& file,
                                 QByteArrayView bytes, double part)
    : format_(format), file_(file), part_(part), bytes_(bytes), rest_(bytes) {
  Q_ASSERT(format.head.size() <= kMostLines && format.line.size() <= kMostLines);
  while (head_lines_ < format_.head.size() && !rest_.AtEnd()) {
    head_[head_lines_++] = rest_.NextRaw();
  }
  after_head_ = rest_.Left();
}

QByteArrayView ScannedDocument::Head(QString DocumentHead::*field) const {
  const size_t place = PlaceOf(format_.head, field);
  return place < head_lines_ ? head_[place] : QByteArrayView();
}

bool ScannedDocument::Has(QString DocumentHead::*field) const {
  return PlaceOf(format_.head, field) < head_lines_;
}

std::optional<QDate> ScannedDocument::Date() const { return ParseDate(Head(&H::date)); }

bool ScannedDocument::NextLine() {
  for (size_t i = 0; i < format_.line.size(); ++i) {
    if (rest_.AtEnd()) {
      cut_ = cut_ || i > 0;
      return false;
    }
    line_[i] = rest_.NextRaw();
  }
  return true;
}

QByteArrayView ScannedDocument::Line(QString DocumentLine::*field) const {
  const size_t place = PlaceOf(format_.line, field);
  return place < format_.line.size() ? line_[place] : QByteArrayView();
}

void ScanDocuments(const DataDir& data, DocumentKind kind, const QString& directory,
                   Unreadable unreadable, const std::function<bool(ScannedDocument&)>& visit,
                   const DataDir::Wanted& wanted) {
  const DocumentFormat& format = FormatOf(kind);
  const auto visit_file = [&](const DataDir::ListedFile& file) {
    const double part = static_cast<double>(file.index) / static_cast<double>(file.count);
    if (file.bytes) {
      ScannedDocument document(format, file.name, *file.bytes, part);
      return visit(document);
    }
    // Read once more for the error that tells why; a file that can be read by now will do.
    if (unreadable == Unreadable::kPassOver) return true;
    const QByteArray again = data.Read(directory + u'\\' + file.name);
    ScannedDocument document(format, file.name, again, part);
    return visit(document);
  };
  data.ForEachFile(directory, format.extension, visit_file, wanted);
}

}  // namespace kladez
