// A Database with two firms, a client and goods, a document to print, and a desk that tells what
// the screens hand to the viewer.
#pragma once

#include "ScreenDriver.h"
#include "SmallBooks.h"
#include "books/printing/Pages.h"

namespace kladez {

class PrintWorld {
 public:
  PrintWorld() {
    QStringList firms;
    for (const QString& name : {u"Первая"_s, u"Вторая <&>"_s}) {
      firms << name;
      for (int line = 2; line <= 15; ++line) firms << name.left(6) + QString::number(line);
    }
    QStringList client = {u"Ромашка"_s};
    for (int line = 2; line <= 14; ++line) client << u"к"_s + QString::number(line);
    SmallBooks(world_.Temp().Data(), world_.CurrentSession())
        .Warehouses(u"Главный склад|Магазин"_lines)
        .Parties(PartyKind::kFirm, u"Первая|Вторая <&>"_lines)
        .Parties(PartyKind::kClient, {u"Ромашка"_s})
        .Parties(PartyKind::kSupplier, {u"Завод"_s})
        .PartyFile(PartyKind::kFirm, firms)
        .PartyFile(PartyKind::kClient, client)
        .Goods(u" Чай|Чай <&>|Индия|ГТД/1|пач.|1.00"_lines)
        .Roubles();
    source.number = u"5"_s;
    source.date = u"12.03.2026"_s;
    source.party = u"Ромашка"_s;
    source.warehouse = u"Главный склад"_s;
    source.total = u"1180.00"_s;
    source.discount = u"10"_s;
    source.lines = {{u"Чай <&>"_s, u"10"_s, u"пач."_s, u"60"_s, u"118.00"_s, u"106.20"_s}};
  }

  ScreenWorld* operator->() { return &world_; }

  // What screens are given here: when the viewer starts, the desk notes whether the screen was
  // gone.
  AppContext& Context() { return context_; }
  void Watch(QWidget* screen) { screen_ = screen; }
  bool ScreenWasClosedFirst() const { return closed_first_; }
  int ViewerStarts() const { return viewer_starts_; }
  QByteArray PageShown() { return world_.Temp().Bytes(u"out.htm"_s); }

  PrintSource source;

 private:
  ScreenWorld world_;
  QWidget* screen_ = nullptr;
  bool closed_first_ = false;
  int viewer_starts_ = 0;
  PrintOutDesk desk_{world_.Temp().Data(), [this] {
                       ++viewer_starts_;
                       closed_first_ = screen_ != nullptr && !screen_->isVisible();
                     }};
  AppContext context_{world_.Context().data, world_.Context().session, world_.Context().settings,
                      world_.Context().clock, desk_};
};

// The message that a load which fails leaves behind, told after the event at hand.
inline ModalAnswers::Step InputErrorTold() {
  return [](QWidget* dialog) {
    auto* box = qobject_cast<QMessageBox*>(dialog);
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->text(), u"Ошибка ввода"_s);
    EXPECT_EQ(box->windowTitle(), u"Внимание!"_s);
    EXPECT_EQ(box->icon(), QMessageBox::Critical);
    box->accept();
  };
}

inline void LetMessagesCome() { QTest::qWait(50); }

}  // namespace kladez
