#include "end_to_end/whole_program.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTcpSocket>

namespace tarnwell::test {
namespace {

const QString kScriptName = QStringLiteral("<script>alert(1)</script>");
const QString kAddress = QStringLiteral("http://127.0.0.1/");

class StatusPage : public WholeProgram {
protected:
    static void openGuiPage(User& user) {
        user.click("cmdSettings");
        user.waitFor("the settings window", [&] { return user.windowUp("frmSettings"); });
        user.selectTab("TabStrip", ui::FrmSettings::kGuiTab);
        user.waitUntilIdle();
    }
    /// Two games in the list, the first with a name that must not be taken for a script, and slow work.
    void startSlowQueue(User& user, int msPerPercent = 150) const {
        openDisk(user);
        openGuiPage(user);
        user.click("chkStatusServer");
        user.click("cmdExitNoSave");
        user.waitUntilIdle();
        for (const QString& name : {kScriptName, QStringLiteral("Second Harvest")}) {
            pickImage(user, "game.iso");
            user.waitUntilIdle();
            user.type("txtGameName", name);
            user.click("cmdAddGame");
            user.waitUntilIdle();
        }
        bench.behave("[inject_cd]\ndelay_ms_per_step = " + QString::number(msPerPercent) + '\n');
        user.click("optJobQueue");
        user.click("cmdStart");
        user.waitFor("the first percent", [&] { return user.percent("picCurrent") >= 1; });
    }
    static void cancel(User& user) {
        user.click("frmStatus.cmdStop");
        user.waitUntilIdle();
    }

    /// Runs a program that reads the page; nothing if it fails or does not come to its end.
    static std::optional<QByteArray> read(const QString& program, const QStringList& arguments) {
        constexpr int kLongestMs = 60'000;
        QProcess process;
        process.start(program, arguments);
        const bool ended = process.waitForFinished(kLongestMs);
        if (!ended || process.exitCode() != 0)
            return std::nullopt;
        return process.readAllStandardOutput();
    }
    static std::optional<QByteArray> curl() {
        return read("curl", {"--silent", "--include", "--max-time", "10", kAddress});
    }
    /// The page as a browser has understood it, once it has loaded.
    QString browse() const {
        const QTemporaryDir profile;
        const std::optional<QByteArray> document = read(
            "chromium", {"--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
                         "--disable-background-networking", "--disable-component-update", "--disable-sync",
                         "--window-size=600,460", "--user-data-dir=" + profile.path(), "--dump-dom",
                         "--screenshot=" + picture(), kAddress});
        EXPECT_TRUE(document) << "the page did not load";
        return QString::fromUtf8(document.value_or(QByteArray()));
    }
    static QString picture() { return QDir::current().filePath("status_page.png"); }

    /// A row of the page, in a browser's own writing of it.
    static QString row(const QString& document, const QString& name, int occurrence = 0) {
        const QRegularExpression cells("<td>" + name + "</td>\\s*<td>(.*?)</td>",
                                       QRegularExpression::DotMatchesEverythingOption);
        QStringList values;
        for (auto all = cells.globalMatch(document); all.hasNext();)
            values += all.next().captured(1).trimmed();
        return values.value(occurrence, "(no such row)");
    }
    static int percent(const QString& document, int occurrence = 0) {
        const QString value = row(document, "Percent Complete", occurrence);
        EXPECT_TRUE(value.endsWith('%')) << value.toStdString();
        return value.chopped(1).toInt();
    }

