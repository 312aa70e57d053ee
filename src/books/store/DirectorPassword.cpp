#include "books/store/DirectorPassword.h"

#include <QCryptographicHash>
#include <QFile>
#include <QMessageAuthenticationCode>
#include <QRandomGenerator>
#include <array>

#include "formats/DatabaseFiles.h"
#include "formats/TextLines.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr QStringView kOwnForm = u"{kladez}";
constexpr int kRounds = 50'000;
constexpr int kMostRounds = 2'000'000;  // a line of more would hold the window up
constexpr qsizetype kHashSize = 32;
constexpr QFile::Permissions kOfOwner = QFile::Permissions(0x7700);  // of the owner, of the user

// One block of PBKDF2, which is as long as the hash.
QByteArray Derive(const QString& password, const QByteArray& salt, int rounds) {
  QMessageAuthenticationCode code(QCryptographicHash::Sha256, password.toUtf8());
  const auto round = [&code](const QByteArray& of) {
    code.reset();
    code.addData(of);
    return code.result();
  };
  QByteArray last = round(salt + QByteArray("\0\0\0\1", 4));
  QByteArray derived = last;
  for (int i = 1; i < rounds; ++i) {
    last = round(last);
    for (qsizetype at = 0; at < derived.size(); ++at) {
      derived[at] = static_cast<char>(derived[at] ^ last[at]);
    }
  }
  return derived;
}

// Takes the same time wherever the two differ.
bool AreSame(const QByteArray& a, const QByteArray& b) {
  if (a.size() != b.size()) return false;
  int difference = 0;
  for (qsizetype at = 0; at < a.size(); ++at) difference |= a[at] ^ b[at];
  return difference == 0;
}

}  // namespace

QString ReadPasswordLine(const DataDir& data) {
  const QString path = files::kPassword.toString();
  if (!data.FileExists(path)) return {};
  const QByteArray bytes = data.Read(path);
  // Somebody else's file stays as it is, and so does one on a medium without rights.
  QFile file(data.Resolve(path));
  const QFile::Permissions own = file.permissions() & kOfOwner;
  if (own != file.permissions()) file.setPermissions(own);
  const QString line = LineReader(bytes).Next();
  return line.left(line.indexOf(u'\n'));
}

bool IsPassword(const QString& line, const QString& typed) {
  const QStringList parts =
      line.startsWith(kOwnForm) ? line.mid(kOwnForm.size()).split(u'$') : QStringList();
  if (parts.size() != 3) return line == typed;
  const int rounds = parts[0].toInt();
  const QByteArray hash = QByteArray::fromHex(parts[2].toLatin1());
  if (rounds < 1 || rounds > kMostRounds || hash.size() != kHashSize) return line == typed;
  return AreSame(Derive(typed, QByteArray::fromHex(parts[1].toLatin1()), rounds), hash);
}

QString HashedPasswordLine(const QString& password) {
  std::array<quint32, 4> words;
  QRandomGenerator::system()->fillRange(words.data(), words.size());
  const QByteArray salt(reinterpret_cast<const char*>(words.data()), sizeof words);
  return kOwnForm + QString::number(kRounds) + u'$' + QString::fromLatin1(salt.toHex()) + u'$' +
         QString::fromLatin1(Derive(password, salt, kRounds).toHex());
}

}  // namespace kladez
