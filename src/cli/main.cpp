// kladez-books: the books from a command line, without a window.
#include <QCoreApplication>

#include "cli/Commands.h"

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  QTextStream out(stdout);
  QTextStream errors(stderr);
  return static_cast<int>(kladez::RunCommand(QCoreApplication::arguments().mid(1), out, errors));
}
