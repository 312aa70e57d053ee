// What the units for Windows share: handles, wide paths, errors by the numbers of POSIX.
#pragma once

#include <windows.h>

#include <QByteArray>
#include <string>

#include "system/FileStatus.h"

namespace kladez::syscalls {

class Handle {
 public:
  explicit Handle(HANDLE handle = INVALID_HANDLE_VALUE) : handle_(handle) {}
  ~Handle() {
    if (*this) ::CloseHandle(handle_);
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  HANDLE Get() const { return handle_; }
  explicit operator bool() const { return handle_ != INVALID_HANDLE_VALUE; }
  HANDLE Release() {
    const HANDLE released = handle_;
    handle_ = INVALID_HANDLE_VALUE;
    return released;
  }

 private:
  HANDLE handle_;
};

inline HANDLE Of(qintptr handle) { return reinterpret_cast<HANDLE>(handle); }

// Absolute and in the form that knows neither a longest path nor reserved names.
std::wstring WidePath(const QByteArray& path);

int ErrorOf(DWORD error);  // errno
int LastSystemError();     // of the last call

// A scanner of viruses may hold a file for a moment: what it stands in the way of is tried again
// for a second. `call` returns a Windows error or 0.
template <typename Call>
int Patiently(Call call) {
  constexpr DWORD kPause = 20;  // ms
  DWORD error = call();
  for (DWORD waited = 0; waited < 1000; waited += kPause) {
    if (error != ERROR_SHARING_VIOLATION && error != ERROR_LOCK_VIOLATION) break;
    ::Sleep(kPause);
    error = call();
  }
  return error == 0 ? 0 : ErrorOf(error);
}

// Opens what lies there, a link itself and not what it leads to. 0 or an errno.
int OpenHandle(const QByteArray& path, DWORD access, DWORD disposition, Handle* handle);

// A link of some kind, not a file that is stored in a special way (as clouds and compression do).
bool LeadsElsewhere(DWORD attributes, DWORD tag);
int StatusOf(HANDLE handle, FileStatus* status);
// A file system that keeps no times is no fault.
void SetModified(HANDLE file, qint64 nanoseconds);
// ELOOP where a directory on the way is a link.
int RefuseLinks(const QByteArray& path);

}  // namespace kladez::syscalls
