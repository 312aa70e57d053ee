// "Today" and "now" are asked here and nowhere else, so that a test can set them.
#pragma once

#include <QDate>
#include <QDateTime>
#include <optional>

namespace kladez {

class Clock {
 public:
  Clock() = default;                                         // the machine's clock
  explicit Clock(const QDateTime& fixed) : fixed_(fixed) {}  // always this instant

  // Local time; that of the test where one set it.
  QDateTime Now() const { return fixed_ ? *fixed_ : QDateTime::currentDateTime(); }
  QDate Today() const { return Now().date(); }

 private:
  std::optional<QDateTime> fixed_;
};

}  // namespace kladez
