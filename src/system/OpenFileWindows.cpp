#include <winternl.h>

#include <algorithm>
#include <cerrno>
#include <string>
#include <vector>

#include "system/HandlesWindows.h"
#include "system/OpenFile.h"

namespace kladez::syscalls {
namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// A file below an open directory, as it is named there; a Windows error or 0.
DWORD OpenBelow(HANDLE directory, std::wstring name, ULONG options, HANDLE* opened) {
  UNICODE_STRING text = {.Length = static_cast<USHORT>(name.size() * sizeof(wchar_t)),
                         .MaximumLength = static_cast<USHORT>(name.size() * sizeof(wchar_t)),
                         .Buffer = name.data()};
  OBJECT_ATTRIBUTES what;
  InitializeObjectAttributes(&what, &text, OBJ_CASE_INSENSITIVE, directory, nullptr);
  IO_STATUS_BLOCK result;
  const NTSTATUS status = ::NtCreateFile(
      opened, GENERIC_READ | SYNCHRONIZE, &what, &result, nullptr, FILE_ATTRIBUTE_NORMAL, kShareAll,
      FILE_OPEN, options | FILE_SYNCHRONOUS_IO_NONALERT | FILE_OPEN_FOR_BACKUP_INTENT, nullptr, 0);
  return status >= 0 ? 0 : ::RtlNtStatusToDosError(status);
}

int RefuseLink(HANDLE handle) {
  FILE_ATTRIBUTE_TAG_INFO tag = {};
  if (!::GetFileInformationByHandleEx(handle, FileAttributeTagInfo, &tag, sizeof tag)) {
    return ::GetFileType(handle) == FILE_TYPE_DISK ? LastSystemError() : 0;
  }
  return LeadsElsewhere(tag.FileAttributes, tag.ReparseTag) ? ELOOP : 0;
}

}  // namespace

OpenFile::~OpenFile() {
  if (handle_ != -1) ::CloseHandle(Of(handle_));
}

int OpenFile::Open(const QByteArray& path) {
  Handle opened;
  int error = OpenHandle(path, GENERIC_READ, OPEN_EXISTING, &opened);
  if (error == 0) error = RefuseLink(opened.Get());
  if (error == 0) handle_ = reinterpret_cast<qintptr>(opened.Release());
  return error;
}

int OpenFile::OpenIn(const OpenFile& directory, const char* name) {
  const std::wstring wide = QString::fromUtf8(name).toStdWString();
  HANDLE opened = INVALID_HANDLE_VALUE;
  int error = Patiently(
      [&] { return OpenBelow(Of(directory.handle_), wide, FILE_OPEN_REPARSE_POINT, &opened); });
  if (error != 0) return error;
  handle_ = reinterpret_cast<qintptr>(opened);
  return RefuseLink(opened);
}

int OpenFile::Status(FileStatus* status) const { return StatusOf(Of(handle_), status); }

qint64 OpenFile::Read(char* into, qint64 size) const {
  constexpr qint64 kMost = 1 << 30;
  DWORD got = 0;
  if (::ReadFile(Of(handle_), into, static_cast<DWORD>(std::min(size, kMost)), &got, nullptr)) {
    return got;
  }
  return ::GetLastError() == ERROR_HANDLE_EOF ? 0 : -LastSystemError();
}

int OpenFile::ForEachEntry(const Visitor& visit) const {
  using Kind = FileStatus::Kind;
  constexpr size_t kRoom = 1 << 16;
  std::vector<quint64> room(kRoom / sizeof(quint64));
  auto how = FileIdBothDirectoryRestartInfo;
  while (::GetFileInformationByHandleEx(Of(handle_), how, room.data(), kRoom)) {
    how = FileIdBothDirectoryInfo;
    const char* at = reinterpret_cast<const char*>(room.data());
    while (true) {
      const auto* entry = reinterpret_cast<const FILE_ID_BOTH_DIR_INFO*>(at);
      const QByteArray name =
          QString::fromWCharArray(entry->FileName, entry->FileNameLength / sizeof(wchar_t))
              .toUtf8();
      // Of a link, the tag stands where the size of the extended attributes does.
      const Kind kind = LeadsElsewhere(entry->FileAttributes, entry->EaSize)      ? Kind::kLink
                        : (entry->FileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? Kind::kDirectory
                                                                                  : Kind::kFile;
      if (name != "." && name != "..") visit(name.constData(), kind);
      if (entry->NextEntryOffset == 0) break;
      at += entry->NextEntryOffset;
    }
  }
  const DWORD error = ::GetLastError();
  if (error == ERROR_NO_MORE_FILES) return 0;
  // A directory that was just made empty has not even a point, and a file has no entries.
  if (error == ERROR_FILE_NOT_FOUND) return 0;
  return error == ERROR_INVALID_PARAMETER ? ENOTDIR : ErrorOf(error);
}

qint64 WaitsOfThread() { return 0; }

}  // namespace kladez::syscalls
