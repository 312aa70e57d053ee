#include "books/store/ReadAhead.h"

#include <algorithm>
#include <array>
#include <system_error>

namespace kladez {
namespace {

constexpr size_t kThreads = 8;
constexpr qsizetype kLookEvery = 16;    // files
constexpr qsizetype kManyWaits = 4;     // of these
constexpr qsizetype kTake = 8;          // files at once
constexpr qsizetype kFarAhead = 1024;   // files
constexpr qsizetype kEnough = 4 * 256;  // files read without a wait

void ReadIntoNowhere(const syscalls::OpenFile& directory, const char* name) {
  syscalls::OpenFile file;
  if (file.OpenIn(directory, name) != 0) return;
  std::array<char, 1 << 14> nowhere;
  // What is longer the system reads ahead by itself once it is being read.
  file.Read(nowhere.data(), nowhere.size());
}

}  // namespace

void ReadAhead::Look(qsizetype place) {
  next_look_ = place + kLookEvery;
  if (threads_.empty()) {
    const qint64 waits = syscalls::WaitsOfThread();
    const bool slow = place > 0 && waits - waits_before_ >= kManyWaits;
    waits_before_ = waits;
    visited_ = place;
    if (slow) Start();
    return;
  }
  bool enough = false;
  {
    const std::lock_guard lock(mutex_);
    visited_ = place;
    if (waited_ > 0) read_ = waited_ = 0;
    enough = read_ >= kEnough;
  }
  moved_.notify_all();
  if (enough) {
    Stop();
    waits_before_ = syscalls::WaitsOfThread();
  }
}

void ReadAhead::Start() {
  next_ = visited_;
  read_ = waited_ = 0;
  stopping_ = false;
  try {
    while (threads_.size() < kThreads) threads_.emplace_back(&ReadAhead::Work, this);
  } catch (const std::system_error&) {
    // With fewer threads, or none, the reading is slower and the same.
  }
}

void ReadAhead::Stop() {
  {
    const std::lock_guard lock(mutex_);
    stopping_ = true;
  }
  moved_.notify_all();
  for (std::thread& thread : threads_) thread.join();
  threads_.clear();
}

ReadAhead::Places ReadAhead::Take(qsizetype waits) {
  std::unique_lock lock(mutex_);
  waited_ += waits;
  next_ = std::max(next_, visited_);
  moved_.wait(lock, [this] { return stopping_ || next_ < visited_ + kFarAhead; });
  const qsizetype end = stopping_ ? next_ : std::min(next_ + kTake, count_);
  const Places places{next_, end};
  read_ += end - next_;
  next_ = end;
  return places;
}

void ReadAhead::Work() {
  qsizetype waits = 0;
  while (true) {
    const Places places = Take(waits);
    if (places.begin == places.end) return;
    const qint64 before = syscalls::WaitsOfThread();
    for (qsizetype i = places.begin; i < places.end; ++i) {
      ReadIntoNowhere(directory_, name_at_(i));
    }
    waits = syscalls::WaitsOfThread() - before;
  }
}

}  // namespace kladez
