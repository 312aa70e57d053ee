#include "screens/printing/PricePrintScreen.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "books/printing/InputError.h"
#include "formats/Dates.h"
#include "formats/PartyFile.h"
#include "ui/Help.h"
#include "ui/Hints.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Fields.h"
#include "ui/controls/FoldButton.h"
#include "ui/controls/Guard.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// What the head proposes: the first of the own firms.
Party FirstFirm(const AppContext& context) {
  const auto bytes = context.data.ReadIfAny(context.session.Path(PartyPath(PartyKind::kFirm)));
  const auto firms = ReadParties(PartyKind::kFirm, bytes.value_or(QByteArray()));
  return firms.empty() ? Party() : firms.front();
}

std::optional<QString> TextIf(const QCheckBox* check, const QLineEdit* text) {
  return check->isChecked() ? std::optional(text->text()) : std::nullopt;
}

constexpr int kTextLetters = 15;  // wide is a field of free text

}  // namespace

PricePrintScreen::PricePrintScreen(AppContext& context, const PricePrintSource& source,
                                   QWidget* parent)
    : QDialog(parent), context_(context), source_(source) {
  setObjectName(u"pricePrint"_s);
  setWindowTitle(u"Параметры печати прайса"_s);
  Command1 = NewCommand(this, u"Command1"_s, u"OK"_s);
  Command2 = NewCommand(this, u"Command2"_s, u"&Отмена"_s);
  BuildLayout();
  FollowGroups();
  Command1->setFocus();
  connect(Check1, &QCheckBox::toggled, this, &PricePrintScreen::FollowGroups);
  connect(Check14, &QCheckBox::toggled, this, &PricePrintScreen::FollowGroups);
  connect(Command1, &QPushButton::clicked, this, &PricePrintScreen::Print);
  connect(Command2, &QPushButton::clicked, this, &QDialog::reject);
}

QCheckBox* PricePrintScreen::NewCheck(const char16_t* name, const QString& caption, bool on) {
  auto* check = new QCheckBox(caption, this);
  check->setObjectName(QString::fromUtf16(name));
  check->setChecked(on);
  return check;
}

TextLineNumber* PricePrintScreen::NewNumber(const QString& name, const QString& value, int length) {
  auto* field = new TextLineNumber(this);
  field->setObjectName(name);
  field->setMaxLength(length);
  field->setText(value);
  field->setFixedWidth(8 * look::kGrid);
  return field;
}

PricePrintScreen::Frame PricePrintScreen::NewFrame(const QString& title) {
  auto* box = new QGroupBox(title, this);
  auto* row = new QHBoxLayout(box);
  look::SetPanelMargins(row);
  auto* column = new QVBoxLayout;
  column->setSpacing(look::kGrid);
  row->addLayout(column, 1);
  row->addWidget(new HintPicture(HintFor(u"pricePrint", title), {box}, box), 0, Qt::AlignTop);
  return {box, column};
}

void PricePrintScreen::AddChoices(QGridLayout* grid, const std::vector<Choice>& choices) {
  for (const Choice& choice : choices) {
    const int row = grid->rowCount();
    QCheckBox* check = NewCheck(choice.check_name, QString::fromUtf16(choice.caption), choice.on);
    auto* text = new TextLine(this);
    text->setObjectName(QString::fromUtf16(choice.text_name));
    text->setAccessibleName(check->text());
    text->setText(choice.proposal);
    text->setCursorPosition(0);
    text->setFixedWidth(text->fontMetrics().averageCharWidth() * kTextLetters);
    text->setEnabled(choice.on);
    connect(check, &QCheckBox::toggled, text, &QWidget::setEnabled);
    grid->addWidget(check, row, 0);
    grid->addWidget(text, row, 1);
    this->*choice.check = check;
    this->*choice.text = text;
  }
}

QWidget* PricePrintScreen::NewOther() {
  using P = PricePrintScreen;
  const Party firm = FirstFirm(context_);
  const auto field = [&](PartyField of) { return FieldOf(PartyKind::kFirm, firm, of); };
  const Frame frame = NewFrame(u"Прочее"_s);
  auto* grid = new QGridLayout;
  AddChoices(
      grid,
      {{&P::Check6, u"Check6", u"&Фирма:", true, &P::Text1, u"Text1", field(PartyField::kName)},
       {&P::Check7, u"Check7", u"&Адрес:", true, &P::Text2, u"Text2",
        field(PartyField::kLegalAddress)},
       {&P::Check8, u"Check8", u"&Тел./Факс:", true, &P::Text3, u"Text3",
        u"Тел.:"_s + field(PartyField::kPhone) + u", факс:"_s + field(PartyField::kFax)},
       {&P::Check11, u"Check11", u"&Заголовок:", true, &P::Text6, u"Text6", u"Прайс-лист"_s},
       {&P::Check9, u"Check9", u"&Дата", true, &P::Text4, u"Text4",
        LongDateText(context_.clock.Today())},
       {&P::Check10, u"Check10", u"&Подпись внизу:", false, &P::Text5, u"Text5", {}}});
  frame.column->addLayout(grid);
  frame.column->addStretch();
  return frame.box;
}

