#pragma once

#include <string>

// The settings key in the Windows registry, without Qt: the single key named
// "Software/Flickerscribe" directly under HKEY_CURRENT_USER (the slash is part
// of the key's name, not a path separator), every value a REG_SZ string.
// Windows only; RegistryStore wraps it for the program.
namespace flickerscribe::settings::win32 {

inline constexpr wchar_t kSettingsKey[] = L"Software/Flickerscribe";

// The value's text up to its first zero character, or `defaultValue` when the
// key or the value is missing, can't be read, or isn't of type REG_SZ.
// Reading never creates the key. `keyName` is a key under HKEY_CURRENT_USER.
std::wstring readRegistryString(const std::wstring& valueName, const std::wstring& defaultValue,
                                const std::wstring& keyName = kSettingsKey);

// Creates the key if needed and stores the text's characters without a
// terminating zero; an empty text stores an empty value. Failures are silent.
void writeRegistryString(const std::wstring& valueName, const std::wstring& value,
                         const std::wstring& keyName = kSettingsKey);

}  // namespace flickerscribe::settings::win32
