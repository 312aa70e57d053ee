#include "tour/Road.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

void AddGoods(Robot& robot, const QString& name, const QString& country, const QString& unit,
              const QString& price) {
  robot.Press(Qt::Key_Insert);
  robot.WaitFor(u"sprTovNew"_s);
  robot.Type(u"name"_s, name);
  robot.Press(Qt::Key_Return);  // to the country, then on from field to field
  robot.TypeHere(country);
  robot.Press(Qt::Key_Return);
  robot.Press(Qt::Key_Return);
  robot.TypeHere(unit);
  robot.Press(Qt::Key_Return);
  robot.TypeHere(price);
  robot.Picture(u"sprTovNew"_s);
  robot.Press(Qt::Key_Return);  // to OK
  robot.Press(Qt::Key_Return);
  robot.WaitFor(u"sprTovar"_s);
}

void EnterGoods(Robot& robot) {
  robot.OpenMenu(u"mnu_Sprav_T"_s);
  robot.WaitFor(u"sprTovar"_s);
  robot.FocusOn(u"ListView1"_s);
  robot.Press(Qt::Key_Insert);
  robot.WaitFor(u"sprTovNew"_s);
  robot.OpenTab(u"tabs"_s, u"Группа"_s);
  robot.Type(u"group"_s, u"Чай"_s);
  robot.Press(Qt::Key_Return);
  robot.Press(Qt::Key_Return);
  robot.WaitFor(u"sprTovar"_s);
  robot.FocusOn(u"ListView1"_s);
  AddGoods(robot, u"Чай «Ладья»"_s, u"Индия"_s, u"пач."_s, u"45.00"_s);
  AddGoods(robot, u"Чай на вес"_s, u"Грузия"_s, u"кг"_s, u"1.01"_s);
  robot.Picture(u"sprTovar"_s);
  robot.Click(u"Command9"_s);
}

void EnterParty(Robot& robot, const QString& menu, const QString& list, const QString& form,
                const QString& name) {
  robot.OpenMenu(menu);
  robot.WaitFor(list);
  robot.Press(Qt::Key_Insert);
  robot.WaitFor(form);
  robot.Type(u"field1"_s, name);
  robot.Picture(form);
  robot.Click(u"ok"_s);
  robot.WaitFor(list);
  robot.Picture(list);
  robot.Click(u"ok"_s);
}

void PickForReceipt(Robot& robot, const QString& goods, const QString& quantity) {
  robot.Click(u"add"_s);
  robot.WaitFor(u"sprtovar2"_s);
  robot.SelectRow(u"ListView1"_s, goods);
  robot.Picture(u"sprtovar2"_s);
  robot.Press(Qt::Key_Return);
  robot.WaitFor(u"colvo"_s);
  robot.Type(u"Text1"_s, quantity);
  robot.Picture(u"colvo"_s);
  robot.Press(Qt::Key_Return);
  robot.WaitFor(u"PrihNew"_s);
}

void ReceiveGoods(Robot& robot) {
  robot.OpenMenu(u"mnu_Sklad_P"_s);
  robot.WaitFor(u"TovPrih"_s);
  robot.Click(u"Command1"_s);
  robot.WaitFor(u"PrihNew"_s);
  robot.Choose(u"party"_s, u"ООО «Чайная гора»"_s);
  PickForReceipt(robot, u"Чай «Ладья»"_s, u"20"_s);
  PickForReceipt(robot, u"Чай на вес"_s, u"2.125"_s);
  robot.Check(u"Check1"_s, true);
  robot.Picture(u"PrihNew"_s);
  robot.Click(u"ok"_s);
  robot.WaitFor(u"TovPrih"_s);
  robot.Picture(u"TovPrih"_s);
}

void SetPrice(Robot& robot, const QString& goods, const QString& price) {
  robot.SelectRow(u"ListView1"_s, goods);
  robot.Press(Qt::Key_Return);
  robot.WaitFor(u"prChange"_s);
  robot.Type(u"Text1"_s, price);
  robot.Picture(u"prChange"_s);
  robot.Press(Qt::Key_Return);
  robot.WaitFor(u"Price"_s);
}

