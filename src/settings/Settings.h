#pragma once

#include <QString>

namespace flickerscribe::settings {

// The user's settings as the program holds them in memory.
struct Settings {
    QString OpenDir;
    QString SaveDir;
    QString Name;
    QString Clantag;
    bool Reverse = false;
    bool EditItem = false;
};

}  // namespace flickerscribe::settings
