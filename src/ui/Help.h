// The user guide (the folder help/), its topic pages and the product's pages, shown by the
// desktop's own browser; where it has none, the viewer of print-outs shows the guide. Where nothing
// does, a message says so.
#pragma once

#include <QString>
#include <functional>

#include "books/store/DataDir.h"

class QObject;
class QPushButton;
class QUrl;
class QWidget;

namespace kladez {

inline constexpr QStringView kHelpFile = u"kladez.chm";
inline constexpr QStringView kHelpIndex = u"index.htm";
inline constexpr QStringView kProductAddress = u"https://kladez.example/";
inline constexpr QStringView kNewsAddress = u"https://kladez.example/news/";
inline constexpr QStringView kProductMail = u"mailto:info@kladez.example";

// A page of the folder "help", such as "workdb.htm" or "documents.htm#lines": beside the Databases,
// else as it came with the program.
void OpenHelpPage(QWidget* parent, const DataDir& data, QStringView page);
// From now on, and as long as `owner` lives, the help key opens the page of the window that has the
// keyboard (HelpPages.h), the help file where that is the first one.
void FollowHelpKey(QObject* owner, const DataDir& data);
// The command "Справка" of a screen that has a page. `name` is the control's name.
QPushButton* NewHelpCommand(QWidget* screen, const DataDir& data, QStringView name = u"help");
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
