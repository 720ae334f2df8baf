#include "ui/widgets/MenuButtonAccessible.h"

#include <QAccessibleWidget>
#include <QMenu>
#include <QToolButton>

namespace flickerscribe::ui {
namespace {

class MenuButtonAccessible : public QAccessibleWidget {
public:
    explicit MenuButtonAccessible(QToolButton* button)
        : QAccessibleWidget(button, QAccessible::ButtonDropDown) {}

    QToolButton* button() const { return static_cast<QToolButton*>(widget()); }

    QString text(QAccessible::Text t) const override {
        if (t == QAccessible::Name && button()->accessibleName().isEmpty())
            return button()->text().remove(u'&');
        return QAccessibleWidget::text(t);
    }
    int childCount() const override { return button()->menu() != nullptr ? 1 : 0; }
    QAccessibleInterface* child(int index) const override {
        return index == 0 && button()->menu() != nullptr
                   ? QAccessible::queryAccessibleInterface(button()->menu())
                   : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return child != nullptr && button()->menu() != nullptr && child->object() == button()->menu() ? 0
                                                                                                      : -1;
    }
    QStringList actionNames() const override {
        if (!button()->isEnabled()) return {};
        return {pressAction(), showMenuAction()};
    }
    void doAction(const QString& action) override {
        if (!button()->isEnabled()) return;
        if (action == pressAction()) button()->click();
        if (action == showMenuAction()) button()->showMenu();
    }
};

QAccessibleInterface* menuButtons(const QString&, QObject* object) {
    auto* button = qobject_cast<QToolButton*>(object);
    if (button == nullptr || button->popupMode() != QToolButton::MenuButtonPopup) return nullptr;
    return new MenuButtonAccessible(button);
}

}  // namespace

void giveMenuButtonItsPressAction(QToolButton* button) {
    static const bool installed = [] {
        QAccessible::installFactory(menuButtons);
        return true;
    }();
    (void)installed;
    // The interface Qt made when the button was new, before it had its menu,
    // goes: the next one asked for comes from menuButtons.
    if (QAccessibleInterface* made = QAccessible::queryAccessibleInterface(button))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(made));
}

}  // namespace flickerscribe::ui
