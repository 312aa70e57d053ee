#include "screens/directories/GoodsForm.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QShowEvent>
#include <QTabWidget>
#include <algorithm>
#include <array>

#include "formats/Numbers.h"
#include "ui/Hints.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Fields.h"
#include "ui/controls/Look.h"
#include "ui/controls/ScannerKeys.h"
#include "ui/controls/TabOrder.h"
#include "ui/controls/UnsavedWork.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

enum Page { kGoodsPage, kGroupPage };

template <typename Field>
Field* NewField(QWidget* page, const QString& name, const QString& text) {
  auto* field = new Field(page);
  field->setObjectName(name);
  if (!text.isEmpty()) field->setText(text);
  return field;
}

void AddRow(QFormLayout* form, const QString& caption, QLineEdit* field, QStringView hint) {
  auto* row = new QHBoxLayout;
  row->setSpacing(look::kTight);
  row->addWidget(field);
  row->addWidget(new HintPicture(HintFor(u"sprTovNew", hint), {field}, field->parentWidget()));
  form->addRow(caption, row);
  // The row is a layout, for which the form gives its label no buddy.
  qobject_cast<QLabel*>(form->labelForField(row))->setBuddy(field);
}

}  // namespace

GoodsForm::GoodsForm(const GoodsEntry& entry, QWidget* parent)
    : QDialog(parent), owner_of_(entry.owner_of), tabs_(new QTabWidget(this)) {
  tabs_->setObjectName(u"tabs"_s);
  setObjectName(u"sprTovNew"_s);
  setWindowTitle(u"Запись"_s);
  tabs_->addTab(NewGoodsPage(entry.record.IsGroup() ? GoodsRecord() : entry.record, entry.extras),
                u"Товар"_s);
  tabs_->addTab(NewGroupPage(entry), u"Группа"_s);
  const bool group = entry.group_only || entry.record.IsGroup();
  tabs_->setTabEnabled(kGoodsPage, !entry.group_only);
  tabs_->setCurrentIndex(group ? kGroupPage : kGoodsPage);
  auto* limit = new QLabel(u"Максимальное кол-во товаров в справочнике, не более 1000."_s, this);
  look::MakeQuiet(limit);
  ok_ = NewCommand(this, u"ok"_s, u"OK"_s);
  cancel_ = NewCommand(this, u"cancel"_s, u"О&тмена"_s);
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addWidget(tabs_);
  layout->addWidget(limit);
  layout->addSpacing(look::kGrid);
  layout->addLayout(NewEndingRow(ok_, cancel_));
  setMinimumWidth(look::ByLetters(this, 60));
  TabByEye(this);

  connect(ok_, &QPushButton::clicked, this, &GoodsForm::Ok);
  connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
  new UnsavedWork(this, {.is_changed = [this, before = Texts()] { return Texts() != before; },
                         .save =
                             [this] {
                               Ok();
                               return isHidden();
                             }});
  for (TextLine* field : Fields()) field->installEventFilter(this);
  // Read into whatever field: the code has its own.
  new ScannerKeys(this, [this](const QString& code) {
    if (IsGroupShown()) return;
    barcode_->setText(code);
    barcode_->setFocus();
  });
  for (TextLine* field : {name_, barcode_}) {
    connect(field, &TextLine::Change, this, [field] { field->SetFault({}); });
  }
}

QWidget* GoodsForm::NewGoodsPage(const GoodsRecord& record, const GoodsExtras& extras) {
  auto* page = new QWidget(tabs_);
  name_ = NewField<TextLine>(page, u"name"_s, record.name);
  country_ = NewField<TextLine>(page, u"country"_s, record.country);
  declaration_ = NewField<TextLine>(page, u"declaration"_s, record.declaration);
  unit_ = NewField<TextLine>(page, u"unit"_s, record.unit);
  // A new record has no price: it must be entered.
  price_ = NewField<TextLineDecimal>(page, u"price"_s, record.price);
  barcode_ = NewField<TextLine>(page, u"barcode"_s, extras.barcode);
  minimum_ = NewField<TextLineNumber>(page, u"minimum"_s, extras.minimum);
  auto* form = new QFormLayout(page);
  look::SetDialogMargins(form);
  AddRow(form, u"&Наименование:"_s, name_, u"Наименование");
  AddRow(form, u"&Страна:"_s, country_, u"Страна");
  AddRow(form, u"N &декларации:"_s, declaration_, u"N декларации");
  AddRow(form, u"&Единица измерения:"_s, unit_, u"Единица измерения");
  AddRow(form, u"&Цена:"_s, price_, u"Цена");
  AddRow(form, u"&Штрихкод:"_s, barcode_, u"Штрихкод");
  AddRow(form, u"&Минимум:"_s, minimum_, u"Минимум");
  return page;
}

