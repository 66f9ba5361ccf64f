// tarnwell.conf as the tool or a person may have left it. What the program writes after that reads back the
// same.

#include "settings/tool_config_text.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace tarnwell;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString folder = "C:\\data\\";
    const QString text =
        QString::fromLocal8Bit(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    // Making windows takes long; unloading one sets it back to its start.
    static ui::FrmMain frmMain;
    static ui::FrmSettings frmSettings, again;
    for (ui::Form* form : {static_cast<ui::Form*>(&frmMain), static_cast<ui::Form*>(&frmSettings),
                           static_cast<ui::Form*>(&again)}) {
        form->load();
        form->unload();
    }
    ReadToolConfig(text, folder, frmSettings);

    const QString written = WriteToolConfig(folder, frmSettings, frmMain);
    ReadToolConfig(written, folder, again);
    for (const auto& [box, boxAgain] : {std::pair(&frmSettings.chkAutoThrottle, &again.chkAutoThrottle),
                                        std::pair(&frmSettings.chkEnableASPI, &again.chkEnableASPI),
                                        std::pair(&frmSettings.chkLimit28bit, &again.chkLimit28bit),
                                        std::pair(&frmSettings.chkUseCompression, &again.chkUseCompression),
                                        std::pair(&frmSettings.chkToxicOS, &again.chkToxicOS)}) {
        if (box->value.get() != boxAgain->value.get())
            std::abort();
    }
    if (frmSettings.txtTargetkbps.text.get() != again.txtTargetkbps.text.get())
        std::abort();
    return 0;
}
