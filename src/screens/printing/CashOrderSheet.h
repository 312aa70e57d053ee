// The paper form КО-1, a cash receipt order with its tear-off receipt, drawn to scale: lines and
// captions, and the places of the fields that are filled in. All measures are millimetres from the
// upper left corner of the sheet.
#pragma once

#include <QHash>
#include <QPainter>
#include <QRectF>
#include <QString>
#include <span>

#include "books/printing/CashOrder.h"

namespace kladez {

inline constexpr QSizeF kSheetSize{198, 138};

struct SheetField {
  QStringView name;  // of the control
  QStringView told;  // what it is, for assistive tools
  QRectF place;
  double points = 8.5;
  bool centred = false;
  double pitch = 0;                     // from line to line where the text wraps, else 0
  QString CashOrder::*value = nullptr;  // none: empty until typed
};

std::span<const SheetField> SheetFields();

// Where the sheet lies on a device: its corner and how many device units a millimetre has.
class SheetScale {
 public:
  SheetScale(QPointF corner, double units) : corner_(corner), units_(units) {}

  QRectF Map(const QRectF& place) const;
  QLineF Map(const QLineF& line) const { return {Map(line.p1()), Map(line.p2())}; }
  QPointF Map(const QPointF& point) const { return corner_ + point * units_; }
  // A font of so many points on paper.
  QFont Font(double points, bool bold = false) const;
  double Units() const { return units_; }

 private:
  QPointF corner_;
  double units_;
};

// By the names of the controls.
using SheetTexts = QHash<QString, QString>;

// Lines and captions.
void PaintSheet(QPainter& painter, const SheetScale& scale);
// What was filled in; a text too long for its place is drawn smaller, never cut.
void PaintSheetTexts(QPainter& painter, const SheetScale& scale, const SheetTexts& texts);

// The whole form on a page whose printable area is `page` in device units: at its true size, or
// smaller where the page is.
void PaintCashOrder(QPainter& painter, const QRectF& page, double units_per_mm,
                    const SheetTexts& texts);

}  // namespace kladez
