#include "screens/store/CheckDialog.h"

#include <QLabel>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

#include "books/check/Repairs.h"
#include "formats/DatabaseFiles.h"
#include "formats/Numbers.h"
#include "formats/TextLines.h"
#include "screens/store/FilePlaceDialog.h"
#include "ui/Help.h"
#include "ui/Hints.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Guard.h"
#include "ui/controls/LongWork.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

std::vector<Column> FindingColumns() {
  return {{.title = u"Где"_s, .twips = 3900},
          {.title = u"Что"_s, .twips = 6000, .stretch = true},
          {.title = u"Починка"_s, .twips = 1200}};
}

std::vector<Column> StockColumns() {
  std::vector<Column> columns = {{.title = u"Склад"_s, .twips = 1800},
                                 {.title = u"Товар"_s, .twips = 3000, .stretch = true}};
  for (const auto& title :
       {u"Занесено"_s, u"Приход"_s, u"Расход"_s, u"Перемещ."_s, u"На складе"_s, u"Расхождение"_s}) {
    columns.push_back({.title = title, .twips = 1300, .number = true});
  }
  return columns;
}

QString FindingText(const Finding& finding, int column) {
  switch (column) {
    case 0:
      return PlaceText(finding);
    case 1:
      return finding.text;
    default:
      return finding.repair == Repair::kNone ? QString() : u"есть"_s;
  }
}

QString StockText(const StockComparison& row, int column) {
  if (column == 0) return row.warehouse;
  if (column == 1) return row.name;
  const double numbers[] = {row.Opening(), row.receipts, row.shipments,
                            row.transfers, row.on_hand,  row.Difference()};
  return GeneralText(numbers[column - 2]);
}

QString Summary(const CheckResult& result) {
  const auto findings = static_cast<qsizetype>(result.findings.size());
  QString text = u"Файлов прочитано: %1, из них документов: %2. Замечаний: %3."_s.arg(result.files)
                     .arg(result.documents)
                     .arg(findings + result.untold);
  if (result.untold > 0) text += u" Показаны первые %1."_s.arg(findings);
  return text;
}

}  // namespace

CheckDialog::CheckDialog(AppContext& context, QWidget* parent)
    : QDialog(parent),
      context_(context),
      findings_model_(FindingColumns(),
                      {.count = [this] { return static_cast<int>(result_.findings.size()); },
                       .text =
                           [this](int row, int column) {
                             return FindingText(result_.findings[static_cast<size_t>(row)], column);
                           }}),
      stock_model_(StockColumns(),
                   {.count = [this] { return static_cast<int>(result_.stock.size()); },
                    .text =
                        [this](int row, int column) {
                          return StockText(result_.stock[static_cast<size_t>(row)], column);
                        }}),
      summary_(new QLabel(this)),
      tabs_(new QTabWidget(this)),
      findings_(new RecordList(this)),
      stock_(new RecordList(this)),
      mend_(NewCommand(this, u"mend"_s, u"&Починить..."_s, look::IconName::kChange)),
      place_(NewCommand(this, u"place"_s, u"Показать &место"_s, look::IconName::kOpen)),
      again_(NewCommand(this, u"again"_s, u"Проверить &снова"_s, look::IconName::kRefresh)),
      help_(NewHelpCommand(this, context.data)),
      cancel_(NewCommand(this, u"cancel"_s, u"&Закрыть"_s)) {
  setObjectName(u"check"_s);
  setWindowTitle(u"Проверка базы"_s);
  summary_->setObjectName(u"summary"_s);
  summary_->setTextFormat(Qt::PlainText);
  summary_->setWordWrap(true);
  tabs_->setObjectName(u"tabs"_s);
  findings_->setObjectName(u"findings"_s);
  findings_->SetRecords(&findings_model_);
  stock_->setObjectName(u"stock"_s);
  stock_->SetRecords(&stock_model_);
  stock_->SetEmptyText(u"Ни в документах, ни на складах товаров нет."_s);
  tabs_->addTab(findings_, u"За&мечания"_s);
  tabs_->addTab(stock_, u"Склад и &документы"_s);

  auto* ending = NewCommandRow({mend_, place_, again_}, {help_, cancel_});
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  auto* picture = new HintPicture(HintFor(u"check", u"Picture1"), {tabs_}, this);
  picture->setObjectName(u"Picture1"_s);
  auto* top = new QHBoxLayout;
  top->addWidget(summary_, 1);
  top->addWidget(picture);
  layout->addLayout(top);
  layout->addWidget(tabs_, 1);
  layout->addLayout(ending);
  resize(look::ByLetters(this, 110, 65));

  for (RecordList* list : {findings_, stock_}) {
    connect(list, &RecordList::EnterPressed, this, &CheckDialog::ShowPlace);
    connect(list, &RecordList::DoubleClicked, this, &CheckDialog::ShowPlace);
    connect(list, &RecordList::CurrentRowChanged, this, &CheckDialog::EnableCommands);
  }
  connect(tabs_, &QTabWidget::currentChanged, this, &CheckDialog::EnableCommands);
  connect(mend_, &QPushButton::clicked, this, &CheckDialog::Mend);
  connect(place_, &QPushButton::clicked, this, &CheckDialog::ShowPlace);
  connect(again_, &QPushButton::clicked, this, &CheckDialog::Run);
  connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
  EnableCommands();
}

