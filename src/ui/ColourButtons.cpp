#include "ui/ColourButtons.h"

#include <QColor>
#include <QPushButton>
#include <string>

#include "ui/Twips.h"

using namespace Qt::Literals::StringLiterals;

namespace flickerscribe::ui {
namespace {

constexpr int kButtonSize = 375;
constexpr int kButtonStep = 480;

QColor ToQColor(Colour colour) {
    return QColor(static_cast<int>(RedOf(colour)), static_cast<int>(GreenOf(colour)),
                  static_cast<int>(BlueOf(colour)));
}

QString ColourName(int index) {
    static const QString names[] = {u"Red"_s,     u"Green"_s, u"Yellow"_s, u"Blue"_s, u"Cyan"_s,
                                    u"Magenta"_s, u"White"_s, u"Black"_s,  u"Red"_s};
    return index >= 0 && index < 9 ? names[index] : QString();
}

}  // namespace

Colour ColourOfButton(int index) {
    return ColourFromDigit(std::to_string(index + 1));
}

std::vector<QPushButton*> AddColourButtons(QWidget* parent, int count, int left, int top) {
    std::vector<QPushButton*> buttons;
    buttons.reserve(static_cast<std::size_t>(count));
    for (int index = 0; index < count; ++index) {
        auto* button = new QPushButton(u" "_s, parent);
        button->setObjectName(u"cmdColor_%1"_s.arg(index));
        button->setAccessibleName(ColourName(index));
        button->setGeometry(TwipsRect(left + kButtonStep * index, top, kButtonSize, kButtonSize));
        // Tab reaches the buttons and Space presses one; a click leaves the
        // focus, and so the caret and selection, in the pane.
        button->setFocusPolicy(Qt::TabFocus);
        button->setAutoDefault(false);
        const QColor colour = ToQColor(ColourOfButton(index));
        button->setStyleSheet(
            u"QPushButton { background-color: %1; border: 1px solid #3c3c3c; border-radius: 2px; }"
            u"QPushButton:hover { border: 1px solid #0a64c8; }"
            u"QPushButton:focus { border: 2px dotted #0a64c8; }"
            u"QPushButton:pressed { border: 2px solid #0a64c8; }"_s.arg(colour.name()));
        buttons.push_back(button);
    }
    return buttons;
}

}  // namespace flickerscribe::ui
