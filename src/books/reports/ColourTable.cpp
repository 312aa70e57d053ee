#include "books/reports/ColourTable.h"

#include <algorithm>
#include <stdexcept>
#include <unordered_map>

namespace kladez {
namespace {

constexpr size_t kTableSize = std::tuple_size_v<ColourTable>;
constexpr quint32 kColourBits = 0xFFFFFF;

struct Shade {
  Rgb colour;
  quint64 count = 0;
};

// Shades that are to share one place of the table.
struct Box {
  std::span<Shade> shades;
  quint64 count = 0;
  quint8 Rgb::*widest = &Rgb::red;
  int extent = 0;  // of the widest primary colour

  // A wide box errs far, so width weighs more than the number of pixels.
  quint64 Urgency() const {
    const auto width = static_cast<quint64>(extent);
    return count * width * width * width;
  }
};

Rgb FromBits(quint32 bits) {
  return {static_cast<quint8>(bits >> 16), static_cast<quint8>(bits >> 8),
          static_cast<quint8>(bits)};
}

quint32 ToBits(const Rgb& colour) {
  return static_cast<quint32>(colour.red) << 16 | static_cast<quint32>(colour.green) << 8 |
         colour.blue;
}

Box BoxOf(std::span<Shade> shades) {
  Box box;
  box.shades = shades;
  for (const Shade& shade : shades) box.count += shade.count;
  for (auto primary : {&Rgb::red, &Rgb::green, &Rgb::blue}) {
    const auto [low, high] =
        std::ranges::minmax(shades, {}, [&](const Shade& shade) { return shade.colour.*primary; });
    const int extent = high.colour.*primary - low.colour.*primary;
    if (extent > box.extent) {
      box.extent = extent;
      box.widest = primary;
    }
  }
  return box;
}

// Cuts at the middle pixel, so that both halves stand for about as much of the picture.
std::pair<Box, Box> Cut(const Box& box) {
  std::ranges::sort(box.shades, {}, [&](const Shade& shade) {
    return std::pair(shade.colour.*box.widest, ToBits(shade.colour));
  });
  quint64 seen = 0;
  size_t first_half = 0;
  while (first_half + 1 < box.shades.size() && seen * 2 < box.count) {
    seen += box.shades[first_half++].count;
  }
  return {BoxOf(box.shades.first(first_half)), BoxOf(box.shades.subspan(first_half))};
}

Rgb Average(const Box& box) {
  quint64 red = 0;
  quint64 green = 0;
  quint64 blue = 0;
  for (const auto& [colour, count] : box.shades) {
    red += colour.red * count;
    green += colour.green * count;
    blue += colour.blue * count;
  }
  const auto mean = [&](quint64 sum) {
    return static_cast<quint8>((sum + box.count / 2) / box.count);
  };
  return {mean(red), mean(green), mean(blue)};
}

std::vector<Rgb> MedianCut(std::vector<Shade> shades, size_t places) {
  if (shades.empty() || places == 0) return {};
  std::vector<Box> boxes = {BoxOf(shades)};
  while (boxes.size() < places) {
    const auto worst = std::ranges::max_element(boxes, {}, &Box::Urgency);
    if (worst->Urgency() == 0) break;
    const auto [low, high] = Cut(*worst);
    *worst = low;
    boxes.push_back(high);
  }
  std::vector<Rgb> colours;
  for (const Box& box : boxes) colours.push_back(Average(box));
  return colours;
}

quint8 Nearest(std::span<const Rgb> table, const Rgb& colour) {
  const auto distance = [&](const Rgb& other) {
    const int red = other.red - colour.red;
    const int green = other.green - colour.green;
    const int blue = other.blue - colour.blue;
    return red * red + green * green + blue * blue;
  };
  const auto nearest = std::ranges::min_element(table, {}, distance);
  return static_cast<quint8>(nearest - table.begin());
}

std::vector<Shade> CountShades(std::span<const quint32> pixels, std::span<const Rgb> own) {
  std::unordered_map<quint32, quint64> counts;
  for (size_t i = 0; i < pixels.size();) {
    const size_t start = i;
    while (i < pixels.size() && pixels[i] == pixels[start]) ++i;
    counts[pixels[start] & kColourBits] += i - start;
  }
  for (const Rgb& colour : own) counts.erase(ToBits(colour));
  std::vector<Shade> shades;
  for (const auto& [bits, count] : counts) shades.push_back({FromBits(bits), count});
  // A hash map has its own order on each machine; the table must not.
  std::ranges::sort(shades, {}, [](const Shade& shade) { return ToBits(shade.colour); });
  return shades;
}

}  // namespace

IndexedImage ReduceColours(int width, int height, std::span<const quint32> pixels,
                           std::span<const Rgb> own) {
  if (width < 1 || height < 1 || pixels.size() != static_cast<size_t>(width) * height) {
    throw std::invalid_argument("the pixels do not fill the picture");
  }
  if (own.size() >= kTableSize) throw std::invalid_argument("more than 255 own colours");
  std::vector<Rgb> table(own.begin(), own.end());
  const std::vector<Shade> shades = CountShades(pixels, own);
  const std::vector<Rgb> between = MedianCut(shades, kTableSize - own.size());
  table.insert(table.end(), between.begin(), between.end());

  std::unordered_map<quint32, quint8> index_of;
  for (const Shade& shade : shades) index_of[ToBits(shade.colour)] = Nearest(table, shade.colour);
  for (const Rgb& colour : own) index_of[ToBits(colour)] = Nearest(table, colour);

  IndexedImage image{width, height, {}, std::vector<quint8>(pixels.size())};
  std::ranges::copy(table, image.colours.begin());
  for (size_t i = 0; i < pixels.size();) {
    const size_t start = i;
    while (i < pixels.size() && pixels[i] == pixels[start]) ++i;
    std::fill(image.pixels.begin() + static_cast<std::ptrdiff_t>(start),
              image.pixels.begin() + static_cast<std::ptrdiff_t>(i),
              index_of.at(pixels[start] & kColourBits));
  }
  return image;
}

}  // namespace kladez
