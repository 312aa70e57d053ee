#include "viewer/window/ViewerWindow.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMenuBar>
#include <QScreen>
#include <QScrollBar>
#include <QStatusBar>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>
#include <system_error>
#include <utility>

#include "system/Process.h"
#include "viewer/page/PageName.h"
#include "viewer/window/Mail.h"
#include "viewer/window/PreviewDialog.h"
#include "viewer/window/Printing.h"
#include "viewer/window/ViewerLook.h"
#include "viewer/window/ViewerMessages.h"

namespace kladez::viewer {
using namespace Qt::StringLiterals;

namespace {

// Milliseconds for which nobody needs to be told that the work goes on.
constexpr int kRedrawPatience = 300;
constexpr int kLeastWidth = 640;
constexpr int kMostHeight = 1000;

QString Untitled(PageKind kind) {
  return kind == PageKind::kGuide ? u"Справка"_s : u"Печатная форма"_s;
}

}  // namespace

ViewerWindow::ViewerWindow(const QDir& directory, const QString& name, PageKind kind,
                           QWidget* parent)
    : QMainWindow(parent),
      directory_(directory),
      name_(name),
      kind_(kind),
      view_(new PageView(this)) {
  setObjectName(u"ViewerWindow"_s);
  auto* central = new QWidget(this);
  auto* column = new QVBoxLayout(central);
  find_bar_ = new FindBar(view_, central);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(view_, 1);
  column->addWidget(find_bar_);
  setCentralWidget(central);
  progress_ = new QProgressBar(this);
  progress_->setObjectName(u"LoadProgress"_s);
  progress_->hide();
  statusBar()->addWidget(progress_, 1);
  statusBar()->hide();
  connect(view_, &PageView::Prepared, this, [this](int done, int total) {
    ShowProgress(u"Подготовка страницы: %p%"_s, static_cast<double>(done) / std::max(1, total));
  });
  MakeActions();
  view_->setFocus();
}

QAction* ViewerWindow::AddAction(QMenu* menu, const QString& name, const QString& text,
                                 const QKeySequence& key, void (ViewerWindow::*slot)()) {
  QAction* action = menu->addAction(text);
  action->setObjectName(name);
  action->setShortcut(key);
  connect(action, &QAction::triggered, this, slot);
  return action;
}

void ViewerWindow::MakeActions() {
  QMenu* file = menuBar()->addMenu(u"&Файл"_s);
  QAction* print = AddAction(file, u"Print"_s, u"&Печать с просмотром…"_s,
                             QKeySequence(u"Ctrl+P"_s), &ViewerWindow::Preview);
  QAction* pdf = AddAction(file, u"SavePdf"_s, u"Сохранить в P&DF…"_s, QKeySequence(u"Ctrl+E"_s),
                           &ViewerWindow::SavePdf);
  AddAction(file, u"Mail"_s, u"О&тправить…"_s, QKeySequence(u"Ctrl+Shift+E"_s),
            &ViewerWindow::Mail);
  QAction* reload =
      AddAction(file, u"Reload"_s, u"О&бновить"_s, QKeySequence(u"F5"_s), &ViewerWindow::Reload);
  file->addSeparator();
  QAction* close = file->addAction(u"&Закрыть"_s, this, &QWidget::close);
  close->setShortcut(QKeySequence(u"Ctrl+W"_s));

  QMenu* edit = menuBar()->addMenu(u"&Правка"_s);
  QAction* copy = edit->addAction(u"&Копировать"_s, view_, &PageView::Copy);
  copy->setShortcut(QKeySequence(u"Ctrl+C"_s));
  QAction* all = edit->addAction(u"Выделить &все"_s, view_, &PageView::SelectAll);
  all->setShortcut(QKeySequence(u"Ctrl+A"_s));
  edit->addSeparator();
  QAction* find =
      AddAction(edit, u"Find"_s, u"&Найти…"_s, QKeySequence(u"Ctrl+F"_s), &ViewerWindow::Find);
  QAction* next = edit->addAction(u"Найти &далее"_s, find_bar_, &FindBar::FindNext);
  next->setShortcut(QKeySequence(u"F3"_s));
  QAction* previous = edit->addAction(u"Найти н&азад"_s, find_bar_, &FindBar::FindPrevious);
  previous->setShortcut(QKeySequence(u"Shift+F3"_s));

  QToolBar* bar = addToolBar(u"Команды"_s);
  bar->setObjectName(u"ToolBar"_s);
  bar->setMovable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  bar->addActions({print, pdf, find, reload});
  bar->addSeparator();
  AddZoomActions(menuBar()->addMenu(u"&Вид"_s));
  if (kind_ == PageKind::kGuide) AddGuideActions(menuBar()->addMenu(u"П&ереход"_s));
  view_->addActions({copy, all, find, print, pdf});
  view_->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void ViewerWindow::AddZoomActions(QMenu* menu) {
  QAction* out = menu->addAction(u"У&меньшить"_s, view_, &PageView::ZoomOut);
  out->setIconText(u"−"_s);
  out->setShortcut(QKeySequence(u"Ctrl+-"_s));
  zoom_label_ = menu->addAction(u"&100%"_s, view_, [this] { view_->SetZoom(100); });
  zoom_label_->setIconText(u"100%"_s);
  zoom_label_->setShortcut(QKeySequence(u"Ctrl+0"_s));
  QAction* in = menu->addAction(u"&Увеличить"_s, view_, &PageView::ZoomIn);
  in->setIconText(u"+"_s);
  in->setShortcuts({QKeySequence(u"Ctrl++"_s), QKeySequence(u"Ctrl+="_s)});
  findChild<QToolBar*>(u"ToolBar"_s)->addActions({out, zoom_label_, in});
  connect(view_, &PageView::ZoomChanged, this,
          [this](int percent) { zoom_label_->setIconText(u"%1%"_s.arg(percent)); });
}

void ViewerWindow::AddGuideActions(QMenu* menu) {
  go_back_ = menu->addAction(u"&Назад"_s, this, [this] { Return(back_, forward_); });
  go_back_->setObjectName(u"GoBack"_s);
  go_back_->setShortcut(QKeySequence(u"Alt+Left"_s));
  go_forward_ = menu->addAction(u"&Вперёд"_s, this, [this] { Return(forward_, back_); });
  go_forward_->setObjectName(u"GoForward"_s);
  go_forward_->setShortcut(QKeySequence(u"Alt+Right"_s));
  auto* bar = findChild<QToolBar*>(u"ToolBar"_s);
  bar->insertActions(bar->actions().constFirst(), {go_back_, go_forward_});
  EnableGuideActions();
  connect(view_, &PageView::LinkActivated, this, &ViewerWindow::Follow);
}

void ViewerWindow::EnableGuideActions() {
  go_back_->setEnabled(!back_.empty());
  go_forward_->setEnabled(!forward_.empty());
}

bool ViewerWindow::LoadInstead(const QString& name) {
  const QString before = std::exchange(name_, name);
  if (Load()) return true;
  name_ = before;
  return false;
}

void ViewerWindow::Follow(const QUrl& link) {
  const Visit here{name_, view_->verticalScrollBar()->value()};
  if (LoadInstead(link.path())) {
    back_.push_back(here);
    forward_.clear();
    EnableGuideActions();
  }
}

void ViewerWindow::Return(std::vector<Visit>& from, std::vector<Visit>& to) {
  const Visit here{name_, view_->verticalScrollBar()->value()};
  const Visit there = from.back();
  if (LoadInstead(there.name)) {
    from.pop_back();
    to.push_back(here);
    view_->verticalScrollBar()->setValue(there.top);
    EnableGuideActions();
  }
}

bool ViewerWindow::Load() {
  QElapsedTimer since_begin;
  since_begin.start();
  const auto report = [this, &since_begin](const QString& text) -> Progress {
    return [this, &since_begin, text](double part) {
      if (since_begin.elapsed() > kRedrawPatience) {
        show();
        ShowProgress(text, part);
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
      }
      return true;
    };
  };
  try {
    auto page =
        std::make_shared<Page>(ReadPageFile(directory_, name_, report(u"Чтение: %p%"_s), kind_));
    ShowPage(std::move(page), report(u"Разметка: %p%"_s));
    return true;
  } catch (const std::system_error& error) {
    ShowError(isVisible() ? this : nullptr, ReadErrorText(directory_, name_, kind_, error.code()));
    return false;
  }
}

void ViewerWindow::ShowPage(std::shared_ptr<const Page> page, const Progress& progress) {
  const bool is_first = page_ == nullptr;
  page_ = std::move(page);
  setWindowTitle(page_->title.isEmpty() ? Untitled(kind_) : page_->title);
  auto plan = std::make_shared<const PagePlan>(page_, progress);
  const double width = BodyWidth(Propose(PaperFormat(), plan->ReadableWidth()));
  view_->ShowPage(std::move(plan), width);
  if (is_first) FitToScreen();
}

void ViewerWindow::FitToScreen() {
  const QSize room = screen()->availableSize() * look::kMostOfScreen;
  resize(std::clamp(view_->WidthForPage(), std::min(kLeastWidth, room.width()), room.width()),
         std::min(room.height(), kMostHeight));
}

void ViewerWindow::ShowProgress(const QString& text, double part) {
  const bool is_done = part >= 1;
  statusBar()->setVisible(!is_done);
  progress_->setVisible(!is_done);
  progress_->setFormat(text);
  progress_->setValue(static_cast<int>(part * progress_->maximum()));
}

void ViewerWindow::Reload() { Load(); }

void ViewerWindow::Find() { find_bar_->Open(); }

void ViewerWindow::Preview() {
  PreviewDialog dialog(page_, this);
  if (dialog.Prepare()) dialog.exec();
}

void ViewerWindow::Mail() { MailPage(page_, this); }

void ViewerWindow::SavePdf() {
  const QString path = AskPdfPath(NameOf(*page_), this);
  if (!path.isEmpty()) SavePdfFile(page_, path, this);
}

void RenderWindowPicture(std::shared_ptr<const Page> page, const QString& path) {
  ViewerWindow window(QDir(), {});
  window.ShowPage(std::move(page));
  window.resize(window.findChild<PageView*>()->WidthForPage(), kMostHeight);
  syscalls::ForgetErrors();
  if (!window.grab().save(path))
    throw std::system_error(syscalls::LastError(), std::generic_category(), path.toStdString());
}

}  // namespace kladez::viewer
