#include "base/config_store.h"
#include "support/fake_ports.h"
#include "support/gtest_qt.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringConverter>

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
    put("[tarnwell]\nA=\"quoted text\"\nB='single'\nC=\"\"twice\"\"\nD=\"open\nE=\"\nF=\"\"\n");
    EXPECT_EQ(config.text("A"), "quoted text");
    EXPECT_EQ(config.text("B"), "single");
    EXPECT_EQ(config.text("C"), "\"twice\"");
    EXPECT_EQ(config.text("D"), "\"open");
    EXPECT_EQ(config.text("E"), "\"");
    EXPECT_EQ(config.text("F"), "");
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
    put("[tarnwell]\nA=12abc\nB=\nC=x\nD=-2147483633\nE=1.9\nF= .5 \n");
    EXPECT_EQ(config.number("A"), 12);
    EXPECT_EQ(config.number("B"), 0);
    EXPECT_EQ(config.number("C"), 0);
    EXPECT_EQ(config.number("D"), -2147483633);
    EXPECT_EQ(config.number("E"), 1.9);
    EXPECT_EQ(config.number("F"), 0.5);
}

TEST_F(ConfigStoreTest, WholeNumbersAreTheNearestAndOfTwoTheEvenOne) {
    put("[tarnwell]\nA=1.9\nB=0.5\nC=1.5\nD=-2.5\nE=99999999999\nF=-99999999999\nG=x\n");
    EXPECT_EQ(config.wholeNumber("A"), 2);
    EXPECT_EQ(config.wholeNumber("B"), 0);
    EXPECT_EQ(config.wholeNumber("C"), 2);
    EXPECT_EQ(config.wholeNumber("D"), -2);
    EXPECT_EQ(config.wholeNumber("E"), 2147483647);
    EXPECT_EQ(config.wholeNumber("F"), -2147483647 - 1);
    EXPECT_EQ(config.wholeNumber("G"), 0);
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

TEST_F(ConfigStoreTest, ANewKeyEndsItsLineAsTheFileDoes) {
    put("[tarnwell]\r\nIP=1.2.3.4\r\n\r\n[other]\r\nx=1\r\n");
    config.write("Font", "Arial");
    EXPECT_EQ(file(), "[tarnwell]\r\nIP=1.2.3.4\r\nFont=Arial\r\n\r\n[other]\r\nx=1\r\n");
    put("[tarnwell]\rIP=1.2.3.4\r");
    config.write("Font", "Arial");
    EXPECT_EQ(file(), "[tarnwell]\rIP=1.2.3.4\rFont=Arial\r");
    put("[tarnwell]");
    config.write("Font", "Arial");
    EXPECT_EQ(file(), "[tarnwell]\r\nFont=Arial\r\n") << "a file without any line end gets Windows' own";
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

namespace {

/// As editors save it: with a mark in front that tells the form.
struct MarkedForm {
    const char* name;
    QStringConverter::Encoding encoding;
};

struct MarkedConfigStore : ConfigStoreTest, testing::WithParamInterface<MarkedForm> {
    static QByteArray inForm(const QString& text) {
        QStringEncoder encoder(GetParam().encoding, QStringConverter::Flag::WriteBom);
        return encoder.encode(text);
    }
    static inline const QString kFolder = QString::fromUtf8("D:\\Jeux d\xc3\xa9mo \xe3\x82\xb2\\");
};

INSTANTIATE_TEST_SUITE_P(, MarkedConfigStore,
                         testing::Values(MarkedForm{"Utf8", QStringConverter::Utf8},
                                         MarkedForm{"Utf16", QStringConverter::Utf16LE},
                                         MarkedForm{"Utf16BigEndian", QStringConverter::Utf16BE}),
                         [](const auto& form) { return std::string(form.param.name); });

} // namespace

TEST_P(MarkedConfigStore, IsRead) {
    put(inForm("[tarnwell]\r\nIP = \"10.1.2.3\" \r\nDefaultISO=" + kFolder + "\r\nClosePS2=1\r\n"));
    EXPECT_EQ(config.text("IP"), "10.1.2.3");
    EXPECT_EQ(config.text("DefaultISO"), kFolder);
    EXPECT_EQ(config.number("ClosePS2"), 1);
}

TEST_P(MarkedConfigStore, StaysInItsFormWhenAKeyIsWritten) {
    put(inForm("; " + kFolder + "\r\n[tarnwell]\r\nIP=10.1.2.3\r\n\r\n[other]\r\nx=1"));
    config.write("IP", "10.0.0.1");
    config.write("DefaultISO", kFolder);
    EXPECT_EQ(file(), inForm("; " + kFolder + "\r\n[tarnwell]\r\nIP=10.0.0.1\r\nDefaultISO=" + kFolder +
                             "\r\n\r\n[other]\r\nx=1"));
}

TEST_P(MarkedConfigStore, StaysInItsFormWhenAllIsReset) {
    put(inForm("\r\n"));
    config.WriteDefaultConfig();
    EXPECT_TRUE(file().startsWith(inForm("\r\n[tarnwell]\r\nDefaultISO=\r\nClosePS2=0\r\n")));
    EXPECT_EQ(config.text("IP"), "192.168.0.10");
}

TEST_P(MarkedConfigStore, HalfACharacterAtTheEndIsNotLost) {
    put(inForm("[tarnwell]\nIP=1.2.3.4\n") + "\xC3");
    config.write("IP", "10.0.0.1");
    EXPECT_EQ(file(), inForm("[tarnwell]\nIP=10.0.0.1\n") + "\xC3");
}

TEST_F(ConfigStoreTest, OneReadingSeesWhatTheProgramWritesAndNothingElse) {
    put("[tarnwell]\r\nIP=10.0.0.1\r\nFont=Arial\r\n");
    {
        const ConfigStore::OneReading reading(config);
        put("[tarnwell]\r\nIP=10.0.0.2\r\nFont=Arial\r\n");
        EXPECT_EQ(config.text("IP"), "10.0.0.1");
        config.write("Font", "Tahoma");
        EXPECT_EQ(config.text("Font"), "Tahoma");
    }
    put("[tarnwell]\r\nIP=10.0.0.3\r\n");
    EXPECT_EQ(config.text("IP"), "10.0.0.3");
}
