// What a page is called where its title alone would not tell it from others of its kind.
#pragma once

#include <QString>

#include "viewer/page/Page.h"

namespace kladez::viewer {

// Kind, number, date and the party that a document goes to, as the page says them: "Накладная N 128
// от 05.03.2026, ООО Ромашка". The title of a page that is no such document.
QString NameOf(const Page& page);

}  // namespace kladez::viewer
