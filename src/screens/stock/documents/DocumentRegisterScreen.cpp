#include "screens/stock/documents/DocumentRegisterScreen.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

#include "formats/Dates.h"
#include "screens/stock/documents/DocumentEditor.h"
#include "screens/stock/documents/DocumentProperties.h"
#include "screens/stock/documents/RegisterFilterPanel.h"
#include "ui/Help.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Guard.h"
#include "ui/controls/ListSearch.h"
#include "ui/controls/LongWork.h"
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
      status_(new QLabel(this)),
      hidden_note_(new QLabel(this)) {
  setObjectName(screens_.register_name);
  setWindowTitle(screens_.register_caption);
  status_->setObjectName(u"status"_s);
  status_->setTextFormat(Qt::PlainText);
  hidden_note_->setObjectName(u"hidden_note"_s);
  hidden_note_->setTextFormat(Qt::RichText);
  hidden_note_->setWordWrap(true);
  connect(hidden_note_, &QLabel::linkActivated, this, &DocumentRegisterScreen::ShowHidden);
  BuildList();

  auto* layout = new QVBoxLayout(this);
  look::SetPanelMargins(layout);
  layout->addWidget(filter_);
  layout->addWidget(list_, 1);
  layout->addLayout(NewCommands());
  layout->addWidget(look::NewSeparator(this));
  layout->addWidget(status_);
  layout->addWidget(hidden_note_);

  connect(filter_, &RegisterFilterPanel::Changed, this, &DocumentRegisterScreen::Rebuild);
  setFocusProxy(list_);
  ShareListKeys(this, list_, journal_);
  SetHelpPage(this, context.data, u"documents.htm");
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
  list_ = new RecordList(this);
  list_->setObjectName(u"ListView1"_s);
  list_->SetRecords(new RecordModel(std::move(columns), std::move(source), this));
  list_->SetEmptyText(!HasWarehouse()
                          ? u"В базе нет ни одного склада. Создайте его в справочнике «Склады»."_s
                          : u"Документов за выбранное время нет. Нажмите «Добавить», чтобы занести "
                            u"новый документ, или "
                            u"выберите другое время в фильтре."_s);
  connect(list_, &RecordList::InsertPressed, this, &DocumentRegisterScreen::Add);
  connect(list_, &RecordList::EnterPressed, this, &DocumentRegisterScreen::Change);
  connect(list_, &RecordList::DoubleClicked, this, &DocumentRegisterScreen::Change);
  connect(list_, &RecordList::DeletePressed, this, &DocumentRegisterScreen::Delete);
}

QLayout* DocumentRegisterScreen::NewCommands() {
  using look::IconName;
  add_ = NewCommand(this, u"Command1"_s, u"&Добавить"_s, IconName::kAdd);
  change_ = NewCommand(this, u"Command2"_s, u"&Изменить"_s, IconName::kChange);
  remove_ = NewCommand(this, u"Command3"_s, u"&Удалить"_s, IconName::kRemove);
  view_ = NewCommand(this, u"Command8"_s, u"П&росмотр"_s);
  close_ = NewCommand(this, u"Command7"_s, u"&Закрыть"_s);
  add_->setEnabled(HasWarehouse());
  connect(add_, &QPushButton::clicked, this, &DocumentRegisterScreen::Add);
  connect(change_, &QPushButton::clicked, this, &DocumentRegisterScreen::Change);
  connect(remove_, &QPushButton::clicked, this, &DocumentRegisterScreen::Delete);
  connect(view_, &QPushButton::clicked, this, &DocumentRegisterScreen::View);
  connect(close_, &QPushButton::clicked, this, &QWidget::close);

  if (!screens_.has_journal) {
    return NewCommandRow({add_, change_, remove_, view_}, {close_});
  }
  // There is no journal to print: the command has its place and does nothing.
  journal_ = NewCommand(this, u"Command9"_s, u"Печать &журнала"_s, IconName::kPrint);
  return NewCommandRow({add_, change_, remove_, view_, journal_}, {close_});
}

bool DocumentRegisterScreen::HasWarehouse() const { return !context_.session.warehouses.isEmpty(); }

void DocumentRegisterScreen::Rebuild() {
  // Transfers lie beside the warehouses, whether there are any or not.
  const bool any = HasWarehouse() || !BookOf(screens_.kind).in_warehouse;
  hidden_note_->hide();
  const bool good = any && Guarded(this, [&] {
                      LongWork work(this, u"Читаются документы..."_s);
                      rows_.Load(filter_->Warehouse(), filter_->Filter(), context_.clock.Today(),
                                 filter_->Descending(), work.Told());
                    });
  // What could not be read is not shown under the new choice.
  if (!good) rows_.Clear();
  list_->Records()->Reset();
  list_->SelectRow(0);
  status_->setText(rows_.StatusText());
}

