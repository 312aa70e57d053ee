// The words of a command line: options in any order, then what the command is about.
#pragma once

#include <QStringList>
#include <stdexcept>

namespace kladez {

// Words that the command does not take; it tells how it is called then.
class WrongWords : public std::runtime_error {
 public:
  explicit WrongWords(const QString& told) : std::runtime_error(told.toStdString()) {}
};

class Words {
 public:
  explicit Words(const QStringList& words) : words_(words) {}

  // "--stock"; whether it was there.
  bool TakeFlag(const QString& name);
  // "--data DIR" or "--data=DIR"; empty where it was not there. Throws WrongWords without a value.
  QString TakeValue(const QString& name);
  // What is left, so many words at most. Throws WrongWords for more, fewer or an unknown option.
  QStringList TakeRest(qsizetype least, qsizetype most);

 private:
  QStringList words_;
};

}  // namespace kladez
