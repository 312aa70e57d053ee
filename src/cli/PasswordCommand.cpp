#include <cstdio>

#include "books/store/DirectorPassword.h"
#include "cli/Commands.h"

namespace kladez {

using namespace Qt::StringLiterals;

ExitCode RunPassword(Words& words, QTextStream& out) {
  words.TakeRest(0, 0);
  const QString password = QTextStream(stdin).readLine();
  if (password.isEmpty()) throw WrongWords(u"Пароль пуст"_s);
  out << HashedPasswordLine(password) << u'\n';
  return ExitCode::kSound;
}

}  // namespace kladez
