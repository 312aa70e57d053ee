#include "screens/stock/documents/DocumentNotes.h"

#include <QLabel>
#include <QVBoxLayout>

#include "ui/controls/Look.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

QLabel* NewNote(const QString& name, Qt::TextFormat format, QWidget* parent) {
  auto* note = new QLabel(parent);
  note->setObjectName(name);
  note->setTextFormat(format);
  note->setWordWrap(true);
  look::Paint(note, QPalette::WindowText, look::kWarning);
  note->hide();
  return note;
}

}  // namespace

DocumentNotes::DocumentNotes(QWidget* parent)
    : QWidget(parent),
      number_(NewNote(u"number_note"_s, Qt::PlainText, this)),
      posted_(NewNote(u"posted_note"_s, Qt::RichText, this)) {
  posted_->setText(
      u"Документ уже проведён: остатки на складе за изменёнными строками не последуют. "
      u"<a href=\"anew\">Удалить с возвратом остатков и занести заново</a>"_s);
  posted_->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(look::kTight);
  layout->addWidget(number_);
  layout->addWidget(posted_);
  hide();
  connect(posted_, &QLabel::linkActivated, this, &DocumentNotes::EnterAnewAsked);
}

void DocumentNotes::TellNumber(const QString& number) {
  number_->setText(u"Номер %1 в журнале уже есть."_s.arg(number.left(look::kLongestText)));
  number_->setVisible(!number.isEmpty());
  ShowOrHide();
}

void DocumentNotes::TellPosted(bool changed) {
  posted_->setVisible(changed);
  ShowOrHide();
}

void DocumentNotes::ShowOrHide() { setVisible(!number_->isHidden() || !posted_->isHidden()); }

}  // namespace kladez
