#include "formats/NameSearch.h"

#include <algorithm>

#include "formats/Ordering.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// Key by key; the letters whose Latin key is a mark come with it.
constexpr QStringView kLatin =
    u"`qwertyuiop[]asdfghjkl;'zxcvbnm,.~QWERTYUIOP{}ASDFGHJKL:\"ZXCVBNM<>";
constexpr QStringView kCyrillic =
    u"ёйцукенгшщзхъфывапролджэячсмитьбюЁЙЦУКЕНГШЩЗХЪФЫВАПРОЛДЖЭЯЧСМИТЬБЮ";
static_assert(kLatin.size() == kCyrillic.size());

bool IsCyrillic(QChar c) { return c.script() == QChar::Script_Cyrillic; }

// "Ё" and "Е" are one letter here; the text is upper-cased.
QString WithoutYo(QString folded) { return folded.replace(u'Ё', u'Е'); }

// What is looked for, folded once for all names.
class Wanted {
 public:
  explicit Wanted(QStringView text)
      : beginning_(FoldCase(text)),
        words_(WordsToFind(text)),
        other_words_(WordsToFind(InOtherLayout(text))) {}

  bool IsEmpty() const { return beginning_.isEmpty(); }
  bool Begins(const QString& name) const { return name.startsWith(beginning_); }
  bool IsIn(const QString& name) const {
    const QString plain = WithoutYo(name);
    return Holds(plain, words_) || Holds(plain, other_words_);
  }

 private:
  static bool Holds(const QString& name, const QStringList& words) {
    return !words.isEmpty() && std::all_of(words.begin(), words.end(), [&](const QString& word) {
      return name.contains(word);
    });
  }

  QString beginning_;
  QStringList words_;
  QStringList other_words_;
};

}  // namespace

QString FoldForWords(QStringView name) { return WithoutYo(FoldCase(name)); }

QStringList WordsToFind(QStringView text) {
  return FoldForWords(text).split(u' ', Qt::SkipEmptyParts);
}

QString InOtherLayout(QStringView text) {
  const bool cyrillic = std::any_of(text.begin(), text.end(), IsCyrillic);
  const QStringView from = cyrillic ? kCyrillic : kLatin;
  const QStringView to = cyrillic ? kLatin : kCyrillic;
  QString turned = text.toString();
  for (QChar& c : turned) {
    const qsizetype at = from.indexOf(c);
    if (at >= 0) c = to[at];
  }
  return turned;
}

void NameSearch::Add(QStringView name) { names_.push_back(FoldCase(name)); }

int NameSearch::First(QStringView text) const {
  const Wanted wanted(text);
  if (wanted.IsEmpty()) return -1;
  const auto row_of = [&](auto found) {
    return found == names_.end() ? -1 : static_cast<int>(found - names_.begin());
  };
  const int beginning = row_of(std::find_if(
      names_.begin(), names_.end(), [&](const QString& name) { return wanted.Begins(name); }));
  if (beginning >= 0) return beginning;
  return row_of(std::find_if(names_.begin(), names_.end(),
                             [&](const QString& name) { return wanted.IsIn(name); }));
}

int NameSearch::Next(QStringView text, int row) const {
  const Wanted wanted(text);
  const int count = static_cast<int>(names_.size());
  if (wanted.IsEmpty()) return -1;
  for (int step = 1; step <= count; ++step) {
    const int at = (std::max(row, -1) + step) % count;
    if (wanted.Begins(names_[at]) || wanted.IsIn(names_[at])) return at;
  }
  return -1;
}

}  // namespace kladez
