// A field of a printed form that is no number where the form needs one. The screens turn it into
// "Ошибка ввода" at their load; a print command that meets it stops before a page is written.
#pragma once

#include <QString>
#include <stdexcept>

namespace kladez {

class InputError : public std::runtime_error {
 public:
  // `text` is shown to the person as it is: which field, and what it may hold.
  explicit InputError(const QString& text) : std::runtime_error(text.toStdString()) {}
};

// The strict parse of a field; throws InputError. An empty field is no number.
double FieldNumber(QStringView text);
// The same for what a person types into a free field, where a comma is the point.
double TypedNumber(const QString& text);

}  // namespace kladez
