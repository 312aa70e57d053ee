// The user guide (the folder help/), its topic pages and the product's pages, shown by the
// desktop's own browser; where it has none, the viewer of print-outs shows the guide. Where nothing
// does, a message says so.
#pragma once

#include <QString>
#include <functional>

#include "books/store/DataDir.h"

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
// The help key opens the page while the keyboard is in the window; for one without the command
// below.
void SetHelpPage(QWidget* window, const DataDir& data, QStringView page);
// The command "Справка" of a screen that has a page; the help key gives it too, while the keyboard
// is in the screen. `name` is the control's name.
QPushButton* NewHelpCommand(QWidget* screen, const DataDir& data, QStringView page,
                            QStringView name = u"help");
// The help file beside the Databases, else the first page of the guide.
void OpenHelpFile(QWidget* parent, const DataDir& data);
void OpenAddress(QWidget* parent, QStringView address);

// Hands an address to the desktop, and runs `otherwise` when that can't show it; a test puts its
// own in its place.
using AddressOpener =
    std::function<void(const QUrl& address, const std::function<void()>& otherwise)>;
void SetAddressOpener(AddressOpener opener);
// The same for the viewer, which gives false when it is not there.
using GuideViewer = std::function<bool(const DataDir& data, const QString& page)>;
void SetGuideViewer(GuideViewer viewer);

}  // namespace kladez
