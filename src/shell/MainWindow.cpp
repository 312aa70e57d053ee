#include "shell/MainWindow.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QLabel>
#include <QMenuBar>
#include <QProgressBar>
#include <QScrollArea>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <memory>

#include "books/store/SaveSet.h"
#include "formats/DatabaseFiles.h"
#include "formats/Dates.h"
#include "screens/store/BackupWizard.h"
#include "screens/store/CatalogueDialog.h"
#include "screens/store/ImportSourceDialog.h"
#include "screens/store/NewDatabaseDialog.h"
#include "screens/store/RestoreWizard.h"
#include "shell/AboutDialog.h"
#include "shell/HomeScreen.h"
#include "shell/LandingScreen.h"
#include "shell/LinkPanels.h"
#include "shell/ScreenFactory.h"
#include "shell/SplashScreen.h"
#include "ui/Help.h"
#include "ui/HintWindow.h"
#include "ui/controls/Guard.h"
#include "ui/controls/HintPicture.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr QStringView kTitle = u"Kladez";  // with no Database open

// In twips: the strip and the line at the foot together take 1350 from the panel's height.
constexpr int kStripHeight = 900;
constexpr int kFootHeight = 450;

// A child screen that could use more height than there is gets what there is: only one that can't
// do with it scrolls. What it can do with depends on the width, where its rows go on in a next
// line.
class HostLayout : public QVBoxLayout {
 public:
  using QVBoxLayout::QVBoxLayout;
  bool hasHeightForWidth() const override { return false; }

  QSize minimumSize() const override {
    QSize least = QVBoxLayout::minimumSize();
    const QLayoutItem* child = itemAt(0);
    const QLayout* layout = child != nullptr ? child->widget()->layout() : nullptr;
    if (layout != nullptr && layout->hasHeightForWidth()) {
      const QWidget* view = parentWidget()->parentWidget();
      const int width = std::max(least.width(), view->width());
      least.setHeight(std::max(least.height(), layout->minimumHeightForWidth(width)));
    }
    return least;
  }
};

// Keeps its room while it is away, so that nothing moves when it comes.
QProgressBar* NewProgressBar(QWidget* parent) {
  auto* bar = new QProgressBar(parent);
  bar->setObjectName(u"ProgressBar1"_s);
  bar->setAccessibleName(u"Ход работы"_s);
  bar->setRange(0, 100);
  bar->setTextVisible(false);
  bar->setFixedSize(15 * look::kGrid, 2 * look::kGrid);
  QSizePolicy policy = bar->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  bar->setSizePolicy(policy);
  bar->hide();
  return bar;
}

}  // namespace

MainWindow::MainWindow(AppContext& context)
    : context_(context), menu_(new MainMenu(menuBar(), this)) {
  setObjectName(u"frmMain"_s);
  setWindowTitle(kTitle.toString());
  setWindowIcon(look::Icon(look::IconName::kProgram));
  HintPicture::SetOpener(&HintWindow::Show);
  BuildLayout();
  connect(menu_, &MainMenu::Chosen, this, &MainWindow::Go);
  connect(menu_, &MainMenu::Commanded, this, &MainWindow::Do);
  connect(Picture1, &LinksPanel::Chosen, this, &MainWindow::Go);
  connect(Picture2, &LinksStrip::Chosen, this, &MainWindow::Go);
  context_.show_progress = [this](double part) { ShowProgress(part); };
  way_home_.setSingleShot(true);
  connect(&way_home_, &QTimer::timeout, this, [this] {
    if (!child_) ShowHome();
  });
  bases_ = new CatalogueDialog(context_, *this, this);
  HideDatabaseMenus();
  DisableDatabaseCommands();
  ShowPanels(false);
}

MainWindow::~MainWindow() {
  context_.show_progress = [](double) {};
  if (child_) child_->disconnect(this);
}

