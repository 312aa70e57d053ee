#include "books/store/Session.h"

#include <functional>

#include "books/store/Errors.h"
#include "books/store/Notes.h"
#include "books/store/SaveSet.h"
#include "formats/CurrencyFile.h"
#include "formats/DatabaseFiles.h"
#include "formats/PartyFile.h"
#include "formats/TextLines.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

QStringList PartyNames(const Session& session, const DataDir& data, PartyKind kind) {
  QStringList names;
  FileState file;
  const QByteArray bytes = ReadIfThere(data, session.Path(PartyPath(kind)), file);
  for (const Party& party : ReadParties(kind, bytes)) names.append(party.constFirst());
  return names;
}

// An unreadable list shows as an empty one, and nothing is written over it; that must be said.
void NoteUnread(const std::function<void()>& read) {
  try {
    read();
  } catch (const std::filesystem::filesystem_error& error) {
    AddNote(ErrorText(error) +
            u"\nПока файл не прочитан, список показан пустым и не записывается. Верните файл на "
            u"место, хотя бы из копии базы, и откройте базу заново"_s);
  }
}

QString ShortCurrency(const Session& session, const DataDir& data) {
  const QString path = session.Path(files::kCurrency);
  if (!data.FileExists(path)) {
    IgnoreErrors([&] {
      SaveSet save(data);
      save.Write(path, WriteCurrency(RoubleCurrency()));
      save.Commit();
    });
  }
  const auto bytes = data.ReadIfAny(path);
  return bytes ? ReadCurrency(*bytes).ShortForm() : RoubleCurrency().ShortForm();
}

}  // namespace

bool OpenDatabase(Session& session, const DataDir& data) {
  session.base_path = session.chosen_base;
  if (!IsPlainTreePath(session.base_path) || !data.DirectoryExists(session.base_path)) {
    session.base_path.clear();  // none is open
    return false;
  }
  // Without the list, a missing one too, no name is known that a new list could be made of.
  session.warehouses.clear();
  session.warehouses_file = {};
  NoteUnread([&] { ReadWarehouses(session, data); });
  FileState marks;
  NoteUnread([&] { ReadIfThere(data, session.Path(u"marked"_s), marks); });
  session.currency_name = ShortCurrency(session, data);
  for (const PartyKind kind : kPartyKinds) {
    session.Parties(kind).clear();
    NoteUnread([&] { session.Parties(kind) = PartyNames(session, data, kind); });
  }
  return true;
}

void ReadWarehouses(Session& session, const DataDir& data) {
  FileState file;
  session.warehouses = DecodeLines(ReadWithState(data, session.Path(files::kWarehouses), file));
  session.warehouses_file = file;
}

QString LedgerPath(const Session& session, const QString& warehouse) {
  return session.Path(warehouse, files::kLedger);
}

void CloseDatabase(Session& session) {
  session.base_path.clear();
  session.warehouses.clear();
  for (const PartyKind kind : kPartyKinds) session.Parties(kind).clear();
}

}  // namespace kladez
