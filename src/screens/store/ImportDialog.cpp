#include "screens/store/ImportDialog.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "formats/InOrder.h"
#include "ui/Help.h"
#include "ui/Hints.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Guard.h"
#include "ui/controls/TabOrder.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

struct AreaRow {
  ImportArea area;
  QStringView control;
  QStringView caption;
};

constexpr std::array<AreaRow, kImportAreas> kAreas = {{
    {ImportArea::kGoods, u"Check1", u"Справочник товаров"},
    {ImportArea::kCurrency, u"Check9", u"Основная валюта"},
    {ImportArea::kWarehouses, u"Check2", u"Справочник складов"},
    {ImportArea::kFirms, u"Check5", u"Справочник фирм"},
    {ImportArea::kSuppliers, u"Check3", u"Справочник поставщиков"},
    {ImportArea::kClients, u"Check4", u"Справочник клиентов"},
    {ImportArea::kStock, u"Check6", u"Состояние складов"},
    {ImportArea::kPrices, u"Check7", u"Прайс-листы"},
    {ImportArea::kAccounts, u"Check8", u"Расчеты с поставщиками"},
}};
static_assert(IsInOrder(kAreas, &AreaRow::area));

}  // namespace

ImportDialog::ImportDialog(AppContext& context, const QString& source, QWidget* parent)
    : QDialog(parent), context_(context), source_(source) {
  setObjectName(u"Import"_s);
  setWindowTitle(u"Импорт"_s);
  // The blanks leave room for the question mark.
  auto* frame = new QGroupBox(u"     Что импортировать?"_s, this);
  frame->setObjectName(u"Frame1"_s);
  auto* hint = new HintPicture(HintFor(u"Import", u"Picture5"), {frame}, frame);
  hint->setObjectName(u"Picture5"_s);
  hint->setGeometry(0, 0, look::kMargin + 2, look::kMargin + 2);
  auto* list = new QVBoxLayout(frame);
  list->setContentsMargins(look::kMargin, look::kGap, look::kMargin, look::kMargin);
  list->setSpacing(look::kGrid);
  for (size_t i = 0; i < kAreas.size(); ++i) {
    boxes_[i] = new QCheckBox(kAreas[i].caption.toString(), frame);
    boxes_[i]->setObjectName(kAreas[i].control.toString());
    list->addWidget(boxes_[i]);
    connect(boxes_[i], &QCheckBox::toggled, this, [this, i](bool on) {
      choice_.Tick(static_cast<ImportArea>(i), on);
      ShowChoice();
    });
  }
  auto* ok = NewCommand(this, u"Command1"_s, u"OK"_s);
  auto* cancel = NewCommand(this, u"Command2"_s, u"О&тмена"_s);
  auto* ending = NewEndingRow(ok, cancel);
  ending->insertWidget(0, NewHelpCommand(this, context.data, u"Command3"));
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addWidget(frame, 1);
  layout->addSpacing(look::kGrid);
  layout->addLayout(ending);
  setMinimumWidth(look::ByLetters(this, 46));
  TabByEye(this);

  connect(ok, &QPushButton::clicked, this, &ImportDialog::Copy);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  boxes_.front()->setFocus();
}

void ImportDialog::ShowChoice() {
  for (size_t i = 0; i < boxes_.size(); ++i) {
    const QSignalBlocker quiet(boxes_[i]);
    boxes_[i]->setChecked(choice_.IsTicked(static_cast<ImportArea>(i)));
    boxes_[i]->setEnabled(!choice_.IsLocked(static_cast<ImportArea>(i)));
  }
}

void ImportDialog::Copy() {
  if (Guarded(this, [this] {
        ImportAreas(context_.data, source_, context_.session.base_path, choice_);
      })) {
    accept();
  }
}

}  // namespace kladez
