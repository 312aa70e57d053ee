#include "ui/HistoryCommand.h"

#include <QShortcut>

#include "formats/GoodsFile.h"
#include "ui/controls/Commands.h"

namespace kladez {

using namespace Qt::StringLiterals;

QPushButton* NewHistoryCommand(QWidget* screen, AppContext& context,
                               std::function<GoodsInWarehouse()> selected) {
  QPushButton* command =
      NewCommand(screen, u"show_history"_s, u"Истори&я…"_s, look::IconName::kCalendar);
  QObject::connect(command, &QPushButton::clicked, screen,
                   [screen, &context, selected = std::move(selected)] {
                     const auto [goods, warehouse] = selected();
                     if (goods.isEmpty() || IsGroupName(goods)) return;
                     if (context.show_goods_history) {
                       context.show_goods_history(screen, goods, warehouse);
                     }
                   });
  auto* key = new QShortcut(Qt::CTRL | Qt::Key_H, screen);
  key->setContext(Qt::WidgetWithChildrenShortcut);
  QObject::connect(key, &QShortcut::activated, command, &QPushButton::click);
  return command;
}

}  // namespace kladez
