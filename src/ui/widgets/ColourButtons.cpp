#include "ui/widgets/ColourButtons.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <string>

#include "ui/widgets/PaneStyle.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui {
namespace {

constexpr int kButtonSide = 25;
constexpr int kButtonGap = 7;

QString colourName(int index) {
    static const char* const names[] = {
        QT_TRANSLATE_NOOP("ColourButtons", "Red"),    QT_TRANSLATE_NOOP("ColourButtons", "Green"),
        QT_TRANSLATE_NOOP("ColourButtons", "Yellow"), QT_TRANSLATE_NOOP("ColourButtons", "Blue"),
        QT_TRANSLATE_NOOP("ColourButtons", "Cyan"),   QT_TRANSLATE_NOOP("ColourButtons", "Magenta"),
        QT_TRANSLATE_NOOP("ColourButtons", "White"),  QT_TRANSLATE_NOOP("ColourButtons", "Black"),
        QT_TRANSLATE_NOOP("ColourButtons", "Red")};
    return QCoreApplication::translate("ColourButtons", names[index]);
}

}  // namespace

Colour colourOfButton(int index) {
    return ColourFromDigit(std::to_string(index + 1));
}

std::vector<QPushButton*> addColourButtons(QBoxLayout* row, int count) {
    row->setSpacing(kButtonGap);
    std::vector<QPushButton*> buttons;
    buttons.reserve(static_cast<std::size_t>(count));
    for (int index = 0; index < count; ++index) {
        auto* button = new QPushButton(u" "_s);
        button->setObjectName(u"cmdColor_%1"_s.arg(index));
        button->setAccessibleName(colourName(index));
        button->setFixedSize(kButtonSide, kButtonSide);
        // Tab reaches the buttons and Space or Enter presses one, in the main
        // window too; a click leaves the focus, and so the caret and
        // selection, in the pane.
        button->setFocusPolicy(Qt::TabFocus);
        button->setAutoDefault(true);
        button->setStyleSheet(
            u"QPushButton { background-color: %1; border: 1px solid #3c3c3c; border-radius: 2px; }"
            u"QPushButton:hover { border: 1px solid #0a64c8; }"
            u"QPushButton:focus { border: 2px dotted #0a64c8; }"
            u"QPushButton:pressed { border: 2px solid #0a64c8; }"_s.arg(
                toQColor(colourOfButton(index)).name()));
        row->addWidget(button);
        buttons.push_back(button);
    }
    return buttons;
}

QBoxLayout* colourStripRow(QWidget* strip) {
    auto* row = new QHBoxLayout(strip);
    row->setContentsMargins(0, 3, 0, 5);
    row->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return row;
}

}  // namespace flickerscribe::ui
