#include "platform/user_settings.h"

#include <QSettings>
#include <QString>

namespace ng {
namespace {

QString StoreKey(const std::string& section, const std::string& key) {
  return QString::fromStdString(section + "/" + key);
}

}  // namespace

int NativeUserSettings::Get(const std::string& section, const std::string& key, int defaultValue) {
  bool number = false;
  const QSettings store(QStringLiteral("NGtracker"), QStringLiteral("NGtracker"));
  const int value = store.value(StoreKey(section, key)).toInt(&number);
  return number ? value : defaultValue;
}

void NativeUserSettings::Save(const std::string& section, const std::string& key, int value) {
  QSettings store(QStringLiteral("NGtracker"), QStringLiteral("NGtracker"));
  store.setValue(StoreKey(section, key), value);
}

}  // namespace ng
