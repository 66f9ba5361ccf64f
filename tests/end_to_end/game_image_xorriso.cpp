#include "end_to_end/game_image.h"
#include "tour/workbench.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tarnwell::test {

namespace {

void write(const QString& file, const QByteArray& bytes) {
    QFile opened(file);
    ASSERT_TRUE(opened.open(QFile::WriteOnly)) << file.toStdString();
    opened.write(bytes);
}

} // namespace

void makeGameImage(const QString& file, const QString& label, const QString& startup,
                   const QByteArray& data) {
    const QTemporaryDir disc;
    write(disc.filePath("SYSTEM.CNF"),
          "BOOT2 = cdrom0:\\" + startup.toLatin1() + ";1\r\nVER = 1.00\r\nVMODE = NTSC\r\n");
    write(disc.filePath(startup), "the game");
    write(disc.filePath("DATA.BIN"), data);
    tour::runToEnd("xorriso", {"-as", "mkisofs", "-quiet", "-V", label, "-o", file, disc.path()});
}

} // namespace tarnwell::test