void CheckDialog::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (!std::exchange(started_, true)) QTimer::singleShot(0, this, &CheckDialog::Run);
}

void CheckDialog::Run() {
  const int row = findings_->CurrentRow();
  findings_->SetEmptyText(u"Проверка не закончена. Нажмите «Проверить снова»."_s);
  result_ = {};
  Guarded(this, [&] {
    LongWork work(this, u"Проверяются файлы базы..."_s);
    result_ = CheckBooks(context_.data, context_.session.base_path, work.Told());
    findings_->SetEmptyText(u"Замечаний нет: книги в порядке."_s);
  });
  ShowResult(std::max(row, 0));
}

void CheckDialog::ShowResult(int row) {
  findings_model_.Reset();
  stock_model_.Reset();
  const int last = static_cast<int>(result_.findings.size()) - 1;
  findings_->SelectRow(std::min(row, last));
  stock_->SelectRow(result_.stock.empty() ? -1 : 0);
  summary_->setText(result_.files > 0 ? Summary(result_) : QString());
  EnableCommands();
  tabs_->currentWidget()->setFocus();
}

const Finding* CheckDialog::Selected() const {
  const int row = findings_->CurrentRow();
  const bool any = tabs_->currentWidget() == findings_ && row >= 0 &&
                   row < static_cast<int>(result_.findings.size());
  return any ? &result_.findings[static_cast<size_t>(row)] : nullptr;
}

std::optional<Finding> CheckDialog::SelectedPlace() const {
  if (const Finding* finding = Selected()) return *finding;
  const int row = stock_->CurrentRow();
  if (tabs_->currentWidget() != stock_ || row < 0) return std::nullopt;
  const StockComparison& stock = result_.stock[static_cast<size_t>(row)];
  return Finding{stock.warehouse + u'\\' + files::kLedger, 0,
                 u"Остаток товара «%1» на складе «%2»."_s.arg(stock.name, stock.warehouse)};
}

void CheckDialog::EnableCommands() {
  const Finding* finding = Selected();
  place_->setEnabled(SelectedPlace().has_value());
  mend_->setEnabled(finding != nullptr && finding->repair != Repair::kNone);
}

void CheckDialog::ShowPlace() {
  auto place = SelectedPlace();
  if (!place) return;
  Guarded(this, [&] {
    const QString& base = context_.session.base_path;
    if (Selected() == nullptr) {
      const QStringList lines = DecodeLines(context_.data.Read(base + place->file));
      const QString& name = result_.stock[static_cast<size_t>(stock_->CurrentRow())].name;
      place->line = static_cast<int>(lines.indexOf(name)) + 1;  // 0 where the ledger lacks it
    }
    FilePlaceDialog(context_.data, base, *place, this).exec();
  });
}

void CheckDialog::Mend() {
  const Finding* finding = Selected();
  if (finding == nullptr || finding->repair == Repair::kNone) return;
  if (context_.session.IsSeller()) {
    NotAllowed(this);
    return;
  }
  if (!AskYesNo(this, RepairQuestion(*finding), u"Починка"_s)) return;
  if (Guarded(this, [&] { MakeRepair(context_.data, context_.session, *finding); })) Run();
}

}  // namespace kladez