    const QString image = makeImage();
};

TEST_F(StatusPage, ABrowserFollowsAQueueFromReloadToReload) {
    ASSERT_FALSE(QStandardPaths::findExecutable("chromium").isEmpty()) << "./dev setup installs it";
    play([&](User& user) {
        startSlowQueue(user, 1000); // far from its end however long the browser takes to start
        const QString first = browse();
        user.waitFor("more work done", [&] { return user.percent("picCurrent") >= percent(first) + 2; });
        const QString second = browse();
        cancel(user);

        EXPECT_EQ(row(first, "Current Task"),
                  "Installing [&lt;script&gt;alert(1)&lt;/script&gt;] onto Device [hdd1:]");
        EXPECT_FALSE(first.contains("<script"));
        for (const QString& document : {first, second}) {
            EXPECT_EQ(document.count("<tr>"), 10);
            EXPECT_TRUE(row(document, "Elapsed Time").startsWith("00:0"));
            EXPECT_TRUE(row(document, "Time Remaining").contains("remaining"));
            EXPECT_TRUE(row(document, "Transfer Speed").endsWith("MB/sec"));
            EXPECT_EQ(row(document, "Job Status"), "Job 1 of 2");
            EXPECT_NEAR(percent(document, 1), percent(document) / 2.0, 1);
            EXPECT_TRUE(row(document, "Elapsed Time", 1).startsWith("00:0"));
        }
        EXPECT_GE(percent(second), percent(first) + 2);
        EXPECT_GT(row(second, "Elapsed Time"), row(first, "Elapsed Time"));
    });
}

TEST_F(StatusPage, IsServedOnPortEightyForAsLongAsTheQueueRuns) {
    play([&](User& user) {
        const QString title = user.look([&] { return user.program().mainWindow().windowTitle(); });
        EXPECT_FALSE(curl());
        startSlowQueue(user);
        const std::optional<QByteArray> answer = curl();
        ASSERT_TRUE(answer);
        EXPECT_TRUE(answer->startsWith("HTTP/1.0 200 OK\r\n"
                                       "Date: Fri, 31 Dec 1999 23:59:59 GMT\r\n"
                                       "Content-Type: text/html\r\n"
                                       "Content-Length: "));
        EXPECT_TRUE(answer->contains("Installing [&#60;script&#62;alert(1)&#60;/script&#62;] onto"));
        EXPECT_TRUE(answer->endsWith("</html>\r\n"));
        EXPECT_EQ(user.look([&] { return user.program().mainWindow().windowTitle(); }),
                  title + " - [HTTP Server Active]");
        cancel(user);
        EXPECT_FALSE(curl());
        EXPECT_EQ(user.look([&] { return user.program().mainWindow().windowTitle(); }), title);
    });
}

TEST_F(StatusPage, TheProgramLeavesTheConnectionOpen) {
    play([&](User& user) {
        startSlowQueue(user);
        QTcpSocket client;
        client.connectToHost("127.0.0.1", 80);
        ASSERT_TRUE(client.waitForConnected());
        for (int i = 0; i < 2; ++i) {
            client.write("GET / HTTP/1.1\r\n\r\n");
            QByteArray answer;
            while (!answer.contains("</html>") && client.waitForReadyRead())
                answer += client.readAll();
            EXPECT_TRUE(answer.endsWith("</html>\r\n"));
            EXPECT_FALSE(client.waitForDisconnected(200));
        }
        cancel(user);
        EXPECT_FALSE(client.waitForDisconnected(200)) << "after the end of the work too";
    });
}

TEST_F(StatusPage, NoClientHarmsTheWorkOrTheWindow) {
    play([&](User& user) {
        startSlowQueue(user, 30);
        const QByteArray megabyteOfRequests = QByteArray("GET").repeated(350'000);
        std::vector<std::unique_ptr<QTcpSocket>> clients;
        for (int i = 0; i < 200; ++i) {
            clients.push_back(std::make_unique<QTcpSocket>());
            clients.back()->connectToHost("127.0.0.1", 80);
            ASSERT_TRUE(clients.back()->waitForConnected());
            if (i % 20 == 0)
                clients.back()->write(megabyteOfRequests); // never to read an answer
            if (i % 20 == 10)
                clients.at(clients.size() / 2)->abort();
        }
        clients.front()->waitForBytesWritten();
        EXPECT_TRUE(user.windowUp("frmStatus"));
        ASSERT_TRUE(curl());
        user.waitUntilIdle();
        for (const QString& job : user.rows("lstJob"))
            EXPECT_TRUE(job.startsWith("Complete")) << job.toStdString();
    });
    EXPECT_TRUE(extract("hdd1:", kScriptName) == contents(image));
}

TEST_F(StatusPage, TheTestOfTheSettingsServesThePageWhileItsBoxIsOpen) {
    play([&](User& user) {
        openGuiPage(user);
        user.click("cmdTest");
        user.waitFor("the box", [&] { return user.messageUp(); });
        const std::optional<QByteArray> answer = curl();
        ASSERT_TRUE(answer);
        EXPECT_TRUE(answer->contains("<TD>Time Remaining: n/a</TD>"));
        EXPECT_TRUE(answer->contains("<TD>Job 0 of 0</TD>"));
        EXPECT_TRUE(user.confirmMessage().contains("port 80"));
        user.waitUntilIdle();
        EXPECT_FALSE(curl());
    });
}

} // namespace
} // namespace tarnwell::test
