#include <gmock/gmock.h>

#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>

#include "settings/QSettingsStore.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::settings {
namespace {

// Values come back exactly, later too; reading creates nothing; "" is a value.
TEST(QSettingsStore, KeepsEveryTextExactly) {
    QTemporaryDir dir;
    const QString path = dir.filePath(u"sub/Flickerscribe.conf"_s);
    const QString values[] = {
        QString(),        u"  two  blanks  "_s,     u"a=b;c"_s, u"#x, y,\"q\""_s, u"C:\\Games\\"_s,
        u"@Variant(x)"_s, u"Zo\u00eb \u20ac\t%20"_s};
    {
        const QSettingsStore store(path);
        EXPECT_EQ(store.readValue(u"Name"_s, u"fallback"_s), u"fallback"_s);
        (void)loadSettings(store);
        EXPECT_FALSE(QFileInfo::exists(dir.filePath(u"sub"_s))) << "reading creates nothing";
    }
    for (const QString& value : values) {
        QSettingsStore(path).writeValue(u"Name"_s, value);
        QSettingsStore(path).writeValue(u"Other"_s, u"x"_s);
        EXPECT_EQ(QSettingsStore(path).readValue(u"Name"_s, u"default"_s), value);
    }
    // A value of another kind, such as a number, is none of ours.
    QSettings(path, QSettings::IniFormat).setValue(u"Reverse"_s, 1);
    EXPECT_EQ(QSettingsStore(path).readValue(u"Reverse"_s, u"default"_s), u"default"_s);
}

}  // namespace
}  // namespace flickerscribe::settings
