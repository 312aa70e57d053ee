#include "screens/store/CopyLookDialog.h"

#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "books/stock/DocumentBook.h"
#include "ui/Help.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Guard.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

std::vector<Column> CopiedDocumentColumns() {
  return {{.title = u"Документ"_s, .twips = 1600},
          {.title = u"Номер"_s, .twips = 1200},
          {.title = u"Дата"_s, .twips = 1500, .sample = u"00.00.0000"_s},
          {.title = u"Контрагент"_s, .twips = 3500, .stretch = true},
          {.title = u"Сумма"_s, .twips = 1600, .number = true},
          {.title = u"Склад"_s, .twips = 2200}};
}

QString CopiedDocumentText(const CopiedDocument& document, int column) {
  const DocumentHead& head = document.head;
  switch (column) {
    case 0:
      return BookOf(document.kind).name.toString();
    case 1:
      return head.number;
    case 2:
      return head.date;
    case 3:
      return document.kind == DocumentKind::kTransfer ? head.party + u" → "_s + head.destination
                                                      : head.party;
    case 4:
      return head.*BookOf(document.kind).total;
    default:
      return document.warehouse;
  }
}

QString StockRowText(const OnHandRow& row, int column) {
  const QString* texts[] = {&row.name, &row.quantity, &row.unit, &row.price};
  return *texts[column];
}

}  // namespace

CopyLookDialog::CopyLookDialog(AppContext& context, const UnpackedCopy& copy, QWidget* parent)
    : QDialog(parent),
      context_(context),
      copy_(copy),
      documents_(DocumentsOf(copy)),
      stock_rows_(
          LoadOnHand(copy.Data(), copy.Opened(), copy.Opened().warehouses, GoodsView::kGroups)),
      lists_(ListsOf(copy)),
      documents_model_(CopiedDocumentColumns(),
                       {.count = [this] { return static_cast<int>(documents_.size()); },
                        .text =
                            [this](int row, int column) {
                              return CopiedDocumentText(documents_[static_cast<size_t>(row)],
                                                        column);
                            }}),
      stock_model_(
          {{.title = u"Товар"_s, .twips = 5000, .stretch = true},
           {.title = u"На складах"_s, .twips = 1600, .number = true},
           {.title = u"Ед."_s, .twips = 1000},
           {.title = u"Цена"_s, .twips = 1600, .number = true}},
          {.count = [this] { return static_cast<int>(stock_rows_.Rows().size()); },
           .text =
               [this](int row, int column) {
                 return StockRowText(stock_rows_.Rows()[static_cast<size_t>(row)], column);
               },
           .is_group =
               [this](int row) { return stock_rows_.Rows()[static_cast<size_t>(row)].IsGroup(); }}),
      lists_model_({{.title = u"Список"_s, .twips = 5000, .stretch = true},
                    {.title = u"Файл"_s, .twips = 4000}},
                   {.count = [this] { return static_cast<int>(lists_.size()); },
                    .text =
                        [this](int row, int column) {
                          const CopiedList& list = lists_[static_cast<size_t>(row)];
                          return column == 0 ? list.title : list.path;
                        }}),
      tabs_(new QTabWidget(this)),
      documents_list_(AddList(u"documents"_s, u"&Документы"_s, &documents_model_)),
      stock_(AddList(u"stock"_s, u"&Товары и остатки"_s, &stock_model_)),
      lists_list_(AddList(u"lists"_s, u"&Списки"_s, &lists_model_)),
      back_(NewCommand(this, u"back"_s, u"&Вернуть..."_s, look::IconName::kRefresh)),
      help_(NewHelpCommand(this, context.data)),
      cancel_(NewCommand(this, u"cancel"_s, u"&Закрыть"_s)) {
  setObjectName(u"copylook"_s);
  setWindowTitle(u"%1, какой она была %2"_s.arg(copy.Note().name,
                                                copy.Note().time.toString(u"dd.MM.yyyy HH:mm"_s)));
  tabs_->setObjectName(u"tabs"_s);
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addWidget(tabs_, 1);
  layout->addLayout(NewCommandRow({back_}, {help_, cancel_}));
  resize(105 * look::kGrid, 65 * look::kGrid);
  connect(tabs_, &QTabWidget::currentChanged, this, &CopyLookDialog::EnableCommands);
  connect(back_, &QPushButton::clicked, this, &CopyLookDialog::BringBack);
  connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
  EnableCommands();
  documents_list_->setFocus();
}

RecordList* CopyLookDialog::AddList(const QString& name, const QString& title, RecordModel* model) {
  auto* list = new RecordList(this);
  list->setObjectName(name);
  list->SetRecords(model);
  list->SetEmptyText(u"В этой копии здесь ничего нет."_s);
  list->SelectRow(model->rowCount() > 0 ? 0 : -1);
  connect(list, &RecordList::CurrentRowChanged, this, &CopyLookDialog::EnableCommands);
  tabs_->addTab(list, title);
  return list;
}

void CopyLookDialog::EnableCommands() {
  auto* list = qobject_cast<RecordList*>(tabs_->currentWidget());
  back_->setEnabled(list != stock_ && list->CurrentRow() >= 0);
}

void CopyLookDialog::BringBack() {
  if (context_.session.IsSeller()) {
    NotAllowed(this);
    return;
  }
  const bool document = tabs_->currentWidget() == documents_list_;
  const auto row =
      static_cast<size_t>(document ? documents_list_->CurrentRow() : lists_list_->CurrentRow());
  const QString target = NameOfTarget(context_.data, copy_);
  const QString question =
      document ? u"Вернуть накладную %1 в базу «%2»?"_s.arg(documents_[row].head.number, target)
               : u"Вернуть список «%1» в базу «%2»?"_s.arg(lists_[row].title, target);
  const QString consequence =
      document ? u"Если такой документ там есть, этот встанет на его место. Остатки на складе "
                 u"при этом не меняются: поправьте их сами. Прежнее останется в копии."_s
               : u"Он встанет на место нынешнего. Прежний останется в копии."_s;
  if (!AskYesNo(this, question, u"Машина времени"_s, DefaultAnswer::kNo, consequence)) return;
  const bool done = Guarded(this, [&] {
    if (document) {
      BringBackDocument(context_.data, copy_, documents_[row]);
    } else {
      BringBackList(context_.data, copy_, lists_[row]);
    }
  });
  if (!done) return;
  brought_back_ = true;
  accept();
}

}  // namespace kladez
