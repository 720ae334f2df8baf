#include "ui/common/LineLimit.h"

#include <QCoreApplication>

#include "ui/common/Dialogs.h"

namespace flickerscribe::ui {

void showLineLimitMessage(Dialogs& dialogs, QWidget* parent) {
    dialogs.message(
        parent,
        QCoreApplication::translate("LineLimit",
                                    "An animation holds at most 32767 lines. The lines up to that "
                                    "limit are kept; the rest could not be added."),
        QCoreApplication::translate("LineLimit", "Line limit reached"), MsgIcon::Exclamation, MsgButtons::Ok);
}

}  // namespace flickerscribe::ui
