#include "viewer/paper/Output.h"

#include <QDir>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QSaveFile>
#include <numeric>
#include <system_error>

#include "system/Process.h"

namespace kladez::viewer {
using namespace Qt::StringLiterals;

namespace {

constexpr int kPdfDpi = 600;

[[noreturn]] void ThrowFor(const QString& path) {
  throw std::system_error(syscalls::LastError(), std::generic_category(), path.toStdString());
}

}  // namespace

bool DrawSheets(const PaperLayout& layout, const std::vector<int>& sheets,
                QPagedPaintDevice& device, QPainter& painter, const Progress& progress) {
  for (size_t i = 0; i < sheets.size(); ++i) {
    progress.Tell(static_cast<double>(i) / static_cast<double>(sheets.size()));
    if (i > 0 && !device.newPage()) return false;
    layout.Draw(painter, sheets[i], device.logicalDpiX());
  }
  return true;
}

void WritePdf(const PaperLayout& layout, const QString& title, const QString& path,
              const Progress& progress) {
  QSaveFile file(path);
  syscalls::ForgetErrors();
  if (!file.open(QIODevice::WriteOnly)) ThrowFor(path);
  QPdfWriter writer(&file);
  writer.setTitle(title);
  writer.setResolution(kPdfDpi);
  QPageLayout paper = layout.format().page;
  paper.setMode(QPageLayout::FullPageMode);
  writer.setPageLayout(paper);
  QPainter painter;
  if (!painter.begin(&writer)) ThrowFor(path);
  std::vector<int> sheets(static_cast<size_t>(layout.SheetCount()));
  std::iota(sheets.begin(), sheets.end(), 0);
  syscalls::ForgetErrors();
  if (!DrawSheets(layout, sheets, writer, painter, progress)) ThrowFor(path);
  painter.end();
  syscalls::ForgetErrors();
  if (!file.commit()) ThrowFor(path);
}

void ExportPdf(std::shared_ptr<const Page> page, const QString& path) {
  PaperLayout layout(page);
  layout.LayOut(layout.Propose(PaperFormat()), {});
  WritePdf(layout, page->title, path, {});
}

QStringList ExportSheetPictures(std::shared_ptr<const Page> page, const QString& directory,
                                const QString& name, int dpi) {
  PaperLayout layout(std::move(page));
  layout.LayOut(layout.Propose(PaperFormat()), {});
  QStringList paths;
  for (int sheet = 0; sheet < layout.SheetCount(); ++sheet) {
    QImage picture(layout.format().page.fullRectPixels(dpi).size(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    layout.Draw(painter, sheet, dpi);
    painter.end();
    paths << QDir(directory).filePath(u"%1-%2.png"_s.arg(name).arg(sheet + 1));
    syscalls::ForgetErrors();
    if (!picture.save(paths.last())) ThrowFor(paths.last());
  }
  return paths;
}

QString PdfName(const QString& title) {
  static const QRegularExpression refused(u"[\\\\/:*?\"<>|\\x00-\\x1f]+"_s);
  QString name = QString(title).replace(refused, u" "_s).simplified();
  while (name.startsWith(u'.')) name.remove(0, 1);
  return (name.isEmpty() ? u"Печатная форма"_s : name.left(100)) + u".pdf"_s;
}

}  // namespace kladez::viewer
