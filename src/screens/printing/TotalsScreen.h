// A print screen with the totals of a document and its print parameters: waybills, tax invoice,
// bill.
#pragma once

#include "books/printing/DocumentTotals.h"
#include "screens/printing/PrintScreen.h"

class QCheckBox;
class QGridLayout;

namespace kladez {

class TextLine;

class TotalsScreen : public PrintScreen {
  Q_OBJECT

 public:
  // A transfer has neither a discount nor taxes: it lacks the fields marked with a star.
  TextLine* Text18;             // "Цены:"
  TextLine* Text19 = nullptr;   // * "Скидка %:"
  TextLine* Text7 = nullptr;    // * "НДС:"
  TextLine* Text8 = nullptr;    // * "НСП:"
  TextLine* Text6;              // "Всего:"
  QCheckBox* Check5 = nullptr;  // * "Включая НДС:"
  TextLine* Text9 = nullptr;    // *
  QCheckBox* Check6 = nullptr;  // * "Налог с продаж:"
  TextLine* Text10 = nullptr;   // *
  TextLine* Text20;             // "Итого к оплате:"

 protected:
  enum class Taxes { kNone, kShown };
  // `discount` is what Text19 starts with: kFree takes the document's at the first load.
  TotalsScreen(AppContext& context, const PrintSource& source, const QString& name, Taxes taxes,
               const QString& discount, QWidget* parent);

  static constexpr QStringView kFree = u"free";

  // The fields of either block, each with its caption and question mark.
  QGridLayout* NewTotalsBlock();
  QGridLayout* NewWordsBlock();
  QGridLayout* NewParametersBlock(int groups_a_row);

  // The part of the load that works the totals out; the head of the form stays as it stands.
  virtual void LoadTotals() = 0;
  void SaveRates() override;
  // What a load begins with: the rate of the settings, and the document's discount in the place of
  // "free", so that a discount the user typed survives.
  void LoadRates();
  PrintParameters Parameters() const;
  TotalTexts Totals() const;
  void ShowTotals(const TotalTexts& totals);

 private:
  // A new percentage of the prices or discount is in the totals as soon as its field is left.
  void FollowWhenLeft(TextLine* percentage);
};

}  // namespace kladez
