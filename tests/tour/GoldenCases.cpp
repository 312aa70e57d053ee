#include "GoldenCases.h"

#include "tour/GoldenSteps.h"

namespace kladez {
namespace golden {
namespace {

std::vector<GoldenCase> DirectoryCases() {
  return {
      {"sprTovar sprTovNew", "товары: добавление",
       Menu(u"mnu_Sprav_T"_s, u"sprTovar"_s) >> Select(u"Соль"_s) >>
           Open(u"add"_s, u"sprTovNew"_s) >>
           [](Robot& robot) {
             robot.Type(u"name"_s, u"Сахар"_s);
             robot.Type(u"unit"_s, u"кг"_s);
             robot.Type(u"price"_s, u"55.5"_s);
             robot.Click(u"ok"_s);
             robot.WaitFor(u"sprTovar"_s);
           },
       Click(u"Command9"_s),
       Changed(kBase + "SPR/товар.spr",
               u" Бакалея\nЧай\nИндия\n\nпач.\n45.00\nСоль\nРоссия\n\nкг\n9.50\n"
               u"Сахар\nРоссия\n\nкг\n55.50"_s)},
      {"loadtable", "загрузка таблицы",
       Menu(u"mnuLoadTable"_s, u"loadtable"_s) >>
           [](Robot& robot) {
             QGuiApplication::clipboard()->setText(
                 u"Наименование\tЗакуп\tРозница\tМинимум\nЧай\t46,5\t70\t\nСахар\t1 000\t\t3"_s);
             robot.Click(u"paste"_s);
             robot.Type(u"group"_s, u"Бакалея"_s);
             robot.Choose(u"Combo2"_s, u"Опт"_s);
           },
       Click(u"ok"_s),
       [](Tree& tree) {
         tree[kBase + "SPR/товар.spr"] = Lines(
             u" Бакалея\nЧай\nИндия\n\nпач.\n46.50\nСоль\nРоссия\n\nкг\n9.50\n"
             "Сахар\n\n\n\n1000.00"_s);
         tree[kBase + "kladez/"] = "";
         tree[kBase + "kladez/товары.usd"] = Lines(u"Сахар\nМинимум\n3\n\n"_s);
         tree[kBase + "Главный склад/PRICE/0003.prc"] = Lines(
             u" Бакалея\nЧай\nпач.\n46.50\n70.00\nСоль\nкг\n9.50\n9.50\n"
             "Сахар\n\n1000.00\n1000.00"_s);
       },
       Beside::kNothing, "loadtable"},
      {"sprTovar sprTovNew", "товары: штрихкод и минимум",
       Menu(u"mnu_Sprav_T"_s, u"sprTovar"_s) >> Select(u"Соль"_s) >>
           Open(u"change"_s, u"sprTovNew"_s) >>
           [](Robot& robot) {
             robot.Type(u"name"_s, u"Соль морская"_s);
             robot.Type(u"barcode"_s, u"4601234567893"_s);
             robot.Type(u"minimum"_s, u"5"_s);
             robot.Click(u"ok"_s);
             robot.WaitFor(u"sprTovar"_s);
           },
       Click(u"Command9"_s),
       Changed(kBase + "SPR/товар.spr",
               u" Бакалея\nЧай\nИндия\n\nпач.\n45.00\nСоль морская\nРоссия\n\nкг\n9.50"_s) +
           Empty(kBase + "kladez/") +
           Changed(kBase + "kladez/товары.usd",
                   u"Соль морская\nМинимум\n5\nШтрихкод\n4601234567893\n\n"_s)},
      {"sprFirm sprFirmNew", "фирмы: добавление",
       AddParty(u"mnu_Sprav_O"_s, u"sprFirm"_s, u"sprFirmNew"_s), Click(u"ok"_s),
       Changed(kBase + "SPR/firma.spr",
               u"Ваша фирма"_s + u"\n-"_s.repeated(14) + u"\nООО «Заря»"_s + u"\n"_s.repeated(14))},
      {"sprPost sprpostnew", "поставщики: добавление",
       AddParty(u"mnu_Sprav_P"_s, u"sprPost"_s, u"sprpostnew"_s), Click(u"ok"_s),
       Changed(kBase + "SPR/post.spr", u"ООО «Заря»"_s + u"\n"_s.repeated(13))},
      {"sprklient sprklientnew", "клиенты: добавление",
       AddParty(u"mnu_Sprav_K"_s, u"sprklient"_s, u"sprklientnew"_s), Click(u"ok"_s),
       Changed(kBase + "SPR/klient.spr", u"ООО «Заря»"_s + u"\n"_s.repeated(13))},
      {"sprklient sprklientnew", "клиенты: условия",
       Menu(u"mnu_Sprav_K"_s, u"sprklient"_s) >> Open(u"add"_s, u"sprklientnew"_s) >>
           [](Robot& robot) {
             robot.Type(u"field1"_s, u"ООО «Заря»"_s);
             robot.Type(u"price_list"_s, u"Опт"_s);
             robot.Type(u"discount"_s, u"5"_s);
           } >>
           Open(u"ok"_s, u"sprklient"_s),
       Click(u"ok"_s),
       Changed(kBase + "SPR/klient.spr", u"ООО «Заря»"_s + u"\n"_s.repeated(13)) +
           Empty(kBase + "kladez/") +
           Changed(kBase + "kladez/условия.usd", u"ООО «Заря»\nСкидка, %\n5\nЦены\nОпт\n\n"_s)},
      {"sprSklad", "склады: создание", Menu(u"mnu_Sprav_S"_s, u"sprSklad"_s),
       Click(u"add"_s) >> Answer(u"AskText"_s, u"Ларёк"_s),
       Copied(kShop, kKiosk) + Empty(kKiosk + "товар.usl") +
           Changed(kBase + "склад.usd", u"Главный склад\nМагазин\nЛарёк"_s)},
      {"sprSklad",
       "склады: переименование",
       Menu(u"mnu_Sprav_S"_s, u"sprSklad"_s) >> Select(u"Магазин"_s),
       Click(u"change"_s) >> Answer(u"AskText"_s, u"Ларёк"_s),
       Copied(kShop, kKiosk) + Gone(kShop),
       Beside::kNothing,
       {},
       LeaveUnsaved()},
      {"sprSklad", "склады: удаление",
       Menu(u"mnu_Sprav_S"_s, u"sprSklad"_s) >> Select(u"Магазин"_s), Click(u"remove"_s) >> Yes(),
       Gone(kShop) + Changed(kBase + "склад.usd", u"Главный склад"_s)},
      {"currenc", "валюта",
       Menu(u"mnu_Sprav_OV"_s, u"currenc"_s) >>
           [](Robot& robot) { robot.Type(u"form1"_s, u"р."_s); },
       Click(u"ok"_s),
       Changed(kBase + "currency.usd",
               u"р.\nрубль\nрубля\nрублей\nкоп.\nкопейка\nкопейки\nкопеек"_s)},
      {"currenc", "валюта: ставки налогов",
       Menu(u"mnu_Sprav_OV"_s, u"currenc"_s) >>
           [](Robot& robot) { robot.Type(u"vat"_s, u"20,5"_s); },
       Click(u"ok"_s),
       Empty(kBase + "kladez/") +
           Changed(kBase + "kladez/ставки.usd", u"НДС, %\n20.5\nНСП, %\n"_s)},
  };
}

std::vector<GoldenCase> DocumentCases() {
  return {
      {"TovPrih PrihNew sprtovar2", "приход: новый закрытый",
       Menu(u"mnu_Sklad_P"_s, u"TovPrih"_s) >> Open(u"Command1"_s, u"PrihNew"_s) >>
           AddLine(u"sprtovar2"_s, u"PrihNew"_s) >> CheckAt(u"Check1"_s),
       Click(u"ok"_s),
       Changed(kMain + "товар.usl", u"Чай\n2.5\nпач."_s) +
           Changed(kMain + "PRH/0002.prh",
                   u"2\n23.11.2026\n-\n112.50\nда\nЧай\n2.5\nпач.\n45.00"_s)},
      {"TovPrih", "приход: удаление со списанием", Menu(u"mnu_Sklad_P"_s, u"TovPrih"_s),
       Click(u"Command3"_s) >> Yes(),
       Gone(kMain + "PRH/0001.prh") +
           Changed(kMain + "товар.usl", u"Чай\n0.00\nпач.\nЧай\n- 20\nпач."_s)},
      {"TovUhod UhodNew price2", "расход: новый закрытый",
       Menu(u"mnu_Sklad_R"_s, u"TovUhod"_s) >> Open(u"Command1"_s, u"UhodNew"_s) >>
           [](Robot& robot) { robot.Type(u"Text19"_s, u"10"_s); } >>
           AddLine(u"price2"_s, u"UhodNew"_s) >> CheckAt(u"Check1"_s),
       Click(u"ok"_s),
       Changed(kMain + "товар.usl", u"Чай\n-2.50\nпач."_s) +
           Changed(kMain + "UHD/0002.uhd",
                   u"2\n23.11.2026\n-\n112.50\n10\n101.25\nда\n"
                   u"Чай\n2.5\nпач.\n45.00\n45.00\n40.50"_s)},
      {"copydoc", "расход: копия по сегодняшним ценам",
       Menu(u"mnu_Sklad_R"_s, u"TovUhod"_s) >> Open(u"copy_document"_s, u"copydoc"_s) >>
           Open(u"ok"_s, u"UhodNew"_s),
       Click(u"ok"_s),
       Changed(kMain + "UHD/0002.uhd",
               u"2\n23.11.2026\n-\n900.00\n0\n900.00\nнет\nЧай\n20\nпач.\n45.00\n45.00\n45.00"_s)},
      {"TovUhod", "расход: удаление открытого", Menu(u"mnu_Sklad_R"_s, u"TovUhod"_s),
       Click(u"Command3"_s) >> Yes(), Gone(kMain + "UHD/0001.uhd")},
      {"vnutr vnutrNew", "перемещение: новое",
       Menu(u"mnu_Sklad_VO"_s, u"vnutr"_s) >> Open(u"Command1"_s, u"vnutrNew"_s) >>
           ChooseIn(u"destination"_s, u"Магазин"_s) >> AddLine(u"price2"_s, u"vnutrNew"_s),
       Click(u"ok"_s),
       Changed(kMain + "товар.usl", u"Чай\n-2.50\nпач."_s) +
           Changed(kShop + "товар.usl", u"Чай\n22.5\nпач."_s) +
           Changed(kBase + "ВНПЕР/0002.vpr",
                   u"2\n23.11.2026\nГлавный склад\nМагазин\n112.50\n"
                   u"Чай\n2.5\nпач.\n45.00\n45.00"_s)},
      {"vnutr", "перемещение: удаление с возвратом", Menu(u"mnu_Sklad_VO"_s, u"vnutr"_s),
       Click(u"Command3"_s) >> Yes(),
       Gone(kBase + "ВНПЕР/0001.vpr") +
           Changed(kMain + "товар.usl", u"Чай\n0.00\nпач.\nЧай\n20\nпач."_s) +
           Changed(kShop + "товар.usl", u"Чай\n20\nпач.\nЧай\n- 20\nпач."_s)},
      {"ost sprtovar2", "остатки",
       Menu(u"mnu_Sklad_ZO"_s, u"ost"_s) >> ChooseIn(u"Combo1"_s, u"Магазин"_s) >>
           Open(u"Command1"_s, u"sprtovar2"_s) >>
           [](Robot& robot) {
             robot.SelectRow(u"ListView1"_s, u"Соль"_s);
             robot.Press(Qt::Key_Return);
             Answer(u"colvo"_s, u"7"_s)(robot);
             robot.WaitFor(u"ost"_s);
           },
       Click(u"Command4"_s), Changed(kShop + "товар.usl", u"Чай\n20\nпач.\nСоль\n7\nкг"_s)},
      {"Sklad colvo", "наличие: изменение",
       Menu(u"mnu_Sklad_NT"_s, u"Sklad"_s) >> Select(u"Соль"_s),
       Click(u"Command1"_s) >> Answer(u"colvo"_s, u"5"_s),
       Changed(kMain + "товар.usl", u"Соль\n5\nкг"_s)},
      {"Sklad", "наличие: обнуление",
       Menu(u"mnu_Sklad_NT"_s, u"Sklad"_s) >> ChooseIn(u"Combo1"_s, u"Магазин"_s),
       Click(u"Command3"_s) >> Yes(), Changed(kShop + "товар.usl", u"Чай\n0\n0"_s)},
  };
}

std::vector<GoldenCase> PriceCases() {
  const Step open = Menu(u"mnu_Sklad_PL"_s, u"Price"_s) >> ChooseIn(u"Combo2"_s, u"Опт"_s);
  return {
      {"Price prChange", "прайс: цена", open >> Select(u"Чай"_s),
       Click(u"Command2"_s) >> Answer(u"prChange"_s, u"61.5"_s),
       Changed(kMain + "PRICE/0003.prc",
               u" Бакалея\nЧай\nпач.\n45.00\n61.50\nСоль\nкг\n9.50\n9.50"_s)},
      {"Price", "прайс: сохранение", open >> Select(u"Соль"_s) >> Click(u"GoldButton2"_s),
       Click(u"Command5"_s),
       Changed(kMain + "PRICE/0003.prc", u" Бакалея\nЧай\nпач.\n45.00\n45.00"_s)},
      {"Price", "прайс: копирование", open, Click(u"Command7"_s),
       Changed("data/temp.prc", u" Бакалея\nЧай\nпач.\n45.00\n45.00\nСоль\nкг\n9.50\n9.50"_s)},
  };
}

std::vector<GoldenCase> StoreCases() {
  return {
      {"BasesNew", "база: создание",
       Menu(u"mnuFileCreate"_s, u"BasesNew"_s) >>
           [](Robot& robot) { robot.Type(u"Text3"_s, u"Третья"_s); },
       Click(u"Command1"_s),
       Copied("data/0002/", "data/0003/") + Changed("data/0003.us", u"0003\\\nТретья"_s),
       Beside::kSecondDatabaseAndBackup},
      {"Bases", "базы: переименование", Menu(u"mnubases"_s, u"Bases"_s) >> Select(u"Вторая"_s),
       Click(u"GoldButton1"_s) >> Answer(u"AskText"_s, u"Иная"_s),
       Changed("data/0002.us", u"0002\\\nИная"_s), Beside::kSecondDatabaseAndBackup},
      {"Bases", "базы: удаление", Menu(u"mnubases"_s, u"Bases"_s) >> Select(u"Вторая"_s),
       Click(u"GoldButton2"_s) >> Yes(), Gone("data/0002"), Beside::kSecondDatabaseAndBackup},
      {"check", "проверка: починка",
       Menu(u"mnuCheck"_s, u"check"_s) >> Open(u"place"_s, u"checkplace"_s) >>
           [](Robot& robot) {
             robot.Press(Qt::Key_Escape);
             robot.WaitFor(u"check"_s);
             robot.SelectRow(u"findings"_s, u"marked, строка 1"_s);
           },
       Click(u"mend"_s) >> Yes(), Changed(kBase + "marked", u"Чай"_s),
       Beside::kSecondDatabaseAndBackup},
      {"timemachine", "машина времени: вся база",
       Menu(u"mnuTimeMachine"_s, u"timemachine"_s) >> Click(u"make"_s), Click(u"whole"_s) >> Yes(),
       Copied("data/0001/", "data/0002/") + Changed("data/0002.us", u"0002\\\nЛавка (копия)"_s)},
      {"copylook", "машина времени: список",
       Menu(u"mnuTimeMachine"_s, u"timemachine"_s) >> Click(u"make"_s) >>
           Open(u"look"_s, u"copylook"_s) >>
           [](Robot& robot) { robot.OpenTab(u"tabs"_s, u"Списки"_s); },
       Click(u"back"_s) >> Yes(), [](Tree&) {}, Beside::kNothing, "copylook"},
      {"BasesImport Import", "импорт",
       Menu(u"mnuimp"_s, u"BasesImport"_s) >> Select(u"Вторая"_s) >>
           Open(u"Command1"_s, u"Import"_s) >> CheckAt(u"Check1"_s),
       Click(u"Command1"_s), Empty(kBase + "SPR/товар.spr"), Beside::kSecondDatabaseAndBackup},
      {"rescopy", "копирование",
       Menu(u"arch"_s, u"rescopy"_s) >> Select(u"Лавка"_s) >>
           [](Robot& robot) { robot.Press(Qt::Key_Space); } >> Click(u"Command1"_s) >>
           TypeFolder(u"/.."_s),
       Click(u"Command1"_s),
       Empty(kBackup) + Copied(kBase, kBackup + "0001/") +
           Changed(kBackup + "0001.us", u"0001\\\nЛавка"_s) +
           Changed(kBackup + "archive.idb", u"0001.us\n0001\\\nЛавка"_s),
       Beside::kSecondDatabaseAndBackup, "rescopy"},
      {"resrep", "восстановление",
       Menu(u"reparch"_s, u"resrep"_s) >> TypeFolder(u"/Копия БД Kladez от 23-11-26"_s) >>
           Click(u"Command1"_s) >> Select(u"Вторая"_s) >>
           [](Robot& robot) { robot.Press(Qt::Key_Space); },
       Click(u"Command1"_s),
       Copied("data/0002/", "data/0003/") + Changed("data/0003.us", u"0003\\\nВторая (копия)"_s),
       Beside::kSecondDatabaseAndBackup, "resrep"},
  };
}

GoldenCase Page(const std::string& screens, const std::string& what, const Step& prepare,
                const QString& command = u"Command1"_s) {
  return {screens, what, prepare, Click(command), PageOf(screens)};
}

std::vector<GoldenCase> PageCases() {
  const Step receipt = Menu(u"mnu_Sklad_P"_s, u"TovPrih"_s) >> Open(u"Command2"_s, u"PrihNew"_s);
  const Step shipment = Menu(u"mnu_Sklad_R"_s, u"TovUhod"_s) >> Open(u"Command2"_s, u"UhodNew"_s);
  const Step transfer = Menu(u"mnu_Sklad_VO"_s, u"vnutr"_s) >> Open(u"Command2"_s, u"vnutrNew"_s);
  return {
      Page("prihnokl", "накладная прихода", receipt >> Open(u"prn"_s, u"prihnokl"_s)),
      Page("PrihNakl", "накладная расхода", shipment >> Open(u"prn"_s, u"PrihNakl"_s)),
      Page("vnNakl", "накладная перемещения", transfer >> Open(u"prn"_s, u"vnNakl"_s)),
      Page("chFactPrint", "счет-фактура", shipment >> Open(u"prs"_s, u"chFactPrint"_s)),
      Page("UhodSch", "счет", shipment >> Open(u"pri"_s, u"UhodSch"_s)),
      Page("pricePrint", "прайс-лист",
           Menu(u"mnu_Sklad_PL"_s, u"Price"_s) >> Open(u"Command9"_s, u"pricePrint"_s)),
      Page("Sklad", "наличие", Menu(u"mnu_Sklad_NT"_s, u"Sklad"_s), u"Command2"_s),
      Page("TovUhod", "журнал расхода", Menu(u"mnu_Sklad_R"_s, u"TovUhod"_s), u"Command9"_s),
      Page("otppr", "отчет по продажам", Menu(u"mnu_Otchet_OPP"_s, u"otppr"_s)),
      Page("otrpt", "скорость реализации", Menu(u"mnu_Otchet_RPVT"_s, u"otrpt"_s)),
      Page("otpruh", "поступление и реализация", Menu(u"mnu_Otchet_DB"_s, u"otpruh"_s)),
      Page("otklient", "отчет по клиентам, сравнение",
           Menu(u"mnu_report_clients"_s, u"otklient"_s) >> ChooseIn(u"quick"_s, u"Этот год"_s) >>
               CheckAt(u"compare"_s)),
      Page("otpost", "отчет по поставщикам", Menu(u"mnu_report_suppliers"_s, u"otpost"_s)),
      Page("otval", "валовая прибыль", Menu(u"mnu_report_margin"_s, u"otval"_s)),
      Page("otabc", "ABC-анализ", Menu(u"mnu_report_abc"_s, u"otabc"_s)),
      Page("order", "заказать", Menu(u"mnu_order"_s, u"order"_s), u"print"_s),
      {"otgr graphic waitplease", "график",
       Menu(u"mnu_Otchet_GP"_s, u"otgr"_s) >> Open(u"Command1"_s, u"graphic"_s),
       Click(u"GoldButton1"_s), Empty("data/temp.gif") + PageOf("waitplease"), Beside::kNothing,
       "waitplease"},
  };
}

}  // namespace
}  // namespace golden

const std::vector<GoldenCase>& GoldenCases() {
  static const std::vector<GoldenCase> cases = [] {
    std::vector<GoldenCase> all;
    for (auto& part : {golden::DirectoryCases(), golden::DocumentCases(), golden::PriceCases(),
                       golden::StoreCases(), golden::PageCases()}) {
      all.insert(all.end(), part.begin(), part.end());
    }
    return all;
  }();
  return cases;
}

}  // namespace kladez
