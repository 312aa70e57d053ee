#include <linux/magic.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <initializer_list>

#include "system/DirectoryWatch.h"

namespace kladez {
namespace {

// The file systems that lie on a disk of this machine, or in its memory.
bool IsOfThisMachine(const QByteArray& path) {
  constexpr unsigned kFat = MSDOS_SUPER_MAGIC;
  constexpr unsigned kExFat = 0x2011BAB0;
  constexpr unsigned kNtfs = 0x7366746E;
  constexpr unsigned kJfs = 0x3153464A;
  constexpr unsigned kZfs = 0x2FC12FC1;
  struct statfs status;
  if (::statfs(path.constData(), &status) < 0) return false;
  for (const unsigned known :
       {unsigned{EXT4_SUPER_MAGIC}, unsigned{XFS_SUPER_MAGIC}, unsigned{BTRFS_SUPER_MAGIC},
        unsigned{F2FS_SUPER_MAGIC}, unsigned{TMPFS_MAGIC}, unsigned{OVERLAYFS_SUPER_MAGIC},
        unsigned{REISERFS_SUPER_MAGIC}, kFat, kExFat, kNtfs, kJfs, kZfs}) {
    if (static_cast<unsigned>(status.f_type) == known) return true;
  }
  return false;
}

constexpr uint32_t kChanges = IN_MODIFY | IN_CLOSE_WRITE | IN_ATTRIB | IN_CREATE | IN_DELETE |
                              IN_MOVED_FROM | IN_MOVED_TO | IN_DELETE_SELF | IN_MOVE_SELF;
// After these nothing more is told, or something was not.
constexpr uint32_t kEnds = IN_Q_OVERFLOW | IN_IGNORED | IN_UNMOUNT | IN_DELETE_SELF | IN_MOVE_SELF;

}  // namespace

void DirectoryWatch::Stop() {
  if (descriptor_ >= 0) ::close(descriptor_);
  descriptor_ = -1;
}

void DirectoryWatch::Start(const QByteArray& path) {
  Stop();
  struct stat status;
  if (!IsOfThisMachine(path) || ::stat(path.constData(), &status) < 0) return;
  descriptor_ = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
  if (descriptor_ < 0) return;
  path_ = path;
  device_ = status.st_dev;
  inode_ = status.st_ino;
  if (::inotify_add_watch(descriptor_, path.constData(), kChanges | IN_ONLYDIR) < 0) Stop();
}

std::optional<DirectoryWatch::Names> DirectoryWatch::Changes(const QByteArray& path) {
  struct stat status;
  const bool same = descriptor_ >= 0 && path == path_ && ::stat(path.constData(), &status) == 0 &&
                    status.st_dev == device_ && status.st_ino == inode_;
  Names names;
  bool whole = same;
  alignas(inotify_event) std::array<char, 1 << 14> buffer;
  while (whole) {
    const ssize_t got = ::read(descriptor_, buffer.data(), buffer.size());
    if (got < 0 && errno == EAGAIN) return names;
    if (got <= 0) break;
    for (const char* at = buffer.data(); at < buffer.data() + got;) {
      const auto* event = reinterpret_cast<const inotify_event*>(at);
      if ((event->mask & kEnds) != 0) whole = false;
      if (event->len > 0) names.insert(QByteArray(event->name));
      at += sizeof(inotify_event) + event->len;
    }
  }
  Stop();
  return std::nullopt;
}

}  // namespace kladez
