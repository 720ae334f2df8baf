#pragma once

#include <QDialog>
#include <QFont>
#include <QString>

class QLayout;
class QPushButton;

namespace flickerscribe::ui {

// The small sans-serif face the dialogs are drawn in; their layouts leave
// room for its captions.
QFont dialogFont();

// Gives a push button its designed size, or more width where its caption in
// dialogFont needs it.
void setButtonSize(QPushButton* button, int width, int height);

enum class WindowSize {
    Fixed,    // no minimise or maximise button; as large as its contents
    Sizable,  // the user can resize, minimise and maximise it
};

// Gives a dialog its object name, caption, dialogFont and window frame, with
// no entry of its own in the task bar. Shown with an owner, Qt centres it on
// the owner.
void setUpDialog(QDialog& dialog, const QString& name, const QString& caption, WindowSize size);

// A dialog of this program. Its push buttons are Qt's auto-default buttons:
// Enter presses the focused one, and elsewhere the dialog's default button.
// Where a dialog has no default button, it says so here, and then Enter
// outside a button does nothing; it can also keep Escape from closing it.
class DialogWindow : public QDialog {
    Q_OBJECT

public:
    struct Keys {
        bool enterOnlyOnButtons = false;  // no default button
        bool escapeKeepsOpen = false;     // only the buttons or the close box close it
    };

    DialogWindow(const QString& name, const QString& caption, WindowSize size, Keys keys,
                 QWidget* parent = nullptr);

protected:
    // Puts `layout` over the whole window; a fixed window takes the size the
    // layout asks for.
    void setContents(QLayout* layout);
    void keyPressEvent(QKeyEvent* event) override;

private:
    WindowSize size_;
    Keys keys_;
};

}  // namespace flickerscribe::ui