void SetPrices(Robot& robot) {
  robot.OpenMenu(u"mnu_Sklad_PL"_s);
  robot.WaitFor(u"Price"_s);
  robot.Choose(u"Combo2"_s, u"Мелкий опт"_s);
  SetPrice(robot, u"Чай «Ладья»"_s, u"60.50"_s);
  SetPrice(robot, u"Чай на вес"_s, u"1.35"_s);
  robot.Picture(u"Price"_s);
}

void PickForShipment(Robot& robot, const QString& goods, const QString& quantity) {
  robot.SelectRow(u"ListView1"_s, goods);
  robot.Press(Qt::Key_Return);
  robot.WaitFor(u"colvo"_s);
  robot.Type(u"Text1"_s, quantity);
  robot.Press(Qt::Key_Return);
  robot.WaitFor(u"price2"_s);
}

void ShipGoods(Robot& robot) {
  robot.OpenMenu(u"mnu_Sklad_R"_s);
  robot.WaitFor(u"TovUhod"_s);
  robot.Click(u"Command1"_s);
  robot.WaitFor(u"UhodNew"_s);
  robot.Choose(u"party"_s, u"Кафе «Блюдце»"_s);
  robot.Type(u"Text19"_s, u"10"_s);
  robot.Click(u"add"_s);
  robot.WaitFor(u"price2"_s);
  robot.Choose(u"Combo2"_s, u"Мелкий опт"_s);
  PickForShipment(robot, u"Чай «Ладья»"_s, u"3"_s);
  PickForShipment(robot, u"Чай на вес"_s, u"0.25"_s);
  robot.Picture(u"price2"_s);
  robot.Press(Qt::Key_Escape);
  robot.WaitFor(u"UhodNew"_s);
  robot.Check(u"Check1"_s, true);
  robot.Picture(u"UhodNew"_s);
  robot.Click(u"prn"_s);
  robot.WaitFor(u"PrihNakl"_s);
  robot.Picture(u"PrihNakl"_s);
  robot.Click(u"Command1"_s);
  robot.WaitFor(u"UhodNew"_s);
  robot.Click(u"ok"_s);
  robot.WaitFor(u"TovUhod"_s);
  robot.Picture(u"TovUhod"_s);
}

}  // namespace

void CreateDatabaseByHand(Robot& robot, const QString& name) {
  robot.WaitFor(u"main2"_s);
  robot.Picture(u"main2"_s);
  robot.Click(u"Label4"_s);
  robot.WaitFor(u"BasesNew"_s);
  robot.Type(u"Text3"_s, name);
  robot.Picture(u"BasesNew"_s);
  robot.Press(Qt::Key_Return);
  robot.WaitFor(u"Main"_s);
}

void OpenDatabaseByHand(Robot& robot, const QString& name) {
  robot.WaitFor(u"main2"_s);
  robot.Picture(u"main2"_s);
  robot.Click(u"Label3"_s);
  robot.WaitFor(u"Bases"_s);
  robot.SelectRow(u"ListView1"_s, name);
  robot.Picture(u"Bases"_s);
  robot.Press(Qt::Key_Return);
  robot.WaitFor(u"Main"_s);
}

void PlayRoad(Robot& robot) {
  robot.Picture(u"Main"_s);
  EnterGoods(robot);
  EnterParty(robot, u"mnu_Sprav_P"_s, u"sprPost"_s, u"sprpostnew"_s, u"ООО «Чайная гора»"_s);
  EnterParty(robot, u"mnu_Sprav_K"_s, u"sprklient"_s, u"sprklientnew"_s, u"Кафе «Блюдце»"_s);
  ReceiveGoods(robot);
  SetPrices(robot);
  ShipGoods(robot);
}

}  // namespace kladez
