#include "screens/printing/NoteBlock.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "books/printing/AmountInWords.h"
#include "screens/printing/ParametersBlock.h"
#include "screens/printing/PrintDialog.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Look.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

QLabel* NewNote(QWidget* parent, const QString& name, bool warning) {
  auto* note = new QLabel(parent);
  note->setObjectName(name);
  note->setTextFormat(Qt::PlainText);
  note->setWordWrap(true);
  if (warning) look::MakeWarning(note);
  note->hide();
  return note;
}

void ShowNote(QLabel* note, const QString& text) {
  note->setText(text);
  note->setVisible(!text.isEmpty());
}

}  // namespace

NoteBlock::NoteBlock(PrintDialog& dialog, ParametersBlock& parameters)
    : rate_row_(new QWidget(&dialog)),
      rate_(NewNote(rate_row_, u"rate_note"_s, true)),
      effect_(NewNote(&dialog, u"effect"_s, false)),
      difference_(NewNote(&dialog, u"difference"_s, false)),
      words_cut_(NewNote(&dialog, u"words_cut"_s, true)),
      no_taxes_(NewNote(&dialog, u"no_taxes"_s, true)),
      code_faults_(NewNote(&dialog, u"code_faults"_s, true)),
      parameters_(parameters) {
  auto* one = NewCommand(rate_row_, u"rate_one"_s, u"Курс &1"_s);
  QObject::connect(one, &QPushButton::clicked, &dialog, [this] { parameters_.SetOwnRate(u"1"_s); });
  auto* row = new QHBoxLayout(rate_row_);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(look::kGrid);
  row->addWidget(rate_, 1);
  row->addWidget(one);
  rate_row_->hide();
  if (!dialog.TaxesWereRead()) {
    ShowNote(no_taxes_, u"Ставки налогов этой базы не прочитаны: их файл повреждён."_s);
  }
}

QLayout* NoteBlock::NewRows() const {
  auto* rows = new QVBoxLayout;
  rows->setSpacing(look::kTight);
  for (QWidget* row :
       std::initializer_list<QWidget*>{no_taxes_, rate_row_, effect_, difference_, code_faults_}) {
    rows->addWidget(row);
  }
  return rows;
}

void NoteBlock::Show(const PaperNote& note, bool in_roubles) {
  const bool remembered = in_roubles && HasRate(note.parameters) && parameters_.RateIsRemembered();
  ShowNote(rate_, remembered ? QString(u"Курс $ "_s + note.parameters.rate +
                                       u" остался с прошлого раза: на него умножены все суммы."_s)
                             : QString());
  rate_row_->setVisible(remembered);
  ShowNote(effect_, EffectText(note));
  ShowNote(difference_, DifferenceText(note));
  ShowNote(words_cut_, WordsAreCut(note.due)
                           ? u"Сумма от миллиарда: прописью названы не все её цифры."_s
                           : QString());
}

void NoteBlock::ShowCodeFaults(const QStringList& faults) {
  ShowNote(code_faults_, faults.isEmpty()
                             ? QString()
                             : u"QR-код не печатается. "_s + faults.join(u". "_s) + u'.');
}

void NoteBlock::Clear() {
  rate_row_->hide();
  for (QLabel* note : {rate_, effect_, difference_, words_cut_, code_faults_}) ShowNote(note, {});
}

}  // namespace kladez
