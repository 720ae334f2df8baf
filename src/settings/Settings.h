#pragma once

#include <QString>

namespace flickerscribe::settings {

// The user's settings as the program holds them in memory.
// The store's value names stand beside each field.
struct Settings {
    QString openFolder;        // OpenDir: where Open starts
    QString saveFolder;        // SaveDir: where Save As and the script's Save start
    QString name;              // Name: the wizard's player name
    QString clanTag;           // Clantag: the wizard's clan tag
    bool reverse = false;      // Reverse: the wizard puts the tag behind the name
    bool editInPlace = false;  // EditItem: a line's text can be edited in the list
};

}  // namespace flickerscribe::settings
