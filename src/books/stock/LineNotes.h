// What is told beside a quantity or a price that somebody is about to enter. It warns and never
// refuses: a warehouse may well be booked later than the goods leave it.
#pragma once

#include <QString>
#include <QStringView>
#include <functional>
#include <optional>

namespace kladez {

struct LineNote {
  QString text;        // empty: there is nothing to tell
  bool amiss = false;  // shown in red
};

// What the warehouse of a document holds of the goods, by their name, after the lines that the
// document has already; nothing where that is not known.
using StockAfter = std::function<std::optional<double>(const QString& goods)>;

// Whether goods come to the warehouse or leave it.
enum class Flow { kIn, kOut };
// `on_hand` is what the warehouse holds after the lines that the document has already, `quantity` a
// number text. "На складе 40 кг", and where more leaves than there is "На складе 40 кг, не хватает
// 60 кг". What comes in is never short.
LineNote NoteOnHand(double on_hand, QStringView quantity, const QString& unit, Flow flow);

enum class CostIs { kShown, kSecret };
// A sale price, a number text, against the purchase price: "Цена ниже закупочной (55.00)", "Цена
// равна закупочной (55.00)". Goods without a purchase price have no note. Whoever may not see
// purchase prices is told without the number.
LineNote NoteOnPrice(QStringView price, QStringView cost, CostIs cost_is);

}  // namespace kladez
