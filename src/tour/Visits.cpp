#include "tour/Visits.h"

#include <QClipboard>
#include <QGuiApplication>
#include <array>

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// Shows a dialog that is in front by now, and closes it.
void ShowAndLeave(Robot& robot, const QString& screen) {
  robot.WaitFor(screen);
  robot.Picture(screen);
  robot.Press(Qt::Key_Escape);
  robot.WaitUntilGone(screen);
}

void ShowDialog(Robot& robot, const QString& opener, const QString& screen) {
  robot.Click(opener);
  ShowAndLeave(robot, screen);
}

void OpenChild(Robot& robot, const QString& menu, const QString& screen) {
  robot.OpenMenu(menu);
  robot.WaitFor(screen);
}

struct Dialog {
  QStringView opener;
  QStringView screen;
};

// The first document of a register in its editor, with the dialogs that open from there, and its
// properties.
void VisitDocuments(Robot& robot, const QString& menu, const QString& register_screen,
                    const QString& editor, std::initializer_list<Dialog> dialogs,
                    const QString& properties) {
  OpenChild(robot, menu, register_screen);
  robot.Click(u"Command2"_s);
  robot.WaitFor(editor);
  for (const Dialog& dialog : dialogs) {
    ShowDialog(robot, dialog.opener.toString(), dialog.screen.toString());
  }
  robot.Press(Qt::Key_Escape);
  robot.WaitFor(register_screen);
  ShowDialog(robot, u"Command8"_s, properties);
}

void MakeTransfer(Robot& robot) {
  OpenChild(robot, u"mnu_Sklad_VO"_s, u"vnutr"_s);
  robot.Click(u"Command1"_s);
  robot.WaitFor(u"vnutrNew"_s);
  robot.Choose(u"destination"_s, u"Магазин на Садовой"_s);
  robot.Click(u"add"_s);
  robot.WaitFor(u"price2"_s);
  robot.SelectRow(u"ListView1"_s, u"Чай «Ладья»"_s);
  robot.Press(Qt::Key_Return);
  robot.WaitFor(u"colvo"_s);
  robot.Type(u"Text1"_s, u"2"_s);
  robot.Press(Qt::Key_Return);
  robot.WaitFor(u"price2"_s);
  robot.Press(Qt::Key_Escape);
  robot.WaitFor(u"vnutrNew"_s);
  robot.Picture(u"vnutrNew"_s);
  ShowDialog(robot, u"prn"_s, u"vnNakl"_s);
  robot.Click(u"ok"_s);
  robot.WaitFor(u"vnutr"_s);
  robot.Picture(u"vnutr"_s);
  ShowDialog(robot, u"Command8"_s, u"vnutr_Ass"_s);
}

// By its key, from the search field.
void VisitHistory(Robot& robot) {
  robot.SelectRow(u"ListView1"_s, u"Чай «Ладья»"_s);
  robot.FocusOn(u"search"_s);
  robot.Press(Qt::Key_H, Qt::ControlModifier);
  robot.WaitFor(u"history"_s);
  robot.Choose(u"Combo1"_s, u"ВСЕ СКЛАДЫ"_s);
  robot.FocusOn(u"ListView1"_s);
  robot.Press(Qt::Key_Return);
  robot.WaitFor(u"TovUhod_Ass"_s);
  robot.Press(Qt::Key_Escape);
  robot.WaitFor(u"history"_s);
  ShowAndLeave(robot, u"history"_s);
}

void VisitCharts(Robot& robot) {
  robot.OpenMenu(u"mnu_Otchet_GP"_s);
  robot.WaitFor(u"otgr"_s);
  robot.Picture(u"otgr"_s);
  robot.Click(u"Command1"_s);
  robot.WaitFor(u"graphic"_s);
  robot.Picture(u"graphic"_s);
  robot.PictureWhenShown(u"waitplease"_s);
  robot.Click(u"GoldButton1"_s);
  robot.WaitUntilGone(u"waitplease"_s);
  robot.Press(Qt::Key_Escape);
  robot.WaitUntilGone(u"graphic"_s);
  robot.Press(Qt::Key_Escape);
  robot.WaitUntilGone(u"otgr"_s);
}

