// The fields under "Параметры": by how much and at which rates a paper is printed. Which of them a
// paper has is told by its table; what it lacks counts as a new PrintParameters has it.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "books/printing/DocumentTotals.h"
#include "books/store/SettingsStore.h"

class QGridLayout;
class QLineEdit;

namespace kladez {

class PrintDialog;

struct ParameterField {
  QStringView name;  // of the control
  QStringView caption;
  QStringView hint;
  QString PrintParameters::*value;
  // Where a rate is kept when its field is left; a percentage is kept nowhere.
  const Setting* setting = nullptr;
};

class ParametersBlock {
 public:
  // Rates are saved when they are left, and `reload` follows; `recount` follows a percentage that
  // was typed. `start` is what the fields open with; a discount of kFree waits for the document's.
  struct Follow {
    std::function<void()> reload;
    std::function<void()> recount;
  };
  ParametersBlock(PrintDialog& dialog, std::span<const ParameterField> table,
                  const PrintParameters& start, const Follow& follow);

  // The marker that a load replaces by the document's discount, so that one that the user typed
  // survives.
  static constexpr QStringView kFree = u"free";

  // Captions, fields and question marks, `groups` side by side.
  QGridLayout* NewGrid(int groups) const;
  // What every load begins with: the rate of the settings, the discount of the document.
  void Load();
  PrintParameters Read() const;

  // A rate for this paper alone: it is kept nowhere, and stays until another one is typed.
  void SetOwnRate(const QString& rate);
  // The rate is the one that the paper opened with.
  bool RateIsRemembered() const;

 private:
  void Save();

  struct Field {
    const ParameterField* told;
    QLineEdit* text;
  };
  PrintDialog& dialog_;
  std::vector<Field> fields_;
  QLineEdit* rate_ = nullptr;
  std::optional<QString> own_rate_;
  QString remembered_rate_;
  const std::function<void()> recount_;
};

}  // namespace kladez
