#include "viewer/window/Printing.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QRegularExpression>
#include <QStandardPaths>
#include <numeric>
#include <system_error>

#include "formats/SystemReasons.h"
#include "viewer/paper/Output.h"
#include "viewer/window/FileColumns.h"
#include "viewer/window/ViewerMessages.h"

namespace kladez::viewer {
using namespace Qt::StringLiterals;

namespace {

constexpr int kPatience = 400;  // milliseconds
constexpr int kBarSteps = 1000;
constexpr double kPlanning = 0.5;  // of the work of cutting a page into sheets

// A printer that can't make copies by itself is sent the sheets again.
std::vector<int> Repeated(const std::vector<int>& sheets, int copies) {
  std::vector<int> all;
  for (int copy = 0; copy < copies; ++copy) all.insert(all.end(), sheets.begin(), sheets.end());
  return all;
}

}  // namespace

WorkProgress::WorkProgress(const QString& text, QWidget* parent)
    : dialog_(text, u"Отмена"_s, 0, kBarSteps, parent) {
  dialog_.setObjectName(u"WorkProgress"_s);
  dialog_.setWindowTitle(u"Печатная форма"_s);
  dialog_.setWindowModality(Qt::WindowModal);
  dialog_.setMinimumDuration(kPatience);
  dialog_.setAutoReset(false);
  dialog_.setValue(0);
}

bool WorkProgress::Run(const std::function<void(const Progress& progress)>& work) {
  try {
    work([this](double part) {
      dialog_.setValue(static_cast<int>(part * kBarSteps));
      QCoreApplication::processEvents();
      return !dialog_.wasCanceled();
    });
    return true;
  } catch (const WorkCancelled&) {
    return false;
  }
}

QString AskPdfPath(const QString& title, QWidget* parent) {
  QFileDialog dialog(parent, u"Сохранить в PDF"_s,
                     QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                     u"Файлы PDF (*.pdf)"_s);
  dialog.setProxyModel(new FileColumns(&dialog));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(u"pdf"_s);
  dialog.selectFile(PdfName(title));
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

bool SavePdfFile(const PaperLayout& layout, const QString& title, const QString& path,
                 QWidget* parent) {
  WorkProgress work(u"Запись PDF…"_s, parent);
  try {
    return work.Run([&](const Progress& progress) { WritePdf(layout, title, path, progress); });
  } catch (const std::system_error& error) {
    ShowError(parent, u"Файл\n%1\nзаписать не удалось (%2). Выберите другую папку или имя."_s.arg(
                          QDir::toNativeSeparators(path), ReasonText(error.code())));
    return false;
  }
}

bool SavePdfFile(std::shared_ptr<const Page> page, const QString& path, QWidget* parent) {
  WorkProgress work(u"Разбивка на листы…"_s, parent);
  std::unique_ptr<PaperLayout> layout;
  const bool is_done = work.Run([&](const Progress& progress) {
    layout = std::make_unique<PaperLayout>(page, progress.Piece(0, kPlanning));
    layout->LayOut(layout->Propose(PaperFormat()), progress.Piece(kPlanning, 1));
  });
  return is_done && SavePdfFile(*layout, page->title, path, parent);
}

bool PrintSheets(const PaperLayout& layout, const QString& title, const std::vector<int>& sheets,
                 int copies, QPrinter& printer, QWidget* parent) {
  QPageLayout paper = layout.format().page;
  paper.setMode(QPageLayout::FullPageMode);
  printer.setPageLayout(paper);
  printer.setFullPage(true);
  printer.setDocName(title);
  const bool copies_itself = printer.supportsMultipleCopies();
  printer.setCopyCount(copies_itself ? copies : 1);
  WorkProgress work(u"Печать…"_s, parent);
  QPainter painter;
  bool is_whole = false;
  bool is_wanted = true;
  if (painter.begin(&printer)) {
    is_wanted = work.Run([&](const Progress& progress) {
      is_whole = DrawSheets(layout, copies_itself ? sheets : Repeated(sheets, copies), printer,
                            painter, progress);
    });
    if (!is_whole) printer.abort();
    painter.end();
  }
  const bool has_failed = printer.printerState() == QPrinter::Error || (!is_whole && is_wanted);
  if (has_failed) {
    ShowError(parent,
              u"Напечатать на принтере «%1» не удалось. Проверьте, включен ли он, или "
              "выберите другой."_s.arg(printer.printerName()));
  }
  return is_whole && !has_failed;
}

std::optional<std::vector<int>> ParseSheets(const QString& text, int count) {
  std::vector<int> sheets;
  if (text.trimmed().isEmpty()) {
    sheets.resize(static_cast<size_t>(count));
    std::iota(sheets.begin(), sheets.end(), 0);
    return sheets;
  }
  static const QRegularExpression part(u"^\\s*(\\d{1,6})\\s*(?:-\\s*(\\d{1,6})\\s*)?$"_s);
  for (const QString& piece : text.split(u',')) {
    const auto match = part.match(piece);
    const int first = match.captured(1).toInt();
    const int last = match.capturedView(2).isEmpty() ? first : match.captured(2).toInt();
    if (!match.hasMatch() || first < 1 || last < first || last > count) return std::nullopt;
    for (int sheet = first; sheet <= last; ++sheet) sheets.push_back(sheet - 1);
  }
  return sheets;
}

}  // namespace kladez::viewer
