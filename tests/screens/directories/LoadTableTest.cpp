#include <QClipboard>
#include <QFileDialog>

#include "ScreenDriver.h"
#include "SmallBooks.h"
#include "books/store/SaveSet.h"
#include "screens/directories/GoodsDirectoryScreen.h"
#include "screens/directories/LoadTableDialog.h"

namespace kladez {
namespace {

class LoadTableTest : public testing::Test {
 protected:
  LoadTableTest() {
    SmallBooks(world_.Temp().Data(), world_.CurrentSession(), u"Лавка"_s)
        .Goods(u" Чай|Улун|Китай|-|пач.|90.00"_lines);
  }
  QString Summary(QWidget* dialog) { return Find<QLabel>(dialog, "summary")->text(); }
  QStringList Goods() { return world_.Temp().Lines(u"0001\\SPR\\товар.spr"_s); }

  ScreenWorld world_;
};

TEST_F(LoadTableTest, AFileIsShownItsColumnsChangedAndLoaded) {
  QTemporaryDir folder;
  QFile file(folder.filePath(u"список.csv"_s));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(
      EncodeText(u"Товар;Старая цена;Новая цена\r\nУлун;90;95,5\r\nСоль;9;10\r\n;1;1\r\n"_s));
  file.close();
  LoadTableDialog dialog(world_.Context(), {}, -1, nullptr);
  ShowActive(&dialog);
  EXPECT_FALSE(Find<QPushButton>(&dialog, "ok")->isEnabled());
  ModalAnswers answers{[&](QWidget* chooser) {
    kladez::Enter(chooser, "fileNameEdit", file.fileName());
    QTest::keyClick(Find<QLineEdit>(chooser, "fileNameEdit"), Qt::Key_Return);
  }};
  Click(&dialog, "open");
  EXPECT_EQ(Summary(&dialog),
            u"Новых товаров: 1, изменится: 0, без изменений: 1, отказов: 1. Цены "
            "реализации не загружаются: выберите прайс-лист."_s);
  auto* purchase = Find<QComboBox>(&dialog, "column3");
  EXPECT_EQ(purchase->currentText(), u"B: Старая цена"_s);
  purchase->setFocus();
  QTest::keyClick(purchase, Qt::Key_Down);  // "C: Новая цена", which was the sale price
  EXPECT_EQ(Find<QComboBox>(&dialog, "column4")->currentText(), u"нет"_s);
  EXPECT_EQ(Summary(&dialog), u"Новых товаров: 1, изменится: 1, без изменений: 0, отказов: 1."_s);
  EXPECT_EQ(RowTexts(&dialog, 0).join(u'|'),
            u"2|изменится|Улун|пач.|95.50||Цена закупа: 90.00 → 95.50"_s);
  Find<QCheckBox>(&dialog, "add_new")->setChecked(false);
  auto* filter = Find<QComboBox>(&dialog, "filter");
  filter->setFocus();
  QTest::keyClick(filter, Qt::Key_End);
  QTest::keyClick(filter, Qt::Key_Up);
  EXPECT_EQ(RowTexts(&dialog, 0).join(u'|'), u"3|отказ|Соль||||Такого товара в справочнике нет"_s);
  Click(&dialog, "ok");
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_EQ(Goods(), u" Чай|Улун|Китай|-|пач.|95.50"_lines);
}

TEST_F(LoadTableTest, WhatWasSavedMeanwhileIsComparedAnew) {
  LoadTableDialog dialog(world_.Context(), {}, -1, nullptr);
  ShowActive(&dialog);
  {
    QGuiApplication::clipboard()->clear();
    ModalAnswers answers{Press(
        QMessageBox::Ok, u"В буфере обмена нет таблицы. Скопируйте строки в программе таблиц."_s)};
    QTest::keyClick(&dialog, Qt::Key_V, Qt::ControlModifier);
  }
  QGuiApplication::clipboard()->setText(u"Наименование\tЦена\nУлун\t95\n"_s);
  Click(&dialog, "paste");
  EXPECT_EQ(RowTexts(&dialog, 0).last(), u"Цена закупа: 90.00 → 95.00"_s);
  world_.Temp().PutLines(u"0001\\SPR\\товар.spr"_s, u" Чай|Улун|Китай|-|пач.|91.00"_lines);
  {
    ModalAnswers answers{Press(QMessageBox::Ok)};
    Click(&dialog, "ok");
  }
  EXPECT_EQ(RowTexts(&dialog, 0).last(), u"Цена закупа: 91.00 → 95.00"_s);
  Click(&dialog, "ok");
  EXPECT_EQ(Goods().last(), u"95.00"_s);
}

TEST_F(LoadTableTest, TheDirectoryShowsWhatWasLoadedAndASellerMayNot) {
  GoodsDirectoryScreen screen(world_.Context());
  ShowActive(&screen);
  QGuiApplication::clipboard()->setText(u"Наименование\tЦена\nСоль\t9\n"_s);
  {
    ModalAnswers answers{[](QWidget* dialog) {
      Click(dialog, "paste");
      Click(dialog, "ok");
    }};
    Click(&screen, "table");
  }
  EXPECT_EQ(RowTexts(&screen, 3).first(), u"Соль"_s);
  world_.CurrentSession().role = UserRole::kSeller;
  ModalAnswers answers{Press(QMessageBox::Ok, u"У вас не достаточно полномочий"_s)};
  Click(&screen, "table");
}

}  // namespace
}  // namespace kladez
