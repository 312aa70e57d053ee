// Which copies stay, and archives that somebody has made with ill intent.
#include <archive.h>
#include <archive_entry.h>
#include <gtest/gtest.h>

#include "books/copies/CopiesWorld.h"
#include "books/store/Errors.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

const QDate kToday(2026, 11, 23);

StoredCopy At(QDate day, int hour = 9, const QString& base = u"0001"_s) {
  return {{}, 100, {.base = base, .name = {}, .time = {day, QTime(hour, 0)}, .why = {}}};
}

// The days and hours that stay.
QStringList Kept(const std::vector<StoredCopy>& copies, qint64 room = 1 << 30) {
  const auto outlived = OutlivedCopies(copies, kToday, room);
  QStringList kept;
  for (size_t i = 0; i < copies.size(); ++i) {
    if (std::find(outlived.begin(), outlived.end(), i) == outlived.end()) {
      kept << copies[i].note.time.toString(u"dd.MM.yyyy HH"_s);
    }
  }
  return kept;
}

TEST(OutlivedCopies, TheOlderTheFewer) {
  std::vector<StoredCopy> copies;
  for (int age = 12 * 365; age >= 0; --age) {
    for (const int hour : {9, 18}) copies.push_back(At(kToday.addDays(-age), hour));
  }
  const QStringList kept = Kept(copies);
  EXPECT_EQ(kept.last(), u"23.11.2026 18"_s);
  EXPECT_TRUE(kept.contains(u"23.11.2026 09"_s)) << "all of today";
  EXPECT_TRUE(kept.contains(u"16.11.2026 09"_s)) << "a week of days";
  EXPECT_FALSE(kept.contains(u"16.11.2026 18"_s)) << "one a day";
  int weeks = 0, months = 0;
  for (const QString& copy : kept) {
    const qint64 age = QDate::fromString(copy.left(10), u"dd.MM.yyyy"_s).daysTo(kToday);
    weeks += age > 7 && age <= 31;
    months += age > 31;
    EXPECT_LE(age, 3653);
  }
  EXPECT_TRUE(weeks == 4 || weeks == 5) << weeks;
  EXPECT_TRUE(months == 120 || months == 121) << months;
}

TEST(OutlivedCopies, WhereRoomIsShortTheOldestGoButNeverTheLastNorTodays) {
  const std::vector<StoredCopy> copies = {At(kToday.addDays(-900), 9, u"0002"_s),
                                          At(kToday.addDays(-300)), At(kToday.addDays(-3)),
                                          At(kToday, 9), At(kToday, 10)};
  EXPECT_EQ(Kept(copies, 400).size(), 4);
  EXPECT_FALSE(Kept(copies, 400).contains(u"27.01.2026 09"_s));
  EXPECT_EQ(Kept(copies, 0).size(), 3) << "the only one of 0002, and both of today";
}

