// What a new shop does before it sells for the first time, and how far it has come.
#pragma once

#include <array>

#include "books/store/DataDir.h"
#include "books/store/Session.h"

namespace kladez {

enum class FirstStep { kFirm, kGoods, kReceipt, kPrices, kSale };
inline constexpr size_t kFirstSteps = 5;

struct FirstSteps {
  std::array<bool, kFirstSteps> done{};

  bool IsDone(FirstStep step) const { return done[static_cast<size_t>(step)]; }
  bool AllDone() const;
};

// A file or directory that can't be read is a step that nobody has taken. The files are asked, not
// the session, which may still hold the lists of the Database before.
FirstSteps ReadFirstSteps(const DataDir& data, const Session& session);

}  // namespace kladez
