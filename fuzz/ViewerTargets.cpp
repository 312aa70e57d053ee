#include <stdexcept>

#include "Targets.h"
#include "viewer/page/PageReader.h"
#include "viewer/page/PageText.h"

namespace kladez {
namespace {

void Require(bool holds, const char* promise) {
  if (!holds) throw std::logic_error(promise);
}

void RequireSound(const viewer::Page& page, const std::vector<viewer::Block>& blocks);

void RequireSound(const viewer::Page& page, const viewer::Table& table) {
  Require(!table.rows.empty(), "a table has rows");
  for (const viewer::Row& row : table.rows) {
    for (const viewer::Cell& cell : row.cells) {
      Require(!cell.blocks.empty(), "a cell has a block");
      Require(cell.column >= 0 && cell.column_span >= 1 && cell.row_span >= 1 &&
                  cell.column + cell.column_span <= table.columns,
              "a cell lies in the grid");
      RequireSound(page, cell.blocks);
    }
  }
}

void RequireSound(const viewer::Page& page, const std::vector<viewer::Block>& blocks) {
  for (const viewer::Block& block : blocks) {
    if (const auto* table = std::get_if<std::unique_ptr<viewer::Table>>(&block)) {
      RequireSound(page, **table);
      continue;
    }
    for (const viewer::Run& run : std::get<viewer::Paragraph>(block).runs) {
      Require(run.style >= 0 && static_cast<size_t>(run.style) < page.styles.size(),
              "a run has a style");
    }
  }
}

template <viewer::PageKind kind>
void Pages(QByteArrayView bytes) {
  const viewer::Page page = viewer::ReadPage(
      viewer::DecodePage(bytes.toByteArray()), [](const QString&) { return QImage(); }, {}, kind);
  Require(page.closing <= page.signature && page.signature <= page.signature_end &&
              page.signature_end <= page.blocks.size(),
          "the signature block lies in the page");
  RequireSound(page, page.blocks);
}

constexpr FuzzTarget kTargets[] = {{"pages", Pages<viewer::PageKind::kPrintOut>, false},
                                   {"guide", Pages<viewer::PageKind::kGuide>, false}};

}  // namespace

std::span<const FuzzTarget> ViewerFuzzTargets() { return kTargets; }

}  // namespace kladez
