// What goes wrong outside the program, told in one way: `books` throws
// std::filesystem::filesystem_error (a file or directory) or std::system_error; the command guard
// of the screens shows it. Where the behaviour is to pass over errors, IgnoreErrors says so by
// name.
#pragma once

#include <QString>
#include <filesystem>
#include <system_error>

namespace kladez {

// Throws a filesystem_error of the error number (errno) for the path. `doing` tells in Russian what
// was being done: "Не удалось прочитать файл".
[[noreturn]] void ThrowFileError(const QString& doing, const QString& path, int error_number);

// "Не удалось прочитать файл\n0001/склад.usd\nнет такого файла или каталога": what was being done,
// which file, the system's reason in Russian.
QString ErrorText(const std::exception& error);

// Runs the action and passes over errors of the outside world; false when there was one.
template <typename Action>
bool IgnoreErrors(Action&& action) {
  try {
    action();
    return true;
  } catch (const std::system_error&) {  // filesystem_error is one
    return false;
  }
}

}  // namespace kladez
