// All screens of the program.
#pragma once

#include <QString>
#include <set>

namespace kladez {

// The walk must come by each, and each that writes has a golden case.
inline const std::set<QString> kScreens = {
    QStringLiteral("Bases"),       QStringLiteral("BasesImport"),  QStringLiteral("BasesNew"),
    QStringLiteral("Import"),      QStringLiteral("Main"),         QStringLiteral("Price"),
    QStringLiteral("PrihNakl"),    QStringLiteral("PrihNew"),      QStringLiteral("PrihPrint"),
    QStringLiteral("Sklad"),       QStringLiteral("TovPrih"),      QStringLiteral("TovPrih_Ass"),
    QStringLiteral("TovUhod"),     QStringLiteral("TovUhod_Ass"),  QStringLiteral("UhodNew"),
    QStringLiteral("UhodSch"),     QStringLiteral("about"),        QStringLiteral("chFactPrint"),
    QStringLiteral("change"),      QStringLiteral("check"),        QStringLiteral("checkplace"),
    QStringLiteral("copydoc"),     QStringLiteral("copylook"),     QStringLiteral("copyoptions"),
    QStringLiteral("timemachine"), QStringLiteral("colvo"),        QStringLiteral("currenc"),
    QStringLiteral("frmSplash"),   QStringLiteral("graphic"),      QStringLiteral("helper"),
    QStringLiteral("history"),     QStringLiteral("main2"),        QStringLiteral("order"),
    QStringLiteral("ost"),         QStringLiteral("otgr"),         QStringLiteral("otabc"),
    QStringLiteral("otdocs"),      QStringLiteral("otklient"),     QStringLiteral("otlist"),
    QStringLiteral("otpost"),      QStringLiteral("otval"),        QStringLiteral("otppr"),
    QStringLiteral("otpruh"),      QStringLiteral("otrpt"),        QStringLiteral("otspeed"),
    QStringLiteral("prChange"),    QStringLiteral("price2"),       QStringLiteral("pricePrint"),
    QStringLiteral("prihnokl"),    QStringLiteral("rescopy"),      QStringLiteral("resrep"),
    QStringLiteral("sprFirm"),     QStringLiteral("sprFirmNew"),   QStringLiteral("sprPost"),
    QStringLiteral("sprSklad"),    QStringLiteral("sprTovNew"),    QStringLiteral("sprTovar"),
    QStringLiteral("sprklient"),   QStringLiteral("sprklientnew"), QStringLiteral("sprpostnew"),
    QStringLiteral("sprtovar2"),   QStringLiteral("vnNakl"),       QStringLiteral("vnutr"),
    QStringLiteral("vnutrNew"),    QStringLiteral("vnutr_Ass"),    QStringLiteral("waitplease"),
    QStringLiteral("loadtable")};

}  // namespace kladez
