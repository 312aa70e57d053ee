#include "screens/store/CatalogueForm.h"

#include <QCloseEvent>

#include "screens/store/CatalogueHost.h"
#include "screens/store/CatalogueList.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Fields.h"
#include "ui/controls/Guard.h"
#include "ui/controls/TabOrder.h"

namespace kladez {

using namespace Qt::StringLiterals;

CatalogueForm::CatalogueForm(AppContext& context, CatalogueHost& host, const Texts& texts,
                             int (*row_of)(int position, int count), QWidget* parent)
    : QDialog(parent),
      context_(context),
      host_(host),
      list_(new CatalogueList(this)),
      name_(new TextLine(this)),
      command_(NewCommand(this, u"Command1"_s, texts.command)) {
  setObjectName(texts.name);
  setWindowTitle(texts.title);
  name_->setObjectName(u"Text3"_s);
  list_->SetEmptyText(texts.empty);
  auto* cancel = NewCommand(this, u"Command2"_s, u"О&тмена"_s);
  list_->LayOut(this, texts.caption, name_, command_, cancel);
  list_->ShowNameIn(name_);
  TabByEye(this);
  connect(command_, &QPushButton::clicked, this, [this] { Act(); });
  connect(cancel, &QPushButton::clicked, this, &CatalogueForm::reject);
  Guarded(this, [this] { list_->Fill(context_.data); });
  list_->SelectRow(row_of(context_.settings.ReadInt(settings::kFilePos), list_->Count()));
}

void CatalogueForm::WriteChoice() {
  context_.settings.Write(settings::kRole,
                          QString::number(static_cast<int>(context_.session.role)));
  if (const auto position = Position()) {
    context_.settings.Write(settings::kFilePos, QString::number(*position));
  }
}

void CatalogueForm::reject() {
  if (list_->Count() == 0) LeaveEmpty();
  done(Rejected);
}

void CatalogueForm::closeEvent(QCloseEvent* event) {
  WriteChoice();
  event->accept();
  done(Rejected);
}

}  // namespace kladez
