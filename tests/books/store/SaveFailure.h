// What a save that fails tells.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "TempData.h"
#include "books/store/SaveSet.h"

namespace kladez {

struct Failure {
  int error = 0;  // 0: there was none
  std::string path;
};

inline Failure FailureOf(const std::function<void()>& action) {
  try {
    action();
    return {};
  } catch (const std::filesystem::filesystem_error& error) {
    return {error.code().value(), error.path1().string()};
  }
}

inline Failure CommitFailure(const TempData& temp, const std::function<void(SaveSet&)>& fill) {
  return FailureOf([&] {
    SaveSet save(temp.Data());
    fill(save);
    save.Commit();
  });
}

}  // namespace kladez
