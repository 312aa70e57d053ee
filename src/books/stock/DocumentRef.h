// Which document a row of a list or report stands for, so that it can be opened from there.
#pragma once

#include <QString>

#include "formats/DocumentFile.h"

namespace kladez {

struct DocumentRef {
  DocumentKind kind = DocumentKind::kReceipt;
  QString warehouse;  // in which it lies; empty for transfers, which lie beside the warehouses
  QString file;       // "0012.uhd"; empty where no document stands behind the row

  bool operator==(const DocumentRef&) const = default;
};

}  // namespace kladez
