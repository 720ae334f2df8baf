#pragma once

#include "ui/dialogs/DialogWindow.h"

class QLineEdit;

namespace flickerscribe::ui {

// The small Edit dialog: a new Time for the selected line. It always opens
// with the default time, whatever the line holds; OK, the default button,
// accepts it and the caller stores time(). The Action box is a placeholder
// that nothing reads.
class EditTimeDialog : public DialogWindow {
    Q_OBJECT

public:
    explicit EditTimeDialog(QWidget* parent = nullptr);

    // The time in the box.
    QString time() const;

private:
    QLineEdit* timeBox_;
};

}  // namespace flickerscribe::ui
