// One copy on its way: a thread reads the Database and packs it, and nobody waits. What a command
// is about to change meanwhile is handed over first, so that the copy holds the bytes of the
// moment at which it was asked for.
#pragma once

#include <QByteArray>
#include <atomic>
#include <exception>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <thread>

#include "books/copies/CopyNote.h"
#include "system/OpenFile.h"

namespace kladez {

class ArchiveWriter;

class CopyJob {
 public:
  struct Order {
    QByteArray root;        // the data directory
    QByteArray tree;        // "0001", as it is spelled on the disk
    QByteArray descriptor;  // "0001.us", likewise
    QByteArray folder;      // where the copy goes
    QByteArray second;      // once more; may be empty
    qint64 room;            // bytes for all copies together
    CopyNote note;          // its counts and its sum are filled in
  };

  // Begins at once.
  explicit CopyJob(Order order);
  ~CopyJob();  // waits
  CopyJob(const CopyJob&) = delete;
  CopyJob& operator=(const CopyJob&) = delete;

  // Before a file is written, deleted or made (an absolute path): its old state goes into the copy.
  void Keep(const QByteArray& path);
  bool IsOver() const { return over_; }
  // Until the copy lies in its folder, checked. Throws filesystem_error where it does not.
  void Wait();
  // Afterwards: whether the second place got it too, and why it did not though it is there.
  bool ReachedSecondPlace() const { return second_reached_; }
  const QString& SecondPlaceFault() const { return second_fault_; }

 private:
  struct File {
    QByteArray bytes;
    qint64 modified;
  };

  void Run();
  void Write(const QByteArray& part);
  void WriteTree(ArchiveWriter& writer, const syscalls::OpenFile& parent, const QByteArray& name);
  void WriteDirectory(ArchiveWriter& writer, const syscalls::OpenFile& directory,
                      const QByteArray& name);
  void WriteFile(ArchiveWriter& writer, const QByteArray& name, const File& file);
  void WriteKept(ArchiveWriter& writer);
  void Check(const QByteArray& part);
  void Count(const QByteArray& name, QByteArrayView bytes);

  Order order_;
  std::mutex mutex_;                                // of what Keep fills
  std::map<QByteArray, std::optional<File>> kept_;  // nothing: it was not there
  std::set<QByteArray> written_;                    // of these
  std::exception_ptr error_;
  bool second_reached_ = false;
  QString second_fault_;
  std::atomic<bool> all_read_ = false;
  std::atomic<bool> over_ = false;
  std::thread thread_;
};

}  // namespace kladez
