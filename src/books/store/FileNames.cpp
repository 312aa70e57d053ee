#include "books/store/FileNames.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <stdexcept>

#include "formats/Ordering.h"
#include "system/PathNames.h"

namespace kladez {
namespace {

unsigned char Upper(char c) {
  return static_cast<unsigned char>('a' <= c && c <= 'z' ? c - 'a' + 'A' : c);
}

bool IsAscii(const char* text) {
  for (; *text != '\0'; ++text) {
    if (static_cast<unsigned char>(*text) >= 0x80) return false;
  }
  return true;
}

bool EndsIn(QByteArrayView name, QStringView extension) {
  if (name.size() < extension.size()) return false;
  const char* end = name.data() + name.size() - extension.size();
  return std::equal(extension.begin(), extension.end(), end, [](QChar wanted, char c) {
    return wanted.unicode() < 0x80 && Upper(static_cast<char>(wanted.unicode())) == Upper(c);
  });
}

// Each code by itself in one to three bytes, as UTF-8 has them, so that bytes and codes are in the
// same order and ASCII stays what it is. (Pairs of surrogates are not joined, for that order.)
QByteArray KeyOf(const QString& name) {
  QByteArray key;
  for (const QChar c : FoldCase(name)) {
    const unsigned code = c.unicode();
    if (code < 0x80) {
      key.append(static_cast<char>(code));
    } else if (code < 0x800) {
      key.append(static_cast<char>(0xC0 | code >> 6)).append(static_cast<char>(0x80 | (code & 63)));
    } else {
      key.append(static_cast<char>(0xE0 | code >> 12))
          .append(static_cast<char>(0x80 | (code >> 6 & 63)))
          .append(static_cast<char>(0x80 | (code & 63)));
    }
  }
  return key;
}

quint64 HeadOf(const char* key) {
  quint64 head = 0;
  for (int i = 0; i < 8; ++i) {
    head = head << 8 | Upper(*key);
    if (*key != '\0') ++key;
  }
  return head;
}

}  // namespace

int FileNames::Read(const syscalls::OpenFile& directory, QStringView extension) {
  const int error = directory.ForEachEntry([&](const char* name, FileStatus::Kind kind) {
    if (kind == FileStatus::Kind::kFile) Add(name, extension);
  });
  std::sort(entries_.begin(), entries_.end(),
            [this](const Entry& a, const Entry& b) { return Less(a, b); });
  return error;
}

void FileNames::Add(const char* name, QStringView extension) {
  const QByteArrayView bytes(name);
  if (IsAscii(name)) {
    if (!EndsIn(bytes, extension)) return;
    const quint32 kept = Keep(QByteArray::fromRawData(bytes.data(), bytes.size()));
    entries_.push_back({HeadOf(name), kept, kept});
    return;
  }
  const QString text = DecodePath(name);
  if (!text.endsWith(extension, Qt::CaseInsensitive)) return;
  const QByteArray key = KeyOf(text);
  const quint32 kept = Keep(EncodePath(text));
  entries_.push_back({HeadOf(key.constData()), kept, Keep(key)});
}

quint32 FileNames::Keep(const QByteArray& text) {
  const size_t begin = text_.size();
  if (begin > std::numeric_limits<quint32>::max()) throw std::bad_alloc();
  text_.insert(text_.end(), text.begin(), text.end());
  text_.push_back('\0');
  return static_cast<quint32>(begin);
}

bool FileNames::Less(const Entry& a, const Entry& b) const {
  if (a.head != b.head) return a.head < b.head;
  const char* left = text_.data() + a.key;
  const char* right = text_.data() + b.key;
  for (; Upper(*left) == Upper(*right); ++left, ++right) {
    // Of names that differ in letter case only, the one with the lower codes.
    if (*left == '\0') {
      return DecodePath(text_.data() + a.name) < DecodePath(text_.data() + b.name);
    }
  }
  return Upper(*left) < Upper(*right);
}

void FileNames::ToText(qsizetype place, QString& into) const {
  if (entries_[place].key == entries_[place].name) {
    into = QLatin1StringView(At(place));
  } else {
    into = DecodePath(At(place));
  }
}

}  // namespace kladez
