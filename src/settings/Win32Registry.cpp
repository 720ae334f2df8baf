#include "settings/Win32Registry.h"

#include <windows.h>

#include <string_view>
#include <vector>

namespace flickerscribe::settings::win32 {

namespace {

// Closes the key on every way out.
class OpenKey {
public:
    OpenKey() = default;
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;
    ~OpenKey() {
        if (key_ != nullptr) RegCloseKey(key_);
    }
    HKEY* out() { return &key_; }
    HKEY get() const { return key_; }

private:
    HKEY key_ = nullptr;
};

}  // namespace

std::wstring readRegistryString(const std::wstring& valueName, const std::wstring& defaultValue,
                                const std::wstring& keyName) {
    // Opening, unlike creating, leaves a missing key missing.
    OpenKey key;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, keyName.c_str(), 0, KEY_QUERY_VALUE, key.out()) != ERROR_SUCCESS)
        return defaultValue;

    DWORD type = 0;
    DWORD size = 0;
    if (RegQueryValueExW(key.get(), valueName.c_str(), nullptr, &type, nullptr, &size) != ERROR_SUCCESS ||
        type != REG_SZ)
        return defaultValue;

    // One spare character, so that an odd byte count still fits.
    std::vector<wchar_t> buffer(size / sizeof(wchar_t) + 1, L'\0');
    DWORD got = static_cast<DWORD>(buffer.size() * sizeof(wchar_t));
    if (RegQueryValueExW(key.get(), valueName.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(buffer.data()),
                         &got) != ERROR_SUCCESS ||
        type != REG_SZ)
        return defaultValue;

    // Stored with a terminating zero, as other tools write it, or without, as
    // we do: either way the text ends at the first zero.
    std::wstring_view text(buffer.data(), got / sizeof(wchar_t));
    if (const auto zero = text.find(L'\0'); zero != std::wstring_view::npos) text = text.substr(0, zero);
    return std::wstring(text);
}

void writeRegistryString(const std::wstring& valueName, const std::wstring& value,
                         const std::wstring& keyName) {
    OpenKey key;
    if (RegCreateKeyExW(HKEY_CURRENT_USER, keyName.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                        KEY_SET_VALUE, nullptr, key.out(), nullptr) != ERROR_SUCCESS)
        return;
    // The characters only, without a terminating zero.
    RegSetValueExW(key.get(), valueName.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()),
                   static_cast<DWORD>(value.size() * sizeof(wchar_t)));
}

}  // namespace flickerscribe::settings::win32
