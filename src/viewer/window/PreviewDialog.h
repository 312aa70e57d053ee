// The print preview: the sheets as they will be, and all that a person chooses about them.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <memory>

#include "viewer/paper/PaperLayout.h"
#include "viewer/window/SheetView.h"

namespace kladez::viewer {

class PreviewDialog : public QDialog {
  Q_OBJECT

 public:
  // The preview of a page; Prepare lays it out.
  PreviewDialog(std::shared_ptr<const Page> page, QWidget* parent = nullptr);
  ~PreviewDialog() override;

  // Cuts the page into sheets, in the format that is proposed for it. Gives false when the person
  // pressed "Отмена" meanwhile.
  bool Prepare();

  // What is shown and would be printed; there is one after Prepare.
  const PaperLayout& layout() const { return *layout_; }

 private:
  void MakeControls();
  QLayout* MakePanel();
  QLayout* MakeSheetBar();
  void FillPrinters();
  void ChoosePrinter();
  void ChooseOrientation();
  void SetUpPage();
  bool LayOut(const PaperFormat& format);
  void ShowFormat();
  void ShowCurrentSheet();
  void Print();
  void SavePdf();

  std::shared_ptr<const Page> page_;
  std::unique_ptr<PaperLayout> layout_;
  std::unique_ptr<QPrinter> printer_;
  PaperFormat format_;
  bool is_proposed_landscape_ = false;

  SheetView* sheets_;
  QComboBox* printers_;      // "Принтер:"
  QSpinBox* copies_;         // "Копий:"
  QLineEdit* range_;         // "Листы:"
  QRadioButton* portrait_;   // "Книжная"
  QRadioButton* landscape_;  // "Альбомная"
  QCheckBox* fit_width_;     // "По ширине листа"
  QPushButton* page_setup_;  // "Параметры страницы…"
  QPushButton* pdf_;         // "Сохранить в PDF…"
  QPushButton* print_;       // "Печать"
  QPushButton* close_;       // "Закрыть"
  QLabel* scale_;
  QLabel* proposal_;
  QLabel* current_;
};

}  // namespace kladez::viewer
