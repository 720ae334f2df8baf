#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include "settings/SettingsStore.h"

namespace flickerscribe::settings {

// A settings store in memory: empty (a first run), telling the names written.
class MemorySettingsStore : public SettingsStore {
public:
    QString readValue(const QString& valueName, const QString& defaultValue = {}) const override {
        const auto it = values_.constFind(valueName);
        return it == values_.constEnd() ? defaultValue : *it;
    }

    void writeValue(const QString& valueName, const QString& value) override {
        values_.insert(valueName, value);
        writes_.append(valueName);
    }

    const QMap<QString, QString>& Values() const { return values_; }
    const QStringList& Writes() const { return writes_; }

private:
    QMap<QString, QString> values_;
    QStringList writes_;
};

}  // namespace flickerscribe::settings
