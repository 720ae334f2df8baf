#pragma once

#include <gmock/gmock.h>

#include <QtTest>
#include <QtWidgets>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "MemorySettingsStore.h"
#include "ScriptedDialogs.h"
#include "colour/ColouredText.h"
#include "settings/SettingsStore.h"
#include "ui/dialogs/ColourNameEditor.h"
#include "ui/dialogs/EditTimeDialog.h"
#include "ui/dialogs/HelpDialog.h"
#include "ui/dialogs/OptionsDialog.h"
#include "ui/dialogs/SimpleEditWindow.h"
#include "ui/main/MainWindow.h"
#include "ui/widgets/LineListView.h"
#include "ui/widgets/RichPane.h"
#include "ui/wizard/WizardDialog.h"

// Failed checks show texts as text.
inline void PrintTo(const QString& text, std::ostream* os) {
    *os << '"' << text.toStdString() << '"';
}

namespace flickerscribe::ui::testing_support {

using namespace Qt::Literals::StringLiterals;

// Lines written "text/time", all with the action "[none]".
using TextTimes = std::vector<std::string>;
inline const TextTimes kABC = {"A/10", "B/20", "C/30"};

inline std::string ReadBytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "<no file>";
}

inline void WriteBytes(const QString& path, const std::string& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes.data(), qint64(bytes.size())) >= 0);
}

// Makes a file look written `seconds` ago.
inline void SetAge(const QString& path, int seconds) {
    QFile file(path);
    ASSERT_TRUE(
        file.open(QIODevice::ReadWrite) &&
        file.setFileTime(QDateTime::currentDateTime().addSecs(-seconds), QFileDevice::FileModificationTime));
}

// A fresh main window for each test, with scripted dialogs, an in-memory
// settings store and a folder of its own. Public, so that table rows can use it.
class MainWindowTest : public testing::Test {
public:
    void SetUp() override {
        ASSERT_TRUE(folder.isValid());
        MakeWindow();
    }

    // A new run: a new window over an empty animation, with the settings the
    // store has now.
    void MakeWindow() {
        window.reset();
        animation.ClearLines();
        window = std::make_unique<MainWindow>(animation, dialogs, store, keptFolder);
    }
    AnimationScript& script() { return animation; }

    // Puts the lines into the list, not as a command, and selects one.
    void Start(const TextTimes& lines, int selected = 1) {
        for (const std::string& line : lines) {
            const auto slash = line.find('/');
            ASSERT_TRUE(script().AppendLine(line.substr(0, slash), line.substr(slash + 1), "[none]"));
        }
        script().SelectLine(selected);
    }
    TextTimes Lines() {
        TextTimes out;
        for (const AnimationLine& line : script().Lines()) {
            EXPECT_EQ(line.Action, "[none]");
            out.push_back(line.Text + "/" + line.Time);
        }
        return out;
    }

    template <class T = QAction>
    T* named(const QString& name) const {
        T* found = window->findChild<T*>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return found;
    }
    void Trigger(const QString& name) { named(name)->trigger(); }

    QTextEdit* PaneEdit() const { return named<QTextEdit>(u"txtPreview"_s); }
    LineListView* List() const { return named<LineListView>(u"lvwMain"_s); }
    // The pane's text and colours, as a line's text would hold them.
    RichPane MainPane() const { return RichPane(PaneEdit()); }
    std::string PaneText() const { return MainPane().Text(); }
    std::vector<ColouredRun> PaneRuns() const { return MainPane().Runs(); }
    // A click on the line with this 1-based index.
    void ClickLine(int line) {
        QTest::mouseClick(List()->viewport(), Qt::LeftButton, {},
                          List()->visualRect(List()->model()->index(line - 1, 0)).center());
    }

    // The timer's time is up: the next frame of playback ("timAni"), or
    // keeping the animation ("timKeep").
    void Tick(const QString& timer = u"timAni"_s) {
        ASSERT_TRUE(QMetaObject::invokeMethod(named<QTimer>(timer), "timeout"));
    }
    bool Playing() const { return named<QTimer>(u"timAni"_s)->isActive(); }
    // Options, OK: the window reads the settings store again.
    void ReloadSettings() {
        QTimer::singleShot(0, window.get(), [] {
            QApplication::activeModalWidget()->findChild<QPushButton*>(u"cmdOK"_s)->click();
        });
        Trigger(u"mnuEditOptions"_s);
    }

    // The window on screen and active, so that its shortcuts work.
    void Show() {
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    // A key pressed in the list.
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(List(), key, modifiers); }
    QString PathOf(const QString& name) const { return folder.filePath(name); }

    QTemporaryDir folder;
    ScriptedDialogs dialogs;
    settings::MemorySettingsStore store;
    // The files in keptFolder, newest first.
    QStringList KeptFiles() const {
        QStringList paths;
        for (const QFileInfo& file : QDir(keptFolder).entryInfoList(QDir::Files, QDir::Time))
            paths << file.filePath();
        return paths;
    }
    QString keptFolder;  // none unless a test says
    AnimationScript animation;
    std::unique_ptr<MainWindow> window;
};

// One of the program's dialogs over the test's animation and store, closed at the end.
class DialogTest : public MainWindowTest {
public:
    void TearDown() override {
        if (dialog) dialog->close();
    }
    QDialog& Open(const QString& name) {
        if (name == u"frmWizard"_s) {
            dialog = std::make_unique<WizardDialog>(history, dialogs, settings::loadSettings(store));
        } else if (name == u"frmEdit"_s) {
            dialog = std::make_unique<EditTimeDialog>();
        } else if (name == u"frmOptions"_s) {
            dialog = std::make_unique<OptionsDialog>(store, dialogs, [this] { ++reloads; });
        } else if (name == u"frmHelp"_s) {
            dialog = std::make_unique<HelpDialog>(dialogs);
        } else if (name == u"frmColorEditor"_s) {
            dialog = std::make_unique<ColourNameEditor>(dialogs);
        } else {
            dialog = std::make_unique<SimpleEditWindow>(history, dialogs);
        }
        dialog->show();
        return *dialog;
    }
    template <class T = QWidget>
    T* Child(const QString& name) {
        T* found = dialog->findChild<T*>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return found;
    }
    WizardDialog& Wizard() { return static_cast<WizardDialog&>(*dialog); }
    // Pages on by the Next button.
    void ToWizardPage(int page) {
        while (Wizard().currentId() < page)
            QTest::mouseClick(Child<QPushButton>(u"cmdNext"_s), Qt::LeftButton);
    }

    AnimationHistory history{animation};
    std::unique_ptr<QDialog> dialog;
    int reloads = 0;  // of the settings, by the Options dialog
};

}  // namespace flickerscribe::ui::testing_support
