#include "viewer/page/PageText.h"

#include <QRegularExpression>
#include <QStringDecoder>
#include <array>

namespace kladez::viewer {
using namespace Qt::StringLiterals;

namespace {

// The upper half of Windows-1251. The toolkit knows this encoding only where it is built with ICU.
constexpr std::array<char16_t, 64> kUpperHalf = {
    0x0402, 0x0403, 0x201A, 0x0453, 0x201E, 0x2026, 0x2020, 0x2021, 0x20AC, 0x2030, 0x0409,
    0x2039, 0x040A, 0x040C, 0x040B, 0x040F, 0x0452, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0xFFFD, 0x2122, 0x0459, 0x203A, 0x045A, 0x045C, 0x045B, 0x045F, 0x00A0,
    0x040E, 0x045E, 0x0408, 0x00A4, 0x0490, 0x00A6, 0x00A7, 0x0401, 0x00A9, 0x0404, 0x00AB,
    0x00AC, 0x00AD, 0x00AE, 0x0407, 0x00B0, 0x00B1, 0x0406, 0x0456, 0x0491, 0x00B5, 0x00B6,
    0x00B7, 0x0451, 0x2116, 0x0454, 0x00BB, 0x0458, 0x0405, 0x0455, 0x0457};

char16_t DecodeByte(unsigned char byte) {
  if (byte >= 0xC0) {
    return static_cast<char16_t>(0x0410 + byte - 0xC0);
  }
  if (byte >= 0x80) {
    return kUpperHalf[byte - 0x80];
  }
  return byte == 0 ? u'\uFFFD' : byte;
}

bool NamesUtf8(const QByteArray& bytes) {
  static const QRegularExpression charset(u"charset\\s*=\\s*[\"']?\\s*utf-?8"_s,
                                          QRegularExpression::CaseInsensitiveOption);
  return bytes.startsWith("\xEF\xBB\xBF") ||
         charset.match(QString::fromLatin1(bytes.left(1024))).hasMatch();
}

}  // namespace

QString DecodePage(const QByteArray& bytes) {
  if (NamesUtf8(bytes)) {
    return QStringDecoder(QStringDecoder::Utf8)(bytes);
  }
  QString text(bytes.size(), Qt::Uninitialized);
  for (qsizetype i = 0; i < bytes.size(); ++i) {
    text[i] = QChar(DecodeByte(static_cast<unsigned char>(bytes[i])));
  }
  return text;
}

}  // namespace kladez::viewer
