#include "screens/store/FilePlaceDialog.h"

#include <QLabel>
#include <QVBoxLayout>

#include "books/check/StrictLines.h"
#include "formats/TextLines.h"
#include "ui/controls/Commands.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

QStringList LinesOf(const DataDir& data, const QString& path) {
  if (data.DirectoryExists(path)) return data.List(path, u"");
  const QByteArray bytes = data.Read(path);
  StrictLines lines;
  FindingList findings;
  lines.Read(path, bytes, findings);
  QStringList texts;
  for (const QByteArrayView line : lines.Lines()) {
    texts.append(DecodeText(line.first(std::min(line.size(), kLongestLine))));
  }
  return texts;
}

}  // namespace

FilePlaceDialog::FilePlaceDialog(const DataDir& books, const QString& base, const Finding& finding,
                                 QWidget* parent)
    : QDialog(parent),
      lines_(LinesOf(books, base + finding.file)),
      model_({{.title = u"Строка"_s, .twips = 900, .number = true},
              {.title = u"Текст"_s, .twips = 6000, .stretch = true}},
             {.count = [this] { return static_cast<int>(lines_.size()); },
              .text =
                  [this](int row, int column) {
                    return column == 0 ? QString::number(row + 1) : lines_[row];
                  }}) {
  setObjectName(u"checkplace"_s);
  setWindowTitle(finding.file);
  auto* told = new QLabel(finding.text, this);
  told->setObjectName(u"told"_s);
  told->setTextFormat(Qt::PlainText);
  told->setWordWrap(true);
  auto* list = new RecordList(this);
  list->setObjectName(u"lines"_s);
  list->SetRecords(&model_);
  list->SetEmptyText(u"Здесь пусто."_s);
  list->SelectRow(std::min<int>(finding.line, static_cast<int>(lines_.size())) - 1);
  auto* cancel = NewCommand(this, u"cancel"_s, u"&Закрыть"_s);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addWidget(told);
  layout->addWidget(list, 1);
  layout->addLayout(NewCommandRow({}, {cancel}));
  resize(look::ByLetters(this, 80, 55));
  list->setFocus();
}

}  // namespace kladez
