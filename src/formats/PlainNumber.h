// The quick way to the number of a short text that is digits with at most one point, as nearly all
// numbers of files are. Its eight bytes are taken apart together: no step depends on how many
// digits there are, which no processor guesses.
#pragma once

#include <QByteArrayView>
#include <QtEndian>
#include <array>
#include <bit>

namespace kladez {

// Up to 15 digits and a power of ten are exact, so that one division rounds as the conversion of
// the text does.
inline constexpr std::array kTens = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                     1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

// Up to eight bytes, the first one lowest, above them zeros; read as two halves that may overlap.
inline quint64 PackedBytes(QByteArrayView bytes) {
  const qsizetype size = bytes.size();
  const auto at = [&](qsizetype i) { return quint64{static_cast<unsigned char>(bytes[i])}; };
  if (size >= 4) {
    const quint64 low = qFromLittleEndian<quint32>(bytes.data());
    return low | quint64{qFromLittleEndian<quint32>(bytes.data() + size - 4)} << 8 * (size - 4);
  }
  if (size == 0) return 0;
  return at(0) | at(size / 2) << 8 * (size / 2) | at(size - 1) << 8 * (size - 1);
}

// The number of eight digits (0 to 9) packed as above.
inline quint64 NumberOfDigits(quint64 digits) {
  constexpr quint64 kBytes = 0x000000FF000000FF;
  digits = digits * 10 + (digits >> 8);  // pairs, each in the lower byte of two
  return ((digits & kBytes) * 0x000F424000000064 + (digits >> 16 & kBytes) * 0x0000271000000001) >>
         32;
}

// False where the text is longer or anything else: that says nothing of whether it is a number.
inline bool ReadPlainNumber(QByteArrayView text, double* number) {
  constexpr quint64 kOnes = 0x0101010101010101;
  constexpr quint64 kHighBits = 0x80 * kOnes;
  const auto size = static_cast<int>(text.size());
  if (text.isEmpty() || text.size() > 8) return false;
  const quint64 bytes = PackedBytes(text);
  const quint64 not_point = bytes ^ '.' * kOnes;
  const quint64 points = (not_point - kOnes) & ~not_point & kHighBits;
  const int before_point = points == 0 ? size : std::countr_zero(points) / 8;
  const int count = points == 0 ? size : size - 1;
  if (count == 0) return false;
  // The digits behind the point move onto it, all of them to the upper end.
  const quint64 whole_part = points == 0 ? ~quint64{0} : (quint64{1} << 8 * before_point) - 1;
  const quint64 packed = (bytes & whole_part) | (bytes >> 8 & ~whole_part);
  const quint64 digits = (packed << 8 * (8 - count)) ^ ('0' * kOnes << 8 * (8 - count));
  if (((digits + (0x80 - 10) * kOnes) | digits) & kHighBits) return false;
  *number = static_cast<double>(NumberOfDigits(digits)) / kTens[count - before_point];
  return true;
}

}  // namespace kladez
