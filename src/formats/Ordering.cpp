#include "formats/Ordering.h"

#include <QtEndian>
#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <new>
#include <numeric>

#include "formats/TextLines.h"

namespace kladez {
namespace {

// By the character, its place among those of the code page in the order of OrderKey, from 1 on;
// letters that differ in case only have one place. 0 for what the code page lacks.
using Ranks = std::array<unsigned char, 0x2123>;

Ranks MakeRanks() {
  std::array<QString, 256> texts;
  for (int byte = 0; byte < 256; ++byte) {
    const char c = static_cast<char>(byte);
    texts[byte] = DecodeText({&c, 1});
  }
  std::sort(texts.begin(), texts.end(),
            [](const QString& a, const QString& b) { return OrderKey(a) < OrderKey(b); });
  Ranks ranks{};
  unsigned char rank = 0;
  for (size_t i = 0; i < texts.size(); ++i) {
    if (i == 0 || OrderKey(texts[i]) != OrderKey(texts[i - 1])) ++rank;
    ranks[texts[i].front().unicode()] = rank;
  }
  return ranks;
}

const Ranks& CodePageRanks() {
  static const Ranks ranks = MakeRanks();
  return ranks;
}

// False for a character that the code page lacks.
bool AppendRanks(QStringView name, std::vector<char>& keys) {
  const Ranks& ranks = CodePageRanks();
  for (const QChar c : name) {
    if (c.unicode() >= ranks.size() || ranks[c.unicode()] == 0) return false;
    keys.push_back(static_cast<char>(ranks[c.unicode()]));
  }
  return true;
}

struct Keyed {
  quint64 head;  // the eight bytes after what all names begin with
  quint32 begin;
  quint32 size;
  quint32 place;
};

// Byte by byte, the last one first; bytes that are the same in all names cost a look.
void SortByHead(std::vector<Keyed>& names) {
  std::vector<Keyed> sorted(names.size());
  for (int shift = 0; shift < 64; shift += 8) {
    std::array<size_t, 256> next{};
    const auto byte_of = [shift](const Keyed& name) { return name.head >> shift & 0xFF; };
    for (const Keyed& name : names) ++next[byte_of(name)];
    if (std::find(next.begin(), next.end(), names.size()) != next.end()) continue;
    std::exclusive_scan(next.begin(), next.end(), next.begin(), size_t{0});
    for (const Keyed& name : names) sorted[next[byte_of(name)]++] = name;
    names.swap(sorted);
  }
}

// The places of the names in order.
std::vector<size_t> Sorted(std::vector<Keyed> names, const std::vector<char>& keys) {
  // Names that are all empty have no bytes, and the calls below take no null.
  const char* const bytes = keys.empty() ? "" : keys.data();
  size_t common = names.empty() ? 0 : names.front().size;
  for (const Keyed& name : names) {
    const char* first = bytes + names.front().begin;
    const char* other = bytes + name.begin;
    const size_t most = std::min<size_t>(common, name.size);
    common = static_cast<size_t>(std::mismatch(first, first + most, other).first - first);
  }
  for (Keyed& name : names) {
    std::array<char, 8> head{};
    std::memcpy(head.data(), bytes + name.begin + common,
                std::min<size_t>(head.size(), name.size - common));
    name.head = qFromBigEndian<quint64>(head.data());
  }
  SortByHead(names);
  const auto less = [&](const Keyed& a, const Keyed& b) {
    const int order = std::memcmp(bytes + a.begin, bytes + b.begin, std::min(a.size, b.size));
    if (order != 0) return order < 0;
    return a.size != b.size ? a.size < b.size : a.place < b.place;
  };
  for (auto from = names.begin(); from != names.end();) {
    const auto to = std::find_if(
        from, names.end(), [head = from->head](const Keyed& name) { return name.head != head; });
    std::sort(from, to, less);
    from = to;
  }
  std::vector<size_t> places;
  places.reserve(names.size());
  for (const Keyed& name : names) places.push_back(name.place);
  return places;
}

}  // namespace

QString FoldCase(QStringView name) { return name.toString().toUpper(); }

QString OrderKey(QStringView name) {
  QString key = FoldCase(name);
  // U+0401 stands before all other letters in the code; here it follows U+0415 at once.
  return key.replace(QChar(0x0401), QString(QChar(0x0415)) + QChar(0xFFFF));
}

std::vector<size_t> PlacesInOrder(size_t count, const std::function<QStringView(size_t)>& name) {
  std::vector<char> keys;
  std::vector<Keyed> names;
  names.reserve(count);
  bool plain = true;
  for (size_t i = 0; i < count && plain; ++i) {
    const size_t begin = keys.size();
    plain = AppendRanks(name(i), keys) && keys.size() <= std::numeric_limits<quint32>::max();
    names.push_back({0, static_cast<quint32>(begin), static_cast<quint32>(keys.size() - begin),
                     static_cast<quint32>(i)});
  }
  if (plain) return Sorted(std::move(names), keys);
  std::vector<size_t> places(count);
  std::vector<QString> texts;
  for (size_t i = 0; i < count; ++i) texts.push_back(OrderKey(name(i)));
  std::iota(places.begin(), places.end(), size_t{0});
  std::stable_sort(places.begin(), places.end(),
                   [&](size_t a, size_t b) { return texts[a] < texts[b]; });
  return places;
}

std::vector<size_t> PlacesInOrder(const std::vector<QByteArrayView>& names) {
  std::array<char, 256> ranks;
  for (int byte = 0; byte < 256; ++byte) {
    const char c = static_cast<char>(byte);
    ranks[byte] = static_cast<char>(CodePageRanks()[DecodeText({&c, 1}).front().unicode()]);
  }
  size_t length = 0;
  for (const QByteArrayView name : names) length += static_cast<size_t>(name.size());
  if (length > std::numeric_limits<quint32>::max()) throw std::bad_alloc();
  std::vector<char> keys(length);
  std::vector<Keyed> keyed;
  keyed.reserve(names.size());
  size_t begin = 0;
  for (size_t i = 0; i < names.size(); ++i) {
    std::transform(names[i].begin(), names[i].end(),
                   keys.begin() + static_cast<std::ptrdiff_t>(begin),
                   [&](char c) { return ranks[static_cast<unsigned char>(c)]; });
    const auto size = static_cast<quint32>(names[i].size());
    keyed.push_back({0, static_cast<quint32>(begin), size, static_cast<quint32>(i)});
    begin += size;
  }
  return Sorted(std::move(keyed), keys);
}

}  // namespace kladez
