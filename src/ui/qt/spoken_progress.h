#pragma once

#include "ui/frm_main.h"
#include "ui/frm_status.h"

#include <QObject>

namespace tarnwell::view {

/// Says to screen readers what a run shows: the job that begins, each tenth of the whole, the end. All
/// windows may be hidden meanwhile. It must not outlive the forms.
class SpokenProgress final : public QObject {
public:
    using Say = std::function<void(const QString& text)>;

    SpokenProgress(ui::FrmMain& frmMain, ui::FrmStatus& frmStatus, Say say, QObject& parent);

private:
    void begin() { percent_ = kNone; }
    void reach(int percent);
    void end();

    static constexpr int kNone = -1;
    const Say say_;
    int percent_ = kNone; ///< of the run that is under way, or was the last
};

} // namespace tarnwell::view
