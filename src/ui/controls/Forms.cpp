#include "ui/controls/Forms.h"

#include <QAbstractItemView>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolTip>

#include "ui/controls/Choice.h"
#include "ui/controls/Look.h"
#include "ui/controls/TypeAhead.h"

namespace kladez {

using namespace Qt::StringLiterals;

QLabel* NewLabel(const QString& text, QWidget* field, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setTextFormat(Qt::PlainText);
  label->setText(text);
  label->setBuddy(field);
  return label;
}

QBoxLayout* WithHint(QWidget* field, const Hint& hint) {
  auto* row = new QHBoxLayout;
  row->setSpacing(0);
  row->addWidget(field);
  row->addWidget(new HintPicture(hint, {field}, field->parentWidget()));
  return row;
}

void MakeReadOnly(QLineEdit* field) {
  field->setReadOnly(true);
  field->setFocusPolicy(Qt::ClickFocus);
  look::Paint(field, QPalette::Base, look::kStill);
}

TextChoice::TextChoice(const QStringList& texts, QWidget* parent)
    : QComboBox(parent),
      type_ahead_(new TypeAhead(this, {.names = [this]() -> const NameSearch& { return Names(); },
                                       .current = [this] { return currentIndex(); },
                                       .select = [this](int row) { Go(row); }})) {
  view()->installEventFilter(this);
  const auto forget = [this] { names_.Clear(); };
  connect(model(), &QAbstractItemModel::rowsInserted, this, forget);
  connect(model(), &QAbstractItemModel::rowsRemoved, this, forget);
  connect(model(), &QAbstractItemModel::modelReset, this, forget);
  // Long names scroll in the open list and do not make the form wider.
  BoundByLetters(this, 12);
  for (const QString& text : texts) addItem(text.left(look::kLongestText), text);
}

const NameSearch& TextChoice::Names() {
  if (names_.Size() == 0) {
    for (int i = 0; i < count(); ++i) names_.Add(itemData(i).toString());
  }
  return names_;
}

void TextChoice::Go(int row) {
  if (view()->isVisible()) return view()->setCurrentIndex(model()->index(row, modelColumn()));
  setCurrentIndex(row);
  emit activated(row);
}

void TextChoice::keyPressEvent(QKeyEvent* event) {
  if (!type_ahead_->Takes(*event)) QComboBox::keyPressEvent(event);
}

bool TextChoice::eventFilter(QObject* watched, QEvent* event) {
  if (watched == view() && event->type() == QEvent::KeyPress &&
      type_ahead_->Takes(*static_cast<QKeyEvent*>(event))) {
    return true;
  }
  return QComboBox::eventFilter(watched, event);
}

bool TextChoice::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && toolTip().isEmpty() &&
      fontMetrics().horizontalAdvance(currentText()) > width() - look::kGap) {
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                       look::PlainToolTip(currentText()), this);
    return true;
  }
  return QComboBox::event(event);
}

void TextChoice::Choose(const QString& text) {
  if (findData(text) < 0) addItem(text.left(look::kLongestText), text);
  setCurrentIndex(findData(text));
}

}  // namespace kladez
