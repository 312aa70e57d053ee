#include "screens/stock/documents/DocumentRegisterScreen.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

#include "formats/Dates.h"
#include "formats/Numbers.h"
#include "screens/stock/documents/CopyDialog.h"
#include "screens/stock/documents/DocumentEditor.h"
#include "screens/stock/documents/DocumentProperties.h"
#include "screens/stock/documents/JournalPrinting.h"
#include "screens/stock/documents/RegisterFilterPanel.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Fields.h"
#include "ui/controls/FollowedFiles.h"
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
      shown_(kind, rows_.Rows()),
      filter_(new RegisterFilterPanel(context, screens_, this)),
      pause_(new QTimer(this)) {
  setObjectName(screens_.register_name);
  setWindowTitle(screens_.register_caption);
  BuildList();

  auto* layout = new QVBoxLayout(this);
  look::SetPanelMargins(layout);
  layout->addWidget(filter_);
  layout->addWidget(list_, 1);
  layout->addLayout(NewCommands());
  layout->addWidget(look::NewSeparator(this));
  BuildFoot(layout);

  constexpr int kPauseMs = 300;
  pause_->setSingleShot(true);
  pause_->setInterval(kPauseMs);
  connect(pause_, &QTimer::timeout, this, &DocumentRegisterScreen::SearchGoods);
  WireFilter(filter_->SearchField(), list_, [this](const QString&) { Search(); });
  connect(filter_, &RegisterFilterPanel::Changed, this, &DocumentRegisterScreen::Rebuild);
  setFocusProxy(list_);
  ShareListKeys(this, list_, journal_);
  new FollowedFiles(
      this,
      {.is_current = [this] { return !loaded_ || !rows_.MayHaveChanged(filter_->Warehouse()); },
       .is_changed = {},
       .read_again = [this] { ReadAgain(); }});
  Rebuild();
}

void DocumentRegisterScreen::BuildFoot(QBoxLayout* layout) {
  const auto new_label = [this](const QString& name, Qt::TextFormat format) {
    auto* label = new QLabel(this);
    label->setObjectName(name);
    label->setTextFormat(format);
    if (format == Qt::PlainText) return label;
    label->setWordWrap(true);
    connect(label, &QLabel::linkActivated, this, &DocumentRegisterScreen::FollowLink);
    return label;
  };
  status_ = new_label(u"status"_s, Qt::PlainText);
  selection_ = new_label(u"selection"_s, Qt::PlainText);
  search_note_ = new_label(u"search_note"_s, Qt::RichText);
  hidden_note_ = new_label(u"hidden_note"_s, Qt::RichText);
  auto* sums = new QHBoxLayout;
  sums->addWidget(status_);
  sums->addStretch();
  sums->addWidget(selection_);
  layout->addLayout(sums);
  layout->addWidget(search_note_);
  layout->addWidget(hidden_note_);
}

void DocumentRegisterScreen::BuildList() {
  std::vector<Column> columns;
  for (const HeadColumn& column : screens_.register_columns) columns.push_back(column.column);
  RowSource source;
  source.count = [this] { return shown_.Count(); };
  source.text = [this](int row, int column) {
    const RegisterRow& document = shown_.Row(row);
    const auto field = screens_.register_columns[column].field;
    return field == nullptr ? document.file : document.head.*field;
  };
  list_ = new RecordList(this);
  list_->setObjectName(u"ListView1"_s);
  list_->SetRecords(new RecordModel(std::move(columns), std::move(source), this));
  connect(list_, &RecordList::InsertPressed, this, &DocumentRegisterScreen::Add);
  connect(list_, &RecordList::EnterPressed, this, &DocumentRegisterScreen::Change);
  connect(list_, &RecordList::DoubleClicked, this, &DocumentRegisterScreen::Change);
  connect(list_, &RecordList::DeletePressed, this, &DocumentRegisterScreen::Delete);
  list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  connect(list_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &DocumentRegisterScreen::ShowSelection);
  list_->header()->setSectionsClickable(true);
  connect(list_->header(), &QHeaderView::sectionClicked, this, &DocumentRegisterScreen::SortBy);
}

