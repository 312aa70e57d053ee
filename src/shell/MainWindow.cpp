#include "shell/MainWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QSessionManager>
#include <QTimer>
#include <QVBoxLayout>

#include "books/store/Catalogue.h"
#include "books/store/SaveSet.h"
#include "formats/DatabaseFiles.h"
#include "screens/directories/LoadTableDialog.h"
#include "screens/store/ImportSourceDialog.h"
#include "screens/store/NewDatabaseDialog.h"
#include "screens/store/TimeMachineDialog.h"
#include "shell/ChildHost.h"
#include "shell/FootLine.h"
#include "shell/HomeScreen.h"
#include "shell/LandingScreen.h"
#include "shell/LinkPanels.h"
#include "shell/MainCommands.h"
#include "shell/ScreenFactory.h"
#include "shell/SplashScreen.h"
#include "ui/Help.h"
#include "ui/HintWindow.h"
#include "ui/controls/ChoiceAccess.h"
#include "ui/controls/Guard.h"
#include "ui/controls/HintPicture.h"
#include "ui/controls/LongWork.h"
#include "ui/controls/TableSaving.h"
#include "ui/controls/UnsavedWork.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr QStringView kTitle = u"Kladez";  // with no Database open

constexpr int kStripHeight = 900;  // in twips

}  // namespace

MainWindow::MainWindow(AppContext& context)
    : context_(context), menu_(new MainMenu(menuBar(), this)), remembered_sizes_(context.settings) {
  setObjectName(u"frmMain"_s);
  setWindowTitle(kTitle.toString());
  setWindowIcon(look::Icon(look::IconName::kProgram));
  HintPicture::SetOpener(&HintWindow::Show);
  ChoiceAccess::Install();
  FollowHelpKey(this, context.data);
  KeepTableFolder(&context.settings, &context.clock);
  menu_->OfferSchemes(context_.settings);
  BuildLayout();
  connect(menu_, &MainMenu::Chosen, this, &MainWindow::Go);
  connect(menu_, &MainMenu::Commanded, this, &MainWindow::Do);
  if (context_.keeping != nullptr) AskOfCopies();
  connect(links_panel_, &LinksPanel::Chosen, this, &MainWindow::Go);
  connect(links_strip_, &LinksStrip::Chosen, this, &MainWindow::Go);
  context_.show_progress = Progress([this](double part) {
    foot_->ShowProgress(part);
    return true;
  });
  connect(children_, &ChildHost::LeftEmpty, this, &MainWindow::ShowHome);
  for (QWidget* way_out : {static_cast<QWidget*>(links_panel_), static_cast<QWidget*>(links_strip_),
                           static_cast<QWidget*>(menuBar())}) {
    LongWork::LetPass(way_out);
  }
  // The desktop session ends: whoever has unsaved work may call that off.
  connect(qApp, &QGuiApplication::commitDataRequest, this, [](QSessionManager& session) {
    if (session.allowsInteraction() && !MayLeave()) session.cancel();
    session.release();
  });
  HideDatabaseMenus();
  DisableDatabaseCommands();
  ShowPanels(false);
}

MainWindow::~MainWindow() {
  KeepTableFolder(nullptr, nullptr);
  if (context_.keeping != nullptr) context_.keeping->Copies().SetQuestion({});
  context_.show_progress = {};
}

void MainWindow::BuildLayout() {
  auto* inner = new QWidget(this);
  inner->setObjectName(u"inner"_s);
  links_panel_ = new LinksPanel(inner);
  links_strip_ = new LinksStrip(inner);
  links_strip_->setMinimumHeight(look::FromTwips(kStripHeight));
  children_ = new ChildHost(inner);
  foot_ = new FootLine(inner);
  auto* middle = new QHBoxLayout;
  middle->setSpacing(0);
  middle->addWidget(links_panel_);
  middle->addWidget(children_, 1);
  auto* layout = new QVBoxLayout(inner);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(links_strip_);
  layout->addLayout(middle, 1);
  layout->addWidget(foot_);
  setCentralWidget(inner);
  // Most of the display, and no less than its parts ask for.
  resize((screen()->availableSize() * 0.9).expandedTo(QSize(140, 92) * look::kGrid));
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
  if (context_.keeping != nullptr) context_.keeping->Undo().OpenedBy(context_.session.IsSeller());
  ShowPanels(true);
  ShowHome();
  // Of the lists that could not be read.
  QTimer::singleShot(0, this, [this] { ShowNotes(this); });
}

