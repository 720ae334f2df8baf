#include "settings/QSettingsStore.h"

#include <QSettings>
#include <QStandardPaths>
#include <QStringList>
#include <QVariant>

namespace flickerscribe::settings {

QSettingsStore::QSettingsStore()
    : QSettingsStore(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                     QStringLiteral("/Flickerscribe/Flickerscribe.conf")) {}

QSettingsStore::QSettingsStore(QString filePath) : filePath_(std::move(filePath)) {}

QString QSettingsStore::readValue(const QString& valueName, const QString& defaultValue) const {
    // Opening for reading neither creates the file nor its folder.
    const QSettings file(filePath_, QSettings::IniFormat);
    const QVariant value = file.value(valueName);
    if (!value.isValid()) return defaultValue;
    switch (value.typeId()) {
        case QMetaType::QString:
            return value.toString();
        case QMetaType::QStringList:
            // A hand-edited line with a bare comma reads as a list; it was text.
            return value.toStringList().join(QLatin1Char(','));
        default:
            // Anything that isn't text is no value of ours.
            return defaultValue;
    }
}

void QSettingsStore::writeValue(const QString& valueName, const QString& value) {
    QSettings file(filePath_, QSettings::IniFormat);
    file.setValue(valueName, value);
    file.sync();
}

}  // namespace flickerscribe::settings
