#pragma once

#include <QString>
#include <string>
#include <string_view>

// The one place where the core's Windows-1252 text meets Qt's Unicode text.
namespace flickerscribe::ui {

QString toQString(std::string_view cp1252);
// A character that has no Windows-1252 form becomes '?'.
std::string fromQString(const QString& text);

}  // namespace flickerscribe::ui
