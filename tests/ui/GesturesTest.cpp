// Keys, mouse and clipboard on the real widgets leave what the user meant.

#include "MainWindowFixture.h"

namespace flickerscribe::ui::testing_support {
namespace {

using Gestures = DialogTest;

// What a gesture left: open or closed, wizard page and rows, the Edit dialog's
// time, settings written, lines, what was copied, the questions' titles.
QString State(Gestures& t, qsizetype writesBefore, qsizetype askedBefore) {
    QString state = t.dialog->isVisible() ? u"open"_s : u"closed"_s;
    if (auto* wizard = dynamic_cast<WizardDialog*>(t.dialog.get()))
        state += u" page %1 rows %2"_s.arg(wizard->currentId())
                     .arg(t.Child<QTreeWidget>(u"lvwEffects"_s)->topLevelItemCount());
    if (auto* edit = dynamic_cast<EditTimeDialog*>(t.dialog.get()))
        state += edit->result() == QDialog::Accepted ? u" time "_s + edit->time() : u" no time"_s;
    if (!t.dialogs.clipboard.isEmpty()) state += u" copied "_s + t.dialogs.clipboard;
    state += u" writes %1 lines %2"_s.arg(t.store.Writes().size() - writesBefore).arg(t.script().Count());
    for (const QString& asked : t.dialogs.Asked().mid(askedBefore))
        state += u" asked "_s + asked.section(u" ["_s, 0, 0);
    return state;
}

// Enter presses the focused button; in a box or list, the default one (Next,
// Finish on the wizard's last page), or none (Options, Help).
TEST_F(Gestures, EnterPressesTheFocusedButtonElseTheDefault) {
    const std::tuple<const char*, int, const char*, const char*> cases[] = {
        {"frmWizard", 4, "cmdAddEffect", "open page 4 rows 1 writes 0 lines 2"},
        {"frmWizard", 4, "cmdCancel", "open page 4 rows 0 writes 0 lines 2 asked Exit wizard?"},
        {"frmWizard", 3, "cmdCancel", "closed page -1 rows 0 writes 0 lines 2 asked Exit wizard?"},
        {"frmWizard", 3, "txtNameOnly_0", "open page 4 rows 0 writes 0 lines 2"},
        {"frmEdit", 0, "cmdCancel", "closed no time writes 0 lines 2"},
        {"frmEdit", 0, "txtTime", "closed time 15 writes 0 lines 2"},
        {"frmOptions", 0, "cmdOK", "closed writes 7 lines 2"},
        {"frmOptions", 0, "txtName", "open writes 0 lines 2"},
        {"frmHelp", 0, "Command5", "open copied 123456789 writes 0 lines 2"},
        {"frmHelp", 0, "Text1", "open writes 0 lines 2"},
        {"frmWizard", 4, "lvwEffects", "closed page 4 rows 0 writes 0 lines 0"},
    };
    Start({"A/10", "B/20"}, 1);
    for (const auto& [name, page, focusName, after] : cases) {
        const auto writes = store.Writes().size(), asked = dialogs.Asked().size();
        dialogs.clipboard.clear();
        Open(QString::fromLatin1(name));
        if (page > 0) ToWizardPage(page);
        if (page == 4) Child<QComboBox>(u"cmbEffects"_s)->setCurrentIndex(0);
        if (focusName == std::string("cmdCancel") && page)
            dialogs.QueueMessageAnswer(page == 4 ? MsgAnswer::No : MsgAnswer::Yes);
        QWidget* focus = Child(QString::fromLatin1(focusName));
        focus->setFocus();
        QTest::keyClick(focus, Qt::Key_Return);
        EXPECT_EQ(State(*this, writes, asked).toStdString(), after) << name << " " << focusName;
    }
}

// --- the main window at its edges and by keyboard

using Edges = MainWindowTest;

TEST_F(Edges, InPlaceEditKeepsALongTextWholeAndWritesNothingUnchanged) {
    EXPECT_EQ(List()->editTriggers(), QAbstractItemView::NoEditTriggers) << "only when the settings say";
    store.writeValue(u"EditItem"_s, u"1"_s);
    MakeWindow();
    const std::string text(40000, 'x');
    Start({text + "/15", text + "/15"}, 1);
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    LineListView* list = List();
    int writes = 0;
    QObject::connect(list->model(), &QAbstractItemModel::dataChanged, [&] { ++writes; });
    const auto editor = [list] { return list->viewport()->findChild<QLineEdit*>(); };
    // Line 1 edited without a change, line 2 with one; a first click only selects.
    for (const auto& [row, typed] : {std::pair{0, QString()}, std::pair{1, u"!"_s}, std::pair{1, u"!"_s}}) {
        const bool selected = script().SelectedIndex() == row + 1;
        ClickLine(row + 1);
        if (!selected) continue;
        ASSERT_TRUE(QTest::qWaitFor([&] { return editor() != nullptr; }));
        QTest::keyClick(editor(), Qt::Key_End);
        QTest::keyClicks(editor(), typed);
        QTest::keyClick(editor(), Qt::Key_Return);
        ASSERT_TRUE(QTest::qWaitFor([&] { return editor() == nullptr; }));
    }
    EXPECT_EQ(Lines(), TextTimes({text + "/15", text + "!/15"}));
    EXPECT_EQ(writes, 1) << "the commit that changed nothing wrote nothing";
}

TEST_F(Edges, TabReachesTheColourStripAndSpaceColoursThePanesSelection) {
    Start({"abcd/15"});
    Trigger(u"mnuEditShowColors"_s);
    Show();
    QTextEdit* pane = PaneEdit();
    pane->setFocus();
    QTest::keyClick(pane, Qt::Key_Home);
    for (const Qt::KeyboardModifier shift : {Qt::NoModifier, Qt::ShiftModifier, Qt::ShiftModifier})
        QTest::keyClick(pane, Qt::Key_Right, shift);  // "bc" selected
    for (int tab = 0; tab < 3; ++tab) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget()->objectName(), u"cmdColor_1"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(script().LineAt(1).Text, "a^2bc^7d");
}

TEST_F(Edges, TheAddButtonsMenuIsOnTheAccessibilityTree) {
    auto* add =
        qobject_cast<QToolButton*>(named<QToolBar>(u"tlbMain"_s)->widgetForAction(named(u"btnadd"_s)));
    QAccessibleInterface* button = QAccessible::queryAccessibleInterface(add);
    ASSERT_EQ(button->childCount(), 1);
    QAccessibleInterface* menu = button->child(0);
    EXPECT_TRUE(menu->object()->objectName() == u"btnaddMenu"_s && button->child(1) == nullptr);
    QStringList entries;
    for (int i = 0; i < menu->childCount(); ++i) entries << menu->child(i)->text(QAccessible::Name);
    EXPECT_EQ(entries.join(u'|').toStdString(),
              "Before selection|After selection||Copy selected line|Copy selected line x times||Copy all "
              "lines|Copy all lines (reverse)");
    EXPECT_EQ(button->actionInterface()->actionNames(),
              (QStringList{QAccessibleActionInterface::pressAction(),
                           QAccessibleActionInterface::showMenuAction()}));
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(script().Count(), 1) << "a screen reader's Press adds a line";
}

// Simple Edit and the pane take a paste or drop as plain text in the colour in force.
TEST_F(Gestures, PasteAndDropArriveAsPlainText) {
    Open(u"frmSimpleEdit"_s);
    auto* pane = Child<QTextEdit>(u"txtPreview"_s);
    pane->setFocus();
    QTest::mouseClick(Child<QPushButton>(u"cmdColor_1"_s), Qt::LeftButton);
    auto* mime = new QMimeData;
    mime->setText(u"one\r\ntwo"_s);
    mime->setHtml(u"<table><tr><td style=\"color:#ff0000\"><b>one</b></td></tr></table><p>two</p>"_s);
    QGuiApplication::clipboard()->setMimeData(mime);
    QTest::keyClick(pane, Qt::Key_V, Qt::ControlModifier);
    QTest::mouseClick(Child<QPushButton>(u"cmdSave"_s), Qt::LeftButton);
    EXPECT_EQ(Lines(), TextTimes({"^2one/15", "two/15"}));

    QMimeData dropped;
    dropped.setText(u"a\r\nb\nc"_s);
    dropped.setHtml(u"<p style=\"color:#ff0000\">a</p>"_s);
    QWidget* viewport = PaneEdit()->viewport();
    const QPoint at(viewport->width() - 2, viewport->height() / 2);
    QDragEnterEvent enter(at, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(viewport, &enter);
    QDropEvent drop(at, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(viewport, &drop);
    EXPECT_EQ(script().LineAt(1).Text, "^2onea b c");
}

}  // namespace
}  // namespace flickerscribe::ui::testing_support