void MainWindow::BuildLayout() {
  auto* inner = new QWidget(this);
  inner->setObjectName(u"inner"_s);
  Picture1 = new LinksPanel(inner);
  Picture2 = new LinksStrip(inner);
  Picture2->setMinimumHeight(look::FromTwips(kStripHeight));
  host_ = new QWidget(inner);
  // With large letters on a small screen a child screen scrolls instead of being cut.
  auto* view = new QScrollArea(inner);
  view->setObjectName(u"view"_s);
  view->setFrameShape(QFrame::NoFrame);
  view->setFocusPolicy(Qt::NoFocus);
  view->setWidgetResizable(true);
  view->setWidget(host_);
  host_layout_ = new HostLayout(host_);
  host_layout_->setContentsMargins(0, 0, 0, 0);
  foot_ = new QWidget(inner);
  foot_->setFixedHeight(look::FromTwips(kFootHeight));
  role_ = new QLabel(foot_);
  role_->setObjectName(u"role"_s);
  today_ = new QLabel(foot_);
  today_->setObjectName(u"today"_s);
  ProgressBar1 = NewProgressBar(foot_);
  auto* foot = new QHBoxLayout(foot_);
  foot->setContentsMargins(look::kMargin, 0, look::kMargin, 0);
  foot->addWidget(role_);
  foot->addStretch();
  foot->addWidget(ProgressBar1);
  foot->addSpacing(look::kMargin);
  foot->addWidget(today_);
  auto* middle = new QHBoxLayout;
  middle->setSpacing(0);
  middle->addWidget(Picture1);
  middle->addWidget(view, 1);
  auto* layout = new QVBoxLayout(inner);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(Picture2);
  layout->addLayout(middle, 1);
  layout->addWidget(foot_);
  setCentralWidget(inner);
  resize(140 * look::kGrid, 92 * look::kGrid);
}

void MainWindow::Start(int splash_milliseconds) {
  SplashScreen().Run(splash_milliseconds);
  context_.session.chosen_base = context_.settings.Read(settings::kBaseName);
  if (!context_.session.chosen_base.isEmpty()) {
    SetDatabaseTitle(context_.settings.Read(settings::kBaseTitle));
  }
  OpenDatabase();
}

void MainWindow::OpenDatabase() {
  // The session is filled first, so that the home screen counts what belongs to it.
  if (!kladez::OpenDatabase(context_.session, context_.data)) {
    DisableDatabaseCommands();
    HideDatabaseMenus();
    ShowLanding();
    setWindowTitle(kTitle.toString());
    return;
  }
  menu_->EnableDatabaseCommands(true);
  menu_->ShowDatabaseMenus(true);
  menu_->ApplyRole(context_.session.IsSeller());
  ShowPanels(true);
  ShowHome();
}

void MainWindow::CloseDatabase() {
  CloseChildScreens();
  context_.settings.Write(settings::kBaseName, {});
  context_.settings.Write(settings::kBaseTitle, {});
  setWindowTitle(kTitle.toString());
  kladez::CloseDatabase(context_.session);
  HideDatabaseMenus();
  DisableDatabaseCommands();
  ShowLanding();
}

void MainWindow::SetDatabaseTitle(const QString& name) { setWindowTitle(kTitle + u" - "_s + name); }

void MainWindow::HideDatabaseMenus() { menu_->ShowDatabaseMenus(false); }

void MainWindow::DisableDatabaseCommands() { menu_->EnableDatabaseCommands(false); }

void MainWindow::ShowNewDatabase() {
  // The strip stays as it was, and so does what a seller before could not do.
  menu_->EnableDatabaseCommands(true);
  menu_->ShowDatabaseMenus(true);
  Picture1->show();
  ShowHome();
}

void MainWindow::ShowPanels(bool show) {
  Picture1->setVisible(show);
  Picture2->setVisible(show);
  foot_->setVisible(show);
  ShowFoot();
}

void MainWindow::ShowFoot() {
  switch (context_.session.role) {
    case UserRole::kSeller:
      role_->setText(u"Пользователь: Продавец"_s);
      break;
    case UserRole::kDirector:
      role_->setText(u"Пользователь: Директор"_s);
      break;
    case UserRole::kNone:
      role_->setText(u"Пользователь не выбран"_s);
      break;
  }
  today_->setText(u"Сегодня "_s + LongDateText(context_.clock.Today()));
}

void MainWindow::CloseChildScreens() {
  // A screen may have opened another of them beside itself; this order is the told one.
  for (const char16_t* name :
       {u"Main", u"main2", u"Sklad", u"Price", u"sprTovar", u"TovPrih", u"TovUhod", u"vnutr"}) {
    for (QWidget* screen : findChildren<QWidget*>(QString::fromUtf16(name))) {
      screen->disconnect(this);
      screen->close();
      screen->deleteLater();
    }
  }
  child_ = nullptr;
  // Whoever closed them has another screen to show.
  way_home_.stop();
}

