// Why the system refused to do something with a file, in Russian.
#pragma once

#include <QString>
#include <system_error>

namespace kladez {

// "нет доступа", "на диске нет места": a phrase in small letters without a full stop. A code that
// the table does not know gives the system's own words.
QString ReasonText(const std::error_code& code);

}  // namespace kladez
