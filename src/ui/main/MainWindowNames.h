#pragma once

#include <QString>

// The object names of the main window's controls, menu entries and toolbar
// buttons, all in one place. They are the window's stable identities: tests
// and the accessibility tree find controls by them, and the toolbar and the
// Add button's menu dispatch their commands by them. They keep their values
// whatever the code calls the things they name.
namespace flickerscribe::ui::main_window_names {

inline const QString kWindow = QStringLiteral("frmMain");
inline const QString kClientArea = QStringLiteral("client");
inline const QString kPane = QStringLiteral("txtPreview");
inline const QString kLineList = QStringLiteral("lvwMain");
inline const QString kColourStrip = QStringLiteral("picColors");
inline const QString kPlayTimer = QStringLiteral("timAni");
inline const QString kToolbar = QStringLiteral("tlbMain");
inline const QString kKeepTimer = QStringLiteral("timKeep");
// Shown in the status bar while the animation can't be kept.
inline const QString kKeepProblem = QStringLiteral("lblKeepProblem");
inline const QString kExportProgress = QStringLiteral("dlgExportProgress");

// The menus and their entries; separators are named too.
inline const QString kFileMenu = QStringLiteral("mnuFile");
inline const QString kNewEntry = QStringLiteral("mnuFileNew");
inline const QString kOpenEntry = QStringLiteral("mnuFileOpen");
inline const QString kImportEntry = QStringLiteral("mnuFileImport");
inline const QString kReopenEntry = QStringLiteral("mnuFileReopen");
inline const QString kKeptMenu = QStringLiteral("mnuFileKept");
inline const QString kFileSeparator1 = QStringLiteral("mnuFileLine");
inline const QString kSaveEntry = QStringLiteral("mnuFileSave");
inline const QString kSaveAsEntry = QStringLiteral("mnuFileSaveAs");
inline const QString kExportPictureEntry = QStringLiteral("mnuFileExportPicture");
inline const QString kFileSeparator2 = QStringLiteral("mnuFileLine2");
inline const QString kExitEntry = QStringLiteral("mnuFileExit");
inline const QString kEditMenu = QStringLiteral("mnuEdit");
inline const QString kUndoEntry = QStringLiteral("mnuEditUndo");
inline const QString kRedoEntry = QStringLiteral("mnuEditRedo");
inline const QString kEditSeparator0 = QStringLiteral("mnuEditLine0");
inline const QString kCutEntry = QStringLiteral("mnuEditCut");
inline const QString kCopyEntry = QStringLiteral("mnuEditCopy");
inline const QString kPasteEntry = QStringLiteral("mnuEditPaste");
inline const QString kEditSeparator1 = QStringLiteral("mnuEditLine");
inline const QString kShowColoursEntry = QStringLiteral("mnuEditShowColors");
inline const QString kColourNameEditorEntry = QStringLiteral("mnuHelpColor");
inline const QString kSimpleEditEntry = QStringLiteral("mnuEditSimple");
inline const QString kEditSeparator2 = QStringLiteral("mnuEditLine3");
inline const QString kOptionsEntry = QStringLiteral("mnuEditOptions");
inline const QString kHelpMenu = QStringLiteral("mnuHelp");
inline const QString kHelpEntry = QStringLiteral("mnuHelpHelp");
inline const QString kHelpSeparator = QStringLiteral("mnuHelpLine1");
inline const QString kAboutEntry = QStringLiteral("mnuHelpAbout");

// The toolbar's buttons.
inline const QString kNewButton = QStringLiteral("btnnew");
inline const QString kOpenButton = QStringLiteral("btnopen");
inline const QString kSaveButton = QStringLiteral("btnsave");
inline const QString kAddButton = QStringLiteral("btnadd");
inline const QString kRemoveButton = QStringLiteral("btnremove");
inline const QString kEditButton = QStringLiteral("btnedit");
inline const QString kWizardButton = QStringLiteral("btnwizard");
inline const QString kPlayButton = QStringLiteral("btnpreview");
inline const QString kGenerateButton = QStringLiteral("btngenerate");

// The Add button's drop-down menu and its entries.
inline const QString kAddMenu = QStringLiteral("btnaddMenu");
inline const QString kAddBeforeEntry = QStringLiteral("btnaddbefore");
inline const QString kAddAfterEntry = QStringLiteral("btnaddafter");
inline const QString kCopySelectedEntry = QStringLiteral("btncopylast");
inline const QString kCopySelectedTimesEntry = QStringLiteral("btncopylastx");
inline const QString kCopyAllEntry = QStringLiteral("btncopyall");
inline const QString kCopyAllReversedEntry = QStringLiteral("btncopyallreverse");

}  // namespace flickerscribe::ui::main_window_names
