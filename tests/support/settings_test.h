#pragma once

#include "support/program_test.h"

namespace tarnwell::test {

/// The program with its settings window, over a data folder of the test's own.
struct SettingsTest : ProgramTest {
    ui::LoadedOnTouch<ui::FrmSettings>& frmSettings = program.shared().frmSettings;

    QString conf() const { return ports.folders.data + "/tarnwell.conf"; }
    void writeConf(const QByteArray& bytes) const { writeTo(conf(), bytes); }
    QByteArray readConf() const { return readFrom(conf()); }

    static void writeTo(const QString& path, const QByteArray& bytes) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    static QByteArray readFrom(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be read)");
    }

    void open() { ui::click(frmMain.cmdSettings); }
    void openPage(int tab) {
        open();
        ui::selectTab(frmSettings->TabStrip, tab);
    }
    void startAndOpen() {
        start();
        open();
    }
    /// A new folder of this name, with a separator at its end.
    QString makeFolder(const QString& name, bool withConf = false) {
        QString folder = path(name) + QDir::separator();
        QDir().mkpath(folder);
        if (withConf)
            writeTo(folder + "tarnwell.conf", "");
        return folder;
    }
};

} // namespace tarnwell::test
