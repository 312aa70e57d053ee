// The characters of a print-out: from the bytes of its file, and from what people typed into it.
#pragma once

#include <QByteArray>
#include <QString>
#include <utility>
#include <vector>

#include "formats/Progress.h"

namespace kladez::viewer {

// Decodes the bytes of a page by the charset that its head names; Windows-1251 unless that is
// UTF-8. A byte that stands for nothing becomes U+FFFD. Never throws.
QString DecodePage(const QByteArray& bytes);

// Print-outs hold what people typed as it stands: "ООО <Ромашка> & Ко", "5<7", "Бумага <A4>".
// Gives the page with every "<" and "&" escaped that does not open markup of our print-outs, so
// that an HTML parser loses none of it. Also moves a </center> that stands inside a table behind
// that table: there it closes the centring, where a parser would drop it.
QString EscapeTypedText(const QString& page);

// The same, without the plain rows of tables: a row with nothing but an attribute "0" stands in
// `markup` for each run of them, and its value is the index in `rows` of where they are in the
// page.
struct EscapedPage {
  QString markup;
  std::vector<std::pair<qsizetype, qsizetype>> rows;
  bool is_cut = false;  // there was more than a page may have
};

// Throws WorkCancelled.
EscapedPage EscapePage(const QString& page, const Progress& progress = {});

}  // namespace kladez::viewer
