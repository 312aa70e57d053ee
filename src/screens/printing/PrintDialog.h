// What every paper's screen stands on: it tells a load that failed, follows a field that is left,
// and hands the page to the viewer. The fields themselves are blocks (ParametersBlock, TotalsBlock,
// PartyBlock) that a paper puts on it.
#pragma once

#include <QDialog>
#include <functional>
#include <map>
#include <optional>

#include "books/printing/DocumentTotals.h"
#include "books/stock/PrintSource.h"
#include "formats/CurrencyFile.h"
#include "formats/TaxRatesFile.h"
#include "ui/AppContext.h"

class QBoxLayout;
class QCheckBox;
class QLineEdit;

namespace kladez {

class HintPicture;

class PrintDialog : public QDialog {
  Q_OBJECT

 public:
  // `name` is the given name of the screen.
  PrintDialog(AppContext& context, const PrintSource& source, const QString& name, QWidget* parent);

  AppContext& Context() const { return context_; }
  const PrintSource& Source() const { return source_; }
  // The file of the open Database as it is now. Throws filesystem_error.
  QByteArray FileOf(QStringView path) const;
  Currency ReadCurrencyForms() const;
  QString FirstFirm() const;  // first line of the firms' directory
  // What "Параметры" opens with: the taxes are those of the Database. Where their file is damaged
  // they are the program's, and the person is told.
  PrintParameters Start() const;
  bool TaxesWereRead() const { return taxes_.has_value(); }
  HintPicture* NewHint(QStringView place, std::initializer_list<QWidget*> about);

  // A tick that is kept in the settings; `follow` follows a click.
  QCheckBox* NewKeptTick(const QString& name, const QString& caption, const Setting& setting,
                         const std::function<void()>& follow);

  // Runs a load, or a part of it, which throws InputError for a field that is no number; what was
  // filled until then stays. A failure is told as soon as the event at hand is over, so that the
  // click that left a field is not swallowed half-way.
  void Attempt(const std::function<void()>& load);
  void WhenLeft(QLineEdit* field, const std::function<void()>& follow);
  // Only if something was typed into it.
  void WhenTypedAndLeft(QLineEdit* field, const std::function<void()>& follow);

  // A rate or another parameter that was just typed is left first, so that it is in what is
  // printed; false while the failure of its load is still to be told.
  bool LeaveFields();
  // Makes the page, writes the work file, closes the screen and opens the print-out, in this order.
  // An error is told and leaves the screen open, with no page written.
  void PrintPage(const QString& file, const std::function<QByteArray()>& page);

 protected:
  // "Печать", which has the keyboard first, and "Отмена", with their twins.
  QBoxLayout* NewCommands(const QString& print_caption, const std::function<void()>& print);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void TellLater(const QString& text);

  AppContext& context_;
  const PrintSource source_;
  const std::optional<TaxRates> taxes_;
  std::map<QObject*, std::function<void()>> when_left_;
  bool untold_failure_ = false;
};

}  // namespace kladez
