#include "screens/store/CopyOptionsDialog.h"

#include <QCheckBox>
#include <QVBoxLayout>

#include "formats/Numbers.h"
#include "screens/store/FolderChooser.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Fields.h"
#include "ui/controls/Forms.h"
#include "ui/controls/Messages.h"

namespace kladez {

using namespace Qt::StringLiterals;

CopyOptionsDialog::CopyOptionsDialog(AppContext& context, QWidget* parent)
    : QDialog(parent),
      context_(context),
      room_(new TextLineNumber(this)),
      twice_(new QCheckBox(u"Класть копии и во &второе место:"_s, this)),
      second_(new FolderChooser(this)) {
  setObjectName(u"copyoptions"_s);
  setWindowTitle(u"Настройка копий"_s);
  room_->setObjectName(u"room"_s);
  room_->setText(context.settings.Read(settings::kCopyRoom));
  twice_->setObjectName(u"twice"_s);
  second_->setObjectName(u"second"_s);
  const QString place = context.settings.Read(settings::kSecondPlace);
  twice_->setChecked(!place.isEmpty());
  second_->setEnabled(!place.isEmpty());
  second_->SetFolder(place);
  connect(twice_, &QCheckBox::toggled, second_, &QWidget::setEnabled);

  auto* room = new QHBoxLayout;
  room->addWidget(NewLabel(u"&Места для всех копий, МБ:"_s, room_, this));
  room->addWidget(room_);
  auto* advice = NewLabel(
      u"Когда места не хватает, первыми уходят самые старые копии, но не сегодняшние и не "
      u"последняя копия базы. Второе место — другой диск, флешка или сетевая папка: копии "
      u"попадают туда, когда оно подключено."_s,
      nullptr, this);
  advice->setObjectName(u"advice"_s);
  advice->setWordWrap(true);
  auto* ok = NewCommand(this, u"ok"_s, u"OK"_s);
  auto* cancel = NewCommand(this, u"cancel"_s, u"О&тмена"_s);
  connect(ok, &QPushButton::clicked, this, &CopyOptionsDialog::Save);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  auto* layout = new QVBoxLayout(this);
  look::SetDialogMargins(layout);
  layout->addWidget(advice);
  layout->addLayout(room);
  layout->addWidget(twice_);
  layout->addWidget(second_, 1);
  layout->addLayout(NewEndingRow(ok, cancel));
  resize(70 * look::kGrid, 65 * look::kGrid);
  room_->setFocus();
}

void CopyOptionsDialog::Save() {
  const double room = NumberOr(room_->text());
  if (room < 1 || room > 1e6) {
    ShowMessage(this, u"Места для копий нужно от 1 до 1000000 МБ."_s);
    room_->setFocus();
    return;
  }
  if (twice_->isChecked() && second_->Folder().isEmpty()) {
    ShowMessage(this, u"Такой папки нет. Выберите её в дереве или напишите полный путь к ней."_s);
    return;
  }
  context_.settings.Write(settings::kCopyRoom, QString::number(static_cast<int>(room)));
  if (context_.keeping != nullptr) {
    const QString second = twice_->isChecked() ? second_->Folder() : QString();
    context_.keeping->Copies().SetSecondPlace(second);
  }
  accept();
}

}  // namespace kladez
