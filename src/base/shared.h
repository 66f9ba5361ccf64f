#pragma once

#include "base/config_store.h"
#include "platform/ports.h"
#include "ui/frm_about.h"
#include "ui/frm_main.h"
#include "ui/frm_settings.h"
#include "ui/frm_status.h"

/// What all parts of the program share: the windows, the flags, the store, the ports.
namespace tarnwell {

struct Shared {
    explicit Shared(const Ports& outside);

    Ports ports;
    ConfigStore config;

    ui::FrmMain frmMain;
    ui::LoadedOnTouch<ui::FrmSettings> frmSettings;
    ui::LoadedOnTouch<ui::FrmStatus> frmStatus;
    ui::LoadedOnTouch<ui::FrmAbout> frmAbout;

    QString title;        ///< the application's title, which message boxes and the tray tip carry
    QString listedDevice; ///< whose games and free space were read last, as the window names it

    qint16 intJobIndex = 0;         ///< the row of lstJob, counted from 1, that the queue is working on
    qint32 lJobStartTick = 0;       ///< tick count at the start of the job
    qint32 lQueueStartTick = 0;     ///< tick count at the start of the queue
    bool blnQueueRunning = false;   ///< a queued inject, extract or dump command is running
    bool blnInstallRunning = false; ///< an Install Now run is under way
    bool blnJobDone = false;        ///< the end of the running job has been seen
    bool blnJobStopped = false;     ///< the user pressed Cancel in frmStatus
    bool blnQueryHD = false;        ///< the next query output fills cmbHD and mnuHDD
    bool blnQueryOptical = false;   ///< the next query output fills cmbOptical
    bool blnQuerySettings = false;  ///< the next query output fills the cmbHD of frmSettings
    bool blnDiscInfo = false;       ///< the next output answers cdvd_info2
    bool blnReadTOC = false;        ///< the next output answers tarn_toc; its chunks are withheld
    bool blnServerActive = false;   ///< the status page can be asked for
    bool runUnderWay = false;       ///< the handler of a queue or an Install Now has not ended

    bool jobRunning() const { return blnQueueRunning || blnInstallRunning; }
    void message(const QString& text, MessageIcon icon = MessageIcon::Exclamation);
    /// Unless the user has turned the tray's balloons off.
    void balloon(const QString& text);
};

} // namespace tarnwell
