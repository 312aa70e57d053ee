#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <QWheelEvent>

#include "viewer/SamplePages.h"
#include "viewer/page/PageReader.h"
#include "viewer/window/PreviewDialog.h"
#include "viewer/window/Printing.h"
#include "viewer/window/ViewerLook.h"
#include "viewer/window/ViewerWindow.h"

namespace kladez::viewer {
namespace {

using namespace Qt::StringLiterals;

// Closes the message that the next command brings up and keeps what it said.
class MessageCatcher {
 public:
  MessageCatcher() {
    timer_.setInterval(5);
    QObject::connect(&timer_, &QTimer::timeout, [this] {
      if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        title_ = box->windowTitle();
        text_ = box->text();
        box->close();
      }
    });
    timer_.start();
  }
  const QString& title() const { return title_; }
  const QString& text() const { return text_; }

 private:
  QTimer timer_;
  QString title_;
  QString text_;
};

class ViewerWindowTest : public ::testing::Test {
 protected:
  ViewerWindowTest() : window_(QDir(directory_.path()), u"out.htm"_s) {}

  void Put(const QString& page) {
    QFile file(Path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(ToWindows1251(page));
  }
  QString Path() const { return directory_.filePath(u"out.htm"_s); }
  void LoadAndShow(const QString& page) {
    Put(page);
    ASSERT_TRUE(window_.Load());
    window_.show();
    QApplication::processEvents();
  }
  template <typename Control>
  Control* Find(const QString& name) {
    auto* control = window_.findChild<Control*>(name);
    EXPECT_NE(control, nullptr) << name.toStdString();
    return control;
  }
  PageView* View() { return Find<PageView>(u"PageView"_s); }
  QString Text() {
    View()->SelectAll();
    return View()->SelectedText();
  }

  QTemporaryDir directory_;
  ViewerWindow window_;
};

TEST_F(ViewerWindowTest, MissingPageIsToldWithWhatToDo) {
  MessageCatcher message;
  EXPECT_FALSE(window_.Load());
  EXPECT_EQ(message.title(), u"Внимание!"_s);
  EXPECT_EQ(message.text(), u"Нет печатной формы: файл\n"_s + Path() +
                                u"\nне найден.\n\nВыведите документ на печать из программы еще "
                                "раз."_s);
  EXPECT_FALSE(window_.isVisible());
}

TEST_F(ViewerWindowTest, UnreadablePageIsToldWithTheReason) {
  ASSERT_TRUE(QDir(directory_.path()).mkdir(u"out.htm"_s));
  MessageCatcher message;
  EXPECT_FALSE(window_.Load());
  EXPECT_TRUE(message.text().contains(Path()));
  EXPECT_TRUE(message.text().contains(u"прочитать не удалось"_s));
}

TEST_F(ViewerWindowTest, OpensAtTheTopUnderItsTitle) {
  LoadAndShow(WaybillPage(200, u"К"_s));
  EXPECT_EQ(window_.windowTitle(), u"Накладная"_s);
  EXPECT_EQ(View()->verticalScrollBar()->value(), 0);
  EXPECT_GT(View()->verticalScrollBar()->maximum(), 1000);
}

TEST_F(ViewerWindowTest, TablesOfTheWholeWidthStandBetweenTheMarginsOfTheSheet) {
  for (const QString& page :
       {WaybillPage(3, u"К"_s), ReportPage(9), BillPage(3), PricePage(3, 2)}) {
    LoadAndShow(page);
    window_.resize(View()->WidthForPage(), window_.height());
    QApplication::processEvents();
    const QImage sheet = View()->viewport()->grab().toImage();
    const auto is_dark = [&sheet](int x, int y) { return qGray(sheet.pixel(x, y)) < 64; };
    const double margin = look::kSheetEdge;
    int lines = 0;
    for (int y = 0; y < sheet.height(); ++y) {
      int left = 0;
      int right = sheet.width() - 1;
      while (left < right && !is_dark(left, y)) ++left;
      while (left < right && !is_dark(right, y)) --right;
      if (right - left < sheet.width() / 2 || !is_dark((left + right) / 2, y)) continue;
      int dark = 0;
      for (int x = left; x <= right; ++x) dark += is_dark(x, y);
      if (dark <= right - left) continue;
      ++lines;
      EXPECT_NEAR(left, margin, 1) << window_.windowTitle().toStdString();
      EXPECT_NEAR(right, sheet.width() - margin, 2) << window_.windowTitle().toStdString();
    }
    EXPECT_GT(lines, 4) << window_.windowTitle().toStdString();
  }
}

TEST_F(ViewerWindowTest, KeepsItsContentWhenThePageOnDiskIsReplaced) {
  LoadAndShow(WaybillPage(3, u"Первый"_s));
  Put(WaybillPage(3, u"Второй"_s));
  View()->SetZoom(150);
  QApplication::processEvents();
  EXPECT_TRUE(Text().contains(u"Первый"_s));

  QTest::keyClick(&window_, Qt::Key_F5);
  EXPECT_TRUE(Text().contains(u"Второй"_s));

  ASSERT_TRUE(QFile::remove(Path()));
  MessageCatcher message;
  QTest::keyClick(&window_, Qt::Key_F5);
  EXPECT_TRUE(message.text().contains(u"не найден"_s));
  EXPECT_TRUE(Text().contains(u"Второй"_s)) << "a failed reload lost the page";
}

TEST_F(ViewerWindowTest, ZoomsByKeysAndWheelAndBack) {
  LoadAndShow(WaybillPage(3, u"К"_s));
  const int width = View()->StripWidth();
  QTest::keyClick(&window_, Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(View()->ZoomPercent(), 110);
  EXPECT_GT(View()->StripWidth(), width);
  QTest::keyClick(&window_, Qt::Key_Minus, Qt::ControlModifier);
  QTest::keyClick(&window_, Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(View()->ZoomPercent(), 90);
  QWheelEvent wheel(QPointF(50, 50), QPointF(50, 50), {}, {0, 120}, Qt::NoButton,
                    Qt::ControlModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(View()->viewport(), &wheel);
  QApplication::sendEvent(View()->viewport(), &wheel);
  EXPECT_EQ(View()->ZoomPercent(), 110);
  QTest::keyClick(&window_, Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(View()->ZoomPercent(), 100);
  EXPECT_EQ(View()->StripWidth(), width);
}

TEST_F(ViewerWindowTest, ZoomEnlargesEachLetterAndPicture) {
  // Also the letters whose size is told in points, and what holds no letters at all.
  LoadAndShow(InvoicePage(20) + u"<img src=temp.png>"_s);
  QApplication::processEvents();
  const auto height = [this] {
    return View()->verticalScrollBar()->maximum() + View()->viewport()->height();
  };
  const double before = height();
  View()->SetZoom(200);
  EXPECT_NEAR(height() / before, 2, 0.06);
}

TEST_F(ViewerWindowTest, FindsForwardBackwardAndFromTheOtherEnd) {
  LoadAndShow(WaybillPage(300, u"К"_s));
  QTest::keyClick(&window_, Qt::Key_F, Qt::ControlModifier);
  auto* text = Find<QLineEdit>(u"FindText"_s);
  text->setText(u"болт м8х40"_s);  // letter case does not matter
  QTest::keyClick(text, Qt::Key_Return);
  EXPECT_EQ(View()->SelectedText(), u"Болт М8х40"_s);
  const auto place = [this] {
    return View()->SelectionPoint().y() + View()->verticalScrollBar()->value();
  };
  const int first = place();
  QTest::keyClick(text, Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_GT(place(), first) << "did not go on from the end";
  EXPECT_GT(View()->verticalScrollBar()->value(), 0) << "what was found is out of sight";
  QTest::keyClick(text, Qt::Key_Return);
  EXPECT_EQ(place(), first);

  text->setText(u"нет такого"_s);
  QTest::keyClick(text, Qt::Key_Return);
  EXPECT_EQ(Find<QLabel>(u"FindResult"_s)->text(), u"Не найдено"_s);
  QTest::keyClick(text, Qt::Key_Escape);
  EXPECT_FALSE(text->isVisible());
}

TEST_F(ViewerWindowTest, CopiedRowsComeInColumns) {
  LoadAndShow(WaybillPage(2, u"Ромашка"_s));
  QTest::keyClick(&window_, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&window_, Qt::Key_C, Qt::ControlModifier);
  const QString copied = QApplication::clipboard()->text();
  EXPECT_TRUE(copied.contains(u"Кому:Ромашка\n"_s));
  EXPECT_TRUE(
      copied.contains(u"\n1\t Гвозди строительные 100 мм №1 \t2 \t125.50 \t12550.00 \n2\t"_s));
}

// The view draws the page itself, so that nobody else tells these tools what stands on it.
TEST_F(ViewerWindowTest, AssistiveToolsReadTheWholePage) {
  LoadAndShow(WaybillPage(300, u"К"_s));
  QAccessibleInterface* access = QAccessible::queryAccessibleInterface(View());
  ASSERT_NE(access, nullptr);
  ASSERT_NE(access->textInterface(), nullptr);
  EXPECT_EQ(access->role(), QAccessible::Document);
  const QString read = access->textInterface()->text(0, access->textInterface()->characterCount());
  EXPECT_TRUE(read.contains(u"Ромашка"_s));
  EXPECT_GT(read.count(u'\n'), 300);
  LoadAndShow(u"<p>Другая страница"_s);
  EXPECT_TRUE(access->textInterface()->text(0, 100).contains(u"Другая"_s));
}

TEST_F(ViewerWindowTest, DraggedOverRectangleHasItsColumnsOnly) {
  LoadAndShow(WaybillPage(3, u"К"_s));
  ASSERT_TRUE(View()->FindText(u"№2"_s, false));
  const QPoint row = View()->SelectionPoint();
  ASSERT_TRUE(View()->FindText(u"Кол-во"_s, false));
  const int left = View()->SelectionPoint().x() + 4;
  ASSERT_TRUE(View()->FindText(u"Цена"_s, false));
  const QPoint heading = View()->SelectionPoint();
  QTest::mousePress(View()->viewport(), Qt::LeftButton, {}, {heading.x() + 4, row.y()});
  QTest::mouseMove(View()->viewport(), {left, row.y()});
  QMouseEvent move(QEvent::MouseMove, QPointF(left, heading.y()), QPointF(left, heading.y()),
                   Qt::NoButton, Qt::LeftButton, {});
  QApplication::sendEvent(View()->viewport(), &move);
  QTest::mouseRelease(View()->viewport(), Qt::LeftButton, {}, {left, heading.y()});
  EXPECT_EQ(View()->SelectedText(), u"Кол-во \tЦена \n2 \t125.50 \n3 \t125.50 "_s);
}

TEST_F(ViewerWindowTest, WhatIsSelectedOverManyChunksIsWhole) {
  LoadAndShow(ReportPage(1300));
  const QString text = Text();
  EXPECT_EQ(text.count(u"05.03.26\t"_s), 1300);
  EXPECT_TRUE(text.contains(u"№200\tшт. \t3 \t376.50 \n05.03.26\t"_s)) << "between two chunks";
  QTest::keyClick(&window_, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), text);
}

TEST(PreviewDialogTest, ProposesLandscapeAndObeysTheChoices) {
  const auto page =
      std::make_shared<Page>(ReadPage(InvoicePage(60), [](const QString&) { return QImage(); }));
  PreviewDialog dialog(page);
  ASSERT_TRUE(dialog.Prepare());
  dialog.show();
  EXPECT_TRUE(dialog.findChild<QRadioButton*>(u"Landscape"_s)->isChecked());
  EXPECT_TRUE(dialog.findChild<QLabel*>(u"Proposal"_s)->isVisible());
  EXPECT_TRUE(dialog.findChild<QCheckBox*>(u"FitWidth"_s)->isChecked());
  EXPECT_EQ(dialog.findChild<QLabel*>(u"CurrentSheet"_s)->text(), u"Лист 1 из 3"_s);

  dialog.findChild<QRadioButton*>(u"Portrait"_s)->click();
  EXPECT_EQ(dialog.layout().format().page.orientation(), QPageLayout::Portrait);
  EXPECT_LT(dialog.layout().Scale(), 0.85);
  EXPECT_FALSE(dialog.findChild<QLabel*>(u"Proposal"_s)->isVisible());
  const int sheets = dialog.layout().SheetCount();

  dialog.findChild<QCheckBox*>(u"FitWidth"_s)->click();
  EXPECT_EQ(dialog.layout().Scale(), 1);
  EXPECT_GT(dialog.layout().SheetCount(), sheets);
}

TEST(PreviewDialogTest, IsAllInSightOnASmallDisplay) {
  const auto page =
      std::make_shared<Page>(ReadPage(InvoicePage(3), [](const QString&) { return QImage(); }));
  PreviewDialog dialog(page);
  ASSERT_TRUE(dialog.Prepare());
  dialog.show();
  const QSize room = dialog.screen()->availableSize();
  EXPECT_LT(dialog.width(), room.width());
  EXPECT_LT(dialog.height(), room.height());
  const auto* print = dialog.findChild<QPushButton*>(u"Print"_s);
  EXPECT_TRUE(dialog.rect().contains(QRect(print->mapTo(&dialog, QPoint()), print->size())));
}

TEST(PrintingTest, SheetsThatAPersonAsksFor) {
  using Sheets = std::vector<int>;
  EXPECT_EQ(ParseSheets(u" "_s, 3), (Sheets{0, 1, 2}));
  EXPECT_EQ(ParseSheets(u"1-2, 3"_s, 3), (Sheets{0, 1, 2}));
  EXPECT_EQ(ParseSheets(u"3,1"_s, 3), (Sheets{2, 0}));
  for (const QString& refused : {u"0"_s, u"4"_s, u"2-1"_s, u"1-"_s, u"все"_s, u"1,,2"_s})
    EXPECT_EQ(ParseSheets(refused, 3), std::nullopt) << refused.toStdString();
}

TEST(PrintingTest, FileDialogTellsKindAndDayInRussian) {
  const QTemporaryDir folder;
  ASSERT_TRUE(QDir(folder.path()).mkdir(u"Бумаги"_s));
  QFile page(folder.filePath(u"накладная.pdf"_s));
  ASSERT_TRUE(page.open(QIODevice::WriteOnly));
  ASSERT_TRUE(page.setFileTime(QDateTime({2026, 3, 5}, {10, 20}), QFile::FileModificationTime));
  page.close();
  const QLocale before;
  QLocale::setDefault(QLocale(QLocale::Russian, QLocale::Russia));
  QStringList told;
  QTimer::singleShot(0, [&] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    dialog->setDirectory(folder.path());
    auto* list = dialog->findChild<QTreeView*>(u"treeView"_s);
    const auto row = [&](int at, int column) {
      return list->model()->index(at, column, list->rootIndex()).data().toString();
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return list->model()->rowCount(list->rootIndex()) == 2; }));
    for (int at = 0; at < 2; ++at) told << row(at, 0) + u": "_s + row(at, 2);
    told.sort();
    told << row(0, 3) << row(1, 3);
    dialog->reject();
  });
  EXPECT_EQ(AskPdfPath(u"Накладная"_s, nullptr), QString());
  QLocale::setDefault(before);

  ASSERT_EQ(told.size(), 4);
  EXPECT_EQ(told[0], u"Бумаги: Папка"_s);
  EXPECT_EQ(told[1], u"накладная.pdf: Файл PDF"_s);
  EXPECT_TRUE(told.contains(u"05.03.2026 10:20"_s)) << told.join(u'\n').toStdString();
}

TEST(ViewerSpeedTest, LongPageAnswersBeforeAllOfItIsPrepared) {
  const auto page =
      std::make_shared<Page>(ReadPage(ReportPage(5000), [](const QString&) { return QImage(); }));
  ViewerWindow window(QDir(), {});
  window.ShowPage(page);
  auto* view = window.findChild<PageView*>();
  int reports = 0;
  int last_done = 0;
  int total = 0;
  QObject::connect(view, &PageView::Prepared, [&](int done, int all) {
    ++reports;
    last_done = done;
    total = all;
  });
  window.show();
  while (reports == 0 || last_done < total)
    QApplication::processEvents(QEventLoop::WaitForMoreEvents);
  EXPECT_GT(reports, 3) << "the page was laid out in one go";
  EXPECT_FALSE(window.findChild<QProgressBar*>(u"LoadProgress"_s)->isVisible());
}

}  // namespace
}  // namespace kladez::viewer
