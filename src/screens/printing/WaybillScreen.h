// The three waybills' screen: one machinery, told apart by the kind of document printed.
#pragma once

#include "books/printing/WaybillPage.h"
#include "formats/DocumentFile.h"
#include "screens/printing/TotalsScreen.h"

class QComboBox;

namespace kladez {

class FoldButton;

class WaybillScreen : public TotalsScreen {
  Q_OBJECT

 public:
  // A transfer lacks the fields marked with a star.
  TextLine* Text1;              // the title
  QCheckBox* Check7;            // "Примеч.:"
  TextLine* Text12;             // the note
  QCheckBox* Check1;            // "От кого:", "Откуда:"
  QComboBox* Text2;             // who or where from
  QCheckBox* Check2;            // "Кому:", "Куда:"
  QComboBox* Text3;             // who or where to
  QCheckBox* Check3;            // "Основание:"
  TextLine* Text4;              // the grounds
  QCheckBox* Check4 = nullptr;  // * "Склад:"
  TextLine* Text5 = nullptr;    // * the warehouse
  FoldButton* GoldButton1;      // "+ ... Параметры"
  QPushButton* Command1;        // "Печать"
  QPushButton* Command2;        // "Отмена"

 protected:
  WaybillScreen(AppContext& context, const PrintSource& source, const QString& name,
                DocumentKind kind, QWidget* parent);

  void Load() override;
  void LoadTotals() override;

 private:
  void Build();
  QLayout* NewHeadBlock();
  void LoadParties();
  WaybillForm Form() const;

  const DocumentKind kind_;
};

}  // namespace kladez
