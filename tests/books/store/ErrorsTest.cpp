#include <gtest/gtest.h>

#include <cerrno>
#include <stdexcept>

#include "books/store/Errors.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

QString Told(const QString& doing, const QString& path, int error) {
  try {
    ThrowFileError(doing, path, error);
  } catch (const std::exception& caught) {
    return ErrorText(caught);
  }
}

TEST(Errors, TellWhatWasDoneToWhichFileAndWhyInRussian) {
  EXPECT_EQ(Told(u"Не удалось записать"_s, u"/данные/0001/склад.usd"_s, ENOSPC),
            u"Не удалось записать\n/данные/0001/склад.usd\nна диске нет места"_s);
  EXPECT_EQ(Told(u"Не удалось: дважды"_s, u"/a: b"_s, EACCES),
            u"Не удалось: дважды\n/a: b\nнет доступа"_s);
}

TEST(Errors, OfTheLibraryReadAlike) {
  try {
    std::filesystem::create_directory("/nowhere/at/all");
    FAIL();
  } catch (const std::filesystem::filesystem_error& error) {
    EXPECT_TRUE(ErrorText(error).endsWith(u"\n/nowhere/at/all\nнет такого файла или каталога"_s));
  }
  EXPECT_EQ(ErrorText(std::runtime_error("что-то")), u"что-то"_s);
}

TEST(Errors, OnlyThoseOfTheOutsideWorldAreIgnored) {
  EXPECT_TRUE(IgnoreErrors([] {}));
  EXPECT_FALSE(IgnoreErrors([] { ThrowFileError(u"x"_s, u"y"_s, EIO); }));
  EXPECT_THROW(IgnoreErrors([] { throw std::logic_error("a fault of the program"); }),
               std::logic_error);
}

}  // namespace
}  // namespace kladez
