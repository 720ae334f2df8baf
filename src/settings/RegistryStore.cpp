#include "settings/RegistryStore.h"

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace fs::settings {

namespace {

constexpr wchar_t kKeyName[] = L"Software/Flickerscribe";

std::wstring Wide(const QString& text) {
    return text.toStdWString();
}

}  // namespace

QString RegistryStore::ReadRegistryString(const QString& valueName, const QString& defaultValue) const {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, kKeyName, 0, KEY_QUERY_VALUE, &key) != ERROR_SUCCESS)
        return defaultValue;
    QString result = defaultValue;
    const std::wstring name = Wide(valueName);
    DWORD type = 0;
    DWORD size = 0;
    if (RegQueryValueExW(key, name.c_str(), nullptr, &type, nullptr, &size) == ERROR_SUCCESS &&
        type == REG_SZ) {
        // One spare character, so that an odd byte count still fits.
        std::vector<wchar_t> buffer(size / sizeof(wchar_t) + 1, L'\0');
        DWORD got = static_cast<DWORD>(buffer.size() * sizeof(wchar_t));
        if (RegQueryValueExW(key, name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(buffer.data()),
                             &got) == ERROR_SUCCESS &&
            type == REG_SZ) {
            std::wstring_view text(buffer.data(), got / sizeof(wchar_t));
            // Stored with or without a terminating zero, the text ends at the
            // first zero.
            if (const auto zero = text.find(L'\0'); zero != std::wstring_view::npos)
                text = text.substr(0, zero);
            result = QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size()));
        }
    }
    RegCloseKey(key);
    return result;
}

void RegistryStore::WriteRegistryString(const QString& valueName, const QString& value) {
    HKEY key = nullptr;
    if (RegCreateKeyExW(HKEY_CURRENT_USER, kKeyName, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_SET_VALUE,
                        nullptr, &key, nullptr) != ERROR_SUCCESS)
        return;
    const std::wstring name = Wide(valueName);
    const std::wstring text = Wide(value);
    // The characters only, without a terminating zero; an empty text stays an
    // empty value.
    RegSetValueExW(key, name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                   static_cast<DWORD>(text.size() * sizeof(wchar_t)));
    RegCloseKey(key);
}

}  // namespace fs::settings
