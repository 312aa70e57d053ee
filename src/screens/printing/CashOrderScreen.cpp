#include "screens/printing/CashOrderScreen.h"

#include <QCheckBox>
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

using P = PrintParameters;
constexpr ParameterField kOrderParameters[] = {
    {u"Text45", u"С&умма %:", u"Сумма", &P::percent},
    {u"DecText1", u"&Курс $:", u"Курс доллара", &P::rate, &settings::kRate},
    {u"Text44", u"Н&ДС:", u"НДС", &P::vat, &settings::kVat},
    {u"Text43", u"Н&СП:", u"НСП", &P::sales_tax, &settings::kSalesTax},
};

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
      painter.fillRect(scale_.Map(field.place), look::kAccentLight.light);
    }
    painter.setRenderHint(QPainter::TextAntialiasing);
    PaintSheet(painter, scale_);
  }

 private:
  SheetScale scale_;
};

}  // namespace

CashOrderScreen::CashOrderScreen(AppContext& context, const PrintSource& source, QWidget* parent)
    : PrintDialog(context, source, u"PrihPrint"_s, parent),
      parameters_(*this, kOrderParameters, Start(),
                  {.reload = [this] { Reload(); }, .recount = [this] { Reload(); }}),
      with_discount_(NewKeptTick(u"with_discount"_s, u"С&о скидкой"_s, settings::kOrderDiscount,
                                 [this] { Reload(); })),
      notes_(*this, parameters_) {
  setWindowTitle(u"Приходный кассовый ордер"_s);
  Build();
  Reload();
}

QWidget* CashOrderScreen::NewSheet() {
  const SheetScale scale({look::kMargin, look::kMargin}, logicalDpiX() / kMmOfInch * kMagnified);
  auto* sheet = new SheetView(scale, this);
  QPalette palette = look::PaperPalette();
  palette.setColor(QPalette::Base, Qt::transparent);
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
  }
  return sheet;
}

QWidget* CashOrderScreen::NewParametersFrame() {
  auto* frame = new QGroupBox(this);
  frame->setObjectName(u"Frame1"_s);
  QGridLayout* grid = parameters_.NewGrid(4);
  grid->addLayout(SideBySide({with_discount_, NewHint(u"Со скидкой", {with_discount_})}), 1, 0, 1,
                  -1, Qt::AlignLeft);
  frame->setLayout(grid);
  return frame;
}

void CashOrderScreen::Build() {
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  auto* scroll = new QScrollArea(this);
  scroll->setWidget(NewSheet());
  scroll->setAlignment(Qt::AlignCenter);
  layout->addWidget(scroll, 1);
  layout->addWidget(NewParametersFrame());
  layout->addWidget(notes_.WordsNote());
  auto* print = NewCommand(this, u"Command2"_s, u"&Печать"_s, look::IconName::kPrint);
  auto* close = NewCommand(this, u"Command1"_s, u"&Закрыть"_s);
  layout->addLayout(notes_.NewRows());
  layout->addLayout(NewEndingRow(print, close));
  connect(print, &QPushButton::clicked, this, &CashOrderScreen::Print);
  connect(close, &QPushButton::clicked, this, &QDialog::reject);

  const QSize bars(scroll->verticalScrollBar()->sizeHint().width(), 0);
  const QSize rest = layout->sizeHint() - scroll->sizeHint();
  const QSize size(scroll->widget()->width() + 2 * look::kGrid + 2 * look::kMargin,
                   scroll->widget()->height() + rest.height() + 2 * look::kTight);
  resize((size + bars).boundedTo(screen()->availableSize() * 0.95));
  print->setFocus();
}

void CashOrderScreen::Reload() {
  Attempt([this] { Load(); });
}

void CashOrderScreen::Load() {
  parameters_.Load();
  notes_.Clear();
  CashOrder order;
  // A failure on the way leaves what was filled on the screen.
  const auto show = qScopeGuard([&] { Show(order); });
  PrintParameters parameters = parameters_.Read();
  const auto discount_of = [this](bool with) {
    return DiscountOf(Source(), with ? OrderDiscount::kOfDocument : OrderDiscount::kNone);
  };
  parameters.discount = discount_of(with_discount_->isChecked());
  FillCashOrder(Source(), FirstFirm(), parameters, Context().session.currency_name,
                ReadCurrencyForms(), order);
  notes_.Show({.total = Source().total,
               .parameters = parameters,
               .due = order.sum,
               .waybill_discount = discount_of(true)},
              true);
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
  if (!LeaveFields()) return;
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