// From the report by a quick choice to its list, the documents of a row, one of them; and the
// chart.
void VisitReportList(Robot& robot) {
  robot.OpenMenu(u"mnu_report_clients"_s);
  robot.WaitFor(u"otklient"_s);
  robot.Choose(u"quick"_s, u"Этот год"_s);
  robot.Check(u"compare"_s, true);
  robot.Picture(u"otklient"_s);
  robot.Click(u"list"_s);
  robot.WaitFor(u"otlist"_s);
  robot.Picture(u"otlist"_s);
  robot.Click(u"chart"_s);
  ShowAndLeave(robot, u"graphic"_s);
  robot.FocusOn(u"ListView1"_s);
  robot.Press(Qt::Key_Return);
  robot.WaitFor(u"otdocs"_s);
  robot.Picture(u"otdocs"_s);
  robot.Press(Qt::Key_Return);
  robot.WaitFor(u"TovUhod_Ass"_s);
  for (const QStringView screen : {u"TovUhod_Ass", u"otdocs", u"otlist", u"otklient"}) {
    robot.Press(Qt::Key_Escape);
    robot.WaitUntilGone(screen.toString());
  }
}

void VisitCatalogue(Robot& robot) {
  robot.OpenMenu(u"mnuFileCreate"_s);
  ShowAndLeave(robot, u"BasesNew"_s);
  robot.OpenMenu(u"mnubases"_s);
  robot.WaitFor(u"Bases"_s);
  robot.Click(u"GoldButton3"_s);
  robot.WaitFor(u"AskText"_s);
  robot.Press(Qt::Key_Return);
  robot.WaitFor(u"Bases"_s);
  ShowAndLeave(robot, u"Bases"_s);
  robot.OpenMenu(u"mnuimp"_s);
  robot.WaitFor(u"BasesImport"_s);
  robot.SelectRow(u"ListView1"_s, u"Новая база"_s);
  robot.Picture(u"BasesImport"_s);
  robot.Click(u"Command1"_s);
  ShowAndLeave(robot, u"Import"_s);
  robot.OpenMenu(u"mnuFileCreate"_s);
  robot.WaitFor(u"BasesNew"_s);
  robot.Type(u"Text3"_s, u"Новый магазин"_s);
  robot.Press(Qt::Key_Return);
  robot.WaitFor(u"Main"_s);
  robot.Picture(u"Main"_s);  // with the first steps
}

// The list of a supplier on the clipboard: new goods, another price, a row that is refused.
void VisitLoadTable(Robot& robot) {
  robot.OpenMenu(u"mnuLoadTable"_s);
  robot.WaitFor(u"loadtable"_s);
  QGuiApplication::clipboard()->setText(
      u"Наименование\tЕд.\tЦена закупа\tШтрихкод\nНовинки\n"
      "Цикорий «Утро», 100 г\tпач.\t89,50\t4601234567893\nЧай «Ладья»\t\t1 051,00\t\n"
      "Сушки\tкг\tпо запросу\t\n"_s);
  robot.Press(Qt::Key_V, Qt::ControlModifier);
  ShowAndLeave(robot, u"loadtable"_s);
}

void VisitCheck(Robot& robot) {
  robot.OpenMenu(u"mnuCheck"_s);
  robot.WaitFor(u"check"_s);
  robot.OpenTab(u"tabs"_s, u"Склад и документы"_s);
  robot.Click(u"place"_s);  // once the check is done
  ShowAndLeave(robot, u"checkplace"_s);
  ShowAndLeave(robot, u"check"_s);
}

