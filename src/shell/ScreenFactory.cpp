#include "shell/ScreenFactory.h"

#include "directories/screens/currenc.h"
#include "directories/screens/sprFirm.h"
#include "directories/screens/sprPost.h"
#include "directories/screens/sprSklad.h"
#include "directories/screens/sprTovar.h"
#include "directories/screens/sprklient.h"

namespace kladez {

QWidget* NewScreen(Place place, AppContext& context, QWidget* parent) {
  switch (place) {
    case Place::kFirms:
      return new sprFirm(context, parent);
    case Place::kGoods:
      return new sprTovar(context, parent);
    case Place::kSuppliers:
      return new sprPost(context, parent);
    case Place::kClients:
      return new sprklient(context, parent);
    case Place::kWarehouses:
      return new sprSklad(context, parent);
    case Place::kCurrency:
      return new currenc(context, parent);
    default:
      return nullptr;
  }
}

}  // namespace kladez
