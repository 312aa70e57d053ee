#include "screens/printing/CashOrderScreen.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QScopeGuard>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

#include "screens/printing/PrintFields.h"
#include "screens/printing/SheetText.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Fields.h"
#include "ui/controls/HintPicture.h"
#include "ui/controls/Look.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr double kMmOfInch = 25.4;
constexpr double kMarginMm = 5;
constexpr double kMagnified = 1.1;  // on the screen, where small print is hard to read

// The drawn form under the fields; where there is something to fill in is tinted.
class SheetView : public QWidget {
 public:
  SheetView(const SheetScale& scale, QWidget* parent) : QWidget(parent), scale_(scale) {
    const QSizeF sheet = kSheetSize * scale.Units();
    setFixedSize((sheet + QSizeF(2 * look::kMargin, 2 * look::kMargin)).toSize());
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    for (const SheetField& field : SheetFields()) {
      painter.fillRect(scale_.Map(field.place), look::kAccentLight);
    }
    painter.setRenderHint(QPainter::TextAntialiasing);
    PaintSheet(painter, scale_);
  }

 private:
  SheetScale scale_;
};

}  // namespace

CashOrderScreen::CashOrderScreen(AppContext& context, const PrintSource& source, QWidget* parent)
    : PrintScreen(context, source, u"PrihPrint"_s, parent) {
  setWindowTitle(u"Приходный кассовый ордер"_s);
  Build();
  Reload();
}

QGroupBox* CashOrderScreen::NewParametersFrame() {
  const PrintParameters start;
  Text45 = NewFigure(this, u"Text45"_s, start.percent);
  Text44 = NewFigure(this, u"Text44"_s, start.vat);
  Text43 = NewFigure(this, u"Text43"_s, start.sales_tax);
  WhenLeft(Text45, [this] {
    if (!Text45->isModified()) return;
    Text45->setModified(false);
    Reload();
  });
  ReloadWhenLeft(Text44);
  ReloadWhenLeft(Text43);
  auto* grid = new QGridLayout;
  FieldGrid fields(grid, 4);
  fields.Add(NewCaption(this, u"С&умма %:"_s, Text45), Text45, NewHint(u"Сумма", {Text45}));
  fields.Add(NewCaption(this, u"&Курс $:"_s, DecText1), DecText1,
             NewHint(u"Курс доллара", {DecText1}));
  fields.Add(NewCaption(this, u"Н&ДС:"_s, Text44), Text44, NewHint(u"НДС", {Text44}));
  fields.Add(NewCaption(this, u"Н&СП:"_s, Text43), Text43, NewHint(u"НСП", {Text43}));
  auto* frame = new QGroupBox(this);
  frame->setObjectName(u"Frame1"_s);
  frame->setLayout(grid);
  return frame;
}

QWidget* CashOrderScreen::NewSheet() {
  const SheetScale scale({look::kMargin, look::kMargin}, logicalDpiX() / kMmOfInch * kMagnified);
  auto* sheet = new SheetView(scale, this);
  QPalette palette = this->palette();
  palette.setColor(QPalette::Base, Qt::transparent);
  QWidget* before = nullptr;
  for (const SheetField& field : SheetFields()) {
    QWidget* editor = nullptr;
    if (field.pitch > 0) {
      editor = new SheetText(field.pitch * scale.Units(), sheet);
    } else {
      auto* line = new TextLine(sheet);
      line->setFrame(false);
      if (field.centred) line->setAlignment(Qt::AlignCenter);
      editor = line;
    }
    editor->setObjectName(field.name.toString());
    editor->setAccessibleName(field.told.toString());
    editor->setToolTip(field.told.toString());
    editor->setFont(scale.Font(field.points));
    editor->setPalette(palette);
    editor->setGeometry(scale.Map(field.place).toRect());
    fields_.insert(field.name.toString(), editor);
    if (before != nullptr) setTabOrder(before, editor);
    before = editor;
  }
  return sheet;
}

