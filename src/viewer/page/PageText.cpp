#include "viewer/page/PageText.h"

#include <QRegularExpression>
#include <QStringDecoder>

#include "formats/TextLines.h"

namespace kladez::viewer {
using namespace Qt::StringLiterals;

namespace {

bool NamesUtf8(const QByteArray& bytes) {
  static const QRegularExpression charset(u"charset\\s*=\\s*[\"']?\\s*utf-?8"_s,
                                          QRegularExpression::CaseInsensitiveOption);
  return bytes.startsWith("\xEF\xBB\xBF") ||
         charset.match(QString::fromLatin1(bytes.left(1024))).hasMatch();
}

}  // namespace

QString DecodePage(const QByteArray& bytes) {
  if (NamesUtf8(bytes)) return QStringDecoder(QStringDecoder::Utf8)(bytes);
  QString text = DecodeText(bytes);
  for (const char16_t nothing : {u'\0', u'\u0098'})
    text.replace(QChar(nothing), QChar::ReplacementCharacter);
  return text;
}

}  // namespace kladez::viewer
