#include "screens/printing/ParametersBlock.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include "screens/printing/PrintDialog.h"
#include "screens/printing/PrintFields.h"
#include "ui/controls/Fields.h"
#include "ui/controls/HintPicture.h"

namespace kladez {

using namespace Qt::StringLiterals;

ParametersBlock::ParametersBlock(PrintDialog& dialog, std::span<const ParameterField> table,
                                 const PrintParameters& start, const Follow& follow)
    : dialog_(dialog),
      remembered_rate_(dialog.Context().settings.Read(settings::kRate)),
      recount_(follow.recount) {
  for (const ParameterField& told : table) {
    QLineEdit* text = nullptr;
    if (told.value == &PrintParameters::rate) {
      text = new TextLineDecimal(&dialog);
      text->setObjectName(told.name.toString());
      rate_ = text;
    } else {
      text = NewFigure(&dialog, told.name.toString(), start.*told.value);
    }
    fields_.push_back({&told, text});
    if (told.setting == nullptr) {
      dialog.WhenTypedAndLeft(text, follow.recount);
    } else {
      dialog.WhenLeft(text, [this, text, reload = follow.reload] {
        if (text == rate_ && text->text() != own_rate_) own_rate_.reset();
        Save();
        reload();
      });
    }
  }
}

QGridLayout* ParametersBlock::NewGrid(int groups) const {
  auto* grid = new QGridLayout;
  FieldGrid rows(grid, groups);
  for (const Field& field : fields_) {
    rows.Add(NewCaption(&dialog_, field.told->caption.toString(), field.text), field.text,
             dialog_.NewHint(field.told->hint, {field.text}));
  }
  return grid;
}

void ParametersBlock::Load() {
  for (const Field& field : fields_) {
    if (field.told->value == &PrintParameters::rate) {
      field.text->setText(own_rate_.value_or(dialog_.Context().settings.Read(settings::kRate)));
    } else if (field.text->text() == kFree) {
      field.text->setText(dialog_.Source().discount);
    }
  }
}

PrintParameters ParametersBlock::Read() const {
  PrintParameters parameters;
  for (const Field& field : fields_) parameters.*field.told->value = field.text->text();
  return parameters;
}

void ParametersBlock::SetOwnRate(const QString& rate) {
  own_rate_ = rate;
  rate_->setText(rate);
  recount_();
}

bool ParametersBlock::RateIsRemembered() const { return rate_->text() == remembered_rate_; }

void ParametersBlock::Save() {
  for (const Field& field : fields_) {
    if (field.told->setting == nullptr || (field.text == rate_ && own_rate_)) continue;
    dialog_.Context().settings.Write(*field.told->setting, field.text->text());
  }
}

}  // namespace kladez
