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

constexpr int kTextLetters = 15;  // wide is a field of free text

}  // namespace

PricePrintScreen::PricePrintScreen(AppContext& context, const PricePrintSource& source,
                                   QWidget* parent)
    : QDialog(parent), context_(context), source_(source) {
  setObjectName(u"pricePrint"_s);
  setWindowTitle(u"Параметры печати прайса"_s);
  auto* print = NewCommand(this, u"Command1"_s, u"OK"_s);
  auto* cancel = NewCommand(this, u"Command2"_s, u"&Отмена"_s);
  BuildLayout(print, cancel);
  FollowGroups();
  for (TextLineNumber* percent : {purchase_percent_, sale_percent_}) {
    connect(percent, &TextLine::Change, this, &PricePrintScreen::ShowEffect);
  }
  for (const ChoiceField& choice : choices_) {
    connect(choice.field.tick, &QCheckBox::toggled, this, &PricePrintScreen::ShowEffect);
  }
  print->setFocus();
  connect(by_groups_, &QCheckBox::toggled, this, &PricePrintScreen::FollowGroups);
  connect(with_gap_, &QCheckBox::toggled, this, &PricePrintScreen::FollowGroups);
  connect(print, &QPushButton::clicked, this, &PricePrintScreen::Print);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

TextLineNumber* PricePrintScreen::NewNumber(const QString& name, const QString& value, int length) {
  auto* field = new TextLineNumber(this);
  field->setObjectName(name);
  field->setMaxLength(length);
  field->setText(value);
  field->setFixedWidth(look::ByLetters(field, 8));
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
    QCheckBox* check = NewTick(this, choice.check.toString(), choice.caption, choice.on);
    TextLine* text = NewText(this, choice.text.toString());
    text->setAccessibleName(check->text());
    ShowText(text, choice.proposal);
    text->setFixedWidth(text->fontMetrics().averageCharWidth() * kTextLetters);
    text->setEnabled(choice.on);
    connect(check, &QCheckBox::toggled, text, &QWidget::setEnabled);
    grid->addWidget(check, row, 0);
    grid->addWidget(text, row, 1);
    choices_.push_back({{check, text}, choice.value});
  }
}

TextLineNumber* PricePrintScreen::AddPercent(QGridLayout* grid, int row, const QString& name) {
  const auto* check = qobject_cast<QCheckBox*>(grid->itemAtPosition(row, 0)->widget());
  TextLineNumber* percent = NewNumber(name, u"100"_s, 8);
  grid->addWidget(NewCaption(this, u"%:"_s, percent), row, 2);
  grid->addWidget(percent, row, 3);
  percent->setEnabled(check->isChecked());
  connect(check, &QCheckBox::toggled, percent, &QWidget::setEnabled);
  return percent;
}

QWidget* PricePrintScreen::NewOther() {
  using O = PricePageOptions;
  const Party firm = FirstFirm(context_);
  const auto field = [&](PartyField of) { return FieldOf(PartyKind::kFirm, firm, of); };
  const Frame frame = NewFrame(u"Прочее"_s);
  auto* grid = new QGridLayout;
  AddChoices(
      grid,
      {{u"Check6", u"&Фирма:"_s, true, u"Text1", field(PartyField::kName), &O::firm},
       {u"Check7", u"&Адрес:"_s, true, u"Text2", field(PartyField::kLegalAddress), &O::address},
       {u"Check8", u"&Тел./Факс:"_s, true, u"Text3",
        u"Тел.:"_s + field(PartyField::kPhone) + u", факс:"_s + field(PartyField::kFax), &O::phone},
       {u"Check11", u"&Заголовок:"_s, true, u"Text6", u"Прайс-лист"_s, &O::title},
       {u"Check9", u"&Дата"_s, true, u"Text4", LongDateText(context_.clock.Today()), &O::date},
       {u"Check10", u"&Подпись внизу:"_s, false, u"Text5", {}, &O::signature}});
  head_size_ = choices_.size();
  frame.column->addLayout(grid);
  frame.column->addStretch();
  return frame.box;
}