// The screens before it are closed by now: one made already would be closed with them.
void MainWindow::ShowChild(QWidget* child) {
  child_ = child;
  child->setAttribute(Qt::WA_DeleteOnClose);
  host_layout_->addWidget(child);
  // One that closes itself gives way to the home screen, once it is gone for good.
  connect(child, &QObject::destroyed, this, [this] { way_home_.start(); });
  child->show();
  (child->focusWidget() != nullptr ? child->focusWidget() : child)->setFocus();
}

void MainWindow::ShowHome() {
  if (!context_.session.IsOpen()) {
    ShowLanding();
    return;
  }
  CloseChildScreens();
  auto* home = new HomeScreen(context_, host_);
  connect(home, &HomeScreen::Chosen, this, &MainWindow::Go);
  connect(home, &HomeScreen::PanelToggled, Picture1, &QWidget::setVisible);
  ShowChild(home);
  // At the start the window comes up first: it can be closed while the home screen counts.
  if (isVisible()) {
    home->Activate();
  } else {
    QTimer::singleShot(0, home, &HomeScreen::Activate);
  }
}

void MainWindow::ShowLanding() {
  CloseChildScreens();
  auto* landing = new LandingScreen(host_);
  connect(landing, &LandingScreen::OpenWanted, this, &MainWindow::OpenFromCatalogue);
  connect(landing, &LandingScreen::CreateWanted, this, &MainWindow::Create);
  ShowPanels(false);
  ShowChild(landing);
}

void MainWindow::Go(Place place) {
  if (place == Place::kHome) {
    ShowHome();
    return;
  }
  Guarded(this, [&] {
    const bool child = RowOf(place).child;
    if (child) CloseChildScreens();
    QWidget* screen = NewScreen(place, context_, child ? host_ : this);
    if (child) {
      ShowChild(screen);
    } else {
      const std::unique_ptr<QWidget> owned(screen);
      qobject_cast<QDialog*>(screen)->exec();
      Return();
    }
  });
  if (!child_) ShowHome();
}

// Drawn at once: the work that tells of itself leaves no time for events.
void MainWindow::ShowProgress(double part) {
  ProgressBar1->setValue(static_cast<int>(part * ProgressBar1->maximum()));
  ProgressBar1->setVisible(part < 1);
  if (ProgressBar1->isVisible()) ProgressBar1->repaint();
}

// From a dialog that left the child screen where it was.
void MainWindow::Return() {
  if (auto* home = qobject_cast<HomeScreen*>(child_.data())) home->Activate();
  ShowFoot();
}

void MainWindow::Do(Command command) {
  switch (command) {
    case Command::kCreate:
      Create();
      break;
    case Command::kOpen:
      OpenFromCatalogue();
      break;
    case Command::kCatalogue:
      if (bases_->Run(CatalogueDialog::Mode::kCatalogue)) {
        OpenDatabase();
      } else {
        Return();
      }
      break;
    case Command::kImport:
      if (!context_.session.IsOpen()) break;
      ImportSourceDialog(context_, *this, this).exec();
      OpenDatabase();
      break;
    case Command::kBackup:
      BackupWizard(context_, this).exec();
      Return();
      break;
    case Command::kRestore:
      RestoreWizard(context_, this).exec();
      Return();
      break;
    case Command::kClose:
      CloseDatabase();
      break;
    case Command::kExit:
      Exit();
      break;
    case Command::kHelp:
      OpenHelpFile(this, context_.data);
      break;
    case Command::kProductPage:
      OpenAddress(this, kProductAddress);
      break;
    case Command::kNewsPage:
      OpenAddress(this, kNewsAddress);
      break;
    case Command::kAbout:
      AboutDialog(this).exec();
      Return();
      break;
  }
}

void MainWindow::OpenFromCatalogue() {
  bases_->Run(CatalogueDialog::Mode::kOpen);
  // A cancelled choice opens the same Database once more.
  if (context_.session.chosen_base.isEmpty()) {
    Return();
  } else {
    OpenDatabase();
  }
}

void MainWindow::Create() {
  if (NewDatabaseDialog(context_, *this, this).exec() == QDialog::Rejected) Return();
}

void MainWindow::Exit() {
  // At once: no child screen is asked and the scratch price list stays.
  QCoreApplication::exit(0);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  CloseChildScreens();
  IgnoreErrors([this] {
    SaveSet save(context_.data);
    save.Delete(files::kPriceClipboard.toString());
    save.Commit();
  });
  event->accept();
}

}  // namespace kladez
