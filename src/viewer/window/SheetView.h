// The sheets of a page as they will come out of the printer, one below the other.
#pragma once

#include <QAbstractScrollArea>
#include <QCache>
#include <QPixmap>

#include "viewer/paper/PaperLayout.h"

namespace kladez::viewer {

class SheetView : public QAbstractScrollArea {
  Q_OBJECT

 public:
  // Shows no sheets yet.
  explicit SheetView(QWidget* parent = nullptr);

  // Shows the sheets of `layout`, which has to stay; null shows none. To be called again when it
  // was laid out anew.
  void ShowSheets(const PaperLayout* layout);

  // The sheet in the middle of the window, from 0.
  int CurrentSheet() const;
  void GoToSheet(int sheet);

  // A whole sheet in the window, or its width.
  void SetWholeSheet(bool whole);

 signals:
  // The sheet at the top of the view, from 0.
  void CurrentSheetChanged(int sheet);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Arrange();
  QSize SheetSize() const;
  QRect SheetRect(int sheet) const;
  QPixmap* Picture(int sheet);

  const PaperLayout* layout_ = nullptr;
  bool whole_ = true;
  int current_ = 0;
  double dpi_ = 96;
  QCache<int, QPixmap> pictures_;
};

}  // namespace kladez::viewer
