#include "screens/directories/WarehousesDialog.h"

#include "ui/controls/Look.h"
#include "ui/controls/Messages.h"

namespace kladez {

using namespace Qt::StringLiterals;

WarehousesDialog::WarehousesDialog(AppContext& context, QWidget* parent)
    : DirectoryDialog(u"sprSklad"_s, u"Список складов"_s, Ending::kOk, parent),
      directory_(context.data, context.session) {
  SetRows({{.title = u"Склад"_s, .twips = 4500, .stretch = true}},
          {.count = [this] { return static_cast<int>(directory_.Names().size()); },
           .text = [this](int row, int) { return directory_.Names()[row]; },
           .is_group = {},
           .checked = {},
           .set_checked = {}});
  resize(look::ByLetters(this, 65, 45));
}

QString WarehousesDialog::AskName(const QString& prompt, const QString& value) {
  while (true) {
    const QString name = AskText(this, u"Имя склада"_s, prompt, value).value_or(QString());
    if (!HoldsForbiddenCharacter(name)) return name;
    ShowMessage(this, u"В названии склада запрещается использовать символы \\/:*?\"<>|"_s);
  }
}

void WarehousesDialog::Add() {
  const QString name = AskName(u"Введите название нового склада"_s, {});
  if (name.isEmpty()) return;
  if (directory_.Contains(name)) {
    ShowMessage(this, u"Такой склад уже существует"_s);
    return;
  }
  Write([&] {
    directory_.Create(name);
    ShowAnew(static_cast<int>(directory_.Names().size()) - 1);
  });
}

void WarehousesDialog::Change(int row) {
  const QString name = AskName(u"Введите новое название склада"_s, directory_.Names()[row]);
  if (name.isEmpty()) return;
  Write([&] {
    directory_.Rename(row, name);
    ShowAnew(row);
  });
}

void WarehousesDialog::Remove(int row) {
  if (row == 0 ||
      !AskYesNo(this, u"Вы уверены?"_s, u"Удаление"_s, DefaultAnswer::kNo,
                u"Склад «%1» будет удалён сразу и навсегда: остатки, прайс-листы и все накладные, "
                u"которые в нём лежат."_s.arg(directory_.Names()[row]))) {
    return;
  }
  Write([&] {
    directory_.Delete(row);
    ShowAnew(row);
  });
}

void WarehousesDialog::Save() { directory_.Save(); }

}  // namespace kladez
