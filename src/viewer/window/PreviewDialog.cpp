#include "viewer/window/PreviewDialog.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QPageSetupDialog>
#include <QPrinterInfo>
#include <QScreen>
#include <QVBoxLayout>

#include "viewer/page/PageName.h"
#include "viewer/window/Printing.h"
#include "viewer/window/ViewerLook.h"
#include "viewer/window/ViewerMessages.h"

namespace kladez::viewer {
using namespace Qt::StringLiterals;

namespace {

constexpr int kPanelWidth = 250;
constexpr int kMostCopies = 99;

}  // namespace

PreviewDialog::PreviewDialog(std::shared_ptr<const Page> page, QWidget* parent)
    : QDialog(parent), page_(std::move(page)) {
  setObjectName(u"PreviewDialog"_s);
  setWindowTitle(u"Печать: "_s + page_->title);
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  MakeControls();
  auto* left = new QVBoxLayout;
  left->addWidget(sheets_, 1);
  left->addLayout(MakeSheetBar());
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(look::kGap, look::kGap, look::kGap, look::kGap);
  row->setSpacing(2 * look::kGap);
  row->addLayout(left, 1);
  row->addLayout(MakePanel());
  FillPrinters();
  resize(look::kPreviewSize.boundedTo(screen()->availableSize() * look::kMostOfScreen));
  print_->setDefault(true);
  print_->setFocus();
}

PreviewDialog::~PreviewDialog() = default;

void PreviewDialog::MakeControls() {
  sheets_ = new SheetView(this);
  printers_ = new QComboBox(this);
  printers_->setObjectName(u"Printers"_s);
  printers_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  copies_ = new QSpinBox(this);
  copies_->setObjectName(u"Copies"_s);
  copies_->setRange(1, kMostCopies);
  range_ = new QLineEdit(this);
  range_->setObjectName(u"Range"_s);
  range_->setPlaceholderText(u"все"_s);
  range_->setToolTip(u"Например: 1-3, 5"_s);
  portrait_ = new QRadioButton(u"&Книжная"_s, this);
  portrait_->setObjectName(u"Portrait"_s);
  landscape_ = new QRadioButton(u"&Альбомная"_s, this);
  landscape_->setObjectName(u"Landscape"_s);
  fit_width_ = new QCheckBox(u"По &ширине листа"_s, this);
  fit_width_->setObjectName(u"FitWidth"_s);
  page_setup_ = new QPushButton(u"Па&раметры страницы…"_s, this);
  pdf_ = new QPushButton(u"&Сохранить в PDF…"_s, this);
  print_ = new QPushButton(u"&Печать"_s, this);
  print_->setObjectName(u"Print"_s);
  close_ = new QPushButton(u"&Закрыть"_s, this);
  scale_ = new QLabel(this);
  scale_->setObjectName(u"Scale"_s);
  proposal_ = new QLabel(u"Страница широкая: предложена альбомная ориентация."_s, this);
  proposal_->setObjectName(u"Proposal"_s);
  proposal_->setWordWrap(true);
  current_ = new QLabel(this);
  current_->setObjectName(u"CurrentSheet"_s);
  for (QPushButton* button : {page_setup_, pdf_, close_}) button->setAutoDefault(false);
  connect(printers_, &QComboBox::activated, this, &PreviewDialog::ChoosePrinter);
  connect(portrait_, &QRadioButton::clicked, this, &PreviewDialog::ChooseOrientation);
  connect(landscape_, &QRadioButton::clicked, this, &PreviewDialog::ChooseOrientation);
  connect(fit_width_, &QCheckBox::clicked, this, &PreviewDialog::ChooseOrientation);
  connect(page_setup_, &QPushButton::clicked, this, &PreviewDialog::SetUpPage);
  connect(pdf_, &QPushButton::clicked, this, &PreviewDialog::SavePdf);
  connect(print_, &QPushButton::clicked, this, &PreviewDialog::Print);
  connect(close_, &QPushButton::clicked, this, &QDialog::reject);
  connect(sheets_, &SheetView::CurrentSheetChanged, this, &PreviewDialog::ShowCurrentSheet);
}

QLayout* PreviewDialog::MakePanel() {
  auto* orientation = new QVBoxLayout;
  orientation->addWidget(portrait_);
  orientation->addWidget(landscape_);
  auto* form = new QFormLayout;
  form->setVerticalSpacing(look::kGap);
  form->setRowWrapPolicy(QFormLayout::WrapAllRows);
  form->addRow(u"Пр&интер:"_s, printers_);
  form->addRow(u"К&опий:"_s, copies_);
  form->addRow(u"&Листы:"_s, range_);
  form->addRow(u"Ориентация:"_s, orientation);
  form->addRow(proposal_);
  form->addRow(fit_width_);
  form->addRow(scale_);
  form->addRow(page_setup_);
  auto* commands = new QHBoxLayout;
  commands->addWidget(print_);
  commands->addWidget(close_);
  auto* panel = new QVBoxLayout;
  panel->addLayout(form);
  panel->addStretch(1);
  panel->addWidget(pdf_);
  panel->addLayout(commands);
  printers_->setFixedWidth(kPanelWidth);
  return panel;
}

QLayout* PreviewDialog::MakeSheetBar() {
  auto* previous = new QPushButton(u"‹"_s, this);
  previous->setToolTip(u"Предыдущий лист"_s);
  auto* next = new QPushButton(u"›"_s, this);
  next->setToolTip(u"Следующий лист"_s);
  auto* whole = new QCheckBox(u"Лист &целиком"_s, this);
  whole->setChecked(true);
  for (QPushButton* button : {previous, next}) {
    button->setAutoDefault(false);
    button->setFixedWidth(4 * look::kGap);
  }
  connect(previous, &QPushButton::clicked, this,
          [this] { sheets_->GoToSheet(sheets_->CurrentSheet() - 1); });
  connect(next, &QPushButton::clicked, this,
          [this] { sheets_->GoToSheet(sheets_->CurrentSheet() + 1); });
  connect(whole, &QCheckBox::toggled, sheets_, &SheetView::SetWholeSheet);
  auto* row = new QHBoxLayout;
  row->addStretch(1);
  row->addWidget(previous);
  row->addWidget(current_);
  row->addWidget(next);
  row->addStretch(1);
  row->addWidget(whole);
  return row;
}

void PreviewDialog::FillPrinters() {
  printers_->addItems(QPrinterInfo::availablePrinterNames());
  printers_->addItem(u"Файл PDF…"_s);
  const int preset = printers_->findText(QPrinterInfo::defaultPrinterName());
  printers_->setCurrentIndex(std::max(0, preset));
  ChoosePrinter();
}

// The last entry is no printer: with it, "Печать" writes a file.
void PreviewDialog::ChoosePrinter() {
  const bool is_file = printers_->currentIndex() == printers_->count() - 1;
  printer_ = is_file
                 ? nullptr
                 : std::make_unique<QPrinter>(QPrinterInfo::printerInfo(printers_->currentText()),
                                              QPrinter::HighResolution);
  copies_->setEnabled(!is_file);
  range_->setEnabled(!is_file);
}

bool PreviewDialog::Prepare() {
  WorkProgress work(u"Разбивка на листы…"_s, this);
  const bool is_planned = work.Run([this](const Progress& progress) {
    layout_ = std::make_unique<PaperLayout>(page_, progress);
  });
  if (!is_planned) return false;
  format_ = layout_->Propose(PaperFormat());
  is_proposed_landscape_ = format_.page.orientation() == QPageLayout::Landscape;
  return LayOut(format_);
}

bool PreviewDialog::LayOut(const PaperFormat& format) {
  WorkProgress work(u"Разбивка на листы…"_s, this);
  sheets_->ShowSheets(nullptr);
  const bool is_done =
      work.Run([&](const Progress& progress) { layout_->LayOut(format, progress); });
  format_ = format;
  sheets_->ShowSheets(is_done ? layout_.get() : nullptr);
  print_->setEnabled(is_done);
  pdf_->setEnabled(is_done);
  ShowFormat();
  return is_done;
}

void PreviewDialog::ShowFormat() {
  const bool is_landscape = format_.page.orientation() == QPageLayout::Landscape;
  (is_landscape ? landscape_ : portrait_)->setChecked(true);
  fit_width_->setChecked(format_.fit_width);
  scale_->setText(u"Масштаб: %1%"_s.arg(qRound(layout_->Scale() * 100)));
  proposal_->setVisible(is_proposed_landscape_ && is_landscape);
  ShowCurrentSheet();
}

void PreviewDialog::ShowCurrentSheet() {
  const int count = layout_ == nullptr ? 0 : layout_->SheetCount();
  current_->setText(count == 0 ? u"Листов нет: разбивка прервана"_s
                               : u"Лист %1 из %2"_s.arg(sheets_->CurrentSheet() + 1).arg(count));
}

void PreviewDialog::ChooseOrientation() {
  PaperFormat format = format_;
  format.page.setOrientation(landscape_->isChecked() ? QPageLayout::Landscape
                                                     : QPageLayout::Portrait);
  format.fit_width = fit_width_->isChecked();
  LayOut(format);
}

void PreviewDialog::SetUpPage() {
  QPrinter any_paper(QPrinter::HighResolution);
  QPrinter& printer = printer_ == nullptr ? any_paper : *printer_;
  printer.setPageLayout(format_.page);
  QPageSetupDialog dialog(&printer, this);
  dialog.setWindowTitle(u"Параметры страницы"_s);
  if (dialog.exec() == QDialog::Accepted) {
    PaperFormat format = format_;
    format.page = printer.pageLayout();
    format.page.setUnits(QPageLayout::Millimeter);
    LayOut(format);
  }
}

void PreviewDialog::Print() {
  if (printer_ == nullptr) {
    SavePdf();
    return;
  }
  const auto sheets = ParseSheets(range_->text(), layout_->SheetCount());
  if (!sheets.has_value()) {
    ShowError(this, u"Листы «%1» не поняты. Наберите номера от 1 до %2, например: 1-3, 5."_s
                        .arg(range_->text())
                        .arg(layout_->SheetCount()));
    range_->setFocus();
    return;
  }
  if (PrintSheets(*layout_, page_->title, *sheets, copies_->value(), *printer_, this)) accept();
}

void PreviewDialog::SavePdf() {
  const QString path = AskPdfPath(NameOf(*page_), this);
  if (!path.isEmpty()) SavePdfFile(*layout_, page_->title, path, this);
}

}  // namespace kladez::viewer
