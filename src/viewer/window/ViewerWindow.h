// The window of one print-out: shows it, finds in it, prints it, writes it to a PDF file. A window
// of the guide does the same, and goes from page to page by their links.
#pragma once

#include <QDir>
#include <QMainWindow>
#include <QProgressBar>
#include <memory>
#include <vector>

#include "viewer/page/PageReader.h"
#include "viewer/window/FindBar.h"
#include "viewer/window/PageView.h"

namespace kladez::viewer {

class ViewerWindow : public QMainWindow {
  Q_OBJECT

 public:
  // The window of the page `name` in `directory`. Nothing is read yet.
  ViewerWindow(const QDir& directory, const QString& name, PageKind kind = PageKind::kPrintOut,
               QWidget* parent = nullptr);

  // Reads the page and shows it. When that fails, says so in a message, leaves what the window
  // shows as it is, and gives false.
  bool Load();

  // Shows a page that was read elsewhere.
  void ShowPage(std::shared_ptr<const Page> page, const Progress& progress = {});

  // Opens the print preview, from which the page is printed.
  void Preview();
  // Asks for a file name and writes the page to it.
  void SavePdf();
  // Hands the page as a PDF file to the desktop's mail program.
  void Mail();

 private:
  // A page of the guide, and how far down it was.
  struct Visit {
    QString name;
    int top = 0;
  };

  void MakeActions();
  QAction* AddAction(QMenu* menu, const QString& name, const QString& text, const QKeySequence& key,
                     void (ViewerWindow::*slot)());
  void AddZoomActions(QMenu* menu);
  void AddGuideActions(QMenu* menu);
  void Reload();
  bool LoadInstead(const QString& name);
  void Follow(const QUrl& link);
  void Return(std::vector<Visit>& from, std::vector<Visit>& to);
  void EnableGuideActions();
  void Find();
  void ShowProgress(const QString& text, double part);
  void FitToScreen();

  QDir directory_;
  QString name_;
  PageKind kind_;
  std::vector<Visit> back_;     // the pages before this one, the last of them last
  std::vector<Visit> forward_;  // and those that were left by going back
  std::shared_ptr<const Page> page_;
  PageView* view_;
  FindBar* find_bar_;
  QProgressBar* progress_;
  QAction* zoom_label_ = nullptr;
  QAction* go_back_ = nullptr;
  QAction* go_forward_ = nullptr;
};

// Draws the window of a page to a PNG file, as a person sees it. Throws std::system_error when the
// file can't be written.
void RenderWindowPicture(std::shared_ptr<const Page> page, const QString& path);

}  // namespace kladez::viewer