void CashOrderScreen::Build() {
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  auto* scroll = new QScrollArea(this);
  scroll->setWidget(NewSheet());
  scroll->setAlignment(Qt::AlignCenter);
  layout->addWidget(scroll, 1);
  Frame1 = NewParametersFrame();
  layout->addWidget(Frame1);
  Command2 = NewCommand(this, u"Command2"_s, u"&Печать"_s, look::IconName::kPrint);
  Command1 = NewCommand(this, u"Command1"_s, u"&Закрыть"_s);
  layout->addLayout(NewEndingRow(Command2, Command1));
  connect(Command2, &QPushButton::clicked, this, &CashOrderScreen::Print);
  connect(Command1, &QPushButton::clicked, this, &QDialog::reject);

  const QSize bars(scroll->verticalScrollBar()->sizeHint().width(), 0);
  const QSize rest = layout->sizeHint() - scroll->sizeHint();
  const QSize size(scroll->widget()->width() + 2 * look::kGrid + 2 * look::kMargin,
                   scroll->widget()->height() + rest.height() + 2 * look::kTight);
  resize((size + bars).boundedTo(screen()->availableSize() * 0.95));
  SetTabChain({Text45, DecText1, Text44, Text43, Command2, Command1});
  Command2->setFocus();
}

void CashOrderScreen::Load() {
  DecText1->setText(Context().settings.Read(settings::kRate));
  PrintParameters parameters;
  parameters.percent = Text45->text();
  parameters.rate = DecText1->text();
  parameters.vat = Text44->text();
  parameters.sales_tax = Text43->text();
  CashOrder order;
  // A failure on the way leaves what was filled on the screen.
  const auto show = qScopeGuard([&] { Show(order); });
  FillCashOrder(Source(), FirstFirm(), parameters, Context().session.currency_name, TheCurrency(),
                order);
}

void CashOrderScreen::SaveRates() {
  SettingsStore& settings = Context().settings;
  settings.Write(settings::kRate, DecText1->text());
  settings.Write(settings::kVat, Text44->text());
  settings.Write(settings::kSalesTax, Text43->text());
}

void CashOrderScreen::Show(const CashOrder& order) {
  for (const SheetField& field : SheetFields()) {
    const QString text = field.value != nullptr ? order.*field.value : QString();
    QWidget* editor = fields_.value(field.name.toString());
    if (auto* lines = qobject_cast<SheetText*>(editor)) {
      lines->SetText(text);
    } else {
      ShowText(static_cast<TextLine*>(editor), text);
    }
  }
}

SheetTexts CashOrderScreen::Texts() const {
  SheetTexts texts;
  for (auto field = fields_.begin(); field != fields_.end(); ++field) {
    const auto* lines = qobject_cast<const SheetText*>(field.value());
    texts.insert(field.key(), lines != nullptr
                                  ? lines->Text()
                                  : static_cast<const TextLine*>(field.value())->text());
  }
  return texts;
}

void CashOrderScreen::PaintOn(QPrinter& printer) const {
  QPainter painter(&printer);
  const QRectF page(QPointF(), printer.pageRect(QPrinter::DevicePixel).size());
  PaintCashOrder(painter, page, printer.resolution() / kMmOfInch, Texts());
}

void CashOrderScreen::Print() {
  if (!LeaveRates()) return;
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(windowTitle() + u' ' + Texts().value(u"Text5"_s));
  printer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                    QMarginsF(kMarginMm, kMarginMm, kMarginMm, kMarginMm),
                                    QPageLayout::Millimeter));
  QPrintPreviewDialog preview(&printer, this);
  preview.setWindowTitle(windowTitle());
  connect(&preview, &QPrintPreviewDialog::paintRequested, this,
          [this](QPrinter* page) { PaintOn(*page); });
  preview.exec();
}

}  // namespace kladez
