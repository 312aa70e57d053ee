// The list below the sums of the home screen: Enter or a double click opens what a row is about.
#pragma once

#include "books/reports/MorningRows.h"
#include "ui/controls/RecordList.h"

namespace kladez {

class MorningList : public RecordList {
  Q_OBJECT

 public:
  explicit MorningList(QWidget* parent);

  void Show(std::vector<MorningRow> rows);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  void DocumentChosen(const DocumentRef& document);
  void GoodsChosen();
  void CopiesChosen();

 private:
  void Open();

  std::vector<MorningRow> rows_;
  RecordModel* model_;
};

}  // namespace kladez
