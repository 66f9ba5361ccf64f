#include "base/config_store.h"
#include "platform/helpers.h"
#include "platform/windows/system.h"
#include "support/gtest_qt.h"

#include <QFile>
#include <QStringDecoder>
#include <QTemporaryDir>

/// Texts that this program, the tool and the system hand one another in the system's 8-bit code page.
namespace tarnwell {
namespace {

/// What the system itself makes of bytes.
QString decodedBySystem(const QByteArray& bytes) {
    const auto size = static_cast<int>(bytes.size());
    QString text(size, u'\0');
    text.resize(MultiByteToWideChar(CP_ACP, 0, bytes.constData(), size,
                                    reinterpret_cast<wchar_t*>(text.data()), size));
    return text;
}

/// Letters of the code page at hand, whichever it is.
QByteArray letters() {
    return QString::fromUtf8("Pok\xc3\xa9mon \xe2\x82\xac \xe3\x83\x9a\xe3\x83\xab\xe3\x82\xbd\xe3\x83\x8a")
        .toLocal8Bit();
}

TEST(CodePage, BytesAreReadAsTheSystemReadsThem) {
    EXPECT_EQ(QString::fromLocal8Bit(letters()), decodedBySystem(letters()));
}

TEST(CodePage, ACharacterMayBeSplitAnywhere) {
    for (qsizetype split = 1; split < letters().size(); ++split) {
        QStringDecoder decoder(QStringDecoder::System);
        QString text = decoder.decode(letters().first(split));
        text += decoder.decode(letters().sliced(split));
        EXPECT_EQ(text, decodedBySystem(letters())) << split;
    }
}

class ProfileStrings : public testing::Test {
protected:
    QByteArray readBySystem(const char* key) const {
        char buffer[255];
        const DWORD length =
            GetPrivateProfileStringA("tarnwell", key, "", buffer, sizeof buffer, path_.toLocal8Bit());
        return {buffer, static_cast<qsizetype>(length)};
    }
    void writeBySystem(const char* key, const QByteArray& value) const {
        ASSERT_TRUE(WritePrivateProfileStringA("tarnwell", key, value, path_.toLocal8Bit()));
    }
    QString read(const QString& key) const { return ConfigRead("tarnwell", key, path_); }
    void write(const QString& key, const QString& value) const { ConfigWrite("tarnwell", key, value, path_); }

    static QStringList values() {
        return {"",
                "0",
                "-2147483633",
                "Tahoma,8,False,False,",
                "C:\\Program Files\\Tarnwell GUI\\",
                "[none selected]",
                "a=b;c",
                "  blanks  ",
                "\"quoted\"",
                "\"\"twice\"\"",
                "'single'",
                "\"",
                "\"open",
                "; no comment",
                "tab\t",
                QString(254, u'x'),
                QString(255, u'x'),
                QString(1000, u'x'),
                QString::fromLocal8Bit(letters())};
    }

    const QTemporaryDir folder_;
    const QString path_ = test::native(folder_.filePath("config.cfg"));
};

TEST_F(ProfileStrings, WhatTheProgramWritesTheSystemReads) {
    for (const QString& value : values()) {
        write("Key", value);
        EXPECT_EQ(QString::fromLocal8Bit(readBySystem("Key")), read("Key")) << value.toStdString();
    }
}

TEST_F(ProfileStrings, WhatTheSystemWritesTheProgramReads) {
    for (const QString& value : values()) {
        writeBySystem("Key", value.toLocal8Bit());
        EXPECT_EQ(read("Key"), QString::fromLocal8Bit(readBySystem("Key"))) << value.toStdString();
    }
}

TEST_F(ProfileStrings, BothMayWriteInTurn) {
    write("First", "1");
    writeBySystem("Second", "2");
    write("Third", "3");
    writeBySystem("First", "4");
    write("second", "5");
    for (const auto& [key, value] : {std::pair{"First", "4"}, {"Second", "5"}, {"Third", "3"}}) {
        EXPECT_EQ(readBySystem(key), value);
        EXPECT_EQ(read(key), value);
    }
    QFile file(path_);
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    EXPECT_EQ(file.readAll(), "[tarnwell]\r\nFirst=4\r\nSecond=5\r\nThird=3\r\n");
}

TEST_F(ProfileStrings, AFileInUtf16IsSharedToo) {
    const QString text = "[tarnwell]\r\nFirst=1\r\n";
    QFile file(path_);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("\xFF\xFE");
    file.write(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
    file.close();
    EXPECT_EQ(read("First"), "1");
    write("Second", "2");
    writeBySystem("Third", "3");
    write("First", "4");
    for (const auto& [key, value] : {std::pair{"First", "4"}, {"Second", "2"}, {"Third", "3"}}) {
        EXPECT_EQ(readBySystem(key), value);
        EXPECT_EQ(read(key), value);
    }
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    EXPECT_EQ(file.readAll().left(2), "\xFF\xFE");
}

TEST_F(ProfileStrings, OddFilesAreReadAlike) {
    for (const QByteArray text :
         {"[other]\nKey=other\n[TARNWELL]\nkey=mine\n", "  [tarnwell]  \r\n  Key  =  value  \r\n",
          "Key=outside\r\n[tarnwell]\r\n", "[tarnwell]\r\n;Key=comment\r\nKey=first\r\nKey=second\r\n",
          "[tarnwell]Key=1\r\n", "[tarnwell] ; note\r\nKey=1", "[tarnwell]\r\nKey\r\n",
          "[tarnwell]\r\nKey=\r\n", "[tarnwell]\rKey=1\r", "[ tarnwell ]\nKey=1\n",
          "[tarnwell]\n[other]\n[tarnwell]\nKey=1\n", "[tarnwell]\nKey=\"a\" \n", "[tarnwell]\nKey='a\"\n",
          "[tarnwell]\n=1\nKey=2\n", "[tarnwell]\n#Key=1\n"}) {
        QFile file(path_);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(text);
        file.close();
        EXPECT_EQ(read("Key"), QString::fromLocal8Bit(readBySystem("Key"))) << text.toStdString();
    }
}

} // namespace
} // namespace tarnwell
