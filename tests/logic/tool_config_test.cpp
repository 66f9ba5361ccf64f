#include "base/fault.h"
#include "base/replace_file.h"
#include "base/text_primitives.h"
#include "settings/tool_config_text.h"
#include "support/settings_test.h"

#include <QElapsedTimer>

#include <random>

using namespace tarnwell;
using namespace tarnwell::test;

namespace {

const QString kFolder = QStringLiteral("C:\\Users\\me\\AppData\\Roaming\\");

struct ToolConfigText : testing::Test {
    ui::FrmSettings frmSettings;
    ui::FrmMain frmMain;

    void read(const QString& text) { ReadToolConfig(text, kFolder, frmSettings); }
    QString write() { return WriteToolConfig(kFolder, frmSettings, frmMain); }
    QString state() const { return stateOf(frmSettings); }

    static QString stateOf(const ui::FrmSettings& form) {
        return QString("%1|%2|%3%4%5%6%7")
            .arg(form.txtDiscDatabase.text.get(), form.txtTargetkbps.text.get())
            .arg(form.chkAutoThrottle.value.get())
            .arg(form.chkEnableASPI.value.get())
            .arg(form.chkLimit28bit.value.get())
            .arg(form.chkToxicOS.value.get())
            .arg(form.chkUseCompression.value.get());
    }
};

QString withoutQuotes(const ui::TextBox& box) {
    return QString(box.text).remove('"');
}

struct ToolConfigFile : SettingsTest {
    void saveAndExit() { ui::click(frmSettings->cmdExit); }
};

constexpr auto kWholeFile = "\"disc_database_file\" = \"D:\\\\ps2\\\\tarnwell.list\"\n"
                            "\"auto_throttle\" = \"1\"\n"
                            "\"enable_aspi\" = \"no\"\n"
                            "\"last_ip\" = \"192.168.0.10\"\n"
                            "\"limit_to_28bit\" = \"no\"\n"
                            "\"partition_naming\" = \"toxicos\"\n"
                            "\"target_kbps\" = \"1500\"\n"
                            "\"use_compression\" = \"yes\"\n"
                            "\r\n";
const QString kWholeState = QStringLiteral("D:\\ps2\\tarnwell.list|1500|10011");
const QString kStartState = QStringLiteral("||01100");

} // namespace

TEST_F(ToolConfigText, ReadsAndWritesTheSameBytes) {
    read(kWholeFile);
    EXPECT_EQ(state(), kWholeState);
    EXPECT_EQ(write(), kWholeFile);
}

TEST_F(ToolConfigText, AnEmptyTextLeavesAllControlsAlone) {
    for (const char* text : {"", "\n", "\r\n", "\n\n\r\n\n"}) {
        read(text);
        EXPECT_EQ(state(), kStartState);
    }
}

TEST_F(ToolConfigText, AFileWithoutQuotesAndWithCarriageReturnsReadsTheSame) {
    read(QString(kWholeFile).remove('"').replace("\n", "\r\n"));
    EXPECT_EQ(state(), kWholeState);
}

TEST_F(ToolConfigText, CarriageReturnsAloneEndNoLine) {
    read(QString(kWholeFile).replace("\r\n", "").replace("\n", "\r"));
    EXPECT_EQ(state(), kStartState);
}

TEST_F(ToolConfigText, ALastLineWithoutALineFeedIsNotSeen) {
    read("enable_aspi = no\ntarget_kbps = 7");
    EXPECT_EQ(state(), "||00100");
}

TEST_F(ToolConfigText, TheLastOfEqualKeysWins) {
    read("target_kbps = 1\ntarget_kbps = 2\nenable_aspi = no\nenable_aspi = yes\n");
    EXPECT_EQ(state(), "|2|01100");
}

TEST_F(ToolConfigText, UnknownKeysAndLinesWithoutASeparatorAreIgnored) {
    read("colour = red\nenable_aspi=no\nenable_aspi =no\nenable_aspi= no\nENABLE_ASPI = no\n = no\n" //
         "enable_aspi\t=\tno\n");
    EXPECT_EQ(state(), kStartState);
}

TEST_F(ToolConfigText, KeysAreTrimmedAndValuesAreNot) {
    read("   target_kbps   =  12 \nenable_aspi = yes \n");
    EXPECT_EQ(state(), "| 12 |00100");
}

TEST_F(ToolConfigText, OnlyTheFirstSeparatorSplits) {
    read("target_kbps = a = b\n");
    EXPECT_EQ(frmSettings.txtTargetkbps.text.get(), "a = b");
}

