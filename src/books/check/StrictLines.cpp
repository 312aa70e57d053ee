#include "books/check/StrictLines.h"

#include <algorithm>

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// Line breaks aside, these stand for nothing that a screen shows.
bool IsNoCharacter(unsigned char byte) {
  return (byte < 0x20 && byte != '\t') || byte == 0x7F || byte == 0x98;
}

struct LineFaults {
  int bare_ends = 0;
  int first_bare = 0;  // line numbers, from 1
  int first_long = 0;
  int first_foreign = 0;
  bool unfinished = false;
};

void TellLineFaults(const QString& file, const LineFaults& faults, QByteArrayView bytes,
                    FindingList& findings) {
  if (faults.bare_ends > 0) {
    findings.Add({file, faults.first_bare,
                  u"Строк с чужим концом (не CR LF): %1. Программа принимает их за одну "
                  "строку, и записи сдвигаются."_s.arg(faults.bare_ends),
                  Repair::kLineEnds});
  } else if (faults.unfinished) {
    findings.Add({file, 0,
                  u"Последняя строка не закончена: запись, добавленная в файл, "
                  "приклеится к ней."_s,
                  Repair::kLineEnds});
  }
  if (IsUtf8Text(bytes)) {
    findings.Add({file, 0,
                  u"Файл сохранён в кодировке UTF-8, вместо русских букв видны "
                  "знаки вроде «Рђ»."_s,
                  Repair::kEncoding});
  } else if (faults.first_foreign > 0) {
    findings.Add(
        {file, faults.first_foreign, u"Есть знак, которого нет в кодировке Windows-1251."_s});
  }
  if (faults.first_long > 0) {
    findings.Add(
        {file, faults.first_long,
         u"Строка длиннее %1 знаков: такую не показать и не напечатать."_s.arg(kLongestLine)});
  }
}

}  // namespace

bool IsUtf8Text(QByteArrayView bytes) {
  bool beyond_ascii = false;
  for (qsizetype at = 0; at < bytes.size(); ++at) {
    const auto lead = static_cast<unsigned char>(bytes[at]);
    if (lead < 0x80) continue;
    // 0xC0, 0xC1 and what is above 0xF4 begin no character, nor does a byte that goes on with one.
    const int more = lead < 0xC2 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : lead < 0xF5 ? 3 : 0;
    if (more == 0 || bytes.size() - at <= more) return false;
    for (int i = 0; i < more; ++i) {
      if ((static_cast<unsigned char>(bytes[++at]) & 0xC0) != 0x80) return false;
    }
    beyond_ascii = true;
  }
  return beyond_ascii;
}

void StrictLines::Read(const QString& file, QByteArrayView bytes, FindingList& findings) {
  lines_.clear();
  all_ = true;
  LineFaults faults;
  const char* const end = bytes.data() + bytes.size();
  const auto note = [&](int& first) {
    if (first == 0) first = static_cast<int>(lines_.size()) + 1;
  };
  const char* start = bytes.data();
  const auto finish_line = [&](const char* at) {
    if (at - start > kLongestLine) note(faults.first_long);
    lines_.emplace_back(start, at - start);
  };
  for (const char* at = start; at < end && all_; ++at) {
    if (!IsNoCharacter(static_cast<unsigned char>(*at))) continue;
    if (*at != '\r' && *at != '\n') {
      note(faults.first_foreign);
      continue;
    }
    const bool whole = *at == '\r' && at + 1 < end && at[1] == '\n';
    if (!whole) {
      note(faults.first_bare);
      ++faults.bare_ends;
    }
    finish_line(at);
    all_ = lines_.size() < kMostLines;
    at += whole ? 1 : 0;
    start = at + 1;
  }
  if (!all_) {
    findings.Add({file, static_cast<int>(lines_.size()),
                  u"В файле слишком много строк, дальше он не проверен. Он попал сюда по "
                  "ошибке или повреждён."_s});
    return;
  }
  faults.unfinished = start < end;
  if (faults.unfinished) finish_line(end);
  TellLineFaults(file, faults, bytes, findings);
}

size_t StrictLines::FilledLines() const {
  const auto filled = std::find_if(lines_.rbegin(), lines_.rend(),
                                   [](QByteArrayView line) { return !line.isEmpty(); });
  return static_cast<size_t>(lines_.rend() - filled);
}

}  // namespace kladez