QWidget* GoodsForm::NewGroupPage(const GoodsEntry& entry) {
  auto* page = new QWidget(tabs_);
  group_ = NewField<TextLine>(page, u"group"_s,
                              entry.record.IsGroup() ? entry.record.name.mid(1) : QString());
  group_first_ = new QLabel(
      u"Чтобы добавить товар в справочник, Вам необходимо создать хотя бы одну группу товаров, в "
      u"которую Вы сможете добавлять товары. В поле наименование введите название создаваемой "
      u"группы товаров, после чего нажмите кнопку \"OK\". Для отмены добавления группы нажмите "
      u"кнопку \"Отмена\""_s,
      page);
  group_first_->setObjectName(u"Label7"_s);
  group_first_->setWordWrap(true);
  group_first_->setVisible(entry.group_only);
  auto* layout = new QVBoxLayout(page);
  look::SetDialogMargins(layout);
  auto* form = new QFormLayout;
  AddRow(form, u"&Наименование группы:"_s, group_, u"Наименование группы");
  layout->addLayout(form);
  layout->addWidget(group_first_);
  layout->addStretch();
  return page;
}

std::array<TextLine*, 8> GoodsForm::Fields() const {
  return {name_, country_, declaration_, unit_, price_, barcode_, minimum_, group_};
}

bool GoodsForm::IsGroupShown() const { return tabs_->currentIndex() == kGroupPage; }

QStringList GoodsForm::Texts() const {
  QStringList texts;
  for (const TextLine* field : Fields()) texts.append(field->text());
  return texts;
}

GoodsRecord GoodsForm::Record() const {
  if (IsGroupShown()) {
    GoodsRecord group;
    group.name = u' ' + group_->text();
    return group;
  }
  return {.name = name_->text(),
          .country = country_->text(),
          .declaration = declaration_->text(),
          .unit = unit_->text(),
          .price = price_->text()};
}

GoodsExtras GoodsForm::Extras() const {
  if (IsGroupShown()) return {};
  return {.barcode = barcode_->text().trimmed(), .minimum = minimum_->text()};
}

bool GoodsForm::ExtrasAreSound() {
  const QString barcode = Extras().barcode;
  QString fault = BarcodeFault(barcode);
  if (fault.isEmpty() && owner_of_) {
    const QString owner = owner_of_(barcode);
    if (!owner.isEmpty()) {
      fault = u"Этот штрихкод уже у товара «%1»"_s.arg(owner.left(look::kLongestText));
    }
  }
  if (fault.isEmpty()) return true;
  barcode_->setFocus();
  barcode_->SetFault(fault);
  return false;
}

void GoodsForm::Ok() {
  if (!IsGroupShown()) {
    // In the file it would be a group from then on, without unit and price.
    if (IsGroupName(name_->text())) {
      name_->setFocus();
      name_->SetFault(u"Название товара не может начинаться с пробела"_s);
      return;
    }
    const auto price = ParseStrict(price_->text());
    if (!price) {
      price_->setFocus();
      return;
    }
    price_->setText(FormatMoney(*price));
    if (!ExtrasAreSound()) return;
  }
  accept();
}

// The keyboard goes to the first field of the page that the tabs show.
void GoodsForm::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  (IsGroupShown() ? group_ : name_)->setFocus();
}

// Enter goes from field to field, and from the last one to OK.
bool GoodsForm::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
      const std::array<QWidget*, 6> way = {name_, country_, declaration_, unit_, price_, ok_};
      const auto at = std::find(way.begin(), way.end() - 1, watched);
      (at == way.end() - 1 ? ok_ : *(at + 1))->setFocus();
      return true;
    }
  }
  return QDialog::eventFilter(watched, event);
}

}  // namespace kladez
