#include "screens/reports/DocumentListDialog.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "formats/Dates.h"
#include "formats/Numbers.h"
#include "screens/stock/documents/OpenDocument.h"
#include "ui/Help.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Forms.h"
#include "ui/controls/ListSearch.h"
#include "ui/controls/RecordList.h"
#include "ui/controls/TabOrder.h"

namespace kladez {

using namespace Qt::StringLiterals;

DocumentListDialog::DocumentListDialog(AppContext& context, const QString& of,
                                       std::vector<FoundDocument> documents, QWidget* parent)
    : QDialog(parent),
      context_(context),
      documents_(std::move(documents)),
      list_(new RecordList(this)),
      open_(NewCommand(this, u"open"_s, u"&Открыть"_s, look::IconName::kOpen)),
      close_(NewCommand(this, u"close"_s, u"&Закрыть"_s)) {
  setObjectName(u"otdocs"_s);
  setWindowTitle(u"Документы: %1"_s.arg(of));
  list_->setObjectName(u"ListView1"_s);
  list_->SetRecords(
      new RecordModel({{.title = u"Дата"_s, .twips = 950, .sample = u"00.00.0000"_s},
                       {.title = u"Документ"_s, .twips = 1500, .sample = u"Приход, открыт"_s},
                       {.title = u"N"_s, .twips = 850},
                       {.title = u"Склад"_s, .twips = 1900},
                       {.title = u"От кого, кому"_s, .twips = 2500, .stretch = true},
                       {.title = u"Сумма"_s, .twips = 1300, .number = true}},
                      {.count = [this] { return static_cast<int>(documents_.size()); },
                       .text = [this](int row, int column) { return Cell(row, column); }},
                      this));
  double sum = 0;
  for (const FoundDocument& document : documents_) sum = RoundMoney(sum + document.sum);
  QLabel* status = NewLabel(
      u"Документов: %1     Сумма: %2"_s.arg(QString::number(documents_.size()), FormatMoney(sum)),
      nullptr, this);
  status->setObjectName(u"status"_s);
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addWidget(list_, 1);
  layout->addWidget(status);
  layout->addWidget(look::NewSeparator(this));
  auto* help = NewHelpCommand(this, context.data);
  layout->addLayout(NewCommandRow({open_}, {help, close_}));
  resize(look::ByLetters(this, 100, 56));
  TabByEye(this);
  ShareListKeys(this, list_);
  connect(list_, &RecordList::EnterPressed, this, &DocumentListDialog::Open);
  connect(list_, &RecordList::DoubleClicked, this, &DocumentListDialog::Open);
  connect(open_, &QPushButton::clicked, this, &DocumentListDialog::Open);
  connect(close_, &QPushButton::clicked, this, &QDialog::reject);
  list_->SelectRow(0);
  list_->setFocus();
}

QString DocumentListDialog::Cell(int row, int column) const {
  const FoundDocument& document = documents_[static_cast<size_t>(row)];
  switch (column) {
    case 0:
      return DateText(document.date);
    case 1:
      return DocumentName(document.document.kind, document.is_open);
    case 2:
      return document.number;
    case 3:
      return document.document.warehouse;
    case 4:
      return document.party;
    default:
      return FormatMoney(document.sum);
  }
}

void DocumentListDialog::Open() {
  const int row = list_->CurrentRow();
  if (row < 0) return;
  OpenDocument(context_, documents_[static_cast<size_t>(row)].document, this);
  list_->setFocus();
}

}  // namespace kladez
