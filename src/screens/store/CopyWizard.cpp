#include "screens/store/CopyWizard.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QStackedLayout>
#include <QVBoxLayout>

#include "screens/store/CatalogueList.h"
#include "screens/store/FolderChooser.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Guard.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr int kProgressSteps = 1000;

}  // namespace

CopyWizard::CopyWizard(AppContext& context, const QString& name, const QString& title,
                       QWidget* parent)
    : QDialog(parent),
      context_(context),
      ListView1(new CatalogueList(this, CatalogueList::Checks::kBoxes)),
      chooser_(new FolderChooser(this)),
      Command1(NewCommand(this, u"Command1"_s, u"&Далее"_s)),
      Command2(NewCommand(this, u"Command2"_s, u"О&тмена"_s)),
      Label1(new QLabel(this)),
      steps_(new QStackedLayout),
      ProgressBar1(new QProgressBar(this)) {
  setObjectName(name);
  setWindowTitle(title);
  Label1->setObjectName(u"Label1"_s);
  Label1->setWordWrap(true);
  ListView1->SetEmptyText(u"Здесь нет ни одной базы данных."_s);
  ProgressBar1->setObjectName(u"ProgressBar1"_s);
  ProgressBar1->setRange(0, kProgressSteps);
  // Keeps its room, so that the buttons do not move when the copy starts.
  QSizePolicy policy = ProgressBar1->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  ProgressBar1->setSizePolicy(policy);
  ProgressBar1->hide();
  steps_->addWidget(ListView1);
  steps_->addWidget(chooser_);
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addWidget(Label1);
  layout->addLayout(steps_, 1);
  layout->addWidget(ProgressBar1);
  layout->addLayout(NewEndingRow(Command1, Command2));
  resize(64 * look::kGrid, 52 * look::kGrid);
  connect(Command1, &QPushButton::clicked, this, [this] { Next(); });
  connect(Command2, &QPushButton::clicked, this, &CopyWizard::reject);
}

void CopyWizard::ShowList(const QString& label) {
  Label1->setText(label);
  steps_->setCurrentWidget(ListView1);
  ListView1->SelectRow(0);
  ListView1->setFocus();
}

void CopyWizard::ShowChooser(const QString& label) {
  Label1->setText(label);
  steps_->setCurrentWidget(chooser_);
  chooser_->setFocus();
}

bool CopyWizard::ListIsShown() const { return steps_->currentWidget() == ListView1; }

bool CopyWizard::AnyChecked() {
  if (!ListView1->Checked().empty()) return true;
  ShowMessage(this, u"Отметьте хотя бы одну базу данных"_s);
  return false;
}

void CopyWizard::Copy(const std::function<void(const Progress&)>& copy, const QString& stopped) {
  const auto set_busy = [this](bool busy) {
    copying_ = busy;
    ProgressBar1->setValue(0);
    ProgressBar1->setVisible(busy);
    for (QWidget* control : std::initializer_list<QWidget*>{ListView1, chooser_, Command1}) {
      control->setEnabled(!busy);
    }
  };
  cancelled_ = false;
  set_busy(true);
  const bool finished =
      Guarded(this, [&] { copy(Progress([this](double done) { return ShowProgress(done); })); });
  set_busy(false);
  if (finished) {
    accept();
  } else if (cancelled_) {
    ShowInformation(this, stopped);
  }
}

bool CopyWizard::ShowProgress(double done) {
  ProgressBar1->setValue(static_cast<int>(done * kProgressSteps));
  QApplication::processEvents();
  return !cancelled_;
}

void CopyWizard::reject() {
  if (copying_) {
    cancelled_ = true;
  } else {
    QDialog::reject();
  }
}

}  // namespace kladez
