// Reads the files of a directory ahead of whoever visits them one after the other, with several
// threads, so that a disk has more than one request to work on. Nothing is handed over: the threads
// read into nowhere, and the visitor then finds the files in the system's memory. They are started
// only once the visitor has really waited for the disk, and go once nobody waits any more; a folder
// that is in memory costs a question to the system for every few files.
#pragma once

#include <QtGlobal>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

#include "system/OpenFile.h"

namespace kladez {

class ReadAhead {
 public:
  // The name at a place, from 0 below `count`; asked by several threads at once.
  using NameAt = std::function<const char*(qsizetype place)>;
  // The open directory must outlive this, as the names must.
  ReadAhead(const syscalls::OpenFile& directory, qsizetype count, NameAt name_at)
      : directory_(directory), count_(count), name_at_(std::move(name_at)) {}
  ~ReadAhead() { Stop(); }
  ReadAhead(const ReadAhead&) = delete;
  ReadAhead& operator=(const ReadAhead&) = delete;

  // Tells that the visitor is about to read the file at that place; places only grow.
  void Reached(qsizetype place) {
    if (place >= next_look_) Look(place);
  }

 private:
  void Look(qsizetype place);
  void Start();
  void Stop();
  void Work();
  // The next places to read, empty at the end; waits while the threads are far enough ahead.
  struct Places {
    qsizetype begin;
    qsizetype end;
  };
  Places Take(qsizetype waits);

  const syscalls::OpenFile& directory_;
  const qsizetype count_;
  const NameAt name_at_;
  qsizetype next_look_ = 0;
  qint64 waits_before_ = 0;  // of the visitor's thread

  std::mutex mutex_;
  std::condition_variable moved_;
  // Under the mutex.
  qsizetype visited_ = 0;
  qsizetype next_ = 0;
  qsizetype read_ = 0;    // files since the visitor last looked
  qsizetype waited_ = 0;  // and how often a thread waited for the disk over them
  bool stopping_ = false;
  std::vector<std::thread> threads_;
};

}  // namespace kladez
