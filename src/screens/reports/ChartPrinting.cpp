#include "screens/reports/ChartPrinting.h"

#include <QEvent>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

#include "books/reports/ChartPage.h"
#include "books/reports/GifWriter.h"
#include "books/store/SaveSet.h"
#include "screens/printing/CloseAndShow.h"
#include "screens/reports/ChartImage.h"
#include "ui/controls/Guard.h"
#include "ui/controls/Look.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// Pixels: sharp over the width of a sheet of paper, with room on it for a title of three lines.
constexpr QSize kPictureSize(1200, 640);

}  // namespace

ChartPrinting::ChartPrinting(AppContext& context, const ChartGrid& grid, ChartKind kind,
                             QWidget* parent)
    : QDialog(parent), context_(context), grid_(grid), kind_(kind) {
  setObjectName(u"waitplease"_s);
  setWindowTitle(u"График"_s);
  auto* text =
      new QLabel(u"Формирование графика для предосмотра... Это займет около минуты."_s, this);
  text->setObjectName(u"Label1"_s);
  text->setAlignment(Qt::AlignCenter);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(look::kGap, look::kGap, look::kGap, look::kGap);
  layout->addWidget(text);
}

bool ChartPrinting::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate && !started_) {
    started_ = true;
    // Once the text is in sight.
    QTimer::singleShot(0, this, &ChartPrinting::Work);
  }
  return QDialog::event(event);
}

void ChartPrinting::DeleteOldPicture() {
  const QString picture = kChartPicture.toString();
  if (!context_.data.FileExists(picture)) return;
  SaveSet save(context_.data);
  save.Delete(picture);
  save.Commit();
}

void ChartPrinting::Work() {
  repaint();
  const bool good = Guarded(this, [this] {
    // First of all, so that a failure leaves no chart of yesterday on the page.
    DeleteOldPicture();
    context_.print_outs.Write(kChartPicture.toString(),
                              WriteGif(RenderChartIndexed(grid_, kind_, kPictureSize)));
    CloseAndShow(*this, context_.print_outs, u"temp.htm"_s,
                 ChartPage(grid_.title, context_.clock.Today()));
  });
  if (!good) reject();
}

}  // namespace kladez
