#pragma once

#include "settings/SettingsStore.h"

namespace flickerscribe::settings {

// The settings in a per-user text file, kept by QSettings: on Linux
// ~/.config/Flickerscribe/Flickerscribe.conf. Every value is text and comes
// back exactly as written.
class QSettingsStore : public SettingsStore {
public:
    // The user's own file in the platform's configuration folder.
    QSettingsStore();
    // Another file, for tests.
    explicit QSettingsStore(QString filePath);

    const QString& filePath() const { return filePath_; }

    QString readValue(const QString& valueName, const QString& defaultValue = {}) const override;
    void writeValue(const QString& valueName, const QString& value) override;

private:
    QString filePath_;
};

}  // namespace flickerscribe::settings
