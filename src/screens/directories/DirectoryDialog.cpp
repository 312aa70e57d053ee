#include "screens/directories/DirectoryDialog.h"

#include <QHBoxLayout>
#include <algorithm>

#include "ui/controls/Commands.h"
#include "ui/controls/FollowedFiles.h"
#include "ui/controls/ListSearch.h"
#include "ui/controls/TabOrder.h"
#include "ui/controls/UnsavedWork.h"

namespace kladez {

using namespace Qt::StringLiterals;

DirectoryDialog::DirectoryDialog(const QString& name, const QString& title, Ending ending,
                                 QWidget* parent)
    : QDialog(parent),
      list_(new RecordList(this)),
      add_(NewCommand(this, u"add"_s, u"&Добавить"_s, look::IconName::kAdd)),
      change_(NewCommand(this, u"change"_s, u"&Изменить"_s, look::IconName::kChange)),
      remove_(NewCommand(this, u"remove"_s, u"&Удалить"_s, look::IconName::kRemove)),
      ok_(NewCommand(this, u"ok"_s, u"OK"_s)) {
  setObjectName(name);
  setWindowTitle(title);
  list_->setObjectName(u"ListView1"_s);
  list_->SetEmptyText(u"Список пуст. Нажмите «Добавить»."_s);

  auto* commands = new QHBoxLayout;
  commands->setSpacing(look::kGrid);
  for (QPushButton* command : {add_, change_, remove_}) commands->addWidget(command);
  commands->addSpacing(look::kGap);
  QPushButton* cancel = nullptr;
  if (ending == Ending::kOkAndCancel) {
    cancel = NewCommand(this, u"cancel"_s, u"О&тмена"_s);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  }
  commands->addLayout(NewEndingRow(ok_, cancel), 1);
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addWidget(list_, 1);
  layout->addLayout(commands);
  TabByEye(this);
  list_->setFocus();
  new UnsavedWork(this, {.is_changed = [this] { return IsChanged(); },
                         .save = [this] { return Write([this] { Save(); }); }});
  files_ = new FollowedFiles(this, {.is_current = [this] { return IsCurrent(); },
                                    .is_changed = [this] { return IsChanged(); },
                                    .read_again = [this] { ShowRead(); }});

  ShareListKeys(this, list_);
  connect(add_, &QPushButton::clicked, this, [this] { Add(); });
  connect(change_, &QPushButton::clicked, this, [this] { OnRow(&DirectoryDialog::Change); });
  connect(remove_, &QPushButton::clicked, this, [this] { OnRow(&DirectoryDialog::Remove); });
  connect(ok_, &QPushButton::clicked, this, [this] {
    if (Write([this] { Save(); })) accept();
  });
  connect(list_, &RecordList::InsertPressed, add_, &QPushButton::click);
  connect(list_, &RecordList::DeletePressed, remove_, &QPushButton::click);
  connect(list_, &RecordList::DividePressed, change_, &QPushButton::click);
  connect(list_, &RecordList::EnterPressed, change_, &QPushButton::click);
  connect(list_, &RecordList::DoubleClicked, change_, &QPushButton::click);
}

void DirectoryDialog::ShowRead() {
  const int row = std::max(0, list_->CurrentRow());
  const QString name = model_->index(row, 0).data().toString();
  ReadAgain();
  ShowAnew(row);
  for (int now = 0; now < model_->rowCount(); ++now) {
    if (model_->index(now, 0).data().toString() == name) return list_->SelectRow(now);
  }
}

bool DirectoryDialog::Write(const std::function<void()>& command) { return files_->Save(command); }

void DirectoryDialog::OnRow(void (DirectoryDialog::*command)(int row)) {
  const int row = list_->CurrentRow();
  if (row >= 0) (this->*command)(row);
}

void DirectoryDialog::SetRows(std::vector<Column> columns, RowSource rows) {
  model_ = new RecordModel(std::move(columns), std::move(rows), this);
  list_->SetRecords(model_);
  list_->SelectRow(0);
}

void DirectoryDialog::ShowAnew(int row) {
  model_->Reset();
  list_->SelectRow(std::min(row, model_->rowCount() - 1));
}

}  // namespace kladez
