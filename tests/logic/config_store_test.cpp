#include "app/config_store.h"
#include "support/fake_ports.h"
#include "support/gtest_qt.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

using namespace tarnwell;
using tarnwell::test::FakeSystemFolders;

namespace {

struct ConfigStoreTest : testing::Test {
    void put(const QByteArray& bytes) {
        QFile file(config.path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray file() {
        QFile stored(config.path());
        return stored.open(QIODevice::ReadOnly) ? stored.readAll() : QByteArray();
    }

    FakeSystemFolders folders;
    ConfigStore config{folders};
};

} // namespace

TEST_F(ConfigStoreTest, AFolderGetsASeparatorAndARootKeepsItsOwn) {
    folders.folder = QString("games") + QDir::separator() + "tool";
    EXPECT_EQ(config.path(), folders.folder + QDir::separator() + "config.cfg");
    folders.folder = QDir::separator();
    EXPECT_EQ(config.path(), QString(QDir::separator()) + "config.cfg");
    EXPECT_EQ(config.ToolPath(), QString(QDir::separator()) + "tarnwell.exe");
}

TEST_F(ConfigStoreTest, ANewFileHasEveryDefaultInOrder) {
    config.WriteDefaultConfig();
    EXPECT_EQ(file(), "[tarnwell]\r\n"
                      "DefaultISO=\r\n"
                      "ClosePS2=0\r\n"
                      "TurnOffPC=0\r\n"
                      "StandbyPC=0\r\n"
                      "TurnOffPS2=0\r\n"
                      "IP=192.168.0.10\r\n"
                      "StayOnTop=1\r\n"
                      "ViewOutput=0\r\n"
                      "BalloonTips=0\r\n"
                      "Backcolor=-2147483633\r\n"
                      "Forecolor=-2147483630\r\n"
                      "UseColor=0\r\n"
                      "Font=Tahoma,8,False,False,\r\n"
                      "StatusServer=0\r\n"
                      "CloseStatus=1\r\n"
                      "TaskSound=[none selected]\r\n"
                      "TasksSound=[none selected]\r\n");
}

TEST_F(ConfigStoreTest, DefaultsOverAnExistingFileLeaveTheDataFolderAlone) {
    put("[tarnwell]\r\nApplicationData=C:\\Data\\\r\nIP=10.0.0.1\r\n");
    config.WriteDefaultConfig();
    EXPECT_EQ(config.text("ApplicationData"), "C:\\Data\\");
    EXPECT_EQ(config.text("IP"), "192.168.0.10");
}

TEST_F(ConfigStoreTest, MissingKeySectionAndFileReadAsNothing) {
    EXPECT_EQ(config.text("IP"), "");
    put("[other]\r\nIP=1.2.3.4\r\n");
    EXPECT_EQ(config.text("IP"), "");
    put("[tarnwell]\r\nFont=x\r\n");
    EXPECT_EQ(config.text("IP"), "");
}

TEST_F(ConfigStoreTest, FindsSectionAndKeyWhateverTheirCaseAndBlanks) {
    put("  [TARNWELL]  \n\t ip \t=  1.2.3.4 \t\n");
    EXPECT_EQ(config.text("IP"), "1.2.3.4");
}

TEST_F(ConfigStoreTest, StripsOnePairOfQuotes) {
    put("[tarnwell]\nA=\"quoted text\"\nB='single'\nC=\"\"twice\"\"\nD=\"open\nE=\"\n");
    EXPECT_EQ(config.text("A"), "quoted text");
    EXPECT_EQ(config.text("B"), "single");
    EXPECT_EQ(config.text("C"), "\"twice\"");
    EXPECT_EQ(config.text("D"), "\"open");
    EXPECT_EQ(config.text("E"), "\"");
}

TEST_F(ConfigStoreTest, CutsALongValueAt254Characters) {
    config.write("DefaultISO", QString(300, 'x'));
    EXPECT_EQ(config.text("DefaultISO").size(), 254);
}

TEST_F(ConfigStoreTest, TheFirstMatchWins) {
    put("[tarnwell]\nIP=first\nIP=second\n[tarnwell]\nIP=third\nFont=late\n");
    EXPECT_EQ(config.text("IP"), "first");
    config.write("IP", "new");
    EXPECT_EQ(file(), "[tarnwell]\nIP=new\nIP=second\n[tarnwell]\nIP=third\nFont=late\n");
}

TEST_F(ConfigStoreTest, ReadsNumbersLeniently) {
    put("[tarnwell]\nA=12abc\nB=\nC=x\nD=-2147483633\nE=99999999999\n");
    EXPECT_EQ(config.number("A"), 12);
    EXPECT_EQ(config.number("B"), 0);
    EXPECT_EQ(config.number("C"), 0);
    EXPECT_EQ(config.number("D"), -2147483633);
    EXPECT_EQ(config.number("E"), 2147483647);
}

TEST_F(ConfigStoreTest, AWriteKeepsWhatItDoesNotChange) {
    put("; my notes\r\n[other]\nIP=9.9.9.9\r\n\r\n[tarnwell]\r\n;IP=commented\r\nip = old\nno equals "
        "sign\r\n\r\n[last]\r\nx=1");
    config.write("IP", "1.2.3.4");
    EXPECT_EQ(file(), "; my notes\r\n[other]\nIP=9.9.9.9\r\n\r\n[tarnwell]\r\n;IP=commented\r\nip =1.2.3.4\n"
                      "no equals sign\r\n\r\n[last]\r\nx=1");
}

TEST_F(ConfigStoreTest, ANewKeyGoesBehindTheLastOfItsSection) {
    put("[tarnwell]\nIP=1.2.3.4\n\n[other]\nx=1\n");
    config.write("Font", "Arial");
    EXPECT_EQ(file(), "[tarnwell]\nIP=1.2.3.4\nFont=Arial\n\n[other]\nx=1\n");
}

TEST_F(ConfigStoreTest, ANewSectionIsAddedToAFileWithoutALastLineEnd) {
    put("[other]\nx=1");
    config.write("IP", "1.2.3.4");
    EXPECT_EQ(file(), "[other]\nx=1\n[tarnwell]\nIP=1.2.3.4\n");
}

TEST_F(ConfigStoreTest, GarbageIsNeitherReadNorLost) {
    const QByteArray garbage = QByteArray("\x00\xff[[[\n=\n]tarnwell[\n\r\r\n=x\n", 24);
    put(garbage);
    EXPECT_EQ(config.text("IP"), "");
    config.write("IP", "1.2.3.4");
    EXPECT_EQ(config.text("IP"), "1.2.3.4");
    EXPECT_TRUE(file().startsWith(garbage));
}

TEST_F(ConfigStoreTest, KeepsCharactersOfTheCodePage) {
    const QString folder = QString::fromUtf8("D:\\Jeux d\xc3\xa9mo\\");
    config.write("DefaultISO", folder);
    EXPECT_EQ(config.text("DefaultISO"), folder);
}

TEST_F(ConfigStoreTest, AStoreThatCannotBeWrittenKeepsQuiet) {
    folders.folder += "/missing";
    config.write("IP", "1.2.3.4");
    config.WriteDefaultConfig();
    EXPECT_FALSE(config.exists());
    EXPECT_EQ(config.text("IP"), "");
}

TEST_F(ConfigStoreTest, AFolderInPlaceOfTheFileReadsAsNothing) {
    ASSERT_TRUE(QDir().mkpath(config.path()));
    EXPECT_FALSE(config.exists());
    EXPECT_EQ(config.text("IP"), "");
    config.write("IP", "1.2.3.4");
    EXPECT_TRUE(QFileInfo(config.path()).isDir());
}

TEST_F(ConfigStoreTest, FilesAreFoundByWildCardsToo) {
    put("x");
    EXPECT_TRUE(FileExists(config.path()));
    EXPECT_TRUE(FileExists(config.AppFolder() + "conf*.cf?"));
    EXPECT_FALSE(FileExists(config.AppFolder() + "*.iso"));
    EXPECT_FALSE(FileExists(folders.folder));
    EXPECT_FALSE(FileExists(""));
}
