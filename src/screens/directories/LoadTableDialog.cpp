#include "screens/directories/LoadTableDialog.h"

#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QShortcut>
#include <QStandardPaths>
#include <QVBoxLayout>
#include <array>

#include "books/prices/SheetFile.h"
#include "screens/directories/TableColumnsPanel.h"
#include "ui/Help.h"
#include "ui/Hints.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Forms.h"
#include "ui/controls/Guard.h"
#include "ui/controls/Messages.h"
#include "ui/controls/TabOrder.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

struct FateRow {
  Fate fate;
  QStringView word;
  QStringView filter;
};
constexpr std::array<FateRow, 5> kFates = {{
    {Fate::kNew, u"новый", u"Новые товары"},
    {Fate::kChanged, u"изменится", u"Изменения"},
    {Fate::kSame, u"без изменений", u"Без изменений"},
    {Fate::kRefused, u"отказ", u"Отказы"},
    {Fate::kHeading, u"", u"Заголовки"},
}};

QString AskTablePath(QWidget* parent, const SettingsStore& settings) {
  QString folder = settings.Read(settings::kTableFolder);
  if (folder.isEmpty() || !QDir(folder).exists()) {
    folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  }
  QFileDialog dialog(parent, u"Открыть таблицу"_s, folder,
                     u"Таблицы (*.csv *.tsv *.txt);;Все файлы (*)"_s);
  dialog.setObjectName(u"open_table"_s);
  dialog.setFileMode(QFileDialog::ExistingFile);
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

}  // namespace

LoadTableDialog::LoadTableDialog(AppContext& context, const QString& warehouse, int price_list,
                                 QWidget* parent)
    : QDialog(parent),
      context_(context),
      bringer_(std::in_place, context.data, context.session),
      from_(new QLabel(this)),
      open_(NewCommand(this, u"open"_s, u"&Открыть файл…"_s, look::IconName::kOpen)),
      paste_(NewCommand(this, u"paste"_s, u"Из &буфера"_s, look::IconName::kPaste)),
      columns_(new TableColumnsPanel(context, warehouse, price_list, this)),
      filter_(new QComboBox(this)),
      model_(NewModel()),
      list_(new RecordList(this)),
      summary_(new QLabel(this)),
      load_(NewCommand(this, u"ok"_s, u"&Загрузить"_s)),
      cancel_(NewCommand(this, u"cancel"_s, u"О&тмена"_s)) {
  setObjectName(u"loadtable"_s);
  setWindowTitle(u"Загрузка таблицы"_s);
  from_->setObjectName(u"from"_s);
  summary_->setObjectName(u"summary"_s);
  for (QLabel* label : {from_, summary_}) {
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
  }
  filter_->setObjectName(u"filter"_s);
  filter_->addItem(u"Все строки"_s);
  for (const FateRow& row : kFates) filter_->addItem(row.filter.toString());
  list_->setObjectName(u"ListView1"_s);
  list_->SetRecords(model_);
  list_->SetEmptyText(
      u"Откройте файл CSV или скопируйте строки в программе таблиц и нажмите «Из буфера»."_s);
  BuildLayout();
  connect(open_, &QPushButton::clicked, this, &LoadTableDialog::OpenFile);
  connect(paste_, &QPushButton::clicked, this, &LoadTableDialog::Paste);
  connect(new QShortcut(QKeySequence::Paste, this), &QShortcut::activated, this,
          &LoadTableDialog::Paste);
  connect(columns_, &TableColumnsPanel::Changed, this, &LoadTableDialog::PlanAnew);
  connect(filter_, &QComboBox::activated, this, &LoadTableDialog::ShowRows);
  connect(load_, &QPushButton::clicked, this, &LoadTableDialog::Load);
  connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
  Take(u"Таблица ещё не выбрана."_s, {});
  open_->setFocus();
}

void LoadTableDialog::BuildLayout() {
  auto* hint = new HintPicture(HintFor(u"loadtable", u"Picture1"), {list_}, this);
  hint->setObjectName(u"Picture1"_s);
  auto* top = new QHBoxLayout;
  top->addWidget(open_);
  top->addWidget(paste_);
  top->addWidget(from_, 1);
  top->addWidget(hint);
  auto* foot = new QHBoxLayout;
  foot->addWidget(summary_, 1);
  foot->addWidget(NewLabel(u"&Показать:"_s, filter_, this));
  foot->addWidget(filter_);
  auto* ending = NewEndingRow(load_, cancel_);
  ending->insertWidget(0, NewHelpCommand(this, context_.data));
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addLayout(top);
  layout->addWidget(columns_);
  layout->addWidget(list_, 1);
  layout->addLayout(foot);
  layout->addLayout(ending);
  resize(look::ByLetters(this, 130, 80));
  TabByEye(this);
}

