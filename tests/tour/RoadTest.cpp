// The road of one shipment, from an empty data directory to the printed waybill, played on the real
// windows with keys and mouse; afterwards every file on disk is compared by whole bytes.

#include <array>

#include "TempData.h"
#include "tour/Road.h"
#include "tour/Stage.h"

namespace kladez {
namespace {

using Tree = std::map<std::string, std::string>;

std::string Text(const QString& lines) { return EncodeLines(lines.split(u'\n')).toStdString(); }

// The session learns the name of the currency when a Database is opened; one that was made a moment
// ago prints without it, as it always did.
const QString kWaybill =
    uR"(<HTML><HEAD><meta http-equiv="Content-Type" content="text/html; charset=windows-1251"><TITLE>Накладная</TITLE></HEAD><BODY BGCOLOR=#ffffff>
<p align=CENTER><B><FONT FACE=Arial SIZE=5>Накладная N 1 от 05.03.2026</FONT></B><br></p>
<FONT FACE=Arial SIZE=3>От кого:Ваша фирма</U></b></FONT><br>
<FONT FACE=Arial SIZE=3>Кому:Кафе «Блюдце»</U></b></FONT><br>
<FONT FACE=Arial SIZE=3>Склад:Главный склад</U></b></FONT><br>
<br>
<CENTER>
<TABLE style=border-Collapse:Collapse bgcolor=#ffffff bordercolor=#000000 cellspacing=0 cellpadding=0 BORDER=1 WIDTH=100%>
<tr><TD WIDTH=5% VALIGN=TOP ALIGN=center><FONT FACE=Arial SIZE=4>N</FONT></TD><TD WIDTH=65% VALIGN=TOP><FONT FACE=Arial SIZE=4>&nbsp;Наименование</FONT></TD><TD WIDTH=10% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=4>Кол-во&nbsp;</FONT></TD><TD WIDTH=10% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=4>Цена&nbsp;</FONT></TD><TD WIDTH=10% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=4>Сумма&nbsp;</FONT></TD></tr>
<tr><TD WIDTH=5% VALIGN=TOP ALIGN=center><FONT FACE=Arial SIZE=3>1</FONT></TD><TD WIDTH=65% VALIGN=TOP><FONT FACE=Arial SIZE=3>&nbsp;Чай «Ладья»&nbsp;</FONT></TD><TD WIDTH=10% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=3>3&nbsp;</FONT></TD><TD WIDTH=10% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=3>60.50&nbsp;</FONT></TD><TD WIDTH=10% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=3>181.50&nbsp;</FONT></TD></tr>

<tr><TD WIDTH=5% VALIGN=TOP ALIGN=center><FONT FACE=Arial SIZE=3>2</FONT></TD><TD WIDTH=65% VALIGN=TOP><FONT FACE=Arial SIZE=3>&nbsp;Чай на вес&nbsp;</FONT></TD><TD WIDTH=10% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=3>0.25&nbsp;</FONT></TD><TD WIDTH=10% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=3>1.35&nbsp;</FONT></TD><TD WIDTH=10% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=3>0.34&nbsp;</FONT></TD></tr>

</center></table><p></p>
<br><FONT FACE=Arial SIZE=2><i>Всего: 181.84 </FONT></i>
<br><FONT FACE=Arial SIZE=2><i>Скидка: 10%</FONT></i>
<br><FONT FACE=Arial SIZE=2><i>Итого к оплате: 163.66 ,</FONT></i>
<br><FONT FACE=Arial SIZE=2><i>включая НДС: 24.96 </FONT></i>

<br><br><FONT FACE=Arial SIZE=2><b>Всего наименований: 2</FONT></b>
<br><FONT FACE=Arial SIZE=2><b>Сумма: Сто шестьдесят три рубля 66 копеек</FONT></b><BR>
<p></p><br><br><br><p>&nbsp;&nbsp;&nbsp;<FONT FACE=Arial SIZE=3>Отпустил ___________ &nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;Получил ___________</FONT><BR></p><BR></body></html>)"_s;

// A price list that nobody touched is an empty file.
Tree ExpectedTree() {
  const std::string base = "0001/";
  const std::string warehouse = base + "Главный склад/";
  Tree tree = {
      {"0001.us", Text(u"0001\\\nЧайная лавка"_s)},
      {base, ""},
      {base + "KASS/", ""},
      {base + "KASS/PRH/", ""},
      {base + "KASS/UHD/", ""},
      {base + "ВНПЕР/", ""},
      {base + "SPR/", ""},
      {warehouse, ""},
      {warehouse + "OPR/", ""},
      {warehouse + "PRH/", ""},
      {warehouse + "PRICE/", ""},
      {warehouse + "UHD/", ""},
      {base + "marked", ""},
      {base + "склад.usd", Text(u"Главный склад"_s)},
      {base + "currency.usd",
       Text(u"руб.\nрубль\nрубля\nрублей\nкоп.\nкопейка\nкопейки\nкопеек"_s)},
      {base + "SPR/firma.spr", Text(u"Ваша фирма"_s + u"\n-"_s.repeated(14))},
      {base + "SPR/post.spr", Text(u"ООО «Чайная гора»"_s + u"\n"_s.repeated(13))},
      {base + "SPR/klient.spr", Text(u"Кафе «Блюдце»"_s + u"\n"_s.repeated(13))},
      {base + "SPR/товар.spr", Text(u" Чай\n"
                                    "Чай «Ладья»\nИндия\n\nпач.\n45.00\n"
                                    "Чай на вес\nГрузия\n\nкг\n1.01"_s)},
      {warehouse + "price.usd", Text(u"Розница\nМелкий опт\nОпт"_s)},
      {warehouse + "PRICE/0002.prc", Text(u" Чай\n"
                                          "Чай «Ладья»\nпач.\n45.00\n60.50\n"
                                          "Чай на вес\nкг\n1.01\n1.35"_s)},
      {warehouse + "PRH/0001.prh", Text(u"1\n05.03.2026\nООО «Чайная гора»\n902.15\nда\n"
                                        "Чай «Ладья»\n20\nпач.\n45.00\n"
                                        "Чай на вес\n2.125\nкг\n1.01"_s)},
      {warehouse + "UHD/0001.uhd", Text(u"1\n05.03.2026\nКафе «Блюдце»\n181.84\n10\n163.66\nда\n"
                                        "Чай «Ладья»\n3\nпач.\n45.00\n60.50\n54.45\n"
                                        "Чай на вес\n0.25\nкг\n1.01\n1.35\n1.22"_s)},
      // What was received with three decimals is rounded to two by the shipment.
      {warehouse + "товар.usl", Text(u"Чай «Ладья»\n17.00\nпач.\nЧай на вес\n1.88\nкг"_s)},
      {"out.htm", Text(kWaybill)},
  };
  for (const char* untouched : {"0001", "0003", "0004", "0005"}) {
    tree[warehouse + "PRICE/" + untouched + ".prc"] = "";
  }
  return tree;
}

void ExpectTree(const Tree& tree) {
  const Tree expected = ExpectedTree();
  for (const auto& [path, bytes] : expected) {
    ASSERT_TRUE(tree.contains(path)) << path << " is missing";
    EXPECT_EQ(tree.at(path), bytes) << path;
  }
  for (const auto& [path, bytes] : tree) EXPECT_TRUE(expected.contains(path)) << path;
}

TEST(Road, FromAnEmptyDirectoryToTheWaybillEveryByteIsRight) {
  const TempData data;
  const QTemporaryDir settings;
  const Clock clock(QDateTime(QDate(2026, 3, 5), QTime(10, 0)));
  Stage stage(data.Root(), settings.filePath(u"settings.ini"_s), clock);
  Robot robot(QStringLiteral(ROAD_PICTURES));

  stage.Play(robot, [](Robot& player) {
    CreateDatabaseByHand(player, u"Чайная лавка"_s);
    PlayRoad(player);
  });

  EXPECT_GE(robot.Pictures().size(), 20);
  ExpectTree(data.Tree());
}

// Keys only, as somebody plays it who has no mouse: letters with Alt, Tab, Enter, Escape, arrows.
void Enter(Robot& robot, const QString& text) {
  robot.TypeHere(text);
  robot.Press(Qt::Key_Return);
}

void ChooseFromMenu(Robot& robot, QChar menu, QChar command, const QString& screen) {
  robot.PressLetter(menu);
  robot.PressLetter(command, Qt::NoModifier);
  robot.WaitFor(screen);
}

void EnterGoods(Robot& robot) {
  ChooseFromMenu(robot, u'п', u'т', u"sprTovar"_s);
  robot.PressLetter(u'д');
  robot.WaitFor(u"sprTovNew"_s);
  Enter(robot, u"Чай"_s);
  robot.Press(Qt::Key_Return);
  robot.WaitFor(u"sprTovar"_s);
  const std::array goods = {std::array{u"Чай «Ладья»"_s, u"Индия"_s, u""_s, u"пач."_s, u"45.00"_s},
                            std::array{u"Чай на вес"_s, u"Грузия"_s, u""_s, u"кг"_s, u"1.01"_s}};
  for (const auto& fields : goods) {
    robot.PressLetter(u'д');
    robot.WaitFor(u"sprTovNew"_s);
    for (const QString& field : fields) Enter(robot, field);
    robot.Press(Qt::Key_Return);
    robot.WaitFor(u"sprTovar"_s);
  }
  robot.PressLetter(u'з');
  robot.WaitFor(u"Main"_s);
}

void EnterParty(Robot& robot, QChar command, const QString& list, const QString& form,
                const QString& name) {
  ChooseFromMenu(robot, u'п', command, list);
  robot.PressLetter(u'д');
  robot.WaitFor(form);
  Enter(robot, name);
  robot.WaitFor(list);
  robot.TabTo(u"ok"_s);
  robot.Press(Qt::Key_Space);
  robot.WaitUntilGone(list);
}

// In the list in front: finds the row by typing, picks it, answers the quantity.
void PickByTyping(Robot& robot, const QString& beginning, const QString& quantity,
                  const QString& back) {
  robot.WaitFor(back);
  robot.TypeHere(beginning);
  robot.Press(Qt::Key_Return);
  robot.WaitFor(u"colvo"_s);
  Enter(robot, quantity);
}

void ReceiveGoods(Robot& robot) {
  ChooseFromMenu(robot, u'с', u'п', u"TovPrih"_s);
  robot.PressLetter(u'д');
  robot.WaitFor(u"PrihNew"_s);
  robot.PressLetter(u'п');
  robot.TypeHere(u"О"_s);
  for (const auto& [goods, quantity] :
       {std::pair{u"Чай «"_s, u"20"_s}, {u"Чай на"_s, u"2.125"_s}}) {
    robot.PressLetter(u'д');
    PickByTyping(robot, goods, quantity, u"sprtovar2"_s);
    robot.WaitFor(u"PrihNew"_s);
  }
  robot.PressLetter(u'з');
  robot.TabTo(u"ok"_s);
  robot.Press(Qt::Key_Return);
  robot.WaitFor(u"TovPrih"_s);
}

void SetPrices(Robot& robot) {
  ChooseFromMenu(robot, u'с', u'л', u"Price"_s);
  robot.PressLetter(u'й');
  robot.Press(Qt::Key_Down);
  for (const auto& [goods, price] : {std::pair{u"Чай «"_s, u"60.50"_s}, {u"Чай на"_s, u"1.35"_s}}) {
    robot.TabTo(u"ListView1"_s);
    robot.TypeHere(goods);
    robot.Press(Qt::Key_Down);  // from the search field to the list
    robot.Press(Qt::Key_Return);
    robot.WaitFor(u"prChange"_s);
    Enter(robot, price);
    robot.WaitFor(u"Price"_s);
  }
}

void ShipGoods(Robot& robot) {
  ChooseFromMenu(robot, u'с', u'р', u"TovUhod"_s);
  robot.PressLetter(u'д');
  robot.WaitFor(u"UhodNew"_s);
  robot.PressLetter(u'л');
  robot.TypeHere(u"К"_s);
  robot.PressLetter(u'к');
  robot.TypeHere(u"10"_s);
  robot.PressLetter(u'д');
  robot.WaitFor(u"price2"_s);
  robot.PressLetter(u'й');
  robot.Press(Qt::Key_Down);
  robot.TabTo(u"ListView1"_s);
  PickByTyping(robot, u"Чай «"_s, u"3"_s, u"price2"_s);
  PickByTyping(robot, u"Чай на"_s, u"0.25"_s, u"price2"_s);
  robot.WaitFor(u"price2"_s);
  robot.Press(Qt::Key_Escape);
  robot.WaitFor(u"UhodNew"_s);
  robot.PressLetter(u'з');
  robot.PressLetter(u'н');
  robot.WaitFor(u"PrihNakl"_s);
  robot.PressLetter(u'п');
  robot.WaitFor(u"UhodNew"_s);
  robot.TabTo(u"ok"_s);
  robot.Press(Qt::Key_Return);
  robot.WaitFor(u"TovUhod"_s);
}

TEST(Road, IsPlayedByKeyboardAlone) {
  const TempData data;
  const QTemporaryDir settings;
  const Clock clock(QDateTime(QDate(2026, 3, 5), QTime(10, 0)));
  Stage stage(data.Root(), settings.filePath(u"settings.ini"_s), clock);
  Robot robot;

  stage.Play(robot, [](Robot& player) {
    player.WaitFor(u"main2"_s);
    player.Press(Qt::Key_Tab);
    player.Press(Qt::Key_Return);
    player.WaitFor(u"BasesNew"_s);
    Enter(player, u"Чайная лавка"_s);
    player.WaitFor(u"Main"_s);
    EnterGoods(player);
    EnterParty(player, u'п', u"sprPost"_s, u"sprpostnew"_s, u"ООО «Чайная гора»"_s);
    EnterParty(player, u'к', u"sprklient"_s, u"sprklientnew"_s, u"Кафе «Блюдце»"_s);
    ReceiveGoods(player);
    SetPrices(player);
    ShipGoods(player);
  });
  ExpectTree(data.Tree());
}

}  // namespace
}  // namespace kladez
