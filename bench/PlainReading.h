// What every bench of reading is measured against: the least that a program can do to have the
// files in hand. It lists a directory and, for each file, opens it, reads it with one call and
// closes it; or does the same with one long file, and finds its lines.
#pragma once

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <cstring>
#include <string>

namespace kladez {

// The longest file that the one read of PlainlyRead takes whole.
inline constexpr size_t kPlainRoom = 64 * 1024;

// Calls visit(directory's descriptor, name) for each file.
template <typename Visit>
void ForEachPlainName(const std::string& directory, Visit visit) {
  DIR* entries = ::opendir(directory.c_str());
  if (entries == nullptr) std::abort();
  while (const dirent* entry = ::readdir(entries)) {
    if (entry->d_name[0] != '.') visit(::dirfd(entries), entry->d_name);
  }
  ::closedir(entries);
}

// The bytes of all files of a directory.
inline size_t PlainlyRead(const std::string& directory) {
  static std::array<char, kPlainRoom> buffer;
  size_t total = 0;
  ForEachPlainName(directory, [&](int parent, const char* name) {
    const int file = ::openat(parent, name, O_RDONLY);
    const ssize_t got = ::read(file, buffer.data(), buffer.size());
    if (got > 0) total += static_cast<size_t>(got);
    ::close(file);
  });
  return total;
}

// Lets the system forget what the files hold, so that the next reading is one from the disk.
inline void ForgetFiles(const std::string& directory) {
  const int parent = ::open(directory.c_str(), O_RDONLY | O_DIRECTORY);
  ::syncfs(parent);  // what is not on the disk yet can't be forgotten
  ::close(parent);
  ForEachPlainName(directory, [](int from, const char* name) {
    const int file = ::openat(from, name, O_RDONLY);
    ::posix_fadvise(file, 0, 0, POSIX_FADV_DONTNEED);
    ::close(file);
  });
}

// Reads one long file, and counts its lines where asked.
inline size_t PlainlyReadFile(const std::string& path, bool find_lines) {
  const int file = ::open(path.c_str(), O_RDONLY);
  struct stat status;
  if (file < 0 || ::fstat(file, &status) < 0) std::abort();
  const auto size = static_cast<size_t>(status.st_size);
  char* bytes = static_cast<char*>(std::malloc(size + 1));
  const ssize_t got = ::read(file, bytes, size);
  ::close(file);
  size_t count = static_cast<size_t>(got);
  if (find_lines) {
    count = 0;
    const char* end = bytes + got;
    for (const char* at = bytes; at < end; ++count) {
      const void* found = std::memchr(at, '\r', static_cast<size_t>(end - at));
      if (found == nullptr) break;
      at = static_cast<const char*>(found) + 2;
    }
  }
  std::free(bytes);
  return count;
}

}  // namespace kladez