QLayout* DocumentRegisterScreen::NewCommands() {
  using look::IconName;
  add_ = NewCommand(this, u"Command1"_s, u"&Добавить"_s, IconName::kAdd);
  change_ = NewCommand(this, u"Command2"_s, u"&Изменить"_s, IconName::kChange);
  remove_ = NewCommand(this, u"Command3"_s, u"&Удалить"_s, IconName::kRemove);
  copy_ = NewCommand(this, u"copy_document"_s, u"Копи&я"_s, IconName::kCopy);
  view_ = NewCommand(this, u"Command8"_s, u"П&росмотр"_s);
  close_ = NewCommand(this, u"Command7"_s, u"&Закрыть"_s);
  add_->setEnabled(HasWarehouse());
  copy_->setEnabled(HasWarehouse());
  connect(add_, &QPushButton::clicked, this, &DocumentRegisterScreen::Add);
  connect(change_, &QPushButton::clicked, this, &DocumentRegisterScreen::Change);
  connect(remove_, &QPushButton::clicked, this, &DocumentRegisterScreen::Delete);
  connect(copy_, &QPushButton::clicked, this, &DocumentRegisterScreen::Copy);
  connect(view_, &QPushButton::clicked, this, &DocumentRegisterScreen::View);
  connect(close_, &QPushButton::clicked, this, &QWidget::close);

  if (!screens_.has_journal) {
    return NewCommandRow({add_, change_, remove_, copy_, view_}, {close_});
  }
  journal_ = NewCommand(this, u"Command9"_s, u"Печать &журнала"_s, IconName::kPrint);
  connect(journal_, &QPushButton::clicked, this,
          [this] { PrintJournal(context_, screens_, *filter_, shown_, this); });
  return NewCommandRow({add_, change_, remove_, copy_, view_, journal_}, {close_});
}

bool DocumentRegisterScreen::HasWarehouse() const { return !context_.session.warehouses.isEmpty(); }

void DocumentRegisterScreen::Rebuild() {
  // Transfers lie beside the warehouses, whether there are any or not.
  const bool any = HasWarehouse() || !BookOf(screens_.kind).in_warehouse;
  hidden_note_->hide();
  const bool good = any && Guarded(this, [&] { Load(); });
  loaded_ = good;
  // What could not be read is not shown under the new choice.
  if (!good) rows_.Clear();
  shown_.TakeRows();
  // The order of the files is what was chosen last.
  const bool descending = filter_->Descending();
  if (descending != was_descending_) shown_.Sort({});
  was_descending_ = descending;
  ShowRows();
  list_->SelectRow(0);
  SearchGoods();
}

void DocumentRegisterScreen::Search() {
  if (filter_->SearchField()->text().isEmpty()) goods_left_out_ = false;
  const int row = list_->CurrentRow();
  const QString file = row < 0 ? QString() : shown_.Row(row).file;
  shown_.Search(filter_->SearchField()->text(), goods_ ? &*goods_ : nullptr);
  ShowRows();
  list_->SelectRow(std::max(0, shown_.PlaceOf(file)));
  pause_->start();
}

// The heads are there at once, the lines of thousands of documents are not.
void DocumentRegisterScreen::SearchGoods() {
  pause_->stop();
  if (goods_ || goods_left_out_ || filter_->SearchField()->text().trimmed().isEmpty()) return;
  goods_left_out_ = !Guarded(this, [&] {
    LongWork work(this, u"Просматриваются товары в документах..."_s);
    goods_ = DocumentGoods(context_.data, screens_.kind,
                           DocumentDirectory(context_.session, screens_.kind, filter_->Warehouse()),
                           rows_.Rows(), work.Told());
  });
  Search();
}

// From the first to the last, from the last to the first, then as the register has them.
void DocumentRegisterScreen::SortBy(int column) {
  if (column >= static_cast<int>(screens_.register_columns.size())) return;
  const auto field = screens_.register_columns[column].field;
  if (field == nullptr) return;
  RegisterOrder order{.field = field};
  if (shown_.Order() == order) {
    order.descending = true;
  } else if (shown_.Order().field == field) {
    order = {};
  }
  const int row = list_->CurrentRow();
  const QString file = row < 0 ? QString() : shown_.Row(row).file;
  shown_.Sort(order);
  ShowRows();
  list_->SelectRow(shown_.PlaceOf(file));
}

void DocumentRegisterScreen::ShowRows() {
  list_->Records()->Reset();
  const RegisterOrder& order = shown_.Order();
  QHeaderView* header = list_->header();
  header->setSortIndicatorShown(order.field != nullptr);
  for (int i = 0; i < header->count() && order.field != nullptr; ++i) {
    if (screens_.register_columns[i].field != order.field) continue;
    header->setSortIndicator(i, order.descending ? Qt::DescendingOrder : Qt::AscendingOrder);
  }
  status_->setText(shown_.StatusText());
  ShowSelection();
  const bool seeks = !filter_->SearchField()->text().trimmed().isEmpty();
  const bool none = seeks && shown_.Count() == 0;
  list_->SetEmptyText(EmptyText());
  filter_->SearchField()->SetFault(none ? u"не найдено"_s : QString());
  QStringList notes;
  if (none && !rows_.FirstDay().isNull()) {
    notes << u"Среди выбранных документов ничего не найдено. "
             u"<a href=\"all\">Искать среди всех</a>"_s;
  }
  if (seeks && goods_left_out_) notes << u"В товарах не искали: чтение документов прервано."_s;
  search_note_->setText(notes.join(u' '));
  search_note_->setVisible(!notes.isEmpty());
}

