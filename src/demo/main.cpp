// kladez-demo DIRECTORY: adds the demonstration books to a data directory.
#include <QCoreApplication>
#include <QDir>
#include <cstdio>
#include <exception>

#include "books/store/Clock.h"
#include "books/store/Errors.h"
#include "books/store/SaveSet.h"
#include "demo/DemoBooks.h"

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  if (argc != 2) {
    std::fputs("usage: kladez-demo DIRECTORY\n", stderr);
    return 2;
  }
  try {
    const QString directory = QString::fromLocal8Bit(argv[1]);
    QDir().mkpath(directory);
    const kladez::DataDir data(directory);
    kladez::SaveSet::Recover(data);
    kladez::WriteDemonstrationBooks(data, kladez::Clock().Today());
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", kladez::ErrorText(error).toLocal8Bit().constData());
    return 1;
  }
  return 0;
}
