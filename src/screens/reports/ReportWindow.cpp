#include "screens/reports/ReportWindow.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "books/reports/ReportPage.h"
#include "screens/reports/ChartWindow.h"
#include "screens/reports/DocumentListDialog.h"
#include "screens/reports/ReportDialog.h"
#include "screens/stock/documents/OpenDocument.h"
#include "ui/Help.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Forms.h"
#include "ui/controls/Guard.h"
#include "ui/controls/ListSearch.h"
#include "ui/controls/LongWork.h"
#include "ui/controls/RecordList.h"
#include "ui/controls/TabOrder.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr int kTextTwips = 800;
constexpr int kTwipsOfPercent = 100;  // of the page's width
constexpr int kNumberTwips = 1150;
constexpr int kNameTwips = 3100;

QLabel* NewLine(const QString& name, const QString& text, QWidget* parent) {
  QLabel* line = NewLabel(text, nullptr, parent);
  line->setObjectName(name);
  line->setWordWrap(true);
  return line;
}

}  // namespace

ReportWindow::ReportWindow(AppContext& context, TableReport report, const ReportScope& scope,
                           std::function<void(QWidget* over)> print, QWidget* parent,
                           const ReportWindowTexts& texts)
    : QDialog(parent),
      context_(context),
      report_(std::move(report)),
      scope_(scope),
      print_page_(std::move(print)),
      documents_(NewCommand(this, u"documents"_s, u"&Документы"_s, look::IconName::kOpen)),
      chart_(NewCommand(this, u"chart"_s, u"&График"_s, look::IconName::kChart)),
      print_(NewCommand(this, u"print"_s, u"&Печать"_s, look::IconName::kPrint)),
      close_(NewCommand(this, u"close"_s, u"&Закрыть"_s)) {
  setObjectName(texts.name.toString());
  setWindowTitle(report_.heading);
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  BuildList();
  list_->SetEmptyText(texts.empty.toString());
  const QString period = PeriodLine(scope.period);
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addWidget(NewLine(
      u"scope"_s,
      scope.warehouse.left(look::kLongestText) + (period.isEmpty() ? QString() : u". "_s + period),
      this));
  layout->addWidget(list_, 1);
  layout->addWidget(NewLine(u"total"_s, SumsText(report_.total), this));
  for (const TableReport::Cells& cells : report_.beside) {
    layout->addWidget(NewLine(u"beside"_s, SumsText(cells), this));
  }
  if (!report_.note.isEmpty()) {
    QLabel* note = NewLine(u"note"_s, report_.note, this);
    look::MakeWarning(note);
    layout->addWidget(note);
  }
  layout->addWidget(look::NewSeparator(this));
  auto* help = NewHelpCommand(this, context.data);
  layout->addLayout(NewCommandRow({documents_, chart_, print_}, {help, close_}));
  chart_->setVisible(!report_.charted.empty() && report_.rows > 0);
  resize(look::ByLetters(this, 112, 68));
  TabByEye(this);
  ShareListKeys(this, list_, print_);

  connect(list_, &RecordList::EnterPressed, this, &ReportWindow::OpenDocuments);
  connect(list_, &RecordList::DoubleClicked, this, &ReportWindow::OpenDocuments);
  connect(documents_, &QPushButton::clicked, this, &ReportWindow::OpenDocuments);
  connect(chart_, &QPushButton::clicked, this, &ReportWindow::ShowChart);
  connect(print_, &QPushButton::clicked, this, &ReportWindow::Print);
  connect(close_, &QPushButton::clicked, this, &QDialog::reject);
  list_->SelectRow(0);
  list_->setFocus();
}

void ReportWindow::BuildList() {
  const size_t names = report_.names;
  std::vector<Column> columns;
  for (size_t i = 0; i < report_.columns.size(); ++i) {
    const ReportColumn& column = report_.columns[i];
    const bool text = column.kind == FigureKind::kText;
    columns.push_back({.title = column.title,
                       .twips = i == names ? kNameTwips
                                : text     ? std::max(kTextTwips, column.width * kTwipsOfPercent)
                                           : kNumberTwips,
                       .number = !text,
                       .stretch = i == names,
                       .total = column.kind != FigureKind::kPercent &&
                                column.kind != FigureKind::kPrice && !text});
  }
  list_ = new RecordList(this);
  list_->setObjectName(u"ListView1"_s);
  list_->SetRecords(new RecordModel(std::move(columns),
                                    {.count = [this] { return static_cast<int>(report_.rows); },
                                     .text =
                                         [this](int row, int column) {
                                           return report_.cell(static_cast<size_t>(row),
                                                               static_cast<size_t>(column));
                                         }},
                                    this));
}

QString ReportWindow::SumsText(const TableReport::Cells& cells) const {
  QStringList parts = {cells.front()};
  for (size_t i = 1; i < cells.size(); ++i) {
    if (!cells[i].isEmpty()) parts << report_.columns[i].title + u' ' + cells[i];
  }
  return parts.join(u"     "_s);
}

void ReportWindow::OpenDocuments() {
  const int row = list_->CurrentRow();
  if (row < 0) return;
  const DocumentsWanted wanted = report_.documents(static_cast<size_t>(row));
  std::vector<FoundDocument> found;
  const bool good = Guarded(this, [&] {
    LongWork work(this, u"Читаются документы..."_s);
    found = FindDocuments(context_.data, context_.session, scope_, wanted, work.Told());
  });
  if (!good) return;
  if (found.empty()) {
    ShowInformation(this, u"За выбранное время у этой строки документов нет."_s);
  } else if (found.size() == 1) {
    OpenDocument(context_, found.front().document, this);
  } else {
    const QString name = report_.cell(static_cast<size_t>(row), 0).left(look::kLongestText);
    DocumentListDialog(context_, name, std::move(found), this).exec();
  }
  list_->setFocus();
}

void ReportWindow::ShowChart() { ChartWindow(context_, ChartOf(report_), this).exec(); }

void ReportWindow::Print() {
  Guarded(this, [this] {
    print_page_(this);
    context_.print_outs.OpenPrintOut(kReportPage.toString());
  });
}

}  // namespace kladez