QString DocumentRegisterScreen::EmptyText() const {
  if (!HasWarehouse())
    return u"В базе нет ни одного склада. Создайте его в справочнике «Склады»."_s;
  if (!filter_->SearchField()->text().isEmpty()) return u"Таких документов не найдено."_s;
  return u"Документов за выбранное время нет. Нажмите «Добавить», чтобы занести новый документ, "
         u"или "
         u"выберите другое время в фильтре."_s;
}

void DocumentRegisterScreen::ShowSelection() {
  const std::vector<int> selected = list_->SelectedRows();
  selection_->setVisible(selected.size() > 1);
  if (selected.size() <= 1) return;
  const RegisterSums sums = shown_.Sums(selected);
  QString text = u"Выделено: %1, сумма: %2"_s.arg(sums.count).arg(FormatMoney(sums.sum));
  if (screens_.HasDiscount()) text += u", со скидкой: %1"_s.arg(FormatMoney(sums.net_sum));
  selection_->setText(text);
}

void DocumentRegisterScreen::Load() {
  goods_.reset();
  goods_left_out_ = false;
  LongWork work(this, u"Читаются документы..."_s);
  rows_.Load(filter_->Warehouse(), filter_->Filter(), context_.clock.Today(), filter_->Descending(),
             work.Told());
}

void DocumentRegisterScreen::ReadAgain() {
  const int row = list_->CurrentRow();
  const QString file = row < 0 ? QString() : shown_.Row(row).file;
  Load();
  shown_.TakeRows();
  ShowRows();
  const int now = shown_.PlaceOf(file);
  list_->SelectRow(std::min(now < 0 ? std::max(row, 0) : now, list_->Records()->rowCount() - 1));
  SearchGoods();
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
    const int now = shown_.PlaceOf(editor.Draft().File());
    if (now >= 0) row = now;
    if (now < 0) TellHidden(editor.Draft());
  }
  // A document that was last may have left the filter with its new date.
  if (row >= 0) {
    list_->SelectRow(std::min(row, shown_.Count() - 1));
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

void DocumentRegisterScreen::FollowLink(const QString& link) {
  if (link == u"all") {
    filter_->ShowRange(rows_.FirstDay(), rows_.LastDay());
    return;
  }
  const QString file = hidden_file_;
  {
    const QSignalBlocker quiet(filter_->SearchField());
    filter_->SearchField()->clear();
  }
  shown_.Search({}, nullptr);
  filter_->ShowDay(hidden_date_);
  list_->SelectRow(std::max(0, shown_.PlaceOf(file)));
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
  Guarded(this, [&] { Edit(DocumentDraft::Open(PlaceOfNew(), shown_.Row(row)), row); });
}

void DocumentRegisterScreen::Copy() {
  const int row = list_->CurrentRow();
  if (row < 0 || !HasWarehouse()) return;
  Guarded(this, [&] {
    const DocumentDraft document = DocumentDraft::Open(PlaceOfNew(), shown_.Row(row));
    CopyDialog dialog(context_, document, this);
    if (dialog.exec() != QDialog::Accepted) return;
    Edit(CopyOf(document, dialog.Choice(), context_.clock.Today()), row);
  });
  list_->setFocus();
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
  const RegisterRow document = shown_.Row(row);
  const bool was_last = row + 1 == shown_.Count();
  const Deletion deletion = AskDeletion(document);
  if (deletion == Deletion::kNone) return;
  const bool good = Guarded(this, [&] {
    DeleteDocument(context_.data, context_.session, screens_.kind, filter_->Warehouse(),
                   document.file, deletion == Deletion::kWithReversal);
  });
  if (!good) return;
  Rebuild();
  const int left = shown_.Count();
  if (left > 1) list_->SelectRow(was_last ? left - 1 : row);
  list_->setFocus();
}

void DocumentRegisterScreen::View() {
  const int row = list_->CurrentRow();
  if (row < 0) return;
  Guarded(this, [&] {
    DocumentProperties(context_, screens_.kind, filter_->Warehouse(), shown_.Row(row).file, this)
        .exec();
  });
  list_->setFocus();
}

void DocumentRegisterScreen::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
  } else if (event->modifiers() == Qt::ControlModifier && event->key() == Qt::Key_D) {
    copy_->click();
  } else if (event->modifiers() == Qt::ControlModifier && event->key() >= Qt::Key_1 &&
             event->key() <= Qt::Key_9) {
    SortBy(event->key() - Qt::Key_1);
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace kladez
