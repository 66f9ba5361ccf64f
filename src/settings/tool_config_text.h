#pragma once

#include "ui/frm_main.h"
#include "ui/frm_settings.h"

/// The text of the tool's configuration file and the controls that show it. Reading and writing are not each
/// other's mirror: the reader also takes files that people wrote, and it leaves alone what the program knows
/// better.
namespace tarnwell {

/// The name that the tool gives its disc database.
inline const QString kDiscDatabase = QStringLiteral("tarnwell.list");
/// The throttling target until the user sets one, in kbps.
inline const QString kFirstSpeed = QStringLiteral("2300");

/// Sets the control of each key that the text holds, in its order; the last of equal keys wins. A key that is
/// not there leaves its control alone, and so does a line without a line feed. `folder` is where the tool's
/// disc database lies if the file names none.
void ReadToolConfig(const QString& text, const QString& folder, ui::FrmSettings& frmSettings);

/// The whole file. Boxes that must not be empty are filled on the way.
QString WriteToolConfig(const QString& folder, ui::FrmSettings& frmSettings, ui::FrmMain& frmMain);

} // namespace tarnwell