QWidget* PricePrintScreen::NewColumns() {
  using P = PricePrintScreen;
  const Frame frame = NewFrame(u"Колонки"_s);
  auto* grid = new QGridLayout;
  AddChoices(
      grid,
      {{&P::Check2, u"Check2", u"&Ед. изм", true, &P::Text9, u"Text9", u"Ед. изм."_s},
       {&P::Check3, u"Check3", u"Цена за&купа", false, &P::Text10, u"Text10", u"Цена закупа"_s},
       {&P::Check4, u"Check4", u"Цена &реализации", true, &P::Text11, u"Text11", u"Цена"_s}});
  Text7 = NewNumber(u"Text7"_s, u"100"_s, 8);
  Text8 = NewNumber(u"Text8"_s, u"100"_s, 8);
  const struct {
    QCheckBox* check;
    TextLineNumber* percent;
  } percents[] = {{Check3, Text7}, {Check4, Text8}};
  for (const auto& [check, percent] : percents) {
    int row = 0;
    int column = 0;
    int span = 0;
    grid->getItemPosition(grid->indexOf(check), &row, &column, &span, &span);
    auto* label = new QLabel(u"%:"_s, this);
    label->setBuddy(percent);
    grid->addWidget(label, row, 2);
    grid->addWidget(percent, row, 3);
    percent->setEnabled(check->isChecked());
    connect(check, &QCheckBox::toggled, percent, &QWidget::setEnabled);
  }
  Check5 = NewCheck(u"Check5", u"О&статок на складе"_s, false);
  Check15 = NewCheck(u"Check15", u"Су&ммировать кол-во на складах"_s, false);
  frame.column->addLayout(grid);
  frame.column->addWidget(Check5);
  frame.column->addWidget(Check15);
  return frame.box;
}

QWidget* PricePrintScreen::NewBorders() {
  const Frame frame = NewFrame(u"Рамка"_s);
  Check12 = NewCheck(u"Check12", u"Товар&ы"_s, true);
  Check13 = NewCheck(u"Check13", u"&Группы"_s, true);
  auto* row = new QHBoxLayout;
  row->setSpacing(look::kGap);
  for (QCheckBox* check : {Check12, Check13}) row->addWidget(check);
  row->addStretch();
  frame.column->addLayout(row);
  return frame.box;
}

QWidget* PricePrintScreen::NewGoods() {
  const Frame frame = NewFrame(u"Товары"_s);
  // Two by two by two: what is on hand at the left, what was chosen at the right.
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(look::kGap);
  const struct {
    QRadioButton*& option;
    const char16_t* name;
    const char16_t* caption;
  } options[] = {{Option1, u"Option1", u"&Все"},
                 {Option2, u"Option2", u"Присутствую&щие"},
                 {Option3, u"Option3", u"Отсутству&ющие"},
                 {Option4, u"Option4", u"Выде&ленные"},
                 {Option5, u"Option5", u"Отмече&нные галочками"},
                 {Option6, u"Option6", u"Не отмеченные гало&чками"}};
  int count = 0;
  for (const auto& [option, name, caption] : options) {
    option = new QRadioButton(QString::fromUtf16(caption), this);
    option->setObjectName(QString::fromUtf16(name));
    grid->addWidget(option, count % 3, count < 3 ? 0 : 3);
    ++count;
  }
  Option1->setChecked(true);
  Text14 = NewNumber(u"Text14"_s, u"1000"_s, 9);
  Text14->setEnabled(false);
  connect(Option2, &QRadioButton::toggled, Text14, &QWidget::setEnabled);
  auto* label = new QLabel(u"не &более"_s, this);
  label->setBuddy(Text14);
  grid->addWidget(label, 1, 1);
  grid->addWidget(Text14, 1, 2);
  grid->setColumnStretch(4, 1);
  frame.column->addLayout(grid);
  return frame.box;
}

