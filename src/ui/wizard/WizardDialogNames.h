#pragma once

#include <QString>

// The object names of the wizard's controls, all in one place: the stable
// identities by which tests and the accessibility tree find them. They keep
// their values whatever the code calls the things they name. "%1" stands for
// a page number. The heading, line and picture of a page's band and the
// picture beside the welcome page are QWizard's own header and watermark,
// which have no names of ours.
namespace flickerscribe::ui::wizard_names {

inline const QString kWindow = QStringLiteral("frmWizard");
inline const QString kBackButton = QStringLiteral("cmdBack");
inline const QString kNextButton = QStringLiteral("cmdNext");
inline const QString kCancelButton = QStringLiteral("cmdCancel");

inline const QString kWelcomePage = QStringLiteral("picPage1");
inline const QString kWelcomeHeading = QStringLiteral("lblWelcome");
inline const QString kWelcomeText = QStringLiteral("lblText");
inline const QString kPage = QStringLiteral("picPage%1");

inline const QString kStyleFrame = QStringLiteral("fraWizStyle");
inline const QString kSimpleStyleOption = QStringLiteral("optWizStyle_0");
inline const QString kAdvancedStyleOption = QStringLiteral("optWizStyle_1");

inline const QString kNameFrame = QStringLiteral("fraName");
inline const QString kNameOnlyOption = QStringLiteral("optNameOnly_0");
inline const QString kNameOnlyBox = QStringLiteral("txtNameOnly_0");
inline const QString kTagAndNameOption = QStringLiteral("optNameOnly_1");
inline const QString kClanTagBox = QStringLiteral("txtClanTag");
inline const QString kTaggedNameBox = QStringLiteral("txtNameOnly_1");
inline const QString kTagBehindNameCheck = QStringLiteral("chkClanTag");
inline const QString kColourEditorButton = QStringLiteral("cmdColor");

inline const QString kEffectsFrame = QStringLiteral("fraEffects");
inline const QString kEffectChoice = QStringLiteral("cmbEffects");
inline const QString kAddEffectButton = QStringLiteral("cmdAddEffect");
inline const QString kEffectPreviewButton = QStringLiteral("cmdPreview");
inline const QString kEffectListLabel = QStringLiteral("lblEffectList");
inline const QString kEffectList = QStringLiteral("lvwEffects");
inline const QString kParameter1Label = QStringLiteral("lblParam1");
inline const QString kParameter1Box = QStringLiteral("txtParam1");
inline const QString kParameter2Label = QStringLiteral("lblParam2");
inline const QString kParameter2Box = QStringLiteral("txtParam2");

}  // namespace flickerscribe::ui::wizard_names
