// Texts of one field of a long file, decoded once where they come again and again: units, countries
// and prices of a hundred thousand goods are a few hundred different texts, and a text that is
// shared costs a tenth of one that is made.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <array>

#include "formats/TextLines.h"

namespace kladez {

class SharedTexts {
 public:
  // `make` turns the bytes of the field into its text. The bytes that are asked for must stay where
  // they are as long as this lives.
  template <typename Make>
  const QString& Text(QByteArrayView bytes, Make make) {
    Known& known = known_[Slot(bytes)];
    if (known.bytes != bytes || known.text.isNull()) known = {bytes, make(bytes)};
    return known.text;
  }
  // The text that Windows-1251 makes of the bytes.
  const QString& Text(QByteArrayView bytes) { return Text(bytes, DecodeText); }

 private:
  struct Known {
    QByteArrayView bytes;
    QString text;
  };
  static constexpr size_t kSlots = 512;

  static size_t Slot(QByteArrayView bytes) {
    size_t slot = static_cast<size_t>(bytes.size());
    for (qsizetype i = bytes.size(), most = 0; i > 0 && most < 8; --i, ++most) {
      slot = slot * 31 + static_cast<unsigned char>(bytes[i - 1]);
    }
    return slot % kSlots;
  }

  std::array<Known, kSlots> known_;
};

}  // namespace kladez
