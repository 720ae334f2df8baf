#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QStringList>
#include <string>

#include "ScriptedDialogs.h"

namespace flickerscribe::ui::testing_support {

inline std::string ReadBytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "<no file>";
}

inline void WriteBytes(const QString& path, const std::string& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes.data(), qint64(bytes.size())) >= 0);
}

// Each question, one line: "message <title> [<icon>]: <text>" or "open|save <title>".
inline QStringList Asked(const ScriptedDialogs& dialogs) {
    static const char* const kIcons[] = {"none", "stop", "question", "warning", "info"};
    QStringList out;
    for (const DialogCall& c : dialogs.Calls()) {
        if (c.kind == DialogCall::Kind::Message)
            out << QStringLiteral("message %1 [%2]: %3")
                       .arg(c.title, QLatin1String(kIcons[int(c.icon)]), c.text);
        else if (c.kind == DialogCall::Kind::ShowOpen || c.kind == DialogCall::Kind::ShowSave)
            out << (c.kind == DialogCall::Kind::ShowOpen ? QStringLiteral("open ")
                                                         : QStringLiteral("save ")) +
                       c.title;
    }
    return out;
}

}  // namespace flickerscribe::ui::testing_support
