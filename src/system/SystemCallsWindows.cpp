#include <algorithm>
#include <array>
#include <cerrno>
#include <vector>

#include "system/FaultHooks.h"
#include "system/HandlesWindows.h"
#include "system/OpenFile.h"

namespace kladez::syscalls {
namespace {

// The result of a change, told to the recorder where it was made.
int Result(int error, const Made& made) {
  if (error == 0) TellMade(made);
  return error;
}

DWORD Windows(BOOL done) { return done ? 0 : ::GetLastError(); }

// Whoever else reads a file while it is replaced or removed is refused access by it; a scanner of
// viruses soon lets go of it.
template <typename Call>
int Persistently(Call call) {
  int error = Patiently(call);
  for (int tries = 0; error == EACCES && tries < 50; ++tries) {
    ::Sleep(20);
    error = Patiently(call);
  }
  return error;
}

int WriteAll(HANDLE file, QByteArrayView bytes, const QByteArray& path) {
  constexpr qsizetype kPiece = 1 << 20;
  do {
    if (const int error = Fault("write", path)) return error;
    DWORD written = 0;
    const auto size = static_cast<DWORD>(std::min(bytes.size(), kPiece));
    if (!::WriteFile(file, bytes.data(), size, &written, nullptr)) return LastSystemError();
    TellMade({.call = "write", .path = path, .bytes = bytes.first(written)});
    bytes = bytes.sliced(written);
  } while (!bytes.isEmpty());
  return 0;
}

int FlushFile(HANDLE file, const QByteArray& path) {
  if (const int error = Fault("fsync", path)) return error;
  return Result(::FlushFileBuffers(file) ? 0 : LastSystemError(), {.call = "fsync", .path = path});
}

int CopyInto(const QByteArray& from, const QByteArray& to) {
  OpenFile in;
  FileStatus status;
  if (const int error = RefuseLinks(from)) return error;
  if (const int error = in.Open(from)) return error;
  if (const int error = in.Status(&status)) return error;
  Handle out;
  if (const int error = RefuseLinks(to)) return error;
  const int made = OpenHandle(to, GENERIC_WRITE, CREATE_NEW, &out);
  if (const int error = Result(made, {.call = "create", .path = to})) return error;
  std::array<char, 1 << 16> buffer;
  while (true) {
    const qint64 got = in.Read(buffer.data(), buffer.size());
    if (got < 0) return static_cast<int>(-got);
    if (got == 0) break;
    if (const int error = WriteAll(out.Get(), {buffer.data(), got}, to)) return error;
  }
  SetModified(out.Get(), status.modified);
  // There is no syncing of all at once here.
  return FlushFile(out.Get(), to);
}

int Move(const QByteArray& from, const QByteArray& to, DWORD flags) {
  if (const int error = Fault("rename", to)) return error;
  if (const int error = RefuseLinks(from)) return error;
  if (const int error = RefuseLinks(to)) return error;
  const std::wstring source = WidePath(from), target = WidePath(to);
  return Result(Persistently([&] {
                  return Windows(::MoveFileExW(source.c_str(), target.c_str(),
                                               flags | MOVEFILE_WRITE_THROUGH));
                }),
                {.call = "rename", .path = to, .from = from});
}

int RemoveEmpty(const QByteArray& path) {
  const std::wstring wide = WidePath(path);
  return Result(Patiently([&] { return Windows(::RemoveDirectoryW(wide.c_str())); }),
                {.call = "rmdir", .path = path});
}

// A file, read-only or not, or a link, which is never followed.
int RemoveFile(const QByteArray& path) {
  const std::wstring wide = WidePath(path);
  const DWORD attributes = ::GetFileAttributesW(wide.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return LastSystemError();
  if ((attributes & FILE_ATTRIBUTE_READONLY) != 0) {
    ::SetFileAttributesW(wide.c_str(), attributes & ~DWORD{FILE_ATTRIBUTE_READONLY});
  }
  const bool directory = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  return Result(
      Persistently([&] {
        return Windows(directory ? ::RemoveDirectoryW(wide.c_str()) : ::DeleteFileW(wide.c_str()));
      }),
      {.call = "unlink", .path = path});
}

// Renames are written through; a directory is flushed where the file system knows how.
int FlushDirectory(const QByteArray& path, const char* call) {
  if (const int error = Fault(call, path)) return error;
  if (const int error = RefuseLinks(path)) return error;
  Handle directory;
  const int error = OpenHandle(path, GENERIC_READ | GENERIC_WRITE, OPEN_EXISTING, &directory);
  if (error != 0 && error != EACCES) return error;
  if (error == 0) ::FlushFileBuffers(directory.Get());
  return Result(0, {.call = call, .path = path});
}

}  // namespace

void PretendOldKernel(bool) {}

NewFile::~NewFile() {
  if (handle_ != -1) ::CloseHandle(Of(handle_));
}

// The rights are those that the directory hands down.
int NewFile::Create(unsigned) {
  if (const int error = Fault("create", path_)) return error;
  if (const int error = RefuseLinks(path_)) return error;
  Handle made;
  const int error = OpenHandle(path_, GENERIC_WRITE, CREATE_NEW, &made);
  if (error == 0) handle_ = reinterpret_cast<qintptr>(made.Release());
  return Result(error, {.call = "create", .path = path_});
}

int NewFile::Write(QByteArrayView bytes) { return WriteAll(Of(handle_), bytes, path_); }

int NewFile::Sync() { return FlushFile(Of(handle_), path_); }

void NewFile::SetTime(qint64 seconds) { SetModified(Of(handle_), seconds * 1'000'000'000); }

int SyncDirectory(const QByteArray& path) { return FlushDirectory(path, "fsync"); }

int SyncFileSystem(const QByteArray& path) { return FlushDirectory(path, "syncfs"); }

int Rename(const QByteArray& from, const QByteArray& to) {
  return Move(from, to, MOVEFILE_REPLACE_EXISTING);
}

int RenameToNew(const QByteArray& from, const QByteArray& to) { return Move(from, to, 0); }

int MoveAway(const QByteArray& from, const QByteArray& to) { return Rename(from, to); }

int KeepCopy(const QByteArray& of, const QByteArray& as) {
  if (const int error = Fault("link", as)) return error;
  if (const int error = RefuseLinks(of)) return error;
  if (const int error = RefuseLinks(as)) return error;
  const std::wstring source = WidePath(of), target = WidePath(as);
  const int error =
      Result(Patiently([&] {
               return Windows(::CreateHardLinkW(target.c_str(), source.c_str(), nullptr));
             }),
             {.call = "link", .path = as, .from = of});
  const bool no_links = error == ENOSYS || error == EOPNOTSUPP || error == EMLINK ||
                        error == EXDEV || error == EPERM || error == EACCES;
  if (!no_links) return error;
  if (const int refused = Fault("create", as)) return refused;
  return CopyInto(of, as);
}

int CopyNewFile(const QByteArray& from, const QByteArray& to) {
  if (const int error = Fault("copy", from)) return error;
  return CopyInto(from, to);
}

int Unlink(const QByteArray& path) {
  if (const int error = Fault("unlink", path)) return error;
  if (const int error = RefuseLinks(path)) return error;
  return RemoveFile(path);
}

int MakeDirectory(const QByteArray& path) {
  if (const int error = Fault("mkdir", path)) return error;
  if (const int error = RefuseLinks(path)) return error;
  return Result(::CreateDirectoryW(WidePath(path).c_str(), nullptr) ? 0 : LastSystemError(),
                {.call = "mkdir", .path = path});
}

int RemoveDirectory(const QByteArray& path) {
  if (const int error = Fault("rmdir", path)) return error;
  if (const int error = RefuseLinks(path)) return error;
  return RemoveEmpty(path);
}

int RemoveTree(const QByteArray& path) {
  FileStatus status;
  if (const int error = Look(path, &status)) return error == ENOENT ? 0 : error;
  if (!status.IsDirectory()) return Unlink(path);
  std::vector<QByteArray> names;
  {
    OpenFile directory;
    int error = directory.Open(path);
    if (error == 0) {
      error = directory.ForEachEntry(
          [&](const char* name, FileStatus::Kind) { names.push_back(QByteArray(name)); });
    }
    if (error != 0) return error;
  }
  for (const QByteArray& name : names) {
    if (const int error = RemoveTree(path + '/' + name)) return error;
  }
  return RemoveDirectory(path);
}

int Look(const QByteArray& path, FileStatus* status) {
  if (const int error = RefuseLinks(path)) return error;
  return LookThroughLinks(path, status);
}

int LookThroughLinks(const QByteArray& path, FileStatus* status) {
  Handle file;
  if (const int error = OpenHandle(path, FILE_READ_ATTRIBUTES, OPEN_EXISTING, &file)) return error;
  return StatusOf(file.Get(), status);
}

bool Exists(const QByteArray& path) {
  return ::GetFileAttributesW(WidePath(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

int ReadPlainFile(const QByteArray& path, qint64 most, QByteArray* bytes) {
  if (const int error = RefuseLinks(path)) return error;
  OpenFile file;
  if (const int error = file.Open(path)) return error;
  const int error = file.ReadWhole(most, *bytes);
  return error == EISDIR ? EINVAL : error;
}

int WriteRefusal(const QByteArray& path) {
  FileStatus status;
  if (const int error = Look(path, &status)) return error;
  if (status.kind == FileStatus::Kind::kLink) return ELOOP;
  if ((status.mode & 0222) == 0) return EACCES;
  Handle file;
  const DWORD access = status.IsDirectory() ? FILE_ADD_FILE : GENERIC_WRITE;
  return OpenHandle(path, access, OPEN_EXISTING, &file);
}

}  // namespace kladez::syscalls
