#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QStringList>
#include <QTest>
#include <string>

#include "ScriptedDialogs.h"

namespace fs::ui::testing_support {

inline std::string ReadBytes(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return "<no file>";
    return file.readAll().toStdString();
}

inline void WriteBytes(const QString& path, const std::string& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    file.write(bytes.data(), static_cast<qint64>(bytes.size()));
}

// Types `text` into `widget` one character a key press, characters beyond
// the keyboard's ASCII included.
inline void TypeText(QWidget* widget, const QString& text) {
    for (qsizetype i = 0; i < text.size(); ++i) {
        const qsizetype length = text.at(i).isHighSurrogate() && i + 1 < text.size() ? 2 : 1;
        QTest::sendKeyEvent(QTest::Click, widget, Qt::Key_unknown, text.mid(i, length), Qt::NoModifier);
        i += length - 1;
    }
}

// Every question asked, one line each: "message <title> [<icon>]: <text>",
// "open <title>" or "save <title>".
inline QStringList Asked(const ScriptedDialogs& dialogs) {
    static const char* const kIcons[] = {"none", "stop", "question", "warning", "info"};
    QStringList out;
    for (const DialogCall& call : dialogs.Calls()) {
        if (call.kind == DialogCall::Kind::Message) {
            out << QStringLiteral("message %1 [%2]: %3")
                       .arg(call.title, QString::fromLatin1(kIcons[static_cast<int>(call.icon)]), call.text);
        } else if (call.kind == DialogCall::Kind::ShowOpen || call.kind == DialogCall::Kind::ShowSave) {
            out << (call.kind == DialogCall::Kind::ShowOpen ? QStringLiteral("open ")
                                                            : QStringLiteral("save ")) +
                       call.title;
        }
    }
    return out;
}

}  // namespace fs::ui::testing_support
