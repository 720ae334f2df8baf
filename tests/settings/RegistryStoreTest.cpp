// The registry store on Windows, against the real registry: the user's own key
// is set aside for the test and put back as it was afterwards.
#include <gmock/gmock.h>

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <string>
#include <vector>

#include "settings/RegistryStore.h"
#include "settings/UserSettingsStore.h"
#include "settings/Win32Registry.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::settings {
namespace {

bool KeyExists() {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, win32::kSettingsKey, 0, KEY_READ, &key) != ERROR_SUCCESS) return false;
    RegCloseKey(key);
    return true;
}

// Values of any type, stored as raw bytes; the fixture keeps the user's own.
struct RawValue {
    std::wstring name;
    DWORD type;
    std::vector<BYTE> data;
};

HKEY CreateKey() {
    HKEY key = nullptr;
    RegCreateKeyExW(HKEY_CURRENT_USER, win32::kSettingsKey, 0, nullptr, 0, KEY_SET_VALUE, nullptr, &key, nullptr);
    return key;
}

void SetRaw(const RawValue& v) {
    const HKEY key = CreateKey();
    ASSERT_NE(key, nullptr);
    RegSetValueExW(key, v.name.c_str(), 0, v.type, v.data.data(), static_cast<DWORD>(v.data.size()));
    RegCloseKey(key);
}

RawValue Text(const std::wstring& name, const std::wstring& text, bool withZero) {
    const auto* bytes = reinterpret_cast<const BYTE*>(text.c_str());
    return {name, REG_SZ, std::vector<BYTE>(bytes, bytes + (text.size() + withZero) * sizeof(wchar_t))};
}

class RegistryStoreTest : public testing::Test {
protected:
    void SetUp() override {
        HKEY key = nullptr;
        if (RegOpenKeyExW(HKEY_CURRENT_USER, win32::kSettingsKey, 0, KEY_READ, &key) == ERROR_SUCCESS) {
            hadKey_ = true;
            wchar_t name[16384];
            BYTE data[65536];
            for (DWORD i = 0;; ++i) {
                DWORD nameSize = 16384, dataSize = sizeof data, type = 0;
                if (RegEnumValueW(key, i, name, &nameSize, nullptr, &type, data, &dataSize) != ERROR_SUCCESS)
                    break;
                saved_.push_back({std::wstring(name, nameSize), type, std::vector<BYTE>(data, data + dataSize)});
            }
            RegCloseKey(key);
        }
        RegDeleteKeyW(HKEY_CURRENT_USER, win32::kSettingsKey);
    }
    void TearDown() override {
        RegDeleteKeyW(HKEY_CURRENT_USER, win32::kSettingsKey);
        if (hadKey_) RegCloseKey(CreateKey());  // the key itself, even when it held nothing
        for (const RawValue& v : saved_) SetRaw(v);
    }

private:
    bool hadKey_ = false;
    std::vector<RawValue> saved_;
};

// Written values come back exactly, in a later store too; the store of the
// program on Windows is this one.
TEST_F(RegistryStoreTest, KeepsEveryTextExactly) {
    EXPECT_NE(dynamic_cast<RegistryStore*>(OpenUserSettingsStore().get()), nullptr);
    const QString values[] = {QString(), u"  two  blanks  "_s, u"C:\\Users\\Zo\u00eb\\Games\\"_s,
                              u"a=b;c"_s, u"Zo\u00eb \u20ac\t%20"_s, QString(2000, u'x')};
    for (const QString& value : values) {
        RegistryStore().WriteValue(u"Name"_s, value);
        RegistryStore().WriteValue(u"Other"_s, u"x"_s);
        EXPECT_EQ(RegistryStore().ReadValue(u"Name"_s, u"default"_s), value) << value.toStdString();
    }
}

// A missing key or value gives the default, and reading creates nothing.
TEST_F(RegistryStoreTest, AMissingKeyGivesTheDefaultAndStaysMissing) {
    const RegistryStore store;
    EXPECT_EQ(store.ReadValue(u"OpenDir"_s, u"fallback"_s), u"fallback"_s);
    const Settings settings = LoadSettings(store);
    EXPECT_TRUE(settings.name.isEmpty() && !settings.reverse && !settings.editInPlace);
    EXPECT_FALSE(KeyExists());
    RegistryStore().WriteValue(u"Name"_s, u"Quillon"_s);
    EXPECT_TRUE(KeyExists());
    EXPECT_EQ(store.ReadValue(u"Clantag"_s, u"fallback"_s), u"fallback"_s);
}

// What other tools leave in the key: a text with or without its terminating
// zero, flags that aren't exactly "1", a value of another type.
TEST_F(RegistryStoreTest, ReadsWhatOtherToolsWrote) {
    const DWORD one = 1;
    const struct {
        RawValue value;
        QString read;  // as the store reads it, with the default "default"
        bool flag;     // as LoadSettings takes it for Reverse
    } cases[] = {
        {Text(L"Reverse", L"1", true), u"1"_s, true},
        {Text(L"Reverse", L"1", false), u"1"_s, true},
        {Text(L"Reverse", L"0", true), u"0"_s, false},
        {Text(L"Reverse", L"true", true), u"true"_s, false},
        {Text(L"Reverse", L" 1", true), u" 1"_s, false},
        {Text(L"Reverse", L"", false), QString(), false},
        {Text(L"Reverse", std::wstring(L"1\0x", 3), false), u"1"_s, true},
        {{L"Reverse", REG_DWORD, std::vector<BYTE>(reinterpret_cast<const BYTE*>(&one),
                                                   reinterpret_cast<const BYTE*>(&one) + sizeof one)},
         u"default"_s,
         false},
    };
    for (const auto& c : cases) {
        SetRaw(c.value);
        const RegistryStore store;
        EXPECT_EQ(store.ReadValue(u"Reverse"_s, u"default"_s), c.read) << c.read.toStdString();
        EXPECT_EQ(LoadSettings(store).reverse, c.flag) << c.read.toStdString();
    }
}

}  // namespace
}  // namespace flickerscribe::settings