void MainWindow::OpenDemonstration() {
  if (MustWait([this] { OpenDemonstration(); })) return;
  const auto entry = FindDemonstration(context_.data, context_.session);
  if (!entry || !MayLeave(this)) return;
  context_.session.chosen_base = entry->descriptor.path;
  context_.settings.Write(settings::kBaseName, entry->descriptor.path);
  context_.settings.Write(settings::kBaseTitle, entry->descriptor.name);
  SetDatabaseTitle(entry->descriptor.name);
  OpenDatabase();
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

QWidget* MainWindow::Child() const { return children_->Child(); }

void MainWindow::SetDatabaseTitle(const QString& name) { setWindowTitle(kTitle + u" - "_s + name); }

void MainWindow::HideDatabaseMenus() { menu_->ShowDatabaseMenus(false); }

void MainWindow::DisableDatabaseCommands() { menu_->EnableDatabaseCommands(false); }

void MainWindow::ShowNewDatabase() {
  // What a seller before could not do stays as it was.
  menu_->EnableDatabaseCommands(true);
  menu_->ShowDatabaseMenus(true);
  ShowPanels(true);
  ShowHome();
}

void MainWindow::ShowPanels(bool show) {
  links_panel_->setVisible(show);
  links_strip_->setVisible(show);
  foot_->setVisible(show);
  ShowFoot();
}

void MainWindow::ShowFoot() { foot_->Tell(context_.session.role, context_.clock.Today()); }

void MainWindow::CloseChildScreens() { children_->CloseAll(); }

void MainWindow::ShowHome() {
  if (!context_.session.IsOpen()) {
    ShowLanding();
    return;
  }
  CloseChildScreens();
  auto* home = new HomeScreen(context_, children_->Ground());
  connect(home, &HomeScreen::Chosen, this, &MainWindow::Go);
  connect(home, &HomeScreen::PanelToggled, links_panel_, &QWidget::setVisible);
  connect(home, &HomeScreen::CopiesWanted, this, [this] { Do(Command::kTimeMachine); });
  connect(home, &HomeScreen::DemonstrationWanted, this, &MainWindow::OpenDemonstration);
  children_->Show(home);
  // At the start the window comes up first: it can be closed while the home screen counts.
  if (isVisible()) {
    home->Activate();
  } else {
    QTimer::singleShot(0, home, &HomeScreen::Activate);
  }
}

void MainWindow::ShowLanding() {
  CloseChildScreens();
  auto* landing = new LandingScreen(children_->Ground());
  connect(landing, &LandingScreen::OpenWanted, this,
          [this] { OpenFromCatalogue(CatalogueDialog::Mode::kOpen); });
  connect(landing, &LandingScreen::CreateWanted, this, &MainWindow::Create);
  ShowPanels(false);
  children_->Show(landing);
}

// A command that did not come by key or mouse, as one of an assistive tool or of a desktop's own
// menu, is stopped by no modal dialog of the toolkit's.
bool MainWindow::MustWait(const std::function<void()>& command) {
  return QApplication::activeModalWidget() != nullptr || LongWork::LeaveFor(this, command);
}

void MainWindow::Go(Place place) {
  if (MustWait([this, place] { Go(place); })) return;
  if (place == Place::kHome) {
    if (MayLeave(this)) ShowHome();
    return;
  }
  const bool child = RowOf(place).child;
  if (child && !MayLeave(this)) return;
  Guarded(this, [&] {
    if (child) CloseChildScreens();
    if (QWidget* screen = OpenScreen(place, context_, child ? children_->Ground() : this)) {
      children_->Show(screen);
    } else {
      Return();
    }
  });
  if (Child() == nullptr) ShowHome();
}

// From a dialog that left the child screen where it was.
void MainWindow::Return() {
  if (auto* home = qobject_cast<HomeScreen*>(Child())) home->Activate();
  ShowFoot();
}

void MainWindow::Do(Command command) {
  if (command == Command::kHelp) {
    OpenHelpFile(this, context_.data);
    return;
  }
  if (MustWait([this, command] { Do(command); })) return;
  if (LeavesDatabase(command) && !MayLeave(this)) return;
  switch (command) {
    case Command::kCreate:
      Create();
      break;
    case Command::kOpen:
      OpenFromCatalogue(CatalogueDialog::Mode::kOpen);
      break;
    case Command::kCatalogue:
      OpenFromCatalogue(CatalogueDialog::Mode::kCatalogue);
      break;
    case Command::kImport:
      if (!context_.session.IsOpen()) break;
      ImportSourceDialog(context_, *this, this).exec();
      OpenDatabase();
      break;
    case Command::kClose:
      CloseDatabase();
      break;
    case Command::kExit:
      Exit();
      break;
    case Command::kUndo:
      Undo();
      break;
    case Command::kTimeMachine:
      OpenTimeMachine();
      break;
    case Command::kLoadTable:
      if (LoadTable(context_, this)) {
        OpenDatabase();
      } else {
        Return();
      }
      break;
    default:
      RunAside(command, context_, this);
      Return();
  }
}

void MainWindow::OpenFromCatalogue(CatalogueDialog::Mode mode) {
  const bool chosen = CatalogueDialog(context_, *this, mode, this).exec() == QDialog::Accepted;
  // A cancelled "Открыть..." opens the same Database once more.
  const bool again =
      mode == CatalogueDialog::Mode::kOpen && !context_.session.chosen_base.isEmpty();
  if (chosen || again) {
    OpenDatabase();
  } else {
    Return();
  }
}

// What the copies have to ask and to say.
void MainWindow::AskOfCopies() {
  Safekeeping& keeping = *context_.keeping;
  connect(menu_, &MainMenu::FileMenuOpens, this,
          [this, &keeping] { menu_->ShowUndo(keeping.Undo().Last()); });
  keeping.Copies().SetQuestion([this](const QString& reason) {
    QWidget* front = QApplication::activeModalWidget();
    return AskYesNo(front != nullptr ? front : this,
                    u"Копию базы сделать не удалось. Всё равно выполнить команду?"_s,
                    kAttention.toString(), DefaultAnswer::kNo,
                    u"Вернуть то, что было до неё, будет нечем.\n"_s + reason);
  });
  const QString advice = keeping.Copies().SecondPlaceAdvice();
  if (!advice.isEmpty()) AddNote(advice);
}

void MainWindow::OpenTimeMachine() {
  TimeMachineDialog dialog(context_, this);
  dialog.exec();
  if (dialog.HasBroughtBack() && context_.session.IsOpen()) {
    OpenDatabase();
  } else {
    Return();
  }
}

void MainWindow::Undo() {
  if (context_.keeping == nullptr) return;
  Guarded(this, [this] { context_.keeping->Undo().UndoLast(context_.session); });
  if (context_.session.IsOpen()) {
    OpenDatabase();  // its lists may be other ones now
  } else {
    Return();
  }
}

void MainWindow::Create() {
  if (NewDatabaseDialog(context_, *this, this).exec() == QDialog::Rejected) Return();
}

void MainWindow::Exit() {
  // At once: no child screen closes of itself and the scratch price list stays.
  QCoreApplication::exit(0);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (!MayLeave(this)) {
    event->ignore();
    return;
  }
  CloseChildScreens();
  IgnoreErrors([this] {
    SaveSet save(context_.data);
    save.Delete(files::kPriceClipboard.toString());
    save.Commit();
  });
  event->accept();
}

}  // namespace kladez