TEST(CopyNote, IsReadAsItWasWrittenAndOnlyWhole) {
  const CopyNote note{.base = u"0001"_s,
                      .name = u"Лавка=%1"_s,
                      .time = kMorning,
                      .why = u"перед командой «склад «А» удалён»"_s,
                      .files = 3,
                      .documents = 2,
                      .goods = 1,
                      .sum = ~quint64{0}};
  EXPECT_EQ(ReadNote(QByteArray("tar" + NoteFrame(note))), note);
  EXPECT_EQ(ReadNote(NoteFrame(note).chopped(1)), std::nullopt);
  CopyNote endless = note;
  endless.name = endless.why = QString(100'000, u'ё');
  EXPECT_EQ(NoteFrame(endless).size(), kNoteFrame);
  EXPECT_EQ(ReadNote(NoteFrame(endless))->base, note.base);
}

struct Hostile {
  const char* name;
  int type = AE_IFREG;
  const char* link = nullptr;
  qint64 size = 1;
};

QByteArray TarOf(const Hostile& hostile) {
  QByteArray bytes(1 << 20, '\0');
  size_t used = 0;
  archive* writer = archive_write_new();
  archive_write_set_format_gnutar(writer);
  archive_write_open_memory(writer, bytes.data(), static_cast<size_t>(bytes.size()), &used);
  archive_entry* entry = archive_entry_new();
  archive_entry_set_pathname(entry, hostile.name);
  archive_entry_set_filetype(entry, static_cast<unsigned>(hostile.type));
  archive_entry_set_perm(entry, 0644);
  archive_entry_set_size(entry, hostile.size);
  if (hostile.link != nullptr && hostile.type == AE_IFLNK) {
    archive_entry_set_symlink(entry, hostile.link);
  } else if (hostile.link != nullptr) {
    archive_entry_set_hardlink(entry, hostile.link);
  }
  archive_write_header(writer, entry);
  archive_write_data(writer, "x", 1);
  archive_entry_free(entry);
  if (hostile.size > 1) {
    archive_write_fail(writer);
  } else {
    archive_write_close(writer);
  }
  archive_write_free(writer);
  return bytes.first(static_cast<qsizetype>(used));
}

TEST(ReadArchive, WhatLeadsOutOrIsNoFileIsRefused) {
  const auto read = [](const Hostile& hostile) {
    ReadArchive(TarOf(hostile), "a", [](const ArchivedFile&) { return true; });
  };
  EXPECT_NO_THROW(read({"0001/marked"}));
  for (const Hostile& hostile :
       {Hostile{"../marked"}, Hostile{"/etc/passwd"}, Hostile{"0001/../../x"}, Hostile{"0001//x"},
        Hostile{"0001\\x"}, Hostile{"./x"}, Hostile{"0001/x", AE_IFLNK, "/etc", 0},
        Hostile{"0001/x", AE_IFREG, "0001/y", 0}, Hostile{"0001/x", AE_IFIFO, nullptr, 0},
        Hostile{"0001/x", AE_IFREG, nullptr, qint64{1} << 60}}) {
    EXPECT_THROW(read(hostile), std::filesystem::filesystem_error) << hostile.name;
  }
}

// Copies of ten years ago are read, and known to be whole, by the sum in their notes.
TEST(ReadArchive, TheSumOfTheSameFilesIsTheSameInEveryVersion) {
  const CopiesWorld world;
  const QByteArray file = QFile::encodeName(world.RootPath() + u"/a"_s);
  quint64 written = 0;
  {
    ArchiveWriter writer(file);
    writer.AddDirectory("0001", 0);
    writer.AddFile("0001/marked", 0, "0123456789abcdef\r\n");
    writer.Finish([&](quint64 sum) {
      written = sum;
      return QByteArray();
    });
  }
  EXPECT_EQ(written, 8542692895097418680u);
  EXPECT_EQ(ReadArchive(ArchiveBytes(file), file, [](const ArchivedFile&) { return true; }),
            written);
}

// Zeros without end pack into nothing.
TEST(ReadArchive, AnArchiveThatUnpacksToTooMuchIsLeft) {
  const CopiesWorld world;
  const QByteArray file = QFile::encodeName(world.RootPath() + u"/bomb"_s);
  {
    ArchiveWriter writer(file);
    for (int i = 0; i < 20; ++i)
      writer.AddFile("0001/" + QByteArray::number(i), 0, QByteArray(1 << 20, '\0'));
    writer.Finish([](quint64) { return QByteArray(); });
  }
  EXPECT_LT(ArchiveBytes(file).size(), 1 << 17);
  const auto read = [&](const ArchiveLimits& limits) {
    ReadArchive(
        ArchiveBytes(file), file, [](const ArchivedFile&) { return true; }, limits);
  };
  EXPECT_NO_THROW(read({}));
  EXPECT_THROW(read({.bytes = 10 << 20}), std::filesystem::filesystem_error);
  EXPECT_THROW(read({.files = 10}), std::filesystem::filesystem_error);
}

}  // namespace
}  // namespace kladez