TEST_F(ToolConfigText, QuotesGoWhereverTheyStand) {
    read("tar\"get_k\"bps = \"1\"2\"3\n");
    EXPECT_EQ(frmSettings.txtTargetkbps.text.get(), "123");
}

TEST_F(ToolConfigText, AnEmptyDiscDatabaseIsTheOneInTheDataFolder) {
    read("\"disc_database_file\" = \"\"\n");
    EXPECT_EQ(frmSettings.txtDiscDatabase.text.get(), kFolder + "tarnwell.list");
}

TEST_F(ToolConfigText, AnAbsentDiscDatabaseLeavesTheTextThatWasThere) {
    frmSettings.txtDiscDatabase.text = QString("E:\\other.list");
    read("\"target_kbps\" = \"\"\n");
    EXPECT_EQ(state(), "E:\\other.list|2300|01100");
}

TEST_F(ToolConfigText, AnEmptyDiscDatabaseIsNotWrittenButShownAfterwards) {
    frmSettings.txtDiscDatabase.text = QString("  ");
    EXPECT_EQ(write().count('\n'), 8) << "seven lines and the closing pair";
    EXPECT_FALSE(write().startsWith("\"auto_throttle\"")) << "the text that it shows now is written";
    EXPECT_EQ(frmSettings.txtDiscDatabase.text.get(), kFolder + "tarnwell.list");
}

TEST_F(ToolConfigText, WithoutADataFolderTheDiscDatabaseStaysEmpty) {
    EXPECT_TRUE(WriteToolConfig(QString(), frmSettings, frmMain).startsWith("\"auto_throttle\" = \"0\"\n"));
    EXPECT_EQ(frmSettings.txtDiscDatabase.text.get(), "");
}

TEST_F(ToolConfigText, BoxesThatMustNotBeEmptyAreFilled) {
    frmMain.txtIP.text = QString();
    const QString text = write();
    EXPECT_TRUE(text.contains("\"last_ip\" = \"192.168.0.10\"\n"));
    EXPECT_TRUE(text.contains("\"target_kbps\" = \"2300\"\n"));
    EXPECT_EQ(frmMain.txtIP.text.get(), "192.168.0.10");
    EXPECT_EQ(frmSettings.txtTargetkbps.text.get(), "2300");
}

TEST_F(ToolConfigText, StandardNamingLeavesATickedBoxTicked) {
    frmSettings.chkToxicOS.value = 1;
    read("\"partition_naming\" = \"standard\"\n");
    EXPECT_EQ(frmSettings.chkToxicOS.value, 1);
}

TEST_F(ToolConfigText, BackslashesAreHalvedInPairs) {
    read("disc_database_file = C:\\a\\tarnwell.list\n");
    EXPECT_EQ(frmSettings.txtDiscDatabase.text.get(), "C:\\a\\tarnwell.list");
    read("disc_database_file = \\\\\\\\server\\tarnwell.list\n");
    EXPECT_EQ(frmSettings.txtDiscDatabase.text.get(), "\\\\server\\tarnwell.list");
}

TEST_F(ToolConfigText, TheAddressOfTheFileIsNotTakenOver) {
    read("last_ip = 10.9.9.9\n");
    EXPECT_EQ(frmMain.txtIP.text.get(), "192.168.0.10");
}

TEST_F(ToolConfigText, TheThrottleIsANumber) {
    for (const auto& [text, value] :
         {std::pair{"1", 1}, {"0.5", 0}, {"1.5", 2}, {"2.4", 2}, {"-0.4", 0}, {"yes", 0}, {"1 day", 1}}) {
        read(QString("auto_throttle = %1\n").arg(text));
        EXPECT_EQ(frmSettings.chkAutoThrottle.value, value) << text;
    }
    for (const char* text : {"7", "2.6", "-0.6", "-1", "1e300", "99999999999999999999"}) {
        read("auto_throttle = 1\n");
        read(QString("auto_throttle = %1\n").arg(text));
        EXPECT_EQ(frmSettings.chkAutoThrottle.value, 1) << text << " fits no check box";
    }
}

TEST_F(ToolConfigText, AGreyedBoxIsWrittenAsNo) {
    frmSettings.chkEnableASPI.value = 2;
    frmSettings.chkToxicOS.value = 2;
    EXPECT_TRUE(write().contains("\"enable_aspi\" = \"no\"\n"));
    EXPECT_TRUE(write().contains("\"partition_naming\" = \"standard\"\n"));
}

