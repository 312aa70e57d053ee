// The page on the screen: a strip of paper as wide as the sheets it will be printed on. Only what
// is in sight is laid out at once, the rest behind it.
#pragma once

#include <QAbstractScrollArea>
#include <QTimer>
#include <QUrl>
#include <compare>
#include <memory>

#include "viewer/paper/PageStrip.h"

class QTextCursor;

namespace kladez::viewer {

class PageView : public QAbstractScrollArea {
  Q_OBJECT

 public:
  // Shows nothing yet.
  explicit PageView(QWidget* parent = nullptr);
  ~PageView() override;

  // Shows the page from its top, at the zoom that is set. `paper_width` is how wide it is laid out
  // at 100%, in pixels at 96 dpi; what can't be read at that width is laid out wider.
  void ShowPage(std::shared_ptr<const PagePlan> plan, double paper_width);

  // In percent of the page's own size, by steps or at once.
  int ZoomPercent() const { return zoom_; }
  void ZoomIn();
  void ZoomOut();
  void SetZoom(int percent);

  // The width of the strip with its margins, and the one that the window has to give so that it is
  // seen whole.
  int StripWidth() const { return qRound(strip_ == nullptr ? 0 : strip_->measure().text_width); }
  int WidthForPage() const;

  // Goes to the next place with `text` and selects it, from the other end of the page when there is
  // none on the way. Gives false when there is none at all.
  bool FindText(const QString& text, bool backward);

  // The whole page as it would be copied, a very long one up to a million characters: what
  // assistive tools read.
  const QString& Text() const;
  // What is selected: cells of a row are parted by tabs.
  QString SelectedText() const;
  // Where on the view the selection begins.
  QPoint SelectionPoint() const;
  void SelectAll();
  void Copy() const;

 signals:
  // The page is shown at this size now.
  void ZoomChanged(int percent);
  // How much of a long page is laid out; the last report has done == total.
  void Prepared(int done, int total);
  // A click on a link, or Enter on the one that Tab has reached. Nothing is opened here.
  void LinkActivated(const QUrl& link);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  // A place in the text: a position in the document of a chunk.
  struct Spot {
    size_t chunk = 0;
    int position = 0;
    auto operator<=>(const Spot&) const = default;
  };
  struct Link {
    Spot begin;
    Spot end;
    QString target;
  };

  void LayOut();
  void LayOutSight();
  void CentrePage();
  void SetBars();
  void PrepareMore();
  QPointF InChunk(size_t chunk, const QPoint& at) const;
  Spot SpotAt(const QPoint& at) const;
  QString LinkAt(const QPoint& at) const;
  QTextCursor SelectionIn(size_t chunk) const;
  void Select(const Spot& anchor, const Spot& cursor);
  void SelectFound(size_t chunk, const QTextCursor& found);
  void ShowSelection();
  void ScrollTowards(const QPoint& at);
  const std::vector<Link>& Links();

  std::unique_ptr<PageStrip> strip_;
  double paper_width_ = 0;
  int zoom_ = 100;
  QTimer prepare_timer_;
  size_t prepared_ = 0;
  Spot anchor_;
  Spot cursor_;
  QString pressed_link_;
  std::vector<Link> links_;
  bool has_links_ = false;  // links_ is made
  mutable QString text_;    // once somebody has asked for it
};

}  // namespace kladez::viewer
