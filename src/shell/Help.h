// The user guide (the folder help/), its topic pages and the product's pages, shown by the
// desktop's own browser. Where one is missing, a message says so.
#pragma once

#include <QString>
#include <functional>

#include "store/DataDir.h"

class QPushButton;
class QUrl;
class QWidget;

namespace kladez {

inline constexpr QStringView kHelpFile = u"kladez.chm";
inline constexpr QStringView kHelpIndex = u"index.htm";
inline constexpr QStringView kProductAddress = u"https://kladez.example/";
inline constexpr QStringView kNewsAddress = u"https://kladez.example/news/";
inline constexpr QStringView kProductMail = u"mailto:info@kladez.example";

// A page of the folder "help", such as "workdb.htm": beside the Databases, else as it came with the
// program.
void OpenHelpPage(QWidget* parent, const DataDir& data, QStringView page);
// The command "Справка" of a screen that has a page; the help key gives it too, while the keyboard
// is in the screen. `name` is the control's name.
QPushButton* NewHelpCommand(QWidget* screen, const DataDir& data, QStringView page,
                            QStringView name = u"help");
// The help file beside the Databases, else the first page of the guide.
void OpenHelpFile(QWidget* parent, const DataDir& data);
void OpenAddress(QWidget* parent, QStringView address);

// Hands an address to the desktop; a test puts its own in its place.
void SetAddressOpener(std::function<bool(const QUrl& address)> opener);

}  // namespace kladez
