#include "WritingCommands.h"

#include <memory>

#include "SmallBooks.h"
#include "books/check/Repairs.h"
#include "books/copies/CopyJob.h"
#include "books/copies/UndoLog.h"
#include "books/copies/UnpackedCopy.h"
#include "books/directories/GoodsDirectory.h"
#include "books/directories/GoodsMarks.h"
#include "books/directories/MainCurrency.h"
#include "books/directories/PartyDirectory.h"
#include "books/directories/WarehouseDirectory.h"
#include "books/prices/GoodsBringer.h"
#include "books/prices/PriceStore.h"
#include "books/printing/PrintOutDesk.h"
#include "books/stock/OnHand.h"
#include "books/stock/OpeningBalances.h"
#include "books/store/Backup.h"
#include "books/store/Import.h"
#include "books/store/SaveSet.h"
#include "books/store/SaveWatch.h"

namespace kladez {
namespace {

DraftPlace In(FaultBooks& books, DocumentKind kind) {
  return SmallBooks::In(books.Data(), books.Opened(), kind);
}

DocumentDraft NewDraft(FaultBooks& books, DocumentKind kind, bool closed) {
  DocumentDraft draft = DocumentDraft::New(In(books, kind), kBooksDay);
  draft.AddLine({u"Чай"_s, u"3"_s, u"пач."_s, u"45.00"_s, u"60.50"_s});
  if (kind != DocumentKind::kTransfer) draft.SetClosed(closed);
  return draft;
}

RegisterRow FirstDocument(FaultBooks& books, DocumentKind kind) {
  DocumentRegister rows(books.Data(), books.Opened(), kind);
  rows.Load(kMainWarehouse, {.period = RegisterFilter::Period::kYear, .year = u"2026"_s}, kBooksDay,
            false);
  return rows.Rows().at(0);
}

WritingCommand NewDocument(const std::string& name, DocumentKind kind, bool closed) {
  return {name, "books/stock/DocumentDraft.cpp", [=](FaultBooks& books) {
            auto draft = std::make_shared<DocumentDraft>(NewDraft(books, kind, closed));
            return [=] { draft->Save(); };
          }};
}

WritingCommand SavedAgain(const std::string& name, DocumentKind kind, bool close) {
  return {name, "books/stock/DocumentDraft.cpp", [=](FaultBooks& books) {
            auto draft = std::make_shared<DocumentDraft>(
                DocumentDraft::Open(In(books, kind), FirstDocument(books, kind)));
            draft->SetNumber(u"77"_s);
            if (close) draft->SetClosed(true);
            return [=] { draft->Save(); };
          }};
}

WritingCommand DeletedDocument(const std::string& name, DocumentKind kind, bool reverse) {
  return {name, "books/stock/DocumentRegister.cpp", [=](FaultBooks& books) {
            const QString file = FirstDocument(books, kind).file;
            return [=, &books] {
              DeleteDocument(books.Data(), books.Opened(), kind, kMainWarehouse, file, reverse);
            };
          }};
}

template <typename Change>
WritingCommand OfGoods(const std::string& name, GoodsView view, Change change) {
  return {name, "books/directories/GoodsDirectory.cpp", [=](FaultBooks& books) {
            auto goods =
                std::make_shared<GoodsDirectory>(books.Data(), books.Opened(), GoodsView::kGroups);
            if (view == GoodsView::kGoodsOnly) goods->ShowGoodsOnly();
            return [=] { change(*goods); };
          }};
}

template <typename Change>
WritingCommand OfWarehouses(const std::string& name, Change change) {
  return {name, "books/directories/WarehouseDirectory.cpp", [=](FaultBooks& books) {
            auto list = std::make_shared<WarehouseDirectory>(books.Data(), books.Opened());
            return [=] { change(*list); };
          }};
}

WritingCommand OfParties(const std::string& name, PartyKind kind) {
  return {name, "books/directories/PartyDirectory.cpp", [=](FaultBooks& books) {
            auto list = std::make_shared<PartyDirectory>(books.Data(), books.Opened(), kind);
            Party party = list->Rows().empty() ? Party{} : list->Rows().front();
            party.resize(kind == PartyKind::kFirm ? 15 : 14);
            party[0] = u"ООО «Заря»"_s;
            list->Add(party,
                      kind == PartyKind::kClient ? ClientTerms{u"Опт"_s, u"5"_s} : ClientTerms());
            return [=] { list->Save(); };
          }};
}

template <typename Change>
WritingCommand OfPrices(const std::string& name, Change change) {
  return {name, "books/prices/PriceStore.cpp", [=](FaultBooks& books) {
            auto store = std::make_shared<PriceStore>(books.Data(), books.Opened());
            auto list =
                std::make_shared<PriceList>(store->Load(kMainWarehouse, 1, GoodsView::kGroups));
            list->SetSalePrice(1, u"61"_s);
            list->SetTick(1, true);
            store->Copy(*list);
            list->SetSalePrice(2, u"12"_s);
            return [=] { change(*store, *list); };
          }};
}

template <typename Change>
WritingCommand OfCatalogue(const std::string& name, Change change) {
  return {name, "books/store/Catalogue.cpp",
          [=](FaultBooks& books) {
            return [=, &books] { change(books.Data(), ListDatabases(books.Data())); };
          },
          Beside::kSecondDatabaseAndBackup};
}

std::vector<WritingCommand> DocumentCommands() {
  return {
      NewDocument("приход, новый открытый", DocumentKind::kReceipt, false),
      NewDocument("приход, новый закрытый", DocumentKind::kReceipt, true),
      SavedAgain("приход, закрытый снова", DocumentKind::kReceipt, false),
      NewDocument("расход, новый открытый", DocumentKind::kShipment, false),
      NewDocument("расход, новый закрытый", DocumentKind::kShipment, true),
      SavedAgain("расход, закрытие", DocumentKind::kShipment, true),
      NewDocument("перемещение, новое", DocumentKind::kTransfer, false),
      SavedAgain("перемещение, снова", DocumentKind::kTransfer, false),
      DeletedDocument("приход, удаление", DocumentKind::kReceipt, false),
      DeletedDocument("приход, удаление со списанием", DocumentKind::kReceipt, true),
      DeletedDocument("расход, удаление с возвратом", DocumentKind::kShipment, true),
      DeletedDocument("перемещение, удаление с возвратом", DocumentKind::kTransfer, true),
  };
}

std::vector<WritingCommand> DirectoryCommands() {
  return {
      OfGoods("товары, запись", GoodsView::kGroups,
              [](GoodsDirectory& goods) {
                goods.Remove(2);
                goods.Save();
              }),
      OfGoods("товары, штрихкод", GoodsView::kGroups,
              [](GoodsDirectory& goods) {
                goods.Change(1, goods.Rows()[1], GoodsExtras{u"46012344"_s, u"5"_s});
                goods.Save();
              }),
      OfGoods("товары, показ без групп", GoodsView::kGroups,
              [](GoodsDirectory& goods) {
                goods.MoveDown(1);
                goods.ShowGoodsOnly();
              }),
      OfGoods("товары, изменение без групп", GoodsView::kGoodsOnly,
              [](GoodsDirectory& goods) {
                goods.SaveChange(goods.Change(0, {u"Соль"_s, {}, {}, u"пач."_s, u"10.00"_s}));
              }),
      OfGoods("товары, выбор", GoodsView::kGroups,
              [](GoodsDirectory& goods) {
                goods.Remove(2);
                goods.SaveBeforePick();
              }),
      OfParties("фирмы", PartyKind::kFirm),
      OfParties("клиенты", PartyKind::kClient),
      OfParties("поставщики", PartyKind::kSupplier),
      OfWarehouses("склад, создание", [](auto& list) { list.Create(u"Лавка"_s); }),
      OfWarehouses("склад, переименование", [](auto& list) { list.Rename(1, u"Ларёк"_s); }),
      OfWarehouses("склад, удаление", [](auto& list) { list.Delete(1); }),
      {"склады, OK после переименования", "books/directories/WarehouseDirectory.cpp",
       [](FaultBooks& books) {
         auto list = std::make_shared<WarehouseDirectory>(books.Data(), books.Opened());
         list->Rename(1, u"Ларёк"_s);
         return [=] { list->Save(); };
       }},
      {"основная валюта", "books/directories/MainCurrency.cpp",
       [](FaultBooks& books) {
         FileState file;
         Currency currency = LoadMainCurrency(books.Data(), books.Opened(), file);
         currency.forms[0] = u"р."_s;
         FileState rates_file;
         LoadTaxRates(books.Data(), books.Opened(), rates_file);
         return [=, &books]() mutable {
           SaveMainCurrency(books.Data(), books.Opened(), currency, file, {u"20"_s, {}},
                            rates_file);
         };
       }},
  };
}

// Keeps what the commands replace, and makes no copies.
class OnlyUndo : public SaveWatch {
 public:
  explicit OnlyUndo(const DataDir& data) : data_(data), log(data_) { data_.SetWatch(this); }
  void BeforeSave(const SaveSet& save) override { log.BeforeSave(save); }
  void AfterSave(const SaveSet& save) override { log.AfterSave(save); }

