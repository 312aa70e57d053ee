// What a list shows of a register's rows: those that a search finds, in the order of a column; and
// what rows come to. With nothing sought and no column chosen it is the register itself.
#pragma once

#include <QString>
#include <vector>

#include "books/stock/DocumentGoods.h"
#include "books/stock/DocumentRegister.h"

namespace kladez {

struct RegisterOrder {
  QString DocumentHead::*field = nullptr;  // null: as the register has them
  bool descending = false;

  bool operator==(const RegisterOrder&) const = default;
};

struct RegisterSums {
  int count = 0;
  double sum = 0;      // before the discount
  double net_sum = 0;  // after it; the same where the kind has none
};

class RegisterView {
 public:
  // Shows all rows; they outlive the view.
  RegisterView(DocumentKind kind, const std::vector<RegisterRow>& rows);

  // The register was loaded anew: search and order are applied again, to heads alone.
  void TakeRows();
  // Shows the documents in which each word of the text is found: at the beginning of the number, in
  // a party or warehouse, in the name of goods where `goods` were gathered, or as a sum before or
  // after the discount ("1500" is any of 1500 roubles, "1500,5" one of 1500.50). A text in the
  // other layout of the keyboard is read as well.
  void Search(const QString& text, const DocumentGoods* goods);
  void Sort(RegisterOrder order);
  const RegisterOrder& Order() const { return order_; }

  // The rows of the register that are shown, from the first on.
  int Count() const { return static_cast<int>(shown_.size()); }
  const RegisterRow& Row(int place) const { return rows_[static_cast<size_t>(shown_[place])]; }
  // The place of a file, -1 where it is not shown.
  int PlaceOf(const QString& file) const;

  RegisterSums Sums() const;
  RegisterSums Sums(const std::vector<int>& places) const;
  // "Документов:2     Сумма:10.50", of what is shown.
  QString StatusText() const;

 private:
  bool FindsInHead(int row, const QString& word) const;
  std::vector<bool> Found(const QStringList& words, const DocumentGoods* goods) const;
  void Show();
  void SortShown();

  DocumentKind kind_;
  const std::vector<RegisterRow>& rows_;
  QString text_;
  RegisterOrder order_;
  std::vector<bool> found_;  // empty: all
  std::vector<int> shown_;
  std::vector<QString> parties_;  // folded, once somebody searches
};

}  // namespace kladez