TEST_F(ToolConfigText, WhatIsWrittenIsReadBackToTheSameControls) {
    const QStringList pieces = {"a",  "Z9", " ", "\\", "\\\\", "=", " = ",
                                "\"", "\t", "ü", "€",  "[",    ";", "disc_database_file",
                                "yes"};
    std::mt19937 random(20240229);
    const auto below = [&](std::size_t limit) { return static_cast<qsizetype>(random() % limit); };
    const auto text = [&] {
        QString all;
        for (qsizetype i = below(6); i > 0; --i)
            all += pieces[below(static_cast<std::size_t>(pieces.size()))];
        return all;
    };
    for (int round = 0; round < 5000; ++round) {
        ui::FrmSettings written, readBack;
        written.txtDiscDatabase.text = text();
        written.txtTargetkbps.text = text();
        for (ui::CheckBox* box : {&written.chkAutoThrottle, &written.chkEnableASPI, &written.chkLimit28bit,
                                  &written.chkToxicOS, &written.chkUseCompression})
            box->value = static_cast<int>(below(2));
        const bool named = !Trim(written.txtDiscDatabase.text).isEmpty();
        const QString file = WriteToolConfig(kFolder, written, frmMain);
        ReadToolConfig(file, kFolder, readBack);

        // What gets lost on the way: quotes, and a disc database that is empty. Where only quotes stood, the
        // reader's own default stands afterwards.
        QString expectedFile = withoutQuotes(written.txtDiscDatabase);
        QString expectedSpeed = withoutQuotes(written.txtTargetkbps);
        if (!named)
            expectedFile = QString();
        else if (expectedFile.isEmpty())
            expectedFile = kFolder + "tarnwell.list";
        if (expectedSpeed.isEmpty())
            expectedSpeed = "2300";
        written.txtDiscDatabase.text = expectedFile;
        written.txtTargetkbps.text = expectedSpeed;
        ASSERT_EQ(stateOf(readBack), stateOf(written)) << file.toStdString();
    }
}

