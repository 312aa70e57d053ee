#include "ScreenDriver.h"
#include "ui/controls/UnsavedWork.h"

namespace kladez {
namespace {

const QString kQuestion = u"Сохранить изменения?"_s;
constexpr QMessageBox::StandardButton kYes = QMessageBox::Yes;
constexpr QMessageBox::StandardButton kNo = QMessageBox::No;
constexpr QMessageBox::StandardButton kCancel = QMessageBox::Cancel;

// A screen with a number that is saved or not.
struct Screen : QWidget {
  explicit Screen(QWidget* parent = nullptr) : QWidget(parent) {
    setAttribute(Qt::WA_QuitOnClose, false);
  }
  int number = 0;
  int saved = 0;
  bool disk_is_full = false;
  UnsavedWork work{this,
                   {.is_changed = [this] { return number != saved; },
                    .save =
                        [this] {
                          if (!disk_is_full) saved = number;
                          return !disk_is_full;
                        }}};
};

TEST(UnsavedWork, OneQuestionStandsBeforeEveryWayOut) {
  struct Case {
    const char* what;
    int number;
    bool disk_is_full;
    std::optional<QMessageBox::StandardButton> answer;
    bool goes;
    int saved;
  };
  for (const Case& c :
       {Case{"nothing changed", 0, false, {}, true, 0}, Case{"saved", 5, false, kYes, true, 5},
        Case{"not saved after all", 5, true, kYes, false, 0}, Case{"lost", 5, false, kNo, true, 0},
        Case{"called off", 5, false, kCancel, false, 0}}) {
    SCOPED_TRACE(c.what);
    Screen screen;
    ShowActive(&screen);
    screen.number = c.number;
    screen.disk_is_full = c.disk_is_full;
    const auto answers = c.answer ? ModalAnswers{Press(*c.answer, kQuestion)} : ModalAnswers{};
    EXPECT_EQ(screen.close(), c.goes);
    EXPECT_EQ(screen.isVisible(), !c.goes);
    EXPECT_EQ(screen.saved, c.saved);
  }
}

TEST(UnsavedWork, WhatStandsOnAWindowIsAskedFirstAndOneStayKeepsAll) {
  Screen below;
  Screen on_it(&below);
  Screen other;
  for (Screen* screen : {&below, &on_it, &other}) {
    ShowActive(screen);
    screen->number = 7;
  }
  {
    const ModalAnswers answers{Press(kNo), Press(kCancel)};
    EXPECT_FALSE(MayLeave(&below));
  }
  {
    // The first answer does not count any more.
    const ModalAnswers answers{Press(kYes), Press(kNo)};
    EXPECT_TRUE(MayLeave(&below));
  }
  EXPECT_EQ(on_it.saved, 7);
  EXPECT_EQ(below.saved, 0);
  {
    const ModalAnswers answers{};
    EXPECT_TRUE(below.close());
  }
  EXPECT_TRUE(other.isVisible());
}

TEST(UnsavedWork, WorkGivenUpIsAskedForAgainOnceSomebodyWorksOn) {
  Screen screen;
  ShowActive(&screen);
  screen.number = 7;
  {
    const ModalAnswers answers{Press(kNo)};
    EXPECT_TRUE(MayLeave());
  }
  QTest::keyClick(&screen, Qt::Key_A);
  const ModalAnswers answers{Press(kCancel)};
  EXPECT_FALSE(screen.close());
}

TEST(UnsavedWork, AFormAsksAtEscapeAndHandsItsRecordOver) {
  const auto run = [](std::optional<QMessageBox::StandardButton> answer) {
    QDialog form;
    const UnsavedWork work(&form, {.is_changed = [] { return true; },
                                   .save =
                                       [&] {
                                         form.accept();
                                         return true;
                                       }});
    std::initializer_list<ModalAnswers::Step> asked = {Escape(), Press(answer.value_or(kYes))};
    const ModalAnswers answers =
        answer ? ModalAnswers(asked)
               : ModalAnswers{[](QWidget* dialog) { qobject_cast<QDialog*>(dialog)->reject(); }};
    return form.exec();
  };
  EXPECT_EQ(run(kYes), QDialog::Accepted);
  EXPECT_EQ(run(kNo), QDialog::Rejected);
  EXPECT_EQ(run({}), QDialog::Rejected);  // its own "Отмена" asks nothing
}

TEST(UnsavedWork, ARecordOnItsWayToTheWindowBelowKeepsThatWindow) {
  Screen below;
  ShowActive(&below);
  QDialog form(&below);
  const UnsavedWork work(&form, {.is_changed = [] { return true; },
                                 .save =
                                     [&] {
                                       form.accept();
                                       return true;
                                     }});
  const ModalAnswers answers{[](QWidget*) { EXPECT_FALSE(MayLeave()); }, Press(kYes)};
  EXPECT_EQ(form.exec(), QDialog::Accepted);
}

}  // namespace
}  // namespace kladez
