#include "ui/HelpPages.h"

#include <QHash>
#include <QString>
#include <QWidget>

#include "ui/Help.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

struct HelpRow {
  QStringView windows;  // parted by blanks
  QStringView page;
};

constexpr HelpRow kRows[] = {
    {u"Main main2 frmSplash about", kHelpIndex},
    {u"helper", u"keys.htm"},
    {u"Bases BasesNew", u"workdb.htm"},
    {u"BasesImport Import", u"workdb.htm#import"},
    {u"rescopy", u"backup.htm"},
    {u"resrep", u"backup.htm#restore"},
    {u"check checkplace", u"check.htm"},
    {u"timemachine copylook", u"timemachine.htm"},
    {u"copyoptions", u"timemachine.htm#options"},
    {u"sprTovar sprtovar2 sprTovNew", u"directories.htm#goods"},
    {u"sprFirm sprFirmNew sprklient sprklientnew sprPost sprpostnew", u"directories.htm#parties"},
    {u"loadtable", u"loadtable.htm"},
    {u"sprSklad", u"directories.htm#warehouses"},
    {u"currenc", u"directories.htm#currency"},
    {u"Price prChange", u"price.htm"},
    {u"pricePrint", u"priceprint.htm"},
    {u"TovPrih TovUhod PrihNew UhodNew TovPrih_Ass TovUhod_Ass copydoc", u"documents.htm"},
    {u"vnutr vnutrNew vnutr_Ass", u"documents.htm#transfer"},
    {u"price2 colvo change", u"documents.htm#lines"},
    {u"Sklad", u"stock.htm"},
    {u"ost", u"ost.htm"},
    {u"history", u"history.htm"},
    {u"order", u"order.htm"},
    {u"PrihNakl prihnokl vnNakl", u"print.htm#waybill"},
    {u"PrihPrint", u"print.htm#order"},
    {u"chFactPrint UhodSch", u"uhodchfakt.htm"},
    {u"otlist otdocs", u"otlist.htm"},
    {u"otppr", u"vnot1.htm"},
    {u"otrpt", u"vnot2.htm"},
    {u"otgr graphic waitplease", u"vnot3.htm"},
    {u"otspeed", u"vnot4.htm"},
    {u"otpruh", u"vnot5.htm"},
    {u"otklient", u"vnot6.htm"},
    {u"otpost", u"vnot7.htm"},
    {u"otval", u"vnot8.htm"},
    {u"otabc", u"vnot9.htm"},
};

}  // namespace

QStringView HelpPageOf(QStringView window) {
  static const auto pages = [] {
    QHash<QStringView, QStringView> found;
    for (const HelpRow& row : kRows) {
      for (const QStringView name : row.windows.split(u' ')) found.insert(name, row.page);
    }
    return found;
  }();
  return pages.value(window);
}

QStringView HelpPageFor(const QWidget* widget) {
  for (; widget != nullptr; widget = widget->parentWidget()) {
    // A control may bear the name of some window.
    if (!widget->isWindow() && widget->windowTitle().isEmpty()) continue;
    const QStringView page = HelpPageOf(widget->objectName());
    if (!page.isEmpty()) return page;
  }
  return kHelpIndex;
}

}  // namespace kladez
