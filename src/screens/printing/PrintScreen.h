// What all print screens share: the load that fills the fields from the opener's document and tells
// a failure, the load run anew when a rate is left, and the way of a page to the viewer.
#pragma once

#include <QDialog>
#include <functional>
#include <map>

#include "books/stock/PrintSource.h"
#include "formats/CurrencyFile.h"
#include "ui/AppContext.h"

class QLineEdit;
class QPushButton;

namespace kladez {

class HintPicture;
class TextLineDecimal;

class PrintScreen : public QDialog {
  Q_OBJECT

 public:
  TextLineDecimal* DecText1;  // "Курс $:"

 protected:
  PrintScreen(AppContext& context, const PrintSource& source, const QString& name, QWidget* parent);

  // Fills the fields; throws InputError, and what was filled until then stays.
  virtual void Load() = 0;
  // Remembers the rates in the settings.
  virtual void SaveRates() = 0;

  // Runs Load, or a part of it. A failure is told as soon as the event at hand is over, so that the
  // click that left a field is not swallowed half-way.
  void Reload();
  void Attempt(const std::function<void()>& load);
  // Leaving the field saves the rates and runs the load again.
  void ReloadWhenLeft(QLineEdit* rate);
  void WhenLeft(QLineEdit* field, const std::function<void()>& follow);

  // Makes the page, writes the work file, closes the screen and opens the print-out, in this order.
  // An error is told and leaves the screen open, with no page written.
  void PrintPage(const QString& file, const std::function<QByteArray()>& page);
  // A rate or another parameter that was just typed is left first, so that it is in what is
  // printed; false while the failure of its load is still to be told.
  bool LeaveRates();

  AppContext& Context() const { return context_; }
  const PrintSource& Source() const { return source_; }
  Currency TheCurrency() const;  // as currency.usd has it now
  QString FirstFirm() const;     // first line of the firms' directory
  HintPicture* NewHint(QStringView place, std::initializer_list<QWidget*> about);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void TellLater(const QString& text);

  AppContext& context_;
  const PrintSource source_;
  std::map<QObject*, std::function<void()>> when_left_;
  bool untold_failure_ = false;
};

}  // namespace kladez