QWidget* PricePrintScreen::NewColumns() {
  using O = PricePageOptions;
  const Frame frame = NewFrame(u"Колонки"_s);
  auto* grid = new QGridLayout;
  AddChoices(grid,
             {{u"Check2", u"&Ед. изм"_s, true, u"Text9", u"Ед. изм."_s, &O::unit},
              {u"Check3", u"Цена за&купа"_s, false, u"Text10", u"Цена закупа"_s, &O::purchase},
              {u"Check4", u"Цена &реализации"_s, true, u"Text11", u"Цена"_s, &O::sale}});
  purchase_percent_ = AddPercent(grid, grid->rowCount() - 2, u"Text7"_s);
  sale_percent_ = AddPercent(grid, grid->rowCount() - 1, u"Text8"_s);
  stock_ = NewTick(this, u"Check5"_s, u"О&статок на складе"_s, false);
  all_warehouses_ = NewTick(this, u"Check15"_s, u"Су&ммировать кол-во на складах"_s, false);
  frame.column->addLayout(grid);
  frame.column->addWidget(stock_);
  frame.column->addWidget(all_warehouses_);
  return frame.box;
}

QWidget* PricePrintScreen::NewBorders() {
  const Frame frame = NewFrame(u"Рамка"_s);
  goods_framed_ = NewTick(this, u"Check12"_s, u"Товар&ы"_s, true);
  groups_framed_ = NewTick(this, u"Check13"_s, u"&Группы"_s, true);
  auto* row = new QHBoxLayout;
  row->setSpacing(look::kGap);
  for (QCheckBox* check : {goods_framed_, groups_framed_}) row->addWidget(check);
  row->addStretch();
  frame.column->addLayout(row);
  return frame.box;
}

QWidget* PricePrintScreen::NewGoods() {
  const Frame frame = NewFrame(u"Товары"_s);
  QRadioButton* present = nullptr;
  // Two by two by two: what is on hand at the left, what was chosen at the right.
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(look::kGap);
  const struct {
    QStringView name;
    QStringView caption;
    PrintedGoods goods;
  } options[] = {{u"Option1", u"&Все", PrintedGoods::kAll},
                 {u"Option2", u"Присутствую&щие", PrintedGoods::kPresent},
                 {u"Option3", u"Отсутству&ющие", PrintedGoods::kAbsent},
                 {u"Option4", u"Выде&ленные", PrintedGoods::kSelected},
                 {u"Option5", u"Отмече&нные галочками", PrintedGoods::kTicked},
                 {u"Option6", u"Не отмеченные гало&чками", PrintedGoods::kNotTicked}};
  for (const auto& [name, caption, goods] : options) {
    auto* option = new QRadioButton(caption.toString(), this);
    option->setObjectName(name.toString());
    option->setChecked(goods == PrintedGoods::kAll);
    const int count = static_cast<int>(goods_.size());
    grid->addWidget(option, count % 3, count < 3 ? 0 : 3);
    goods_.push_back({option, goods});
    if (goods == PrintedGoods::kPresent) present = option;
  }
  at_most_ = NewNumber(u"Text14"_s, u"1000"_s, 9);
  at_most_->setEnabled(false);
  connect(present, &QRadioButton::toggled, at_most_, &QWidget::setEnabled);
  grid->addWidget(NewCaption(this, u"не &более"_s, at_most_), 1, 1);
  grid->addWidget(at_most_, 1, 2);
  grid->setColumnStretch(4, 1);
  frame.column->addLayout(grid);
  return frame.box;
}

