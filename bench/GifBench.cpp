// Time and size of the GIF writer against giflib, on the same indexed pictures of a chart.

#include <gif_lib.h>

#include <QGuiApplication>
#include <random>
#include <stdexcept>

#include "RatioReporter.h"
#include "books/reports/ChartTestGrids.h"
#include "books/reports/GifWriter.h"
#include "screens/reports/ChartImage.h"

namespace kladez {
namespace {

constexpr QSize kSize(1200, 800);

void Require(int answer) {
  if (answer != GIF_OK) throw std::runtime_error("giflib refuses");
}

int AppendTo(GifFileType* file, const GifByteType* bytes, int count) {
  static_cast<QByteArray*>(file->UserData)->append(reinterpret_cast<const char*>(bytes), count);
  return count;
}

QByteArray WriteWithGiflib(const IndexedImage& image) {
  QByteArray out;
  out.reserve(1024 + static_cast<qsizetype>(image.pixels.size() / 8));
  int error = 0;
  GifFileType* file = EGifOpen(&out, AppendTo, &error);
  if (file == nullptr) throw std::runtime_error("giflib does not open");
  ColorMapObject* colours = GifMakeMapObject(256, nullptr);
  for (std::size_t i = 0; i < image.colours.size(); ++i) {
    colours->Colors[i] = {image.colours[i].red, image.colours[i].green, image.colours[i].blue};
  }
  Require(EGifPutScreenDesc(file, image.width, image.height, 8, 0, colours));
  Require(EGifPutImageDesc(file, 0, 0, image.width, image.height, false, nullptr));
  std::vector<GifPixelType> row(static_cast<std::size_t>(image.width));
  for (int y = 0; y < image.height; ++y) {
    // Its rows are not const, as it masks them.
    const auto start = image.pixels.begin() + static_cast<std::ptrdiff_t>(y) * image.width;
    std::copy_n(start, image.width, row.begin());
    Require(EGifPutLine(file, row.data(), image.width));
  }
  GifFreeMapObject(colours);
  Require(EGifCloseFile(file, &error));
  return out;
}

IndexedImage Noise() {
  IndexedImage image = RenderChartIndexed(SalesGrid(12, 2), ChartKind::k2DBars, kSize);
  std::mt19937 random(1);
  for (auto& pixel : image.pixels) pixel = static_cast<std::uint8_t>(random());
  return image;
}

void Register(const std::string& name, const IndexedImage& image) {
  const auto measure = [image](benchmark::State& state, QByteArray (*write)(const IndexedImage&)) {
    QByteArray file;
    for (auto _ : state) {
      file = write(image);
      benchmark::DoNotOptimize(file.constData());
    }
    state.counters["bytes"] = static_cast<double>(file.size());
  };
  benchmark::RegisterBenchmark((name + "/ours").c_str(), measure, WriteGif);
  benchmark::RegisterBenchmark((name + "/baseline giflib").c_str(), measure, WriteWithGiflib);
}

}  // namespace
}  // namespace kladez

int main(int argc, char** argv) {
  using namespace kladez;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  for (const auto& [name, kind] :
       {std::pair("3D bars", ChartKind::k3DBars), std::pair("2D bars", ChartKind::k2DBars),
        std::pair("3D lines", ChartKind::k3DLines), std::pair("2D lines", ChartKind::k2DLines)}) {
    Register(name, RenderChartIndexed(SalesGrid(31, 2), kind, kSize));
  }
  Register("noise", Noise());
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
}
