// Long print-outs in the viewer: processor seconds and most memory from the file to the first
// screenful, of the whole page behind it, and to a PDF file, each in a process of its own.
#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QScrollBar>
#include <QTemporaryDir>
#include <cstdio>

#include "ChildRun.h"
#include "viewer/SamplePages.h"
#include "viewer/paper/Output.h"
#include "viewer/window/ViewerWindow.h"

namespace kladez::viewer {
namespace {

using namespace Qt::StringLiterals;

struct Case {
  const char* name;
  QByteArray page;
};

// The toolkit starts outside of the measured seconds, and must not start before the child does.
Figures MeasureWithToolkit(const std::function<void()>& work) {
  return MeasureInChild(1, [&] {
    int count = 1;
    char name[] = "viewer_bench";
    char* arguments[] = {name, nullptr};
    const QApplication application(count, arguments);
    work();
  });
}

void Print(const char* name, const char* what, const Figures& figures) {
  std::printf("%-28s %-18s %7.2f s %7.0f MB\n", name, what, figures.seconds, figures.megabytes);
}

void MeasureAll(const Case& one) {
  const QTemporaryDir directory;
  QFile file(directory.filePath(u"out.htm"_s));
  if (!file.open(QIODevice::WriteOnly) || file.write(one.page) != one.page.size()) {
    throw std::runtime_error("no room for the page");
  }
  file.close();
  const auto show = [&](ViewerWindow& window) {
    if (!window.Load()) throw std::runtime_error("the page can't be shown");
    window.resize(1000, 700);
    window.show();
    window.grab();
  };
  Print(one.name, "toolkit alone", MeasureWithToolkit([] {}));
  Print(one.name, "first screenful", MeasureWithToolkit([&] {
          ViewerWindow window(directory.path(), u"out.htm"_s);
          show(window);
        }));
  Print(one.name, "down to the end", MeasureWithToolkit([&] {
          ViewerWindow window(directory.path(), u"out.htm"_s);
          show(window);
          const auto* view = window.findChild<QAbstractScrollArea*>();
          for (int turn = 0; turn < 100; ++turn) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
          }
          view->verticalScrollBar()->setValue(view->verticalScrollBar()->maximum());
          window.grab();
        }));
  Print(one.name, "to PDF", MeasureWithToolkit([&] {
          ExportPdf(std::make_shared<const Page>(ReadPageFile(directory.path(), u"out.htm"_s)),
                    directory.filePath(u"out.pdf"_s));
        }));
}

}  // namespace
}  // namespace kladez::viewer

int main() {
  using namespace kladez::viewer;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  MeasureAll({"report of 10,000 rows", ToWindows1251(ReportPage(10'000))});
  MeasureAll({"report of 50,000 rows", ToWindows1251(ReportPage(50'000))});
  MeasureAll({"price list of 20,000 rows", ToWindows1251(PricePage(400, 50))});
}
