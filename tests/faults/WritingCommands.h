// Every command of the program that writes, on a small set of books: the tests let each of them
// meet every fault that a disk can have.
#pragma once

#include <QTemporaryDir>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "store/DataDir.h"
#include "store/Session.h"

namespace kladez {

// What lies on the disk besides the open Database; most commands have to do with that alone, and
// the books are made anew for each try.
enum class Beside { kNothing, kSecondDatabaseAndBackup };

// Books on a disk of their own: a data directory with an open Database, and a folder for backups.
class FaultBooks {
 public:
  explicit FaultBooks(Beside beside);

  const DataDir& Data() const { return data_; }
  Session& Opened() { return session_; }
  QString Backups() const { return root_.path() + QStringLiteral("/backups"); }

  // Every file and directory: relative path to bytes; directories end in "/".
  std::map<std::string, std::string> Tree() const;
  std::filesystem::path Root() const { return root_.path().toStdString(); }
  // What the program does as it starts.
  void Reopen();

 private:
  QTemporaryDir root_;
  DataDir data_;
  Session session_;
};

struct WritingCommand {
  std::string name;
  std::string source;  // the file below src/ that gathers its changes
  // Loads the working copies that the command works on; what it gives is the command itself.
  std::function<std::function<void()>(FaultBooks&)> prepare;
  Beside beside = Beside::kNothing;
  bool silent = false;  // told by its result only, errors ignored by design
};

const std::vector<WritingCommand>& WritingCommands();

}  // namespace kladez
