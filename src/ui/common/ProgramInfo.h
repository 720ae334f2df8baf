#pragma once

#include <QString>
#include <string>

#include "script/ScriptText.h"
#include "ui/common/TextConv.h"

// What the information windows tell about the program: its title, version and
// where its author can be found. Each value stands here once and is used both
// where it is shown and where it is copied.
namespace flickerscribe::ui::info {

inline const QString kProgramTitle = QStringLiteral("Flickerscribe");

// The version of this build, "major.minor.patch": the About window shows it,
// and the program gives it to Qt as the application's version.
inline std::string programVersion() {
    return std::to_string(FS_VERSION_MAJOR) + "." + std::to_string(FS_VERSION_MINOR) + "." +
           std::to_string(FS_VERSION_PATCH);
}

inline const QString kWebSite = QStringLiteral("http://www.qzt-clan.example/flickerscribe");
inline const QString kForums = QStringLiteral("http://www.qzt-clan.example/flickerscribe/forums/index.php");
inline const QString kClanWebSite = QStringLiteral("http://www.qzt-clan.example/clanqzt");
// The same address as in the banner of every generated script.
inline const QString kEmail = toQString(kContactAddress);
inline const QString kChatNumber = QStringLiteral("123456789");

}  // namespace flickerscribe::ui::info