QWidget* PricePrintScreen::NewOrder() {
  auto* order = new QWidget(this);
  by_groups_ = NewTick(this, u"Check1"_s, u"Распредел&ять по группам"_s, true);
  with_gap_ = NewTick(this, u"Check14"_s, u"Проме&жуток между алфавитными блоками:"_s, false);
  gap_ = NewNumber(u"Text12"_s, u"1"_s, 2);
  gap_->setAccessibleName(with_gap_->text());
  auto* grid = new QGridLayout(order);
  grid->setContentsMargins(0, 0, 0, 0);
  const auto hint = [&](QStringView place, std::initializer_list<QWidget*> about) {
    return new HintPicture(HintFor(u"pricePrint", place), about, order);
  };
  grid->addWidget(by_groups_, 0, 0);
  grid->addWidget(hint(u"Распределять по группам", {by_groups_}), 0, 2);
  grid->addWidget(with_gap_, 1, 0);
  grid->addWidget(gap_, 1, 1);
  grid->addWidget(hint(u"Промежуток между алфавитными блоками", {with_gap_, gap_}), 1, 2);
  grid->setColumnStretch(3, 1);
  return order;
}

void PricePrintScreen::BuildLayout(QPushButton* print, QPushButton* cancel) {
  auto* panel = new QWidget(this);
  auto* panels = new QGridLayout(panel);
  panels->setContentsMargins(0, 0, 0, 0);
  panels->setSpacing(look::kGrid);
  panels->addWidget(NewOther(), 0, 0, 2, 1);
  panels->addWidget(NewColumns(), 0, 1);
  panels->addWidget(NewBorders(), 1, 1);
  panels->setColumnStretch(0, 1);
  auto* fold = new FoldButton(u"GoldButton1"_s, u"В&ид"_s, panel, true, this);
  auto* ending = NewEndingRow(print, cancel);
  ending->insertWidget(0, NewHelpCommand(this, context_.data));
  effect_ = new QLabel(this);
  effect_->setObjectName(u"effect"_s);
  effect_->hide();
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  layout->addWidget(NewGoods());
  layout->addWidget(NewOrder());
  layout->addWidget(fold, 0, Qt::AlignLeft);
  layout->addWidget(panel);
  layout->addWidget(look::NewSeparator(this));
  layout->addWidget(effect_);
  layout->addLayout(ending);
  // An address is long: the fields of the head take what the screen leaves, up to its whole.
  const int spare = screen()->availableSize().width() - sizeHint().width() - look::kGap;
  const int width = choices_.front().field.text->width() + std::clamp(spare, 0, 22 * look::kGrid);
  for (size_t i = 0; i < head_size_; ++i) choices_[i].field.text->setFixedWidth(width);
}

void PricePrintScreen::FollowGroups() {
  with_gap_->setEnabled(!by_groups_->isChecked());
  gap_->setEnabled(!by_groups_->isChecked() && with_gap_->isChecked());
}

// In sight even when the prices are folded away.
void PricePrintScreen::ShowEffect() {
  try {
    effect_->setText(PriceEffectText(Options()));
  } catch (const InputError&) {
    effect_->clear();  // a field that was just emptied, before it repairs itself
  }
  effect_->setVisible(!effect_->text().isEmpty());
}

PricePageOptions PricePrintScreen::Options() const {
  PricePageOptions options;
  for (const auto& [field, value] : choices_) {
    const TickedText text = field.Read();
    if (text.ticked) options.*value = text.text;
  }
  options.stock = stock_->isChecked();
  options.purchase_percent = FieldNumber(purchase_percent_->text());
  options.sale_percent = FieldNumber(sale_percent_->text());
  options.borders = {.goods = goods_framed_->isChecked(), .groups = groups_framed_->isChecked()};
  options.by_groups = by_groups_->isChecked();
  if (with_gap_->isChecked()) options.gap = static_cast<int>(FieldNumber(gap_->text()));
  options.at_most = FieldNumber(at_most_->text());
  for (const auto& [option, goods] : goods_) {
    if (option->isChecked()) options.goods = goods;
  }
  return options;
}

void PricePrintScreen::Print() {
  const bool shown = Guarded(this, [this] {
    const QStringList warehouses =
        all_warehouses_->isChecked() ? context_.session.warehouses : QStringList{source_.warehouse};
    const StockByName stock = LoadStockByName(context_.data, context_.session, warehouses);
    context_.print_outs.Show(u"price.htm"_s, PricePage(source_.rows, stock, Options()));
  });
  if (shown) accept();
}

}  // namespace kladez
