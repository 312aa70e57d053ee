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
#include "ui/controls/TabOrder.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr int kProgressSteps = 1000;

}  // namespace

CopyWizard::CopyWizard(AppContext& context, const QString& name, const QString& title,
                       const Setting& folder, QWidget* parent)
    : QDialog(parent),
      context_(context),
      list_(new CatalogueList(this, CatalogueList::Checks::kBoxes)),
      chooser_(new FolderChooser(this)),
      next_(NewCommand(this, u"Command1"_s, u"&Далее"_s)),
      cancel_(NewCommand(this, u"Command2"_s, u"О&тмена"_s)),
      advice_(new QLabel(this)),
      steps_(new QStackedLayout),
      progress_(new QProgressBar(this)),
      folder_(folder) {
  setObjectName(name);
  setWindowTitle(title);
  advice_->setObjectName(u"Label1"_s);
  advice_->setWordWrap(true);
  list_->SetEmptyText(u"Здесь нет ни одной базы данных."_s);
  progress_->setObjectName(u"ProgressBar1"_s);
  progress_->setRange(0, kProgressSteps);
  // Keeps its room, so that the buttons do not move when the copy starts.
  QSizePolicy policy = progress_->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  progress_->setSizePolicy(policy);
  progress_->hide();
  if (const QString last = context.settings.Read(folder); !last.isEmpty()) {
    chooser_->SetFolder(last);
  }
  steps_->addWidget(list_);
  steps_->addWidget(chooser_);
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addWidget(advice_);
  layout->addLayout(steps_, 1);
  layout->addWidget(progress_);
  layout->addLayout(NewEndingRow(next_, cancel_));
  resize(look::ByLetters(this, 64, 52));
  TabByEye(this);
  connect(next_, &QPushButton::clicked, this, [this] { Next(); });
  connect(cancel_, &QPushButton::clicked, this, &CopyWizard::reject);
}

void CopyWizard::ShowList(const QString& label) {
  advice_->setText(label);
  steps_->setCurrentWidget(list_);
  list_->SelectRow(0);
  list_->setFocus();
}

void CopyWizard::ShowChooser(const QString& label) {
  advice_->setText(label);
  steps_->setCurrentWidget(chooser_);
  chooser_->setFocus();
}

bool CopyWizard::ListIsShown() const { return steps_->currentWidget() == list_; }

bool CopyWizard::AnyChecked() {
  if (!list_->Checked().empty()) return true;
  ShowMessage(this, u"Отметьте хотя бы одну базу данных"_s);
  return false;
}

void CopyWizard::Copy(const std::function<void(const Progress&)>& copy, const QString& stopped) {
  const auto set_busy = [this](bool busy) {
    copying_ = busy;
    progress_->setValue(0);
    progress_->setVisible(busy);
    for (QWidget* control : std::initializer_list<QWidget*>{list_, chooser_, next_}) {
      control->setEnabled(!busy);
    }
  };
  cancelled_ = false;
  set_busy(true);
  const bool finished =
      Guarded(this, [&] { copy(Progress([this](double done) { return ShowProgress(done); })); });
  set_busy(false);
  if (finished) {
    context_.settings.Write(folder_, chooser_->Folder());
    accept();
  } else if (cancelled_) {
    ShowInformation(this, stopped);
  }
}

bool CopyWizard::ShowProgress(double done) {
  progress_->setValue(static_cast<int>(done * kProgressSteps));
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
