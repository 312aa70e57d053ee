#include "screens/store/TimeMachineDialog.h"

#include <QCalendarWidget>
#include <QLabel>
#include <QPushButton>
#include <QTextCharFormat>
#include <QVBoxLayout>
#include <algorithm>

#include "books/copies/UnpackedCopy.h"
#include "screens/store/CopyLookDialog.h"
#include "screens/store/CopyOptionsDialog.h"
#include "ui/Help.h"
#include "ui/Hints.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Forms.h"
#include "ui/controls/Guard.h"
#include "ui/controls/LongWork.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// Copies of more files are compared when somebody asks for it.
constexpr qint64 kComparedAtOnce = 3000;

std::vector<Column> TimeColumns() {
  return {{.title = u"Когда"_s, .twips = 2000, .sample = u"00.00.0000 00:00"_s},
          {.title = u"Почему сделана"_s, .twips = 4000, .stretch = true},
          {.title = u"Документов"_s, .twips = 1500, .number = true},
          {.title = u"Товаров"_s, .twips = 1300, .number = true},
          {.title = u"КБ"_s, .twips = 900, .number = true}};
}

std::vector<Column> ChangeColumns() {
  return {{.title = u"Что изменилось с прошлой копии"_s, .twips = 5000, .stretch = true},
          {.title = u"Было"_s, .twips = 1800},
          {.title = u"Стало"_s, .twips = 1800}};
}

// "812 (+3)": how many, and how many more than before.
QString CountText(qint64 count, std::optional<qint64> before) {
  const QString text = QString::number(count);
  const qint64 more = before ? count - *before : 0;
  if (more == 0) return text;
  return text + u" ("_s + (more > 0 ? u"+"_s : u"−"_s) + QString::number(std::abs(more)) + u')';
}

}  // namespace

TimeMachineDialog::TimeMachineDialog(AppContext& context, QWidget* parent)
    : QDialog(parent),
      context_(context),
      copies_model_(TimeColumns(),
                    {.count = [this] { return static_cast<int>(copies_.size()); },
                     .text = [this](int row, int column) { return CopyText(row, column); }}),
      changes_model_(
          ChangeColumns(),
          {.count = [this] { return static_cast<int>(changes_.size()); },
           .text =
               [this](int row, int column) {
                 const CopyChange& change = changes_[static_cast<size_t>(row)];
                 return column == 0 ? change.what : column == 1 ? change.was : change.now;
               }}),
      base_(new TextChoice({}, this)),
      calendar_(new QCalendarWidget(this)),
      list_(new RecordList(this)),
      changes_list_(new RecordList(this)),
      room_(NewLabel({}, nullptr, this)),
      look_(NewCommand(this, u"look"_s, u"&Посмотреть..."_s, look::IconName::kOpen)),
      whole_(NewCommand(this, u"whole"_s, u"Вернуть &всю базу"_s, look::IconName::kRefresh)),
      compare_(NewCommand(this, u"compare"_s, u"&Сравнить"_s)),
      make_(NewCommand(this, u"make"_s, u"Сделать &копию"_s, look::IconName::kCopy)),
      settings_(NewCommand(this, u"settings"_s, u"&Настройка..."_s)),
      help_(NewHelpCommand(this, context.data)),
      cancel_(NewCommand(this, u"cancel"_s, u"&Закрыть"_s)) {
  setObjectName(u"timemachine"_s);
  setWindowTitle(u"Машина времени"_s);
  base_->setObjectName(u"base"_s);
  calendar_->setObjectName(u"calendar"_s);
  calendar_->setLocale(QLocale(QLocale::Russian, QLocale::Russia));
  calendar_->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  calendar_->setAccessibleName(u"Дни, за которые есть копии"_s);
  list_->setObjectName(u"copies"_s);
  list_->SetRecords(&copies_model_);
  list_->SetEmptyText(u"Копий ещё нет. Первая появится перед первым изменением дня."_s);
  changes_list_->setObjectName(u"changes"_s);
  changes_list_->SetRecords(&changes_model_);
  room_->setObjectName(u"room"_s);
  room_->setWordWrap(true);
  auto* top = new QHBoxLayout;
  top->addWidget(NewLabel(u"&База:"_s, base_, this));
  top->addWidget(base_, 1);
  auto* picture = new HintPicture(HintFor(u"timemachine", u"Picture1"), {list_}, this);
  picture->setObjectName(u"Picture1"_s);
  top->addWidget(picture);
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addLayout(top);
  layout->addLayout(NewLists(), 1);
  layout->addWidget(room_);
  layout->addLayout(NewCommandRow({look_, whole_, compare_, make_, settings_}, {help_, cancel_}));
  resize(118 * look::kGrid, 75 * look::kGrid);
  Connect();
  Load();
}

