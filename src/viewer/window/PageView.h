// The page on the screen: a strip of paper as wide as the sheets it will be printed on.
#pragma once

#include <QTextBrowser>
#include <QTimer>
#include <memory>

#include "viewer/paper/PageDocument.h"

namespace kladez::viewer {

// A click on a link, or Enter on the one that Tab has reached, gives anchorClicked and opens
// nothing.
class PageView : public QTextBrowser {
  Q_OBJECT

 public:
  explicit PageView(QWidget* parent = nullptr);
  ~PageView() override;

  // Shows the document from its top, at the zoom that is set. `paper_width` is how wide it is laid
  // out at 100%, in pixels at 96 dpi; what can't be read at that width is laid out wider.
  void ShowDocument(std::unique_ptr<PageDocument> document, double paper_width);

  int ZoomPercent() const { return zoom_; }
  void ZoomIn();
  void ZoomOut();
  void SetZoom(int percent);

  // The width that the window has to give so that the page is seen whole.
  int WidthForPage() const;

  // Goes to the next place with `text` and selects it, from the other end of the page when there is
  // none on the way. Gives false when there is none at all.
  bool FindText(const QString& text, bool backward);

 signals:
  void ZoomChanged(int percent);
  // How much of a long page is laid out; the last report has done == total.
  void Prepared(int done, int total);

 protected:
  void wheelEvent(QWheelEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  QMimeData* createMimeDataFromSelection() const override;
  // What the document does not hold is nowhere else looked for.
  QVariant loadResource(int type, const QUrl& name) override;

 private:
  void LayOut();
  void CentrePage();
  void PrepareMore();

  std::unique_ptr<PageDocument> document_;
  double paper_width_ = 0;
  int zoom_ = 100;
  QTimer prepare_timer_;
  size_t prepared_ = 0;
};

}  // namespace kladez::viewer
