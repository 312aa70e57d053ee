#include "cli/Words.h"

namespace kladez {

using namespace Qt::StringLiterals;

bool Words::TakeFlag(const QString& name) { return words_.removeAll(name) > 0; }

QString Words::TakeValue(const QString& name) {
  for (qsizetype i = 0; i < words_.size(); ++i) {
    if (words_[i].startsWith(name + u'=')) return words_.takeAt(i).mid(name.size() + 1);
    if (words_[i] != name) continue;
    if (i + 1 == words_.size()) {
      throw WrongWords(u"После %1 нужно значение"_s.arg(name));
    }
    words_.removeAt(i);
    return words_.takeAt(i);
  }
  return {};
}

QStringList Words::TakeRest(qsizetype least, qsizetype most) {
  for (const QString& word : words_) {
    if (word.startsWith(u"--")) throw WrongWords(u"Непонятно: "_s + word);
  }
  if (words_.size() < least) throw WrongWords(u"Не хватает слов"_s);
  if (words_.size() > most) {
    throw WrongWords(u"Лишнее слово: "_s + words_[most]);
  }
  return words_;
}

}  // namespace kladez