QWidget* PricePrintScreen::NewOrder() {
  auto* order = new QWidget(this);
  Check1 = NewCheck(u"Check1", u"Распредел&ять по группам"_s, true);
  Check14 = NewCheck(u"Check14", u"Проме&жуток между алфавитными блоками:"_s, false);
  Text12 = NewNumber(u"Text12"_s, u"1"_s, 2);
  Text12->setAccessibleName(Check14->text());
  auto* grid = new QGridLayout(order);
  grid->setContentsMargins(0, 0, 0, 0);
  const auto hint = [&](QStringView place, std::initializer_list<QWidget*> about) {
    return new HintPicture(HintFor(u"pricePrint", place), about, order);
  };
  grid->addWidget(Check1, 0, 0);
  grid->addWidget(hint(u"Распределять по группам", {Check1}), 0, 2);
  grid->addWidget(Check14, 1, 0);
  grid->addWidget(Text12, 1, 1);
  grid->addWidget(hint(u"Промежуток между алфавитными блоками", {Check14, Text12}), 1, 2);
  grid->setColumnStretch(3, 1);
  return order;
}

void PricePrintScreen::BuildLayout() {
  auto* panel = new QWidget(this);
  auto* panels = new QGridLayout(panel);
  panels->setContentsMargins(0, 0, 0, 0);
  panels->setSpacing(look::kGrid);
  panels->addWidget(NewOther(), 0, 0, 2, 1);
  panels->addWidget(NewColumns(), 0, 1);
  panels->addWidget(NewBorders(), 1, 1);
  panels->setColumnStretch(0, 1);
  GoldButton1 = new FoldButton(u"GoldButton1"_s, u"В&ид"_s, panel, true, this);
  auto* ending = NewEndingRow(Command1, Command2);
  ending->insertWidget(0, NewHelpCommand(this, context_.data, u"priceprint.htm"));
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  layout->addWidget(NewGoods());
  layout->addWidget(NewOrder());
  layout->addWidget(GoldButton1, 0, Qt::AlignLeft);
  layout->addWidget(panel);
  layout->addWidget(look::NewSeparator(this));
  layout->addLayout(ending);
  // An address is long: its fields take what the screen leaves, up to its whole.
  const int spare = screen()->availableSize().width() - sizeHint().width() - look::kGap;
  const int width = Text1->width() + std::clamp(spare, 0, 22 * look::kGrid);
  for (TextLine* text : {Text1, Text2, Text3, Text6, Text4, Text5}) text->setFixedWidth(width);
}

void PricePrintScreen::FollowGroups() {
  Check14->setEnabled(!Check1->isChecked());
  Text12->setEnabled(!Check1->isChecked() && Check14->isChecked());
}

PricePageOptions PricePrintScreen::Options() const {
  PricePageOptions options;
  options.firm = TextIf(Check6, Text1);
  options.address = TextIf(Check7, Text2);
  options.phone = TextIf(Check8, Text3);
  options.date = TextIf(Check9, Text4);
  options.signature = TextIf(Check10, Text5);
  options.title = TextIf(Check11, Text6);
  options.stock = Check5->isChecked();
  options.unit = TextIf(Check2, Text9);
  options.purchase = TextIf(Check3, Text10);
  options.purchase_percent = FieldNumber(Text7->text());
  options.sale = TextIf(Check4, Text11);
  options.sale_percent = FieldNumber(Text8->text());
  options.borders = {.goods = Check12->isChecked(), .groups = Check13->isChecked()};
  options.by_groups = Check1->isChecked();
  if (Check14->isChecked()) options.gap = static_cast<int>(FieldNumber(Text12->text()));
  options.at_most = FieldNumber(Text14->text());
  const struct {
    QRadioButton* option;
    PrintedGoods goods;
  } choices[] = {{Option2, PrintedGoods::kPresent},
                 {Option3, PrintedGoods::kAbsent},
                 {Option4, PrintedGoods::kSelected},
                 {Option5, PrintedGoods::kTicked},
                 {Option6, PrintedGoods::kNotTicked}};
  for (const auto& [option, goods] : choices) {
    if (option->isChecked()) options.goods = goods;
  }
  return options;
}

void PricePrintScreen::Print() {
  const bool shown = Guarded(this, [this] {
    const QStringList warehouses =
        Check15->isChecked() ? context_.session.warehouses : QStringList{source_.warehouse};
    const StockByName stock = LoadStockByName(context_.data, context_.session, warehouses);
    context_.print_outs.Show(u"price.htm"_s, PricePage(source_.rows, stock, Options()));
  });
  if (shown) accept();
}

}  // namespace kladez
