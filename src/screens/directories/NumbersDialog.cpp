#include "screens/directories/NumbersDialog.h"

#include <QApplication>
#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "ui/controls/Commands.h"
#include "ui/controls/Fields.h"
#include "ui/controls/Forms.h"
#include "ui/controls/ScannerKeys.h"
#include "ui/controls/TabOrder.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

void ShowNote(QLabel* label, const LineNote& note) {
  look::Paint(label, QPalette::WindowText, note.amiss ? look::kWarning : look::kQuiet);
  label->setText(note.text);
}

}  // namespace

NumbersDialog::NumbersDialog(const QString& name, const QString& title, const QString& goods,
                             QWidget* parent)
    : QDialog(parent), layout_(new QVBoxLayout(this)), form_(new QFormLayout) {
  setObjectName(name);
  setWindowTitle(title);
  look::SetDialogMargins(layout_);
  form_->setSpacing(look::kGrid);
  auto* label = NewLabel(goods.left(look::kLongestText), nullptr, this);
  label->setObjectName(u"Label1"_s);
  label->setWordWrap(true);
  label->setVisible(!goods.isEmpty());
  layout_->addWidget(label);
  layout_->addLayout(form_);
  setMinimumWidth(look::ByLetters(this, 40));
  // A barcode read while a number is asked for is no number, and its Enter is no answer.
  new ScannerKeys(this, [](const QString&) { QApplication::beep(); });
}

void NumbersDialog::AddField(const QString& caption, TextLine* field, const QString& text) {
  field->setText(text);
  form_->addRow(NewLabel(caption, field, this), field);
}

void NumbersDialog::AddNote(const QString& name, TextLine* field,
                            const std::function<LineNote(const QString& text)>& note) {
  QLabel* label = NewLabel({}, nullptr, this);
  label->setObjectName(name);
  label->setWordWrap(true);
  layout_->addWidget(label);
  const auto show = [=] { ShowNote(label, note(field->text())); };
  connect(field, &TextLine::Change, label, show);
  show();
}

void NumbersDialog::Finish(TextLine* first) {
  auto* ok = NewCommand(this, u"Command1"_s, u"OK"_s);
  auto* cancel = NewCommand(this, u"Command2"_s, u"О&тмена"_s);
  layout_->addSpacing(look::kGrid);
  layout_->addLayout(NewEndingRow(ok, cancel));
  TabByEye(this);
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  first->setFocus();
  first->selectAll();
}

}  // namespace kladez