TEST_F(ToolConfigFile, IsMadeEmptyIfItIsMissing) {
    start();
    EXPECT_EQ(readConf(), "");
    EXPECT_EQ(ToolConfigText::stateOf(*frmSettings), kStartState);
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(ToolConfigFile, IsSavedInEightLinesThatEndInAFixedWay) {
    writeConf(kWholeFile);
    startAndOpen();
    saveAndExit();
    EXPECT_EQ(readConf(), kWholeFile);
    EXPECT_TRUE(readConf().endsWith("\n\r\n"));
    EXPECT_FALSE(frmSettings->shown());
}

TEST_F(ToolConfigFile, ForgetsWhatTheProgramDoesNotKnow) {
    writeConf("\"colour\" = \"red\"\n\"target_kbps\" = \"99\"\n");
    startAndOpen();
    saveAndExit();
    EXPECT_FALSE(readConf().contains("colour"));
    EXPECT_TRUE(readConf().contains("\"target_kbps\" = \"99\"\n"));
    EXPECT_EQ(readConf().count('\n'), 8);
}

TEST_F(ToolConfigFile, TextThatIsTooLongIsToldAndTheProgramStarts) {
    for (const QByteArray& bytes : {QByteArray(32768, 'x'), QByteArray(10'000'000, '\n')}) {
        writeConf(bytes);
        ports.dialogs.messages.clear();
        Program another(ports.ports());
        another.start();
        ASSERT_EQ(ports.dialogs.messages.size(), 1u);
        EXPECT_TRUE(lastMessage().contains("too long"));
        EXPECT_TRUE(another.shared().frmMain.shown());
        EXPECT_EQ(ToolConfigText::stateOf(another.shared().frmSettings.untouched()), kStartState);
    }
}

TEST_F(ToolConfigFile, TheLongestTextIsRead) {
    const QByteArray line = "target_kbps = 5\n";
    writeConf(QByteArray(32766 - line.size(), 'x') + '\n' + line);
    start();
    EXPECT_EQ(frmSettings->txtTargetkbps.text.get(), "5");
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(ToolConfigFile, BinaryBytesDoNoHarm) {
    QByteArray bytes;
    for (int i = 0; i < 20000; ++i)
        bytes += static_cast<char>(i * 7919 >> 3);
    writeConf(bytes + "\ntarget_kbps = 5\n");
    start();
    EXPECT_EQ(frmSettings->txtTargetkbps.text.get(), "5");
    EXPECT_TRUE(frmMain.shown());
}

TEST_F(ToolConfigFile, AFolderInItsPlaceIsToldAndTheProgramStarts) {
    QDir().mkpath(conf());
    start();
    ASSERT_EQ(ports.dialogs.messages.size(), 1u);
    EXPECT_TRUE(lastMessage().contains("could not be read"));
    EXPECT_TRUE(frmMain.shown());
}

TEST_F(ToolConfigFile, AFolderThatVanishesBeforeTheSaveIsToldAndTheWindowCloses) {
    startAndOpen();
    QDir(ports.folders.data).removeRecursively();
    saveAndExit();
    EXPECT_EQ(lastMessage(),
              "Tarnwell settings will not be saved because your Application Data folder has not "
              "been properly set.");
    EXPECT_FALSE(frmSettings.untouched().loaded());
    EXPECT_FALSE(QFile::exists(conf()));
}

TEST_F(ToolConfigFile, AFileThatCannotBeReplacedIsToldAndTheWindowStays) {
    const QString fixed = QStringLiteral("/proc/version"); // nobody can write there, whatever the account
    QFile held(conf());
    if (!QFile::link(fixed, conf()) || !QFileInfo(conf()).isSymbolicLink()) {
        QFile::remove(conf());
        ASSERT_TRUE(held.open(QFile::ReadWrite)); // Windows replaces no file that someone has open
    }
    startAndOpen();
    ui::type(frmSettings->txtTargetkbps, "1");
    saveAndExit();
    EXPECT_TRUE(lastMessage().contains("could not be written"));
    EXPECT_TRUE(frmSettings->shown());
    EXPECT_EQ(frmSettings->txtTargetkbps.text.get(), "1");
    ui::click(frmMain.cmdExit);
    EXPECT_EQ(ports.dialogs.messages.size(), 1u) << "it is not tried again";
    EXPECT_TRUE(ports.pump.ended());
}

namespace {

struct Interrupted {};

struct ReplacedFile : SettingsTest {};

} // namespace

TEST_F(ReplacedFile, IsOldOrNewWhereverTheWriteIsInterrupted) {
    const QByteArray older(70000, 'o'), newer(90000, 'n');
    const QString file = makeFolder("place") + "tarnwell.conf";
    int interrupted = 0;
    for (int lastStep = 0;; ++lastStep) {
        writeTo(file, older);
        try {
            ReplaceFile(file, newer, [left = lastStep]() mutable {
                if (left-- == 0)
                    throw Interrupted();
            });
            break;
        } catch (const Interrupted&) {
            ++interrupted;
            EXPECT_EQ(readFrom(file), older) << "step " << lastStep;
            EXPECT_EQ(QDir(path("place")).entryList(QDir::Files | QDir::Hidden),
                      QStringList("tarnwell.conf"));
        }
    }
    EXPECT_GE(interrupted, 3);
    EXPECT_EQ(readFrom(file), newer);
}

TEST_F(ReplacedFile, IsLeftAsItWasIfItsFolderIsGone) {
    int steps = 0;
    EXPECT_THROW(ReplaceFile(path("nowhere/tarnwell.conf"), "x", [&] { ++steps; }), Fault);
    EXPECT_FALSE(QFile::exists(path("nowhere")));
    EXPECT_EQ(steps, 1) << "it is not tried again";
}

TEST_F(ReplacedFile, IsTriedAgainWhileSomebodyHoldsItsPlace) {
    // A folder of the file's name, there at the last step of a try only, keeps the new file from its place.
    constexpr int kStepsOfATry = 4, kTries = 4;
    const QString place = path("tarnwell.conf");
    int steps = 0;
    const auto replaceWhileHeld = [&](int tries) {
        steps = 0;
        ReplaceFile(place, "new", [&] {
            QDir().rmdir(place);
            if (++steps % kStepsOfATry == 0 && steps / kStepsOfATry <= tries)
                QDir().mkdir(place);
        });
    };
    QElapsedTimer sinceStart;
    sinceStart.start();
    replaceWhileHeld(kTries - 1);
    EXPECT_GE(sinceStart.elapsed(), 45) << "whoever holds it has time to let go";
    EXPECT_EQ(readFrom(place), "new");
    QFile::remove(place);
    EXPECT_THROW(replaceWhileHeld(1000), Fault);
    EXPECT_EQ(steps, kTries * kStepsOfATry) << "nobody waits for ever";
}
