#include "formats/Ordering.h"

#include <QtEndian>
#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
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

// False for a character that the code page lacks.
bool AppendRanks(QStringView name, std::vector<char>& keys) {
  static const Ranks ranks = MakeRanks();
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
  size_t place;
};

void Sort(std::vector<Keyed>& names, const std::vector<char>& keys) {
  size_t common = names.empty() ? 0 : names.front().size;
  for (const Keyed& name : names) {
    const char* first = keys.data() + names.front().begin;
    const char* other = keys.data() + name.begin;
    const size_t most = std::min<size_t>(common, name.size);
    common = static_cast<size_t>(std::mismatch(first, first + most, other).first - first);
  }
  for (Keyed& name : names) {
    std::array<char, 8> head{};
    std::memcpy(head.data(), keys.data() + name.begin + common,
                std::min<size_t>(head.size(), name.size - common));
    name.head = qFromBigEndian<quint64>(head.data());
  }
  std::sort(names.begin(), names.end(), [&](const Keyed& a, const Keyed& b) {
    if (a.head != b.head) return a.head < b.head;
    const int order =
        std::memcmp(keys.data() + a.begin, keys.data() + b.begin, std::min(a.size, b.size));
    if (order != 0) return order < 0;
    return a.size != b.size ? a.size < b.size : a.place < b.place;
  });
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
    names.push_back({0, static_cast<quint32>(begin), static_cast<quint32>(keys.size() - begin), i});
  }
  std::vector<size_t> places(count);
  if (plain) {
    Sort(names, keys);
    for (size_t i = 0; i < count; ++i) places[i] = names[i].place;
    return places;
  }
  std::vector<QString> texts;
  for (size_t i = 0; i < count; ++i) texts.push_back(OrderKey(name(i)));
  std::iota(places.begin(), places.end(), size_t{0});
  std::stable_sort(places.begin(), places.end(),
                   [&](size_t a, size_t b) { return texts[a] < texts[b]; });
  return places;
}

}  // namespace kladez
