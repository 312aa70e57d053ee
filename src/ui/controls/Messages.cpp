#include "ui/controls/Messages.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/controls/Fields.h"
#include "ui/controls/Look.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// A damaged file may hold a name of many megabytes, which no box can lay out.
QString Shown(const QString& text) {
  QStringList lines = text.split(u'\n');
  for (QString& line : lines) {
    if (line.size() > look::kLongestText) line = line.left(look::kLongestText) + u'…';
  }
  return lines.join(u'\n');
}

QMessageBox::StandardButton Run(QWidget* parent, QMessageBox::Icon icon, const QString& text,
                                const QString& title, QMessageBox::StandardButtons buttons,
                                QMessageBox::StandardButton otherwise,
                                const QString& consequence = {}) {
  QMessageBox box(icon, title, Shown(text), buttons, parent);
  box.setTextFormat(Qt::PlainText);
  if (!consequence.isEmpty()) {
    box.setInformativeText(Shown(consequence));
    // The box tells its format to the first label only.
    for (auto* label : box.findChildren<QLabel*>()) label->setTextFormat(Qt::PlainText);
  }
  box.setDefaultButton(otherwise);
  // Without a Cancel button Escape and the frame answer No.
  if (buttons == (QMessageBox::Yes | QMessageBox::No)) box.setEscapeButton(QMessageBox::No);
  return static_cast<QMessageBox::StandardButton>(box.exec());
}

}  // namespace

void ShowMessage(QWidget* parent, const QString& text, const QString& title) {
  Run(parent, QMessageBox::Warning, text, title, QMessageBox::Ok, QMessageBox::Ok);
}

void ShowInformation(QWidget* parent, const QString& text, const QString& title) {
  Run(parent, QMessageBox::Information, text, title, QMessageBox::Ok, QMessageBox::Ok);
}

void ShowError(QWidget* parent, const QString& text, const QString& title) {
  Run(parent, QMessageBox::Critical, text, title, QMessageBox::Ok, QMessageBox::Ok);
}

void NotAllowed(QWidget* parent) {
  ShowMessage(parent, u"У вас не достаточно полномочий"_s, u"Продавец"_s);
}

bool AskYesNo(QWidget* parent, const QString& text, const QString& title, DefaultAnswer otherwise,
              const QString& consequence) {
  return Run(parent, QMessageBox::Question, text, title, QMessageBox::Yes | QMessageBox::No,
             otherwise == DefaultAnswer::kYes ? QMessageBox::Yes : QMessageBox::No,
             consequence) == QMessageBox::Yes;
}

bool AskDelete(QWidget* parent, const QString& question, const QString& title,
               const QString& consequence) {
  return Run(parent, QMessageBox::Question, question, title, QMessageBox::Yes | QMessageBox::No,
             QMessageBox::No, consequence) == QMessageBox::Yes;
}

Answer AskYesNoCancel(QWidget* parent, const QString& text, const QString& title,
                      const QString& consequence, Answer otherwise) {
  const auto button = otherwise == Answer::kYes  ? QMessageBox::Yes
                      : otherwise == Answer::kNo ? QMessageBox::No
                                                 : QMessageBox::Cancel;
  switch (Run(parent, QMessageBox::Question, text, title,
              QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, button, consequence)) {
    case QMessageBox::Yes:
      return Answer::kYes;
    case QMessageBox::No:
      return Answer::kNo;
    default:
      return Answer::kCancel;
  }
}

std::optional<QString> AskText(QWidget* parent, const QString& title, const QString& prompt,
                               const QString& value) {
  QDialog box(parent);
  box.setObjectName(u"AskText"_s);
  box.setWindowTitle(title);
  auto* layout = new QVBoxLayout(&box);
  look::SetDialogMargins(layout);
  auto* label = new QLabel(&box);
  label->setTextFormat(Qt::PlainText);
  label->setText(Shown(prompt));
  label->setWordWrap(true);
  // A name without a blank is one word, and would make the box as wide as itself.
  label->setMinimumWidth(1);
  label->setMaximumWidth(100 * look::kGrid);
  auto* field = new TextLine(&box);
  field->setObjectName(u"Text1"_s);
  field->setText(value);
  field->setMinimumWidth(look::ByLetters(field, 40));
  label->setBuddy(field);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &box);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &box, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &box, &QDialog::reject);
  layout->addWidget(label);
  layout->addWidget(field);
  layout->addSpacing(look::kGrid);
  layout->addWidget(buttons);
  field->setFocus();
  field->selectAll();
  if (box.exec() != QDialog::Accepted) return std::nullopt;
  return field->text();
}

}  // namespace kladez