RecordModel* LoadTableDialog::NewModel() {
  const auto fate = [this](int row) { return plan_.rows[shown_[static_cast<size_t>(row)]].fate; };
  return new RecordModel({{.title = u"Строка"_s, .twips = 800, .number = true},
                          {.title = u"Что будет"_s, .twips = 1300},
                          {.title = u"Наименование"_s, .twips = 3100, .stretch = true},
                          {.title = u"Ед.изм."_s, .twips = 800},
                          {.title = u"Цена закупа"_s, .twips = 1200, .number = true},
                          {.title = u"Цена реализации"_s, .twips = 1500, .number = true},
                          {.title = u"Что изменится или почему отказано"_s, .twips = 4500}},
                         {.count = [this] { return static_cast<int>(shown_.size()); },
                          .text = [this](int row, int column) { return Text(row, column); },
                          .is_group = [fate](int row) { return fate(row) == Fate::kHeading; },
                          .is_amiss = [fate](int row) { return fate(row) == Fate::kRefused; }},
                         this);
}

QString LoadTableDialog::Text(int at, int column) const {
  const BroughtRow& row = plan_.rows[shown_[static_cast<size_t>(at)]];
  const QString cells[] = {QString::number(row.number),
                           kFates[static_cast<size_t>(row.fate)].word.toString(),
                           row.goods.name,
                           row.goods.unit,
                           row.goods.price,
                           row.sale,
                           row.told};
  return cells[column];
}

void LoadTableDialog::OpenFile() {
  const QString path = AskTablePath(this, context_.settings);
  if (path.isEmpty()) return;
  Guarded(this, [&] {
    Take(path, ReadSheetFile(path));
    context_.settings.Write(settings::kTableFolder, QFileInfo(path).absolutePath());
  });
}

void LoadTableDialog::Paste() {
  const Sheet sheet = ReadSheet(QGuiApplication::clipboard()->text());
  if (sheet.rows.empty()) {
    ShowMessage(this, u"В буфере обмена нет таблицы. Скопируйте строки в программе таблиц."_s);
    return;
  }
  Take(u"Буфер обмена"_s, sheet);
}

void LoadTableDialog::Take(const QString& from, const Sheet& sheet) {
  sheet_ = sheet;
  from_->setText(sheet.is_cut ? from + u" (прочитано не всё: таблица слишком велика)"_s : from);
  columns_->Show(sheet_, GuessLayout(sheet_, columns_->Plain()), bringer_->Groups());
  PlanAnew();
  if (load_->isEnabled()) load_->setFocus();  // Enter is the next step
}

void LoadTableDialog::PlanAnew() {
  plan_ = {};
  const BringChoice choice = columns_->Choice();
  if (choice.layout[GoodsField::kName] != kNoColumn) {
    Guarded(this, [&] { plan_ = bringer_->Plan(sheet_, choice); });
  }
  summary_->setText(Summary());
  load_->setEnabled(plan_.ChangesAnything());
  ShowRows();
}

void LoadTableDialog::ShowRows() {
  shown_.clear();
  const int filter = filter_->currentIndex();
  for (size_t i = 0; i < plan_.rows.size(); ++i) {
    const bool shown =
        filter == 0 || plan_.rows[i].fate == kFates[static_cast<size_t>(filter) - 1].fate;
    if (shown) shown_.push_back(i);
  }
  model_->Reset();
  list_->SelectRow(shown_.empty() ? -1 : 0);
}

QString LoadTableDialog::Summary() const {
  if (sheet_.rows.empty()) return {};
  const BringChoice choice = columns_->Choice();
  if (choice.layout[GoodsField::kName] == kNoColumn) {
    return u"Выберите, в каком столбце наименования."_s;
  }
  QString text = u"Новых товаров: %1, изменится: %2, без изменений: %3, отказов: %4."_s
                     .arg(plan_.Count(Fate::kNew))
                     .arg(plan_.Count(Fate::kChanged))
                     .arg(plan_.Count(Fate::kSame))
                     .arg(plan_.Count(Fate::kRefused));
  if (choice.layout[GoodsField::kSale] != kNoColumn && !choice.TakesSale()) {
    text += u" Цены реализации не загружаются: выберите прайс-лист."_s;
  }
  return text;
}

void LoadTableDialog::Load() {
  if (Guarded(this, [this] { bringer_->Save(plan_); })) {
    accept();
    return;
  }
  // What somebody else has saved meanwhile is compared anew.
  Guarded(this, [this] {
    bringer_.emplace(context_.data, context_.session);
    PlanAnew();
  });
}

bool LoadTable(AppContext& context, QWidget* parent, const QString& warehouse, int price_list) {
  if (context.session.IsSeller()) {
    NotAllowed(parent);
    return false;
  }
  bool loaded = false;
  Guarded(parent, [&] {
    loaded = LoadTableDialog(context, warehouse, price_list, parent).exec() == QDialog::Accepted;
  });
  return loaded;
}

}  // namespace kladez
