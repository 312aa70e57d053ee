#include "screens/stock/documents/DocumentProperties.h"

#include <QAction>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QMenu>

#include "formats/Numbers.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Fields.h"
#include "ui/controls/Forms.h"
#include "ui/controls/Guard.h"
#include "ui/controls/RecordList.h"

namespace kladez {

using namespace Qt::StringLiterals;

DocumentProperties::DocumentProperties(AppContext& context, DocumentKind kind,
                                       const QString& warehouse, const QString& file,
                                       QWidget* parent)
    : QDialog(parent), context_(context), screens_(ScreensOf(kind)), warehouse_(warehouse) {
  Document document =
      ReadDocument(kind, context.data.Read(DocumentPath(context.session, kind, warehouse, file)));
  head_ = document.head;
  // The prints are given these figures as they stand here.
  for (QString* figure : {&head_.sum, &head_.discount, &head_.net_sum}) {
    *figure = ToNumberOr(*figure);
  }
  for (DocumentLine& line : document.lines) lines_.push_back(WithAmount(std::move(line)));
  setObjectName(screens_.properties_name);
  setWindowTitle(screens_.properties_caption + head_.number.left(look::kLongestText));

  list_ = new RecordList(this);
  list_->setObjectName(u"ListView1"_s);
  list_->SetRecords(
      NewLineModel(screens_.properties_columns, context.session.IsSeller(), lines_, this));
  list_->SetEmptyText(u"В документе нет товаров."_s);
  list_->SelectRow(0);

  close_ = NewCommand(this, u"close"_s, u"&Закрыть"_s);
  connect(close_, &QPushButton::clicked, this, &QDialog::accept);
  auto* commands = new QHBoxLayout;
  commands->setSpacing(look::kGrid);
  if (screens_.prints_from_properties) AddPrints(commands);
  commands->addStretch();
  commands->addWidget(close_);
  close_->setDefault(true);

  auto* fields = new QHBoxLayout;
  fields->addStretch(1);
  fields->addLayout(NewFields(head_));
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addWidget(list_, 1);
  layout->addLayout(fields);
  layout->addWidget(look::NewSeparator(this));
  layout->addLayout(commands);
  // A shipment has eight columns.
  resize(look::ByLetters(this, screens_.HasDiscount() ? 124 : 96, 56));
}

TextLine* DocumentProperties::AddField(QFormLayout* form, const QString& caption,
                                       const QString& name, const QString& text) {
  auto* field = new TextLine(this);
  field->setObjectName(name);
  field->setText(text);
  MakeReadOnly(field);
  field->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  field->setFixedWidth(look::ByLetters(field, 16));
  form->addRow(NewLabel(caption, field, this), field);
  return field;
}

QFormLayout* DocumentProperties::NewFields(const DocumentHead& head) {
  auto* form = new QFormLayout;
  form->setSpacing(look::kTight);
  form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
  sum_ = AddField(form, screens_.properties_sum_caption, u"Text4"_s, head.sum);
  if (screens_.HasDiscount()) {
    discount_ = AddField(form, u"Скидка %:"_s, u"Text3"_s, head.discount);
    net_sum_ = AddField(form, u"Сумма со скидкой:"_s, u"net_sum"_s, head.net_sum);
  }
  if (BookOf(screens_.kind).has_flag) {
    closed_ = AddField(form, u"Счет закрыт:"_s, u"closed"_s, head.closed);
  }
  return form;
}

void DocumentProperties::AddPrints(QHBoxLayout* row) {
  print_ = NewCommand(this, u"print"_s, u"&Печать"_s, look::IconName::kPrint);
  row->addWidget(print_);
  // The same commands stand in the menu of the list.
  const bool one = screens_.prints.size() == 1;
  auto* menu = new QMenu(this);
  for (const PrintCommand& command : screens_.prints) {
    auto* action = new QAction(one ? u"&Печать"_s : command.caption, this);
    action->setObjectName(command.name);
    connect(action, &QAction::triggered, this, [this, &command] {
      Document document{head_, {}};
      for (const DraftLine& line : lines_) document.lines.push_back(line.line);
      Guarded(this, [&] {
        command.run(context_, PrintSourceOf(screens_.kind, warehouse_, std::move(document)), this);
      });
    });
    list_->addAction(action);
    menu->addAction(action);
  }
  if (one) {
    connect(print_, &QPushButton::clicked, menu->actions().constFirst(), &QAction::trigger);
  } else {
    print_->setMenu(menu);
  }
}

}  // namespace kladez
