#include "screens/stock/documents/DocumentRegisterScreen.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

#include "screens/stock/documents/DocumentEditor.h"
#include "screens/stock/documents/DocumentProperties.h"
#include "screens/stock/documents/RegisterFilterPanel.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Guard.h"
#include "ui/controls/ListSearch.h"
#include "ui/controls/RecordList.h"

namespace kladez {

using namespace Qt::StringLiterals;

DocumentRegisterScreen::DocumentRegisterScreen(AppContext& context, DocumentKind kind,
                                               QWidget* parent)
    : QWidget(parent),
      context_(context),
      screens_(ScreensOf(kind)),
      rows_(context.data, context.session, kind),
      filter_(new RegisterFilterPanel(context, screens_, this)),
      status_(new QLabel(this)) {
  setObjectName(screens_.register_name);
  setWindowTitle(screens_.register_caption);
  status_->setObjectName(u"status"_s);
  status_->setTextFormat(Qt::PlainText);
  BuildList();

  auto* layout = new QVBoxLayout(this);
  look::SetPanelMargins(layout);
  layout->addWidget(filter_);
  layout->addWidget(ListView1, 1);
  layout->addLayout(NewCommands());
  layout->addWidget(look::NewSeparator(this));
  layout->addWidget(status_);

  connect(filter_, &RegisterFilterPanel::Changed, this, &DocumentRegisterScreen::Rebuild);
  setFocusProxy(ListView1);
  ShareListKeys(this, ListView1, Command9);
  Rebuild();
}

void DocumentRegisterScreen::BuildList() {
  std::vector<Column> columns;
  for (const HeadColumn& column : screens_.register_columns) columns.push_back(column.column);
  RowSource source;
  source.count = [this] { return static_cast<int>(rows_.Rows().size()); };
  source.text = [this](int row, int column) {
    const RegisterRow& document = rows_.Rows()[row];
    const auto field = screens_.register_columns[column].field;
    return field == nullptr ? document.file : document.head.*field;
  };
  ListView1 = new RecordList(this);
  ListView1->setObjectName(u"ListView1"_s);
  ListView1->SetRecords(new RecordModel(std::move(columns), std::move(source), this));
  ListView1->SetEmptyText(
      !HasWarehouse() ? u"В базе нет ни одного склада. Создайте его в справочнике «Склады»."_s
                      : u"Документов за выбранное время нет. Нажмите «Добавить», чтобы занести "
                        u"новый документ, или "
                        u"выберите другое время в фильтре."_s);
  connect(ListView1, &RecordList::InsertPressed, this, &DocumentRegisterScreen::Add);
  connect(ListView1, &RecordList::EnterPressed, this, &DocumentRegisterScreen::Change);
  connect(ListView1, &RecordList::DoubleClicked, this, &DocumentRegisterScreen::Change);
  connect(ListView1, &RecordList::DeletePressed, this, &DocumentRegisterScreen::Delete);
}

QLayout* DocumentRegisterScreen::NewCommands() {
  using look::IconName;
  Command1 = NewCommand(this, u"Command1"_s, u"&Добавить"_s, IconName::kAdd);
  Command2 = NewCommand(this, u"Command2"_s, u"&Изменить"_s, IconName::kChange);
  Command3 = NewCommand(this, u"Command3"_s, u"&Удалить"_s, IconName::kRemove);
  Command8 = NewCommand(this, u"Command8"_s, u"П&росмотр"_s);
  Command7 = NewCommand(this, u"Command7"_s, u"&Закрыть"_s);
  Command1->setEnabled(HasWarehouse());
  connect(Command1, &QPushButton::clicked, this, &DocumentRegisterScreen::Add);
  connect(Command2, &QPushButton::clicked, this, &DocumentRegisterScreen::Change);
  connect(Command3, &QPushButton::clicked, this, &DocumentRegisterScreen::Delete);
  connect(Command8, &QPushButton::clicked, this, &DocumentRegisterScreen::View);
  connect(Command7, &QPushButton::clicked, this, &QWidget::close);

  if (!screens_.has_journal) {
    return NewCommandRow({Command1, Command2, Command3, Command8}, {Command7});
  }
  // There is no journal to print: the command has its place and does nothing.
  Command9 = NewCommand(this, u"Command9"_s, u"Печать &журнала"_s, IconName::kPrint);
  return NewCommandRow({Command1, Command2, Command3, Command8, Command9}, {Command7});
}

bool DocumentRegisterScreen::HasWarehouse() const { return !context_.session.warehouses.isEmpty(); }

void DocumentRegisterScreen::Rebuild() {
  // Transfers lie beside the warehouses, whether there are any or not.
  const bool any = HasWarehouse() || !BookOf(screens_.kind).in_warehouse;
  const bool good = any && Guarded(this, [&] {
                      rows_.Load(filter_->Warehouse(), filter_->Filter(), context_.clock.Today(),
                                 filter_->Descending());
                    });
  // What could not be read is not shown under the new choice.
  if (!good) rows_.Clear();
  ListView1->Records()->Reset();
  ListView1->SelectRow(0);
  status_->setText(rows_.StatusText());
}

DocumentDraft::Place DocumentRegisterScreen::ThePlace() const {
  return {context_.data, context_.session, screens_.kind, filter_->Warehouse()};
}

void DocumentRegisterScreen::Edit(DocumentDraft draft, int row) {
  const QString file = draft.File();
  const bool is_new = draft.IsNew();
  DocumentEditor* editor = NewEditor(context_, std::move(draft), this);
  const bool saved = editor->exec() == QDialog::Accepted;
  editor->deleteLater();
  Rebuild();
  if (is_new && saved) row = rows_.RowOf(file);
  // A document that was last may have left the filter with its new date.
  if (row >= 0) {
    ListView1->SelectRow(std::min(row, static_cast<int>(rows_.Rows().size()) - 1));
  }
  ListView1->setFocus();
}

void DocumentRegisterScreen::Add() {
  if (!HasWarehouse()) return;
  Guarded(this, [&] {
    Edit(DocumentDraft::New(ThePlace(), context_.clock.Today()), ListView1->CurrentRow());
  });
}

void DocumentRegisterScreen::Change() {
  const int row = ListView1->CurrentRow();
  if (row < 0) return;
  Guarded(this, [&] { Edit(DocumentDraft::Open(ThePlace(), rows_.Rows()[row]), row); });
}

bool DocumentRegisterScreen::AskDeletion(const RegisterRow& row, bool* reverse) {
  *reverse = false;
  if (BookOf(screens_.kind).has_flag && !row.head.IsClosed()) {
    return AskYesNo(this, u"Вы уверены?"_s, u"Удаление"_s);
  }
  const Answer answer = AskYesNoCancel(this, screens_.delete_closed_question, u"Удаление"_s);
  *reverse = answer == Answer::kYes;
  return answer != Answer::kCancel;
}

void DocumentRegisterScreen::Delete() {
  const int row = ListView1->CurrentRow();
  if (row < 0) return;
  const RegisterRow document = rows_.Rows()[row];
  const bool was_last = row + 1 == static_cast<int>(rows_.Rows().size());
  bool reverse = false;
  if (!AskDeletion(document, &reverse)) return;
  const bool good = Guarded(this, [&] {
    DeleteDocument(context_.data, context_.session, screens_.kind, filter_->Warehouse(),
                   document.file, reverse);
  });
  if (!good) return;
  Rebuild();
  const int left = static_cast<int>(rows_.Rows().size());
  if (left > 1) ListView1->SelectRow(was_last ? left - 1 : row);
  ListView1->setFocus();
}

void DocumentRegisterScreen::View() {
  const int row = ListView1->CurrentRow();
  if (row < 0) return;
  Guarded(this, [&] {
    DocumentProperties* properties =
        NewProperties(context_, screens_.kind, filter_->Warehouse(), rows_.Rows()[row].file, this);
    properties->exec();
    properties->deleteLater();
  });
  ListView1->setFocus();
}

void DocumentRegisterScreen::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace kladez
