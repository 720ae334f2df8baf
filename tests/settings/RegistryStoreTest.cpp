// The registry store against the real registry, in a key of the test's own.
#include <gmock/gmock.h>
#include <windows.h>

#include "settings/RegistryStore.h"
#include "settings/UserSettingsStore.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::settings {
namespace {

const wchar_t kKey[] = L"Software/Flickerscribe test";

class RegistryStoreTest : public testing::Test {
protected:
    void SetUp() override { RegDeleteKeyW(HKEY_CURRENT_USER, kKey); }
    void TearDown() override { RegDeleteKeyW(HKEY_CURRENT_USER, kKey); }
    RegistryStore Store() const { return RegistryStore(QString::fromWCharArray(kKey)); }
    // A value as another tool may have left it: any type, any bytes.
    void SetRaw(DWORD type, const void* data, DWORD size) {
        ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, kKey, L"Reverse", type, data, size), ERROR_SUCCESS);
    }
    bool KeyExists() const {
        HKEY key = nullptr;
        const bool exists = RegOpenKeyExW(HKEY_CURRENT_USER, kKey, 0, KEY_READ, &key) == ERROR_SUCCESS;
        if (exists) RegCloseKey(key);
        return exists;
    }
};

// Values come back exactly, in a later store too; it is the program's store.
TEST_F(RegistryStoreTest, KeepsEveryTextExactly) {
    EXPECT_NE(dynamic_cast<RegistryStore*>(openUserSettingsStore().get()), nullptr);
    for (const QString& value : {QString(), u"  two  blanks  "_s, u"C:\\Users\\Zo\u00eb\\"_s,
                                 u"\u20ac\t%20"_s, QString(2000, u'x')}) {
        Store().writeValue(u"Name"_s, value);
        Store().writeValue(u"Other"_s, u"x"_s);
        EXPECT_EQ(Store().readValue(u"Name"_s, u"default"_s), value) << value.size();
    }
}

// A missing key or value gives the default, and reading creates nothing.
TEST_F(RegistryStoreTest, AMissingKeyGivesTheDefaultAndStaysMissing) {
    EXPECT_EQ(Store().readValue(u"OpenDir"_s, u"fallback"_s), u"fallback"_s);
    EXPECT_FALSE(loadSettings(Store()).reverse);
    EXPECT_FALSE(KeyExists());
    Store().writeValue(u"Name"_s, u"Quillon"_s);
    EXPECT_EQ(Store().readValue(u"Clantag"_s, u"fallback"_s), u"fallback"_s);
}

// What other tools leave: a text with or without its terminating zero, flags
// that aren't exactly "1", a number instead of a text.
TEST_F(RegistryStoreTest, AFlagIsOnOnlyForTheText1) {
    const std::tuple<std::wstring, QString, bool> texts[] = {
        {std::wstring(L"1\0", 2), u"1"_s, true},
        {L"1", u"1"_s, true},
        {L"0", u"0"_s, false},
        {L"true", u"true"_s, false},
        {L" 1", u" 1"_s, false},
        {L"", QString(), false},
        {std::wstring(L"1\0x", 3), u"1"_s, true},
    };
    for (const auto& [bytes, read, flag] : texts) {
        SetRaw(REG_SZ, bytes.data(), static_cast<DWORD>(bytes.size() * sizeof(wchar_t)));
        EXPECT_EQ(Store().readValue(u"Reverse"_s, u"default"_s), read) << read.toStdString();
        EXPECT_EQ(loadSettings(Store()).reverse, flag) << read.toStdString();
    }
    const DWORD one = 1;
    SetRaw(REG_DWORD, &one, sizeof one);
    EXPECT_EQ(Store().readValue(u"Reverse"_s, u"default"_s), u"default"_s);
    EXPECT_FALSE(loadSettings(Store()).reverse);
}

}  // namespace
}  // namespace flickerscribe::settings
