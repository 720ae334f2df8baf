#include "ui/common/LineLimit.h"

#include "ui/common/Dialogs.h"

namespace flickerscribe::ui {

void showLineLimitMessage(Dialogs& dialogs, QWidget* parent) {
    dialogs.message(parent,
                    QStringLiteral("An animation holds at most 32767 lines. The lines up to that limit "
                                   "are kept; the rest could not be added."),
                    QStringLiteral("Line limit reached"), MsgIcon::Exclamation, MsgButtons::Ok);
}

}  // namespace flickerscribe::ui
