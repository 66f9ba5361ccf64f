#include "kit/machine.h"

#include <QLocale>
#include <QProcess>
#include <QSettings>
#include <QSysInfo>

#include <windows.h>

namespace tarnwell::kit {

namespace {

QString systemsOwnWords() {
    QProcess process;
    process.start("cmd", {"/c", "ver"});
    process.waitForFinished();
    return QString::fromLocal8Bit(process.readAll()).simplified();
}

QString screen() {
    DEVMODEW mode{};
    mode.dmSize = sizeof mode;
    EnumDisplaySettingsW(nullptr, ENUM_CURRENT_SETTINGS, &mode);
    const QSettings metrics(R"(HKEY_CURRENT_USER\Control Panel\Desktop\WindowMetrics)",
                            QSettings::NativeFormat);
    return QString("%1 x %2 at %3 dots an inch, screens: %4")
        .arg(mode.dmPelsWidth)
        .arg(mode.dmPelsHeight)
        .arg(metrics.value("AppliedDPI", USER_DEFAULT_SCREEN_DPI).toInt())
        .arg(GetSystemMetrics(SM_CMONITORS));
}

} // namespace

QStringList describeMachine() {
    return {QSysInfo::prettyProductName() + ", " + QSysInfo::currentCpuArchitecture(), systemsOwnWords(),
            QString("Code page %1, %2").arg(GetACP()).arg(QLocale::system().name()), screen()};
}

} // namespace tarnwell::kit
