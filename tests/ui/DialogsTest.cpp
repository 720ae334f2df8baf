#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>

#include <QAbstractButton>
#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include "ScriptedDialogs.h"
#include "ui/QtDialogs.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui {
namespace {

// --- the filter text of the file dialogs

struct FilterCase {
    const char* name;
    QString filter;
    QStringList expected;
    friend void PrintTo(const FilterCase& c, std::ostream* os) { *os << c.name; }
};

class NameFilters : public testing::TestWithParam<FilterCase> {};

TEST_P(NameFilters, BecomeQtFilters) {
    EXPECT_EQ(QtNameFilters(GetParam().filter), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, NameFilters,
    testing::Values(FilterCase{"OnePair",
                               u"Brennock Animation Script (*.fsq)|*.fsq"_s,
                               {u"Brennock Animation Script (*.fsq)"_s}},
                    FilterCase{"TwoPairs",
                               u"Scripts (*.cfg)|*.cfg|All files (*.*)|*.*"_s,
                               {u"Scripts (*.cfg)"_s, u"All files (*.*)"_s}},
                    FilterCase{"PatternsNotInDescription", u"Scripts|*.cfg"_s, {u"Scripts (*.cfg)"_s}},
                    FilterCase{"SeveralPatterns", u"Text|*.txt;*.cfg"_s, {u"Text (*.txt *.cfg)"_s}},
                    FilterCase{"Empty", QString(), {}},
                    FilterCase{"DescriptionWithoutPattern", u"Lonely"_s, {}}),
    testing::PrintToStringParamName());

// --- the real message box, answered by pressing its buttons

struct MessageCase {
    const char* name;
    MsgButtons buttons;
    QMessageBox::StandardButton press;  // NoButton: the box is closed with Escape
    MsgAnswer expected;
    friend void PrintTo(const MessageCase& c, std::ostream* os) { *os << c.name; }
};

class QtMessage : public testing::TestWithParam<MessageCase> {};

TEST_P(QtMessage, GivesTheAnswerOfThePressedButton) {
    const MessageCase& c = GetParam();
    QtDialogs dialogs;
    QString seenTitle;
    QMessageBox::Icon seenIcon = QMessageBox::NoIcon;
    QTimer::singleShot(0, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        seenTitle = box->windowTitle();
        seenIcon = box->icon();
        if (c.press == QMessageBox::NoButton)
            QTest::keyClick(box, Qt::Key_Escape);
        else
            box->button(c.press)->click();
    });
    const MsgAnswer answer = dialogs.Message(nullptr, u"Text"_s, QString(), MsgIcon::Exclamation, c.buttons);
    EXPECT_EQ(answer, c.expected);
    EXPECT_EQ(seenTitle, QApplication::applicationName()) << "an empty title is the program's name";
    EXPECT_EQ(seenIcon, QMessageBox::Warning);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, QtMessage,
    testing::Values(
        MessageCase{"Ok", MsgButtons::Ok, QMessageBox::Ok, MsgAnswer::Ok},
        MessageCase{"OkEscape", MsgButtons::Ok, QMessageBox::NoButton, MsgAnswer::Ok},
        MessageCase{"OkCancelOk", MsgButtons::OkCancel, QMessageBox::Ok, MsgAnswer::Ok},
        MessageCase{"OkCancelCancel", MsgButtons::OkCancel, QMessageBox::Cancel, MsgAnswer::Cancel},
        MessageCase{"OkCancelEscape", MsgButtons::OkCancel, QMessageBox::NoButton, MsgAnswer::Cancel},
        MessageCase{"YesNoYes", MsgButtons::YesNo, QMessageBox::Yes, MsgAnswer::Yes},
        MessageCase{"YesNoEscape", MsgButtons::YesNo, QMessageBox::NoButton, MsgAnswer::No},
        MessageCase{"YesNoCancelNo", MsgButtons::YesNoCancel, QMessageBox::No, MsgAnswer::No},
        MessageCase{"YesNoCancelEscape", MsgButtons::YesNoCancel, QMessageBox::NoButton, MsgAnswer::Cancel}),
    testing::PrintToStringParamName());

TEST(QtInputBox, GivesTheTextOrNothingOnCancel) {
    QtDialogs dialogs;
    QTimer::singleShot(0, [] {
        auto* box = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->textValue(), u"5"_s);
        box->setTextValue(u"12"_s);
        box->accept();
    });
    EXPECT_EQ(dialogs.InputBox(nullptr, u"How many?"_s, u"Copy"_s, u"5"_s), std::optional<QString>(u"12"_s));

    QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
    EXPECT_EQ(dialogs.InputBox(nullptr, u"How many?"_s, u"Copy"_s, u"5"_s), std::nullopt);
}

// --- the scripted dialogs: a question no test expected must not pass unseen

TEST(ScriptedDialogs, AnUnexpectedQuestionFailsAndIsRefused) {
    ScriptedDialogs dialogs;
    MsgAnswer answer = MsgAnswer::Ok;
    EXPECT_NONFATAL_FAILURE(
        answer = dialogs.Message(nullptr, u"Overwrite?"_s, QString(), MsgIcon::Question, MsgButtons::YesNo),
        "unexpected message");
    EXPECT_EQ(answer, MsgAnswer::No);
    EXPECT_NONFATAL_FAILURE(
        answer = dialogs.Message(nullptr, u"Go?"_s, QString(), MsgIcon::Question, MsgButtons::YesNoCancel),
        "unexpected message");
    EXPECT_EQ(answer, MsgAnswer::Cancel);
    FileDialogState state;
    bool ok = true;
    EXPECT_NONFATAL_FAILURE(ok = dialogs.ShowSave(nullptr, state), "unexpected save dialog");
    EXPECT_FALSE(ok);
    QString folder = u"x"_s;
    EXPECT_NONFATAL_FAILURE(folder = dialogs.BrowseForFolder(nullptr, u"Pick"_s),
                            "unexpected folder browser");
    EXPECT_TRUE(folder.isEmpty());
    dialogs.QueueMessageAnswer(MsgAnswer::Yes);
    EXPECT_NONFATAL_FAILURE(
        answer = dialogs.Message(nullptr, u"Sure?"_s, QString(), MsgIcon::Question, MsgButtons::OkCancel),
        "no button of the message");
    EXPECT_EQ(answer, MsgAnswer::Cancel);
}

TEST(ScriptedDialogs, OnCallRunsWhileTheQuestionStands) {
    ScriptedDialogs dialogs;
    dialogs.QueueMessageAnswer(MsgAnswer::Ok);
    int seen = 0;
    dialogs.onCall = [&](const DialogCall& call) {
        ++seen;
        EXPECT_EQ(call.text, u"Now"_s);
    };
    dialogs.Message(nullptr, u"Now"_s, QString(), MsgIcon::None, MsgButtons::OkCancel);
    EXPECT_EQ(seen, 1);
}

}  // namespace
}  // namespace flickerscribe::ui
