// kladez-books: the books from a command line, without a window.
#include <QCoreApplication>

#include "cli/CheckCommand.h"

int main(int argc, char** argv) {
  using namespace Qt::StringLiterals;
  const QCoreApplication application(argc, argv);
  QTextStream out(stdout);
  QTextStream errors(stderr);
  QStringList words = QCoreApplication::arguments().mid(1);
  if (words.value(0) == u"check") {
    return static_cast<int>(kladez::RunCheck(words.mid(1), out, errors));
  }
  errors << u"kladez-books check [--stock] [КАТАЛОГ]\n"_s;
  return static_cast<int>(kladez::ExitCode::kNotDone);
}
