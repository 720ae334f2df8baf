#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QWidget>

#include "ui/Twips.h"

namespace flickerscribe::ui::testing_support {

// One named control of a window as designed: caption (nullptr: not checked)
// and place in twips, relative to its parent.
struct ControlRow {
    const char* name;
    const char* caption;
    int left, top, width, height;
};

inline QString CaptionOf(const QWidget* w) {
    if (const auto* b = qobject_cast<const QAbstractButton*>(w)) return b->text();
    if (const auto* l = qobject_cast<const QLabel*>(w)) return l->text();
    if (const auto* g = qobject_cast<const QGroupBox*>(w)) return g->title();
    if (const auto* e = qobject_cast<const QLineEdit*>(w)) return e->text();
    return {};
}

// Every row's control exists under `window` with that caption and place.
inline void ExpectLayout(const QWidget& window, std::initializer_list<ControlRow> rows) {
    for (const ControlRow& row : rows) {
        SCOPED_TRACE(row.name);
        const auto* control = window.findChild<QWidget*>(QString::fromLatin1(row.name));
        ASSERT_NE(control, nullptr);
        if (row.caption != nullptr) {
            EXPECT_EQ(CaptionOf(control), QString::fromUtf8(row.caption));
        }
        EXPECT_EQ(control->geometry(), TwipsRect(row.left, row.top, row.width, row.height));
    }
}

// A fixed dialog: its client size in twips, no minimise or maximise button.
inline void ExpectFixedDialog(const QWidget& window, int clientWidth, int clientHeight) {
    EXPECT_EQ(window.size(), QSize(Twips(clientWidth), Twips(clientHeight)));
    EXPECT_EQ(window.minimumSize(), window.maximumSize());
    EXPECT_FALSE(window.windowFlags() & Qt::WindowMinimizeButtonHint);
    EXPECT_FALSE(window.windowFlags() & Qt::WindowMaximizeButtonHint);
    EXPECT_EQ(window.windowType(), Qt::Dialog);
}

}  // namespace flickerscribe::ui::testing_support
