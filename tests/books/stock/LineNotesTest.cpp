#include <gtest/gtest.h>

#include "books/stock/LineNotes.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

TEST(LineNotes, WhatIsShortIsTheDifferenceAsPeopleReckon) {
  struct Case {
    double on_hand;
    QString quantity;
    QString unit;
    Flow flow;
    QString text;
    bool amiss;
  };
  for (const Case& c :
       {Case{40, u"100"_s, u"кг"_s, Flow::kOut, u"На складе 40 кг, не хватает 60 кг"_s, true},
        Case{40, u"40"_s, u"кг"_s, Flow::kOut, u"На складе 40 кг"_s, false},
        Case{40, u"100"_s, u"кг"_s, Flow::kIn, u"На складе 40 кг"_s, false},
        Case{0.1 + 0.2, u"0.3"_s, u"кг"_s, Flow::kOut, u"На складе 0.3 кг"_s, false},
        Case{-5, u"1"_s, {}, Flow::kOut, u"На складе -5, не хватает 6"_s, true},
        Case{-5, u""_s, {}, Flow::kOut, u"На складе -5"_s, false},
        Case{0, u"1,5"_s, {}, Flow::kOut, u"На складе 0"_s, false}}) {
    const LineNote note = NoteOnHand(c.on_hand, c.quantity, c.unit, c.flow);
    EXPECT_EQ(note.text, c.text);
    EXPECT_EQ(note.amiss, c.amiss) << c.text.toStdString();
  }
}

TEST(LineNotes, APriceIsComparedAsItIsPrinted) {
  struct Case {
    QString price;
    QString cost;
    CostIs cost_is;
    QString text;
  };
  for (const Case& c :
       {Case{u"54.99"_s, u"55"_s, CostIs::kShown, u"Цена ниже закупочной (55.00)"_s},
        Case{u"54.99"_s, u"55"_s, CostIs::kSecret, u"Цена ниже закупочной"_s},
        Case{u"55"_s, u"54.999"_s, CostIs::kShown, u"Цена равна закупочной (55.00)"_s},
        Case{u"55.01"_s, u"55"_s, CostIs::kShown, {}}, Case{u"0"_s, u"0"_s, CostIs::kShown, {}},
        Case{u"1"_s, u"нет"_s, CostIs::kShown, {}}, Case{u""_s, u"55"_s, CostIs::kShown, {}}}) {
    const LineNote note = NoteOnPrice(c.price, c.cost, c.cost_is);
    EXPECT_EQ(note.text, c.text) << c.price.toStdString();
    EXPECT_EQ(note.amiss, !c.text.isEmpty());
  }
}

}  // namespace
}  // namespace kladez