QLayout* TimeMachineDialog::NewLists() {
  auto* upper = new QHBoxLayout;
  upper->addWidget(calendar_);
  upper->addWidget(list_, 1);
  auto* lists = new QVBoxLayout;
  lists->addLayout(upper, 3);
  lists->addWidget(changes_list_, 2);
  return lists;
}

void TimeMachineDialog::Connect() {
  connect(base_, &QComboBox::currentIndexChanged, this, &TimeMachineDialog::ShowBase);
  connect(calendar_, &QCalendarWidget::clicked, this, &TimeMachineDialog::GoToDay);
  connect(calendar_, &QCalendarWidget::activated, this, &TimeMachineDialog::GoToDay);
  connect(list_, &RecordList::CurrentRowChanged, this, &TimeMachineDialog::ShowCopy);
  connect(list_, &RecordList::EnterPressed, this, &TimeMachineDialog::Look);
  connect(list_, &RecordList::DoubleClicked, this, &TimeMachineDialog::Look);
  connect(look_, &QPushButton::clicked, this, &TimeMachineDialog::Look);
  connect(whole_, &QPushButton::clicked, this, &TimeMachineDialog::BringBack);
  connect(compare_, &QPushButton::clicked, this, &TimeMachineDialog::ShowChanges);
  connect(make_, &QPushButton::clicked, this, &TimeMachineDialog::MakeCopy);
  connect(settings_, &QPushButton::clicked, this, &TimeMachineDialog::SetOptions);
  connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
}

// All copies, and the Databases that have some or are there.
void TimeMachineDialog::Load() {
  const QString chosen = numbers_.value(base_->currentIndex());
  Guarded(this, [this] {
    if (context_.keeping != nullptr) context_.keeping->Copies().Wait();
    all_ = ListCopies(CopiesFolder(context_.data));
  });
  std::map<QString, QString> names;
  for (const StoredCopy& copy : all_) names[copy.note.base] = copy.note.name;
  Guarded(this, [&] {
    for (const CatalogueEntry& base : ListDatabases(context_.data)) {
      if (IsPlainTreePath(base.descriptor.path)) {
        names[base.descriptor.path.chopped(1)] = base.descriptor.name;
      }
    }
  });
  const QSignalBlocker quiet(base_);
  base_->clear();
  numbers_.clear();
  for (const auto& [number, name] : names) {
    numbers_.append(number);
    const QString text = u"%1 (%2)"_s.arg(name.left(look::kLongestText), number);
    base_->addItem(text, text);
  }
  const QString open = context_.session.base_path.chopped(context_.session.IsOpen() ? 1 : 0);
  base_->setCurrentIndex(
      static_cast<int>(std::max<qsizetype>(numbers_.indexOf(chosen.isEmpty() ? open : chosen), 0)));
  ShowBase();
}