void VisitTimeMachine(Robot& robot) {
  robot.OpenMenu(u"mnuTimeMachine"_s);
  robot.WaitFor(u"timemachine"_s);
  robot.Click(u"make"_s);
  ShowDialog(robot, u"settings"_s, u"copyoptions"_s);
  ShowDialog(robot, u"look"_s, u"copylook"_s);
  ShowAndLeave(robot, u"timemachine"_s);
}

void VisitDialogs(Robot& robot) {
  struct Visit {
    QStringView menu;
    QStringView screen;
  };
  static constexpr std::array kVisits = {
      Visit{u"mnu_Sklad_ZO", u"ost"},
      Visit{u"mnu_Otchet_OPP", u"otppr"},
      Visit{u"mnu_Otchet_RPVT", u"otrpt"},
      Visit{u"mnu_Otchet_SR", u"otspeed"},
      Visit{u"mnu_Otchet_DB", u"otpruh"},
      Visit{u"mnu_report_suppliers", u"otpost"},
      Visit{u"mnu_report_margin", u"otval"},
      Visit{u"mnu_report_abc", u"otabc"},
      Visit{u"mnu_Sprav_S", u"sprSklad"},
      Visit{u"mnu_Sprav_OV", u"currenc"},
      Visit{u"arch", u"rescopy"},
      Visit{u"reparch", u"resrep"},
      Visit{u"mnAbout", u"about"},
  };
  for (const Visit& visit : kVisits) {
    robot.OpenMenu(visit.menu.toString());
    ShowAndLeave(robot, visit.screen.toString());
  }
}

}  // namespace

void VisitScreens(Robot& robot) {
  OpenChild(robot, u"mnu_Sklad_R"_s, u"TovUhod"_s);
  robot.ClickHint(u"Склад"_s);
  robot.WaitFor(u"helper"_s);
  robot.Picture(u"helper"_s);
  robot.Press(Qt::Key_Escape);
  robot.WaitFor(u"TovUhod"_s);
  robot.Check(u"by_range"_s, true);
  robot.Type(u"search"_s, u"березка"_s);
  robot.FocusOn(u"ListView1"_s);
  robot.Picture(u"TovUhod"_s);
  robot.Press(Qt::Key_D, Qt::ControlModifier);
  ShowAndLeave(robot, u"copydoc"_s);
  VisitDocuments(robot, u"mnu_Sklad_P"_s, u"TovPrih"_s, u"PrihNew"_s, {{u"prn", u"prihnokl"}},
                 u"TovPrih_Ass"_s);
  VisitDocuments(robot, u"mnu_Sklad_R"_s, u"TovUhod"_s, u"UhodNew"_s,
                 {{u"change", u"change"},
                  {u"prs", u"chFactPrint"},
                  {u"pri", u"UhodSch"},
                  {u"prp", u"PrihPrint"}},
                 u"TovUhod_Ass"_s);
  MakeTransfer(robot);
  OpenChild(robot, u"mnu_Sklad_NT"_s, u"Sklad"_s);
  robot.Picture(u"Sklad"_s);
  VisitHistory(robot);
  OpenChild(robot, u"mnu_Sklad_PL"_s, u"Price"_s);
  ShowDialog(robot, u"Command9"_s, u"pricePrint"_s);
  VisitCharts(robot);
  robot.OpenMenu(u"mnu_Sprav_O"_s);
  robot.WaitFor(u"sprFirm"_s);
  robot.Picture(u"sprFirm"_s);
  ShowDialog(robot, u"change"_s, u"sprFirmNew"_s);
  robot.Press(Qt::Key_Escape);
  robot.WaitUntilGone(u"sprFirm"_s);
  VisitDialogs(robot);
  VisitReportList(robot);
  robot.OpenMenu(u"mnu_order"_s);
  ShowAndLeave(robot, u"order"_s);
  VisitLoadTable(robot);
  VisitCheck(robot);
  VisitTimeMachine(robot);
  VisitCatalogue(robot);
}

}  // namespace kladez
