// What is written on a sheet: a paint device that keeps the words that are drawn on it.
#pragma once

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QString>
#include <QStringList>

#include "viewer/paper/PaperLayout.h"

namespace kladez::viewer {

class WordKeeper : public QPaintEngine {
 public:
  WordKeeper()
      : QPaintEngine(PaintEngineFeatures(AllFeatures) & ~PaintEngineFeatures(PainterPaths)) {}
  bool begin(QPaintDevice* /*device*/) override { return true; }
  bool end() override { return true; }
  void updateState(const QPaintEngineState& /*state*/) override {}
  void drawPixmap(const QRectF& /*to*/, const QPixmap& /*pixmap*/,
                  const QRectF& /*from*/) override {
    ++pictures_;
  }
  void drawPolygon(const QPointF* /*points*/, int /*count*/, PolygonDrawMode /*mode*/) override {}
  void drawTextItem(const QPointF& /*at*/, const QTextItem& item) override { text_ += item.text(); }
  Type type() const override { return QPaintEngine::User; }

  const QString& text() const { return text_; }
  int pictures() const { return pictures_; }

 private:
  QString text_;
  int pictures_ = 0;
};

class WordDevice : public QPaintDevice {
 public:
  QPaintEngine* paintEngine() const override { return &engine_; }
  const WordKeeper& words() const { return engine_; }

 protected:
  int metric(PaintDeviceMetric metric) const override {
    switch (metric) {
      case PdmDevicePixelRatio:
        return 1;
      case PdmDevicePixelRatioScaled:
        return static_cast<int>(devicePixelRatioFScale());
      case PdmWidth:
      case PdmHeight:
        return 10000;
      case PdmDepth:
        return 32;
      default:
        return 96;
    }
  }

 private:
  mutable WordKeeper engine_;
};

// The words of each sheet, in the order in which they are drawn.
inline QStringList TextsOfSheets(const PaperLayout& layout) {
  QStringList texts;
  for (int sheet = 0; sheet < layout.SheetCount(); ++sheet) {
    WordDevice device;
    QPainter painter(&device);
    layout.Draw(painter, sheet, 96);
    painter.end();
    texts << device.words().text();
  }
  return texts;
}

}  // namespace kladez::viewer