 private:
  DataDir data_;

 public:
  const DataDir& Data() const { return data_; }
  UndoLog log;
};

template <typename Command>
WritingCommand Undone(const std::string& name, Command command) {
  return {name, "books/copies/UndoLog.cpp",
          [=](FaultBooks& books) {
            auto undo = std::make_shared<OnlyUndo>(books.Data());
            command(undo->Data(), books.Opened());
            return [=, &books] { undo->log.UndoLast(books.Opened()); };
          },
          Beside::kSecondDatabaseAndBackup};
}

std::vector<WritingCommand> UndoneCommands() {
  return {
      Undone("отмена, удаление прихода",
             [](const DataDir& data, Session& session) {
               DeleteDocument(data, session, DocumentKind::kReceipt, kMainWarehouse, u"0001.prh"_s,
                              true);
             }),
      Undone("отмена, переименование склада",
             [](const DataDir& data, Session& session) {
               WarehouseDirectory(data, session).Rename(1, u"Ларёк"_s);
             }),
      {"машина времени, список", "books/copies/UnpackedCopy.cpp",
       [](FaultBooks& books) {
         static const QTemporaryDir state;
         qputenv("XDG_STATE_HOME", QFile::encodeName(state.path()));
         const QByteArray folder = CopiesFolder(books.Data());
         CopyJob(
             {.root = QFile::encodeName(books.Data().Root()),
              .tree = "0001",
              .descriptor = "0001.us",
              .folder = folder,
              .second = {},
              .room = 1 << 30,
              .note = {.base = u"0001"_s, .name = {}, .time = kBooksDay.startOfDay(), .why = {}}})
             .Wait();
         auto copy = std::make_shared<UnpackedCopy>(ListCopies(folder).at(0));
         QFile::remove(books.Data().Resolve(u"0001\\SPR\\товар.spr"_s));
         return [=, &books] { BringBackList(books.Data(), *copy, ListsOf(*copy).at(0)); };
       }},
      Undone(
          "отмена, удаление базы",
          [](const DataDir& data, Session&) { DeleteDatabase(data, ListDatabases(data).at(1)); }),
  };
}

std::vector<WritingCommand> StockCommands() {
  return {
      {"занесение остатков", "books/stock/OpeningBalances.cpp",
       [](FaultBooks& books) {
         auto balances = std::make_shared<OpeningBalances>();
         balances->Add({u"Соль"_s, u"7"_s, u"кг"_s, {}, {}});
         return [=, &books] { balances->Book(books.Data(), books.Opened(), kMainWarehouse); };
       }},
      {"наличие, изменение", "books/stock/OnHand.cpp",
       [](FaultBooks& books) {
         auto list = std::make_shared<OnHandList>(
             LoadOnHand(books.Data(), books.Opened(), {kMainWarehouse}, GoodsView::kGroups));
         list->ChangeQuantity(2, u"5"_s);
         return [=, &books] { SaveOnHand(*list, books.Data(), books.Opened(), kMainWarehouse); };
       }},
      {"наличие, обнуление", "books/stock/OnHand.cpp",
       [](FaultBooks& books) {
         auto list = std::make_shared<OnHandList>(
             LoadOnHand(books.Data(), books.Opened(), {kMainWarehouse}, GoodsView::kGroups));
         return [=, &books] { ZeroOnHand(*list, books.Data(), books.Opened(), kMainWarehouse); };
       }},
      OfPrices("прайс, сохранение",
               [](PriceStore& store, PriceList& list) { store.Save(list, kMainWarehouse, 1); }),
      OfPrices("прайс, галочки", [](PriceStore& store, PriceList& list) { store.SaveTicks(list); }),
      OfPrices("прайс, копирование", [](PriceStore& store, PriceList& list) { store.Copy(list); }),
      OfPrices("прайс, вставка",
               [](PriceStore& store, PriceList& list) { store.Paste(list, kMainWarehouse, 2); }),
      {"таблица, загрузка", "books/prices/GoodsBringer.cpp",
       [](FaultBooks& books) {
         const Sheet sheet = ReadSheet(u"Товар;Закуп;РРЦ;EAN\nЧай;46;65;\nСахар;7;9;46012344"_s);
         BringChoice choice{.layout = GuessLayout(sheet, PlainPrice::kPurchase),
                            .warehouse = kMainWarehouse,
                            .price_list = 1};
         auto bringer = std::make_shared<GoodsBringer>(books.Data(), books.Opened());
         return [=, plan = bringer->Plan(sheet, choice)] { bringer->Save(plan); };
       }},
      {"печатная форма", "books/printing/PrintOutDesk.cpp",
       [](FaultBooks& books) {
         return [&books] { PrintOutDesk(books.Data(), {}).Write(u"nakl.htm"_s, "<HTML>\r\n"); };
       }},
  };
}

std::vector<WritingCommand> StoreCommands() {
  return {
      OfCatalogue("база, создание", [](auto& data, auto&&) { CreateDatabase(data, u"Третья"_s); }),
      OfCatalogue("база, переименование",
                  [](auto& data, auto&& list) { RenameDatabase(data, list.at(1), u"Иная"_s); }),
      OfCatalogue("база, удаление",
                  [](auto& data, auto&& list) { DeleteDatabase(data, list.at(1)); }),
      {"база, открытие без валюты", "books/store/Session.cpp",
       [](FaultBooks& books) {
         QFile::remove(books.Data().Resolve(u"0001\\currency.usd"_s));
         return [&books] {
           Session session;
           session.chosen_base = u"0001\\"_s;
           OpenDatabase(session, books.Data());
         };
       },
       Beside::kNothing, true},
      {"проверка, починка", "books/check/Repairs.cpp",
       [](FaultBooks& books) {
         return [&books] {
           MakeRepair(books.Data(), books.Opened(), {u"marked"_s, 1, {}, Repair::kLineEnds});
         };
       },
       Beside::kSecondDatabaseAndBackup},
      {"импорт, все области", "books/store/Import.cpp",
       [](FaultBooks& books) {
         return [&books] {
           ImportChoice choice;
           for (int area = kImportAreas - 1; area >= 0; --area) {
             choice.Tick(static_cast<ImportArea>(area), true);
           }
           ImportAreas(books.Data(), u"0001\\"_s, u"0002\\"_s, choice);
         };
       },
       Beside::kSecondDatabaseAndBackup},
      {"резервное копирование", "books/store/Backup.cpp",
       [](FaultBooks& books) {
         return [&books] {
           MakeBackup(books.Data(), ListDatabases(books.Data()), books.Backups(),
                      kBooksDay.addDays(1));
         };
       },
       Beside::kSecondDatabaseAndBackup},
      {"восстановление", "books/store/Backup.cpp",
       [](FaultBooks& books) {
         return [&books] {
           const DataDir backup(BackupTarget(books.Backups(), kBooksDay));
           RestoreDatabases(books.Data(), backup, {ListDatabases(backup).at(0)});
         };
       },
       Beside::kSecondDatabaseAndBackup},
  };
}

}  // namespace

const std::vector<WritingCommand>& WritingCommands() {
  static const std::vector<WritingCommand> commands = [] {
    std::vector<WritingCommand> all;
    for (auto part : {DocumentCommands(), DirectoryCommands(), StockCommands(), UndoneCommands(),
                      StoreCommands()}) {
      all.insert(all.end(), part.begin(), part.end());
    }
    return all;
  }();
  return commands;
}

}  // namespace kladez
