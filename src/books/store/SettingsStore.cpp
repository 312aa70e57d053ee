#include "books/store/SettingsStore.h"

#include <QSettings>
#include <QStandardPaths>
#include <cmath>

#include "formats/Numbers.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

QString UserFile() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
         u"/kladez/settings.ini"_s;
}

QString KeyOf(const Setting& setting) {
  return setting.root.toString() + u'/' + setting.section.toString() + u'/' +
         setting.key.toString();
}

}  // namespace

SettingsStore::SettingsStore(const QString& file)
    : store_(
          std::make_unique<QSettings>(file.isEmpty() ? UserFile() : file, QSettings::IniFormat)) {}

SettingsStore::~SettingsStore() = default;

QString SettingsStore::Read(const Setting& setting) const {
  const QVariant value = store_->value(KeyOf(setting));
  // A file edited by hand may hold a list where a text belongs.
  const bool text = value.typeId() == QMetaType::QString;
  return text ? value.toString() : setting.otherwise.toString();
}

bool SettingsStore::ReadBool(const Setting& setting) const {
  const QString text = Read(setting);
  if (const auto number = ParseStrict(text)) return *number != 0;
  return text.compare("True"_L1, Qt::CaseInsensitive) == 0;
}

int SettingsStore::ReadInt(const Setting& setting) const {
  const double number = NumberOr(Read(setting), NumberOr(setting.otherwise));
  return std::fabs(number) < 1e9 ? static_cast<int>(std::lround(number)) : 0;
}

void SettingsStore::Write(const Setting& setting, const QString& text) {
  store_->setValue(KeyOf(setting), text);
  store_->sync();  // the program may end at once, without another chance
}

void SettingsStore::WriteBool(const Setting& setting, bool on) {
  Write(setting, on ? u"True"_s : u"False"_s);
}

}  // namespace kladez