void TimeMachineDialog::ShowBase() {
  const QString number = numbers_.value(base_->currentIndex());
  copies_.clear();
  qint64 size = 0;
  for (const StoredCopy& copy : all_) {
    if (copy.note.base == number) copies_.insert(copies_.begin(), copy);
    size += copy.size;
  }
  copies_model_.Reset();
  MarkDays();
  list_->SelectRow(copies_.empty() ? -1 : 0);
  QString text = u"Все копии занимают %1 МБ."_s.arg((size + 500'000) / 1'000'000);
  if (!all_.empty()) {
    text += u" Когда места не хватит, первой уйдёт самая старая, от %1."_s.arg(
        all_.front().note.time.toString(u"dd.MM.yyyy"_s));
  }
  room_->setText(text);
  make_->setEnabled(context_.keeping != nullptr && !number.isEmpty());
  ShowCopy();
  list_->setFocus();
}

void TimeMachineDialog::MarkDays() {
  calendar_->setDateTextFormat({}, {});
  QTextCharFormat marked;
  marked.setFontWeight(QFont::Bold);
  marked.setBackground(QColor(look::kAccentLight));
  for (const StoredCopy& copy : copies_) {
    calendar_->setDateTextFormat(copy.note.time.date(), marked);
  }
}

// The day's last copy, or the one before the day.
void TimeMachineDialog::GoToDay() {
  for (size_t row = 0; row < copies_.size(); ++row) {
    if (copies_[row].note.time.date() > calendar_->selectedDate()) continue;
    list_->SelectRow(static_cast<int>(row));
    return;
  }
}

const StoredCopy* TimeMachineDialog::Selected() const {
  const int row = list_->CurrentRow();
  return row >= 0 && row < static_cast<int>(copies_.size()) ? &copies_[static_cast<size_t>(row)]
                                                            : nullptr;
}

const StoredCopy* TimeMachineDialog::Before(const StoredCopy* copy) const {
  return copy == nullptr || copy == &copies_.back() ? nullptr : copy + 1;
}

QString TimeMachineDialog::CopyText(int row, int column) const {
  const StoredCopy& copy = copies_[static_cast<size_t>(row)];
  const StoredCopy* before = Before(&copy);
  const auto count = [&](qint64 CopyNote::*number) {
    return CountText(copy.note.*number,
                     before ? std::optional(before->note.*number) : std::nullopt);
  };
  switch (column) {
    case 0:
      return copy.note.time.toString(u"dd.MM.yyyy HH:mm"_s);
    case 1:
      return copy.note.why;
    case 2:
      return count(&CopyNote::documents);
    case 3:
      return count(&CopyNote::goods);
    default:
      return QString::number((copy.size + 1023) / 1024);
  }
}

void TimeMachineDialog::ShowCopy() {
  const StoredCopy* copy = Selected();
  for (QPushButton* command : {look_, whole_}) command->setEnabled(copy != nullptr);
  const StoredCopy* before = Before(copy);
  compare_->setEnabled(before != nullptr);
  changes_.clear();
  changes_model_.Reset();
  if (copy != nullptr) {
    const QSignalBlocker quiet(calendar_);
    calendar_->setSelectedDate(copy->note.time.date());
  }
  changes_list_->SetEmptyText(copy == nullptr ? QString()
                              : before == nullptr ? u"Это первая из оставшихся копий."_s
                                                  : u"Нажмите «Сравнить»."_s);
  if (before != nullptr && copy->note.files + before->note.files <= kComparedAtOnce) ShowChanges();
}

void TimeMachineDialog::ShowChanges() {
  const StoredCopy* copy = Selected();
  const StoredCopy* before = Before(copy);
  if (before == nullptr) return;
  Guarded(this, [&] {
    LongWork work(this, u"Сравниваются копии..."_s);
    changes_ = CompareCopies(*before, *copy, work.Told());
    changes_list_->SetEmptyText(u"Документы, товары и остатки те же, что в прошлой копии."_s);
  });
  changes_model_.Reset();
}

bool TimeMachineDialog::MayChange() {
  if (context_.session.IsSeller()) NotAllowed(this);
  return !context_.session.IsSeller();
}

void TimeMachineDialog::Look() {
  const StoredCopy* copy = Selected();
  if (copy == nullptr) return;
  Guarded(this, [&] {
    std::unique_ptr<UnpackedCopy> unpacked;
    {
      LongWork work(this, u"Распаковывается копия..."_s);
      unpacked = std::make_unique<UnpackedCopy>(*copy, work.Told());
    }
    CopyLookDialog dialog(context_, *unpacked, this);
    dialog.exec();
    brought_back_ = brought_back_ || dialog.HasBroughtBack();
  });
  Load();
}

void TimeMachineDialog::BringBack() {
  const StoredCopy* copy = Selected();
  if (copy == nullptr || !MayChange()) return;
  const QString name = copy->note.name;
  const QString time = copy->note.time.toString(u"dd.MM.yyyy HH:mm"_s);
  if (!AskYesNo(this, u"Вернуть базу «%1», какой она была %2?"_s.arg(name, time), windowTitle(),
                DefaultAnswer::kYes,
                u"Она появится новой базой в списке; нынешние базы останутся как есть."_s)) {
    return;
  }
  const bool done = Guarded(this, [&] {
    LongWork work(this, u"Возвращается база..."_s);
    const Progress progress = work.Told();
    const UnpackedCopy unpacked(*copy, progress.Piece(0, 0.5));
    BringBackWhole(context_.data, unpacked, progress.Piece(0.5, 1));
  });
  Load();
  if (done) {
    room_->setText(u"База «%1 (копия)» добавлена в список баз данных."_s.arg(name));
  }
}

void TimeMachineDialog::MakeCopy() {
  const QString number = numbers_.value(base_->currentIndex());
  Guarded(this, [&] {
    for (const CatalogueEntry& base : ListDatabases(context_.data)) {
      if (base.descriptor.path == number + u'\\') {
        context_.keeping->Copies().Make(base, u"по просьбе"_s);
      }
    }
  });
  Load();
}

void TimeMachineDialog::SetOptions() {
  if (!MayChange()) return;
  CopyOptionsDialog(context_, this).exec();
}

}  // namespace kladez
