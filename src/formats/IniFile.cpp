#include "formats/IniFile.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kladez {
namespace {

constexpr std::array<std::pair<char, char>, 9> kEscapes = {{{'a', '\a'},
                                                            {'b', '\b'},
                                                            {'f', '\f'},
                                                            {'n', '\n'},
                                                            {'r', '\r'},
                                                            {'t', '\t'},
                                                            {'v', '\v'},
                                                            {'"', '"'},
                                                            {'\\', '\\'}}};

bool IsDigitOf(int base, QChar c) {
  const char16_t code = c.unicode();
  const bool letter = (code >= u'a' && code <= u'f') || (code >= u'A' && code <= u'F');
  return (code >= u'0' && code < u'0' + std::min(base, 10)) || (base == 16 && letter);
}

// Takes the digits that stand at the beginning.
QChar TakeCode(QStringView& text, int base) {
  qsizetype digits = 0;
  while (digits < text.size() && IsDigitOf(base, text[digits])) ++digits;
  const QChar code(static_cast<char16_t>(text.first(digits).toUInt(nullptr, base)));
  text = text.sliced(digits);
  return code;
}

// What stands after a backslash. An unknown escape is passed over.
void TakeEscape(QStringView& text, QString& out) {
  if (text.isEmpty()) return;
  const QChar letter = text.front();
  if (IsDigitOf(8, letter)) {
    out += TakeCode(text, 8);
    return;
  }
  text = text.sliced(1);
  if (letter == u'x') {
    out += TakeCode(text, 16);
    return;
  }
  for (const auto& [name, character] : kEscapes) {
    if (letter == QLatin1Char(name)) out += QLatin1Char(character);
  }
}

std::optional<QString> Unescaped(QStringView raw) {
  QString text;
  bool quoted = false;
  qsizetype kept = 0;  // blanks at the end of what stands in no quotation marks are none of it
  while (!raw.isEmpty()) {
    const QChar c = raw.front();
    raw = raw.sliced(1);
    if (c == u'"') {
      quoted = !quoted;
      kept = text.size();
    } else if (c == u'\\') {
      TakeEscape(raw, text);
      kept = text.size();
    } else if (quoted || (c != u' ' && c != u'\t' && c != u',')) {
      text += c;
      kept = text.size();
    } else if (c == u',') {
      return std::nullopt;  // a list
    } else if (!text.isEmpty()) {
      text += c;
    }
  }
  text.truncate(kept);
  if (text.startsWith(u"@@")) return text.sliced(1);
  if (text.startsWith(u'@') && text.endsWith(u')')) return std::nullopt;
  return text;
}

QByteArray Escaped(QString text) {
  if (text.startsWith(u'@')) text.prepend(u'@');
  const bool quoted = text.startsWith(u' ') || text.endsWith(u' ') ||
                      std::any_of(text.begin(), text.end(),
                                  [](QChar c) { return c == u';' || c == u',' || c == u'='; });
  QString out;
  bool after_code = false;  // a digit would be taken for one of the code's
  for (const QChar c : std::as_const(text)) {
    const auto known = std::find_if(kEscapes.begin(), kEscapes.end(), [&](const auto& escape) {
      return c == QLatin1Char(escape.second);
    });
    const bool code =
        known == kEscapes.end() && (c.unicode() < u' ' || (after_code && IsDigitOf(16, c)));
    if (known != kEscapes.end()) {
      out += u'\\';
      out += QLatin1Char(known->first);
    } else if (code) {
      out += u"\\x" + QString::number(c.unicode(), 16);
    } else {
      out += c;
    }
    after_code = code;
  }
  return quoted ? '"' + out.toUtf8() + '"' : out.toUtf8();
}

// The lines of a section without its heading, from and to; -1 where there is none.
std::pair<qsizetype, qsizetype> Section(const IniLines& lines, const QString& section) {
  const QByteArray heading = '[' + section.toUtf8() + ']';
  for (qsizetype i = 0; i < lines.size(); ++i) {
    if (lines[i].trimmed() != heading) continue;
    qsizetype end = i + 1;
    while (end < lines.size() && !lines[end].trimmed().startsWith('[')) ++end;
    return {i + 1, end};
  }
  return {-1, -1};
}

qsizetype LineOf(const IniLines& lines, std::pair<qsizetype, qsizetype> within,
                 const QByteArray& key) {
  for (qsizetype i = within.first; i >= 0 && i < within.second; ++i) {
    const qsizetype sign = lines[i].indexOf('=');
    if (sign > 0 && lines[i].first(sign).trimmed() == key) return i;
  }
  return -1;
}

}  // namespace

IniLines ReadIni(const QByteArray& bytes) {
  IniLines lines = bytes.split('\n');
  for (QByteArray& line : lines) {
    while (line.endsWith('\r')) line.chop(1);
  }
  while (!lines.isEmpty() && lines.constLast().isEmpty()) lines.removeLast();
  return lines;
}

QByteArray WriteIni(const IniLines& lines) {
  QByteArray bytes;
  for (const QByteArray& line : lines) bytes += line + '\n';
  return bytes;
}

std::optional<QString> IniText(const IniLines& lines, const QString& section, const QString& key) {
  const qsizetype line = LineOf(lines, Section(lines, section), key.toUtf8());
  if (line < 0) return std::nullopt;
  return Unescaped(QString::fromUtf8(lines[line].sliced(lines[line].indexOf('=') + 1)));
}

void SetIniText(IniLines& lines, const QString& section, const QString& key, const QString& text) {
  const QByteArray changed = key.toUtf8() + '=' + Escaped(text);
  auto within = Section(lines, section);
  if (within.first < 0) {
    if (!lines.isEmpty()) lines.append(QByteArray());
    lines.append('[' + section.toUtf8() + ']');
    lines.append(changed);
    return;
  }
  const qsizetype line = LineOf(lines, within, key.toUtf8());
  if (line >= 0) {
    lines[line] = changed;
    return;
  }
  while (within.second > within.first && lines[within.second - 1].trimmed().isEmpty()) {
    --within.second;
  }
  lines.insert(within.second, changed);
}

}  // namespace kladez