DocumentDraft::Place DocumentRegisterScreen::PlaceOfNew() const {
  return {context_.data, context_.session, screens_.kind, filter_->Warehouse()};
}

void DocumentRegisterScreen::Edit(DocumentDraft draft, int row) {
  DocumentEditor editor(context_, std::move(draft), this,
                        [this](const QString& number) { return rows_.CountOfNumber(number); });
  const bool saved = editor.exec() == QDialog::Accepted;
  Rebuild();
  if (saved) {
    const int now = rows_.RowOf(editor.Draft().File());
    if (now >= 0) row = now;
    if (now < 0) TellHidden(editor.Draft());
  }
  // A document that was last may have left the filter with its new date.
  if (row >= 0) {
    list_->SelectRow(std::min(row, static_cast<int>(rows_.Rows().size()) - 1));
  }
  list_->setFocus();
}

void DocumentRegisterScreen::TellHidden(const DocumentDraft& saved) {
  hidden_file_ = saved.File();
  hidden_date_ = ParseDate(saved.Head().date).value_or(QDate());
  hidden_note_->setText(
      u"Накладная %1 от %2 сохранена, фильтр её не показывает. <a href=\"show\">Показать</a>"_s.arg(
          saved.Head().number.left(look::kLongestText).toHtmlEscaped(), saved.Head().date));
  hidden_note_->show();
}

void DocumentRegisterScreen::ShowHidden() {
  const QString file = hidden_file_;
  filter_->ShowDay(hidden_date_);
  list_->SelectRow(std::max(0, rows_.RowOf(file)));
  list_->setFocus();
}

void DocumentRegisterScreen::Add() {
  if (!HasWarehouse()) return;
  Guarded(this, [&] {
    Edit(DocumentDraft::New(PlaceOfNew(), context_.clock.Today()), list_->CurrentRow());
  });
}

void DocumentRegisterScreen::Change() {
  const int row = list_->CurrentRow();
  if (row < 0) return;
  Guarded(this, [&] { Edit(DocumentDraft::Open(PlaceOfNew(), rows_.Rows()[row]), row); });
}

DocumentRegisterScreen::Deletion DocumentRegisterScreen::AskDeletion(const RegisterRow& row) {
  const DocumentHead& head = row.head;
  QString what = u"Накладная %1 от %2, %3, на сумму %4."_s.arg(
      head.number.left(look::kLongestText), head.date, head.party.left(look::kLongestText),
      head.*BookOf(screens_.kind).total);
  if (BookOf(screens_.kind).has_flag && !head.IsClosed()) {
    what += u"\nОна не проведена, остатки на складе не изменятся."_s;
    return AskDelete(this, u"Вы уверены?"_s, u"Удаление"_s, what) ? Deletion::kOnly
                                                                  : Deletion::kNone;
  }
  what += u'\n' + screens_.delete_closed_outcome;
  switch (
      AskYesNoCancel(this, screens_.delete_closed_question, u"Удаление"_s, what, Answer::kCancel)) {
    case Answer::kYes:
      return Deletion::kWithReversal;
    case Answer::kNo:
      return Deletion::kOnly;
    case Answer::kCancel:
      return Deletion::kNone;
  }
  Q_UNREACHABLE();
}

void DocumentRegisterScreen::Delete() {
  const int row = list_->CurrentRow();
  if (row < 0) return;
  const RegisterRow document = rows_.Rows()[row];
  const bool was_last = row + 1 == static_cast<int>(rows_.Rows().size());
  const Deletion deletion = AskDeletion(document);
  if (deletion == Deletion::kNone) return;
  const bool good = Guarded(this, [&] {
    DeleteDocument(context_.data, context_.session, screens_.kind, filter_->Warehouse(),
                   document.file, deletion == Deletion::kWithReversal);
  });
  if (!good) return;
  Rebuild();
  const int left = static_cast<int>(rows_.Rows().size());
  if (left > 1) list_->SelectRow(was_last ? left - 1 : row);
  list_->setFocus();
}

void DocumentRegisterScreen::View() {
  const int row = list_->CurrentRow();
  if (row < 0) return;
  Guarded(this, [&] {
    DocumentProperties(context_, screens_.kind, filter_->Warehouse(), rows_.Rows()[row].file, this)
        .exec();
  });
  list_->setFocus();
}

void DocumentRegisterScreen::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace kladez
